#include "ui/flux/flux_fichiers.h"

#include "core/cahier.h"
#include "core/chemins.h"
#include "core/dossier.h"
#include "core/erreurs.h"
#include "maint/copie.h"
#include "maint/ouverture.h"
#include "ui/bureau/dossier_amovible.h"
#include "ui/bureau/sablier.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/conseil.h"
#include "ui/flux/conduite.h"
#include "ui/flux/flux_demarrage.h"
#include "ui/flux/flux_modification.h"
#include "ui/flux/flux_navigation.h"

namespace orvalis {
namespace {

QString NomDuFichier(const Session& session) {
    return Q(TexteChemin(session.cahier.chemin.filename()));
}

// Backup and copy take what is there now; where that is not to be had, the operator is told and
// the file that is still open is copied. A correction that waits for an answer goes on waiting.
void VerifierAvantCopie(Plateau& p) {
    if (EstTelQueCompte(p.session.cahier))
        return;
    try {
        VerifierCahier(p.session.cahier);
    } catch (const CahierPerdu& perdu) {
        p.systeme.Avertir(&p.fenetre, Q(perdu.what()));
        return;
    }
    if (p.session.carte.saisie.NbModifs != 0 || p.ecran.question)
        RelirePage(p);
    else
        RelireCahier(p);
}

// Returns whether there is a copy; `fait` says so, its place and contacts behind it.
bool CopierVers(Plateau& p, const DemandeFichier& demande, std::string_view fait) {
    const Cahier& cahier = p.session.cahier;
    const QString cible = p.systeme.ChoisirFichier(&p.fenetre, demande);
    if (p.ecran.arret || cible.isEmpty())
        return false;
    VerifierAvantCopie(p);
    const std::filesystem::path chemin = CheminTexte(S(cible));
    const auto copier = [&] {
        const Sablier sablier;
        CopierCahier(cahier, p.session.station, chemin);
    };
    if (p.ecran.arret || !Essayer(p, copier))
        return false;
    if (!cahier.fichier.Support().EstLeMeme(chemin)) // nothing was copied
        Annoncer(p.ecran, std::string{fait} + " dans " + TexteChemin(CheminTexte(S(cible))) +
                              std::string{kDeuxPoints} + Compte(cahier.nbFiches, "contact"));
    return true;
}

} // namespace

bool Essayer(Plateau& p, const std::function<void()>& action) {
    try {
        action();
        return true;
    } catch (const Erreur& echec) {
        if (echec.ConcerneLeCahier())
            throw;
        p.systeme.Avertir(&p.fenetre, Q(echec.what()));
    } catch (const std::runtime_error& echec) {
        p.systeme.Avertir(&p.fenetre, Q(MessageErreur(echec)));
    }
    return false;
}

void PrevenirSiIncomplet(Plateau& p) {
    const EtatCahier etat = ExaminerCahier(p.session.cahier);
    QStringList defauts;
    if (!etat.finPresente)
        defauts << QStringLiteral("il n'a pas d'enregistrement de fin");
    if (!etat.longueurEntiere)
        defauts << QStringLiteral("sa longueur n'est pas un nombre entier de fiches");
    if (!defauts.isEmpty())
        p.systeme.Avertir(
            &p.fenetre,
            QStringLiteral(
                "Le cahier «\u00a0%1\u00a0» est peut-être abîmé\u00a0: %2. Copiez-le à l'abri, "
                "puis vérifiez ses derniers contacts.")
                .arg(Q(TexteChemin(p.session.cahier.chemin)),
                     defauts.join(QStringLiteral(" et "))));
}

bool FaireSauvegarde(Plateau& p) {
    std::filesystem::path dossier;
    if (!Essayer(p, [&] { dossier = CheminSauvegardes(p.session.station.lecteur); }))
        return false;
    const bool fait = CopierVers(p,
                                 {true, Q(TexteChemin(dossier)), NomDuFichier(p.session),
                                  QStringLiteral("Sauvegarder le cahier")},
                                 "Sauvegardé");
    RegarderSauvegardes(p);
    return fait;
}

void RegarderSauvegardes(Plateau& p) {
    const Session& s = p.session;
    EtatSauvegarde& etat = p.ecran.sauvegarde;
    if (!s.cahier.EstLeNotre())
        return;
    etat.connu = false;
    try {
        etat.derniere = DerniereSauvegarde(s.station.lecteur,
                                           TexteChemin(s.cahier.chemin.filename()), etat.derniere);
        etat.jours = etat.derniere ? JoursDepuis(*etat.derniere) : 0;
        etat.connu = true;
    } catch (const std::exception&) {
        etat.derniere.reset(); // what is only shown keeps nobody from the logbook
    }
}

void OuvrirCahierCourant(Plateau& p) {
    LacherFoyer(p);
    AbandonnerModification(p);
    p.ecran.jumelage.montre = false;
    p.ecran.liste.active = true;
    auto suite = Demarrage::Recommencer;
    const bool fait = Essayer(p, [&] {
        while (suite == Demarrage::Recommencer)
            suite = ChargerParametres(p);
    });
    if (fait && suite == Demarrage::Arreter)
        return QuitterProgramme(p, 0);
    if (fait)
        return PrevenirSiIncomplet(p);
    AfficherFiche(p); // the logbook on show is still open and whole
    DonnerFoyer(p, {Cible::Liste});
}

void OuvrirAutre(Plateau& p) {
    Session& s = p.session;
    RendreListe(p); // not under the pairing panel, which may still be on show after a No
    const QString choisi = p.systeme.ChoisirFichier(
        &p.fenetre,
        {false, Q(TexteLecteur(s.station.lecteur)), {}, QStringLiteral("Ouvrir un autre cahier")});
    if (p.ecran.arret || choisi.isEmpty())
        return;
    BilanOuverture bilan;
    const auto ouvrir = [&] {
        const Sablier sablier;
        bilan = OuvrirAutreCahier(s.cahier, s.station, CheminTexte(S(choisi)));
    };
    if (!Essayer(p, ouvrir) || !bilan.ouvert)
        return;
    s.carte.ficheCourante = kAucuneFiche;
    LacherFoyer(p);
    AbandonnerModification(p);
    p.ecran.jumelage.montre = false;
    p.ecran.liste.active = true;
    InitialiserFenetre(p);
    PrevenirSiIncomplet(p);
}

void Sauvegarder(Plateau& p) {
    static_cast<void>(FaireSauvegarde(p));
    DonnerFoyer(p, {Cible::Liste});
}

void CopierSurDisque(Plateau& p) {
    CopierVers(
        p, {true, DossierAmovible(), NomDuFichier(p.session), QStringLiteral("Copier le cahier")},
        "Copié");
    p.session.station.lecteur = p.systeme.Lecteur(); // the dialog may have changed the folder
}

} // namespace orvalis
