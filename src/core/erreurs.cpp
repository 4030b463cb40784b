#include "core/erreurs.h"

#include "core/chemins.h"
#include "core/noyau.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <new>
#include <utility>

namespace orvalis {
namespace {

// A line of a message breaks before no mark of punctuation and inside no quotes.
constexpr std::string_view kDeuxPoints = "\u00a0: ";

constexpr std::string_view kFaireDeLaPlace = "Libérez de la place ou choisissez un autre disque.";
constexpr std::string_view kVoirLesDroits =
    "Vérifiez vos droits sur ce fichier et sur son dossier.";

constexpr std::array kRaisons = std::to_array<noyau::RaisonMotivee>({
    {ENOENT, "le fichier n'existe pas"},
    {EACCES, "l'accès est refusé", kVoirLesDroits},
    {EPERM, "l'opération n'est pas permise", kVoirLesDroits},
    {ENOSPC, "le disque est plein", kFaireDeLaPlace},
    {EIO, "erreur de lecture ou d'écriture du support",
     "Mettez vos fichiers à l'abri sur un autre support."},
    {EROFS, "le support est protégé en écriture",
     "Déverrouillez-le ou choisissez un autre support."},
    {EISDIR, "c'est un dossier, pas un fichier"},
    {ESPIPE, "c'est un périphérique ou un tube, pas un fichier"},
    {ENOTDIR, "le chemin passe par un fichier qui n'est pas un dossier"},
    {ELOOP, "c'est un lien qui ne mène nulle part"},
    {EFBIG, "le fichier deviendrait trop grand"},
    {ENAMETOOLONG, "le nom est trop long"},
    {EEXIST, "un fichier de ce nom existe déjà"},
    {EMFILE, "trop de fichiers sont ouverts"},
    {ENOMEM, "la mémoire est épuisée"},
    {ENODEV, "le support ne permet pas cette opération"},
    {EBUSY, "le fichier est utilisé par un autre programme", "Fermez-le, puis recommencez."},
#ifdef EDQUOT
    {EDQUOT, "l'espace disque accordé est épuisé", kFaireDeLaPlace},
#endif
});

const noyau::RaisonMotivee* TrouverRaison(const std::error_code& raison) {
    const std::error_code commune = noyau::Commune(raison);
    // What all systems know has one number everywhere; the others are numbers of this one.
    const std::span<const noyau::RaisonMotivee> raisons =
        commune.category() == std::generic_category() ? kRaisons : noyau::RaisonsPropres();
    const auto ici = std::find_if(raisons.begin(), raisons.end(),
                                  [&](const auto& r) { return r.code == commune.value(); });
    return ici == raisons.end() ? nullptr : &*ici;
}

// `objet` is the file, or the printer's name.
std::string Phrase(NatureErreur nature, const std::string& objet, const std::error_code& raison) {
    const std::string cite = " «\u00a0" + objet + "\u00a0»";
    const auto refus = [&cite](std::string_view action, std::string_view pourquoi) {
        return "Impossible " + std::string{action} + cite + std::string{kDeuxPoints} +
               std::string{pourquoi} + ".";
    };
    // What is to be made does not exist yet: the folder that holds it is what is missing.
    const std::string creation =
        raison.value() == ENOENT ? "le dossier n'existe pas" : RaisonFrancaise(raison);
    switch (nature) {
    case NatureErreur::Ouvrir:
        return refus("d'ouvrir le fichier", RaisonFrancaise(raison));
    case NatureErreur::Creer:
        return refus("de créer le fichier", creation);
    case NatureErreur::CreerDossier:
        return refus("de créer le dossier", creation);
    case NatureErreur::LireDossier:
        return refus("de lire le dossier", RaisonFrancaise(raison));
    case NatureErreur::Lire:
        return refus("de lire le fichier", RaisonFrancaise(raison));
    case NatureErreur::Ecrire:
    case NatureErreur::Synchroniser:
        return refus("d'écrire dans le fichier", RaisonFrancaise(raison));
    case NatureErreur::Verrouiller:
        return refus("de réserver le fichier", RaisonFrancaise(raison));
    case NatureErreur::Remplacer:
        return refus("de remplacer le fichier", RaisonFrancaise(raison));
    case NatureErreur::Projeter:
        return refus("de classer le fichier", RaisonFrancaise(raison));
    case NatureErreur::Perdu:
        return "Un autre programme a remplacé ou supprimé le cahier" + cite + ", qui ne peut pas " +
               "être rouvert\u00A0: " + RaisonFrancaise(raison) +
               ".\n\nPlus rien n'y sera enregistré\u00A0; un contact en cours de saisie reste sur "
               "la carte. Les contacts déjà enregistrés sont tous dans le fichier encore "
               "ouvert\u00A0: «\u00A0Sauvegarder\u00A0» et «\u00A0Copier sur CD ou "
               "disquette\u00A0» le copient en entier. Ne quittez pas Orvalis avant.\n\nPendant "
               "une saisie, notez d'abord le contact en cours, puis quittez-la par "
               "«\u00A0Annuler\u00A0» et «\u00A0Terminer\u00A0».";
    case NatureErreur::DejaOuvert:
        return "Le cahier" + cite + " est déjà ouvert par un autre programme Orvalis.";
    case NatureErreur::CahierLuiMeme:
        return "Le fichier" + cite + " est le cahier ouvert lui-même" + std::string{kDeuxPoints} +
               "rien n'a été copié.";
    case NatureErreur::ParametresIncomplets:
        return "Le fichier de paramètres" + cite + " est incomplet" + std::string{kDeuxPoints} +
               "il doit contenir l'indicatif, le nom du cahier et le locator de la station.";
    case NatureErreur::EcrirePdf:
        return "Impossible d'écrire le fichier PDF" + cite + ".";
    case NatureErreur::Imprimer:
        break;
    }
    return objet.empty() ? "Aucune imprimante n'est choisie."
                         : "L'imprimante" + cite + " ne répond pas" + std::string{kDeuxPoints} +
                               "rien n'a été imprimé.";
}

std::string_view Remede(NatureErreur nature, bool nomme, const std::error_code& raison) {
    switch (nature) {
    case NatureErreur::Perdu: // says itself what remains to be done
        return {};
    case NatureErreur::DejaOuvert:
        return "Fermez-le d'abord dans l'autre programme.";
    case NatureErreur::CahierLuiMeme:
        return "Choisissez un autre nom ou un autre dossier.";
    case NatureErreur::ParametresIncomplets:
        return "Corrigez sa ligne, par exemple\u00a0: F5ABC,F5ABC.Vek,JN04SD";
    case NatureErreur::EcrirePdf:
        return "Choisissez un autre fichier par «\u00a0Configurer imprimante\u00a0».";
    case NatureErreur::Imprimer:
        return nomme
                   ? "Vérifiez-la, ou prenez-en une autre par «\u00a0Configurer imprimante\u00a0»."
                   : "Prenez-en une par «\u00a0Configurer imprimante\u00a0».";
    default:
        const noyau::RaisonMotivee* connue = TrouverRaison(raison);
        return connue == nullptr ? std::string_view{} : connue->remede;
    }
}

std::string Message(NatureErreur nature, const std::string& objet, const std::error_code& raison,
                    std::string_view suite) {
    std::string message = Phrase(nature, objet, raison);
    for (const std::string_view phrase : {suite, Remede(nature, !objet.empty(), raison)})
        if (!phrase.empty())
            message.append(" ").append(phrase);
    return message;
}

} // namespace

Erreur::Erreur(NatureErreur nature, std::filesystem::path chemin, std::error_code raison,
               std::string_view suite)
    : std::runtime_error(Message(nature, TexteChemin(chemin), raison, suite)), nature_(nature),
      chemin_(std::move(chemin)), raison_(noyau::Commune(raison)) {}

Erreur::Erreur(const std::string& imprimante)
    : std::runtime_error(Message(NatureErreur::Imprimer, imprimante, {}, {})),
      nature_(NatureErreur::Imprimer) {}

Erreur Erreur::DImprimante(std::string_view nom) {
    return Erreur(std::string{nom});
}

// A file that another program has locked gives no reason of the system.
CahierPerdu::CahierPerdu(const Erreur& echec)
    : Erreur(NatureErreur::Perdu, echec.Chemin(),
             echec.code() ? echec.code()
                          : std::make_error_code(std::errc::device_or_resource_busy)) {}

Erreur Erreur::Suivie(std::string_view suite) const {
    Erreur suivie(nature_, chemin_, raison_, suite);
    suivie.concerneLeCahier_ = concerneLeCahier_;
    return suivie;
}

std::string RaisonFrancaise(const std::error_code& raison) {
    const noyau::RaisonMotivee* connue = TrouverRaison(raison);
    return connue != nullptr ? std::string{connue->texte}
                             : "erreur n°\u00a0" + std::to_string(raison.value()) + " du système";
}

// What such an exception says of itself is English.
std::string MessageErreur(const std::exception& erreur) {
    if (dynamic_cast<const Erreur*>(&erreur) != nullptr)
        return erreur.what();
    std::string message = "Erreur inattendue";
    if (const auto* systeme = dynamic_cast<const std::system_error*>(&erreur))
        message += std::string{kDeuxPoints} + RaisonFrancaise(systeme->code());
    else if (dynamic_cast<const std::bad_alloc*>(&erreur) != nullptr)
        message += std::string{kDeuxPoints} + "la mémoire est épuisée";
    return message + ".";
}

} // namespace orvalis
