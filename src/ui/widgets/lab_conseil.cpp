#include "ui/widgets/lab_conseil.h"

#include "ui/bureau/texte_qt.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace orvalis {
namespace {

constexpr int kMarge = 8;
constexpr int kInterligne = 2;
constexpr int kEcart = 24; // between the two parts of one line
// Characters that one line must have room for, lest each part gets a line of its own.
constexpr int kCaracteres = 150;

// Reads the text that is on show now; being told of it is another matter.
class AccesConseil : public QAccessibleWidget {
  public:
    explicit AccesConseil(LabConseil& label)
        : QAccessibleWidget(&label, QAccessible::StaticText), label_(label) {}
    [[nodiscard]] QString text(QAccessible::Text quoi) const override {
        return quoi == QAccessible::Name ? label_.Texte() : QAccessibleWidget::text(quoi);
    }

  private:
    LabConseil& label_;
};

QAccessibleInterface* FaireAcces(const QString& /*classe*/, QObject* objet) {
    auto* label = qobject_cast<LabConseil*>(objet);
    return label == nullptr ? nullptr : new AccesConseil(*label);
}

} // namespace

LabConseil::LabConseil(QWidget* parent) : QWidget(parent) {
    static const bool installe = [] {
        QAccessible::installFactory(FaireAcces);
        return true;
    }();
    static_cast<void>(installe);
    setObjectName(QStringLiteral("LabConseil"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    Ajuster();
}

void LabConseil::Montrer(const Conseil& conseil) {
    if (conseil == conseil_)
        return;
    const bool dire = conseil.cle != conseil_.cle;
    conseil_ = conseil;
    Ajuster();
    update();
    if (!dire)
        return;
    for (const QAccessible::Event quoi : {QAccessible::NameChanged, QAccessible::Alert}) {
        QAccessibleEvent annonce(this, quoi);
        QAccessible::updateAccessibility(&annonce);
    }
    Q_EMIT dite();
}

QString LabConseil::Texte() const {
    const bool deux = !conseil_.entree.empty() && !conseil_.etat.empty();
    return Q(conseil_.entree) + (deux ? QStringLiteral(" | ") : QString()) + Q(conseil_.etat);
}

std::pair<LabConseil::Ligne, LabConseil::Ligne> LabConseil::Lignes() const {
    const QFontMetrics mesure = fontMetrics();
    const QString entree = Q(conseil_.entree), etat = Q(conseil_.etat);
    const QRect cadre = rect().adjusted(kMarge, kInterligne, -kMarge, -kInterligne);
    QRect gauche = cadre, droite = cadre;
    if (height() > mesure.height() + 2 * kInterligne) {
        gauche.setHeight(mesure.height());
        droite.setTop(gauche.bottom() + 1);
    } else if (!entree.isEmpty()) {
        // What Enter does comes first; what stands keeps a third when both are long.
        const int voulue = mesure.horizontalAdvance(etat);
        const int gardee = std::min(voulue, cadre.width() / 3);
        gauche.setWidth(std::min(mesure.horizontalAdvance(entree) + 1,
                                 cadre.width() - gardee - (gardee > 0 ? kEcart : 0)));
        droite.setLeft(gauche.right() + kEcart);
    }
    const bool deux = gauche.height() != cadre.height();
    const auto elider = [&mesure](const QString& texte, const QRect& ou) {
        return mesure.elidedText(texte, Qt::ElideRight, ou.width());
    };
    return {
        {gauche, Qt::AlignLeft, elider(entree, gauche)},
        {droite, deux || entree.isEmpty() ? Qt::AlignLeft : Qt::AlignRight, elider(etat, droite)}};
}

void LabConseil::Ajuster() {
    const QFontMetrics mesure = fontMetrics();
    const int lignes = width() < kCaracteres * mesure.averageCharWidth() ? 2 : 1;
    setFixedHeight(lignes * mesure.height() + 2 * kInterligne);
    lignes_ = Lignes();
    const bool entier =
        lignes_.first.texte == Q(conseil_.entree) && lignes_.second.texte == Q(conseil_.etat);
    setToolTip(entier ? QString() : Texte());
}

void LabConseil::paintEvent(QPaintEvent* /*evenement*/) {
    QPainter peintre(this);
    for (const Ligne* ligne : {&lignes_.first, &lignes_.second})
        peintre.drawText(ligne->cadre, static_cast<int>(ligne->cote) | Qt::AlignVCenter,
                         ligne->texte);
}

void LabConseil::resizeEvent(QResizeEvent* evenement) {
    QWidget::resizeEvent(evenement);
    Ajuster();
}

void LabConseil::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange)
        Ajuster();
}

} // namespace orvalis
