// qvniConvert with scale factors against the reference models.
#include <gtest/gtest.h>

#include <climits>

#include "families/convert_forms.h"
#include "ref/convert_ref.h"

namespace qvn::test {
namespace {

// Scale factors on the ordinary paths, then far outside every exponent range.
const int kUsualFactors[] = {0, 1, 2, 7, -1, -3};
const int kExtremeFactors[] = {16, 31, 33, 140, 160, 1030, 1080, -40, -130, -1100, INT_MAX, INT_MIN};

template <class S, class D, class Call>
void allFactors(const char* name, const Call& call, int mode) {
    for (int sf : kUsualFactors) {
        SCOPED_TRACE(testing::Message() << "scale factor " << sf << " mode " << mode);
        const auto c = conversion<S, D>(name, 1, false, [&](auto... a) { return call(a..., sf); },
                                        [=](S s) { return ref::scaled<D>(s, sf, mode); });
        sweep(c);
        if constexpr (std::is_integral_v<S> && sizeof(S) <= 2)
            if (sf == 1) exhaustive(c);
    }
    for (int sf : kExtremeFactors) {
        SCOPED_TRACE(testing::Message() << "scale factor " << sf << " mode " << mode);
        sweep(conversion<S, D>(name, 1, false, [&](auto... a) { return call(a..., sf); },
                               [=](S s) { return ref::scaled<D>(s, sf, mode); }), kOneShape);
    }
}

#define QVN_SFS(s, d)                                                                                    \
    allFactors<Qvn##s, Qvn##d>("Convert_" #s #d "_C1RSfs", [](auto... a) { return qvniConvert_##s##d##_C1RSfs(a...); }, 1);
#define QVN_RND_SFS(s, d)                                                                                \
    allFactors<Qvn##s, Qvn##d>(                                                                          \
        "Convert_" #s #d "_C1RSfs", [mode](auto src, int ss, auto dst, int ds, QvnRoiSize r, int sf) {                               \
            return qvniConvert_##s##d##_C1RSfs(src, ss, dst, ds, r, mode, sf);                           \
        },                                                                                               \
        mode);

TEST(ConvertSfs, IntegerSourcesRoundHalvesToEven) {
    QVN_SFS(8u, 8s) QVN_SFS(16u, 8s) QVN_SFS(16u, 16s) QVN_SFS(16s, 8s) QVN_SFS(32s, 16u) QVN_SFS(32s, 16s)
    QVN_SFS(32u, 8u) QVN_SFS(32u, 8s) QVN_SFS(32u, 16u) QVN_SFS(32u, 16s) QVN_SFS(32u, 32s)
}

TEST(ConvertSfs, FloatSourcesRoundByMode) {
    for (int mode : {qvnRndZero, qvnRndNear, qvnRndFinancial}) {
        QVN_RND_SFS(32f, 8u) QVN_RND_SFS(32f, 8s) QVN_RND_SFS(32f, 16u) QVN_RND_SFS(32f, 16s) QVN_RND_SFS(32f, 32s)
        QVN_RND_SFS(32f, 32u) QVN_RND_SFS(64f, 8u) QVN_RND_SFS(64f, 8s) QVN_RND_SFS(64f, 16u) QVN_RND_SFS(64f, 16s)
    }
}

// The destination holds 32u results in the memory of the 32f source.
TEST(ConvertSfs, InPlace32fTo32u) {
    for (int mode : {qvnRndZero, qvnRndNear, qvnRndFinancial})
        for (int sf : {0, 3, -2}) {
            ElementCase<Qvn32f> c("Convert_32f32u_C1IRSfs mode " + std::to_string(mode) + " sf " + std::to_string(sf),
                                  1, false, 1, true);
            c.call = QVN_ECALL(qvniConvert_32f32u_C1IRSfs(d, ds, r, mode, sf));
            c.model = [=](const Qvn32f* v, int) {
                const Qvn32u u = ref::scaled<Qvn32u>(v[0], sf, mode);
                Qvn32f bits;
                std::memcpy(&bits, &u, 4);
                return bits;
            };
            sweep(c, kOneShape);
        }
}

TEST(ConvertSfs, DocumentedExamples) {
    const Qvn64f v[6] = {2.5, 3.5, 2.9, 300.0, -3.0, 255.5};
    const Qvn8u want[3][6] = {{2, 3, 2, 255, 0, 255}, {2, 4, 3, 255, 0, 255}, {3, 4, 3, 255, 0, 255}};
    for (int mode = 0; mode < 3; ++mode) {
        Qvn8u d[6] = {};
        ASSERT_EQ(qvniConvert_64f8u_C1RSfs(v, 48, d, 6, {6, 1}, mode, 0), qvnOk);
        for (int i = 0; i < 6; ++i) EXPECT_EQ(d[i], want[mode][i]) << "mode " << mode << " value " << v[i];
    }
    // 5 * 2^-1 = 2.5 rounds to 2; 7 * 2^-1 = 3.5 to 4; 3 * 2^2 = 12.
    const Qvn16u s[3] = {5, 7, 3};
    Qvn8s d[3];
    ASSERT_EQ(qvniConvert_16u8s_C1RSfs(s, 6, d, 3, {2, 1}, 1), qvnOk);
    EXPECT_EQ(d[0], 2);
    EXPECT_EQ(d[1], 4);
    ASSERT_EQ(qvniConvert_16u8s_C1RSfs(s + 2, 6, d, 3, {1, 1}, -2), qvnOk);
    EXPECT_EQ(d[0], 12);
}

}  // namespace
}  // namespace qvn::test
