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

// The number on the label; 0 when it names no contact of the logbook.
std::int32_t Numero(const Cahier& cahier, const QslSlotRecord& etiquette) {
    const int numero = ValeurNumerique(TexteRogne(etiquette, ChampEtiquette::NumeroFiche));
    return numero <= cahier.nbFiches ? numero : 0;
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
            const std::int32_t k = Numero(cahier, etiquettes[i]);
            if (k == 0 || EstPris(k))
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
        std::vector<std::int32_t> pris;
        for (const ContactTrouve& trouve : trouves)
            pris.push_back(trouve.fiche);
        LecteurFiches lecteur(cahier.fichier);
        for (std::int32_t k = 1; k <= cahier.nbFiches && !reste.empty(); ++k) {
            const QsoRecord& fiche = lecteur.Lire(k);
            if (!EstEnCours(fiche) || std::find(pris.begin(), pris.end(), k) != pris.end())
                continue;
            for (const std::size_t i : reste)
                if (Exact(fiche, etiquettes[i]))
                    trouves[i] = {trouves[i].nombre == 0 ? k : 0, trouves[i].nombre + 1};
        }
    }

    // The numbered contact, when its callsign or its date and time were corrected since and it
    // is not the contact of another label.
    void AdmettreLesRetouches() {
        for (std::size_t i = 0; i < etiquettes.size(); ++i) {
            const std::int32_t k =
                trouves[i].nombre == 0 ? ContactNumerote(cahier, etiquettes[i]) : 0;
            if (k == 0 || EstPris(k))
                continue;
            const QsoRecord fiche = FicheDuCahier(cahier, k);
            const bool reclame =
                std::any_of(etiquettes.begin(), etiquettes.end(),
                            [&fiche](const QslSlotRecord& e) { return Exact(fiche, e); });
            if (EstEnCours(fiche) && !reclame)
                trouves[i] = {k, 1};
        }
    }

    [[nodiscard]] bool EstPris(std::int32_t k) const {
        return std::any_of(trouves.begin(), trouves.end(),
                           [k](const ContactTrouve& trouve) { return trouve.fiche == k; });
    }

    const Cahier& cahier;
    std::span<const QslSlotRecord> etiquettes;
    std::vector<ContactTrouve> trouves;
};

} // namespace

std::int32_t ContactNumerote(const Cahier& cahier, const QslSlotRecord& etiquette) {
    const std::int32_t k = Numero(cahier, etiquette);
    if (k == 0)
        return 0;
    const QsoRecord fiche = FicheDuCahier(cahier, k);
    const bool meme =
        MemeIndicatif(fiche, etiquette) || (MomentConnu(etiquette) && MemeMoment(fiche, etiquette));
    return meme ? k : 0;
}

std::vector<ContactTrouve> TrouverContacts(const Cahier& cahier,
                                           std::span<const QslSlotRecord> etiquettes) {
    Recherche recherche(cahier, etiquettes);
    recherche.CroireLesNumeros();
    recherche.ChercherLesExacts();
    recherche.AdmettreLesRetouches();
    return std::move(recherche.trouves);
}

ContactTrouve ContactDeLaPlace(const Cahier& cahier, const FeuilleQSL& feuille, int place) {
    std::vector<QslSlotRecord> etiquettes = {LireEnregistrement(feuille, place)};
    for (int k = 1; k <= kNbEtiquettes; ++k)
        if (k != place && feuille.Etat(k) == EtatEtiquette::Preparee)
            etiquettes.push_back(LireEnregistrement(feuille, k));
    return TrouverContacts(cahier, etiquettes).front();
}

int EtiquetteSansMarque(const Cahier& cahier, const FeuilleQSL& feuille, std::int32_t k) {
    const QsoRecord fiche = FicheDuCahier(cahier, k);
    std::vector<int> places;
    std::vector<QslSlotRecord> etiquettes;
    for (int place = 1; place <= kNbEtiquettes; ++place) {
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
    return 0;
}

void MarquerContact(Cahier& cahier, std::int32_t k, std::string_view maQsl) {
    QsoRecord fiche = FicheDuCahier(cahier, k);
    MettreChamp(fiche, Champ::MQSL, maQsl);
    CorrigerFiche(cahier, k, fiche);
}

} // namespace orvalis
