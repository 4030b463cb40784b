// What Enter does in a box of the card, said from the difference that its rule makes.
#include "core/texte.h"
#include "ui/carte/essai.h"
#include "ui/carte/modification.h"
#include "ui/carte/saisie.h"

namespace orvalis {
namespace {

std::string Minuscule(std::string_view mots) {
    std::string sortie{mots};
    if (!sortie.empty() && sortie.front() >= 'A' && sortie.front() <= 'Z')
        sortie.front() = static_cast<char>(sortie.front() - 'A' + 'a');
    return sortie;
}

// What the rule puts into other slots than that of its box: the clock, in real time.
void DireAutresZones(Phrase& p, const Essai& e, Boite boite) {
    for (const DescriptionBoite& d : kBoites) {
        const std::string& zone = e.carte.zones[d.boite];
        if (d.boite != boite && zone != e.carteAvant.zones[d.boite])
            p.Dire(", ").Dire(Minuscule(d.nom)).Dire(" ").Citer(zone);
    }
}

// What Enter would do with a text of the form that the box wants; with it the rule itself tells
// whether the form is what it lacks.
Reponse AvecModele(const Essai& e, Boite boite, bool tempsReel) {
    Carte carte = e.carteAvant;
    carte.zones[boite].clear();
    carte.saisie.tempsReel = tempsReel;
    carte.saisie.TexteSaisi = Decrire(boite).modele;
    return ValiderBoite(carte, e.station, boite, e.Maintenant());
}

// Why Enter stays, and what it needs to go on.
void DireBesoin(Phrase& p, const Essai& e, Boite boite) {
    const DescriptionBoite& d = Decrire(boite);
    const bool reel = e.carteAvant.saisie.tempsReel;
    const auto prend = [&](bool tempsReel) {
        return AvecModele(e, boite, tempsReel).carte.zones[boite] == d.modele;
    };
    if (!d.modele.empty() && !prend(reel)) {
        if (prend(!reel))
            p.Dire(kPointVirgule).Dire("en temps réel l'horloge la remplit");
        else if (PresserBoite(e.carteAvant, boite, false).effets.ouvrirLocator)
            p.Dire(kPointVirgule).Dire("F2 ou un clic change de locator");
        return;
    }
    if (d.faut.empty())
        return;
    const bool oublie =
        !e.carte.Texte(boite).empty() && Rogner(e.carteAvant.saisie.TexteSaisi).empty();
    p.Dire(kPointVirgule).Dire(oublie ? "il faut retaper " : "il faut ").Dire(d.faut);
}

void DirePrend(Phrase& p, Boite boite) {
    if (const std::string_view prend = Decrire(boite).prend; !prend.empty())
        p.Dire(" (").Dire(prend).Dire(")");
}

void DireSaisie(Phrase& p, const Essai& e, Boite boite) {
    const std::string& ancienne = e.carteAvant.zones[boite];
    const std::string& zone = e.carte.zones[boite];
    const std::string_view montre = Rogner(e.carteAvant.Texte(boite));
    if (e.Reste() && zone == ancienne && e.carte.Texte(boite) == e.carteAvant.Texte(boite)) {
        p.Dire("reste ici");
        DireAttente(p, e);
        DireBesoin(p, e, boite);
        return DirePrend(p, boite);
    }
    if (zone.empty())
        p.Dire(montre.empty() && ancienne.empty() ? "laisse cette case vide" : "vide cette case");
    else
        p.Dire(zone == montre ? "garde " : "prend ").Citer(zone);
    DirePrend(p, boite); // here, lest it seem to be said of the next box
    DireAutresZones(p, e, boite);
    DirePuis(p, e);
    // A text that the rule takes as it is and stays: there is more of it to come.
    if (e.Reste() && (zone.empty() || zone == montre))
        DireBesoin(p, e, boite);
}

void DireDifference(Phrase& p, std::string_view ancien, std::string_view nouveau) {
    if (nouveau.empty())
        p.Citer(ancien).Dire(" est effacé");
    else if (ancien.empty())
        p.Citer(nouveau).Dire(" est ajouté");
    else
        p.Citer(ancien).Dire(" devient ").Citer(nouveau);
}

void DireCorrection(Phrase& p, const Essai& e, Boite boite) {
    const std::string& montre = e.carte.Texte(boite);
    if (e.question) {
        p.Dire("demande s'il faut enregistrer");
        return DireChangements(p, e.carte);
    }
    if (!e.carteAvant.saisie.EnModification) {
        p.Dire("ne fait rien").Dire(kPointVirgule);
        p.Dire("la question attend Oui (Alt+O) ou Non (Alt+N)");
        return;
    }
    const bool reste = e.carte.saisie.EnModification;
    if (montre == e.carteAvant.Texte(boite))
        p.Dire(reste ? "reste ici" : "ne change rien");
    else if (montre.empty())
        p.Dire("efface ").Citer(e.carteAvant.Texte(boite)).Dire(reste ? " et reste ici" : "");
    else
        p.Dire("remet ").Citer(montre).Dire(reste ? " et reste ici" : "");
    if (!reste)
        p.Dire(" et termine la correction");
    DireBesoin(p, e, boite);
}

} // namespace

void DireChangements(Phrase& p, const Carte& carte) {
    const Zones ancienne = ZonesDeFiche(carte.tampon);
    const Zones nouvelle = ZonesDeFiche(FicheDesZones(carte.zones));
    bool premier = true;
    for (const DescriptionBoite& d : kBoites) {
        if (ancienne[d.boite] == nouvelle[d.boite])
            continue;
        p.Dire(premier ? kDeuxPoints : std::string_view{", "}).Dire(d.nom).Dire(" ");
        DireDifference(p, ancienne[d.boite], nouvelle[d.boite]);
        premier = false;
    }
    if (premier)
        p.Dire(" la fiche, inchangée");
}

void DireBoite(Phrase& p, Essai e, Boite boite) {
    if (!e.carteAvant.EnEdition())
        return;
    e.Suivre(ValiderBoite(e.carteAvant, e.station, boite, e.Maintenant()));
    const bool saisie = e.carteAvant.saisie.EnSaisie;
    if (e.enErreur) {
        p.Dire("affiche ERREUR et vide cette case");
        if (!saisie)
            p.Dire(", la fiche ne change pas");
        DireBesoin(p, e, boite);
    } else if (saisie) {
        DireSaisie(p, e, boite);
    } else {
        DireCorrection(p, e, boite);
        DirePrend(p, boite);
    }
}

} // namespace orvalis
