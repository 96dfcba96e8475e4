// qvniDiv, qvniDivC and qvniDiv_Round against exact rational models; 32f
// division against true division within the reciprocal's error.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "families/arith_forms.h"

namespace qvn::test {
namespace {

// Factors around the 16s general range (-30..15) and far outside it; one
// factor of each path (float, double, clamped either way).
const std::vector<int> kDivFactors = {0, 1, 2, 8, 9, 15, 16, 17, 20, 40, 1000, -1, -7, -8, -15, -16, -30, -31, -45, -1000};
const std::vector<int> kDivPathFactors = {0, 3, -3, 100, -100};

#define QVN_DIVIDED [sf](auto x, auto y) { return ref::divided<decltype(x)>(x, y, sf); }

TEST(ArithDiv, IntegerDivisionFollowsTheScaleRule) {
#define X(T)                                                                              \
    QVN_SCALED_FORMS(Div, T, QVN_DIVIDED, qvnWarnDivByZero, kDivFactors, kDivPathFactors) \
    QVN_CONST_FORMS(DivC, T, QVN_DIVIDED, true, kDivPathFactors)
    X(8u) X(16u) X(16s)
#undef X
}

TEST(ArithDiv, ZeroConstantIsRefusedPerLayout) {
    const Qvn16s c[4] = {3, -7, 2, 0};
    std::vector<Qvn16s> img(4 * 5 * 4, 100), out(4 * 5 * 4, 1);  // 5 x 4 pixels of 4 elements
    EXPECT_EQ(qvniDivC_16s_AC4RSfs(img.data(), 40, c, out.data(), 40, {5, 4}, 0), qvnOk);  // alpha constant unused
    EXPECT_EQ(out[0], 33);
    EXPECT_EQ(qvniDivC_16s_C4RSfs(img.data(), 40, c, out.data(), 40, {5, 4}, 0), qvnErrDivByZero);
    const Qvn16s c3[3] = {3, 0, 1};
    EXPECT_EQ(qvniDivC_16s_C3RSfs(img.data(), 30, c3, out.data(), 30, {5, 4}, 0), qvnErrDivByZero);
    EXPECT_EQ(qvniDivC_16s_AC4RSfs(img.data(), 40, c3, out.data(), 40, {5, 4}, 0), qvnErrDivByZero);
    EXPECT_EQ(out[0], 33);  // nothing written
    // a zero constant is tested after pointers, sizes and steps
    EXPECT_EQ(qvniDivC_16s_C3RSfs(img.data(), 0, c3, out.data(), 30, {5, 4}, 0), qvnErrStep);
    GuardedImage<Qvn8u> d({7, 3, 1, 1, false, 4});
    EXPECT_EQ(qvniDivC_8u_C1RSfs(d.data(), int(d.step()), 0, d.data(), int(d.step()), {7, 3}, 0), qvnErrDivByZero);
    EXPECT_EQ(qvniDivC_32f_C1IR(-0.0f, reinterpret_cast<Qvn32f*>(d.data()), 4, {1, 1}), qvnErrDivByZero);
    d.expectUnchanged();
}

TEST(ArithDiv, WorkedExamples) {
    Qvn16s a[3] = {0, 0, 0}, b[3] = {7, -7, 0}, r[3];
    EXPECT_EQ(qvniDiv_16s_C1RSfs(a, 6, b, 6, r, 6, {3, 1}, 0), qvnWarnDivByZero);
    EXPECT_EQ(r[0], 32767);
    EXPECT_EQ(r[1], -32768);
    EXPECT_EQ(r[2], 0);
    EXPECT_EQ(ref::divided<Qvn16s>(5, -3, -31), -32768);
    EXPECT_EQ(ref::divided<Qvn16s>(9, 5, 20), 0);
}

// 32f: zero divisors give their special values exactly (the default NaN
// 0x7FC00000 for a zero dividend), other quotients are within the refined
// reciprocal's error of true division. The constant forms divide truly.
TEST(ArithDiv, FloatDivision) {
    const auto quotient = [](float x, float y) {
        if (y != 0.0f) return x / y;
        return x == 0.0f ? std::numeric_limits<float>::quiet_NaN() : x > 0 ? HUGE_VALF : -HUGE_VALF;
    };
    const auto fill = [](GuardedImage<float>& img, std::uint32_t seed) {
        std::mt19937 rng{seed};
        for (std::int64_t y = 0; y < img.height(); ++y)
            for (std::int64_t e = 0; e < img.rowElems(); ++e)
                img.at(e, y) = rng() % 8 == 0 ? 0.0f : float(int(rng() % 20001) - 10000) / float(seed % 8 + 3);
        img.snapshot();
    };
    for (bool alpha : {false, true}) {
        ElementCase<Qvn32f> c = arithCase<Qvn32f>(
            alpha ? "Div_32f_AC4R" : "Div_32f_C1R", alpha ? 4 : 1, alpha, 2, false,
            alpha ? ArithCall<Qvn32f>(QVN_ECALL(qvniDiv_32f_AC4R(s[0], ss[0], s[1], ss[1], d, ds, r)))
                  : ArithCall<Qvn32f>(QVN_ECALL(qvniDiv_32f_C1R(s[0], ss[0], s[1], ss[1], d, ds, r))),
            qvnWarnDivByZero);
        c.anyNaN = false;
        c.close = [](float got, float want) { return std::fabs(got - want) <= std::fabs(want) * 5e-7f; };
        c.fill = fill;
        c.model = [quotient](const float* v, int) { return quotient(v[1], v[0]); };
        sweep(c);
    }
    for (int set = 0; set < 4; ++set) {
        const PageEndConstants<Qvn32f> kc(set, true);
        const Qvn32f* k = kc.data();
        const int sf = set;
        QVN_CONST(DivC, 32f, C3R, 3, false, false, (s[0], ss[0], k + 1, d, ds, r), [](float x, float y) { return x / y; });
    }
}

TEST(ArithDiv, FloatGroupWithZeroDivisorIsExact) {
    alignas(16) float x[16], y[16], d[16];
    for (int i = 0; i < 16; ++i) { x[i] = float(i * 37 + 1) / 3.0f; y[i] = float(i * 11 + 7) / 9.0f; }
    y[3] = -0.0f;
    ASSERT_EQ(qvniDiv_32f_C1R(y, 64, x, 64, d, 64, {16, 1}), qvnWarnDivByZero);
    EXPECT_EQ(d[3], std::numeric_limits<float>::infinity());  // the sign of a zero divisor is ignored
    for (int i = 0; i < 8; ++i) {
        if (i == 3) continue;
        EXPECT_EQ(d[i], x[i] / y[i]) << i;
    }
}

// Div_Round: exact rational model with the mode's tie rule. A zero divisor
// gives the maximum of the type for any non-zero dividend (qvniDiv gives the
// minimum for a negative one).
template <class T>
T roundModel(std::int64_t x, std::int64_t y, int sf, int mode) {
    if (y == 0) return x == 0 ? T(0) : std::numeric_limits<T>::max();
    using ref::i128;
    if (y < 0) { x = -x; y = -y; }
    sf = sf > 60 ? 60 : sf < -60 ? -60 : sf;
    const i128 num = sf < 0 ? i128(x) * (i128(1) << -sf) : i128(x), den = sf > 0 ? i128(y) << sf : i128(y);
    i128 t = num / den;  // toward zero
    const i128 r = (num % den) * 2, a = r < 0 ? -r : r;
    if (mode != qvnRndZero && (a > den || (a == den && (mode == qvnRndFinancial || (t & 1)))))
        t += r < 0 ? -1 : 1;
    return ref::saturate<T>(t);
}

#define QVN_ROUND(T, form, elems, alpha, inPlace, args)                                      \
    QVN_BIN(Div_Round, T, form, elems, alpha, inPlace, args,                                 \
            [=](auto x, auto y) { return roundModel<decltype(x)>(x, y, sf, mode); }, qvnWarnDivByZero)

TEST(ArithDiv, RoundModes) {
    for (int mode : {0, 1, 2})
        for (int sf : {0, 1, 3, 8, 9, 16, 40, -1, -5, -15, -16, -40}) {
            SCOPED_TRACE(testing::Message() << "mode " << mode);
            QVN_ROUND(8u, C1RSfs, 1, false, false, (s[0], ss[0], s[1], ss[1], d, ds, r, mode, sf));
            if (sf != 0 && sf != 3 && sf != 9 && sf != -5 && sf != -40) continue;
            QVN_ROUND(8u, AC4IRSfs, 4, true, true, (s[0], ss[0], d, ds, r, mode, sf));
            // With a negative factor the single-precision quotient of 16-bit
            // operands may round across a half under mode 1: compared only
            // where it cannot.
            if (mode == qvnRndNear && sf < 0) continue;
            QVN_ROUND(16s, C3RSfs, 3, false, false, (s[0], ss[0], s[1], ss[1], d, ds, r, mode, sf));
            QVN_ROUND(16u, AC4IRSfs, 4, true, true, (s[0], ss[0], d, ds, r, mode, sf));
            if (HasFailure()) return;
        }
    Qvn8u two = 2, five = 5, out = 0;  // 5 / 2: a tie, 2 toward zero and to even, 3 away
    for (int mode : {0, 1, 2}) {
        EXPECT_EQ(qvniDiv_Round_8u_C1RSfs(&two, 1, &five, 1, &out, 1, {1, 1}, mode, 0), qvnOk);
        EXPECT_EQ(out, mode == qvnRndFinancial ? 3 : 2) << "mode " << mode;
    }
    const Qvn16s zero = 0, minus7 = -7;
    Qvn16s q = 0;
    EXPECT_EQ(qvniDiv_Round_16s_C1RSfs(&zero, 2, &minus7, 2, &q, 2, {1, 1}, qvnRndNear, 0), qvnWarnDivByZero);
    EXPECT_EQ(q, 32767);  // not the minimum that qvniDiv gives
}

}  // namespace
}  // namespace qvn::test
