// qvniCompare, qvniCompareC, qvniCompareEqualEps, qvniCompareEqualEpsC: one
// 8u mask pixel per source pixel.
#ifndef QVN_ARITH_COMPARE_INL_H
#define QVN_ARITH_COMPARE_INL_H

#include <cstdint>

#include "core/check-inl.h"
#include "core/rows-inl.h"
#include "kernels/compare-inl.h"

QVN_TARGET_BEGIN
namespace arith {

namespace kc = kernels::compare;

// op(a, b) of two images into the mask.
template <class T, class L, class Op>
inline QvnStatus maskOfImages(const Op& op, const T* a, std::int64_t aStep, const T* b, std::int64_t bStep, Qvn8u* d,
                              std::int64_t dStep, RoiL roi) {
    using Row = kernels::arith::RowOperand<T>;
    constexpr int E = L::kElems;
    return forEachRow(
        roi,
        [&](const T* ar, const T* br, Qvn8u* dr, std::int64_t n) {
            kc::maskRow<T, E, L::kAlpha>(op, Row{ar}, Row{br}, dr, n);
        },
        rows(a, aStep, E), rows(b, bStep, E), rows(d, dStep, 1));
}

// op(src, value) into the mask, or op(value, src) when Swapped.
template <bool Swapped, class T, class L, class Op>
inline QvnStatus maskOfConstant(const Op& op, const T* src, std::int64_t srcStep, const T* value, Qvn8u* d,
                                std::int64_t dStep, RoiL roi) {
    using Row = kernels::arith::RowOperand<T>;
    constexpr int E = L::kElems;
    const kernels::ChannelConstants<T, L::kAlpha ? 4 : E, 1> c({value}, L::kChannels);
    return forEachRow(
        roi,
        [&](const T* s, Qvn8u* dr, std::int64_t n) {
            if constexpr (Swapped) kc::maskRow<T, E, L::kAlpha>(op, c.operand(), Row{s}, dr, n);
            else kc::maskRow<T, E, L::kAlpha>(op, Row{s}, c.operand(), dr, n);
        },
        rows(src, srcStep, E), rows(d, dStep, 1));
}

// Pointers, source steps then the destination's, width then height. The
// greater forms swap the operands; an operator outside 0..4 writes nothing.
template <class T, class L>
inline QvnStatus compare(const T* src1, std::int64_t src1Step, const T* src2, std::int64_t src2Step, Qvn8u* dst,
                         std::int64_t dstStep, RoiL roi, int op) {
    QVN_TRY(check::ptrs(src1, src2, dst));
    QVN_TRY(check::steps(src1Step, src2Step, dstStep));
    QVN_TRY(check::width(roi));
    QVN_TRY(check::height(roi));
    switch (op) {
        case qvnCmpLess: return maskOfImages<T, L>(kc::Less{}, src1, src1Step, src2, src2Step, dst, dstStep, roi);
        case qvnCmpLessEq: return maskOfImages<T, L>(kc::LessEq{}, src1, src1Step, src2, src2Step, dst, dstStep, roi);
        case qvnCmpEq: return maskOfImages<T, L>(kc::Equal{}, src1, src1Step, src2, src2Step, dst, dstStep, roi);
        case qvnCmpGreaterEq: return maskOfImages<T, L>(kc::LessEq{}, src2, src2Step, src1, src1Step, dst, dstStep, roi);
        case qvnCmpGreater: return maskOfImages<T, L>(kc::Less{}, src2, src2Step, src1, src1Step, dst, dstStep, roi);
        default: return qvnOk;
    }
}

// The constant's pointer, the image pointers, steps, width then height.
template <class T, class L>
inline QvnStatus compareConst(const T* src, std::int64_t srcStep, const T* value, Qvn8u* dst, std::int64_t dstStep,
                              RoiL roi, int op) {
    QVN_TRY(check::ptrs(value));
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::width(roi));
    QVN_TRY(check::height(roi));
    switch (op) {
        case qvnCmpLess: return maskOfConstant<false, T, L>(kc::Less{}, src, srcStep, value, dst, dstStep, roi);
        case qvnCmpLessEq: return maskOfConstant<false, T, L>(kc::LessEq{}, src, srcStep, value, dst, dstStep, roi);
        case qvnCmpEq: return maskOfConstant<false, T, L>(kc::Equal{}, src, srcStep, value, dst, dstStep, roi);
        case qvnCmpGreaterEq: return maskOfConstant<true, T, L>(kc::LessEq{}, src, srcStep, value, dst, dstStep, roi);
        case qvnCmpGreater: return maskOfConstant<true, T, L>(kc::Less{}, src, srcStep, value, dst, dstStep, roi);
        default: return qvnOk;
    }
}

inline QvnStatus epsilon(float eps) { return eps < 0 ? qvnErrEpsilon : qvnOk; }

// Pointers, steps, width then height, then a negative epsilon.
template <class L>
inline QvnStatus compareEqualEps(const Qvn32f* src1, std::int64_t src1Step, const Qvn32f* src2, std::int64_t src2Step,
                                 Qvn8u* dst, std::int64_t dstStep, RoiL roi, float eps) {
    QVN_TRY(check::ptrs(src1, src2, dst));
    QVN_TRY(check::steps(src1Step, src2Step, dstStep));
    QVN_TRY(check::width(roi));
    QVN_TRY(check::height(roi));
    QVN_TRY(epsilon(eps));
    return maskOfImages<Qvn32f, L>(kc::EqualEps{eps}, src1, src1Step, src2, src2Step, dst, dstStep, roi);
}

template <class L>
inline QvnStatus compareEqualEpsConst(const Qvn32f* src, std::int64_t srcStep, const Qvn32f* value, Qvn8u* dst,
                                      std::int64_t dstStep, RoiL roi, float eps) {
    QVN_TRY(check::ptrs(value));
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::width(roi));
    QVN_TRY(check::height(roi));
    QVN_TRY(epsilon(eps));
    return maskOfConstant<false, Qvn32f, L>(kc::EqualEps{eps}, src, srcStep, value, dst, dstStep, roi);
}

}  // namespace arith
QVN_TARGET_END

#endif
