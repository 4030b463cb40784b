#include "ui/panneaux/pict_fiche.h"

#include "ui/bureau/texte_qt.h"
#include "ui/carte/carte.h"
#include "ui/widgets/boussole.h"
#include "ui/widgets/police.h"
#include "ui/widgets/presence.h"
#include "ui/widgets/rangees.h"
#include "ui/widgets/teintes.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>
#include <vector>

namespace orvalis {
namespace {

// The card, row by row: the first box of each cell; a box without a caption of its own
// shares the cell of the box before it. The eye follows the order of the Enter key; box 17 stands
// left of box 13.
constexpr std::array<std::array<Boite, 6>, 3> kRangees = {{
    {Boite::Indicatif, Boite::Date, Boite::Debut, Boite::Frequence, Boite::Mode,
     Boite::ReportDonne},
    {Boite::Prenom, Boite::Ville, Boite::Departement, Boite::SonLocator},
    {Boite::Manager, Boite::Remarque, Boite::MaQsl, Boite::SaQsl, Boite::MonLocator},
}};
constexpr Boite kPasDeBoite{};

// What a screen reader says before the figure.
const QString kDistanceLue = QStringLiteral("Distance : ");
const QString kAzimutLu = QStringLiteral("Azimut : ");

// A figure, which a screen reader says with what it measures.
void MontrerMesure(QLabel& label, const QString& nom, const QString& texte) {
    if (label.text() == texte)
        return;
    label.setText(texte);
    label.setAccessibleName(nom + texte);
}

void MontrerInfoJointe(QLabel& label, const InfoJointe* jointe) {
    label.setVisible(jointe != nullptr);
    if (jointe == nullptr)
        return;
    label.setText(QStringLiteral("+ ") + Q(jointe->texte));
    const QString dit = Q("Enregistrer joindrait " + DireInfoJointe(*jointe).texte);
    label.setToolTip(dit);
    label.setAccessibleName(dit);
}

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
    rangees_ = new Rangees(this);
    rangees_->setContentsMargins(10, 6, 10, 8);
    rangees_->setSpacing(4);
    FaireEntete();
    for (const auto& rangee : kRangees) {
        std::vector<QWidget*> cellules;
        for (const Boite premiere : rangee)
            if (premiere != kPasDeBoite)
                cellules.push_back(FaireCellule(premiere));
        if (&rangee == &kRangees.back())
            cellules.push_back(FaireResultats());
        const std::size_t nombre = cellules.size();
        rangees_->Ajouter(std::move(cellules), 10, nombre);
    }
    QWidget* avant = nullptr;
    for (const Boite boite : kOrdreTabulation) {
        if (avant != nullptr)
            setTabOrder(avant, &TxtFieldDe(boite));
        avant = &TxtFieldDe(boite);
    }
}

void PictFiche::FaireEntete() {
    noFicheLab_ = FaireLabel("NoFicheLab", this);
    noFicheLab_->setText(Q(kNumeroDeCarteVide));
    noFicheLab_->setFont(PoliceAjustee(font(), kTitre));
    labNonEnregistre_ = FaireLabel("LabNonEnregistre", this);
    labNonEnregistre_->setStyleSheet(StyleAmbre());
    labNonEnregistre_->hide();
    btActiveRech_ = new QPushButton(QStringLiteral("Voir contacts réalisés"), this);
    btActiveRech_->setObjectName(QStringLiteral("BtActiveRech"));
    btActiveRech_->setToolTip(
        QStringLiteral("Lister tous les contacts faits avec cette station (Alt+C)"));
    btActiveRech_->setShortcut(QKeySequence(QStringLiteral("Alt+C")));
    GarderPlace(*btActiveRech_);
    btActiveRech_->hide();
    // The longest number, so that it moves nothing.
    noFicheLab_->setMinimumWidth(QFontMetrics(noFicheLab_->font())
                                     .horizontalAdvance(QStringLiteral("Charger fiche N° 32767 ")));
    rangees_->Ajouter({noFicheLab_, labNonEnregistre_, btActiveRech_}, 6, 2);
}

TxtField* PictFiche::FaireBoite(const DescriptionBoite& boite) {
    auto* champ = new TxtField(boite, this);
    champ->setAccessibleName(Q(boite.nom));
    champ->setMinimumWidth(LargeurDeBoite(*champ, boite.longueur));
    boites_[Rang(boite.boite)] = champ;
    return champ;
}

// Where the window is narrow, a caption may be cut at the underscores that follow its words.
QLabel* PictFiche::FaireLegende(const DescriptionBoite& tete, QWidget* cellule) {
    auto* legende = FaireLabel("", cellule);
    legende->setObjectName(Q(tete.nomLegende));
    legende->setText(Q(tete.legende));
    legende->setFont(PoliceAjustee(font(), kPetite));
    const std::string_view mots = tete.legende.substr(0, tete.legende.find_last_not_of("_ ") + 1);
    legende->setMinimumWidth(legende->fontMetrics().horizontalAdvance(Q(mots)));
    return legende;
}

QWidget* PictFiche::FaireCellule(Boite premiere) {
    auto* cellule = new QWidget(this);
    auto* pile = new QVBoxLayout(cellule);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(1);
    const DescriptionBoite& tete = Decrire(premiere);
    QLabel* legende = FaireLegende(tete, cellule);
    if (premiere == Boite::Remarque || premiere == Boite::Manager)
        pile->addLayout(AvecInfoJointe(*legende, premiere));
    else
        pile->addWidget(legende);
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(4);
    std::size_t i = Rang(premiere);
    do
        ligne->addWidget(FaireBoite(kBoites[i]));
    while (++i < kNbBoites && kBoites[i].nomLegende.empty());
    legende->setBuddy(&TxtFieldDe(premiere));
    if (premiere == Boite::Departement) {
        labDept_ = FaireLabel("LabDept", cellule);
        labDept_->setMinimumWidth(
            QFontMetrics(font()).horizontalAdvance(QStringLiteral("Territoire-de-Belfort ")));
        TxtFieldDe(premiere).setFixedWidth(TxtFieldDe(premiere).minimumWidth());
        ligne->addWidget(labDept_, 1);
    }
    pile->addLayout(ligne);
    return cellule;
}

// Beside the caption of either half of INFO, what an earlier contact left there for it.
QHBoxLayout* PictFiche::AvecInfoJointe(QLabel& legende, Boite boite) {
    const bool manager = boite == Boite::Manager;
    QLabel*& jointe = infosJointes_[manager];
    jointe = FaireLabel(manager ? "LabInfoJointe_17" : "LabInfoJointe_13", legende.parentWidget());
    jointe->setFont(legende.font());
    jointe->setStyleSheet(StyleAmbre("0px 4px"));
    jointe->hide();
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(2);
    // The caption yields, so that no box moves when the mark comes.
    legende.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    jointe->setMinimumWidth(1);
    ligne->addWidget(&legende, 1);
    ligne->addWidget(jointe);
    return ligne;
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
        label->setMinimumHeight(TxtFieldDe(Boite::Indicatif).sizeHint().height());
        grille->addWidget(label, 1, colonne);
        return label;
    };
    labDist_ = ajouter(0, "Distance", "LabDist", QStringLiteral("12345.6 Km"));
    labAzim_ = ajouter(1, "Azimut", "LabAzim", QStringLiteral("000° "));
    labDist_->setAccessibleName(kDistanceLue);
    labAzim_->setAccessibleName(kAzimutLu);
    boussole_ = new Boussole(cadre);
    boussole_->setObjectName(QStringLiteral("BoussoleAzim"));
    grille->addWidget(boussole_, 0, 2, 2, 1, Qt::AlignVCenter);
    grille->setColumnStretch(3, 1);
    return cadre;
}

