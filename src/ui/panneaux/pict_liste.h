// The log list: one page of twenty-five contacts, its paging buttons, scroll bar and keys.
#pragma once

#include "core/pages.h"
#include "ui/carte/ecran.h"

#include <QWidget>

#include <memory>

namespace orvalis::Ui {
class PictListe;
}

namespace orvalis {

class PictListe : public QWidget {
    Q_OBJECT
  public:
    explicit PictListe(QWidget* parent = nullptr);
    ~PictListe() override;

    /// The page, its selected line, the scroll bar; `pageChangee`: not the contents of the last
    /// time.
    void Montrer(const ListeDuCahier& liste, bool pagination, bool pageChangee);
    /// The wheel turned over a page that shows all its lines: what the scroll bar makes of it.
    void Rouler(QWheelEvent* evenement);

  Q_SIGNALS:
    void ligneChoisie(int ligne); ///< from 0
    void boutonPage(orvalis::BoutonPage bouton);
    void defilement(int valeur);
    void touche(orvalis::ToucheListe touche, bool* prise); ///< `*prise` set: the key moved a page

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

  private:
    void Dimensionner();
    std::unique_ptr<Ui::PictListe> ui_;
};

} // namespace orvalis
