// The print check: did the labels come out well?
#pragma once

#include <QGroupBox>

#include <memory>

namespace orvalis::Ui {
class PictCtrlImpression;
}

namespace orvalis {

class PictCtrlImpression : public QGroupBox {
    Q_OBJECT
  public:
    explicit PictCtrlImpression(QWidget* parent = nullptr);
    ~PictCtrlImpression() override;

  private:
    std::unique_ptr<Ui::PictCtrlImpression> ui_;
};

} // namespace orvalis
