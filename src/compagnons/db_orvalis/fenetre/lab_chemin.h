// A path in one line, however long.
#pragma once

#include <QLabel>

namespace orvalis {

/// Leaves out the middle of a path that there is no room for; the tooltip has all of it. Makes no
/// window wider.
class LabChemin : public QLabel {
    Q_OBJECT
  public:
    using QLabel::QLabel;
    void Montrer(const QString& chemin);
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evenement) override;
};

} // namespace orvalis
