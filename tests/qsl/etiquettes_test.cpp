// The label sheet and the life of a label, against the bytes of both files.

// GCC sees an uninitialised part in every std::regex, under the sanitizers only.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

#include "aides.h"
#include "qsl/contact_etiquette.h"
#include "qsl/flux_etiquettes.h"

#include <algorithm>
#include <functional>
#include <map>
#include <regex>
#include <sstream>

namespace orvalis {
namespace {

using namespace aides;

const std::string kLibre = Brute({{0, "***"}}, 106);

// Records of words like "F18x": a callsign, an hour, and x at the offset `fin`, with '+' for
// "En cours" and dots for blanks.
std::string Fiches(const std::string& mots, std::size_t date = 15, std::size_t fin = 143,
                   std::size_t taille = kTailleFiche) {
    std::string octets;
    std::istringstream flux(mots);
    for (std::string mot; flux >> mot;) {
        const std::string suite = mot.substr(3) == "+" ? "En cours" : mot.substr(3);
        octets += Brute(
            {{0, mot.substr(0, 1)}, {date, "21/11/26" + mot.substr(1, 2)}, {fin, suite}}, taille);
    }
    std::replace(octets.begin(), octets.end(), '.', ' ');
    return octets;
}

// Labels likewise, with the number of their contact at the end.
std::string Etiquettes(const std::string& mots) {
    return Fiches(mots, 60, 96, 106);
}

// A sheet whose other places are free.
std::string Planche(std::string premieres) {
    while (premieres.size() < std::size_t{16} * 106)
        premieres += kLibre;
    return premieres;
}

// A program folder with a logbook and a label sheet.
struct ServiceQSL {
    Dossier dossier;
    Session session;
    FeuilleQSL feuille;
    ReponseQSL reponse; // to the last gesture that has one

    ServiceQSL(const std::string& fiches, const std::string& planche) {
        session = Ouvrir(dossier.Poser("F5ABC.Vek", fiches + Fin()));
        dossier.Poser("feuilleQSL.TXT", planche);
        ChargerFeuilleQSL(feuille, dossier / "");
    }
    [[nodiscard]] std::string OctetsFeuille() const { return Lire(dossier / "feuilleQSL.TXT"); }

