#include "core/cahier.h"

#include "core/texte.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace orvalis {
namespace {

FichierFiches OuvrirEnEcriture(const std::filesystem::path& chemin, bool lectureSeulePermise) {
    try {
        return {chemin, ModeFichier::LectureEcriture};
    } catch (const Erreur& echec) {
        const int raison = echec.code().value();
        if (!lectureSeulePermise || (raison != EACCES && raison != EROFS && raison != EPERM))
            throw;
        return {chemin, ModeFichier::Lecture};
    }
}

} // namespace

void OuvrirCahier(Cahier& cahier, const std::filesystem::path& chemin, bool lectureSeulePermise) {
    if (cahier.fichier.Support().EstLeMeme(chemin)) {
        cahier.chemin = chemin;
        return;
    }
    try {
        FichierFiches fichier = OuvrirEnEcriture(chemin, lectureSeulePermise);
        if (!fichier.Support().Verrouiller())
            throw Erreur(NatureErreur::DejaOuvert, chemin);
        fichier.Support().DevenirLeCahier();
        cahier.fichier = std::move(fichier);
    } catch (Erreur& echec) {
        if (chemin == cahier.chemin)
            echec.ImputerAuCahier();
        throw;
    }
    cahier.chemin = chemin;
}

void CompterFiches(Cahier& cahier) {
    if (!cahier.fichier.Support().EstLeMeme(cahier.chemin))
        OuvrirCahier(cahier, cahier.chemin, cahier.lectureSeule);
    cahier.nbFiches = cahier.fichier.Compter();
}

QsoRecord FicheDuCahier(const Cahier& cahier, NumeroFiche k) {
    return cahier.fichier.Lire(k);
}

void CorrigerFiche(Cahier& cahier, NumeroFiche k, const QsoRecord& fiche) {
    cahier.fichier.Ecrire(k, fiche);
}

void AjouterFiche(Cahier& cahier, const QsoRecord& contact, const QsoRecord& fin) {
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
    ++cahier.nbFiches;
}

namespace {

// Moves records `k` + 1 to `derniere` down one place and the blank record `k` behind them, in
// pieces that are replaced whole: at every instant the file holds each record exactly once.
void DescendreFiches(FichierFiches& fichier, NumeroFiche k, NumeroFiche derniere) {
    if (fichier.Support().Taille() < PositionFiche(derniere + 1))
        fichier.Ecrire(derniere, fichier.Lire(derniere));
    EcritureEntiere ecriture(fichier.Support(), PositionFiche(derniere + 1));
    LecteurFiches lecteur(fichier); // of records that are not moved yet
    std::array<QsoRecord, kFichesParPiece> piece;
    while (k < derniere) {
        const auto n = std::min(kFichesParPiece - 1, static_cast<std::size_t>(derniere - k));
        const NumeroFiche debut = k;
        for (std::size_t i = 0; i < n; ++i)
            piece[i] = lecteur.Lire(++k);
        piece[n] = QsoRecord{};
        ecriture.Poser(PositionFiche(debut), OctetsFiches(std::span(piece).first(n + 1)));
    }
}

} // namespace

void SupprimerFiche(Cahier& cahier, NumeroFiche k, std::string_view monLocator) {
    FichierFiches& fichier = cahier.fichier;
    const NumeroFiche derniere = cahier.Derniere();
    if (k < derniere) {
        if (!Rogner(OctetsChamp(fichier.Lire(k), Champ::CSGN)).empty())
            fichier.Ecrire(k, QsoRecord{});
        DescendreFiches(fichier, k, derniere);
    }
    fichier.Ecrire(derniere, FicheFinDeLog(monLocator));
    SynchroniserCahier(cahier);
    --cahier.nbFiches;
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
