#include "ui/widgets/vue_etiquette.h"

#include "print/etiquette.h"
#include "ui/carte/donnees_etiquette.h"
#include "ui/widgets/teintes.h"

#include <algorithm>
#include <string>

namespace orvalis {
namespace {

constexpr int kMarge = 40;           // twips of paper around the frame
constexpr qreal kTraitMoindre = 0.6; // pixels; thinner a line fades
constexpr PositionEtiquette kCoin = {1, 1};
constexpr int kLargeurPapier = kLargeurEtiquette + 2 * kMarge;
constexpr int kHauteurPapier = kHauteurEtiquette + 2 * kMarge;

// The heading of a label on the screen is nobody's business but its own: that of the label printed
// last stays what it is.
DessinQt Dessiner(const QslSlotRecord& etiquette) {
    DessinQt dessin;
    DonneesEtiquette donnees = DonneesDeEtiquette(etiquette);
    std::string enTete;
    ImprimerEtiquette(dessin, kCoin, GenreEtiquette::Remplie, donnees, {}, enTete);
    return dessin;
}

} // namespace

VueEtiquette::VueEtiquette(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void VueEtiquette::Montrer(const std::optional<ApercuEtiquette>& apercu) {
    if (apercu_ == apercu)
        return;
    if (!apercu)
        dessin_ = {};
    else if (!apercu_ || apercu_->etiquette != apercu->etiquette)
        dessin_ = Dessiner(apercu->etiquette);
    apercu_ = apercu;
    setText(dessin_.Textes().join(QLatin1Char('\n')));
    update();
}

int VueEtiquette::HauteurPour(int largeur) {
    return largeur * kHauteurPapier / kLargeurPapier;
}

QSize VueEtiquette::minimumSizeHint() const {
    const int hauteur = fontMetrics().height();
    return {hauteur * kLargeurPapier / kHauteurPapier, hauteur};
}

void VueEtiquette::paintEvent(QPaintEvent* /*evenement*/) {
    if (!apercu_)
        return;
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const qreal echelle =
        std::min(width() / qreal{kLargeurPapier}, height() / qreal{kHauteurPapier});
    if ((alignment() & Qt::AlignHCenter) != 0)
        peintre.translate((width() - echelle * kLargeurPapier) / 2, 0);
    if ((alignment() & Qt::AlignVCenter) != 0)
        peintre.translate(0, (height() - echelle * kHauteurPapier) / 2);
    peintre.scale(echelle, echelle);
    peintre.fillRect(0, 0, kLargeurPapier, kHauteurPapier, Qt::white);
    const auto marquer = [&peintre](bool douteuse, const BandeEtiquette& bande) {
        if (douteuse)
            peintre.fillRect(kMarge, kMarge + bande.haut, kLargeurEtiquette, bande.bas - bande.haut,
                             kAmbre);
    };
    marquer(apercu_->sansIndicatif, kBandeEnTete);
    marquer(apercu_->sansManager, kBandeManager);
    const OrigineEtiquette coin = OrigineDeEtiquette(kCoin);
    peintre.translate(kMarge - coin.x, kMarge - coin.y);
    dessin_.Peindre(peintre, kTraitMoindre / echelle);
}

} // namespace orvalis
