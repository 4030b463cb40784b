#include "ui/carte/saisie.h"

#include "core/departements.h"
#include "core/texte.h"
#include "geo/locator.h"
#include "ui/carte/modification.h"

#include <array>

namespace orvalis {
namespace {

// What a rule works on: the answer under way and what it may look up besides.
struct Entree {
    Reponse& r;
    const Station& station;
    const Instant& maintenant;
    Boite boite;

    [[nodiscard]] EtatSaisie& Saisie() const { return r.carte.saisie; }
    [[nodiscard]] const std::string& Texte() const { return Saisie().TexteSaisi; }
    [[nodiscard]] std::string& Zone() const { return r.carte.zones[boite]; }
    /// The slot takes a text. When that empties it, the box shows it at once: where the focus
    /// stays, a text that is not stored would go on standing there.
    void Prendre(std::string_view texte) const {
        Zone() = texte;
        if (texte.empty())
            MontrerZone(r.carte, boite);
    }
    void Aller(Boite suivante) const { r.effets.foyer = SurBoite(suivante); }
    void AllerPlusLoin() const { Aller(static_cast<Boite>(Numero(boite) + 1)); }
};

void Indicatif(const Entree& e) {
    if (!e.Texte().empty() && !IndicatifPermis(e.Texte()))
        return;
    e.Prendre(e.Texte());
    if (e.Zone().empty())
        return;
    e.r.effets.montrerActiveRech = true;
    e.r.effets.activerAnnuler = true;
    e.Saisie().QsoCommence = true;
    if (!e.Saisie().tempsReel)
        return e.Aller(Boite::Date);
    e.r.carte.zones[Boite::Date] = DateCourte(e.maintenant);
    e.r.carte.zones[Boite::Debut] = HeureCourte(e.maintenant);
    MontrerZone(e.r.carte, Boite::Date);
    MontrerZone(e.r.carte, Boite::Debut);
    e.Aller(Boite::Frequence);
}

void Date(const Entree& e) {
    // In real time the clock has given the date, and Enter must not replace it unseen.
    if (e.Saisie().tempsReel)
        return;
    if (e.Texte().empty() && !e.Saisie().DerniereDate.empty()) {
        e.Zone() = e.Saisie().DerniereDate; // the box shows it when it loses the focus
        return;
    }
    if (Longueur(e.Texte()) != Decrire(e.boite).longueur || !ControlerDate(e.Texte()).ValiditeOK)
        return;
    // Kept on purpose, for the logbooks: stored as typed, so that 01.05.02 keeps its points.
    e.Zone() = e.Texte();
    e.Saisie().DerniereDate = e.Zone();
    MontrerZone(e.r.carte, e.boite);
    e.Aller(Boite::Debut);
}

void Heure(const Entree& e) {
    if (e.Saisie().tempsReel || Longueur(e.Texte()) != Decrire(e.boite).longueur)
        return;
    const Verification verification = ControlerHeure(e.Texte());
    e.Saisie().TexteSaisi = verification.texte;
    if (!verification.ValiditeOK)
        return;
    e.Zone() = verification.texte;
    e.AllerPlusLoin();
}

// Frequency and mode: an empty box takes the last contact's value.
void Memorisee(const Entree& e, std::string& derniere) {
    e.Prendre(e.Texte().empty() ? derniere : e.Texte());
    if (e.Zone().empty())
        return;
    derniere = e.Zone();
    e.AllerPlusLoin();
}

void Frequence(const Entree& e) {
    Memorisee(e, e.Saisie().DerniereFreq);
}

void Mode(const Entree& e) {
    Memorisee(e, e.Saisie().DernierMode);
}

void ReportDonne(const Entree& e) {
    e.Zone() = e.Texte().empty() ? kReportHabituel : e.Texte();
    e.Aller(Boite::ReportRecu);
}

void ReportRecu(const Entree& e) {
    e.Zone() = e.Texte().empty() ? kReportHabituel : e.Texte();
    e.Saisie().QsoCommence = true;
    e.r.effets.activerSuivant = true;
    e.Aller(Boite::Prenom);
}

void Ville(const Entree& e) {
    e.Prendre(e.Texte());
    e.Aller(Boite::Departement);
}

void SonLocator(const Entree& e) {
    e.Prendre(e.Texte());
    if (e.Zone().empty())
        return e.Aller(Boite::Remarque);
    if (Longueur(e.Zone()) != kLargeurLocator)
        return;
    if (!LocatorValide(e.Zone())) {
        e.Zone().clear();
        e.Saisie().TexteSaisi.clear();
        e.r.effets.enErreur = e.boite;
        return e.Aller(e.boite);
    }
    const TextesDistance textes =
        DistanceAzimut(e.r.carte.memoireDistance, e.station.monLocator, e.Zone());
    e.r.carte.distance = textes.distance;
    e.r.carte.azimut = textes.azimut;
    e.Aller(Boite::Remarque);
}

void Departement(const Entree& e) {
    e.Prendre(e.Texte());
    e.Aller(Boite::SonLocator);
    if (e.Zone().empty())
        return;
    if (Longueur(e.Zone()) == 1) {
        e.Zone().insert(0, 1, '0');
        MontrerZone(e.r.carte, e.boite);
    }
    e.r.carte.departement = NomDepartement(e.Zone());
}

void Prenom(const Entree& e) {
    e.Zone() = NomPropre(e.Texte());
    e.Aller(Boite::Ville);
}

// Kept on purpose, for the logbooks: INFO joins the last remark and the last manager confirmed
// with Enter, even when one of them was confirmed for an earlier contact.
void RefaireInfo(const Entree& e, std::string& moitie) {
    e.Prendre(e.Texte());
    moitie = Cadrer(e.Texte(), kLargeurDemiInfo);
    e.r.carte.zones.info = JoindreInfo(e.Saisie().remarque, e.Saisie().manager);
}

void Remarque(const Entree& e) {
    RefaireInfo(e, e.Saisie().remarque);
    e.Aller(Boite::MaQsl);
}

void MaQsl(const Entree& e) {
    e.Prendre(e.Texte());
    e.Aller(Boite::SaQsl);
}

void SaQsl(const Entree& e) {
    e.Prendre(e.Texte());
    e.Aller(Boite::Manager);
}

// The own locator is changed through its panel only.
void MonLocator(const Entree& /*e*/) {}

void Manager(const Entree& e) {
    RefaireInfo(e, e.Saisie().manager);
    const bool complet = !e.r.carte.zones[Boite::Indicatif].empty() && e.Saisie().QsoCommence;
    e.r.effets.foyer = complet ? Foyer{Cible::Suivant} : SurBoite(Boite::Indicatif);
}

// Box by box: what Enter does during entry.
constexpr std::array<void (*)(const Entree&), kNbBoites> kRegles = {{
    Indicatif,   // 1  -> 5 in real time, 2 deferred
    Date,        // 2  -> 3
    Heure,       // 3  -> 4
    Heure,       // 4  -> 5
    Frequence,   // 5  -> 6
    Mode,        // 6  -> 7
    ReportDonne, // 7  -> 8
    ReportRecu,  // 8  -> 12
    Ville,       // 9  -> 11
    SonLocator,  // 10 -> 13
    Departement, // 11 -> 10
    Prenom,      // 12 -> 9
    Remarque,    // 13 -> 14
    MaQsl,       // 14 -> 15
    SaQsl,       // 15 -> 17
    MonLocator,  // 16 stays
    Manager,     // 17 -> BtEnrSuivant, or 1
}};

} // namespace

Reponse ValiderBoite(const Carte& carte, const Station& station, Boite boite,
                     const Instant& maintenant) {
    if (!carte.saisie.EnSaisie)
        return carte.saisie.EnModification ? ModifierZone(carte, boite) : Reponse{carte, {}};
    Reponse r{carte, {}};
    r.carte.saisie.TexteSaisi = Rogner(carte.saisie.TexteSaisi);
    if (carte.zones[Boite::Indicatif].empty())
        r.effets.foyer = SurBoite(Boite::Indicatif); // unless the box's own rule moves it elsewhere
    kRegles[Rang(boite)]({r, station, maintenant, boite});
    return r;
}

bool IndicatifPermis(std::string_view texte) {
    const std::string_view rogne = Rogner(texte);
    return !rogne.empty() && rogne != "\\";
}

} // namespace orvalis
