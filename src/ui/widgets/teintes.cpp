#include "ui/widgets/teintes.h"

#include <QEvent>
#include <QPalette>

namespace orvalis {
namespace {

QColor TeinteEnCouleur(Teinte teinte) {
    switch (teinte) {
    case Teinte::Vert:
        return {0, 255, 0};
    case Teinte::VertClair:
        return {192, 255, 192};
    case Teinte::RougeClair:
        return {255, 192, 192};
    case Teinte::Peche:
        return {255, 224, 192};
    case Teinte::Jaune:
        return {255, 255, 0};
    case Teinte::Aucune:
        break;
    }
    return {};
}

class Repeintre : public QObject {
  public:
    Repeintre(QWidget& widget, std::function<void()> peindre)
        : QObject(&widget), peindre_(std::move(peindre)) {}
    bool eventFilter(QObject* /*objet*/, QEvent* evenement) override {
        // Only windows are told that the application's palette changes; to what is in them this one
        // comes. It comes after painting too, which then changes nothing any more.
        if (evenement->type() == QEvent::PaletteChange)
            peindre_();
        return false;
    }

  private:
    std::function<void()> peindre_;
};

} // namespace

QString StyleAmbre(const char* marges) {
    return QStringLiteral("background:%1; color:%2; border-radius:4px; padding:%3;")
        .arg(kAmbre.name(), kEncreSurAmbre.name(), QLatin1String(marges));
}

void TeinterFond(QAbstractButton& bouton, Teinte teinte) {
    QPalette palette;
    if (teinte != Teinte::Aucune) {
        palette.setColor(QPalette::Button, TeinteEnCouleur(teinte));
        palette.setColor(QPalette::ButtonText, QColor(Qt::black));
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x6E, 0x5E, 0x4E));
    }
    bouton.setPalette(palette);
}

void RougirTexte(QAbstractButton& bouton) {
    PeindreSelonBureau(bouton, [&bouton] {
        QPalette palette;
        const QColor rouge = RougeSur(palette.color(QPalette::Button));
        palette.setColor(QPalette::Active, QPalette::ButtonText, rouge);
        palette.setColor(QPalette::Inactive, QPalette::ButtonText, rouge);
        bouton.setPalette(palette);
    });
}

QColor Melange(const QColor& fond, const QColor& encre, double part) {
    const auto mele = [part](int a, int b) { return qRound(a + (b - a) * part); };
    return {mele(fond.red(), encre.red()), mele(fond.green(), encre.green()),
            mele(fond.blue(), encre.blue())};
}

QPalette EnErreur(QPalette palette) {
    const QColor fond = palette.color(QPalette::Base);
    const QColor rouge = EstSombre(fond) ? RougeSur(fond) : QColor(0xA0, 0, 0);
    palette.setColor(QPalette::Text, rouge);
    palette.setColor(QPalette::HighlightedText, rouge);
    palette.setColor(QPalette::Highlight, fond);
    return palette;
}

void PeindreSelonBureau(QWidget& widget, std::function<void()> peindre) {
    peindre();
    widget.installEventFilter(new Repeintre(widget, std::move(peindre)));
}

} // namespace orvalis
