// qvniAdd, qvniSub, qvniMul and their constant forms against the exact model
// of the scale-factor rule, on guarded images, every layout and form.
#include <gtest/gtest.h>

#include <vector>

#include "families/arith_support.h"
#include "ref/arith_ref.h"

namespace qvn::test {
namespace {

// Scale factors at and around every path boundary of 8u and 16-bit results,
// and far outside them.
const int kFactors[] = {0, 1, 2, 7, 8, 9, 10, 15, 16, 17, 18, 30, 31, 33, 100, -1, -7, -8, -15, -16, -17, -1000};

// The exact result x op y, scaled and saturated.
#define QVN_MODEL(T, op) [sf](Qvn##T x, Qvn##T y) { return ref::scaled<Qvn##T>(std::int64_t(x) op y, sf); }
// Every integer operation and type, for M(OP, T, model, sf) sweeps.
#define QVN_INTEGER_OPS(M)                                                                               \
    M(Add, 8u, QVN_MODEL(8u, +), sf); M(Sub, 8u, QVN_MODEL(8u, -), sf); M(Mul, 8u, QVN_MODEL(8u, *), sf);       \
    M(Add, 16u, QVN_MODEL(16u, +), sf); M(Sub, 16u, QVN_MODEL(16u, -), sf); M(Mul, 16u, QVN_MODEL(16u, *), sf); \
    M(Add, 16s, QVN_MODEL(16s, +), sf); M(Sub, 16s, QVN_MODEL(16s, -), sf); M(Mul, 16s, QVN_MODEL(16s, *), sf);

// Every layout and form of one operation and type, at one scale factor.
#define QVN_SWEEP_SFS(OP, T, model, sf)                                                                         \
    do {                                                                                                         \
        sweep<Qvn##T>({1}, sf, QVN_ARITH_CALLS(qvni##OP##_##T##_C1RSfs, , sf), model);                           \
        sweep<Qvn##T>({4, true}, sf, QVN_ARITH_CALLS(qvni##OP##_##T##_AC4RSfs, , sf), model);                    \
        if (!full) break;                                                                                        \
        sweep<Qvn##T>({3, false, Form::InPlace}, sf, QVN_ARITH_CALLS_I(qvni##OP##_##T##_C3IRSfs, , sf), model);  \
        sweep<Qvn##T>({4, false, Form::Long}, sf, QVN_ARITH_CALLS_L(qvni##OP##_##T##_C4RSfs_L, , sf), model);     \
        sweep<Qvn##T>({4, true, Form::InPlace}, sf, QVN_ARITH_CALLS_I(qvni##OP##_##T##_AC4IRSfs, , sf), model);  \
    } while (0)

TEST(ArithBinary, IntegerFormsFollowTheScaleRuleAtEveryPath) {
    for (int sf : kFactors) {
        // every form at one factor of each path, C1 and AC4 at all of them
        const bool full = sf == 0 || sf == 1 || sf == 9 || sf == 17 || sf == -8 || sf == -16;
        QVN_INTEGER_OPS(QVN_SWEEP_SFS)
        if (HasFailure()) return;
    }
}

#define QVN_SWEEP_CONST(OP, T, model, sf)                                                                        \
    do {                                                                                                          \
        sweep<Qvn##T>({1, false, Form::Plain, true}, sf, QVN_CONST_CALLS(qvni##OP##C_##T##_C1RSfs, b[0], , sf), model);   \
        sweep<Qvn##T>({1, false, Form::InPlace, true}, sf, QVN_CONST_CALLS_I(qvni##OP##C_##T##_C1IRSfs, b[0], , sf), model); \
        sweep<Qvn##T>({3, false, Form::Plain, true}, sf, QVN_CONST_CALLS(qvni##OP##C_##T##_C3RSfs, b, , sf), model);      \
        sweep<Qvn##T>({3, false, Form::InPlace, true}, sf, QVN_CONST_CALLS_I(qvni##OP##C_##T##_C3IRSfs, b, , sf), model); \
        sweep<Qvn##T>({4, false, Form::Long, true}, sf, QVN_CONST_CALLS_L(qvni##OP##C_##T##_C4RSfs_L, b, , sf), model);   \
        sweep<Qvn##T>({4, true, Form::Plain, true}, sf, QVN_CONST_CALLS(qvni##OP##C_##T##_AC4RSfs, b, , sf), model);      \
        sweep<Qvn##T>({4, true, Form::InPlace, true}, sf, QVN_CONST_CALLS_I(qvni##OP##C_##T##_AC4IRSfs, b, , sf), model); \
    } while (0)

TEST(ArithBinary, ConstantFormsFollowTheScaleRule) {
    for (int sf : {0, 1, 9, 10, 17, 31, -1, -8, -40}) {
        QVN_INTEGER_OPS(QVN_SWEEP_CONST)
        if (HasFailure()) return;
    }
}

TEST(ArithBinary, FloatFormsAreSingleIeeeOperations) {
    const auto add = [](float x, float y) { return x + y; };
    const auto sub = [](float x, float y) { return x - y; };
    const auto mul = [](float x, float y) { return x * y; };
    sweep<Qvn32f>({1}, 0, QVN_ARITH_CALLS(qvniAdd_32f_C1R), add);
    sweep<Qvn32f>({3, false, Form::InPlace}, 0, QVN_ARITH_CALLS_I(qvniSub_32f_C3IR), sub);
    sweep<Qvn32f>({4, false, Form::Long}, 0, QVN_ARITH_CALLS_L(qvniMul_32f_C4R_L), mul);
    sweep<Qvn32f>({4, true}, 0, QVN_ARITH_CALLS(qvniSub_32f_AC4R), sub);
    sweep<Qvn32f>({1, false, Form::Plain, true}, 0, QVN_CONST_CALLS(qvniAddC_32f_C1R, b[0]), add);
    sweep<Qvn32f>({3, false, Form::InPlace, true}, 0, QVN_CONST_CALLS_I(qvniSubC_32f_C3IR, b), sub);
    sweep<Qvn32f>({4, true, Form::Long, true}, 0, QVN_CONST_CALLS_L(qvniMulC_32f_AC4R_L, b), mul);
}

// All 8-bit pairs at every scale factor of the 8u paths: one 256 x 256 image.
TEST(ArithBinary, Exhaustive8uPairs) {
    std::vector<Qvn8u> a(65536), b(65536), d(65536);
    for (int i = 0; i < 65536; ++i) { a[i] = Qvn8u(i & 255); b[i] = Qvn8u(i >> 8); }
    using Fn = QvnStatus (*)(const Qvn8u*, int, const Qvn8u*, int, Qvn8u*, int, QvnRoiSize, int);
    const struct { const char* name; Fn fn; std::int64_t (*op)(std::int64_t, std::int64_t); } ops[] = {
        {"Add", qvniAdd_8u_C1RSfs, [](std::int64_t x, std::int64_t y) { return x + y; }},
        {"Sub", qvniSub_8u_C1RSfs, [](std::int64_t x, std::int64_t y) { return x - y; }},
        {"Mul", qvniMul_8u_C1RSfs, [](std::int64_t x, std::int64_t y) { return x * y; }},
    };
    for (const auto& op : ops)
        for (int sf = -10; sf <= 18; ++sf) {
            ASSERT_EQ(op.fn(a.data(), 256, b.data(), 256, d.data(), 256, {256, 256}, sf), qvnOk);
            for (int i = 0; i < 65536; ++i)
                ASSERT_EQ(d[i], ref::scaled<Qvn8u>(op.op(b[i], a[i]), sf))
                    << op.name << " src1 " << +a[i] << " src2 " << +b[i] << " sf " << sf;
        }
}

// The model against the worked examples of the rules; the sweeps tie the code
// to the model, and this ties the model (operand order included) to the rules.
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

TEST(ArithBinary, ZeroStepsAreLegal) {
    GuardedImage<Qvn8u> img({5, 3, 4, 2, false, 3});
    const Qvn8u c[3] = {1, 2, 3};
    EXPECT_EQ(qvniAddC_8u_AC4IRSfs(c, img.data(), 0, {5, 3}, 0), qvnOk);  // repeats the first row
}

// AC4 constants are three values: the fourth element past them is never read
// (the array ends right before an inaccessible page).
TEST(ArithBinary, Ac4ReadsThreeConstants) {
    GuardedImage<Qvn16s> c({3, 1, 1, 0, true, 1});
    c.at(0, 0) = 2; c.at(1, 0) = -3; c.at(2, 0) = 5;
    GuardedImage<Qvn16s> img({19, 2, 4, 1, false, 2});
    const int st = int(img.step());
    EXPECT_EQ(qvniAddC_16s_AC4IRSfs(c.data(), img.data(), st, {19, 2}, 0), qvnOk);
    EXPECT_EQ(qvniMulC_16s_AC4RSfs(img.data(), st, c.data(), img.data(), st, {19, 2}, 1), qvnOk);
    EXPECT_EQ(qvniDivC_16s_AC4IRSfs(c.data(), img.data(), st, {19, 2}, 0), qvnOk);
    GuardedImage<Qvn16u> cu({3, 1, 1, 0, true, 3});
    GuardedImage<Qvn16u> imu({19, 2, 4, 1, false, 4});
    EXPECT_EQ(qvniMulCScale_16u_AC4IR(cu.data(), imu.data(), int(imu.step()), {19, 2}), qvnOk);
}

}  // namespace
}  // namespace qvn::test
