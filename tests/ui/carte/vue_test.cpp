// What is seen of the window in each state, and where the focus goes, without a window.
#include "aides.h"
#include "ui/carte/foyer.h"
#include "ui/carte/modification.h"
#include "ui/carte/vue.h"

namespace orvalis::aides::vue {

// Two contacts of our own logbook, the second on the card, the focus in the list; then gestures.
struct Scene {
    Session session;
    Ecran ecran;
    EtatFeuille feuille;

    Scene() {
        session.station = {{}, "F5ABC", "JN18AA"};
        session.cahier.nbFiches = session.carte.ficheCourante = 2;
        MontrerTexte(session.carte, Boite::Indicatif, "F6XYZ");
        session.carte.zones[Boite::Indicatif] = "F6XYZ";
        ecran.temoinDemarrage = 0;
        ecran.activeRech = true;
        ecran.foyer.ici = {Cible::Liste};
    }

    Carte& carte = session.carte;

    void Faire(const std::string& geste) {
        const std::string mot = geste.substr(0, geste.find(' '));
        const auto boite = static_cast<Boite>(std::atoi(geste.c_str() + geste.find(' ') + 1));
        const std::map<std::string, std::function<void()>> gestes = {
            {"saisie",
             [&] {
                 carte.saisie.EnSaisie = true;
                 ecran.liste.active = false;
                 Appliquer(carte, ecran, session.station, PreparerSaisie(carte, Nous(), 3));
             }},
            {"entree",
             [&] {
                 Appliquer(carte, ecran, Nous(),
                           ValiderBoite(carte, Nous(), boite, {2026, 11, 21, 7, 5, 9}));
             }},
            {"tape", [&] { SaisirTexte(carte, boite, geste.substr(geste.rfind(' ') + 1)); }},
            {"presse", [&] { Appliquer(carte, ecran, Nous(), PresserBoite(carte, boite, true)); }},
            {"suit", [&] { SuivreFoyer(carte, ecran, Nous(), SurBoite(boite)); }},
            {"rend", [&] { RendreFoyerALaBoite(carte, ecran, Nous()); }},
            {"ailleurs", [&] { SuivreFoyer(carte, ecran, Nous(), {Cible::Autre}); }},
            {"liste", [&] { DeplacerFoyer(carte, ecran, Nous(), {Cible::Liste}); }},
            {"lache", [&] { LacherFoyer(carte, ecran); }},
            {"efface",
             [&] {
                 ecran.question = QuestionEffacer(carte);
                 ecran.menuActif = false;
                 DeplacerFoyer(carte, ecran, Nous(), {Cible::Non});
             }},
            {"contacts",
             [&] {
                 ecran.contacts.montree = ecran.contacts.boutonsGrises = true;
                 ecran.activeRech = ecran.recherche.montre = false;
             }},
            {"ferme", [&] { ecran.contacts.montree = false; }},
            {"boutons", [&] { RendreBoutons(ecran); }},
            {"jumelage",
             [&] {
                 ecran.jumelage.montre = true;
                 ecran.liste.active = false;
             }},
            {"sauvegarde", [&] { ecran.jumelage.sauvegardeFaite = true; }},
            {"tri", [&] { ecran.classer.montre = true; }},
            {"lecture", [&] { session.cahier.lectureSeule = true; }},
            {"vide", [&] { session.cahier.nbFiches = carte.ficheCourante = 0; }},
            {"feuille", [&] { feuille.vue.panneau = true; }},
            {"controle", [&] { feuille.vue.panneau = feuille.vue.controle = true; }}};
        EXPECT_NO_THROW(gestes.at(mot)()) << "no such gesture: " << geste;
    }
    static Station Nous() { return {{}, "F5ABC", "JN18AA"}; }
};

const std::map<Cible, std::string> kCibles = {{Cible::Aucune, "aucun"},
                                              {Cible::Autre, "autre"},
                                              {Cible::Liste, "liste"},
                                              {Cible::Contacts, "contacts"},
                                              {Cible::Nouveau, "BtNewQSO"},
                                              {Cible::Suivant, "BtEnrSuivant"},
                                              {Cible::Non, "FraCmdNon"},
                                              {Cible::TexteLocator, "ChangLocText"},
                                              {Cible::Sauvegarder, "BtPjSauvegarder"},
                                              {Cible::Jumeler, "BtPjumeler"},
                                              {Cible::Revoir, "BtCtrl_Revoir"}};

// The panels on show besides list, card and idle buttons; what is grey; the boxes that are not at
// rest with their text; the focus.
std::string Dire(const VueFenetre& vue, const Foyer& foyer) {
    std::string dit;
    const auto si = [&dit](bool vrai, const char* mot) {
        dit += vrai ? std::string(mot) + ' ' : "";
    };
    si(vue.boutons.saisie, "PictEnrs");
    si(vue.carte.nonEnregistre, "bandeau");
    si(vue.carte.activeRech, "BtActiveRech");
    si(vue.recherche.montre, "PictRech");
    si(vue.contacts.montree, "PictContacts");
    si(vue.question.has_value(), "FraMsgFiche");
    si(vue.locator.montre, "PictChangLocator");
    si(vue.jumelage.montre, "PJumelage");
    si(vue.classer.montre, "PictClasser");
    dit += "| ";
    si(!vue.liste.active, "PictListe");
    si(!vue.carte.active, "PictFiche");
    si(!vue.boutons.menuActif, "PictMenu");
    si(!vue.boutons.nouveau, "BtNewQSO");
    si(!vue.boutons.supprimer, "BtKillFiche");
    si(!vue.boutons.fermer, "BtFermerLog");
    si(!vue.boutons.suivantArme && vue.boutons.saisie, "BtEnrSuivant");
    dit += "| ";
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
 blank card : saisie -> PictEnrs bandeau BtActiveRech PictRech | PictListe BtEnrSuivant
     | vert 1= | 1
 callsign : saisie; tape 1 F1A; entree 1 -> PictEnrs bandeau BtActiveRech PictRech
     | PictListe BtEnrSuivant | vert 5= | 5
 report : saisie; tape 1 F1A; entree 1; suit 8; entree 8 -> PictEnrs bandeau BtActiveRech PictRech
     | PictListe | vert 12= | 12
 report offered : saisie; tape 1 F1A; entree 1; suit 7 -> PictEnrs bandeau BtActiveRech PictRech
     | PictListe BtEnrSuivant | vert 7=59 | 7
 nothing to store yet : saisie; tape 1 F1A; entree 1; suit 17; entree 17
     -> PictEnrs bandeau BtActiveRech PictRech | PictListe BtEnrSuivant | vert 17= | 17
 own locator : saisie; suit 16; presse 16 -> PictEnrs bandeau BtActiveRech PictRech PictChangLocator
     | PictListe BtEnrSuivant | | ChangLocText
 press : suit 1; presse 1 -> BtActiveRech PictRech | | rouge 1=F6XYZ | 1
 press, then elsewhere : suit 1; presse 1; ailleurs -> BtActiveRech PictRech | | | autre
 press, list, back : suit 1; presse 1; contacts; ailleurs; ferme; boutons; rend
     -> | | rouge 1=F6XYZ | 1
 change : suit 9; presse 9; tape 9 LYON; entree 9
     -> BtActiveRech PictRech FraMsgFiche | | rouge 9=LYON | 9
 deletion : efface -> BtActiveRech PictRech FraMsgFiche | PictMenu | | FraCmdNon
 contacts : contacts -> PictContacts | BtNewQSO BtFermerLog | | liste
 contacts hidden : contacts; ferme -> | BtNewQSO BtFermerLog | | liste
 buttons back : contacts; ferme; boutons -> | | | liste
 pairing : jumelage; liste -> BtActiveRech PictRech PJumelage | PictListe | | BtPjSauvegarder
 pairing, saved : jumelage; sauvegarde; lache; liste
     -> BtActiveRech PictRech PJumelage | PictListe | | BtPjumeler
 sort : tri; suit 1 -> BtActiveRech PictRech PictClasser | PictFiche BtNewQSO BtKillFiche | | liste
 print check : controle; suit 1 -> BtActiveRech PictRech | | | BtCtrl_Revoir)";
    for (const auto& [nom, gestes, vu] : Etapes(chemin)) {
        SCOPED_TRACE(nom);
        Scene scene;
        for (const std::string& geste : Couper(gestes, ";"))
            scene.Faire(geste);
        VueFenetre vue = VoirFenetre(scene.session, scene.ecran, scene.feuille);
        if (AccorderFoyer(scene.session, scene.ecran, vue))
            vue = VoirFenetre(scene.session, scene.ecran, scene.feuille);
        EXPECT_EQ(Dire(vue, scene.ecran.foyer.ici), vu);
    }
}

TEST(Foyer, LaBoiteQuitteeMontreSaZoneEtLaPriseOffreSonTexte) {
    Scene scene;
    for (const char* geste : {"saisie", "tape 1 F1A", "entree 1", "tape 5 7.05", "suit 13"})
        scene.Faire(geste);
    EXPECT_EQ(scene.carte.Texte(Boite::Frequence), "") << "text without Enter is dropped";
    EXPECT_EQ(scene.carte.saisie.DerniereZone, Boite::Frequence);
    EXPECT_EQ(scene.carte.saisie.TexteSaisi, "");
    scene.carte.zones[Boite::Indicatif].clear();
    scene.Faire("suit 9"); // a contact that was begun has no callsign any more
    EXPECT_EQ(scene.ecran.foyer.ici, SurBoite(Boite::Indicatif));
    EXPECT_EQ(scene.ecran.foyer.voeu, SurBoite(Boite::Indicatif));
}

} // namespace orvalis::aides::vue
