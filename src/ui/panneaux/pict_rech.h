// The search box.
#pragma once

#include "ui/carte/ecran.h"

#include <QWidget>

#include <memory>

namespace orvalis::Ui {
class PictRech;
}

namespace orvalis {

class PictRech : public QWidget {
    Q_OBJECT
  public:
    explicit PictRech(QWidget* parent = nullptr);
    ~PictRech() override;

    void Montrer(const PanneauRecherche& recherche);

  Q_SIGNALS:
    void texteChange(const QString& texte);
    void rechercheDemandee(); ///< Enter
    void cliquee();           ///< mouse press in the box

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    std::unique_ptr<Ui::PictRech> ui_;
};

} // namespace orvalis
