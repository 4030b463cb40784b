// A list of lines that reports only what the operator chose.
#pragma once

#include <QListWidget>

namespace orvalis {

/// Qt makes the first line current when a list without a current one takes the focus; here that
/// would show another card than the operator asked for.
class ListeLignes : public QListWidget {
    Q_OBJECT
  public:
    using QListWidget::QListWidget;

  protected:
    void focusInEvent(QFocusEvent* evenement) override;
};

} // namespace orvalis
