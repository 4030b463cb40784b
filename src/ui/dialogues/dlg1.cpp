#include "ui/dialogues/dlg1.h"

#include "core/creation.h"
#include "core/dossier.h"
#include "core/erreurs.h"
#include "core/texte.h"
#include "geo/locator.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/boites.h"
#include "ui/carte/chapitre.h"
#include "ui/dialogues/dlg2.h"
#include "ui/dialogues/guide.h"
#include "ui/widgets/filtre_edition.h"
#include "ui/widgets/gestes.h"
#include "ui/widgets/lab_conseil.h"
#include "ui/widgets/police.h"
#include "ui/widgets/teintes.h"
#include "ui_dlg1.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

#include <algorithm>

namespace orvalis {
namespace {

// What a creation does to a logbook that is there; nothing for one without contacts.
std::string AvisContactsPerdus(const CahierDejaLa& cahier) {
    const std::int32_t nombre = cahier.contacts;
    if (nombre == 0)
        return {};
    const std::string suite =
        nombre == 1 ? " contact\u00a0: il sera remplacé."
                    : " contacts\u00a0: le premier sera remplacé et les autres ne se verront plus.";
    return "Le fichier " + cahier.nom + " contient déjà " + std::to_string(nombre) + suite +
           "\nPour les garder, choisissez «\u00a0Tout arrêter\u00a0!!\u00a0» et renommez ce "
           "fichier. "
           "Puis relancez Orvalis, créez le cahier, et ajoutez-y le fichier renommé par "
           "«\u00a0Jumeler deux Fichiers.Vek\u00a0».";
}

} // namespace

Dlg1::Dlg1(std::filesystem::path lecteur, Systeme& systeme, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::Dlg1>()), lecteur_(std::move(lecteur)),
      systeme_(systeme) {
    ui_->setupUi(this);
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this,
            [this] { Guide::Ouvrir(*this, kChapitreCreation); });
    ui_->LabDisk->setText(Q(" Le disque courant est le disque : " + TexteLecteur(lecteur_)));
    GarderPlace(*ui_->Dlg1Fra3);
    ui_->Dlg1Fra3->hide();
    constexpr std::size_t kLongueurIndicatif = 20;
    new FiltreEdition(*ui_->Dlg1Fra2Text1, Touches::Majuscules, kLongueurIndicatif);
    new FiltreEdition(*ui_->Dlg1Fra2Text2, Touches::Majuscules, kLargeurLocator);
    for (QLineEdit* boite : {ui_->Dlg1Fra2Text1, ui_->Dlg1Fra2Text2}) {
        boite->installEventFilter(this);
        // What was accepted no longer holds once the operator types on. An edit that leaves the
        // text as it was, such as a key too many, is none.
        connect(boite, &QLineEdit::textEdited, this, [this, boite](const QString& texte) {
            const bool premiere = boite == ui_->Dlg1Fra2Text1;
            const std::string lu = Majuscules(Rogner(S(texte)));
            if (lu != (premiere ? acceptee_.indicatif : acceptee_.monLocator))
                ui_->Dlg1Fra3->hide();
        });
    }
    connect(ui_->Dlg1Fra2Text2, &QLineEdit::textChanged, this,
            [this] { ui_->Dlg1Fra2Text2->setPalette({}); });
    for (QPushButton* bouton : findChildren<QPushButton*>())
        bouton->installEventFilter(this);
    connect(ui_->BtAppelLocator, &QPushButton::clicked, this, &Dlg1::CalculerLocator);
    connect(ui_->Dlg1Fra3CmdValider, &QPushButton::clicked, this, &Dlg1::Valider);
    connect(ui_->Dlg1Fra2CmdArreter, &QPushButton::clicked, this, &QDialog::reject);
    conseil_ = new LabConseil(this);
    conseil_->setObjectName(QStringLiteral("Dlg1Conseil"));
    layout()->addWidget(conseil_);
    for (QLineEdit* boite : {ui_->Dlg1Fra2Text1, ui_->Dlg1Fra2Text2})
        connect(boite, &QLineEdit::textChanged, this, &Dlg1::Conseiller);
    connect(qApp, &QApplication::focusChanged, this, &Dlg1::Conseiller);
    ui_->Dlg1Fra2Text1->setFocus();
    Conseiller();
}

