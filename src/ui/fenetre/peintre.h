// The one painter of the main window: makes the window what VoirFenetre says, and moves the focus
// as the state wishes. It writes only what differs from the last view, so that caret, undo and
// selection of a box stay, and it reads no record.
#pragma once

#include "ui/carte/vue.h"
#include "ui/fenetre/panneaux.h"

#include <optional>
#include <vector>

class QAction;
class QLabel;
class QMainWindow;
class QWidget;

namespace orvalis {

/// A menu entry and what its command asks of the state.
struct EntreeDeMenu {
    QAction* action = nullptr;
    unsigned conditions = 0;
};

class Peintre {
  public:
    /// `fenetre` and its panels must outlive the painter. The controls that rules name are looked
    /// up once, here.
    Peintre(QMainWindow& fenetre, const Panneaux& panneaux, QLabel& adieu,
            std::vector<EntreeDeMenu> entrees);

    /// Paints `vue`, then grants the wish of `foyer`, which is used up.
    void Peindre(VueFenetre vue, EtatFoyer& foyer);
    /// Whether what had the focus was hidden or disabled, so that nothing has it in the window that
    /// the operator works in, although `foyer` was not to be dropped.
    [[nodiscard]] bool FoyerPerdu(const EtatFoyer& foyer) const;
    /// The last view that was painted; none before the first.
    [[nodiscard]] const std::optional<VueFenetre>& Derniere() const { return derniere_; }
    /// What controls report meanwhile comes from the painter, not from the operator.
    [[nodiscard]] bool EnCours() const { return enCours_; }
    /// What the rules call a control of the window.
    [[nodiscard]] Foyer FoyerDe(const QWidget* widget) const;

  private:
    struct Nomme {
        Foyer foyer;
        QWidget* widget = nullptr;
    };

    template<typename Champ> [[nodiscard]] bool Differe(const VueFenetre& vue, Champ champ) const;
    void PeindreCarte(const VueFenetre& vue);
    void PeindreListe(const VueFenetre& vue);
    void PeindrePanneaux(const VueFenetre& vue);
    void PeindreFeuille(const VueFenetre& vue);
    void PeindreCommandes(const VueFenetre& vue);
    void AccorderVoeu(EtatFoyer& foyer);
    [[nodiscard]] QWidget* WidgetDe(const Foyer& foyer) const;

    QMainWindow& fenetre_;
    Panneaux p_;
    QLabel& adieu_;
    std::vector<EntreeDeMenu> entrees_;
    std::vector<Nomme> nommes_;
    std::optional<VueFenetre> derniere_; ///< the last view
    bool enCours_ = false;
};

} // namespace orvalis
