#include "support/faults.h"

#include <cstdlib>

namespace qvn::test {

namespace {
// One region per pointer argument: 4 x 4 pixels at a 4096-byte step fit with
// room to spare. Every word of a region points at the region, so that an
// array of plane pointers reads as non-null and a copy between two regions
// changes bytes.
constexpr std::size_t kRegionWords = (1 << 14) / sizeof(void*), kRegions = 8;
void** region(int i) {
    static void** block = [] {
        auto** b = static_cast<void**>(std::aligned_alloc(64, kRegions * kRegionWords * sizeof(void*)));
        for (std::size_t w = 0; w < kRegions * kRegionWords; ++w) b[w] = b + w / kRegionWords * kRegionWords;
        return b;
    }();
    return block + std::size_t(i) % kRegions * kRegionWords;
}
}  // namespace

void* Faults::scratch(int i) const { return region(i); }

void* const* Faults::entriesWithNull() const {
    static void* entries[8];
    for (int i = 0; i < 8; ++i) entries[i] = i == nullEntry ? nullptr : region(nullPtr);
    return entries;
}

bool Faults::untouched() {  // the 4 x 4 ROI of every region: four rows of up to 128 bytes
    for (int i = 0; i < int(kRegions); ++i)
        for (std::size_t w = 0; w < kRegionWords; w += w % 512 == 15 ? 497 : 1)
            if (region(i)[w] != region(i)) return false;
    return true;
}

}  // namespace qvn::test
