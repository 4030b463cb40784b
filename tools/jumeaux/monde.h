// What the window is played on: numbers drawn from a seed, a drive of its own, and a system that
// answers every question from the seed.
#pragma once

#if __has_include("ui/systeme.h")
#include "ui/systeme.h"
#else
#include "ui/bureau/systeme.h"
#endif
#include "print/imprimante.h"
#if __has_include("core/erreurs.h")
#include "core/erreurs.h"
#endif

#include <QCoreApplication>
#include <QDate>
#include <QTemporaryDir>

#include <array>
#include <cstdint>
#include <fstream>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace jumeaux {

// A printer that fails, as the tree at hand says it.
#if __has_include("core/erreurs.h")
inline orvalis::Erreur Panne(const char* /*phrase*/) {
    return orvalis::Erreur::DImprimante("Essai");
}
#else
inline orvalis::ErreurImpression Panne(const char* phrase) {
    return orvalis::ErreurImpression(phrase);
}
#endif

/// The numbers of one gesture. Each gesture has a row of its own, so that two programs that take
/// different turns in one gesture draw the same numbers in the next.
class Alea {
  public:
    Alea(std::uint64_t graine, std::uint64_t geste, std::uint64_t usage = 0)
        : etat_(graine * 0x9E3779B97F4A7C15U + geste * 0xD1B54A32D192ED03U +
                usage * 0x8CB92BA72F3D8DD7U) {}

    [[nodiscard]] std::uint64_t Nombre() {
        etat_ += 0x9E3779B97F4A7C15U;
        std::uint64_t z = etat_;
        z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
        z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
        return z ^ (z >> 31U);
    }
    /// From 0 to `n` - 1.
    [[nodiscard]] int Sous(int n) {
        return static_cast<int>(Nombre() % static_cast<std::uint64_t>(n));
    }
    /// True once in `n` times.
    [[nodiscard]] bool Un(int n) { return Sous(n) == 0; }
    template<typename Table> [[nodiscard]] const auto& Parmi(const Table& table) {
        return table[static_cast<std::size_t>(Sous(static_cast<int>(std::size(table))))];
    }

  private:
    std::uint64_t etat_;
};

struct Poids {
    const char* nom;
    int poids;
};

/// One name, by weight; null when there is none to choose from.
template<typename Table> [[nodiscard]] const char* Peser(Alea& alea, const Table& table) {
    int somme = 0;
    for (const Poids& p : table)
        somme += p.poids;
    int reste = somme == 0 ? 0 : alea.Sous(somme);
    for (const Poids& p : table)
        if ((reste -= p.poids) < 0)
            return p.nom;
    return nullptr;
}

