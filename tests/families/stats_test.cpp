// qvniSum, qvniMean and the extremes against exact models: wide-integer sums,
// the documented error bounds of the float sums, and the order of values
// with the first occurrence of each extreme.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include "ref/stats_ref.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

template <class T>
using SumFn = QvnStatus (*)(const T*, int, QvnRoiSize, Qvn64f*);
using HintFn = QvnStatus (*)(const Qvn32f*, int, QvnRoiSize, Qvn64f*, QvnAccuracyHint);
template <class T>
using ExtFn = QvnStatus (*)(const T*, int, QvnRoiSize, T*);
template <class T>
using MinMaxFn = QvnStatus (*)(const T*, int, QvnRoiSize, T*, T*);
template <class T>
using IndexFn = QvnStatus (*)(const T*, int, QvnRoiSize, T*, int*, int*);

template <class T>
std::vector<T> channel(const GuardedImage<T>& img, int elems, int c) {
    std::vector<T> v;
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t x = 0; x < img.width(); ++x) v.push_back(img.at(x * elems + c, y));
    return v;
}

template <class T>
std::string mismatch(const char* what, int c, T got, T want) {
    if (sameValue(got, want)) return {};
    std::ostringstream s;
    s << what << " of channel " << c << " got " << printable(got) << " want " << printable(want);
    return s.str();
}

// Integer sums exact, and means from them by the documented division or reciprocal.
template <class T>
void integerSums(const std::string& name, int elems, SumFn<T> fn, bool mean) {
    ReduceCase<T> c{name, elems, {elems * 8}};
    c.acrossTargets = false;
    c.callerRounding = FE_TONEAREST;  // the model's division rounds to nearest
    c.call = [fn](const T* s, int ss, QvnRoiSize r, void* const* out) { return fn(s, ss, r, static_cast<Qvn64f*>(out[0])); };
    c.check = [=](const GuardedImage<T>& src, const unsigned char* const* out) {
        std::string wrong;
        const double count = double(src.width() * src.height());
        for (int ch = 0; ch < elems && wrong.empty(); ++ch) {
            std::int64_t s = 0;
            for (T v : channel(src, elems, ch)) s += v;
            const double want = !mean ? double(s) : elems == 1 ? double(s) / count : double(s) * (1.0 / count);
            wrong = mismatch("sum", ch, resultAt<double>(out[0], ch), want);
        }
        return wrong;
    };
    sweepReduce(c);
}

// Finite summands of wide range: ordinary values, large ones and their
// negations (cancellation), tiny ones and zeros of both signs.
void fillSummands(GuardedImage<Qvn32f>& img, std::uint32_t seed) {
    std::mt19937 rng(seed);
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t e = 0; e < img.rowElems(); ++e) {
            const float r = float(int(rng() % 2001) - 1000) / 8;
            const float choice[] = {r, std::ldexp(r, int(rng() % 90)), e > 0 ? -img.at(e - 1, y) : r, std::ldexp(r, -120), -0.0f, r};
            img.at(e, y) = choice[rng() % 6];
        }
    img.snapshot();
}

// 32f sums within their bounds (and the accurate one never further off than
// the fast one beyond its second-order term); means are the sum divided.
void floatSums(const std::string& name, int elems, HintFn fn, int hint, bool mean, HintFn sumFn) {
    ReduceCase<Qvn32f> c{name + " hint " + std::to_string(hint), elems, {elems * 8}};
    c.fill = fillSummands;
    c.callerRounding = FE_TONEAREST;  // the bounds assume rounding to nearest
    c.nanSize = 8;
    c.call = [=](const Qvn32f* s, int ss, QvnRoiSize r, void* const* out) { return fn(s, ss, r, static_cast<Qvn64f*>(out[0]), hint); };
    c.check = [=](const GuardedImage<Qvn32f>& src, const unsigned char* const* out) {
        const long double u = std::ldexp(1.0L, -53);
        double sums[4], fast[4];
        sumFn(src.data(), int(src.step()), {int(src.width()), int(src.height())}, sums, hint);
        sumFn(src.data(), int(src.step()), {int(src.width()), int(src.height())}, fast, 0);
        const double count = double(src.width() * src.height());
        for (int ch = 0; ch < elems; ++ch) {
            const double got = resultAt<double>(out[0], ch);
            if (mean) {
                const std::string wrong = mismatch("mean", ch, got, elems == 1 ? sums[ch] / count : sums[ch] * (1.0 / count));
                if (!wrong.empty()) return wrong;
                continue;
            }
            const ref::FloatSumModel m = ref::floatSum(channel(src, elems, ch));
            const long double g = ref::gamma(std::size_t(count), u), err = std::fabs((long double)got - m.exact);
            const long double second = 2 * g * g * m.abs * (1 + 1e-9L);
            const long double bound = hint == 2 ? u * std::fabs((long double)m.exact) + second : g * m.abs * (1 + 1e-9L);
            if (!(err <= bound) || (hint == 2 && !(err <= std::fabs((long double)fast[ch] - m.exact) + second)))
                return "sum of channel " + std::to_string(ch) + " off by " + std::to_string(double(err));
            if (!sameValue(got, m.exact) && m.exact == 0) return std::string("a zero sum of the wrong sign");
        }
        return std::string();
    };
    sweepReduce(c);
}

