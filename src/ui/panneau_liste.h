// The log list: one page of twenty-five contacts, its paging buttons, scroll bar and keys.
#pragma once

#include "core/pages.h"

#include <QWidget>

#include <memory>
#include <span>
#include <string>

namespace orvalis::Ui {
class PictListe;
}

namespace orvalis {

enum class BoutonPage { Premiere, Precedente, Suivante, Derniere };

class PictListe : public QWidget {
    Q_OBJECT
  public:
    explicit PictListe(QWidget* parent = nullptr);
    ~PictListe() override;

    /// Puts a page into the list; no line is selected.
    void Remplir(std::span<const std::string> lignes, std::int32_t page, std::int32_t nbPages);
    /// Range and value of the scroll bar, without its change being reported.
    void ReglerDefilement(std::int32_t nbFiches, std::int32_t valeur);
    void ActiverPagination(bool actif);
    /// Selects a line without reporting it; out of range: none.
    void Selectionner(int ligne);
    [[nodiscard]] int LigneChoisie() const;
    [[nodiscard]] int NbLignes() const;
    /// Record number of a line, 0 when there is no such line.
    [[nodiscard]] std::int32_t NumeroDe(int ligne) const;
    void MontrerNom(const QString& texte);
    void DonnerFoyer();

  Q_SIGNALS:
    void ligneChoisie(std::int32_t numero);
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
