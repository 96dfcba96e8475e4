// Window kernels of the rank filters: the median, the minimum and the
// maximum of a mask-sized neighbourhood, written once against isa.
//
// Every kernel follows the bordered driver's interface (filter/bordered-inl.h):
// kernel(window, windowStep, out, outStep, widthElements, height) writes
// height rows of widthElements elements from a window that addresses the
// top-left neighbour of the first output; horizontal neighbours are stride
// elements apart (the channel count: channels never mix). With alpha set
// (AC4) every fourth element of out keeps its value.
//
//   NetKernel<T, KW, KH>   the median of up to 5 x 5 values by a sorting
//                          network pruned to the middle rank, on vectors of
//                          output elements; every lane runs the same
//                          operations in the same order as the scalar form.
//   SelectKernel<T>        any mask: the values of each output gathered as
//                          32-bit keys and the middle one selected.
//   HistKernel<Cnt>        8u, masks from 7 up: one 256-bin histogram per
//                          window column, moved down a row with two counts
//                          per column; the window's histogram moved right by
//                          adding the entering column and subtracting the
//                          leaving one. Each median is found from scratch (the
//                          group of 16 bins, then the bin), so no pixel waits
//                          for the previous one. Cnt is the counter (8, 16 or
//                          32 bits), wide enough for the whole window's count;
//                          16-bit counters also keep coarse (16-bin) column
//                          counts and a group's fine counts are brought up to
//                          date only when the median falls in it; 32-bit ones
//                          walk the median from its previous position.
//   CopyKernel<T>          a copy with the alpha rule (1 x 1 masks, bands).
//   ExtremaRows<T, Max>    the row operations of the separable minimum and
//                          maximum (filter/rank-inl.h drives them): a column
//                          pass over up to kDirectRows rows, two output rows
//                          at a time, and the prefix steps of running
//                          extrema over blocks of taller masks; a row pass
//                          over up to kDirectColumns neighbours as one
//                          unrolled tree, up to twice that as a tree of
//                          pairs, or by doubling spans.
//
// Floats: the networks use the vector minimum and maximum (a NaN input
// gives whatever the network makes of it, the same on every target); the
// selection orders the IEEE total order of the bits; the extrema propagate
// NaN (any NaN in the rectangle gives a NaN) where asked to, on rows the
// driver found a NaN in, and use the plain instruction elsewhere.
#ifndef QVN_KERNELS_RANK_INL_H
#define QVN_KERNELS_RANK_INL_H

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#include "core/image.h"
#include "kernels/filter-inl.h"
#include "kernels/isa/isa.h"

