// The label sheet and the life of a label, against the bytes of both files.
#include "aides.h"
#include "qsl/contact_etiquette.h"
#include "qsl/flux_etiquettes.h"

namespace orvalis {
namespace {

using namespace essai;

constexpr std::string_view kJour = "21/11/26";

std::string Fiche(std::string_view csgn, std::string_view heure, std::string_view maQsl,
                  std::string_view info = "") {
    const std::string_view milieu = "14.250    SSB  59+20dB";
    return Brute({{0, csgn}, {15, kJour}, {23, heure}, {33, milieu}, {113, info}, {143, maQsl}});
}

std::string Etiquette(std::string_view csgn, std::string_view heure, std::string_view numero) {
    return Brute({{0, csgn}, {60, kJour}, {68, heure}, {96, numero}}, 106);
}

const std::string kLibre = Brute({{0, "***"}}, 106);
/// A sheet whose other places are free.
std::string Planche(std::string premieres) {
    while (premieres.size() < 16 * 106)
        premieres += kLibre;
    return premieres;
}

/// A program folder with a logbook and a label sheet.
struct Banc {
    Dossier dossier;
    Session session;
    FeuilleQSL feuille;

    Banc(const std::string& fiches, const std::string& planche) {
        session = Ouvrir(dossier.Poser("F5ABC.Vek", fiches + Fin()));
        dossier.Poser("feuilleQSL.TXT", planche);
        ChargerFeuilleQSL(feuille, dossier / "");
    }
    [[nodiscard]] std::string Cahier() const { return Lire(dossier / "F5ABC.Vek"); }
    [[nodiscard]] std::string OctetsFeuille() const { return Lire(dossier / "feuilleQSL.TXT"); }
    SuiteClic Preparer(int k) { return PreparerEtiquette(session, feuille, k).suite; }
    ReponseQSL Placer() { return Valider(session, feuille); }
    ReponseQSL Retirer() { return Supprimer(session, feuille); }
    ReponseQSL Finir(std::string_view jour) {
        DemanderControle(feuille);
        return ToutEstParfait(session, feuille, jour);
    }
    /// A logbook that cannot be written stands for the end of the program at that very write.
    void Rouvrir(ModeFichier mode) { session.journal = Journal(session.cheminJournal, mode); }
    /// The states of the sixteen places: L free, P prepared, R withdrawn.
    [[nodiscard]] std::string Etats() const {
        std::string lettres;
        for (const EtatEtiquette etat : feuille.etats)
            lettres += "LPR"[static_cast<int>(etat)];
        return lettres;
    }
    /// The boxes of the editor, then the route option.
    [[nodiscard]] std::string Boites() const {
        std::string textes;
        for (std::size_t i = 1; i < feuille.boites.size(); ++i)
            textes += feuille.boites[i] + '|';
        return textes + "-BD"[static_cast<int>(feuille.voie)];
    }
};

TEST(FeuilleQSL, ADamagedSheetKeepsItsBytes) {
    const std::string pleine = Etiquette("F5ABC", "18:05", "7");
    const Textes cas = {
        {"", "PPPPPPPPPPPPPPPP"},
        {kLibre + kLibre.substr(0, 50), "LLPPPPPPPPPPPPPP"},
        {kLibre + "**", "LPPPPPPPPPPPPPPP"},
        {Planche(Brute({{2, "***"}}, 106)), "LLLLLLLLLLLLLLLL"},
        {Planche(std::string(106, ' ') + pleine), "PPLLLLLLLLLLLLLL"},
        {Planche(std::string(106, '\0') + "****" + kLibre.substr(4)), "PPLLLLLLLLLLLLLL"},
        {Planche("") + pleine, "LLLLLLLLLLLLLLLL"},
    };
    for (const auto& [octets, etats] : cas) {
        const Banc banc("", octets);
        EXPECT_EQ(banc.Etats(), etats);
        EXPECT_EQ(banc.OctetsFeuille(), octets);
        EXPECT_FALSE(std::filesystem::exists(banc.dossier / "FeuilleQSL.txt"));
    }
}

TEST(FeuilleQSL, ReadingAndWritingBackExchangesReportAndMode) {
    const Textes cas = {{"BUREAU", "|F5ABC|7|B"},
                        {"DIRECT", "|F5ABC|7|D"},
                        {"F6QSL", "F6QSL|F5ABC|7|-"},
                        {"", "|F5ABC|7|-"}};
    for (const auto& [route, suite] : cas) {
        const auto octets = [&route = route](std::string_view fin) {
            const std::string_view moment = "21/11/2618:0514.250    ",
                                   debut = "F5ABC          Bonne ann\351e    QRP";
            return Brute({{0, debut}, {45, route}, {60, moment}, {83, fin}}, 106);
        };
        Banc banc("", kLibre + kLibre + octets("59+20dB SSB  7"));
        banc.feuille.boites[kBoiteManager] = "reste";
        LireEtiquette(banc.feuille, 3);
        EXPECT_EQ(banc.Boites(),
                  "F5ABC|21/11/26|18:05|14.250|59+20dB|SSB|Bonne année|QRP|" + suite);
        EcrireEtiquette(banc.feuille, 3);
        EXPECT_EQ(banc.OctetsFeuille(), kLibre + kLibre + octets("SSB     59+207"));
    }
}

TEST(FluxEtiquettes, WholeLifeOfALabel) {
    const auto cahier = [](std::string_view maQsl) {
        return Fiche("F1AAA", "17:00", "20/11/26") +
               Fiche("F5ABC", "18:05", maQsl, "QRP \xE0 5 W      F6QSL") + Fin();
    };
    Banc banc(cahier("").substr(0, 330), Planche(""));
    banc.session.zones[1] = "CARTE";
    FeuilleQSL& feuille = banc.feuille;
    const std::string prete =
        Planche("F5ABC          73             QRP \xE0 5 W      DIRECT         "
                "21/11/2618:0514.250    59+20dB SSB  2         ");

    EXPECT_EQ(banc.Preparer(1), SuiteClic::Ordinaire);
    EXPECT_EQ(banc.Preparer(2), SuiteClic::Panneau);
    EXPECT_EQ(banc.Boites(),
              "F5ABC|21/11/26|18:05|14.250|SSB|59+20dB||QRP à 5 W      F6QSL||F5ABC|2|-");
    EXPECT_TRUE(feuille.vue.panneau && !feuille.vue.valider && !feuille.vue.imprimer);
    SaisirBoite(feuille, kBoiteLigne1, "73");
    SaisirBoite(feuille, kBoiteManager, "F6QSL");
    ChoisirVoie(feuille, VoieQSL::Direct);
    EXPECT_TRUE(feuille.boites[kBoiteManager].empty() && feuille.vue.valider);
    const ReponseQSL validee = banc.Placer();
    EXPECT_EQ(TexteBoite14(validee, 2), "En cours");
    EXPECT_EQ(TexteBoite14(validee, 1), std::nullopt);
    EXPECT_EQ(banc.OctetsFeuille(), prete);
    EXPECT_EQ(banc.Cahier(), cahier("En cours"));
    EXPECT_FALSE(ToutEstParfait(banc.session, feuille, "22/11/26").fait);
    EXPECT_EQ(banc.OctetsFeuille(), prete);
    EXPECT_EQ(TexteBoite14(banc.Finir("22/11/26"), 2), "22/11/26");
    EXPECT_EQ(banc.Cahier(), cahier("22/11/26"));
    EXPECT_EQ(banc.OctetsFeuille(), Planche(""));
    EXPECT_TRUE(!feuille.vue.panneau && !feuille.vue.controle && !feuille.vue.imprimer);
    EXPECT_EQ(banc.session.zones[1], "CARTE");
}

TEST(FluxEtiquettes, SixteenLabelsFillTheSheet) {
    std::string fiches;
    for (int k = 1; k <= 17; ++k)
        fiches += Fiche(std::to_string(k) + "ABC", "18:05", "");
    Banc banc(fiches, Planche(""));
    FeuilleQSL& feuille = banc.feuille;
    const auto placer = [&](int k) {
        banc.Preparer(k);
        return banc.Placer().fait;
    };
    CliquerChoix(feuille, 2);
    for (int k = 1; k <= 15; ++k)
        EXPECT_TRUE(placer(k)) << k;
    EXPECT_EQ(banc.Etats(), "PRPPPPPPPPPPPPPP");
    const std::string quinze = banc.OctetsFeuille();
    EXPECT_FALSE(placer(16));
    EXPECT_EQ(feuille.vue.nrTag, kPlusDEtiquette);
    EXPECT_EQ(banc.OctetsFeuille(), quinze);
    Restaurer(feuille);
    EXPECT_TRUE(banc.Placer().fait && !feuille.vue.restaurer);
    EXPECT_EQ(VoirPlace(feuille, 2).legendeTag, "16ABC [2]");
    EXPECT_EQ(EtiquettesAImprimer(feuille).size(), 16U);
    CliquerChoix(feuille, 16);
    EXPECT_TRUE(banc.Retirer().fait);
    CliquerTag(feuille, 16);
    EntrerBoite(feuille);
    CliquerChoix(feuille, 16);
    EXPECT_TRUE(feuille.vue.nrTag == kPlusDEtiquette && !feuille.vue.valider);
    EXPECT_FALSE(placer(17));
    CliquerChoix(feuille, 16);
    EXPECT_TRUE(placer(17));
}

TEST(FluxEtiquettes, ValidatesOnlyAFreshLabelWithACallsign) {
    const struct {
        const char *indicatif, *autreJournal;
        bool revue, bouton, fait;
    } cas[] = {
        {"F5ABC", "", false, true, true},       {"  ", "", false, true, false},
        {" *** ", "", false, false, false},     {"F5ABC", "", true, true, false},
        {"F5ABC", "AUTRE", false, true, false},
    };
    for (const auto& c : cas) {
        const std::string planche = Planche(Etiquette("F9ZZ", "01:00", ""));
        Banc banc(Fiche("F5ABC", "18:05", ""), planche);
        banc.Preparer(1);
        if (c.revue)
            CliquerChoix(banc.feuille, 1);
        banc.session.autreJournal = c.autreJournal;
        SaisirBoite(banc.feuille, kBoiteIndicatif, c.indicatif);
        EntrerBoite(banc.feuille);
        EXPECT_EQ(banc.feuille.vue.valider, c.bouton) << c.indicatif;
        EXPECT_EQ(banc.Placer().fait, c.fait) << c.indicatif;
        EXPECT_EQ(banc.OctetsFeuille() != planche, c.fait);
        EXPECT_EQ(banc.feuille.vue.nrTag.find('!') != std::string::npos, !c.fait);
    }
}

TEST(FluxEtiquettes, LookingAtAnotherLogbookWritesNothing) {
    Banc banc(Fiche("F5ABC", "18:05", "En cours") + Fiche("F1AAA", "19:00", ""),
              Planche(Etiquette("F5ABC", "18:05", "1")));
    const std::string avant = banc.OctetsFeuille() + banc.Cahier();
    banc.session.autreJournal = "AUTRE";
    EXPECT_EQ(banc.Preparer(2), SuiteClic::Ordinaire);
    CliquerChoix(banc.feuille, 1);
    EXPECT_NE(banc.Retirer().message, "");
    EXPECT_NE(banc.Finir(kJour).message, "");
    EXPECT_EQ(banc.OctetsFeuille() + banc.Cahier(), avant);
}

TEST(FluxEtiquettes, ContactOfALabelWhoseNumberMayBeStale) {
    const std::string bon = Fiche("F5ABC", "18:05", "En cours");
    const struct {
        std::string suite; // contacts from 2 on
        std::string_view numero;
        std::size_t fiche;
    } cas[] = {
        {bon, "2", 2},
        {Fiche("F5ABC", "09:00", "En cours"), "2", 2},
        {Fiche("F5ABC/P", "18:05", "En cours"), "2", 2},
        {bon, "1", 2},
        {bon, "", 2},
        {bon, "3", 2},
        {bon, "deux", 2},
        {Fiche("F5ABC", "18:05", ""), "2", 0},
        {Fiche("F5ABC", "18:05", "20/11/26"), "2", 0},
        {Fiche("F5ABC", "18:06", "En cours"), "1", 0},
        {bon + bon, "1", 0},
        {bon + bon, "3", 3},
    };
    for (const auto& c : cas) {
        const std::string fiches = Fiche("F1AAA", "17:00", "En cours") + c.suite;
        // Beside it a blank label, that is nobody's, not even that of a blank contact.
        const std::string personne = Brute({{96, std::to_string(fiches.size() / 165 + 1)}}, 106);
        Banc banc(fiches + Brute({{143, "En cours"}}),
                  Planche(Etiquette("F5ABC", "18:05", c.numero) + personne));
        std::string attendu = banc.Cahier();
        if (c.fiche != 0)
            attendu.replace((c.fiche - 1) * 165 + 143, 8, "22/11/26");
        const std::string message = banc.Finir("22/11/26").message;
        EXPECT_EQ(banc.Cahier(), attendu) << c.numero;
        EXPECT_EQ(banc.OctetsFeuille(), Planche(""));
        EXPECT_NE(message.find("Etiquette N° 2 :"), message.npos);
        EXPECT_EQ(message.find("N° 1 (F5ABC)") == message.npos, c.fiche != 0);
    }
}

TEST(FluxEtiquettes, ContactLeftUnmarkedByAKillGetsOnlyItsMark) {
    const std::string marquee = Fiche("F5ABC", "18:05", "En cours");
    const struct {
        std::string avant; // contacts before the one that is clicked
        std::string_view indicatif, heure, numero;
        bool retabli;
    } cas[] = {
        {"", "F5ABC", "18:05", "1", true},
        {"", "F5ABC", "18:05", "8", true},
        {"", "F5ABC/P", "18:05", "1", true},
        {"", "F5ABC", "18:06", "1", false},
        {"", "F5ABC/P", "18:05", "8", false},
        {marquee, "F5ABC", "18:05", "1", false}, // the label is another contact's
    };
    for (const auto& c : cas) {
        const std::string planche = Planche(kLibre + Etiquette(c.indicatif, c.heure, c.numero));
        Banc banc(c.avant + Fiche("F5ABC", "18:05", ""), planche);
        EXPECT_EQ(banc.Preparer(banc.session.nbFiches),
                  c.retabli ? SuiteClic::Retabli : SuiteClic::Panneau)
            << c.indicatif;
        EXPECT_EQ(banc.Cahier(),
                  c.avant + Fiche("F5ABC", "18:05", c.retabli ? "En cours" : "") + Fin());
        EXPECT_EQ(banc.OctetsFeuille(), planche);
    }
}

TEST(FluxEtiquettes, InterruptedActionNeverLosesALabel) {
    Banc banc(Fiche("F5ABC", "18:05", ""), Planche(""));
    banc.Preparer(1);
    banc.Rouvrir(ModeFichier::Lecture);
    EXPECT_THROW(banc.Placer(), ErreurFichier);
    const std::string planche = banc.OctetsFeuille();
    EXPECT_EQ(planche.substr(0, 15), "F5ABC          ");
    CliquerChoix(banc.feuille, 1);
    banc.Rouvrir(ModeFichier::LectureEcriture);
    EXPECT_EQ(banc.Preparer(1), SuiteClic::Retabli);
    banc.Rouvrir(ModeFichier::Lecture);
    EXPECT_THROW(banc.Retirer(), ErreurFichier);
    EXPECT_THROW(banc.Finir(kJour), ErreurFichier);
    EXPECT_EQ(banc.OctetsFeuille(), planche);
}

TEST(FluxEtiquettes, LabelOfNoContactIsPlacedAndTold) {
    const std::string fiche = Fiche("F1AAA", "17:00", "");
    Banc banc(fiche, Planche(""));
    CliquerTag(banc.feuille, 5);
    SaisirBoite(banc.feuille, kBoiteIndicatif, "F5ABC");
    SaisirBoite(banc.feuille, kBoiteNumeroFiche, "1");
    EXPECT_NE(banc.Placer().message.find("Etiquette N° 1 (F5ABC)"), std::string::npos);
    EXPECT_EQ(banc.Cahier(), fiche + Fin());
    EXPECT_EQ(banc.OctetsFeuille(), Planche(Brute({{0, "F5ABC"}, {96, "1"}}, 106)));
    // A click on a place ends the review: Supprimer must not erase a label no longer shown.
    CliquerChoix(banc.feuille, 1);
    CliquerTag(banc.feuille, 1);
    EXPECT_FALSE(banc.Retirer().fait);
    CliquerChoix(banc.feuille, 1);
    Laisser(banc.feuille);
    EXPECT_EQ(banc.Boites(), "|||||||||||-");
    EXPECT_EQ(banc.feuille.vue.nrTag, "Etiquette N° 2");
}

} // namespace
} // namespace orvalis
