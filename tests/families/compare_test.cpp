// qvniCompare, qvniCompareC, qvniCompareEqualEps and qvniCompareEqualEpsC:
// one-channel masks against the comparison rules, every type, layout and
// operator, and their own checks.
#include <gtest/gtest.h>

#include <cfenv>
#include <climits>
#include <random>

#include "families/threshold_forms.h"

namespace qvn::test {
namespace {

// Pixels of pool values; the sources of one shape draw the same pixel for
// half of the pixels (equal elements and whole equal pixels are common), and
// with a constant, a quarter of the pixels are the constant.
template <class T>
void fillAlike(GuardedImage<T>& img, std::uint32_t seed, const std::vector<T>& pool, const T* constant) {
    std::mt19937 shared(seed / 8), own(seed);
    const int elems = img.layout().elemsPerPixel;
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t x = 0; x < img.width(); ++x) {
            const unsigned kind = shared() % 4, mine = own() % 4;
            for (int c = 0; c < elems; ++c) {
                const T a = pool[shared() % pool.size()], b = pool[own() % pool.size()];
                img.at(x * elems + c, y) = constant && mine == 0 ? constant[c] : kind < 2 ? a : b;
            }
        }
    img.snapshot();
}

// One form: the mask is 255 where holds(a, b) for every colour channel of
// the pixel, a of the (first) source and b of the second or of the
// constants k (indexed by constantIndex).
template <class T, class Holds>
void maskForm(std::string name, int elems, bool alpha, int sources, typename ElementCase<T, Qvn8u>::Call call, Holds holds,
              const std::vector<T>& pool, const T* k) {
    ElementCase<T, Qvn8u> c(std::move(name), elems, alpha, sources, false);
    c.perPixel = true;
    c.call = std::move(call);
    std::array<T, 4> constant{};
    const int colours = alpha ? 3 : elems;
    for (int ch = 0; ch < colours && k; ++ch) constant[std::size_t(ch)] = k[constantIndex(elems, alpha, ch)];
    c.fill = [pool, constant, k](GuardedImage<T>& img, std::uint32_t seed) {
        fillAlike(img, seed, pool, k ? constant.data() : nullptr);
    };
    c.model = [=](const T* v, int) {
        for (int ch = 0; ch < colours; ++ch)
            if (!holds(v[ch], sources == 2 ? v[elems + ch] : constant[std::size_t(ch)])) return Qvn8u(0);
        return Qvn8u(255);
    };
    sweep(c);
}

// Every layout of qvniCompare<F>_<T>, of two sources (TWO) or a source and
// the constants k (ONE), with last as the final argument.
#define QVN_MASK(F, T, C, elems, alpha, sources, holds, pool, k, ...)                                            \
    maskForm<Qvn##T>("Compare" #F "_" #T "_" #C "R", elems, alpha, sources,                                     \
                     QVN_ECALL(qvniCompare##F##_##T##_##C##R(__VA_ARGS__)), holds, pool, k);
#define QVN_TWO(F, T, holds, pool, last)                                                                         \
    QVN_MASK(F, T, C1, 1, false, 2, holds, pool, nullptr, s[0], ss[0], s[1], ss[1], d, ds, r, last)             \
    QVN_MASK(F, T, C3, 3, false, 2, holds, pool, nullptr, s[0], ss[0], s[1], ss[1], d, ds, r, last)             \
    QVN_MASK(F, T, C4, 4, false, 2, holds, pool, nullptr, s[0], ss[0], s[1], ss[1], d, ds, r, last)             \
    QVN_MASK(F, T, AC4, 4, true, 2, holds, pool, nullptr, s[0], ss[0], s[1], ss[1], d, ds, r, last)
#define QVN_ONE(F, T, holds, pool, k, last)                                                                      \
    QVN_MASK(F, T, C1, 1, false, 1, holds, pool, k, s[0], ss[0], k[3], d, ds, r, last)                         \
    QVN_MASK(F, T, C3, 3, false, 1, holds, pool, k, s[0], ss[0], k + 1, d, ds, r, last)                        \
    QVN_MASK(F, T, C4, 4, false, 1, holds, pool, k, s[0], ss[0], k, d, ds, r, last)                            \
    QVN_MASK(F, T, AC4, 4, true, 1, holds, pool, k, s[0], ss[0], k + 1, d, ds, r, last)

// Boundary values of each type (16u values at and above 32768, for one),
// and for 32f NaN, infinities and signed zeros, which compare equal.
TEST(Compare, EveryOperatorTypeAndLayout) {
    for (int op = qvnCmpLess; op <= qvnCmpGreater; ++op) {
        SCOPED_TRACE(testing::Message() << "operator " << op);
#define X(T)                                                                                                     \
    {                                                                                                            \
        std::vector<Qvn##T> pool = boundaryValues<Qvn##T>();                                                     \
        pool.resize(std::min<std::size_t>(pool.size(), 48));                                                     \
        const PageEndConstants<Qvn##T> kc(op, false);                                                            \
        const Qvn##T* k = kc.data();                                                                             \
        const auto holds = [op](Qvn##T a, Qvn##T b) { return ref::holds(op, a, b); };                           \
        QVN_TWO(, T, holds, pool, op)                                                                            \
        QVN_ONE(C, T, holds, pool, k, op)                                                                        \
    }
        QVN_TYPES(X)
#undef X
        if (HasFailure()) return;
    }
}

TEST(Compare, EqualWithinEpsilon) {
    // eighths, so that differences equal to an epsilon are common
    std::vector<Qvn32f> pool = {-0.0f, 0.0f, 1e30f, -1e30f};
    for (int i = -12; i <= 12; ++i) pool.push_back(Qvn32f(i) / 8);
    for (Qvn32f s : specialConstants<Qvn32f>()) pool.push_back(s);
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    int set = 0;
    for (float eps : {0.0f, -0.0f, 0.25f, 0.5f, inf, nan}) {
        SCOPED_TRACE(testing::Message() << "eps " << eps);
        const PageEndConstants<Qvn32f> kc(set++, false);
        const Qvn32f* k = kc.data();
        const auto holds = [eps](Qvn32f a, Qvn32f b) { return ref::withinEps(a, b, eps); };
        QVN_TWO(EqualEps, 32f, holds, pool, eps)
        QVN_ONE(EqualEpsC, 32f, holds, pool, k, eps)
        if (HasFailure()) return;
    }
}

// The difference is rounded as the caller's rounding mode says: 1 - (-2^-24)
// is 1 to nearest and the next float above 1 upward, in the vector body
// (the first 64 pixels, aligned) as in the scalar tail.
TEST(Compare, EpsilonDifferenceFollowsTheCallersRounding) {
    alignas(64) Qvn32f a[65], b[65];
    alignas(64) Qvn8u m[65];
    std::fill(a, a + 65, 1.0f);
    std::fill(b, b + 65, -std::ldexp(1.0f, -24));
    for (const auto& [mode, want] : {std::pair{FE_TONEAREST, 255}, std::pair{FE_UPWARD, 0}}) {
        std::fesetround(mode);
        const QvnStatus s = qvniCompareEqualEps_32f_C1R(a, 260, b, 260, m, 65, {65, 1}, 1.0f);
        std::fesetround(FE_TONEAREST);
        ASSERT_EQ(s, qvnOk);
        for (int i = 0; i < 65; ++i) ASSERT_EQ(m[i], want) << "pixel " << i << " mode " << mode;
    }
}

// Operators outside 0..4 write nothing and are not errors; a negative
// epsilon is, after the sizes.
TEST(Compare, FamilyChecks) {
    GuardedImage<Qvn8u> a({9, 2, 3, 0, true, 1}), b({9, 2, 3, 0, true, 2}), mask({9, 2, 1, 0, true, 3});
    GuardedImage<Qvn32f> f({9, 2, 4, 0, true, 4});
    const int as = int(a.step()), bs = int(b.step()), ms = int(mask.step()), fs = int(f.step());
    const Qvn32f value[4] = {1, 2, 3, 4};
    for (int op : {-1, 5, INT_MAX, INT_MIN}) {
        EXPECT_EQ(qvniCompare_8u_C3R(a.data(), as, b.data(), bs, mask.data(), ms, {9, 2}, op), qvnOk);
        EXPECT_EQ(qvniCompareC_32f_AC4R(f.data(), fs, value, mask.data(), ms, {9, 2}, op), qvnOk);
    }
    EXPECT_EQ(qvniCompareEqualEps_32f_C4R(f.data(), fs, f.data(), fs, mask.data(), ms, {9, 2}, -0.5f), qvnErrEpsilon);
    EXPECT_EQ(qvniCompareEqualEpsC_32f_C1R(f.data(), fs, 1.0f, mask.data(), ms, {9, 2}, -1e-30f), qvnErrEpsilon);
    EXPECT_EQ(qvniCompareEqualEpsC_32f_C1R(f.data(), fs, 1.0f, mask.data(), ms, {0, 2}, -0.5f), qvnErrSize);
    mask.expectUnchanged();
}

}  // namespace
}  // namespace qvn::test
