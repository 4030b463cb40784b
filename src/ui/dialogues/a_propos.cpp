#include "ui/dialogues/a_propos.h"

#include "ui/bureau/icone.h"
#include "ui/bureau/systeme.h"
#include "ui/widgets/police.h"
#include "ui_a_propos.h"

#include <QIcon>
#include <QShortcut>
#include <QSysInfo>

namespace orvalis {

APropos::APropos(Systeme& systeme, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::APropos>()) {
    ui_->setupUi(this);
    ui_->LabTitre->setFont(PoliceAjustee(font(), 1.8));
    ui_->LabIcone->setPixmap(IconeProgramme().pixmap(QSize(72, 72)));
    ui_->LabVersion->setText(QStringLiteral("Version " ORVALIS_VERSION));
    ui_->LabSysteme->setText(QStringLiteral("Qt %1\n%2 (%3)")
                                 .arg(QString::fromLatin1(qVersion()),
                                      QSysInfo::prettyProductName(),
                                      QSysInfo::currentCpuArchitecture()));
#ifdef Q_OS_WIN
    connect(ui_->BtInfosSysteme, &QPushButton::clicked, this, [this, &systeme] {
        if (const auto raison = systeme.Lancer(QStringLiteral("msinfo32")))
            systeme.Avertir(this, *raison);
    });
#else
    // This system has no information tool of its own to start.
    Q_UNUSED(systeme);
    ui_->BtInfosSysteme->hide();
#endif
    connect(ui_->BtGuide, &QPushButton::clicked, this, [this] {
        guideVoulu_ = true;
        accept();
    });
    connect(ui_->BtFermerInfos, &QPushButton::clicked, this, &QDialog::accept);
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, ui_->BtGuide,
            &QPushButton::click);
    ui_->BtFermerInfos->setDefault(true);
}

APropos::~APropos() = default;

} // namespace orvalis
