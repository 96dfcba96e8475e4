// Elementary functions of one element: absolute value, square root,
// exponential and natural logarithm, in 32f and in the integer forms scaled
// by 2^-sf (rounded to nearest with ties to even, saturated). Every kernel
// here plugs into the arithmetic row template and ignores its second operand.
//
// The 32f exponential and logarithm are polynomials evaluated in single
// precision, written once on vectors: each operation rounds (no fused
// multiply-add on any target), and the scalar form of a head or tail element
// runs the vector code on a broadcast of it, so every target and every
// position in a row gives the same bits. The caller sets rounding to nearest.
// Their error, measured over every 32f input against the double-precision
// function (the disabled test Elementary.FloatErrorBoundsOverEveryInput):
// exp at most 0.858 ulp, ln at most 0.825 ulp (subnormal inputs and
// results included), so both are faithfully rounded.
//
// The integer forms are exact: the result is the correctly rounded value of
// f(x) * 2^-sf, saturated, for every input and scale factor.
#ifndef QVN_KERNELS_ELEMENTARY_INL_H
#define QVN_KERNELS_ELEMENTARY_INL_H

#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <type_traits>

#include "kernels/arith-inl.h"

QVN_TARGET_BEGIN
namespace kernels {
namespace arith {

// Lane 0 of fn on a vector of x: the scalar form of a vector-only kernel.
template <class T, class Fn>
inline T onLane(T x, Fn fn) {
    alignas(isa::kVectorBytes) T out[isa::kLanes<T>];
    isa::storeA(out, fn(isa::set1(x)));
    return out[0];
}

// ---- absolute value -------------------------------------------------------------------------
// 16s: (x ^ m) - m with m all ones for negative x, saturated, so -32768
// gives 32767. 32f: the sign bit cleared (NaN stays NaN).
struct AbsKernel : Unwatched {
    template <class T>
    T scalar(T x, T) const {
        if constexpr (std::is_same_v<T, float>) return std::fabs(x);
        else return x >= 0 ? x : x == kMin<T> ? T(kMax<T>) : T(-x);
    }
    template <class T>
    V<T> vector(V<T> x, V<T>) const {
        if constexpr (std::is_same_v<T, float>) {
            return isa::andNot(isa::set1(-0.0f), x);
        } else {
            const V<T> m = isa::shiftRight<8 * sizeof(T) - 1>(x);
            return isa::subSat(isa::bitXor(x, m), m);
        }
    }
};

// ---- 32f square root, exponential, logarithm ------------------------------------------------
// The correctly rounded root in the caller's rounding mode; a negative input
// (not -0) gives NaN and is flagged.
struct SqrtKernel32f : Watch<float> {
    float scalar(float x, float) {
        flag(x < 0.0f);
        return onLane(x, [](V<float> v) { return isa::sqrt(v); });
    }
    V<float> vector(V<float> x, V<float>) {
        flag(isa::cmpGt(isa::zero<float>(), x));
        return isa::sqrt(x);
    }
};

// e^x = 2^n e^r with n the integer nearest x log2(e) and r = x - n ln 2 in
// [-ln2/2, ln2/2], formed in two steps (n ln2hi is exact: ln2hi has 15
// significant bits). e^r = 1 + r + r^2 g(r), g a degree-4 fit of
// (e^r - 1 - r) / r^2 (Chebyshev nodes, 2^-23.9 absolute on the interval);
// 1 + r is summed with its rounding error carried. 2^n is applied as two
// powers of two, so results between the smallest subnormal and the largest
// float round once. x is clamped to [-104, 89] first (beyond, results are 0
// or infinity); NaN stays NaN.
inline V<float> expVector(V<float> x) {
    const V<float> xc = isa::min(isa::max(x, isa::set1(-104.0f)), isa::set1(89.0f));
    const V<std::int32_t> n = isa::toInt(isa::mul(xc, isa::set1(0x1.715476p+0f)));
    const V<float> nf = isa::toFloat(n);
    const V<float> r = isa::sub(isa::sub(xc, isa::mul(nf, isa::set1(0x1.62e4p-1f))), isa::mul(nf, isa::set1(0x1.7f7d1cp-20f)));
    V<float> g = isa::set1(0x1.6d10fcp-10f);
    for (float c : {0x1.120b62p-7f, 0x1.55551ap-5f, 0x1.5554dep-3f, 0x1p-1f}) g = isa::add(isa::mul(g, r), isa::set1(c));
    const V<float> one = isa::set1(1.0f);
    const V<float> s = isa::add(one, r), sLow = isa::add(isa::sub(one, s), r);
    const V<float> er = isa::add(s, isa::add(sLow, isa::mul(isa::mul(r, r), g)));
    const V<std::int32_t> n1 = isa::shiftRight<1>(n), bias = isa::set1<std::int32_t>(127);
    const V<float> p1 = isa::cast<float>(isa::shiftLeft<23>(isa::add(n1, bias)));
    const V<float> p2 = isa::cast<float>(isa::shiftLeft<23>(isa::add(isa::sub(n, n1), bias)));
    return isa::select(isa::cmpEq(x, x), isa::mul(isa::mul(er, p1), p2), isa::add(x, x));
}

struct ExpKernel32f : Unwatched {
    float scalar(float x, float) const { return onLane(x, expVector); }
    V<float> vector(V<float> x, V<float>) const { return expVector(x); }
};

// ln x = e ln2 + ln(1 + f) with x = 2^e (1 + f), 1 + f in [sqrt(1/2), sqrt(2))
// (the bits are offset so that the exponent field carries past sqrt(2)), and
// ln(1 + f) = f - f^2 / 2 + f^3 q(f), q a degree-8 fit of (ln(1 + f) - f +
// f^2 / 2) / f^3 (Chebyshev nodes, 2^-25 absolute); e ln2 is added in two
// parts as in expVector, the larger last. For positive normal x.
inline V<float> lnNormal(V<float> x, V<std::int32_t> eAdjust) {
    using I = std::int32_t;
    constexpr I kSqrtHalf = 0x3F3504F3;  // the bits of sqrt(1/2)
    const V<I> bits = isa::add(isa::cast<I>(x), isa::set1<I>(0x3F800000 - kSqrtHalf));
    const V<I> e = isa::sub(isa::shiftRight<23>(bits), isa::add(isa::set1<I>(127), eAdjust));
    const V<float> m = isa::cast<float>(isa::add(isa::bitAnd(bits, isa::set1<I>(0x7FFFFF)), isa::set1<I>(kSqrtHalf)));
    const V<float> f = isa::sub(m, isa::set1(1.0f)), ef = isa::toFloat(e), f2 = isa::mul(f, f);
    V<float> q = isa::set1(0x1.1d8ea6p-4f);
    for (float c : {-0x1.d635bcp-4f, 0x1.dea282p-4f, -0x1.fcf4c6p-4f, 0x1.23d21ap-3f, -0x1.555b4ap-3f, 0x1.999d5ap-3f,
                    -0x1.fffffcp-3f, 0x1.555554p-2f})
        q = isa::add(isa::mul(q, f), isa::set1(c));
    V<float> y = isa::add(isa::mul(isa::mul(f2, f), q), isa::mul(ef, isa::set1(0x1.7f7d1cp-20f)));
    y = isa::sub(y, isa::mul(isa::set1(0.5f), f2));
    return isa::add(isa::add(f, y), isa::mul(ef, isa::set1(0x1.62e4p-1f)));
}

// Vectors of positive normal inputs take lnNormal alone; otherwise subnormal
// x is scaled by 2^24 first, 0 gives -infinity, +infinity itself, negative
// inputs and NaN give NaN (the other lanes the same bits either way).
inline V<float> lnVector(V<float> x) {
    using I = std::int32_t;
    const V<float> inf = isa::set1(std::numeric_limits<float>::infinity());
    if (isa::allTrue(isa::bitAnd(isa::cmpGt(x, isa::set1(0x1.fffffcp-127f)), isa::cmpGt(inf, x))))
        return lnNormal(x, isa::zero<I>());
    const V<float> zero = isa::zero<float>(), tiny = isa::cmpGt(isa::set1(0x1p-126f), x);
    V<float> r = lnNormal(isa::select(tiny, isa::mul(x, isa::set1(0x1p24f)), x),
                          isa::bitAnd(isa::cast<I>(tiny), isa::set1<I>(24)));
    r = isa::select(isa::cmpNotLess(zero, x), isa::set1(std::numeric_limits<float>::quiet_NaN()), r);
    r = isa::select(isa::cmpEq(x, zero), isa::sub(zero, inf), r);
    return isa::select(isa::cmpEq(x, inf), inf, r);
}

// A zero input (of either sign) is flagged, and so is a negative one.
struct LnKernel32f : Watch<float> {
    float scalar(float x, float) {
        flag(x <= 0.0f);
        return onLane(x, lnVector);
    }
    V<float> vector(V<float> x, V<float>) {
        const V<float> zero = isa::zero<float>();
        flag(isa::bitOr(isa::cmpEq(x, zero), isa::cmpGt(zero, x)));
        return lnVector(x);
    }
};

// ---- integer forms -----------------------------------------------------------------------------
template <class T>
inline bool negative(T x) {
    if constexpr (std::is_signed_v<T>) return x < 0;
    else return false;
}

// 2^-sf for scale factors limited to +-40: beyond, every result of the
// functions here is the same as at the limit (0, or saturated unless 0).
template <class F>
inline F powerOfTwo(int sf) {
    return std::ldexp(F(1), sf < -40 ? 40 : sf > 40 ? -40 : -sf);
}

// The result of the integer kernels from their scaled value q >= 0 (NaN
// counts as 0), by the rounding control, which the caller sets to nearest.
template <class T, class F>
inline T roundedResult(F q) {
    q = q > F(0) ? q : F(0);
    return static_cast<T>(isa::toIntScalar(q < F(kMax<T>) ? q : F(kMax<T>)));
}

// sqrt(x) 2^-sf. The root is correctly rounded in F and the scaling exact, so
// the result is exact when F's rounding cannot move the root across a
// half-integer of the scaled result: single precision is far enough from
// every such point for 8u and for factors >= 0 (the root of an integer below
// 2^16 that is not itself a half-integer there lies at least 2^-11 away),
// double for 16-bit inputs with factors below 0. Negative 16s inputs give 0
// and are flagged.
template <class T>
inline bool sqrtNeedsDouble(int sf) { return sizeof(T) > 1 && sf < 0; }

template <class T, class F>
struct SqrtKernel : Watch<T> {
    F scale;
    V<F> vscale, hi;
    explicit SqrtKernel(int sf) : scale(powerOfTwo<F>(sf)), vscale(isa::set1(scale)), hi(isa::set1(F(kMax<T>))) {}
    T scalar(T x, T) {
        this->flag(negative(x));
        return negative(x) ? T(0) : roundedResult<T>(F(std::sqrt(F(x))) * scale);
    }
    V<T> vector(V<T> x, V<T>) {
        if constexpr (std::is_signed_v<T>) this->flag(isa::cmpGt(isa::zero<T>(), x));
        // max(q, 0) gives 0 for the NaN root of a negative input (its second operand)
        const auto scaled = [&](V<F> v) { return isa::min(isa::max(isa::mul(isa::sqrt(v), vscale), isa::zero<F>()), hi); };
        V<std::int32_t> a[kParts<std::int32_t, T>];
        widen(x, a);
        for (auto& v : a) {
            if constexpr (std::is_same_v<F, float>) v = isa::toInt(scaled(isa::toFloat(v)));
            else v = isa::toInt(scaled(isa::toDoubleLo(v)), scaled(isa::toDoubleHi(v)));
        }
        return narrow<T>(a);
    }
};

// e^x 2^-sf: as x steps by one the value grows by e, so at most 16
// consecutive inputs lie between the last whose result is 0 and the first
// that saturates. Those results are computed once per call (y = x - sf ln2
// in double with ln2 split so that sf ln2hi is exact, then exp(y), whose
// error stays far below the distance of any such value to a half-integer
// that a test of every input at many factors finds), and an element takes
// the entry of its input clamped into that window: a chain of comparisons
// on vectors, a lookup on one element.
template <class T>
struct ExpKernel : Unwatched {
    using S = std::make_signed_t<T>;
    static constexpr int kWindow = 16;
    std::int64_t first = 0;  // the input of entry 0
    int n = 1;               // entries
    T value[kWindow] = {};
    V<S> above[kWindow];     // element k > 0 applies above first + k - 1 (inputs biased into S)
    V<T> vvalue[kWindow];

