// What is seen of the window in each state, and where the focus goes, without a window.
#include "aides.h"
#include "ui/carte/echappement.h"
#include "ui/carte/foyer.h"
#include "ui/carte/liste_contacts.h"
#include "ui/carte/modification.h"
#include "ui/carte/vue.h"

namespace orvalis::aides::vue {

// Two contacts of our own logbook, the second on the card, the focus in the list; then gestures: a
// rule of the card with its box ("presse 9"), a move of the focus, or a flag of the state set, or
// with "sans" cleared.
struct Scene {
    Session session;
    Ecran ecran;
    EtatFeuille feuille;
    Carte& carte = session.carte;

    Scene() {
        session.station = {{}, "F5ABC", "JN18AA"};
        Poser(2);
        MontrerTexte(carte, Boite::Indicatif, carte.zones[Boite::Indicatif] = "F6XYZ");
        ecran.temoinDemarrage = 0;
        ecran.activeRech = true;
        ecran.foyer.ici = {Cible::Liste};
    }

    void Suivre(const Reponse& r) { Appliquer(carte, ecran, session.station, r); }
    void Aller(const Foyer& f) { DeplacerFoyer(carte, ecran, session.station, f); }

    // So many contacts, the last of them on the card.
    void Poser(std::int32_t nbFiches) {
        session.cahier.nbFiches = nbFiches;
        session.carte.ficheCourante = session.cahier.Derniere();
    }

