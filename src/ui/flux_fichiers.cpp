// Other logbooks, backup, copy and pairing: the commands of flux_maintenance.h that ask for a
// file, and the way back to the own logbook. When the other file or the Settings file fails, the
// operator is told and the program goes on, since the open logbook is as it was; a failure of the
// open logbook itself ends the program as everywhere.
#include "core/commandes.h"
#include "core/dossier.h"
#include "core/fiches.h"
#include "core/messages.h"
#include "maint/copie.h"
#include "maint/jumelage.h"
#include "maint/ouverture.h"
#include "ui/effets.h"
#include "ui/flux_demarrage.h"
#include "ui/flux_maintenance.h"
#include "ui/flux_modification.h"
#include "ui/flux_navigation.h"
#include "ui/panneau_enrs.h"
#include "ui/panneau_jumelage.h"
#include "ui/panneau_liste.h"
#include "ui/systeme.h"
#include "ui/texte_qt.h"

#include <QMainWindow>
#include <QStandardPaths>
#include <QStorageInfo>

#include <array>
#include <functional>

namespace orvalis {
namespace {

// Runs `action`; a failure that does not concern the open logbook is told. Returns success.
bool Essayer(Plateau& p, const std::function<void()>& action) {
    try {
        action();
        return true;
    } catch (const ErreurFichier& echec) {
        if (echec.Chemin() == p.session.cheminJournal)
            throw;
        p.systeme.Avertir(&p.fenetre, Q(MessageErreur(echec)));
    } catch (const std::runtime_error& echec) { // taken by another program, damaged Settings
        p.systeme.Avertir(&p.fenetre, Q(MessageErreur(echec)));
    }
    return false;
}

QString NomDuFichier(const Session& session) {
    return Q(session.cheminJournal.filename().string());
}

bool CopierVers(Plateau& p, const DemandeFichier& demande) {
    const QString cible = p.systeme.ChoisirFichier(&p.fenetre, demande);
    return !p.arret && !cible.isEmpty() && Essayer(p, [&] {
        const Sablier sablier;
        CopierJournal(p.session, std::filesystem::path(S(cible)));
    });
}

// Returns whether a backup was made.
bool Sauvegarde(Plateau& p) {
    std::filesystem::path dossier;
    if (!Essayer(p, [&] { dossier = CheminSauvegardes(p.session.lecteur); }))
        return false;
    return CopierVers(p, {true, Q(dossier.string()), NomDuFichier(p.session),
                          QStringLiteral("Sauvegarder le cahier")});
}

QString DossierAmovible() {
    constexpr std::array<const char*, 4> kRacines = {"/media/", "/run/media/", "/mnt/",
                                                     "/Volumes/"};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        for (const char* racine : kRacines)
            if (volume.isReady() && !volume.isReadOnly() &&
                volume.rootPath().startsWith(QLatin1String(racine)))
                return volume.rootPath();
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void PrevenirSiIncomplet(Plateau& p, const EtatJournal& etat) {
    QStringList defauts;
    if (!etat.finPresente)
        defauts << QStringLiteral("il n'a pas d'enregistrement de fin");
    if (!etat.longueurEntiere)
        defauts << QStringLiteral("sa longueur n'est pas un nombre entier de fiches");
    if (!defauts.isEmpty())
        p.systeme.Avertir(&p.fenetre, QStringLiteral("Le cahier « %1 » est peut-être abîmé : %2.")
                                          .arg(Q(p.session.cheminJournal.string()),
                                               defauts.join(QStringLiteral(" et "))));
}

} // namespace

void OuvrirJumelage(Plateau& p) {
    if (!CommandePermise(Commande::MnuJumeler, p.session))
        return;
    LacherFoyer();
    AbandonnerModification(p);
    RelireCahier(p);
    p.liste.setEnabled(false);
    p.jumelage.Ouvrir(p.session.cheminJournal.filename().string());
}

void Jumeler(Plateau& p) {
    if (!CommandePermise(Commande::BtPjumeler, p.session))
        return;
    const QString source = p.systeme.ChoisirFichier(
        &p.fenetre,
        {false, Q(TexteLecteur(p.session.lecteur)), {}, QStringLiteral("Cahier à ajouter")});
    if (p.arret || source.isEmpty())
        return;
    Essayer(p, [&] {
        const Sablier sablier;
        JumelerJournal(p.session, std::filesystem::path(S(source)));
    });
    RelireCahier(p);
}

void SauvegarderAvantJumelage(Plateau& p) {
    if (CommandePermise(Commande::BtPjSauvegarder, p.session) && Sauvegarde(p))
        p.jumelage.ActiverSauvegarde(false);
}

void FermerJumelage(Plateau& p) {
    LacherFoyer();
    p.jumelage.hide();
    p.liste.setEnabled(true);
    p.liste.DonnerFoyer();
}

void OuvrirJournalCourant(Plateau& p) {
    if (!CommandePermise(Commande::MnuCourantF, p.session))
        return;
    LacherFoyer();
    AbandonnerModification(p);
    p.jumelage.hide();
    p.liste.setEnabled(true);
    auto suite = Demarrage::Recommencer;
    const bool fait = Essayer(p, [&] {
        while (suite == Demarrage::Recommencer)
            suite = ChargerParametres(p);
    });
    if (fait && suite == Demarrage::Arreter)
        QuitterProgramme(p, 0);
    if (fait)
        return;
    AfficherFiche(p); // the logbook on show is still open and whole
    p.liste.DonnerFoyer();
}

void OuvrirAutre(Plateau& p) {
    if (!CommandePermise(Commande::MnuAutreF, p.session))
        return;
    RendreListe(p); // not under the pairing panel, which may still be on show after a No
    p.enrs.hide();
    const QString choisi = p.systeme.ChoisirFichier(
        &p.fenetre,
        {false, Q(TexteLecteur(p.session.lecteur)), {}, QStringLiteral("Ouvrir un autre cahier")});
    if (p.arret || choisi.isEmpty())
        return;
    BilanOuverture bilan;
    const auto ouvrir = [&] {
        const Sablier sablier;
        bilan = OuvrirAutreJournal(p.session, S(choisi));
    };
    if (!Essayer(p, ouvrir) || !bilan.ouvert)
        return;
    LacherFoyer();
    AbandonnerModification(p);
    p.jumelage.hide();
    p.liste.setEnabled(true);
    InitialiserFenetre(p);
    PrevenirSiIncomplet(p, bilan.etat);
}

void Sauvegarder(Plateau& p) {
    if (!CommandePermise(Commande::MnuSauver, p.session))
        return;
    Sauvegarde(p);
    p.liste.DonnerFoyer();
}

void CopierSurDisque(Plateau& p) {
    if (!CommandePermise(Commande::MnuCopieSurDisque, p.session))
        return;
    CopierVers(
        p, {true, DossierAmovible(), NomDuFichier(p.session), QStringLiteral("Copier le cahier")});
    p.session.lecteur = p.systeme.Lecteur(); // the dialog may have changed the current folder
}

} // namespace orvalis