QVN_TARGET_BEGIN
namespace kernels {
namespace rank {

template <class T>
using V = isa::Vec<T>;
using std::int32_t;
using std::int64_t;
using filt::forBlocks;
using filt::rowAt;

// ---- output with the alpha rule --------------------------------------------------------------
// The lanes of a vector that are the fourth element of a pixel (AC4 alpha),
// all ones.
template <class T>
struct AlphaLanes {
    alignas(64) unsigned char bytes[64];
    AlphaLanes() {
        for (int b = 0; b < 64; ++b) bytes[b] = (b / int(sizeof(T))) % 4 == 3 ? 0xFF : 0;
    }
    V<T> mask() const { return isa::cast<T>(isa::loadU(bytes)); }
};

template <class T>
struct Output {
    Output(bool a) : alpha(a) {}  // NOLINT: a layout's alpha flag converts
    bool alpha;
    AlphaLanes<T> lanes;
    void put(T* p, V<T> v) const {
        if (alpha) isa::storeKeep(p, v, lanes.mask());
        else isa::storeU(p, v);
    }
    bool skips(int64_t e) const { return alpha && (e & 3) == 3; }
};

// ---- sorting networks ----------------------------------------------------------------------
// One compare-exchange of a network: a receives the smaller value and b the
// larger; lo and hi say which of the two results the median still needs.
struct Exchange {
    int a = 0, b = 0;
    bool lo = false, hi = false;
};
inline constexpr int kMaxExchanges = 160;
struct Network {
    Exchange x[kMaxExchanges] = {};
    int count = 0;
};

// Batcher's odd-even merge sort of n values (valid for any n), then pruned
// backwards to the exchanges the middle rank depends on.
constexpr Network medianNetwork(int n) {
    Network all{};
    for (int p = 1; p < n; p += p)
        for (int k = p; k > 0; k /= 2)
            for (int j = k % p; j + k < n; j += k + k)
                for (int i = 0; i < k && i + j + k < n; ++i)
                    if ((i + j) / (p + p) == (i + j + k) / (p + p)) all.x[all.count++] = {i + j, i + j + k, true, true};
    bool need[32] = {};
    need[(n - 1) / 2] = true;
    bool used[kMaxExchanges] = {};
    for (int c = all.count - 1; c >= 0; --c) {
        Exchange& e = all.x[c];
        e.lo = need[e.a], e.hi = need[e.b];
        used[c] = e.lo || e.hi;
        if (used[c]) need[e.a] = need[e.b] = true;
    }
    Network out{};
    for (int c = 0; c < all.count; ++c)
        if (used[c]) out.x[out.count++] = all.x[c];
    return out;
}
template <int N>
inline constexpr Network kNetwork = medianNetwork(N);

// The minimum and maximum of the networks: the vector forms, and scalar
// forms with the same result (for floats, the vector instruction's: a < b ? a
// : b and a > b ? a : b).
template <class T>
inline V<T> lo(V<T> a, V<T> b) { return isa::min(a, b); }
template <class T>
inline V<T> hi(V<T> a, V<T> b) { return isa::max(a, b); }
template <class T, class = std::enable_if_t<std::is_arithmetic_v<T>>>
inline T lo(T a, T b) { return a < b ? a : b; }
template <class T, class = std::enable_if_t<std::is_arithmetic_v<T>>>
inline T hi(T a, T b) { return a > b ? a : b; }

template <int N, int I, class X>
inline void exchange(X* v) {
    constexpr Exchange e = kNetwork<N>.x[I];
    if constexpr (e.lo && e.hi) {
        const X a = v[e.a];
        v[e.a] = lo(a, v[e.b]);
        v[e.b] = hi(a, v[e.b]);
    } else if constexpr (e.lo) {
        v[e.a] = lo(v[e.a], v[e.b]);
    } else {
        v[e.b] = hi(v[e.a], v[e.b]);
    }
}
template <int N, class X, std::size_t... I>
inline X runNetwork(X* v, std::index_sequence<I...>) {
    (exchange<N, int(I)>(v), ...);
    return v[(N - 1) / 2];
}
template <int N, class X>
inline X median(X* v) {
    return runNetwork<N>(v, std::make_index_sequence<std::size_t(kNetwork<N>.count)>{});
}

template <class T, int KW, int KH>
struct NetKernel {
    static constexpr int N = KW * KH;
    static constexpr int64_t L = int64_t(isa::kLanes<T>);
    int64_t stride;
    Output<T> output;

    int64_t blockElems() const { return L; }

    void operator()(const T* src, int64_t sstep, T* dst, int64_t dstep, int64_t w, int64_t h) const {
        for (int64_t y = 0; y < h; ++y) {
            const T* rows[KH];
            for (int j = 0; j < KH; ++j) rows[j] = rowAt(src, sstep, y + j);
            T* out = byteOffset(dst, y * dstep);
            forBlocks(w, L, [&](int64_t e) {
                V<T> v[N];
                for (int j = 0; j < KH; ++j)
                    for (int i = 0; i < KW; ++i) v[j * KW + i] = isa::loadU(rows[j] + e + i * stride);
                output.put(out + e, median<N>(v));
            }, [&](int64_t e) {
                if (output.skips(e)) return;
                T v[N];
                for (int j = 0; j < KH; ++j)
                    for (int i = 0; i < KW; ++i) v[j * KW + i] = rows[j][e + i * stride];
                out[e] = median<N>(v);
            });
        }
    }
};

// ---- selection -----------------------------------------------------------------------------
// 32-bit keys whose signed order is the values' order: integers as they are,
// floats by the IEEE total order of their bits (-NaN < -inf < ... < -0 < +0
// < ... < +inf < +NaN).
template <class T>
inline int32_t keyOf(T v) {
    if constexpr (std::is_same_v<T, float>) {
        int32_t b;
        std::memcpy(&b, &v, 4);
        return b ^ int32_t(std::uint32_t(b >> 31) >> 1);
    } else {
        return int32_t(v);
    }
}
template <class T>
inline T valueOf(int32_t k) {
    if constexpr (std::is_same_v<T, float>) {
        const int32_t b = k ^ int32_t(std::uint32_t(k >> 31) >> 1);
        float v;
        std::memcpy(&v, &b, 4);
        return v;
    } else {
        return T(k);
    }
}

template <class T>
struct SelectKernel {
    int kw, kh;
    int64_t stride;
    Output<T> output;
    int32_t* slots;  // kw x kh keys

    int64_t blockElems() const { return 1; }

