// Conversion rows: element-type conversion with saturation, rounding and an
// optional linear map, a block of as many elements as a vector has bytes.
//
// Two operations share one row template:
//  - IntConvert: integer to integer, exact when widening, saturating when
//    narrowing (negative values become 0 in unsigned destinations);
//  - FloatConvert: everything that passes through floating point. The block is
//    loaded into float or double lanes (exactly), optionally mapped linearly,
//    and for integer destinations a half is added away from zero (financial
//    rounding), NaN becomes 0, the value is saturated to the destination range
//    and converted with the processor's rounding control, which the caller
//    sets for the call (RoundingScope).
// Heads and tails go through the same block on a staged copy, so every element
// of a row gets exactly the same arithmetic.
#ifndef QVN_KERNELS_CONVERT_INL_H
#define QVN_KERNELS_CONVERT_INL_H

#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "kernels/isa/isa.h"
#include "kernels/store-inl.h"
#include "qvnip_types.h"

// The block helpers below must melt into one loop body: left to itself the
// compiler keeps some of them out of line and passes the vectors in memory.
#ifndef QVN_ALWAYS_INLINE
#define QVN_ALWAYS_INLINE inline __attribute__((always_inline))
#endif

QVN_TARGET_BEGIN
namespace kernels {

inline constexpr std::int64_t kConvertBlock = isa::kVectorBytes;  // elements per block
inline constexpr std::int64_t kPrefetchAhead = 1024;  // source bytes read ahead

// Stores v at the vector-aligned p; with Keep the lanes set in keep (alpha)
// keep the destination's previous value.
template <bool Keep, class Store, class D>
QVN_ALWAYS_INLINE void put(D* p, isa::Vec<D> v, isa::Vec<D> keep) {
    if constexpr (Keep) isa::storeKeep(p, v, keep);
    else Store::store(p, v);
}

// A block of an integer type of up to 16 bits (or 32 bits, taken as they are)
// as four int32 vectors.
template <class S>
QVN_ALWAYS_INLINE void loadInt32(const S* s, isa::Vec<std::int32_t>* v) {
    using namespace isa;
    using I32 = std::int32_t;
    if constexpr (sizeof(S) == 1) {
        using H = std::conditional_t<std::is_signed_v<S>, std::int16_t, std::uint16_t>;
        using W = std::conditional_t<std::is_signed_v<S>, std::int32_t, std::uint32_t>;
        const Vec<S> a = loadU(s);
        const Vec<H> lo = widenLo<H>(a), hi = widenHi<H>(a);
        v[0] = cast<I32>(widenLo<W>(lo));
        v[1] = cast<I32>(widenHi<W>(lo));
        v[2] = cast<I32>(widenLo<W>(hi));
        v[3] = cast<I32>(widenHi<W>(hi));
    } else if constexpr (sizeof(S) == 2) {
        using W = std::conditional_t<std::is_signed_v<S>, std::int32_t, std::uint32_t>;
        for (int k = 0; k < 2; ++k) {
            const Vec<S> a = loadU(s + kLanes<S> * k);
            v[2 * k] = cast<I32>(widenLo<W>(a));
            v[2 * k + 1] = cast<I32>(widenHi<W>(a));
        }
    } else {
        static_assert(sizeof(S) == 4, "integer source");
        for (int k = 0; k < 4; ++k) v[k] = cast<I32>(loadU(s + kLanes<S> * k));
    }
}

// Four int32 vectors saturated to D and stored (one block).
template <class D, bool Keep, class Store>
QVN_ALWAYS_INLINE void storeInt32(D* d, const isa::Vec<std::int32_t>* v, isa::Vec<D> keep) {
    using namespace isa;
    if constexpr (sizeof(D) == 1) {
        const Vec<std::int16_t> a = packSat<std::int16_t>(v[0], v[1]), b = packSat<std::int16_t>(v[2], v[3]);
        put<Keep, Store>(d, packSat<D>(a, b), keep);
    } else if constexpr (sizeof(D) == 2) {
        put<Keep, Store>(d, packSat<D>(v[0], v[1]), keep);
        put<Keep, Store>(d + kLanes<D>, packSat<D>(v[2], v[3]), keep);
    } else if constexpr (std::is_same_v<D, std::uint32_t>) {
        for (int k = 0; k < 4; ++k)
            put<Keep, Store>(d + kLanes<D> * k, cast<D>(max(v[k], zero<std::int32_t>())), keep);
    } else {
        for (int k = 0; k < 4; ++k) put<Keep, Store>(d + kLanes<D> * k, v[k], keep);
    }
}

// Integer to integer.
template <class S, class D>
struct IntConvert {
    template <bool Keep, class Store>
    QVN_ALWAYS_INLINE void block(const S* s, D* d, isa::Vec<D> keep) const {
        using namespace isa;
        constexpr bool kSignedToUnsigned = std::is_signed_v<S> && !std::is_signed_v<D>;
        if constexpr (sizeof(S) == 1 && sizeof(D) == 2 && !kSignedToUnsigned) {
            // 8u16u, 8u16s, 8s16s: one widening step
            using H = std::conditional_t<std::is_signed_v<S>, std::int16_t, std::uint16_t>;
            const Vec<S> a = loadU(s);
            put<Keep, Store>(d, cast<D>(widenLo<H>(a)), keep);
            put<Keep, Store>(d + kLanes<D>, cast<D>(widenHi<H>(a)), keep);
        } else if constexpr (sizeof(S) == 2 && std::is_same_v<D, std::uint8_t>) {
            // 16s8u, 16u8u: one saturating pack (16u first limited to 255)
            Vec<std::int16_t> a = cast<std::int16_t>(loadU(s)), b = cast<std::int16_t>(loadU(s + kLanes<S>));
            if constexpr (!std::is_signed_v<S>) {
                const Vec<std::uint16_t> top = set1<std::uint16_t>(255);
                a = cast<std::int16_t>(min(cast<std::uint16_t>(a), top));
                b = cast<std::int16_t>(min(cast<std::uint16_t>(b), top));
            }
            put<Keep, Store>(d, packSat<D>(a, b), keep);
        } else if constexpr (sizeof(S) == sizeof(D) && sizeof(S) <= 2 && kSignedToUnsigned) {
            // 8s8u, 16s16u: negative lanes to 0
            for (std::size_t k = 0; k < kConvertBlock; k += kLanes<S>) {
                const Vec<S> a = loadU(s + k);
                put<Keep, Store>(d + k, cast<D>(andNot(cmpGt(zero<S>(), a), a)), keep);
            }
        } else {
            Vec<std::int32_t> v[4];
            loadInt32(s, v);
            storeInt32<D, Keep, Store>(d, v, keep);
        }
    }
};

// A block of S as float (4 vectors) or double (8 vectors) lanes. Exact,
// except 32s and 32u into float, which round by the rounding control.
template <class S, class W>
QVN_ALWAYS_INLINE void loadWide(const S* s, isa::Vec<W>* w) {
    using namespace isa;
    constexpr int kN = int(kConvertBlock / kLanes<W>);
    if constexpr (std::is_same_v<S, W>) {
        for (int k = 0; k < kN; ++k) w[k] = loadU(s + k * kLanes<W>);
    } else if constexpr (std::is_same_v<S, float>) {
        for (int k = 0; k < 4; ++k) {
            const Vec<float> f = loadU(s + kLanes<float> * k);
            w[2 * k] = toDoubleLo(f);
            w[2 * k + 1] = toDoubleHi(f);
        }
    } else if constexpr (std::is_same_v<S, std::uint32_t> && std::is_same_v<W, double>) {
        // biased into the signed range, converted, unbiased (all exact)
        const Vec<double> bias = set1(2147483648.0);
        for (int k = 0; k < 4; ++k) {
            const Vec<std::int32_t> i =
                cast<std::int32_t>(bitXor(loadU(s + kLanes<S> * k), set1<std::uint32_t>(0x80000000u)));
            w[2 * k] = add(toDoubleLo(i), bias);
            w[2 * k + 1] = add(toDoubleHi(i), bias);
        }
    } else if constexpr (std::is_same_v<S, std::uint32_t>) {
        // high and low 16 bits converted exactly, one rounding in the sum
        for (int k = 0; k < 4; ++k) {
            const Vec<std::uint32_t> u = loadU(s + kLanes<S> * k);
            const Vec<float> hi = toFloat(cast<std::int32_t>(shiftRight<16>(u)));
            const Vec<float> lo = toFloat(cast<std::int32_t>(bitAnd(u, set1<std::uint32_t>(0xFFFFu))));
            w[k] = add(mul(hi, set1(65536.0f)), lo);
        }
    } else {
        Vec<std::int32_t> v[4];
        loadInt32(s, v);
        for (int k = 0; k < 4; ++k) {
            if constexpr (std::is_same_v<W, float>) {
                w[k] = toFloat(v[k]);
            } else {
                w[2 * k] = toDoubleLo(v[k]);
                w[2 * k + 1] = toDoubleHi(v[k]);
            }
        }
    }
}

// A block of W lanes stored as D. Integer destinations expect lanes already
// clamped to their range; the conversion rounds by the rounding control.
template <class D, bool Keep, class Store, class W>
QVN_ALWAYS_INLINE void storeWide(D* d, const isa::Vec<W>* w, isa::Vec<D> keep) {
    using namespace isa;
    constexpr int kN = int(kConvertBlock / kLanes<W>);
    if constexpr (std::is_same_v<D, W>) {
        for (int k = 0; k < kN; ++k) put<Keep, Store>(d + k * kLanes<W>, w[k], keep);
    } else if constexpr (std::is_same_v<D, float>) {
        for (int k = 0; k < 4; ++k) put<Keep, Store>(d + kLanes<D> * k, toFloat(w[2 * k], w[2 * k + 1]), keep);
    } else if constexpr (std::is_same_v<D, std::uint32_t>) {
        static_assert(std::is_same_v<W, double>, "32u results go through double");
        // Adding 2^52 rounds a value in 0..2^32-1 to an integer (by the
        // rounding control) and leaves that integer in the low mantissa bits.
        const Vec<double> magic = set1(4503599627370496.0);
        for (int k = 0; k < 4; ++k)
            put<Keep, Store>(d + kLanes<D> * k, lowHalves(add(w[2 * k], magic), add(w[2 * k + 1], magic)), keep);
    } else {
        Vec<std::int32_t> v[4];
        for (int k = 0; k < 4; ++k) {
            if constexpr (std::is_same_v<W, float>) v[k] = toInt(w[k]);
            else v[k] = toInt(w[2 * k], w[2 * k + 1]);
        }
        if constexpr (std::is_same_v<D, std::uint16_t>) {
            // lanes are within 0..65535: bias into the signed range and pack
            const Vec<std::int32_t> bias = set1<std::int32_t>(32768);
            for (int k = 0; k < 2; ++k) {
                const Vec<std::int16_t> p = packSat<std::int16_t>(sub(v[2 * k], bias), sub(v[2 * k + 1], bias));
                put<Keep, Store>(d + kLanes<D> * k, cast<D>(bitXor(p, set1<std::int16_t>(-32768))), keep);
            }
        } else {
            storeInt32<D, Keep, Store>(d, v, keep);
        }
    }
}

// The map a FloatConvert applies before rounding: none, x * mul + add, or
// (x * mul) * mul2 (a power of two split in two factors, so that scale
// factors beyond the exponent range of one factor stay exact).
enum class Map { kNone, kMulAdd, kScale };

// Conversions through floating point; W is float or double. With kFinancial a
// half is added away from zero before the conversion, which then truncates
// (the caller has set the rounding control toward zero).
template <class S, class D, class W, Map kMap, bool kFinancial>
struct FloatConvert {
    isa::Vec<W> mul, add, mul2, lo, hi;

