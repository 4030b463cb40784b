#include "ui/flux/flux_classer.h"

#include "maint/tri.h"
#include "ui/bureau/sablier.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/conseil.h"
#include "ui/carte/foyer.h"
#include "ui/flux/conduite.h"
#include "ui/flux/flux_fichiers.h"
#include "ui/flux/flux_modification.h"
#include "ui/flux/flux_navigation.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace orvalis {
namespace {

// Steps run on between two moments at which the screen can show something new.
constexpr int kRythmeMs = 15;
constexpr std::int64_t kPasParRegard = 4000;

void Montrer(PanneauClasser& classer, int passe, const EtatTri& etat) {
    classer.mot = MotDePasse(passe);
    classer.position = std::to_string(etat.position);
}

// Lets the screen show how far the sort has come. Returns false when the operator quit meanwhile.
bool Regarder(Plateau& p) {
    p.dehors([] { QCoreApplication::processEvents(); });
    return !p.ecran.arret;
}

// Returns false when another program has stopped it.
bool Trier(Plateau& p) {
    const Sablier sablier;
    const Gel gel(p.ecran);
    PanneauClasser& classer = p.ecran.classer;
    Tri tri(p.session.cahier);
    while (!tri.Etat().termine) {
        Montrer(classer, tri.Etat().passe, tri.Etat());
        if (!Regarder(p))
            return true;
        QElapsedTimer depuis;
        depuis.start();
        // Each pass shows its word, however short it is.
        const int passe = tri.Etat().passe;
        while (!tri.Etat().termine && tri.Etat().passe == passe && depuis.elapsed() < kRythmeMs)
            tri.Avancer(kPasParRegard);
    }
    if (tri.Etat().interrompu)
        return false;
    Montrer(classer, kNbPasses, tri.Etat());
    if (!Regarder(p))
        return true;
    const std::int64_t echanges = tri.Etat().echanges;
    Annoncer(p.ecran, echanges == 0 ? "Le cahier était déjà en ordre"
                                    : "Cahier classé en " + Compte(echanges, "échange"));
    return true;
}

void DireArrete(Plateau& p) {
    std::string message = "Un autre programme a modifié le cahier\u00A0: le classement est arrêté. "
                          "Vérifiez le cahier, puis classez-le de nouveau.";
    try {
        ExigerCahier(p.session.cahier);
    } catch (const CahierPerdu& perdu) { // no logbook is left to be sorted again
        message = std::string("Le classement est arrêté. ") + perdu.what();
    }
    p.systeme.Avertir(&p.fenetre, Q(message));
}

} // namespace

void Classer(Plateau& p) {
    Ecran& e = p.ecran;
    VerifierCahier(p.session.cahier);
    if (p.session.cahier.fichier.Support().EstProtege()) {
        p.systeme.Avertir(
            &p.fenetre,
            QStringLiteral("Ce cahier est protégé en écriture\u00a0: il ne peut pas être "
                           "classé."));
        return;
    }
    LacherFoyer(p);
    e.contacts.montree = false;
    AbandonnerModification(p);
    e.liste.active = false;
    e.activeRech = false;
    e.recherche.montre = false;
    e.jumelage.montre = false;
    e.classer = {};
    e.classer.montre = true;
    e.classer.nombre = std::to_string(p.session.cahier.nbFiches);
    bool entier = true;
    // Storage that cannot be mapped cannot be sorted; nothing else is the matter with it.
    static_cast<void>(Essayer(p, [&] { entier = Trier(p); }));
    if (e.arret)
        return;
    RelireCahier(p);
    e.classer.titre = " Terminé ";
    e.classer.montre = false;
    e.liste.active = true;
    // Kept on purpose, for the operators: the search panel and this button stay hidden after a
    // sort.
    e.activeRech = false;
    DonnerFoyer(p, {Cible::Liste});
    if (!entier)
        DireArrete(p);
}

} // namespace orvalis