    void operator()(const T* src, int64_t sstep, T* dst, int64_t dstep, int64_t w, int64_t h) const {
        const int64_t n = int64_t(kw) * kh;
        for (int64_t y = 0; y < h; ++y) {
            T* out = byteOffset(dst, y * dstep);
            for (int64_t e = 0; e < w; ++e) {
                if (output.skips(e)) continue;
                int32_t* k = slots;
                for (int j = 0; j < kh; ++j) {
                    const T* p = rowAt(src, sstep, y + j) + e;
                    for (int i = 0; i < kw; ++i) *k++ = keyOf(p[i * stride]);
                }
                std::nth_element(slots, slots + (n - 1) / 2, slots + n);
                out[e] = valueOf<T>(slots[(n - 1) / 2]);
            }
        }
    }
};

// ---- histograms (8u) ------------------------------------------------------------------------
// The sum of the lanes of v, wrapped to Cnt's width and read as signed: the
// change of a count that the caller knows to be smaller than half the range.
template <class Cnt>
inline int32_t wrappedSum(V<Cnt> v) {
    const auto lanes = [](V<std::uint64_t> s) {
        alignas(64) std::uint64_t a[isa::kLanes<std::uint64_t>];
        isa::storeU(a, s);
        std::uint64_t t = 0;
        for (std::uint64_t x : a) t += x;
        return t;
    };
    if constexpr (sizeof(Cnt) == 1) {
        return int32_t(std::int8_t(std::uint8_t(lanes(isa::sumBytes(v)))));
    } else if constexpr (sizeof(Cnt) == 2) {
        const V<std::uint8_t> low = isa::cast<std::uint8_t>(isa::bitAnd(v, isa::set1<Cnt>(Cnt(0xFF))));
        const V<std::uint8_t> high = isa::cast<std::uint8_t>(isa::shiftRight<8>(v));
        return int32_t(std::int16_t(std::uint16_t(lanes(isa::sumBytes(low)) + (lanes(isa::sumBytes(high)) << 8))));
    } else {
        alignas(64) Cnt a[isa::kLanes<Cnt>];
        isa::storeU(a, v);
        std::uint32_t t = 0;
        for (Cnt x : a) t += x;
        return int32_t(t);
    }
}

// 64 counters of all ones, then 64 zeros: loadU(kBelow + 64 - n) has its
// first n lanes set.
template <class Cnt>
struct BelowMask {
    alignas(64) Cnt v[128];
};
template <class Cnt>
constexpr BelowMask<Cnt> belowMask() {
    BelowMask<Cnt> t{};
    for (int i = 0; i < 64; ++i) t.v[i] = Cnt(~Cnt(0));
    return t;
}
template <class Cnt>
inline constexpr BelowMask<Cnt> kBelow = belowMask<Cnt>();

// Of the running sums of 16 counts, how many are at most limit (0 <= limit
// < 65536), with the running sums written to sums: prefix sums within two
// 16-byte vectors, the first's total carried into the second, one unsigned
// compare.
inline int32_t countAtMost(const std::uint16_t* counts, int32_t limit, std::uint16_t* sums) {
    using H = v128::Vec<std::uint16_t>;
    const auto prefix = [](H a) {
        a = v128::add(a, v128::bytesLeft<2>(a));
        a = v128::add(a, v128::bytesLeft<4>(a));
        return v128::add(a, v128::bytesLeft<8>(a));
    };
    const H lo = prefix(v128::loadU(counts));
    v128::storeU(sums, lo);
    const H hi = v128::add(prefix(v128::loadU(counts + 8)), v128::set1(sums[7]));
    v128::storeU(sums + 8, hi);
    // unsigned 16-bit compare through the signed one, both sides biased
    const v128::Vec<std::int16_t> bias = v128::set1(std::int16_t(-32768)), top = v128::set1(std::int16_t(limit - 32768));
    const auto above = [&](H v) { return v128::cmpGt(v128::bitXor(v128::cast<std::int16_t>(v), bias), top); };
    const int mask = v128::moveMask8(above(lo)) | v128::moveMask8(above(hi)) << 16;
    return 16 - __builtin_popcount(unsigned(mask)) / 2;
}

// Bytes of histogram per window column.
template <class Cnt>
inline constexpr int64_t kHistBytes = 256 * int64_t(sizeof(Cnt));

template <class Cnt>
struct HistKernel {
    static constexpr int64_t L = int64_t(isa::kLanes<Cnt>);
    static constexpr int NV = int(256 / L);
    // Output elements per stripe: the stripe's column histograms stay in the
    // second-level cache.
    static constexpr int64_t kStripe = 512;

