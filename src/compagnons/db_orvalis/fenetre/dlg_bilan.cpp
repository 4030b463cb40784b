#include "compagnons/db_orvalis/fenetre/dlg_bilan.h"

#include "core/erreurs.h"
#include "ui/bureau/dessin_qt.h"
#include "ui/bureau/texte_qt.h"
#include "ui/widgets/police.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace orvalis {
namespace {

// A sheet of A4 in twips, and the margin that a printer leaves.
constexpr int kLargeurFeuille = 11906;
constexpr int kHauteurFeuille = 16838;
constexpr int kMarge = 200;
constexpr int kEntreFeuilles = 16; // pixels

// The sheets one below the other, as wide as there is room.
class VueFeuilles : public QWidget {
  public:
    explicit VueFeuilles(const FeuilleBilan& feuille) {
        ImprimerBilan(dessin_, feuille);
        setAccessibleName(Q(TitreBilan(feuille)));
        setAccessibleDescription(Q(SousTitreBilan(feuille)));
        QSizePolicy place(QSizePolicy::Expanding, QSizePolicy::Minimum);
        place.setHeightForWidth(true);
        setSizePolicy(place);
        setMinimumWidth(480);
    }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int largeur) const override {
        return static_cast<int>(dessin_.NbFeuilles()) *
                   (largeur * kHauteurFeuille / kLargeurFeuille + kEntreFeuilles) -
               kEntreFeuilles;
    }
    [[nodiscard]] QSize sizeHint() const override { return {760, heightForWidth(760)}; }

  protected:
    void resizeEvent(QResizeEvent* /*evenement*/) override {
        setMinimumHeight(heightForWidth(width()));
    }
    void paintEvent(QPaintEvent* /*evenement*/) override {
        const int hauteur = width() * kHauteurFeuille / kLargeurFeuille;
        const double echelle = static_cast<double>(width()) / kLargeurFeuille;
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::Antialiasing);
        for (std::size_t i = 0; i < dessin_.NbFeuilles(); ++i) {
            const int haut = static_cast<int>(i) * (hauteur + kEntreFeuilles);
            peintre.save();
            // Paper is white on a dark desktop too.
            peintre.fillRect(0, haut, width(), hauteur, Qt::white);
            peintre.translate(0, haut);
            peintre.scale(echelle, echelle);
            peintre.translate(kMarge, kMarge);
            dessin_.PeindreFeuille(peintre, i);
            peintre.restore();
        }
    }

  private:
    DessinQt dessin_;
};

} // namespace

DlgBilan::DlgBilan(QWidget* parent, const FeuilleBilan& feuille, const Demandes& demandes)
    : QDialog(parent), feuille_(feuille), demandes_(demandes) {
    setWindowTitle(Q(TitreBilan(feuille)));
    setObjectName(QStringLiteral("DlgBilan"));
    auto* defilement = new QScrollArea(this);
    defilement->setWidgetResizable(true);
    defilement->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    defilement->setWidget(new VueFeuilles(feuille));
    defilement->setAccessibleName(Q(TitreBilan(feuille)));
    auto* imprimer = new QPushButton(QStringLiteral("&Imprimer…"), this);
    imprimer->setToolTip(QStringLiteral("Sur une imprimante ou dans un fichier PDF"));
    imprimer->setAutoDefault(false);
    auto* fermer = new QPushButton(QStringLiteral("&Fermer"), this);
    fermer->setAutoDefault(false);
    connect(imprimer, &QPushButton::clicked, this, &DlgBilan::Imprimer);
    connect(fermer, &QPushButton::clicked, this, &QDialog::accept);
    auto* boutons = new QHBoxLayout;
    boutons->addStretch();
    boutons->addWidget(imprimer);
    boutons->addWidget(fermer);
    auto* colonne = new QVBoxLayout(this);
    colonne->addWidget(defilement);
    colonne->addLayout(boutons);
    resize(TailleSurEcran(*this, {820, 640}));
    defilement->setFocus(); // arrows and page keys move the sheets
}

void DlgBilan::Imprimer() {
    try {
        if (const auto imprimante = demandes_.imprimante(this))
            ImprimerBilan(*imprimante, feuille_);
    } catch (const Erreur& erreur) {
        demandes_.avertir(this, Q(erreur.what()));
    }
}

} // namespace orvalis
