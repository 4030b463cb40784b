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
    {ChampEtiquette::Fiche, kBoiteNumeroFiche, kBoiteNumeroFiche},
}};

std::int64_t Position(Place place) {
    return (static_cast<std::int64_t>(place.Valeur()) - 1) *
           static_cast<std::int64_t>(kTailleEtiquette);
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

std::string LegendeEtiquette(Place place) {
    return "Etiquette N° " + std::to_string(place.Valeur());
}

VuePlace VoirPlace(const EtatFeuille& feuille, Place place) {
    const std::string numero = " [" + std::to_string(place.Valeur()) + "]";
    // The two blanks before the bracket are kept on purpose, for the operators.
    const std::string libre = "Etiquette " + numero + " libre";
    switch (feuille.Etat(place)) {
    case EtatEtiquette::Preparee:
        return {"Effacer", feuille.indicatifs[EtatFeuille::Rang(place)] + numero, true, true};
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
    feuille.etiquetteEnCours = kAucunePlace;
    OuvrirFeuilleQSL(feuille);
    if (!presente)
        CreerFeuille(feuille);
    for (Place place = kPremierePlace; place <= kDernierePlace; ++place) {
        const QslSlotRecord etiquette = LireEnregistrement(feuille, place);
        const bool libre = EstLibre(etiquette);
        feuille.etats[EtatFeuille::Rang(place)] =
            libre ? EtatEtiquette::Libre : EtatEtiquette::Preparee;
        feuille.indicatifs[EtatFeuille::Rang(place)] =
            libre ? std::string{} : TexteRogne(etiquette, ChampEtiquette::Indicatif);
    }
}

QslSlotRecord LireEnregistrement(const FeuilleQSL& feuille, Place place) {
    QslSlotRecord etiquette;
    static_cast<void>(
        feuille.fichier.Lire(Position(place), etiquette.octets)); // short: stays blank
    return etiquette;
}

void LireEtiquette(FeuilleQSL& feuille, Place place) {
    feuille.tampon = LireEnregistrement(feuille, place);
    for (const LienBoite& lien : kLiens)
        feuille.boites[lien.lue] = TexteRogne(feuille.tampon, lien.champ);
    feuille.boites[kBoiteRappel] = feuille.boites[kBoiteIndicatif];
    const std::string voie = TexteRogne(feuille.tampon, ChampEtiquette::Voie);
    feuille.voie = voie == kVoieBureau   ? VoieQSL::Bureau
                   : voie == kVoieDirect ? VoieQSL::Direct
                                         : VoieQSL::Aucune;
    feuille.boites[kBoiteManager] = feuille.voie == VoieQSL::Aucune ? voie : std::string{};
    feuille.fraiche = false;
    feuille.vue.nrTag = LegendeEtiquette(place);
}

void EcrireEtiquette(FeuilleQSL& feuille, Place place) {
    OuvrirFeuilleQSL(feuille);
    for (const LienBoite& lien : kLiens)
        MettreChamp(feuille.tampon, lien.champ, feuille.boites[lien.ecrite]);
    MettreChamp(feuille.tampon, ChampEtiquette::Voie, TexteVoie(feuille));
    EcrireEntier(feuille.fichier, Position(place), feuille.tampon.octets);
}

void ProchaineEtiquetteLibre(FeuilleQSL& feuille, Place& place) {
    while (place < kDernierePlace && feuille.Etat(place) != EtatEtiquette::Libre)
        ++place;
    feuille.vue.nrTag = LegendeEtiquette(place);
    // Kept on purpose, for the operators: when a prepared label takes the last place, NrTag still
    // names it.
    if (place == kDernierePlace && feuille.Etat(place) == EtatEtiquette::Retiree) {
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
