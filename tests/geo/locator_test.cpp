#include "geo/locator.h"

#include <gtest/gtest.h>
#include <limits>
#include <stdexcept>

namespace {

using namespace orvalis;

TEST(Locator, Validite) {
    const std::pair<const char*, bool> cas[] = {
        {"JN04SD", true},  {"AA00AA", true},       {"RR99XX", true},  {"", false},
        {"jn04sd", false}, {"JN04sd", false},      {"JN04S", false},  {"JN04SDX", false},
        {"JS04SD", false}, {"SN04SD", false},      {"JN0ASD", false}, {"JN/4SD", false},
        {"JN04SY", false}, {"JN04YD", false},      {"@N04SD", false}, {" JN04S", false},
        {"JN04S ", false}, {"JN04\xC3\xA9", false}};
    for (const auto& [locator, attendu] : cas)
        EXPECT_EQ(LocatorValide(locator), attendu) << locator;
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
        const std::string locator{
            static_cast<char>('A' + lon / 240),     static_cast<char>('A' + lat / 240),
            static_cast<char>('0' + lon / 24 % 10), static_cast<char>('0' + lat / 24 % 10),
            static_cast<char>('A' + lon % 24),      static_cast<char>('A' + lat % 24)};
        ASSERT_TRUE(LocatorValide(locator)) << locator;
        ASSERT_EQ(CoordVersLocator(static_cast<float>(LocatorVersLatitude(locator)),
                                   static_cast<float>(LocatorVersLongitude(locator))),
                  locator);
    }
}

TEST(Locator, DepuisDesCoordonnees) {
    constexpr float kInfini = std::numeric_limits<float>::infinity();
    EXPECT_EQ(CoordVersLocator(44.1458F, -1.5417F), "JN04SD");
    EXPECT_EQ(CoordVersLocator(0, 0), "JJ00AA");
    for (const auto& [latitude, longitude] :
         {std::pair{95.0F, 0.0F}, {-90.01F, 0.0F}, {0.0F, -180.0F}, {1e4F, 0.0F}, {0.0F, 3e5F}}) {
        const std::string locator = CoordVersLocator(latitude, longitude);
        EXPECT_EQ(locator.size(), kLargeurLocator);
        EXPECT_FALSE(LocatorValide(locator)) << locator;
    }
    for (const float horsBornes : {1e30F, -kInfini, std::numeric_limits<float>::quiet_NaN()}) {
        EXPECT_THROW(static_cast<void>(CoordVersLocator(horsBornes, 0)), std::overflow_error);
        EXPECT_THROW(static_cast<void>(CoordVersLocator(0, horsBornes)), std::overflow_error);
    }
}

} // namespace
