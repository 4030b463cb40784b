#include "qsl/feuille_qsl.h"

#include "core/dossier.h"
#include "core/projection.h"
#include "core/texte.h"

#include <algorithm>
#include <system_error>

namespace orvalis {
namespace {

struct LienBoite {
    ChampEtiquette champ;
    std::size_t ecrite; // box that the field is written from
    std::size_t lue;    // box that the field is read into
};

// Kept on purpose, for the sheet files: report and mode are written from their own boxes but read
// into each other's, so that a label read and written again has the two exchanged. The route is
// apart.
constexpr std::array<LienBoite, kNbChampsEtiquette - 1> kLiens = {{
    {ChampEtiquette::Indicatif, kBoiteIndicatif, kBoiteIndicatif},
    {ChampEtiquette::Ligne1, kBoiteLigne1, kBoiteLigne1},
    {ChampEtiquette::Ligne2, kBoiteLigne2, kBoiteLigne2},
    {ChampEtiquette::Date, kBoiteDate, kBoiteDate},
    {ChampEtiquette::Heure, kBoiteHeure, kBoiteHeure},
    {ChampEtiquette::Frequence, kBoiteFrequence, kBoiteFrequence},
    {ChampEtiquette::Report, kBoiteReport, kBoiteMode},
    {ChampEtiquette::Mode, kBoiteMode, kBoiteReport},
    {ChampEtiquette::NumeroFiche, kBoiteNumeroFiche, kBoiteNumeroFiche},
}};

std::int64_t Position(int k) {
    return (static_cast<std::int64_t>(k) - 1) * static_cast<std::int64_t>(kTailleEtiquette);
}

std::string_view TexteVoie(const EtatFeuille& feuille) {
    switch (feuille.voie) {
    case VoieQSL::Bureau:
        return kVoieBureau;
    case VoieQSL::Direct:
        return kVoieDirect;
    case VoieQSL::Aucune:
        break;
    }
    return feuille.boites[kBoiteManager];
}

void CreerFeuille(FeuilleQSL& feuille) {
    std::array<QslSlotRecord, kNbEtiquettes> etiquettes;
    for (QslSlotRecord& etiquette : etiquettes)
        MettreChamp(etiquette, ChampEtiquette::Indicatif, kMarqueLibre);
    // One write for all, or no sheet: one cut short would show its missing places as blank labels.
    try {
        feuille.fichier.Ecrire(0, {etiquettes.front().octets.data(), sizeof etiquettes});
        feuille.fichier.Synchroniser();
    } catch (const Erreur&) {
        std::error_code erreur;
        std::filesystem::remove(feuille.chemin, erreur);
        throw;
    }
    feuille.boites[kBoiteIndicatif] = kMarqueLibre;
}

} // namespace

std::string LegendeEtiquette(int k) {
    return "Etiquette N° " + std::to_string(k);
}

VuePlace VoirPlace(const EtatFeuille& feuille, int k) {
    const std::string numero = " [" + std::to_string(k) + "]";
    // The two blanks before the bracket are kept on purpose, for the operators.
    const std::string libre = "Etiquette " + numero + " libre";
    switch (feuille.Etat(k)) {
    case EtatEtiquette::Preparee:
        return {"Effacer", feuille.indicatifs[EtatFeuille::Rang(k)] + numero, true, true};
    case EtatEtiquette::Retiree:
        return {"Libérer", libre, false, false};
    case EtatEtiquette::Libre:
        break;
    }
    return {"Retirer", libre, false, true};
}

void OuvrirFeuilleQSL(FeuilleQSL& feuille) {
    feuille.fichier.Fermer();
    feuille.fichier = Fichier(feuille.chemin, ModeFichier::Creation);
}

void ChargerFeuilleQSL(FeuilleQSL& feuille, const std::filesystem::path& dossier) {
    feuille.chemin = TrouverFichier(dossier, kNomFeuilleQSL);
    const bool presente = Present(feuille.chemin);
    ViderBoites(feuille);
    feuille.vue = {};
    feuille.fraiche = false;
    feuille.etiquetteEnCours = 0;
    OuvrirFeuilleQSL(feuille);
    if (!presente)
        CreerFeuille(feuille);
    for (int k = 1; k <= kNbEtiquettes; ++k) {
        const QslSlotRecord etiquette = LireEnregistrement(feuille, k);
        const bool libre = EstLibre(etiquette);
        feuille.etats[EtatFeuille::Rang(k)] =
            libre ? EtatEtiquette::Libre : EtatEtiquette::Preparee;
        feuille.indicatifs[EtatFeuille::Rang(k)] =
            libre ? std::string{} : TexteRogne(etiquette, ChampEtiquette::Indicatif);
    }
}

QslSlotRecord LireEnregistrement(const FeuilleQSL& feuille, int k) {
    QslSlotRecord etiquette;
    static_cast<void>(feuille.fichier.Lire(Position(k), etiquette.octets)); // short: stays blank
    return etiquette;
}

void LireEtiquette(FeuilleQSL& feuille, int k) {
    feuille.tampon = LireEnregistrement(feuille, k);
    for (const LienBoite& lien : kLiens)
        feuille.boites[lien.lue] = TexteRogne(feuille.tampon, lien.champ);
    feuille.boites[kBoiteRappel] = feuille.boites[kBoiteIndicatif];
    const std::string voie = TexteRogne(feuille.tampon, ChampEtiquette::Voie);
    feuille.voie = voie == kVoieBureau   ? VoieQSL::Bureau
                   : voie == kVoieDirect ? VoieQSL::Direct
                                         : VoieQSL::Aucune;
    feuille.boites[kBoiteManager] = feuille.voie == VoieQSL::Aucune ? voie : std::string{};
    feuille.fraiche = false;
    feuille.vue.nrTag = LegendeEtiquette(k);
}

void EcrireEtiquette(FeuilleQSL& feuille, int k) {
    OuvrirFeuilleQSL(feuille);
    for (const LienBoite& lien : kLiens)
        MettreChamp(feuille.tampon, lien.champ, feuille.boites[lien.ecrite]);
    MettreChamp(feuille.tampon, ChampEtiquette::Voie, TexteVoie(feuille));
    EcrireEntier(feuille.fichier, Position(k), feuille.tampon.octets);
}

void ProchaineEtiquetteLibre(FeuilleQSL& feuille, int& k) {
    while (k < kNbEtiquettes && feuille.Etat(k) != EtatEtiquette::Libre)
        ++k;
    feuille.vue.nrTag = LegendeEtiquette(k);
    // Kept on purpose, for the operators: when a prepared label takes the last place, NrTag still
    // names it.
    if (k == kNbEtiquettes && feuille.Etat(k) == EtatEtiquette::Retiree) {
        feuille.vue.nrTag = kPlusDEtiquette;
        feuille.vue.valider = false;
    }
}

void ViderBoites(FeuilleQSL& feuille, std::size_t derniere) {
    for (std::size_t i = 1; i <= derniere; ++i)
        feuille.boites[i].clear();
    feuille.voie = VoieQSL::Aucune;
}

} // namespace orvalis
