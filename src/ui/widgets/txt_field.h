// One of the seventeen entry boxes: a line edit that filters what is typed or pasted and reports
// what happened to it. It decides nothing.
#pragma once

#include "ui/carte/boites.h"
#include "ui/carte/carte.h"

#include <QLineEdit>

namespace orvalis {

class FiltreEdition;

class TxtField : public QLineEdit {
    Q_OBJECT
  public:
    TxtField(const DescriptionBoite& boite, QWidget* parent);

    /// Shows a text as it is, past the key rules, and clears the undo history.
    void Montrer(const QString& texte);
    /// Whether it takes text; else it is for reading, choosing and copying, and looks the same.
    void PrendreDuTexte(bool prend);
    /// Background by a colour of the boxes; at rest it is the palette's own. `erreur`: the text
    /// reads "ERREUR".
    void Colorer(Couleur couleur, bool erreur);

  Q_SIGNALS:
    void entree();  ///< Enter, either one
    void pressee(); ///< mouse press, or F2
    void cliquee(); ///< press and release, or F2

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void inputMethodEvent(QInputMethodEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;

  private:
    void AppliquerCouleur();

    const DescriptionBoite& boite_;
    FiltreEdition* filtre_;
    bool pressionRecue_ = false;
    bool compose_ = false; ///< a dead key waits, painted but in no text yet
    Couleur couleur_;
    bool erreur_ = false;
};

} // namespace orvalis
