// qvniScale (range mapping between types) and qvniScaleC (multiplier and
// offset).
#ifndef QVN_MOVE_SCALE_INL_H
#define QVN_MOVE_SCALE_INL_H

#include <cstdint>
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

// qvniScaleC: d = s * mVal + aVal computed in double, rounded to nearest with
// halves to even and saturated for integer destinations (NaN gives 0),
// rounded to nearest for 32f. Pointers, ROI, steps, hint; every hint gives
// this result. The same template serves the in-place forms.
template <class S, class D>
inline QvnStatus scaleC(const S* src, std::int64_t srcStep, D* dst, std::int64_t dstStep, RoiL roi, double mVal,
                        double aVal, int hint) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::hint(hint));
    const RoundingScope scope(qvnRndNear);
    using Op = kernels::FloatConvert<S, D, double, kernels::Map::kMulAdd, false>;
    if constexpr (sizeof(S) == 1 && sizeof(D) == 1) {
        // 8-bit to 8-bit: the 256 results once, through the same arithmetic,
        // then a table lookup per pixel.
        alignas(16) S all[256];
        alignas(16) D table[256];
        for (int v = 0; v < 256; ++v) all[v] = S(v);
        kernels::convertRow<false, kernels::StoreRegular>(Op::make(mVal, aVal), all, table, 256);
        return forEachRow(
            roi, [&](const S* s, D* d, std::int64_t n) { kernels::lookupRow(table, s, d, n); },
            rows(src, srcStep, 1), rows(dst, dstStep, 1));
    }
    return convertRows<S, D, C1>(kernels::FloatConvert<S, D, double, kernels::Map::kMulAdd, false>::make(mVal, aVal), src,
                                 srcStep, dst, dstStep, roi);
}

}  // namespace move
QVN_TARGET_END

#endif
