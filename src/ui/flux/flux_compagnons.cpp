#include "ui/flux/flux_compagnons.h"

#include "core/chemins.h"
#include "core/creation.h"
#include "core/dossier.h"
#include "core/erreurs.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/chapitre.h"
#include "ui/dialogues/a_propos.h"
#include "ui/dialogues/dlg2.h"
#include "ui/dialogues/guide.h"

#include <filesystem>
#include <optional>
#include <string_view>
#include <utility>

namespace orvalis {
namespace {

// The start of one program, tried.
struct Essai {
    std::filesystem::path chemin;
    bool present = true;
    std::optional<QString> raison; // why it did not start
};

Essai Essayer(Systeme& systeme, const std::filesystem::path& dossier, std::string_view nom) {
    Essai essai{dossier / CheminTexte(nom), true, {}};
    try {
        essai.chemin = TrouverFichier(dossier, nom);
        essai.present = Present(essai.chemin);
        essai.raison = systeme.Lancer(Q(TexteChemin(essai.chemin)));
    } catch (const Erreur& echec) { // the folder cannot be listed
        essai.raison = Q(RaisonFrancaise(echec.code()));
    }
    return essai;
}

// The program folder comes first, for the operators who keep a tool of their own there; the one
// that was installed with this program stands in for it.
void LancerCompagnon(Plateau& p, std::string_view nom) {
    const std::filesystem::path dossier = DossierProgramme(p.session.station.lecteur);
    const std::filesystem::path installe = p.systeme.DossierInstalle();
#ifdef Q_OS_WIN
    const std::pair<std::filesystem::path, std::string_view> lieux[] = {{dossier, nom},
                                                                        {installe, nom}};
#else
    const std::string_view sansFin = nom.substr(0, nom.rfind('.'));
    const std::pair<std::filesystem::path, std::string_view> lieux[] = {
        {dossier, nom}, {dossier, sansFin}, {installe, sansFin}};
#endif
    // Told is what is wrong with the first that is there; where there is none, the first name.
    std::optional<Essai> echec;
    for (const auto& [lieu, programme] : lieux) {
        Essai essai = Essayer(p.systeme, lieu, programme);
        if (!essai.raison)
            return;
        if (!echec || (!echec->present && essai.present))
            echec = std::move(essai);
    }
    const std::string chemin = echec->present
                                   ? TexteChemin(echec->chemin)
                                   : CheminProgrammeTexte(p.session.station.lecteur, nom);
    p.systeme.Avertir(&p.fenetre,
                      QStringLiteral("Impossible de démarrer «\u00a0%1\u00a0»\u00a0: %2.")
                          .arg(Q(chemin), *echec->raison));
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