[[nodiscard]] inline std::uint64_t Empreinte(std::string_view octets,
                                             std::uint64_t depuis = 0xCBF29CE484222325U) {
    for (const char c : octets)
        depuis = (depuis ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    return depuis;
}

/// Callsigns that come back again and again, so that searches find several contacts.
inline constexpr std::array<const char*, 20> kIndicatifs = {
    "F6KRK",     "ON4UN", "DL1ABC", "DL1ABC/P", "K1JT",   "F5NTZ", "G3XYZ",
    "EA8/F5NTZ", "I2MQP", "JA1AAA", "F6KRKX",   "HB9CV",  "LX1DX", "OH2BH",
    "F8FUA",     "TM5X",  "FT8WW",  "VK2GR",    "ZL1BQD", "PY2XB"};
inline constexpr std::array<const char*, 8> kLocators = {"JN18EU", "JN04SD", "IO91WM", "JO62QM",
                                                         "FN31PR", "QF56OD", "PM95VQ", "IN78QJ"};
inline constexpr std::array<const char*, 8> kFrequences = {"14.210", "7.055",   "3.773",  "21.300",
                                                           "28.500", "144.300", "10.112", "432.2"};
inline constexpr std::array<const char*, 6> kModes = {"SSB", "CW", "FT8", "FM", "AM", "RTTY"};

[[nodiscard]] inline std::string DeuxChiffres(int n) {
    const std::string texte = std::to_string(n);
    return texte.size() < 2 ? "0" + texte : texte;
}
[[nodiscard]] inline std::string UneDate(Alea& alea) {
    const int jour = 1 + alea.Sous(28), mois = 1 + alea.Sous(12);
    constexpr std::array<int, 6> kAnnees = {2, 3, 24, 25, 26, 98};
    return DeuxChiffres(jour) + "/" + DeuxChiffres(mois) + "/" + DeuxChiffres(alea.Parmi(kAnnees));
}
[[nodiscard]] inline std::string UneHeure(Alea& alea) {
    const int heures = alea.Sous(24);
    return DeuxChiffres(heures) + ":" + DeuxChiffres(alea.Sous(60));
}

// The file as bytes, and not through the program's own code: that is what is put to the test.
[[nodiscard]] inline std::string
Fiche(std::initializer_list<std::pair<std::size_t, std::string>> champs) {
    constexpr std::size_t kTaille = 165;
    std::string octets(kTaille, ' ');
    for (const auto& [decalage, texte] : champs)
        octets.replace(decalage, texte.size(), texte);
    return octets;
}

/// A logbook of `n` contacts out of order, some of them twice in a row, some in search of a card.
[[nodiscard]] inline std::string Cahier(Alea alea, int n, bool fin) {
    constexpr std::size_t kMonLocator = 159;
    std::string octets, derniere;
    for (int k = 0; k < n; ++k) {
        if (k % 7 != 6) {
            const std::string date = UneDate(alea), debut = UneHeure(alea);
            derniere = Fiche({{0, alea.Parmi(kIndicatifs)},
                              {15, date},
                              {23, debut},
                              {28, UneHeure(alea)},
                              {33, alea.Parmi(kFrequences)},
                              {43, alea.Parmi(kModes)},
                              {48, "59"},
                              {56, "57"},
                              {64, alea.Un(2) ? "Lyon" : "Foix \xE9t\xE9"},
                              {89, alea.Un(3) ? "" : alea.Parmi(kLocators)},
                              {95, alea.Un(2) ? "75" : "09"},
                              {98, "Ren\xE9"},
                              {143, alea.Un(3) ? "OK" : ""},
                              {kMonLocator, "JN04SD"}});
        }
        octets += derniere;
    }
    return octets + (fin ? Fiche({{0, "\\"}, {kMonLocator, "JN04SD"}}) : "");
}

/// A label sheet with some places taken, by labels that no contact need answer to.
[[nodiscard]] inline std::string Etiquettes(Alea alea) {
    constexpr int kPlaces = 16;
    constexpr std::size_t kTaille = 106;
    std::string octets;
    for (int k = 0; k < kPlaces; ++k) {
        std::string etiquette(kTaille, ' ');
        const bool prise = k < 6 && !alea.Un(3);
        const std::string indicatif = prise ? alea.Parmi(kIndicatifs) : "***";
        etiquette.replace(0, indicatif.size(), indicatif);
        if (prise) {
            etiquette.replace(45, 6, alea.Un(2) ? "BUREAU" : "DIRECT");
            etiquette.replace(60, 8, UneDate(alea));
            etiquette.replace(96, 1, std::to_string(1 + alea.Sous(3)));
        }
        octets += etiquette;
    }
    return octets;
}

/// Swallows a document; what it was is kept as a number. May fail at an operation.
class ImprimanteQuiNote : public orvalis::Imprimante {
  public:
    using Noter = std::function<void(const std::string&)>;
    /// `panne`: the operation that fails; -1 for the sending, 0 for none.
    ImprimanteQuiNote(int panne, Noter noter) : panne_(panne), noter_(std::move(noter)) {}

    void ChoisirPapier(orvalis::Papier /*papier*/, orvalis::Orientation orientation) override {
        Faire({static_cast<int>(orientation)}, "papier");
    }
    void ChoisirPolice(std::string_view famille) override { Faire({}, famille); }
    void ChoisirTaille(int points) override { Faire({points}, "taille"); }
    void ChoisirGras(bool gras) override { Faire({gras ? 1 : 0}, "gras"); }
    void ChoisirEncre(orvalis::Encre encre) override { Faire({static_cast<int>(encre)}, "encre"); }
    void Placer(int x, int y) override { Faire({x, y}, "place"); }
    void Ecrire(std::string_view utf8, orvalis::Suite suite) override {
        Faire({static_cast<int>(suite)}, utf8);
    }
    [[nodiscard]] int LargeurTexte(std::string_view utf8) const override {
        return static_cast<int>(utf8.size()) * 100;
    }
    void TracerLigne(int x1, int y1, int x2, int y2) override { Faire({x1, y1, x2, y2}, "ligne"); }
    void TracerRectangle(int x1, int y1, int x2, int y2) override {
        Faire({x1, y1, x2, y2}, "cadre");
    }
    void RemplirRectangle(int x1, int y1, int x2, int y2) override {
        Faire({x1, y1, x2, y2}, "plein");
    }
    void TournerPage() override { Faire({}, "page"); }
    void TerminerDocument() override {
        if (panne_ < 0)
            Echouer();
        noter_("imprimé : " + std::to_string(nombre_) + " opérations, " + std::to_string(somme_));
    }

  private:
    void Faire(std::initializer_list<int> nombres, std::string_view texte) {
        if (++nombre_ == panne_)
            Echouer();
        somme_ = Empreinte(texte, somme_);
        for (const int n : nombres)
            somme_ = Empreinte(std::to_string(n) + ";", somme_);
    }
    void Echouer() {
        noter_("imprimante en panne après " + std::to_string(nombre_) + " opérations");
        throw Panne("L'imprimante ne répond plus.");
    }

    int panne_;
    Noter noter_;
    int nombre_ = 0;
    std::uint64_t somme_ = Empreinte({});
};

/// The world outside. Its methods are not marked `override`: of two programs that differ by one of
/// them, both must build.
class SystemeJumeau : public orvalis::Systeme {
  public:
    std::filesystem::path lecteur;
    std::int64_t secondes = 0; ///< since the start of the play
    Alea alea{0, 0};           ///< for the answers of this gesture
    std::vector<std::string> appels;
    std::function<void()> pendantPause;
    bool fini = false;

    // NOLINTBEGIN(modernize-use-override)
    [[nodiscard]] std::filesystem::path Lecteur() const { return lecteur; }
    [[nodiscard]] orvalis::Instant Maintenant() const {
        constexpr int kParHeure = 3600, kParJour = 24 * kParHeure;
        const std::int64_t depuis = secondes + 18 * kParHeure + 30 * 60 + 15;
        const QDate jour = QDate(2026, 11, 21).addDays(depuis / kParJour);
        const int reste = static_cast<int>(depuis % kParJour);
        return {jour.year(),       jour.month(),    jour.day(),
                reste / kParHeure, reste / 60 % 60, reste % 60};
    }
    void Pause(int duree) {
        Noter("pause " + std::to_string(duree));
        if (pendantPause)
            pendantPause();
        QCoreApplication::processEvents();
    }
    void Informer(QWidget* /*parent*/, const QString& titre, const QString& texte) {
        Noter("informe : " + titre.toStdString() + " | " + texte.toStdString());
    }
    void Avertir(QWidget* /*parent*/, const QString& texte) {
        Noter("avertit : " + texte.toStdString());
    }
    [[nodiscard]] QString ChoisirFichier(QWidget* /*parent*/, const orvalis::DemandeFichier& d) {
        static constexpr std::array<Poids, 6> kLire = {{{"", 4},
                                                        {"AUTRE.Vek", 5},
                                                        {"SANSFIN.Vek", 3},
                                                        {"VekSave/F5ABC.Vek", 4},
                                                        {"ABSENT.Vek", 2},
                                                        {"F5ABC.Vek", 1}}};
        static constexpr std::array<Poids, 5> kEcrire = {{{"", 3},
                                                          {"VekSave/F5ABC.Vek", 5},
                                                          {"COPIE.Vek", 3},
                                                          {"ABSENT/COPIE.Vek", 1},
                                                          {"F5ABC.Vek", 1}}};
        const std::string nom = d.enregistrer ? Peser(alea, kEcrire) : Peser(alea, kLire);
        Noter((d.enregistrer ? "enregistrer : " : "ouvrir : ") + d.titre.toStdString() + " | " +
              d.dossier.toStdString() + " | " + d.nomPropose.toStdString() + " -> " + nom);
        return nom.empty() ? QString() : QString::fromStdString((Dossier() / nom).string());
    }
    [[nodiscard]] std::unique_ptr<orvalis::Imprimante> PreparerImpression(QWidget* /*parent*/) {
        constexpr int kOperations = 40;
        const int sort = alea.Sous(20);
        if (sort < 4) {
            Noter("impression annulée");
            return nullptr;
        }
        if (sort == 4) {
            Noter("pas d'imprimante");
            throw Panne("Aucune imprimante.");
        }
        const int panne = sort == 5 ? -1 : sort == 6 ? 1 + alea.Sous(kOperations) : 0;
        return std::make_unique<ImprimanteQuiNote>(panne,
                                                   [this](const std::string& t) { Noter(t); });
    }
    void ConfigurerImprimante(QWidget* /*parent*/) { Noter("configurer l'imprimante"); }
    [[nodiscard]] std::filesystem::path DossierInstalle() const { return lecteur / "installe"; }
    [[nodiscard]] std::optional<QString> Lancer(const QString& chemin) {
        Noter("lancer : " + chemin.toStdString());
        return alea.Un(2) ? std::optional<QString>(QStringLiteral("absent")) : std::nullopt;
    }
    void Quitter(int code) {
        Noter("quitter " + std::to_string(code));
        fini = true;
    }
    // NOLINTEND(modernize-use-override)

    void Noter(const std::string& appel) { appels.push_back(appel); }
    [[nodiscard]] std::filesystem::path Dossier() const { return lecteur / "Orvalis"; }
};

/// A drive with the program folder, new: settings, a logbook, and others to open.
class Disque {
  public:
    Disque(std::uint64_t graine, int rang) {
        namespace fs = std::filesystem;
        fs::create_directories(Dossier() / "VekSave");
        constexpr std::array<int, 4> kContacts = {3, 30, 0, 60};
        const auto tour = static_cast<std::size_t>(rang) + graine;
        const int n = kContacts[tour % kContacts.size()];
        const auto cahier = [&](std::uint64_t usage, int contacts, bool fin) {
            return Cahier(Alea(graine, static_cast<std::uint64_t>(rang), usage), contacts, fin);
        };
        Poser("Parvel.cfg", "\"F5ABC\",\"F5ABC.Vek\",\"JN04SD\"\r\n");
        Poser("F5ABC.Vek", cahier(1, n, true));
        Poser("VekSave/F5ABC.Vek", cahier(1, n, true));
        Poser("AUTRE.Vek", cahier(2, 12, true));
        if (tour % 3 == 0)
            Poser("FeuilleQSL.txt", Etiquettes(Alea(graine, static_cast<std::uint64_t>(rang), 4)));
        Poser("SANSFIN.Vek", cahier(3, 5, false) + (tour % 8 < 4 ? "reste" : ""));
    }
    [[nodiscard]] std::filesystem::path Racine() const { return disque_.path().toStdString(); }
    [[nodiscard]] std::filesystem::path Dossier() const { return Racine() / "Orvalis"; }

  private:
    void Poser(const char* nom, const std::string& octets) const {
        std::ofstream(Dossier() / nom, std::ios::binary) << octets;
    }
    QTemporaryDir disque_;
};

} // namespace jumeaux
