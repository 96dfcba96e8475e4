// Fill rows: a pixel value repeated over a row of interleaved pixels.
#ifndef QVN_KERNELS_FILL_INL_H
#define QVN_KERNELS_FILL_INL_H

#include <cstdint>
#include <numeric>

#include "kernels/isa/isa.h"
#include "kernels/store-inl.h"

QVN_TARGET_BEGIN
namespace kernels {

// Writes n pixels of K elements each, pixel k = px[0..K-1]. When Keep is true
// the last element of every pixel (alpha) is left as it is.
//
// The K-element pattern repeats every three vectors for K = 3, and every
// vector for K = 1, 2, 4 (every two for four 8-byte elements on 16-byte
// vectors), so the body stores a fixed set of up to three vectors built once
// per row for the element phase at which the aligned part starts. With
// Keep the vectors are stored with the alpha lanes kept (isa::storeKeep).
template <class T, int K, bool Keep, class Store>
inline void fillRow(T* d, std::int64_t n, const T* px) {
    constexpr std::int64_t kLanes = isa::kLanes<T>;
    constexpr int kPeriod = int(std::lcm(std::int64_t(K), kLanes) / kLanes);  // vectors before the pattern repeats
    const std::int64_t total = n * K;
    std::int64_t head = headToAlign(d, total);
    if (head < 0) {  // not element-aligned: scalar only (never from our own images)
        for (std::int64_t i = 0; i < total; ++i)
            if (!Keep || i % K != K - 1) d[i] = px[i % K];
        return;
    }
    std::int64_t i = 0;
    for (; i < head; ++i)
        if (!Keep || i % K != K - 1) d[i] = px[i % K];

    isa::Vec<T> v[kPeriod], keep[kPeriod];
    for (int k = 0; k < kPeriod; ++k) {
        alignas(isa::kVectorBytes) T lane[kLanes], mask[kLanes];
        for (std::int64_t e = 0; e < kLanes; ++e) {
            const std::int64_t idx = (i + k * kLanes + e) % K;
            lane[e] = Keep && idx == K - 1 ? T() : px[idx];  // an AC4 value has three elements
            // all-ones bytes where the destination element must be kept
            unsigned char* m = reinterpret_cast<unsigned char*>(&mask[e]);
            for (std::size_t b = 0; b < sizeof(T); ++b) m[b] = (Keep && idx == K - 1) ? 0xFF : 0;
        }
        v[k] = isa::loadA(lane);
        keep[k] = isa::loadA(mask);
    }
    for (; i + kPeriod * kLanes <= total; i += kPeriod * kLanes)
        for (int k = 0; k < kPeriod; ++k) {
            T* p = d + i + k * kLanes;
            if constexpr (Keep) isa::storeKeep(p, v[k], keep[k]);
            else Store::store(p, v[k]);
        }
    for (int k = 0; i + kLanes <= total; ++k, i += kLanes) {  // whole vectors left in the period
        if constexpr (Keep) isa::storeKeep(d + i, v[k], keep[k]);
        else Store::store(d + i, v[k]);
    }
    for (; i < total; ++i)
        if (!Keep || i % K != K - 1) d[i] = px[i % K];
}

}  // namespace kernels
QVN_TARGET_END

#endif
