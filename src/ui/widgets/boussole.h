// A small compass: a needle towards the correspondent, the North on top.
#pragma once

#include <QWidget>

#include <optional>

namespace orvalis {

class Boussole : public QWidget {
    Q_OBJECT
  public:
    explicit Boussole(QWidget* parent = nullptr);

    /// Degrees from the North by the East; with none nothing is drawn.
    void Montrer(std::optional<int> cap);
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evenement) override;

  private:
    std::optional<int> cap_;
};

} // namespace orvalis
