// A list of lines that begin with a record number; it reports only what the operator chose.
#pragma once

#include <QListWidget>

#include <span>
#include <string>

namespace orvalis {

/// Qt makes the first line current when a list without a current one takes the focus; here that
/// would show another card than the operator asked for. So would a typed letter, which Qt takes for
/// the beginning of a line.
class ListeLignes : public QListWidget {
    Q_OBJECT
  public:
    explicit ListeLignes(QWidget* parent = nullptr);

    /// Shows these lines; none is selected. `enPlace`: scrolled as the lines before were.
    void Remplir(std::span<const std::string> lignes, bool enPlace = false);
    /// Selects a line (from 0) without reporting it; out of range: none.
    void Selectionner(int ligne);
    /// Takes the fixed-pitch font at the size of `modele`; returns the pixels that `caracteres`
    /// characters of it need, frame included.
    [[nodiscard]] int Composer(const QFont& modele, int caracteres);

  Q_SIGNALS:
    void ligneChoisie(int ligne); ///< from 0; a click on the selected line included

  protected:
    void focusInEvent(QFocusEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
};

} // namespace orvalis
