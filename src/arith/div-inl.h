// qvniDiv, qvniDivC and qvniDiv_Round: division with a scale factor or a
// rounding mode, and 32f division.
#ifndef QVN_ARITH_DIV_INL_H
#define QVN_ARITH_DIV_INL_H

#include <cstdint>
#include <type_traits>

#include "arith/binary-inl.h"
#include "core/fpround-inl.h"
#include "kernels/arith-div-inl.h"

QVN_TARGET_BEGIN
namespace arith {

// The 32f quotient as an operation for the constant form (true division).
struct DivOp {
    static float f(float x, float y) { return x / y; }
    static isa::Vec<float> fv(isa::Vec<float> x, isa::Vec<float> y) { return isa::div(x, y); }
};

// Two sources: src2 / src1 (source 1 is the divisor). Pointers, ROI, steps.
// Zero divisors give the replacement values and qvnWarnDivByZero.
template <class T, class L>
inline QvnStatus divide(const T* src1, std::int64_t src1Step, const T* src2, std::int64_t src2Step, T* dst,
                        std::int64_t dstStep, RoiL roi, int scaleFactor = 0) {
    namespace ka = kernels::arith;
    QVN_TRY(check::ptrs(src1, src2, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(src1Step, src2Step, dstStep));
    constexpr int E = L::kElems;
    if constexpr (std::is_same_v<T, Qvn32f>) {
        bool zero = false;
        forEachRow(
            roi,
            [&](const T* x, const T* y, T* d, std::int64_t n) { zero |= ka::divRow32f<L::kAlpha>(x, y, d, n * E); },
            rows(src2, src2Step, E), rows(src1, src1Step, E), rows(dst, dstStep, E));
        return zero ? qvnWarnDivByZero : qvnOk;
    } else {
        const RoundingScope nearest(qvnRndNear);
        const auto run = [&](auto kern) {
            runRows<T, L, false>(src2, src2Step, src1, src1Step, dst, dstStep, roi, kern);
            return kern.status();
        };
        if (ka::divNeedsDouble<T>(scaleFactor)) return run(ka::DivKernel<T, double>(scaleFactor));
        return run(ka::DivKernel<T, float>(scaleFactor));
    }
}

// The constant divisors that the layout uses: all three of C3 and AC4, all four of C4.
template <class T, class L>
inline QvnStatus nonzeroConstants(const T* value) {
    for (int k = 0; k < L::kChannels; ++k)
        if (value[k] == T(0)) return qvnErrDivByZero;
    return qvnOk;
}

// Image and constant: src / value. Pointers (the constant array included),
// ROI, steps, then a zero constant (qvnErrDivByZero).
template <class T, class L>
inline QvnStatus divideConst(const T* src, std::int64_t srcStep, const T* value, T* dst, std::int64_t dstStep,
                             RoiL roi, int scaleFactor = 0) {
    namespace ka = kernels::arith;
    QVN_TRY(check::ptrs(src, value, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY((nonzeroConstants<T, L>(value)));
    if constexpr (std::is_same_v<T, Qvn32f>) {
        return runRows<T, L, true>(src, srcStep, value, 0, dst, dstStep, roi, ka::FloatKernel<DivOp>{});
    } else {
        const RoundingScope nearest(qvnRndNear);
        if (ka::divNeedsDouble<T>(scaleFactor))
            return runRows<T, L, true>(src, srcStep, value, 0, dst, dstStep, roi, ka::DivKernel<T, double>(scaleFactor));
        return runRows<T, L, true>(src, srcStep, value, 0, dst, dstStep, roi, ka::DivKernel<T, float>(scaleFactor));
    }
}

// src2 / src1 scaled by 2^-sf and rounded by the mode, with the rounding
// control set for the call and restored after it. Pointers, ROI, steps, mode.
template <class T, class L>
inline QvnStatus divideRound(const T* src1, std::int64_t src1Step, const T* src2, std::int64_t src2Step, T* dst,
                             std::int64_t dstStep, RoiL roi, int rndMode, int scaleFactor) {
    namespace ka = kernels::arith;
    QVN_TRY(check::ptrs(src1, src2, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(src1Step, src2Step, dstStep));
    QVN_TRY(check::rounding(rndMode));
    const RoundingScope scope(rndMode);
    ka::DivRoundKernel<T> kern(scaleFactor, rndMode);
    runRows<T, L, false>(src2, src2Step, src1, src1Step, dst, dstStep, roi, kern);
    return kern.status();
}

}  // namespace arith
QVN_TARGET_END

#endif
