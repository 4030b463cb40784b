#include "compagnons/db_orvalis/fenetre/fenetre_db_orvalis.h"

#include "compagnons/db_orvalis/bilan_html.h"
#include "compagnons/db_orvalis/fenetre/dlg_bilan.h"
#include "core/chemins.h"
#include "core/erreurs.h"
#include "echange/lecture_cahier.h"
#include "echange/refus.h"
#include "ui/bureau/texte_qt.h"
#include "ui/widgets/police.h"
#include "ui/widgets/teintes.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <array>

namespace orvalis {
namespace {

namespace fs = std::filesystem;

// A logbook on its way out.
struct Depart {
    const EtatDb& etat;
    fs::path cible;
    const Fuseau& fuseau;
    Jour jour;
};

template<GenreAdif genre> Constat SortirAdif(const Depart& d) {
    const BilanSortie bilan =
        ExporterAdif({d.etat.cahier, d.cible, genre, IndicatifDe(d.etat.station, d.etat.cahier),
                      FichiersDe(d.etat.station), EcrireInstantAdif(Maintenant())},
                     d.fuseau);
    return DireSortie(bilan, d.etat.cahier, d.cible, kSansDateAdif);
}

Constat SortirBase(const Depart& d) {
    const BilanSortie bilan =
        FaireBase({d.etat.cahier, d.cible, IndicatifDe(d.etat.station, d.etat.cahier),
                   FichiersDe(d.etat.station), EcrireInstantIso(Maintenant())});
    return DireSortie(bilan, d.etat.cahier, d.cible, kSansDateBase);
}

Constat SortirPage(const Depart& d) {
    const BilanSortie bilan =
        EcrireBilan({d.etat.cahier, d.cible, IndicatifDe(d.etat.station, d.etat.cahier),
                     FichiersDe(d.etat.station), d.jour});
    return DireSortie(bilan, d.etat.cahier, d.cible, kSansDateBilan, "compté", "comptés");
}

struct Sortie {
    const char* nom; ///< of the button
    const char* legende;
    const char* infobulle;
    const char* filtre;
    const char* suffixe;
    bool heures; ///< they are asked for
    Constat (*faire)(const Depart& depart);
};
constexpr std::array<Sortie, 4> kSorties = {{
    {"BtAdi", "&ADI…", "Fichier ADIF que lisent tous les logiciels de trafic", "ADIF (*.adi)",
     "adi", true, SortirAdif<GenreAdif::Adi>},
    {"BtAdx", "AD&X…", "Fichier ADIF récent, qui garde les accents", "ADIF (*.adx)", "adx", true,
     SortirAdif<GenreAdif::Adx>},
    {"BtBase", "&Base SQLite…", "Base pour les tableurs et les outils de requêtes",
     "Base SQLite (*.sqlite)", "sqlite", false, SortirBase},
    {"BtPage", "En page &web…", "Le bilan dans un fichier que montre un navigateur",
     "Page web (*.html)", "html", false, SortirPage},
}};
constexpr std::size_t kSortiePage = 3;

QPushButton* Bouton(QWidget* parent, const char* nom, const char* legende, const char* infobulle) {
    auto* bouton = new QPushButton(Q(legende), parent);
    bouton->setObjectName(Q(nom));
    bouton->setToolTip(Q(infobulle));
    bouton->setAutoDefault(true); // Enter presses what has the focus
    return bouton;
}

QGroupBox* Groupe(QWidget* parent, const char* titre, std::initializer_list<QPushButton*> boutons) {
    auto* groupe = new QGroupBox(Q(titre), parent);
    auto* colonne = new QVBoxLayout(groupe);
    for (QPushButton* bouton : boutons)
        colonne->addWidget(bouton);
    colonne->addStretch();
    return groupe;
}

QString DireContenu(const EtatDb& etat) {
    if (!etat.bilan)
        return {};
    const BilanCahier& bilan = etat.bilan->bilan;
    QString texte =
        Q(EcrireNombre(bilan.contacts)) + Q(Accorder(bilan.contacts, " contact", " contacts"));
    if (bilan.premier)
        texte += QStringLiteral(", du %1 au %2")
                     .arg(Q(EcrireJour(*bilan.premier)), Q(EcrireJour(*bilan.dernier)));
    if (!etat.bilan->indicatif.empty())
        texte += QStringLiteral(", station ") + Q(etat.bilan->indicatif);
    return texte;
}

} // namespace

FenetreDbOrvalis::FenetreDbOrvalis(Lieu lieu, Demandes demandes)
    : lieu_(std::move(lieu)), demandes_(std::move(demandes)) {
    setWindowTitle(QStringLiteral("dbOrvalis"));
    Composer();
    try {
        etat_.station = LireStation(lieu_.courant, lieu_.maison);
    } catch (const Erreur& erreur) {
        Dire(Q(erreur.what()), true);
        return;
    }
    if (etat_.station)
        LireCahier(etat_.station->cahier);
    else
        Dire(QStringLiteral("Aucun cahier de la station n'est trouvé\u00A0: choisissez-en un."));
}

void FenetreDbOrvalis::Composer() {
    cahier_ = new LabChemin(this);
    cahier_->setObjectName(QStringLiteral("LabCahier"));
    cahier_->setTextFormat(Qt::PlainText);
    cahier_->setFont(PoliceAjustee(font(), kTitre));
    contenu_ = new QLabel(this);
    contenu_->setObjectName(QStringLiteral("LabContenu"));
    contenu_->setTextFormat(Qt::PlainText);
    message_ = new QLabel(this);
    message_->setObjectName(QStringLiteral("LabMessage"));
    message_->setTextFormat(Qt::PlainText);
    message_->setWordWrap(true);
    message_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    message_->setMinimumHeight(5 * message_->fontMetrics().lineSpacing());
    progression_ = new QProgressBar(this);
    progression_->setRange(0, 0);
    progression_->setTextVisible(false);
    progression_->setAccessibleName(QStringLiteral("Travail en cours"));
    GarderPlace(*progression_);
    choisir_ = Bouton(this, "BtChoisir", "&Choisir un cahier…", "Lire un autre cahier");
    revenir_ = Bouton(this, "BtStation", "Celui de la &station", "Revenir au cahier de la station");
    importer_ = Bouton(this, "BtImporter", "&Importer un fichier ADIF…",
                       "Faire un second cahier d'un fichier ADI ou ADX");
    auto* bilan =
        Bouton(this, "BtBilan", "Bi&lan à l'écran", "Le cahier en chiffres et en graphiques");
    auto* fermer = Bouton(this, "BtFermer", "&Fermer", "Quitter dbOrvalis");
    for (std::size_t i = 0; i < kSorties.size(); ++i) {
        surCahier_.push_back(
            Bouton(this, kSorties[i].nom, kSorties[i].legende, kSorties[i].infobulle));
        connect(surCahier_.back(), &QPushButton::clicked, this, [this, i] { Sortir(i); });
    }
    surCahier_.push_back(bilan);
    connect(choisir_, &QPushButton::clicked, this, &FenetreDbOrvalis::ChoisirCahier);
    connect(revenir_, &QPushButton::clicked, this, &FenetreDbOrvalis::RevenirALaStation);
    connect(importer_, &QPushButton::clicked, this, &FenetreDbOrvalis::Importer);
    connect(bilan, &QPushButton::clicked, this, &FenetreDbOrvalis::MontrerBilan);
    connect(fermer, &QPushButton::clicked, this, &QWidget::close);

    auto* lu = new QGroupBox(QStringLiteral("Cahier lu"), this);
    auto* grille = new QGridLayout(lu);
    grille->addWidget(cahier_, 0, 0);
    grille->addWidget(contenu_, 1, 0);
    grille->addWidget(choisir_, 0, 1);
    grille->addWidget(revenir_, 1, 1);
    grille->setColumnStretch(0, 1);
    auto* groupes = new QHBoxLayout;
    groupes->addWidget(Groupe(this, "Sortir", {surCahier_[0], surCahier_[1], surCahier_[2]}), 1);
    groupes->addWidget(Groupe(this, "Bilan", {bilan, surCahier_[kSortiePage]}), 1);
    groupes->addWidget(Groupe(this, "Faire entrer", {importer_}), 1);
    auto* pied = new QHBoxLayout;
    pied->addWidget(progression_, 1);
    pied->addWidget(fermer);
    auto* colonne = new QVBoxLayout(this);
    colonne->addWidget(lu);
    colonne->addLayout(groupes);
    colonne->addWidget(message_, 1);
    colonne->addLayout(pied);
    setMinimumWidth(fontMetrics().averageCharWidth() * 90); // 683 points: a laptop at 200 %
    QWidget* avant = choisir_;
    for (QWidget* suivant :
         std::initializer_list<QWidget*>{revenir_, surCahier_[0], surCahier_[1], surCahier_[2],
                                         bilan, surCahier_[kSortiePage], importer_, fermer}) {
        setTabOrder(avant, suivant);
        avant = suivant;
    }
    PeindreSelonBureau(*message_, [this] { Montrer(); });
}

void FenetreDbOrvalis::Montrer() {
    const bool aLui = etat_.station && etat_.cahier == etat_.station->cahier;
    cahier_->Montrer(etat_.cahier.empty() ? QStringLiteral("aucun") : Q(TexteChemin(etat_.cahier)));
    contenu_->setText(DireContenu(etat_));
    QPalette palette = message_->palette();
    const QColor texte = etat_.faute ? RougeSur(this->palette().color(QPalette::Window))
                                     : this->palette().color(QPalette::WindowText);
    if (message_->text() != etat_.message || palette.color(QPalette::WindowText) != texte) {
        palette.setColor(QPalette::WindowText, texte);
        message_->setPalette(palette);
        message_->setText(etat_.message);
    }
    progression_->setVisible(etat_.occupe);
    choisir_->setEnabled(!etat_.occupe);
    revenir_->setEnabled(!etat_.occupe && etat_.station && !aLui);
    importer_->setEnabled(!etat_.occupe);
    for (QPushButton* bouton : surCahier_)
        bouton->setEnabled(!etat_.occupe && etat_.bilan);
}

void FenetreDbOrvalis::Dire(const QString& message, bool faute) {
    etat_.message = message.trimmed();
    etat_.faute = faute;
    Montrer();
}

void FenetreDbOrvalis::Travailler(const QString& quoi, const std::string& zone,
                                  std::function<void(const Fuseau&)> faire,
                                  std::function<void()> finir) {
    try {
        fuseau_ = zone.empty() ? std::make_unique<Fuseau>() : std::make_unique<Fuseau>(zone);
    } catch (const RefusEchange& refus) {
        Dire(Q(refus.what()), true);
        return;
    }
    foyer_ = focusWidget();
    etat_.occupe = true;
    Dire(quoi);
    const auto apres = [this, finir = std::move(finir)](const std::exception_ptr& faute) {
        etat_.occupe = false;
        fuseau_.reset();
        Dire({});
        if (foyer_ != nullptr && foyer_->isEnabled())
            foyer_->setFocus();
        try {
            if (faute)
                std::rethrow_exception(faute);
            finir();
        } catch (const RefusEchange& refus) {
            Dire(Q(refus.what()), true);
        } catch (const std::exception& erreur) {
            Dire(Q(MessageErreur(erreur)), true);
        }
        Q_EMIT Fini();
    };
    travail_.Lancer([this, faire = std::move(faire)] { faire(*fuseau_); }, apres);
}

void FenetreDbOrvalis::LireCahier(const fs::path& chemin, std::function<void()> ensuite) {
    // Asked on this thread: the other has no business with the time of the place.
    const Jour jour = Aujourdhui();
    auto lu = std::make_shared<FeuilleBilan>();
    Travailler(
        QStringLiteral("Lecture de «\u00A0%1\u00A0»…").arg(Q(TexteChemin(chemin))), {},
        [this, lu, chemin, jour](const Fuseau& /*fuseau*/) {
            *lu = {FaireBilan(LireCahierEntier(chemin).fiches), IndicatifDe(etat_.station, chemin),
                   TexteChemin(chemin.filename()), jour};
        },
        [this, lu, chemin, ensuite = std::move(ensuite)] {
            etat_.cahier = chemin;
            etat_.bilan = std::move(*lu);
            Montrer();
            // When the window opens, only what closes it could take the focus.
            if (foyer_ == nullptr || !foyer_->isEnabled())
                surCahier_.front()->setFocus();
            if (ensuite)
                ensuite();
        });
}

void FenetreDbOrvalis::ChoisirCahier() {
    const QString chemin = demandes_.chemin(this, {false,
                                                   QStringLiteral("Cahier à lire"),
                                                   Q(TexteChemin(etat_.cahier)),
                                                   QStringLiteral("Cahier (*.Vek)"),
                                                   {}});
    if (!chemin.isEmpty())
        LireCahier(CheminTexte(S(chemin)));
}

void FenetreDbOrvalis::RevenirALaStation() {
    LireCahier(etat_.station->cahier);
}

QString FenetreDbOrvalis::Propose(const QString& suffixe) const {
    const QString nom = QFileInfo(Q(TexteChemin(etat_.cahier))).completeBaseName();
    return QDir(Q(TexteChemin(lieu_.maison))).filePath(nom + QLatin1Char('.') + suffixe);
}

std::optional<ReponseHeures> FenetreDbOrvalis::DemanderHeures(const QString& question,
                                                              bool locator) {
    DlgHeures dialogue(this, question, locator);
    if (dialogue.exec() != QDialog::Accepted)
        return {};
    return dialogue.Reponse();
}

void FenetreDbOrvalis::Sortir(std::size_t sortie) {
    const Sortie& s = kSorties[sortie];
    const QString cible = demandes_.chemin(
        this, {true, Q(s.infobulle), Propose(Q(s.suffixe)), Q(s.filtre), Q(s.suffixe)});
    if (cible.isEmpty())
        return;
    const auto reponse = s.heures
                             ? DemanderHeures(QStringLiteral("ADIF est en temps universel. Les "
                                                             "heures de ce cahier sont\u00A0:"))
                             : ReponseHeures{};
    if (!reponse)
        return;
    auto constat = std::make_shared<Constat>();
    Travailler(
        QStringLiteral("Écriture de «\u00A0%1\u00A0»…").arg(cible), reponse->zone,
        [this, constat, s, cible](const Fuseau& fuseau) {
            *constat = s.faire({etat_, CheminTexte(S(cible)), fuseau, etat_.bilan->faitLe});
        },
        [this, constat] { Dire(Q(constat->texte)); });
}

void FenetreDbOrvalis::MontrerBilan() {
    // Read again: the main program may have written since.
    LireCahier(etat_.cahier, [this] { DlgBilan(this, *etat_.bilan, demandes_).exec(); });
}

void FenetreDbOrvalis::Importer() {
    const QString source =
        demandes_.chemin(this, {false,
                                QStringLiteral("Fichier à importer"),
                                Q(TexteChemin(lieu_.maison)),
                                QStringLiteral("ADIF (*.adi *.adif *.adx);;Tous les fichiers (*)"),
                                {}});
    if (source.isEmpty())
        return;
    DemandeImport demande;
    demande.locator = LocatorDe(etat_.station);
    const auto reponse = DemanderHeures(
        QStringLiteral(
            "Le fichier est en temps universel. Les heures du nouveau cahier seront\u00A0:"),
        demande.locator.empty());
    if (!reponse)
        return;
    if (demande.locator.empty())
        demande.locator = reponse->locator;
    demande.source = CheminTexte(S(source));
    demande.proteges = FichiersDe(etat_.station);
    auto etude = std::make_shared<EtudeImport>();
    Travailler(
        QStringLiteral("Lecture de «\u00A0%1\u00A0»…").arg(source), reponse->zone,
        [demande, etude](const Fuseau& fuseau) { *etude = Etudier(demande, fuseau); },
        [this, demande, etude, zone = reponse->zone] { MontrerApercu(demande, zone, *etude); });
}

void FenetreDbOrvalis::MontrerApercu(const DemandeImport& demande, const std::string& zone,
                                     const EtudeImport& etude) {
    DlgApercu apercu(this, Q(TexteChemin(demande.source.filename())), etude);
    if (apercu.exec() != QDialog::Accepted) {
        Dire(QStringLiteral("Rien n'a été importé."));
        return;
    }
    const QString cible =
        demandes_.chemin(this, {true, QStringLiteral("Nouveau cahier"),
                                QDir(Q(TexteChemin(lieu_.maison)))
                                    .filePath(QFileInfo(Q(TexteChemin(demande.source))).baseName() +
                                              QStringLiteral(".Vek")),
                                QStringLiteral("Cahier (*.Vek)"), QStringLiteral("Vek")});
    if (cible.isEmpty()) {
        Dire(QStringLiteral("Rien n'a été importé."));
        return;
    }
    DemandeImport complete = demande;
    complete.cible = CheminTexte(S(cible));
    complete.ancien = Ancien::Remplace; // the file dialog has asked
    auto constat = std::make_shared<Constat>();
    Travailler(
        QStringLiteral("Écriture de «\u00A0%1\u00A0»…").arg(cible), zone,
        [constat, complete](const Fuseau& fuseau) {
            *constat = DireImport(ImporterAdif(complete, fuseau), complete.cible);
        },
        [this, constat] { Dire(Q(constat->texte)); });
}

} // namespace orvalis
