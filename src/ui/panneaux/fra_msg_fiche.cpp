#include "ui/panneaux/fra_msg_fiche.h"

#include "ui/bureau/texte_qt.h"
#include "ui/widgets/police.h"
#include "ui/widgets/teintes.h"
#include "ui_fra_msg_fiche.h"

#include <QEvent>
#include <QPainter>

namespace orvalis {
namespace {

constexpr int kBord = 5; // pixels between the border and what is in it

int LargeurDeTexte(const QLabel& label, const char* texte) {
    return label.fontMetrics().horizontalAdvance(QLatin1String(texte));
}

} // namespace

FraMsgFiche::FraMsgFiche(QWidget* parent)
    : QGroupBox(parent), ui_(std::make_unique<Ui::FraMsgFiche>()) {
    ui_->setupUi(this);
    ui_->FraLabTouches->setFont(PoliceAjustee(font(), kPetite));
    // Room for nearly all of what it will say, so that its coming moves nothing; the text it is
    // designed with, which nobody sees, takes no more.
    ui_->FraLab01->setFixedWidth(LargeurDeTexte(*ui_->FraLab01, "32767"));
    ui_->FraLab02->setMinimumWidth(LargeurDeTexte(*ui_->FraLab02, "HB9ABC/P"));
    constexpr std::size_t kEtroit = 5;
    for (QWidget* bouton : {ui_->FraCmdOui, ui_->FraCmdNon})
        bouton->setMinimumWidth(LargeurDeBoite(*bouton, kEtroit));
    Encadrer();
    TeinterFond(*ui_->FraCmdOui, Teinte::VertClair);
    TeinterFond(*ui_->FraCmdNon, Teinte::RougeClair);
}

FraMsgFiche::~FraMsgFiche() = default;

void FraMsgFiche::Montrer(const Question& question) {
    setTitle(Q(question.legende));
    Encadrer();
    ui_->FraLab01->setMaximumWidth(QWIDGETSIZE_MAX);
    ui_->FraLab01->setText(Q(question.numero));
    ui_->FraLab02->setText(Q(question.indicatif));
}

// The style's own frame is pale, or a mere line; what waits for an answer has a border all round,
// which its caption breaks. It is no higher than what is between card and sheet anyway.
void FraMsgFiche::Encadrer() {
    setContentsMargins(2 * kBord, QFontMetrics(PoliceAjustee(font(), kPetite)).height(), kBord,
                       kBord / 2);
}

void FraMsgFiche::changeEvent(QEvent* evenement) {
    QGroupBox::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange || evenement->type() == QEvent::StyleChange)
        Encadrer();
}

void FraMsgFiche::paintEvent(QPaintEvent* /*evenement*/) {
    constexpr qreal kTrait = 2;
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setFont(PoliceAjustee(font(), kPetite));
    const QString legende = title().trimmed();
    QRect place = peintre.fontMetrics().boundingRect(legende);
    place.moveTopLeft({2 * kBord, 0});
    peintre.setPen(QPen(palette().color(QPalette::Highlight), kTrait));
    peintre.drawRoundedRect(QRectF(rect()).adjusted(1, place.height() / 2.0, -1, -1), kBord, kBord);
    peintre.fillRect(place.adjusted(-kBord / 2, 0, kBord / 2, 0), palette().window());
    peintre.setPen(palette().color(QPalette::WindowText));
    peintre.drawText(place, Qt::AlignCenter, legende);
}

} // namespace orvalis
