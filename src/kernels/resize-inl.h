// Resize rows: linear interpolation across a source row (the horizontal
// pass), between two interpolated rows into a destination row (the vertical
// pass), and the nearest-neighbour gather.
//
// The horizontal pass reads a source row that the caller copied, with its
// borders, into the work buffer, through a column table: for destination
// column x, the element offset o[x] of its first tap in that row and the two
// weights. It may read a vector past the taps and writes whole steps (the
// caller pads the row, the table and the output). It works on 16-byte
// vectors on every target: each step gathers taps from scattered positions,
// which wider vectors do not speed up.
//
// Arithmetic, the same in every lane and on every target:
//   accurate (W = float; double for 64f): h = a * w0 + b * w1, then
//     r0 * v0 + r1 * v1 rounded to nearest (ties to even) and saturated;
//   fast (8u): h = (a * w0 + b * w1 + 64) >> 7 in 16 bits, then
//     (r0 * v0 + r1 * v1 + 2^20) >> 21, weights of 14 fraction bits.
#ifndef QVN_KERNELS_RESIZE_INL_H
#define QVN_KERNELS_RESIZE_INL_H

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "kernels/isa/isa.h"

QVN_TARGET_BEGIN
namespace kernels {
namespace resize {

template <class T>
inline std::uint64_t bytesAt(const T* p, int n) {
    std::uint64_t u = 0;
    std::memcpy(&u, p, std::size_t(n));
    return u;
}

// Columns that one step of the horizontal pass produces; a row may be
// produced in pieces of whole steps (the last piece pads up to its step).
template <int K, class W>
inline constexpr std::int64_t kAcrossStep = std::is_same_v<W, std::int16_t> ? (K == 1 ? 8 : 2)
                                            : K != 1                         ? 1
                                            : std::is_same_v<W, double>      ? 2
                                                                             : 4;
// Weights a column has in the table: its pair, or (float pixels of 3 or 4
// elements) each of the pair four times, a vector to multiply by.
template <int K, class W>
inline constexpr int kColumnWeights = std::is_same_v<W, float> && K != 1 ? 8 : 2;
// Elements the horizontal pass may read past a column's second tap.
template <int K>
inline constexpr int kAcrossOverread = K == 3 ? 1 : 0;

// ---- horizontal pass, accurate --------------------------------------------------

// Four elements from p as float lanes.
template <class T>
inline v128::Vec<float> four(const T* p) {
    using namespace v128;
    if constexpr (std::is_same_v<T, float>) return loadU(p);
    else return toFloat(load4x32(p));
}

// The two taps of four columns as float lanes: (a0, b0, a1, b1), (a2, b2, a3, b3).
template <class T>
inline void tapPairs(const T* row, const std::int32_t* o, v128::Vec<float>& lo, v128::Vec<float>& hi) {
    using namespace v128;
    if constexpr (std::is_same_v<T, float>) {
        lo = loadHalves(row + o[0], row + o[1]);
        hi = loadHalves(row + o[2], row + o[3]);
    } else if constexpr (sizeof(T) == 1) {
        const std::uint64_t q = bytesAt(row + o[0], 2) | bytesAt(row + o[1], 2) << 16 | bytesAt(row + o[2], 2) << 32 |
                                bytesAt(row + o[3], 2) << 48;
        const Vec<std::uint16_t> w = widenLo<std::uint16_t>(cast<std::uint8_t>(fromLow64(q)));
        lo = toFloat(cast<std::int32_t>(widenLo<std::uint32_t>(w)));
        hi = toFloat(cast<std::int32_t>(widenHi<std::uint32_t>(w)));
    } else {
        using W = std::conditional_t<std::is_signed_v<T>, std::int32_t, std::uint32_t>;
        const auto pair = [&](int k) {
            const std::uint64_t q = bytesAt(row + o[k], 4) | bytesAt(row + o[k + 1], 4) << 32;
            return toFloat(cast<std::int32_t>(widenLo<W>(cast<T>(fromLow64(q)))));
        };
        lo = pair(0);
        hi = pair(2);
    }
}

// Float (or double for 64f) interpolation across: out[x * K + c] =
// row[o[x] + c] * w0 + row[o[x] + K + c] * w1, column x's weights at
// w + kColumnWeights * x.
template <class T, int K, class W>
inline void acrossAccurate(const T* row, const std::int32_t* o, const W* w, W* out, std::int64_t n) {
    using namespace v128;
    if constexpr (std::is_same_v<W, double>) {
        if constexpr (K == 1) {
            for (std::int64_t x = 0; x < n; x += 2) {
                const Vec<double> a = mul(loadU(row + o[x]), loadU(w + 2 * x));
                const Vec<double> b = mul(loadU(row + o[x + 1]), loadU(w + 2 * x + 2));
                storeU(out + x, add(zipLo(a, b), zipHi(a, b)));
            }
        } else {
            for (std::int64_t x = 0; x < n; ++x) {
                const T* p = row + o[x];
                const Vec<double> w0 = set1(w[2 * x]), w1 = set1(w[2 * x + 1]);
                storeU(out + K * x, add(mul(loadU(p), w0), mul(loadU(p + K), w1)));
                storeU(out + K * x + 2, add(mul(loadU(p + 2), w0), mul(loadU(p + K + 2), w1)));
            }
        }
    } else if constexpr (K == 1) {
        for (std::int64_t x = 0; x < n; x += 4) {
            Vec<float> lo, hi;
            tapPairs(row, o + x, lo, hi);
            lo = mul(lo, loadU(w + 2 * x));
            hi = mul(hi, loadU(w + 2 * x + 4));
            storeU(out + x, add(unzipEven(lo, hi), unzipOdd(lo, hi)));
        }
    } else {
        // three-element pixels write a fourth lane that the next pixel overwrites
        for (std::int64_t x = 0; x < n; ++x) {
            const T* p = row + o[x];
            storeU(out + K * x, add(mul(four(p), loadU(w + 8 * x)), mul(four(p + K), loadU(w + 8 * x + 4))));
        }
    }
}

// ---- horizontal pass, fast (8u) ------------------------------------------------------

// (a * w0 + b * w1 + 64) >> 7 of 32-bit sums.
inline v128::Vec<std::int32_t> fixedAcross(v128::Vec<std::int16_t> pairs, v128::Vec<std::int16_t> w) {
    using namespace v128;
    return shiftRight<7>(add(mulAddPairs(pairs, w), set1<std::int32_t>(64)));
}

// 16-bit interpolation across with weight pairs w (int16: w0, w1 per column).
template <int K>
inline void acrossFast(const std::uint8_t* row, const std::int32_t* o, const std::int16_t* w, std::int16_t* out,
                       std::int64_t n) {
    using namespace v128;
    using I16 = std::int16_t;
    if constexpr (K == 1) {
        for (std::int64_t x = 0; x < n; x += 8) {
            const auto quad = [&](int k) {
                return bytesAt(row + o[x + k], 2) | bytesAt(row + o[x + k + 1], 2) << 16 |
                       bytesAt(row + o[x + k + 2], 2) << 32 | bytesAt(row + o[x + k + 3], 2) << 48;
            };
            const Vec<std::uint8_t> b = cast<std::uint8_t>(zipLo(fromLow64(quad(0)), fromLow64(quad(4))));
            const Vec<I16> lo = cast<I16>(widenLo<std::uint16_t>(b)), hi = cast<I16>(widenHi<std::uint16_t>(b));
            storeU(out + x, packSat<I16>(fixedAcross(lo, loadU(w + 2 * x)), fixedAcross(hi, loadU(w + 2 * x + 8))));
        }
    } else {
        // two pixels a step: each pixel's taps interleaved (c0 of a, c0 of b, ...)
        for (std::int64_t x = 0; x < n; x += 2) {
            const auto taps = [&](std::int64_t i) {
                const std::uint8_t* p = row + o[i];
                return zipLo(cast<std::uint8_t>(fromLow32(std::uint32_t(bytesAt(p, 4)))),
                             cast<std::uint8_t>(fromLow32(std::uint32_t(bytesAt(p + K, 4)))));
            };
            const Vec<std::uint8_t> b = cast<std::uint8_t>(zipLo(cast<std::uint64_t>(taps(x)), cast<std::uint64_t>(taps(x + 1))));
            const auto weight = [&](std::int64_t i) { return cast<I16>(set1<std::uint32_t>(std::uint32_t(bytesAt(w + 2 * i, 4)))); };
            const Vec<I16> v = packSat<I16>(fixedAcross(cast<I16>(widenLo<std::uint16_t>(b)), weight(x)),
                                            fixedAcross(cast<I16>(widenHi<std::uint16_t>(b)), weight(x + 1)));
            if constexpr (K == 4) {
                storeU(out + 4 * x, v);
            } else {  // the fourth lane of each pixel is overwritten by the next
                storeLow(out + 3 * x, v);
                storeLow(out + 3 * x + 3, bytesRight<8>(v));
            }
        }
    }
}

// ---- vertical pass ---------------------------------------------------------------------

// Stores the first n elements of a step computed into a vector-aligned
// temporary: the last, partial step of a row.
template <class T, class Fn>
inline void partialStep(T* d, std::int64_t n, Fn step) {
    alignas(64) T tmp[64 * 2 / sizeof(T)];
    step(tmp);
    std::memcpy(d, tmp, std::size_t(n) * sizeof(T));
}

// d[e] = r0[e] * v0 + r1[e] * v1, rounded and saturated to T (rounding
// control set to nearest by the caller). Reads whole steps of the rows.
template <class T, class W>
inline void downAccurate(const W* r0, const W* r1, W v0, W v1, T* d, std::int64_t n) {
    using namespace isa;
    constexpr std::int64_t kW = std::int64_t(kLanes<W>);
    const Vec<W> a = set1(v0), b = set1(v1);
    const auto at = [&](std::int64_t e) { return add(mul(loadU(r0 + e), a), mul(loadU(r1 + e), b)); };
    constexpr std::int64_t kStep = std::is_same_v<T, W> ? kW : sizeof(T) == 1 ? 4 * kW : 2 * kW;
    const auto step = [&](std::int64_t e, T* out) {
        if constexpr (std::is_same_v<T, W>) {
            storeU(out, at(e));
        } else if constexpr (sizeof(T) == 1) {
            const Vec<std::int16_t> lo = packSat<std::int16_t>(toInt(at(e)), toInt(at(e + kW)));
            const Vec<std::int16_t> hi = packSat<std::int16_t>(toInt(at(e + 2 * kW)), toInt(at(e + 3 * kW)));
            storeU(out, packSat<std::uint8_t>(lo, hi));
        } else {
            storeU(out, packSat<T>(toInt(at(e)), toInt(at(e + kW))));
        }
    };
    std::int64_t e = 0;
    for (; e + kStep <= n; e += kStep) step(e, d + e);
    if (e < n) partialStep(d + e, n - e, [&](T* tmp) { step(e, tmp); });
}

// d[e] = (r0[e] * v0 + r1[e] * v1 + 2^20) >> 21 of 16-bit rows; vs holds the
// pair (v0, v1).
inline void downFast(const std::int16_t* r0, const std::int16_t* r1, std::uint32_t vs, std::uint8_t* d,
                     std::int64_t n) {
    using namespace isa;
    using I16 = std::int16_t;
    constexpr std::int64_t kStep = std::int64_t(kLanes<std::uint8_t>), kH = std::int64_t(kLanes<I16>);
    const Vec<I16> v = cast<I16>(set1<std::uint32_t>(vs));
    const Vec<std::int32_t> half = set1<std::int32_t>(1 << 20);
    const auto rows16 = [&](std::int64_t e) {
        const Vec<I16> a = loadU(r0 + e), b = loadU(r1 + e);
        return packSat<I16>(shiftRight<21>(add(mulAddPairs(zipLo(a, b), v), half)),
                            shiftRight<21>(add(mulAddPairs(zipHi(a, b), v), half)));
    };
    const auto step = [&](std::int64_t e, std::uint8_t* out) { storeU(out, packSat<std::uint8_t>(rows16(e), rows16(e + kH))); };
    std::int64_t e = 0;
    for (; e + kStep <= n; e += kStep) step(e, d + e);
    if (e < n) partialStep(d + e, n - e, [&](std::uint8_t* tmp) { step(e, tmp); });
}

// ---- nearest neighbour ---------------------------------------------------------------------

// Pixels of B bytes: out[x] = the pixel at byte offset o[x] of row.
template <int B>
inline void gather(const std::uint8_t* row, const std::int32_t* o, std::uint8_t* out, std::int64_t n) {
    for (std::int64_t x = 0; x < n; ++x) std::memcpy(out + B * x, row + o[x], B);
}

// Pixels of 1, 2 or 4 bytes gathered 16 output bytes at a time: a block whose
// pixels lie in the 16 or 32 bytes from its base is one or two byte-table
// lookups on the targets with a byte shuffle; on every target a block of
// every second pixel from its base (a reduction by 2) is the even pixels of
// two loads. The plan of a row's blocks is made once per call (every row has
// the same columns).
template <int B>
inline constexpr bool kBlockGather = B == 1 || B == 2 || B == 4;
struct GatherBlock {
    enum : std::int32_t { kPixels, kOneTable, kTwoTables, kEven };
    std::int32_t base;  // byte offset of the source bytes the block reads
    std::int32_t how;
    std::uint8_t table[2][16];
};

// The plan of the blocks of n columns; loads may read source bytes up to hi
// (from the row pointer); a block's base is one of its pixels.
template <int B>
inline void planBlocks(const std::int32_t* o, std::int64_t n, std::int64_t hi, GatherBlock* plan) {
    constexpr std::int64_t kPer = 16 / B;
    for (std::int64_t x = 0, k = 0; x + kPer <= n; x += kPer, ++k) {
        GatherBlock& g = plan[k];
        std::int32_t base = o[x], top = o[x];
        bool even = true;
        for (std::int64_t i = 1; i < kPer; ++i) {
            base = std::min(base, o[x + i]), top = std::max(top, o[x + i]);
            even = even && o[x + i] == o[x] + 2 * B * i;
        }
        const std::int64_t span = top + B - base;
        g.base = base;
        g.how = QVN_TARGET_LEVEL >= 2 && span <= 16 && base + 16 <= hi ? GatherBlock::kOneTable
                : QVN_TARGET_LEVEL >= 2 && span <= 32 && base + 32 <= hi ? GatherBlock::kTwoTables
                : even && base + 32 <= hi                                ? GatherBlock::kEven
                                                                         : GatherBlock::kPixels;
        for (int j = 0; j < 16; ++j) {
            const int at = int(o[x + j / B] - base) + j % B;
            g.table[0][j] = at < 16 ? std::uint8_t(at) : 0x80;
            g.table[1][j] = at < 16 ? 0x80 : std::uint8_t(at - 16);
        }
    }
}

template <int B>
inline void gatherBlocks(const std::uint8_t* row, const std::int32_t* o, const GatherBlock* plan, std::uint8_t* out,
                         std::int64_t n) {
    using namespace v128;
    using U = std::conditional_t<B == 1, std::uint8_t, std::conditional_t<B == 2, std::uint16_t, std::uint32_t>>;
    constexpr std::int64_t kPer = 16 / B;
    std::int64_t x = 0;
    for (const GatherBlock* g = plan; x + kPer <= n; x += kPer, ++g) {
        const std::uint8_t* p = row + g->base;
        switch (g->how) {
            case GatherBlock::kEven:
                storeU(out + B * x, cast<std::uint8_t>(unzipEven(loadU(reinterpret_cast<const U*>(p)),
                                                                 loadU(reinterpret_cast<const U*>(p + 16)))));
                break;
#if QVN_TARGET_LEVEL >= 2
            case GatherBlock::kOneTable: storeU(out + B * x, byteTable(loadU(p), g->table[0])); break;
            case GatherBlock::kTwoTables:
                storeU(out + B * x, bitOr(byteTable(loadU(p), g->table[0]), byteTable(loadU(p + 16), g->table[1])));
                break;
#endif
            default: gather<B>(row, o + x, out + B * x, kPer);
        }
    }
    gather<B>(row, o + x, out + B * x, n - x);
}

}  // namespace resize
}  // namespace kernels
QVN_TARGET_END

#endif
