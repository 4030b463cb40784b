#include "print/etiquette.h"
#include "print/imprimante_qt.h"
#include "print/page_journal.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace orvalis {
namespace {

using namespace Qt::StringLiterals;

/// Corner of the printable area of a PDF page, in twips from the corner of the paper.
constexpr double kMarge = 200;

struct Mot {
    QString texte;
    double x, y, droite; ///< twips from the corner of the printable area
};

struct ImprimanteQtTest : testing::Test {
    QTemporaryDir dossier;
    QString chemin = dossier.filePath(u"essai.pdf"_s);
    QPrinter pdf{QPrinter::HighResolution};
    int pages = 0;

    ImprimanteQtTest() {
        pdf.setOutputFormat(QPrinter::PdfFormat);
        pdf.setOutputFileName(chemin);
    }

    QList<Mot> Relire() {
        QProcess lecteur;
        lecteur.start(u"pdftotext"_s, {u"-bbox"_s, chemin, u"-"_s});
        EXPECT_TRUE(lecteur.waitForFinished()) << "pdftotext (poppler-utils) is needed";
        const QString html = QString::fromUtf8(lecteur.readAllStandardOutput());
        pages = static_cast<int>(html.count(u"<page width=\"595.000000\" height=\"842.000000\""_s));
        static const QRegularExpression motif(
            u"<word xMin=\"(.*)\" yMin=\"(.*)\" xMax=\"(.*)\" yMax=.*>(.*)</word>"_s);
        QList<Mot> mots;
        for (const auto& m : motif.globalMatch(html))
            mots.append({m.captured(4), m.captured(1).toDouble() * 20 - kMarge,
                         m.captured(2).toDouble() * 20 - kMarge,
                         m.captured(3).toDouble() * 20 - kMarge});
        return mots;
    }

    /// Looks for a word that starts at `x`, or is centred on it.
    static void Verifier(const QList<Mot>& mots, const std::string& texte, double x, double y,
                         bool centre = false) {
        EXPECT_TRUE(std::any_of(mots.begin(), mots.end(),
                                [&](const Mot& m) {
                                    return m.texte.toStdString() == texte &&
                                           std::abs(m.y - y) < 40 &&
                                           std::abs((centre ? (m.x + m.droite) / 2 : m.x) - x) < 2;
                                }))
            << texte << " at " << x << ' ' << y;
    }
};

TEST_F(ImprimanteQtTest, PageDuCahier) {
    const QString journal = dossier.filePath(u"essai.Vek"_s);
    Session session;
    session.indicatif = "F5XYZ";
    session.pageAffichee = 3;
    session.nbFiches = 2;
    session.journal = Journal(journal.toStdString(), ModeFichier::Creation);
    QsoRecord fiche;
    MettreChamp(fiche, Champ::CSGN, "HB9ÉÀ");
    MettreChamp(fiche, Champ::SQSL, "12/05/02");
    session.journal.Ecrire(1, fiche);
    session.journal.Ecrire(2, fiche);
    ImprimanteQt imprimante(pdf);
    ImprimerPage(imprimante, session, 1);

    const QList<Mot> mots = Relire();
    EXPECT_EQ(pages, 1);
    Verifier(mots, "Cahier", 400, 400);
    Verifier(mots, "F5XYZ", 3050, 390);
    Verifier(mots, "Déb", 1400, 1480);
    Verifier(mots, "HB9ÉÀ", 3100, 2400);
    Verifier(mots, "12/05/02", 10800, 1920);
    Verifier(mots, "Page", 8900, 14100);
    EXPECT_EQ(mots.last().texte, u"3"_s);
    EXPECT_NEAR(mots.last().x, mots[mots.size() - 2].droite + 45, 10) << "on the same line";
}

TEST_F(ImprimanteQtTest, PlancheDEtiquettes) {
    std::vector<EtiquettePlacee> etiquettes(kEtiquettesParPlanche);
    for (std::int16_t k = 1; k <= kEtiquettesParPlanche; ++k)
        etiquettes[static_cast<std::size_t>(k - 1)] = {
            k,
            {"F4A" + std::to_string(k), "", "", "BUREAU", "12/05/02", "18:30", "7", "599", "CW"}};
    EnTetesEtiquettes enTetes;
    ImprimanteQt imprimante(pdf);
    ImprimerPlanche(imprimante, etiquettes, enTetes);

    const QList<Mot> mots = Relire();
    EXPECT_EQ(pages, 1);
    Verifier(mots, "TO", 300 + 380, 400 + 620);
    Verifier(mots, "UTC", 6100 + 2380, 14260 + 620);
    Verifier(mots, "Pse", 6100 + 400, 8320 + 1250);
    for (const EtiquettePlacee& e : etiquettes) {
        const OrigineEtiquette o = OrigineDeEtiquette(PlaceDeEtiquette(e.numero));
        Verifier(mots, e.donnees.indicatif, o.x + 860, o.y + 920, true);
    }
}

TEST_F(ImprimanteQtTest, SortiesImpossibles) {
    ImprimanteQt{pdf}.EcrireEn(0, 0, "abandon");
    EXPECT_FALSE(QFile::exists(chemin)) << "a document that is not ended prints nothing";
    for (const QString& sortie :
         {QString{}, dossier.filePath(u"absent/essai.pdf"_s), dossier.path(), u"/dev/full"_s}) {
        pdf.setOutputFormat(QPrinter::PdfFormat);
        pdf.setOutputFileName(sortie);
        EXPECT_EQ(SortieChoisie(pdf), !sortie.isEmpty());
        ImprimanteQt imprimante(pdf);
        imprimante.EcrireEn(0, 0, "essai");
        try {
            imprimante.TerminerDocument();
            ADD_FAILURE() << "printed to " << sortie.toStdString();
        } catch (const ErreurImpression& erreur) {
            EXPECT_NE(QString::fromUtf8(erreur.what()).indexOf(sortie), -1) << erreur.what();
        }
    }
}

} // namespace
} // namespace orvalis
