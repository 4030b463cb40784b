#include "core/commandes.h"

#include <gtest/gtest.h>
#include <string>

namespace orvalis {
namespace {

TEST(Commandes, RefuseesDansChaqueEtat) {
    const struct {
        std::int32_t n;
        std::string etat;         // "saisie", "modif" or the other logbook's name
        std::string_view refuses; // in the order of the table
    } cas[] = {
        {2, "", " MnuChangerLocator"},
        {1, "", " MnuClasser MnuChangerLocator"},
        {0, "",
         " MnuCreateMDB MnuCopieSurDisque MnuClasser MnuSauver MnuImpPage MnuChangerLocator"
         " BtKillFiche Modifier"},
        {2, "saisie",
         " MnuCourantF MnuAutreF MnuJumeler BtPjumeler BtPjSauvegarder MnuCreateMDB"
         " MnuCopieSurDisque MnuClasser MnuSauver MnuConfigImp MnuImpPage MnuImpPageVierge"
         " MnuVirginTags MnuGestionFeuilleQSL BtNewQSO BtKillFiche Modifier"},
        {2, "modif", " MnuCreateMDB MnuChangerLocator MnuVirginTags MnuGestionFeuilleQSL"},
        {2, "F6XYZ",
         " MnuJumeler BtPjumeler BtPjSauvegarder MnuSauver MnuChangerLocator BtNewQSO BtKillFiche"
         " Modifier"},
        {2, "F5ABC", " MnuJumeler BtPjumeler BtPjSauvegarder MnuSauver MnuChangerLocator"},
    };
    for (const auto& c : cas) {
        Session session;
        session.journal = Journal("/dev/null", ModeFichier::Lecture);
        session.indicatif = "F5ABC";
        session.nbFiches = c.n;
        session.autreJournal = c.etat[0] == 'F' ? c.etat : "";
        session.saisie.EnSaisie = c.etat == "saisie";
        session.saisie.NbModifs = c.etat == "modif" ? 1 : 0;
        std::string refuses;
        for (const RegleCommande& regle : kReglesCommandes)
            if (!CommandePermise(regle.commande, session))
                refuses += " " + std::string{regle.nom.empty() ? "Modifier" : regle.nom};
        EXPECT_EQ(refuses, c.refuses);
    }
    EXPECT_FALSE(CommandePermise(Commande::MnuGestionFeuilleQSL, Session{}));
}

} // namespace
} // namespace orvalis
