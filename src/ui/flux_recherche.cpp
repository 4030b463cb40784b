#include "ui/flux_recherche.h"

#include "core/recherche.h"
#include "core/session.h"
#include "ui/effets.h"
#include "ui/flux_navigation.h"
#include "ui/panneau_contacts.h"
#include "ui/panneau_fiche.h"
#include "ui/panneau_menu.h"
#include "ui/panneau_rech.h"

namespace orvalis {
namespace {

// Shows a result. Its first line is selected, which shows that contact's card unless one is being
// entered or corrected.
void MontrerResultat(Plateau& p, const ResultatRecherche& resultat) {
    p.contacts.Remplir(resultat.lignes);
    p.contacts.MontrerCompte(resultat.nbreContacts);
    if (resultat.contactsLab)
        p.contacts.MontrerNature(*resultat.contactsLab);
    if (resultat.lignes.empty() || p.session.EnEdition())
        return;
    p.contacts.Selectionner(0);
    ChoisirFiche(p, p.contacts.NumeroDe(0));
}

void ActiverBoutonsDuLog(Plateau& p, bool actifs) {
    p.menu.ActiverNouveau(actifs && !p.session.LectureSeule());
    p.menu.ActiverFermer(actifs);
}

bool IndicatifSurLaCarte(const Plateau& p) {
    return !p.fiche.TexteBoite(1).empty();
}

} // namespace

void VoirContacts(Plateau& p) {
    const Sablier sablier;
    const std::string indicatif = p.fiche.TexteBoite(1);
    const bool enEdition = p.session.EnEdition();
    LacherFoyer();
    p.fiche.MontrerActiveRech(false);
    p.rech.hide();
    if (!indicatif.empty())
        MontrerResultat(p, ChercherContacts(p.session.journal, p.session.nbFiches, indicatif));
    p.contacts.show();
    p.fiche.MontrerActiveRech(false);
    if (enEdition)
        p.menu.ActiverSupprimer(false);
    ActiverBoutonsDuLog(p, false);
    if (enEdition)
        DonnerFoyer(p, static_cast<std::size_t>(p.session.saisie.DerniereZone));
    else
        p.contacts.DonnerFoyer();
}

void Rechercher(Plateau& p) {
    const std::string texte = p.rech.Texte();
    if (texte.empty())
        return;
    MontrerResultat(p, ChercherContacts(p.session.journal, p.session.nbFiches, texte));
    LacherFoyer();
    p.rech.hide();
    p.contacts.show();
    p.rech.Vider();
    if (IndicatifSurLaCarte(p))
        p.fiche.MontrerActiveRech(true);
    if (p.session.saisie.EnSaisie)
        DonnerFoyer(p, static_cast<std::size_t>(p.session.saisie.DerniereZone));
    else
        p.liste.DonnerFoyer();
}

void CliquerRecherche(Plateau& p) {
    p.rech.Vider();
    p.contacts.hide();
}

void FermerContacts(Plateau& p) {
    LacherFoyer();
    p.contacts.hide();
    p.rech.show();
    if (IndicatifSurLaCarte(p))
        p.fiche.MontrerActiveRech(true);
    if (p.session.EnEdition()) {
        DonnerFoyer(p, static_cast<std::size_t>(p.session.saisie.DerniereZone));
        return;
    }
    p.rech.Vider();
    ActiverBoutonsDuLog(p, true);
    p.menu.ActiverSupprimer(p.session.nbFiches > 0 && !p.session.LectureSeule());
    p.liste.setEnabled(true);
    p.liste.DonnerFoyer();
}

void MontrerDoublons(Plateau& p) {
    const Sablier sablier;
    if (p.session.saisie.EnSaisie)
        p.liste.setEnabled(true);
    LacherFoyer();
    p.fiche.MontrerActiveRech(false);
    p.rech.hide();
    p.contacts.show();
    MontrerResultat(p, ChercherDoublons(p.session.journal, p.session.nbFiches));
    ActiverBoutonsDuLog(p, false);
    if (p.session.EnEdition())
        DonnerFoyer(p, static_cast<std::size_t>(p.session.saisie.DerniereZone));
    else
        p.contacts.DonnerFoyer();
}

} // namespace orvalis
