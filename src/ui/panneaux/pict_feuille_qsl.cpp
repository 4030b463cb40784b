#include "ui/panneaux/pict_feuille_qsl.h"

#include "ui/bureau/texte_qt.h"
#include "ui/carte/boites.h"
#include "ui/carte/place_voisine.h"
#include "ui/widgets/filtre_edition.h"
#include "ui/widgets/police.h"
#include "ui/widgets/presence.h"
#include "ui/widgets/rangees.h"
#include "ui/widgets/teintes.h"
#include "ui/widgets/vue_etiquette.h"
#include "ui_pict_feuille_qsl.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <utility>
#include <vector>

namespace orvalis {
namespace {

constexpr std::size_t Largeur(ChampEtiquette champ) {
    return Description(champ).largeur;
}

// An entry box of the editor: a label's field, as wide as the field on the sheet.
struct DescriptionBoiteEditeur {
    std::size_t boite;
    std::size_t longueur;
    Touches touches;
    std::size_t rangee; // row of the editor, from 1
    const char* bulle;
};

constexpr std::size_t kRangeeContact = 1; // whose label it is, captions beside the boxes

constexpr std::array<DescriptionBoiteEditeur, kNbBoitesEtiquette> kBoitesEditeur = {{
    {kBoiteIndicatif, Largeur(ChampEtiquette::Indicatif), Touches::Majuscules, 2,
     "Indicatif du correspondant"},
    {kBoiteDate, Largeur(ChampEtiquette::Date), Touches::Libres, 2, "Date du contact"},
    {kBoiteHeure, Largeur(ChampEtiquette::Heure), Touches::Libres, 2, "Heure du contact"},
    {kBoiteFrequence, Largeur(ChampEtiquette::Frequence), Touches::Libres, 3,
     "Fréquence du contact"},
    {kBoiteMode, Largeur(ChampEtiquette::Mode), Touches::Majuscules, 3, "Mode du contact"},
    {kBoiteReport, Largeur(ChampEtiquette::Report), Touches::Libres, 3,
     "Report donné au correspondant"},
    {kBoiteLigne1, Largeur(ChampEtiquette::Ligne1), Touches::Libres, 4,
     "Imprimé avant «\u00A0Confirming QSO with\u00A0»\u00A0: votre indicatif, par exemple"},
    {kBoiteLigne2, Largeur(ChampEtiquette::Ligne2), Touches::Libres, 4,
     "Imprimée après «\u00A0Via QSL Manager\u00A0»\u00A0; l'étiquette en garde 15 caractères"},
    {kBoiteManager, Largeur(ChampEtiquette::Voie), Touches::Majuscules, 5,
     "Indicatif du manager, quand la carte ne part ni par le bureau ni en direct"},
    {kBoiteRappel, Largeur(ChampEtiquette::Indicatif), Touches::Majuscules, kRangeeContact,
     "Station à qui la carte est destinée"},
    {kBoiteNumeroFiche, Largeur(ChampEtiquette::Fiche), Touches::Chiffres, kRangeeContact,
     "Numéro du contact dans le cahier"},
}};

constexpr bool DansLOrdre() {
    for (std::size_t i = 0; i < kNbBoitesEtiquette; ++i)
        if (kBoitesEditeur[i].boite != i + 1)
            return false;
    return true;
}
static_assert(DansLOrdre(), "the table is indexed by box");

constexpr int kTraitEtudiee = 2; // width of the frame of the place that the editor is about

QString Nom(const char* prefixe, int k, int chiffres = 1) {
    return QStringLiteral("%1%2").arg(QLatin1String(prefixe)).arg(k, chiffres, 10, QChar(u'0'));
}

// A text for a button: an ampersand is no mnemonic.
QString SansMnemonique(std::string_view texte) {
    return Q(texte).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString BulleChoix(EtatEtiquette etat) {
    switch (etat) {
    case EtatEtiquette::Preparee:
        return QStringLiteral("Revoir cette étiquette, pour la supprimer ou la laisser");
    case EtatEtiquette::Retiree:
        return QStringLiteral("Remettre cette étiquette sur la feuille");
    case EtatEtiquette::Libre:
        break;
    }
    return QStringLiteral("Cette étiquette manque sur la feuille\u00A0: ne pas l'utiliser");
}

} // namespace

PictFeuilleQSL::PictFeuilleQSL(QWidget* parent)
    : QFrame(parent), ui_(std::make_unique<Ui::PictFeuilleQSL>()) {
    ui_->setupUi(this);
    ui_->planche->setAutoFillBackground(true);
    ui_->planche->setBackgroundRole(QPalette::Base);
    ui_->NrTag->setFont(PoliceAjustee(font(), kTitre));
    for (Place place = kPremierePlace; place <= kDernierePlace; ++place) {
        ControlesPlace& controles = places_[EtatFeuille::Rang(place)];
        controles = FaireControles(place);
        const int rang = place - kPremierePlace;
        ui_->grillePlaces->addWidget(controles.cadre, rang / 2, rang % 2);
        ui_->grillePlaces->setRowStretch(rang / 2, 1);
    }
    FaireBoites();
    FaireApercu();
    BrancherBoutons();
    OrdonnerTabulation();
    PeindreSelonBureau(*this, [this] { PeindreFonds(); });
}

PictFeuilleQSL::~PictFeuilleQSL() = default;

PictFeuilleQSL::ControlesPlace PictFeuilleQSL::FaireControles(Place place) {
    const int k = place.Valeur();
    ControlesPlace controles;
    controles.cadre = new QFrame(ui_->planche);
    controles.cadre->setObjectName(Nom("PictBtEtiq", k, 2));
    controles.cadre->setFrameShape(QFrame::Box);
    controles.cadre->setFrameShadow(QFrame::Plain);
    controles.cadre->setForegroundRole(QPalette::WindowText);
    controles.tag = new QPushButton(QStringLiteral("Etiquette [%1] libre").arg(k), controles.cadre);
    controles.tag->setObjectName(Nom("BtTag_", k));
    controles.tag->setToolTip(QStringLiteral("Préparer une étiquette sans partir d'une fiche"));
    controles.choix = new QPushButton(QStringLiteral("Retirer"), controles.cadre);
    controles.choix->setObjectName(Nom("BtChoix_", k));
    for (QPushButton* bouton : {controles.tag, controles.choix})
        bouton->installEventFilter(this);
    controles.etiquette = new VueEtiquette(controles.cadre);
    controles.etiquette->setObjectName(Nom("EtiquetteVue_", k));
    controles.etiquette->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    auto* pile = new QVBoxLayout(controles.cadre);
    pile->setContentsMargins(5, 3, 5, 3);
    pile->setSpacing(2);
    pile->addWidget(controles.tag);
    auto* dessous = new QHBoxLayout;
    dessous->setSpacing(4);
    dessous->addWidget(controles.etiquette, 1);
    dessous->addWidget(controles.choix, 0, Qt::AlignBottom);
    pile->addLayout(dessous, 1);
    connect(controles.choix, &QPushButton::clicked, this, [this, place] { Q_EMIT choix(place); });
    connect(controles.tag, &QPushButton::clicked, this, [this, place] { Q_EMIT tag(place); });
    return controles;
}

// Under the editor one thing at a time, in the same place: what to do when there is no label, the
// label as it will be printed, the print check.
void PictFeuilleQSL::FaireApercu() {
    apercu_ = new QWidget(ui_->colonneEdition);
    etiquette_ = new VueEtiquette(apercu_);
    etiquette_->setObjectName(QStringLiteral("EtiquetteApercu"));
    etiquette_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    etiquette_->setToolTip(QStringLiteral("L'étiquette telle qu'elle sera imprimée"));
    avis_ = new QLabel(apercu_);
    avis_->setObjectName(QStringLiteral("LabApercu"));
    avis_->setTextFormat(Qt::PlainText);
    avis_->setWordWrap(true);
    avis_->setStyleSheet(StyleAmbre());
    auto* pile = new QVBoxLayout(apercu_);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(4);
    pile->addWidget(etiquette_);
    pile->addWidget(avis_);
    pile->addStretch(1);
    ui_->dessous->addWidget(apercu_, 0, 0);
}

void PictFeuilleQSL::FaireBoites() {
    btIndicatif_ = new QPushButton(QStringLiteral("&Mon indicatif"), ui_->PictTag);
    btIndicatif_->setObjectName(QStringLiteral("BtIndicatifQSL"));
    btIndicatif_->setToolTip(QStringLiteral("Mettre mon indicatif dans l'en-tête"));
    const std::array<QHBoxLayout*, 5> rangees = {ui_->rangee1, ui_->rangee2, ui_->rangee3,
                                                 ui_->rangee4, ui_->rangee5};
    for (std::size_t i = 0; i < kNbBoitesEtiquette; ++i)
        FaireBoite(i, *rangees[kBoitesEditeur[i].rangee - 1]);
    ui_->rangee1->insertStretch(2, 1); // the callsign left, the number of the contact right
}

void PictFeuilleQSL::FaireBoite(std::size_t rang, QHBoxLayout& rangee) {
    const DescriptionBoiteEditeur& d = kBoitesEditeur[rang];
    BoiteEditeur& boite = boites_[rang];
    boite.legende = new QLabel(Q(kNomsBoitesEtiquette[d.boite]), ui_->PictTag);
    boite.legende->setFont(PoliceAjustee(boite.legende->font(), kPetite));
    boite.texte = new QLineEdit(ui_->PictTag);
    boite.filtre = new FiltreEdition(*boite.texte, d.touches, d.longueur);
    boite.texte->setObjectName(Nom("FLdText_", static_cast<int>(d.boite)));
    boite.texte->setAccessibleName(Q(kNomsBoitesEtiquette[d.boite]));
    boite.texte->setToolTip(QString::fromUtf8(d.bulle));
    boite.legende->setBuddy(boite.texte);
    boite.texte->setMinimumWidth(LargeurDeBoite(*boite.texte, d.longueur));
    if (d.boite == kBoiteRappel) { // shown, never typed into
        boite.texte->setFrame(false);
        boite.texte->setReadOnly(true);
        boite.texte->setFocusPolicy(Qt::ClickFocus);
    }
    if (d.rangee == kRangeeContact) {
        rangee.addWidget(boite.legende);
        rangee.addWidget(boite.texte);
    } else {
        auto* cellule = new QVBoxLayout;
        cellule->setSpacing(1);
        cellule->addStretch(1);
        cellule->addWidget(boite.legende);
        cellule->addWidget(boite.texte);
        rangee.addLayout(cellule, static_cast<int>(d.longueur));
        if (d.boite == kBoiteLigne1)
            rangee.addWidget(btIndicatif_, 0, Qt::AlignBottom);
    }
    connect(boite.texte, &QLineEdit::textChanged, this,
            [this, &d](const QString& texte) { Q_EMIT boiteSaisie(d.boite, texte); });
    connect(boite.texte, &QLineEdit::returnPressed, this,
            [this, &d] { Q_EMIT boiteEntree(d.boite); });
}

void PictFeuilleQSL::BrancherBoutons() {
    TeinterFond(*ui_->BtValidQSL, Teinte::VertClair);
    RougirTexte(*ui_->BtDelQSL);
    for (QPushButton* bouton : {ui_->BtValidQSL, ui_->BtDelQSL, ui_->BtLeaveQSL, ui_->BtPrintQSL,
                                ui_->BtRestore, ui_->BtQuitQSL})
        GarderPlace(*bouton);
    GarderPlace(*ui_->LabAide);
    connect(ui_->OptBureau, &QRadioButton::clicked, this,
            [this] { Q_EMIT voieChoisie(VoieQSL::Bureau); });
    connect(ui_->OptDirect, &QRadioButton::clicked, this,
            [this] { Q_EMIT voieChoisie(VoieQSL::Direct); });
}

// The editor, its buttons, those of the sheet, then the places in the order of their numbers.
void PictFeuilleQSL::OrdonnerTabulation() {
    std::vector<QWidget*> ordre = {Boite(kBoiteNumeroFiche).texte};
    for (std::size_t i = kBoiteIndicatif; i <= kBoiteLigne2; ++i)
        ordre.push_back(Boite(i).texte);
    ordre.insert(ordre.end(),
                 {ui_->OptBureau, ui_->OptDirect, Boite(kBoiteManager).texte, ui_->BtValidQSL,
                  ui_->BtDelQSL, ui_->BtLeaveQSL, ui_->BtPrintQSL, ui_->BtRestore, ui_->BtQuitQSL});
    for (const ControlesPlace& controles : places_)
        ordre.insert(ordre.end(), {controles.tag, controles.choix});
    // Last, so that the way through the boxes stays what the operators' hands know; it has a
    // letter.
    ordre.push_back(btIndicatif_);
    for (std::size_t i = 1; i < ordre.size(); ++i)
        setTabOrder(ordre[i - 1], ordre[i]);
}

bool PictFeuilleQSL::eventFilter(QObject* objet, QEvent* evenement) {
    return (evenement->type() == QEvent::KeyPress &&
            AllerALaPlace(objet, static_cast<QKeyEvent*>(evenement)->key())) ||
           QFrame::eventFilter(objet, evenement);
}

// The arrows go from place to place as these lie on the sheet, and stop at its edges. In a place
// whose large button is grey they come to the other one.
bool PictFeuilleQSL::AllerALaPlace(const QObject* depuis, int touche) {
    constexpr std::array<std::pair<int, PasDePlace>, 4> kPas = {{{Qt::Key_Up, {-1, 0}},
                                                                 {Qt::Key_Down, {1, 0}},
                                                                 {Qt::Key_Left, {0, -1}},
                                                                 {Qt::Key_Right, {0, 1}}}};
    const auto pas = std::find_if(kPas.begin(), kPas.end(),
                                  [touche](const auto& p) { return p.first == touche; });
    const auto ici =
        std::find_if(places_.begin(), places_.end(), [depuis](const ControlesPlace& c) {
            return depuis == c.tag || depuis == c.choix;
        });
    if (pas == kPas.end() || ici == places_.end())
        return false;
    const Place place{static_cast<int>(ici - places_.begin()) + 1};
    if (const auto voisine = PlaceVoisine(place, pas->second)) {
        const ControlesPlace& la = places_[EtatFeuille::Rang(*voisine)];
        const bool large = depuis == ici->tag && la.tag->isEnabled();
        (large ? la.tag : la.choix)->setFocus();
    }
    return true;
}

void PictFeuilleQSL::Montrer(const EtatFeuille& feuille) {
    ui_->NrTag->setText(Q(feuille.vue.nrTag));
    MontrerPlaces(feuille);
    MontrerBoites(feuille);
    MontrerVoie(feuille.voie);
    MontrerBoutons(feuille.vue);
    // While the print check waits, only its own two buttons act.
    for (QWidget* partie :
         std::initializer_list<QWidget*>{ui_->planche, ui_->PictTag, ui_->boutonsFeuille})
        Activer(*partie, !feuille.vue.controle);
    PeindreFonds();
}

void PictFeuilleQSL::MontrerPlaces(const EtatFeuille& feuille) {
    const Place etudiee = PlaceALEtude(feuille);
    for (Place place = kPremierePlace; place <= kDernierePlace; ++place) {
        const VuePlace vue = VoirPlace(feuille, place);
        const ControlesPlace& controles = places_[EtatFeuille::Rang(place)];
        controles.tag->setText(SansMnemonique(vue.legendeTag));
        Activer(*controles.tag, vue.tagActif);
        QFont police = font();
        police.setBold(vue.jaune);
        controles.tag->setFont(police);
        controles.choix->setText(Q(vue.legendeChoix));
        controles.choix->setAccessibleName(Q(vue.legendeChoix + " : " + vue.legendeTag));
        controles.choix->setToolTip(BulleChoix(feuille.Etat(place)));
        TeinterFond(*controles.choix, vue.jaune ? Teinte::Jaune : Teinte::Aucune);
        controles.cadre->setLineWidth(place == etudiee ? kTraitEtudiee : 1);
        controles.etiquette->Montrer(VoirPreparee(feuille, place));
    }
}

void PictFeuilleQSL::MontrerBoites(const EtatFeuille& feuille) {
    for (const DescriptionBoiteEditeur& d : kBoitesEditeur) {
        BoiteEditeur& boite = Boite(d.boite);
        const QString texte = Q(feuille.boites[d.boite]);
        if (boite.texte->text() != texte) {
            boite.filtre->Montrer(texte);
            boite.texte->setCursorPosition(0);
        }
        if (d.boite == kBoiteRappel)
            boite.legende->setVisible(!texte.isEmpty());
        else
            boite.texte->setReadOnly(!feuille.fraiche);
    }
    // A label that was read has report and mode in each other's box; the captions follow them.
    const bool echanges = feuille.vue.supprimer;
    Boite(kBoiteMode)
        .legende->setText(Q(kNomsBoitesEtiquette[echanges ? kBoiteReport : kBoiteMode]));
    Boite(kBoiteReport)
        .legende->setText(Q(kNomsBoitesEtiquette[echanges ? kBoiteMode : kBoiteReport]));
    Activer(*ui_->OptVia, feuille.fraiche);
    Activer(*btIndicatif_, feuille.fraiche);
    ui_->LabAide->setVisible(feuille.boites[kBoiteIndicatif].empty() && !feuille.vue.controle);
}

void PictFeuilleQSL::MontrerApercu(const std::optional<ApercuEtiquette>& apercu) {
    etiquette_->Montrer(apercu);
    avis_->setText(apercu ? Q(apercu->avis) : QString());
    avis_->setVisible(!avis_->text().isEmpty());
    apercu_->setVisible(apercu.has_value());
}

// The label as wide as the editor, as high as that makes it.
void PictFeuilleQSL::resizeEvent(QResizeEvent* evenement) {
    QFrame::resizeEvent(evenement);
    etiquette_->setFixedHeight(VueEtiquette::HauteurPour(ui_->colonneEdition->width()));
}

void PictFeuilleQSL::MontrerVoie(VoieQSL voie) {
    const std::array<std::pair<QRadioButton*, bool>, 2> options = {
        {{ui_->OptBureau, voie == VoieQSL::Bureau}, {ui_->OptDirect, voie == VoieQSL::Direct}}};
    for (const auto& [option, choisie] : options) {
        // Otherwise the last one chosen could not be let go.
        option->setAutoExclusive(false);
        option->setChecked(choisie);
    }
    for (const auto& [option, choisie] : options)
        option->setAutoExclusive(true);
}

void PictFeuilleQSL::MontrerBoutons(const VueFeuille& vue) {
    Presenter(*ui_->BtValidQSL, vue.valider);
    Presenter(*ui_->BtDelQSL, vue.supprimer);
    Presenter(*ui_->BtLeaveQSL, vue.laisser);
    Presenter(*ui_->BtQuitQSL, vue.quitter);
    Presenter(*ui_->BtPrintQSL, vue.imprimer);
    Presenter(*ui_->BtRestore, vue.restaurer);
}

// A box that takes no text looks like the panel behind it; the place under study stands out.
void PictFeuilleQSL::PeindreFonds() {
    for (const ControlesPlace& controles : places_) {
        QPalette palette;
        const bool etudiee = controles.cadre->lineWidth() == kTraitEtudiee;
        palette.setColor(QPalette::WindowText,
                         palette.color(etudiee ? QPalette::Highlight : QPalette::Mid));
        controles.cadre->setPalette(palette);
    }
    for (BoiteEditeur& boite : boites_) {
        QPalette palette;
        if (boite.texte->isReadOnly())
            palette.setColor(QPalette::Base, palette.color(QPalette::Window));
        boite.texte->setPalette(palette);
    }
}

void PictFeuilleQSL::Ranger(int largeur) {
    const bool cote = LargeurMinimale(*ui_->planche) + LargeurMinimale(*ui_->colonneEdition) +
                          ui_->layout1->spacing() <=
                      largeur;
    ui_->layout1->setDirection(cote ? QBoxLayout::LeftToRight : QBoxLayout::BottomToTop);
}

void PictFeuilleQSL::Accueillir(QWidget& panneau) {
    GarderPlace(panneau);
    ui_->dessous->addWidget(&panneau, 0, 0, Qt::AlignTop);
}

} // namespace orvalis
