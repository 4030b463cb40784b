#include "compagnons/db_orvalis/fenetre/dlg_apercu.h"

#include "core/texte.h"
#include "echange/rapport.h"
#include "ui/bureau/texte_qt.h"
#include "ui/widgets/police.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvalis {
namespace {

QString EnLigne(const LigneRapport& ligne) {
    constexpr std::size_t kAvantMax = 200; // the report has all of it
    QString texte = QStringLiteral("ligne %1").arg(ligne.ligne);
    for (const std::string_view mot : {ligne.indicatif, ligne.champ})
        if (!mot.empty())
            texte += QStringLiteral("  ") + Q(mot);
    if (!ligne.avant.empty())
        texte += QStringLiteral("  «\u00A0%1%2\u00A0»")
                     .arg(Q(Gauche(ligne.avant, kAvantMax)),
                          ligne.avant.size() > kAvantMax ? QStringLiteral("…") : QString());
    return texte + QStringLiteral("\u00A0: ") + Q(ligne.devenu);
}

} // namespace

EtudeImport Etudier(const DemandeImport& demande, const Fuseau& fuseau) {
    EtudeImport etude;
    etude.bilan = EtudierImport(demande, fuseau, [&etude](const LigneRapport& ligne) {
        if (etude.lignes.size() < kLignesApercu)
            etude.lignes << EnLigne(ligne);
        else if (etude.lignes.size() == kLignesApercu)
            etude.lignes << QStringLiteral("… Le rapport de l'import dira aussi les suivantes.");
    });
    return etude;
}

DlgApercu::DlgApercu(QWidget* parent, const QString& source, const EtudeImport& etude)
    : QDialog(parent) {
    setWindowTitle(QStringLiteral("Avant d'importer"));
    const BilanImport& bilan = etude.bilan;
    auto* titre = new QLabel(source, this);
    titre->setTextFormat(Qt::PlainText);
    titre->setFont(PoliceAjustee(font(), kTitre));
    auto* table = new QFormLayout;
    for (const CompteImport& compte : ComptesImport()) {
        auto* valeur = new QLabel(QString::number(bilan.*compte.nombre), this);
        valeur->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000000")));
        valeur->setAlignment(Qt::AlignRight);
        table->addRow((compte.dont ? QStringLiteral("    dont ") : QString()) + Q(compte.nom),
                      valeur);
    }
    table->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    table->setFormAlignment(Qt::AlignLeft);
    auto* pourquoi =
        new QLabel(etude.lignes.isEmpty()
                       ? QStringLiteral("Chaque contact entre tel quel.")
                       : QStringLiteral("&Ce qui change ou reste dehors, et pourquoi\u00A0:"),
                   this);
    auto* lignes = new QPlainTextEdit(etude.lignes.join(QLatin1Char('\n')), this);
    lignes->setObjectName(QStringLiteral("TxtPourquoi"));
    lignes->setReadOnly(true);
    lignes->setTabChangesFocus(true);
    lignes->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    lignes->setLineWrapMode(QPlainTextEdit::NoWrap);
    lignes->setVisible(!etude.lignes.isEmpty());
    pourquoi->setBuddy(lignes);
    auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton* importer = boutons->button(QDialogButtonBox::Ok);
    importer->setText(QStringLiteral("&Importer…"));
    importer->setToolTip(QStringLiteral("Choisir le nouveau cahier, puis l'écrire"));
    importer->setEnabled(bilan.repris > 0);
    boutons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Annuler"));
    connect(boutons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* colonne = new QVBoxLayout(this);
    colonne->addWidget(titre);
    colonne->addLayout(table);
    colonne->addWidget(pourquoi);
    colonne->addWidget(lignes, 1);
    colonne->addWidget(boutons);
    resize(TailleSurEcran(*this, {fontMetrics().averageCharWidth() * 90, sizeHint().height()}));
    (importer->isEnabled() ? importer : boutons->button(QDialogButtonBox::Cancel))->setFocus();
}

} // namespace orvalis
