// What Chronel shows in which state, what it reads of a typed time, how it words a refusal.
#include "aides.h"
#include "compagnons/chronel/regles/etat_service.h"
#include "compagnons/chronel/regles/saisie_heure.h"

namespace orvalis {
namespace {

// P the network can, R it does, S the clock has been set by it.
EtatService Etat(const std::string& lettres, Acces acces = Acces::Etabli,
                 Demande demande = Demande::Aucune) {
    const auto a = [&](char lettre) { return lettres.find(lettre) != lettres.npos; };
    EtatService etat;
    etat.acces = acces;
    etat.refus = "Voilà.";
    etat.peutReseau = a('P');
    etat.reseau = a('R');
    etat.synchronise = a('S');
    etat.enCours = demande;
    return etat;
}

TEST(Chronel, CeQuiSeVoitEtSePeut) {
    EtatService faite = Etat("PRS");
    faite.message = "Fait.";
    // I the switch can be used, C it stands on, H a time can be typed, L asked again.
    struct {
        EtatService etat;
        std::string lettres, texte, message;
    } const cas[] = {{EtatService(), "L", "Question posée", ""},
                     {Etat("PRS", Acces::SansBus), "L", "D-Bus) est absent", ""},
                     {Etat("PRS", Acces::Refus), "L", "Voilà.", ""},
                     {Etat("PRS"), "IC", "l'horloge est à l'heure", "coupez d'abord"},
                     {Etat("PR"), "ICL", "pas encore pu", "coupez d'abord"},
                     {Etat("RS"), "IC", "l'horloge est à l'heure", "coupez d'abord"},
                     {Etat("P"), "IH", "ne tient pas l'heure par le réseau.", "pressez Entrée"},
                     {Etat("PS"), "IH", "il y a peu", "pressez Entrée"},
                     {Etat(""), "H", "Aucun programme", "pressez Entrée"},
                     {Etat("S"), "H", "Un autre programme", "pressez Entrée"},
                     {Etat("P", Acces::Etabli, Demande::Regler), "", "ne tient pas", "répondez-y"},
                     {Etat("PRS", Acces::Etabli, Demande::CouperReseau), "C", "", "répondez-y"},
                     {faite, "IC", "", "Fait."}};
    for (const auto& [etat, lettres, texte, message] : cas) {
        SCOPED_TRACE(texte + lettres);
        const VueChronel vue = VoirChronel(etat);
        const std::string vu = std::string(vue.interrupteur ? "I" : "") + (vue.coche ? "C" : "") +
                               (vue.saisie ? "H" : "") + (ARelire(etat) ? "L" : "");
        EXPECT_EQ(vu, lettres);
        EXPECT_THAT(vue.etat, testing::HasSubstr(texte));
        EXPECT_THAT(vue.message, testing::HasSubstr(message));
        EXPECT_EQ(vue.message.empty(), message.empty());
        EtatService demandeur = etat;
        EXPECT_EQ(Demander(demandeur, Demande::Regler), vue.saisie);
        demandeur = etat;
        EXPECT_EQ(Demander(demandeur, Demande::MettreReseau), vue.interrupteur);
    }
}

TEST(Chronel, FautesEnFrancais) {
    const std::string dbus = "org.freedesktop.DBus.Error.";
    for (const auto& [nom, phrase] : aides::Textes{
             {dbus + "ServiceUnknown", "n'est pas installé sur cet ordinateur : Chronel montre"},
             {dbus + "Spawn.ChildExited", "ne démarre pas"},
             {"org.freedesktop.systemd1.UnitMasked", "ne démarre pas"},
             {dbus + "AccessDenied", "La permission n'a pas été donnée : rien n'est changé."},
             {dbus + "InteractiveAuthorizationRequired", "agent d'authentification absent"},
             {"org.freedesktop.timedate1.AutomaticTimeSyncEnabled", "coupez d'abord"},
             {dbus + "NoReply", "ne répond pas"},
             {dbus + "AccessDeniedX", "Le système a refusé : « in English »."}})
        EXPECT_THAT(DireFaute(nom, "in English"), testing::HasSubstr(phrase)) << nom;
    EXPECT_THAT(DireFaute("a.b.C", ""), testing::HasSubstr("« a.b.C »"));
}

#ifndef _WIN32
TEST(Chronel, DatesEtHeuresTapees) {
    ::setenv("TZ", "Europe/Paris", 1);
    ::tzset();
    const std::string date = "Tapez la date ainsi : 21/11/2026. [date]";
    const std::string annee = "L'année doit être entre 2000 et 2099. [date]";
    const std::string heure = "Tapez l'heure ainsi : 18:30 ou 18:30:15. [heure]";
    const std::string sautee = "Cette heure n'existe pas ici (passage à l'heure d'été) : tapez-la "
                               "en UTC. [heure]";
    const std::string double_ = "Cette heure vient deux fois ici (fin de l'heure d'été) : "
                                "tapez-la en UTC. [heure]";
    // What is read, and between commas what was typed: date, time, "ici" for the computer's zone.
    for (const auto& [lu, tapes] : aides::Textes{
             {"1795285815", "21/11/2026;18:30:15, 21/11/26;18h30.15, 2026-11-21;183015, "
                            "21-11-2026;18 30 15, 21.11.26;19:30:15;ici"},
             {"1795248300", "21 11 2026;8:05, 21/11/2026;0805, 21/11/2026;09:05;ici"},
             {"1782856800", "01/07/2026;00:00;ici, 30/06/2026;22:00"},
             {"1835395200", "29/02/2028;00:00"},
             {date, "29/02/2026;00:00, 31/04/2026;00:00, 21/13/2026;00:00, 0/1/2026;00:00, "
                    "21/11;00:00, 21/11/202;00:00, 021/11/2026;00:00, 21//11/26;00:00, "
                    "21/11/26x;00:00, ;00:00, 21/11/2026/1;00:00"},
             {annee, "31/12/1999;23:59, 01/01/2100;00:00"},
             {heure, "21/11/2026;, 21/11/2026;24:00, 21/11/2026;18:60, 21/11/2026;18:30:60, "
                     "21/11/2026;18, 21/11/2026;18:030, 21/11/2026;18301, 21/11/2026;1:2:3:4, "
                     "21/11/2026;9999999999, 21/11/2026;18:30x"},
             {"1774745999", "29/03/2026;01:59:59;ici"},
             {sautee, "29/03/2026;02:00;ici, 29/03/2026;02:59:59;ici"},
             {"1774746000", "29/03/2026;03:00;ici"},
             {double_, "25/10/2026;02:00;ici, 25/10/2026;02:59:59;ici"},
             {"1792893600", "25/10/2026;03:00;ici, 25/10/2026;02:00"}})
        for (const std::string& tape : aides::Couper(tapes, ",")) {
            const auto p = aides::Couper(tape, ";");
            const LectureHeure lecture = LireDateHeure(p[0], p[1], p.size() < 3);
            EXPECT_EQ(lecture.moment
                          ? std::to_string(lecture.moment->time_since_epoch().count())
                          : lecture.reproche +
                                (lecture.fautive == BoiteHeure::Date ? " [date]" : " [heure]"),
                      lu)
                << tape;
        }
    ::unsetenv("TZ");
    ::tzset();
}
#endif

} // namespace
} // namespace orvalis
