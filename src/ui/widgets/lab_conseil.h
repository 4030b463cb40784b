// The line of advice under the sheet: what Enter does now, and what stands. Its height follows from
// font and width alone, so that nothing moves when its text changes.
#pragma once

#include "ui/carte/conseil.h"

#include <QWidget>

#include <utility>

namespace orvalis {

class LabConseil : public QWidget {
    Q_OBJECT
    /// Both parts, as screen readers say them.
    Q_PROPERTY(QString text READ Texte)
  public:
    explicit LabConseil(QWidget* parent = nullptr);

    /// What does not fit is elided, and the tooltip then says all of it. Screen readers are told
    /// when the key of the advice changes, not at each letter.
    void Montrer(const Conseil& conseil);
    [[nodiscard]] QString Texte() const;

  Q_SIGNALS:
    void dite(); ///< screen readers were told

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

  private:
    /// The two parts side by side or one above the other, as they are painted.
    struct Ligne {
        QRect cadre;
        Qt::Alignment cote;
        QString texte;
    };
    [[nodiscard]] std::pair<Ligne, Ligne> Lignes() const;
    void Ajuster();

    Conseil conseil_;
    std::pair<Ligne, Ligne> lignes_;
};

} // namespace orvalis
