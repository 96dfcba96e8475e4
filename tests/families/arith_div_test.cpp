// qvniDiv, qvniDivC and qvniDiv_Round against exact rational models; 32f
// division against true division within the reciprocal's error.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <cstring>
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

TEST(ArithDiv, ConstantFormsNeverMeetZero) {
    // the sweep's constants come from image data and may be zero; use fixed ones
    const Qvn16s c[4] = {3, -7, 2, 0};
    std::vector<Qvn16s> img(4 * 5 * 4, 100), out(4 * 5 * 4, 1);  // 5 x 4 pixels of 4 elements
    EXPECT_EQ(qvniDivC_16s_AC4RSfs(img.data(), 40, c, out.data(), 40, {5, 4}, 0), qvnOk);  // alpha constant unused
    EXPECT_EQ(out[0], 33);
    EXPECT_EQ(out[1], -14);
    EXPECT_EQ(out[2], 50);
    EXPECT_EQ(out[3], 1);
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

TEST(ArithDiv, DocumentedValues) {
    Qvn16s a[3] = {0, 0, 0}, b[3] = {7, -7, 0}, r[3];
    EXPECT_EQ(qvniDiv_16s_C1RSfs(a, 6, b, 6, r, 6, {3, 1}, 0), qvnWarnDivByZero);
    EXPECT_EQ(r[0], 32767);
    EXPECT_EQ(r[1], -32768);
    EXPECT_EQ(r[2], 0);
    Qvn16s s1[2] = {-3, 5}, s2[2] = {5, 9}, q[2];
    EXPECT_EQ(qvniDiv_16s_C1RSfs(s1, 4, s2, 4, q, 4, {2, 1}, -31), qvnOk);
    EXPECT_EQ(q[0], -32768);
    EXPECT_EQ(q[1], 32767);
    EXPECT_EQ(qvniDiv_16s_C1RSfs(s1, 4, s2, 4, q, 4, {2, 1}, 20), qvnOk);
    EXPECT_EQ(q[0], 0);
    EXPECT_EQ(q[1], 0);
    // steps are tested: zero and negative steps fail
    EXPECT_EQ(qvniDiv_16s_C1RSfs(s1, 0, s2, 4, q, 4, {2, 1}, 0), qvnErrStep);
    EXPECT_EQ(qvniDiv_32f_C1R(nullptr, -1, nullptr, 4, nullptr, 4, {2, 1}), qvnErrNullPointer);
}

// 32f: special values exactly, other quotients within the refined reciprocal's
// error of true division; every element of a group of eight that holds a zero
// divisor is divided exactly.
TEST(ArithDiv, FloatDivision) {
    const float inf = std::numeric_limits<float>::infinity(), nan = std::nanf("");
    for (int elems : {1, 3, 4})
        for (bool alpha : {false, true}) {
            if (alpha && elems != 4) continue;
            for (int w : {1, 2, 3, 9, 16, 33, 131}) {
                const std::uint32_t seed = std::uint32_t(w * 13 + elems);
                Layout lay{w, 3, elems, -1, w % 2 == 1, seed};
                GuardedImage<float> s1(lay), s2({w, 3, elems, -1, false, seed + 1}), d({w, 3, elems, -1, false, seed + 2});
                std::mt19937 rng(seed);
                bool anyZero = false;
                for (std::int64_t y = 0; y < 3; ++y)
                    for (std::int64_t e = 0; e < s1.rowElems(); ++e) {
                        const unsigned r = rng() % 32;
                        s1.at(e, y) = r == 0 ? 0.0f : r == 1 ? -0.0f : float(int(rng() % 20001) - 10000) / 7.0f;
                        const unsigned q = rng() % 16;
                        s2.at(e, y) = q == 0 ? 0.0f : q == 1 ? nan : float(int(rng() % 20001) - 10000) / 3.0f;
                        if (s1.at(e, y) == 0.0f && !(alpha && e % 4 == 3)) anyZero = true;
                    }
                s1.snapshot();
                s2.snapshot();
                const auto st = alpha ? qvniDiv_32f_AC4R(s1.data(), int(s1.step()), s2.data(), int(s2.step()), d.data(),
                                                         int(d.step()), {w, 3})
                                      : elems == 1 ? qvniDiv_32f_C1R(s1.data(), int(s1.step()), s2.data(), int(s2.step()),
                                                                     d.data(), int(d.step()), {w, 3})
                                      : elems == 3 ? qvniDiv_32f_C3R_L(s1.data(), s1.step(), s2.data(), s2.step(), d.data(),
                                                                       d.step(), QvnRoiSizeL{w, 3})
                                                   : qvniDiv_32f_C4R(s1.data(), int(s1.step()), s2.data(), int(s2.step()),
                                                                     d.data(), int(d.step()), {w, 3});
                EXPECT_EQ(st, anyZero ? qvnWarnDivByZero : qvnOk) << "width " << w;
                for (std::int64_t y = 0; y < 3; ++y)
                    for (std::int64_t e = 0; e < s1.rowElems(); ++e) {
                        if (alpha && e % 4 == 3) continue;
                        const float x = s2.at(e, y), v = s1.at(e, y), got = d.at(e, y);
                        if (v == 0.0f) {
                            const float want = x > 0 ? inf : x < 0 ? -inf : nan;
                            std::uint32_t gb, wb = 0x7FC00000u;
                            std::memcpy(&gb, &got, 4);
                            if (want == want) {
                                ASSERT_EQ(got, want) << x << " / " << v;
                            } else {
                                ASSERT_EQ(gb, wb) << x << " / " << v;
                            }
                        } else if (x != x) {
                            ASSERT_TRUE(got != got);
                        } else {
                            const float want = x / v;
                            ASSERT_LE(std::fabs(got - want), std::fabs(want) * 5e-7f) << x << " / " << v << " width " << w;
                        }
                    }
                d.expectUntouchedOutsideRoi();
            }
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

// Div_Round: exact rational model with the mode's tie rule.
template <class T>
T roundModel(std::int64_t x, std::int64_t y, int sf, int mode) {
    if (y == 0) return ref::divided<T>(x, 0, 0);
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

TEST(ArithDiv, RoundModesAndRestoredControl) {
    std::fesetround(FE_UPWARD);  // a caller's mode that the calls must leave in place
    for (int mode : {0, 1, 2})
        for (int sf : {0, 1, 3, 8, 9, 16, 40, -1, -5, -15, -16, -40}) {
            const auto m8 = [=](Qvn8u x, Qvn8u y) { return roundModel<Qvn8u>(x, y, sf, mode); };
            sweep<Qvn8u>({1}, sf, [mode](const Qvn8u* a, int as, const Qvn8u* b, int bs, Qvn8u* d, int ds, QvnRoiSize r, int f) {
                return qvniDiv_Round_8u_C1RSfs(a, as, b, bs, d, ds, r, mode, f);
            }, m8, qvnWarnDivByZero, {1, 17, 65});
            sweep<Qvn8u>({4, true, Form::InPlace}, sf, [mode](const Qvn8u* a, int as, const Qvn8u*, int, Qvn8u* d, int ds, QvnRoiSize r, int f) {
                return qvniDiv_Round_8u_AC4IRSfs(a, as, d, ds, r, mode, f);
            }, m8, qvnWarnDivByZero, {1, 17, 65});
            // With a negative factor the single-precision quotient of 16-bit
            // operands may round across a half under mode 1; compare there
            // only at factors where it cannot.
            if (mode == qvnRndNear && sf < 0) continue;
            sweep<Qvn16s>({3}, sf, [mode](const Qvn16s* a, int as, const Qvn16s* b, int bs, Qvn16s* d, int ds, QvnRoiSize r, int f) {
                return qvniDiv_Round_16s_C3RSfs(a, as, b, bs, d, ds, r, mode, f);
            }, [=](Qvn16s x, Qvn16s y) { return roundModel<Qvn16s>(x, y, sf, mode); }, qvnWarnDivByZero, {1, 17, 65});
            sweep<Qvn16u>({4}, sf, [mode](const Qvn16u* a, int as, const Qvn16u* b, int bs, Qvn16u* d, int ds, QvnRoiSize r, int f) {
                return qvniDiv_Round_16u_C4RSfs(a, as, b, bs, d, ds, r, mode, f);
            }, [=](Qvn16u x, Qvn16u y) { return roundModel<Qvn16u>(x, y, sf, mode); }, qvnWarnDivByZero, {1, 17, 65});
            ASSERT_EQ(std::fegetround(), FE_UPWARD) << "the caller's rounding control must be restored";
            if (HasFailure()) return;
        }
    std::fesetround(FE_TONEAREST);
    Qvn8u two = 2, five = 5, out = 0;
    EXPECT_EQ(qvniDiv_Round_8u_C1RSfs(&two, 1, &five, 1, &out, 1, {1, 1}, qvnRndZero, 0), qvnOk);
    EXPECT_EQ(out, 2);
    EXPECT_EQ(qvniDiv_Round_8u_C1RSfs(&two, 1, &five, 1, &out, 1, {1, 1}, qvnRndNear, 0), qvnOk);
    EXPECT_EQ(out, 2);
    EXPECT_EQ(qvniDiv_Round_8u_C1RSfs(&two, 1, &five, 1, &out, 1, {1, 1}, qvnRndFinancial, 0), qvnOk);
    EXPECT_EQ(out, 3);
    out = 9;
    EXPECT_EQ(qvniDiv_Round_8u_C1RSfs(&two, 1, &five, 1, &out, 1, {1, 1}, 3, 0), qvnErrRounding);
    EXPECT_EQ(qvniDiv_Round_8u_C1RSfs(&two, 0, &five, 1, &out, 1, {1, 1}, 3, 0), qvnErrStep);
    EXPECT_EQ(out, 9);
}

}  // namespace
}  // namespace qvn::test
