#include "compagnons/db_orvalis/bilan_dessin.h"

#include "core/texte.h"

#include <algorithm>
#include <array>
#include <map>
#include <vector>

namespace orvalis {
namespace {

constexpr std::string_view kPolice = "Arial";
constexpr Style kGris{9, false, Encre::Gris};
constexpr Style kPetitGris{8, false, Encre::Gris};

std::string JourLong(Jour jour) {
    constexpr std::array<std::string_view, 12> kMois = {
        "janvier", "février", "mars",      "avril",   "mai",      "juin",
        "juillet", "août",    "septembre", "octobre", "novembre", "décembre"};
    const auto j = static_cast<unsigned>(jour.day());
    return (j == 1 ? "1er" : std::to_string(j)) + " " +
           std::string{kMois[static_cast<unsigned>(jour.month()) - 1]} + " " +
           std::to_string(static_cast<int>(jour.year()));
}

std::string JourCourt(Jour jour) {
    const std::string iso = EcrireJourIso(jour);
    return iso.substr(8) + "/" + iso.substr(5, 2) + "/" + iso.substr(0, 4);
}

void DessinerChiffres(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan) {
    struct Chiffre {
        std::size_t nombre;
        std::string_view un;
        std::string_view plusieurs;
    };
    const std::array<Chiffre, 5> chiffres = {{
        {bilan.contacts, "contact", "contacts"},
        {bilan.stations, "station", "stations"},
        {bilan.departementsContactes, "département", "départements"},
        {bilan.carres.size(), "carré", "carrés"},
        {bilan.Sienne(EtatQsl::Faite), "carte reçue", "cartes reçues"},
    }};
    const int pas = cadre.largeur / static_cast<int>(chiffres.size());
    int x = cadre.x;
    for (const auto& [nombre, un, plusieurs] : chiffres) {
        Remplir(imprimante, {x, cadre.y, pas - 200, 40}, Encre::Forte);
        EcrireTexte(imprimante, x, cadre.y + 120, EcrireNombre(nombre), {22, true, Encre::Forte});
        EcrireTexte(imprimante, x, cadre.y + 680, Accorder(nombre, un, plusieurs), kGris);
        x += pas;
    }
}

void DessinerAnnees(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan) {
    std::vector<Valeur> valeurs;
    for (const CompteAnnee& compte : bilan.annees) {
        // Years without a contact are columns too.
        while (!valeurs.empty() && ValeurNumerique(valeurs.back().nom) + 1 < compte.annee)
            valeurs.push_back({std::to_string(ValeurNumerique(valeurs.back().nom) + 1), 0});
        valeurs.push_back({std::to_string(compte.annee), compte.contacts});
    }
    DessinerColonnes(imprimante, cadre, valeurs);
}

void DessinerMois(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan) {
    constexpr std::array<std::string_view, 12> kMois = {
        "janv", "févr", "mars", "avr", "mai", "juin", "juil", "août", "sept", "oct", "nov", "déc"};
    std::vector<Valeur> valeurs;
    for (std::size_t i = 0; i < kMois.size(); ++i)
        valeurs.push_back({std::string{kMois[i]}, bilan.mois[i]});
    DessinerColonnes(imprimante, cadre, valeurs);
}

// As many bars as there is room for: what is least goes together into the last but one, and what
// bears no name is the last.
std::vector<Valeur> Barres(const std::vector<ComptePar>& comptes, std::size_t sansNom,
                           const Cadre& cadre, std::string_view nomSans) {
    const std::size_t place = NbBarres(cadre) - (sansNom > 0 ? 1 : 0);
    std::vector<std::size_t> rangs(comptes.size());
    for (std::size_t i = 0; i < rangs.size(); ++i)
        rangs[i] = i;
    std::vector<Valeur> valeurs;
    std::size_t autres = 0;
    if (comptes.size() > place) {
        std::stable_sort(rangs.begin(), rangs.end(), [&](std::size_t a, std::size_t b) {
            return comptes[a].contacts > comptes[b].contacts;
        });
        for (std::size_t i = place - 1; i < rangs.size(); ++i)
            autres += comptes[rangs[i]].contacts;
        rangs.resize(place - 1);
        std::sort(rangs.begin(), rangs.end());
    }
    valeurs.reserve(rangs.size() + 2); // with the others and those without a name
    for (const std::size_t i : rangs)
        valeurs.push_back({std::string{comptes[i].nom}, comptes[i].contacts});
    if (autres > 0)
        valeurs.push_back({"autres", autres});
    if (sansNom > 0)
        valeurs.push_back({std::string{nomSans}, sansNom});
    return valeurs;
}

void DessinerBandes(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan) {
    DessinerBarres(imprimante, cadre, Barres(bilan.bandes, bilan.sansBande, cadre, "sans bande"));
}

void DessinerModes(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan) {
    DessinerBarres(imprimante, cadre, Barres(bilan.modes, bilan.sansMode, cadre, "sans mode"));
}

void DessinerQsl(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan) {
    const std::array<Valeur, 7> valeurs = {{
        {"à envoyer", bilan.Mienne(EtatQsl::Rien)},
        {"en cours", bilan.Mienne(EtatQsl::EnCours)},
        {"envoyées", bilan.Mienne(EtatQsl::Faite)},
        {"pas d'envoi", bilan.Mienne(EtatQsl::Non)},
        {"reçues", bilan.Sienne(EtatQsl::Faite)},
        {"sans réponse", bilan.aRepondre},
        {"illisibles", bilan.Mienne(EtatQsl::Illisible) + bilan.Sienne(EtatQsl::Illisible)},
    }};
    DessinerBarres(imprimante, cadre, valeurs);
}

void DessinerLointains(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan) {
    constexpr int kLigne = 330;
    constexpr Style kStation{9, true};
    constexpr std::array<int, 5> kX = {340, 500, 2700, 3700, 6200}; // rank and distance end there
    constexpr int kBarre = 6400;
    constexpr std::array<std::string_view, 5> kTetes = {"", "Station", "Carré", "Date", "Distance"};
    if (bilan.lointains.empty()) {
        EcrireTexte(imprimante, cadre.x, cadre.y, "Aucun contact n'a de distance.", kGris);
        return;
    }
    for (std::size_t i = 1; i < kTetes.size(); ++i)
        EcrireTexte(imprimante, cadre.x + kX[i], cadre.y, kTetes[i], kPetitGris,
                    i == 4 ? Cote::Droite : Cote::Gauche);
    int y = cadre.y + kLigne - 60;
    std::size_t rang = 0;
    for (const Lointain& l : bilan.lointains) {
        Remplir(imprimante, {cadre.x, y - 30, cadre.largeur, 8}, Encre::Trait);
        const auto ecrire = [&](std::size_t colonne, const std::string& texte, Style style) {
            EcrireTexte(imprimante, cadre.x + kX[colonne], y + 30, texte, style,
                        colonne == 0 || colonne == 4 ? Cote::Droite : Cote::Gauche);
        };
        ecrire(0, std::to_string(++rang), kGris);
        ecrire(1, Tenir(imprimante, l.indicatif, kX[2] - kX[1] - 60, kStation), kStation);
        ecrire(2, l.carre, {});
        ecrire(3, l.date ? JourCourt(*l.date) : "illisible", {});
        ecrire(4, l.distance, {});
        const double part = l.km / bilan.lointains.front().km;
        Remplir(imprimante,
                {cadre.x + kBarre, y + 50, static_cast<int>(part * (cadre.largeur - kBarre)), 160},
                Encre::Pale);
        y += kLigne;
    }
}

// The squares by their field, the two letters they begin with.
void DessinerCarres(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan) {
    std::map<std::string_view, std::size_t> champs;
    for (const BilanCarre& carre : bilan.carres)
        ++champs[std::string_view{carre.carre}.substr(0, 2)];
    std::vector<ComptePar> comptes;
    comptes.reserve(champs.size());
    for (const auto& [champ, nombre] : champs)
        comptes.push_back({champ, nombre});
    std::stable_sort(comptes.begin(), comptes.end(), [](const ComptePar& a, const ComptePar& b) {
        return a.contacts > b.contacts;
    });
    const std::size_t n = bilan.carres.size();
    EcrireTexte(
        imprimante, cadre.x, cadre.y,
        n == 0
            ? "Aucun contact n'a de carré."
            : EcrireNombre(n) + std::string{Accorder(n, " carré, dont ", " carrés, dont ")} +
                  EcrireNombre(bilan.carresConfirmes) +
                  std::string{Accorder(bilan.carresConfirmes, " confirmé\u00A0; par champ\u00A0:",
                                       " confirmés\u00A0; par champ\u00A0:")},
        kGris);
    const Cadre barres{cadre.x, cadre.y + kHauteurBarre, cadre.largeur,
                       cadre.hauteur - kHauteurBarre};
    DessinerBarres(imprimante, barres, Barres(comptes, 0, barres, ""));
}

void DessinerDates(Imprimante& imprimante, const Cadre& cadre, const BilanCahier& bilan) {
    const std::size_t n = bilan.datesIllisibles.size();
    if (n == 0) {
        EcrireTexte(imprimante, cadre.x, cadre.y, "Toutes les dates sont lisibles.", kGris);
        return;
    }
    EcrireTexte(imprimante, cadre.x, cadre.y,
                EcrireNombre(n) + std::string{Accorder(n, " contact n'a", " contacts n'ont")} +
                    " pas de date lisible\u00A0:",
                kGris);
    const std::size_t lignes = NbBarres(cadre) - 1;
    std::size_t i = 0;
    for (std::size_t ligne = 1; ligne <= lignes && i < n; ++ligne) {
        std::string texte;
        for (; i < n; ++i) {
            std::string suite = texte + (texte.empty() ? "n°\u00A0" : ", ") +
                                std::to_string(bilan.datesIllisibles[i]);
            const bool derniere = ligne == lignes && i + 1 < n;
            if (Largeur(imprimante, suite + (derniere ? ", …" : "")) > cadre.largeur)
                break;
            texte = std::move(suite);
        }
        if (ligne == lignes && i < n)
            texte += ", …";
        EcrireTexte(imprimante, cadre.x, cadre.y + static_cast<int>(ligne) * kHauteurBarre, texte);
    }
}

constexpr int kGauche = 300;
constexpr int kLargeur = 10900;
constexpr int kMoitie = 5250;
constexpr int kMilieu = kGauche + kLargeur - kMoitie;
constexpr int kHautTitre = 400; // of a part above it

constexpr std::array<PartieBilan, 10> kParties = {{
    {"", 1, {kGauche, 1500, kLargeur, 1000}, DessinerChiffres},
    {"Contacts par année", 1, {kGauche, 3200, kLargeur, 2900}, DessinerAnnees},
    {"Contacts par mois", 1, {kGauche, 6850, kMoitie, 2400}, DessinerMois},
    {"Cartes QSL", 1, {kMilieu, 6850, kMoitie, 7 * kHauteurBarre + 50}, DessinerQsl},
    {"Contacts par bande", 1, {kGauche, 10000, kMoitie, 16 * kHauteurBarre}, DessinerBandes},
    {"Contacts par mode", 1, {kMilieu, 10000, kMoitie, 16 * kHauteurBarre}, DessinerModes},
    {"Départements", 2, {kGauche, 800, kLargeur, 7300}, DessinerDepartements},
    {"Les dix stations les plus lointaines", 2, {kGauche, 8800, kLargeur, 3600}, DessinerLointains},
    {"Carrés", 2, {kGauche, 13100, kMoitie, 8 * kHauteurBarre}, DessinerCarres},
    {"Dates illisibles", 2, {kMilieu, 13100, kMoitie, 8 * kHauteurBarre}, DessinerDates},
}};

} // namespace

std::span<const PartieBilan> PartiesBilan() {
    return kParties;
}

std::string TitreBilan(const FeuilleBilan& feuille) {
    return feuille.indicatif.empty() ? "Bilan du cahier"
                                     : "Bilan du cahier de " + feuille.indicatif;
}

std::string SousTitreBilan(const FeuilleBilan& feuille) {
    std::string texte = feuille.cahier;
    if (feuille.bilan.premier)
        texte +=
            ", du " + JourLong(*feuille.bilan.premier) + " au " + JourLong(*feuille.bilan.dernier);
    return texte + " – fait le " + JourLong(feuille.faitLe);
}

void DessinerPartie(Imprimante& imprimante, const PartieBilan& partie, const BilanCahier& bilan) {
    imprimante.ChoisirPolice(kPolice);
    partie.dessiner(imprimante, partie.cadre, bilan);
}

void ImprimerBilan(Imprimante& imprimante, const FeuilleBilan& feuille) {
    imprimante.ChoisirPapier(Papier::A4, Orientation::Portrait);
    imprimante.ChoisirPolice(kPolice);
    EcrireTexte(imprimante, kGauche, 300, TitreBilan(feuille), {20, true});
    EcrireTexte(imprimante, kGauche, 820, SousTitreBilan(feuille), kGris);
    int page = 1;
    for (const PartieBilan& partie : kParties) {
        if (partie.page > page) {
            imprimante.TournerPage();
            page = partie.page;
        }
        EcrireTexte(imprimante, partie.cadre.x, partie.cadre.y - kHautTitre, partie.titre,
                    {12, true});
        DessinerPartie(imprimante, partie, feuille.bilan);
    }
    imprimante.TerminerDocument();
}

} // namespace orvalis
