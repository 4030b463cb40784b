#include "aides.h"
#include "geo/distance.h"

namespace orvalis {
namespace {

using essai::Textes;
using essai::Verifier;

std::string Dire(MemoireDistance memoire, std::string_view station, std::string_view autre) {
    const auto [distance, azimut] = DistanceAzimut(memoire, station, autre);
    return distance + azimut;
}

TEST(Distance, TextesDepuisLaStation) {
    const Textes cas = {
        {"JN04SD JN04SE", "4.6 Km    000°"},
        {"JN04SD JN05SD", "111.2 Km  000°"},
        {"JN04SD JN03SD", "111.2 Km  180°"},
        {"JN04SD JN04TD", "6.6 Km    270°"},
        {"JN04SD JO62QM", "1275.5 Km 321°"},
        {"JN04SD IN88AA", "604.8 Km  043°"},
        {"JN04SD FN31PR", "5840.8 Km 065°"},
        // The same point: the small shift in longitude shows as a bearing, not as a distance.
        {"JN04SD JN04SD", "0 Km      090°"},
        // Nearly due North on the East side: the mirror of 0 is 360.
        {"JN04SD JR09TD", "5007.7 Km 360°"},
        // Due North across the pole, where rounding makes the cosine of the bearing 1 exactly.
        {"AI08AC JR09AS", "10251.9 Km360°"},
        // Cosine of the bearing beyond 1, next to the South Pole.
        {"AA00AA AA00AF", "23.1 Km   000°"}};
    Verifier([](const std::string& deux) { return Dire({}, deux.substr(0, 6), deux.substr(7)); },
             cas);
}

TEST(Distance, LocatorRefuseGardeLesCoordonneesPrecedentes) {
    MemoireDistance memoire;
    EXPECT_EQ(DistanceAzimut(memoire, "JN04SD", "FN31PR").azimut, "065°");
    for (const char* refuse : {"", "fn31pr", "?"})
        EXPECT_EQ(DistanceAzimut(memoire, refuse, refuse).distance, "5840.8 Km ");
}

TEST(Distance, QuandLesFormulesNOntPasDeValeur) {
    const std::pair<MemoireDistance, const char*> cas[] = {
        {{}, "0 Km      090°"},                  // before any valid locator
        {{0, 0, 0, -0.0001}, "0 Km      270°"},  // an angle of exactly 0
        {{0, 0, 0, 179.9999}, "20030.9 Km180°"}, // antipodes
        {{90, 0, 0, -0.0001}, "10015.4 Km180°"}, // seen from the pole
        {{0, 0, 90, 0}, "10015.4 Km000°"},       // towards the pole
    };
    for (const auto& [memoire, attendu] : cas)
        EXPECT_EQ(Dire(memoire, "", ""), attendu);
}

} // namespace
} // namespace orvalis
