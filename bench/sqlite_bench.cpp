// The same work on the same contacts by SQLite, as it is installed: a table with a column for each
// field, flushed as often as the logbook is.
#include "core/texte.h"
#include "mesures.h"

#include <memory>
#include <sqlite3.h>
#include <stdexcept>

namespace orvalis::bench {
namespace {

std::string Colonne(Champ champ) {
    return "c" + std::to_string(static_cast<std::size_t>(champ));
}

std::string Ajout() {
    std::string places = "NULL";
    for (std::size_t i = 0; i < kChamps.size(); ++i)
        places += ", ?";
    return "INSERT INTO q VALUES (" + places + ")";
}

class Base {
  public:
    explicit Base(const std::filesystem::path& chemin) {
        sqlite3* base = nullptr;
        const int code = sqlite3_open(chemin.c_str(), &base);
        base_.reset(base);
        Exiger(code == SQLITE_OK);
    }
    /// Makes the table and puts the contacts in.
    explicit Base(const CahierEssai& essai) : Base(essai.Dossier() / "sqlite.db") {
        Remplir(essai);
    }

    void Remplir(const CahierEssai& essai) {
        std::string colonnes = "n INTEGER PRIMARY KEY";
        for (const DescriptionChamp& champ : kChamps) {
            colonnes += ", " + Colonne(champ.champ) + " TEXT";
        }
        Executer("BEGIN; DROP TABLE IF EXISTS q; CREATE TABLE q (" + colonnes + ")");
        const Requete ajout = Preparer(Ajout());
        for (std::int32_t i = 0; i < essai.NbFiches(); ++i)
            Ajouter(ajout, essai.Fiches()[static_cast<std::size_t>(i)]);
        Executer("COMMIT");
    }

    struct Fin {
        void operator()(sqlite3_stmt* requete) const { sqlite3_finalize(requete); }
    };
    using Requete = std::unique_ptr<sqlite3_stmt, Fin>;

