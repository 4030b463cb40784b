#include "qsl/feuille_qsl.h"

#include "core/chemins.h"
#include "core/dossier.h"
#include "core/projection.h"
#include "core/remplacement.h"
#include "core/texte.h"

#include <algorithm>
#include <span>
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

std::span<char> Octets(EtiquettesDeFeuille& etiquettes) {
    return {etiquettes.front().octets.data(), sizeof etiquettes};
}

// An empty file is what a creation that was cut has left.
bool Manque(const std::filesystem::path& chemin) {
    std::error_code erreur;
    return !Present(chemin) || (std::filesystem::file_size(chemin, erreur) == 0 && !erreur);
}

void CreerFeuille(const std::filesystem::path& chemin) {
    EtiquettesDeFeuille etiquettes;
    for (QslSlotRecord& etiquette : etiquettes)
        MettreChamp(etiquette, ChampEtiquette::Indicatif, kMarqueLibre);
    const std::span<const char> octets = Octets(etiquettes);
    RemplacerFichier(chemin, {octets.data(), octets.size()});
}

EtiquettesDeFeuille LireEtiquettes(const Fichier& fichier) {
    EtiquettesDeFeuille etiquettes;
    static_cast<void>(fichier.Lire(0, Octets(etiquettes))); // short: the rest stays blank
    return etiquettes;
}

void MontrerEtiquettes(FeuilleQSL& feuille, const EtiquettesDeFeuille& etiquettes) {
    feuille.connue = etiquettes;
    for (std::size_t i = 0; i < etiquettes.size(); ++i) {
        const bool libre = EstLibre(etiquettes[i]);
        feuille.etats[i] = libre ? EtatEtiquette::Libre : EtatEtiquette::Preparee;
        feuille.indicatifs[i] =
            libre ? std::string{} : TexteRogne(etiquettes[i], ChampEtiquette::Indicatif);
    }
}

// The callsigns of the labels of `avant` that are on no place of `apres`: " N'y sont plus..."
std::string Disparues(const EtiquettesDeFeuille& avant, const EtiquettesDeFeuille& apres) {
    std::string liste;
    for (const QslSlotRecord& etiquette : avant) {
        const std::string indicatif = TexteRogne(etiquette, ChampEtiquette::Indicatif);
        if (!EstLibre(etiquette) && !indicatif.empty() &&
            std::find(apres.begin(), apres.end(), etiquette) == apres.end())
            liste += (liste.empty() ? "" : ", ") + indicatif;
    }
    return liste.empty() ? "" : " N'y sont plus\u00A0: " + liste + ".";
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

Place PlaceALEtude(const EtatFeuille& feuille) {
    if (feuille.vue.supprimer)
        return feuille.etiquetteEnCours;
    for (Place place = kPremierePlace; place <= kDernierePlace; ++place)
        if (feuille.Etat(place) == EtatEtiquette::Libre)
            return place;
    return kAucunePlace;
}

bool OuvrirFeuilleQSL(FeuilleQSL& feuille) {
    const bool manque = Manque(feuille.chemin);
    if (manque)
        CreerFeuille(feuille.chemin);
    feuille.fichier = Fichier(feuille.chemin, ModeFichier::Partage);
    return manque;
}

void ChargerFeuilleQSL(FeuilleQSL& feuille, const std::filesystem::path& dossier) {
    feuille.chemin = TrouverFichier(dossier, kNomFeuilleQSL);
    ViderBoites(feuille);
    feuille.vue = {};
    feuille.fraiche = false;
    feuille.etiquetteEnCours = kAucunePlace;
    if (OuvrirFeuilleQSL(feuille))
        feuille.boites[kBoiteIndicatif] = kMarqueLibre;
    MontrerEtiquettes(feuille, LireEtiquettes(feuille.fichier));
}

std::string SuivreFeuille(FeuilleQSL& feuille) {
    feuille.chemin = TrouverFichier(feuille.chemin.parent_path(), kNomFeuilleQSL);
    const bool neuve = OuvrirFeuilleQSL(feuille);
    const EtiquettesDeFeuille etiquettes = LireEtiquettes(feuille.fichier);
    if (etiquettes == feuille.connue && !neuve)
        return {};
    const std::string disparues = Disparues(feuille.connue, etiquettes);
    MontrerEtiquettes(feuille, etiquettes);
    feuille.vue.restaurer = false;
    return "La feuille d'étiquettes «\u00A0" + TexteChemin(feuille.chemin) +
           (neuve ? "\u00A0» avait disparu\u00A0: en voici une neuve."
                  : "\u00A0» a été changée par un autre programme\u00A0: la voici telle qu'elle "
                    "est.") +
           disparues;
}

QslSlotRecord LireEnregistrement(const FeuilleQSL& feuille, Place place) {
    QslSlotRecord etiquette;
    static_cast<void>(
        feuille.fichier.Lire(Position(place), etiquette.octets)); // short: stays blank
    return etiquette;
}

QslSlotRecord EtiquetteDesBoites(const EtatFeuille& feuille) {
    QslSlotRecord etiquette;
    for (const LienBoite& lien : kLiens)
        MettreChamp(etiquette, lien.champ, feuille.boites[lien.ecrite]);
    MettreChamp(etiquette, ChampEtiquette::Voie, TexteVoie(feuille));
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
    feuille.tampon = EtiquetteDesBoites(feuille);
    EcrireEntier(feuille.fichier, Position(place), feuille.tampon.octets);
    feuille.connue[EtatFeuille::Rang(place)] = feuille.tampon;
}

void ProchaineEtiquetteLibre(EtatFeuille& feuille, Place& place) {
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
