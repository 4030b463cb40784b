#include "ui/flux/flux_demarrage.h"

#include "core/creation.h"
#include "core/dossier.h"
#include "core/erreurs.h"
#include "core/parametres.h"
#include "ui/bureau/sablier.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/foyer.h"
#include "ui/carte/liste_contacts.h"
#include "ui/dialogues/dlg1.h"
#include "ui/flux/conduite.h"
#include "ui/flux/flux_fichiers.h"
#include "ui/flux/flux_navigation.h"
#include "ui/flux/flux_qsl.h"

#include <utility>

namespace orvalis {
namespace fs = std::filesystem;
namespace {

std::string Titre(const Station& station) {
    return " Cahier de Trafic de " + station.indicatif + std::string(22, ' ') +
           "(version " ORVALIS_VERSION ")";
}

} // namespace

Demarrage ChargerParametres(Plateau& p) {
    Station& station = p.session.station;
    Cahier& cahier = p.session.cahier;
    if (cahier.EstLeNotre())
        ExigerCahier(cahier);
    station.lecteur = p.systeme.Lecteur();
    const fs::path dossier = DossierProgramme(station.lecteur);
    const fs::path chemin = TrouverParametres(dossier);
    if (!Present(dossier) || !Present(chemin)) {
        bool cree = false;
        Dlg1 creation(station.lecteur, p.systeme, &p.fenetre);
        p.dehors([&] { cree = creation.exec() == QDialog::Accepted; });
        return cree ? Demarrage::Recommencer : Demarrage::Arreter;
    }
    const Parametres parametres = LireParametres(chemin);
    {
        const Sablier sablier;
        OuvrirCahier(cahier, TrouverFichier(dossier, parametres.nomFichier));
    }
    station.indicatif = parametres.indicatif;
    station.monLocator = parametres.monLocator;
    cahier.autre.clear();
    cahier.lectureSeule = false;
    InitialiserFenetre(p);
    return Demarrage::Pret;
}

void InitialiserFenetre(Plateau& p) {
    p.ecran.contacts.montree = false;
    ViderContacts(p.ecran.contacts); // its numbers are those of another logbook
    p.ecran.recherche.texte.clear();
    AfficherHeure(p);
    RelireCahier(p);
    const bool vide = p.session.cahier.nbFiches == 0;
    RendreBoutons(p.ecran);
    p.ecran.recherche.montre = !vide;
    DonnerFoyer(p, {vide ? Cible::Nouveau : Cible::Liste});
    p.ecran.titre = Titre(p.session.station);
    RegarderSauvegardes(p);
    if (!vide)
        ChargerFeuille(p);
}

bool Demarrer(Plateau& p) {
    bool creation = false;
    for (auto suite = Demarrage::Recommencer; suite == Demarrage::Recommencer;) {
        {
            const Gel gel(p.ecran);
            p.systeme.Pause(1);
        }
        if (p.ecran.arret)
            return creation;
        suite = ChargerParametres(p);
        creation |= suite != Demarrage::Pret;
        if (suite == Demarrage::Arreter) {
            QuitterProgramme(p, 0);
            return creation;
        }
    }
    p.ecran.temoinDemarrage = 0;
    return creation;
}

void AfficherHeure(Plateau& p) {
    p.ecran.heure = p.systeme.Maintenant();
}

void QuitterOrvalis(Plateau& p) {
    p.fermer();
}

void FermerCahierEtQuitter(Plateau& p) {
    // Another logbook than our own may be on a stick that was pulled.
    if (p.session.cahier.EstLeNotre() && !std::exchange(p.ecran.perteDite, true))
        ExigerCahier(p.session.cahier);
    QuitterProgramme(p, 0);
}

void QuitterProgramme(Plateau& p, int code) {
    p.ecran.arret = true;
    p.session.cahier.fichier = FichierFiches();
    p.feuille.fichier.Fermer();
    p.ecran.adieu = " Au revoir ";
    p.systeme.Quitter(code);
}

} // namespace orvalis
