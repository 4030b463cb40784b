// Records, logbook files and the operations on contacts, against bytes set by hand.
#include "aides.h"
#include "core/recherche.h"

namespace orvalis::aides::fiches {

struct Fiches : ::testing::Test {
    void Poser(const std::string& octets) {
        cahier = {};
        cahier = Ouvrir(dossier.Poser("F5ABC.Vek", octets));
    }
    [[nodiscard]] std::string Octets() const { return Lire(dossier / "F5ABC.Vek"); }

    Dossier dossier;
    Cahier cahier;
    const std::string a = Contact("F1AAA"), b = Contact("F2BBB"), c = Contact("F3CCC"), f = Fin();
    const std::string saisie = Brute({{0, "F2BBB"}}); // what a typed callsign alone makes
};

TEST_F(Fiches, ComptageDesCahiersSainsEtAbimes) {
    const std::pair<std::string, const char*> cas[] = {
        // A logbook; N, whether it has an end of log and is of whole records.
        {"", "0 entier"},
        {f, "0 fini entier"},
        {a + b + f + a + a, "2 fini entier"}, // remains behind the end of the log
        {a + a + a, "3 entier"},
        {a + a.substr(0, 20), "2"},
        {a + "\\", "1 fini"},
        {a + Contact("  \\"), "1 fini entier"},
        {std::string(1000, 'x'), "7"},
        {std::string(1601 * 165, 'y') + f + a, "1601 fini entier"}};
    for (const auto& [octets, attendu] : cas) {
        Poser(octets);
        const EtatCahier etat = ExaminerCahier(cahier);
        const std::string nombre = std::to_string(cahier.nbFiches),
                          fin = etat.finPresente ? " fini" : "";
        EXPECT_EQ(nombre + fin + (etat.longueurEntiere ? " entier" : ""), attendu);
    }
}

TEST_F(Fiches, AjoutsEtSuppressionsOctetParOctet) {
    std::string blocs;
    for (int k = 1; k <= 3300; ++k)
        blocs += Contact(std::to_string(k));
    const std::string g = Fin("IN95AA");
    // A logbook, the contact deleted (0: one is added), the logbook afterwards.
    const std::tuple<std::string, std::int32_t, std::string> cas[] = {
        {a + f + b + c, 0, a + saisie + g + c},
        {a.substr(0, 30), 0, Brute({{0, "F1AAA"}}) + saisie + g}, // cut in a record
        {a + b + c + f, 1, b + c + f + f},                        // the file keeps its length
        {a + b + c + f, 2, a + c + f + f},
        {a + b + c + f, 3, a + b + f + f},
        {a + f, 1, f + f},
        {a + b + c, 1, b + c + f},
        {a + b + c.substr(0, 9), 1, b + Brute({{0, "F3CCC"}}) + f},
        {blocs + f, 2, blocs.substr(0, 165) + blocs.substr(330) + f + f}};
    for (const auto& [avant, k, apres] : cas) {
        Poser(avant);
        const std::int32_t attendu = cahier.nbFiches + (k == 0 ? 1 : -1);
        if (k == 0)
            AjouterFiche(cahier, Enregistrement(saisie), FicheFinDeLog("IN95AA"));
        else
            EXPECT_TRUE(SupprimerFiche(cahier, NumeroFiche{k}, cahier.fichier.Lire(NumeroFiche{k}),
                                       "JN18AA"));
        EXPECT_EQ(Octets(), apres);
        EXPECT_EQ(cahier.nbFiches, attendu);
        std::vector<OctetsIndicatif> relus;
        EXPECT_EQ(cahier.fichier.Compter(relus), attendu);
        EXPECT_EQ(cahier.indicatifs, relus);
    }
    Poser(a + b + f);
    EXPECT_TRUE(CorrigerFiche(cahier, kPremiereFiche, Enregistrement(a), Enregistrement(c)));
    EXPECT_EQ(ChercherStation(cahier, "f3ccc").fois, 1);
    cahier.fichier.Ecrire(kPremiereFiche, Enregistrement(a)); // by another program
    EXPECT_EQ(ChercherStation(cahier, "f3ccc").fois, 0);
    auto gardes = cahier.indicatifs;
    EXPECT_THROW(static_cast<void>(FichierFiches{}.Compter(gardes)), Erreur);
    EXPECT_EQ(gardes, cahier.indicatifs);
}

TEST_F(Fiches, UnCahierNeSOuvrePasDeuxFois) {
    Poser(f);
    EXPECT_THROW(Ouvrir(dossier / "F5ABC.Vek"), Erreur);
    OuvrirCahier(cahier, dossier / "./F5ABC.Vek"); // its own, under another path
    for (const char* refuse : {"absent.Vek", "."})
        EXPECT_THROW(OuvrirCahier(cahier, dossier / refuse), Erreur);
    EXPECT_FALSE(std::filesystem::exists(dossier / "absent.Vek"));
    EXPECT_EQ(cahier.fichier.Lire(kPremiereFiche).octets[0], '\\'); // the old one stays open
}

} // namespace orvalis::aides::fiches
