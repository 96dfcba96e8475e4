// The conversion tests' harness: runs one exported conversion over guarded
// images of many sizes and compares every element with a reference model.
#ifndef QVN_TESTS_FAMILIES_CONVERT_SWEEP_H
#define QVN_TESTS_FAMILIES_CONVERT_SWEEP_H

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "qvnip.h"
#include "support/sweep.h"

namespace qvn::test {

// Boundary values of a source type: extremes, zero, the edges of every
// destination range, halves on both sides of them, and for floats NaN,
// infinities and tiny values.
template <class S>
std::vector<S> boundaryValues() {
    using L = std::numeric_limits<S>;
    std::vector<long double> v = {0, 1, -1, 2, -2, 127, 128, -128, -129, 255, 256, 32767, 32768, -32768, -32769,
                                  65535, 65536, 2147483647.0L, -2147483648.0L, 4294967295.0L};
    if constexpr (std::is_floating_point_v<S>) {
        const long double halves[] = {0.5L, 1.5L, 2.5L, 3.5L, 126.5L, 127.5L, 128.5L, 254.5L, 255.5L,
                                      32766.5L, 32767.5L, 65534.5L, 65535.5L, 2.9L, 0.49999997L};
        for (long double h : halves) {
            v.push_back(h);
            v.push_back(-h);
        }
        const long double big[] = {2147483520.0L, 2147483648.0L, 2147483647.5L, 4294967040.0L,
                                   4294967296.0L, 4294967295.5L, 1e10L, 3e38L};
        for (long double b : big) {
            v.push_back(b);
            v.push_back(-b);
        }
        v.push_back(std::nextafter(S(0.5), S(0)));
        v.push_back(-std::nextafter(S(0.5), S(0)));
        std::vector<S> out;
        for (long double x : v) out.push_back(S(x));
        for (S x : {L::quiet_NaN(), -L::quiet_NaN(), L::infinity(), -L::infinity(), L::max(), L::lowest(),
                    L::denorm_min(), L::min(), S(-0.0)})
            out.push_back(x);
        return out;
    } else {
        std::vector<S> out;
        for (long double x : v)
            if (x >= L::min() && x <= L::max()) out.push_back(S(x));
        out.push_back(L::min());
        out.push_back(L::max());
        out.push_back(S(L::max() - 1));
        out.push_back(S(L::min() + 1));
        return out;
    }
}

// A random source value: random bits, or for floats mostly values near the
// integer ranges with quarters (so halves occur often).
template <class S>
S randomValue(std::mt19937& rng) {
    if constexpr (std::is_floating_point_v<S>) {
        switch (rng() % 4) {
            case 0: return S(int(rng() % 1200) - 300) / S(4);           // around 8-bit ranges
            case 1: return S(int(rng() % 280000) - 140000) / S(2);      // around 16-bit ranges
            case 2: return S(std::int64_t(rng()) - (std::int64_t(1) << 31)) * S(1.5);  // around 32-bit ranges
            default: {
                S x;
                std::uint64_t bits = (std::uint64_t(rng()) << 32) | rng();
                std::memcpy(&x, &bits, sizeof(S));
                return x;
            }
        }
    } else {
        return static_cast<S>(std::uint64_t(rng()) * 0x9E3779B97F4A7C15ull >> 32);
    }
}

// Fills the ROI of src: boundary values first, then consecutive values from
// a random start (integer sources of up to 16 bits: whole ranges over large
// images), random values otherwise.
template <class S>
void fillSource(GuardedImage<S>& src, std::uint32_t seed) {
    std::mt19937 rng(seed);
    const std::vector<S> bounds = boundaryValues<S>();
    std::size_t k = 0;
    std::uint32_t counter = rng();
    for (std::int64_t y = 0; y < src.height(); ++y)
        for (std::int64_t e = 0; e < src.rowElems(); ++e, ++k) {
            S v;
            if (k < bounds.size()) v = bounds[(k + seed) % bounds.size()];
            else if constexpr (std::is_integral_v<S> && sizeof(S) <= 2) v = static_cast<S>(counter++);
            else v = randomValue<S>(rng);
            src.at(e, y) = v;
        }
    src.snapshot();
}

// Calls call(src, srcStep, dst, dstStep, roi) on one pair of images, with
// the caller's rounding control set upward (the library must not depend on
// it and must restore it), and checks every element against ref(source)
// (alpha elements against their old value), then the guards.
template <class S, class D, class Call, class Ref>
void checkOne(std::int64_t w, std::int64_t h, int elems, bool keepAlpha, int gap, bool endAtPage, std::uint32_t seed,
              const Call& call, const Ref& ref) {
    GuardedImage<S> src({w, h, elems, gap, false, seed});
    fillSource(src, seed);
    GuardedImage<D> dst({w, h, elems, gap, endAtPage, seed + 1});
    const std::vector<D> before = roiContents(dst);
    std::fesetround(FE_UPWARD);
    const QvnStatus status = call(src.data(), int(src.step()), dst.data(), int(dst.step()),
                                  QvnRoiSize{int(w), int(h)});
    const int after = std::fegetround();
    std::fesetround(FE_TONEAREST);
    ASSERT_EQ(status, qvnOk) << w << "x" << h;
    EXPECT_EQ(after, FE_UPWARD) << "the caller's rounding control was not restored";
    expectRoi(dst, elems, [&](std::int64_t e, std::int64_t y) {
        return keepAlpha && e % 4 == 3 ? before[std::size_t(y * dst.rowElems() + e)] : D(ref(src.at(e, y)));
    }, "seed " + std::to_string(seed), true);
    src.expectUnchanged();
    dst.expectUntouchedOutsideRoi();
}

// Sizes around the vector and block lengths, odd widths, gaps and
// contiguous rows, destinations ending at an inaccessible page.
template <class S, class D, class Call, class Ref>
void sweep(int elems, bool keepAlpha, const Call& call, const Ref& ref) {
    forEachShape({1, 2, 3, 7, 16, 17, 33, 65}, {1, 3}, [&](int w, int h, int gap, bool page, std::uint32_t seed) {
        checkOne<S, D>(w, h, elems, keepAlpha, gap, page, seed, call, ref);
    });
}

// Every value of an integer source of up to 16 bits, once.
template <class S, class D, class Call, class Ref>
void exhaustive(const Call& call, const Ref& ref) {
    if constexpr (std::is_integral_v<S> && sizeof(S) <= 2) {
        const std::int64_t w = sizeof(S) == 1 ? 64 : 1024;
        checkOne<S, D>(w, (std::int64_t(1) << (8 * sizeof(S))) / w + 1, 1, false, 0, true, 7, call, ref);
    }
}

}  // namespace qvn::test

// Adapters from an exported name to the harness's call signature.
#define QVN_CALL(fn) [&](const auto* s, int ss, auto* d, int ds, QvnRoiSize r) { return fn(s, ss, d, ds, r); }
#define QVN_CALL_ARGS(fn, ...) \
    [&](const auto* s, int ss, auto* d, int ds, QvnRoiSize r) { return fn(s, ss, d, ds, r, __VA_ARGS__); }

#endif
