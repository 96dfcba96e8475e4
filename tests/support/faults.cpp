#include "support/faults.h"

#include <cstdlib>

namespace qvn::test {

void* Faults::scratch() const {
    // 4 x 4 pixels at a 4096-byte step fit with room to spare; the words point
    // back at the block so an array of plane pointers reads as non-null.
    static void** block = [] {
        const std::size_t bytes = 1 << 16;
        auto** b = static_cast<void**>(std::aligned_alloc(64, bytes));
        for (std::size_t i = 0; i < bytes / sizeof(void*); ++i) b[i] = b;
        return b;
    }();
    return block;
}

}  // namespace qvn::test