    int kw, kh;
    int64_t stride;
    Output<Qvn8u> output;
    Cnt* columns;       // 64-byte aligned room for capacity column histograms
    int64_t capacity;

    int64_t blockElems() const { return 1; }

    void operator()(const Qvn8u* src, int64_t sstep, Qvn8u* dst, int64_t dstep, int64_t w, int64_t h) const {
        const int64_t extra = (kw - 1) * stride;
        int64_t s = std::min(w, std::max(kStripe, stride));
        s = std::max(stride, std::min(s, capacity - extra) / stride * stride);
        for (int64_t e0 = 0; e0 < w; e0 += s) stripe(src + e0, sstep, dst + e0, dstep, std::min(s, w - e0), h);
    }

    // 16-bit counters also keep coarse column histograms (16 bins of 16
    // values), on the stack, for stripes of up to kCoarseColumns columns.
    static constexpr int64_t kCoarseColumns = 768;
    using Coarse = std::uint16_t[16];

    void stripe(const Qvn8u* src, int64_t sstep, Qvn8u* dst, int64_t dstep, int64_t s, int64_t h) const {
        const int64_t ncols = s + (kw - 1) * stride;
        Cnt* const H = columns;
        alignas(64) Coarse coarseArea[sizeof(Cnt) == 2 ? kCoarseColumns : 1];
        Coarse* const coarse = sizeof(Cnt) == 2 && ncols <= kCoarseColumns ? coarseArea : nullptr;
        std::memset(H, 0, std::size_t(ncols * kHistBytes<Cnt>));
        if (coarse) std::memset(coarseArea, 0, std::size_t(ncols) * sizeof(Coarse));
        for (int j = 0; j < kh; ++j) {
            const Qvn8u* r = rowAt(src, sstep, j);
            for (int64_t c = 0; c < ncols; ++c) ++H[c * 256 + r[c]];
            if (coarse)
                for (int64_t c = 0; c < ncols; ++c) ++coarse[c][r[c] >> 4];
        }
        int32_t m[4] = {0, 0, 0, 0};  // each channel's median at the start of the previous row
        for (int64_t y = 0; y < h; ++y) {
            if (y > 0) {
                const Qvn8u* gone = rowAt(src, sstep, y - 1);
                const Qvn8u* come = rowAt(src, sstep, y + kh - 1);
                for (int64_t c = 0; c < ncols; ++c) --H[c * 256 + gone[c]], ++H[c * 256 + come[c]];
                if (coarse)
                    for (int64_t c = 0; c < ncols; ++c) --coarse[c][gone[c] >> 4], ++coarse[c][come[c] >> 4];
            }
            Qvn8u* out = byteOffset(dst, y * dstep);
            for (int64_t ch = 0; ch < stride && ch < s; ++ch)
                if (!output.skips(ch)) sweep(out, s, ch, m[ch], coarse);
        }
    }

