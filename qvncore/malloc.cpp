// Aligned allocation of the core library.
#include "qvncore.h"

#include <cstdint>
#include <cstdlib>

namespace {

// aligned_alloc wants a size that is a multiple of the alignment; rounding the
// request up also gives every image row room for a full last vector.
void* alignedAlloc(std::uint64_t size) {
    constexpr std::uint64_t kAlign = QVN_MALLOC_ALIGNMENT;
    if (size == 0 || size > (std::uint64_t(PTRDIFF_MAX) & ~(kAlign - 1))) return nullptr;
    const std::uint64_t rounded = (size + kAlign - 1) & ~(kAlign - 1);
    return std::aligned_alloc(kAlign, static_cast<std::size_t>(rounded));
}

}  // namespace

QVN_API void* qvnMalloc(int size) {
    return size < 1 ? nullptr : alignedAlloc(static_cast<std::uint64_t>(size));
}

QVN_API void* qvnMalloc_L(QvnSizeL size) {
    return size < 1 ? nullptr : alignedAlloc(static_cast<std::uint64_t>(size));
}

QVN_API void qvnFree(void* ptr) { std::free(ptr); }