    static FloatConvert make(W mulBy = W(1), W addTo = W(0), W mulBy2 = W(1)) {
        FloatConvert op;
        op.mul = isa::set1(mulBy);
        op.add = isa::set1(addTo);
        op.mul2 = isa::set1(mulBy2);
        if constexpr (std::is_integral_v<D>) {
            op.lo = isa::set1(W(std::numeric_limits<D>::min()));
            op.hi = isa::set1(W(std::numeric_limits<D>::max()));
        } else {
            op.lo = op.hi = isa::zero<W>();
        }
        return op;
    }

    static constexpr int kVectors = int(kConvertBlock / isa::kLanes<W>);

    template <bool Keep, class Store>
    QVN_ALWAYS_INLINE void block(const S* s, D* d, isa::Vec<D> keep) const {
        isa::Vec<W> w[kVectors];
        loadWide<S, W>(s, w);
        map(w);
        finish<Keep, Store>(w, d, keep);
    }

    // The linear map of one block, in place.
    QVN_ALWAYS_INLINE void map(isa::Vec<W>* w) const {
        for (int k = 0; k < kVectors; ++k) {
            if constexpr (kMap == Map::kMulAdd) w[k] = isa::add(isa::mul(w[k], mul), add);
            if constexpr (kMap == Map::kScale) w[k] = isa::mul(isa::mul(w[k], mul), mul2);
        }
    }

