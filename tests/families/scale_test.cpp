// qvniScale and qvniScaleC against the reference models.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "families/convert_forms.h"
#include "ref/convert_ref.h"

namespace qvn::test {
namespace {

template <class S, class D>
auto rangeRef() {
    return [](S s) { return ref::scaleRange<S, D>(s); };
}

// Every hint gives the exact result: hint 0 on every layout, the others on C1.
TEST(Scale, IntegerRangesMapEndToEnd) {
#define QVN_RANGE(s, d, ...) QVN_CONVERT_LAYOUTS(Qvn##s, Qvn##d, qvniScale_##s##d, (rangeRef<Qvn##s, Qvn##d>()), __VA_ARGS__);
    QVN_RANGE(8u, 16u, ) QVN_RANGE(8u, 16s, ) QVN_RANGE(8u, 32s, )
    QVN_RANGE(16u, 8u, , 0) QVN_RANGE(16s, 8u, , 0) QVN_RANGE(32s, 8u, , 0)
#undef QVN_RANGE
    for (int hint : {1, 2}) {
        sweep(conversion<Qvn16u, Qvn8u>("Scale_16u8u_C1R", 1, false, QVN_CALL(qvniScale_16u8u_C1R, , hint),
                                        rangeRef<Qvn16u, Qvn8u>()), kOneShape);
        sweep(conversion<Qvn32s, Qvn8u>("Scale_32s8u_C1R", 1, false, QVN_CALL(qvniScale_32s8u_C1R, , hint),
                                        rangeRef<Qvn32s, Qvn8u>()), kOneShape);
    }
    const Qvn32s ends[2] = {-2147483647 - 1, 2147483647};
    Qvn8u d[2];
    ASSERT_EQ(qvniScale_32s8u_C1R(ends, 8, d, 2, {2, 1}, 0), qvnOk);
    EXPECT_EQ(d[0], 0);
    EXPECT_EQ(d[1], 255);
}

// 32f to 8u by the rule's float steps; 8u to 32f within a few float roundings
// of the exact map of 0..255 onto the range.
TEST(Scale, FloatRanges) {
    const float ranges[][2] = {{0, 1}, {-1, 1}, {10, 265.5f}, {-1000, 3000.25f}, {0, 255}};
    for (const auto& r : ranges) {
        const float lo = r[0], hi = r[1];
        SCOPED_TRACE(testing::Message() << "range " << lo << ".." << hi);
        QVN_CONVERT_LAYOUTS(Qvn32f, Qvn8u, qvniScale_32f8u, ([=](Qvn32f s) { return ref::scale32f8u(s, lo, hi); }), ,
                            lo, hi);
        const float tolerance = 4 * std::numeric_limits<float>::epsilon() * std::fmax(std::fabs(lo), std::fabs(hi));
        auto c = conversion<Qvn8u, Qvn32f>("Scale_8u32f_AC4R", 4, true, QVN_CALL(qvniScale_8u32f_AC4R, , lo, hi),
                                           [=](Qvn8u s) { return float(lo + double(s) * (double(hi) - lo) / 255); });
        c.close = [=](float got, float want) { return std::fabs(got - want) <= tolerance; };
        sweep(c);
        c.name = "Scale_8u32f_C1R";
        c.elems = 1;
        c.alpha = false;
        c.call = [=](const Qvn8u* const* s, const int* ss, Qvn32f* d, int ds, QvnRoiSize r) {
            return qvniScale_8u32f_C1R(s[0], ss[0], d, ds, r, lo, hi);
        };
        exhaustive(c);
    }
    const Qvn32f v[4] = {0.5f, 2.0f, -1.0f, 0.0f};
    Qvn8u d[4];
    ASSERT_EQ(qvniScale_32f8u_C1R(v, 16, d, 4, {4, 1}, 0.0f, 1.0f), qvnOk);
    EXPECT_EQ(d[0], 128);  // 127.5 rounds to the even 128
    EXPECT_EQ(d[1], 255);
    EXPECT_EQ(d[2], 0);
    EXPECT_EQ(d[3], 0);
}

TEST(Scale, Validation) {
    GuardedImage<Qvn8u> dst({4, 2, 1, 1, false, 4});
    GuardedImage<Qvn32f> src({4, 2, 1, 1, false, 3});
    const int ss = int(src.step()), ds = int(dst.step());
    // The range comes before everything, NaN ranges included.
    EXPECT_EQ(qvniScale_32f8u_C1R(nullptr, ss, dst.data(), ds, {4, 2}, 1.0f, 1.0f), qvnErrScaleRange);
    EXPECT_EQ(qvniScale_32f8u_C3R(src.data(), ss, dst.data(), 0, {0, 2}, 2.0f, 1.0f), qvnErrScaleRange);
    EXPECT_EQ(qvniScale_32f8u_C1R(src.data(), ss, dst.data(), ds, {4, 2}, 0.0f, NAN), qvnErrScaleRange);
    EXPECT_EQ(qvniScale_8u32f_C1R(dst.data(), ds, nullptr, ss, {4, 2}, 5.0f, -5.0f), qvnErrScaleRange);
    dst.expectUnchanged();
}

// Multipliers and offsets: identity, exact halves, thirds, saturating and
// overflowing ones, then NaN, infinities and magnitudes far outside every
// range as either.
std::vector<std::pair<double, double>> scaleMaps() {
    std::vector<std::pair<double, double>> maps = {{1, 0}, {0.5, 0}, {-1, 0.5}, {1.0 / 3, 100000}, {2.5, -3.75},
                                                   {-1e10, 0}, {3e38, 1}};
    for (double s : specialConstants<double>()) maps.insert(maps.end(), {{s, 1.5}, {0.75, s}});
    return maps;
}

template <class S, class D>
ElementCase<S, D> scaleC(const char* name, QvnStatus (*fn)(const S*, int, D*, int, QvnRoiSize, double, double, int),
                         double mul, double add) {
    auto c = conversion<S, D>(name + (" mVal " + std::to_string(mul) + " aVal " + std::to_string(add)), 1, false,
                              [=](const S* s, int ss, D* d, int ds, QvnRoiSize r) { return fn(s, ss, d, ds, r, mul, add, 0); },
                              [=](S s) { return ref::to<D>(double(s) * mul + add); });
    return c;
}

// Every pair at every map on one shape; the in-place forms likewise.
TEST(ScaleC, EveryPairAndMap) {
    for (const auto& m : scaleMaps()) {
        const double mul = m.first, add = m.second;
#define QVN_SC(s, d) sweep(scaleC<Qvn##s, Qvn##d>("ScaleC_" #s #d "_C1R", qvniScaleC_##s##d##_C1R, mul, add), kOneShape);
#define QVN_SC_SAME(s) sweep(scaleC<Qvn##s, Qvn##s>("ScaleC_" #s "_C1R", qvniScaleC_##s##_C1R, mul, add), kOneShape);
        QVN_SC_SAME(8u) QVN_SC_SAME(8s) QVN_SC_SAME(16u) QVN_SC_SAME(16s) QVN_SC_SAME(32s) QVN_SC_SAME(32f) QVN_SC_SAME(64f)
        QVN_SC(8u, 8s) QVN_SC(8u, 16u) QVN_SC(8u, 16s) QVN_SC(8u, 32s) QVN_SC(8u, 32f) QVN_SC(8u, 64f)
        QVN_SC(8s, 8u) QVN_SC(8s, 16u) QVN_SC(8s, 16s) QVN_SC(8s, 32s) QVN_SC(8s, 32f) QVN_SC(8s, 64f)
        QVN_SC(16u, 8u) QVN_SC(16u, 8s) QVN_SC(16u, 16s) QVN_SC(16u, 32s) QVN_SC(16u, 32f) QVN_SC(16u, 64f)
        QVN_SC(16s, 8u) QVN_SC(16s, 8s) QVN_SC(16s, 16u) QVN_SC(16s, 32s) QVN_SC(16s, 32f) QVN_SC(16s, 64f)
        QVN_SC(32s, 8u) QVN_SC(32s, 8s) QVN_SC(32s, 16u) QVN_SC(32s, 16s) QVN_SC(32s, 32f) QVN_SC(32s, 64f)
        QVN_SC(32f, 8u) QVN_SC(32f, 8s) QVN_SC(32f, 16u) QVN_SC(32f, 16s) QVN_SC(32f, 32s) QVN_SC(32f, 64f)
        QVN_SC(64f, 8u) QVN_SC(64f, 8s) QVN_SC(64f, 16u) QVN_SC(64f, 16s) QVN_SC(64f, 32s) QVN_SC(64f, 32f)
#undef QVN_SC
#undef QVN_SC_SAME
#define X(t, T)                                                                                             \
    {                                                                                                       \
        ElementCase<T> c("ScaleC_" #t "_C1IR mVal " + std::to_string(mul), 1, false, 1, true);       \
        c.call = QVN_ECALL(qvniScaleC_##t##_C1IR(d, ds, r, mul, add, 2));                                 \
        c.model = [=](const T* v, int) { return ref::to<T>(double(v[0]) * mul + add); }; \
        sweep(c, kOneShape);                                                                                \
    }
        QVN_EACH_TYPE(X) X(8s, Qvn8s) X(64f, Qvn64f)
#undef X
        if (HasFailure()) return;
    }
}

// One pair of each path, over every shape.
TEST(ScaleC, PathsOverEveryShape) {
    for (const auto& [mul, add] : {std::pair{0.5, 0.25}, std::pair{-2.2, 1000.5}, std::pair{1.0 / 255, 0.5}}) {
        sweep(scaleC<Qvn8u, Qvn8u>("ScaleC_8u_C1R", qvniScaleC_8u_C1R, mul, add));
        sweep(scaleC<Qvn8u, Qvn32f>("ScaleC_8u32f_C1R", qvniScaleC_8u32f_C1R, mul, add));
        sweep(scaleC<Qvn16s, Qvn8u>("ScaleC_16s8u_C1R", qvniScaleC_16s8u_C1R, mul, add));
        sweep(scaleC<Qvn16u, Qvn32f>("ScaleC_16u32f_C1R", qvniScaleC_16u32f_C1R, mul, add));
        sweep(scaleC<Qvn32s, Qvn16s>("ScaleC_32s16s_C1R", qvniScaleC_32s16s_C1R, mul, add));
        sweep(scaleC<Qvn32f, Qvn64f>("ScaleC_32f64f_C1R", qvniScaleC_32f64f_C1R, mul, add));
    }
}

// Constants for which float arithmetic rounds some results of 8- or 16-bit
// sources apart from double ({-2.2, 1000.5}, {1/255, 0.5}), constants with
// exact halves ({1/3, 0.5}: none exact in double) and constants whose results
// are all exact floats ({0.5, 0.25}, {-1/1024, -0.5}), and multipliers that
// are not floats ({1/255, 0}, {-0.7, 0}); every source value.
TEST(ScaleC, EverySmallSourceValueAsInDouble) {
    const double maps[][2] = {{-2.2, 1000.5}, {1.0 / 255, 0.5}, {1.0 / 3, 0.5}, {0.5, 0.25}, {-1.0 / 1024, -0.5},
                              {1.0 / 255, 0.0}, {-0.7, 0.0}};
    for (const auto& m : maps) {
#define QVN_SC_EX(s, d) exhaustive(scaleC<Qvn##s, Qvn##d>("ScaleC_" #s #d "_C1R", qvniScaleC_##s##d##_C1R, m[0], m[1]));
        QVN_SC_EX(8u, 16s) QVN_SC_EX(8u, 32f) QVN_SC_EX(8s, 8u) QVN_SC_EX(8s, 32s) QVN_SC_EX(16u, 8u)
        QVN_SC_EX(16u, 16s) QVN_SC_EX(16u, 32f) QVN_SC_EX(16s, 8s) QVN_SC_EX(16s, 16u) QVN_SC_EX(16s, 32s)
#undef QVN_SC_EX
    }
}

// From half a million pixels on, 16-bit sources take other shortcuts: one
// image of that size holding every source value eight times.
TEST(ScaleC, LargeImagesOfSixteenBitSources) {
    const Shapes large{{1024}, {512}, {0}};
    for (const auto& [mul, add] : {std::pair{-2.2, 1000.5}, std::pair{1.0 / 255, 0.5}, std::pair{1.0 / 255, 0.0}}) {
        sweep(scaleC<Qvn16u, Qvn8u>("ScaleC_16u8u_C1R", qvniScaleC_16u8u_C1R, mul, add), large);
        sweep(scaleC<Qvn16s, Qvn32s>("ScaleC_16s32s_C1R", qvniScaleC_16s32s_C1R, mul, add), large);
        sweep(scaleC<Qvn16u, Qvn32f>("ScaleC_16u32f_C1R", qvniScaleC_16u32f_C1R, mul, add), large);
        sweep(scaleC<Qvn16s, Qvn32f>("ScaleC_16s32f_C1R", qvniScaleC_16s32f_C1R, mul, add), large);
    }
}

}  // namespace
}  // namespace qvn::test
