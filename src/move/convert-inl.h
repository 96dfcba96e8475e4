// qvniConvert: element-type conversion of an ROI.
#ifndef QVN_MOVE_CONVERT_INL_H
#define QVN_MOVE_CONVERT_INL_H

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/check-inl.h"
#include "core/fpround-inl.h"
#include "core/rows-inl.h"
#include "core/stream-inl.h"
#include "kernels/convert-inl.h"

QVN_TARGET_BEGIN
namespace move {

// When a conversion switches to non-temporal stores: the element count from
// which the cache size is asked for, and the bytes touched per element. The
// threshold is the first count whose touched bytes exceed 512 KiB.
struct StreamRule {
    std::uint64_t threshold, bytesPerElem;
};

template <class S, class D, class L>
constexpr StreamRule streamRule() {
    using std::is_same_v;
    if (L::kAlpha) return {0, 0};
    if ((is_same_v<S, Qvn16s> || is_same_v<S, Qvn16u>) && is_same_v<D, Qvn32f>) return {0x15556, 6};
    if (is_same_v<S, Qvn8s> && (is_same_v<D, Qvn32f> || is_same_v<D, Qvn32s>)) return {0x1999A, 5};
    if (is_same_v<S, Qvn8u> && (is_same_v<D, Qvn32f> || is_same_v<D, Qvn32s>) && L::kElems == 1)
        return {0x1999A, 5};
    if (is_same_v<S, Qvn8u> && is_same_v<D, Qvn16s> && L::kElems == 1) return {0x2AAAB, 3};
    return {0, 0};
}

// Runs op over every row of the ROI (width x channels elements per row), with
// the store policy that the layout's stream rule picks for this call.
template <class S, class D, class L, class Op>
inline QvnStatus convertRows(const Op& op, const S* src, std::int64_t srcStep, D* dst, std::int64_t dstStep,
                             RoiL roi) {
    const auto run = [&](auto store) {
        using Store = decltype(store);
        return forEachRow(
            roi,
            [&](const S* s, D* d, std::int64_t w) {
                kernels::convertRow<L::kAlpha, Store>(op, s, d, w * L::kElems);
            },
            rows(src, srcStep, L::kElems), rows(dst, dstStep, L::kElems));
    };
    constexpr StreamRule rule = streamRule<S, D, L>();
    if constexpr (rule.threshold != 0) {
        const std::uint64_t n = std::uint64_t(roi.width) * std::uint64_t(roi.height) * L::kElems;
        if (useStreamingStores(n, rule.threshold, n * rule.bytesPerElem)) {
            const QvnStatus s = run(kernels::StoreStreaming{});
            isa::storeFence();
            return s;
        }
    }
    return run(kernels::StoreRegular{});
}

// Runs a FloatConvert whose financial-rounding form is chosen by mode, with
// the rounding control set for the call.
template <class S, class D, class L, class W, kernels::Map M>
inline QvnStatus convertByMode(int mode, const S* src, std::int64_t srcStep, D* dst, std::int64_t dstStep, RoiL roi,
                               W mul = W(1), W add = W(0), W mul2 = W(1)) {
    const RoundingScope scope(mode);
    if (mode == qvnRndFinancial)
        return convertRows<S, D, L>(kernels::FloatConvert<S, D, W, M, true>::make(mul, add, mul2), src, srcStep, dst,
                                    dstStep, roi);
    return convertRows<S, D, L>(kernels::FloatConvert<S, D, W, M, false>::make(mul, add, mul2), src, srcStep, dst,
                                dstStep, roi);
}

// The arithmetic type of a scaled conversion: double where a 32-bit integer
// or a 64f value is involved, float otherwise (both exact for the source).
template <class S, class D>
using ScaledWide = std::conditional_t<std::is_same_v<S, Qvn64f> || sizeof(D) >= 4 ||
                                          (std::is_integral_v<S> && sizeof(S) >= 4),
                                      double, float>;

// 2 to the power -sf as the product of two W factors, so that every finite
// value is scaled exactly (or saturates, or rounds to 0, as the exact product
// would). A large positive sf stops at the smallest non-zero factor, where
// every finite value already rounds to 0 and infinities still saturate; a
// negative sf beyond twice the exponent range makes the second factor
// infinite, where every non-zero value saturates and zero stays zero.
template <class W>
struct ScaleFactor {
    W first, second;
};
template <class W>
inline ScaleFactor<W> scaleFactorOf(int sf) {
    constexpr int kMinExp = std::numeric_limits<W>::min_exponent - std::numeric_limits<W>::digits;  // -149, -1074
    constexpr std::int64_t kMaxExp = std::numeric_limits<W>::max_exponent - 1;                       // 127, 1023
    if (sf >= 0) return {sf > -kMinExp ? std::numeric_limits<W>::denorm_min() : std::ldexp(W(1), -sf), W(1)};
    const std::int64_t e = -std::int64_t(sf);
    const std::int64_t e1 = e < kMaxExp ? e : kMaxExp, e2 = e - e1;
    return {std::ldexp(W(1), int(e1)), e2 > kMaxExp ? std::numeric_limits<W>::infinity() : std::ldexp(W(1), int(e2))};
}

// Plain conversions: widening ones (exact; 32s and 32u to 32f round to
// nearest), saturating narrowing and signed-to-unsigned ones. Pointers, then
// the ROI; steps are not tested.
template <class S, class D, class L>
inline QvnStatus convert(const S* src, std::int64_t srcStep, D* dst, std::int64_t dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    if constexpr (std::is_integral_v<D>) {
        return convertRows<S, D, L>(kernels::IntConvert<S, D>{}, src, srcStep, dst, dstStep, roi);
    } else {
        using W = std::conditional_t<std::is_same_v<D, Qvn64f>, double, float>;
        const auto op = kernels::FloatConvert<S, D, W, kernels::Map::kNone, false>::make();
        if constexpr (std::is_integral_v<S> && sizeof(S) == 4) {
            const RoundingScope scope(qvnRndNear);  // 32-bit integers are not all exact in float
            return convertRows<S, D, L>(op, src, srcStep, dst, dstStep, roi);
        } else {
            return convertRows<S, D, L>(op, src, srcStep, dst, dstStep, roi);
        }
    }
}

// Narrowing from 32f with a rounding mode: pointers, width, height, steps,
// then the mode. The rounding control is set for the call and restored.
template <class S, class D, class L>
inline QvnStatus convertRound(const S* src, std::int64_t srcStep, D* dst, std::int64_t dstStep, RoiL roi,
                              int mode) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::width(roi));
    QVN_TRY(check::height(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::rounding(mode));
    return convertByMode<S, D, L, float, kernels::Map::kNone>(mode, src, srcStep, dst, dstStep, roi);
}

