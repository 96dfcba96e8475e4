// qvniMulScale and qvniMulCScale (products normalised by the maximum of the
// type) and qvniMulC64f (products with 64-bit float constants).
#ifndef QVN_ARITH_MULSCALE_INL_H
#define QVN_ARITH_MULSCALE_INL_H

#include <cstdint>
#include <type_traits>

#include "arith/binary-inl.h"
#include "core/fpround-inl.h"
#include "kernels/arith-scale-inl.h"

QVN_TARGET_BEGIN
namespace arith {

// floor(src1 * src2 / max). Pointers, steps, then width and height.
template <class T, class L>
inline QvnStatus mulScale(const T* src1, std::int64_t src1Step, const T* src2, std::int64_t src2Step, T* dst,
                          std::int64_t dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src1, src2, dst));
    QVN_TRY(check::steps(src1Step, src2Step, dstStep));
    QVN_TRY(check::width(roi));
    QVN_TRY(check::height(roi));
    return runRows<T, L, false>(src2, src2Step, src1, src1Step, dst, dstStep, roi,
                                kernels::arith::MulScaleKernel<T>{});
}

// floor(src * value / max); the constant array is tested with the image
// pointers. Pointers, steps, then width and height.
template <class T, class L>
inline QvnStatus mulConstScale(const T* src, std::int64_t srcStep, const T* value, T* dst, std::int64_t dstStep,
                               RoiL roi) {
    QVN_TRY(check::ptrs(src, value, dst));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::width(roi));
    QVN_TRY(check::height(roi));
    return runRows<T, L, true>(src, srcStep, value, 0, dst, dstStep, roi, kernels::arith::MulScaleKernel<T>{});
}

// src * value[channel] in double precision; integer forms set the rounding
// control for the call from the mode and restore it after. Pointers, ROI, the
// rounding mode, then the accuracy hint, which is validated but selects
// nothing: every valid hint gives the same result.
template <class T, class L>
inline QvnStatus mulConst64f(const T* src, std::int64_t srcStep, const Qvn64f* value, T* dst, std::int64_t dstStep,
                             RoiL roi, int hint, int rndMode) {
    QVN_TRY(check::ptrs(src, value, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::rounding(rndMode));
    QVN_TRY(check::hint(hint));
    constexpr int E = L::kElems;
    double c[E];
    for (int k = 0; k < E; ++k) c[k] = value[k];
    const kernels::arith::MulC64fKernel<T> kern(rndMode);
    const auto run = [&] {
        return forEachRow(
            roi, [&](const T* x, T* d, std::int64_t n) { kernels::arith::mulC64fRow<T, E>(x, c, d, n * E, kern); },
            rows(src, srcStep, E), rows(dst, dstStep, E));
    };
    if constexpr (std::is_same_v<T, Qvn32f>) return run();  // no integer rounding: the caller's mode stays
    const RoundingScope scope(rndMode);
    return run();
}

}  // namespace arith
QVN_TARGET_END

#endif
