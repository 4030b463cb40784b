#include "ui/flux/flux_recherche.h"

#include "core/recherche.h"
#include "ui/bureau/sablier.h"
#include "ui/carte/conseil.h"
#include "ui/carte/entree_panneaux.h"
#include "ui/carte/foyer.h"
#include "ui/carte/liste_contacts.h"
#include "ui/flux/conduite.h"
#include "ui/flux/flux_navigation.h"

#include <memory>
#include <utility>

namespace orvalis {
namespace {

// Shows a result. Its first line is selected, which shows that contact's card unless one is being
// entered or corrected.
void MontrerResultat(Plateau& p, ResultatRecherche resultat, bool selection) {
    ListeContacts& contacts = p.ecran.contacts;
    contacts.doublons = contacts.reprise = false;
    contacts.lignes = std::make_shared<const std::vector<std::string>>(std::move(resultat.lignes));
    contacts.choisie = -1;
    contacts.compte = resultat.nbreContacts;
    if (resultat.contactsLab)
        contacts.nature = *resultat.contactsLab;
    if (contacts.lignes->empty() || !selection)
        return;
    contacts.choisie = 0;
    if (!p.session.carte.EnEdition())
        MontrerContact(p, NumeroDeLigne(contacts.lignes->front()));
}

bool IndicatifSurLaCarte(const Plateau& p) {
    return !p.session.carte.Texte(Boite::Indicatif).empty();
}

// The focus leaves a list that is hidden.
void CacherContacts(Plateau& p) {
    p.ecran.contacts.montree = false;
    if (p.ecran.foyer.ici.cible == Cible::Contacts)
        LacherFoyer(p);
}

} // namespace

void VoirContacts(Plateau& p) {
    const Sablier sablier;
    const Carte& carte = p.session.carte;
    const bool enEdition = carte.EnEdition();
    p.ecran.recherche.montre = false;
    if (IndicatifSurLaCarte(p))
        MontrerResultat(p, ChercherContacts(p.session.cahier, carte.Texte(Boite::Indicatif)), true);
    else
        ViderContacts(p.ecran.contacts);
    p.ecran.contacts.montree = true;
    p.ecran.activeRech = false;
    p.ecran.contacts.supprimerGrise |= enEdition;
    p.ecran.contacts.boutonsGrises = true;
    if (enEdition)
        RendreFoyerALaBoite(p.session.carte, p.ecran, p.session.station);
    else
        DonnerFoyer(p, {Cible::Contacts});
}

void SurTexteRecherche(Plateau& p, const std::string& texte) {
    p.ecran.recherche.texte = texte;
}

void Rechercher(Plateau& p) {
    const std::string texte = p.ecran.recherche.texte;
    if (texte.empty())
        return;
    MontrerResultat(p, ChercherContacts(p.session.cahier, texte), true);
    CederAuxContacts(p.session.carte, p.ecran, p.session.station);
}

void CliquerRecherche(Plateau& p) {
    p.ecran.recherche.texte.clear();
    // The list takes the button with it, and gives it back whichever way it goes.
    p.ecran.activeRech |= p.ecran.contacts.montree && IndicatifSurLaCarte(p);
    CacherContacts(p);
    if (!p.session.carte.RetientLesBoutons())
        RendreBoutons(p.ecran);
}

void FermerContacts(Plateau& p) {
    CacherContacts(p);
    p.ecran.recherche.montre = true; // Kept on purpose, for the operators: during entry too.
    p.ecran.activeRech |= IndicatifSurLaCarte(p);
    Carte& carte = p.session.carte;
    if (!carte.RetientLesBoutons()) {
        RendreBoutons(p.ecran);
        p.ecran.recherche.texte.clear();
        RendreListe(p);
    }
    if (carte.EnEdition())
        RendreFoyerALaBoite(carte, p.ecran, p.session.station);
    else
        DonnerFoyer(p, {Cible::Liste});
}

void MontrerDoublons(Plateau& p) {
    const Sablier sablier;
    const Carte& carte = p.session.carte;
    // Kept on purpose, for the operators: the list answers again during entry, though it chooses
    // no card.
    p.ecran.liste.active |= carte.saisie.EnSaisie;
    p.ecran.activeRech = false;
    p.ecran.contacts.montree = true;
    MontrerResultat(p, ChercherDoublons(p.session.cahier), !carte.saisie.EnSaisie);
    p.ecran.contacts.doublons = true;
    const std::size_t nb = p.ecran.contacts.lignes->size();
    Annoncer(p.ecran,
             (nb == 0 ? "Aucun doublon" : Compte(static_cast<std::int64_t>(nb), "doublon")) +
                 " entre fiches qui se suivent");
    p.ecran.contacts.boutonsGrises = true;
    if (!carte.EnEdition())
        DonnerFoyer(p, {Cible::Contacts});
}

void ReprendreDoublons(Plateau& p) {
    const Sablier sablier;
    MontrerResultat(p, ChercherDoublons(p.session.cahier), false);
    p.ecran.contacts.doublons = p.ecran.contacts.reprise = true;
}

void ChoisirContact(Plateau& p, int ligne) {
    p.ecran.contacts.choisie = ligne;
    const auto& lignes = p.ecran.contacts.lignes;
    if (lignes && ligne >= 0 && static_cast<std::size_t>(ligne) < lignes->size())
        MontrerContact(p, NumeroDeLigne((*lignes)[static_cast<std::size_t>(ligne)]));
}

} // namespace orvalis
