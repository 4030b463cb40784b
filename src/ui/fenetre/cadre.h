// What the main window scrolls: the column of the list and the column of the card, side by side
// where there is room, else the card above the list, so that it only ever scrolls up and down.
#pragma once

#include <QScrollArea>

#include <functional>

class QBoxLayout;

namespace orvalis {

class Cadre : public QScrollArea {
  public:
    /// What the right column is told of the width it gets, and answers about itself.
    struct Droite {
        QWidget& widget;
        std::function<int()> largeurPleine;      ///< it needs no more than this
        std::function<void(int largeur)> ranger; ///< breaks its rows
    };
    Cadre(QWidget& gauche, Droite droite, QWidget* parent);

    /// The size at which everything is seen at its best.
    [[nodiscard]] QSize TailleVoulue() const;

  protected:
    void resizeEvent(QResizeEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    void Arranger();
    /// Brings what has the focus into view, once the layouts have settled.
    void VoirLeFoyer();

    QWidget& gauche_;
    Droite droite_;
    QBoxLayout* ligne_;
    bool attendu_ = false; ///< a look at the focus is under way
};

} // namespace orvalis
