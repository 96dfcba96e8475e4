// Channel shuffle rows: pixels of KS elements to pixels of KD elements by a
// channel map, and interleaved pixels to and from planes.
#ifndef QVN_KERNELS_SHUFFLE_INL_H
#define QVN_KERNELS_SHUFFLE_INL_H

#include <cstdint>
#include <cstring>

#include "kernels/isa/isa.h"
#include "kernels/copy-inl.h"

QVN_TARGET_BEGIN
namespace kernels {

// K interleaved vectors (kLanes pixels) to K planes and back.
template <int K, class T>
inline void toPlaneVecs(const isa::Vec<T>* in, isa::Vec<T>* out) {
    if constexpr (K == 1) out[0] = in[0];
    else if constexpr (K == 3) isa::deinterleave3(in, out);
    else isa::deinterleave4(in, out);
}
template <int K, class T>
inline void toPixelVecs(const isa::Vec<T>* in, isa::Vec<T>* out) {
    if constexpr (K == 1) out[0] = in[0];
    else if constexpr (K == 3) isa::interleave3(in, out);
    else isa::interleave4(in, out);
}

// Destination channel c takes source channel from[c] (0..KS-1), or the fill
// value when from[c] == KS; channels in the bit set keep are not changed.
// addressedChannel: one side's pointer addresses a channel inside its first
// pixel, so that side's last pixel is not whole and the vector body, which
// moves whole pixels, stops one pixel earlier.
template <class T, int KS, int KD>
struct PixelMap {
    int from[KD];
    unsigned keep = 0;
    T fill = T(0);
    bool addressedChannel = false;
};

// Maps n pixels. Reads each whole source pixel before writing the destination
// pixel, so source and destination may be the same image when KS == KD.
template <class T, int KS, int KD>
inline void shuffleRow(const T* s, T* d, std::int64_t n, const PixelMap<T, KS, KD>& map) {
    using V = isa::Vec<T>;
    constexpr std::int64_t kLanes = isa::kLanes<T>;
    unsigned used = 0;  // source channels the map reads: no others are touched
    for (int c = 0; c < KD; ++c)
        if (!((map.keep >> c) & 1u) && map.from[c] < KS) used |= 1u << map.from[c];
    const auto pixel = [&](std::int64_t x) {
        T in[KS + 1] = {};
        for (int c = 0; c < KS; ++c)
            if ((used >> c) & 1u) in[c] = s[x * KS + c];
        in[KS] = map.fill;
        for (int c = 0; c < KD; ++c)
            if (!((map.keep >> c) & 1u)) d[x * KD + c] = in[map.from[c]];
    };
    const std::int64_t vecEnd = n - (map.addressedChannel ? 1 : 0);
    std::int64_t x = 0;
    // head: pixels until the destination is vector-aligned, when a pixel
    // boundary ever is
    while (x < kLanes && x < n && !isa::alignedV(d + x * KD)) ++x;
    if (x == kLanes || x == n) x = 0;
    for (std::int64_t h = 0; h < x; ++h) pixel(h);
    if (x + kLanes <= vecEnd) {
        V keep[3];
        channelLanes<T, KD>(0, map.keep, keep);
        // The map picks planes by run-time index, so they pass through memory
        // (a store and a load each, forwarded; vector arrays indexed at run
        // time compile to far worse).
        alignas(isa::kVectorBytes) T planes[(KS + 1) * kLanes];
        isa::storeA(planes + KS * kLanes, isa::set1(map.fill));
        for (; x + kLanes <= vecEnd; x += kLanes) {
            V in[KS], pl[KS], out[KD], px[KD];
            for (int k = 0; k < KS; ++k) in[k] = isa::loadU(s + x * KS + k * kLanes);
            toPlaneVecs<KS>(in, pl);
            for (int k = 0; k < KS; ++k) isa::storeA(planes + k * kLanes, pl[k]);
            for (int c = 0; c < KD; ++c) out[c] = isa::loadA(planes + map.from[c] * kLanes);
            toPixelVecs<KD>(out, px);
            for (int k = 0; k < KD; ++k) {
                T* p = d + x * KD + k * kLanes;
                if (map.keep) isa::storeKeep(p, px[k], keep[KD == 3 ? k : 0]);
                else isa::storeU(p, px[k]);
            }
        }
    }
    for (; x < n; ++x) pixel(x);
}

// Vector body of permuteRow with N distinct offsets: element e of the
// destination is the OR of the source row loaded at e + offsets[j] and masked
// to the lanes that take offset j; with Keep the kept lanes are not stored
// (isa::storeKeep). Runs whole periods of the channel pattern from i while
// they end by end; returns where it stopped.
template <class T, int K, int N, bool Keep>
inline std::int64_t permuteBody(const T* s, T* d, std::int64_t i, std::int64_t end, const int* offsets,
                                const isa_offset::Vec<T> (*lanes)[3], const isa_offset::Vec<T>* keep) {
    namespace lay = isa_offset;
    using V = lay::Vec<T>;
    constexpr std::int64_t kLanes = lay::kLanes<T>;
    constexpr int kPeriod = K == 3 ? 3 : 1;
    const T* from[N];
    V mask[N][kPeriod], kept[kPeriod];
    for (int j = 0; j < N; ++j) {
        from[j] = s + offsets[j];
        for (int k = 0; k < kPeriod; ++k) mask[j][k] = lanes[j][k];
    }
    for (int k = 0; k < kPeriod; ++k) kept[k] = keep[k];
    for (; i + kPeriod * kLanes <= end; i += kPeriod * kLanes)
        for (int k = 0; k < kPeriod; ++k) {
            const std::int64_t e = i + k * kLanes;
            V v = lay::bitAnd(mask[0][k], lay::loadU(from[0] + e));
            for (int j = 1; j < N; ++j) v = lay::bitOr(v, lay::bitAnd(mask[j][k], lay::loadU(from[j] + e)));
            if constexpr (Keep) lay::storeKeep(d + e, v, kept[k]);
            else lay::storeA(d + e, v);
        }
    return i;
}

// Reorders the channels of pixels of K elements (3 or 4) into another image
// (not in place): element i of the destination is source element
// i + from[c] - c, c being i's channel. Each distinct offset from[c] - c is one
// unaligned load of the source row masked to the lanes that use it, so the
// body costs a few loads and logic operations per vector whatever the order;
// the number of offsets is fixed once per row so that the masks stay in
// registers. Channels in map.keep are left as they are.
template <class T, int K>
inline void permuteRow(const T* s, T* d, std::int64_t n, const PixelMap<T, K, K>& map) {
    namespace lay = isa_offset;  // loads off the alignment: see isa.h
    using V = lay::Vec<T>;
    constexpr std::int64_t kLanes = lay::kLanes<T>;
    const std::int64_t total = n * K;
    const auto one = [&](std::int64_t i) {
        const int c = int(i % K);
        if (!((map.keep >> c) & 1u)) d[i] = s[i - c + map.from[c]];
    };
    // vector body only where every offset load stays inside the row
    std::int64_t i = headToAlign<T, lay::kVectorBytes>(d, total);
    if (i < 0) i = total;
    if (i < K) i += (K - i + kLanes - 1) / kLanes * kLanes;  // whole vectors keep the alignment
    const std::int64_t end = total - K;
    for (std::int64_t h = 0; h < i && h < total; ++h) one(h);
    if (i + kLanes <= end) {
        int offsets[K] = {}, count = 0;
        V lanes[K][3], keep[3];
        for (int off = -(K - 1); off <= K - 1; ++off) {
            unsigned chans = 0;
            for (int c = 0; c < K; ++c)
                if (!((map.keep >> c) & 1u) && map.from[c] - c == off) chans |= 1u << c;
            if (!chans) continue;
            channelLanes<T, K, V>(i, chans, lanes[count]);
            offsets[count++] = off;
        }
        channelLanes<T, K, V>(i, map.keep, keep);
        const bool kept = map.keep != 0;
        if constexpr (K == 4) {
            if (kept) {
                if (count == 1) i = permuteBody<T, K, 1, true>(s, d, i, end, offsets, lanes, keep);
                else if (count == 2) i = permuteBody<T, K, 2, true>(s, d, i, end, offsets, lanes, keep);
                else if (count == 3) i = permuteBody<T, K, 3, true>(s, d, i, end, offsets, lanes, keep);
            } else {
                if (count == 1) i = permuteBody<T, K, 1, false>(s, d, i, end, offsets, lanes, keep);
                else if (count == 2) i = permuteBody<T, K, 2, false>(s, d, i, end, offsets, lanes, keep);
                else if (count == 3) i = permuteBody<T, K, 3, false>(s, d, i, end, offsets, lanes, keep);
                else if (count == 4) i = permuteBody<T, K, 4, false>(s, d, i, end, offsets, lanes, keep);
            }
        } else if (!kept) {  // three-element swaps keep no channel
            if (count == 1) i = permuteBody<T, K, 1, false>(s, d, i, end, offsets, lanes, keep);
            else if (count == 2) i = permuteBody<T, K, 2, false>(s, d, i, end, offsets, lanes, keep);
            else if (count == 3) i = permuteBody<T, K, 3, false>(s, d, i, end, offsets, lanes, keep);
        }
    }
    for (; i < total; ++i) one(i);
}

// Elements before every pointer of ps reaches kAlign-byte alignment (a
// vector's, or 16) at the same element, at most n; -1 when they never do
// together.
template <class T, int K, std::size_t kAlign = isa::kVectorBytes>
inline std::int64_t commonHead(T* const ps[K], std::int64_t n) {
    const auto a = reinterpret_cast<std::uintptr_t>(ps[0]);
    for (int c = 1; c < K; ++c)
        if (reinterpret_cast<std::uintptr_t>(ps[c]) % kAlign != a % kAlign) return -1;
    return kAlign == 16 ? headToAlign16(ps[0], n) : headToAlign(ps[0], n);
}

// n interleaved pixels of K elements to K planes. With aligned planes the
// body uses the store policy; planes that do not align together take ordinary
// unaligned stores.
template <class T, int K, class Store>
inline void toPlanes(const T* s, T* const d[K], std::int64_t n) {
    using V = isa::Vec<T>;
    constexpr std::int64_t kLanes = isa::kLanes<T>;
    const auto pixel = [&](std::int64_t x) {
        for (int c = 0; c < K; ++c) d[c][x] = s[x * K + c];
    };
    const auto body = [&](std::int64_t x, auto store) {
        for (; x + kLanes <= n; x += kLanes) {
            V in[K], out[K];
            for (int k = 0; k < K; ++k) in[k] = isa::loadU(s + x * K + k * kLanes);
            toPlaneVecs<K>(in, out);
            for (int c = 0; c < K; ++c) store(d[c] + x, out[c]);
        }
        return x;
    };
    std::int64_t x = commonHead<T, K>(d, n);
    if (x < 0) {
        x = body(0, [](T* p, V v) { isa::storeU(p, v); });
    } else {
        for (std::int64_t h = 0; h < x; ++h) pixel(h);
        x = body(x, [](T* p, V v) { Store::store(p, v); });
    }
    for (; x < n; ++x) pixel(x);
}

// n pixels of K elements from K planes.
template <class T, int K, class Store>
inline void fromPlanes(const T* const s[K], T* d, std::int64_t n) {
    using V = isa::Vec<T>;
    constexpr std::int64_t kLanes = isa::kLanes<T>;
    const auto pixel = [&](std::int64_t x) {
        for (int c = 0; c < K; ++c) d[x * K + c] = s[c][x];
    };
    const auto body = [&](std::int64_t x, auto store) {
        for (; x + kLanes <= n; x += kLanes) {
            V in[K], out[K];
            for (int c = 0; c < K; ++c) in[c] = isa::loadU(s[c] + x);
            toPixelVecs<K>(in, out);
            for (int k = 0; k < K; ++k) store(d + x * K + k * kLanes, out[k]);
        }
        return x;
    };
    std::int64_t x = 0;
    while (x < kLanes && x < n && !isa::alignedV(d + x * K)) ++x;
    if (x == kLanes || x == n) {
        x = body(0, [](T* p, V v) { isa::storeU(p, v); });
    } else {
        for (std::int64_t h = 0; h < x; ++h) pixel(h);
        x = body(x, [](T* p, V v) { Store::store(p, v); });
    }
    for (; x < n; ++x) pixel(x);
}

// ---- 8u rows that write three-element pixels ---------------------------------
// Written for 16-byte vectors (v128), for the layer without a byte shuffle:
// the wider layers move these pixels through their planes
// (isa::kCheapPlaneShuffles) and the families take the general rows there.
// SSE2 has no byte shuffle, so these build the 3-byte pixels from 4-byte ones:
// packPairs4to3 turns each 64-bit lane (two 4-byte pixels) into 6 bytes, and
// two 8-byte stores write the lanes 6 bytes apart. The 2 leftover bytes of
// each store land on the next pixel, which a later store (or the scalar tail)
// writes again, so the body must stop where its last store still ends inside
// the row.

// Four 4-byte pixels (x) as 12 bytes at d; writes d[0..14).
inline void storePacked3(std::uint8_t* d, v128::Vec<std::uint8_t> x) {
    const v128::Vec<std::uint8_t> v = v128::packPairs4to3(x);
    v128::storeLow(d, v);
    v128::storeHigh(d + 6, v);
}

// The first three bytes of each 4-byte source pixel (AC4C3, and C4C3 in
// channel order).
inline void dropFourthRow(const std::uint8_t* s, std::uint8_t* d, std::int64_t n) {
    std::int64_t x = 0;
    for (; x + 17 <= n; x += 16)  // four groups per step: less loop overhead per store
        for (int k = 0; k < 4; ++k) storePacked3(d + 3 * x + 12 * k, v128::loadU(s + 4 * x + 16 * k));
    for (; x + 5 <= n; x += 4) storePacked3(d + 3 * x, v128::loadU(s + 4 * x));
    for (; x < n; ++x) d[3 * x] = s[4 * x], d[3 * x + 1] = s[4 * x + 1], d[3 * x + 2] = s[4 * x + 2];
}

// One byte into the three bytes of each pixel (Dup C1C3). Each value is
// spread to four bytes; a 64-bit lane of two such pixels shifted down by one
// byte holds the first value three times, then the second three times.
inline void dup3Row(const std::uint8_t* s, std::uint8_t* d, std::int64_t n) {
    using V = v128::Vec<std::uint8_t>;
    using W = v128::Vec<std::uint16_t>;
    std::int64_t x = 0;
    for (; x + 17 <= n; x += 16) {
        const V g = v128::loadU(s + x);
        const W lo = v128::cast<std::uint16_t>(v128::zipLo(g, g)), hi = v128::cast<std::uint16_t>(v128::zipHi(g, g));
        const W quad[4] = {v128::zipLo(lo, lo), v128::zipHi(lo, lo), v128::zipLo(hi, hi), v128::zipHi(hi, hi)};
        for (int k = 0; k < 4; ++k) {
            const V v = v128::cast<std::uint8_t>(v128::shiftRight<8>(v128::cast<std::uint64_t>(quad[k])));
            v128::storeLow(d + 3 * x + 12 * k, v);
            v128::storeHigh(d + 3 * x + 12 * k + 6, v);
        }
    }
    for (; x < n; ++x) d[3 * x] = d[3 * x + 1] = d[3 * x + 2] = s[x];
}

// Three planes into three-byte pixels (P3C3). Two pixels are the three 16-bit
// words (r0 g0) (b0 r1) (g1 b1); each is an AND/OR of the planes read as
// 16-bit lanes, and two rounds of word zips put the three words of pair k
// into 64-bit lane k (the fourth word is left over and overwritten).
inline void merge3Row(const std::uint8_t* const s[3], std::uint8_t* d, std::int64_t n) {
    using V = v128::Vec<std::uint8_t>;
    using W = v128::Vec<std::uint16_t>;
    using D = v128::Vec<std::uint32_t>;
    const W low = v128::set1<std::uint16_t>(0x00FF), high = v128::set1<std::uint16_t>(0xFF00);
    std::int64_t x = 0;
    for (; x + 17 <= n; x += 16) {
        const W r = v128::cast<std::uint16_t>(v128::loadU(s[0] + x)), g = v128::cast<std::uint16_t>(v128::loadU(s[1] + x)),
                b = v128::cast<std::uint16_t>(v128::loadU(s[2] + x));
        const W rg = v128::bitOr(v128::bitAnd(r, low), v128::shiftLeft<8>(g));   // r even, g even
        const W br = v128::bitOr(v128::bitAnd(b, low), v128::bitAnd(r, high));   // b even, r odd
        const W gb = v128::bitOr(v128::shiftRight<8>(g), v128::bitAnd(b, high)); // g odd, b odd
        const D first[2] = {v128::cast<std::uint32_t>(v128::zipLo(rg, br)), v128::cast<std::uint32_t>(v128::zipHi(rg, br))};
        const D third[2] = {v128::cast<std::uint32_t>(v128::zipLo(gb, gb)), v128::cast<std::uint32_t>(v128::zipHi(gb, gb))};
        for (int h = 0; h < 2; ++h) {
            const V a = v128::cast<std::uint8_t>(v128::zipLo(first[h], third[h]));
            const V c = v128::cast<std::uint8_t>(v128::zipHi(first[h], third[h]));
            std::uint8_t* p = d + 3 * x + 24 * h;
            v128::storeLow(p, a);
            v128::storeHigh(p + 6, a);
            v128::storeLow(p + 12, c);
            v128::storeHigh(p + 18, c);
        }
    }
    for (; x < n; ++x) d[3 * x] = s[0][x], d[3 * x + 1] = s[1][x], d[3 * x + 2] = s[2][x];
}

// Three-byte pixels into three planes (C3P3), the reverse of merge3Row: each
// 64-bit lane is loaded with a pair of pixels, (r0 g0) (b0 r1) (g1 b1) and a
// leftover word; a 16-bit four-way deinterleave gathers those words of eight
// pairs, and AND/OR of their bytes gives the planes.
template <class Store>
inline void split3Row(const std::uint8_t* s, std::uint8_t* const d[3], std::int64_t n) {
    using W = v128::Vec<std::uint16_t>;
    const W low = v128::set1<std::uint16_t>(0x00FF), high = v128::set1<std::uint16_t>(0xFF00);
    const auto pixel = [&](std::int64_t x) {
        d[0][x] = s[3 * x], d[1][x] = s[3 * x + 1], d[2][x] = s[3 * x + 2];
    };
    const auto body = [&](std::int64_t x, auto store) {
        for (; x + 17 <= n; x += 16) {
            const std::uint8_t* p = s + 3 * x;
            const W in[4] = {v128::cast<std::uint16_t>(v128::loadHalves(p, p + 6)),
                             v128::cast<std::uint16_t>(v128::loadHalves(p + 12, p + 18)),
                             v128::cast<std::uint16_t>(v128::loadHalves(p + 24, p + 30)),
                             v128::cast<std::uint16_t>(v128::loadHalves(p + 36, p + 42))};
            W words[4];
            v128::deinterleave4(in, words);
            store(d[0] + x, v128::cast<std::uint8_t>(v128::bitOr(v128::bitAnd(words[0], low), v128::bitAnd(words[1], high))));
            store(d[1] + x, v128::cast<std::uint8_t>(v128::bitOr(v128::shiftRight<8>(words[0]), v128::shiftLeft<8>(words[2]))));
            store(d[2] + x, v128::cast<std::uint8_t>(v128::bitOr(v128::bitAnd(words[1], low), v128::bitAnd(words[2], high))));
        }
        return x;
    };
    std::int64_t x = commonHead<std::uint8_t, 3, 16>(d, n);
    if (x < 0) {
        x = body(0, [](std::uint8_t* q, v128::Vec<std::uint8_t> v) { v128::storeU(q, v); });
    } else {
        for (std::int64_t h = 0; h < x; ++h) pixel(h);
        x = body(x, [](std::uint8_t* q, v128::Vec<std::uint8_t> v) { Store::store(q, v); });
    }
    for (; x < n; ++x) pixel(x);
}

// Four-element pixels with channels 0 and 2 exchanged and channel 3 copied
// (KeepLast: left as it is), the order {2, 1, 0, 3} of BGRA and RGBA. One
// word shuffle per vector; each vector is read before it is written, so s
// may be d.
template <class T, bool KeepLast>
inline void swapFirstAndThirdRow(const T* s, T* d, std::int64_t n) {
    using V = isa::Vec<T>;
    constexpr std::int64_t kPixels = std::int64_t(isa::kVectorBytes / (4 * sizeof(T)));
    const auto pixel = [&](std::int64_t x) {
        const T c0 = s[4 * x], c1 = s[4 * x + 1], c2 = s[4 * x + 2], c3 = s[4 * x + 3];
        d[4 * x] = c2, d[4 * x + 1] = c1, d[4 * x + 2] = c0;
        if constexpr (!KeepLast) d[4 * x + 3] = c3;
    };
    std::int64_t x = 0;
    while (x < kPixels && x < n && !isa::alignedV(d + 4 * x)) ++x;
    if (x == kPixels) x = 0;  // never aligned: unaligned stores from the start
    for (std::int64_t h = 0; h < x; ++h) pixel(h);
    V last = isa::zero<T>();
    {
        alignas(isa::kVectorBytes) T lane[isa::kLanes<T>];
        for (std::size_t e = 0; e < isa::kLanes<T>; ++e) std::memset(&lane[e], e % 4 == 3 ? 0xFF : 0, sizeof(T));
        last = isa::loadA(lane);
    }
    for (; x + kPixels <= n; x += kPixels) {
        const V v = isa::swapFirstAndThird(isa::loadU(s + 4 * x));
        if constexpr (KeepLast) isa::storeKeep(d + 4 * x, v, last);
        else isa::storeU(d + 4 * x, v);
    }
    for (; x < n; ++x) pixel(x);
}

// Pixels of three elements into channels 1 to 3 of pixels of four; channel 0
// keeps its value (SwapChannels C3C4 with the order {above 3, 0, 1, 2}).
// Destination pixel x, from its channel 0 on, lines up with the four source
// elements that start one element before source pixel x, so the body loads
// the source at 3x - 1 and takes lane 0 of each pixel from the destination.
// How channel 0 is preserved: the scalar head and tail never write it; the
// vector body (16-byte vectors on every target) stores with the channel-0
// lanes kept (v128::storeKeep: rewritten with the values just read).
template <class T>
inline void behindFirstRow(const T* s, T* d, std::int64_t n) {
    using V = v128::Vec<T>;
    constexpr std::int64_t kPixels = std::int64_t(16 / (4 * sizeof(T))) > 0 ? 16 / (4 * sizeof(T)) : 1;
    const auto pixel = [&](std::int64_t x) {
        d[4 * x + 1] = s[3 * x], d[4 * x + 2] = s[3 * x + 1], d[4 * x + 3] = s[3 * x + 2];
    };
    // the first pixel has no element before it; further head pixels align
    // the destination when a pixel boundary ever is aligned
    std::int64_t x = 1;
    while (x < n && x <= kPixels && !v128::aligned16(d + 4 * x)) ++x;
    if (x > kPixels) x = 1;
    for (std::int64_t h = 0; h < x && h < n; ++h) pixel(h);
    // lanes of channel 0
    V first;
    {
        alignas(16) T lane[16 / sizeof(T)];
        for (std::size_t e = 0; e < 16 / sizeof(T); ++e) std::memset(&lane[e], e % 4 == 0 ? 0xFF : 0, sizeof(T));
        first = v128::loadA(lane);
    }
    if constexpr (sizeof(T) == 1) {
        // two pixels per 64-bit lane: the lane loaded at 3x - 1 holds pixel
        // x's dword in bytes 0-3 and pixel x + 1's from byte 3 on, so the
        // upper dword comes from the lane shifted up by one byte
        const V low = v128::cast<T>(v128::set1<std::uint64_t>(0x00000000FFFFFF00ull));
        const V high = v128::cast<T>(v128::set1<std::uint64_t>(0xFFFFFF0000000000ull));
        for (; x + 5 <= n; x += 4) {
            const V y = v128::loadHalves(s + 3 * x - 1, s + 3 * x + 5);
            const V shifted = v128::cast<T>(v128::shiftLeft<8>(v128::cast<std::uint64_t>(y)));
            const V v = v128::bitOr(v128::bitAnd(low, y), v128::bitAnd(high, shifted));
            v128::storeKeep(d + 4 * x, v, first);
        }
    } else if constexpr (sizeof(T) == 2) {
        for (; x + 2 <= n; x += 2) {
            const V y = v128::loadHalves(s + 3 * x - 1, s + 3 * x + 2);
            v128::storeKeep(d + 4 * x, y, first);
        }
    } else {
        for (; x + 1 <= n; ++x) v128::storeKeep(d + 4 * x, v128::loadU(s + 3 * x - 1), first);
    }
    for (; x < n; ++x) pixel(x);
}

}  // namespace kernels
QVN_TARGET_END

#endif
