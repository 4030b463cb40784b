#include "aides.h"
#include "geo/locator.h"

#include <limits>

namespace orvalis {
namespace {

TEST(Locator, Validite) {
    for (const char* locator : {"JN04SD", "AA00AA", "RR99XX"})
        EXPECT_TRUE(LocatorValide(locator)) << locator;
    for (const char* locator :
         {"", "jn04sd", "JN04sd", "JN04S", "JN04SDX", "JS04SD", "SN04SD", "JN0ASD", "JN/4SD",
          "JN04SY", "JN04YD", "@N04SD", " JN04S", "JN04S ", "JN04\xC3\xA9"})
        EXPECT_FALSE(LocatorValide(locator)) << locator;
}

TEST(Locator, CentreDuSousCarre) {
    EXPECT_NEAR(LocatorVersLatitude("JN04SD"), 44 + 3.5 / 24, 1e-12);
    EXPECT_NEAR(LocatorVersLatitude("AA00AA"), -89.979166666666667, 1e-12);
    EXPECT_NEAR(LocatorVersLongitude("AA00AA"), 179.95833333333333, 1e-12);
    EXPECT_NEAR(LocatorVersLongitude("FN31PR"), 72.708333333333333, 1e-12);
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

} // namespace
} // namespace orvalis
