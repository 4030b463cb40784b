#include "core/messages.h"

#include "core/cahier.h"
#include "core/parametres.h"

#include <array>
#include <cerrno>

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

std::string_view Debut(ActionFichier action) {
    switch (action) {
    case ActionFichier::Ouvrir:
        return "Impossible d'ouvrir le fichier";
    case ActionFichier::Creer:
        return "Impossible de créer le fichier";
    case ActionFichier::Lire:
        return "Impossible de lire le fichier";
    case ActionFichier::Ecrire:
    case ActionFichier::Synchroniser:
        return "Impossible d'écrire dans le fichier";
    case ActionFichier::Verrouiller:
        return "Impossible de réserver le fichier";
    case ActionFichier::Renommer:
        break;
    }
    return "Impossible de remplacer le fichier";
}

std::string RaisonDe(const ErreurFichier& echec) {
    // A file that is to be made does not exist yet: its folder is what is missing.
    if (echec.Action() == ActionFichier::Creer && echec.code().value() == ENOENT)
        return "le dossier n'existe pas";
    return RaisonFrancaise(echec.code());
}

} // namespace

std::string RaisonFrancaise(const std::error_code& raison) {
    for (const Raison& r : kRaisons)
        if (r.code == raison.value())
            return std::string{r.texte};
    return raison.message();
}

std::string MessageErreur(const std::exception& erreur) {
    if (const auto* fichier = dynamic_cast<const ErreurFichier*>(&erreur))
        return std::string{Debut(fichier->Action())} + " « " + fichier->Chemin().string() +
               " » : " + RaisonDe(*fichier) + ".";
    if (const auto* verrou = dynamic_cast<const ErreurVerrou*>(&erreur))
        return "Le cahier « " + std::string{verrou->what()} +
               " » est déjà ouvert par un autre programme Orvalis.";
    if (dynamic_cast<const ErreurParametres*>(&erreur) != nullptr)
        return erreur.what();
    return std::string{"Erreur inattendue : "} + erreur.what();
}

} // namespace orvalis
