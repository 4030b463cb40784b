// The About box.
#pragma once

#include <QDialog>

#include <memory>

namespace orvalis::Ui {
class APropos;
}

namespace orvalis {

class Systeme;

class APropos : public QDialog {
    Q_OBJECT
  public:
    APropos(Systeme& systeme, QWidget* parent);
    ~APropos() override;
    /// The box was left for the guide.
    [[nodiscard]] bool GuideVoulu() const { return guideVoulu_; }

  private:
    std::unique_ptr<Ui::APropos> ui_;
    bool guideVoulu_ = false;
};

} // namespace orvalis