    void Executer(const std::string& sql) const {
        Exiger(sqlite3_exec(base_.get(), sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK);
    }
    [[nodiscard]] Requete Preparer(const std::string& sql) const {
        sqlite3_stmt* requete = nullptr;
        Exiger(sqlite3_prepare_v2(base_.get(), sql.c_str(), -1, &requete, nullptr) == SQLITE_OK);
        return Requete(requete);
    }
    void Ajouter(const Requete& ajout, const QsoRecord& fiche) const {
        int place = 0;
        for (const auto& champ : kChamps) {
            const std::string texte = TexteRogne(fiche, champ.champ);
            sqlite3_bind_text(ajout.get(), ++place, texte.c_str(), -1, SQLITE_TRANSIENT);
        }
        Exiger(sqlite3_step(ajout.get()) == SQLITE_DONE);
        sqlite3_reset(ajout.get());
    }
    /// Reads every row, all columns that are asked for; returns how many there were.
    [[nodiscard]] std::size_t Compter(const Requete& requete) const {
        std::size_t lignes = 0;
        int code = SQLITE_ROW;
        while ((code = sqlite3_step(requete.get())) == SQLITE_ROW) {
            ++lignes;
            for (int i = 0; i < sqlite3_column_count(requete.get()); ++i)
                benchmark::DoNotOptimize(sqlite3_column_text(requete.get(), i));
        }
        Exiger(code == SQLITE_DONE);
        sqlite3_reset(requete.get());
        return lignes;
    }
    /// Copies the base by SQLite's own backup.
    void Copier(const std::filesystem::path& cible) const {
        const Base copie(cible);
        sqlite3_backup* sauvegarde =
            sqlite3_backup_init(copie.base_.get(), "main", base_.get(), "main");
        Exiger(sauvegarde != nullptr);
        const int code = sqlite3_backup_step(sauvegarde, -1);
        sqlite3_backup_finish(sauvegarde);
        Exiger(code == SQLITE_DONE);
    }

  private:
    struct Fermeture {
        void operator()(sqlite3* base) const { sqlite3_close_v2(base); }
    };
    void Exiger(bool fait) const {
        if (!fait)
            throw std::runtime_error(sqlite3_errmsg(base_.get()));
    }
    std::unique_ptr<sqlite3, Fermeture> base_;
};

void Lire(benchmark::State& etat, const CahierEssai& essai, const std::string& sql) {
    const Base base(essai);
    const Base::Requete requete = base.Preparer(sql);
    std::size_t trouves = 0;
    for ([[maybe_unused]] auto _ : etat)
        trouves = base.Compter(requete);
    etat.counters["found"] = static_cast<double>(trouves);
}

// What a line of the search shows, of the contacts whose text holds what is looked for.
void Chercher(benchmark::State& etat, const CahierEssai& essai, Champ champ,
              const std::string& texte) {
    Lire(etat, essai,
         "SELECT n, " + Colonne(Champ::DQSO) + ", " + Colonne(Champ::HDEB) + ", " +
             Colonne(Champ::CSGN) + " FROM q WHERE " + Colonne(champ) + " LIKE '%" + texte + "%'");
}

void Doublons(benchmark::State& etat, const CahierEssai& essai) {
    std::string pareils;
    for (const Champ champ : {Champ::CSGN, Champ::DQSO, Champ::HDEB, Champ::HFIN, Champ::FREQ})
        pareils += " AND a." + Colonne(champ) + " = b." + Colonne(champ);
    Lire(etat, essai, "SELECT a.n, b.n FROM q a JOIN q b ON b.n = a.n + 1" + pareils);
}

void Enregistrer(benchmark::State& etat, const CahierEssai& essai) {
    const Base base(essai);
    const Base::Requete ajout = base.Preparer(Ajout());
    for ([[maybe_unused]] auto _ : etat)
        base.Ajouter(ajout, essai.Fiches().front());
}

void Supprimer(benchmark::State& etat, const CahierEssai& essai) {
    Base base(essai);
    Chronometrer(
        etat, [&] { base.Remplir(essai); }, [&] { base.Executer("DELETE FROM q WHERE n = 1"); });
}

// As the logbook has it: what follows moves up by one.
void SupprimerEtRenumeroter(benchmark::State& etat, const CahierEssai& essai) {
    Base base(essai);
    Chronometrer(
        etat, [&] { base.Remplir(essai); },
        [&] {
            base.Executer("BEGIN; DELETE FROM q WHERE n = 1;"
                          "UPDATE q SET n = n - 1 WHERE n > 1; COMMIT");
        });
}

void Sauver(benchmark::State& etat, const CahierEssai& essai) {
    const Base base(essai);
    const auto cible = essai.Dossier() / "copie.db";
    Chronometrer(
        etat, [&] { std::filesystem::remove(cible); }, [&] { base.Copier(cible); });
}

// Named as what they stand beside.
[[maybe_unused]] const int kInscrites = Inscrire({
    {"Search by callsign (SQLite)",
     [](auto& etat, const auto& essai) {
         Chercher(etat, essai, Champ::CSGN, TexteRogne(FicheGeneree(500), Champ::CSGN));
     }},
    {"Search by date, contest day (SQLite)",
     [](auto& etat, const auto& essai) { Chercher(etat, essai, Champ::DQSO, "01/01/20"); }},
    {"Duplicates (SQLite)", Doublons},
    {"Store a contact (SQLite)", Enregistrer},
    {"Store a contact, flushed (SQLite)", Enregistrer, nullptr, Lieu::Disque},
    {"Delete record 1 (SQLite)", Supprimer},
    {"Delete record 1, flushed (SQLite)", Supprimer, nullptr, Lieu::Disque},
    {"Delete record 1 and renumber (SQLite)", SupprimerEtRenumeroter},
    {"Delete record 1 and renumber, flushed (SQLite)", SupprimerEtRenumeroter, nullptr,
     Lieu::Disque},
    {"Backup (SQLite)", Sauver},
    {"Backup, flushed (SQLite)", Sauver, nullptr, Lieu::Disque},
});

} // namespace
} // namespace orvalis::bench