    // Rounding, saturation and the store of a mapped block.
    template <bool Keep, class Store>
    QVN_ALWAYS_INLINE void finish(isa::Vec<W>* w, D* d, isa::Vec<D> keep) const {
        using namespace isa;
        if constexpr (kFinancial) {
            for (int k = 0; k < kVectors; ++k)
                w[k] = isa::add(w[k], bitOr(bitAnd(w[k], set1(W(-0.0))), set1(W(0.5))));
        }
        if constexpr (std::is_same_v<W, float> && std::is_integral_v<D> && std::is_signed_v<D> && sizeof(D) <= 2) {
            // Converted as they are, every lane is right (the packs saturate
            // the low end) unless it is NaN or at least 2^31, which convert
            // to INT32_MIN; a block with such a lane takes the clamps below.
            Vec<std::int32_t> v[kVectors];
            Vec<float> unusual = zero<float>();
            for (int k = 0; k < kVectors; ++k) {
                v[k] = toInt(w[k]);
                unusual = bitOr(unusual, cmpNotLess(w[k], set1(2147483648.0f)));
            }
            if (__builtin_expect(!anyTrue(unusual), 1)) {
                storeInt32<D, Keep, Store>(d, v, keep);
                return;
            }
        }
        for (int k = 0; k < kVectors; ++k) {
            Vec<W> x = w[k];
            if constexpr (std::is_integral_v<D> && sizeof(D) <= 2) {
                // Conversions give INT32_MIN for NaN and out-of-range lanes,
                // which the packs saturate to the minimum: only the top needs
                // a clamp (min keeps a NaN in its second operand), NaN is
                // zeroed for signed results, and 16u is kept non-negative
                // for its biased pack.
                if constexpr (std::is_signed_v<D>) x = bitAnd(x, cmpEq(x, x));
                if constexpr (std::is_same_v<D, std::uint16_t>) x = max(x, zero<W>());
                x = min(hi, x);
            } else if constexpr (std::is_integral_v<D>) {
                x = bitAnd(x, cmpEq(x, x));  // NaN -> 0
                x = min(max(x, lo), hi);
            }
            w[k] = x;
        }
        storeWide<D, Keep, Store>(d, w, keep);
    }
};

// x * mul + add computed in float and rounded to an integer by the rounding
// control, for results the caller has bounded well inside the int32 range
// (no clamp before the conversion; the packs saturate to D). Without kChecked
// the float results are the double results. With kChecked the caller bounds
// the float error of every lane by some e < 1/8 and passes limit <= 0.5 - e:
// a float result whose distance to its nearest integer is at most limit lies
// closer than 0.5 to that integer in double as well, so both round to it. A
// block with a lane farther from its integer (near a half, where the two could
// round apart) is recomputed in double. Integer sources of up to 16 bits and
// integer destinations only.
template <class S, class D, bool kChecked>
struct MulAddToInt {
    FloatConvert<S, D, float, Map::kMulAdd, false> fast;
    FloatConvert<S, D, double, Map::kMulAdd, false> exact;
    isa::Vec<float> limit;

