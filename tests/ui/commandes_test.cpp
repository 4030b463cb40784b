// The commands that each state of the program refuses.
#include "aides.h"
#include "ui/flux/commandes.h"

namespace orvalis::aides::commandes {

// The commands of the table that are refused, and "Modifier" for a press on a box, while what the
// words say is under way, else with two contacts of our own logbook on show; the conditions `tus`
// count as met.
std::string Refuses(const std::string& mots, unsigned tus = 0) {
    Session session;
    Ecran ecran;
    FeuilleQSL feuille;
    Cahier& cahier = session.cahier;
    cahier.fichier = FichierFiches("/proc/self/exe", ModeFichier::Lecture);
    // So many contacts, the last of them on the card.
    const auto poser = [&](std::int32_t nbFiches) {
        cahier.nbFiches = nbFiches;
        session.carte.ficheCourante = cahier.Derniere();
    };
    poser(2);
    ecran.temoinDemarrage = 0;
    const std::map<std::string, std::function<void()>> effets = {
        {"démarrage", [&] { ecran.temoinDemarrage = kDemarrageAFaire; }},
        {"gel", [&] { ecran.gel = true; }},
        {"une", [&] { poser(1); }},
        {"aucune", [&] { poser(0); }},
        {"saisie", [&] { session.carte.saisie.EnSaisie = true; }},
        {"modification", [&] { session.carte.saisie.NbModifs = 1; }},
        {"copie", [&] { cahier.autre = "F5ABC"; }}, // of our own, opened as another
        {"autre", [&] { cahier.autre = "F6XYZ"; }},
        {"lecture", [&] { cahier.lectureSeule = true; }},
        {"jumelage", [&] { ecran.jumelage.montre = true; }},
        {"feuille", [&] { feuille.vue.panneau = true; }},
        {"contrôle", [&] { feuille.vue.controle = true; }},
        {"fermé", [&] { cahier.fichier = {}; }}};
    for (const std::string& mot : Couper(mots, " "))
        EXPECT_NO_THROW(effets.at(mot)()) << "no such state: " << mot;
    const unsigned remplies = ConditionsRemplies(session, ecran, feuille) | tus;
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
                   "MnuChangerLocator BtKillFiche TxtField_14 Modifier "},
        {"saisie", travail + "MnuSauver MnuConfigImp " + impression + etiquettes + edition +
                       boutons + "TxtField_14 Modifier "},
        {"modification", "MnuCreateMDB MnuChangerLocator " + etiquettes + "TxtField_14 "},
        {"autre lecture",
         "MnuJumeler MnuSauver MnuChangerLocator " + edition + boutons + "TxtField_14 Modifier "},
        {"copie", "MnuJumeler MnuSauver MnuChangerLocator " + boutons + "TxtField_14 "},
        {"jumelage", "MnuChangerLocator " + etiquettes + "TxtField_14 "},
        {"fermé", "MnuChangerLocator MnuGestionFeuilleQSL "},
        {"démarrage", travail + "MnuDoublons MnuSauver MnuConfigImp " + impression +
                          "MnuChangerLocator " + etiquettes},
        {"gel", travail + "MnuDoublons MnuSauver MnuConfigImp " + impression +
                    "MnuEditLocator MnuChangerLocator " + etiquettes + "MnuVoir "},
        {"feuille", travail + "MnuDoublons MnuSauver " + impression + "MnuChangerLocator " +
                        etiquettes + "TxtField_14 "},
        {"feuille contrôle", travail + "MnuDoublons MnuSauver MnuConfigImp " + impression +
                                 "MnuEditLocator MnuChangerLocator " + etiquettes +
                                 "MnuVoir Horloge TxtField_14 "}};
    Verifier([](const std::string& mots) { return Refuses(mots); }, cas);
    // What the label service waits for is refused without being grey.
    EXPECT_EQ(Refuses("jumelage", kConditionsMuettes), "MnuChangerLocator ");
}

} // namespace orvalis::aides::commandes
