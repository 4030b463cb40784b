#include "ui/widgets/filtre_edition.h"

#include "core/texte.h"
#include "ui/bureau/texte_qt.h"
#include "ui/widgets/gestes.h"

#include <QLineEdit>

namespace orvalis {

FiltreEdition::FiltreEdition(QLineEdit& boite, Touches touches, std::size_t longueur)
    : QValidator(&boite), boite_(boite), touches_(touches), longueur_(longueur) {
    connect(&boite, &QLineEdit::textChanged, this,
            [this](const QString& texte) { precedent_ = S(texte); });
    boite.setValidator(this);
    boite.installEventFilter(this);
}

void FiltreEdition::Montrer(const QString& texte) {
    programme_ = true;
    boite_.setText(texte);
    programme_ = false;
}

bool FiltreEdition::Refuse(const QString& texte) const {
    return !texte.isEmpty() && texte.front().isPrint() &&
           FiltrerTouches(touches_, S(texte.normalized(QString::NormalizationForm_C))).empty();
}

bool FiltreEdition::eventFilter(QObject* objet, QEvent* evenement) {
    bool refuse = false;
    if (evenement->type() == QEvent::KeyPress) {
        const auto& touche = static_cast<const QKeyEvent&>(*evenement);
        refuse = !touche.modifiers().testFlag(Qt::ControlModifier) && Refuse(touche.text());
    } else if (evenement->type() == QEvent::InputMethod) {
        refuse = Refuse(TexteCompose(*evenement));
    }
    return refuse || QValidator::eventFilter(objet, evenement);
}

QValidator::State FiltreEdition::validate(QString& texte, int& curseur) const {
    // Composed first, so that a letter typed as base and accent is one character.
    const std::string avant = S(texte.left(curseur).normalized(QString::NormalizationForm_C));
    const std::string apres = S(texte.mid(curseur));
    TexteEdite pris = {avant + apres, Longueur(avant)};
    if (!programme_)
        pris = FiltrerEdition(touches_, longueur_, precedent_, pris);
    texte = Q(pris.texte);
    curseur = static_cast<int>(Q(Gauche(pris.texte, pris.curseur)).size());
    return Acceptable;
}

} // namespace orvalis
