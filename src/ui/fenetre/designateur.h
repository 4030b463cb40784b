// Which command the pointer or a menu key stands on, grey ones included.
#pragma once

#include "ui/flux/commandes.h"

#include <QObject>

#include <functional>
#include <map>
#include <memory>

class QMenu;
class QStyle;

namespace orvalis {

class Designateur : public QObject {
    Q_OBJECT
  public:
    /// `dire` is called with the command, or with nothing when none is stood on any more.
    explicit Designateur(std::function<void(const Commande*)> dire, QObject* parent = nullptr);
    ~Designateur() override;

    /// Follows a menu entry or a button; others of the table are left alone.
    void Suivre(QObject& objet, const Commande& commande);

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    void Designer(const Commande* commande);
    void SuivreMenu(QMenu& menu);

    std::function<void(const Commande*)> dire_;
    std::map<const QObject*, const Commande*> suivis_;
    const Commande* ici_ = nullptr;
    std::unique_ptr<QStyle> style_; ///< lets the arrow keys stand on grey entries
};

} // namespace orvalis
