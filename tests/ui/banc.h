// A bench for the real window: a drive of its own, a set clock, answers to every question, and the
// words for what an operator does and sees.
#pragma once

#include "aides.h"
#include "print/imprimante.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/fenetre/orvalis.h"

#include <QCoreApplication>
#include <QDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTemporaryDir>

namespace orvalis::operateur {

/// Answers at once, and keeps what it was asked.
class SystemeDEssai : public Systeme {
  public:
    std::filesystem::path lecteur;
    Instant maintenant{2026, 11, 21, 18, 30, 15};
    std::function<void()> pendantPause; ///< called once in the next pause
    QStringList avertissements;
    QStringList demandes;  ///< all else, in the order asked
    QString fichierChoisi; ///< none: the dialog is cancelled, as that for the printer
    std::function<std::unique_ptr<Imprimante>()> imprimante;
    std::optional<int> codeDeFin;

    [[nodiscard]] std::filesystem::path Lecteur() const override { return lecteur; }
    [[nodiscard]] Instant Maintenant() const override { return maintenant; }
    void Pause(int /*secondes*/) override {
        if (auto action = std::exchange(pendantPause, nullptr))
            action();
        QCoreApplication::processEvents();
    }
    void Informer(QWidget* /*parent*/, const QString& titre, const QString& texte) override {
        demandes << titre << texte;
    }
    void Avertir(QWidget* /*parent*/, const QString& texte) override {
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "under the hourglass " << S(texte);
        avertissements << texte;
    }
    [[nodiscard]] QString ChoisirFichier(QWidget* /*parent*/, const DemandeFichier& d) override {
        demandes << Q(d.enregistrer ? "enregistrer" : "ouvrir") << d.dossier << d.nomPropose;
        return fichierChoisi;
    }
    [[nodiscard]] std::unique_ptr<Imprimante> PreparerImpression(QWidget* /*parent*/) override {
        return imprimante ? imprimante() : nullptr;
    }
    void ConfigurerImprimante(QWidget* /*parent*/) override { demandes << Q("imprimante"); }
    [[nodiscard]] std::filesystem::path DossierInstalle() const override {
        return lecteur / "Orvalis/installe";
    }
    /// Of the other programs only those start whose file says so.
    [[nodiscard]] std::optional<QString> Lancer(const QString& chemin) override {
        demandes << chemin;
        return aides::Lire(S(chemin)) == "programme"
                   ? std::nullopt
                   : std::optional(QStringLiteral("refus %1").arg(demandes.size()));
    }
    void Quitter(int code) override { codeDeFin = code; }
};

/// A contact from the texts of its fields in order, with '|' between them; the rest is blank.
[[nodiscard]] std::string Octets(const std::string& champs, std::string_view monLocator = "");
/// `n` contacts numbered in their callsigns, a minute apart, without an end-of-log record.
[[nodiscard]] std::string Contacts(int n);
/// The end-of-log record with the own locator in MLOC.
[[nodiscard]] inline std::string Fin(std::string_view monLocator = "JN04SD") {
    return aides::Fin(monLocator);
}

/// First record in which two logbooks differ, for a failed test; empty when they are equal.
[[nodiscard]] std::string Difference(const std::string& obtenu, const std::string& attendu);

/// The letter that answers with Alt for a button, or for a label's neighbour; empty for none.
[[nodiscard]] QKeySequence Lettre(const QWidget& widget);

/// The dialogs that hold more than a text and buttons, not yet shown.
[[nodiscard]] std::array<std::unique_ptr<QDialog>, 3> Dialogues(Systeme& systeme);

/// Walks are those of aides.h, with a semicolon between two gestures or sights.
///
/// Gestures, each on every one of the names, keys or texts between commas behind its word:
///   clic A, B         presses controls       touche Tab, Alt+B  presses keys
///   menu A, B         chooses commands       entree 4           presses Return four times
///   tient 4           holds Return down as long as it takes the keyboard to repeat it four times
///   compose a, b      brings characters as a dead key does
///   tape a, b         types                  valide a, b        types each with Return behind it
///   colle A texte     pastes into A          foyer A            puts the focus on A
///   ligne 2           of the contact list    rangee 2           of the sheet, both from 1
///   fichier A.Vek     of the program folder is what the next file dialogs give
/// Controls and commands must be on show and enabled, a letter with Alt must have an answer; with
/// "refusé" at the end of clic, menu, touche or foyer they must not.
///
/// Sights:
///   A = texte         the text of a control; of a list, its lines with '|' between them
///   A B = a|b         several of them; `groupes` gives some a common name
///   A contient texte
///   caché A B         the state of controls: caché, grisé, coché, lecture (for reading only),
///                     actif (none of these)
///   rouge A           a box whose text is the dark red of an error, selected or not
///   foyer = A         what has the focus
///   ligne = 2/25      row chosen, 0 for none, of how many
///   demandes = a|b    what the system was asked in this step
///   averti = texte    what the operator was warned of; a warning without this sight is a failure
/// In what is seen the program folder is "~" and the end of a line "\n".
class Banc {
  public:
    Banc() { systeme.lecteur = S(disque.path()); }
    /// Opened on a logbook of these bytes.
    explicit Banc(const std::string& octets) : Banc() {
        Installer(octets);
        Ouvrir();
    }
    /// Puts a Settings file and a logbook of these bytes into the program folder.
    void Installer(const std::string& octets);
    /// Opens the window and lets it start.
    void Ouvrir();