    // The medians of one channel along the stripe's row. The window's
    // histogram stays in registers: each step adds the entering column and
    // subtracts the leaving one.
    void sweep(Qvn8u* out, int64_t s, int64_t ch, int32_t& m0, const Coarse* coarse) const {
        const Cnt* const H = columns;
        const int64_t step = stride, extra = (kw - 1) * stride;
        const int32_t rank = int32_t((int64_t(kw) * kh - 1) / 2);  // values below the median, at most
        alignas(64) Cnt k[256];
        V<Cnt> kv[NV];
        for (int v = 0; v < NV && !coarse; ++v) {
            kv[v] = isa::loadA(H + ch * 256 + v * L);
            for (int i = 1; i < kw; ++i) kv[v] = isa::add(kv[v], isa::loadA(H + (ch + i * step) * 256 + v * L));
            isa::storeA(k + v * L, kv[v]);
        }
        if (coarse) {
            // The window's coarse histogram, updated at every step, gives the
            // median's group; that group's 16 fine counts are kept per group
            // and brought up to the current step only when the group is used
            // (from scratch when it is a mask width or more behind).
            alignas(16) std::uint16_t kc[16];
            for (int g = 0; g < 16; ++g) {
                kc[g] = 0;
                for (int i = 0; i < kw; ++i) kc[g] = std::uint16_t(kc[g] + coarse[ch + i * step][g]);
            }
            alignas(64) std::uint16_t fine[16][16];
            int64_t at[16];  // the step each group's fine counts are for
            for (int64_t& a : at) a = -int64_t(kw) - 1;
            for (int64_t e = ch, x = 0; e < s; e += step, ++x) {
                if (x > 0) {
                    const std::uint16_t* cin = coarse[e + extra];
                    const std::uint16_t* cgone = coarse[e - step];
                    for (int g = 0; g < 16; ++g) kc[g] = std::uint16_t(kc[g] + cin[g] - cgone[g]);
                }
                alignas(16) std::uint16_t sums[16];
                const int32_t group = countAtMost(kc, rank, sums);
                const int32_t before = group > 0 ? sums[group - 1] : 0;
                std::uint16_t* f = fine[group];
                if (x - at[group] >= kw) {
                    for (int b = 0; b < 16; ++b) f[b] = 0;
                    for (int i = 0; i < kw; ++i) {
                        const Cnt* c = H + (e + i * step) * 256 + group * 16;
                        for (int b = 0; b < 16; ++b) f[b] = std::uint16_t(f[b] + c[b]);
                    }
                } else {
                    for (int64_t t = at[group] + 1; t <= x; ++t) {
                        const Cnt* cin = H + (ch + t * step + extra) * 256 + group * 16;
                        const Cnt* cgone = H + (ch + (t - 1) * step) * 256 + group * 16;
                        for (int b = 0; b < 16; ++b) f[b] = std::uint16_t(f[b] + cin[b] - cgone[b]);
                    }
                }
                at[group] = x;
                out[e] = Qvn8u(group * 16 + countAtMost(f, rank - before, sums));
            }
            (void)m0;
        } else if constexpr (sizeof(Cnt) < 4) {
            for (int64_t e = ch; e < s; e += step) {
                if (e > ch) {
                    const Cnt* in = H + (e + extra) * 256;
                    const Cnt* gone = H + (e - step) * 256;
                    for (int v = 0; v < NV; ++v) {
                        kv[v] = isa::add(kv[v], isa::sub(isa::loadA(in + v * L), isa::loadA(gone + v * L)));
                        isa::storeA(k + v * L, kv[v]);
                    }
                }
                out[e] = Qvn8u(search(kv, k, rank));
            }
            (void)m0;
        } else {
            walkAlong(out, s, ch, m0, kv, k, rank);
        }
    }

    // The median bin of the window's histogram (kv, also stored at k), from
    // scratch: sums of 16-bin groups, the first group whose running sum
    // passes rank, then the bin inside it. No branch depends on the data and
    // nothing on the previous pixel's median, so consecutive pixels overlap.
    static int32_t search(const V<Cnt>* kv, const Cnt* k, int32_t rank) {
        constexpr int64_t P = int64_t(isa::kLanes<std::uint64_t>);
        constexpr int kPer = sizeof(Cnt) == 1 ? 2 : 4;  // 64-bit sums (of 8 or 4 bins) per group of 16
        alignas(64) std::uint64_t part[64];
        for (int v = 0; v < NV; ++v) {
            if constexpr (sizeof(Cnt) == 1) {
                isa::storeA(part + v * P, isa::sumBytes(kv[v]));
            } else {
                const V<std::uint64_t> low = isa::sumBytes(isa::cast<std::uint8_t>(isa::bitAnd(kv[v], isa::set1<Cnt>(Cnt(0xFF)))));
                const V<std::uint64_t> high = isa::sumBytes(isa::cast<std::uint8_t>(isa::shiftRight<8>(kv[v])));
                isa::storeA(part + v * P, isa::add(low, isa::shiftLeft<8>(high)));
            }
        }
        alignas(16) std::uint16_t groups[16], sums[16], fine[16];
        for (int g = 0; g < 16; ++g) {
            std::uint64_t t = 0;
            for (int q = 0; q < kPer; ++q) t += part[g * kPer + q];
            groups[g] = std::uint16_t(t);
        }
        const int32_t group = countAtMost(groups, rank, sums);
        const int32_t before = group > 0 ? sums[group - 1] : 0;
        for (int b = 0; b < 16; ++b) fine[b] = k[group * 16 + b];
        return group * 16 + countAtMost(fine, rank - before, sums);
    }

