#include "ui/teintes.h"

#include <QPalette>

namespace orvalis {
namespace {

QColor Couleur(Teinte teinte) {
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
    case Teinte::Rouge:
        return {0xC0, 0, 0};
    case Teinte::Aucune:
        break;
    }
    return {};
}

} // namespace

void TeinterFond(QAbstractButton& bouton, Teinte teinte) {
    QPalette palette;
    if (teinte != Teinte::Aucune) {
        palette.setColor(QPalette::Button, Couleur(teinte));
        palette.setColor(QPalette::ButtonText, QColor(Qt::black));
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x80, 0x70, 0x60));
    }
    bouton.setPalette(palette);
}

void TeinterTexte(QAbstractButton& bouton, Teinte teinte) {
    QPalette palette;
    if (teinte == Teinte::Rouge) {
        const bool sombre = palette.color(QPalette::Button).lightness() < 128;
        const QColor rouge = sombre ? QColor(0xFF, 0x80, 0x80) : Couleur(teinte);
        palette.setColor(QPalette::Active, QPalette::ButtonText, rouge);
        palette.setColor(QPalette::Inactive, QPalette::ButtonText, rouge);
    }
    bouton.setPalette(palette);
}

} // namespace orvalis
