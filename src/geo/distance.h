// Great-circle distance and azimuth between two locators, as the texts the card shows.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orvalis {

/// The last coordinates obtained from each of the two locators (degrees, West positive). It belongs
/// to the caller, so that the routine has no state of its own.
struct MemoireDistance {
    double latitude1 = 0;
    double longitude1 = 0;
    double latitude2 = 0;
    double longitude2 = 0;
};

/// Characters of the two texts.
inline constexpr std::size_t kLargeurDistance = 10;
inline constexpr std::size_t kLargeurAzimut = 4;

struct TextesDistance {
    std::string distance; ///< e.g. "1234.5 Km "
    std::string azimut;   ///< e.g. "045°", which is five bytes
};

/// Distance in kilometres, cut to one decimal, and azimuth in whole degrees from locator1 (the own
/// station) to locator2 (the correspondent). An invalid locator does not stop the computation: the
/// coordinates that `memoire` keeps from an earlier call stand in for it.
///
/// Where the formulas have no value, the result is guarded and never fails:
///  - a quarter of a great circle is 90 degrees of arc, a bearing of cosine 0 is 90 degrees;
///  - a cosine that rounding pushes beyond 1 counts as 1, and due North is 0 degrees;
///  - two points that coincide are 0 km apart, in the direction 90 degrees.
[[nodiscard]] TextesDistance DistanceAzimut(MemoireDistance& memoire, std::string_view locator1,
                                            std::string_view locator2);

/// The direction in which the second point lies seen from the first: whole degrees from the North
/// by the East, 0 to 359. The azimuth above counts by the West and takes a correspondent across the
/// 180th meridian for one on this side of it; this is for a compass. Nothing when the points are
/// one.
[[nodiscard]] std::optional<int> CapVrai(const MemoireDistance& memoire);

} // namespace orvalis
