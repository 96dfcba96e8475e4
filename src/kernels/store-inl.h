// Store policies of the row templates, chosen once per call: ordinary aligned
// stores, or non-temporal ones for images that would only evict the cache
// (the caller then ends with isa::storeFence()).
#ifndef QVN_KERNELS_STORE_INL_H
#define QVN_KERNELS_STORE_INL_H

#include <cstdint>

#include "kernels/isa/isa.h"

QVN_TARGET_BEGIN
namespace kernels {

// store(p, v) takes a vector of any layer (isa's, or v128's in kernels tied to
// 16-byte vectors): the layer's own function is found by the vector's type.
struct StoreRegular {
    template <class T, class V>
    static void store(T* p, V v) { storeA(p, v); }
};

struct StoreStreaming {
    template <class T, class V>
    static void store(T* p, V v) { storeStream(p, v); }
};

// Elements before p reaches 16-byte alignment, at most n; -1 when p is not
// even element-aligned (then no aligned store can be used in the row).
template <class T>
inline std::int64_t headToAlign16(const T* p, std::int64_t n) {
    const auto a = reinterpret_cast<std::uintptr_t>(p);
    if (a % sizeof(T) != 0) return -1;
    const std::int64_t h = std::int64_t((16 - a % 16) % 16 / sizeof(T));
    return h < n ? h : n;
}

// Elements before p reaches the alignment of a whole vector (or kV bytes),
// at most n; -1 when p is not even element-aligned.
template <class T, std::uintptr_t kV = isa::kVectorBytes>
inline std::int64_t headToAlign(const T* p, std::int64_t n) {
    const auto a = reinterpret_cast<std::uintptr_t>(p);
    if (a % sizeof(T) != 0) return -1;
    const std::int64_t h = std::int64_t((kV - a % kV) % kV / sizeof(T));
    return h < n ? h : n;
}

}  // namespace kernels
QVN_TARGET_END

#endif
