// The main window: owns the state of the program, lays the panels out and connects what they report
// to the flows. It runs the flows, one inside the other, and has the window painted when the
// outermost one ends. Nothing else is decided here.
#pragma once

#include "qsl/feuille_qsl.h"
#include "ui/carte/ecran.h"
#include "ui/carte/entree_tenue.h"
#include "ui/carte/session.h"
#include "ui/fenetre/exterieur.h"
#include "ui/fenetre/panneaux.h"
#include "ui/fenetre/peintre.h"
#include "ui/flux/plateau.h"

#include <QMainWindow>

#include <functional>
#include <string>

class QLabel;
class QTimer;

namespace orvalis {

class Cadre;
class Designateur;
class Rangees;
struct Commande;

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
    /// Whether a flow runs while the window is frozen.
    enum class QuandGele { Non, Oui };

    void Disposer();
    void OrdonnerTabulation();
    void Dimensionner();
    [[nodiscard]] QWidget* ColonneGauche();
    [[nodiscard]] QWidget* ColonneDroite();
    /// Fills the menu bar; returns its entries for the painter.
    [[nodiscard]] std::vector<EntreeDeMenu> BrancherMenus();
    void BrancherBoutons();
    /// The command that the pointer or a menu key stands on; none for nullptr.
    void Designer(const Commande* commande);
    void BrancherCommande(QObject& objet, const Commande& commande);
    void BrancherListes();
    void BrancherFiche();
    void BrancherFeuille();
    void BrancherFoyer();
    /// The first activation.
    void LancerDemarrage();
    /// Runs a flow; a failure is told in French and ends the program with an error status.
    void Executer(const Action& flux, QuandGele quand = QuandGele::Non);
    /// Lets events run inside a flow, the window painted before.
    void Sortir(const Action& action);
    void Peindre();
    /// Connects a signal to a flow run under Executer.
    template<typename Emetteur, typename Signal, typename Flux>
    void Brancher(Emetteur* emetteur, Signal signal, Flux flux) {
        connect(emetteur, signal, this,
                [this, flux](auto... arguments) { Executer([&] { flux(arguments...); }); });
    }

    Session session_;
    Ecran ecran_;
    FeuilleQSL feuille_;
    std::string enTete_;
    Exterieur exterieur_;
    Plateau p_;
    QLabel* adieu_ = nullptr;
    Cadre* cadre_ = nullptr;
    Rangees* rangeeBoutons_ = nullptr; ///< under the card
    Panneaux panneaux_;
    Designateur* designateur_ = nullptr;
    std::unique_ptr<Peintre> peintre_;
    QTimer* timer1_ = nullptr;
    std::vector<const QObject*> memeGeles_; ///< act although the window is frozen
    int profondeur_ = 0;                    ///< flows under way, one inside the other
    bool demarrageEnCours_ = false;
    EntreeTenue entree_;
};

} // namespace orvalis
