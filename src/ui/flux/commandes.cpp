#include "ui/flux/commandes.h"

#include "ui/carte/echappement.h"
#include "ui/flux/flux_classer.h"
#include "ui/flux/flux_compagnons.h"
#include "ui/flux/flux_demarrage.h"
#include "ui/flux/flux_fichiers.h"
#include "ui/flux/flux_impression.h"
#include "ui/flux/flux_jumelage.h"
#include "ui/flux/flux_locator.h"
#include "ui/flux/flux_modification.h"
#include "ui/flux/flux_qsl.h"
#include "ui/flux/flux_recherche.h"
#include "ui/flux/flux_saisie.h"

#include <algorithm>
#include <array>

namespace orvalis {
namespace {

// What all commands of the menus ask for that work on the logbook: while the label sheet is on
// show they wait for it, and before the logbook is on show there is nothing to work on.
constexpr unsigned kMenu = kPret | kSansFeuille;

constexpr std::array kCommandes = std::to_array<Commande>({
    {"NmuFilect", "    Fichier    "},
    {"MnuCourantF", "    Ouvrir Fichier courant  ", kMenu | kHorsSaisie, OuvrirCahierCourant},
    {"MnuAutreF", "  Ouvrir Autre Fichier.Vek  ", kMenu | kHorsSaisie, OuvrirAutre},
    {"MnuJumeler", " Jumeler deux Fichiers.Vek", kMenu | kHorsSaisie | kCahierPropre,
     OuvrirJumelage},
    {"MnuQuitter", "  Fermer Fichier  et  Quitter", kToujours, QuitterOrvalis, true},
    {"MnuLister", "      Liste        "},
    {"MnuCreateMDB", "    Réaliser  fichier.mdb", kMenu | kHorsSaisie | kHorsEdition | kAuMoinsUn,
     CreerBaseDeDonnees},
    {"MnuCopieSurDisque", "Copier sur CD ou disquette", kMenu | kHorsSaisie | kAuMoinsUn,
     CopierSurDisque},
    {"MnuClasser", "      Classer  le Fichier   ", kMenu | kHorsSaisie | kAuMoinsDeux, Classer},
    {"MnuDoublons", "  Chercher les doublons", kMenu, MontrerDoublons},
    {"MnuSauver", "        Sauvegarder ", kMenu | kHorsSaisie | kCahierPropre | kAuMoinsUn,
     Sauvegarder},
    {"MnuImprim", "    Imprimer    "},
    // The printer can be chosen beside the label sheet too.
    {"MnuConfigImp", "Configurer imprimante  ", kPret | kSansControle | kHorsSaisie,
     ConfigurerImprimante},
    {"MnuImpPage", "Imprimer Page affichée  ", kMenu | kHorsSaisie | kAuMoinsUn,
     ImprimerPageAffichee},
    {"MnuImpPageVierge", "Imprimer page vierge  ", kMenu | kHorsSaisie, ImprimerPageVierge},
    {"MnuLocator", "    Locator   "},
    {"MnuEditLocator", "    Editer Locator", kSansGel | kSansControle, EditerLocator},
    {"MnuChangerLocator", " Changer de Locator", kMenu | kEnSaisie, ChangerDeLocator},
    {"MnuServiceQSL", "   Service QSL  "},
    {"MnuVirginTags", " Imprimer étiquettes vierges à coller",
     kMenu | kHorsSaisie | kSansReponse | kSansAttente, ImprimerEtiquettesVierges},
    {"MnuGestionFeuilleQSL", "   Gestion feuille 16 étiquettes ",
     kMenu | kHorsSaisie | kSansReponse | kCahierOuvert | kSansAttente, GererFeuille},
    {"MnuInfos", "   Infos "},
    {"MnuVoir", "  Infos à propos de Orvalis", kSansGel | kSansControle, VoirInfos},

    {"Horloge", {}, kSansControle, ReglerHorloge},
    {"BtNewQSO", {}, kPourNouveau, NouveauQso},
    {"BtKillFiche", {}, kPourSupprimer | kFicheMontree, DemanderSuppression},
    {"BtFermerLog", {}, kToujours, QuitterOrvalis, true},
    {"FraCmdOui", {}, kToujours, RepondreOuiAuCadre},
    {"FraCmdNon", {}, kToujours, RepondreNonAuCadre},
    {"BtEnrSuivant", {}, kToujours, EnregistrerEtSuivre},
    {"BtEnrTerminer", {}, kToujours, EnregistrerEtTerminer},
    {"BtEnrAnnuler", {}, kToujours, AnnulerSaisie},
    {"BtActiveRech", {}, kToujours, VoirContacts},
    {"BtContactsFermer", {}, kToujours, FermerContacts},
    {"BtChangValid", {}, kToujours, ValiderLocator},
    {"BtChangAnnul", {}, kToujours, AnnulerLocator},
    {"BtPjumeler", {}, kHorsSaisie | kCahierPropre, Jumeler},
    // Kept on purpose, for the operators: the pairing panel saves an empty logbook too, the menu
    // does not.
    {"BtPjSauvegarder", {}, kHorsSaisie | kCahierPropre, SauvegarderAvantJumelage},
    {"BtPjAnnuler", {}, kToujours, FermerJumelage},
    // A click on the box of my QSL, which makes a label of a stored contact.
    {"TxtField_14", {}, kSansAttente | kCahierPropre | kFicheMontree, CliquerMaQsl},
    {"BtIndicatifQSL", {}, kToujours, SurBtIndicatifQSL},
    {"BtValidQSL", {}, kToujours, SurBtValidQSL},
    {"BtDelQSL", {}, kToujours, SurBtDelQSL},
    {"BtLeaveQSL", {}, kToujours, SurBtLeaveQSL},
    {"BtQuitQSL", {}, kToujours, SurBtQuitQSL},
    {"BtRestore", {}, kToujours, SurBtRestore},
    {"BtPrintQSL", {}, kToujours, SurBtPrintQSL},
    {"BtCtrl_Parfait", {}, kToujours, ConfirmerImpression},
    {"BtCtrl_Revoir", {}, kToujours, RevoirImpression},
});

} // namespace

std::span<const Commande> Commandes() {
    return kCommandes;
}

void LancerCommande(Plateau& p, const Commande& commande) {
    if (Permis(commande.conditions, ConditionsRemplies(p.session, p.ecran, p.feuille)))
        commande.flux(p);
}

void Echapper(Plateau& p) {
    const std::string_view nom = CommandeDEchap(p.ecran, p.feuille.vue);
    const auto commande = std::find_if(kCommandes.begin(), kCommandes.end(),
                                       [nom](const Commande& c) { return c.nom == nom; });
    if (commande != kCommandes.end())
        LancerCommande(p, *commande);
}

} // namespace orvalis
