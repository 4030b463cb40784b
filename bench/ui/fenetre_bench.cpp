// What the operator waits for: from a key or a click in the real window to everything it changes
// being computed and painted, on the offscreen screen. Questions and pauses are answered at once.
#include "mesures.h"
#include "print/page_cahier.h"
#include "ui/banc.h"
#include "ui/bureau/imprimante_qt.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>

#include <chrono>
#include <cstring>
#include <stdexcept>

namespace orvalis::bench {
namespace {

using operateur::Banc;

// As on a laptop's screen; the offscreen one is smaller, and what lies outside it is painted too.
constexpr QSize kFenetre{1320, 740};

// A drive whose program folder holds the generated logbook.
void Garnir(const Banc& banc, const CahierEssai& essai) {
    std::filesystem::create_directory(banc.Dossier());
    banc.Ecrire("Parvel.cfg", "\"F5ABC\",\"F5ABC.Vek\",\"JN18DU\"\r\n");
    std::filesystem::copy_file(essai.Chemin(), banc.Dossier() / "F5ABC.Vek");
}

struct BancOuvert : Banc {
    explicit BancOuvert(const CahierEssai& essai) {
        Garnir(*this, essai);
        Ouvrir();
        fenetre->resize(kFenetre);
        QCoreApplication::processEvents();
    }
};

// Paints what waits to be painted: the offscreen screen would do so when its next refresh comes.
void Peindre(QWidget& fenetre) {
    QEvent demande(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&fenetre, &demande);
}

// A key or click with all that follows from it, painting included.
void Presser(const Banc& banc, int touche) {
    banc.Touche(touche);
    Peindre(*banc.fenetre);
}

bool CarteMontree(const Banc& banc, const CahierEssai& essai) {
    return banc.Texte("TxtField_1") ==
           TexteRogne(essai.Fiches()[essai.Fiches().size() - 2], Champ::CSGN);
}

// Shows the window and lets it start, as far as the title that it gets last.
void MontrerEtDemarrer(Orvalis& fenetre) {
    constexpr int kToursMax = 20;
    fenetre.resize(kFenetre);
    fenetre.show();
    fenetre.activateWindow();
    for (int tour = 0; tour < kToursMax && !fenetre.windowTitle().contains(u"F5ABC"); ++tour)
        QCoreApplication::processEvents();
    Peindre(fenetre);
}

void Demarrer(benchmark::State& etat, const CahierEssai& essai) {
    for ([[maybe_unused]] auto _ : etat) {
        etat.PauseTiming();
        Banc banc;
        Garnir(banc, essai);
        etat.ResumeTiming();
        banc.fenetre = std::make_unique<Orvalis>(banc.systeme);
        MontrerEtDemarrer(*banc.fenetre);
        etat.PauseTiming();
        const bool montree = CarteMontree(banc, essai);
        banc.fenetre.reset();
        etat.ResumeTiming();
        if (!montree) {
            etat.SkipWithError("no card");
            break;
        }
    }
}

// A process of its own, from its first instruction to the shown card and out again.
void LancerProgramme(benchmark::State& etat, const CahierEssai& essai) {
    const Banc banc;
    Garnir(banc, essai);
    const QString lecteur = QString::fromStdString(banc.systeme.lecteur.string());
    for ([[maybe_unused]] auto _ : etat)
        if (QProcess::execute(QCoreApplication::applicationFilePath(),
                              {QStringLiteral("--start"), lecteur}) != 0) {
            etat.SkipWithError("no card");
            break;
        }
}

// What is typed into the boxes of one contact, in the order of Enter.
struct BoiteTapee {
    int boite;
    const char* texte;
};
constexpr std::array<BoiteTapee, 13> kSaisie = {{{1, "f6abc"},
                                                 {5, "14.210"},
                                                 {6, "ssb"},
                                                 {7, "59"},
                                                 {8, "57+"},
                                                 {12, "jean-pierre"},
                                                 {9, "besançon"},
                                                 {11, "25"},
                                                 {10, "jn37xa"},
                                                 {13, "beam 3 el"},
                                                 {14, "oui"},
                                                 {15, "oui"},
                                                 {17, "f5xyz"}}};

// Empties the box that has the focus, as an operator would, and types into it.
void Remplir(const Banc& banc, const char* texte) {
    banc.Touche(Qt::Key_A, Qt::ControlModifier);
    banc.Taper(texte);
}

// Types a contact and leaves the focus on "Suivant"; returns the seconds that the Enter of box
// `boite` took, 0 when there is none.
double TaperContact(const Banc& banc, int boite) {
    double secondes = 0;
    for (const BoiteTapee& b : kSaisie) {
        if (banc.Texte("foyer") != "TxtField_" + std::to_string(b.boite))
            throw std::runtime_error("the focus went elsewhere");
        Remplir(banc, b.texte);
        Peindre(*banc.fenetre);
        const auto debut = std::chrono::steady_clock::now();
        Presser(banc, Qt::Key_Return);
        if (b.boite == boite)
            secondes =
                std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
    }
    if (banc.Texte("foyer") != "BtEnrSuivant")
        throw std::runtime_error("the contact cannot be stored");
    return secondes;
}

template<int boite> void Entree(benchmark::State& etat, const CahierEssai& essai) {
    const BancOuvert banc(essai);
    banc.Cliquer("BtNewQSO");
    for ([[maybe_unused]] auto _ : etat) {
        etat.SetIterationTime(TaperContact(banc, boite));
        banc.Cliquer("BtEnrAnnuler");
    }
}

// A letter typed into a box during entry, with what follows from it, and taken back again.
void Lettre(benchmark::State& etat, const CahierEssai& essai) {
    const BancOuvert banc(essai);
    banc.Cliquer("BtNewQSO");
    Chronometrer(
        etat, [&] { banc.Touche(Qt::Key_Backspace); }, [&] { banc.Touche(Qt::Key_A); });
    if (banc.Texte("TxtField_1") != "A")
        etat.SkipWithError("the letter went elsewhere");
}

void Suivant(benchmark::State& etat, const CahierEssai& essai) {
    const BancOuvert banc(essai);
    banc.Cliquer("BtNewQSO");
    Chronometrer(
        etat, [&] { TaperContact(banc, 0); }, [&] { Presser(banc, Qt::Key_Return); });
    if (banc.Texte("foyer") != "TxtField_1")
        etat.SkipWithError("no next card");
}

// Back and forth between the last two pages, each with the card of its first or last line.
void TournerPage(benchmark::State& etat, const CahierEssai& essai) {
    const BancOuvert banc(essai);
    bool arriere = true;
    const std::string avant = banc.Texte("LabPage");
    for ([[maybe_unused]] auto _ : etat) {
        Presser(banc, arriere ? Qt::Key_PageUp : Qt::Key_PageDown);
        arriere = !arriere;
        if (!arriere && banc.Texte("LabPage") == avant)
            return etat.SkipWithError("the page did not turn");
    }
}

void FermerLaListe(const Banc& banc) {
    if (banc.Etat("BtContactsFermer") != "caché")
        banc.Cliquer("BtContactsFermer");
}

void Chercher(benchmark::State& etat, const CahierEssai& essai, const std::string& texte) {
    const BancOuvert banc(essai);
    Chronometrer(
        etat,
        [&] {
            FermerLaListe(banc);
            banc.Controle<QWidget>("RechText")->setFocus();
            banc.Taper(texte);
        },
        [&] { Presser(banc, Qt::Key_Return); });
    etat.counters["found"] = banc.Controle<QListWidget>("ContactsListe")->count();
}

void ChercherIndicatif(benchmark::State& etat, const CahierEssai& essai) {
    Chercher(etat, essai, TexteRogne(FicheGeneree(500), Champ::CSGN));
}

void ChercherDate(benchmark::State& etat, const CahierEssai& essai) {
    Chercher(etat, essai, "01/01/20");
}

void Doublons(benchmark::State& etat, const CahierEssai& essai) {
    const BancOuvert banc(essai);
    Chronometrer(
        etat, [&] { FermerLaListe(banc); },
        [&] {
            banc.Menu("MnuDoublons");
            Peindre(*banc.fenetre);
        });
}

// Every round deletes one contact; there are far fewer rounds than contacts.
void Supprimer(benchmark::State& etat, const CahierEssai& essai) {
    const BancOuvert banc(essai);
    Chronometrer(
        etat,
        [&] {
            banc.Cliquer("CmdSensHaut");
            banc.Cliquer("BtKillFiche");
        },
        [&] {
            banc.Cliquer("FraCmdOui");
            Peindre(*banc.fenetre);
        });
}

QString Imprime(const CahierEssai& essai) {
    return QString::fromStdString((essai.Dossier() / "page.pdf").string());
}

void ImprimerPdf(benchmark::State& etat, const CahierEssai& essai) {
    const Cahier cahier = essai.Ouvrir();
    const Station poste = CahierEssai::Poste();
    const PageAffichee page = essai.DernierePage();
    for ([[maybe_unused]] auto _ : etat) {
        QPrinter pdf(QPrinter::HighResolution);
        pdf.setOutputFormat(QPrinter::PdfFormat);
        pdf.setOutputFileName(Imprime(essai));
        ImprimanteQt imprimante(pdf);
        ImprimerPage(imprimante, cahier, poste, page, page.premiere);
    }
}

// As many bytes as such a PDF has.
void EcrirePdf(benchmark::State& etat, const CahierEssai& essai) {
    constexpr std::size_t kOctetsPdf = 18500;
    for ([[maybe_unused]] auto _ : etat) {
        const Brut fichier(Imprime(essai).toStdString());
        ParBlocs(kOctetsPdf, [&](auto position, auto octets) { fichier.Ecrire(position, octets); });
    }
}

[[maybe_unused]] const int kInscrites = Inscrire({
    {"Window: start-up to the shown card", Demarrer, LireTout},
    {"Process: launch to the shown card and exit", LancerProgramme, LireTout},
    {"Window: a typed letter", Lettre, {}},
    {"Window: Suivant to the next card", Suivant, LireTout},
    {"Window: turn a page", TournerPage, LireUnePage},
    {"Window: search by callsign", ChercherIndicatif, LireTout},
    {"Window: search by date, contest day", ChercherDate, LireTout},
    {"Window: duplicates", Doublons, LireTout},
    {"Window: delete record 1", Supprimer, LireEtRecrire},
    {"Print a page to PDF", ImprimerPdf, EcrirePdf},
});

template<std::size_t... i> int InscrireEntrees(std::index_sequence<i...> /*boites*/) {
    for (const auto& [boite, corps] :
         {std::pair<int, Corps>{kSaisie[i].boite, Entree<kSaisie[i].boite>}...})
        InscrireUne("Window: Enter in box " + std::to_string(boite), corps, {})
            ->UseManualTime()
            ->Iterations(5);
    return 0;
}
[[maybe_unused]] const int kEntrees = InscrireEntrees(std::make_index_sequence<kSaisie.size()>{});

// The child of LancerProgramme.
int DemarrerSeul(const char* lecteur) {
    operateur::SystemeDEssai systeme;
    systeme.lecteur = lecteur;
    Orvalis fenetre(systeme);
    MontrerEtDemarrer(fenetre);
    const auto* indicatif = fenetre.findChild<QLineEdit*>(QStringLiteral("TxtField_1"));
    return indicatif->text().isEmpty() ? 1 : 0;
}

} // namespace

int Principal(int argc, char** argv) {
    if (argc == 3 && std::strcmp(argv[1], "--start") == 0)
        return DemarrerSeul(argv[2]);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

} // namespace orvalis::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.warning=false"); // what the offscreen screen cannot do
    // The drives too lie in memory: the flush to the disk is measured apart.
    qputenv("TMPDIR", orvalis::bench::Dossier(orvalis::bench::Lieu::Memoire).c_str());
    const QApplication application(argc, argv);
    return orvalis::bench::Principal(argc, argv);
}
