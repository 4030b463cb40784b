// The summary on show: the sheets as they are printed.
#pragma once

#include "compagnons/db_orvalis/bilan_dessin.h"
#include "compagnons/db_orvalis/fenetre/demandes.h"

#include <QDialog>

namespace orvalis {

class DlgBilan : public QDialog {
  public:
    /// `feuille` and `demandes` must outlive the dialog.
    DlgBilan(QWidget* parent, const FeuilleBilan& feuille, const Demandes& demandes);

  private:
    void Imprimer();

    const FeuilleBilan& feuille_;
    const Demandes& demandes_;
};

} // namespace orvalis
