// Reference model of the resize, from the rules alone: the nearest index,
// the linear taps and weights of an axis, the exact value of a linear pixel
// with the accurate mode's single-precision weights, and the fast mode's
// integer arithmetic.
#ifndef QVN_TESTS_REF_RESIZE_REF_H
#define QVN_TESTS_REF_RESIZE_REF_H

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace qvn::ref {

// Destination position i of an axis from src to dst pixels: the source pixel
// nearest its centre, the lower one on a boundary.
inline std::int64_t nearestIndex(std::int64_t i, std::int64_t src, std::int64_t dst) {
    const auto k = std::int64_t((double(i) + 0.5) * ((1.0 / double(dst)) * double(src)) + -1e-10);
    return std::min(std::max<std::int64_t>(k, 0), src - 1);
}

// Linear position i: centres aligned, p = (i + 0.5) * src / dst - 0.5 lies
// between taps floor(p) and floor(p) + 1; the second weighs p - floor(p).
struct LinearTap {
    std::int64_t first;
    double frac;
};
inline LinearTap linearTap(std::int64_t i, std::int64_t src, std::int64_t dst) {
    const double p = (double(i) + 0.5) * (double(src) / double(dst)) - 0.5;
    return {std::int64_t(std::floor(p)), p - std::floor(p)};
}

// The fast mode's weights of 14 fraction bits: (16384 - w, w).
inline std::int32_t fastWeight(double frac) { return std::int32_t(16384 * frac + 1e-7); }

// The exact value of a pixel from its four taps s[row][col] and the two
// fractions, with the accurate mode's weights (the fraction in single
// precision, or double for 64f).
inline long double linearValue(const long double s[2][2], double fx, double fy, bool doubleWeights) {
    const long double ax = doubleWeights ? fx : float(fx), ay = doubleWeights ? fy : float(fy);
    const auto across = [&](int r) { return (1 - ax) * s[r][0] + ax * s[r][1]; };
    return (1 - ay) * across(0) + ay * across(1);
}

// The fast mode: each row across with (a * w0 + b * w1 + 64) >> 7, then down
// with (r0 * v0 + r1 * v1 + 2^20) >> 21.
inline int fastValue(const int s[2][2], double fx, double fy) {
    const std::int32_t wx = fastWeight(fx), wy = fastWeight(fy);
    const auto across = [&](int r) { return ((16384 - wx) * s[r][0] + wx * s[r][1] + 64) >> 7; };
    return ((16384 - wy) * across(0) + wy * across(1) + (1 << 20)) >> 21;
}

}  // namespace qvn::ref

#endif
