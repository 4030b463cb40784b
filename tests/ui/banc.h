// A bench for the real window: a drive of its own, a set clock, answers to every question.
#pragma once

#include "aides.h"
#include "print/imprimante.h"
#include "ui/orvalis.h"
#include "ui/systeme.h"
#include "ui/texte_qt.h"

#include <QTemporaryDir>

#include <functional>

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
    void Pause(int secondes) override;
    void Informer(QWidget* /*parent*/, const QString& titre, const QString& texte) override {
        demandes << titre << texte;
    }
    void Avertir(QWidget* /*parent*/, const QString& texte) override { avertissements << texte; }
    [[nodiscard]] QString ChoisirFichier(QWidget* /*parent*/, const DemandeFichier& d) override {
        demandes << QString::fromLatin1(d.enregistrer ? ">" : "<") << d.dossier << d.nomPropose;
        return fichierChoisi;
    }
    [[nodiscard]] std::unique_ptr<Imprimante> PreparerImpression(QWidget* /*parent*/) override {
        return imprimante ? imprimante() : nullptr;
    }
    void ConfigurerImprimante(QWidget* /*parent*/) override { demandes << Q("imprimante"); }
    /// No other program is there.
    [[nodiscard]] std::optional<QString> Lancer(const QString& chemin) override {
        demandes << chemin;
        return QStringLiteral("absent");
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

/// A step of a walk through the window: gestures, then what must be seen where.
struct Pas {
    std::string gestes, regards, attendu;
};

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
    [[nodiscard]] QString Chemin(const char* nom) const { return Q((Dossier() / nom).string()); }
    [[nodiscard]] std::string Lire(const std::string& nom) const {
        return aides::Lire(Dossier() / nom);
    }
    void Ecrire(const std::string& nom, const std::string& octets) const {
        std::ofstream(Dossier() / nom, std::ios::binary) << octets;
    }
    [[nodiscard]] std::string Journal() const { return Lire("F5ABC.Vek"); }

    template<typename T> [[nodiscard]] T* Controle(const char* nom) const {
        return fenetre->findChild<T*>(QString::fromLatin1(nom));
    }
    /// What is seen, with '|' between: the text of a label, button or box, or the lines of a list;
    /// for "?BtTag_1" whether it is hidden (C), greyed (G), checked (X), for reading only (L) or
    /// none of these (A); for "#ListeLog" the row chosen, from 0, and how many there are; for "@"
    /// what has the focus; for "!" what the system was asked. The program folder is "~". Last comes
    /// what the operator was warned of.
    [[nodiscard]] std::string Texte(const std::string& regards) const;
    /// Takes these steps one after the other; what a warning says must be seen in its step.
    void Suivre(const std::vector<Pas>& chemin);

    void Cliquer(const char* nom) const;
    void Menu(const char* nom) const;
    /// One gesture after the other: a control clicked, a menu chosen, "^B" for Alt+B, "!PgUp" for a
    /// key by its name, "=beam_3" typed with Enter after it ('_' is a blank), ":33" typed without,
    /// "Box+text" pasted, "@Box" for the focus, "#3" for a row of the list, "%3" for one of the
    /// sheet, both from 0, "<A.Vek" for the file of the program folder that the next dialogs give.
    void Faire(const std::string& gestes);
    /// Types text as a keyboard does, to whatever has the focus; '\n' is Enter.
    void Taper(const std::string& utf8) const;
    void Touche(int touche, Qt::KeyboardModifiers modificateurs = Qt::NoModifier) const;

    QTemporaryDir disque;
    SystemeDEssai systeme;
    std::unique_ptr<Orvalis> fenetre;

  private:
    void FaireUn(const std::string& geste);
    [[nodiscard]] QString Regarder(const std::string& regard) const;
};

} // namespace orvalis::operateur
