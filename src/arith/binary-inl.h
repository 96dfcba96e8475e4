// qvniAdd, qvniSub, qvniMul and their constant forms, integer (with a scale
// factor) and 32f.
#ifndef QVN_ARITH_BINARY_INL_H
#define QVN_ARITH_BINARY_INL_H

#include <cstdint>
#include <type_traits>

#include "core/check-inl.h"
#include "core/rows-inl.h"
#include "kernels/arith-inl.h"
#include "move/set-inl.h"

QVN_TARGET_BEGIN
namespace arith {

using kernels::arith::AddOp;
using kernels::arith::MulOp;
using kernels::arith::SubOp;

// Runs kernel kern (x op y) over the rows. Two-source C1, C3 and C4 rows are one
// run of width x channels elements; AC4 keeps every fourth element. A constant
// operand repeats K values along the row. Store stores the vectors (a caller
// that streams ends with a store fence).
template <class T, class L, bool Const, class Store = kernels::StoreRegular, class Kern>
inline QvnStatus runRows(const T* x, std::int64_t xStep, const T* y, std::int64_t yStep, T* d,
                         std::int64_t dStep, RoiL roi, Kern&& kern) {
    namespace ka = kernels::arith;
    constexpr int E = L::kElems;
    if constexpr (Const) {
        constexpr int K = L::kAlpha ? 4 : E;
        const ka::ConstOperand<T, K> c(y, L::kChannels);
        return forEachRow(
            roi, [&](const T* xr, T* dr, std::int64_t n) { ka::row<L::kAlpha, Store>(xr, c, dr, n * E, kern); },
            rows(x, xStep, E), rows(d, dStep, E));
    } else {
        return forEachRow(
            roi,
            [&](const T* xr, const T* yr, T* dr, std::int64_t n) {
                ka::row<L::kAlpha, Store>(xr, ka::RowOperand<T>{yr}, dr, n * E, kern);
            },
            rows(x, xStep, E), rows(y, yStep, E), rows(d, dStep, E));
    }
}

// Runs a one-source kernel (kern(x, value), the value the same for every
// element) over the rows: C1, C3 and C4 rows are one run of width x channels
// elements, AC4 keeps every fourth.
template <class T, class L, class Store = kernels::StoreRegular, class Kern>
inline QvnStatus runUnary(const T* x, std::int64_t xStep, T* d, std::int64_t dStep, RoiL roi, Kern&& kern,
                          T value = T()) {
    const T all[4] = {value, value, value, value};
    if constexpr (L::kAlpha)
        return runRows<T, AC4, true, Store>(x, xStep, all, 0, d, dStep, roi, kern);
    else
        return runRows<T, C1, true, Store>(x, xStep, all, 0, d, dStep, RoiL{roi.width * L::kElems, roi.height}, kern);
}

// Chooses the scale-factor path once and runs its kernel: x op y for every
// element, or a fill with 0 when no result can be non-zero.
template <class Op, class T, class L, bool Const>
inline QvnStatus scaled(const T* x, std::int64_t xStep, const T* y, std::int64_t yStep, T* d, std::int64_t dStep,
                        RoiL roi, int sf) {
    namespace ka = kernels::arith;
    if constexpr (std::is_same_v<T, Qvn32f>) {
        return runRows<T, L, Const>(x, xStep, y, yStep, d, dStep, roi, ka::FloatKernel<Op>{});
    } else {
        using W = typename Op::template Wide<T>;
        if (sf == 0)
            return runRows<T, L, Const>(x, xStep, y, yStep, d, dStep, roi, ka::SfsKernel<Op, T, ka::PathPlain>{});
        if (sf >= ka::zeroFrom<Op, T>()) {
            const T zero[4] = {};
            return move::fill<T, L>(zero, d, dStep, roi);
        }
        if (sf > 0)
            return runRows<T, L, Const>(x, xStep, y, yStep, d, dStep, roi,
                                        ka::SfsKernel<Op, T, ka::PathRight<W>>{{}, ka::PathRight<W>(sf)});
        return runRows<T, L, Const>(x, xStep, y, yStep, d, dStep, roi,
                                    ka::SfsKernel<Op, T, ka::PathLeft<W>>{{}, ka::PathLeft<W>::template make<T>(sf)});
    }
}

// Two sources: Add gives src1 + src2, Sub src2 - src1, Mul src1 x src2.
// Pointers, then the ROI; steps are not tested.
template <class Op, class T, class L>
inline QvnStatus binary(const T* src1, std::int64_t src1Step, const T* src2, std::int64_t src2Step, T* dst,
                        std::int64_t dstStep, RoiL roi, int scaleFactor = 0) {
    QVN_TRY(check::ptrs(src1, src2, dst));
    QVN_TRY(check::roi(roi));
    return scaled<Op, T, L, false>(src2, src2Step, src1, src1Step, dst, dstStep, roi, scaleFactor);
}

// Image and constant: src op value (one value for C1, one per channel
// otherwise). Pointers (the constant array included), then the ROI.
template <class Op, class T, class L>
inline QvnStatus withConst(const T* src, std::int64_t srcStep, const T* value, T* dst, std::int64_t dstStep,
                           RoiL roi, int scaleFactor = 0) {
    QVN_TRY(check::ptrs(src, value, dst));
    QVN_TRY(check::roi(roi));
    return scaled<Op, T, L, true>(src, srcStep, value, 0, dst, dstStep, roi, scaleFactor);
}

}  // namespace arith
QVN_TARGET_END

#endif