    // Gestures with a blank between them: "choix3" for BtChoix_3, "boite1=F6" for a typed text
    // with dots for blanks, "autre" to look at another logbook. Returns a letter for each part
    // then on show, NrTag, and the labels or the logbook of a message.
    std::string Faire(const std::string& gestes) {
        std::string texte;
        const std::map<std::string, std::function<void(int)>> actions = {
            {"fiche", [&](int k) { reponse = PreparerEtiquette(session, feuille, k).reponse; }},
            {"choix", [&](int k) { CliquerChoix(feuille, k); }},
            {"tag", [&](int k) { CliquerTag(feuille, k); }},
            {"boite", [&](int k) { SaisirBoite(feuille, static_cast<std::size_t>(k), texte); }},
            {"entree", [&](int) { EntrerBoite(feuille); }},
            {"direct", [&](int) { ChoisirVoie(feuille, VoieQSL::Direct); }},
            {"valider", [&](int) { reponse = Valider(session, feuille); }},
            {"supprimer", [&](int) { reponse = Supprimer(session, feuille); }},
            {"laisser", [&](int) { Laisser(feuille); }},
            {"restaurer", [&](int) { Restaurer(feuille); }},
            {"imprimer", [&](int) { DemanderControle(feuille); }},
            {"parfait", [&](int) { reponse = ToutEstParfait(session, feuille, "J"); }},
            {"autre", [&](int) { session.autreJournal = "AUTRE"; }},
        };
        std::istringstream flux(gestes);
        for (std::string geste; flux >> geste;) {
            std::replace(geste.begin(), geste.end(), '.', ' ');
            const std::size_t k = std::min(geste.find_first_of("0123456789"), geste.size());
            texte = geste.substr(geste.find('=') + 1);
            actions.at(geste.substr(0, k))(std::atoi(&geste[k]));
        }
        const VueFeuille& v = feuille.vue;
        const bool visibles[] = {v.panneau, v.valider,  v.supprimer, v.laisser,
                                 v.quitter, v.imprimer, v.restaurer, v.controle};
        std::string lettres;
        for (std::size_t i = 0; i < std::size(visibles); ++i)
            lettres += visibles[i] ? std::string(1, "PVSLQIRC"[i]) : "";
        return std::regex_replace(
            lettres + ' ' + v.nrTag + '\n' + reponse.message,
            std::regex("Etiquette N° |( est ouvert en consultation)? : .*|\n$"), "");
    }
};

// Contacts and labels before, gestures, contacts and labels afterwards, what is on show.
void Essayer(const std::vector<std::array<std::string, 6>>& table) {
    for (const auto& [fiches, etiquettes, gestes, fichesApres, etiquettesApres, montre] : table) {
        SCOPED_TRACE(testing::PrintToString(std::tie(fiches, etiquettes, gestes)));
        ServiceQSL service(Fiches(fiches), Planche(Etiquettes(etiquettes)));
        EXPECT_EQ(service.Faire(gestes), montre);
        EXPECT_EQ(Lire(service.session.cheminJournal), Fiches(fichesApres) + Fin());
        EXPECT_EQ(service.OctetsFeuille(), Planche(Etiquettes(etiquettesApres)));
    }
}

TEST(FeuilleQSL, UneFeuilleAbimeeGardeSesOctets) {
    const std::pair<std::string, std::size_t> cas[] = {
        // a sheet, and its places that are not free
        {"", 16},
        {kLibre + kLibre.substr(0, 50), 14},
        {kLibre + "**", 15},
        {Planche(Brute({{2, "***"}}, 106)), 0},
        {Planche(std::string(106, ' ') + Etiquettes("F18")), 2},
        {Planche(std::string(106, '\0') + "****" + kLibre.substr(4)), 2},
        {Planche("") + Etiquettes("F18"), 0},
    };
    for (const auto& [octets, attendu] : cas) {
        const ServiceQSL service("", octets);
        EXPECT_EQ(EtiquettesAImprimer(service.feuille).size(), attendu);
        EXPECT_EQ(service.OctetsFeuille(), octets);
        EXPECT_FALSE(std::filesystem::exists(service.dossier / "FeuilleQSL.txt"));
    }
}

TEST(FeuilleQSL, UneEtiquetteRelueEchangeReportEtMode) {
    const Textes cas = {{"BUREAU", "B"}, {"DIRECT", "D"}, {"F6QSL", "-F6QSL"}, {"", "-"}};
    for (const auto& [champ, voie] : cas) {
        const std::string_view debut = "F5ABC          Bonne ann\351e    QRP",
                               suite = "21/11/2618:0514.250    59+20dB SSB  7";
        ServiceQSL service("", Brute({{0, debut}, {45, champ}, {60, suite}}, 106));
        BoitesEtiquette& boites = service.feuille.boites;
        boites[kBoiteManager] = "reste";
        LireEtiquette(service.feuille, 1);
        EXPECT_EQ("-BD"[static_cast<int>(service.feuille.voie)] + boites[kBoiteManager], voie);
        ChoisirVoie(service.feuille, VoieQSL::Direct); // a route needs no manager
        EXPECT_EQ(boites, (BoitesEtiquette{"", "F5ABC", "21/11/26", "18:05", "14.250", "59+20dB",
                                           "SSB", "Bonne année", "QRP", "", "F5ABC", "7"}));
    }
}

TEST(FluxEtiquettes, PlacerUneEtiquette) {
    Essayer({
        {"F18", "Z01", "fiche1 entree valider", "F18+", "Z01 F181", "VQI 2"},
        {"F18", "", "fiche1 boite1=. entree valider", "F18", "", "PVQ  Indicatif manquant ! "},
        {"F18", "", "fiche1 boite1=.***. entree valider", "F18", "", "PQ  Indicatif manquant ! "},
        {"F18", "Z01", "fiche1 choix1 entree valider", "F18", "Z01",
         "PVSLI  Etiquette déjà placée ! "},
        {"F18", "", "fiche1 autre valider", "F18", "", "PQ  Consultation seule ! "},
        {"F18J", "", "fiche1", "F18J", "", "Q "},
        {"F18", "", "autre fiche1", "F18", "", "Q "},
    });
}

TEST(FluxEtiquettes, ContactDUneEtiquetteImprimee) {
    Essayer({
        {"A17+ F18", "A171", "fiche2 valider imprimer parfait", "A17J F18J", "", "Q 2"},
        {"F18+", "F181", "parfait", "F18+", "F181", "Q "}, // not printed
        {"F18+", "F181", "imprimer choix1 tag1 supprimer restaurer", "F18+", "F181", "QC "},
        {"F18+", "F181", "choix1 autre supprimer", "F18+", "F181", "SL 1\nCe cahier"},
        {"F18+", "F181", "autre imprimer parfait", "F18+", "F181", "QI \nCe cahier"},
        // The number may be stale, the contact corrected, or without its mark.
        {"A17+ F18+", "F182", "imprimer parfait", "A17+ F18J", "", "Q "},
        {"A17+ F09+", "F182", "imprimer parfait", "A17+ F09J", "", "Q "},
        {"A17+ P18+", "F182", "imprimer parfait", "A17+ P18J", "", "Q "},
        {"A17+ F18+", "F181", "imprimer parfait", "A17+ F18J", "", "Q "},
        {"A17+ F18+", "F18", "imprimer parfait", "A17+ F18J", "", "Q "},
        {"A17+ F18+", "F183", "imprimer parfait", "A17+ F18J", "", "Q "},
        {"A17+ F18+", "F18deux", "imprimer parfait", "A17+ F18J", "", "Q "},
        {"A17+ F18", "F182", "imprimer parfait", "A17+ F18", "", "Q \n1 (F)"},
        {"A17+ F18X", "F182", "imprimer parfait", "A17+ F18X", "", "Q \n1 (F)"},
        {"A17+ F16+", "F181", "imprimer parfait", "A17+ F16+", "", "Q \n1 (F)"},
        {"A17+ F18+ F18+", "F181", "imprimer parfait", "A17+ F18+ F18+", "", "Q \n1 (F)"},
        {"A17+ F18+ F18+", "F183", "imprimer parfait", "A17+ F18+ F18J", "", "Q "},
        // A blank label is nobody's, not even that of a blank contact.
        {"...+ F18+", "...1 F18", "imprimer parfait", "...+ F18J", "", "Q \n1"},
    });
}

// The program was killed after the label was written, before its contact was marked.
TEST(FluxEtiquettes, UnContactSansMarqueRecoitSaSeuleMarque) {
    Essayer({
        {"F18", "A17 F181", "fiche1", "F18+", "A17 F181", "Q "},
        {"F18", "A17 F188", "fiche1", "F18+", "A17 F188", "Q "},
        {"F18", "A17 P181", "fiche1", "F18+", "A17 P181", "Q "},
        {"F18", "A17 F161", "fiche1", "F18", "A17 F161", "PQI 3"},
        {"F18", "A17 P188", "fiche1", "F18", "A17 P188", "PQI 3"},
        {"F18+ F18", "F181", "fiche2", "F18+ F18", "F181", "PQI 2"}, // another contact's label
    });
    ServiceQSL service(Fiches("F18"), Planche(Etiquettes("F181")));
    const ReponseClic clic = PreparerEtiquette(service.session, service.feuille, 1);
    EXPECT_EQ(clic.suite, SuiteClic::Retabli);
    EXPECT_TRUE(clic.reponse.marque);
}

TEST(FluxEtiquettes, LaFeuilleSeRemplit) {
    const std::string z = Etiquettes("Z01");
    ServiceQSL service(Fiches("F18"), z + kLibre + Fois(14, z));
    service.Faire("fiche1");
    EXPECT_EQ(service.feuille.boites,
              (BoitesEtiquette{"", "F", "21/11/26", "18", "", "", "", "", "", "", "F", "1"}));
    Verifier(
        [&service](const std::string& gestes) { return service.Faire(gestes); },
        Textes{{"choix2 fiche1", "PQIR 16"},
               {"boite9=F6QSL direct valider", "PVQIR  Plus d'étiquette disponible ! "},
               {"restaurer", "PVQI 2"},
               {"valider", "VQI 2"},
               {"choix16", "SLI 16"},
               {"supprimer", "QI 16\n16 (Z)"},
               {"tag16 entree choix16", "QIR  Plus d'étiquette disponible ! \n16 (Z)"},
               {"boite1=N valider", "QIR  Plus d'étiquette disponible ! "},
               {"choix1 tag1 supprimer", "QIR  Plus d'étiquette disponible ! "},
               {"choix16 choix1 direct laisser boite1=N boite11=1 valider", "QIR 16\n16 (N)"}});
    EXPECT_EQ(service.OctetsFeuille(),
              z + Brute({{0, "F"}, {45, "DIRECT"}, {60, "21/11/2618"}, {96, "1"}}, 106) +
                  Fois(13, z) + Brute({{0, "N"}, {96, "1"}}, 106));
}

} // namespace
} // namespace orvalis
