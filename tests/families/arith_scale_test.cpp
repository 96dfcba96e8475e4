// qvniMulScale, qvniMulCScale and qvniMulC64f against plain models.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <vector>

#include "families/arith_forms.h"

namespace qvn::test {
namespace {

const auto kMulScaled = [](auto x, auto y) { return ref::mulScaled<decltype(x)>(x, y); };

// Every layout and form, every 8u pair, and for 16u every value against
// products next to multiples of 65535.
TEST(ArithMulScale, EveryFormAndPair) {
    const int sf = 0;
    QVN_BIN(MulScale, 8u, C1R, 1, false, false, (s[0], ss[0], s[1], ss[1], d, ds, r), kMulScaled, qvnOk, kEveryPair);
    QVN_BIN(MulScale, 8u, AC4IR, 4, true, true, (s[0], ss[0], d, ds, r), kMulScaled, qvnOk);
    QVN_BIN(MulScale, 16u, C3R, 3, false, false, (s[0], ss[0], s[1], ss[1], d, ds, r), kMulScaled, qvnOk);
    QVN_BIN(MulScale, 16u, AC4R, 4, true, false, (s[0], ss[0], s[1], ss[1], d, ds, r), kMulScaled, qvnOk);
    for (int set = 0; set < 2; ++set) {
        const PageEndConstants<Qvn8u> k8(set, false);
        const PageEndConstants<Qvn16u> k16(set, false);
        const Qvn8u* k = k8.data();
        QVN_CONST(MulCScale, 8u, C3R, 3, false, false, (s[0], ss[0], k + 1, d, ds, r), kMulScaled);
        QVN_CONST(MulCScale, 8u, C1IR, 1, false, true, (k[3], d, ds, r), kMulScaled);
        [&, k = k16.data()] {
            QVN_CONST(MulCScale, 16u, C4R, 4, false, false, (s[0], ss[0], k, d, ds, r), kMulScaled);
            QVN_CONST(MulCScale, 16u, AC4IR, 4, true, true, (k + 1, d, ds, r), kMulScaled);
        }();
    }
    auto c16 = arithCase<Qvn16u>("MulScale_16u_C1R near 65535", 1, false, 2, false,
                                 QVN_ECALL(qvniMulScale_16u_C1R(s[0], ss[0], s[1], ss[1], d, ds, r)), qvnOk);
    c16.fill = [](GuardedImage<Qvn16u>& img, std::uint32_t seed) {
        for (std::int64_t i = 0; i < 65536; ++i) img.at(i % 256, i / 256) = Qvn16u(seed % 8 ? i : 65535 - i % 3);
        img.snapshot();
    };
    c16.model = [](const Qvn16u* v, int) { return ref::mulScaled<Qvn16u>(v[0], v[1]); };
    sweep(c16, kEveryPair);
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

// Every type and mode with ordinary constants, products near integers and
// halves, and special constants (NaN, infinities, magnitudes far outside
// every range), for which 32f results are only required to agree between
// the vector body and the scalar head and tail. A form of n channels reads
// the last n of four constants that end at an inaccessible page.
TEST(ArithMulC64f, EveryTypeAndMode) {
    std::vector<std::vector<double>> sets = {{0.5, -1.25, 3.0000001, 257.5}, {1.0 / 3.0, 2.9999999999, 0.49999999999, 1.5}};
    const std::vector<double> special = specialConstants<double>();
    for (std::size_t i = 0; i < special.size(); i += 3)
        sets.push_back({special[i], special[(i + 1) % special.size()], 7.0, special[(i + 2) % special.size()]});
    for (std::size_t set = 0; set < sets.size(); ++set) {
        GuardedImage<double> constants({4, 1, 1, 0, true, 1});
        for (int k = 0; k < 4; ++k) constants.at(k, 0) = sets[set][std::size_t(k)];
        const double* cs = constants.data();
        for (int mode : {0, 1, 2}) {
            const auto run = [&](auto tag, const char* name, int elems, bool inPlace, ArithCall<decltype(tag)> call) {
                using T = decltype(tag);
                ElementCase<T> c = arithCase<T>(std::string(name) + " mode " + std::to_string(mode) + " set " +
                                                    std::to_string(set), elems, false, 1, inPlace, call, qvnOk);
                if (set < 2 || !std::is_same_v<T, float>)
                    c.model = [=](const T* v, int ch) { return mulC64fModel<T>(v[0], cs[4 - elems + ch], mode); };
                sweep(c, kOneShape);
            };
#define QVN_MULC64F(T, form, elems, inPlace, args) \
    run(Qvn##T{}, "MulC64f_" #T "_" #form, elems, inPlace, QVN_ECALL(qvniMulC64f_##T##_##form args))
            QVN_MULC64F(8u, C1R, 1, false, (s[0], ss[0], cs + 3, d, ds, r, 0, mode));
            QVN_MULC64F(16u, C3IR, 3, true, (cs + 1, d, ds, r, 0, mode));
            QVN_MULC64F(16s, C4R, 4, false, (s[0], ss[0], cs, d, ds, r, 0, mode));
            QVN_MULC64F(32f, C3R, 3, false, (s[0], ss[0], cs + 1, d, ds, r, 0, mode));
            if (HasFailure()) return;
        }
    }
    Qvn8u v = 5;
    const double half = 0.5;
    EXPECT_EQ(qvniMulC64f_8u_C1IR(&half, &v, 1, {1, 1}, 0, qvnRndNear), qvnOk);
    EXPECT_EQ(v, 2);  // 2.5 to even
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
