#include "echange/fichier_neuf.h"

#include "core/chemins.h"
#include "echange/refus.h"

#include <random>

namespace orvalis {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kTampon = 256UL * 1024;

// The file itself, where the place is a link to it: the link stays.
fs::path Reelle(const fs::path& cible) {
    std::error_code erreur;
    fs::path reelle = fs::canonical(cible, erreur);
    return erreur ? cible : reelle;
}

// Two programs that write the same file each have their own beside it; the last one stays.
fs::path NomProvisoire(const fs::path& cible) {
    std::random_device hasard;
    return fs::path(cible) += "." + std::to_string(hasard()) + ".tmp";
}

RefusEchange ExisteDeja(const fs::path& cible) {
    return RefusEchange("Le fichier « " + TexteChemin(cible) + " » existe déjà.");
}

} // namespace

PlaceNeuve::PlaceNeuve(const fs::path& cible, Ancien ancien)
    : cible_(ancien == Ancien::Remplace ? Reelle(cible) : cible), ancien_(ancien) {
    std::error_code erreur;
    const fs::file_status etat = fs::symlink_status(cible_, erreur);
    if (fs::exists(etat) && ancien == Ancien::Protege)
        throw ExisteDeja(cible);
    if (fs::exists(etat) && !fs::is_regular_file(etat))
        throw RefusEchange("« " + TexteChemin(cible) + " » n'est pas un fichier ordinaire.");
    provisoire_ = NomProvisoire(cible_);
}

PlaceNeuve::~PlaceNeuve() {
    std::error_code erreur;
    fs::remove(provisoire_, erreur); // nothing there once it was renamed
}

void PlaceNeuve::Prendre() {
    std::error_code erreur;
    if (ancien_ == Ancien::Protege) {
        // Unlike a renaming, a second name is refused where one stands.
        fs::create_hard_link(provisoire_, cible_, erreur);
        prise_ = !erreur;
        if (prise_)
            return SynchroniserNom(cible_); // the own name goes with this object
        // The file system may know one name only.
        if (erreur == std::errc::file_exists || fs::exists(fs::symlink_status(cible_, erreur)))
            throw ExisteDeja(cible_);
    }
    noyau::Renommer(provisoire_, cible_, erreur);
    if (erreur)
        throw Erreur(NatureErreur::Remplacer, cible_, erreur);
    prise_ = true;
    SynchroniserNom(cible_);
}

Erreur PlaceNeuve::Nommer(const Erreur& echec) const {
    return {echec.Nature(), cible_, echec.code()};
}

FichierNeuf::FichierNeuf(const fs::path& cible, Ancien ancien) : place_(cible, ancien) {
    Essayer([&] { fichier_ = Fichier(place_.Provisoire(), ModeFichier::Creation); });
}

template<class Faire> void FichierNeuf::Essayer(Faire faire) const {
    try {
        faire();
    } catch (const Erreur& echec) {
        throw place_.Nommer(echec);
    }
}

void FichierNeuf::Ecrire(std::string_view octets) {
    tampon_ += octets;
    if (tampon_.size() >= kTampon)
        Vider();
}

void FichierNeuf::Recrire(std::int64_t position, std::string_view octets) {
    Vider();
    Essayer([&] { fichier_.Ecrire(position, octets); });
}

void FichierNeuf::Vider() {
    Essayer([&] { fichier_.Ecrire(ecrits_, tampon_); });
    ecrits_ += static_cast<std::int64_t>(tampon_.size());
    tampon_.clear();
}

void FichierNeuf::Achever() {
    Vider();
    Essayer([&] { fichier_.Synchroniser(); });
    fichier_.Fermer();
    acheve_ = true;
}

void FichierNeuf::Terminer() {
    if (!acheve_)
        Achever();
    place_.Prendre();
}

} // namespace orvalis
