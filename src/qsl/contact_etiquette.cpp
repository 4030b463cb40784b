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

/// The label's callsign; a label without one has nobody's.
bool MemeIndicatif(const QsoRecord& fiche, const QslSlotRecord& etiquette) {
    return !Vide(etiquette, ChampEtiquette::Indicatif) &&
           Egaux(fiche, Champ::CSGN, etiquette, ChampEtiquette::Indicatif);
}

/// The label's date and time, or both without.
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

/// The number on the label; 0 when it names no contact of the logbook.
std::int32_t Numero(const Session& session, const QslSlotRecord& etiquette) {
    const int numero = ValeurNumerique(TexteRogne(etiquette, ChampEtiquette::NumeroFiche));
    return numero <= session.nbFiches ? numero : 0;
}

} // namespace

std::int32_t ContactNumerote(const Session& session, const QslSlotRecord& etiquette) {
    const std::int32_t k = Numero(session, etiquette);
    if (k == 0)
        return 0;
    const QsoRecord fiche = session.journal.Lire(k);
    const bool meme =
        MemeIndicatif(fiche, etiquette) || (MomentConnu(etiquette) && MemeMoment(fiche, etiquette));
    return meme ? k : 0;
}

std::vector<ContactTrouve> TrouverContacts(const Session& session,
                                           std::span<const QslSlotRecord> etiquettes) {
    std::vector<ContactTrouve> trouves(etiquettes.size());
    std::vector<std::size_t> aChercher;
    for (std::size_t i = 0; i < etiquettes.size(); ++i) {
        const std::int32_t k = ContactNumerote(session, etiquettes[i]);
        if (k != 0 && EstEnCours(session.journal.Lire(k)))
            trouves[i] = {k, 1};
        else if (!Vide(etiquettes[i], ChampEtiquette::Indicatif))
            aChercher.push_back(i);
    }
    LecteurFiches lecteur(session.journal);
    for (std::int32_t k = 1; k <= session.nbFiches && !aChercher.empty(); ++k) {
        const QsoRecord& fiche = lecteur.Lire(k);
        if (!EstEnCours(fiche))
            continue;
        for (const std::size_t i : aChercher)
            if (MemeIndicatif(fiche, etiquettes[i]) && MemeMoment(fiche, etiquettes[i]))
                trouves[i] = {trouves[i].nombre == 0 ? k : 0, trouves[i].nombre + 1};
    }
    return trouves;
}

ContactTrouve TrouverContact(const Session& session, const QslSlotRecord& etiquette) {
    return TrouverContacts(session, std::span(&etiquette, 1)).front();
}

int EtiquetteSansMarque(const Session& session, const FeuilleQSL& feuille, std::int32_t k) {
    const QsoRecord fiche = session.journal.Lire(k);
    std::vector<int> places;
    std::vector<QslSlotRecord> etiquettes;
    for (int place = 1; place <= kNbEtiquettes; ++place) {
        if (feuille.Etat(place) != EtatEtiquette::Preparee)
            continue;
        const QslSlotRecord etiquette = LireEnregistrement(feuille, place);
        const bool numerote = Numero(session, etiquette) == k && MomentConnu(etiquette);
        if (!MemeMoment(fiche, etiquette) || !(numerote || MemeIndicatif(fiche, etiquette)))
            continue;
        places.push_back(place);
        etiquettes.push_back(etiquette);
    }
    const std::vector<ContactTrouve> trouves = TrouverContacts(session, etiquettes);
    for (std::size_t i = 0; i < places.size(); ++i)
        if (trouves[i].nombre == 0)
            return places[i];
    return 0;
}

void MarquerContact(Session& session, std::int32_t k, std::string_view maQsl) {
    QsoRecord fiche = session.journal.Lire(k);
    MettreChamp(fiche, Champ::MQSL, maQsl);
    session.journal.Ecrire(k, fiche);
}

} // namespace orvalis
