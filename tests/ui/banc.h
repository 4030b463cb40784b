// A bench for the real window: a drive of its own, a set clock, answers to every question.
#pragma once

#include "aides.h"
#include "print/imprimante.h"
#include "ui/orvalis.h"
#include "ui/systeme.h"
#include "ui/texte_qt.h"

#include <QTemporaryDir>

#include <functional>

namespace orvalis::essais {

class SystemeDEssai : public Systeme {
  public:
    std::filesystem::path lecteur;
    Instant maintenant{2026, 11, 21, 18, 30, 15};
    std::function<void()> pendantPause; ///< called once in the next pause
    std::vector<QString> avertissements, informations, lances;
    std::vector<DemandeFichier> demandes;
    QString fichierChoisi;
    std::optional<QString> refusDeLancer;
    std::optional<int> codeDeFin;
    std::function<std::unique_ptr<Imprimante>()> imprimante; ///< none: the dialog is cancelled
    int configurations = 0;

    [[nodiscard]] std::filesystem::path Lecteur() const override { return lecteur; }
    [[nodiscard]] Instant Maintenant() const override { return maintenant; }
    void Pause(int secondes) override;
    void Informer(QWidget* /*parent*/, const QString& titre, const QString& texte) override {
        informations.push_back(titre + QLatin1Char('|') + texte);
    }
    void Avertir(QWidget* /*parent*/, const QString& t) override { avertissements.push_back(t); }
    [[nodiscard]] QString ChoisirFichier(QWidget* /*parent*/, const DemandeFichier& d) override {
        demandes.push_back(d);
        return fichierChoisi;
    }
    [[nodiscard]] std::unique_ptr<Imprimante> PreparerImpression(QWidget* /*parent*/) override {
        return imprimante ? imprimante() : nullptr;
    }
    void ConfigurerImprimante(QWidget* /*parent*/) override { ++configurations; }
    [[nodiscard]] std::optional<QString> Lancer(const QString& chemin,
                                                const QStringList& /*arguments*/) override {
        lances.push_back(chemin);
        return refusDeLancer;
    }
    void Quitter(int code) override { codeDeFin = code; }
};

/// A contact from the texts of its fields in order, with '|' between them; the rest is blank.
[[nodiscard]] std::string Octets(const std::string& champs, std::string_view monLocator = "");
/// `n` contacts numbered in their callsigns, a minute apart, without an end-of-log record.
[[nodiscard]] std::string Contacts(int n);
/// The end-of-log record with the own locator in MLOC.
[[nodiscard]] inline std::string Fin(std::string_view monLocator = "JN04SD") {
    return essai::Fin(monLocator);
}

/// First record in which two logbooks differ, for a failed test; empty when they are equal.
[[nodiscard]] std::string Difference(const std::string& obtenu, const std::string& attendu);

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
    void Activer();

    [[nodiscard]] std::filesystem::path Dossier() const { return systeme.lecteur / "Orvalis"; }
    [[nodiscard]] QString Chemin(const char* nom) const { return Q((Dossier() / nom).string()); }
    [[nodiscard]] std::string Lire(const std::string& nom) const {
        return essai::Lire(Dossier() / nom);
    }
    void Ecrire(const std::string& nom, const std::string& octets) const {
        std::ofstream(Dossier() / nom, std::ios::binary) << octets;
    }
    [[nodiscard]] std::string Journal() const { return Lire("F5ABC.Vek"); }

    template<typename T> [[nodiscard]] T* Controle(const char* nom) const {
        return fenetre->findChild<T*>(QString::fromLatin1(nom));
    }
    /// Of labels, buttons or boxes, with '|' between them when there are several.
    [[nodiscard]] QString Texte(const char* noms) const;
    /// Whether one warning came since the last call, with this text in it.
    [[nodiscard]] testing::AssertionResult Averti(const char* texte) {
        const auto recus = std::exchange(systeme.avertissements, {});
        return (recus.size() == 1 && recus[0].contains(QString::fromUtf8(texte))
                    ? testing::AssertionSuccess()
                    : testing::AssertionFailure())
               << recus.size() << (recus.empty() ? "" : S(recus[0]));
    }
    [[nodiscard]] bool Actif(const char* nom) const {
        return Controle<QObject>(nom)->property("enabled").toBool();
    }
    [[nodiscard]] bool Visible(const char* nom) const {
        return Controle<QWidget>(nom)->isVisible();
    }
    [[nodiscard]] QString Foyer() const; ///< objectName of what has the focus
    void Cliquer(const char* nom) const;
    void Menu(const char* nom) const;
    /// One gesture after the other: a control clicked, a menu chosen, "^B" for Alt+B, "=text" typed
    /// with Enter after it, "#3" for a line of the list, "<A.Vek" for the file of the program folder
    /// that the next dialog gives.
    void Faire(const char* gestes);
    void ChoisirLigne(int rangee) const; ///< in the list of contacts
    /// Types text as a keyboard does, to whatever has the focus; '\n' is Enter.
    void Taper(const std::string& utf8) const;
    void Touche(int touche, Qt::KeyboardModifiers modificateurs = Qt::NoModifier) const;
    [[nodiscard]] QStringList Lignes(const char* liste) const;

    QTemporaryDir disque;
    SystemeDEssai systeme;
    std::unique_ptr<Orvalis> fenetre;
};

} // namespace orvalis::essais