#define QVN_SUM_LAYOUTS(M) M(C1, 1) M(C3, 3) M(C4, 4)

TEST(StatsSum, IntegerSumsAndMeansAreExact) {
#define X(C, e)                                                                                 \
    integerSums<Qvn8u>("Sum_8u_" #C "R", e, qvniSum_8u_##C##R, false);                         \
    integerSums<Qvn16u>("Sum_16u_" #C "R", e, qvniSum_16u_##C##R, false);                      \
    integerSums<Qvn16s>("Sum_16s_" #C "R", e, qvniSum_16s_##C##R, false);                      \
    integerSums<Qvn8u>("Mean_8u_" #C "R", e, qvniMean_8u_##C##R, true);                        \
    integerSums<Qvn16s>("Mean_16s_" #C "R", e, qvniMean_16s_##C##R, true);
    QVN_SUM_LAYOUTS(X)
#undef X
    integerSums<Qvn16u>("Mean_16u_C3R", 3, qvniMean_16u_C3R, true);
}

TEST(StatsSum, FloatSumsMeetTheirBoundsOnEveryTarget) {
#define X(C, e)                                                                                         \
    for (int hint : {0, 2}) {                                                                           \
        floatSums("Sum_32f_" #C "R", e, qvniSum_32f_##C##R, hint, false, qvniSum_32f_##C##R);           \
        floatSums("Mean_32f_" #C "R", e, qvniMean_32f_##C##R, hint, true, qvniSum_32f_##C##R);          \
    }
    QVN_SUM_LAYOUTS(X)
#undef X
    floatSums("Sum_32f_C1R", 1, qvniSum_32f_C1R, 1, false, qvniSum_32f_C1R);
}

// Large values that cancel within one partial sum: the fast path loses the
// small ones, the accurate path keeps them; infinities and NaN give the IEEE
// sum; narrow integer lanes are flushed before they overflow.
TEST(StatsSum, CancellationSpecialsAndLongRows) {
    std::vector<float> v(96, 0.0f);  // elements 0, 24, 48 and 72 share partial sum 0
    v[0] = 0x1p60f, v[24] = 1.0f, v[48] = -0x1p60f, v[72] = 3.0f;
    double fast, accurate;
    ASSERT_EQ(qvniSum_32f_C1R(v.data(), 0, {int(v.size()), 1}, &fast, qvnAlgHintFast), qvnOk);
    ASSERT_EQ(qvniSum_32f_C1R(v.data(), 0, {int(v.size()), 1}, &accurate, qvnAlgHintAccurate), qvnOk);
    EXPECT_EQ(fast, 3.0);
    EXPECT_EQ(accurate, 4.0);
    const float inf = std::numeric_limits<float>::infinity(), specials[][3] = {{inf, 1, 2}, {inf, -inf, 0}, {1, NAN, 2}, {-0.0f, -0.0f, -0.0f}};
    for (const auto& s : specials)
        for (int hint : {0, 2}) {
            double got, want = double(s[0]) + s[1] + s[2];
            ASSERT_EQ(qvniSum_32f_C1R(s, 12, {3, 1}, &got, hint), qvnOk);
            EXPECT_TRUE(sameValue(got, want, true)) << s[0] << " " << s[1] << " " << s[2] << " hint " << hint << ": " << got;
        }
    // every lane well past its flush count: 2^21 elements at the extremes
    std::vector<Qvn16u> big(std::size_t(1) << 21, 65535);
    double s16[4];
    ASSERT_EQ(qvniSum_16u_C4R(big.data(), 1 << 13, {1 << 10, 1 << 9}, s16), qvnOk);
    for (double s : s16) EXPECT_EQ(s, 65535.0 * (1 << 19));
    std::vector<Qvn16s> neg(big.size(), -32768);
    ASSERT_EQ(qvniSum_16s_C1R(neg.data(), 1 << 12, {1 << 11, 1 << 10}, s16), qvnOk);
    EXPECT_EQ(s16[0], -32768.0 * (1 << 21));
    std::vector<Qvn8u> bytes(std::size_t(3) << 18, 255);
    ASSERT_EQ(qvniSum_8u_C3R(bytes.data(), 3 << 9, {1 << 9, 1 << 9}, s16), qvnOk);
    EXPECT_EQ(s16[2], 255.0 * (1 << 18));
}

TEST(StatsSum, ZeroStepAndOnePixel) {
    const Qvn8u row[5] = {1, 2, 3, 4, 250};
    double s = 0, m = 0;
    EXPECT_EQ(qvniSum_8u_C1R(row, 0, {5, 7}, &s), qvnOk);
    EXPECT_EQ(s, 7 * 260.0);
    EXPECT_EQ(qvniMean_8u_C1R(row + 4, 1, {1, 1}, &m), qvnOk);
    EXPECT_EQ(m, 250.0);
}

// Images whose extremes tie often and move: narrow value ranges, rows that
// fall (every row passes the last), the type's extremes (early stops), and
// for floats NaN, infinities and zeros of both signs (channels of NaN alone).
template <class T>
void fillExtremes(GuardedImage<T>& img, std::uint32_t seed) {
    std::mt19937 rng(seed);
    using L = std::numeric_limits<T>;
    const T odd[] = {std::is_floating_point_v<T> ? L::quiet_NaN() : L::lowest(), T(-0.0), T(0), L::max(),
                     std::is_floating_point_v<T> ? -L::infinity() : T(1), L::infinity()};
    const int base = int(rng() % 200) + 10;
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t e = 0; e < img.rowElems(); ++e) {
            const unsigned r = rng();
            switch (seed % 4) {
                case 0: img.at(e, y) = T(base + int(r % 4)); break;
                case 1: img.at(e, y) = T(base - 9 * int(y) + int(r % 6)); break;
                case 2: img.at(e, y) = r % 97 == 0 ? odd[r % 4] : T(base + int(r % 50)); break;
                default: img.at(e, y) = r % 5 ? odd[r % 6] : T(int(r % 7) - 3);
            }
        }
    img.snapshot();
}

// An extreme function with its results in out.
template <class T>
QvnStatus invoke(ExtFn<T> f, const T* s, int ss, QvnRoiSize r, void* const* o) { return f(s, ss, r, static_cast<T*>(o[0])); }
template <class T>
QvnStatus invoke(MinMaxFn<T> f, const T* s, int ss, QvnRoiSize r, void* const* o) {
    return f(s, ss, r, static_cast<T*>(o[0]), static_cast<T*>(o[1]));
}
template <class T>
QvnStatus invoke(IndexFn<T> f, const T* s, int ss, QvnRoiSize r, void* const* o) {
    return f(s, ss, r, static_cast<T*>(o[0]), static_cast<int*>(o[1]), static_cast<int*>(o[2]));
}

// Min, Max and MinMax (highs: which results are maxima), or with index the
// value and the position of its first occurrence.
template <class T, class Fn>
void extremes(const std::string& name, int elems, int channels, std::vector<bool> highs, bool index, Fn fn) {
    ReduceCase<T> c{name, elems, {}};
    for (std::size_t i = 0; i < highs.size(); ++i) c.resultBytes.push_back(channels * int(sizeof(T)));
    if (index) c.resultBytes.insert(c.resultBytes.end(), {channels * 4, channels * 4});
    c.fill = fillExtremes<T>;
    c.acrossTargets = false;
    c.call = [fn](const T* s, int ss, QvnRoiSize r, void* const* out) { return invoke<T>(fn, s, ss, r, out); };
    c.check = [=](const GuardedImage<T>& src, const unsigned char* const* out) {
        std::string wrong;
        for (int ch = 0; ch < channels && wrong.empty(); ++ch)
            for (std::size_t k = 0; k < highs.size() && wrong.empty(); ++k) {
                const auto [v, at] = ref::extreme(channel(src, elems, ch), highs[k]);
                wrong = mismatch(highs[k] ? "maximum" : "minimum", ch, resultAt<T>(out[k], ch), v);
                if (index && wrong.empty()) wrong = mismatch("x", ch, resultAt<int>(out[1], ch), int(at % src.width()));
                if (index && wrong.empty()) wrong = mismatch("y", ch, resultAt<int>(out[2], ch), int(at / src.width()));
            }
        return wrong;
    };
    sweepReduce(c);
}

#define QVN_EXT_LAYOUTS(M, T) M(T, C1, 1, 1) M(T, C3, 3, 3) M(T, C4, 4, 4) M(T, AC4, 4, 3)
#define QVN_EXT_TYPES(M) QVN_EXT_LAYOUTS(M, 8u) QVN_EXT_LAYOUTS(M, 16u) QVN_EXT_LAYOUTS(M, 16s) QVN_EXT_LAYOUTS(M, 32f)

TEST(StatsExtrema, MinMaxAndMinMaxFollowTheOrder) {
#define X(T, C, e, n)                                                                                 \
    extremes<Qvn##T>("Min_" #T "_" #C "R", e, n, {false}, false, qvniMin_##T##_##C##R);              \
    extremes<Qvn##T>("Max_" #T "_" #C "R", e, n, {true}, false, qvniMax_##T##_##C##R);               \
    extremes<Qvn##T>("MinMax_" #T "_" #C "R", e, n, {false, true}, false, qvniMinMax_##T##_##C##R);
    QVN_EXT_TYPES(X)
#undef X
}

TEST(StatsExtrema, IndexFormsReportTheFirstOccurrence) {
#define X(T, C, e, n)                                                                                 \
    extremes<Qvn##T>("MinIndx_" #T "_" #C "R", e, n, {false}, true, qvniMinIndx_##T##_##C##R);       \
    extremes<Qvn##T>("MaxIndx_" #T "_" #C "R", e, n, {true}, true, qvniMaxIndx_##T##_##C##R);
    QVN_EXT_TYPES(X)
#undef X
}

TEST(StatsExtrema, WorkedExamples) {
    std::vector<Qvn8u> img(10 * 9, 7);
    img[2 * 10 + 5] = 0, img[7 * 10 + 1] = 0, img[8 * 10 + 9] = 200;
    Qvn8u v = 1;
    int x = -1, y = -1;
    EXPECT_EQ(qvniMinIndx_8u_C1R(img.data(), 10, {10, 9}, &v, &x, &y), qvnOk);
    EXPECT_EQ(v, 0);
    EXPECT_EQ(x, 5);
    EXPECT_EQ(y, 2);
    EXPECT_EQ(qvniMaxIndx_8u_C1R(img.data(), 10, {10, 9}, &v, &x, &y), qvnOk);
    EXPECT_EQ(v, 200);
    EXPECT_EQ(x, 9);
    EXPECT_EQ(y, 8);
    const std::vector<Qvn32f> same(3 * 40, 2.5f);
    Qvn32f mins[3], maxs[3];
    int xs[3], ys[3];
    EXPECT_EQ(qvniMaxIndx_32f_C3R(same.data(), 120, {20, 2}, maxs, xs, ys), qvnOk);
    for (int c = 0; c < 3; ++c) EXPECT_TRUE(maxs[c] == 2.5f && xs[c] == 0 && ys[c] == 0) << c;
    const Qvn32f z[4] = {0.0f, NAN, -0.0f, NAN};
    EXPECT_EQ(qvniMinMax_32f_C1R(z, 16, {4, 1}, mins, maxs), qvnOk);
    EXPECT_TRUE(std::signbit(mins[0]) && !std::signbit(maxs[0]) && maxs[0] == 0);
}

}  // namespace
}  // namespace qvn::test
