#include "ui/flux/flux_jumelage.h"

#include "core/chemins.h"
#include "core/dossier.h"
#include "core/recherche.h"
#include "core/texte.h"
#include "maint/jumelage.h"
#include "ui/bureau/sablier.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/conseil.h"
#include "ui/flux/conduite.h"
#include "ui/flux/flux_fichiers.h"
#include "ui/flux/flux_modification.h"
#include "ui/flux/flux_navigation.h"

#include <exception>
#include <string>

namespace orvalis {
namespace {

// How many of the contacts from `premiere` on were there before. Nothing where they cannot be
// read: the pairing has succeeded all the same.
std::string DireDejaLa(const Cahier& cahier, NumeroFiche premiere) {
    try {
        const std::int32_t deja = CompterDejaLa(cahier, premiere);
        if (deja == 0)
            return ", aucun n'y était déjà";
        return ", dont " + EcrireNombre(deja) + " y étai" + (deja < 2 ? "t" : "ent") + " déjà";
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace

void OuvrirJumelage(Plateau& p) {
    LacherFoyer(p);
    AbandonnerModification(p);
    RelireCahier(p);
    p.ecran.liste.active = false;
    p.ecran.jumelage = {true, TexteChemin(p.session.cahier.chemin.filename()), false};
    DonnerFoyer(p, {Cible::Sauvegarder});
}

void Jumeler(Plateau& p) {
    Session& s = p.session;
    const QString source = p.systeme.ChoisirFichier(
        &p.fenetre,
        {false, Q(TexteLecteur(s.station.lecteur)), {}, QStringLiteral("Cahier à ajouter")});
    if (p.ecran.arret || source.isEmpty())
        return;
    static_cast<void>(Essayer(p, [&] {
        const Sablier sablier;
        const std::filesystem::path chemin = CheminTexte(S(source));
        const std::int32_t nombre = JumelerCahier(s.cahier, s.station, chemin);
        Annoncer(p.ecran, Compte(nombre, "contact") + " de " + TexteChemin(chemin.filename()) +
                              (nombre < 2 ? " ajouté" : " ajoutés") +
                              DireDejaLa(s.cahier, s.cahier.Prochaine() - nombre));
    }));
    if (!p.ecran.arret)
        RelireCahier(p);
}

void SauvegarderAvantJumelage(Plateau& p) {
    if (!FaireSauvegarde(p))
        return;
    p.ecran.jumelage.sauvegardeFaite = true;
    if (p.ecran.foyer.ici.cible == Cible::Sauvegarder)
        DonnerFoyer(p, {Cible::Jumeler}); // what comes next
}

void FermerJumelage(Plateau& p) {
    LacherFoyer(p);
    p.ecran.jumelage.montre = false;
    p.ecran.liste.active = true;
    DonnerFoyer(p, {Cible::Liste});
}

} // namespace orvalis
