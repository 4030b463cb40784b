#include "print/page_cahier.h"

#include "core/page_texte.h"
#include "core/texte.h"

#include <algorithm>
#include <array>
#include <vector>

namespace orvalis {
namespace {

constexpr int kPoliceTitre = 14;
constexpr int kPoliceTete = 10;
constexpr int kPoliceLigne = 8;

constexpr int kGauche = 120;
constexpr int kDroite = 11400;
constexpr int kHaut = 1080;
constexpr int kHautFiches = 1800;
constexpr int kHauteurRangee = 480;
constexpr int kBas = kHautFiches + kFichesParPage * kHauteurRangee;
static_assert(kBas == 13800);

struct Trait {
    int x1, y1, x2, y2;
};

constexpr Trait Vertical(int x, int haut = kHaut) {
    return {x, haut, x, kBas};
}
constexpr Trait SousTete(int x1, int x2) {
    return {x1, 1440, x2, 1440};
}

// Rule across a row; it leaves the frame's own left side free.
constexpr Trait Rangee(int y) {
    return {kGauche + 10, y, kDroite, y};
}

// Column rules from left to right; a rule between two halves of a column starts below its head.
constexpr std::array kTraits = {
    Vertical(700),        Vertical(1350),         SousTete(1400, 2200),  Vertical(1800, 1560),
    Vertical(2250),       Vertical(3000),         Vertical(4900),        SousTete(5000, 5850),
    Vertical(5450, 1560), Vertical(5950),         Vertical(6500),        Vertical(8550),
    Vertical(10050),      SousTete(10150, 11300), Vertical(10750, 1560), Rangee(kHautFiches),
};

struct Tete {
    int x, y;
    std::string_view texte;
    int taille = kPoliceTete;
    bool gras = false;
};

constexpr std::array kTetes = {
    Tete{320, 1100, "Nr"},     Tete{200, 1480, "QSO"},
    Tete{750, 1340, "DATE"},   Tete{1450, 1100, "HEURE"},
    Tete{1400, 1480, "Déb"},   Tete{1900, 1480, "Fin"},
    Tete{2400, 1340, "QRG"},   Tete{3550, 1340, "INDICATIF", kPoliceTete, true},
    Tete{5200, 1100, "R S T"}, Tete{5050, 1480, "Lui"},
    Tete{5550, 1480, "Moi"},   Tete{6050, 1340, "Mode", kPoliceLigne},
    Tete{7300, 1340, "QTH"},   Tete{9100, 1340, "NOM"},
    Tete{10500, 1100, "QSL"},  Tete{10300, 1480, "Ma"},
    Tete{10950, 1480, "Sa"},
};

constexpr int kXNumero = 160;
constexpr std::size_t kIndicatifCourt = 10; // longest callsign that keeps the larger font

// Where the columns of the page begin, after that of the number.
constexpr std::array kXColonnes = {720,  1380, 1830, 2300, 3100,  5000,
                                   5500, 6000, 6600, 8600, 10100, 10800};
static_assert(kXColonnes.size() + 1 == kColonnesPage.size());

void Tracer(Imprimante& imprimante, const Trait& trait) {
    imprimante.TracerLigne(trait.x1, trait.y1, trait.x2, trait.y2);
}

void MettrePolice(Imprimante& imprimante, int taille, bool gras) {
    imprimante.ChoisirTaille(taille);
    imprimante.ChoisirGras(gras);
}

// Contacts of the page on show, up to the end of the log.
std::vector<QsoRecord> LirePage(const Cahier& cahier, NumeroFiche premiere) {
    const std::int32_t reste = cahier.Prochaine() - premiere;
    std::vector<QsoRecord> fiches(static_cast<std::size_t>(std::clamp(reste, 0, kFichesParPage)));
    static_cast<void>(cahier.fichier.Lire(premiere, fiches));
    // Kept on purpose, for the printed pages: any callsign that begins with "\" ends the page,
    // where the count of the log asks for "\" alone.
    const auto fin = std::find_if(fiches.begin(), fiches.end(), [](const QsoRecord& fiche) {
        return TexteRogne(fiche, Champ::CSGN).starts_with('\\');
    });
    fiches.erase(fin, fiches.end());
    return fiches;
}

void ImprimerTitre(Imprimante& imprimante, std::string_view station) {
    imprimante.ChoisirPapier(Papier::A4, Orientation::Portrait);
    imprimante.ChoisirPolice("MS sans Serif");
    MettrePolice(imprimante, kPoliceTitre, true);
    imprimante.EcrireEn(400, 400, "Cahier de Trafic de ");
    imprimante.TracerRectangle(2950, 340, 4500, 720);
    imprimante.EcrireEn(3050, 390, station);
}

void ImprimerColonnes(Imprimante& imprimante) {
    imprimante.TracerRectangle(kGauche, kHaut, kDroite, kBas);
    for (const Trait& trait : kTraits)
        Tracer(imprimante, trait);
    for (const Tete& tete : kTetes) {
        MettrePolice(imprimante, tete.taille, tete.gras);
        imprimante.EcrireEn(tete.x, tete.y, tete.texte);
    }
}

void ImprimerRangee(Imprimante& imprimante, int y, NumeroFiche k, const QsoRecord& fiche) {
    const CellulesPage cellules = CellulesDeFiche(k, fiche);
    const bool court = Longueur(cellules[kColonneIndicatif]) <= kIndicatifCourt;
    MettrePolice(imprimante, kPoliceLigne, false);
    imprimante.EcrireEn(kXNumero, y, NumeroImprime(k));
    for (std::size_t i = 1; i < cellules.size(); ++i) {
        if (i == kColonneIndicatif)
            MettrePolice(imprimante, court ? kPoliceTete : kPoliceLigne, true);
        imprimante.EcrireEn(kXColonnes[i - 1], y, Rogner(cellules[i]));
        if (i == kColonneIndicatif)
            MettrePolice(imprimante, kPoliceLigne, false);
    }
}

void ImprimerFiches(Imprimante& imprimante, NumeroFiche premiere,
                    std::span<const QsoRecord> fiches) {
    constexpr int kSousTrait = 120;
    int y = kHautFiches;
    NumeroFiche k = premiere;
    for (const QsoRecord& fiche : fiches) {
        ImprimerRangee(imprimante, y + kSousTrait, k, fiche);
        ++k;
        y += kHauteurRangee;
        Tracer(imprimante, Rangee(y));
    }
}

void ImprimerRangeesVierges(Imprimante& imprimante) {
    for (int y = kHautFiches + kHauteurRangee; y <= kBas; y += kHauteurRangee)
        Tracer(imprimante, Rangee(y));
}

} // namespace

std::string NumeroImprime(NumeroFiche k) {
    return std::string{Droite("00000" + std::to_string(k.Valeur()), 6)};
}

void ImprimerPage(Imprimante& imprimante, const Cahier& cahier, const Station& station,
                  const PageAffichee& page, NumeroFiche premiereFiche) {
    const bool remplie = premiereFiche > kAucuneFiche;
    const std::vector<QsoRecord> fiches =
        remplie ? LirePage(cahier, page.premiere) : std::vector<QsoRecord>{};
    ImprimerTitre(imprimante, station.indicatif);
    ImprimerColonnes(imprimante);
    if (remplie)
        ImprimerFiches(imprimante, page.premiere, fiches);
    else
        ImprimerRangeesVierges(imprimante);
    imprimante.Placer(8900, 14100);
    imprimante.Ecrire("Page n° ", remplie ? Suite::MemeLigne : Suite::NouvelleLigne);
    if (remplie)
        imprimante.Ecrire(std::to_string(page.numero), Suite::NouvelleLigne);
    imprimante.TerminerDocument();
}

} // namespace orvalis
