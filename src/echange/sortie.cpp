#include "echange/sortie.h"

#include "echange/entree.h"
#include "echange/lettres.h"
#include "geo/locator.h"

namespace orvalis {
namespace {

struct Sortie {
    const QsoRecord& fiche;
    const Fuseau& fuseau;
    ContactAdif& contact;

    [[nodiscard]] std::string_view Octets(Champ champ) const {
        return Rogner(OctetsChamp(fiche, champ));
    }
    [[nodiscard]] std::string& operator[](Balise balise) const { return contact[balise]; }
};

void Texte(const Sortie& s, Balise balise, std::string_view octets) {
    if (EstAscii(octets))
        s[balise] = octets;
    else
        s[balise] = Rogner(VersAscii(octets));
}

void TexteDouble(const Sortie& s, Balise balise, Balise jumeau, std::string_view octets,
                 Jumeaux jumeaux) {
    Texte(s, balise, octets);
    if (jumeaux == Jumeaux::Oui && !EstAscii(octets) && !AUneCommande(octets))
        s[jumeau] = DepuisCp1252(octets);
}

std::string HeureAdif(Moment moment) {
    std::string texte = EcrireHeure(HeureDe(moment));
    texte.erase(2, 1);
    return texte;
}

void Heures(const Sortie& s) {
    const auto date = LireJour(s.Octets(Champ::DQSO));
    if (!date)
        return;
    const auto debut = LireHeure(s.Octets(Champ::HDEB));
    const auto fin = LireHeure(s.Octets(Champ::HFIN));
    Jour premier = *date; // a day without an hour stays what it is in every zone
    if (debut) {
        const Moment utc = s.fuseau.VersUtc(MomentDe(*date, *debut));
        premier = JourDe(utc);
        s[Balise::TIME_ON] = HeureAdif(utc);
    }
    s[Balise::QSO_DATE] = EcrireJourIso(premier, "");
    if (!fin)
        return;
    const bool lendemain = debut && *fin < *debut;
    const Moment utc =
        s.fuseau.VersUtc(MomentDe(*date, *fin) + std::chrono::days{lendemain ? 1 : 0});
    s[Balise::TIME_OFF] = HeureAdif(utc);
    if (JourDe(utc) != premier)
        s[Balise::QSO_DATE_OFF] = EcrireJourIso(JourDe(utc), "");
}

// The number as it was written, with digits on both sides of its point.
std::string Megahertz(std::string_view octets) {
    std::string texte(octets);
    const std::size_t point = texte.find_first_of(".,");
    if (point == texte.npos)
        return texte;
    texte[point] = '.';
    if (point + 1 == texte.size())
        texte.pop_back();
    return point == 0 ? "0" + texte : texte;
}

void Frequence(const Sortie& s) {
    const std::string_view octets = s.Octets(Champ::FREQ);
    const SensFrequence sens = LireFrequence(octets);
    if (sens.hertz)
        s[Balise::FREQ] = sens.enMegahertz ? Megahertz(octets) : EcrireMegahertz(*sens.hertz);
    if (sens.bande != nullptr)
        s[Balise::BAND] = sens.bande->nom;
}

void Departement(const Sortie& s) {
    const std::string_view code = LireDepartement(s.Octets(Champ::DEPT));
    const bool listeEnCorse = DepartementListe(kDxccCorse, code);
    if (listeEnCorse || code == "20")
        s[Balise::DXCC] = std::to_string(kDxccCorse);
    else if (DepartementListe(kDxccFrance, code))
        s[Balise::DXCC] = std::to_string(kDxccFrance);
    if (listeEnCorse || DepartementListe(kDxccFrance, code))
        s[Balise::STATE] = code;
}

void Carte(const Sortie& s, Champ champ, Balise etat, Balise jour) {
    const SensQsl sens = LireQsl(s.Octets(champ));
    switch (sens.etat) {
    case EtatQsl::Faite:
        s[etat] = "Y";
        break;
    case EtatQsl::EnCours:
        if (champ == Champ::MQSL)
            s[etat] = "Q";
        break;
    case EtatQsl::Non:
        s[etat] = "N";
        break;
    case EtatQsl::Rien:
    case EtatQsl::Illisible:
        break;
    }
    if (sens.date)
        s[jour] = EcrireJourIso(*sens.date, "");
}

} // namespace

void ExporterChamps(const QsoRecord& fiche, const Fuseau& fuseau, Jumeaux jumeaux,
                    ContactAdif& contact) {
    contact.Vider();
    const Sortie s{fiche, fuseau, contact};
    if (const auto indicatif = s.Octets(Champ::CSGN); !indicatif.starts_with('\\'))
        Texte(s, Balise::CALL, indicatif);
    Heures(s);
    Frequence(s);
    const ModeAdif mode = ComprendreMode(s.Octets(Champ::MODE));
    s[Balise::MODE] = mode.mode;
    s[Balise::SUBMODE] = mode.sousMode;
    Texte(s, Balise::RST_SENT, s.Octets(Champ::SRST));
    Texte(s, Balise::RST_RCVD, s.Octets(Champ::MRST));
    TexteDouble(s, Balise::NAME, Balise::NAME_INTL, s.Octets(Champ::SNOM), jumeaux);
    TexteDouble(s, Balise::QTH, Balise::QTH_INTL, s.Octets(Champ::SQTH), jumeaux);
    TexteDouble(s, Balise::COMMENT, Balise::COMMENT_INTL, OctetsRemarque(fiche), jumeaux);
    Texte(s, Balise::QSL_VIA, OctetsManager(fiche));
    if (const auto locator = s.Octets(Champ::SLOC); EstUnCarre(locator))
        s[Balise::GRIDSQUARE] = locator;
    if (const auto locator = s.Octets(Champ::MLOC); LocatorValide(locator))
        s[Balise::MY_GRIDSQUARE] = locator;
    Departement(s);
    Carte(s, Champ::MQSL, Balise::QSL_SENT, Balise::QSLSDATE);
    Carte(s, Champ::SQSL, Balise::QSL_RCVD, Balise::QSLRDATE);
}

void ExporterFiche(const QsoRecord& fiche, const Fuseau& fuseau, Jumeaux jumeaux,
                   ContactAdif& contact) {
    ExporterChamps(fiche, fuseau, jumeaux, contact);
    QsoRecord relue;
    const ChampsSet refuses = RelireChamps(contact, fuseau, relue);
    for (const DescriptionChamp& d : kChamps) {
        const std::string_view octets = OctetsChamp(fiche, d.champ);
        if (refuses[NumeroZone(d.champ) - 1] || octets != OctetsChamp(relue, d.champ))
            contact.exacts[NumeroZone(d.champ) - 1] = CoderOctets(octets);
    }
}

} // namespace orvalis
