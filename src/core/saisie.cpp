#include "core/saisie.h"

#include "core/boites.h"
#include "core/departements.h"
#include "core/modification.h"
#include "core/texte.h"
#include "geo/locator.h"

#include <array>

namespace orvalis {
namespace {

// What a rule works on: the answer under way, which holds the slots and the entry state, and what
// it may look up besides.
struct Entree {
    Reponse& r;
    const Session& session;
    const Instant& maintenant;
    std::size_t boite;

    [[nodiscard]] const std::string& Texte() const { return r.saisie.TexteSaisi; }
    [[nodiscard]] std::string& Zone() const { return r.zones[boite]; }
    void Montrer(std::size_t index) const { r.textes.push_back({index, r.zones[index]}); }
};

void Indicatif(const Entree& e) {
    if (!e.Texte().empty() && !IndicatifPermis(e.Texte()))
        return;
    e.Zone() = e.Texte();
    if (e.Zone().empty())
        return;
    e.r.montrerActiveRech = true;
    e.r.activerAnnuler = true;
    e.r.saisie.QsoCommence = true;
    if (!e.r.saisie.tempsReel) {
        e.r.foyer = 2;
        return;
    }
    e.r.zones[2] = DateCourte(e.maintenant);
    e.r.zones[3] = HeureCourte(e.maintenant);
    e.Montrer(2);
    e.Montrer(3);
    e.r.foyer = 5;
}

void Date(const Entree& e) {
    // In real time the clock has given the date, and Enter must not replace it unseen.
    if (e.r.saisie.tempsReel)
        return;
    if (e.Texte().empty() && !e.r.saisie.DerniereDate.empty()) {
        e.Zone() = e.r.saisie.DerniereDate; // the box shows it when it loses the focus
        return;
    }
    if (Longueur(e.Texte()) != Boite(e.boite).longueur || !ControlerDate(e.Texte()).ValiditeOK)
        return;
    // Kept on purpose: stored as typed, so that 01.05.02 keeps its points.
    e.Zone() = e.Texte();
    e.r.saisie.DerniereDate = e.Zone();
    e.Montrer(2);
    e.r.foyer = 3;
}

void Heure(const Entree& e) {
    if (e.r.saisie.tempsReel || Longueur(e.Texte()) != Boite(e.boite).longueur)
        return;
    const Controle controle = ControlerHeure(e.Texte());
    e.r.saisie.TexteSaisi = controle.texte;
    if (!controle.ValiditeOK)
        return;
    e.Zone() = controle.texte;
    e.r.foyer = e.boite + 1;
}

// Frequency and mode: an empty box takes the last contact's value.
void Memorisee(const Entree& e, std::string& derniere) {
    e.Zone() = e.Texte().empty() ? derniere : e.Texte();
    if (e.Zone().empty())
        return;
    derniere = e.Zone();
    e.r.foyer = e.boite + 1;
}

void Frequence(const Entree& e) {
    Memorisee(e, e.r.saisie.DerniereFreq);
}

void Mode(const Entree& e) {
    Memorisee(e, e.r.saisie.DernierMode);
}

void ReportDonne(const Entree& e) {
    e.Zone() = e.Texte().empty() ? kReportHabituel : e.Texte();
    e.r.foyer = 8;
}

void ReportRecu(const Entree& e) {
    e.Zone() = e.Texte().empty() ? kReportHabituel : e.Texte();
    e.r.saisie.QsoCommence = true;
    e.r.activerSuivant = true;
    e.r.foyer = 12;
}

void Ville(const Entree& e) {
    e.Zone() = e.Texte();
    e.r.foyer = 11;
}

void Locator(const Entree& e) {
    e.Zone() = e.Texte();
    if (e.Zone().empty()) {
        e.r.foyer = 13;
        return;
    }
    if (Longueur(e.Zone()) != kLargeurLocator)
        return;
    if (!LocatorValide(e.Zone())) {
        e.Zone().clear();
        e.r.saisie.TexteSaisi.clear();
        e.r.boiteEnErreur = e.boite;
        e.r.foyer = e.boite;
        return;
    }
    const TextesDistance textes =
        DistanceAzimut(e.r.memoireDistance, e.session.monLocator, e.Zone());
    e.r.labDist = textes.distance;
    e.r.labAzim = textes.azimut;
    e.r.foyer = 13;
}

void Departement(const Entree& e) {
    e.Zone() = e.Texte();
    e.r.foyer = 10;
    if (e.Zone().empty())
        return;
    if (Longueur(e.Zone()) == 1) {
        e.Zone().insert(0, 1, '0');
        e.Montrer(e.boite);
    }
    e.r.labDept = NomDepartement(e.Zone());
}

void Prenom(const Entree& e) {
    e.Zone() = NomPropre(e.Texte());
    e.r.foyer = 9;
}

// Kept on purpose: INFO joins the last remark and the last manager confirmed with Enter, even
// when one of them was confirmed for an earlier contact.
void RefaireInfo(const Entree& e, std::string& moitie) {
    e.Zone() = e.Texte();
    moitie = Cadrer(e.Texte(), kLargeurDemiInfo);
    e.r.zones[kZoneInfo] = JoindreInfo(e.r.saisie.remarque, e.r.saisie.manager);
}

void Remarque(const Entree& e) {
    RefaireInfo(e, e.r.saisie.remarque);
    e.r.foyer = 14;
}

void MaQSL(const Entree& e) {
    e.Zone() = e.Texte();
    e.r.foyer = 15;
}

void SaQSL(const Entree& e) {
    e.Zone() = e.Texte();
    e.r.foyer = 17;
}

// The own locator is changed through its panel only.
void MonLocator(const Entree& /*e*/) {}

void Manager(const Entree& e) {
    RefaireInfo(e, e.r.saisie.manager);
    e.r.foyer = !e.r.zones[1].empty() && e.r.saisie.QsoCommence ? kFoyerSuivant : 1;
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
    Locator,     // 10 -> 13
    Departement, // 11 -> 10
    Prenom,      // 12 -> 9
    Remarque,    // 13 -> 14
    MaQSL,       // 14 -> 15
    SaQSL,       // 15 -> 17
    MonLocator,  // 16 stays
    Manager,     // 17 -> BtEnrSuivant, or 1
}};

} // namespace

Reponse SansEffet(const Session& session) {
    Reponse r;
    r.zones = session.zones;
    r.saisie = session.saisie;
    r.memoireDistance = session.memoireDistance;
    return r;
}

void Appliquer(Session& session, const Reponse& reponse) {
    session.zones = reponse.zones;
    session.saisie = reponse.saisie;
    session.memoireDistance = reponse.memoireDistance;
}

Reponse ValiderBoite(const Session& session, std::size_t boite, const Instant& maintenant) {
    if (!session.saisie.EnSaisie)
        return session.saisie.EnModification ? ModifierZone(session, boite) : SansEffet(session);
    Reponse r = SansEffet(session);
    r.saisie.TexteSaisi = Rogner(session.saisie.TexteSaisi);
    if (r.zones[1].empty())
        r.foyer = 1; // unless the box's own rule moves the focus elsewhere
    kRegles[boite - 1]({r, session, maintenant, boite});
    return r;
}

bool IndicatifPermis(std::string_view texte) {
    const std::string_view rogne = Rogner(texte);
    return !rogne.empty() && rogne != "\\";
}

std::string JoindreInfo(std::string_view remarque, std::string_view manager) {
    return Cadrer(remarque, kLargeurDemiInfo) + Cadrer(manager, kLargeurDemiInfo);
}

} // namespace orvalis
