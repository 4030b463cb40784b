#include "ui/widgets/style_lisible.h"

#include "ui/widgets/teintes.h"

#include <QStyleOption>

#include <algorithm>
#include <array>
#include <cmath>

namespace orvalis {
namespace {

double Clarte(const QColor& couleur) {
    const auto lineaire = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lineaire(couleur.redF()) + 0.7152 * lineaire(couleur.greenF()) +
           0.0722 * lineaire(couleur.blueF()) + 0.05;
}

struct TexteSurFond {
    QPalette::ColorRole texte, fond, plein; // `plein`: the text as it is when it is not pale
};
constexpr std::array<TexteSurFond, 7> kTextes = {{
    {QPalette::WindowText, QPalette::Window, QPalette::WindowText},
    {QPalette::Text, QPalette::Base, QPalette::Text},
    {QPalette::ButtonText, QPalette::Button, QPalette::ButtonText},
    {QPalette::PlaceholderText, QPalette::Base, QPalette::Text},
    {QPalette::Link, QPalette::Base, QPalette::Text},
    {QPalette::LinkVisited, QPalette::Base, QPalette::Text},
    {QPalette::HighlightedText, QPalette::Highlight, QPalette::NColorRoles}, // black or white
}};

// `texte` as it is seen on `fond`, mixed with `plein` until it can be read.
QColor Lisible(const QColor& texte, const QColor& fond, const QColor& plein) {
    const QColor vu = Melange(fond, texte, texte.alphaF());
    constexpr int kPas = 16;
    for (int part = 0; part < kPas; ++part)
        if (const QColor essai = Melange(vu, plein, static_cast<double>(part) / kPas);
            Contraste(essai, fond) >= kContrasteTexte)
            return essai;
    return plein;
}

constexpr int kBoutonSombre = 140; // per cent

QColor ExtremeSur(const QColor& fond) {
    return Contraste(Qt::black, fond) > Contraste(Qt::white, fond) ? Qt::black : Qt::white;
}

// An edge on a dark window, whatever colour the text in it has.
QColor Bord(const QPalette& palette) {
    return Melange(palette.color(QPalette::Window), Qt::white, 0.4);
}

// The edges that this style derives from the colour of the window, by darkening it.
bool APourtour(QStyle::PrimitiveElement element) {
    switch (element) {
    case QStyle::PE_Frame:
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_FrameGroupBox:
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorRadioButton:
    case QStyle::PE_PanelButtonCommand:
        return true;
    default:
        return false;
    }
}

} // namespace

double Contraste(const QColor& a, const QColor& b) {
    return std::max(Clarte(a), Clarte(b)) / std::min(Clarte(a), Clarte(b));
}

void StyleLisible::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    if (EstSombre(palette.color(QPalette::Window)))
        palette.setColor(QPalette::Mid, Bord(palette));
    for (const auto groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        for (const auto& [texte, fond, plein] : kTextes) {
            if (groupe != QPalette::Disabled && texte == plein)
                continue; // the desktop's own
            const QColor ici = palette.color(groupe, texte);
            QColor sur = palette.color(groupe, fond);
            // Buttons are drawn lighter than their colour, by as much as this where they are dark.
            if (fond == QPalette::Button && EstSombre(sur))
                sur = sur.lighter(kBoutonSombre);
            if (plein != QPalette::NColorRoles)
                palette.setColor(groupe, texte,
                                 Lisible(ici, sur, palette.color(QPalette::Active, plein)));
            else if (Contraste(ici, sur) < kContrasteTexte)
                palette.setColor(groupe, texte, ExtremeSur(sur));
        }
}

void StyleLisible::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* peintre, const QWidget* widget) const {
    const bool sombre = option != nullptr && EstSombre(option->palette.color(QPalette::Window));
    if (!sombre || !APourtour(element) || baseStyle()->name() != QStringLiteral("fusion"))
        return QProxyStyle::drawPrimitive(element, option, peintre, widget);
    // Darker than dark is not seen. The option is the caller's: it gets its palette back.
    QPalette& palette = const_cast<QStyleOption*>(option)->palette;
    const QPalette avant = palette;
    constexpr int kAssombri = 140; // per cent, what the style darkens by
    palette.setColor(QPalette::Window, Bord(avant).lighter(kAssombri));
    QProxyStyle::drawPrimitive(element, option, peintre, widget);
    palette = avant;
}

} // namespace orvalis
