// The card under entry apart from the Enter key: colours, focus, mouse, and its beginning and end.
#include "core/texte.h"
#include "ui/carte/modification.h"
#include "ui/carte/saisie.h"

namespace orvalis {
namespace {

// Text that a box offers when it takes the focus; empty when it offers none.
std::string_view TexteOffert(const EtatSaisie& saisie, Boite boite) {
    switch (boite) {
    case Boite::Date:
        return saisie.tempsReel ? std::string_view{} : saisie.DerniereDate;
    case Boite::Frequence:
        return saisie.DerniereFreq;
    case Boite::Mode:
        return saisie.DernierMode;
    case Boite::ReportDonne:
    case Boite::ReportRecu:
        return kReportHabituel;
    default:
        return {};
    }
}

// A contact that was begun and has no callsign any more waits for it: no other box keeps the focus.
bool AttendIndicatif(const Carte& carte, Boite boite) {
    return boite != Boite::Indicatif && carte.zones[Boite::Indicatif].empty() &&
           carte.saisie.QsoCommence;
}

} // namespace

Reponse PrendreFoyer(const Carte& carte, Boite boite) {
    Reponse r{carte, {}};
    EtatSaisie& saisie = r.carte.saisie;
    if (!saisie.EnSaisie) {
        // The box left behind has just shown its slot again, and that text must not be taken for
        // this box's.
        saisie.TexteSaisi = carte.Texte(boite);
        return r;
    }
    if (saisie.EnModification)
        return r;
    saisie.TexteSaisi.clear();
    if (AttendIndicatif(carte, boite)) {
        r.effets.foyer = SurBoite(Boite::Indicatif);
        return r;
    }
    ColorerZone(r.carte, boite, Couleur::VertClair);
    if (const std::string_view offert = TexteOffert(saisie, boite); !offert.empty()) {
        MontrerTexte(r.carte, boite, offert);
        saisie.TexteSaisi = r.carte.Texte(boite);
        r.effets.selection = boite;
    }
    return r;
}

Carte QuitterFoyer(const Carte& carte, Boite boite) {
    Carte apres = carte;
    MontrerZone(apres, boite);
    apres.saisie.DerniereZone = boite;
    const bool modifiee = carte.saisie.EnModification && carte.saisie.NbModifs != 0;
    ColorerZone(apres, boite, modifiee ? Couleur::RougeClair : CouleurAuRepos(boite));
    return apres;
}

Reponse PresserBoite(const Carte& carte, Boite boite, bool modifiable) {
    Reponse r{carte, {}};
    EtatSaisie& saisie = r.carte.saisie;
    if (saisie.EnSaisie) {
        const bool renvoyee = AttendIndicatif(carte, boite);
        if (boite == Boite::MonLocator) {
            r.effets.ouvrirLocator = true;
            saisie.DerniereZone = boite;
        } else if (renvoyee) {
            r.effets.foyer = SurBoite(Boite::Indicatif);
        }
        if (renvoyee)
            return r; // box 1 alone is green
        ColorerZone(r.carte, boite, Couleur::VertClair);
    } else {
        if (!modifiable)
            return r;
        saisie.EnModification = true;
        saisie.pressee = boite;
        ColorerZone(r.carte, boite, Couleur::RougeClair);
    }
    if (Rogner(carte.Texte(boite)).empty())
        MontrerTexte(r.carte, boite, {}); // removes stray blanks
    else
        r.effets.selection = boite;
    // Kept on purpose, for the operators: a press also forgets what the box shows as typed text, so
    // that Enter alone empties it.
    saisie.TexteSaisi.clear();
    return r;
}

Reponse PreparerSaisie(const Carte& carte, const Station& station, NumeroFiche prochaine) {
    Reponse r{carte, {}};
    r.carte.saisie.QsoCommence = false;
    OublierModifications(r.carte.saisie);
    r.carte.saisie.TexteSaisi.clear();
    r.carte.zones = {};
    // The slot too, so that the contact carries it whichever button stores it.
    r.carte.zones[Boite::MonLocator] = station.monLocator;
    for (const DescriptionBoite& d : kBoites) {
        MontrerZone(r.carte, d.boite);
        ColorerZone(r.carte, d.boite, Couleur::Repos);
    }
    r.carte.distance.clear();
    r.carte.azimut.clear();
    r.carte.departement.clear();
    r.carte.numero = NumeroNouvelleFiche(prochaine);
    r.effets.foyer = SurBoite(Boite::Indicatif);
    return r;
}

ContactFini FinirContact(const Carte& carte, const Station& station, FinDeSaisie fin,
                         bool suivantArme, const Instant& maintenant) {
    ContactFini contact;
    if (!carte.saisie.QsoCommence || !suivantArme)
        return contact;
    if (!IndicatifPermis(carte.zones[Boite::Indicatif])) {
        contact.verdict = Verdict::IndicatifManquant;
        return contact;
    }
    contact.verdict = Verdict::Enregistrer;
    contact.zones = carte.zones;
    if (carte.saisie.tempsReel)
        contact.zones[Boite::Fin] = HeureCourte(maintenant);
    std::string& monLocator = contact.zones[Boite::MonLocator];
    if (fin == FinDeSaisie::Suivant) {
        monLocator = carte.Texte(Boite::MonLocator);
        contact.fin = FicheFinDeLog(station.monLocator);
    } else {
        // Kept on purpose, for the logbooks: leaving entry puts the own locator into the field of
        // the other station's, and leaves that of the stored contact in its own.
        contact.fin = FicheFinDeLog(monLocator);
        MettreChamp(contact.fin, Champ::SLOC, station.monLocator);
    }
    return contact;
}

std::string ContactANoter(const Carte& carte) {
    if (!carte.saisie.EnSaisie || !carte.saisie.QsoCommence)
        return {};
    // As it would be stored: remark and manager are those that were last confirmed together.
    const Zones zones = ZonesDeFiche(FicheDesZones(carte.zones));
    std::string texte = "\n\nLe contact en cours n'est pas enregistré. Notez-le\u00A0:";
    for (const DescriptionBoite& d : kBoites)
        if (const std::string& zone = zones[d.boite]; !Rogner(zone).empty())
            texte += "\n" + std::string{d.nom} + "\u00A0: " + zone;
    return texte;
}

} // namespace orvalis
