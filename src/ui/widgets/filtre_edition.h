// A validator that rewrites every edit of a line edit, whatever its way in: key, paste, drop,
// input method, undo. What a key or an input method (a dead key too) brings and the box refuses
// whole does not come to it, since it would first let that replace what is selected.
#pragma once

#include "ui/carte/boites.h"

#include <QValidator>

class QLineEdit;

namespace orvalis {

class FiltreEdition : public QValidator {
  public:
    /// Makes `boite`, which owns the filter, take at most `longueur` of the characters of
    /// `touches`.
    FiltreEdition(QLineEdit& boite, Touches touches, std::size_t longueur);
    /// Shows a text as it is, past the rules, and clears the undo history.
    void Montrer(const QString& texte);
    [[nodiscard]] State validate(QString& texte, int& curseur) const override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    [[nodiscard]] bool Refuse(const QString& texte) const;

    QLineEdit& boite_;
    Touches touches_;
    std::size_t longueur_;
    std::string precedent_; ///< text before the edit that the filter looks at
    bool programme_ = false;
};

} // namespace orvalis
