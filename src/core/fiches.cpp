#include "core/fiches.h"

#include "core/texte.h"

#include <algorithm>
#include <cerrno>

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
        zones[NumeroZone(d.champ)] = TexteRogne(fiche, d.champ);
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
        MettreChamp(fiche, d.champ, zones[info ? kZoneInfo : NumeroZone(d.champ)]);
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
    Journal& journal = session.journal;
    const std::int32_t k = session.prochaineFiche;
    // Room first, behind the end of the log, where nothing counts: then both records replace
    // bytes that are there, in one piece.
    if (!EstFinDeLog(journal.Lire(k)))
        journal.Ecrire(k, fin);
    if (journal.Support().Taille() < PositionFiche(k + 2))
        journal.Ecrire(k + 1, fin);
    const std::array<QsoRecord, 2> fiches = {FicheDesZones(session.zones), fin};
    journal.Ecrire(k, fiches);
    journal.Support().Synchroniser();
    session.tampon = fin;
    ++session.nbFiches;
    ++session.prochaineFiche;
}

namespace {

// Moves records `k` + 1 to `derniere` down one place and the blank record `k` behind them, in
// pieces that are replaced whole: at every instant the file holds each record exactly once.
void DescendreFiches(Journal& journal, std::int32_t k, std::int32_t derniere) {
    if (journal.Support().Taille() < PositionFiche(derniere + 1))
        journal.Ecrire(derniere, journal.Lire(derniere));
    EcritureEntiere ecriture(journal.Support(), PositionFiche(derniere + 1));
    LecteurFiches lecteur(journal); // of records that are not moved yet
    std::array<QsoRecord, kFichesParPiece> piece;
    while (k < derniere) {
        const auto n = std::min(kFichesParPiece - 1, static_cast<std::size_t>(derniere - k));
        const std::int32_t debut = k;
        for (std::size_t i = 0; i < n; ++i)
            piece[i] = lecteur.Lire(++k);
        piece[n] = QsoRecord{};
        ecriture.Poser(PositionFiche(debut), OctetsFiches(std::span(piece).first(n + 1)));
    }
}

} // namespace

void SupprimerFiche(Session& session, std::int32_t k) {
    Journal& journal = session.journal;
    const std::int32_t derniere = session.nbFiches;
    if (k < derniere) {
        if (!Rogner(OctetsChamp(journal.Lire(k), Champ::CSGN)).empty())
            journal.Ecrire(k, QsoRecord{});
        DescendreFiches(journal, k, derniere);
    }
    session.tampon = FicheFinDeLog(session.monLocator);
    journal.Ecrire(derniere, session.tampon);
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
