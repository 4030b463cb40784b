// The search box.
#pragma once

#include <QWidget>

#include <memory>
#include <string>

namespace orvalis::Ui {
class PictRech;
}

namespace orvalis {

class PictRech : public QWidget {
    Q_OBJECT
  public:
    explicit PictRech(QWidget* parent = nullptr);
    ~PictRech() override;

    [[nodiscard]] std::string Texte() const;
    void Vider();

  Q_SIGNALS:
    void rechercheDemandee(); ///< Enter
    void cliquee();           ///< mouse press in the box

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    std::unique_ptr<Ui::PictRech> ui_;
};

} // namespace orvalis
