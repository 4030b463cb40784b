#include "ui/carte/carte.h"

#include "core/departements.h"
#include "core/texte.h"
#include "geo/locator.h"

#include <algorithm>

namespace orvalis {

std::optional<Rvb> FondDe(Couleur couleur) {
    static constexpr std::array<std::optional<Rvb>, 5> kFonds = {{
        std::nullopt,
        Rvb{224, 224, 224},
        Rvb{255, 255, 192},
        Rvb{255, 192, 192},
        Rvb{192, 255, 192},
    }};
    return kFonds[static_cast<std::size_t>(couleur) - 1];
}

Carte::Carte() {
    MettreAuRepos(*this);
}

void MontrerTexte(Carte& carte, Boite boite, std::string_view texte) {
    if (carte.Texte(boite) != texte)
        SaisirTexte(carte, boite, texte);
}

void SaisirTexte(Carte& carte, Boite boite, std::string_view texte) {
    carte.boites[Rang(boite)].texte = texte;
    carte.saisie.TexteSaisi = texte;
}

void MontrerZone(Carte& carte, Boite boite) {
    MontrerTexte(carte, boite, carte.zones[boite]);
}

void ColorerZone(Carte& carte, Boite boite, Couleur couleur) {
    carte.boites[Rang(boite)].couleur = couleur;
}

void MettreAuRepos(Carte& carte) {
    for (const DescriptionBoite& d : kBoites)
        ColorerZone(carte, d.boite, CouleurAuRepos(d.boite));
}

void LireFiche(Carte& carte, const Cahier& cahier, NumeroFiche k) {
    carte.tampon = FicheDuCahier(cahier, k);
    carte.zones = ZonesDeFiche(carte.tampon);
    for (const DescriptionBoite& d : kBoites)
        MontrerZone(carte, d.boite);
}

bool EcrireFiche(Carte& carte, Cahier& cahier, NumeroFiche k) {
    const QsoRecord fiche = FicheDesZones(carte.zones);
    if (!CorrigerFiche(cahier, k, carte.tampon, fiche))
        return false;
    carte.tampon = fiche;
    return true;
}

void MontrerLabels(Carte& carte, NumeroFiche k) {
    carte.numero = " Fiche N° " + std::to_string(k.Valeur()) + " ";
    const std::string& ici = carte.zones[Boite::MonLocator];
    const std::string& la = carte.zones[Boite::SonLocator];
    // Two empty locators are equal as well, and show 0 Km.
    TextesDistance mesure{"", ""};
    if (ici == la)
        mesure = {"0 Km", "..."};
    else if (LocatorValide(la))
        mesure = DistanceAzimut(carte.memoireDistance, ici, la);
    carte.distance = Cadrer(mesure.distance, kLargeurDistance);
    carte.azimut = Cadrer(mesure.azimut, kLargeurAzimut);
    carte.departement = NomDepartement(carte.zones[Boite::Departement]);
}

std::optional<int> CapMontre(const Carte& carte) {
    // The texts that say that there is none are blank or "...".
    const bool chiffre = carte.azimut.find_first_of("0123456789") != std::string::npos;
    return chiffre ? CapVrai(carte.memoireDistance) : std::nullopt;
}

bool AzimutTrompeur(const Carte& carte) {
    const std::optional<int> cap = CapMontre(carte);
    if (!cap)
        return false;
    // One counts by the East, the other by the West; both are cut to whole degrees.
    constexpr int kTour = 360;
    const std::string azimut = carte.azimut.substr(carte.azimut.find_first_of("0123456789"));
    const int reste = (*cap + std::stoi(azimut)) % kTour;
    return std::min(reste, kTour - reste) > 1;
}

void ViderCarte(Carte& carte) {
    carte.ficheCourante = kAucuneFiche;
    carte.zones = {};
    for (const DescriptionBoite& d : kBoites)
        MontrerZone(carte, d.boite);
    carte.numero = kNumeroDeCarteVide;
    carte.distance.clear();
    carte.azimut.clear();
    carte.departement.clear();
}

std::string NumeroNouvelleFiche(NumeroFiche k) {
    return " Charger fiche N° " + std::to_string(k.Valeur());
}

} // namespace orvalis
