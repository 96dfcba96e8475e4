// qvniConvert without scale factors against the reference models.
#include <gtest/gtest.h>

#include <vector>

#include "families/convert_forms.h"
#include "ref/convert_ref.h"

namespace qvn::test {
namespace {

template <class S, class D>
auto exact() {
    return [](S s) { return ref::to<D>(static_cast<long double>(s)); };
}

// Widening is exact; narrowing integers saturate. One model for both.
TEST(Convert, IntegerAndWideningPairsMatchTheExactModel) {
#define QVN_EXACT(s, d) QVN_CONVERT_LAYOUTS(Qvn##s, Qvn##d, qvniConvert_##s##d, (exact<Qvn##s, Qvn##d>()), );
    QVN_EXACT(8u, 16u) QVN_EXACT(8u, 16s) QVN_EXACT(8u, 32s) QVN_EXACT(8u, 32f) QVN_EXACT(8s, 32s)
    QVN_EXACT(8s, 32f) QVN_EXACT(16u, 32s) QVN_EXACT(16u, 32f) QVN_EXACT(16s, 32s) QVN_EXACT(16s, 32f)
    QVN_EXACT(16u, 8u) QVN_EXACT(16s, 8u) QVN_EXACT(32s, 8u) QVN_EXACT(32s, 8s)
#undef QVN_EXACT
}

// 32s and 32u to 32f round to nearest even; the Rs forms clamp negatives to 0.
TEST(Convert, OneChannelAndSignedToUnsigned) {
#define QVN_C1(s, d, sfx)                                                                                       \
    {                                                                                                           \
        const auto c = conversion<Qvn##s, Qvn##d>("Convert_" #s #d "_" #sfx, 1, false,                         \
                                                  QVN_CALL(qvniConvert_##s##d##_##sfx, ), exact<Qvn##s, Qvn##d>()); \
        sweep(c);                                                                                               \
        if constexpr (sizeof(Qvn##s) <= 2) exhaustive(c);                                                       \
    }
    QVN_C1(8s, 16s, C1R) QVN_C1(8s, 64f, C1R) QVN_C1(16u, 32u, C1R) QVN_C1(32s, 32f, C1R) QVN_C1(32u, 32f, C1R)
    QVN_C1(8s, 8u, C1Rs) QVN_C1(8s, 16u, C1Rs) QVN_C1(8s, 32u, C1Rs) QVN_C1(16s, 16u, C1Rs) QVN_C1(16s, 32u, C1Rs)
    QVN_C1(32s, 32u, C1Rs)
#undef QVN_C1
}

TEST(Convert, FloatNarrowingRoundsByModeAndSaturates) {
    for (int mode : {qvnRndZero, qvnRndNear, qvnRndFinancial}) {
        SCOPED_TRACE(testing::Message() << "mode " << mode);
#define QVN_MODE_LAYOUTS(D, stem) \
    QVN_CONVERT_LAYOUTS(Qvn32f, D, stem, ([mode](Qvn32f s) { return ref::saturate<D>(s, mode); }), , mode)
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

}  // namespace
}  // namespace qvn::test
