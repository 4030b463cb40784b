#include "ui/widgets/vue_page.h"

#include "core/pages.h"
#include "ui/bureau/texte_qt.h"
#include "ui/widgets/police.h"
#include "ui/widgets/teintes.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QtMath>

#include <algorithm>

namespace orvalis {
namespace {

// Paper and ink follow the desktop, so that the sheet does not glare on a dark one.
struct Encres {
    QColor papier;
    QColor encre;
    QColor filet;
    QColor tete;
    QColor marque;
};

Encres EncresDe(const QPalette& palette) {
    if (EstSombre(palette.color(QPalette::Window)))
        return {QColor(0x2b, 0x2a, 0x26), QColor(0xe8, 0xe4, 0xd8), QColor(0x4a, 0x4c, 0x50),
                QColor(0x9f, 0xb8, 0xd0), QColor(0x3d, 0x4f, 0x66)};
    return {QColor(0xff, 0xfd, 0xf4), QColor(0x1c, 0x1c, 0x1c), QColor(0xc8, 0xd3, 0xdc),
            QColor(0x1f, 0x4e, 0x79), QColor(0xd6, 0xe6, 0xf5)};
}

constexpr qreal kPointsMin = 8.0;
constexpr qreal kPointsMax = 13.0;

} // namespace

VuePage::VuePage(QWidget* parent) : QAbstractScrollArea(parent) {
    setObjectName(QStringLiteral("PageText1"));
    setAccessibleName(QStringLiteral("Page du cahier papier"));
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::StyledPanel);
    Ajuster();
}

int VuePage::Mesures::Colonne(std::size_t rang) const {
    // Half a character stands on each side of the text.
    return qCeil(static_cast<qreal>(kColonnesPage[rang].largeur + 1) * caractere) + appoint;
}

VuePage::Mesures VuePage::Mesurer(qreal points) const {
    Mesures m;
    m.police = PoliceFixe("Courier", font());
    m.police.setPointSizeF(points);
    const QFontMetrics metriques(m.police);
    m.caractere = QFontMetricsF(m.police).horizontalAdvance(QLatin1Char('0'));
    m.ligne = metriques.height() + 1;
    m.tete = 2 * metriques.height() + 4;
    m.largeur = 1;
    for (std::size_t i = 0; i < kColonnesPage.size(); ++i)
        m.largeur += m.Colonne(i);
    m.hauteur = m.tete + m.ligne * kFichesParPage + 1;
    return m;
}

// The largest type that shows the whole sheet; below the smallest legible one, it scrolls
// sideways, and what holds it scrolls up and down.
void VuePage::Ajuster() {
    const QSize place = maximumViewportSize();
    qreal points = kPointsMin;
    for (qreal essai = kPointsMin; essai <= kPointsMax; essai += 0.5) {
        const Mesures m = Mesurer(essai);
        if (m.largeur > place.width() || m.hauteur > place.height())
            break;
        points = essai;
    }
    mesures_ = Mesurer(points);
    const Mesures moindres = Mesurer(kPointsMin);
    const bool deborde = moindres.largeur > place.width();
    setMinimumHeight(moindres.hauteur + 2 * frameWidth() +
                     (deborde ? horizontalScrollBar()->sizeHint().height() : 0));
    constexpr int kNbColonnes = static_cast<int>(kColonnesPage.size());
    mesures_.appoint = std::max(0, place.width() - 2 - mesures_.largeur) / kNbColonnes;
    mesures_.largeur += mesures_.appoint * kNbColonnes;
    const auto regler = [](QScrollBar* barre, int etendue, int visible, int pas) {
        barre->setRange(0, std::max(0, etendue - visible));
        barre->setPageStep(visible);
        barre->setSingleStep(pas);
    };
    regler(horizontalScrollBar(), mesures_.largeur, viewport()->width(),
           qRound(mesures_.caractere * 4));
    regler(verticalScrollBar(), mesures_.hauteur, viewport()->height(), mesures_.ligne);
    viewport()->update();
}

QSize VuePage::sizeHint() const {
    const Mesures m = Mesurer(kPointsMax);
    return QSize(m.largeur, m.hauteur) + 2 * QSize(frameWidth(), frameWidth());
}

const std::vector<RangeePage>& VuePage::Rangees() const {
    return contenu_->rangees;
}

void VuePage::Montrer(std::shared_ptr<const ContenuPage> contenu) {
    contenu_ = std::move(contenu);
    DireTout();
}

void VuePage::Inviter(const QString& texte) {
    invitation_ = texte;
    DireTout();
}

void VuePage::DireTout() {
    setAccessibleDescription(invitation_.isEmpty() ? toPlainText() : invitation_);
    viewport()->update();
}

void VuePage::Marquer(NumeroFiche numero) {
    marquee_ = numero;
    viewport()->update();
}

QString VuePage::toPlainText() const {
    QStringList lignes;
    for (const RangeePage& rangee : Rangees())
        lignes << Q(LignePage(rangee.cellules));
    return lignes.join(QLatin1Char('\n'));
}

void VuePage::paintEvent(QPaintEvent* /*evenement*/) {
    QPainter peintre(viewport());
    peintre.fillRect(viewport()->rect(), palette().color(QPalette::Window));
    peintre.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
    peintre.fillRect(0, 0, mesures_.largeur, mesures_.hauteur, EncresDe(palette()).papier);
    PeindreRangees(peintre);
    PeindreTete(peintre);
    if (!invitation_.isEmpty())
        PeindreInvitation(peintre);
}

