#include "ui/zone_saisie.h"

#include "core/texte.h"
#include "ui/filtre_edition.h"
#include "ui/gestes.h"
#include "ui/teintes.h"
#include "ui/texte_qt.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPalette>

namespace orvalis {

ZoneSaisie::ZoneSaisie(const DescriptionBoite& boite, QWidget* parent)
    : QLineEdit(parent), boite_(boite),
      filtre_(new FiltreEdition(*this, boite.touches, boite.longueur)),
      couleur_(CouleurAuRepos(boite.index)) {
    setObjectName(QStringLiteral("TxtField_%1").arg(boite.index));
    if (boite.centre)
        setAlignment(Qt::AlignCenter);
    PeindreSelonBureau(*this, [this] { AppliquerCouleur(); });
}

void ZoneSaisie::Montrer(const QString& texte) {
    filtre_->Montrer(texte);
}

void ZoneSaisie::Colorer(Couleur couleur) {
    couleur_ = couleur;
    AppliquerCouleur();
}

void ZoneSaisie::AppliquerCouleur() {
    QPalette palette;
    const bool saQsl = boite_.index == NumeroZone(Champ::SQSL);
    const std::optional<Rvb> fond = FondDe(couleur_);
    if (fond) {
        palette.setColor(QPalette::Base, QColor(fond->rouge, fond->vert, fond->bleu));
        palette.setColor(QPalette::Text, saQsl ? QColor(0xA0, 0, 0) : QColor(Qt::black));
    } else if (saQsl) {
        palette.setColor(QPalette::Text, RougeSur(palette.color(QPalette::Window)));
    }
    setPalette(palette);
}

void ZoneSaisie::keyPressEvent(QKeyEvent* evenement) {
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
        // A refused key is swallowed before it can replace what is selected.
        if (Refusee(*evenement))
            evenement->accept();
        else
            QLineEdit::keyPressEvent(evenement);
    }
}

bool ZoneSaisie::Refusee(const QKeyEvent& evenement) const {
    const QString texte = evenement.text();
    return !texte.isEmpty() && texte.front().isPrint() &&
           !evenement.modifiers().testFlag(Qt::ControlModifier) &&
           FiltrerTouches(boite_.touches, S(texte)).empty();
}

void ZoneSaisie::focusInEvent(QFocusEvent* evenement) {
    QLineEdit::focusInEvent(evenement);
    if (!FoyerVenuDAilleurs(evenement->reason()))
        Q_EMIT focusPris();
}

void ZoneSaisie::focusOutEvent(QFocusEvent* evenement) {
    QLineEdit::focusOutEvent(evenement);
    if (!FoyerVenuDAilleurs(evenement->reason()))
        Q_EMIT focusPerdu();
}

void ZoneSaisie::mousePressEvent(QMouseEvent* evenement) {
    QLineEdit::mousePressEvent(evenement);
    pressionRecue_ = evenement->button() == Qt::LeftButton;
    if (pressionRecue_)
        Q_EMIT pressee();
}

void ZoneSaisie::mouseMoveEvent(QMouseEvent* evenement) {
    // A hand that trembles during the press must not undo the selection the press just made.
    if (!pressionRecue_)
        QLineEdit::mouseMoveEvent(evenement);
}

void ZoneSaisie::mouseReleaseEvent(QMouseEvent* evenement) {
    QLineEdit::mouseReleaseEvent(evenement);
    if (pressionRecue_ && rect().contains(evenement->pos()))
        Q_EMIT cliquee();
    pressionRecue_ = false;
}

} // namespace orvalis
