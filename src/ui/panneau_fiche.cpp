#include "ui/panneau_fiche.h"

#include "ui/police.h"
#include "ui/texte_qt.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvalis {
namespace {

// The card, row by row: the first box of each cell, 0 for none; a box without a caption of its own
// shares the cell of the box before it. The eye follows the order of the Enter key; box 17 stands
// left of box 13.
constexpr std::array<std::array<std::size_t, 6>, 3> kRangees = {
    {{1, 2, 3, 5, 6, 7}, {12, 9, 11, 10}, {17, 13, 14, 15, 16}}};

constexpr std::array<std::string_view, kNbBoites> kNomsAccessibles = {
    "Indicatif",   "Date",       "Heure de début", "Heure de fin", "Fréquence",
    "Mode",        "RST donné",  "RST reçu",       "QTH",          "Son locator",
    "Département", "Prénom",     "Informations",   "Ma QSL",       "Sa QSL",
    "Mon locator", "QSL manager"};

QLabel* FaireLabel(const char* nom, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(nom));
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

PictFiche::PictFiche(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("PictFiche"));
    setFrameShape(QFrame::StyledPanel);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(10, 6, 10, 8);
    pile->setSpacing(4);
    auto* entete = new QHBoxLayout;
    FaireEntete(*entete);
    pile->addLayout(entete);
    for (const auto& rangee : kRangees) {
        auto* ligne = new QHBoxLayout;
        ligne->setSpacing(10);
        for (const std::size_t premiere : rangee)
            if (premiere > 0)
                ligne->addWidget(FaireCellule(premiere));
        if (&rangee == &kRangees.back())
            ligne->addWidget(FaireResultats(), 1);
        ligne->addStretch(1);
        pile->addLayout(ligne);
    }
    QWidget* avant = nullptr;
    for (const std::size_t index : kOrdreTabulation) {
        if (avant != nullptr)
            setTabOrder(avant, &Boite(index));
        avant = &Boite(index);
    }
}

void PictFiche::FaireEntete(QHBoxLayout& entete) {
    noFicheLab_ = FaireLabel("NoFicheLab", this);
    noFicheLab_->setText(QStringLiteral("  Fiche N° 0  "));
    noFicheLab_->setFont(PoliceAjustee(font(), kTitre));
    labNonEnregistre_ = FaireLabel("LabNonEnregistre", this);
    labNonEnregistre_->setText(QStringLiteral("Nouveau contact, pas encore enregistré"));
    labNonEnregistre_->setStyleSheet(
        QStringLiteral("background:#ffd866; color:#3a2d00; border-radius:4px; padding:1px 8px;"));
    labNonEnregistre_->hide();
    btActiveRech_ = new QPushButton(QStringLiteral("Voir contacts réalisés"), this);
    btActiveRech_->setObjectName(QStringLiteral("BtActiveRech"));
    btActiveRech_->setToolTip(QStringLiteral("Lister tous les contacts faits avec cette station"));
    GarderPlace(*btActiveRech_);
    btActiveRech_->hide();
    connect(btActiveRech_, &QPushButton::clicked, this, &PictFiche::activeRechDemande);
    entete.addWidget(noFicheLab_);
    entete.addWidget(labNonEnregistre_);
    entete.addStretch(1);
    entete.addWidget(btActiveRech_);
}

ZoneSaisie* PictFiche::FaireBoite(const DescriptionBoite& boite) {
    auto* zone = new ZoneSaisie(boite, this);
    zone->setAccessibleName(Q(kNomsAccessibles[boite.index - 1]));
    const int chiffre = QFontMetrics(zone->font()).horizontalAdvance(QLatin1Char('0'));
    constexpr int kBords = 14;
    zone->setMinimumWidth(static_cast<int>(boite.longueur) * chiffre + kBords);
    boites_[boite.index - 1] = zone;
    return zone;
}

QWidget* PictFiche::FaireCellule(std::size_t premiere) {
    auto* cellule = new QWidget(this);
    auto* pile = new QVBoxLayout(cellule);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(1);
    const DescriptionBoite& tete = orvalis::Boite(premiere);
    auto* legende = FaireLabel("", cellule);
    legende->setObjectName(Q(tete.etiquette));
    legende->setText(Q(tete.legende));
    legende->setFont(PoliceAjustee(font(), kPetite));
    // The underscores of a caption may be cut where the window is narrow, its box may not.
    legende->setMinimumWidth(1);
    pile->addWidget(legende);
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(4);
    std::size_t i = premiere;
    do
        ligne->addWidget(FaireBoite(orvalis::Boite(i)));
    while (++i <= kNbBoites && orvalis::Boite(i).etiquette.empty());
    legende->setBuddy(&Boite(premiere));
    if (premiere == 11) {
        labDept_ = FaireLabel("LabDept", cellule);
        labDept_->setMinimumWidth(
            QFontMetrics(font()).horizontalAdvance(QStringLiteral("Territoire-de-Belfort ")));
        Boite(11).setFixedWidth(Boite(11).minimumWidth());
        ligne->addWidget(labDept_, 1);
    }
    pile->addLayout(ligne);
    return cellule;
}

QWidget* PictFiche::FaireResultats() {
    auto* cadre = new QWidget(this);
    auto* grille = new QGridLayout(cadre);
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setHorizontalSpacing(10);
    grille->setVerticalSpacing(1);
    const QFont grasse = PoliceAjustee(font(), 1.15);
    const auto ajouter = [&](int colonne, const char* titre, const char* nom,
                             const QString& modele) {
        auto* legende = new QLabel(QString::fromUtf8(titre), cadre);
        legende->setFont(PoliceAjustee(font(), kPetite));
        grille->addWidget(legende, 0, colonne);
        QLabel* label = FaireLabel(nom, cadre);
        label->setFont(grasse);
        label->setMinimumWidth(QFontMetrics(grasse).horizontalAdvance(modele));
        label->setMinimumHeight(Boite(1).sizeHint().height());
        grille->addWidget(label, 1, colonne);
        return label;
    };
    labDist_ = ajouter(0, "Distance", "LabDist", QStringLiteral("12345.6 Km"));
    labAzim_ = ajouter(1, "Azimut", "LabAzim", QStringLiteral("000° "));
    grille->setColumnStretch(2, 1);
    return cadre;
}

std::string PictFiche::TexteBoite(std::size_t index) const {
    return S(boites_[index - 1]->text());
}

void PictFiche::MontrerBoite(std::size_t index, std::string_view texte) {
    Boite(index).Montrer(Q(texte));
}

void PictFiche::MontrerNumero(std::string_view texte) {
    noFicheLab_->setText(Q(texte));
}

void PictFiche::MontrerDistance(std::string_view texte) {
    labDist_->setText(Q(texte));
    labDist_->setAccessibleName(QStringLiteral("Distance : ") + Q(texte));
}

void PictFiche::MontrerAzimut(std::string_view texte) {
    labAzim_->setText(Q(texte));
    labAzim_->setAccessibleName(QStringLiteral("Azimut : ") + Q(texte));
}

void PictFiche::MontrerDepartement(std::string_view nom) {
    labDept_->setText(Q(nom));
}

void PictFiche::MontrerActiveRech(bool visible) {
    if (!visible)
        btActiveRech_->clearFocus(); // hiding it would push the focus into a box
    btActiveRech_->setVisible(visible);
}

void PictFiche::MontrerNonEnregistre(bool visible) {
    labNonEnregistre_->setVisible(visible);
}

void ColorerZone(PictFiche& fiche, std::size_t index, Couleur couleur) {
    fiche.Boite(index).Colorer(couleur);
}

} // namespace orvalis
