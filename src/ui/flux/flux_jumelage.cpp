#include "ui/flux/flux_jumelage.h"

#include "core/dossier.h"
#include "maint/jumelage.h"
#include "ui/bureau/sablier.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/flux/conduite.h"
#include "ui/flux/flux_fichiers.h"
#include "ui/flux/flux_modification.h"
#include "ui/flux/flux_navigation.h"

namespace orvalis {

void OuvrirJumelage(Plateau& p) {
    LacherFoyer(p);
    AbandonnerModification(p);
    RelireCahier(p);
    p.ecran.liste.active = false;
    p.ecran.jumelage = {true, p.session.cahier.chemin.filename().string(), false};
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
        JumelerCahier(s.cahier, s.station, std::filesystem::path(S(source)));
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
