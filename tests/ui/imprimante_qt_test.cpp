// What a printed document holds, as pdftotext (of poppler-utils) reads it back.
#include "aides.h"
#include "print/page_cahier.h"
#include "ui/bureau/imprimante_qt.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace orvalis::aides::imprimante_qt {

using namespace testing;
using namespace Qt::StringLiterals;

struct Mot {
    std::string texte;
    double x, y, largeur; // twips from the corner of the printable area
};

auto Porte(const char* texte, double x, double y) {
    return Contains(AllOf(Field(&Mot::texte, texte), Field(&Mot::x, DoubleNear(x, 2)),
                          Field(&Mot::y, DoubleNear(y, 40))));
}

struct ImprimanteQtTest : Test {
    QTemporaryDir dossier;
    QString chemin = dossier.filePath(u"essai.pdf"_s);
    QPrinter pdf{QPrinter::HighResolution};

    ImprimanteQtTest() { SortirVers(chemin); }
    void SortirVers(const QString& sortie) {
        pdf.setOutputFormat(QPrinter::PdfFormat);
        pdf.setOutputFileName(sortie);
    }

    // The words of the document, which is one page of A4 portrait.
    std::vector<Mot> Relire() {
        QProcess lecteur;
        lecteur.start(u"pdftotext"_s, {u"-tsv"_s, chemin, u"-"_s});
        EXPECT_TRUE(lecteur.waitForFinished());
        const QString table = QString::fromUtf8(lecteur.readAllStandardOutput());
        EXPECT_EQ(table.count(u"\t595.000000\t842.000000\t"_s), 1) << table.toStdString();
        std::vector<Mot> mots;
        for (const QString& ligne : table.split(u'\n', Qt::SkipEmptyParts)) {
            const QStringList c = ligne.split(u'\t');
            const auto twips = [&c](int colonne) { return c[colonne].toDouble() * 20; };
            mots.push_back({c.last().toStdString(), twips(6) - 200, twips(7) - 200, twips(8)});
        }
        return mots;
    }
};

TEST_F(ImprimanteQtTest, PageDuCahier) {
    const Dossier autre;
    const std::string fiche = Brute({{0, "HB9\xC9\xC0"}, {151, "12/05/02"}});
    const Cahier cahier = Ouvrir(autre.Poser("F5ABC.Vek", fiche + fiche));
    const Station station{{}, "F5XYZ", "JN18AA"};
    ImprimanteQt imprimante(pdf);
    ImprimerPage(imprimante, cahier, station, {3, kPremiereFiche, cahier.Derniere()},
                 kPremiereFiche);

    const auto mots = Relire();
    EXPECT_THAT(mots, AllOf(Porte("Cahier", 400, 400), Porte("F5XYZ", 3050, 390),
                            Porte("Déb", 1400, 1480), Porte("HB9ÉÀ", 3100, 2400),
                            Porte("12/05/02", 10800, 1920), Porte("Page", 8900, 14100)));
    const Mot& avant = mots[mots.size() - 2];
    EXPECT_THAT(mots, Porte("3", avant.x + avant.largeur + 44, 14100)) << "on the same line";
    EXPECT_NEAR(imprimante.LargeurTexte("n°"), avant.largeur, 2);
}

// The ink of what is filled and written; black again for lines, and what stands on the next sheet.
TEST_F(ImprimanteQtTest, EncresEtPages) {
    ImprimanteQt imprimante(pdf);
    imprimante.ChoisirPapier(Papier::A4, Orientation::Portrait);
    imprimante.ChoisirEncre(Encre::Forte);
    imprimante.RemplirRectangle(3000, 3000, 1000, 1000);
    imprimante.EcrireEn(1000, 4000, "encre");
    imprimante.TracerLigne(1000, 6000, 3000, 6000);
    imprimante.TournerPage();
    imprimante.ChoisirEncre(Encre::Pale);
    imprimante.RemplirRectangle(1000, 1000, 3000, 3000);
    imprimante.TerminerDocument();
    const auto point = [this](int page, int x, int y) {
        QProcess lecteur; // a dot for ten twips
        lecteur.start(u"pdftoppm"_s, {u"-r"_s, u"144"_s, u"-f"_s, QString::number(page), u"-png"_s,
                                      u"-singlefile"_s, chemin, chemin});
        EXPECT_TRUE(lecteur.waitForFinished() && lecteur.exitCode() == 0) << page;
        return QImage(chemin + u".png"_s).pixelColor(x / 10 + 20, y / 10 + 20);
    };
    EXPECT_EQ(point(1, 2000, 2000), QColor(0x1F, 0x4E, 0x79));
    EXPECT_EQ(point(1, 3200, 2000), QColor(Qt::white));
    EXPECT_EQ(point(1, 2000, 6000).hsvSaturation(), 0);
    EXPECT_LT(point(1, 2000, 6000).lightness(), 230);
    EXPECT_EQ(point(2, 2000, 2000), QColor(0xBF, 0xD6, 0xEC));
}

TEST_F(ImprimanteQtTest, SortiesImpossibles) {
    ImprimanteQt{pdf}.EcrireEn(0, 0, "abandon");
    EXPECT_FALSE(QFile::exists(chemin)) << "a document that is not ended prints nothing";
    for (const QString& sortie :
         {QString{}, dossier.filePath(u"absent/essai.pdf"_s), dossier.path(), u"/dev/full"_s}) {
        SortirVers(sortie);
        EXPECT_EQ(SortieChoisie(pdf), !sortie.isEmpty());
        ImprimanteQt imprimante(pdf);
        imprimante.EcrireEn(0, 0, "essai");
        EXPECT_THAT([&] { imprimante.TerminerDocument(); },
                    ThrowsMessage<Erreur>(HasSubstr(sortie.toStdString())));
    }
}

// What one full disk did to the output does not last, and a file is replaced by a whole one only.
#ifndef _WIN32
TEST_F(ImprimanteQtTest, DisquePleinPuisLibere) {
    const auto imprimer = [this](const char* texte) {
        ImprimanteQt imprimante(pdf);
        pdf.setResolution(600); // a device that does not take the resolution
        imprimante.EcrireEn(1440, 2880, texte);
        for (int i = 0; i < 20000; ++i)
            imprimante.TracerLigne(0, i % 7919, 11000, i % 6007);
        imprimante.TerminerDocument();
    };
    imprimer("premier");
    {
        const DisquePlein plein(2000);
        EXPECT_THAT([&] { imprimer("second"); },
                    ThrowsMessage<Erreur>(AllOf(HasSubstr("/orvalis*.pdf"), HasSubstr("plein"))));
    }
    EXPECT_THAT(Relire(), Porte("premier", 1440, 2880));
    {
        const SansPrivileges sans;
        QFile::setPermissions(dossier.path(), QFile::ReadOwner | QFile::ExeOwner);
        EXPECT_THROW(imprimer("second"), Erreur) << "only written into the file as it is";
        QFile::setPermissions(dossier.path(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    EXPECT_THAT(Relire(), Porte("premier", 1440, 2880));
    imprimer("second");
    EXPECT_THAT(Relire(), Porte("second", 1440, 2880));
}
#endif

} // namespace orvalis::aides::imprimante_qt
