#include "echange/sqlite.h"

#include "core/chemins.h"
#include "core/erreurs.h"

#include <sqlite3.h>
#include <stdexcept>
#include <utility>

namespace orvalis {
namespace {

// The number of the system's last refusal: errno, or Windows's own.
std::error_code RaisonDuSysteme(sqlite3* base) {
    return {sqlite3_system_errno(base), std::system_category()};
}

} // namespace

void BaseOuverte::Fermeture::operator()(sqlite3* base) const {
    sqlite3_close_v2(base);
}

BaseOuverte::BaseOuverte(const std::filesystem::path& chemin, std::filesystem::path nom)
    : nom_(std::move(nom)) {
    sqlite3* base = nullptr;
    const int code = sqlite3_open_v2(TexteChemin(chemin).c_str(), &base,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    base_.reset(base);
    if (base == nullptr)
        throw std::bad_alloc();
    if (code != SQLITE_OK)
        throw Erreur(NatureErreur::Creer, nom_, RaisonDuSysteme(base));
}

void BaseOuverte::Echouer() const {
    const int code = sqlite3_errcode(base_.get());
    std::error_code raison = RaisonDuSysteme(base_.get());
    if (code == SQLITE_FULL)
        raison = std::make_error_code(std::errc::no_space_on_device);
    if (code == SQLITE_FULL || code == SQLITE_IOERR || code == SQLITE_CANTOPEN)
        throw Erreur(NatureErreur::Ecrire, nom_,
                     raison ? raison : std::make_error_code(std::errc::io_error));
    throw std::runtime_error(sqlite3_errmsg(base_.get()));
}

void BaseOuverte::Executer(const std::string& sql) {
    if (sqlite3_exec(base_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        Echouer();
}

void BaseOuverte::Fermer() {
    if (sqlite3_close(base_.get()) != SQLITE_OK)
        Echouer();
    static_cast<void>(base_.release()); // closed
}

void Requete::Fin::operator()(sqlite3_stmt* requete) const {
    sqlite3_finalize(requete);
}

Requete::Requete(BaseOuverte& base, const std::string& sql) : base_(base) {
    sqlite3_stmt* requete = nullptr;
    Verifier(sqlite3_prepare_v2(base.base_.get(), sql.c_str(), static_cast<int>(sql.size()),
                                &requete, nullptr));
    requete_.reset(requete);
}

void Requete::Verifier(int code) const {
    if (code != SQLITE_OK)
        base_.Echouer();
}

void Requete::Lier(int place, std::string_view texte) {
    // Without a text there would be no value; an empty one is one.
    const char* debut = texte.empty() ? "" : texte.data();
    Verifier(sqlite3_bind_text(requete_.get(), place, debut, static_cast<int>(texte.size()),
                               SQLITE_STATIC));
}

void Requete::Lier(int place, std::int64_t nombre) {
    Verifier(sqlite3_bind_int64(requete_.get(), place, nombre));
}

void Requete::Lier(int place, double nombre) {
    Verifier(sqlite3_bind_double(requete_.get(), place, nombre));
}

void Requete::LierRien(int place) {
    Verifier(sqlite3_bind_null(requete_.get(), place));
}

void Requete::LierOctets(int place, std::string_view octets) {
    Verifier(sqlite3_bind_blob(requete_.get(), place, octets.data(),
                               static_cast<int>(octets.size()), SQLITE_STATIC));
}

void Requete::Executer() {
    if (sqlite3_step(requete_.get()) != SQLITE_DONE)
        base_.Echouer();
    Verifier(sqlite3_reset(requete_.get()));
}

} // namespace orvalis