// Over the part that is on show, on paper free of lines.
void VuePage::PeindreInvitation(QPainter& peintre) const {
    const Encres encres = EncresDe(palette());
    peintre.setFont(font());
    const QRect place =
        viewport()->rect().translated(horizontalScrollBar()->value(), verticalScrollBar()->value());
    const QRect libre(place.left(), mesures_.tete, std::min(place.width(), mesures_.largeur),
                      std::min(place.height(), mesures_.hauteur) - mesures_.tete);
    constexpr int kCentre = Qt::AlignCenter | Qt::TextWordWrap;
    const int air = mesures_.ligne;
    const QRect cadre =
        peintre.boundingRect(libre.adjusted(air, air, -air, -air), kCentre, invitation_)
            .adjusted(-air, -air, air, air);
    peintre.setPen(encres.filet);
    peintre.setBrush(encres.papier);
    peintre.drawRect(cadre);
    peintre.setPen(encres.encre);
    peintre.drawText(cadre, kCentre, invitation_);
}

void VuePage::PeindreTete(QPainter& peintre) const {
    const Encres encres = EncresDe(palette());
    QFont grasse = mesures_.police;
    grasse.setBold(true);
    peintre.setFont(grasse);
    const int moitie = mesures_.tete / 2;
    int x = 0;
    for (std::size_t i = 0; i < kColonnesPage.size(); ++i) {
        const ColonnePage& colonne = kColonnesPage[i];
        const int large = mesures_.Colonne(i);
        peintre.setPen(encres.tete);
        if (colonne.groupe.empty()) {
            peintre.drawText(QRect(x, 0, large, mesures_.tete), Qt::AlignCenter, Q(colonne.titre));
        } else {
            peintre.drawText(QRect(x, moitie, large, moitie), Qt::AlignCenter, Q(colonne.titre));
            const bool premiere = colonne.groupe != kColonnesPage[i - 1].groupe;
            if (premiere) {
                const int deux = large + mesures_.Colonne(i + 1);
                peintre.drawText(QRect(x, 0, deux, moitie), Qt::AlignCenter, Q(colonne.groupe));
                peintre.setPen(encres.filet);
                peintre.drawLine(x + 4, moitie, x + deux - 4, moitie);
            }
        }
        x += large;
        const bool memeGroupe = i + 1 < kColonnesPage.size() && !colonne.groupe.empty() &&
                                colonne.groupe == kColonnesPage[i + 1].groupe;
        peintre.setPen(encres.filet);
        peintre.drawLine(x, memeGroupe ? moitie : 0, x, mesures_.hauteur);
    }
    peintre.setPen(encres.tete);
    peintre.drawLine(0, mesures_.tete, mesures_.largeur - 1, mesures_.tete);
    peintre.drawRect(0, 0, mesures_.largeur - 1, mesures_.hauteur - 1);
}

void VuePage::PeindreRangees(QPainter& peintre) const {
    const Encres encres = EncresDe(palette());
    for (int r = 0; r < kFichesParPage; ++r) {
        const int y = mesures_.tete + r * mesures_.ligne;
        const auto rang = static_cast<std::size_t>(r);
        if (rang < Rangees().size() && Rangees()[rang].numero == marquee_ &&
            marquee_ != kAucuneFiche)
            peintre.fillRect(0, y, mesures_.largeur, mesures_.ligne, encres.marque);
        peintre.setPen(encres.filet);
        peintre.drawLine(0, y + mesures_.ligne, mesures_.largeur - 1, y + mesures_.ligne);
        if (rang >= Rangees().size())
            continue;
        peintre.setPen(encres.encre);
        int x = 0;
        for (std::size_t c = 0; c < kColonnesPage.size(); ++c) {
            QFont police = mesures_.police;
            police.setBold(c == kColonneIndicatif);
            peintre.setFont(police);
            const int large = mesures_.Colonne(c);
            peintre.drawText(QRect(x + qCeil(mesures_.caractere + mesures_.appoint) / 2, y, large,
                                   mesures_.ligne),
                             Qt::AlignLeft | Qt::AlignVCenter, Q(Rangees()[rang].cellules[c]));
            x += large;
        }
    }
}

void VuePage::resizeEvent(QResizeEvent* evenement) {
    QAbstractScrollArea::resizeEvent(evenement);
    Ajuster();
}

void VuePage::changeEvent(QEvent* evenement) {
    QAbstractScrollArea::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange)
        Ajuster();
}

QRect VuePage::RectDeRangee(int rang) const {
    return {-horizontalScrollBar()->value(),
            mesures_.tete + rang * mesures_.ligne - verticalScrollBar()->value(), mesures_.largeur,
            mesures_.ligne};
}

void VuePage::wheelEvent(QWheelEvent* evenement) {
    Q_EMIT roulee(evenement);
}

void VuePage::mousePressEvent(QMouseEvent* evenement) {
    if (evenement->button() != Qt::LeftButton)
        return;
    for (std::size_t rang = 0; rang < Rangees().size(); ++rang) {
        if (!RectDeRangee(static_cast<int>(rang)).contains(evenement->pos()))
            continue;
        Q_EMIT rangeeChoisie(Rangees()[rang].numero);
        return;
    }
}

} // namespace orvalis
