// Tries every fault at every call of the system that an operation makes, and checks the files
// after each. The window stands ready before the operation's last gesture; each fault strikes in
// a child of the process, so that all start from the same instant.
//
//   orvalis_fautes [--pas N] [operation...]     every N-th fault of the operations, or of all
//   orvalis_fautes --une OPERATION LECTEUR      the operation alone, for strace (see fautes.sh)
//   orvalis_fautes --juger OPERATION REFERENCE LECTEUR
//                                               checks what it left, beside a run without fault
#include "fautes/controle.h"
#include "fautes/injection.h"

#include <QApplication>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace orvalis::essais {
namespace {

namespace fs = std::filesystem;

/// Keeps the window from painting: Qt paints with threads, which a forked process does not have.
class SansPeinture : public QObject {
  public:
    bool eventFilter(QObject* /*objet*/, QEvent* evenement) override {
        const QEvent::Type type = evenement->type();
        return type == QEvent::UpdateRequest || type == QEvent::Paint || type == QEvent::Expose;
    }
};

/// What a run of an operation showed.
struct Bilan {
    bool tuee = false;
    std::string message;
    std::vector<Appel> appels;
};

Fichiers LireFichiers(const fs::path& dossier) {
    Fichiers fichiers;
    for (const auto& entree : fs::directory_iterator(dossier)) {
        std::ostringstream octets;
        if (entree.is_regular_file())
            octets << std::ifstream(entree.path(), std::ios::binary).rdbuf();
        fichiers[entree.path().filename().string()] = octets.str();
    }
    return fichiers;
}

/// Puts the files back in place, under what has them open.
void Remettre(const fs::path& dossier, const Fichiers& fichiers) {
    for (const auto& entree : fs::directory_iterator(dossier))
        if (!fichiers.contains(entree.path().filename().string()))
            fs::remove_all(entree.path());
    for (const auto& [nom, octets] : fichiers)
        std::ofstream(dossier / nom, std::ios::binary) << octets;
}

void Preparer(const Operation& operation, Banc& banc) {
    banc.Installer({});
    for (const auto& [nom, octets] : operation.fichiers)
        banc.Ecrire(nom, octets);
    if (operation.fenetre)
        banc.Ouvrir();
    operation.preparer(banc);
}

/// The last gesture; what the operator was told.
std::string Agir(const Operation& operation, Banc& banc) {
    operation.agir(banc);
    std::string texte;
    for (const QString& message : banc.systeme.avertissements)
        texte += message.toStdString();
    if (banc.systeme.codeDeFin && (texte.empty() || *banc.systeme.codeDeFin == 0))
        texte = "ended without a word";
    return texte;
}

[[noreturn]] void Enfant(const Operation& operation, Banc& banc, const Plan& plan, int sortie) {
    ::alarm(20); // a run that hangs counts as a crash
    Armer(banc.systeme.lecteur.string(), plan);
    const std::string message = Agir(operation, banc);
    std::ostringstream rapport;
    for (const Appel& appel : Desarmer())
        rapport << static_cast<int>(appel.sorte) << ' ' << appel.octets << ' ' << appel.position
                << ' ' << appel.nom << '\n';
    rapport << '\n' << message;
    const std::string texte = rapport.str();
    ::_exit(::write(sortie, texte.data(), texte.size()) < 0 ? 1 : 0);
}

Bilan Essayer(const Operation& operation, Banc& banc, const Plan& plan) {
    int tube[2] = {};
    if (::pipe(tube) != 0)
        throw std::runtime_error("pipe");
    const pid_t enfant = ::fork();
    if (enfant == 0)
        Enfant(operation, banc, plan, tube[1]);
    ::close(tube[1]);
    std::string texte;
    char morceau[4096];
    for (ssize_t n = 0; (n = ::read(tube[0], morceau, sizeof morceau)) > 0;)
        texte.append(morceau, static_cast<std::size_t>(n));
    ::close(tube[0]);
    int statut = 0;
    ::waitpid(enfant, &statut, 0);
    Bilan bilan;
    bilan.tuee = WIFSIGNALED(statut) && WTERMSIG(statut) == SIGKILL;
    std::istringstream lignes(texte);
    for (std::string ligne; std::getline(lignes, ligne) && !ligne.empty();) {
        int sorte = 0;
        Appel appel;
        std::istringstream(ligne) >> sorte >> appel.octets >> appel.position >> appel.nom;
        appel.sorte = static_cast<SorteAppel>(sorte);
        bilan.appels.push_back(appel);
    }
    std::getline(lignes, bilan.message, '\0');
    if (!bilan.tuee && statut != 0)
        bilan.message = "crashed";
    return bilan;
}

constexpr const char* kNoms[] = {
    "none", "killed", "killed inside", "disk full", "cut short", "cut short, then full", "error"};

/// What is wrong after a fault; empty when nothing is.
std::string Juger(const Plan& plan, const Bilan& bilan, const Fichiers& avant,
                  const Fichiers& apres, const Fichiers& trouves) {
    const bool doitMourir = plan.faute == Faute::Tuee || plan.faute == Faute::TueeDedans;
    if (bilan.tuee != doitMourir)
        return doitMourir ? "was not killed" : "died";
    std::string degat = Degat(avant, apres, trouves);
    const bool dit = bilan.message.find("Impossible") != std::string::npos;
    if (degat.empty() && !bilan.message.empty() && !dit)
        degat = "said: " + bilan.message;
    if (degat.empty() && !doitMourir && !dit && trouves != apres)
        degat = "said nothing, although it is not done";
    return degat;
}

struct Compte {
    int essais = 0;
    int degats = 0;
};

void Parcourir(const Operation& operation, int pas, Compte& compte) {
    Banc banc;
    Preparer(operation, banc);
    const fs::path dossier = banc.Dossier();
    const Fichiers avant = LireFichiers(dossier);
    const Bilan temoin = Essayer(operation, banc, {});
    const Fichiers apres = LireFichiers(dossier);
    int essais = 0;
    int degats = 0;
    if (!temoin.message.empty() || apres == avant || temoin.appels.empty()) {
        std::cout << operation.nom << ": does not work: " << temoin.message << '\n';
        ++degats;
    }
    for (std::size_t rang = 0; rang < temoin.appels.size(); ++rang)
        for (const Plan& plan : Fautes(temoin.appels[rang], rang)) {
            if ((compte.essais + essais++) % pas != 0)
                continue;
            Remettre(dossier, avant);
            const Bilan bilan = Essayer(operation, banc, plan);
            const std::string degat = Juger(plan, bilan, avant, apres, LireFichiers(dossier));
            if (degat.empty())
                continue;
            ++degats;
            std::cout << operation.nom << ": " << kNoms[static_cast<int>(plan.faute)] << " at call "
                      << rang + 1 << " (" << temoin.appels[rang].nom << "): " << degat << '\n';
        }
    std::cout << operation.nom << ": " << temoin.appels.size() << " calls, "
              << (essais + pas - 1) / pas << " faults, " << degats << " damaged" << std::endl;
    compte.essais += essais;
    compte.degats += degats;
}

/// One operation in this process, between two marks that strace sees.
int Seule(const Operation& operation, const fs::path& lecteur) {
    Banc banc;
    banc.systeme.lecteur = lecteur;
    Preparer(operation, banc);
    static_cast<void>(::access("/fautes-debut", F_OK));
    const std::string message = Agir(operation, banc);
    static_cast<void>(::access("/fautes-fin", F_OK));
    std::cout << message << '\n';
    ::_exit(message.empty() ? 0 : 1);
}

int JugerSeule(const Operation& operation, const fs::path& reference, const fs::path& lecteur) {
    const std::string degat = Degat(operation.fichiers, LireFichiers(reference / "Orvalis"),
                                    LireFichiers(lecteur / "Orvalis"));
    std::cout << degat;
    return degat.empty() ? 0 : 1;
}

} // namespace
} // namespace orvalis::essais

int main(int argc, char** argv) {
    using namespace orvalis::essais;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    SansPeinture filtre;
    qApp->installEventFilter(&filtre);
    int pas = 1;
    std::vector<std::string> noms;
    for (int i = 1; i < argc; ++i)
        if (argv[i] == std::string("--pas") && i + 1 < argc)
            pas = std::stoi(argv[++i]);
        else
            noms.emplace_back(argv[i]);
    const std::string ordre = noms.empty() ? std::string() : noms[0];
    const bool seule = ordre == "--une" || ordre == "--juger";
    Compte compte;
    for (const Operation& operation : Operations()) {
        if (!noms.empty() && std::find(noms.begin(), noms.end(), operation.nom) == noms.end())
            continue;
        if (seule)
            return ordre == "--une" ? Seule(operation, noms.at(2))
                                    : JugerSeule(operation, noms.at(2), noms.at(3));
        Parcourir(operation, pas, compte);
    }
    std::cout << compte.essais / pas << " faults tried, " << compte.degats << " damaged\n";
    return compte.essais == 0 || compte.degats != 0 ? 1 : 0;
}