int PictFiche::LargeurPleine() const {
    const QMargins bords = rangees_->contentsMargins();
    return rangees_->LargeurPleine() + bords.left() + bords.right() + 2 * frameWidth();
}

void PictFiche::Ranger(int largeur) {
    const QMargins bords = rangees_->contentsMargins();
    rangees_->Ranger(largeur - bords.left() - bords.right() - 2 * frameWidth());
}

void PictFiche::MontrerCap(const VueCarte& vue) {
    QString lu = vue.cap ? QStringLiteral("Azimut %1, compté vers l'ouest : la station est "
                                          "au cap %2°, compté vers l'est")
                               .arg(Q(vue.azimut).trimmed())
                               .arg(*vue.cap, 3, 10, QLatin1Char('0'))
                         : QString();
    if (vue.azimutTrompeur)
        lu += QStringLiteral(" (l'azimut ne vaut pas au-delà du 180e méridien)");
    if (boussole_->accessibleName() == lu)
        return;
    boussole_->Montrer(vue.cap);
    for (QWidget* widget : {static_cast<QWidget*>(labAzim_), static_cast<QWidget*>(boussole_)})
        widget->setToolTip(lu);
    boussole_->setAccessibleName(lu);
}

void PictFiche::Montrer(const VueCarte& vue) {
    for (const DescriptionBoite& d : kBoites) {
        const BoiteMontree& montree = vue.boites[Rang(d.boite)];
        TxtField& ici = TxtFieldDe(d.boite);
        if (const QString texte = Q(montree.texte); ici.text() != texte)
            ici.Montrer(texte);
        ici.Colorer(montree.couleur, vue.enErreur == d.boite);
        ici.PrendreDuTexte(vue.prendDuTexte);
    }
    noFicheLab_->setText(Q(vue.numero));
    MontrerMesure(*labDist_, kDistanceLue, Q(vue.distance));
    MontrerMesure(*labAzim_, kAzimutLu, Q(vue.azimut));
    MontrerCap(vue);
    labDept_->setText(Q(vue.departement));
    if (const QString bandeau = Q(vue.bandeau); !bandeau.isEmpty())
        labNonEnregistre_->setText(bandeau);
    labNonEnregistre_->setVisible(!vue.bandeau.empty());
    for (const Boite boite : {Boite::Remarque, Boite::Manager})
        MontrerInfoJointe(*infosJointes_[boite == Boite::Manager],
                          vue.infoJointe && vue.infoJointe->boite == boite ? &*vue.infoJointe
                                                                           : nullptr);
    Presenter(*btActiveRech_, vue.activeRech);
    Activer(*this, vue.active);
}

} // namespace orvalis
