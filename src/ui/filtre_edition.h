// A validator that rewrites every edit of a line edit, whatever its way in: key, paste, drop,
// input method, undo.
#pragma once

#include "core/boites.h"

#include <QValidator>

#include <functional>

class QLineEdit;

namespace orvalis {

class FiltreEdition : public QValidator {
  public:
    using Regle = std::function<TexteEdite(const TexteEdite& nouveau)>;

    FiltreEdition(Regle regle, QObject* parent) : QValidator(parent), regle_(std::move(regle)) {}
    [[nodiscard]] State validate(QString& texte, int& curseur) const override;

  private:
    Regle regle_;
};

/// Makes `boite` take at most `longueur` characters, in upper case.
void FiltrerMajuscules(QLineEdit& boite, std::size_t longueur);

} // namespace orvalis
