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
void MontrerResultat(Plateau& p, const ResultatRecherche& resultat, bool selection) {
    p.contacts.Remplir(resultat.lignes);
    p.contacts.MontrerCompte(resultat.nbreContacts);
    if (resultat.contactsLab)
        p.contacts.MontrerNature(*resultat.contactsLab);
    if (resultat.lignes.empty() || !selection)
        return;
    p.contacts.Selectionner(0);
    if (!p.session.EnEdition())
        ChoisirFiche(p, p.contacts.NumeroDe(0));
}

void DesactiverBoutonsDuLog(Plateau& p) {
    p.menu.ActiverNouveau(false);
    p.menu.ActiverFermer(false);
}

bool IndicatifSurLaCarte(const Plateau& p) {
    return !p.fiche.TexteBoite(1).empty();
}

} // namespace

void VoirContacts(Plateau& p) {
    const Sablier sablier;
    const std::string indicatif = p.fiche.TexteBoite(1);
    const bool enEdition = p.session.EnEdition();
    p.fiche.MontrerActiveRech(false);
    Cacher(p.rech);
    if (!indicatif.empty())
        MontrerResultat(p, ChercherContacts(p.session.journal, p.session.nbFiches, indicatif),
                        true);
    p.contacts.show();
    p.fiche.MontrerActiveRech(false);
    if (enEdition)
        p.menu.ActiverSupprimer(false);
    DesactiverBoutonsDuLog(p);
    if (enEdition)
        DonnerFoyer(p, static_cast<std::size_t>(p.session.saisie.DerniereZone));
    else
        p.contacts.DonnerFoyer();
}

void Rechercher(Plateau& p) {
    const std::string texte = p.rech.Texte();
    if (texte.empty())
        return;
    MontrerResultat(p, ChercherContacts(p.session.journal, p.session.nbFiches, texte), true);
    Cacher(p.rech);
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
    Cacher(p.contacts);
    if (!p.session.EnEdition())
        ReactiverBoutons(p);
}

void FermerContacts(Plateau& p) {
    Cacher(p.contacts);
    p.rech.show(); // Kept on purpose: on an empty logbook and during entry too.
    if (IndicatifSurLaCarte(p))
        p.fiche.MontrerActiveRech(true);
    if (p.session.EnEdition()) {
        DonnerFoyer(p, static_cast<std::size_t>(p.session.saisie.DerniereZone));
        return;
    }
    p.rech.Vider();
    ReactiverBoutons(p);
    RendreListe(p);
    p.liste.DonnerFoyer();
}

void MontrerDoublons(Plateau& p) {
    const Sablier sablier;
    // Kept on purpose: the list answers again during entry, though it chooses no card.
    if (p.session.saisie.EnSaisie)
        p.liste.setEnabled(true);
    p.fiche.MontrerActiveRech(false);
    p.contacts.show();
    MontrerResultat(p, ChercherDoublons(p.session.journal, p.session.nbFiches),
                    !p.session.saisie.EnSaisie);
    DesactiverBoutonsDuLog(p);
    if (!p.session.EnEdition())
        p.contacts.DonnerFoyer();
}

} // namespace orvalis
