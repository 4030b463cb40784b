#include "core/cahier.h"

#include "core/texte.h"

#include <algorithm>
#include <array>

namespace orvalis {
namespace {

FichierFiches OuvrirEnEcriture(const std::filesystem::path& chemin, bool lectureSeulePermise) {
    try {
        return {chemin, ModeFichier::LectureEcriture};
    } catch (const Erreur& echec) {
        const std::error_code& raison = echec.code();
        if (!lectureSeulePermise ||
            (raison != std::errc::permission_denied && raison != std::errc::read_only_file_system &&
             raison != std::errc::operation_not_permitted))
            throw;
        return {chemin, ModeFichier::Lecture};
    }
}

FichierFiches OuvrirVerrouille(const std::filesystem::path& chemin, bool lectureSeulePermise) {
    FichierFiches fichier = OuvrirEnEcriture(chemin, lectureSeulePermise);
    if (!fichier.Support().Verrouiller())
        throw Erreur(NatureErreur::DejaOuvert, chemin);
    return fichier;
}

} // namespace

void ExigerCahier(const Cahier& cahier) {
    const Fichier& ouvert = cahier.fichier.Support();
    if (!ouvert.EstOuvert() || ouvert.EstLeMeme(cahier.chemin))
        return;
    try {
        static_cast<void>(OuvrirVerrouille(cahier.chemin, cahier.lectureSeule));
    } catch (const Erreur& echec) {
        throw CahierPerdu(echec);
    }
}

void OuvrirCahier(Cahier& cahier, const std::filesystem::path& chemin, bool lectureSeulePermise) {
    const Fichier& ouvert = cahier.fichier.Support();
    if (ouvert.EstLeMeme(chemin)) {
        cahier.chemin = chemin;
        return;
    }
    try {
        FichierFiches fichier = OuvrirVerrouille(chemin, lectureSeulePermise);
        fichier.Support().DevenirLeCahier();
        cahier.fichier = std::move(fichier);
    } catch (const Erreur& echec) {
        if (ouvert.EstOuvert() && chemin == cahier.chemin)
            throw CahierPerdu(echec);
        throw;
    }
    cahier.chemin = chemin;
}

void CompterFiches(Cahier& cahier) {
    try {
        OuvrirCahier(cahier, cahier.chemin, cahier.lectureSeule);
    } catch (const CahierPerdu&) { // NOLINT(bugprone-empty-catch)
        // The file that is still open keeps every contact; who writes to it says so.
    }
    cahier.nbFiches = cahier.fichier.Compter(cahier.indicatifs);
}

bool EstTelQueCompte(const Cahier& cahier) {
    if (!cahier.fichier.Support().EstLeMeme(cahier.chemin))
        return false;
    // A deletion by another program leaves end-of-log records behind the one that counts.
    std::array<QsoRecord, 2> bout;
    const std::size_t contacts = cahier.nbFiches == 0 ? 0 : 1;
    const std::size_t lues =
        cahier.fichier.Lire(cahier.Prochaine() - static_cast<std::int32_t>(contacts), bout);
    const bool dernier = contacts == 0 || (lues >= contacts && !EstFinDeLog(bout[0]));
    return dernier && (lues == contacts || EstFinDeLog(bout[contacts]));
}

void VerifierCahier(Cahier& cahier) {
    if (EstTelQueCompte(cahier))
        return;
    OuvrirCahier(cahier, cahier.chemin, cahier.lectureSeule);
    cahier.nbFiches = cahier.fichier.Compter(cahier.indicatifs);
}

bool VerifierFiche(Cahier& cahier, NumeroFiche k, const QsoRecord& montree) {
    VerifierCahier(cahier);
    return cahier.Contient(k) && FicheDuCahier(cahier, k) == montree;
}

QsoRecord FicheDuCahier(const Cahier& cahier, NumeroFiche k) {
    return cahier.fichier.Lire(k);
}

bool CorrigerFiche(Cahier& cahier, NumeroFiche k, const QsoRecord& montree,
                   const QsoRecord& fiche) {
    if (!VerifierFiche(cahier, k, montree))
        return false;
    cahier.fichier.Ecrire(k, fiche);
    cahier.indicatifs.at(static_cast<std::size_t>(k - kPremiereFiche)) = IndicatifDe(fiche);
    return true;
}

void AjouterFiche(Cahier& cahier, const QsoRecord& contact, const QsoRecord& fin) {
    VerifierCahier(cahier);
    AllongerCahier(cahier, [&] {
        FichierFiches& fichier = cahier.fichier;
        const NumeroFiche k = cahier.Prochaine();
        // Room first, behind the end of the log, where nothing counts: then both records replace
        // bytes that are there, in one piece.
        if (!EstFinDeLog(fichier.Lire(k)))
            fichier.Ecrire(k, fin);
        if (fichier.Support().Taille() < PositionFiche(k + 2))
            fichier.Ecrire(k + 1, fin);
        fichier.Ecrire(k, std::array{contact, fin});
        SynchroniserCahier(cahier);
    });
    cahier.indicatifs.push_back(IndicatifDe(contact));
    ++cahier.nbFiches;
}

namespace {

// Runs `reparer` after a failure, as far as the disk lets it: what the operator is told of is what
// failed first.
void Reparer(const std::function<void()>& reparer) {
    try {
        reparer();
    } catch (...) { // NOLINT(bugprone-empty-catch)
    }
}

} // namespace

void AllongerCahier(Cahier& cahier, const std::function<void()>& ecrire) {
    FichierFiches& fichier = cahier.fichier;
    const NumeroFiche k = cahier.Prochaine();
    const QsoRecord fin = fichier.Lire(k);
    const std::int64_t taille = fichier.Support().Taille();
    try {
        ecrire();
    } catch (...) { // memory may run out too
        Reparer([&] {
            if (PositionFiche(k) < taille)
                fichier.Ecrire(k, fin);
            SynchroniserCahier(cahier);
            if (fichier.Support().Taille() > taille)
                fichier.Support().Raccourcir(taille);
            SynchroniserCahier(cahier);
        });
        throw;
    }
}

namespace {

// A deletion under way: every contact but the deleted one is in the file exactly once, and a blank
// record in the place of the deleted one.
struct Suppression {
    FichierFiches& fichier;
    NumeroFiche blanche; // where the blank record is
    NumeroFiche derniere;
    QsoRecord supprimee;
    // What lies from `blanche` on before the piece that is being written, and room for the blank
    // record behind it: the piece is the same but for the first.
    std::array<QsoRecord, kFichesParPiece + 1> fiches = {};
    std::size_t nombre = 1;

