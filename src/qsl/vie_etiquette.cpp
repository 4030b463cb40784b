#include "qsl/vie_etiquette.h"

#include "core/erreurs.h"
#include "core/texte.h"
#include "qsl/contact_etiquette.h"

#include <algorithm>
#include <array>

namespace orvalis {
namespace {

constexpr std::string_view kDejaPlacee = " Etiquette déjà placée ! ";
constexpr std::string_view kSansIndicatif = " Indicatif manquant ! ";
constexpr std::string_view kConsultation = " Consultation seule ! ";
constexpr std::string_view kMessageConsultation =
    "Ce cahier est ouvert en consultation\u00A0: les étiquettes et les fiches restent inchangées.";
constexpr std::string_view kRienDeFait = " Rien n'a été écrit ni imprimé.";
constexpr std::string_view kRienDeMarque =
    " Aucune fiche n'a été marquée\u00A0: les étiquettes imprimées restent à contrôler.";

// During a review NrTag names the label that may be erased: the search waits for its end.
void ChercherPlace(FeuilleQSL& feuille) {
    if (feuille.vue.supprimer)
        return;
    Place place = kPremierePlace;
    ProchaineEtiquetteLibre(feuille, place);
}

void MontrerRevue(FeuilleQSL& feuille, bool revue) {
    feuille.vue.supprimer = revue;
    feuille.vue.laisser = revue;
    feuille.vue.quitter = !revue;
    feuille.vue.valider = false;
}

// An editor without a label: what is typed into it is fresh.
void CommencerEtiquette(FeuilleQSL& feuille) {
    MontrerRevue(feuille, false);
    ViderBoites(feuille);
    feuille.fraiche = true;
    feuille.etiquetteEnCours = kAucunePlace;
}

// The one gate to the places: whether the sheet still is what the screen says. If not, it is shown
// as it is now and the operator told; a label under review or print may then be another.
bool Accorder(FeuilleQSL& feuille, ReponseQSL& reponse) {
    try {
        reponse.message = SuivreFeuille(feuille);
    } catch (const Erreur& echec) {
        reponse.message = echec.what();
        return false;
    }
    if (reponse.message.empty())
        return true;
    feuille.vue.controle = false;
    if (feuille.vue.supprimer)
        CommencerEtiquette(feuille);
    ChercherPlace(feuille);
    ControlerImpression(feuille);
    return false;
}

// The same before a place is written, printed or freed, which is then left undone, as `rien` says.
bool PeutToucher(FeuilleQSL& feuille, ReponseQSL& reponse, std::string_view rien = kRienDeFait) {
    const bool accordee = Accorder(feuille, reponse);
    if (!accordee)
        reponse.message += rien;
    return accordee;
}

// Which label has no contact, and why.
std::string Rappel(Place place, const QslSlotRecord& etiquette, Correspondance pourquoi) {
    std::string quoi;
    for (const ChampEtiquette champ :
         {ChampEtiquette::Indicatif, ChampEtiquette::Date, ChampEtiquette::Heure})
        if (const std::string texte = TexteRogne(etiquette, champ); !texte.empty())
            quoi += (quoi.empty() ? "" : " ") + texte;
    const bool plusieurs =
        pourquoi == Correspondance::Plusieurs || pourquoi == Correspondance::PlusieursVierges;
    const std::string_view raison =
        pourquoi == Correspondance::DejaMarquee
            ? "la fiche qui lui correspond est déjà marquée, elle n'a pas été modifiée."
        : pourquoi == Correspondance::DUneAutre ? "sa fiche est déjà celle d'une autre étiquette."
        : plusieurs ? "plusieurs fiches du cahier lui correspondent, aucune n'a été modifiée."
                    : "aucune fiche du cahier ne lui correspond, aucune n'a été modifiée.";
    return LegendeEtiquette(place) + (quoi.empty() ? "" : " (" + quoi + ")") +
           "\u00A0: " + std::string{raison};
}

// Sets MQSL of the contact of the label at `place`, or tells why there is none.
void Marquer(Cahier& cahier, const ContactTrouve& trouve, std::string_view maQsl, Place place,
             const QslSlotRecord& etiquette, ReponseQSL& reponse) {
    if (trouve.correspondance == Correspondance::Unique && MarquerContact(cahier, trouve, maQsl)) {
        reponse.marque = true;
        return;
    }
    if (!reponse.message.empty())
        reponse.message += '\n';
    reponse.message += Rappel(place, etiquette, trouve.correspondance);
}

// Writes a place free from the boxes, of which the first `derniere` are emptied before.
void LibererPlace(FeuilleQSL& feuille, Place place, std::size_t derniere) {
    ViderBoites(feuille, derniere);
    feuille.boites[kBoiteIndicatif] = kMarqueLibre;
    EcrireEtiquette(feuille, place);
    feuille.etats[EtatFeuille::Rang(place)] = EtatEtiquette::Libre;
    feuille.indicatifs[EtatFeuille::Rang(place)].clear();
}

// Why the boxes may not become a label now; empty when they may.
std::string_view RefusDeValider(const Cahier& cahier, const EtatFeuille& feuille) {
    const std::string_view indicatif = Rogner(feuille.boites[kBoiteIndicatif]);
    if (!cahier.EstLeNotre())
        return kConsultation;
    if (indicatif.empty() || indicatif == kMarqueLibre)
        return kSansIndicatif;
    return feuille.fraiche ? std::string_view{} : kDejaPlacee;
}

void RemplirBoites(FeuilleQSL& feuille, NumeroFiche k, const QsoRecord& fiche) {
    struct Source {
        std::size_t boite;
        Champ champ;
    };
    constexpr std::array<Source, 8> kSources = {{
        {kBoiteIndicatif, Champ::CSGN},
        {kBoiteDate, Champ::DQSO},
        {kBoiteHeure, Champ::HDEB},
        {kBoiteFrequence, Champ::FREQ},
        {kBoiteMode, Champ::MODE},
        {kBoiteReport, Champ::SRST},
        {kBoiteLigne2, Champ::INFO},
        {kBoiteRappel, Champ::CSGN},
    }};
    for (const Source& source : kSources)
        feuille.boites[source.boite] = TexteRogne(fiche, source.champ);
    feuille.boites[kBoiteNumeroFiche] = std::to_string(k.Valeur());
    feuille.boites[kBoiteLigne1] = feuille.ligneMemorisee;
}

void OuvrirPanneau(FeuilleQSL& feuille) {
    CommencerEtiquette(feuille);
    feuille.vue.panneau = true;
    ChercherPlace(feuille);
    ControlerImpression(feuille);
}

} // namespace

ReponseQSL MontrerFeuille(FeuilleQSL& feuille) {
    ReponseQSL reponse;
    if (feuille.vue.controle)
        return reponse;
    static_cast<void>(Accorder(feuille, reponse));
    OuvrirPanneau(feuille);
    reponse.fait = true;
    return reponse;
}

ReponseClic PreparerEtiquette(Cahier& cahier, FeuilleQSL& feuille, NumeroFiche k) {
    if (!feuille.fichier.EstOuvert() || feuille.vue.controle || !cahier.EstLeNotre() ||
        !cahier.Contient(k))
        return {};
    const QsoRecord fiche = FicheDuCahier(cahier, k);
    if (!Rogner(OctetsChamp(fiche, Champ::MQSL)).empty())
        return {};
    ReponseClic clic{SuiteClic::Panneau, {}};
    clic.reponse.fait = true;
    static_cast<void>(Accorder(feuille, clic.reponse));
    if (EtiquetteSansMarque(cahier, feuille, k) != kAucunePlace) {
        clic.suite = SuiteClic::Retabli;
        clic.reponse.marque = MarquerContact(cahier, {k, Correspondance::Unique, fiche}, kEnCours);
        SynchroniserCahier(cahier);
        return clic;
    }
    OuvrirPanneau(feuille);
    RemplirBoites(feuille, k, fiche);
    return clic;
}

void CliquerChoix(FeuilleQSL& feuille, Place place) {
    if (feuille.vue.controle)
        return;
    EtatEtiquette& etat = feuille.etats[EtatFeuille::Rang(place)];
    switch (etat) {
    case EtatEtiquette::Preparee:
        MontrerRevue(feuille, true);
        LireEtiquette(feuille, place);
        feuille.etiquetteEnCours = place;
        return;
    case EtatEtiquette::Libre:
        etat = EtatEtiquette::Retiree;
        feuille.vue.restaurer = true;
        break;
    case EtatEtiquette::Retiree:
        etat = EtatEtiquette::Libre;
        break;
    }
    ChercherPlace(feuille);
}

void CliquerTag(FeuilleQSL& feuille, Place place) {
    if (feuille.vue.controle || feuille.Etat(place) == EtatEtiquette::Retiree)
        return;
    CommencerEtiquette(feuille);
    feuille.boites[kBoiteLigne1] = feuille.ligneMemorisee;
    ChercherPlace(feuille);
}

void SaisirBoiteEtiquette(FeuilleQSL& feuille, std::size_t boite, std::string_view texte) {
    feuille.boites[boite] = texte;
    if (boite == kBoiteManager && !texte.empty())
        feuille.voie = VoieQSL::Aucune;
}

void EntrerBoiteEtiquette(EtatFeuille& feuille) {
    if (!feuille.vue.controle && Rogner(feuille.boites[kBoiteIndicatif]) != kMarqueLibre)
        feuille.vue.valider = true;
}

void ChoisirVoie(EtatFeuille& feuille, VoieQSL voie) {
    if (feuille.vue.controle)
        return;
    feuille.voie = voie;
    feuille.boites[kBoiteManager].clear();
    feuille.vue.valider = true;
}

ProjetEtiquette ProjeterEtiquette(const Cahier& cahier, EtatFeuille& feuille) {
    if (const std::string_view refus = RefusDeValider(cahier, feuille); !refus.empty())
        return {kAucunePlace, refus};
    Place place = kPremierePlace;
    ProchaineEtiquetteLibre(feuille, place);
    if (feuille.Etat(place) != EtatEtiquette::Libre)
        return {kAucunePlace, kPlusDEtiquette};
    return {place, {}};
}

ReponseQSL ValiderEtiquette(Cahier& cahier, FeuilleQSL& feuille) {
    ReponseQSL reponse;
    if (feuille.vue.controle)
        return reponse;
    if (const std::string_view refus = RefusDeValider(cahier, feuille); !refus.empty()) {
        feuille.vue.nrTag = refus;
        return reponse;
    }
    if (!PeutToucher(feuille, reponse))
        return reponse;
    const auto [place, refus] = ProjeterEtiquette(cahier, feuille);
    if (place == kAucunePlace) {
        feuille.vue.nrTag = refus;
        return reponse;
    }
    // Before the sheet is written for one of its contacts.
    const bool telQueCompte = EstTelQueCompte(cahier);
    VerifierCahier(cahier);
    if (feuille.voie != VoieQSL::Aucune)
        feuille.boites[kBoiteManager] = feuille.voie == VoieQSL::Direct ? kVoieDirect : kVoieBureau;
    feuille.etiquetteEnCours = place;
    feuille.ligneMemorisee = Rogner(feuille.boites[kBoiteLigne1]);
    EcrireEtiquette(feuille, place);
    feuille.fichier.Synchroniser();
    LireEtiquette(feuille, place);
    feuille.etats[EtatFeuille::Rang(place)] = EtatEtiquette::Preparee;
    feuille.indicatifs[EtatFeuille::Rang(place)] = feuille.boites[kBoiteIndicatif];
    Marquer(cahier, ContactDeLaNouvelle(cahier, feuille, place, telQueCompte), kEnCours, place,
            feuille.tampon, reponse);
    SynchroniserCahier(cahier);
    ControlerImpression(feuille);
    QuitterFeuille(feuille);
    reponse.fait = true;
    return reponse;
}

ReponseQSL SupprimerEtiquette(Cahier& cahier, FeuilleQSL& feuille) {
    ReponseQSL reponse;
    const Place place = feuille.etiquetteEnCours;
    if (feuille.vue.controle || !feuille.vue.supprimer)
        return reponse;
    if (!cahier.EstLeNotre()) {
        reponse.message = kMessageConsultation;
        return reponse;
    }
    if (!PeutToucher(feuille, reponse))
        return reponse;
    VerifierCahier(cahier);
    LireEtiquette(feuille, place);
    const ContactTrouve trouve = ContactDeLaPlace(cahier, feuille, place);
    if (trouve.correspondance != Correspondance::PlusieursVierges) // all blank already
        Marquer(cahier, trouve, "", place, feuille.tampon, reponse);
    SynchroniserCahier(cahier);
    // Kept on purpose, for the sheet files: box 11 is not emptied, so that the free place keeps the
    // contact's number.
    LibererPlace(feuille, place, kBoiteRappel);
    feuille.fichier.Synchroniser();
    MontrerRevue(feuille, false);
    ChercherPlace(feuille);
    ControlerImpression(feuille);
    reponse.fait = true;
    return reponse;
}

void LaisserEtiquette(FeuilleQSL& feuille) {
    if (feuille.vue.controle)
        return;
    CommencerEtiquette(feuille);
    ChercherPlace(feuille);
}

void QuitterFeuille(FeuilleQSL& feuille) {
    if (!feuille.vue.controle)
        feuille.vue.panneau = false;
}

void RestaurerFeuille(FeuilleQSL& feuille) {
    if (feuille.vue.controle)
        return;
    std::replace(feuille.etats.begin(), feuille.etats.end(), EtatEtiquette::Retiree,
                 EtatEtiquette::Libre);
    feuille.vue.restaurer = false;
    ChercherPlace(feuille);
}

void ControlerImpression(FeuilleQSL& feuille, Place depuis) {
    const auto debut = feuille.etats.begin() + (depuis - kPremierePlace);
    feuille.vue.imprimer =
        std::find(debut, feuille.etats.end(), EtatEtiquette::Preparee) != feuille.etats.end();
}

std::vector<Place> EtiquettesAImprimer(const EtatFeuille& feuille) {
    std::vector<Place> places;
    for (Place place = kPremierePlace; place <= kDernierePlace; ++place)
        if (feuille.Etat(place) == EtatEtiquette::Preparee)
            places.push_back(place);
    return places;
}

ReponseQSL AutoriserImpression(const Cahier& cahier, FeuilleQSL& feuille,
                               std::string_view station) {
    ReponseQSL reponse;
    if (feuille.vue.controle)
        return reponse;
    if (cahier.EstLeNotre())
        reponse.fait = PeutToucher(feuille, reponse);
    else
        reponse.message = "Un autre cahier est ouvert\u00A0: avant d'imprimer les étiquettes, "
                          "rouvrez celui de " +
                          std::string{station} +
                          " («\u00A0Fichier\u00A0», «\u00A0Ouvrir Fichier courant\u00A0»).";
    return reponse;
}

void DemanderControle(FeuilleQSL& feuille) {
    feuille.vue.controle = true;
}

ReponseQSL ToutEstParfait(Cahier& cahier, FeuilleQSL& feuille, std::string_view aujourdhui) {
    ReponseQSL reponse;
    if (!feuille.vue.controle)
        return reponse;
    if (!cahier.EstLeNotre()) {
        RevoirEtiquettes(feuille);
        reponse.message = kMessageConsultation;
        return reponse;
    }
    if (!PeutToucher(feuille, reponse, kRienDeMarque))
        return reponse;
    VerifierCahier(cahier);
    const std::vector<Place> places = EtiquettesAImprimer(feuille);
    std::vector<QslSlotRecord> etiquettes;
    etiquettes.reserve(places.size());
    for (const Place place : places)
        etiquettes.push_back(LireEnregistrement(feuille, place));
    const std::vector<ContactTrouve> trouves = TrouverContacts(cahier, etiquettes);
    for (std::size_t i = 0; i < places.size(); ++i)
        Marquer(cahier, trouves[i], aujourdhui, places[i], etiquettes[i], reponse);
    SynchroniserCahier(cahier);
    for (const Place place : places)
        LibererPlace(feuille, place, kNbBoitesEtiquette);
    feuille.fichier.Synchroniser();
    feuille.vue.controle = false;
    MontrerRevue(feuille, false);
    ControlerImpression(feuille);
    // Kept on purpose, for the operators: withdrawn places stay withdrawn although the button that
    // restores them goes.
    feuille.vue.restaurer = false;
    feuille.vue.panneau = false;
    feuille.fraiche = false;
    reponse.fait = true;
    return reponse;
}

void RevoirEtiquettes(FeuilleQSL& feuille) {
    ControlerImpression(feuille);
    feuille.vue.controle = false;
}

} // namespace orvalis
