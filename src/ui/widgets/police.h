// Fonts, and the room that texts and controls take.
#pragma once

#include <QFont>
#include <QFontDatabase>
#include <QScreen>
#include <QWidget>

#include <cstddef>

namespace orvalis {

/// The font `famille` at the size of `modele`, or the system's fixed-pitch font where the
/// installed one of that name is not fixed-pitch (a look-alike would break the columns).
[[nodiscard]] inline QFont PoliceFixe(const char* famille, const QFont& modele) {
    QFont police = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QString nom = QString::fromLatin1(famille);
    if (QFontDatabase::hasFamily(nom) && QFontDatabase::isFixedPitch(nom))
        police.setFamily(nom);
    police.setPointSizeF(modele.pointSizeF());
    return police;
}

/// `police` at `facteur` times its size: a small caption, or a title, which is bold.
[[nodiscard]] inline QFont PoliceAjustee(QFont police, qreal facteur) {
    police.setPointSizeF(police.pointSizeF() * facteur);
    police.setBold(police.bold() || facteur > 1);
    return police;
}
inline constexpr qreal kPetite = 0.85; ///< a caption above its box
inline constexpr qreal kTitre = 1.2;   ///< the title of a panel

/// Width in which the box `boite` shows `caracteres` digits.
[[nodiscard]] inline int LargeurDeBoite(const QWidget& boite, std::size_t caracteres) {
    constexpr int kBords = 14;
    const int chiffre = boite.fontMetrics().horizontalAdvance(QLatin1Char('0'));
    return static_cast<int>(caracteres) * chiffre + kBords;
}

/// `voulue`, as far as the screen of `fenetre` has room for it with its frame and title.
[[nodiscard]] inline QSize TailleSurEcran(const QWidget& fenetre, const QSize& voulue) {
    constexpr QSize kAutour(16, 40);
    const QScreen* ecran = fenetre.screen();
    return ecran == nullptr ? voulue : voulue.boundedTo(ecran->availableSize() - kAutour);
}

/// Lets a widget come and go without moving anything.
inline void GarderPlace(QWidget& widget) {
    QSizePolicy place = widget.sizePolicy();
    place.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(place);
}

} // namespace orvalis
