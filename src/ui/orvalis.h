// The main window: owns the session and the panels, lays them out, and connects what the panels
// report to the flows. Nothing else is decided here.
#pragma once

#include "core/commandes.h"
#include "core/session.h"
#include "print/etiquette.h"
#include "qsl/feuille_qsl.h"
#include "ui/plateau.h"

#include <QMainWindow>

#include <exception>
#include <functional>
#include <string_view>

class QAction;
class QTimer;
class QVBoxLayout;

namespace orvalis {

class Orvalis : public QMainWindow {
    Q_OBJECT
  public:
    /// `systeme` must outlive the window.
    explicit Orvalis(Systeme& systeme, QWidget* parent = nullptr);
    ~Orvalis() override;

  protected:
    bool event(QEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    using Action = std::function<void()>;

    void Disposer();
    [[nodiscard]] QWidget* ColonneGauche();
    [[nodiscard]] QWidget* ColonneDroite();
    void BrancherMenus();
    /// Enables the menu entries whose command may run now.
    void ActualiserMenus();
    [[nodiscard]] bool Attend(Commande commande) const;
    void BrancherMaintenance();
    void BrancherQsl();
    void BrancherImpression();
    void BrancherPanneaux();
    void BrancherNavigation();
    void BrancherFiche();
    void BrancherSaisie();
    void Demarrer();
    /// Runs a flow; a failure is told in French and ends the program with an error status.
    void Executer(const Action& flux);
    /// Connects a signal to a flow run under Executer.
    template<typename Emetteur, typename Signal, typename Flux>
    void Brancher(Emetteur* emetteur, Signal signal, Flux flux) {
        connect(emetteur, signal, this,
                [this, flux](auto... arguments) { Executer([&] { flux(arguments...); }); });
    }

    Session session_;
    FeuilleQSL feuille_;
    std::string enTete_;
    Plateau p_;
    QTimer* timer1_ = nullptr;
    int temoinDemarrage_ = 4; ///< start-up marker: 4 until the window is initialised
    bool demarrageEnCours_ = false;
};

} // namespace orvalis
