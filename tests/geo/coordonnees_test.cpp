// Locators, distances and notations, without a window.
#include "aides.h"
#include "geo/distance.h"
#include "geo/locator.h"
#include "geo/notations.h"

#include <limits>

namespace orvalis::aides::coordonnees {

TEST(Locator, Validite) {
    for (const char* locator : {"JN04SD", "AA00AA", "RR99XX"})
        EXPECT_TRUE(LocatorValide(locator)) << locator;
    for (const char* locator :
         {"", "jn04sd", "JN04sd", "JN04S", "JN04SDX", "JS04SD", "SN04SD", "JN0ASD", "JN/4SD",
          "JN04SY", "JN04YD", "@N04SD", " JN04S", "JN04S ", "JN04\xC3\xA9"})
        EXPECT_FALSE(LocatorValide(locator)) << locator;
}

TEST(Locator, AllerRetourDeChaqueSousCarre) {
    // The axes are independent: 18 * 10 * 24 positions of each, walked in opposite directions.
    constexpr int kPositions = 4320;
    for (int lat = 0, lon = kPositions - 1; lat < kPositions; ++lat, --lon) {
        std::string locator;
        for (const auto& [premiere, pas, base] :
             {std::tuple{'A', 240, 18}, {'0', 24, 10}, {'A', 1, 24}})
            for (const int position : {lon, lat})
                locator.push_back(static_cast<char>(premiere + position / pas % base));
        ASSERT_TRUE(LocatorValide(locator)) << locator;
        ASSERT_EQ(CoordVersLocator(static_cast<float>(LocatorVersLatitude(locator)),
                                   static_cast<float>(LocatorVersLongitude(locator))),
                  locator);
    }
}

TEST(Locator, DepuisDesCoordonnees) {
    EXPECT_EQ(CoordVersLocator(44.1458F, -1.5417F), "JN04SD");
    EXPECT_EQ(CoordVersLocator(0, 0), "JJ00AA");
    for (const auto& [latitude, longitude] :
         {std::pair{95.0F, 0.0F}, {-90.01F, 0.0F}, {0.0F, -180.0F}, {1e4F, 0.0F}, {0.0F, 3e5F}}) {
        const std::string locator = CoordVersLocator(latitude, longitude);
        EXPECT_EQ(locator.size(), kLargeurLocator);
        EXPECT_FALSE(LocatorValide(locator)) << locator;
    }
    using Bornes = std::numeric_limits<float>;
    for (const float horsBornes : {1e30F, -Bornes::infinity(), Bornes::quiet_NaN()}) {
        EXPECT_THROW(static_cast<void>(CoordVersLocator(horsBornes, 0)), std::overflow_error);
        EXPECT_THROW(static_cast<void>(CoordVersLocator(0, horsBornes)), std::overflow_error);
    }
}

std::string Dire(MemoireDistance memoire, std::string_view station, std::string_view autre) {
    const auto [distance, azimut] = DistanceAzimut(memoire, station, autre);
    return distance + azimut;
}

TEST(Distance, TextesDepuisLaStation) {
    const auto dire = [](const std::string& d) { return Dire({}, d.substr(0, 6), d.substr(7)); };
    const Textes cas = {
        {"JN04SD JN04SE", "4.6 Km    000°"},
        {"JN04SD JN03SD", "111.2 Km  180°"},
        {"JN04SD JN04TD", "6.6 Km    270°"},
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
    Verifier(dire, cas);
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

TEST(Distance, CapVraiDesDeuxCotes) {
    const auto dire = [](const std::string& d) {
        MemoireDistance memoire;
        const std::string azimut = DistanceAzimut(memoire, d.substr(0, 6), d.substr(7)).azimut;
        return azimut + ' ' + std::to_string(CapVrai(memoire).value_or(-1));
    };
    Verifier(dire, Textes{{"JN04SD JN04TD", "270° 90"},
                          {"JN04SD FN31PR", "065° 295"},
                          {"JN04SD JO62QM", "321° 39"},
                          {"JN04SD JN04SE", "000° 0"},
                          {"JN04SD JN03SD", "180° 180"},
                          {"JN04SD JN04SD", "090° -1"},
                          // Across the 180th meridian the azimuth takes the East for the West.
                          {"RJ50AA AJ50AA", "090° 90"},
                          {"AJ50AA RJ50AA", "270° 270"}});
}

TEST(Notations, DegresMinutesSecondes) {
    const std::pair<Dms, const char*> cas[] = {
        {{44, 8, 45}, "44.1375"}, {{0, 0, 1}, "0.0001"},       {{0, 1, 0}, "0.0200"},
        {{1, 30, 3}, "1.5005"},   {{179, 59, 59}, "179.9898"}, {{44, 60, 0}, "45.0000"}};
    for (const auto& [dms, decimal] : cas)
        EXPECT_EQ(FormaterDecimal(DmsVersDecimal(dms)), decimal);
    const std::pair<float, std::array<int, 3>> inverse[] = {
        {44.1458F, {44, 8, 35}},
        {-1.5417F, {1, 32, 10}},
        {179.9898F, {179, 59, 59}},
        {44.99996F, {44, 60, 0}}}; // no carry into the degrees
    for (const auto& [decimal, attendu] : inverse) {
        const Dms dms = DecimalVersDms(decimal);
        EXPECT_EQ((std::array{dms.degres, dms.minutes, dms.secondes}), attendu);
    }
}

TEST(Notations, TexteDecimal) {
    const std::pair<float, const char*> formats[] = {
        {44.145832F, "44.1458"}, {-1.5416666F, "-1.5417"},  {0.03125F, "0.0313"},
        {-0.03125F, "-0.0313"},  {-0.00001F, "0.0000"},     {-0.0F, "0.0000"},
        {0.99996F, "1.0000"},    {-179.95833F, "-179.9583"}};
    for (const auto& [valeur, attendu] : formats)
        EXPECT_EQ(FormaterDecimal(valeur), attendu);
    const std::string grand(400, '9');
    const std::string infime = "0." + std::string(400, '0') + "1";
    const std::pair<float, std::vector<std::string>> lectures[] = {
        {44, {"44", "44/5", "44-4", "44.", "44.0.2", "44e5", "044"}},
        {-0.5F, {"-.5", "-0.5", "-.5.5"}},
        {0, {"", "-", ".", "--5", "/5", "inf", "nan", infime}},
        {1000, {"99999", grand}},
        {-1000, {"-" + grand}}};
    for (const auto& [attendu, textes] : lectures)
        for (const std::string& texte : textes)
            EXPECT_EQ(LireDecimal(texte), attendu) << texte;
}

} // namespace orvalis::aides::coordonnees
