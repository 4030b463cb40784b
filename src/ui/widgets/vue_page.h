// The page on show, drawn as a ruled sheet of the paper log. A click on a row reports its record.
#pragma once

#include "ui/carte/ecran.h"

#include <QAbstractScrollArea>
#include <QWheelEvent>

#include <memory>
#include <vector>

namespace orvalis {

class VuePage : public QAbstractScrollArea {
    Q_OBJECT
  public:
    explicit VuePage(QWidget* parent = nullptr);

    /// The rows of a page.
    void Montrer(std::shared_ptr<const ContenuPage> contenu);
    /// A text across the sheet, for a page without rows.
    void Inviter(const QString& texte);
    /// Marks the row of the record on the card, or none.
    void Marquer(NumeroFiche numero);
    [[nodiscard]] QSize sizeHint() const override;
    /// Where row `rang` (from 0) lies in the viewport.
    [[nodiscard]] QRect RectDeRangee(int rang) const;
    /// The sheet as fixed-pitch text, a line per row.
    [[nodiscard]] QString toPlainText() const;

  Q_SIGNALS:
    void rangeeChoisie(orvalis::NumeroFiche numero);
    void roulee(QWheelEvent* evenement); ///< the wheel, over the sheet

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

  private:
    struct Mesures {
        QFont police;
        qreal caractere = 0; ///< width of one character; it may be a fraction
        int ligne = 0;       ///< height of one row
        int tete = 0;        ///< height of the head
        int largeur = 0;     ///< whole sheet
        int hauteur = 0;
        int appoint = 0; ///< what each column gets of the width that is left over

        [[nodiscard]] int Colonne(std::size_t rang) const;
    };
    [[nodiscard]] Mesures Mesurer(qreal points) const;
    void Ajuster();
    void PeindreTete(QPainter& peintre) const;
    void PeindreInvitation(QPainter& peintre) const;
    void DireTout();
    void PeindreRangees(QPainter& peintre) const;

    [[nodiscard]] const std::vector<RangeePage>& Rangees() const;

    std::shared_ptr<const ContenuPage> contenu_ = std::make_shared<const ContenuPage>();
    NumeroFiche marquee_;
    QString invitation_;
    Mesures mesures_;
};

} // namespace orvalis
