// Asks what the hours of a logbook are, once for each exchange.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QRadioButton>

#include <string>

namespace orvalis {

/// What is not in the files themselves.
struct ReponseHeures {
    std::string zone;    ///< its name; empty for UTC
    std::string locator; ///< of the station; empty where it was not asked for, or not given
};

class DlgHeures : public QDialog {
  public:
    /// `question` says whose hours are meant; with `locator` the station's own is asked for as
    /// well.
    DlgHeures(QWidget* parent, const QString& question, bool locator);

    [[nodiscard]] ReponseHeures Reponse() const;

  private:
    QLineEdit* locator_ = nullptr;
    QRadioButton* utc_;
    QRadioButton* locales_;
    QComboBox* zone_;
};

} // namespace orvalis
