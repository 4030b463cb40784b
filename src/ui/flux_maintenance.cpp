#include "ui/flux_maintenance.h"

#include "core/commandes.h"
#include "core/fiches.h"
#include "maint/tri.h"
#include "ui/effets.h"
#include "ui/flux_modification.h"
#include "ui/flux_navigation.h"
#include "ui/panneau_classer.h"
#include "ui/panneau_contacts.h"
#include "ui/panneau_fiche.h"
#include "ui/panneau_jumelage.h"
#include "ui/panneau_menu.h"
#include "ui/panneau_rech.h"
#include "ui/systeme.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMainWindow>

namespace orvalis {
namespace {

// Steps run on between two moments at which the screen can show something new.
constexpr int kRythmeMs = 15;
constexpr std::int64_t kPasParRegard = 4000;

// Returns false when the operator quit meanwhile.
bool Trier(Plateau& p) {
    Tri tri(p.session.journal, p.session.nbFiches);
    p.classer.Commencer(p.session.nbFiches);
    while (!tri.Etat().termine) {
        p.classer.Montrer(MotDePasse(tri.Etat().passe), tri.Etat().position);
        QCoreApplication::processEvents();
        if (p.arret)
            return false;
        QElapsedTimer depuis;
        depuis.start();
        // Each pass shows its word, however short it is.
        const int passe = tri.Etat().passe;
        while (!tri.Etat().termine && tri.Etat().passe == passe && depuis.elapsed() < kRythmeMs)
            tri.Avancer(kPasParRegard);
    }
    p.classer.Montrer(MotDePasse(kNbPasses), tri.Etat().position);
    return true;
}

} // namespace

void Classer(Plateau& p) {
    if (!CommandePermise(Commande::MnuClasser, p.session))
        return;
    if (p.session.journal.Support().EstProtege()) {
        p.systeme.Avertir(&p.fenetre,
                          QStringLiteral("Ce cahier est protégé en écriture : il ne peut pas être "
                                         "classé."));
        return;
    }
    LacherFoyer();
    Cacher(p.contacts);
    AbandonnerModification(p);
    p.liste.setEnabled(false);
    p.fiche.setEnabled(false);
    p.menu.ActiverNouveau(false);
    p.menu.ActiverSupprimer(false);
    p.fiche.MontrerActiveRech(false);
    p.rech.hide();
    p.jumelage.hide();
    p.classer.show();
    {
        const Sablier sablier;
        const Gel gel(p);
        if (!Trier(p))
            return;
        QCoreApplication::processEvents();
        if (p.arret)
            return;
    }
    RelireCahier(p);
    p.classer.Terminer();
    p.classer.hide();
    p.liste.setEnabled(true);
    p.fiche.setEnabled(true);
    ReactiverBoutons(p);
    // Kept on purpose: the search panel and this button stay hidden after a sort.
    p.fiche.MontrerActiveRech(false);
    p.liste.DonnerFoyer();
}

} // namespace orvalis
