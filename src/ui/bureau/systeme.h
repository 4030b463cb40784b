// The seam between the window and what lies outside it: the clock, pauses, questions that open a
// window of their own, other programs, the end of the program. Tests answer in its place.
#pragma once

#include "core/dates.h"

#include <QString>
#include <QStringList>

#include <filesystem>
#include <memory>
#include <optional>

class QWidget;

namespace orvalis {

class Imprimante;

/// A file dialog as a command asks for it.
struct DemandeFichier {
    bool enregistrer = false; ///< save dialog: it completes the name with ".Vek" and confirms
                              ///< overwriting; else open dialog
    QString dossier;          ///< starting folder; the program folder when empty
    QString nomPropose;
    QString titre;
};

class Systeme {
  public:
    Systeme() = default;
    virtual ~Systeme() = default;
    Systeme(const Systeme&) = delete;
    Systeme& operator=(const Systeme&) = delete;

    /// The folder that plays the part of the current drive (see core/dossier.h).
    [[nodiscard]] virtual std::filesystem::path Lecteur() const = 0;
    /// The station's local time.
    [[nodiscard]] virtual Instant Maintenant() const = 0;
    /// Lets events run for `secondes`; returns early once the program is asked to end.
    virtual void Pause(int secondes) = 0;
    /// Something to know; one button.
    virtual void Informer(QWidget* parent, const QString& titre, const QString& texte) = 0;
    /// Something that went wrong; one button.
    virtual void Avertir(QWidget* parent, const QString& texte) = 0;
    /// Path chosen by the operator; empty when the dialog was cancelled.
    [[nodiscard]] virtual QString ChoisirFichier(QWidget* parent,
                                                 const DemandeFichier& demande) = 0;
    /// The printer for one document. Asks the operator when none is chosen; null when that was
    /// cancelled. Throws Erreur.
    [[nodiscard]] virtual std::unique_ptr<Imprimante> PreparerImpression(QWidget* parent) = 0;
    /// Lets the operator choose the printer for every print to come.
    virtual void ConfigurerImprimante(QWidget* parent) = 0;
    /// The folder that this program was started from, which may hold its companions.
    [[nodiscard]] virtual std::filesystem::path DossierInstalle() const = 0;
    /// Starts another program without waiting; the reason in French when it does not start.
    [[nodiscard]] virtual std::optional<QString> Lancer(const QString& chemin) = 0;
    /// Ends the program with this status.
    virtual void Quitter(int code) = 0;
};

} // namespace orvalis
