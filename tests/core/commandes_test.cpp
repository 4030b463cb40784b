#include "aides.h"
#include "core/commandes.h"

namespace orvalis {
namespace {

/// The commands refused, in the order of the table. A state is N, then what is under way or the
/// other logbook on show.
std::string Refusees(const std::string& etat) {
    const std::string suite = etat.substr(1);
    Session session;
    session.journal = Journal("/dev/null", ModeFichier::Lecture);
    session.indicatif = "F5ABC";
    session.nbFiches = etat[0] - '0';
    session.autreJournal = suite[0] == 'F' ? suite : "";
    session.saisie.EnSaisie = suite == "saisie";
    session.saisie.NbModifs = suite == "modif" ? 1 : 0;
    std::string refusees;
    for (const RegleCommande& regle : kReglesCommandes)
        if (!CommandePermise(regle.commande, session))
            refusees += std::string{regle.nom.empty() ? "Modifier" : regle.nom} + " ";
    return refusees;
}

TEST(Commandes, RefuseesDansChaqueEtat) {
    const std::string edition = "BtNewQSO BtKillFiche Modifier ";
    const std::string jumelage = "MnuJumeler BtPjumeler BtPjSauvegarder ";
    const essai::Textes cas = {
        {"2", "MnuChangerLocator "},
        {"1", "MnuClasser MnuChangerLocator "},
        {"0", "MnuCreateMDB MnuCopieSurDisque MnuClasser MnuSauver MnuImpPage MnuChangerLocator "
              "BtKillFiche Modifier "},
        {"2saisie", "MnuCourantF MnuAutreF " + jumelage +
                        "MnuCreateMDB MnuCopieSurDisque MnuClasser MnuSauver MnuConfigImp "
                        "MnuImpPage MnuImpPageVierge MnuVirginTags MnuGestionFeuilleQSL " +
                        edition},
        {"2modif", "MnuCreateMDB MnuChangerLocator MnuVirginTags MnuGestionFeuilleQSL "},
        {"2F6XYZ", jumelage + "MnuSauver MnuChangerLocator " + edition},
        {"2F5ABC", jumelage + "MnuSauver MnuChangerLocator "},
    };
    essai::Verifier(Refusees, cas);
    EXPECT_FALSE(CommandePermise(Commande::MnuGestionFeuilleQSL, Session{}));
}

} // namespace
} // namespace orvalis
