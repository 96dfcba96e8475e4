// Reference models of the conversions, written from their rules in long
// double and wide integers, with explicit tie rules and no fast paths.
#ifndef QVN_TESTS_REF_CONVERT_REF_H
#define QVN_TESTS_REF_CONVERT_REF_H

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace qvn::ref {

// v rounded to an integer: 0 toward zero, 1 nearest with halves to even,
// 2 nearest with halves away from zero. v is finite and below 2^62.
inline long double roundBy(long double v, int mode) {
    if (mode == 0) return std::trunc(v);
    const long double f = std::floor(v), frac = v - f;  // exact
    if (frac < 0.5L) return f;
    if (frac > 0.5L) return f + 1;
    if (mode == 2) return v < 0 ? f : f + 1;
    return std::fmod(f, 2.0L) == 0 ? f : f + 1;
}

// v saturated to D and rounded by mode: not below the maximum gives the
// maximum, not above the minimum the minimum, NaN gives 0.
template <class D>
D saturate(long double v, int mode) {
    if (std::isnan(v)) return D(0);
    const long double lo = std::numeric_limits<D>::min(), hi = std::numeric_limits<D>::max();
    if (v >= hi) return std::numeric_limits<D>::max();
    if (v <= lo) return std::numeric_limits<D>::min();
    return D(roundBy(v, mode));
}

// Value conversion to D: integers saturate (rounding by mode), floats take
// the nearest value of D.
template <class D>
D to(long double v, int mode = 1) {
    if constexpr (std::is_integral_v<D>) return saturate<D>(v, mode);
    else return D(v);
}

// Scaled conversion: v * 2^-sf, exactly, then saturated and rounded.
template <class D>
D scaled(long double v, int sf, int mode) {
    if (v == 0 || std::isnan(v)) return D(0);
    // ldexp in long double: the product is exact or over/underflows far
    // beyond every destination range.
    const long double x = std::isinf(v) ? v : std::ldexp(v, sf > 20000 ? -20000 : sf < -20000 ? 20000 : -sf);
    return saturate<D>(x, mode);
}

// Range mapping of an integer source onto an integer destination:
// (s - minS) * spanD / spanS + minD, rounded to nearest (halves to even).
template <class S, class D>
D scaleRange(S s) {
    using L = std::numeric_limits<S>;
    using M = std::numeric_limits<D>;
    const __int128 num = (__int128(s) - L::min()) * (__int128(M::max()) - M::min());
    const __int128 den = __int128(L::max()) - L::min();
    __int128 q = num / den;
    const __int128 r = num - q * den;
    if (2 * r > den || (2 * r == den && (q & 1))) ++q;
    return D(q + M::min());
}

// The float range map of 32f to 8u, in the float arithmetic it is defined in.
inline std::uint8_t scale32f8u(float s, float vMin, float vMax) {
    const float k = 255.0f / (vMax - vMin);
    const float b = -vMin * k;
    const float p = s * k;
    return saturate<std::uint8_t>(static_cast<long double>(p + b), 1);
}

}  // namespace qvn::ref

#endif
