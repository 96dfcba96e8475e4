// qvniScale (range mapping between types) and qvniScaleC (multiplier and
// offset).
#ifndef QVN_MOVE_SCALE_INL_H
#define QVN_MOVE_SCALE_INL_H

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "move/convert-inl.h"

QVN_TARGET_BEGIN
namespace move {

// The full range of an integer type as doubles.
template <class T>
inline constexpr double kLowest = double(std::numeric_limits<T>::min());
template <class T>
inline constexpr double kSpan = double(std::numeric_limits<T>::max()) - double(std::numeric_limits<T>::min());

// Integer range mapping: the source type's range onto the destination type's,
// d = (s - minS) * spanD / spanS + minD, rounded to nearest (the divisions
// that narrow have odd divisors, so no result is ever a tie). Computed in
// double, whose error stays far below the distance of any result to a half.
template <class S, class D, class L>
inline QvnStatus scaleRange(const S* src, std::int64_t srcStep, D* dst, std::int64_t dstStep, RoiL roi) {
    const double k = kSpan<D> / kSpan<S>;
    const double b = kLowest<D> - kLowest<S> * k;
    const RoundingScope scope(qvnRndNear);
    return convertRows<S, D, L>(kernels::FloatConvert<S, D, double, kernels::Map::kMulAdd, false>::make(k, b), src, srcStep,
                                dst, dstStep, roi);
}

// Widening forms: pointers, ROI, steps.
template <class S, class D, class L>
inline QvnStatus scale(const S* src, std::int64_t srcStep, D* dst, std::int64_t dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    return scaleRange<S, D, L>(src, srcStep, dst, dstStep, roi);
}

// Narrowing forms: pointers, ROI, steps, hint. Every hint computes the exact
// result.
template <class S, class D, class L>
inline QvnStatus scaleHint(const S* src, std::int64_t srcStep, D* dst, std::int64_t dstStep, RoiL roi, int hint) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::hint(hint));
    return scaleRange<S, D, L>(src, srcStep, dst, dstStep, roi);
}

// Float range forms. The range vMax - vMin is tested before anything else
// (NaN fails too), then pointers, ROI, steps.
//  8u to 32f: d = s * ((vMax - vMin) / 255) + vMin in float.
//  32f to 8u: d = s * k + b with k = 255 / (vMax - vMin), b = -vMin * k in
//             float, clamped to 0..255 and rounded to nearest, halves to even
//             (NaN gives 0).
template <class S, class D, class L>
inline QvnStatus scaleFloat(const S* src, std::int64_t srcStep, D* dst, std::int64_t dstStep, RoiL roi, float vMin,
                            float vMax) {
    const float range = vMax - vMin;
    if (!(range > 0.0f)) return qvnErrScaleRange;
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    const RoundingScope scope(qvnRndNear);
    float k, b;
    if constexpr (std::is_same_v<S, Qvn32f>) {
        k = 255.0f / range;
        b = -vMin * k;
    } else {
        k = range / 255.0f;
        b = vMin;
    }
    return convertRows<S, D, L>(kernels::FloatConvert<S, D, float, kernels::Map::kMulAdd, false>::make(k, b), src, srcStep, dst,
                                dstStep, roi);
}

// The largest magnitude of an integer type, as a double.
template <class T>
inline constexpr double kMaxMagnitude = -double(std::numeric_limits<T>::min()) > double(std::numeric_limits<T>::max())
                                            ? -double(std::numeric_limits<T>::min())
                                            : double(std::numeric_limits<T>::max());

// x = mant * 2^exp with mant an odd integer of at most 24 bits; false when x
// is not a float of normal magnitude (x == 0 gives mant 0).
inline bool floatParts(double x, std::int64_t& mant, int& exp) {
    mant = 0;
    exp = 0;
    if (x == 0.0) return true;
    if (!(std::fabs(x) >= 0x1p-100 && std::fabs(x) <= 0x1p100) || double(float(x)) != x) return false;
    const double f = std::frexp(x, &exp);  // x = f * 2^exp, 0.5 <= |f| < 1
    mant = std::int64_t(std::ldexp(f, 24));
    exp -= 24;
    while (mant % 2 == 0) {
        mant /= 2;
        ++exp;
    }
    return true;
}

// Whether s * m + a is exactly a float for every s of S (|s| <= sMax): m and
// a are floats, and on the grid of the finer of their last bits the sum needs
// fewer than 24 bits. Then float and double compute the same exact value.
inline bool exactInFloat(double sMax, double m, double a) {
    std::int64_t mm, ma;
    int em, ea;
    if (!floatParts(m, mm, em) || !floatParts(a, ma, ea)) return false;
    if (mm == 0 || ma == 0) {
        const std::int64_t mant = mm == 0 ? ma : mm;
        return std::fabs(double(mant)) * (mm == 0 ? 1.0 : sMax) < 0x1p24;
    }
    const int g = em < ea ? em : ea;
    if (em - g > 40 || ea - g > 40) return false;
    return sMax * std::fabs(double(mm)) * std::ldexp(1.0, em - g) + std::fabs(double(ma)) * std::ldexp(1.0, ea - g) <
           0x1p24;
}

// The float error bound of s * m + a over |s| <= sMax (m and a first rounded
// to float, then one rounding each for the product and the sum), with margin
// for the double computation; infinite when float is no candidate.
inline double floatErrorBound(double sMax, double m, double a) {
    if (!(std::fabs(m) <= 0x1p60 && std::fabs(a) <= 0x1p60)) return HUGE_VAL;
    return (3.0 * sMax * std::fabs(m) + 2.0 * std::fabs(a)) * 0x1p-24 * 1.001 + 0x1p-40;
}

