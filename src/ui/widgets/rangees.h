// Rows of controls that break where the window is too narrow for them.
#pragma once

#include <QVBoxLayout>
#include <QWidget>

#include <cstddef>
#include <vector>

namespace orvalis {

/// The least width that `widget` takes, on show or not.
[[nodiscard]] inline int LargeurMinimale(const QWidget& widget) {
    return widget.minimumSizeHint().expandedTo(widget.minimumSize()).width();
}

class Rangees : public QVBoxLayout {
  public:
    /// No parent: the layout is put into another.
    explicit Rangees(QWidget* parent = nullptr) : QVBoxLayout(parent) {}

    /// One more row: `widgets` in their order with `espace` pixels between them; from widget
    /// `repousse` (from 0) on they stand at the right end, the others at the left.
    void Ajouter(std::vector<QWidget*> widgets, int espace, std::size_t repousse);
    /// Breaks the rows so that they need no more than `largeur`, as far as their widgets allow.
    void Ranger(int largeur);
    /// What the widest row needs unbroken.
    [[nodiscard]] int LargeurPleine() const;

  private:
    struct Rangee {
        std::vector<QWidget*> widgets;
        int espace = 0;
        std::size_t repousse = 0;
    };
    /// Places of the first widget of each row on show.
    using Coupures = std::vector<std::size_t>;

    [[nodiscard]] static Coupures Couper(const Rangee& rangee, int largeur);
    void Poser(const Rangee& rangee, std::size_t premier, std::size_t fin);

    std::vector<Rangee> rangees_;
    std::vector<Coupures> coupures_; ///< as they stand now
};

} // namespace orvalis
