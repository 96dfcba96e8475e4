// qvniAnd, qvniOr, qvniXor with their constant forms, qvniNot, and
// qvniComplement. Every one is an elementwise kernel of the arithmetic row
// template (kernels::arith::row): a C1, C3 or C4 row is one run of width x
// channels elements, AC4 keeps every fourth.
#ifndef QVN_ARITH_LOGIC_INL_H
#define QVN_ARITH_LOGIC_INL_H

#include <cstdint>
#include <limits>
#include <type_traits>

#include "arith/binary-inl.h"

QVN_TARGET_BEGIN
namespace arith {

// Bit operations, the same on the element and on a vector of any lane type.
struct AndOp {
    template <class T>
    static T f(T a, T b) { return T(a & b); }
    template <class V>
    static V v(V a, V b) { return isa::bitAnd(a, b); }
};
struct OrOp {
    template <class T>
    static T f(T a, T b) { return T(a | b); }
    template <class V>
    static V v(V a, V b) { return isa::bitOr(a, b); }
};
struct XorOp {
    template <class T>
    static T f(T a, T b) { return T(a ^ b); }
    template <class V>
    static V v(V a, V b) { return isa::bitXor(a, b); }
};

template <class Op>
struct BitKernel : kernels::arith::Unwatched {
    template <class T>
    T scalar(T x, T y) const { return Op::f(x, y); }
    template <class V>
    V vector(V x, V y) const { return Op::v(x, y); }
};

// Sign and magnitude to two's complement: x with a clear sign bit stays;
// otherwise the sign bit OR the negated element, which is -magnitude, and
// the type's minimum for the negative zero. The second operand is unused.
struct ComplementKernel : kernels::arith::Unwatched {
    template <class T>
    T scalar(T x, T) const {
        using U = std::make_unsigned_t<T>;
        constexpr U kSign = U(U(1) << (8 * sizeof(T) - 1));
        const U u = U(x);
        return (u & kSign) ? T(U(kSign | U(U(0) - u))) : x;
    }
    template <class T>
    isa::Vec<T> vector(isa::Vec<T> x, isa::Vec<T>) const {
        using V = isa::Vec<T>;
        const V zero = isa::zero<T>();
        const V sign = isa::set1(std::numeric_limits<T>::min());
        return isa::select(isa::cmpGt(zero, x), isa::bitOr(sign, isa::sub(zero, x)), x);
    }
};

// The logic checks: pointers (the constant array included), steps below 1,
// then the ROI.
template <class Op, class T, class L>
inline QvnStatus logic(const T* src1, std::int64_t src1Step, const T* src2, std::int64_t src2Step, T* dst,
                       std::int64_t dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src1, src2, dst));
    QVN_TRY(check::steps(src1Step, src2Step, dstStep));
    QVN_TRY(check::roi(roi));
    return runRows<T, L, false>(src1, src1Step, src2, src2Step, dst, dstStep, roi, BitKernel<Op>{});
}

template <class Op, class T, class L>
inline QvnStatus logicConst(const T* src, std::int64_t srcStep, const T* value, T* dst, std::int64_t dstStep,
                            RoiL roi) {
    QVN_TRY(check::ptrs(src, value, dst));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::roi(roi));
    return runRows<T, L, true>(src, srcStep, value, 0, dst, dstStep, roi, BitKernel<Op>{});
}

// Unary forms run as a constant form whose constant every channel shares.
template <class T, class L, class Kern>
inline QvnStatus unary(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi, T value,
                       Kern kern) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::roi(roi));
    const T all[4] = {value, value, value, value};
    return runRows<T, L, true>(src, srcStep, all, 0, dst, dstStep, roi, kern);
}

template <class T, class L>
inline QvnStatus logicNot(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi) {
    return unary<T, L>(src, srcStep, dst, dstStep, roi, T(~T(0)), BitKernel<XorOp>{});
}

template <class T, class L>
inline QvnStatus complement(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi) {
    return unary<T, L>(src, srcStep, dst, dstStep, roi, T(0), ComplementKernel{});
}

}  // namespace arith
QVN_TARGET_END

#endif
