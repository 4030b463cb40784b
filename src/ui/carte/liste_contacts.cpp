#include "ui/carte/liste_contacts.h"

namespace orvalis {

void ViderContacts(ListeContacts& contacts) {
    const ListeContacts vide;
    contacts.lignes = std::make_shared<const std::vector<std::string>>();
    contacts.choisie = vide.choisie;
    contacts.compte = vide.compte;
    contacts.nature = vide.nature;
    contacts.doublons = vide.doublons;
    contacts.reprise = vide.reprise;
}

void RendreBoutons(Ecran& ecran) {
    if (ecran.contacts.montree)
        return;
    ecran.contacts.boutonsGrises = false;
    ecran.contacts.supprimerGrise = false;
}

} // namespace orvalis
