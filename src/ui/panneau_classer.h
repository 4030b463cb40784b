// The panel that shows how far the sort has come.
#pragma once

#include <QFrame>

#include <cstdint>
#include <memory>
#include <string_view>

namespace orvalis::Ui {
class PictClasser;
}

namespace orvalis {

class PictClasser : public QFrame {
    Q_OBJECT
  public:
    explicit PictClasser(QWidget* parent = nullptr);
    ~PictClasser() override;

    void Commencer(std::int32_t nbFiches);
    void Montrer(std::string_view mot, std::int32_t position);
    void Terminer();

  private:
    std::unique_ptr<Ui::PictClasser> ui_;
};

} // namespace orvalis
