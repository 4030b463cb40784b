#include "print/etiquette.h"

#include "core/texte.h"

#include <array>
#include <vector>

namespace orvalis {
namespace {

constexpr std::array kXColonnes = {300, 6100};
constexpr int kYPremiereRangee = 400;
constexpr int kPas = 1980;
constexpr int kNbRangees = 8;

constexpr int kPoliceGrande = 10;
constexpr int kPolicePetite = 8;
constexpr std::size_t kEnTeteLong = 47; // characters from which a heading takes the small font

constexpr std::string_view kPoliceEtiquette = "Comic sans MS";
// Kept on purpose, for the printed sheets: spelled with a double r, so that the system's usual
// substitute is taken.
constexpr std::string_view kPoliceValeurs = "Courrier";

constexpr std::array kFilets = {600, 880, 1160};
constexpr int kFiletGauche = 120;
constexpr int kFiletDroit = 5100;

struct Cellule {
    int gauche, droite;
    std::string_view tete;
    int xTete;
    std::string DonneesEtiquette::*valeur;
};

constexpr std::array kCellules = {
    Cellule{120, 1600, "TO RADIO", 380, &DonneesEtiquette::indicatif},
    Cellule{1600, 2300, " DATE", 1680, &DonneesEtiquette::date},
    Cellule{2300, 2810, "UTC", 2380, &DonneesEtiquette::heure},
    Cellule{2810, 3780, " Frequency", 2840, &DonneesEtiquette::frequence},
    Cellule{3780, 4500, "RST", 4010, &DonneesEtiquette::report},
    Cellule{4500, 5100, "Mode", 4600, &DonneesEtiquette::mode},
};
static_assert(kCellules.front().gauche == kFiletGauche && kCellules.back().droite == kFiletDroit);

void RognerDonnees(DonneesEtiquette& donnees) {
    for (std::string* texte :
         {&donnees.indicatif, &donnees.texte1, &donnees.texte2, &donnees.route, &donnees.date,
          &donnees.heure, &donnees.frequence, &donnees.report, &donnees.mode})
        *texte = std::string{Rogner(*texte)};
}

// One label being drawn: the printer with the label's corner as origin.
class Dessin {
  public:
    Dessin(Imprimante& imprimante, OrigineEtiquette origine) : imp_(imprimante), o_(origine) {}

    void Police(std::string_view famille, int taille) {
        imp_.ChoisirPolice(famille);
        imp_.ChoisirTaille(taille);
    }
    void Ecrire(int x, int y, std::string_view texte) { imp_.EcrireEn(o_.x + x, o_.y + y, texte); }
    void Centrer(int gauche, int largeur, int y, std::string_view texte) {
        Ecrire(gauche + (largeur - imp_.LargeurTexte(texte)) / 2, y, texte);
    }
    void Cadre() {
        imp_.TracerRectangle(o_.x, o_.y, o_.x + kLargeurEtiquette, o_.y + kHauteurEtiquette);
    }

    void Tableau() {
        for (const int y : kFilets)
            imp_.TracerLigne(o_.x + kFiletGauche, o_.y + y, o_.x + kFiletDroit, o_.y + y);
        Vertical(kFiletGauche);
        for (const Cellule& cellule : kCellules)
            Vertical(cellule.droite);
        imp_.ChoisirTaille(kPolicePetite);
        for (const Cellule& cellule : kCellules)
            Ecrire(cellule.xTete, 620, cellule.tete);
    }

    void Valeurs(const DonneesEtiquette& donnees) {
        for (const Cellule& cellule : kCellules)
            Centrer(cellule.gauche, cellule.droite - cellule.gauche, 920, donnees.*cellule.valeur);
    }

  private:
    void Vertical(int x) {
        imp_.TracerLigne(o_.x + x, o_.y + kFilets.front(), o_.x + x, o_.y + kFilets.back());
    }

    Imprimante& imp_;
    OrigineEtiquette o_;
};

} // namespace

PositionEtiquette PositionDeEtiquette(Place place) {
    const int numero = place.Valeur();
    return {numero % 2 != 0 ? 1 : 2, (numero + 1) / 2};
}

OrigineEtiquette OrigineDeEtiquette(PositionEtiquette position) {
    const bool surLaFeuille = position.rangee >= 1 && position.rangee <= kNbRangees;
    return {kXColonnes[position.colonne == 1 ? 0 : 1],
            surLaFeuille ? kYPremiereRangee + (position.rangee - 1) * kPas : 0};
}

void ImprimerEtiquette(Imprimante& imprimante, PositionEtiquette position, GenreEtiquette genre,
                       DonneesEtiquette& donnees, std::string_view station, std::string& enTete) {
    const bool remplie = genre == GenreEtiquette::Remplie;
    if (remplie) {
        RognerDonnees(donnees);
        enTete = donnees.texte1 + "  Confirming QSO with  " + donnees.indicatif;
    }

    Dessin dessin{imprimante, OrigineDeEtiquette(position)};
    imprimante.ChoisirGras(true);
    // Kept on purpose, for the printed sheets: the heading of the last filled label decides for a
    // blank one too.
    dessin.Police(kPoliceEtiquette, Longueur(enTete) < kEnTeteLong ? kPoliceGrande : kPolicePetite);
    dessin.Cadre();
    if (remplie) {
        dessin.Centrer(0, kLargeurEtiquette, kBandeEnTete.haut, enTete);
        if (!donnees.texte2.empty())
            dessin.Ecrire(2100, kBandeManager.haut, "Via QSL Manager " + donnees.texte2);
    } else {
        imprimante.ChoisirTaille(kPoliceGrande);
        dessin.Ecrire(200, kBandeEnTete.haut,
                      " " + std::string{station} + "   Confirming QSO with");
    }
    dessin.Tableau();
    dessin.Police(kPoliceValeurs, kPolicePetite);
    if (remplie)
        dessin.Valeurs(donnees);
    dessin.Ecrire(400, 1250, "Pse / Tnx  QSL via  " + (remplie ? donnees.route : std::string{}));
    dessin.Police(kPoliceEtiquette, kPoliceGrande);
    dessin.Ecrire(200, 1460, "TNX for NICE QSO HPE CUAGN ,73's");
}

void ImprimerFeuille(Imprimante& imprimante, std::span<EtiquettePlacee> etiquettes,
                     std::string& enTete) {
    if (etiquettes.empty())
        return;
    imprimante.ChoisirPapier(Papier::A4, Orientation::Portrait);
    for (EtiquettePlacee& e : etiquettes)
        ImprimerEtiquette(imprimante, PositionDeEtiquette(e.place), GenreEtiquette::Remplie,
                          e.donnees, {}, enTete);
    imprimante.TerminerDocument();
}

void ImprimerFeuilleVierge(Imprimante& imprimante, std::string_view station, std::string& enTete) {
    imprimante.ChoisirPapier(Papier::A4, Orientation::Portrait);
    DonneesEtiquette rien;
    for (Place place = kPremierePlace; place <= kDernierePlace; ++place)
        ImprimerEtiquette(imprimante, PositionDeEtiquette(place), GenreEtiquette::Vierge, rien,
                          station, enTete);
    imprimante.TerminerDocument();
}

} // namespace orvalis
