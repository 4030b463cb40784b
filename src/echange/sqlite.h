// The C interface of SQLite behind two types that close what they open.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace orvalis {

/// An open base. What fails throws Erreur, which names `nom`, or std::runtime_error.
class BaseOuverte {
  public:
    /// Makes the file `chemin`, which failures call `nom`.
    BaseOuverte(const std::filesystem::path& chemin, std::filesystem::path nom);
    void Executer(const std::string& sql);
    /// Closes the file; what is open of it must be gone.
    void Fermer();

  private:
    friend class Requete;
    struct Fermeture {
        void operator()(sqlite3* base) const;
    };
    [[noreturn]] void Echouer() const;

    std::filesystem::path nom_;
    std::unique_ptr<sqlite3, Fermeture> base_;
};

/// A prepared statement that puts rows in. Texts must last until the row is put in.
class Requete {
  public:
    Requete(BaseOuverte& base, const std::string& sql);
    void Lier(int place, std::string_view texte);
    void Lier(int place, std::int64_t nombre);
    void Lier(int place, double nombre);
    void LierRien(int place);
    void LierOctets(int place, std::string_view octets);
    /// Runs it with what was bound; the next row is bound anew.
    void Executer();

  private:
    struct Fin {
        void operator()(sqlite3_stmt* requete) const;
    };
    void Verifier(int code) const;

    BaseOuverte& base_;
    std::unique_ptr<sqlite3_stmt, Fin> requete_;
};

} // namespace orvalis