// Its boxes lose the focus while they are destroyed, when there is nothing left to advise.
Dlg1::~Dlg1() {
    disconnect(qApp, nullptr, this, nullptr);
}

bool Dlg1::eventFilter(QObject* objet, QEvent* evenement) {
    if (!EstEntree(*evenement))
        return QDialog::eventFilter(objet, evenement);
    if (objet == ui_->Dlg1Fra2Text1)
        AccepterIndicatif();
    else if (objet == ui_->Dlg1Fra2Text2)
        AccepterLocator();
    else
        static_cast<QPushButton*>(objet)->click();
    return true;
}

// Escape would end the program here, and what is typed with it; "Tout arrêter !!" says that it
// does.
void Dlg1::keyPressEvent(QKeyEvent* evenement) {
    if (!evenement->matches(QKeySequence::Cancel))
        QDialog::keyPressEvent(evenement);
}

Creation Dlg1::Lire() const {
    Creation creation = acceptee_;
    creation.texteIndicatif = S(ui_->Dlg1Fra2Text1->text());
    creation.texteLocator = S(ui_->Dlg1Fra2Text2->text());
    creation.complete = ui_->Dlg1Fra3->isVisibleTo(this);
    const QWidget* foyer = focusWidget();
    creation.foyer = foyer == ui_->Dlg1Fra2Text1        ? CibleCreation::Indicatif
                     : foyer == ui_->Dlg1Fra2Text2      ? CibleCreation::Locator
                     : foyer == ui_->Dlg1Fra3CmdValider ? CibleCreation::Valider
                                                        : CibleCreation::Autre;
    return creation;
}

void Dlg1::Conseiller() {
    conseil_->Montrer(ConseillerCreation(Lire()));
}

void Dlg1::AccepterIndicatif() {
    Creation creation = Lire();
    orvalis::AccepterIndicatif(creation);
    if (creation.foyer != CibleCreation::Locator)
        return;
    acceptee_ = creation;
    ui_->Dlg1Fra2Text2->clear();
    ui_->Dlg1Fra3->hide();
    ui_->Dlg1Fra2Text2->setFocus();
}

void Dlg1::AccepterLocator() {
    Creation creation = Lire();
    orvalis::AccepterLocator(creation);
    if (creation.foyer == CibleCreation::Indicatif) {
        ui_->Dlg1Fra2Text1->setFocus();
        return;
    }
    if (creation.erreur) {
        ui_->Dlg1Fra2Text2->setText(Q(creation.texteLocator));
        ui_->Dlg1Fra2Text2->setPalette(EnErreur({}));
        ui_->Dlg1Fra2Text2->selectAll();
        ui_->Dlg1Fra3->hide();
        return;
    }
    acceptee_ = creation;
    ui_->Dlg1Fra3Lab2->setText(
        Q(CheminProgrammeTexte(lecteur_, creation.nomFichier) + " va être créé "));
    const std::string avis = AvisContactsPerdus(ContactsDejaLa(lecteur_, creation.nomFichier));
    ui_->Dlg1Fra3Lab3->setText(Q(avis));
    ui_->Dlg1Fra3Lab3->setVisible(!avis.empty());
    ui_->Dlg1Fra3->show();
    // A long path takes a second line, which must not come out of the text above.
    layout()->activate();
    resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
    ui_->Dlg1Fra3CmdValider->setFocus();
}

void Dlg1::CalculerLocator() {
    Dlg2 coordonnees(this);
    coordonnees.exec();
    if (const auto locator = coordonnees.LocatorModifie()) {
        ui_->Dlg1Fra2Text2->setText(Q(*locator));
        ui_->Dlg1Fra3->hide();
        ui_->Dlg1Fra2Text2->setFocus();
    }
}

void Dlg1::Valider() {
    try {
        if (!CreerCahier(lecteur_,
                         {acceptee_.indicatif, acceptee_.nomFichier, acceptee_.monLocator}))
            return;
    } catch (const std::exception& echec) {
        systeme_.Avertir(this, Q(MessageErreur(echec)));
        return;
    }
    systeme_.Informer(this, QStringLiteral(" Création réalisée avec succès"),
                      Q("   Le fichier " + acceptee_.nomFichier + " est créé  \n\n"));
    accept();
}

} // namespace orvalis
