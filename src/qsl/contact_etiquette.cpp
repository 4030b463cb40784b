#include "qsl/contact_etiquette.h"

#include "core/texte.h"

#include <algorithm>
#include <array>
#include <utility>

namespace orvalis {
namespace {

bool Egaux(const QsoRecord& fiche, Champ champ, const QslSlotRecord& etiquette,
           ChampEtiquette champEtiquette) {
    return Rogner(OctetsChamp(fiche, champ)) == Rogner(OctetsChamp(etiquette, champEtiquette));
}

bool Vide(const QslSlotRecord& etiquette, ChampEtiquette champ) {
    return Rogner(OctetsChamp(etiquette, champ)).empty();
}

// The label's callsign; a label without one has nobody's.
bool MemeIndicatif(const QsoRecord& fiche, const QslSlotRecord& etiquette) {
    return !Vide(etiquette, ChampEtiquette::Indicatif) &&
           Egaux(fiche, Champ::CSGN, etiquette, ChampEtiquette::Indicatif);
}

// The label's date and time, or both without.
bool MemeMoment(const QsoRecord& fiche, const QslSlotRecord& etiquette) {
    return Egaux(fiche, Champ::DQSO, etiquette, ChampEtiquette::Date) &&
           Egaux(fiche, Champ::HDEB, etiquette, ChampEtiquette::Heure);
}

bool MomentConnu(const QslSlotRecord& etiquette) {
    return !Vide(etiquette, ChampEtiquette::Date) && !Vide(etiquette, ChampEtiquette::Heure);
}

bool EstEnCours(const QsoRecord& fiche) {
    return Rogner(OctetsChamp(fiche, Champ::MQSL)) == kEnCours;
}

bool EstVierge(const QsoRecord& fiche) {
    return Rogner(OctetsChamp(fiche, Champ::MQSL)).empty();
}

// The number on the label; none when it names no contact of the logbook.
NumeroFiche Numero(const Cahier& cahier, const QslSlotRecord& etiquette) {
    const NumeroFiche k{ValeurNumerique(TexteRogne(etiquette, ChampEtiquette::Fiche))};
    return cahier.Contient(k) ? k : kAucuneFiche;
}

bool Exact(const QsoRecord& fiche, const QslSlotRecord& etiquette) {
    return MemeIndicatif(fiche, etiquette) && MemeMoment(fiche, etiquette);
}

// The one it numbers, whatever its MQSL, when that has the label's callsign, or its date and time.
NumeroFiche ContactNumerote(const Cahier& cahier, const QslSlotRecord& etiquette) {
    const NumeroFiche k = Numero(cahier, etiquette);
    if (k == kAucuneFiche)
        return kAucuneFiche;
    const QsoRecord fiche = FicheDuCahier(cahier, k);
    const bool meme =
        MemeIndicatif(fiche, etiquette) || (MomentConnu(etiquette) && MemeMoment(fiche, etiquette));
    return meme ? k : kAucuneFiche;
}

// The contacts with a label's callsign, date and time, by their MQSL.
struct Exacts {
    std::vector<ContactTrouve> enCours;
    std::vector<ContactTrouve> vierges;
    bool autres = false;
};

// From the surest answer to the least: a contact that one label has taken is no other's.
struct Recherche {
    Recherche(const Cahier& c, std::span<const QslSlotRecord> e)
        : cahier(c), etiquettes(e), trouves(e.size()), exacts(e.size()) {}

    // The numbered contact, when its MQSL is such and callsign, date and time agree.
    void CroireLesNumeros(bool (*estTelle)(const QsoRecord&)) {
        for (std::size_t i = 0; i < etiquettes.size(); ++i) {
            const NumeroFiche k = Numero(cahier, etiquettes[i]);
            if (!SansReponse(i) || k == kAucuneFiche || EstPris(k))
                continue;
            const QsoRecord fiche = FicheDuCahier(cahier, k);
            if (estTelle(fiche) && Exact(fiche, etiquettes[i]))
                Prendre(i, {k, Correspondance::Unique, fiche});
        }
    }

    // Every contact of the same callsign, date and time.
    void ReleverLesExacts() {
        std::vector<std::size_t> reste;
        for (std::size_t i = 0; i < etiquettes.size(); ++i)
            if (SansReponse(i) && !Vide(etiquettes[i], ChampEtiquette::Indicatif))
                reste.push_back(i);
        LecteurFiches lecteur(cahier.fichier);
        for (NumeroFiche k = kPremiereFiche; k <= cahier.Derniere() && !reste.empty(); ++k) {
            const QsoRecord& fiche = lecteur.Lire(k);
            for (const std::size_t i : reste) {
                if (!Exact(fiche, etiquettes[i]))
                    continue;
                if (EstEnCours(fiche))
                    exacts[i].enCours.push_back({k, Correspondance::Unique, fiche});
                else if (EstVierge(fiche))
                    exacts[i].vierges.push_back({k, Correspondance::Unique, fiche});
                else
                    exacts[i].autres = true;
            }
        }
    }

    // The only one of the exact ones of a kind, less those that other labels have.
    void Departager(std::vector<ContactTrouve> Exacts::*genre, Correspondance siPlusieurs) {
        for (std::size_t i = 0; i < etiquettes.size(); ++i) {
            if (!SansReponse(i))
                continue;
            std::vector<ContactTrouve> libres;
            for (const ContactTrouve& exact : exacts[i].*genre)
                if (!EstPris(exact.fiche))
                    libres.push_back(exact);
            if (libres.size() == 1)
                Prendre(i, libres.front());
            else if (!libres.empty())
                trouves[i].correspondance = siPlusieurs;
        }
    }

