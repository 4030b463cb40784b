#pragma once
namespace orvalis {
struct MemoireDistance {
    double latitude1 = 0, longitude1 = 0, latitude2 = 0, longitude2 = 0;
};
} // namespace orvalis
