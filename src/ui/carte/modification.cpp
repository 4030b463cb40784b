#include "ui/carte/modification.h"

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

// How a rule ended. Conclure asks the question and leaves modification; Rester does neither.
enum class Issue { Conclure, Rester };

struct Correction {
    Reponse& r;
    Boite boite;

    [[nodiscard]] std::string& Texte() const { return r.carte.saisie.TexteSaisi; }
    [[nodiscard]] std::string& Zone() const { return r.carte.zones[boite]; }
    [[nodiscard]] Issue Stocker(std::string_view texte) const {
        Zone() = texte;
        ++r.carte.saisie.NbModifs;
        return Issue::Conclure;
    }
    [[nodiscard]] Issue Refuser() const {
        ColorerZone(r.carte, boite, Couleur::Repos);
        return Issue::Rester;
    }
    [[nodiscard]] Issue Restaurer() const {
        MontrerZone(r.carte, boite);
        return Refuser();
    }
};

Issue Indicatif(const Correction& c) {
    return IndicatifPermis(c.Texte()) ? c.Stocker(c.Texte()) : c.Refuser();
}

Issue Date(const Correction& c) {
    if (Longueur(c.Texte()) != kLongueurDate)
        return c.Refuser();
    return ControlerDate(c.Texte()).ValiditeOK ? c.Stocker(c.Texte()) : Issue::Conclure;
}

Issue Heure(const Correction& c) {
    if (Longueur(c.Texte()) != kLongueurHeure)
        return c.Restaurer();
    const Verification verification = ControlerHeure(c.Texte());
    return verification.ValiditeOK ? c.Stocker(verification.texte) : Issue::Conclure;
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
    Zones& zones = c.r.carte.zones;
    if (issue == Issue::Conclure)
        zones.info = JoindreInfo(zones[Boite::Remarque], zones[Boite::Manager]);
    return issue;
}

Issue Departement(const Correction& c) {
    const int valeur = ArrondirNombre(c.Texte());
    const bool connu = (valeur >= 0 && valeur <= 95) || (valeur >= 971 && valeur <= 974);
    if (!connu) {
        c.Texte().clear();
        MontrerTexte(c.r.carte, c.boite, {});
        return c.Refuser();
    }
    if (Longueur(c.Texte()) == 1 && valeur >= 1)
        c.Texte().insert(0, 1, '0');
    c.r.carte.departement.clear();
    return c.Stocker(c.Texte());
}

Issue Locator(const Correction& c) {
    if (LocatorValide(c.Texte()))
        return c.Stocker(c.Texte());
    // The focus comes back to the emptied box for another try, so modification goes on.
    c.Texte().clear();
    c.r.effets.enErreur = c.boite;
    c.r.effets.foyer = SurBoite(c.boite);
    return Issue::Rester;
}

Issue SonLocator(const Correction& c) {
    return c.Texte().empty() ? Issue::Conclure : Locator(c);
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

Question Demander(const Carte& carte, std::string_view legende) {
    return {std::string{legende}, std::to_string(carte.ficheCourante.Valeur()),
            TexteRogne(carte.tampon, Champ::CSGN)};
}

Carte SansModification(const Carte& carte) {
    Carte apres = carte;
    OublierModifications(apres.saisie);
    return apres;
}

} // namespace

Reponse ModifierZone(const Carte& carte, Boite boite) {
    Reponse r{carte, {}};
    r.carte.saisie.TexteSaisi = Rogner(carte.saisie.TexteSaisi);
    if (kRegles[Rang(boite)]({r, boite}) == Issue::Conclure) {
        r.effets.poserQuestion = r.carte.saisie.NbModifs != 0;
        r.carte.saisie.EnModification = false;
        // What is on show beside the question is what Oui stores.
        MontrerZone(r.carte, boite);
    }
    return r;
}

Question QuestionModifier(const Carte& carte) {
    return Demander(carte, "Modifier la fiche");
}

Question QuestionEffacer(const Carte& carte) {
    return Demander(carte, " Effacer la Fiche ");
}

Carte RepondreOui(const Carte& carte) {
    Carte apres = SansModification(carte);
    // Kept on purpose, for the operators: box 17 keeps its colour until it loses the focus.
    for (const DescriptionBoite& d : kBoites)
        if (d.boite != Boite::Manager)
            ColorerZone(apres, d.boite, Couleur::Repos);
    return apres;
}

Carte RepondreNon(const Carte& carte) {
    Carte apres = SansModification(carte);
    if (carte.saisie.NbModifs == 0)
        return apres;
    MettreAuRepos(apres);
    apres.distance.clear();
    apres.azimut.clear();
    return apres;
}

void OublierModifications(EtatSaisie& saisie) {
    saisie.NbModifs = 0;
    saisie.EnModification = false;
    saisie.pressee.reset();
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
