// Tries every fault at every call of the system that an operation makes, and checks the files
// after each. The window stands ready before the operation's last gesture; each fault strikes in
// a child of the process, so that all start from the same instant.
//
//   orvalis_fautes [OPERATION]                  one operation, or all
//   orvalis_fautes --une OPERATION LECTEUR      the operation alone, for strace (see tools/fautes)
//   orvalis_fautes --juger OPERATION LECTEUR    what is wrong there after it
#include "fautes/fautes.h"

#include <QApplication>

#include <cerrno>
#include <iostream>
#include <unistd.h>

namespace orvalis::operateur {
namespace {

namespace fs = std::filesystem;

// Keeps the window from painting: Qt paints with threads, which a forked process does not have.
class SansPeinture : public QObject {
  public:
    bool eventFilter(QObject* /*objet*/, QEvent* evenement) override {
        const QEvent::Type type = evenement->type();
        return type == QEvent::UpdateRequest || type == QEvent::Paint || type == QEvent::Expose;
    }
};

Fichiers LireFichiers(const fs::path& dossier) {
    Fichiers fichiers;
    for (const auto& entree : fs::directory_iterator(dossier))
        fichiers[entree.path().filename()] =
            entree.is_regular_file() ? aides::Lire(entree.path()) : std::string();
    return fichiers;
}

// What the operator was told, "killed" or "crashed"; the files are put back in place before,
// under what has them open.
std::string Essayer(const Operation& operation, Banc& banc, const Fichiers& avant, const Plan& plan,
                    Bilan& bilan) {
    for (const auto& entree : fs::directory_iterator(banc.Dossier()))
        if (!avant.contains(entree.path().filename()))
            fs::remove_all(entree.path());
    for (const auto& [nom, octets] : avant)
        banc.Ecrire(nom, octets);
    return LancerArme(banc.systeme.lecteur.string(), plan, bilan,
                      [&] { return Agir(operation, banc); });
}

// What is wrong after a fault; empty when nothing is.
std::string Juger(const Plan& plan, const Appel& appel, const std::string& message,
                  const Bilan& bilan, const Fichiers& avant, const Fichiers& apres,
                  const Fichiers& trouves) {
    const bool tue = plan.faute.tue, interrompu = plan.faute.erreur == EINTR,
               dit = !interrompu && (message.find("Impossible") != message.npos ||
                                     message.find("est arrêté") != message.npos);
    if ((message == "killed") != tue)
        return tue ? "was not killed" : "died";
    // A sort that cannot map its file is refused, and all else goes on.
    const bool fini = message.find(kFini) != message.npos;
    if (appel.nom == std::string_view("mmap") && fini)
        return "ended the program";
    const std::string degat = Degat(avant, apres, trouves, plan.faute.erreur == EIO);
    if (!degat.empty() || tue)
        return degat;
    // What changes contacts in their places is whole at every instant; what adds or deletes some
    // mends what fails.
    const auto fin = [](const Fichiers& f) { return f.at("F5ABC.Vek").find("\\ "); };
    const bool repare = fin(avant) != fin(apres);
    if (std::string perte = NonSynchronise(bilan);
        !perte.empty() && !plan.faute.plein && (repare || !fini))
        return perte;
    for (const auto& [nom, octets] : trouves) // killed, it may leave what it had begun
        if (const auto entier = apres.find(nom);
            !avant.contains(nom) && (entier == apres.end() || entier->second != octets))
            return nom + " is left unfinished";
    if (dit)
        return {};
    if (!message.empty())
        return "said: " + message;
    return trouves == apres ? "" : "said nothing, although it is not done";
}

// Counts the faults tried and those that did damage.
void Parcourir(const Operation& operation, Bilan& bilan, int& essais, int& degats) {
    Banc banc;
    Preparer(operation, banc);
    const Fichiers avant = LireFichiers(banc.Dossier());
    const std::string temoin = Essayer(operation, banc, avant, {}, bilan);
    const std::vector<Appel> appels(bilan.appels.data(), bilan.appels.data() + bilan.nombre);
    const std::string ordre = Journal(bilan);
    const Fichiers apres = LireFichiers(banc.Dossier());
    const auto dire = [&](const std::string& texte) {
        std::cout << operation.nom << ": " << texte << std::endl;
    };
    dire(std::to_string(appels.size()) + " calls");
    if (!temoin.empty() || apres == avant || appels.empty()) {
        dire("does not work " + temoin);
        ++degats;
    }
    if (ordre != operation.ordre) {
        dire("writes and flushes " + ordre);
        ++degats;
    }
    for (std::size_t rang = 0; rang < appels.size(); ++rang)
        for (const Plan& plan : Fautes(appels[rang], rang)) {
            ++essais;
            const std::string message = Essayer(operation, banc, avant, plan, bilan);
            const Fichiers trouves = LireFichiers(banc.Dossier());
            const std::string degat =
                Juger(plan, appels[rang], message, bilan, avant, apres, trouves);
            if (degat.empty())
                continue;
            ++degats;
            dire(std::string(plan.faute.nom) + " at call " + std::to_string(rang + 1) + " (" +
                 appels[rang].nom + "): " + degat);
        }
}

// The operation in this process, between two marks that strace sees, on `lecteur`; or, when
// `juge`, on a drive of its own, and what is wrong on `lecteur` beside it.
std::string Seule(const Operation& operation, const fs::path& lecteur, bool juge) {
    Banc banc;
    if (!juge)
        banc.systeme.lecteur = lecteur;
    Preparer(operation, banc);
    const Fichiers avant = LireFichiers(banc.Dossier());
    static_cast<void>(::access("/fautes-debut", F_OK));
    const std::string message = Agir(operation, banc);
    static_cast<void>(::access("/fautes-fin", F_OK));
    return juge ? Degat(avant, LireFichiers(banc.Dossier()), LireFichiers(lecteur / "Orvalis"))
                : message;
}

} // namespace
} // namespace orvalis::operateur

int main(int argc, char** argv) {
    using namespace orvalis::operateur;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    SansPeinture filtre;
    qApp->installEventFilter(&filtre);
    const std::vector<std::string> mots(argv + 1, argv + argc);
    const std::string ordre = mots.size() == 3 ? mots[0] : "";
    const std::string nom = mots.empty() ? "" : mots[ordre.empty() ? 0 : 1];
    Bilan& bilan = NouveauBilan();
    int essais = 0, degats = 0;
    for (const Operation& operation : Operations()) {
        if (!nom.empty() && nom != operation.nom)
            continue;
        if (!ordre.empty()) {
            const std::string message = Seule(operation, mots[2], ordre == "--juger");
            std::cout << message << std::endl;
            ::_exit(message.empty() ? 0 : 1);
        }
        Parcourir(operation, bilan, essais, degats);
    }
    std::cout << essais << " faults tried, " << degats << " damaged\n";
    const bool fait = essais != 0 && !testing::UnitTest::GetInstance()->Failed();
    return fait && degats == 0 ? 0 : 1;
}