    // 32-bit counters (masks from 257): the median walked from its previous
    // position, the count of values below it kept by the vector pass.
    void walkAlong(Qvn8u* out, int64_t s, int64_t ch, int32_t& m0, V<Cnt>* kv, Cnt* k, int32_t rank) const {
        const Cnt* const H = columns;
        const int64_t step = stride, extra = (kw - 1) * stride;
        int32_t m = m0, below = 0;
        for (int32_t v = 0; v < m; ++v) below += int32_t(k[v]);
        const auto walk = [&] {
            while (below > rank) below -= int32_t(k[--m]);
            while (below + int32_t(k[m]) <= rank) below += int32_t(k[m++]);
        };
        walk();
        m0 = m;
        out[ch] = Qvn8u(m);
        for (int64_t e = ch + step; e < s; e += step) {
            const Cnt* in = H + (e + extra) * 256;
            const Cnt* gone = H + (e - step) * 256;
            V<Cnt> delta = isa::zero<Cnt>();
            for (int v = 0; v < NV; ++v) {
                const V<Cnt> d = isa::sub(isa::loadA(in + v * L), isa::loadA(gone + v * L));
                kv[v] = isa::add(kv[v], d);
                isa::storeA(k + v * L, kv[v]);
                const int64_t lanesBelow = std::clamp<int64_t>(m - v * L, 0, L);
                delta = isa::add(delta, isa::bitAnd(d, isa::loadU(kBelow<Cnt>.v + 64 - lanesBelow)));
            }
            below += wrappedSum(delta);
            walk();
            out[e] = Qvn8u(m);
        }
    }
};

// ---- copies with the alpha rule ------------------------------------------------------------------
template <class T>
struct CopyKernel {
    static constexpr int64_t L = int64_t(isa::kLanes<T>);
    Output<T> output;

    int64_t blockElems() const { return L; }

    void operator()(const T* src, int64_t sstep, T* dst, int64_t dstep, int64_t w, int64_t h) const {
        for (int64_t y = 0; y < h; ++y) {
            const T* in = rowAt(src, sstep, y);
            T* out = byteOffset(dst, y * dstep);
            forBlocks(w, L, [&](int64_t e) { output.put(out + e, isa::loadU(in + e)); },
                      [&](int64_t e) {
                          if (!output.skips(e)) out[e] = in[e];
                      });
        }
    }
};

// ---- minimum and maximum ---------------------------------------------------------------------
// The vector layers a kernel may run a loop on: isa, or isa_offset for
// loops whose loads sit a few elements off the vector alignment.
template <bool Offset>
struct Layer {
    template <class T>
    static constexpr int64_t kLanes = int64_t(Offset ? isa_offset::kLanes<T> : isa::kLanes<T>);
    template <class T>
    static auto load(const T* p) {
        if constexpr (Offset) return isa_offset::loadU(p);
        else return isa::loadU(p);
    }
    template <class T>
    static bool aligned(const T* p) {
        if constexpr (Offset) return isa_offset::alignedV(p);
        else return isa::alignedV(p);
    }
};

// The extremum of two values. Floats with Propagate: a NaN operand gives a
// NaN (the vector minimum or maximum returns its second operand when either
// is NaN, so both orders are or'ed together). Without it the plain vector
// instruction, for rows known to hold no NaN; on equal values it returns b
// (so +0 or -0 as the operands' order says, the same on every target).
template <class T, bool Max, bool Propagate>
struct Extreme {
    // Any layer's vectors (the layer's functions found by argument).
    template <class W, class = std::enable_if_t<!std::is_arithmetic_v<W>>>
    static W of(W a, W b) {
        if constexpr (std::is_same_v<T, float> && Propagate)
            return Max ? bitOr(max(a, b), max(b, a)) : bitOr(min(a, b), min(b, a));
        else return Max ? max(a, b) : min(a, b);
    }
    static T of(T a, T b) {
        if constexpr (std::is_same_v<T, float> && Propagate) {
            const float x = Max ? hi(a, b) : lo(a, b), y = Max ? hi(b, a) : lo(b, a);
            std::uint32_t bx, by;
            std::memcpy(&bx, &x, 4), std::memcpy(&by, &y, 4);
            bx |= by;
            float r;
            std::memcpy(&r, &bx, 4);
            return r;
        } else {
            return Max ? hi(a, b) : lo(a, b);
        }
    }
};

// Whether any of n floats is a NaN (a NaN is the one value not <= itself).
inline bool anyNaN(const float* p, int64_t n) {
    constexpr int64_t L = int64_t(isa::kLanes<float>);
    const V<float> ones = isa::cmpLe(isa::zero<float>(), isa::zero<float>());
    V<float> ordered = ones;
    bool scalar = false;
    forBlocks(n, L, [&](int64_t e) {
        const V<float> v = isa::loadU(p + e);
        ordered = isa::bitAnd(ordered, isa::cmpLe(v, v));
    }, [&](int64_t e) { scalar |= !(p[e] <= p[e]); });
    return scalar || isa::anyTrue(isa::bitXor(ordered, ones));
}

// Masks up to these sides are combined directly: up to kDirectRows rows, two
// output rows at a time (they share kh - 1 source rows), and up to
// kDirectColumns columns; taller masks by running extrema over blocks of kh
// rows (three operations per element whatever the height), wider ones by
// doubling spans.
inline constexpr int kDirectRows = 5, kDirectColumns = 8;

// The row operations of the separable extrema: the column pass writes the
// extremum of each column of kh rows into a row of column results, the
// row pass the extremum of kw neighbours of such a row (stride elements
// apart) into the output. P: floats may hold NaN (Extreme's Propagate).
template <class T, bool Max>
struct ExtremaRows {
    static constexpr int64_t L = int64_t(isa::kLanes<T>);
    int kw, kh;
    int64_t stride;
    Output<T> output;
    T* ping;  // two rows for the doubling spans of wide masks
    T* pong;
    bool stream = false;  // non-temporal output stores where aligned (never with alpha)

