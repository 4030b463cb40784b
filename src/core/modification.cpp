#include "core/modification.h"

#include "core/boites.h"
#include "core/dates.h"
#include "core/texte.h"
#include "geo/locator.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace orvalis {
namespace {

constexpr std::size_t kLongueurDate = 8;
constexpr std::size_t kLongueurHeure = 5;

// How a rule ended. Suite goes on to the frame and leaves modification; Arret does neither.
enum class Issue { Suite, Arret };

struct Correction {
    Reponse& r;
    std::size_t boite;

    [[nodiscard]] std::string& Texte() const { return r.saisie.TexteSaisi; }
    [[nodiscard]] std::string& Zone() const { return r.zones[boite]; }
    void Montrer(std::string_view texte) const { r.textes.push_back({boite, std::string{texte}}); }
    [[nodiscard]] Issue Stocker(std::string_view texte) const {
        Zone() = texte;
        if (r.saisie.NbModifs < std::numeric_limits<std::int16_t>::max())
            ++r.saisie.NbModifs;
        return Issue::Suite;
    }
    [[nodiscard]] Issue Refuser() const {
        r.couleurs.push_back({boite, Couleur::Repos});
        return Issue::Arret;
    }
    [[nodiscard]] Issue Restaurer() const {
        Montrer(Zone());
        return Refuser();
    }
};

Issue Indicatif(const Correction& c) {
    return IndicatifPermis(c.Texte()) ? c.Stocker(c.Texte()) : c.Refuser();
}

Issue Date(const Correction& c) {
    if (Longueur(c.Texte()) != kLongueurDate)
        return c.Refuser();
    return ControlerDate(c.Texte()).ValiditeOK ? c.Stocker(c.Texte()) : Issue::Suite;
}

Issue Heure(const Correction& c) {
    if (Longueur(c.Texte()) != kLongueurHeure)
        return c.Restaurer();
    const Controle controle = ControlerHeure(c.Texte());
    return controle.ValiditeOK ? c.Stocker(controle.texte) : Issue::Suite;
}

Issue Obligatoire(const Correction& c) {
    return c.Texte().empty() ? c.Restaurer() : c.Stocker(c.Texte());
}

Issue Facultative(const Correction& c) {
    if (c.Texte().empty() && Rogner(c.Zone()).empty())
        return c.Restaurer();
    return c.Stocker(c.Texte());
}

Issue Prenom(const Correction& c) {
    c.Texte() = NomPropre(c.Texte());
    return Facultative(c);
}

Issue DemiInfo(const Correction& c) {
    const Issue issue = Facultative(c);
    if (issue == Issue::Suite)
        c.r.zones[kZoneInfo] = JoindreInfo(c.r.zones[kZoneRemarque], c.r.zones[kZoneManager]);
    return issue;
}

Issue Departement(const Correction& c) {
    const int valeur = ArrondirNombre(c.Texte());
    const bool connu = (valeur >= 0 && valeur <= 95) || (valeur >= 971 && valeur <= 974);
    if (!connu) {
        c.Texte().clear();
        c.Montrer({});
        return c.Refuser();
    }
    if (Longueur(c.Texte()) == 1 && valeur >= 1)
        c.Texte().insert(0, 1, '0');
    c.r.labDept.emplace();
    return c.Stocker(c.Texte());
}

Issue Locator(const Correction& c) {
    if (LocatorValide(c.Texte()))
        return c.Stocker(c.Texte());
    // The focus comes back to the emptied box for another try, so modification goes on.
    c.Texte().clear();
    c.r.boiteEnErreur = c.boite;
    c.r.foyer = c.boite;
    return Issue::Arret;
}

Issue SonLocator(const Correction& c) {
    return c.Texte().empty() ? Issue::Suite : Locator(c);
}

Issue MonLocator(const Correction& c) {
    return c.Texte().empty() ? c.Refuser() : Locator(c);
}

// Box by box: what Enter does on a stored card.
constexpr std::array<Issue (*)(const Correction&), kNbBoites> kRegles = {{
    Indicatif,   // 1
    Date,        // 2
    Heure,       // 3
    Heure,       // 4
    Obligatoire, // 5  frequency
    Obligatoire, // 6  mode
    Obligatoire, // 7  report given
    Obligatoire, // 8  report received
    Facultative, // 9  town
    SonLocator,  // 10
    Departement, // 11
    Prenom,      // 12
    DemiInfo,    // 13 remark
    Facultative, // 14 my QSL
    Facultative, // 15 his QSL
    MonLocator,  // 16
    DemiInfo,    // 17 QSL manager
}};

TextesCadre Cadre(const Session& session, std::string_view legende) {
    return {std::string{legende}, std::to_string(session.ficheCourante),
            TexteRogne(session.tampon, Champ::CSGN)};
}

Reponse SansModification(const Session& session) {
    Reponse r = SansEffet(session);
    OublierModifications(r.saisie);
    return r;
}

} // namespace

Reponse ModifierZone(const Session& session, std::size_t boite) {
    Reponse r = SansEffet(session);
    r.saisie.TexteSaisi = Rogner(session.saisie.TexteSaisi);
    if (kRegles[boite - 1]({r, boite}) == Issue::Suite) {
        r.montrerCadre = r.saisie.NbModifs != 0;
        r.saisie.EnModification = false;
    }
    return r;
}

TextesCadre CadreModifier(const Session& session) {
    return Cadre(session, "Modifier la fiche");
}

TextesCadre CadreEffacer(const Session& session) {
    return Cadre(session, " Effacer la Fiche ");
}

Reponse RepondreOui(const Session& session) {
    Reponse r = SansModification(session);
    // Kept on purpose: box 17 keeps its colour until it loses the focus.
    for (std::size_t boite = 1; boite < kZoneManager; ++boite)
        r.couleurs.push_back({boite, Couleur::Repos});
    return r;
}

Reponse RepondreNon(const Session& session) {
    Reponse r = SansModification(session);
    if (session.saisie.NbModifs == 0)
        return r;
    for (const DescriptionBoite& boite : kBoites)
        r.couleurs.push_back({boite.index, CouleurAuRepos(boite.index)});
    r.labDist.emplace();
    r.labAzim.emplace();
    return r;
}

void OublierModifications(EtatSaisie& saisie) {
    saisie.NbModifs = 0;
    saisie.EnModification = false;
}

int ArrondirNombre(std::string_view texte) {
    constexpr double kLimite = std::numeric_limits<std::int16_t>::max();
    double valeur = 0;
    double signe = 1;
    double poids = 0; // of the next decimal; 0 before the point
    bool debut = true;
    for (const char c : texte) {
        if (c == ' ')
            continue;
        if (c >= '0' && c <= '9') {
            valeur = poids == 0 ? valeur * 10 + (c - '0') : valeur + poids * (c - '0');
            poids /= 10;
        } else if (c == '.' && poids == 0) {
            poids = 0.1;
        } else if (debut && (c == '-' || c == '+')) {
            signe = c == '-' ? -1 : 1;
        } else {
            break;
        }
        debut = false;
    }
    // The default rounding mode: halves go to the even neighbour.
    return static_cast<int>(std::clamp(signe * std::nearbyint(valeur), -kLimite, kLimite));
}

} // namespace orvalis