    static MulAddToInt make(double mulBy, double addTo, float limitTo = 0.0f) {
        return {FloatConvert<S, D, float, Map::kMulAdd, false>::make(float(mulBy), float(addTo)),
                FloatConvert<S, D, double, Map::kMulAdd, false>::make(mulBy, addTo), isa::set1(limitTo)};
    }

    template <bool Keep, class Store>
    QVN_ALWAYS_INLINE void block(const S* s, D* d, isa::Vec<D> keep) const {
        using namespace isa;
        static_assert(std::is_integral_v<S> && sizeof(S) <= 2 && std::is_integral_v<D>, "small integers");
        Vec<float> w[4];
        loadWide<S, float>(s, w);
        fast.map(w);
        Vec<std::int32_t> v[4];
        for (int k = 0; k < 4; ++k) v[k] = toInt(w[k]);
        if constexpr (kChecked) {
            // the largest distance of the block's lanes to their integers
            Vec<float> far = zero<float>();
            for (int k = 0; k < 4; ++k) far = max(far, andNot(set1(-0.0f), sub(w[k], toFloat(v[k]))));
            if (__builtin_expect(anyTrue(cmpGt(far, limit)), 0)) {
                exact.template block<Keep, Store>(s, d, keep);
                return;
            }
        }
        storeInt32<D, Keep, Store>(d, v, keep);
    }
};

// s * m + a into float for 8- and 16-bit sources, with m split in two floats:
// hi, m's leading 16 (8-bit sources) or 8 bits, so that s * hi is exact, and
// lo, the rest rounded to a float. The result carries an error far below
// float's own rounding (with a = 0, about 2^-40 or 2^-32 relative), so it
// rounds as the double computation does except for results within that
// distance of a rounding boundary; the caller compares every source value
// before using it.
template <class S>
struct SplitMulAdd {
    isa::Vec<float> hi, lo, add;

