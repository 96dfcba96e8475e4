// qvniScale and qvniScaleC against the reference models.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "families/convert_sweep.h"
#include "ref/convert_ref.h"

namespace qvn::test {
namespace {

#define QVN_SCALE_LAYOUTS(S, D, stem, ref, ...)                            \
    do {                                                                   \
        sweep<S, D>(1, false, QVN_CALL_ARGS(stem##_C1R, __VA_ARGS__), ref); \
        sweep<S, D>(3, false, QVN_CALL_ARGS(stem##_C3R, __VA_ARGS__), ref); \
        sweep<S, D>(4, false, QVN_CALL_ARGS(stem##_C4R, __VA_ARGS__), ref); \
        sweep<S, D>(4, true, QVN_CALL_ARGS(stem##_AC4R, __VA_ARGS__), ref); \
        exhaustive<S, D>(QVN_CALL_ARGS(stem##_C1R, __VA_ARGS__), ref);     \
    } while (0)

template <class S, class D>
auto rangeRef() {
    return [](S s) { return ref::scaleRange<S, D>(s); };
}

TEST(Scale, IntegerRangesMapEndToEnd) {
    sweep<Qvn8u, Qvn16u>(1, false, QVN_CALL(qvniScale_8u16u_C1R), rangeRef<Qvn8u, Qvn16u>());
    sweep<Qvn8u, Qvn16u>(4, true, QVN_CALL(qvniScale_8u16u_AC4R), rangeRef<Qvn8u, Qvn16u>());
    sweep<Qvn8u, Qvn16s>(3, false, QVN_CALL(qvniScale_8u16s_C3R), rangeRef<Qvn8u, Qvn16s>());
    sweep<Qvn8u, Qvn16s>(4, false, QVN_CALL(qvniScale_8u16s_C4R), rangeRef<Qvn8u, Qvn16s>());
    sweep<Qvn8u, Qvn32s>(3, false, QVN_CALL(qvniScale_8u32s_C3R), rangeRef<Qvn8u, Qvn32s>());
    sweep<Qvn8u, Qvn32s>(4, true, QVN_CALL(qvniScale_8u32s_AC4R), rangeRef<Qvn8u, Qvn32s>());
    exhaustive<Qvn8u, Qvn32s>(QVN_CALL(qvniScale_8u32s_C1R), rangeRef<Qvn8u, Qvn32s>());
    for (int hint : {0, 1, 2}) {
        QVN_SCALE_LAYOUTS(Qvn16u, Qvn8u, qvniScale_16u8u, (rangeRef<Qvn16u, Qvn8u>()), hint);
        QVN_SCALE_LAYOUTS(Qvn16s, Qvn8u, qvniScale_16s8u, (rangeRef<Qvn16s, Qvn8u>()), hint);
        QVN_SCALE_LAYOUTS(Qvn32s, Qvn8u, qvniScale_32s8u, (rangeRef<Qvn32s, Qvn8u>()), hint);
    }
    const Qvn32s ends[2] = {-2147483647 - 1, 2147483647};
    Qvn8u d[2];
    ASSERT_EQ(qvniScale_32s8u_C1R(ends, 8, d, 2, {2, 1}, 0), qvnOk);
    EXPECT_EQ(d[0], 0);
    EXPECT_EQ(d[1], 255);
}

TEST(Scale, FloatRanges) {
    const float ranges[][2] = {{0, 1}, {-1, 1}, {10, 265.5f}, {-1000, 3000.25f}, {0, 255}};
    for (const auto& r : ranges) {
        const float lo = r[0], hi = r[1];
        SCOPED_TRACE(testing::Message() << "range " << lo << ".." << hi);
        const auto to8u = [=](Qvn32f s) { return ref::scale32f8u(s, lo, hi); };
        QVN_SCALE_LAYOUTS(Qvn32f, Qvn8u, qvniScale_32f8u, to8u, lo, hi);
        const auto to32f = [=](Qvn8u s) {
            const float k = (hi - lo) / 255.0f;
            const float p = float(s) * k;
            return p + lo;
        };
        QVN_SCALE_LAYOUTS(Qvn8u, Qvn32f, qvniScale_8u32f, to32f, lo, hi);
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
    // Hints: a kind above 2 or a reserved bit fails after the steps.
    const Qvn16u* s16 = reinterpret_cast<const Qvn16u*>(src.data());
    EXPECT_EQ(qvniScale_16u8u_C1R(s16, ss, dst.data(), ds, {4, 2}, 3), qvnErrAlgorithm);
    EXPECT_EQ(qvniScale_16u8u_C1R(s16, ss, dst.data(), ds, {4, 2}, 0x10000), qvnErrAlgorithm);
    EXPECT_EQ(qvniScale_16u8u_C1R(s16, 0, dst.data(), ds, {4, 2}, 3), qvnErrStep);
    EXPECT_EQ(qvniScaleC_16u8u_C1R(s16, ss, dst.data(), ds, {4, 2}, 1.0, 0.0, 3), qvnErrAlgorithm);
    EXPECT_EQ(qvniScaleC_8u_C1IR(dst.data(), ds, {4, 2}, 1.0, 0.0, 0x800000), qvnErrAlgorithm);
    dst.expectUnchanged();
}

// Multipliers and offsets: identity, exact halves, thirds, saturating and
// overflowing ones.
const double kMaps[][2] = {{1, 0}, {0.5, 0}, {-1, 0.5}, {1.0 / 3, 100000}, {2.5, -3.75}, {-1e10, 0}, {3e38, 1}};

template <class S, class D, class Fn>
void scaleCAll(Fn fn) {
    for (const auto& m : kMaps) {
        const double mul = m[0], add = m[1];
        SCOPED_TRACE(testing::Message() << "mVal " << mul << " aVal " << add);
        const auto ref = [=](S s) {
            const double p = double(s) * mul;
            return ref::to<D>(p + add);
        };
        const auto call = [&](const S* s, int ss, D* d, int ds, QvnRoiSize r) {
            return fn(s, ss, d, ds, r, mul, add, 0);
        };
        sweep<S, D>(1, false, call, ref);
        if (mul == 0.5) exhaustive<S, D>(call, ref);
    }
}

// In place: the image holds the source before and the result after.
template <class T, class Fn>
void scaleCInPlace(Fn fn) {
    for (const auto& m : kMaps)
        for (int w : {1, 17, 40}) {
            GuardedImage<T> img({w, 2, 1, -1, w == 17, std::uint32_t(w)});
            fillSource(img, std::uint32_t(w * 5));
            const std::vector<T> src = roiContents(img);
            ASSERT_EQ(fn(img.data(), int(img.step()), QvnRoiSize{w, 2}, m[0], m[1], 2), qvnOk);
            expectRoi(img, 1, [&](std::int64_t x, std::int64_t y) {
                return ref::to<T>(double(src[y * w + x]) * m[0] + m[1]);
            }, "in place", true);
            img.expectUntouchedOutsideRoi();
        }
}

TEST(ScaleC, EveryPair) {
#define QVN_SC(s, d) scaleCAll<Qvn##s, Qvn##d>(qvniScaleC_##s##d##_C1R);
#define QVN_SC_SAME(s) scaleCAll<Qvn##s, Qvn##s>(qvniScaleC_##s##_C1R);
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
        SCOPED_TRACE(testing::Message() << "mVal " << m[0] << " aVal " << m[1]);
#define QVN_SC_EX(S, D, tok)                                                                        \
    exhaustive<S, D>(QVN_CALL_ARGS(qvniScaleC_##tok##_C1R, m[0], m[1], 0),                          \
                     [&](S s) { return ref::to<D>(double(s) * m[0] + m[1]); })
        QVN_SC_EX(Qvn8u, Qvn16s, 8u16s); QVN_SC_EX(Qvn8u, Qvn32f, 8u32f); QVN_SC_EX(Qvn8s, Qvn8u, 8s8u);
        QVN_SC_EX(Qvn8s, Qvn32s, 8s32s); QVN_SC_EX(Qvn16u, Qvn8u, 16u8u); QVN_SC_EX(Qvn16u, Qvn16s, 16u16s);
        QVN_SC_EX(Qvn16u, Qvn32f, 16u32f); QVN_SC_EX(Qvn16s, Qvn8s, 16s8s); QVN_SC_EX(Qvn16s, Qvn16u, 16s16u);
        QVN_SC_EX(Qvn16s, Qvn32s, 16s32s);
#undef QVN_SC_EX
    }
}

// Images of half a million pixels and more take other shortcuts for 16-bit
// sources: one image holding every source value, compared whole.
template <class S, class D, class Fn>
void scaleCLarge(Fn fn, double mul, double add) {
    SCOPED_TRACE(testing::Message() << "mVal " << mul << " aVal " << add);
    const int w = 2048, h = 1024;
    std::vector<S> src(std::size_t(w) * h);
    for (std::size_t i = 0; i < src.size(); ++i) src[i] = S(std::int64_t(std::numeric_limits<S>::min()) + std::int64_t(i % 65536));
    std::vector<D> dst(src.size());
    ASSERT_EQ(fn(src.data(), int(w * sizeof(S)), dst.data(), int(w * sizeof(D)), QvnRoiSize{w, h}, mul, add, 0), qvnOk);
    for (std::size_t i = 0; i < src.size(); ++i) {
        const D want = ref::to<D>(double(src[i]) * mul + add);
        ASSERT_TRUE(sameValue(dst[i], want, true)) << "source " << printable(src[i]) << " got " << printable(dst[i])
                                             << " want " << printable(want);
    }
}

TEST(ScaleC, LargeImagesOfSixteenBitSources) {
    for (const auto& m : {std::pair{-2.2, 1000.5}, std::pair{1.0 / 255, 0.5}, std::pair{1.0 / 255, 0.0}}) {
        scaleCLarge<Qvn16u, Qvn8u>(qvniScaleC_16u8u_C1R, m.first, m.second);
        scaleCLarge<Qvn16s, Qvn32s>(qvniScaleC_16s32s_C1R, m.first, m.second);
        scaleCLarge<Qvn16u, Qvn32f>(qvniScaleC_16u32f_C1R, m.first, m.second);
        scaleCLarge<Qvn16s, Qvn32f>(qvniScaleC_16s32f_C1R, m.first, m.second);
    }
}

TEST(ScaleC, InPlace) {
#define X(t, T) scaleCInPlace<T>(qvniScaleC_##t##_C1IR);
    QVN_EACH_TYPE(X) X(8s, Qvn8s) X(64f, Qvn64f)
#undef X
}

}  // namespace
}  // namespace qvn::test
