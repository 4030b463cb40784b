// What the window of dbOrvalis asks of the desktop; tests answer in its place.
#pragma once

#include <QString>

#include <functional>
#include <memory>

class QWidget;

namespace orvalis {

class Imprimante;

/// A file dialog.
struct DemandeChemin {
    bool enregistrer = false; ///< save dialog, which confirms replacing; else open dialog
    QString titre;
    QString propose; ///< a path
    QString filtre;
    QString suffixe;
};

struct Demandes {
    /// Path chosen by the operator; empty when the dialog was cancelled.
    std::function<QString(QWidget* parent, const DemandeChemin& demande)> chemin;
    /// The printer for one document; null when that was cancelled. May throw Erreur.
    std::function<std::unique_ptr<Imprimante>(QWidget* parent)> imprimante;
    /// Something that went wrong.
    std::function<void(QWidget* parent, const QString& texte)> avertir;
};

} // namespace orvalis