    static SplitMulAdd make(double mulBy, double addTo) {
        std::uint32_t bits;
        const float m = float(mulBy);
        std::memcpy(&bits, &m, sizeof bits);
        bits &= sizeof(S) == 1 ? 0xFFFFFF00u : 0xFFFF0000u;  // 24-bit significand to 16 or 8 bits
        float h;
        std::memcpy(&h, &bits, sizeof h);
        return {isa::set1(h), isa::set1(float(mulBy - double(h))), isa::set1(float(addTo))};
    }

    template <bool Keep, class Store>
    QVN_ALWAYS_INLINE void block(const S* s, float* d, isa::Vec<float> keep) const {
        using namespace isa;
        static_assert(std::is_integral_v<S> && sizeof(S) <= 2, "8- and 16-bit sources");
        Vec<float> w[4];
        loadWide<S, float>(s, w);
        for (int k = 0; k < 4; ++k) w[k] = isa::add(mul(w[k], hi), isa::add(mul(w[k], lo), add));
        storeWide<float, Keep, Store>(d, w, keep);
    }
};

// Lanes of a D vector that hold alpha (every fourth element of the row) when
// the vector starts at row element start.
template <class D>
inline isa::Vec<D> alphaMask(std::int64_t start) {
    alignas(isa::kVectorBytes) D m[isa::kLanes<D>];
    for (std::size_t j = 0; j < isa::kLanes<D>; ++j)
        std::memset(&m[j], (start + std::int64_t(j)) % 4 == 3 ? 0xFF : 0, sizeof(D));
    return isa::loadA(m);
}

// Elements i..i+cnt-1 (cnt <= kConvertBlock) through a staged block: unaligned heads,
// tails and destinations that are not even element-aligned.
template <bool Keep, class Op, class S, class D>
inline void convertStaged(const Op& op, const S* s, D* d, std::int64_t i, std::int64_t cnt) {
    alignas(isa::kVectorBytes) S ts[kConvertBlock] = {};
    alignas(isa::kVectorBytes) D td[kConvertBlock];
    std::memcpy(ts, s + i, std::size_t(cnt) * sizeof(S));
    op.template block<false, StoreRegular>(ts, td, isa::zero<D>());
    char* out = reinterpret_cast<char*>(d) + i * std::int64_t(sizeof(D));
    if constexpr (Keep) {
        for (std::int64_t j = 0; j < cnt; ++j)
            if ((i + j) % 4 != 3) std::memcpy(out + j * std::int64_t(sizeof(D)), &td[j], sizeof(D));
    } else {
        std::memcpy(out, td, std::size_t(cnt) * sizeof(D));
    }
}

// Converts n elements of a row: staged head until the destination is
// vector-aligned, whole blocks, staged tail. Keep leaves every fourth element (AC4
// alpha) as it was.
template <bool Keep, class Store, class Op, class S, class D>
inline void convertRow(const Op& op, const S* s, D* d, std::int64_t n) {
    std::int64_t head = headToAlign(d, n);
    if (head < 0) head = n;  // not element-aligned: stage everything
    std::int64_t i = 0;
    for (; i < head; i += kConvertBlock)
        convertStaged<Keep>(op, s, d, i, head - i < kConvertBlock ? head - i : kConvertBlock);
    i = head;
    const isa::Vec<D> keep = Keep ? alphaMask<D>(head) : isa::zero<D>();
    for (; i + kConvertBlock <= n; i += kConvertBlock) {
        // one hint per cache line of 4-byte and wider sources
        if constexpr (sizeof(S) >= 4)
            for (std::int64_t b = 0; b < kConvertBlock * std::int64_t(sizeof(S)); b += 64)
                isa::prefetch(reinterpret_cast<const char*>(s + i) + kPrefetchAhead + b);
        op.template block<Keep, Store>(s + i, d + i, keep);
    }
    if (i < n) convertStaged<Keep>(op, s, d, i, n - i);
}

// d[i] = table[s[i]] for 8-bit s and d, eight at a time through 64-bit
// words; in place when d and s share memory.
template <class S, class D>
inline void lookupRow(const D* table, const S* s, D* d, std::int64_t n) {
    static_assert(sizeof(S) == 1 && sizeof(D) == 1, "byte tables");
    std::int64_t i = 0;
    for (; i + 8 <= n; i += 8) {
        std::uint64_t in, out = 0;
        std::memcpy(&in, s + i, 8);
        for (int k = 0; k < 8; ++k) out |= std::uint64_t(std::uint8_t(table[(in >> (8 * k)) & 0xFF])) << (8 * k);
        std::memcpy(d + i, &out, 8);
    }
    for (; i < n; ++i) d[i] = table[std::uint8_t(s[i])];
}

}  // namespace kernels
QVN_TARGET_END

#endif