    // Blanks the contact, then moves the records behind it down one place and the blank one behind
    // them, in pieces that are replaced whole.
    void Descendre() {
        if (blanche == derniere)
            return;
        if (!Rogner(OctetsChamp(supprimee, Champ::CSGN)).empty())
            fichier.Ecrire(blanche, QsoRecord{});
        if (fichier.Support().Taille() < PositionFiche(derniere + 1))
            fichier.Ecrire(derniere, fichier.Lire(derniere));
        EcritureEntiere ecriture(fichier.Support(), PositionFiche(derniere + 1),
                                 PositionFiche(blanche));
        LecteurFiches lecteur(fichier); // of records that are not moved yet
        fiches[0] = fichier.Lire(blanche);
        while (blanche < derniere) {
            const auto n =
                std::min(kFichesParPiece - 1, static_cast<std::size_t>(derniere - blanche));
            for (std::size_t i = 1; i <= n; ++i)
                fiches[i] = lecteur.Lire(blanche + static_cast<std::int32_t>(i));
            fiches[n + 1] = QsoRecord{};
            nombre = n + 1;
            ecriture.Poser(PositionFiche(blanche),
                           OctetsFiches(std::span(fiches).subspan(1, nombre)),
                           OctetsFiches(std::span(fiches).first(nombre)));
            blanche += static_cast<std::int32_t>(n);
            fiches[0] = QsoRecord{};
            nombre = 1;
        }
    }

    // The deleted contact back in the place of the blank one, and behind it what a piece that was
    // cut short may have overwritten.
    void Revenir() {
        fiches[0] = supprimee;
        fichier.Ecrire(blanche, std::span(fiches).first(nombre));
        fichier.Support().Synchroniser();
    }
};

} // namespace

bool SupprimerFiche(Cahier& cahier, NumeroFiche k, const QsoRecord& montree,
                    std::string_view monLocator) {
    if (!VerifierFiche(cahier, k, montree))
        return false;
    const NumeroFiche derniere = cahier.Derniere();
    Suppression suppression{cahier.fichier, k, derniere, montree};
    try {
        suppression.Descendre();
        cahier.fichier.Ecrire(derniere, FicheFinDeLog(monLocator));
        SynchroniserCahier(cahier);
    } catch (...) { // memory may run out too
        Reparer([&] { suppression.Revenir(); });
        throw;
    }
    cahier.indicatifs.erase(cahier.indicatifs.begin() + (k - kPremiereFiche));
    --cahier.nbFiches;
    return true;
}

void SynchroniserCahier(Cahier& cahier) {
    cahier.fichier.Support().Synchroniser();
}

EtatCahier ExaminerCahier(const Cahier& cahier) {
    const FichierFiches& fichier = cahier.fichier;
    const auto taille = fichier.Support().Taille();
    return {EstFinDeLog(fichier.Lire(cahier.Prochaine())),
            taille % static_cast<std::int64_t>(kTailleFiche) == 0};
}

} // namespace orvalis
