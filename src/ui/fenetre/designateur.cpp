#include "ui/fenetre/designateur.h"

#include <QAbstractButton>
#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QProxyStyle>

#include <utility>

namespace orvalis {
namespace {

class StyleDeMenu : public QProxyStyle {
  public:
    int styleHint(StyleHint quoi, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* retour) const override {
        return quoi == SH_Menu_AllowActiveAndDisabled
                   ? 1
                   : QProxyStyle::styleHint(quoi, option, widget, retour);
    }
};

} // namespace

Designateur::Designateur(std::function<void(const Commande*)> dire, QObject* parent)
    : QObject(parent), dire_(std::move(dire)), style_(std::make_unique<StyleDeMenu>()) {}

Designateur::~Designateur() = default;

void Designateur::Suivre(QObject& objet, const Commande& commande) {
    if (auto* action = qobject_cast<QAction*>(&objet)) {
        connect(action, &QAction::hovered, this, [this, &commande] { Designer(&commande); });
        for (QObject* porteur : action->associatedObjects())
            if (auto* menu = qobject_cast<QMenu*>(porteur))
                SuivreMenu(*menu);
    } else if (qobject_cast<QAbstractButton*>(&objet) != nullptr) {
        suivis_[&objet] = &commande;
        objet.installEventFilter(this);
    }
}

void Designateur::SuivreMenu(QMenu& menu) {
    if (!suivis_.try_emplace(&menu, nullptr).second)
        return;
    menu.setStyle(style_.get());
    connect(&menu, &QMenu::aboutToHide, this, [this] { Designer(nullptr); });
}

bool Designateur::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::Enter)
        Designer(suivis_.at(objet));
    else if ((evenement->type() == QEvent::Leave || evenement->type() == QEvent::Hide) &&
             ici_ == suivis_.at(objet))
        Designer(nullptr);
    return false;
}

void Designateur::Designer(const Commande* commande) {
    if (std::exchange(ici_, commande) != commande)
        dire_(commande);
}

} // namespace orvalis