// Whether op gives the same bits as ref for every value of the 16-bit S.
template <class S, class D, class Op, class Ref>
inline bool matchesEvery(const Op& op, const Ref& ref) {
    constexpr int kChunk = 1024;
    alignas(isa::kVectorBytes) S all[kChunk];
    alignas(isa::kVectorBytes) D want[kChunk];
    alignas(isa::kVectorBytes) D got[kChunk];
    for (std::int64_t base = std::numeric_limits<S>::min(); base <= std::numeric_limits<S>::max(); base += kChunk) {
        for (int i = 0; i < kChunk; ++i) all[i] = S(base + i);
        kernels::convertRow<false, kernels::StoreRegular>(ref, all, want, kChunk);
        kernels::convertRow<false, kernels::StoreRegular>(op, all, got, kChunk);
        if (std::memcmp(want, got, sizeof(want)) != 0) return false;
    }
    return true;
}

// From this many pixels a call of a 16-bit source compares all 65536 source
// values of a float form with double first (from there on, less than the
// per-block check it saves).
inline constexpr std::uint64_t kCompareEveryFrom = std::uint64_t(1) << 19;

// qvniScaleC: d = s * mVal + aVal computed in double, rounded to nearest with
// halves to even and saturated for integer destinations (NaN gives 0),
// rounded to nearest for 32f. Pointers, ROI, steps, hint; every hint gives
// this result. The same template serves the in-place forms.
//
// Float arithmetic is used where it gives the same result for every source
// value, decided once per call: when every s * mVal + aVal is exactly a float,
// when all 256 results (8-bit sources; 65536 for 16-bit sources of large
// images) compare equal, or (integer destinations) when the float error is
// bounded below 1/8 and the blocks with a result near a half are recomputed
// in double.
template <class S, class D>
inline QvnStatus scaleC(const S* src, std::int64_t srcStep, D* dst, std::int64_t dstStep, RoiL roi, double mVal,
                        double aVal, int hint) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::hint(hint));
    const RoundingScope scope(qvnRndNear);
    using Exact = kernels::FloatConvert<S, D, double, kernels::Map::kMulAdd, false>;
    using Fast = kernels::FloatConvert<S, D, float, kernels::Map::kMulAdd, false>;
    const auto run = [&](const auto& op) { return convertRows<S, D, C1>(op, src, srcStep, dst, dstStep, roi); };
    constexpr bool kSmallIntSource = std::is_integral_v<S> && sizeof(S) <= 2;
    if constexpr (kSmallIntSource && !std::is_same_v<D, Qvn64f>) {
        const double sMax = kMaxMagnitude<S>;
        const double err = floatErrorBound(sMax, mVal, aVal);
        // Float results equal to the double ones; bounded: below 2^24 in
        // magnitude, so they convert to int32 without a clamp.
        bool same = exactInFloat(sMax, mVal, aVal);
        const bool bounded = same || err < 0.125;
        // 8-bit sources: all 256 results in double, once; a float form is as
        // good when it gives the same bits for every one of them.
        alignas(isa::kVectorBytes) S all[256];
        alignas(isa::kVectorBytes) D want[256];
        const auto matchesAll = [&](const auto& op) {
            alignas(isa::kVectorBytes) D got[256];
            kernels::convertRow<false, kernels::StoreRegular>(op, all, got, 256);
            return std::memcmp(want, got, sizeof(want)) == 0;
        };
        if constexpr (sizeof(S) == 1) {
            for (int v = 0; v < 256; ++v) all[v] = S(v);
            kernels::convertRow<false, kernels::StoreRegular>(Exact::make(mVal, aVal), all, want, 256);
            if (!same && err < HUGE_VAL) same = matchesAll(Fast::make(float(mVal), float(aVal)));
        }
        if constexpr (sizeof(S) == 2) {
            if (!same && err < HUGE_VAL && std::uint64_t(roi.width) * std::uint64_t(roi.height) >= kCompareEveryFrom) {
                if constexpr (std::is_integral_v<D>) {
                    const auto fast = kernels::MulAddToInt<S, D, false>::make(mVal, aVal);
                    if (bounded && matchesEvery<S, D>(fast, Exact::make(mVal, aVal))) return run(fast);
                } else {
                    const auto split = kernels::SplitMulAdd<S>::make(mVal, aVal);
                    if (matchesEvery<S, D>(split, Exact::make(mVal, aVal))) return run(split);
                }
            }
        }
        if constexpr (std::is_integral_v<D>) {
            if (same && bounded) return run(kernels::MulAddToInt<S, D, false>::make(mVal, aVal));
        }
        if (same) return run(Fast::make(float(mVal), float(aVal)));
        if constexpr (sizeof(S) == 1 && std::is_same_v<D, Qvn32f>) {
            if (err < HUGE_VAL) {
                const auto split = kernels::SplitMulAdd<S>::make(mVal, aVal);
                if (matchesAll(split)) return run(split);
            }
        }
        if constexpr (std::is_integral_v<D>) {
            if (err < 0.125)
                return run(kernels::MulAddToInt<S, D, true>::make(mVal, aVal, float(0.5 - err) - 0x1p-20f));
        }
        if constexpr (sizeof(S) == 1 && sizeof(D) == 1) {
            return forEachRow(
                roi, [&](const S* s, D* d, std::int64_t n) { kernels::lookupRow(want, s, d, n); },
                rows(src, srcStep, 1), rows(dst, dstStep, 1));
        }
    }
    return run(Exact::make(mVal, aVal));
}

}  // namespace move
QVN_TARGET_END

#endif
