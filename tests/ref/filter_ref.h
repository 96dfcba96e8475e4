// Reference model of the bordered filters' neighbourhoods and of the general
// filter's arithmetic, from the rules: every neighbour found one at a time,
// sums in double or in 64-bit integers, divisions and roundings of exact
// rationals.
#ifndef QVN_TESTS_REF_FILTER_REF_H
#define QVN_TESTS_REF_FILTER_REF_H

#include <cmath>
#include <cstdint>
#include <limits>

#include "ref/border_ref.h"

namespace qvn::ref {

// A bordered source: kind, and which sides are read from memory.
struct Bordered {
    Border kind;
    bool top = false, bottom = false, left = false, right = false;
};

// Element (x, y) of the extended source: inside the ROI, or beyond it on an
// in-memory side, at(x, y) reads memory; elsewhere the kind decides, and a
// constant kind on either axis gives value.
template <class T, class At>
T extended(const Bordered& b, std::int64_t x, std::int64_t y, std::int64_t w, std::int64_t h, const At& at, T value) {
    const bool memX = (x >= 0 && x < w) || (x < 0 && b.left) || (x >= w && b.right);
    const bool memY = (y >= 0 && y < h) || (y < 0 && b.top) || (y >= h && b.bottom);
    if ((!memX || !memY) && b.kind == Border::kConst) return value;
    return at(memX ? x : borderIndex(b.kind, x, w), memY ? y : borderIndex(b.kind, y, h));
}

// x / d rounded by QvnRounding mode (0 toward zero, 1 to nearest even, 2
// halves away from zero), exactly.
inline std::int64_t divideRounded(std::int64_t x, std::int64_t d, int mode) {
    std::int64_t q = x / d, r = x % d;
    if (r == 0 || mode == 0) return q;
    const std::int64_t twice = 2 * (r < 0 ? -r : r), ad = d < 0 ? -d : d;
    const bool up = twice > ad || (twice == ad && (mode == 2 || q % 2 != 0));
    return up ? q + ((x < 0) != (d < 0) ? -1 : 1) : q;
}

// A float rounded to an integer by mode, after the clamp to +-65536.
inline std::int64_t roundFloat(float x, int mode) {
    if (!(x > -65536.0f)) x = -65536.0f;
    if (x > 65536.0f) x = 65536.0f;
    return std::int64_t(mode == 0 ? std::trunc(x) : mode == 2 ? std::round(x) : std::nearbyint(x));
}

template <class T>
T saturated(std::int64_t v) {
    using L = std::numeric_limits<T>;
    return T(v < L::lowest() ? L::lowest() : v > L::max() ? L::max() : v);
}

// The divisor record's division of an exact integer sum (wrapped to 32 bits):
// none, a shift by k (divisor 2^k), the float reciprocal, or with exact set
// the exact quotient; the offset adds exactly.
template <class T>
T divided(std::int64_t sum, int divisor, int mode, bool exact, int offset) {
    const std::int64_t v = std::int32_t(std::uint32_t(sum));
    const bool power = divisor > 0 && (divisor & (divisor - 1)) == 0;
    if (power || exact) return saturated<T>(divideRounded(v + std::int64_t(offset) * divisor, divisor, mode));
    const float f = (float(v) + float(std::int64_t(offset) * divisor)) * (1.0f / float(divisor));
    return saturated<T>(roundFloat(f, mode));
}

}  // namespace qvn::ref

#endif
