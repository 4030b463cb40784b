// The operator's guide in a window of the program: the text and the pictures that the package
// brings, with the way back and a search. It stays open beside the window while one works.
#pragma once

#include <QDialog>

#include <string_view>

class QLineEdit;
class QTextBrowser;

namespace orvalis {

class Guide : public QDialog {
    Q_OBJECT
  public:
    explicit Guide(QWidget* parent);

    /// Shows the guide that belongs to `parent` at a chapter, by its anchor (ui/carte/chapitre.h);
    /// none: at its beginning. Opens it when it is not open.
    static void Ouvrir(QWidget& parent, std::string_view chapitre);

  protected:
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    void Disposer();
    /// Goes to the next place that holds the text searched for, or the one before.
    void Chercher(bool enArriere);
    /// What the text on show lacks: anchors of its titles, lines between the cells of its tables.
    void Habiller();
    void AjusterImages();

    QTextBrowser* texte_;
    QLineEdit* recherche_;
    QString habille_; ///< path of the text that has them
};

} // namespace orvalis
