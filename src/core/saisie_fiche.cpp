// The card under entry apart from the Enter key: colours, focus, mouse, and its beginning and end.
#include "core/boites.h"
#include "core/commandes.h"
#include "core/modification.h"
#include "core/saisie.h"
#include "core/texte.h"

#include <array>

namespace orvalis {
namespace {

// Text that a box offers when it takes the focus; empty when it offers none.
std::string_view TexteOffert(const EtatSaisie& saisie, std::size_t boite) {
    switch (boite) {
    case 2:
        return saisie.tempsReel ? std::string_view{} : saisie.DerniereDate;
    case 5:
        return saisie.DerniereFreq;
    case 6:
        return saisie.DernierMode;
    case 7:
    case 8:
        return kReportHabituel;
    default:
        return {};
    }
}

// An empty text may be shown: it removes stray blanks.
void SelectionnerOuVider(Reponse& r, std::size_t boite, std::string_view texte) {
    if (Rogner(texte).empty())
        r.textes.push_back({boite, {}});
    else
        r.selection = boite;
}

} // namespace

std::optional<Rvb> FondDe(Couleur couleur) {
    static constexpr std::array<std::optional<Rvb>, 5> kFonds = {{
        std::nullopt,
        Rvb{224, 224, 224},
        Rvb{255, 255, 192},
        Rvb{255, 192, 192},
        Rvb{192, 255, 192},
    }};
    return kFonds[static_cast<std::size_t>(couleur) - 1];
}

Reponse PrendreFoyer(const Session& session, std::size_t boite) {
    Reponse r = SansEffet(session);
    if (r.saisie.EnModification || !r.saisie.EnSaisie)
        return r;
    r.saisie.TexteSaisi.clear();
    if (boite > 1 && r.zones[1].empty() && r.saisie.QsoCommence) {
        r.foyer = 1;
        return r;
    }
    r.couleurs.push_back({boite, Couleur::VertClair});
    if (const std::string_view offert = TexteOffert(r.saisie, boite); !offert.empty()) {
        r.textes.push_back({boite, std::string{offert}});
        r.selection = boite;
        r.saisie.TexteSaisi = offert;
    }
    return r;
}

Reponse QuitterFoyer(const Session& session, std::size_t boite) {
    Reponse r = SansEffet(session);
    r.textes.push_back({boite, r.zones[boite]});
    r.saisie.DerniereZone = static_cast<std::int16_t>(boite);
    const bool modifiee = r.saisie.EnModification && r.saisie.NbModifs != 0;
    r.couleurs.push_back({boite, modifiee ? Couleur::RougeClair : CouleurAuRepos(boite)});
    return r;
}

Reponse PresserBoite(const Session& session, std::size_t boite, std::string_view texte) {
    Reponse r = SansEffet(session);
    if (r.saisie.EnSaisie) {
        r.couleurs.push_back({boite, Couleur::VertClair});
        if (boite == NumeroZone(Champ::MLOC)) {
            r.ouvrirLocator = true;
            r.saisie.DerniereZone = static_cast<std::int16_t>(boite);
        }
    } else {
        if (!CommandePermise(Commande::ModifierFiche, session) || session.ficheCourante < 1 ||
            session.ficheCourante > session.nbFiches)
            return r;
        r.saisie.EnModification = true;
        r.couleurs.push_back({boite, Couleur::RougeClair});
    }
    SelectionnerOuVider(r, boite, texte);
    r.saisie.TexteSaisi.clear();
    return r;
}

Reponse PreparerSaisie(const Session& session) {
    Reponse r = SansEffet(session);
    r.saisie.QsoCommence = false;
    OublierModifications(r.saisie);
    r.saisie.TexteSaisi.clear();
    r.zones.fill({});
    // The slot too, so that the contact carries it whichever button stores it.
    r.zones[NumeroZone(Champ::MLOC)] = session.monLocator;
    for (const DescriptionBoite& boite : kBoites) {
        r.textes.push_back({boite.index, r.zones[boite.index]});
        r.couleurs.push_back({boite.index, Couleur::Repos});
    }
    r.labDist.emplace();
    r.labAzim.emplace();
    r.labDept.emplace();
    r.foyer = 1;
    return r;
}

ContactFini FinirContact(const Session& session, FinDeSaisie fin, bool suivantActif,
                         std::string_view texteBoite16, const Instant& maintenant) {
    const bool suivant = fin == FinDeSaisie::Suivant;
    ContactFini contact;
    if (!session.saisie.QsoCommence || !suivantActif)
        return contact;
    if (!IndicatifPermis(session.zones[1])) {
        contact.verdict = Verdict::IndicatifManquant;
        return contact;
    }
    contact.verdict = Verdict::Enregistrer;
    contact.zones = session.zones;
    if (session.saisie.tempsReel)
        contact.zones[NumeroZone(Champ::HFIN)] = HeureCourte(maintenant);
    std::string& monLocator = contact.zones[NumeroZone(Champ::MLOC)];
    if (suivant) {
        monLocator = texteBoite16;
        contact.fin = FicheFinDeLog(session.monLocator);
    } else {
        // Kept on purpose: leaving entry puts the own locator into the field of the other
        // station's, and leaves that of the stored contact in its own.
        contact.fin = FicheFinDeLog(monLocator);
        MettreChamp(contact.fin, Champ::SLOC, session.monLocator);
    }
    return contact;
}

} // namespace orvalis
