// qvniAbs, qvniSqr, qvniSqrt, qvniExp and qvniLn: one-source functions of
// the element, integer forms scaled by 2^-sf with ties to even and saturated.
// All check pointers, then the ROI, then steps.
#ifndef QVN_ARITH_ELEMENTARY_INL_H
#define QVN_ARITH_ELEMENTARY_INL_H

#include <cstdint>
#include <type_traits>

#include "arith/binary-inl.h"
#include "core/fpround-inl.h"
#include "kernels/elementary-inl.h"

QVN_TARGET_BEGIN
namespace arith {

template <class T>
inline QvnStatus checkOneSource(const T* src, std::int64_t srcStep, const T* dst, std::int64_t dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    return check::steps(srcStep, dstStep);
}

// Runs kern over the rows and returns warning where the kernel flagged an element.
template <class T, class L, class Kern>
inline QvnStatus runWatched(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi, Kern&& kern,
                            QvnStatus warning) {
    runUnary<T, L>(src, srcStep, dst, dstStep, roi, kern);
    return kern.met() ? warning : qvnOk;
}

template <class T, class L>
inline QvnStatus absolute(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi) {
    QVN_TRY(checkOneSource(src, srcStep, dst, dstStep, roi));
    return runUnary<T, L>(src, srcStep, dst, dstStep, roi, kernels::arith::AbsKernel{});
}

// The square is the product of the element with itself, by the
// multiplication's scale-factor paths.
template <class T, class L>
inline QvnStatus square(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi, int sf = 0) {
    QVN_TRY(checkOneSource(src, srcStep, dst, dstStep, roi));
    return scaled<MulOp, T, L, false>(src, srcStep, src, srcStep, dst, dstStep, roi, sf);
}

// Negative inputs give NaN (32f) or 0 and qvnWarnSqrtNegative. 32f follows
// the caller's rounding mode, as the other single IEEE operations do.
template <class T, class L>
inline QvnStatus squareRoot(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi, int sf = 0) {
    namespace ka = kernels::arith;
    QVN_TRY(checkOneSource(src, srcStep, dst, dstStep, roi));
    if constexpr (std::is_same_v<T, Qvn32f>) {
        return runWatched<T, L>(src, srcStep, dst, dstStep, roi, ka::SqrtKernel32f{}, qvnWarnSqrtNegative);
    } else {
        const RoundingScope nearest(qvnRndNear);
        if (ka::sqrtNeedsDouble<T>(sf))
            return runWatched<T, L>(src, srcStep, dst, dstStep, roi, ka::SqrtKernel<T, double>(sf), qvnWarnSqrtNegative);
        return runWatched<T, L>(src, srcStep, dst, dstStep, roi, ka::SqrtKernel<T, float>(sf), qvnWarnSqrtNegative);
    }
}

// The integer forms fill the ROI when every input gives the same result.
// Rounding is set to nearest for the call in every form.
template <class T, class L>
inline QvnStatus exponential(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi, int sf = 0) {
    namespace ka = kernels::arith;
    QVN_TRY(checkOneSource(src, srcStep, dst, dstStep, roi));
    const RoundingScope nearest(qvnRndNear);
    if constexpr (std::is_same_v<T, Qvn32f>) {
        return runUnary<T, L>(src, srcStep, dst, dstStep, roi, ka::ExpKernel32f{});
    } else {
        const ka::ExpKernel<T> kern(sf);
        if (kern.constant()) {
            const T all[4] = {kern.value[0], kern.value[0], kern.value[0], kern.value[0]};
            return move::fill<T, L>(all, dst, dstStep, roi);
        }
        return runUnary<T, L>(src, srcStep, dst, dstStep, roi, kern);
    }
}

// Zero inputs (and negative ones) give -infinity or NaN (32f), or the
// minimum of the type, and qvnWarnLnZeroArg. Rounding is set to nearest for
// the call.
template <class T, class L>
inline QvnStatus logarithm(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi, int sf = 0) {
    namespace ka = kernels::arith;
    QVN_TRY(checkOneSource(src, srcStep, dst, dstStep, roi));
    const RoundingScope nearest(qvnRndNear);
    if constexpr (std::is_same_v<T, Qvn32f>)
        return runWatched<T, L>(src, srcStep, dst, dstStep, roi, ka::LnKernel32f{}, qvnWarnLnZeroArg);
    else
        return runWatched<T, L>(src, srcStep, dst, dstStep, roi, ka::LnKernel<T>(sf), qvnWarnLnZeroArg);
}

}  // namespace arith
QVN_TARGET_END

#endif