    // The numbered contact, when its callsign or its date and time were corrected since and it
    // is not the contact of another label.
    void AdmettreLesRetouches() {
        for (std::size_t i = 0; i < etiquettes.size(); ++i) {
            const NumeroFiche k =
                SansReponse(i) ? ContactNumerote(cahier, etiquettes[i]) : kAucuneFiche;
            if (k == kAucuneFiche || EstPris(k))
                continue;
            const QsoRecord fiche = FicheDuCahier(cahier, k);
            const bool reclame =
                std::any_of(etiquettes.begin(), etiquettes.end(),
                            [&fiche](const QslSlotRecord& e) { return Exact(fiche, e); });
            if (EstEnCours(fiche) && !reclame)
                Prendre(i, {k, Correspondance::Unique, fiche});
            else if (!EstVierge(fiche) && !reclame)
                exacts[i].autres |= MemeMoment(fiche, etiquettes[i]);
        }
    }

    // Why what is left has no contact.
    void Motiver() {
        for (std::size_t i = 0; i < etiquettes.size(); ++i)
            if (SansReponse(i) && !(exacts[i].enCours.empty() && exacts[i].vierges.empty()))
                trouves[i].correspondance = Correspondance::DUneAutre;
            else if (SansReponse(i) && exacts[i].autres)
                trouves[i].correspondance = Correspondance::DejaMarquee;
    }

    void Prendre(std::size_t i, const ContactTrouve& trouve) { trouves[i] = trouve; }
    [[nodiscard]] bool SansReponse(std::size_t i) const {
        return trouves[i].correspondance == Correspondance::Aucune;
    }
    [[nodiscard]] bool EstPris(NumeroFiche k) const {
        return std::any_of(trouves.begin(), trouves.end(),
                           [k](const ContactTrouve& trouve) { return trouve.fiche == k; });
    }

    const Cahier& cahier;
    std::span<const QslSlotRecord> etiquettes;
    std::vector<ContactTrouve> trouves;
    std::vector<Exacts> exacts;
};

} // namespace

std::vector<ContactTrouve> TrouverContacts(const Cahier& cahier,
                                           std::span<const QslSlotRecord> etiquettes) {
    Recherche recherche(cahier, etiquettes);
    recherche.CroireLesNumeros(EstEnCours);
    recherche.ReleverLesExacts();
    recherche.Departager(&Exacts::enCours, Correspondance::Plusieurs);
    recherche.CroireLesNumeros(EstVierge);
    recherche.Departager(&Exacts::vierges, Correspondance::PlusieursVierges);
    recherche.AdmettreLesRetouches();
    recherche.Motiver();
    return std::move(recherche.trouves);
}

ContactTrouve ContactDeLaPlace(const Cahier& cahier, const FeuilleQSL& feuille, Place place) {
    std::vector<QslSlotRecord> etiquettes = {LireEnregistrement(feuille, place)};
    for (Place autre = kPremierePlace; autre <= kDernierePlace; ++autre)
        if (autre != place && feuille.Etat(autre) == EtatEtiquette::Preparee)
            etiquettes.push_back(LireEnregistrement(feuille, autre));
    return TrouverContacts(cahier, etiquettes).front();
}

ContactTrouve ContactDeLaNouvelle(const Cahier& cahier, const FeuilleQSL& feuille, Place place,
                                  bool telQueCompte) {
    const QslSlotRecord etiquette = LireEnregistrement(feuille, place);
    const NumeroFiche k = telQueCompte ? ContactNumerote(cahier, etiquette) : kAucuneFiche;
    if (k == kAucuneFiche)
        return ContactDeLaPlace(cahier, feuille, place);
    const ContactTrouve numerote{k, Correspondance::Unique, FicheDuCahier(cahier, k)};
    if (Exact(numerote.trouvee, etiquette))
        return numerote;
    const ContactTrouve trouve = ContactDeLaPlace(cahier, feuille, place);
    const bool libre = EstVierge(numerote.trouvee) || EstEnCours(numerote.trouvee);
    return trouve.correspondance == Correspondance::Aucune && libre ? numerote : trouve;
}

Place EtiquetteSansMarque(const Cahier& cahier, const FeuilleQSL& feuille, NumeroFiche k) {
    const QsoRecord contact = FicheDuCahier(cahier, k);
    std::vector<Place> places;
    std::vector<QslSlotRecord> etiquettes;
    for (Place place = kPremierePlace; place <= kDernierePlace; ++place) {
        if (feuille.Etat(place) != EtatEtiquette::Preparee)
            continue;
        const QslSlotRecord etiquette = LireEnregistrement(feuille, place);
        const bool numerote = Numero(cahier, etiquette) == k && MomentConnu(etiquette);
        if (!MemeMoment(contact, etiquette) || !(numerote || MemeIndicatif(contact, etiquette)))
            continue;
        places.push_back(place);
        etiquettes.push_back(etiquette);
    }
    const std::vector<ContactTrouve> trouves = TrouverContacts(cahier, etiquettes);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto& [fiche, correspondance, trouvee] = trouves[i];
        if (fiche == k || correspondance == Correspondance::Aucune ||
            correspondance == Correspondance::PlusieursVierges)
            return places[i];
    }
    return kAucunePlace;
}

bool MarquerContact(Cahier& cahier, const ContactTrouve& trouve, std::string_view maQsl) {
    QsoRecord fiche = trouve.trouvee;
    MettreChamp(fiche, Champ::MQSL, maQsl);
    return CorrigerFiche(cahier, trouve.fiche, trouve.trouvee, fiche);
}

} // namespace orvalis