    void Faire(const std::string& geste) {
        const std::string mot = geste.substr(0, geste.find(' '));
        const auto boite = static_cast<Boite>(std::atoi(geste.c_str() + geste.find(' ') + 1));
        const Station& nous = session.station;
        const std::map<std::string, bool*> drapeaux = {
            {"liste", &ecran.liste.active},
            {"contacts", &ecran.contacts.montree},
            {"jumelage", &ecran.jumelage.montre},
            {"sauvegarde", &ecran.jumelage.sauvegardeFaite},
            {"tri", &ecran.classer.montre},
            {"lecture", &session.cahier.lectureSeule},
            {"feuille", &feuille.vue.panneau},
            {"controle", &feuille.vue.controle},
            {"revue", &feuille.vue.laisser},
            {"locator", &ecran.locator.montre},
            {"gel", &ecran.gel}};
        const std::map<std::string, std::function<void()>> gestes = {
            {"entree", [&] { Suivre(ValiderBoite(carte, nous, boite, {})); }},
            {"tape", [&] { SaisirTexte(carte, boite, geste.substr(geste.rfind(' ') + 1)); }},
            {"presse", [&] { Suivre(PresserBoite(carte, boite, true)); }},
            {"nouveau",
             [&] {
                 carte.saisie.EnSaisie = true;
                 ecran.liste.active = false;
                 Suivre(PreparerSaisie(carte, nous, NumeroFiche{3}));
             }},
            {"deplie",
             [&] {
                 ecran.contacts.montree = ecran.contacts.boutonsGrises = true;
                 ecran.recherche.montre = false;
             }},
            {"suit", [&] { SuivreFoyer(carte, ecran, nous, SurBoite(boite)); }},
            {"ailleurs", [&] { SuivreFoyer(carte, ecran, nous, {Cible::Autre}); }},
            {"rend", [&] { RendreFoyerALaBoite(carte, ecran, nous); }},
            {"aller", [&] { Aller({Cible::Liste}); }},
            {"anonyme", [&] { carte.zones[Boite::Indicatif].clear(); }},
            {"lache", [&] { LacherFoyer(carte, ecran); }},
            {"boutons", [&] { RendreBoutons(ecran); }},
            {"vide", [&] { Poser(0); }},
            {"efface", [&] {
                 ecran.question = QuestionEffacer(carte);
                 ecran.menuActif = false;
                 Aller({Cible::Non});
             }}};
        if (mot == "sans")
            *drapeaux.at(geste.substr(5)) = false;
        else if (const auto drapeau = drapeaux.find(mot); drapeau != drapeaux.end())
            *drapeau->second = true;
        else
            gestes.at(mot)();
    }
};

// What takes the focus besides the boxes.
const std::map<Cible, std::string> kCibles = {{Cible::Autre, "autre"},
                                              {Cible::Liste, "liste"},
                                              {Cible::Non, "FraCmdNon"},
                                              {Cible::TexteLocator, "ChangLocText"},
                                              {Cible::Sauvegarder, "BtPjSauvegarder"},
                                              {Cible::Jumeler, "BtPjumeler"},
                                              {Cible::Revoir, "BtCtrl_Revoir"}};

// The panels on show besides list, card and idle buttons; what is grey; the boxes that are not at
// rest with their text; the focus.
std::string Dire(const VueFenetre& vue, const Foyer& foyer) {
    std::string dit;
    for (const auto& [vrai, mot] :
         {std::pair{vue.boutons.saisie, "PictEnrs "},
          {!vue.carte.bandeau.empty(), "bandeau "},
          {vue.carte.activeRech, "BtActiveRech "},
          {vue.recherche.montre, "PictRech "},
          {vue.contacts.montree, "PictContacts "},
          {vue.question.has_value(), "FraMsgFiche "},
          {vue.locator.montre, "PictChangLocator "},
          {vue.jumelage.montre, "PJumelage "},
          {vue.classer.montre, "PictClasser "},
          {true, "| "},
          {!vue.liste.active, "PictListe "},
          {!vue.carte.active, "PictFiche "},
          {!vue.boutons.menuActif, "PictMenu "},
          {!vue.boutons.nouveau, "BtNewQSO "},
          {!vue.boutons.supprimer, "BtKillFiche "},
          {!vue.boutons.fermer, "BtFermerLog "},
          {!vue.boutons.suivantArme && vue.boutons.saisie, "BtEnrSuivant "},
          {true, "| "}})
        dit += vrai ? mot : "";
    for (const DescriptionBoite& d : kBoites)
        if (const BoiteMontree& b = vue.carte.boites[Rang(d.boite)];
            b.couleur == Couleur::VertClair || b.couleur == Couleur::RougeClair)
            dit += (b.couleur == Couleur::VertClair ? "vert " : "rouge ") +
                   std::to_string(Numero(d.boite)) + '=' + b.texte + ' ';
    return dit + "| " +
           (foyer.cible == Cible::Boite ? std::to_string(foyer.numero) : kCibles.at(foyer.cible));
}

// A line is a case: gestures -> panels | grey | boxes | focus, once it is granted.
TEST(Vue, CeQuOnVoitDansChaqueEtat) {
    const std::string chemin = R"(
 idle : -> BtActiveRech PictRech | | | liste
 read-only : lecture -> BtActiveRech PictRech | BtNewQSO BtKillFiche | | liste
 empty : vide -> BtActiveRech PictRech | BtKillFiche | | liste
 blank card : nouveau -> PictEnrs bandeau BtActiveRech PictRech | PictListe BtEnrSuivant | vert 1= | 1
 callsign : nouveau; tape 1 F1A; entree 1
     -> PictEnrs bandeau BtActiveRech PictRech | PictListe BtEnrSuivant | vert 5= | 5
 report : nouveau; tape 1 F1A; entree 1; suit 8; entree 8
     -> PictEnrs bandeau BtActiveRech PictRech | PictListe | vert 12= | 12
 text without Enter is dropped : nouveau; tape 1 F1A; entree 1; tape 5 7.05; suit 13; suit 5
     -> PictEnrs bandeau BtActiveRech PictRech | PictListe BtEnrSuivant | vert 5= | 5
 no callsign any more : nouveau; tape 1 F1A; entree 1; anonyme; suit 9
     -> PictEnrs bandeau BtActiveRech PictRech | PictListe BtEnrSuivant | vert 1=F1A | 1
 nothing to store yet : nouveau; tape 1 F1A; entree 1; suit 17; entree 17
     -> PictEnrs bandeau BtActiveRech PictRech | PictListe BtEnrSuivant | vert 17= | 17
 own locator : nouveau; suit 16; presse 16
     -> PictEnrs bandeau BtActiveRech PictRech PictChangLocator | PictListe BtEnrSuivant | | ChangLocText
 press : suit 1; presse 1 -> BtActiveRech PictRech | | rouge 1=F6XYZ | 1
 press, then elsewhere : suit 1; presse 1; ailleurs -> BtActiveRech PictRech | | | autre
 press, list, back : suit 1; presse 1; deplie; ailleurs; sans contacts; boutons; rend
     -> BtActiveRech | | rouge 1=F6XYZ | 1
 change : suit 9; presse 9; tape 9 LYON; entree 9
     -> BtActiveRech PictRech FraMsgFiche | | rouge 9=LYON | 9
 deletion : efface -> BtActiveRech PictRech FraMsgFiche | PictMenu | | FraCmdNon
 contacts : deplie -> BtActiveRech PictContacts | BtNewQSO BtFermerLog | | liste
 contacts hidden : deplie; sans contacts -> BtActiveRech | BtNewQSO BtFermerLog | | liste
 buttons back : deplie; sans contacts; boutons -> BtActiveRech | | | liste
 pairing : jumelage; sans liste; aller -> BtActiveRech PictRech PJumelage | PictListe | | BtPjSauvegarder
 pairing, saved : jumelage; sauvegarde; sans liste; lache; aller
     -> BtActiveRech PictRech PJumelage | PictListe | | BtPjumeler
 sort : tri; suit 1 -> BtActiveRech PictRech PictClasser | PictFiche BtNewQSO BtKillFiche | | liste
 print check : feuille; controle; suit 1 -> BtActiveRech PictRech | | | BtCtrl_Revoir)";
    for (const auto& [nom, gestes, vu] : Etapes(chemin)) {
        SCOPED_TRACE(nom);
        Scene scene;
        for (const std::string& geste : Couper(gestes, ";"))
            scene.Faire(geste);
        VueFenetre vue = VoirFenetre(scene.session, scene.ecran, scene.feuille);
        if (AccorderFoyer(scene.session.carte, scene.ecran, scene.session.station, vue))
            vue = VoirFenetre(scene.session, scene.ecran, scene.feuille);
        EXPECT_EQ(Dire(vue, scene.ecran.foyer.ici), vu);
    }
}

// What is open, the topmost last -> the button that Escape presses.
TEST(Vue, CeQueVautEchap) {
    for (const auto& [gestes, commande] : Textes{{"sans gel", ""},
                                                 {"nouveau", ""},
                                                 {"contacts", "BtContactsFermer"},
                                                 {"contacts; nouveau", "BtContactsFermer"},
                                                 {"contacts; jumelage", "BtPjAnnuler"},
                                                 {"contacts; jumelage; feuille", "BtQuitQSL"},
                                                 {"contacts; feuille; revue", "BtLeaveQSL"},
                                                 {"contacts; nouveau; locator", "BtChangAnnul"},
                                                 {"contacts; locator; efface", "FraCmdNon"},
                                                 {"feuille; controle", ""},
                                                 {"contacts; tri; gel", ""},
                                                 {"efface; gel", ""}}) {
        Scene scene;
        for (const std::string& geste : Couper(gestes, ";"))
            scene.Faire(geste);
        EXPECT_EQ(CommandeDEchap(scene.ecran, scene.feuille.vue), commande) << gestes;
    }
}

} // namespace orvalis::aides::vue
