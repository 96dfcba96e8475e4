// qvniAdd, qvniSub, qvniMul and their constant forms against the exact model
// of the scale-factor rule.
#include <gtest/gtest.h>

#include "families/arith_forms.h"

namespace qvn::test {
namespace {

// x op y exactly, scaled by sf and saturated to the type of x.
#define QVN_EXACT(op) [sf](auto x, auto y) { return ref::scaled<decltype(x)>(std::int64_t(x) op y, sf); }
#define QVN_INTEGER_OPS(M) \
    M(Add, 8u, +) M(Sub, 8u, -) M(Mul, 8u, *) M(Add, 16u, +) M(Sub, 16u, -) M(Mul, 16u, *) M(Add, 16s, +) M(Sub, 16s, -) M(Mul, 16s, *)

TEST(ArithBinary, IntegerFormsFollowTheScaleRuleAtEveryPath) {
#define X(OP, T, op) QVN_SCALED_FORMS(OP, T, QVN_EXACT(op), qvnOk, kFactors, kPathFactors)
    QVN_INTEGER_OPS(X)
#undef X
}

TEST(ArithBinary, ConstantFormsFollowTheScaleRule) {
#define X(OP, T, op) QVN_CONST_FORMS(OP##C, T, QVN_EXACT(op), false, kPathFactors)
    QVN_INTEGER_OPS(X)
#undef X
}

// Single IEEE operations; the constants include NaN, infinities, signed zero
// and huge magnitudes, which the vector body and the scalar head and tail
// must treat alike.
TEST(ArithBinary, FloatFormsAreSingleIeeeOperations) {
    const int sf = 0;
    const auto add = [](float x, float y) { return x + y; };
    const auto sub = [](float x, float y) { return x - y; };
    const auto mul = [](float x, float y) { return x * y; };
    QVN_BIN(Add, 32f, C1R, 1, false, false, (s[0], ss[0], s[1], ss[1], d, ds, r), add, qvnOk);
    QVN_BIN(Sub, 32f, C3IR, 3, false, true, (s[0], ss[0], d, ds, r), sub, qvnOk);
    QVN_BIN(Mul, 32f, C4R_L, 4, false, false, (s[0], ss[0], s[1], ss[1], d, ds, QVN_L), mul, qvnOk);
    QVN_BIN(Sub, 32f, AC4R, 4, true, false, (s[0], ss[0], s[1], ss[1], d, ds, r), sub, qvnOk);
    for (int set = 0; set < 4; ++set) {
        const PageEndConstants<Qvn32f> kc(set, false);
        const Qvn32f* k = kc.data();
        QVN_CONST(AddC, 32f, C1R, 1, false, false, (s[0], ss[0], k[3], d, ds, r), add);
        QVN_CONST(SubC, 32f, C3IR, 3, false, true, (k + 1, d, ds, r), sub);
        QVN_CONST(MulC, 32f, AC4R_L, 4, true, false, (s[0], ss[0], k + 1, d, ds, QVN_L), mul);
    }
}

// All 8-bit pairs at every scale factor of the 8u paths.
TEST(ArithBinary, Exhaustive8uPairs) {
    for (int sf = -10; sf <= 18; ++sf) {
        QVN_BIN(Add, 8u, C1RSfs, 1, false, false, (s[0], ss[0], s[1], ss[1], d, ds, r, sf), QVN_EXACT(+), qvnOk, kEveryPair);
        QVN_BIN(Sub, 8u, C1RSfs, 1, false, false, (s[0], ss[0], s[1], ss[1], d, ds, r, sf), QVN_EXACT(-), qvnOk, kEveryPair);
        QVN_BIN(Mul, 8u, C1RSfs, 1, false, false, (s[0], ss[0], s[1], ss[1], d, ds, r, sf), QVN_EXACT(*), qvnOk, kEveryPair);
        if (HasFailure()) return;
    }
}

// The model against the worked examples of the rules (operand order
// included); the sweeps tie the code to the model.
TEST(ArithBinary, ModelMatchesWorkedExamples) {
    const struct { int v, sf, want; } ex8[] = {{3, 1, 2}, {5, 1, 2}, {510, 1, 255}, {510, 9, 1},
                                               {510, 10, 0}, {128, -1, 255}, {0, -8, 0}, {1, -8, 255}};
    for (const auto& e : ex8) EXPECT_EQ(ref::scaled<Qvn8u>(e.v, e.sf), e.want) << e.v << " sf " << e.sf;
    EXPECT_EQ(ref::scaled<Qvn16s>(-1, 1), 0);
    EXPECT_EQ(ref::scaled<Qvn16s>(-3, 1), -2);
    Qvn8u s1 = 10, s2 = 3, d = 1;  // source 1 is subtracted from source 2
    EXPECT_EQ(qvniSub_8u_C1RSfs(&s1, 1, &s2, 1, &d, 1, {1, 1}, 0), qvnOk);
    EXPECT_EQ(d, 0);
}

}  // namespace
}  // namespace qvn::test
