// The card against the bytes of a logbook.
#include "aides.h"
#include "ui/carte/carte.h"

namespace orvalis::aides::carte {

TEST(Carte, UneFicheLueRemplitLesZonesEtLesBoites) {
    const std::string complete = "F6XYZ/P        12/05/0218:3018:4514.250    SSB  59      59+10   "
                                 "SAINT-\xC9TIENNE            JN15EK42 \x8Cuvrard Z\x81     "
                                 "REMARQUE DE 20 CAR            En coursOK      JN18AA";
    const Dossier dossier;
    Cahier cahier = Ouvrir(dossier.Poser("F5ABC.Vek", complete + Fin()));
    Carte carte;
    LireFiche(carte, cahier, kPremiereFiche);
    std::string zones = carte.zones.info + '|';
    for (const DescriptionBoite& d : kBoites) {
        zones += carte.zones[d.boite] + '|';
        EXPECT_EQ(carte.Texte(d.boite), carte.zones[d.boite]);
    }
    EXPECT_EQ(zones, "REMARQUE DE 20 CAR            |F6XYZ/P|12/05/02|18:30|18:45|14.250|SSB|59|"
                     "59+10|SAINT-ÉTIENNE|JN15EK|42|Œuvrard Z\xC2\x81|REMARQUE DE 20|En cours|OK|"
                     "JN18AA|CAR|");
    EXPECT_TRUE(EcrireFiche(carte, cahier, kPremiereFiche));
    EXPECT_EQ(Lire(cahier.chemin), complete + Fin());
    LireFiche(carte, cahier, NumeroFiche{9});
    EXPECT_EQ(carte.zones[Boite::Indicatif] + carte.Texte(Boite::Manager), "");
}

TEST(Carte, UneFicheEcriteEstCoupeeOuCompletee) {
    const Dossier dossier;
    Cahier cahier = Ouvrir(dossier.Poser("F5ABC.Vek", Brute({}) + Contact("X").substr(0, 7)));
    Carte carte;
    LireFiche(carte, cahier, NumeroFiche{2});
    carte.zones = {};
    carte.zones[Boite::Indicatif] = "ABCDEFGHIJKLMNOPQRST";
    carte.zones[Boite::Ville] = "ÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉ漢";
    carte.zones[Boite::Departement] = "7";
    carte.zones.info = "INFO";
    carte.zones[Boite::Remarque] = "ignoree";
    EXPECT_TRUE(EcrireFiche(carte, cahier, NumeroFiche{2}));
    const std::string ville(25, '\xC9');
    EXPECT_EQ(Lire(cahier.chemin),
              Brute({}) + Brute({{0, "ABCDEFGHIJKLMNO"}, {64, ville}, {95, "7"}, {113, "INFO"}}));
}

} // namespace orvalis::aides::carte
