#include "ui/dialogues/guide.h"

#include "ui/bureau/texte_qt.h"
#include "ui/widgets/police.h"

#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace orvalis {
namespace {

const QUrl kGuide(QStringLiteral("qrc:/guide/guide.md"));

// As the links of the guide write it.
QString Ancre(const QString& titre) {
    QString ancre;
    for (const QChar c : titre.toLower())
        if (c.isLetterOrNumber() || c == u'-')
            ancre += c;
        else if (c.isSpace())
            ancre += u'-';
    return ancre;
}

QPushButton* FaireBouton(const char* nom, const QString& legende, const QString& bulle,
                         QBoxLayout& rangee) {
    auto* bouton = new QPushButton(legende);
    bouton->setObjectName(QLatin1String(nom));
    bouton->setToolTip(bulle);
    bouton->setAutoDefault(false);
    rangee.addWidget(bouton);
    return bouton;
}

} // namespace

Guide::Guide(QWidget* parent)
    : QDialog(parent), texte_(new QTextBrowser(this)), recherche_(new QLineEdit(this)) {
    setObjectName(QStringLiteral("Guide"));
    setWindowTitle(QStringLiteral("Guide de l'opérateur"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    Disposer();
    connect(texte_, &QTextBrowser::sourceChanged, this, &Guide::Habiller);
    texte_->setSource(kGuide);
    const QSize voulue = QSize(fontMetrics().averageCharWidth() * 110, fontMetrics().height() * 44);
    resize(TailleSurEcran(*this, voulue));
}

void Guide::Disposer() {
    auto* pile = new QVBoxLayout(this);
    auto* rangee = new QHBoxLayout;
    pile->addLayout(rangee);
    pile->addWidget(texte_, 1);
    auto* retour = FaireBouton("BtGuideRetour", QStringLiteral("◀"),
                               QStringLiteral("Revenir d'où l'on vient (Alt+←)"), *rangee);
    retour->setAccessibleName(QStringLiteral("Revenir d'où l'on vient"));
    retour->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Left));
    retour->setEnabled(false);
    auto* sommaire = FaireBouton("BtGuideSommaire", QStringLiteral("&Sommaire"),
                                 QStringLiteral("Aller au début du guide"), *rangee);
    rangee->addStretch(1);
    auto* legende = new QLabel(QStringLiteral("&Chercher\u00A0:"));
    rangee->addWidget(legende);
    legende->setBuddy(recherche_);
    recherche_->setObjectName(QStringLiteral("GuideRech"));
    recherche_->setAccessibleName(QStringLiteral("Chercher dans le guide"));
    recherche_->setClearButtonEnabled(true);
    rangee->addWidget(recherche_);
    auto* precedent = FaireBouton("BtGuidePrecedent", QStringLiteral("&Précédent"),
                                  QStringLiteral("Chercher plus haut (Maj+F3)"), *rangee);
    auto* suivant = FaireBouton("BtGuideSuivant", QStringLiteral("Su&ivant"),
                                QStringLiteral("Chercher plus bas (Entrée ou F3)"), *rangee);
    texte_->setObjectName(QStringLiteral("GuideTexte"));
    texte_->setAccessibleName(QStringLiteral("Texte du guide"));
    texte_->setOpenExternalLinks(true);
    texte_->document()->setDocumentMargin(14);
    connect(retour, &QPushButton::clicked, texte_, &QTextBrowser::backward);
    connect(texte_, &QTextBrowser::backwardAvailable, retour, &QWidget::setEnabled);
    connect(sommaire, &QPushButton::clicked, this, [this] {
        texte_->setSource(kGuide);
        texte_->verticalScrollBar()->setValue(0);
    });
    connect(precedent, &QPushButton::clicked, this, [this] { Chercher(true); });
    connect(suivant, &QPushButton::clicked, this, [this] { Chercher(false); });
    connect(recherche_, &QLineEdit::returnPressed, this, [this] { Chercher(false); });
    for (const auto& [touche, enArriere] : {std::pair{QKeySequence(Qt::Key_F3), false},
                                            std::pair{QKeySequence(Qt::SHIFT | Qt::Key_F3), true}})
        connect(new QShortcut(touche, this), &QShortcut::activated, this,
                [this, sens = enArriere] { Chercher(sens); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, recherche_, [this] {
        recherche_->setFocus();
        recherche_->selectAll();
    });
    texte_->setFocus();
}

void Guide::Ouvrir(QWidget& parent, std::string_view chapitre) {
    auto* guide = parent.findChild<Guide*>(QString(), Qt::FindDirectChildrenOnly);
    if (guide == nullptr)
        guide = new Guide(&parent);
    guide->show();
    guide->raise();
    guide->activateWindow();
    QUrl la = kGuide;
    if (!chapitre.empty())
        la.setFragment(Q(chapitre));
    guide->texte_->setSource(la);
    guide->texte_->scrollToAnchor(la.fragment()); // though it was there, and has been scrolled
}

void Guide::Chercher(bool enArriere) {
    const QString voulu = recherche_->text();
    const auto sens = enArriere ? QTextDocument::FindFlags(QTextDocument::FindBackward)
                                : QTextDocument::FindFlags();
    if (voulu.isEmpty() || texte_->find(voulu, sens))
        return;
    // Once around.
    const QTextCursor avant = texte_->textCursor();
    texte_->moveCursor(enArriere ? QTextCursor::End : QTextCursor::Start);
    if (!texte_->find(voulu, sens))
        texte_->setTextCursor(avant);
}

// The document does not tell that it is changed here: a browser that hears of it loads it anew at
// the next link, without what was changed.
void Guide::Habiller() {
    const QUrl source = texte_->source();
    if (std::exchange(habille_, source.path()) == source.path())
        return;
    QTextDocument& document = *texte_->document();
    document.setUndoRedoEnabled(false);
    const QSignalBlocker silence(document);
    QTextCursor ensemble(&document); // one layout for all that changes
    ensemble.beginEditBlock();
    for (QTextBlock bloc = document.begin(); bloc.isValid(); bloc = bloc.next()) {
        if (bloc.blockFormat().headingLevel() == 0)
            continue;
        QTextCursor titre(bloc);
        titre.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
        QTextCharFormat ancre;
        ancre.setAnchor(true);
        ancre.setAnchorNames({Ancre(bloc.text())});
        titre.mergeCharFormat(ancre);
    }
    for (QTextFrame* cadre : document.rootFrame()->childFrames())
        if (auto* table = qobject_cast<QTextTable*>(cadre)) {
            QTextTableFormat format = table->format();
            format.setBorderCollapse(true);
            format.setBorder(1);
            format.setBorderBrush(palette().mid());
            format.setCellPadding(4);
            table->setFormat(format);
        }
    AjusterImages();
    ensemble.endEditBlock();
    if (source.hasFragment())
        texte_->scrollToAnchor(source.fragment());
}

// A picture is never wider than the window.
void Guide::AjusterImages() {
    QTextDocument& document = *texte_->document();
    const QSignalBlocker silence(document);
    const int place = texte_->viewport()->width() - 2 * qRound(document.documentMargin());
    QTextCursor ensemble(&document);
    ensemble.beginEditBlock();
    for (QTextBlock bloc = document.begin(); bloc.isValid(); bloc = bloc.next())
        for (auto it = bloc.begin(); !it.atEnd(); ++it) {
            QTextImageFormat image = it.fragment().charFormat().toImageFormat();
            if (!image.isValid())
                continue;
            const QUrl ou = texte_->source().resolved(QUrl(image.name()));
            const QSize taille = QImageReader(u':' + ou.path()).size();
            const int large = std::min(place, taille.width());
            if (qRound(image.width()) == large)
                break;
            image.setWidth(large);
            const int haut = large * taille.height() / std::max(1, taille.width());
            image.setHeight(haut);
            QTextCursor ici(&document);
            ici.setPosition(it.fragment().position());
            ici.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
            ici.setCharFormat(image);
            break; // the format of the block has changed under the walk: a picture stands alone
        }
    ensemble.endEditBlock();
}

void Guide::resizeEvent(QResizeEvent* evenement) {
    QDialog::resizeEvent(evenement);
    AjusterImages();
}

} // namespace orvalis
