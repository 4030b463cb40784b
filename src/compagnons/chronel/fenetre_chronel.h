// The window of Chronel: the time, and who sets it.
#pragma once

#include "compagnons/chronel/regles/etat_service.h"
#include "compagnons/chronel/regles/saisie_heure.h"
#include "compagnons/chronel/service_heure.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <functional>
#include <memory>

namespace orvalis {

namespace Ui {
class FenetreChronel;
}

/// What the computer's clock says.
using Horloge = std::function<std::chrono::system_clock::time_point()>;

class FenetreChronel : public QWidget {
    Q_OBJECT
  public:
    explicit FenetreChronel(Horloge horloge = std::chrono::system_clock::now);
    ~FenetreChronel() override;

  protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    void Preparer();
    void Brancher();
    void Battre();
    void Montrer();
    void MontrerMessage(const VueChronel& vue);
    void Armer();
    void ChangerReseau();
    void ProposerDate();
    void RevenirAuFoyer();
    [[nodiscard]] LectureHeure LireSaisie() const;
    void ReglerALaMain();

    std::unique_ptr<Ui::FenetreChronel> ui_;
    Horloge horloge_;
    EtatService etat_;
    ServiceHeure service_;
    QTimer battement_;
    QTimer relecture_;
    QPointer<QWidget> foyer_; ///< had the focus when the last demand made it grey
};

} // namespace orvalis
