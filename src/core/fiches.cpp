#include "core/fiches.h"

#include "core/texte.h"

#include <algorithm>
#include <cerrno>
#include <vector>

namespace orvalis {
namespace {

Journal OuvrirEnEcriture(const std::filesystem::path& chemin, bool lectureSeulePermise) {
    try {
        return {chemin, ModeFichier::LectureEcriture};
    } catch (const ErreurFichier& echec) {
        const int raison = echec.code().value();
        if (!lectureSeulePermise || (raison != EACCES && raison != EROFS && raison != EPERM))
            throw;
        return {chemin, ModeFichier::Lecture};
    }
}

void ViderZones(Zones& zones) {
    std::fill(zones.begin(), zones.begin() + kZoneManager, std::string{});
}

} // namespace

void OuvrirJournal(Session& session, const std::filesystem::path& chemin,
                   bool lectureSeulePermise) {
    if (session.journal.Support().EstLeMeme(chemin)) {
        session.cheminJournal = chemin;
        return;
    }
    Journal journal = OuvrirEnEcriture(chemin, lectureSeulePermise);
    if (!journal.Support().Verrouiller())
        throw ErreurVerrou(chemin.string());
    session.journal = std::move(journal);
    session.cheminJournal = chemin;
}

void CompterFiches(Session& session) {
    if (!session.journal.Support().EstLeMeme(session.cheminJournal))
        OuvrirJournal(session, session.cheminJournal, session.LectureSeule());
    session.nbFiches = session.journal.Compter();
    session.prochaineFiche = session.nbFiches + 1;
}

Zones ZonesDeFiche(const QsoRecord& fiche) {
    Zones zones;
    for (const DescriptionChamp& d : kChamps)
        zones[static_cast<std::size_t>(d.champ)] = TexteRogne(fiche, d.champ);
    const std::string info = TexteChamp(fiche, Champ::INFO);
    zones[kZoneInfo] = info;
    zones[kZoneRemarque] = Rogner(Gauche(info, kLargeurDemiInfo));
    zones[kZoneManager] = Rogner(Droite(info, kLargeurDemiInfo));
    return zones;
}

QsoRecord FicheDesZones(const Zones& zones) {
    QsoRecord fiche;
    for (const DescriptionChamp& d : kChamps) {
        const bool info = d.champ == Champ::INFO;
        MettreChamp(fiche, d.champ, zones[info ? kZoneInfo : static_cast<std::size_t>(d.champ)]);
    }
    return fiche;
}

void LireFiche(Session& session, std::int32_t k) {
    session.tampon = session.journal.Lire(k);
    session.zones = ZonesDeFiche(session.tampon);
}

void EcrireFiche(Session& session, std::int32_t k) {
    session.tampon = FicheDesZones(session.zones);
    session.journal.Ecrire(k, session.tampon);
}

void AjouterFiche(Session& session, const QsoRecord& fin) {
    const std::array<QsoRecord, 2> fiches = {FicheDesZones(session.zones), fin};
    session.journal.Ecrire(session.prochaineFiche, fiches);
    session.journal.Support().Synchroniser();
    session.tampon = fin;
    ++session.nbFiches;
    ++session.prochaineFiche;
}

void SupprimerFiche(Session& session, std::int32_t k) {
    Journal& journal = session.journal;
    if (k < session.nbFiches && !Rogner(OctetsChamp(journal.Lire(k), Champ::CSGN)).empty())
        journal.Ecrire(k, QsoRecord{});
    // Blocks of whole records, each written before the next is read: between two writes every
    // record that moves is in the file at least once.
    std::vector<QsoRecord> bloc(kFichesParBloc);
    while (k < session.nbFiches) {
        const auto n = std::min(kFichesParBloc, static_cast<std::size_t>(session.nbFiches - k));
        static_cast<void>(journal.Lire(k + 1, std::span(bloc).first(n)));
        journal.Ecrire(k, std::span<const QsoRecord>(bloc).first(n));
        k += static_cast<std::int32_t>(n);
    }
    session.tampon = FicheFinDeLog(session.monLocator);
    journal.Ecrire(k, session.tampon);
    journal.Support().Synchroniser();
    ViderZones(session.zones);
    --session.nbFiches;
    session.prochaineFiche = session.nbFiches + 1;
}

EtatJournal ExaminerJournal(const Session& session) {
    const Journal& journal = session.journal;
    const auto taille = journal.Support().Taille();
    return {EstFinDeLog(journal.Lire(session.nbFiches + 1)),
            taille % static_cast<std::int64_t>(kTailleFiche) == 0};
}

} // namespace orvalis
