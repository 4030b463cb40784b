#include "ui/flux_demarrage.h"

#include "core/commandes.h"
#include "core/creation.h"
#include "core/dossier.h"
#include "core/fiches.h"
#include "core/messages.h"
#include "core/parametres.h"
#include "ui/chang_locator.h"
#include "ui/dlg1.h"
#include "ui/effets.h"
#include "ui/flux_navigation.h"
#include "ui/flux_qsl.h"
#include "ui/msg_fiche.h"
#include "ui/panneau_classer.h"
#include "ui/panneau_contacts.h"
#include "ui/panneau_ctrl_impression.h"
#include "ui/panneau_enrs.h"
#include "ui/panneau_fiche.h"
#include "ui/panneau_horloge.h"
#include "ui/panneau_jumelage.h"
#include "ui/panneau_menu.h"
#include "ui/panneau_rech.h"
#include "ui/systeme.h"
#include "ui/texte_qt.h"

#include <QLabel>
#include <QMainWindow>
#include <QStackedWidget>

namespace orvalis {
namespace fs = std::filesystem;
namespace {

std::string Titre(const Session& session) {
    return " Cahier de Trafic de " + session.indicatif + std::string(22, ' ') +
           "(version " ORVALIS_VERSION ")";
}

} // namespace

void CacherPanneaux(Plateau& p) {
    p.fiche.MontrerActiveRech(false);
    p.enrs.hide();
    p.contacts.hide();
    p.msgFiche.hide();
    p.changLocator.hide();
    p.classer.hide();
    p.jumelage.hide();
    p.ctrlImpression.hide();
    p.droite.setCurrentIndex(0);
}

Demarrage ChargerParametres(Plateau& p) {
    Session& s = p.session;
    s.lecteur = p.systeme.Lecteur();
    const fs::path dossier = DossierProgramme(s.lecteur);
    const fs::path chemin = TrouverFichier(dossier, kNomParametres);
    if (!Present(dossier) || !Present(chemin)) {
        Dlg1 creation(s.lecteur, p.systeme, &p.fenetre);
        return creation.exec() == QDialog::Accepted ? Demarrage::Recommencer : Demarrage::Arreter;
    }
    const Parametres parametres = LireParametres(chemin);
    {
        const Sablier sablier;
        OuvrirJournal(s, TrouverFichier(dossier, parametres.nomFichier));
    }
    s.indicatif = parametres.indicatif;
    s.nomFichier = parametres.nomFichier;
    s.monLocator = parametres.monLocator;
    s.autreJournal.clear();
    InitialiserFenetre(p);
    return Demarrage::Pret;
}

void InitialiserFenetre(Plateau& p) {
    Session& s = p.session;
    p.contacts.hide();
    p.rech.Vider();
    AfficherHeure(p);
    RelireCahier(p);
    ReactiverBoutons(p);
    p.rech.setVisible(s.nbFiches != 0);
    if (s.nbFiches != 0)
        p.liste.DonnerFoyer();
    else
        p.menu.DonnerFoyerNouveau();
    p.fenetre.setWindowTitle(Q(Titre(s)));
    if (s.nbFiches != 0)
        ChargerFeuille(p);
}

void AfficherHeure(Plateau& p) {
    p.horloge.Montrer(p.systeme.Maintenant());
}

void LancerCompagnon(Plateau& p, std::string_view nom) {
    const fs::path dossier = DossierProgramme(p.session.lecteur);
    const auto lancer = [&](std::string_view programme) -> std::optional<QString> {
        try {
            return p.systeme.Lancer(Q(TrouverFichier(dossier, programme).string()));
        } catch (const ErreurFichier& echec) { // the folder cannot be listed
            return Q(RaisonFrancaise(echec.code()));
        }
    };
    std::optional<QString> raison = lancer(nom);
#ifndef Q_OS_WIN
    if (raison)
        raison = lancer(nom.substr(0, nom.rfind('.')));
#endif
    const std::string chemin = CheminProgrammeTexte(p.session.lecteur, nom);
    if (raison)
        p.systeme.Avertir(
            &p.fenetre,
            QStringLiteral("Impossible de démarrer « %1 » : %2.").arg(Q(chemin), *raison));
}

void CreerBaseDeDonnees(Plateau& p) {
    if (CommandePermise(Commande::MnuCreateMDB, p.session))
        LancerCompagnon(p, "dbOrvalis.exe");
}

void QuitterProgramme(Plateau& p, int code) {
    p.arret = true;
    p.session.journal = Journal();
    p.feuille.fichier.Fermer();
    if (auto* adieu = p.fenetre.findChild<QLabel*>(QStringLiteral("OrvalisLab03")))
        adieu->setText(QStringLiteral(" Au revoir "));
    p.systeme.Quitter(code);
}

} // namespace orvalis
