#include "compagnons/db_orvalis/fenetre/dlg_heures.h"

#include "geo/locator.h"
#include "ui/bureau/texte_qt.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTimeZone>
#include <QVBoxLayout>

namespace orvalis {

DlgHeures::DlgHeures(QWidget* parent, const QString& question, bool locator) : QDialog(parent) {
    setWindowTitle(QStringLiteral("Les heures"));
    auto* texte = new QLabel(question, this);
    texte->setWordWrap(true);
    utc_ = new QRadioButton(QStringLiteral("en &UTC"), this);
    locales_ = new QRadioButton(QStringLiteral("en heure &locale de ce fuseau\u00A0:"), this);
    zone_ = new QComboBox(this);
    zone_->setAccessibleName(QStringLiteral("Fuseau horaire"));
    for (const QByteArray& nom : QTimeZone::availableTimeZoneIds())
        if (nom.contains('/'))
            zone_->addItem(QString::fromLatin1(nom));
    const QString ici = QString::fromLatin1(QTimeZone::systemTimeZoneId());
    zone_->setCurrentText(zone_->findText(ici) >= 0 ? ici : QStringLiteral("Europe/Paris"));
    zone_->setEnabled(false);
    utc_->setChecked(true);
    connect(locales_, &QRadioButton::toggled, zone_, &QComboBox::setEnabled);
    auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    boutons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&Continuer"));
    boutons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Annuler"));
    connect(boutons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* colonne = new QVBoxLayout(this);
    for (QWidget* ligne : std::initializer_list<QWidget*>{texte, utc_, locales_, zone_})
        colonne->addWidget(ligne);
    if (locator) {
        locator_ = new QLineEdit(this);
        locator_->setMaxLength(static_cast<int>(kLargeurLocator));
        auto* legende = new QLabel(
            QStringLiteral("Locator de la s&tation, pour les contacts qui ne le disent pas\u00A0:"),
            this);
        legende->setBuddy(locator_);
        colonne->addSpacing(12);
        colonne->addWidget(legende);
        colonne->addWidget(locator_);
        connect(locator_, &QLineEdit::textChanged, this, [this, boutons] {
            const std::string lu = Reponse().locator;
            boutons->button(QDialogButtonBox::Ok)->setEnabled(lu.empty() || LocatorValide(lu));
        });
    }
    colonne->addSpacing(12);
    colonne->addWidget(boutons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    utc_->setFocus();
}

ReponseHeures DlgHeures::Reponse() const {
    return {locales_->isChecked() ? S(zone_->currentText()) : std::string{},
            locator_ == nullptr ? std::string{} : S(locator_->text().trimmed().toUpper())};
}

} // namespace orvalis