// Scaled conversion after the checks: value x 2^-sf, saturated and rounded by
// mode, with the rounding control set for the call.
template <class S, class D, class L>
inline QvnStatus scaled(const S* src, std::int64_t srcStep, D* dst, std::int64_t dstStep, RoiL roi, int mode,
                        int sf) {
    using W = ScaledWide<S, D>;
    const ScaleFactor<W> f = scaleFactorOf<W>(sf);
    return convertByMode<S, D, L, W, kernels::Map::kScale>(mode, src, srcStep, dst, dstStep, roi, f.first, W(0),
                                                          f.second);
}

// Scaled conversion of integers: pointers, ROI, steps; any scale factor.
template <class S, class D, class L>
inline QvnStatus convertSfs(const S* src, std::int64_t srcStep, D* dst, std::int64_t dstStep, RoiL roi, int sf) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    return scaled<S, D, L>(src, srcStep, dst, dstStep, roi, qvnRndNear, sf);
}

// Scaled conversion of floats with a rounding mode: pointers, ROI, steps,
// mode; any scale factor. DstPtr is D* or, in place, S* (same element size).
template <class S, class D, class L, class DstPtr>
inline QvnStatus convertRoundSfs(const S* src, std::int64_t srcStep, DstPtr dstPtr, std::int64_t dstStep, RoiL roi,
                                 int mode, int sf) {
    static_assert(std::is_same_v<DstPtr, D*> || (std::is_same_v<DstPtr, S*> && sizeof(S) == sizeof(D)),
                  "a destination of D, or the source itself");
    QVN_TRY(check::ptrs(src, dstPtr));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::rounding(mode));
    return scaled<S, D, L>(src, srcStep, reinterpret_cast<D*>(dstPtr), dstStep, roi, mode, sf);
}

}  // namespace move
QVN_TARGET_END

#endif
