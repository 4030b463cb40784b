#include "core/commandes.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace orvalis {
namespace {

TEST(Commandes, RefusesDansChaqueEtat) {
    struct Cas {
        std::int32_t n;
        const char* etat;         ///< "saisie", "modification" or none
        const char* autreJournal; ///< the station is F5ABC
        std::set<std::string> refusees;
    };
    const std::vector<Cas> tous = {
        {2, "", "", {"MnuChangerLocator"}},
        {1, "", "", {"MnuChangerLocator", "MnuClasser"}},
        {0,
         "",
         "",
         {"MnuChangerLocator", "MnuClasser", "MnuSauver", "MnuCopieSurDisque", "MnuCreateMDB",
          "MnuImpPage", "BtKillFiche", "ModifierFiche"}},
        {2,
         "saisie",
         "",
         {"MnuCourantF", "MnuAutreF", "MnuJumeler", "BtPjumeler", "BtPjSauvegarder", "MnuCreateMDB",
          "MnuCopieSurDisque", "MnuClasser", "MnuSauver", "MnuConfigImp", "MnuImpPage",
          "MnuImpPageVierge", "MnuVirginTags", "MnuGestionFeuilleQSL", "BtNewQSO", "BtKillFiche",
          "ModifierFiche"}},
        {2,
         "modification",
         "",
         {"MnuChangerLocator", "MnuCreateMDB", "MnuVirginTags", "MnuGestionFeuilleQSL"}},
        {2,
         "",
         "F6XYZ",
         {"MnuChangerLocator", "MnuJumeler", "BtPjumeler", "BtPjSauvegarder", "MnuSauver",
          "BtNewQSO", "BtKillFiche", "ModifierFiche"}},
        {2,
         "",
         "F5ABC",
         {"MnuChangerLocator", "MnuJumeler", "BtPjumeler", "BtPjSauvegarder", "MnuSauver"}},
    };
    for (const Cas& cas : tous) {
        SCOPED_TRACE(std::to_string(cas.n) + cas.etat + cas.autreJournal);
        Session session;
        session.journal = Journal("/dev/null", ModeFichier::Lecture);
        session.indicatif = "F5ABC";
        session.nbFiches = cas.n;
        session.autreJournal = cas.autreJournal;
        session.saisie.EnSaisie = cas.etat == std::string("saisie");
        session.saisie.NbModifs = cas.etat == std::string("modification") ? 1 : 0;
        std::set<std::string> refusees;
        for (const RegleCommande& regle : kReglesCommandes)
            if (!CommandePermise(regle.commande, session))
                refusees.emplace(regle.nom.empty() ? "ModifierFiche" : regle.nom);
        EXPECT_EQ(refusees, cas.refusees);
    }
    EXPECT_FALSE(CommandePermise(Commande::MnuGestionFeuilleQSL, Session{}));
}

} // namespace
} // namespace orvalis
