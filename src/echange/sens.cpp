#include "echange/sens.h"

#include "core/dates.h"
#include "core/departements.h"
#include "geo/locator.h"

#include <algorithm>
#include <array>

namespace orvalis {
namespace {

constexpr std::array<std::string_view, kNbChamps> kNoms = {
    "CSGN", "DQSO", "HDEB", "HFIN", "FREQ", "MODE", "SRST", "MRST",
    "SQTH", "SLOC", "DEPT", "SNOM", "INFO", "MQSL", "SQSL", "MLOC"};

constexpr bool EstChiffre(char c) {
    return c >= '0' && c <= '9';
}

// The two digits at `place`; -1 when they are none.
int Deux(std::string_view texte, std::size_t place) {
    const char dizaine = texte[place];
    const char unite = texte[place + 1];
    return EstChiffre(dizaine) && EstChiffre(unite) ? 10 * (dizaine - '0') + unite - '0' : -1;
}

void AjouterDeux(std::string& texte, unsigned n) {
    texte += static_cast<char>('0' + n / 10 % 10);
    texte += static_cast<char>('0' + n % 10);
}

constexpr std::int64_t kMega = 1'000'000;
constexpr std::size_t kDecimales = 6;
constexpr std::size_t kChiffresMax = 11; // of whole units; more is no frequency

struct Nombre {
    std::int64_t millioniemes = 0;
    bool lu = false;
};

Nombre LireNombre(std::string_view texte) {
    Nombre n;
    const std::size_t point = std::min(texte.find_first_of(".,"), texte.size());
    const std::string_view entiers = texte.substr(0, point);
    const std::string_view decimales = texte.substr(std::min(point + 1, texte.size()));
    const auto chiffres = [](std::string_view t) {
        return std::all_of(t.begin(), t.end(), EstChiffre);
    };
    if (entiers.size() + decimales.size() == 0 || entiers.size() > kChiffresMax ||
        !chiffres(entiers) || !chiffres(decimales))
        return n;
    for (const char c : entiers)
        n.millioniemes = 10 * n.millioniemes + (c - '0');
    for (std::size_t i = 0; i < kDecimales; ++i)
        n.millioniemes = 10 * n.millioniemes + (i < decimales.size() ? decimales[i] - '0' : 0);
    n.lu = n.millioniemes > 0;
    return n;
}

// The words that operators write into the card fields, in upper case, as bytes of the logbook.
constexpr std::array<std::pair<std::string_view, EtatQsl>, 22> kMotsQsl = {{
    {"", EtatQsl::Rien},
    {"EN COURS", EtatQsl::EnCours},
    {"OK", EtatQsl::Faite},
    {"OUI", EtatQsl::Faite},
    {"O", EtatQsl::Faite},
    {"Y", EtatQsl::Faite},
    {"YES", EtatQsl::Faite},
    {"X", EtatQsl::Faite},
    {"QSL", EtatQsl::Faite},
    {"RECU", EtatQsl::Faite},
    {"RECUE", EtatQsl::Faite},
    {"RE\xC7U", EtatQsl::Faite},
    {"RE\xC7UE", EtatQsl::Faite},
    {"ENVOYE", EtatQsl::Faite},
    {"ENVOYEE", EtatQsl::Faite},
    {"ENVOY\xC9", EtatQsl::Faite},
    {"ENVOY\xC9"
     "E",
     EtatQsl::Faite},
    {"FAIT", EtatQsl::Faite},
    {"FAITE", EtatQsl::Faite},
    {"NON", EtatQsl::Non},
    {"N", EtatQsl::Non},
    {"NO", EtatQsl::Non},
}};

// Codes whose names are not found by their number, and those that are.
constexpr std::array<std::string_view, 6> kAutresCodes = {"2A", "2B", "971", "972", "973", "974"};
constexpr std::array<char, 192> kCodes = [] {
    std::array<char, 192> codes{};
    for (std::size_t n = 0; n < codes.size() / 2; ++n) {
        codes[2 * n] = static_cast<char>('0' + n / 10);
        codes[2 * n + 1] = static_cast<char>('0' + n % 10);
    }
    return codes;
}();

} // namespace

std::optional<Jour> LireJour(std::string_view octets) {
    if (octets.size() != 8 || EstChiffre(octets[2]) || EstChiffre(octets[5]))
        return {};
    const int jour = Deux(octets, 0);
    const int mois = Deux(octets, 3);
    const int annee = Deux(octets, 6);
    if (jour < 0 || mois < 0 || annee < 0)
        return {};
    const Jour lu{std::chrono::year{AnneeComplete(annee)},
                  std::chrono::month{static_cast<unsigned>(mois)},
                  std::chrono::day{static_cast<unsigned>(jour)}};
    return lu.ok() ? std::optional{lu} : std::nullopt;
}

std::optional<Heure> LireHeure(std::string_view octets) {
    if (octets.size() != 5 || EstChiffre(octets[2]))
        return {};
    const int heures = Deux(octets, 0);
    const int minutes = Deux(octets, 3);
    if (heures < 0 || heures > 23 || minutes < 0 || minutes > 59)
        return {};
    return Heure{60 * heures + minutes};
}

SensFrequence LireFrequence(std::string_view octets, const Bande* attendue) {
    SensFrequence sens;
    const Nombre nombre = LireNombre(octets);
    if (!nombre.lu) {
        sens.bande = BandeNommee(octets);
        return sens;
    }
    for (const bool seulementAttendue : {true, false})
        for (const std::int64_t unite : {std::int64_t{1}, std::int64_t{1000}, kMega}) {
            const std::int64_t hertz = nombre.millioniemes / unite;
            const Bande* bande = BandeDe(hertz);
            if (bande == nullptr || (seulementAttendue && bande != attendue))
                continue;
            return {hertz, bande, unite == 1};
        }
    return {nombre.millioniemes, nullptr, true};
}

std::string_view LireDepartement(std::string_view octets) {
    const std::string code = MajusculesAscii(octets);
    std::string_view sansZero = code;
    if (sansZero.size() == 3 && sansZero.front() == '0')
        sansZero.remove_prefix(1);
    for (const std::string_view autre : kAutresCodes)
        if (sansZero == autre)
            return autre;
    if (sansZero.empty() || sansZero.size() > 2 ||
        !std::all_of(sansZero.begin(), sansZero.end(), EstChiffre))
        return {};
    const auto numero = static_cast<std::size_t>(ValeurNumerique(sansZero));
    return numero >= 1 && numero <= 95 ? std::string_view{&kCodes[2 * numero], 2}
                                       : std::string_view{};
}

SensQsl LireQsl(std::string_view octets) {
    if (const auto date = LireJour(octets))
        return {EtatQsl::Faite, date};
    std::string mot(octets);
    for (char& c : mot)
        c = static_cast<char>(MajusculeCp1252(static_cast<unsigned char>(c)));
    for (const auto& [texte, etat] : kMotsQsl)
        if (texte == mot)
            return {etat, {}};
    return {EtatQsl::Illisible, {}};
}

bool EstUnCarre(std::string_view locator) {
    if (locator.size() == 4)
        return LocatorValide(std::string{locator} + "AA");
    return LocatorValide(locator);
}

std::string EcrireJour(Jour jour) {
    std::string texte;
    AjouterDeux(texte, static_cast<unsigned>(jour.day()));
    texte += '/';
    AjouterDeux(texte, static_cast<unsigned>(jour.month()));
    texte += '/';
    AjouterDeux(texte, static_cast<unsigned>(static_cast<int>(jour.year()) % 100));
    return texte;
}

std::string EcrireHeure(Heure heure) {
    std::string texte;
    const auto minutes = static_cast<unsigned>(heure.count());
    AjouterDeux(texte, minutes / 60);
    texte += ':';
    AjouterDeux(texte, minutes % 60);
    return texte;
}

std::string EcrireJourIso(Jour jour, std::string_view entre) {
    std::string texte;
    const auto annee = static_cast<unsigned>(static_cast<int>(jour.year()));
    AjouterDeux(texte, annee / 100);
    AjouterDeux(texte, annee);
    texte += entre;
    AjouterDeux(texte, static_cast<unsigned>(jour.month()));
    texte += entre;
    AjouterDeux(texte, static_cast<unsigned>(jour.day()));
    return texte;
}

std::string EcrireMegahertz(std::int64_t hertz) {
    std::string decimales = std::to_string(kMega + hertz % kMega).substr(1);
    while (decimales.size() > 3 && decimales.back() == '0')
        decimales.pop_back();
    return std::to_string(hertz / kMega) + "." + decimales;
}

std::string_view OctetsRemarque(const QsoRecord& fiche) {
    return Rogner(OctetsChamp(fiche, Champ::INFO).substr(0, kLargeurDemiInfo));
}

std::string_view OctetsManager(const QsoRecord& fiche) {
    return Rogner(OctetsChamp(fiche, Champ::INFO).substr(kLargeurDemiInfo));
}

std::string_view NomChamp(Champ champ) {
    return kNoms[NumeroZone(champ) - 1];
}

SensFiche ComprendreFiche(const QsoRecord& fiche) {
    const auto octets = [&fiche](Champ champ) { return Rogner(OctetsChamp(fiche, champ)); };
    SensFiche sens;
    sens.indicatif = DepuisCp1252(octets(Champ::CSGN));
    sens.date = LireJour(octets(Champ::DQSO));
    sens.debut = LireHeure(octets(Champ::HDEB));
    sens.fin = LireHeure(octets(Champ::HFIN));
    sens.frequence = LireFrequence(octets(Champ::FREQ));
    sens.mode = ComprendreMode(octets(Champ::MODE));
    sens.departement = LireDepartement(octets(Champ::DEPT));
    // The card's look-up goes by the leading digits and knows neither half of Corsica.
    sens.nomDepartement = sens.departement == "2A"   ? "Corse-du-Sud"
                          : sens.departement == "2B" ? "Haute-Corse"
                                                     : Rogner(NomDepartement(sens.departement));
    if (const std::string_view locator = octets(Champ::SLOC); EstUnCarre(locator))
        sens.carre = locator.substr(0, 4);
    sens.remarque = DepuisCp1252(OctetsRemarque(fiche));
    sens.manager = DepuisCp1252(OctetsManager(fiche));
    sens.maCarte = LireQsl(octets(Champ::MQSL));
    sens.saCarte = LireQsl(octets(Champ::SQSL));
    return sens;
}

} // namespace orvalis