    // d[e] = op(a[e], b[e]) for e < n (d may be a).
    template <bool P>
    static void combine(const T* a, const T* b, T* d, int64_t n) {
        using X = Extreme<T, Max, P>;
        forBlocks(n, L, [&](int64_t e) { isa::storeU(d + e, X::of(isa::loadU(a + e), isa::loadU(b + e))); },
                  [&](int64_t e) { d[e] = X::of(a[e], b[e]); });
    }

    // The extremum of at(I) .. at(I + N - 1) as a balanced tree (short
    // dependency chains), unrolled; vectors and scalars take the same tree.
    template <int I, int N, bool P, class At>
    QVN_ALWAYS_INLINE static auto tree(const At& at) {
        if constexpr (N == 1) {
            return at(I);
        } else {
            constexpr int h = (N + 1) / 2;
            return Extreme<T, Max, P>::of(tree<I, h, P>(at), tree<I + h, N - h, P>(at));
        }
    }

    // f(std::integral_constant<int, n>) for a runtime n in [1, N].
    template <int N, class F>
    QVN_ALWAYS_INLINE static void withConstant(int n, const F& f) {
        if constexpr (N > 1)
            if (n < N) return withConstant<N - 1>(n, f);
        f(std::integral_constant<int, N>{});
    }

    // A step of the running prefix: pd = op(pa, in) (pd may be pa), and
    // d = op(sf, pd); with in null, pd is pa as it is.
    template <bool P>
    static void prefixStep(const T* pa, const T* in, T* pd, const T* sf, T* d, int64_t n) {
        using X = Extreme<T, Max, P>;
        const auto step = [&](auto load, auto store, int64_t e) __attribute__((always_inline)) {
            auto p = load(pa + e);
            if (in) p = X::of(p, load(in + e)), store(pd + e, p);
            store(d + e, X::of(load(sf + e), p));
        };
        forBlocks(n, L, [&](int64_t e) {
            step([](const T* q) { return isa::loadU(q); }, [](T* q, V<T> v) { isa::storeU(q, v); }, e);
        }, [&](int64_t e) { step([](const T* q) { return *q; }, [](T* q, T v) { *q = v; }, e); });
    }

    // o0 over rows r[0 .. kh - 1] and, when o1 is set, o1 over r[1 .. kh]
    // (2 <= kh <= kDirectRows), n elements each.
    template <bool P>
    void columnPair(const T* const* r, T* o0, T* o1, int64_t n) const {
        withConstant<kDirectRows>(kh, [&](auto K) {
            constexpr int h = decltype(K)::value;
            if constexpr (h >= 2) columnPair<P, h>(r, o0, o1, n);
        });
    }
    template <bool P, int H>
    static void columnPair(const T* const* r, T* o0, T* o1, int64_t n) {
        using X = Extreme<T, Max, P>;
        const auto pair = [&](auto load, auto store, int64_t e) __attribute__((always_inline)) {
            const auto shared = tree<1, H - 1, P>([&](int j) __attribute__((always_inline)) { return load(r[j] + e); });
            store(o0 + e, X::of(load(r[0] + e), shared));
            if (o1) store(o1 + e, X::of(shared, load(r[H] + e)));
        };
        forBlocks(n, L, [&](int64_t e) {
            pair([](const T* p) { return isa::loadU(p); }, [](T* p, V<T> v) { isa::storeU(p, v); }, e);
        }, [&](int64_t e) { pair([](const T* p) { return *p; }, [](T* p, T v) { *p = v; }, e); });
    }

