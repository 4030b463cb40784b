// Records, logbook files and the operations on contacts, against bytes set by hand.
#include "aides.h"
#include "core/fiches.h"

#include <gtest/gtest.h>

namespace orvalis {
namespace {

using namespace essai;

class Fiches : public ::testing::Test {
  protected:
    void Ouvrir(const std::string& octets) {
        EcrireOctets(chemin, octets);
        session.monLocator = "JN18AA";
        OuvrirJournal(session, chemin);
        CompterFiches(session);
    }
    [[nodiscard]] std::string Octets() const { return LireOctets(chemin); }

    DossierTemporaire dossier;
    std::filesystem::path chemin = dossier / "F5ABC.Vek";
    Session session;
};

std::string FicheComplete() {
    return Brute({{0, "F6XYZ/P"},
                  {15, "12/05/02"},
                  {23, "18:30"},
                  {28, "18:45"},
                  {33, "14.250"},
                  {43, "SSB"},
                  {48, "59"},
                  {56, "59+10"},
                  {64, "SAINT-\xC9TIENNE"},
                  {89, "JN15EK"},
                  {95, "42"},
                  {98, "\x8Cuvrard Z\x81"},
                  {113, "REMARQUE DE 20 CAR"},
                  {143, "En cours"},
                  {151, "OK"},
                  {159, "JN18AA"}});
}

TEST_F(Fiches, UneFicheLueRemplitLesZones) {
    Ouvrir(FicheComplete() + FinDeLog());
    LireFiche(session, 1);
    const Zones attendues = {"REMARQUE DE 20 CAR            ",
                             "F6XYZ/P",
                             "12/05/02",
                             "18:30",
                             "18:45",
                             "14.250",
                             "SSB",
                             "59",
                             "59+10",
                             "SAINT-ÉTIENNE",
                             "JN15EK",
                             "42",
                             "Œuvrard Z\xC2\x81",
                             "REMARQUE DE 20",
                             "En cours",
                             "OK",
                             "JN18AA",
                             "CAR"};
    EXPECT_EQ(session.zones, attendues);
    EcrireFiche(session, 1);
    EXPECT_EQ(Octets(), FicheComplete() + FinDeLog());
    LireFiche(session, 9);
    EXPECT_EQ(session.zones[1] + session.zones[17], "");
}

TEST_F(Fiches, UneFicheEcriteEstCoupeeOuCompletee) {
    Ouvrir(FinDeLog());
    session.zones[1] = "ABCDEFGHIJKLMNOPQRST";
    session.zones[9] = "ÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉ漢";
    session.zones[11] = "7";
    session.zones[0] = "INFO";
    session.zones[13] = "ignoree";
    EcrireFiche(session, 3);
    EXPECT_EQ(
        Octets(),
        FinDeLog() + Brute({}) +
            Brute(
                {{0, "ABCDEFGHIJKLMNO"}, {64, std::string(25, '\xC9')}, {95, "7"}, {113, "INFO"}}));
}

TEST_F(Fiches, ComptageDesCahiersSainsEtAbimes) {
    const std::string a = Contact("F1AAA");
    const std::string f = FinDeLog();
    const struct {
        std::string nom, octets;
        std::int32_t nb;
        bool fin, entiere;
    } cas[] = {
        {"vide", "", 0, false, true},
        {"neuf", f, 0, true, true},
        {"deux contacts", a + a + f, 2, true, true},
        {"restes derriere la fin", a + f + a + a, 1, true, true},
        {"sans fin", a + a + a, 3, false, true},
        {"derniere fiche coupee", a + a.substr(0, 20), 2, false, false},
        {"fin de log coupee", a + "\\", 1, true, false},
        {"fin decalee par des blancs", a + Contact("  \\"), 1, true, true},
        {"pas un cahier", std::string(1000, 'x'), 7, false, false},
        {"plus d'un bloc", std::string(1601 * 165, 'y') + f + a, 1601, true, true},
    };
    for (const auto& c : cas) {
        Session autre;
        EcrireOctets(chemin, c.octets);
        OuvrirJournal(autre, chemin);
        CompterFiches(autre);
        EXPECT_EQ(autre.nbFiches, c.nb) << c.nom;
        EXPECT_EQ(autre.prochaineFiche, c.nb + 1) << c.nom;
        EXPECT_EQ(ExaminerJournal(autre).finPresente, c.fin) << c.nom;
        EXPECT_EQ(ExaminerJournal(autre).longueurEntiere, c.entiere) << c.nom;
    }
}

TEST_F(Fiches, UnAjoutRemplaceLaFinDeLog) {
    Ouvrir(Contact("F1AAA") + FinDeLog() + Contact("RESTE") + Contact("RESTE2"));
    session.zones = {};
    session.zones[1] = "F2BBB";
    AjouterFiche(session, FicheFinDeLog("IN95AA"));
    EXPECT_EQ(session.nbFiches, 2);
    EXPECT_EQ(session.prochaineFiche, 3);
    EXPECT_EQ(Octets(), Contact("F1AAA") + Contact("F2BBB") + Brute({{0, "\\"}, {159, "IN95AA"}}) +
                            Contact("RESTE2"));
}

TEST_F(Fiches, UnAjoutDerriereUneFicheCoupeeTombeSurUneFicheEntiere) {
    Ouvrir(Contact("F1AAA").substr(0, 30));
    session.zones[1] = "F2BBB";
    AjouterFiche(session, FicheFinDeLog("JN18AA"));
    EXPECT_EQ(Octets(), Contact("F1AAA") + Contact("F2BBB") + FinDeLog());
}

TEST_F(Fiches, UneSuppressionResserreSansRaccourcir) {
    const std::string a = Contact("F1AAA");
    const std::string b = Contact("F2BBB");
    const std::string c = Contact("F3CCC");
    const std::string f = FinDeLog();
    const struct {
        std::string avant;
        std::int32_t k;
        std::string apres;
    } cas[] = {
        {a + b + c + f, 1, b + c + f + f}, {a + b + c + f, 2, a + c + f + f},
        {a + b + c + f, 3, a + b + f + f}, {a + f, 1, f + f},
        {a + b + c, 1, b + c + f},         {a + b + c.substr(0, 9), 1, b + c + f},
    };
    for (const auto& essai : cas) {
        Session autre;
        autre.monLocator = "JN18AA";
        EcrireOctets(chemin, essai.avant);
        OuvrirJournal(autre, chemin);
        CompterFiches(autre);
        const std::int32_t nb = autre.nbFiches;
        LireFiche(autre, essai.k);
        SupprimerFiche(autre, essai.k);
        EXPECT_EQ(Octets(), essai.apres);
        EXPECT_EQ(autre.nbFiches, nb - 1);
        EXPECT_EQ(autre.zones[1], "");
        CompterFiches(autre);
        EXPECT_EQ(autre.nbFiches, nb - 1);
    }
}

TEST_F(Fiches, UneSuppressionTraverseLesBlocs) {
    std::string avant;
    for (int k = 1; k <= 3300; ++k)
        avant += Contact(std::to_string(k));
    Ouvrir(avant + FinDeLog());
    SupprimerFiche(session, 2);
    EXPECT_EQ(Octets(), avant.substr(0, 165) + avant.substr(330) + FinDeLog() + FinDeLog());
}

TEST_F(Fiches, UnCahierNeSOuvrePasDeuxFois) {
    Ouvrir(FinDeLog());
    Session autre;
    EXPECT_THROW(OuvrirJournal(autre, chemin), ErreurVerrou);
    OuvrirJournal(session, dossier.Chemin() / "." / "F5ABC.Vek"); // its own, under another path
    EXPECT_THROW(OuvrirJournal(session, dossier / "absent.Vek"), ErreurFichier);
    EXPECT_FALSE(std::filesystem::exists(dossier / "absent.Vek"));
    EXPECT_THROW(OuvrirJournal(session, dossier.Chemin()), ErreurFichier);
    EXPECT_EQ(session.journal.Lire(1).octets[0], '\\'); // the old one stays open
}

} // namespace
} // namespace orvalis
