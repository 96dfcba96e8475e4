// Thresholds: the operations, scalar and vector forms side by side, for
// kernels::arith::row with a ChannelConstants operand.
//
// Every test is strict, so a pixel equal to its threshold is never replaced,
// and false where a float operand is NaN, so NaN pixels are kept. Unsigned
// lanes compare by saturating subtraction: x < t exactly where t - x,
// saturated at 0, is not 0.
#ifndef QVN_KERNELS_THRESHOLD_INL_H
#define QVN_KERNELS_THRESHOLD_INL_H

#include <type_traits>

#include "kernels/arith-inl.h"
#include "kernels/constants-inl.h"

QVN_TARGET_BEGIN
namespace kernels {
namespace threshold {

template <class T>
using V = isa::Vec<T>;

// a < b ? r : x, lane by lane.
template <class T>
inline V<T> ifLess(V<T> a, V<T> b, V<T> r, V<T> x) {
    if constexpr (std::is_unsigned_v<T>) return isa::select(isa::cmpEq(isa::subSat(b, a), isa::zero<T>()), x, r);
    else return isa::select(isa::cmpGt(b, a), r, x);
}

// _LT: max(x, t), as t > x ? t : x (the float max keeps its second operand
// where either is NaN, and where both are zeros of either sign).
template <class T>
struct RaiseTo : arith::Unwatched {
    static constexpr int kConstants = 1;
    T scalar(T x, const Scalars<T, 1>& k) const { return k.c[0] > x ? k.c[0] : x; }
    V<T> vector(V<T> x, const Vectors<T, 1>& k) const { return isa::max(k.c[0], x); }
};

// _GT: min(x, t), as t < x ? t : x.
template <class T>
struct LowerTo : arith::Unwatched {
    static constexpr int kConstants = 1;
    T scalar(T x, const Scalars<T, 1>& k) const { return k.c[0] < x ? k.c[0] : x; }
    V<T> vector(V<T> x, const Vectors<T, 1>& k) const { return isa::min(k.c[0], x); }
};

// _LTVal: constants t, v; v where x < t.
template <class T>
struct ReplaceBelow : arith::Unwatched {
    static constexpr int kConstants = 2;
    T scalar(T x, const Scalars<T, 2>& k) const { return x < k.c[0] ? k.c[1] : x; }
    V<T> vector(V<T> x, const Vectors<T, 2>& k) const { return ifLess(x, k.c[0], k.c[1], x); }
};

// _GTVal: constants t, v; v where x > t.
template <class T>
struct ReplaceAbove : arith::Unwatched {
    static constexpr int kConstants = 2;
    T scalar(T x, const Scalars<T, 2>& k) const { return k.c[0] < x ? k.c[1] : x; }
    V<T> vector(V<T> x, const Vectors<T, 2>& k) const { return ifLess(k.c[0], x, k.c[1], x); }
};

// _LTValGTVal: constants lower t, lower v, upper t, upper v (upper t not
// below lower t, so at most one replacement applies).
template <class T>
struct ReplaceOutside : arith::Unwatched {
    static constexpr int kConstants = 4;
    T scalar(T x, const Scalars<T, 4>& k) const { return x < k.c[0] ? k.c[1] : k.c[2] < x ? k.c[3] : x; }
    V<T> vector(V<T> x, const Vectors<T, 4>& k) const {
        return ifLess(k.c[2], x, k.c[3], ifLess(x, k.c[0], k.c[1], x));
    }
};

}  // namespace threshold
}  // namespace kernels
QVN_TARGET_END

#endif
