// The commands that each state of the program refuses.
#include "aides.h"
#include "ui/flux/commandes.h"

namespace orvalis::aides::commandes {

// What is under way, by its word: changes the state of two contacts shown from our own logbook.
struct Etat {
    Session session;
    Ecran ecran;
    FeuilleQSL feuille;

    explicit Etat(const std::string& mots) {
        session.cahier.fichier = FichierFiches("/dev/null", ModeFichier::Lecture);
        session.cahier.nbFiches = session.carte.ficheCourante = 2;
        ecran.temoinDemarrage = 0;
        const std::map<std::string, std::function<void()>> effets = {
            {"démarrage", [this] { ecran.temoinDemarrage = kDemarrageAFaire; }},
            {"gel", [this] { ecran.gel = true; }},
            {"une", [this] { session.cahier.nbFiches = session.carte.ficheCourante = 1; }},
            {"aucune", [this] { session.cahier.nbFiches = session.carte.ficheCourante = 0; }},
            {"saisie", [this] { session.carte.saisie.EnSaisie = true; }},
            {"modification", [this] { session.carte.saisie.NbModifs = 1; }},
            {"copie", [this] { session.cahier.autre = "F5ABC"; }}, // of our own, opened as another
            {"lecture",
             [this] {
                 session.cahier.autre = "F6XYZ";
                 session.cahier.lectureSeule = true;
             }},
            {"jumelage", [this] { ecran.jumelage.montre = true; }},
            {"feuille", [this] { feuille.vue.panneau = true; }},
            {"contrôle", [this] { feuille.vue.panneau = feuille.vue.controle = true; }},
            {"fermé", [this] { session.cahier.fichier = {}; }}};
        for (const std::string& mot : Couper(mots, " "))
            EXPECT_NO_THROW(effets.at(mot)()) << "no such state: " << mot;
    }
};

// The commands of the table that are refused, and "Modifier" for a press on a box; the conditions
// `tus` count as met.
std::string Refuses(const std::string& mots, unsigned tus) {
    const Etat etat(mots);
    const unsigned remplies = ConditionsRemplies(etat.session, etat.ecran, etat.feuille) | tus;
    std::string refuses;
    for (const Commande& commande : Commandes())
        if (!Permis(commande.conditions, remplies))
            refuses += std::string{commande.nom} + " ";
    return refuses + (Permis(kPourModifier, remplies) ? "" : "Modifier ");
}

TEST(Commandes, RefuseesDansChaqueEtat) {
    const std::string travail =
        "MnuCourantF MnuAutreF MnuJumeler MnuCreateMDB MnuCopieSurDisque MnuClasser ";
    const std::string edition = "BtNewQSO BtKillFiche ", boutons = "BtPjumeler BtPjSauvegarder ";
    const std::string impression = "MnuImpPage MnuImpPageVierge ";
    const std::string etiquettes = "MnuVirginTags MnuGestionFeuilleQSL ";
    // States, and what they refuse, in the order of the table.
    const Textes cas = {
        {"", "MnuChangerLocator "},
        {"une", "MnuClasser MnuChangerLocator "},
        {"aucune", "MnuCreateMDB MnuCopieSurDisque MnuClasser MnuSauver MnuImpPage "
                   "MnuChangerLocator BtKillFiche Modifier "},
        {"saisie", travail + "MnuSauver MnuConfigImp " + impression + etiquettes + edition +
                       boutons + "TxtField_14 Modifier "},
        {"modification", "MnuCreateMDB MnuChangerLocator " + etiquettes + "TxtField_14 "},
        {"lecture", "MnuJumeler MnuSauver MnuChangerLocator " + edition + boutons + "Modifier "},
        {"copie", "MnuJumeler MnuSauver MnuChangerLocator " + boutons},
        {"jumelage", "MnuChangerLocator " + etiquettes + "TxtField_14 "},
        {"fermé", "MnuChangerLocator MnuGestionFeuilleQSL "},
        {"démarrage", travail + "MnuDoublons MnuSauver MnuConfigImp " + impression +
                          "MnuChangerLocator " + etiquettes},
        {"gel", travail + "MnuDoublons MnuSauver MnuConfigImp " + impression +
                    "MnuEditLocator MnuChangerLocator " + etiquettes + "MnuVoir "},
        {"feuille", travail + "MnuDoublons MnuSauver " + impression + "MnuChangerLocator " +
                        etiquettes + "TxtField_14 "},
        {"contrôle", travail + "MnuDoublons MnuSauver MnuConfigImp " + impression +
                         "MnuEditLocator MnuChangerLocator " + etiquettes +
                         "MnuVoir Horloge TxtField_14 "}};
    Verifier([](const std::string& mots) { return Refuses(mots, 0); }, cas);
    // What the label service waits for is refused without being grey.
    EXPECT_EQ(Refuses("jumelage", kConditionsMuettes), "MnuChangerLocator ");
}

} // namespace orvalis::aides::commandes
