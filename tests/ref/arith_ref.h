// Independent models of the scale-factor arithmetic: exact integers (128-bit
// where needed), explicit tie rules, no fast paths.
#ifndef QVN_TESTS_REF_ARITH_REF_H
#define QVN_TESTS_REF_ARITH_REF_H

#include <cmath>
#include <cstdint>
#include <limits>

namespace qvn::ref {

using i128 = __int128;

template <class T>
T saturate(i128 v) {
    const i128 lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
    return static_cast<T>(v < lo ? lo : v > hi ? hi : v);
}

// num / den rounded to the nearest integer, ties to even (den > 0).
inline i128 divRoundEven(i128 num, i128 den) {
    i128 q = num / den, r = num % den;
    if (r < 0) { q -= 1; r += den; }  // floor
    if (2 * r > den || (2 * r == den && (q & 1))) q += 1;
    return q;
}

// (num / den) * 2^-sf rounded to nearest, ties to even, den > 0. Factors far
// outside the range of 16-bit results are clamped where the result no longer
// changes (|num| < 2^40, den < 2^17).
inline i128 scaleRational(i128 num, i128 den, int sf) {
    if (sf > 60) return 0;
    if (sf < -60) sf = -60;
    if (sf >= 0) return divRoundEven(num, den << sf);
    return divRoundEven(num * (i128(1) << -sf), den);
}

// The scale-factor rule on an exact integer result.
template <class T>
T scaled(std::int64_t v, int sf) { return saturate<T>(scaleRational(v, 1, sf)); }

// Integer division with a scale factor: x / y, zero divisors by the sign of x.
template <class T>
T divided(std::int64_t x, std::int64_t y, int sf) {
    if (y == 0) return x == 0 ? T(0) : x > 0 ? std::numeric_limits<T>::max() : std::numeric_limits<T>::min();
    if (y < 0) { x = -x; y = -y; }
    return saturate<T>(scaleRational(x, y, sf));
}

// floor(a * b / max) for the normalised products.
template <class T>
T mulScaled(std::uint64_t a, std::uint64_t b) {
    return static_cast<T>(a * b / std::numeric_limits<T>::max());
}

// A real result (long double, from the C library's functions) rounded to
// the nearest integer with ties to even and saturated; NaN counts as
// -infinity. Exact for the elementary functions of 16-bit integers, whose
// values are never within the long double error of a half-integer unless
// they are one.
template <class T>
T roundedReal(long double v) {
    if (std::isnan(v) || v <= (long double)std::numeric_limits<T>::min()) return std::numeric_limits<T>::min();
    if (v >= (long double)std::numeric_limits<T>::max()) return std::numeric_limits<T>::max();
    long double r = std::floor(v);
    const long double d = v - r;
    if (d > 0.5L || (d == 0.5L && std::fmod(r, 2.0L) != 0)) r += 1;
    return static_cast<T>(r);
}

}  // namespace qvn::ref

#endif
