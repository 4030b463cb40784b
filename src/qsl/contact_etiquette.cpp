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

// The number on the label; none when it names no contact of the logbook.
NumeroFiche Numero(const Cahier& cahier, const QslSlotRecord& etiquette) {
    const NumeroFiche k{ValeurNumerique(TexteRogne(etiquette, ChampEtiquette::Fiche))};
    return cahier.Contient(k) ? k : kAucuneFiche;
}

bool Exact(const QsoRecord& fiche, const QslSlotRecord& etiquette) {
    return MemeIndicatif(fiche, etiquette) && MemeMoment(fiche, etiquette);
}

// From the surest answer to the least: a contact that one label has taken is no other's.
struct Recherche {
    Recherche(const Cahier& c, std::span<const QslSlotRecord> e)
        : cahier(c), etiquettes(e), trouves(e.size()) {}

    // The numbered contact, when callsign, date and time agree.
    void CroireLesNumeros() {
        for (std::size_t i = 0; i < etiquettes.size(); ++i) {
            const NumeroFiche k = Numero(cahier, etiquettes[i]);
            if (k == kAucuneFiche || EstPris(k))
                continue;
            const QsoRecord fiche = FicheDuCahier(cahier, k);
            if (EstEnCours(fiche) && Exact(fiche, etiquettes[i]))
                trouves[i] = {k, 1};
        }
    }

    // The one contact anywhere of the same callsign, date and time.
    void ChercherLesExacts() {
        std::vector<std::size_t> reste;
        for (std::size_t i = 0; i < etiquettes.size(); ++i)
            if (trouves[i].nombre == 0 && !Vide(etiquettes[i], ChampEtiquette::Indicatif))
                reste.push_back(i);
        std::vector<NumeroFiche> pris;
        for (const ContactTrouve& trouve : trouves)
            pris.push_back(trouve.fiche);
        LecteurFiches lecteur(cahier.fichier);
        for (NumeroFiche k = kPremiereFiche; k <= cahier.Derniere() && !reste.empty(); ++k) {
            const QsoRecord& fiche = lecteur.Lire(k);
            if (!EstEnCours(fiche) || std::find(pris.begin(), pris.end(), k) != pris.end())
                continue;
            for (const std::size_t i : reste)
                if (Exact(fiche, etiquettes[i]))
                    trouves[i] = {trouves[i].nombre == 0 ? k : kAucuneFiche, trouves[i].nombre + 1};
        }
    }

    // The numbered contact, when its callsign or its date and time were corrected since and it
    // is not the contact of another label.
    void AdmettreLesRetouches() {
        for (std::size_t i = 0; i < etiquettes.size(); ++i) {
            const NumeroFiche k =
                trouves[i].nombre == 0 ? ContactNumerote(cahier, etiquettes[i]) : kAucuneFiche;
            if (k == kAucuneFiche || EstPris(k))
                continue;
            const QsoRecord fiche = FicheDuCahier(cahier, k);
            const bool reclame =
                std::any_of(etiquettes.begin(), etiquettes.end(),
                            [&fiche](const QslSlotRecord& e) { return Exact(fiche, e); });
            if (EstEnCours(fiche) && !reclame)
                trouves[i] = {k, 1};
        }
    }

    [[nodiscard]] bool EstPris(NumeroFiche k) const {
        return std::any_of(trouves.begin(), trouves.end(),
                           [k](const ContactTrouve& trouve) { return trouve.fiche == k; });
    }

    const Cahier& cahier;
    std::span<const QslSlotRecord> etiquettes;
    std::vector<ContactTrouve> trouves;
};

} // namespace

NumeroFiche ContactNumerote(const Cahier& cahier, const QslSlotRecord& etiquette) {
    const NumeroFiche k = Numero(cahier, etiquette);
    if (k == kAucuneFiche)
        return kAucuneFiche;
    const QsoRecord fiche = FicheDuCahier(cahier, k);
    const bool meme =
        MemeIndicatif(fiche, etiquette) || (MomentConnu(etiquette) && MemeMoment(fiche, etiquette));
    return meme ? k : kAucuneFiche;
}

std::vector<ContactTrouve> TrouverContacts(const Cahier& cahier,
                                           std::span<const QslSlotRecord> etiquettes) {
    Recherche recherche(cahier, etiquettes);
    recherche.CroireLesNumeros();
    recherche.ChercherLesExacts();
    recherche.AdmettreLesRetouches();
    return std::move(recherche.trouves);
}

ContactTrouve ContactDeLaPlace(const Cahier& cahier, const FeuilleQSL& feuille, Place place) {
    std::vector<QslSlotRecord> etiquettes = {LireEnregistrement(feuille, place)};
    for (Place autre = kPremierePlace; autre <= kDernierePlace; ++autre)
        if (autre != place && feuille.Etat(autre) == EtatEtiquette::Preparee)
            etiquettes.push_back(LireEnregistrement(feuille, autre));
    return TrouverContacts(cahier, etiquettes).front();
}

Place EtiquetteSansMarque(const Cahier& cahier, const FeuilleQSL& feuille, NumeroFiche k) {
    const QsoRecord fiche = FicheDuCahier(cahier, k);
    std::vector<Place> places;
    std::vector<QslSlotRecord> etiquettes;
    for (Place place = kPremierePlace; place <= kDernierePlace; ++place) {
        if (feuille.Etat(place) != EtatEtiquette::Preparee)
            continue;
        const QslSlotRecord etiquette = LireEnregistrement(feuille, place);
        const bool numerote = Numero(cahier, etiquette) == k && MomentConnu(etiquette);
        if (!MemeMoment(fiche, etiquette) || !(numerote || MemeIndicatif(fiche, etiquette)))
            continue;
        places.push_back(place);
        etiquettes.push_back(etiquette);
    }
    const std::vector<ContactTrouve> trouves = TrouverContacts(cahier, etiquettes);
    for (std::size_t i = 0; i < places.size(); ++i)
        if (trouves[i].nombre == 0)
            return places[i];
    return kAucunePlace;
}

void MarquerContact(Cahier& cahier, NumeroFiche k, std::string_view maQsl) {
    QsoRecord fiche = FicheDuCahier(cahier, k);
    MettreChamp(fiche, Champ::MQSL, maQsl);
    CorrigerFiche(cahier, k, fiche);
}

} // namespace orvalis
