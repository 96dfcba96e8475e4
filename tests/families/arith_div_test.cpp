// qvniDiv, qvniDivC and qvniDiv_Round against exact rational models; 32f
// division against true division within the reciprocal's error.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <limits>
#include <vector>

#include "families/arith_support.h"
#include "ref/arith_ref.h"

namespace qvn::test {
namespace {

template <class T>
auto divModel(int sf) { return [sf](T x, T y) { return ref::divided<T>(x, y, sf); }; }

// Factors around the 16s general range (-30..15) and far outside it.
const int kDivFactors[] = {0, 1, 2, 8, 9, 15, 16, 17, 20, 40, 1000, -1, -7, -8, -15, -16, -30, -31, -45, -1000};

#define QVN_SWEEP_DIV(T, sf)                                                                                     \
    do {                                                                                                          \
        sweep<Qvn##T>({1}, sf, QVN_ARITH_CALLS(qvniDiv_##T##_C1RSfs, , sf), divModel<Qvn##T>(sf), qvnWarnDivByZero); \
        sweep<Qvn##T>({4, true}, sf, QVN_ARITH_CALLS(qvniDiv_##T##_AC4RSfs, , sf), divModel<Qvn##T>(sf),         \
                      qvnWarnDivByZero);                                                                          \
        if (!full) break;                                                                                         \
        sweep<Qvn##T>({3, false, Form::InPlace}, sf, QVN_ARITH_CALLS_I(qvniDiv_##T##_C3IRSfs, , sf),              \
                      divModel<Qvn##T>(sf), qvnWarnDivByZero);                                                    \
        sweep<Qvn##T>({4, false, Form::Long}, sf, QVN_ARITH_CALLS_L(qvniDiv_##T##_C4RSfs_L, , sf),                \
                      divModel<Qvn##T>(sf), qvnWarnDivByZero);                                                    \
        sweep<Qvn##T>({3, false, Form::Plain, true}, sf, QVN_CONST_CALLS(qvniDivC_##T##_C3RSfs, b, , sf),         \
                      divModel<Qvn##T>(sf));                                                                      \
        sweep<Qvn##T>({4, true, Form::InPlace, true}, sf, QVN_CONST_CALLS_I(qvniDivC_##T##_AC4IRSfs, b, , sf),    \
                      divModel<Qvn##T>(sf));                                                                      \
        sweep<Qvn##T>({1, false, Form::Long, true}, sf, QVN_CONST_CALLS_L(qvniDivC_##T##_C1RSfs_L, b[0], , sf),   \
                      divModel<Qvn##T>(sf));                                                                      \
    } while (0)

TEST(ArithDiv, IntegerDivisionFollowsTheScaleRule) {
    for (int sf : kDivFactors) {
        const bool full = sf == 0 || sf == 1 || sf == 16 || sf == -8 || sf == -31;
        QVN_SWEEP_DIV(8u, sf);
        QVN_SWEEP_DIV(16u, sf);
        QVN_SWEEP_DIV(16s, sf);
        if (HasFailure()) return;
    }
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
    EXPECT_EQ(qvniDivC_32f_C1IR(0.0f, reinterpret_cast<Qvn32f*>(d.data()), 4, {1, 1}), qvnErrDivByZero);
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

// 32f: zero divisors give their special values exactly, other quotients are
// within the refined reciprocal's error of true division.
TEST(ArithDiv, FloatDivision) {
    const float inf = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();  // the default NaN, 0x7FC00000
    for (bool alpha : {false, true})
        forEachShape({1, 3, 9, 16, 33, 131}, {3}, [&](int w, int h, int gap, bool page, std::uint32_t seed) {
            const int elems = alpha ? 4 : 1;
            GuardedImage<float> s1({w, h, elems, gap, page, seed}), s2({w, h, elems, gap, false, seed + 1}),
                d({w, h, elems, gap, !page, seed + 2});
            std::mt19937 rng{seed};
            for (std::int64_t y = 0; y < h; ++y)
                for (std::int64_t e = 0; e < s1.rowElems(); ++e) {
                    s1.at(e, y) = rng() % 16 == 0 ? 0.0f : float(int(rng() % 20001) - 10000) / 7.0f;
                    s2.at(e, y) = rng() % 8 == 0 ? 0.0f : float(int(rng() % 20001) - 10000) / 3.0f;
                }
            const std::vector<float> before = roiContents(d);
            const auto call = alpha ? qvniDiv_32f_AC4R : qvniDiv_32f_C1R;
            const QvnStatus st = call(s1.data(), int(s1.step()), s2.data(), int(s2.step()), d.data(), int(d.step()), {w, h});
            bool zero = false;
            expectRoi(d, elems, [&](std::int64_t e, std::int64_t y) {
                const float x = s2.at(e, y), v = s1.at(e, y), got = d.at(e, y);
                if (alpha && e % 4 == 3) return before[std::size_t(y * d.rowElems() + e)];
                zero |= v == 0.0f;
                if (v == 0.0f) return x == 0.0f ? nan : x > 0 ? inf : -inf;
                // other quotients: within the reciprocal's error of true division
                return std::fabs(got - x / v) <= std::fabs(x / v) * 5e-7f ? got : x / v;
            }, "Div_32f");
            EXPECT_EQ(st, zero ? qvnWarnDivByZero : qvnOk);
            d.expectUntouchedOutsideRoi();
        }, {-1});
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

template <class T, bool InPlace, class Fn>
void sweepRound(int elems, int sf, int mode, Fn fn) {
    const auto call = [=](const T* a, int as, const T* b, int bs, T* d, int ds, QvnRoiSize r, int f) {
        (void)b, (void)bs;
        if constexpr (InPlace) return fn(a, as, d, ds, r, mode, f);
        else return fn(a, as, b, bs, d, ds, r, mode, f);
    };
    sweep<T>({elems, elems == 4, InPlace ? Form::InPlace : Form::Plain}, sf, call,
             [=](T x, T y) { return roundModel<T>(x, y, sf, mode); }, qvnWarnDivByZero, {1, 17, 65});
}

TEST(ArithDiv, RoundModesAndRestoredControl) {
    std::fesetround(FE_UPWARD);  // a caller's mode that the calls must leave in place
    for (int mode : {0, 1, 2})
        for (int sf : {0, 1, 3, 8, 9, 16, 40, -1, -5, -15, -16, -40}) {
            sweepRound<Qvn8u, false>(1, sf, mode, [](auto... a) { return qvniDiv_Round_8u_C1RSfs(a...); });
            sweepRound<Qvn8u, true>(4, sf, mode, [](auto... a) { return qvniDiv_Round_8u_AC4IRSfs(a...); });
            // With a negative factor the single-precision quotient of 16-bit
            // operands may round across a half under mode 1: compared only
            // where it cannot.
            if (mode == qvnRndNear && sf < 0) continue;
            sweepRound<Qvn16s, false>(3, sf, mode, [](auto... a) { return qvniDiv_Round_16s_C3RSfs(a...); });
            sweepRound<Qvn16u, true>(4, sf, mode, [](auto... a) { return qvniDiv_Round_16u_AC4IRSfs(a...); });
            ASSERT_EQ(std::fegetround(), FE_UPWARD) << "the caller's rounding control must be restored";
            if (HasFailure()) return;
        }
    std::fesetround(FE_TONEAREST);
    Qvn8u two = 2, five = 5, out = 0;  // 5 / 2: a tie, 2 toward zero and to even, 3 away
    for (int mode : {0, 1, 2}) {
        EXPECT_EQ(qvniDiv_Round_8u_C1RSfs(&two, 1, &five, 1, &out, 1, {1, 1}, mode, 0), qvnOk);
        EXPECT_EQ(out, mode == qvnRndFinancial ? 3 : 2) << "mode " << mode;
    }
    const Qvn16s zero = 0, minus7 = -7;
    Qvn16s q = 0;
    EXPECT_EQ(qvniDiv_Round_16s_C1RSfs(&zero, 2, &minus7, 2, &q, 2, {1, 1}, qvnRndNear, 0), qvnWarnDivByZero);
    EXPECT_EQ(q, 32767);  // not the minimum that qvniDiv gives
    out = 9;
    EXPECT_EQ(qvniDiv_Round_8u_C1RSfs(&two, 1, &five, 1, &out, 1, {1, 1}, 3, 0), qvnErrRounding);
    EXPECT_EQ(qvniDiv_Round_8u_C1RSfs(&two, 0, &five, 1, &out, 1, {1, 1}, 3, 0), qvnErrStep);
    EXPECT_EQ(out, 9);
}

}  // namespace
}  // namespace qvn::test
