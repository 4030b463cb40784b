#include "core/erreurs.h"

#include <array>
#include <cerrno>
#include <utility>

namespace orvalis {
namespace {

struct Raison {
    int code;
    std::string_view texte;
};

constexpr std::array<Raison, 15> kRaisons = {{
    {ENOENT, "le fichier n'existe pas"},
    {EACCES, "l'accès est refusé"},
    {EPERM, "l'opération n'est pas permise"},
    {ENOSPC, "le disque est plein"},
    {EDQUOT, "l'espace disque accordé est épuisé"},
    {EIO, "erreur de lecture ou d'écriture du support"},
    {EROFS, "le support est protégé en écriture"},
    {EISDIR, "c'est un dossier, pas un fichier"},
    {ENOTDIR, "le chemin passe par un fichier qui n'est pas un dossier"},
    {EFBIG, "le fichier deviendrait trop grand"},
    {ENAMETOOLONG, "le nom est trop long"},
    {EEXIST, "un fichier de ce nom existe déjà"},
    {EMFILE, "trop de fichiers sont ouverts"},
    {ENODEV, "le support ne permet pas cette opération"},
    {EBUSY, "le fichier est utilisé par un autre programme"},
}};

// `objet` is the file, or the printer's name.
std::string Phrase(NatureErreur nature, const std::string& objet, const std::error_code& raison) {
    const std::string cite = " « " + objet + " »";
    const auto refus = [&cite](std::string_view action, std::string_view pourquoi) {
        return "Impossible " + std::string{action} + cite + " : " + std::string{pourquoi} + ".";
    };
    switch (nature) {
    case NatureErreur::Ouvrir:
        return refus("d'ouvrir le fichier", RaisonFrancaise(raison));
    case NatureErreur::Creer:
        // A file that is to be made does not exist yet: its folder is what is missing.
        return refus("de créer le fichier", raison.value() == ENOENT ? "le dossier n'existe pas"
                                                                     : RaisonFrancaise(raison));
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
               ".\n\nRien n'y est plus enregistré\u00A0; un contact en cours de saisie reste sur "
               "la carte. Les contacts déjà enregistrés sont tous dans le fichier encore "
               "ouvert\u00A0: «\u00A0Sauvegarder\u00A0» et «\u00A0Copier sur CD ou "
               "disquette\u00A0» le copient en entier, une fois la saisie quittée.";
    case NatureErreur::DejaOuvert:
        return "Le cahier" + cite + " est déjà ouvert par un autre programme Orvalis.";
    case NatureErreur::ParametresIncomplets:
        return "Le fichier de paramètres" + cite +
               " est incomplet : il doit contenir l'indicatif, le nom du cahier et le locator de "
               "la station.";
    case NatureErreur::EcrirePdf:
        return "Impossible d'écrire le fichier PDF" + cite + ".";
    case NatureErreur::Imprimer:
        break;
    }
    return objet.empty() ? "Aucune imprimante n'est choisie."
                         : "L'imprimante" + cite + " ne répond pas : rien n'a été imprimé.";
}

} // namespace

Erreur::Erreur(NatureErreur nature, std::filesystem::path chemin, std::error_code raison)
    : std::runtime_error(Phrase(nature, chemin.string(), raison)), nature_(nature),
      chemin_(std::move(chemin)), raison_(raison) {}

Erreur::Erreur(const std::string& imprimante)
    : std::runtime_error(Phrase(NatureErreur::Imprimer, imprimante, {})),
      nature_(NatureErreur::Imprimer) {}

Erreur Erreur::DImprimante(std::string_view nom) {
    return Erreur(std::string{nom});
}

// A file that another program has locked gives no reason of the system.
CahierPerdu::CahierPerdu(const Erreur& echec)
    : Erreur(NatureErreur::Perdu, echec.Chemin(),
             echec.code() ? echec.code()
                          : std::make_error_code(std::errc::device_or_resource_busy)) {}

std::string RaisonFrancaise(const std::error_code& raison) {
    for (const Raison& r : kRaisons)
        if (r.code == raison.value())
            return std::string{r.texte};
    return raison.message();
}

std::string MessageErreur(const std::exception& erreur) {
    const bool notre = dynamic_cast<const Erreur*>(&erreur) != nullptr;
    return (notre ? "" : "Erreur inattendue : ") + std::string{erreur.what()};
}

} // namespace orvalis
