// Channel shuffle rows: pixels of KS elements to pixels of KD elements by a
// channel map, and interleaved pixels to and from planes.
#ifndef QVN_KERNELS_SHUFFLE_INL_H
#define QVN_KERNELS_SHUFFLE_INL_H

#include <cstdint>
#include <cstring>

#include "kernels/isa/sse3.h"
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
    // head: pixels until the destination is 16-byte aligned, when a pixel
    // boundary ever is
    while (x < kLanes && x < n && !isa::aligned16(d + x * KD)) ++x;
    if (x == kLanes || x == n) x = 0;
    for (std::int64_t h = 0; h < x; ++h) pixel(h);
    if (x + kLanes <= vecEnd) {
        V keep[3];
        channelLanes<T, KD>(0, map.keep, keep);
        V planes[KS + 1];
        planes[KS] = isa::set1(map.fill);
        for (; x + kLanes <= vecEnd; x += kLanes) {
            V in[KS], out[KD], px[KD];
            for (int k = 0; k < KS; ++k) in[k] = isa::loadU(s + x * KS + k * kLanes);
            toPlaneVecs<KS>(in, planes);
            for (int c = 0; c < KD; ++c) out[c] = planes[map.from[c]];
            toPixelVecs<KD>(out, px);
            for (int k = 0; k < KD; ++k) {
                T* p = d + x * KD + k * kLanes;
                V v = px[k];
                if (map.keep) v = isa::select(keep[KD == 3 ? k : 0], isa::loadU(p), v);
                isa::storeU(p, v);
            }
        }
    }
    for (; x < n; ++x) pixel(x);
}

// Reorders the channels of pixels of K elements into another image (not in
// place): element i of the destination is source element i + from[c] - c, c
// being i's channel. Each distinct offset from[c] - c is one unaligned load
// of the source row masked to the lanes that use it, so the body costs a few
// loads and logic operations per vector whatever the order. Channels in
// map.keep are left as they are.
template <class T, int K>
inline void permuteRow(const T* s, T* d, std::int64_t n, const PixelMap<T, K, K>& map) {
    using V = isa::Vec<T>;
    constexpr std::int64_t kLanes = isa::kLanes<T>;
    constexpr int kPeriod = K == 3 ? 3 : 1;
    const std::int64_t total = n * K;
    const auto one = [&](std::int64_t i) {
        const int c = int(i % K);
        if (!((map.keep >> c) & 1u)) d[i] = s[i - c + map.from[c]];
    };
    // vector body only where every offset load stays inside the row
    std::int64_t i = headToAlign16(d, total);
    if (i < 0) i = total;
    if (i < K) i += (K - i + kLanes - 1) / kLanes * kLanes;  // whole vectors keep the alignment
    const std::int64_t end = total - K;
    for (std::int64_t h = 0; h < i && h < total; ++h) one(h);
    if (i + kLanes <= end) {
        int offsets[2 * K - 1], count = 0;
        V lanes[2 * K - 1][3], keep[3];
        for (int off = -(K - 1); off <= K - 1; ++off) {
            unsigned chans = 0;
            for (int c = 0; c < K; ++c)
                if (!((map.keep >> c) & 1u) && map.from[c] - c == off) chans |= 1u << c;
            if (!chans) continue;
            channelLanes<T, K>(i, chans, lanes[count]);
            offsets[count++] = off;
        }
        channelLanes<T, K>(i, map.keep, keep);
        for (int k = 0; i + kLanes <= end; i += kLanes, k = k + 1 == kPeriod ? 0 : k + 1) {
            V v = map.keep ? isa::bitAnd(keep[k], isa::loadA(d + i)) : isa::zero<T>();
            for (int j = 0; j < count; ++j)
                v = isa::bitOr(v, isa::bitAnd(lanes[j][k], isa::loadU(s + i + offsets[j])));
            isa::storeA(d + i, v);
        }
    }
    for (; i < total; ++i) one(i);
}

// Elements before every pointer of ps reaches 16-byte alignment at the same
// element, at most n; -1 when they never do together.
template <class T, int K>
inline std::int64_t commonHead(T* const ps[K], std::int64_t n) {
    const auto a = reinterpret_cast<std::uintptr_t>(ps[0]);
    for (int c = 1; c < K; ++c)
        if (reinterpret_cast<std::uintptr_t>(ps[c]) % 16 != a % 16) return -1;
    return headToAlign16(ps[0], n);
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
    while (x < kLanes && x < n && !isa::aligned16(d + x * K)) ++x;
    if (x == kLanes || x == n) {
        x = body(0, [](T* p, V v) { isa::storeU(p, v); });
    } else {
        for (std::int64_t h = 0; h < x; ++h) pixel(h);
        x = body(x, [](T* p, V v) { Store::store(p, v); });
    }
    for (; x < n; ++x) pixel(x);
}

}  // namespace kernels
QVN_TARGET_END

#endif
