#include "ui/flux/flux_compagnons.h"

#include "core/creation.h"
#include "core/dossier.h"
#include "core/erreurs.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/chapitre.h"
#include "ui/dialogues/a_propos.h"
#include "ui/dialogues/dlg2.h"
#include "ui/dialogues/guide.h"

#include <optional>
#include <string_view>

namespace orvalis {
namespace {

void LancerCompagnon(Plateau& p, std::string_view nom) {
    const std::filesystem::path dossier = DossierProgramme(p.session.station.lecteur);
    const auto lancer = [&](std::string_view programme) -> std::optional<QString> {
        try {
            return p.systeme.Lancer(Q(TrouverFichier(dossier, programme).string()));
        } catch (const Erreur& echec) { // the folder cannot be listed
            return Q(RaisonFrancaise(echec.code()));
        }
    };
    std::optional<QString> raison = lancer(nom);
#ifndef Q_OS_WIN
    // The name without its ending is tried beside: what is wrong with the first stays the reason.
    if (raison && !lancer(nom.substr(0, nom.rfind('.'))))
        raison.reset();
#endif
    const std::string chemin = CheminProgrammeTexte(p.session.station.lecteur, nom);
    if (raison)
        p.systeme.Avertir(&p.fenetre,
                          QStringLiteral("Impossible de démarrer «\u00a0%1\u00a0»\u00a0: %2.")
                              .arg(Q(chemin), *raison));
}

} // namespace

void ReglerHorloge(Plateau& p) {
    LancerCompagnon(p, "Chronel.exe");
}

void CreerBaseDeDonnees(Plateau& p) {
    LancerCompagnon(p, "dbOrvalis.exe");
}

void EditerLocator(Plateau& p) {
    Dlg2 coordonnees(&p.fenetre);
    p.dehors([&] { coordonnees.exec(); });
}

void VoirInfos(Plateau& p) {
    APropos infos(p.systeme, &p.fenetre);
    p.dehors([&] { infos.exec(); });
    if (infos.GuideVoulu())
        VoirGuide(p);
}

void VoirGuide(Plateau& p) {
    Guide::Ouvrir(p.fenetre, ChapitreDuGuide(p.session, p.ecran, p.feuille.vue));
}

} // namespace orvalis