    [[nodiscard]] std::filesystem::path Dossier() const { return systeme.lecteur / "Orvalis"; }
    [[nodiscard]] QString Chemin(const std::string& n) const { return Q((Dossier() / n).string()); }
    [[nodiscard]] std::string Lire(const std::string& n) const {
        return aides::Lire(Dossier() / n);
    }
    void Ecrire(const std::string& nom, const std::string& octets) const {
        std::ofstream(Dossier() / nom, std::ios::binary) << octets;
    }
    [[nodiscard]] std::string OctetsCahier() const { return Lire("F5ABC.Vek"); }

    /// Takes the steps of a walk. A word or a name that is not known and a gesture that cannot be
    /// made fail under the name of the step and end the walk.
    void Suivre(const std::string& chemin);

    // What follows throws when there is no such thing, or when it is not to be used.
    template<typename T> [[nodiscard]] T* Controle(const std::string& nom) const {
        if (T* controle = fenetre == nullptr ? nullptr : fenetre->findChild<T*>(Q(nom)))
            return controle;
        throw std::invalid_argument("no such control: " + nom);
    }
    /// Gestures alone.
    void Faire(const std::string& gestes);
    void Cliquer(const std::string& nom, bool refus = false) const;
    void Menu(const std::string& nom, bool refus = false) const;
    void Touche(int touche, Qt::KeyboardModifiers modificateurs = Qt::NoModifier) const;
    /// Types text as a keyboard does, to whatever has the focus; '\n' is Return.
    void Taper(const std::string& utf8) const;
    /// What is seen of one name on the left of "=", and the word for the state of a control.
    [[nodiscard]] std::string Texte(const std::string& nom) const;
    [[nodiscard]] std::string Etat(const std::string& nom) const;

    QTemporaryDir disque;
    SystemeDEssai systeme;
    std::unique_ptr<Orvalis> fenetre;
    std::map<std::string, std::string> groupes;

  private:
    mutable std::uint64_t instant_ = 0; ///< of the keyboard, in ms

    template<typename T> T* Atteindre(const std::string& nom, bool refus = false) const;
    [[nodiscard]] QWidget* Devant() const;
    void Envoyer(QEvent::Type type, int entree, int apres) const;
    void Presser(const std::string& nom, bool refus) const;
    void Constater(const std::string& vu) const;
};

} // namespace orvalis::operateur
