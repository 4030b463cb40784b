// The dialogs of the desktop as they are, answered by the keys and texts that an operator gives.
#include "aides.h"
#include "print/imprimante.h"
#include "ui/bureau/systeme_reel.h"
#include "ui/bureau/texte_qt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QTimer>

namespace orvalis::operateur::systeme_reel {

using Gestes = std::vector<std::function<void(QDialog&)>>;

// Takes each gesture in the next dialog that opens; one that asks more is rejected.
template<typename Action> std::size_t Repondre(const Gestes& gestes, Action action) {
    std::size_t rang = 0;
    bool attend = false; // a timer does not fire while what it called opens a dialog
    QTimer reveil;
    QObject::connect(&reveil, &QTimer::timeout, [&] {
        auto* dialogue = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialogue == nullptr || std::exchange(attend, true))
            return;
        QTimer::singleShot(0, dialogue, [&, dialogue] {
            attend = false;
            rang < gestes.size() ? gestes[rang++](*dialogue) : (++rang, dialogue->reject());
        });
    });
    reveil.start(1);
    action();
    return rang;
}

TEST(SystemeReel, DialoguesDeFichiers) {
    const aides::Dossier dossier;
    const auto existant = dossier.Poser("F5ABC.2026.Vek", ""), autre = dossier.Poser("B.vEK", "");
    SystemeReel systeme;
    QString choisi;
    const auto nommer = [](bool enregistrer, const std::string& nom) {
        return [=](QDialog& d) {
            auto& fichiers = dynamic_cast<QFileDialog&>(d);
            EXPECT_EQ(fichiers.acceptMode() == QFileDialog::AcceptSave, enregistrer);
            EXPECT_EQ(fichiers.fileMode() == QFileDialog::AnyFile, enregistrer);
            fichiers.findChild<QLineEdit*>()->setText(Q(nom));
            static_cast<QDialog&>(fichiers).accept();
        };
    };
    const auto repondre = [](QMessageBox::StandardButton bouton) {
        return [bouton](QDialog& d) { dynamic_cast<QMessageBox&>(d).button(bouton)->click(); };
    };
    const auto demander = [&](bool enregistrer) {
        return [&, enregistrer] {
            choisi = systeme.ChoisirFichier(
                nullptr, {enregistrer, Q((dossier / "").string()), {}, QString()});
            choisi = choisi.section(QLatin1Char('/'), -1);
        };
    };
    const std::tuple<bool, Gestes, std::size_t, const char*> cas[] = {
        {true, {nommer(true, "F5ABC.2027")}, 1, "F5ABC.2027.Vek"},
        {true, {nommer(true, "F5ABC.2026"), repondre(QMessageBox::Yes)}, 2, "F5ABC.2026.Vek"},
        {true, {nommer(true, "F5ABC.2026"), repondre(QMessageBox::No)}, 3, ""},
        {true, {nommer(true, "B.vEK"), repondre(QMessageBox::Yes)}, 2, "B.vEK"},
        {false, {nommer(false, "B.vEK")}, 1, "B.vEK"},
        {false, {nommer(false, "absent.Vek")}, 3, ""}};
    for (const auto& [enregistrer, gestes, dialogues, attendu] : cas) {
        EXPECT_EQ(Repondre(gestes, demander(enregistrer)), dialogues) << attendu;
        EXPECT_EQ(S(choisi), attendu);
    }
}

// Without a printer a PDF file is asked for, one that is not there yet, before each document.
TEST(SystemeReel, UnPdfNePrendPasLaPlaceDuPremier) {
    const aides::Dossier dossier;
    const QByteArray maison = qgetenv("HOME");
    qputenv("HOME", (dossier / "").string().c_str()); // without a folder for documents
    SystemeReel systeme;
    const auto premier = dossier / "Orvalis.pdf";
    std::vector<std::string> proposes;
    const Gestes gestes = {[&](QDialog& d) {
                               auto* nom = d.findChild<QLineEdit*>(QStringLiteral("filename"));
                               proposes.push_back(S(nom->text()));
                               nom->setText(Q(premier.string()));
                               d.accept();
                           },
                           [&](QDialog& d) {
                               auto* nom = d.findChild<QLineEdit*>(QStringLiteral("filename"));
                               proposes.push_back(S(nom->text()));
                               d.reject();
                           }};
    EXPECT_EQ(Repondre(gestes,
                       [&] {
                           systeme.PreparerImpression(nullptr)->TerminerDocument();
                           EXPECT_EQ(systeme.PreparerImpression(nullptr), nullptr);
                       }),
              2U);
    qputenv("HOME", maison);
    EXPECT_TRUE(std::filesystem::exists(premier));
    ASSERT_EQ(proposes.size(), 2U);
    EXPECT_EQ(proposes[0], dossier / "Orvalis.pdf");
    EXPECT_EQ(proposes[1], dossier / "Orvalis-2.pdf");
}

} // namespace orvalis::operateur::systeme_reel
