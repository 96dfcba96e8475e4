// Division kernels: integer division with a scale factor, division with a
// rounding mode, and 32f division by a refined reciprocal.
#ifndef QVN_KERNELS_ARITH_DIV_INL_H
#define QVN_KERNELS_ARITH_DIV_INL_H

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

#include "kernels/arith-inl.h"

QVN_TARGET_BEGIN
namespace kernels {
namespace arith {

// What a zero divisor gives: 0 for a zero dividend, else the maximum of T (the
// minimum for a negative 16s dividend).
template <class T>
inline T zeroDivisorResult(T x) {
    return x == 0 ? T(0) : x > 0 ? std::numeric_limits<T>::max() : std::numeric_limits<T>::min();
}
template <class T>
inline V<T> zeroDivisorResult(V<T> x) {
    if constexpr (std::is_signed_v<T>) {
        const V<T> z = isa::zero<T>();
        return isa::bitOr(isa::bitAnd(isa::cmpGt(x, z), isa::set1<T>(std::numeric_limits<T>::max())),
                          isa::bitAnd(isa::cmpGt(z, x), isa::set1<T>(std::numeric_limits<T>::min())));
    } else {
        return isa::andNot(isa::cmpEq(x, isa::zero<T>()), isa::allOnes<T>());
    }
}

// Remembers whether any divisor that was used (not an AC4 alpha) was zero.
template <class T>
struct ZeroWatch : Watch<T> {
    V<T> watch(V<T> y) {
        const V<T> z = isa::cmpEq(y, isa::zero<T>());
        this->flag(z);
        return z;
    }
    QvnStatus status() const { return this->met() ? qvnWarnDivByZero : qvnOk; }
};

// Integer x / y scaled by 2^-sf, rounded to nearest with ties to even: the
// quotient (x / y) * 2^-sf is formed in F, where the scaling by a power of two
// is exact and the one rounded division cannot move the quotient across a
// half-integer that decides the result; it is then clamped to T and
// rounded by the rounding control, which the caller sets to nearest. Single
// precision suffices for 8u and for factors >= 0 (the quotient's error stays
// below 2^-8 / (y * 2^sf), under the 1 / (2 y 2^sf) between a quotient and a
// half); 16-bit division by a negative factor needs double. Factors beyond
// +-40 give the results of +-40 (all 0, or all saturated).
template <class T, class F>
struct DivKernel : ZeroWatch<T> {
    static constexpr bool kVector = true;
    F scale;
    V<F> vscale, lo, hi;
    explicit DivKernel(int sf)
        : scale(std::ldexp(F(1), sf < -40 ? 40 : sf > 40 ? -40 : -sf)), vscale(isa::set1(scale)),
          lo(isa::set1(F(kMin<T>))), hi(isa::set1(F(kMax<T>))) {}
    T scalar(T x, T y) {
        if (y == 0) {
            this->seenScalar = true;
            return zeroDivisorResult(x);
        }
        F q = F(x) / F(y) * scale;
        q = q < F(kMin<T>) ? F(kMin<T>) : q > F(kMax<T>) ? F(kMax<T>) : q;
        return static_cast<T>(isa::toIntScalar(q));
    }
    V<F> quotient(V<F> x, V<F> y) const {
        const V<F> q = isa::mul(isa::div(x, y), vscale);
        // unsigned quotients are not negative (0 / 0 is replaced afterwards)
        if constexpr (std::is_signed_v<T>) return isa::min(isa::max(q, lo), hi);
        else return isa::min(q, hi);
    }
    V<T> vector(V<T> x, V<T> y) {
        const V<T> zero = this->watch(y);
        V<int32_t> a[kParts<int32_t, T>], b[kParts<int32_t, T>];
        widen(x, a);
        widen(y, b);
        for (int j = 0; j < kParts<int32_t, T>; ++j) {
            if constexpr (std::is_same_v<F, float>)
                a[j] = isa::toInt(quotient(isa::toFloat(a[j]), isa::toFloat(b[j])));
            else
                a[j] = isa::toInt(quotient(isa::toDoubleLo(a[j]), isa::toDoubleLo(b[j])),
                                  quotient(isa::toDoubleHi(a[j]), isa::toDoubleHi(b[j])));
        }
        return isa::select(zero, zeroDivisorResult(x), narrow<T>(a));
    }
};

// Whether division of T by scale factor sf needs the double kernel.
template <class T>
inline bool divNeedsDouble(int sf) { return sizeof(T) > 1 && sf < 0; }

// What a zero divisor gives in the division with a rounding mode: 0 for a zero
// dividend, else the maximum of T, whatever the dividend's sign.
template <class T>
inline T zeroDivisorMax(T x) {
    return x == 0 ? T(0) : std::numeric_limits<T>::max();
}
template <class T>
inline V<T> zeroDivisorMax(V<T> x) {
    return isa::andNot(isa::cmpEq(x, isa::zero<T>()), isa::set1<T>(std::numeric_limits<T>::max()));
}

// Division with a rounding mode: q = x / (y * 2^sf) in single precision,
// limited to the range of T, then rounded by the rounding control (toward zero
// for modes 0 and 2, nearest for mode 1; the caller sets it). Mode 2 first
// moves q by a half away from zero. Factors beyond +-32 give the results of
// +-32.
template <class T>
struct DivRoundKernel : ZeroWatch<T> {
    static constexpr bool kVector = true;
    float scale, half;
    V<float> vscale, vhalf, lo, hi, sign;
    DivRoundKernel(int sf, int mode) {
        const int s = sf < -32 ? -32 : sf > 32 ? 32 : sf;
        scale = std::ldexp(1.0f, s);
        half = mode == qvnRndFinancial ? 0.5f : 0.0f;
        vscale = isa::set1(scale);
        vhalf = isa::set1(half);
        lo = isa::set1(float(kMin<T>));
        hi = isa::set1(float(kMax<T>));
        sign = isa::set1(-0.0f);
    }
    T scalar(T x, T y) {
        if (y == 0) {
            this->seenScalar = true;
            return zeroDivisorMax(x);
        }
        float q = float(x) / (float(y) * scale);
        q = q < float(kMin<T>) ? float(kMin<T>) : q > float(kMax<T>) ? float(kMax<T>) : q;
        q = q + std::copysign(half, q);
        return static_cast<T>(isa::toIntScalar(q));
    }
    V<int32_t> rounded(V<int32_t> x, V<int32_t> y) const {
        V<float> q = isa::div(isa::toFloat(x), isa::mul(isa::toFloat(y), vscale));
        q = isa::min(isa::max(q, lo), hi);
        return isa::toInt(isa::add(q, isa::bitOr(vhalf, isa::bitAnd(q, sign))));
    }
    V<T> vector(V<T> x, V<T> y) {
        const V<T> zero = this->watch(y);
        V<int32_t> a[kParts<int32_t, T>], b[kParts<int32_t, T>];
        widen(x, a);
        widen(y, b);
        for (int j = 0; j < kParts<int32_t, T>; ++j) a[j] = rounded(a[j], b[j]);
        return isa::select(zero, zeroDivisorMax(x), narrow<T>(a));
    }
};

// ---- 32f ---------------------------------------------------------------------------
// One element by true division; a zero divisor (of either sign) gives +inf for
// a positive dividend, -inf for a negative one and the quiet NaN otherwise.
inline float divElement(float x, float y, bool& zero) {
    if (y == 0.0f) {
        zero = true;
        if (x > 0.0f) return std::numeric_limits<float>::infinity();
        if (x < 0.0f) return -std::numeric_limits<float>::infinity();
        const std::uint32_t nan = 0x7FC00000u;
        float f;
        std::memcpy(&f, &nan, sizeof f);
        return f;
    }
    return x / y;
}

// x * (1 / y) with the approximate reciprocal refined to second order.
inline V<float> divRefined(V<float> x, V<float> y) {
    const V<float> r0 = isa::rcpApprox(y);
    const V<float> e = isa::sub(isa::set1(1.0f), isa::mul(y, r0));
    return isa::mul(x, isa::add(r0, isa::mul(isa::add(isa::mul(r0, e), r0), e)));
}

// d = x / y over n elements in groups of eight that start where the head that
// 16-byte aligns d ends: the grouping every target keeps, whatever its vector
// size. A group that holds a zero divisor goes element by element (true
// division), as do head and tail. Returns whether a zero divisor was met. With
// Keep every fourth element (alpha) is neither used nor written.
template <bool Keep>
inline bool divRow32f(const float* x, const float* y, float* d, int64_t n) {
    constexpr int64_t kGroup = 8;
    constexpr int64_t kLanes = int64_t(isa::kLanes<float>);
    constexpr int64_t kStep = kLanes > kGroup ? kLanes : kGroup;  // whole groups in whole vectors
    constexpr int kVecs = int(kStep / kLanes);
    bool zero = false;
    const auto one = [&](int64_t k) {
        if (!Keep || k % 4 != 3) d[k] = divElement(x[k], y[k], zero);
    };
    const auto groupHasZero = [&](int64_t k) {
        for (int64_t j = k; j < k + kGroup; ++j)
            if ((!Keep || j % 4 != 3) && y[j] == 0.0f) return true;
        return false;
    };
    int64_t head = headToAlign16(d, n);
    if (head < 0) head = n;
    int64_t i = 0;
    for (; i < head; ++i) one(i);
    const V<float> alpha = Keep ? alphaLanes<float>(i) : isa::zero<float>();
    for (; i + kStep <= n; i += kStep) {
        V<float> q[kVecs], hit = isa::zero<float>();
        for (int v = 0; v < kVecs; ++v) {
            const V<float> yv = isa::loadU(y + i + v * kLanes);
            hit = isa::bitOr(hit, isa::andNot(alpha, isa::cmpEq(yv, isa::zero<float>())));
            q[v] = divRefined(isa::loadU(x + i + v * kLanes), yv);
        }
        if (isa::anyTrue(hit)) {
            if constexpr (kStep == kGroup) {
                for (int64_t k = i; k < i + kGroup; ++k) one(k);
                continue;
            } else {  // one vector of several groups: the groups with a zero element by element
                alignas(isa::kVectorBytes) float t[kStep];
                isa::storeA(t, q[0]);
                for (int64_t g = 0; g < kStep; g += kGroup)
                    if (groupHasZero(i + g))
                        for (int64_t j = g; j < g + kGroup; ++j) t[j] = divElement(x[i + j], y[i + j], zero);
                q[0] = isa::loadA(t);
            }
        }
        for (int v = 0; v < kVecs; ++v) {
            if constexpr (Keep) isa::storeKeep(d + i + v * kLanes, q[v], alpha);
            else isa::storeU(d + i + v * kLanes, q[v]);
        }
    }
    // Whole groups left where a vector holds several: staged through a vector.
    for (; i + kGroup <= n; i += kGroup) {
        if (groupHasZero(i)) {
            for (int64_t k = i; k < i + kGroup; ++k) one(k);
            continue;
        }
        alignas(isa::kVectorBytes) float tx[kStep] = {}, ty[kStep], t[kStep];
        for (int64_t j = 0; j < kStep; ++j) ty[j] = 1.0f;
        std::memcpy(tx, x + i, kGroup * sizeof(float));
        std::memcpy(ty, y + i, kGroup * sizeof(float));
        for (int v = 0; v < kVecs; ++v)
            isa::storeA(t + v * kLanes, divRefined(isa::loadA(tx + v * kLanes), isa::loadA(ty + v * kLanes)));
        for (int64_t j = 0; j < kGroup; ++j)
            if (!Keep || (i + j) % 4 != 3) d[i + j] = t[j];
    }
    for (; i < n; ++i) one(i);
    return zero;
}

}  // namespace arith
}  // namespace kernels
QVN_TARGET_END

#endif
