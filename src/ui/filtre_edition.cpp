#include "ui/filtre_edition.h"

#include "core/texte.h"
#include "ui/texte_qt.h"

#include <QLineEdit>

namespace orvalis {

QValidator::State FiltreEdition::validate(QString& texte, int& curseur) const {
    // Composed first, so that a letter typed as base and accent is one character.
    const std::string avant = S(texte.left(curseur).normalized(QString::NormalizationForm_C));
    const std::string apres = S(texte.mid(curseur));
    const TexteEdite pris = regle_({avant + apres, Longueur(avant)});
    texte = Q(pris.texte);
    curseur = static_cast<int>(Q(Gauche(pris.texte, pris.curseur)).size());
    return Acceptable;
}

void FiltrerMajuscules(QLineEdit& boite, std::size_t longueur) {
    boite.setValidator(new FiltreEdition(
        [longueur](const TexteEdite& nouveau) {
            return FiltrerEdition(Touches::Majuscules, longueur, "", nouveau);
        },
        &boite));
}

} // namespace orvalis
