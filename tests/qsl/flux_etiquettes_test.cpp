#include "qsl/banc_qsl.h"
#include "qsl/contact_etiquette.h"
#include "qsl/flux_etiquettes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvalis {
namespace {

using testing::HasSubstr;

const std::string kJour = "21/11/26";

TEST(FluxEtiquettes, WholeLifeOfALabel) {
    const auto cahier = [](const std::string& maQsl) {
        return Fiche("F1AAA", kJour, "17:00", "20/11/26") +
               Fiche("F5ABC", kJour, "18:05", maQsl, "QRP \xE0 5 W      F6QSL");
    };
    Banc banc;
    banc.Ouvrir(cahier(""), Libres(16));
    banc.session.zones[1] = "CARTE";
    FeuilleQSL& feuille = banc.feuille;
    const std::string prete = Octets({{"F5ABC", 15}, {"73", 15}, {"QRP \xE0 5 W", 15}}) +
                              Octets({{"DIRECT", 15}, {kJour, 8}, {"18:05", 5}, {"14.250", 10}}) +
                              Octets({{"59+20dB", 8}, {"SSB", 5}, {"2", 10}});

    EXPECT_EQ(PreparerEtiquette(banc.session, feuille, 1).suite, SuiteClic::Ordinaire);
    EXPECT_FALSE(feuille.vue.panneau);
    EXPECT_EQ(PreparerEtiquette(banc.session, feuille, 2).suite, SuiteClic::Panneau);
    EXPECT_EQ(feuille.boites,
              (BoitesEtiquette{"", "F5ABC", kJour, "18:05", "14.250", "SSB", "59+20dB", "",
                               "QRP à 5 W      F6QSL", "", "F5ABC", "2"}));
    EXPECT_TRUE(feuille.vue.panneau && !feuille.vue.valider && !feuille.vue.imprimer);
    SaisirBoite(feuille, kBoiteLigne1, "73");
    SaisirBoite(feuille, kBoiteManager, "F6QSL");
    ChoisirVoie(feuille, VoieQSL::Direct);
    EXPECT_TRUE(feuille.boites[kBoiteManager].empty() && feuille.vue.valider);

    const ReponseQSL validee = Valider(banc.session, feuille);
    EXPECT_EQ(TexteBoite14(validee, 2), "En cours");
    EXPECT_EQ(TexteBoite14(validee, 1), std::nullopt);
    EXPECT_EQ(banc.Feuille(), prete + Libres(15));
    EXPECT_EQ(banc.Cahier(), cahier("En cours") + kFin);
    EXPECT_FALSE(feuille.vue.panneau);

    ChargerFeuilleQSL(feuille, banc.dossier);
    OuvrirPanneau(feuille);
    EXPECT_EQ(feuille.vue.nrTag, "Etiquette N° 2");
    CliquerChoix(feuille, 1);
    EXPECT_TRUE(feuille.vue.supprimer && feuille.vue.laisser && !feuille.vue.quitter);
    EXPECT_EQ(TexteBoite14(Supprimer(banc.session, feuille), 2), "");
    EXPECT_EQ(banc.Cahier(), cahier("") + kFin);
    // The freed place keeps the contact's number.
    EXPECT_EQ(banc.Feuille(), Etiquette("***", "", "", "2") + Libres(15));
    EXPECT_TRUE(!feuille.vue.supprimer && feuille.vue.quitter && !feuille.vue.imprimer);

    static_cast<void>(PreparerEtiquette(banc.session, feuille, 2));
    EXPECT_EQ(feuille.boites[kBoiteLigne1], "73");
    EXPECT_EQ(feuille.voie, VoieQSL::Aucune);
    ChoisirVoie(feuille, VoieQSL::Direct);
    EXPECT_TRUE(Valider(banc.session, feuille).fait && feuille.vue.imprimer);
    EXPECT_FALSE(ToutEstParfait(banc.session, feuille, "22/11/26").fait);
    DemanderControle(feuille);
    RevoirEtiquettes(feuille);
    EXPECT_EQ(banc.Feuille(), prete + Libres(15));
    DemanderControle(feuille);
    EXPECT_EQ(TexteBoite14(ToutEstParfait(banc.session, feuille, "22/11/26"), 2), "22/11/26");
    EXPECT_EQ(banc.Cahier(), cahier("22/11/26") + kFin);
    EXPECT_EQ(banc.Feuille(), Libres(16));
    EXPECT_TRUE(!feuille.vue.panneau && !feuille.vue.controle && !feuille.vue.imprimer);
    EXPECT_EQ(banc.session.zones[1], "CARTE");
}

TEST(FluxEtiquettes, SixteenLabelsFillTheSheet) {
    std::string fiches;
    for (int k = 1; k <= 17; ++k)
        fiches += Fiche(std::to_string(k) + "ABC", kJour, "18:05", "");
    Banc banc;
    banc.Ouvrir(fiches, Libres(16));
    FeuilleQSL& feuille = banc.feuille;
    const auto placer = [&](int k) {
        static_cast<void>(PreparerEtiquette(banc.session, feuille, k));
        return Valider(banc.session, feuille).fait;
    };
    CliquerChoix(feuille, 2);
    EXPECT_TRUE(VoirPlace(feuille, 2).legendeChoix == "Libérer" && feuille.vue.restaurer);
    for (int k = 1; k <= 15; ++k)
        EXPECT_TRUE(placer(k)) << k;
    EXPECT_EQ(Etats(feuille), "PRPPPPPPPPPPPPPP");
    const std::string quinze = banc.Feuille();
    OuvrirPanneau(feuille);
    EXPECT_EQ(feuille.vue.nrTag, "Etiquette N° 16");
    EXPECT_FALSE(placer(16));
    EXPECT_EQ(feuille.vue.nrTag, " Plus d'étiquette disponible ! ");
    EXPECT_EQ(banc.Feuille(), quinze);

    Restaurer(feuille);
    EXPECT_TRUE(Valider(banc.session, feuille).fait && !feuille.vue.restaurer);
    const VuePlace deux = VoirPlace(feuille, 2);
    EXPECT_EQ(deux.legendeTag, "16ABC [2]");
    EXPECT_TRUE(deux.legendeChoix == "Effacer" && deux.jaune && deux.tagActif);
    EXPECT_EQ(EtiquettesAImprimer(feuille).size(), 16U);

    CliquerChoix(feuille, 16);
    EXPECT_TRUE(Supprimer(banc.session, feuille).fait);
    EXPECT_EQ(VoirPlace(feuille, 16).legendeTag, "Etiquette  [16] libre");
    CliquerTag(feuille, 16);
    EntrerBoite(feuille);
    CliquerChoix(feuille, 16);
    EXPECT_EQ(feuille.vue.nrTag, " Plus d'étiquette disponible ! ");
    EXPECT_FALSE(feuille.vue.valider);
    EXPECT_FALSE(placer(17));
    CliquerChoix(feuille, 16);
    EXPECT_TRUE(placer(17));
}

TEST(FluxEtiquettes, ValidatesOnlyAFreshLabelWithACallsign) {
    struct Cas {
        std::string indicatif;
        bool revue, consultation, bouton, fait;
    };
    const std::vector<Cas> cas = {
        {"F5ABC", false, false, true, true},   {"  ", false, false, true, false},
        {" *** ", false, false, false, false}, {"F5ABC", true, false, true, false},
        {"F5ABC", false, true, true, false},
    };
    for (const Cas& c : cas) {
        Banc banc;
        const std::string feuille = Etiquette("F9ZZ", kJour, "01:00", "") + Libres(15);
        banc.Ouvrir(Fiche("F5ABC", kJour, "18:05", ""), feuille);
        static_cast<void>(PreparerEtiquette(banc.session, banc.feuille, 1));
        if (c.revue)
            CliquerChoix(banc.feuille, 1);
        banc.session.autreJournal = c.consultation ? "AUTRE" : "";
        SaisirBoite(banc.feuille, kBoiteIndicatif, c.indicatif);
        EntrerBoite(banc.feuille);
        EXPECT_EQ(banc.feuille.vue.valider, c.bouton) << c.indicatif;
        EXPECT_EQ(Valider(banc.session, banc.feuille).fait, c.fait) << c.indicatif;
        EXPECT_EQ(banc.Feuille() != feuille, c.fait);
        EXPECT_EQ(banc.feuille.vue.nrTag.find('!') != std::string::npos, !c.fait);
    }
}

TEST(FluxEtiquettes, LookingAtAnotherLogbookWritesNothing) {
    Banc banc;
    banc.Ouvrir(Fiche("F5ABC", kJour, "18:05", "En cours") + Fiche("F1AAA", kJour, "19:00", ""),
                Etiquette("F5ABC", kJour, "18:05", "1") + Libres(15));
    const std::string avant = banc.Feuille() + banc.Cahier();
    banc.session.autreJournal = "AUTRE";
    EXPECT_EQ(PreparerEtiquette(banc.session, banc.feuille, 2).suite, SuiteClic::Ordinaire);
    CliquerChoix(banc.feuille, 1);
    EXPECT_NE(Supprimer(banc.session, banc.feuille).message, "");
    DemanderControle(banc.feuille);
    EXPECT_NE(ToutEstParfait(banc.session, banc.feuille, kJour).message, "");
    EXPECT_EQ(banc.Feuille() + banc.Cahier(), avant);
}

TEST(FluxEtiquettes, ContactOfALabelWhoseNumberMayBeStale) {
    const std::string bon = Fiche("F5ABC", kJour, "18:05", "En cours");
    const auto autre = [](const std::string& csgn, const std::string& heure,
                          const std::string& maQsl) { return Fiche(csgn, kJour, heure, maQsl); };
    struct Cas {
        std::string suite; ///< contacts from 2 on
        std::string numero;
        std::size_t fiche;
    };
    const std::vector<Cas> cas = {
        {bon, "2", 2},
        {autre("F5ABC", "09:00", "En cours"), "2", 2},
        {autre("F5ABC/P", "18:05", "En cours"), "2", 2},
        {bon, "1", 2},
        {bon, "", 2},
        {bon, "3", 2},
        {bon, "deux", 2},
        {autre("F5ABC", "18:05", ""), "2", 0},
        {autre("F5ABC", "18:05", "20/11/26"), "2", 0},
        {autre("F5ABC", "18:06", "En cours"), "1", 0},
        {bon + bon, "1", 0},
        {bon + bon, "3", 3},
    };
    for (const Cas& c : cas) {
        Banc banc;
        const std::string fiches = autre("F1AAA", "17:00", "En cours") + c.suite;
        // Beside it a blank label, that is nobody's.
        banc.Ouvrir(fiches + Fiche("", "", "", "En cours"),
                    Etiquette("F5ABC", kJour, "18:05", c.numero) +
                        Etiquette("", "", "", std::to_string(fiches.size() / 165 + 1)) +
                        Libres(14));
        std::string attendu = banc.Cahier();
        if (c.fiche != 0)
            attendu.replace((c.fiche - 1) * 165 + 143, 8, "22/11/26");
        DemanderControle(banc.feuille);
        const ReponseQSL reponse = ToutEstParfait(banc.session, banc.feuille, "22/11/26");
        EXPECT_EQ(banc.Cahier(), attendu) << c.numero;
        EXPECT_EQ(banc.Feuille(), Libres(16));
        EXPECT_THAT(reponse.message, HasSubstr("Etiquette N° 2 :"));
        EXPECT_EQ(reponse.message.find("N° 1 (F5ABC)") == std::string::npos, c.fiche != 0);
    }
}

TEST(FluxEtiquettes, ContactLeftUnmarkedByAKillGetsOnlyItsMark) {
    struct Cas {
        std::string avant; ///< contacts before the one that is clicked
        std::string indicatif, heure, numero;
        bool retabli;
    };
    const std::vector<Cas> cas = {
        {"", "F5ABC", "18:05", "1", true},
        {"", "F5ABC", "18:05", "8", true},
        {"", "F5ABC/P", "18:05", "1", true},
        {"", "F5ABC", "18:06", "1", false},
        {"", "F5ABC/P", "18:05", "8", false},
        // The label is another contact's, that is marked already.
        {Fiche("F5ABC", kJour, "18:05", "En cours"), "F5ABC", "18:05", "1", false},
    };
    for (const Cas& c : cas) {
        Banc banc;
        const std::string feuille =
            kLibre + Etiquette(c.indicatif, kJour, c.heure, c.numero) + Libres(14);
        banc.Ouvrir(c.avant + Fiche("F5ABC", kJour, "18:05", ""), feuille);
        const auto suite =
            PreparerEtiquette(banc.session, banc.feuille, banc.session.nbFiches).suite;
        EXPECT_EQ(suite, c.retabli ? SuiteClic::Retabli : SuiteClic::Panneau) << c.indicatif;
        EXPECT_EQ(banc.Cahier(),
                  c.avant + Fiche("F5ABC", kJour, "18:05", c.retabli ? "En cours" : "") + kFin);
        EXPECT_EQ(banc.Feuille(), feuille);
    }
}

TEST(FluxEtiquettes, InterruptedActionNeverLosesALabel) {
    Banc banc;
    banc.Ouvrir(Fiche("F5ABC", kJour, "18:05", ""), Libres(16));
    static_cast<void>(PreparerEtiquette(banc.session, banc.feuille, 1));
    // A logbook that cannot be written stands for the end of the program at that very write.
    banc.session.journal = Journal(banc.session.cheminJournal, ModeFichier::Lecture);
    EXPECT_THROW(static_cast<void>(Valider(banc.session, banc.feuille)), ErreurFichier);
    const std::string feuille = banc.Feuille();
    EXPECT_EQ(feuille.substr(0, 15), "F5ABC          ");
    CliquerChoix(banc.feuille, 1);
    banc.session.journal = Journal(banc.session.cheminJournal, ModeFichier::LectureEcriture);
    EXPECT_EQ(PreparerEtiquette(banc.session, banc.feuille, 1).suite, SuiteClic::Retabli);
    banc.session.journal = Journal(banc.session.cheminJournal, ModeFichier::Lecture);
    EXPECT_THROW(static_cast<void>(Supprimer(banc.session, banc.feuille)), ErreurFichier);
    DemanderControle(banc.feuille);
    EXPECT_THROW(static_cast<void>(ToutEstParfait(banc.session, banc.feuille, kJour)),
                 ErreurFichier);
    EXPECT_EQ(banc.Feuille(), feuille);
}

TEST(FluxEtiquettes, LabelOfNoContactIsPlacedAndTold) {
    Banc banc;
    banc.Ouvrir(Fiche("F1AAA", kJour, "17:00", ""), Libres(16));
    CliquerTag(banc.feuille, 5);
    SaisirBoite(banc.feuille, kBoiteIndicatif, "F5ABC");
    SaisirBoite(banc.feuille, kBoiteNumeroFiche, "1");
    const std::string message = Valider(banc.session, banc.feuille).message;
    EXPECT_THAT(message, HasSubstr("Etiquette N° 1 (F5ABC)"));
    EXPECT_EQ(banc.Cahier(), Fiche("F1AAA", kJour, "17:00", "") + kFin);
    EXPECT_EQ(banc.Feuille(), Etiquette("F5ABC", "", "", "1") + Libres(15));

    // A click on a place ends the review: Supprimer must not erase a label no longer shown.
    CliquerChoix(banc.feuille, 1);
    CliquerTag(banc.feuille, 1);
    EXPECT_FALSE(Supprimer(banc.session, banc.feuille).fait);
    CliquerChoix(banc.feuille, 1);
    Laisser(banc.feuille);
    EXPECT_EQ(banc.feuille.boites, BoitesEtiquette{});
    EXPECT_EQ(banc.feuille.vue.nrTag, "Etiquette N° 2");
}

} // namespace
} // namespace orvalis
