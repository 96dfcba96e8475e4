// qvniConvert without scale factors against the reference models.
#include <gtest/gtest.h>

#include <cfenv>
#include <vector>

#include "families/convert_sweep.h"
#include "ref/convert_ref.h"
#include "support/cache_double.h"

namespace qvn::test {
namespace {

template <class S, class D>
auto exact() {
    return [](S s) { return ref::to<D>(static_cast<long double>(s)); };
}

// Runs the C1, C3, C4 and AC4 forms of one pair, and the C1 form over every
// source value when the source type is small.
#define QVN_ALL_LAYOUTS(S, D, stem, ref)                              \
    do {                                                              \
        sweep<S, D>(1, false, QVN_CALL(stem##_C1R), ref);             \
        sweep<S, D>(3, false, QVN_CALL(stem##_C3R), ref);             \
        sweep<S, D>(4, false, QVN_CALL(stem##_C4R), ref);             \
        sweep<S, D>(4, true, QVN_CALL(stem##_AC4R), ref);             \
        exhaustive<S, D>(QVN_CALL(stem##_C1R), ref);                  \
    } while (0)

// Widening is exact; narrowing integers saturate. One model for both.
TEST(Convert, IntegerAndWideningPairsMatchTheExactModel) {
#define QVN_EXACT(s, d) QVN_ALL_LAYOUTS(Qvn##s, Qvn##d, qvniConvert_##s##d, (exact<Qvn##s, Qvn##d>()));
    QVN_EXACT(8u, 16u) QVN_EXACT(8u, 16s) QVN_EXACT(8u, 32s) QVN_EXACT(8u, 32f) QVN_EXACT(8s, 32s)
    QVN_EXACT(8s, 32f) QVN_EXACT(16u, 32s) QVN_EXACT(16u, 32f) QVN_EXACT(16s, 32s) QVN_EXACT(16s, 32f)
    QVN_EXACT(16u, 8u) QVN_EXACT(16s, 8u) QVN_EXACT(32s, 8u) QVN_EXACT(32s, 8s)
#undef QVN_EXACT
}

// 32s and 32u to 32f round to nearest even; the Rs forms clamp negatives to 0.
TEST(Convert, OneChannelAndSignedToUnsigned) {
#define QVN_C1(s, d, sfx)                                                                 \
    sweep<Qvn##s, Qvn##d>(1, false, QVN_CALL(qvniConvert_##s##d##_##sfx), exact<Qvn##s, Qvn##d>()); \
    exhaustive<Qvn##s, Qvn##d>(QVN_CALL(qvniConvert_##s##d##_##sfx), exact<Qvn##s, Qvn##d>());
    QVN_C1(8s, 16s, C1R) QVN_C1(8s, 64f, C1R) QVN_C1(16u, 32u, C1R) QVN_C1(32s, 32f, C1R) QVN_C1(32u, 32f, C1R)
    QVN_C1(8s, 8u, C1Rs) QVN_C1(8s, 16u, C1Rs) QVN_C1(8s, 32u, C1Rs) QVN_C1(16s, 16u, C1Rs) QVN_C1(16s, 32u, C1Rs)
    QVN_C1(32s, 32u, C1Rs)
#undef QVN_C1
}

TEST(Convert, FloatNarrowingRoundsByModeAndSaturates) {
    for (int mode : {qvnRndZero, qvnRndNear, qvnRndFinancial}) {
        SCOPED_TRACE(testing::Message() << "mode " << mode);
#define QVN_MODE_LAYOUTS(D, stem)                                                               \
    do {                                                                                        \
        const auto ref = [mode](Qvn32f s) { return ref::saturate<D>(s, mode); };                \
        sweep<Qvn32f, D>(1, false, QVN_CALL_ARGS(stem##_C1R, mode), ref);                       \
        sweep<Qvn32f, D>(3, false, QVN_CALL_ARGS(stem##_C3R, mode), ref);                       \
        sweep<Qvn32f, D>(4, false, QVN_CALL_ARGS(stem##_C4R, mode), ref);                       \
        sweep<Qvn32f, D>(4, true, QVN_CALL_ARGS(stem##_AC4R, mode), ref);                       \
    } while (0)
        QVN_MODE_LAYOUTS(Qvn8u, qvniConvert_32f8u);
        QVN_MODE_LAYOUTS(Qvn8s, qvniConvert_32f8s);
        QVN_MODE_LAYOUTS(Qvn16u, qvniConvert_32f16u);
        QVN_MODE_LAYOUTS(Qvn16s, qvniConvert_32f16s);
#undef QVN_MODE_LAYOUTS
    }
}

TEST(Convert, DocumentedExamples) {
    const Qvn8s s8[2] = {-128, 127};
    Qvn8u d8[2] = {9, 9};
    ASSERT_EQ(qvniConvert_8s8u_C1Rs(s8, 2, d8, 2, {2, 1}), qvnOk);
    EXPECT_EQ(d8[0], 0);
    EXPECT_EQ(d8[1], 127);

    const Qvn32f f[6] = {2.5f, 3.5f, -2.5f, 2.9f, 40000.0f, -0.5f};
    const Qvn16s want[3][6] = {{2, 3, -2, 2, 32767, 0}, {2, 4, -2, 3, 32767, 0}, {3, 4, -3, 3, 32767, -1}};
    for (int mode = 0; mode < 3; ++mode) {
        Qvn16s d[6] = {};
        ASSERT_EQ(qvniConvert_32f16s_C1R(f, 24, d, 12, {6, 1}, mode), qvnOk);
        for (int i = 0; i < 6; ++i) EXPECT_EQ(d[i], want[mode][i]) << "mode " << mode << " value " << f[i];
    }
}

// Rounding modes above 2 are errors after pointers, sizes and steps, and
// every error leaves the destination as it was.
TEST(Convert, FloatNarrowingValidation) {
    GuardedImage<Qvn32f> src({5, 2, 1, 1, false, 3});
    GuardedImage<Qvn8u> dst({5, 2, 1, 1, false, 4});
    const int ss = int(src.step()), ds = int(dst.step());
    EXPECT_EQ(qvniConvert_32f8u_C1R(src.data(), ss, dst.data(), ds, {5, 2}, 3), qvnErrRounding);
    EXPECT_EQ(qvniConvert_32f8u_C1R(src.data(), ss, dst.data(), ds, {5, 2}, -1), qvnErrRounding);
    EXPECT_EQ(qvniConvert_32f8u_C1R(src.data(), ss, dst.data(), 0, {5, 2}, 3), qvnErrStep);
    dst.expectUnchanged();
    // Plain widening tests no steps: a zero step rewrites the first row.
    GuardedImage<Qvn32f> wide({5, 2, 1, 1, false, 5});
    EXPECT_EQ(qvniConvert_8u32f_C1R(dst.data(), 0, wide.data(), 0, {5, 2}), qvnOk);
}

// Large widening conversions ask for the cache size only from their element
// threshold on, and write the same result with cache-bypassing stores.
TEST(Convert, LargeWideningBypassesTheCache) {
    resetCacheDouble();
    std::vector<Qvn8u> src(104858 + 16, 7);
    std::vector<Qvn32f> dst(104858 + 16);
    ASSERT_EQ(qvniConvert_8u32f_C1R(src.data(), 104857, dst.data(), 104857 * 4, {104857, 1}), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 0);
    ASSERT_EQ(qvniConvert_8u32f_C1R(src.data(), 104858, dst.data(), 104858 * 4, {104858, 1}), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 1);
    // 16s to 32f C3 counts elements: 29128 pixels are 87,384 elements.
    std::vector<Qvn16s> s16(3 * 29128 + 8, -5);
    std::vector<Qvn32f> d32(3 * 29128 + 8);
    ASSERT_EQ(qvniConvert_16s32f_C3R(s16.data(), 6 * 29127, d32.data(), 12 * 29127, {29127, 1}), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 1);
    ASSERT_EQ(qvniConvert_16s32f_C3R(s16.data(), 6 * 29128, d32.data(), 12 * 29128, {29128, 1}), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 2);
    // AC4 and the narrowing conversions never ask.
    ASSERT_EQ(qvniConvert_16s32f_AC4R(s16.data(), 8 * 20000, d32.data(), 16 * 20000, {20000, 1}), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 2);

    cacheDouble().sizeBytes = 4096;  // every call past the threshold streams
    for (bool endAtPage : {false, true}) {
        const auto ref = exact<Qvn8s, Qvn32s>();
        checkOne<Qvn8s, Qvn32s>(35001, 3, 1, false, 1, endAtPage, 11, QVN_CALL(qvniConvert_8s32s_C1R), ref);
        checkOne<Qvn8u, Qvn16s>(20001, 9, 1, false, 3, endAtPage, 12, QVN_CALL(qvniConvert_8u16s_C1R),
                                exact<Qvn8u, Qvn16s>());
        checkOne<Qvn16u, Qvn32f>(10001, 3, 3, false, 0, endAtPage, 13, QVN_CALL(qvniConvert_16u32f_C3R),
                                 exact<Qvn16u, Qvn32f>());
    }
    EXPECT_EQ(cacheDouble().calls, 8);
    resetCacheDouble();
}

}  // namespace
}  // namespace qvn::test
