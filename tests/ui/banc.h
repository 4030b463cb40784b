// A bench for the real window: a drive of its own, a set clock, answers to every question.
#pragma once

#include "core/qso_record.h"
#include "print/imprimante.h"
#include "ui/orvalis.h"
#include "ui/systeme.h"

#include <QTemporaryDir>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvalis::essais {

class SystemeDEssai : public Systeme {
  public:
    std::filesystem::path lecteur;
    Instant maintenant{2026, 11, 21, 18, 30, 15};
    std::function<void()> pendantPause; ///< called once in the next pause
    std::vector<QString> avertissements;
    std::vector<QString> informations;
    std::vector<DemandeFichier> demandes;
    QString fichierChoisi;
    std::vector<QString> lances;
    std::optional<QString> refusDeLancer;
    std::optional<int> codeDeFin;
    std::function<std::unique_ptr<Imprimante>()> imprimante; ///< none: the dialog is cancelled
    int configurations = 0;

    [[nodiscard]] std::filesystem::path Lecteur() const override { return lecteur; }
    [[nodiscard]] Instant Maintenant() const override { return maintenant; }
    void Pause(int secondes) override;
    void Informer(QWidget* parent, const QString& titre, const QString& texte) override;
    void Avertir(QWidget* parent, const QString& texte) override;
    [[nodiscard]] QString ChoisirFichier(QWidget* parent, const DemandeFichier& demande) override;
    [[nodiscard]] std::unique_ptr<Imprimante> PreparerImpression(QWidget* parent) override;
    void ConfigurerImprimante(QWidget* parent) override;
    [[nodiscard]] std::optional<QString> Lancer(const QString& chemin,
                                                const QStringList& arguments) override;
    void Quitter(int code) override;
};

/// A contact for tests, from its fields in order; the missing ones are blank.
[[nodiscard]] std::string Octets(std::initializer_list<std::pair<Champ, std::string_view>> champs);
/// `n` contacts numbered in their callsigns, a minute apart, without an end-of-log record.
[[nodiscard]] std::string Contacts(int n);
/// The end-of-log record with the own locator in MLOC.
[[nodiscard]] std::string Fin(std::string_view monLocator = "JN04SD");

/// First record in which two logbooks differ, for a failed test; empty when they are equal.
[[nodiscard]] std::string Difference(const std::string& obtenu, const std::string& attendu);

class Banc {
  public:
    Banc();
    ~Banc();

    /// Puts a Settings file and a logbook of these bytes into the program folder.
    void Installer(const std::string& octets);
    /// Opens the window and lets it start.
    void Ouvrir();
    void Activer();

    [[nodiscard]] std::filesystem::path Dossier() const;
    [[nodiscard]] std::string Lire(const std::string& nom) const;
    void Ecrire(const std::string& nom, const std::string& octets) const;
    [[nodiscard]] std::string Journal() const { return Lire("F5ABC.Vek"); }

    template<typename T> [[nodiscard]] T* Controle(const char* nom) const {
        return fenetre->findChild<T*>(QString::fromLatin1(nom));
    }
    [[nodiscard]] QString Texte(const char* nom) const; ///< of a label, button or box
    [[nodiscard]] QString Foyer() const;                ///< objectName of what has the focus
    [[nodiscard]] bool Visible(const char* nom) const;
    void Cliquer(const char* nom) const;
    void Menu(const char* nom) const;
    /// Types text as a keyboard does, to whatever has the focus; '\n' is Enter.
    void Taper(const std::string& utf8) const;
    void Touche(int touche, Qt::KeyboardModifiers modificateurs = Qt::NoModifier) const;
    [[nodiscard]] QStringList Lignes(const char* liste) const;

    QTemporaryDir disque;
    SystemeDEssai systeme;
    std::unique_ptr<Orvalis> fenetre;
};

} // namespace orvalis::essais
