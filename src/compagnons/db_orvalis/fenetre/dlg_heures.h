// Asks what the hours of a logbook are, once for each exchange.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QRadioButton>

#include <string>

namespace orvalis {

class DlgHeures : public QDialog {
  public:
    /// `question` says whose hours are meant.
    DlgHeures(QWidget* parent, const QString& question);

    /// The name of the zone; empty for UTC.
    [[nodiscard]] std::string Zone() const;

  private:
    QRadioButton* utc_;
    QRadioButton* locales_;
    QComboBox* zone_;
};

} // namespace orvalis
