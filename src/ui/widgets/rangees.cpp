#include "ui/widgets/rangees.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace orvalis {
namespace {

bool PrendPlace(const QWidget& widget) {
    return !widget.isHidden() || widget.sizePolicy().retainSizeWhenHidden();
}

} // namespace

void Rangees::Ajouter(std::vector<QWidget*> widgets, int espace, std::size_t repousse) {
    rangees_.push_back({std::move(widgets), espace, repousse});
    Ranger(std::numeric_limits<int>::max());
}

Rangees::Coupures Rangees::Couper(const Rangee& rangee, int largeur) {
    Coupures coupures = {0};
    int prise = 0;
    for (std::size_t i = 0; i < rangee.widgets.size(); ++i) {
        // What is out of sight breaks no row, whatever it said when it was seen last.
        if (!PrendPlace(*rangee.widgets[i]))
            continue;
        const int large = LargeurMinimale(*rangee.widgets[i]);
        if (prise > 0 && prise + rangee.espace + large > largeur) {
            coupures.push_back(i);
            prise = large;
        } else {
            prise += (prise > 0 ? rangee.espace : 0) + large;
        }
    }
    return coupures;
}

void Rangees::Ranger(int largeur) {
    std::vector<Coupures> voulues;
    for (const Rangee& rangee : rangees_)
        voulues.push_back(Couper(rangee, largeur));
    if (voulues == coupures_)
        return;
    coupures_ = std::move(voulues);
    while (const QLayoutItem* ancienne = takeAt(0))
        delete ancienne; // the row alone: its widgets stay with their parent
    for (std::size_t r = 0; r < rangees_.size(); ++r) {
        Coupures bornes = coupures_[r];
        bornes.push_back(rangees_[r].widgets.size());
        for (std::size_t i = 1; i < bornes.size(); ++i)
            Poser(rangees_[r], bornes[i - 1], bornes[i]);
    }
}

void Rangees::Poser(const Rangee& rangee, std::size_t premier, std::size_t fin) {
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(rangee.espace);
    addLayout(ligne);
    for (std::size_t i = premier; i < fin; ++i) {
        if (i == std::max(rangee.repousse, premier))
            ligne->addStretch(1);
        ligne->addWidget(rangee.widgets[i]);
    }
    if (fin <= rangee.repousse)
        ligne->addStretch(1);
}

int Rangees::LargeurPleine() const {
    int pleine = 0;
    for (const Rangee& rangee : rangees_) {
        int prise = -rangee.espace;
        for (const QWidget* widget : rangee.widgets)
            prise += rangee.espace + LargeurMinimale(*widget);
        pleine = std::max(pleine, prise);
    }
    return pleine;
}

} // namespace orvalis
