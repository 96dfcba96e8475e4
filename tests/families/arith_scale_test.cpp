// qvniMulScale, qvniMulCScale and qvniMulC64f against plain models.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <vector>

#include "families/arith_support.h"
#include "ref/arith_ref.h"

namespace qvn::test {
namespace {

TEST(ArithMulScale, AllLayoutsAndForms) {
    const auto m8 = [](Qvn8u x, Qvn8u y) { return ref::mulScaled<Qvn8u>(x, y); };
    const auto m16 = [](Qvn16u x, Qvn16u y) { return ref::mulScaled<Qvn16u>(x, y); };
    sweep<Qvn8u>({1}, 0, QVN_ARITH_CALLS(qvniMulScale_8u_C1R), m8);
    sweep<Qvn8u>({4, true, Form::InPlace}, 0, QVN_ARITH_CALLS_I(qvniMulScale_8u_AC4IR), m8);
    sweep<Qvn16u>({3}, 0, QVN_ARITH_CALLS(qvniMulScale_16u_C3R), m16);
    sweep<Qvn16u>({4, true}, 0, QVN_ARITH_CALLS(qvniMulScale_16u_AC4R), m16);
    sweep<Qvn8u>({3, false, Form::Plain, true}, 0, QVN_CONST_CALLS(qvniMulCScale_8u_C3R, b), m8);
    sweep<Qvn8u>({1, false, Form::InPlace, true}, 0, QVN_CONST_CALLS_I(qvniMulCScale_8u_C1IR, b[0]), m8);
    sweep<Qvn16u>({4, false, Form::Plain, true}, 0, QVN_CONST_CALLS(qvniMulCScale_16u_C4R, b), m16);
    sweep<Qvn16u>({4, true, Form::InPlace, true}, 0, QVN_CONST_CALLS_I(qvniMulCScale_16u_AC4IR, b), m16);
}

TEST(ArithMulScale, Exhaustive8uAnd16uEdges) {
    std::vector<Qvn8u> a(65536), b(65536), d(65536);
    for (int i = 0; i < 65536; ++i) { a[i] = Qvn8u(i & 255); b[i] = Qvn8u(i >> 8); }
    ASSERT_EQ(qvniMulScale_8u_C1R(a.data(), 256, b.data(), 256, d.data(), 256, {256, 256}), qvnOk);
    for (int i = 0; i < 65536; ++i) ASSERT_EQ(d[i], a[i] * b[i] / 255) << +a[i] << " x " << +b[i];
    // 16u: every a against products next to multiples of 65535
    std::vector<Qvn16u> x(65536), y(65536), r(65536);
    for (int i = 0; i < 65536; ++i) { x[i] = Qvn16u(i); y[i] = Qvn16u(65535 - (i % 3)); }
    ASSERT_EQ(qvniMulScale_16u_C1R(x.data(), 512, y.data(), 512, r.data(), 512, {256, 256}), qvnOk);
    for (int i = 0; i < 65536; ++i)
        ASSERT_EQ(r[i], std::uint64_t(x[i]) * y[i] / 65535) << x[i] << " x " << y[i];
    Qvn16u p = 65534, one = 1, out;
    EXPECT_EQ(qvniMulScale_16u_C1R(&p, 2, &one, 2, &out, 2, {1, 1}), qvnOk);
    EXPECT_EQ(out, 0);
}

// The model: the double product narrowed to float, both rounded toward zero
// for integer modes 0 and 2 (whose calls round toward zero throughout), then
// limited and rounded by the C library in the mode's sense.
template <class T>
T mulC64fModel(T x, double c, int mode) {
    volatile double vx = double(x), vc = c;  // read after the mode is set
    if (!std::is_same_v<T, float> && mode != 1) std::fesetround(FE_TOWARDZERO);
    volatile float vf = float(vx * vc);  // stored before the mode is restored
    const float f = vf;
    std::fesetround(FE_TONEAREST);
    if constexpr (std::is_same_v<T, float>) {
        const float top = std::numeric_limits<float>::max();
        return std::isnan(f) ? f : std::fmin(std::fmax(f, -top), top);
    } else {
        const float q = std::fmin(std::fmax(f, float(std::numeric_limits<T>::min())), float(std::numeric_limits<T>::max()));
        return T(mode == 0 ? std::trunc(q) : mode == 1 ? std::nearbyint(q) : std::round(q));
    }
}

TEST(ArithMulC64f, EveryTypeAndMode) {
    const double c[4] = {0.5, -1.25, 3.0000001, 257.5};
    const double edge[4] = {1.0 / 3.0, 2.9999999999, 0.49999999999, 1.5};  // products near integers and halves
    for (const double* cs : {c, edge})
    for (int mode : {0, 1, 2}) {
        const auto run = [&](auto tag, int elems, auto fn) {
            using T = decltype(tag);
            GuardedImage<T> s({37, 5, elems, -1, true, 7u + unsigned(mode)}), d({37, 5, elems, -1, false, 9});
            fillMixed(s, 11);
            ASSERT_EQ(fn(s.data(), int(s.step()), cs, d.data(), int(d.step()), QvnRoiSize{37, 5}, 0, mode), qvnOk);
            for (std::int64_t y = 0; y < 5; ++y)
                for (std::int64_t e = 0; e < s.rowElems(); ++e)
                    ASSERT_EQ(d.at(e, y), mulC64fModel<T>(s.at(e, y), cs[e % elems], mode))
                        << "mode " << mode << " (" << e / elems << ", " << y << ") of " << +s.at(e, y);
            d.expectUntouchedOutsideRoi();
            s.expectUnchanged();
        };
        run(Qvn8u{}, 1, qvniMulC64f_8u_C1R);
        run(Qvn16u{}, 3, qvniMulC64f_16u_C3R);
        run(Qvn16s{}, 4, qvniMulC64f_16s_C4R);
        run(Qvn32f{}, 3, qvniMulC64f_32f_C3R);
    }
    Qvn8u v = 5;
    const double half = 0.5;
    EXPECT_EQ(qvniMulC64f_8u_C1IR(&half, &v, 1, {1, 1}, 0, qvnRndNear), qvnOk);
    EXPECT_EQ(v, 2);  // 2.5 to even
    EXPECT_EQ(qvniMulC64f_8u_C1IR(&half, &v, 1, {1, 1}, 0, 3), qvnErrRounding);
}

// 32f products beyond the float range give the largest float of their sign,
// in the vector body (the first 16 elements, aligned) and the scalar tail.
TEST(ArithMulC64f, FloatProductsAreClampedToTheFloatRange) {
    const float top = std::numeric_limits<float>::max(), inf = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float in[5] = {1e38f, -1e38f, inf, 3.0f, nan};
    const float want[5] = {top, -top, top, 30.0f, nan};
    alignas(16) float src[19], dst[19];
    for (int i = 0; i < 19; ++i) src[i] = in[i % 5];
    const double ten = 10.0;
    ASSERT_EQ(qvniMulC64f_32f_C1R(src, sizeof src, &ten, dst, sizeof dst, {19, 1}, 0, qvnRndNear), qvnOk);
    for (int i = 0; i < 19; ++i) {
        if (std::isnan(want[i % 5])) EXPECT_TRUE(std::isnan(dst[i])) << i;
        else EXPECT_EQ(dst[i], want[i % 5]) << i << ": " << src[i] << " x 10";
    }
}

// The accuracy hint: a kind above 2 or a bit of 16..23 set is refused with
// qvnErrAlgorithm, after the rounding mode, and nothing is written.
TEST(ArithMulC64f, HintIsCheckedAfterTheRoundingMode) {
    const double two = 2.0;
    Qvn16s v = 7;
    for (int hint : {3, 0xFF, 0x10000, 0x800000 | 1}) {
        EXPECT_EQ(qvniMulC64f_16s_C1IR(&two, &v, 2, {1, 1}, hint, qvnRndNear), qvnErrAlgorithm) << hint;
        EXPECT_EQ(qvniMulC64f_16s_C1IR(&two, &v, 2, {1, 1}, hint, 3), qvnErrRounding) << hint;
        EXPECT_EQ(qvniMulC64f_16s_C1IR(&two, &v, 2, {0, 1}, hint, 3), qvnErrSize) << hint;
    }
    EXPECT_EQ(v, 7);
    for (int hint : {qvnAlgHintNone, qvnAlgHintFast, qvnAlgHintAccurate}) {
        v = 7;
        EXPECT_EQ(qvniMulC64f_16s_C1IR(&two, &v, 2, {1, 1}, hint, qvnRndNear), qvnOk) << hint;
        EXPECT_EQ(v, 14);
    }
}

}  // namespace
}  // namespace qvn::test