    // out[e] = op over v[e + i * stride], i < kw, for e < cw; with v1 and
    // out1 set the same for a second row in the same loop (kw up to
    // kDirectColumns).
    // Streamed rows are fenced here, so no path leaves with a store unfenced.
    template <bool P>
    void across(const T* v, T* out, int64_t cw, const T* v1 = nullptr, T* out1 = nullptr) const {
        if (!stream) return across<P, false>(v, out, cw, v1, out1);
        across<P, true>(v, out, cw, v1, out1);
        isa::storeFence();
    }
    template <bool P, bool S>
    void across(const T* v, T* out, int64_t cw, const T* v1, T* out1) const {
        using X = Extreme<T, Max, P>;
        if (kw <= kDirectColumns) {
            withConstant<kDirectColumns>(kw, [&](auto K) {
                constexpr int k = decltype(K)::value;
                if (v1) acrossDirect<P, S, k, 2>(v, out, cw, v1, out1, stride, (k - 1) * stride);
                else acrossDirect<P, S, k, 1>(v, out, cw, v1, out1, stride, (k - 1) * stride);
            });
            return;
        }
        if (v1) across<P, S>(v1, out1, cw, nullptr, nullptr);
        if (kw <= 2 * kDirectColumns) {
            // pairs r(x) = op(v[x], v[x + stride]), then (kw + 1) / 2 of them
            // two columns apart, the last at kw - 2 (overlapping the one
            // before it when kw is odd: an extremum may count a value twice)
            const int64_t n = cw + (kw - 2) * stride;
            combine<P>(v, v + stride, ping, n);
            withConstant<kDirectColumns>((kw + 1) / 2, [&](auto K) {
                acrossDirect<P, S, decltype(K)::value, 1>(ping, out, cw, nullptr, nullptr, 2 * stride, (kw - 2) * stride);
            });
            return;
        }
        // spans of p columns: r(x) = op over v[x .. x + (p - 1) * stride]
        const T* r = v;
        int64_t n = cw + (kw - 1) * stride, p = 1;
        for (T* next = ping; 2 * p <= kw; next = next == ping ? pong : ping) {
            n -= p * stride;
            const int64_t off = p * stride;
            forBlocks(n, L, [&](int64_t e) { isa::storeU(next + e, X::of(isa::loadU(r + e), isa::loadU(r + e + off))); },
                      [&](int64_t e) { next[e] = X::of(r[e], r[e + off]); });
            r = next, p *= 2;
        }
        const int64_t off = (kw - p) * stride;
        forBlocks(cw, L, [&](int64_t e) {
            const V<T> v = X::of(isa::loadU(r + e), isa::loadU(r + e + off));
            if (S && isa::alignedV(out + e)) isa::storeStream(out + e, v);
            else output.put(out + e, v);
        }, [&](int64_t e) {
            if (!output.skips(e)) out[e] = X::of(r[e], r[e + off]);
        }, S ? filt::alignmentHead(out) : 0);
    }

    // Elements from p to the next vector-aligned one of the layer's vectors.
    template <class Lay>
    static int64_t head(const T* p) {
        const auto a = reinterpret_cast<std::uintptr_t>(p);
        constexpr std::uintptr_t B = std::uintptr_t(Lay::template kLanes<T>) * sizeof(T);
        return int64_t((B - a % B) % B / sizeof(T));
    }

    // K taps of v0 (and v1) per output: at i * s for i < K - 1, the last at
    // lastOff.
    template <bool P, bool S, int K, int R>
    void acrossDirect(const T* v0, T* out0, int64_t cw, const T* v1, T* out1, int64_t s, int64_t lastOff) const {
        using Lay = Layer<true>;
        const auto off = [&](int i) __attribute__((always_inline)) { return i == K - 1 ? lastOff : i * s; };
        const bool alpha = output.alpha;
        const auto keep = Lay::load(reinterpret_cast<const T*>(output.lanes.bytes));
        const T* const v[2] = {v0, v1};
        T* const out[2] = {out0, out1};
        forBlocks(cw, Lay::kLanes<T>, [&](int64_t e) {
            for (int r = 0; r < R; ++r) {
                const T* const p = v[r] + e;
                const auto acc = tree<0, K, P>([&](int i) __attribute__((always_inline)) { return Lay::load(p + off(i)); });
                if (alpha) storeKeep(out[r] + e, acc, keep);
                else if (S && Lay::aligned(out[r] + e)) storeStream(out[r] + e, acc);
                else storeU(out[r] + e, acc);
            }
        }, [&](int64_t e) {
            if (output.skips(e)) return;
            for (int r = 0; r < R; ++r) {
                const T* const p = v[r] + e;
                out[r][e] = tree<0, K, P>([&](int i) { return p[off(i)]; });
            }
        }, S ? head<Lay>(out0) : 0);
    }
};

}  // namespace rank
}  // namespace kernels
QVN_TARGET_END

#endif
