#include "ui/widgets/txt_field.h"

#include "ui/bureau/texte_qt.h"
#include "ui/widgets/filtre_edition.h"
#include "ui/widgets/police.h"
#include "ui/widgets/teintes.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>

namespace orvalis {

TxtField::TxtField(const DescriptionBoite& boite, QWidget* parent)
    : QLineEdit(parent), boite_(boite),
      filtre_(new FiltreEdition(*this, boite.touches, boite.longueur)),
      couleur_(CouleurAuRepos(boite.boite)) {
    setObjectName(QStringLiteral("TxtField_%1").arg(Numero(boite.boite)));
    if (boite.centre)
        setAlignment(Qt::AlignCenter);
    PeindreSelonBureau(*this, [this] { AppliquerCouleur(); });
}

void TxtField::Montrer(const QString& texte) {
    filtre_->Montrer(texte);
}

void TxtField::Colorer(Couleur couleur, bool erreur) {
    if (couleur_ == couleur && erreur_ == erreur)
        return;
    couleur_ = couleur;
    erreur_ = erreur;
    AppliquerCouleur();
}

void TxtField::PrendreDuTexte(bool prend) {
    if (isReadOnly() != prend)
        return;
    setReadOnly(!prend);
    setCursor(Qt::IBeamCursor);
}

void TxtField::AppliquerCouleur() {
    QPalette palette;
    const bool saQsl = boite_.boite == Boite::SaQsl;
    const std::optional<Rvb> fond = FondDe(couleur_);
    if (fond) {
        palette.setColor(QPalette::Base, QColor(fond->rouge, fond->vert, fond->bleu));
        palette.setColor(QPalette::Text, saQsl ? QColor(0xA0, 0, 0) : QColor(Qt::black));
    } else if (saQsl) {
        palette.setColor(QPalette::Text, RougeSur(palette.color(QPalette::Window)));
    }
    setPalette(erreur_ ? EnErreur(palette) : palette);
}

// Qt shows no placeholder in a centred box that has the focus. Pale, slanted and small, an example
// is never taken for a text that Enter would keep.
void TxtField::paintEvent(QPaintEvent* evenement) {
    QLineEdit::paintEvent(evenement);
    if (!hasFocus() || isReadOnly() || boite_.exemple.empty() || !displayText().isEmpty() ||
        compose_)
        return;
    constexpr int kRetrait = 6; // behind the caret, and as much at the other end
    const QString exemple = Q(boite_.exemple);
    const QRect place = rect().adjusted(kRetrait, 0, -kRetrait, 0);
    QFont penchee = PoliceAjustee(font(), kPetite);
    penchee.setItalic(true);
    const int large = QFontMetrics(penchee).horizontalAdvance(exemple);
    if (large > place.width())
        penchee = PoliceAjustee(penchee, static_cast<qreal>(place.width()) / large);
    QPainter peintre(this);
    peintre.setFont(penchee);
    // Made pale, the red of some boxes could not be read.
    const bool sombre = EstSombre(palette().color(QPalette::Base));
    peintre.setPen(Discrete(sombre ? Qt::white : Qt::black));
    const auto cote = boite_.centre ? Qt::AlignHCenter : Qt::AlignLeft;
    peintre.drawText(place, static_cast<int>(cote | Qt::AlignVCenter), exemple);
}

void TxtField::keyPressEvent(QKeyEvent* evenement) {
    switch (evenement->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        evenement->accept();
        Q_EMIT entree();
        return;
    case Qt::Key_F2:
        evenement->accept();
        Q_EMIT pressee();
        Q_EMIT cliquee();
        return;
    default:
        QLineEdit::keyPressEvent(evenement);
    }
}

void TxtField::inputMethodEvent(QInputMethodEvent* evenement) {
    compose_ = !evenement->preeditString().isEmpty();
    QLineEdit::inputMethodEvent(evenement);
}

void TxtField::mousePressEvent(QMouseEvent* evenement) {
    QLineEdit::mousePressEvent(evenement);
    pressionRecue_ = evenement->button() == Qt::LeftButton;
    if (pressionRecue_)
        Q_EMIT pressee();
}

void TxtField::mouseMoveEvent(QMouseEvent* evenement) {
    // A hand that trembles during the press must not undo the selection the press just made. A card
    // that the press did not open has none, and its text is chosen with the mouse.
    if (!pressionRecue_ || isReadOnly())
        QLineEdit::mouseMoveEvent(evenement);
}

void TxtField::mouseReleaseEvent(QMouseEvent* evenement) {
    QLineEdit::mouseReleaseEvent(evenement);
    if (pressionRecue_ && rect().contains(evenement->pos()))
        Q_EMIT cliquee();
    pressionRecue_ = false;
}

} // namespace orvalis
