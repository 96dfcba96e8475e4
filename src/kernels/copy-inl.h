// Copy rows: whole rows as bytes, rows that write only some channels of each
// pixel, and rows under an 8u mask.
#ifndef QVN_KERNELS_COPY_INL_H
#define QVN_KERNELS_COPY_INL_H

#include <cstdint>
#include <cstring>

#include "kernels/isa/isa.h"
#include "kernels/store-inl.h"

QVN_TARGET_BEGIN
namespace kernels {

// Fewer than a vector's bytes, in pieces of halving size.
inline void copyTail(const std::uint8_t* s, std::uint8_t* d, std::int64_t n) {
    for (std::int64_t piece = isa::kVectorBytes / 2; piece > 0; piece /= 2)
        if (n & piece) std::memcpy(d, s, std::size_t(piece)), s += piece, d += piece;
}

// The vector loop of copyBytes on one layer's vectors (L: isa or isa_offset,
// named by a tag below): a head up to the first vector-aligned destination
// byte, then four vectors per step, then one, then the tail. Rows of a vector
// or more take the head and the tail as one unaligned vector each, which the
// aligned vectors overlap (writing the same bytes again): short rows cost a
// few stores, not a store per power of two.
template <class Store, class L>
inline void copyVectors(const std::uint8_t* s, std::uint8_t* d, std::int64_t n) {
    using V = typename L::V;
    constexpr std::int64_t kV = L::kBytes;
    L::storeU(d, L::loadU(s));
    std::int64_t i = headToAlign<std::uint8_t, kV>(d, n);
    for (; i + 4 * kV <= n; i += 4 * kV) {
        const V a = L::loadU(s + i), b = L::loadU(s + i + kV), c = L::loadU(s + i + 2 * kV),
                e = L::loadU(s + i + 3 * kV);
        Store::store(d + i, a);
        Store::store(d + i + kV, b);
        Store::store(d + i + 2 * kV, c);
        Store::store(d + i + 3 * kV, e);
    }
    for (; i + kV <= n; i += kV) Store::store(d + i, L::loadU(s + i));
    if (i < n) L::storeU(d + n - kV, L::loadU(s + n - kV));
}

#define QVN_COPY_LAYER(Name, lay)                                                       \
    struct Name {                                                                      \
        using V = lay::Vec<std::uint8_t>;                                              \
        static constexpr std::int64_t kBytes = lay::kVectorBytes;                      \
        static V loadU(const std::uint8_t* p) { return lay::loadU(p); }                \
        static void storeU(std::uint8_t* p, V v) { lay::storeU(p, v); }                \
    };
QVN_COPY_LAYER(WholeVectors, isa)
QVN_COPY_LAYER(OffsetVectors, isa_offset)
#undef QVN_COPY_LAYER

// Copies n bytes; every element type copies through this one kernel. When the
// source sits at another offset within a vector than the destination, every
// load of the aligned-store loop is off the alignment and takes the offset
// layer (see isa.h: out of cache a 64-byte loop at an offset takes about
// twice the time of a 32-byte one).
template <class Store>
inline void copyBytes(const std::uint8_t* s, std::uint8_t* d, std::int64_t n) {
    if (n < std::int64_t(isa::kVectorBytes)) return copyTail(s, d, n);
    const auto skew = (reinterpret_cast<std::uintptr_t>(s) - reinterpret_cast<std::uintptr_t>(d)) %
                      std::uintptr_t(isa::kVectorBytes);
    if (skew != 0 && isa_offset::kVectorBytes < isa::kVectorBytes)
        copyVectors<Store, OffsetVectors>(s, d, n);
    else
        copyVectors<Store, WholeVectors>(s, d, n);
}

// Element sources of the rows below: another image's row, or a repeated
// pixel value. vec(i, k) is the vector of elements i.. of the row, k its index
// in the pixel pattern's period (three vectors for three-element pixels, one
// otherwise) counted from the element that prepare() was given.
template <class T>
struct FromRow {
    const T* s;
    void prepare(std::int64_t) {}
    T at(std::int64_t i) const { return s[i]; }
    isa::Vec<T> vec(std::int64_t i, int) const { return isa::loadU(s + i); }
};

template <class T, int K>
struct FromPixel {
    const T* px;  // K elements
    isa::Vec<T> v[3];
    void prepare(std::int64_t first) {
        constexpr std::int64_t kLanes = isa::kLanes<T>;
        for (int k = 0; k < (K == 3 ? 3 : 1); ++k) {
            alignas(isa::kVectorBytes) T lane[kLanes];
            for (std::int64_t e = 0; e < kLanes; ++e) lane[e] = px[(first + k * kLanes + e) % K];
            v[k] = isa::loadA(lane);
        }
    }
    T at(std::int64_t i) const { return px[i % K]; }
    isa::Vec<T> vec(std::int64_t, int k) const { return v[k]; }
};

// All-ones lanes for the elements whose channel (element index mod K, counted
// from first) is in the bit set chans; three vectors of period for K = 3, one
// otherwise; vectors of any layer (V).
template <class T, int K, class V = isa::Vec<T>>
inline void channelLanes(std::int64_t first, unsigned chans, V out[3]) {
    constexpr std::int64_t kLanes = std::int64_t(sizeof(V) / sizeof(T));
    for (int k = 0; k < (K == 3 ? 3 : 1); ++k) {
        alignas(sizeof(V)) unsigned char b[sizeof(V)];
        for (std::int64_t e = 0; e < kLanes; ++e)
            std::memset(b + e * sizeof(T), (chans >> ((first + k * kLanes + e) % K)) & 1u ? 0xFF : 0,
                        sizeof(T));
        std::memcpy(&out[k], b, sizeof(V));
    }
}

// Writes the elements of d[0..total) whose channel (index mod K) is in the bit
// set Write from src; the other elements keep their values (the vector body
// stores whole vectors with those lanes kept, see isa::storeKeep). total need
// not be a whole number of pixels: a row addressed at one channel of its first
// pixel ends at that channel of its last pixel.
template <class T, int K, unsigned Write, class Src>
inline void blendRow(Src src, T* d, std::int64_t total) {
    constexpr std::int64_t kLanes = isa::kLanes<T>;
    constexpr int kPeriod = K == 3 ? 3 : 1;
    constexpr unsigned kKeep = ~Write & ((1u << K) - 1);
    const auto one = [&](std::int64_t i) {
        if ((Write >> (i % K)) & 1u) d[i] = src.at(i);
    };
    std::int64_t head = headToAlign(d, total);
    if (head < 0) head = total;  // not element-aligned: scalar only
    std::int64_t i = 0;
    for (; i < head; ++i) one(i);
    if (i + kLanes <= total) {
        isa::Vec<T> keep[3];
        channelLanes<T, K>(i, kKeep, keep);
        src.prepare(i);
        for (int k = 0; i + kLanes <= total; i += kLanes, k = k + 1 == kPeriod ? 0 : k + 1)
            isa::storeKeep(d + i, src.vec(i, k), keep[k]);
    }
    for (; i < total; ++i) one(i);
}

// Masks of Factor vectors whose lanes repeat each byte lane of m Factor times
// (Factor a power of two up to 16), so byte j of vector v follows byte
// (v * kVectorBytes + j) / Factor of m.
template <int Factor>
inline void spreadMask(isa::Vec<std::uint8_t> m, isa::Vec<std::uint8_t> out[Factor]) {
    if constexpr (Factor == 1) {
        out[0] = m;
    } else {
        isa::Vec<std::uint8_t> half[Factor / 2];
        spreadMask<Factor / 2>(m, half);
        for (int k = 0; k < Factor / 2; ++k) {
            out[2 * k] = isa::zipLo(half[k], half[k]);
            out[2 * k + 1] = isa::zipHi(half[k], half[k]);
        }
    }
}

// Masked row: pixel x of n (K elements each) takes its channels from src where
// mask[x] is non-zero and keeps them where it is zero; with Keep the last
// channel (alpha) is never written. The mask is read a vector at a time (a
// block of as many pixels as the vector has bytes): an all-zero block writes
// nothing, an all-set block is written whole, a mixed block keeps the lanes of
// the unselected pixels; the last pixels of the row go one by one.
template <class T, int K, bool Keep, class Src>
inline void maskedRow(Src src, T* d, const std::uint8_t* m, std::int64_t n) {
    using V = isa::Vec<T>;
    constexpr std::int64_t kLanes = isa::kLanes<T>;
    constexpr std::int64_t kBlock = isa::kLanes<std::uint8_t>;  // pixels per mask vector
    constexpr int kPeriod = K == 3 ? 3 : 1;
    constexpr int kVecs = K * int(sizeof(T));       // vectors per block
    constexpr bool kSpread = (kVecs & (kVecs - 1)) == 0;  // byte mask spreads by zips
    constexpr unsigned kWrite = Keep ? (1u << (K - 1)) - 1 : (1u << K) - 1;
    const auto pixel = [&](std::int64_t x) {
        if (m[x] == 0) return;
        for (int c = 0; c < K; ++c)
            if ((kWrite >> c) & 1u) d[x * K + c] = src.at(x * K + c);
    };
    std::int64_t x = 0;
    if (n >= kBlock) {
        src.prepare(0);
        V alpha[3];
        channelLanes<T, K>(0, ~kWrite & ((1u << K) - 1), alpha);
        const isa::Vec<std::uint8_t> zero = isa::zero<std::uint8_t>();
        for (; x + kBlock <= n; x += kBlock) {
            const isa::Vec<std::uint8_t> isZero = isa::cmpEq(isa::loadU(m + x), zero);
            if (isa::allTrue(isZero)) continue;
            const std::int64_t e0 = x * K;
            if (!isa::anyTrue(isZero)) {
                for (int j = 0; j < kVecs; ++j) {
                    T* p = d + e0 + j * kLanes;
                    const V v = src.vec(e0 + j * kLanes, j % kPeriod);
                    if constexpr (Keep) isa::storeKeep(p, v, alpha[0]);
                    else isa::storeU(p, v);
                }
            } else if constexpr (kSpread) {
                isa::Vec<std::uint8_t> spread[kVecs];  // all ones where the pixel's mask is 0
                spreadMask<kVecs>(isZero, spread);
                for (int j = 0; j < kVecs; ++j) {
                    V keep = isa::cast<T>(spread[j]);
                    if constexpr (Keep) keep = isa::bitOr(keep, alpha[0]);
                    isa::storeKeep(d + e0 + j * kLanes, src.vec(e0 + j * kLanes, 0), keep);
                }
            } else {
                for (std::int64_t k = 0; k < kBlock; ++k) pixel(x + k);
            }
        }
    }
    for (; x < n; ++x) pixel(x);
}

}  // namespace kernels
QVN_TARGET_END

#endif