    static T exact(std::int64_t x, int sf) {
        constexpr double kLn2Hi = 0x1.62e42ffp-1, kLn2Lo = -0x1.718432a1b0e26p-35;  // sf ln2hi exact
        const double y = (double(x) - sf * kLn2Hi) - sf * kLn2Lo;
        if (y < -1.0) return T(0);
        if (y > 12.0) return T(kMax<T>);
        const double e = std::exp(y), fl = std::floor(e);
        const double r = e - fl > 0.5 || (e - fl == 0.5 && std::fmod(fl, 2.0) != 0.0) ? fl + 1 : fl;
        return r > double(kMax<T>) ? T(kMax<T>) : T(r);
    }
    static S biased(std::int64_t x) { return S(std::is_signed_v<T> ? x : x + kMin<S>); }
    static V<S> biased(V<T> x) {
        if constexpr (std::is_signed_v<T>) return x;
        else return isa::cast<S>(isa::bitXor(x, isa::set1(T(kMin<S>))));
    }

    explicit ExpKernel(int sf) {
        sf = sf < -(1 << 20) ? -(1 << 20) : sf > (1 << 20) ? (1 << 20) : sf;  // far beyond every type's window
        const double c = sf * 0.6931471805599453;  // inputs near c give results near 1
        // e^-1 rounds to 0 and e^12.1 saturates 16 bits
        const std::int64_t lo = std::int64_t(std::floor(c - 1.0)), hi = std::int64_t(std::ceil(c + 12.1));
        first = lo < kMin<T> ? kMin<T> : lo > kMax<T> ? kMax<T> : lo;
        const std::int64_t last = hi > kMax<T> ? kMax<T> : hi < kMin<T> ? kMin<T> : hi;
        n = int(last - first + 1);
        for (int k = 0; k < n; ++k) {
            value[k] = exact(first + k, sf);
            vvalue[k] = isa::set1(value[k]);
            above[k] = isa::set1(biased(first + k - 1));
        }
    }
    bool constant() const { return n == 1; }
    T scalar(T x, T) const {
        const std::int64_t k = std::int64_t(x) - first;
        return value[k < 0 ? 0 : k >= n ? n - 1 : k];
    }
    V<T> vector(V<T> x, V<T>) const {
        const V<S> xs = biased(x);
        V<T> r = vvalue[0];
        for (int k = 1; k < n; ++k) r = isa::select(isa::cast<T>(isa::cmpGt(xs, above[k])), vvalue[k], r);
        return r;
    }
};

// ln x 2^-sf in double precision: x = 2^e m exactly (from x in single
// precision, m in [sqrt(1/2), sqrt(2))), ln m = 2 atanh(s) with s = (m - 1) /
// (m + 1), |s| < 0.172, summed to its s^15 term (truncation below 2^-46),
// plus e ln2. Its error, below 2^-45, is far smaller than the distance of
// ln x 2^-sf to a half-integer for every input and factor (a test checks
// every input). The scalar form uses the library's ln.
//
// Inputs of 0 (and negative 16s inputs, outside the domain as well) give the
// minimum of T and are flagged.
inline V<double> lnReduced(V<double> m, V<double> e) {
    const V<double> s = isa::div(isa::sub(m, isa::set1(1.0)), isa::add(m, isa::set1(1.0)));
    const V<double> z = isa::mul(s, s), s2 = isa::add(s, s);
    V<double> p = isa::set1(1.0 / 15);
    for (double c : {1.0 / 13, 1.0 / 11, 1.0 / 9, 1.0 / 7, 1.0 / 5, 1.0 / 3}) p = isa::add(isa::mul(p, z), isa::set1(c));
    const V<double> lnm = isa::add(s2, isa::mul(isa::mul(s2, z), p));
    return isa::add(isa::mul(e, isa::set1(0x1.62e42fefa39efp-1)), lnm);
}

template <class T>
struct LnKernel : Watch<T> {
    double scale;
    V<double> vscale, hi;
    explicit LnKernel(int sf) : scale(powerOfTwo<double>(sf)), vscale(isa::set1(scale)), hi(isa::set1(double(kMax<T>))) {}
    T scalar(T x, T) {
        const bool outside = x == 0 || negative(x);
        this->flag(outside);
        return outside ? T(kMin<T>) : roundedResult<T>(std::log(double(x)) * scale);
    }
    V<std::int32_t> rounded(V<std::int32_t> x) const {
        using I = std::int32_t;
        const V<float> xf = isa::toFloat(isa::max(x, isa::set1<I>(1)));  // exact: inputs below 2^24
        const V<I> bits = isa::cast<I>(xf);
        V<I> e = isa::sub(isa::shiftRight<23>(bits), isa::set1<I>(127));
        V<float> m = isa::cast<float>(isa::bitOr(isa::bitAnd(bits, isa::set1<I>(0x7FFFFF)), isa::set1<I>(0x3F800000)));
        const V<float> high = isa::cmpGt(m, isa::set1(0x1.6a09e6p+0f));
        m = isa::select(high, isa::mul(m, isa::set1(0.5f)), m);
        const V<float> ef = isa::toFloat(isa::sub(e, isa::cast<I>(high)));
        const auto scaled = [&](V<double> v) { return isa::min(isa::mul(v, vscale), hi); };
        return isa::toInt(scaled(lnReduced(isa::toDoubleLo(m), isa::toDoubleLo(ef))),
                          scaled(lnReduced(isa::toDoubleHi(m), isa::toDoubleHi(ef))));
    }
    V<T> vector(V<T> x, V<T>) {
        const V<T> zero = isa::zero<T>();
        V<T> outside = isa::cmpEq(x, zero);
        if constexpr (std::is_signed_v<T>) outside = isa::bitOr(outside, isa::cmpGt(zero, x));
        this->flag(outside);
        V<std::int32_t> a[kParts<std::int32_t, T>];
        widen(x, a);
        for (auto& v : a) v = rounded(v);
        return isa::select(outside, isa::set1(T(kMin<T>)), narrow<T>(a));
    }
};

}  // namespace arith
}  // namespace kernels
QVN_TARGET_END

#endif
