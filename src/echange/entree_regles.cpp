// The fields of the format that are not plain texts.
#include "echange/entree_champs.h"
#include "echange/sens.h"

#include <algorithm>
#include <array>

namespace orvalis {
namespace {

// The digits of a text, without the separators that some programs put between them; empty when
// there is anything else in it.
std::string Chiffres(std::string_view texte, std::string_view separateurs) {
    std::string chiffres;
    for (const char c : texte) {
        if (c >= '0' && c <= '9')
            chiffres += c;
        else if (separateurs.find(c) == separateurs.npos)
            return {};
    }
    return chiffres;
}

std::optional<Jour> LireJourAdif(std::string_view texte) {
    const std::string chiffres = Chiffres(texte, "-/.");
    if (chiffres.size() != 8)
        return {};
    const int n = ValeurNumerique(chiffres);
    const Jour jour{std::chrono::year{n / 10000},
                    std::chrono::month{static_cast<unsigned>(n / 100 % 100)},
                    std::chrono::day{static_cast<unsigned>(n % 100)}};
    return jour.ok() ? std::optional{jour} : std::nullopt;
}

std::optional<Heure> LireHeureAdif(std::string_view texte) {
    const std::string chiffres = Chiffres(texte, ":");
    if (chiffres.size() != 4 && chiffres.size() != 6)
        return {};
    if (chiffres.size() == 6 && chiffres[4] > '5')
        return {};
    return LireHeure(chiffres.substr(0, 2) + ":" + chiffres.substr(2, 2));
}

bool DansLeCahier(Jour jour) {
    const int annee = static_cast<int>(jour.year());
    return annee >= kPremiereAnnee && annee <= kDerniereAnnee;
}

// The time in the field, if there is one; told when it is none.
std::optional<Heure> HeureDuChamp(Entree& e, Champ champ, Balise balise) {
    const auto heure = LireHeureAdif(e[balise]);
    if (!heure && !e[balise].empty())
        e.Noter(champ, balise, "heure illisible : laissée vide");
    return heure;
}

void LireFin(Entree& e, Jour premier, std::optional<Heure> debut) {
    const auto fin = HeureDuChamp(e, Champ::HFIN, Balise::TIME_OFF);
    if (!fin)
        return;
    const auto dernier = LireJourAdif(e[Balise::QSO_DATE_OFF]);
    const bool lendemain = !dernier && debut && *fin < *debut;
    const Moment utc =
        MomentDe(dernier.value_or(premier), *fin) + std::chrono::days{lendemain ? 1 : 0};
    e.Mettre(Champ::HFIN, EcrireHeure(HeureDe(e.conventions.fuseau.DepuisUtc(utc))));
    const Moment depart = MomentDe(premier, debut.value_or(Heure{0}));
    // Only the hour is kept, so that who reads the logbook takes the end for the next one of it.
    const std::string_view pourquoi =
        !dernier && !e[Balise::QSO_DATE_OFF].empty()       ? "date illisible"
        : utc < depart                                     ? "une fin avant le début"
        : utc >= depart + std::chrono::days{debut ? 1 : 2} ? "une fin plus d'un jour après le début"
                                                           : "";
    if (!pourquoi.empty())
        e.Noter(Champ::HFIN, Balise::QSO_DATE_OFF,
                std::string{pourquoi} + " : seule l'heure de fin est gardée");
}

} // namespace

void LireHeuresAdif(Entree& e) {
    const auto premier = LireJourAdif(e[Balise::QSO_DATE]);
    if (!premier) {
        e.Refuser(Champ::DQSO, Balise::QSO_DATE,
                  e[Balise::QSO_DATE].empty() ? "sans date" : "date illisible");
        return;
    }
    const auto debut = HeureDuChamp(e, Champ::HDEB, Balise::TIME_ON);
    const Moment locale = debut ? e.conventions.fuseau.DepuisUtc(MomentDe(*premier, *debut))
                                : MomentDe(*premier, Heure{0});
    if (!DansLeCahier(JourDe(locale))) {
        e.Refuser(Champ::DQSO, Balise::QSO_DATE, "année hors de 1960 à 2059");
        return;
    }
    e.Mettre(Champ::DQSO, EcrireJour(JourDe(locale)));
    if (debut)
        e.Mettre(Champ::HDEB, EcrireHeure(HeureDe(locale)));
    LireFin(e, *premier, debut);
}

void LireFrequenceAdif(Entree& e) {
    const std::string_view valeur = e[Balise::FREQ];
    const Bande* bande = BandeNommee(e[Balise::BAND]);
    const SensFrequence sens = LireFrequence(valeur, bande);
    std::string texte;
    if (sens.hertz) {
        texte = EcrireMegahertz(*sens.hertz);
        if (sens.enMegahertz) {
            // As many decimals as were written, but no zeros beyond the third.
            texte = valeur;
            std::replace(texte.begin(), texte.end(), ',', '.');
            const std::size_t point = std::min(texte.find('.'), texte.size());
            while (texte.size() > point + 4 && texte.back() == '0')
                texte.pop_back();
            if (texte.back() == '.')
                texte.pop_back();
            if (point == 0)
                texte.insert(0, 1, '0');
        }
        const std::size_t largeur = Description(Champ::FREQ).largeur;
        const bool coupe = texte.size() > largeur;
        texte.resize(std::min(texte.size(), largeur));
        if (!sens.enMegahertz || coupe)
            e.Noter(Champ::FREQ, Balise::FREQ, Devenu(texte) + " MHz");
        if (bande != nullptr && sens.bande != bande)
            e.Noter(Champ::FREQ, Balise::BAND, "ne va pas avec la fréquence, qui compte seule");
        e.Mettre(Champ::FREQ, texte);
        return;
    }
    if (bande == nullptr && sens.bande != nullptr)
        bande = sens.bande; // a band's name in the place of the frequency
    if (bande != nullptr)
        texte = bande->nom;
    else if (!e[Balise::BAND].empty())
        e.Noter(Champ::FREQ, Balise::BAND, "n'est pas une bande : laissé vide");
    e.Mettre(Champ::FREQ, texte);
    if (!valeur.empty() && sens.bande == nullptr)
        e.Noter(Champ::FREQ, Balise::FREQ, "n'est pas une fréquence : " + Devenu(texte));
}

void LireModeAdif(Entree& e) {
    const std::string mode = MajusculesAscii(e[Balise::MODE]);
    const std::string sousMode = MajusculesAscii(e[Balise::SUBMODE]);
    const std::size_t largeur = Description(Champ::MODE).largeur;
    const ModeAdif precis = ComprendreMode(sousMode);
    const ModeAdif sens =
        precis.sousMode == sousMode && !sousMode.empty() ? precis : ComprendreMode(mode);
    // The shortest way to say the same, else as much of the mode as there is room for.
    std::string_view texte;
    for (const std::string_view nom : {std::string_view{sousMode}, std::string_view{mode}})
        if (texte.empty() && !sens.mode.empty() && ComprendreMode(nom.substr(0, largeur)) == sens)
            texte = nom.substr(0, largeur);
    const bool entier = !texte.empty() && (sousMode.empty() || sens == precis);
    if (texte.empty())
        texte = std::string_view{mode.empty() ? sousMode : mode}.substr(0, largeur);
    e.Mettre(Champ::MODE, VersCp1252(texte));
    if (!entier && !sousMode.empty())
        e.Noter(Champ::MODE, Balise::SUBMODE, Devenu(VersCp1252(texte)));
    else if (!entier && texte != mode)
        e.Noter(Champ::MODE, Balise::MODE, Devenu(VersCp1252(texte)));
}

void LireDepartementAdif(Entree& e) {
    const int dxcc = ValeurNumerique(e[Balise::DXCC]);
    if (dxcc != kDxccFrance && dxcc != kDxccCorse)
        return; // the subdivisions of other countries are none of ours
    const std::string_view etat = e[Balise::STATE];
    const std::string_view code = LireDepartement(etat);
    if (DepartementListe(dxcc, code) && dxcc == kDxccFrance)
        e.Mettre(Champ::DEPT, code);
    else if (dxcc == kDxccCorse)
        // Kept on purpose, for the operators: the card knows Corsica by 20 and takes 2A for Aisne.
        e.Mettre(Champ::DEPT, "20");
    if (!etat.empty() && Rogner(OctetsChamp(e.fiche, Champ::DEPT)) != etat)
        e.Noter(Champ::DEPT, Balise::STATE, Devenu(Rogner(OctetsChamp(e.fiche, Champ::DEPT))));
}

namespace {

struct Carte {
    Champ champ;
    Balise etat;
    Balise jour;
    Balise voie;
};
constexpr std::array<Carte, 2> kCartes = {{
    {Champ::MQSL, Balise::QSL_SENT, Balise::QSLSDATE, Balise::QSL_SENT_VIA},
    {Champ::SQSL, Balise::QSL_RCVD, Balise::QSLRDATE, Balise::QSL_RCVD_VIA},
}};

void LireCarte(Entree& e, const Carte& carte) {
    const std::string etat = MajusculesAscii(e[carte.etat]);
    const bool mienne = carte.champ == Champ::MQSL;
    if (etat.empty() && !e[carte.jour].empty())
        e.Noter(carte.champ, carte.jour, "une date sans état de la carte : laissée de côté");
    if (etat.empty() || etat == "N" || etat == "I")
        return;
    if (e.conventions.electronique || MajusculesAscii(e[carte.voie]) == "E") {
        e.Noter(carte.champ, carte.etat, "une confirmation en ligne n'est pas une carte");
        return;
    }
    const bool faite = etat == "Y" || (!mienne && etat == "V");
    if (mienne && etat == "Q") {
        e.Mettre(carte.champ, "En cours");
    } else if (!faite) {
        e.Noter(carte.champ, carte.etat, "sans place dans le cahier : laissé vide");
    } else {
        const auto jour = LireJourAdif(e[carte.jour]);
        e.Mettre(carte.champ, jour && DansLeCahier(*jour) ? EcrireJour(*jour) : "OK");
        if (!e[carte.jour].empty() && !(jour && DansLeCahier(*jour)))
            e.Noter(carte.champ, carte.jour, "date illisible : devient « OK »");
    }
}

} // namespace

void LireCartes(Entree& e) {
    for (const Carte& carte : kCartes)
        LireCarte(e, carte);
}

} // namespace orvalis
