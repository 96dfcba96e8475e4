// Test data: source values that meet every boundary of the rules, and
// constants that a vector body and its scalar head and tail must treat alike.
#ifndef QVN_TESTS_SUPPORT_VALUES_H
#define QVN_TESTS_SUPPORT_VALUES_H

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "support/guarded_image.h"

namespace qvn::test {

// Boundary values of a source type: extremes, zero, the edges of every
// destination range, halves on both sides of them, and for floats NaN,
// infinities and tiny values.
template <class S>
std::vector<S> boundaryValues() {
    using L = std::numeric_limits<S>;
    std::vector<long double> v = {0, 1, -1, 2, -2, 127, 128, -128, -129, 255, 256, 32767, 32768, -32768, -32769,
                                  65535, 65536, 2147483647.0L, -2147483648.0L, 4294967295.0L};
    std::vector<S> out = {L::lowest(), L::max(), S(L::max() - 1), S(L::lowest() + 1)};
    if constexpr (std::is_floating_point_v<S>) {
        for (long double h : {0.5L, 1.5L, 2.5L, 3.5L, 126.5L, 127.5L, 128.5L, 254.5L, 255.5L, 32766.5L, 32767.5L,
                              65534.5L, 65535.5L, 2.9L, 0.49999997L, 2147483520.0L, 2147483648.0L, 2147483647.5L,
                              4294967040.0L, 4294967296.0L, 4294967295.5L, 1e10L, 3e38L})
            v.insert(v.end(), {h, -h});
        out.insert(out.end(), {L::quiet_NaN(), -L::quiet_NaN(), L::infinity(), -L::infinity(), L::denorm_min(),
                               L::min(), S(-0.0), std::nextafter(S(0.5), S(0)), -std::nextafter(S(0.5), S(0))});
    }
    for (long double x : v)
        if (std::is_floating_point_v<S> || (x >= L::lowest() && x <= L::max())) out.push_back(S(x));
    return out;
}

// Constants and multipliers that only special paths meet: NaN, infinities,
// zeros of both signs, magnitudes far outside every integer range and tiny ones.
template <class F>
std::vector<F> specialConstants() {
    using L = std::numeric_limits<F>;
    return {L::quiet_NaN(), L::infinity(), -L::infinity(), F(-0.0), L::max() / 4, -L::max() / 4, L::denorm_min()};
}

// A random value: random bits, or for floats mostly values near the integer
// ranges in quarters (so that halves occur often).
template <class S>
S randomValue(std::mt19937& rng) {
    if constexpr (std::is_floating_point_v<S>) {
        const std::uint64_t bits = (std::uint64_t(rng()) << 32) | rng();
        S x;
        std::memcpy(&x, &bits, sizeof(S));
        const S near[] = {S(int(rng() % 1200) - 300) / 4, S(int(rng() % 280000) - 140000) / 2,
                          S(std::int64_t(rng()) - (std::int64_t(1) << 31)) * S(1.5), x};
        return near[rng() % 4];
    } else {
        return static_cast<S>(std::uint64_t(rng()) * 0x9E3779B97F4A7C15ull >> 32);
    }
}

// The ROI of src: boundary values first, then consecutive values from a
// random start (integer sources of up to 16 bits: whole ranges over large
// images), random values otherwise.
template <class S>
void fillSource(GuardedImage<S>& src, std::uint32_t seed) {
    std::mt19937 rng(seed);
    const std::vector<S> bounds = boundaryValues<S>();
    std::size_t k = 0;
    std::uint32_t counter = rng();
    for (std::int64_t y = 0; y < src.height(); ++y)
        for (std::int64_t e = 0; e < src.rowElems(); ++e, ++k) {
            if (k < bounds.size()) src.at(e, y) = bounds[(k + seed) % bounds.size()];
            else if constexpr (std::is_integral_v<S> && sizeof(S) <= 2) src.at(e, y) = static_cast<S>(counter++);
            else src.at(e, y) = randomValue<S>(rng);
        }
    src.snapshot();
}

// Random values with the extremes of T, 0 and 1 mixed in often, so that
// saturation, zero divisors and ties are all met between two such images.
template <class T>
void fillMixed(GuardedImage<T>& img, std::uint32_t seed) {
    std::mt19937 rng(seed);
    const T special[] = {std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max(), T(0), T(1), T(2), T(3)};
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t e = 0; e < img.rowElems(); ++e) {
            const unsigned r = rng() % 16;
            if (r < 6) img.at(e, y) = special[r];
            else if constexpr (std::is_floating_point_v<T>) img.at(e, y) = T(int(rng() % 2001) - 1000) / T(8);
            else if (r < 9) img.at(e, y) = static_cast<T>(int(rng() % 64) - (std::is_signed_v<T> ? 32 : 0));
            else img.at(e, y) = static_cast<T>(rng());
        }
    img.snapshot();
}

}  // namespace qvn::test

#endif
