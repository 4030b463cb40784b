// What can go wrong with a file or a printer: one kind of exception, which carries the sentence
// that the operator reads. All of these sentences are worded in erreurs.cpp.
#pragma once

#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace orvalis {

/// What was tried, or what is wrong.
enum class NatureErreur {
    Ouvrir, ///< from here on a file operation that the system refused, code() says why
    Creer,
    Lire,
    Ecrire,
    Synchroniser,
    Verrouiller,
    Remplacer,
    Projeter, ///< mapping a file into memory, which the sort cannot do without
    Perdu,    ///< another file has taken the place of the open logbook (CahierPerdu)
    LireDossier,
    CreerDossier,
    DejaOuvert,           ///< another copy of the program has the logbook open
    CahierLuiMeme,        ///< a copy of the open logbook onto itself
    ParametresIncomplets, ///< a Settings file that can be read but makes no sense
    EcrirePdf,            ///< a document that should become a PDF file
    Imprimer              ///< no printer, or one that does not answer
};

/// A failure that the operator must be told of; what() is the complete French message: the fault,
/// what has become of the file where that matters, what can be done about it.
class Erreur : public std::runtime_error {
  public:
    /// `raison` is the system's, for the operations it refuses; `suite` a sentence behind the
    /// fault.
    Erreur(NatureErreur nature, std::filesystem::path chemin, std::error_code raison = {},
           std::string_view suite = {});
    /// The printer `nom` does not answer; without a name, none is chosen.
    [[nodiscard]] static Erreur DImprimante(std::string_view nom);

    /// The same failure of a file with a sentence behind the fault.
    [[nodiscard]] Erreur Suivie(std::string_view suite) const;

    [[nodiscard]] NatureErreur Nature() const noexcept { return nature_; }
    /// The file it happened to; empty for a printer.
    [[nodiscard]] const std::filesystem::path& Chemin() const noexcept { return chemin_; }
    /// The system's reason, none where the system refused nothing.
    [[nodiscard]] const std::error_code& code() const noexcept { return raison_; }
    /// Whether it is the open logbook that failed, which ends the program; any other file, a
    /// logbook that was only to be opened, copied to or paired from included, is told of, and the
    /// program goes on.
    [[nodiscard]] bool ConcerneLeCahier() const noexcept { return concerneLeCahier_; }
    /// Makes it a failure of the open logbook.
    void ImputerAuCahier() noexcept { concerneLeCahier_ = true; }

  private:
    explicit Erreur(const std::string& imprimante);

    NatureErreur nature_;
    std::filesystem::path chemin_;
    std::error_code raison_;
    bool concerneLeCahier_ = false;
};

/// What lies at the path of the open logbook is another file, which cannot be opened or locked, or
/// none. The file that is still open keeps every contact, so this does not concern it: the operator
/// is told, nothing was written, the program goes on and can still be made to copy the logbook.
class CahierPerdu : public Erreur {
  public:
    /// `echec` is what kept the file at `Chemin()` from being opened or locked.
    explicit CahierPerdu(const Erreur& echec);
};

/// The system's reason in French ("le disque est plein"), by its number where there is no word for
/// it.
[[nodiscard]] std::string RaisonFrancaise(const std::error_code& raison);

/// What the operator reads of any exception: the sentence of an Erreur, else the best that can be
/// said.
[[nodiscard]] std::string MessageErreur(const std::exception& erreur);

} // namespace orvalis
