// The general filter against the reference model: every border kind and
// in-memory side, kernels of every shape (1 x N, N x 1, even, larger than
// the ROI, rank 1 or not), every type, layout and divisor mode; exact for
// integer kernels, within the float error of the sums otherwise (and the same
// bits on every target). Then the size query's formulas, the initialisers'
// records and warnings, SetMode, and threads sharing a spec.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "qvncore.h"
#include "qvnip.h"
#include "ref/filter_ref.h"
#include "filter/general-inl.h"
#include "support/bordered.h"
#include "support/cache_double.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

template <class T>
using FilterFn = QvnStatus (*)(const T*, int, T*, int, QvnRoiSize, QvnBorderKind, const T*, const QvnFilterBorderSpec*,
                               Qvn8u*);

struct Kernel {
    int kw, kh;
    std::vector<double> k;  // row-major, the caller's order
    int divisor = 1;        // integer kernels
};

// Integer kernels: random, or rank 1 (with column sums small enough for the
// 16-bit path, or not).
Kernel intKernel(int kw, int kh, int divisor, std::uint32_t seed, int rank1 = 0) {
    std::mt19937 rng(seed);
    Kernel k{kw, kh, std::vector<double>(std::size_t(kw * kh)), divisor};
    std::vector<int> row(static_cast<std::size_t>(kw)), col(static_cast<std::size_t>(kh));
    for (int& r : row) r = int(rng() % 9) - 3;
    for (int& c : col) c = rank1 == 2 ? int(rng() % 200) - 60 : int(rng() % 7) - 2;
    for (int j = 0; j < kh; ++j)
        for (int i = 0; i < kw; ++i)
            k.k[std::size_t(j * kw + i)] = rank1 ? row[std::size_t(i)] * col[std::size_t(j)] : int(rng() % 41) - 15;
    return k;
}
Kernel floatKernel(int kw, int kh, std::uint32_t seed, bool rank1 = false) {
    std::mt19937 rng(seed);
    std::uniform_real_distribution<float> u(-0.4f, 0.9f);
    Kernel k{kw, kh, std::vector<double>(std::size_t(kw * kh))};
    std::vector<float> row(static_cast<std::size_t>(kw)), col(static_cast<std::size_t>(kh));
    for (float& r : row) r = u(rng);
    for (float& c : col) c = u(rng);
    for (int j = 0; j < kh; ++j)
        for (int i = 0; i < kw; ++i)
            k.k[std::size_t(j * kw + i)] = rank1 ? double(row[std::size_t(i)] * col[std::size_t(j)]) : double(u(rng));
    return k;
}

const std::vector<BorderCase>& kBorders = borderCases();

struct Built {
    std::unique_ptr<GuardedImage<Qvn8u>> spec, buffer;
    const QvnFilterBorderSpec* p() const { return reinterpret_cast<const QvnFilterBorderSpec*>(spec->data()); }
};

// GetSize, then the initialiser of the kernel's form, on guarded memory.
Built build(const Kernel& k, bool integer, int dataType, int C, QvnRoiSize roi, int rounding, std::uint32_t seed) {
    int specSize = 0, bufSize = 0;
    const int ktype = dataType == qvn64f ? qvn64f : integer ? qvn16s : qvn32f;
    EXPECT_EQ(qvniFilterBorderGetSize({k.kw, k.kh}, roi, dataType, ktype, C, &specSize, &bufSize), qvnOk);
    Built b{guardedBytes(specSize, seed), guardedBytes(bufSize, seed + 1)};
    auto* s = reinterpret_cast<QvnFilterBorderSpec*>(b.spec->data());
    QvnStatus st;
    if (dataType == qvn64f) {
        st = qvniFilterBorderInit_64f(k.k.data(), {k.kw, k.kh}, dataType, C, rounding, s);
    } else if (integer) {
        const std::vector<Qvn16s> k16(k.k.begin(), k.k.end());
        st = qvniFilterBorderInit_16s(k16.data(), {k.kw, k.kh}, k.divisor, dataType, C, rounding, s);
    } else {
        const std::vector<Qvn32f> k32(k.k.begin(), k.k.end());
        st = qvniFilterBorderInit_32f(k32.data(), {k.kw, k.kh}, dataType, C, rounding, s);
    }
    EXPECT_GE(st, qvnOk);
    b.spec->expectUntouchedOutsideRoi();
    b.spec->snapshot();
    return b;
}

// The source (with room on the in-memory sides), the destination, the call
// and the comparison. want(sum, got) says whether got matches the model's
// sum at one element, where sum(x, y, ch) is the model.
template <class T, class Check>
void runScene(const std::string& what, FilterFn<T> fn, const Built& b, const Kernel& k, int C, int w, int h,
              const BorderCase& bc, std::uint32_t seed, const Check& check, bool acrossTargets) {
    const int ax = (k.kw - 1) / 2, ay = (k.kh - 1) / 2, rx = k.kw - 1 - ax, by = k.kh - 1 - ay;
    const int l = bc.model.left ? ax : 0, t = bc.model.top ? ay : 0;
    const int bw = w + l + (bc.model.right ? rx : 0), bh = h + t + (bc.model.bottom ? by : 0);
    GuardedImage<T> src(placed(bw, bh, C, -1, seed, 0)), dst(placed(w, h, C, -1, seed, 1));
    std::mt19937 rng(seed);
    for (int y = 0; y < bh; ++y)
        for (int e = 0; e < bw * C; ++e) src.at(e, y) = randomPixel<T>(rng);
    src.snapshot();
    const T value[4] = {T(7), T(100), T(33), T(5)};
    const T* roi = src.row(t) + l * C;
    const QvnStatus s = callUnderTest({&src, b.spec.get()}, {&dst}, [&] {
        return fn(roi, int(src.step()), dst.data(), int(dst.step()), {w, h}, bc.border, value, b.p(), b.buffer->data());
    }, FE_UPWARD, acrossTargets, std::is_floating_point_v<T> ? int(sizeof(T)) : 0);
    ASSERT_EQ(s, qvnOk) << what;
    b.buffer->expectUntouchedOutsideRoi();
    const auto at = [&](std::int64_t x, std::int64_t y, int ch) {
        return ref::extended<T>(bc.model, x, y, w, h, [&](std::int64_t sx, std::int64_t sy) {
            return src.at((sx + l) * C + ch, sy + t);
        }, value[ch]);
    };
    for (int y = 0; y < h; ++y)
        for (int e = 0; e < w * C; ++e) {
            const int x = e / C, ch = e % C;
            const auto px = [&](int j, int i) { return at(x - ax + i, y - ay + j, ch); };
            if (!check(px, dst.at(e, y))) {
                ADD_FAILURE() << what << " " << w << "x" << h << " border " << bc.border << " at (" << x << ", " << y
                              << ", " << ch << ") got " << printable(dst.at(e, y));
                return;
            }
        }
}

// A float sum (and the sum of its terms' magnitudes) against a result:
// within the float error for float images; integer images round it by mode,
// either neighbour where the sum lies within that error of a rounding
// boundary.
template <class T>
bool floatMatches(double sum, double mag, int mode, T got) {
    const double tol = mag * (std::is_same_v<T, Qvn64f> ? 1e-13 : 4e-6) + 1e-30;
    if constexpr (std::is_floating_point_v<T>) {
        return std::fabs(double(got) - sum) <= tol;
    } else {
        const T want = ref::saturated<T>(ref::roundFloat(float(sum), mode));
        if (tol >= 0.25)  // sums of large terms: any integer the error reaches
            return got >= ref::saturated<T>(std::int64_t(std::floor(sum - tol))) &&
                   got <= ref::saturated<T>(std::int64_t(std::ceil(sum + tol)));
        const double frac = sum - std::floor(sum);
        const bool near = std::fabs(frac - 0.5) <= tol || frac <= tol || 1 - frac <= tol;
        return got == want || (near && std::fabs(double(got) - double(want)) <= 1);
    }
}

// The double sum of a float kernel (an integer kernel over divisor, as the
// 16u filter takes it, where divisor is not 0) at one element against got.
template <class T, class Px>
bool floatSumMatches(const Kernel& k, int divisor, int mode, const Px& px, T got) {
    double sum = 0, mag = 0;
    for (int j = 0; j < k.kh; ++j)
        for (int i = 0; i < k.kw; ++i) {
            const double c = k.k[std::size_t(j * k.kw + i)];
            const double term = (divisor != 0 ? double(float(c * (1.0 / divisor))) : c) * double(px(j, i));
            sum += term, mag += std::fabs(term);
        }
    return floatMatches<T>(sum, mag, mode, got);
}


// ROI sizes: single pixels and rows, narrower and wider than the vector
// blocks of every target, kernels larger than the ROI.
const std::vector<QvnRoiSize> kRois = {{1, 1}, {2, 3}, {5, 4}, {37, 5}, {70, 9}, {150, 3}, {3, 17}, {131, 12}};

struct Shape {
    int kw, kh, rank1;
};
const std::vector<Shape> kShapes = {{1, 1, 0}, {3, 1, 0}, {1, 4, 0}, {2, 2, 0}, {3, 3, 1}, {3, 3, 0},
                                    {5, 4, 0}, {4, 5, 1}, {7, 7, 1}, {9, 2, 0}, {5, 5, 2}};

// Every shape with every border, over the ROI sizes. Integer kernels (every
// divisor path) give exact sums, except that 16u images filter them in floats
// as kernel / divisor; float kernels give the double sum within the float
// error of the sums, integer images rounding it (either neighbour where the
// sum lies within that error of a tie), and the same bits on every target.
template <class T>
void sweep(const char* name, FilterFn<T> fn, int dataType, int C, bool integer) {
    const int divisors[] = {1, 4, 3, -4, 16, 7};
    std::uint32_t seed = integer ? 11 : 7;
    for (const Shape& sh : kShapes)
        for (std::size_t bi = 0; bi < kBorders.size(); ++bi, ++seed) {
            const QvnRoiSize roi = kRois[seed % kRois.size()];
            const int divisor = integer ? divisors[seed % 6] : 1, mode = dataType == qvn64f ? 1 : int(seed % 3);
            const bool floats = !integer || dataType == qvn16u, exact = !floats && seed % 4 == 0;
            const Kernel k = integer ? intKernel(sh.kw, sh.kh, divisor, seed, sh.rank1)
                                     : floatKernel(sh.kw, sh.kh, seed, sh.rank1 != 0);
            const Built b = build(k, integer, dataType, C, roi, mode | (exact ? 0x10000 : 0), seed);
            const std::string what = std::string(name) + " divisor " + std::to_string(divisor) + " mode " + std::to_string(mode);
            runScene<T>(what, fn, b, k, C, roi.width, roi.height, kBorders[bi], seed, [&](const auto& px, T got) {
                if (!floats) {
                    std::int64_t sum = 0;
                    for (int j = 0; j < k.kh; ++j)
                        for (int i = 0; i < k.kw; ++i) sum += std::int64_t(k.k[std::size_t(j * k.kw + i)]) * px(j, i);
                    return got == ref::divided<T>(sum, divisor, mode, exact, 0);
                }
                return floatSumMatches<T>(k, integer ? divisor : 0, mode, px, got);
            }, floats);
            if (testing::Test::HasFailure()) return;
        }
}

TEST(FilterBorder, IntegerKernelsAreExactForEveryBorderAndDivisor) {
    sweep<Qvn8u>("8u C1", qvniFilterBorder_8u_C1R, qvn8u, 1, true);
    sweep<Qvn8u>("8u C3", qvniFilterBorder_8u_C3R, qvn8u, 3, true);
    sweep<Qvn8u>("8u C4", qvniFilterBorder_8u_C4R, qvn8u, 4, true);
    sweep<Qvn16s>("16s C1", qvniFilterBorder_16s_C1R, qvn16s, 1, true);
    sweep<Qvn16s>("16s C3", qvniFilterBorder_16s_C3R, qvn16s, 3, true);
    sweep<Qvn16u>("16u C4 (float)", qvniFilterBorder_16u_C4R, qvn16u, 4, true);
}

// Rows wider than the separable path's chunks: the seams between chunks and
// the last chunk, which overlaps the one before it.
TEST(FilterBorder, SeparableKernelsAcrossChunks) {
    const Kernel k = floatKernel(5, 5, 3, true);
    const auto check = [&](const auto& px, auto got) { return floatSumMatches(k, 0, 0, px, got); };
    const QvnRoiSize c1{1100, 6}, c3{390, 5};
    runScene<Qvn32f>("32f C1", qvniFilterBorder_32f_C1R, build(k, false, qvn32f, 1, c1, 0, 5), k, 1, c1.width, c1.height,
                     kBorders[0], 5, check, true);
    runScene<Qvn32f>("32f C3", qvniFilterBorder_32f_C3R, build(k, false, qvn32f, 3, c3, 0, 6), k, 3, c3.width, c3.height,
                     kBorders[1], 6, check, true);
}

TEST(FilterBorder, FloatKernelsFollowTheDoubleSum) {
    sweep<Qvn32f>("32f C1", qvniFilterBorder_32f_C1R, qvn32f, 1, false);
    sweep<Qvn32f>("32f C3", qvniFilterBorder_32f_C3R, qvn32f, 3, false);
    sweep<Qvn32f>("32f C4", qvniFilterBorder_32f_C4R, qvn32f, 4, false);
    sweep<Qvn8u>("8u C1", qvniFilterBorder_8u_C1R, qvn8u, 1, false);
    sweep<Qvn8u>("8u C3", qvniFilterBorder_8u_C3R, qvn8u, 3, false);
    sweep<Qvn16u>("16u C1", qvniFilterBorder_16u_C1R, qvn16u, 1, false);
    sweep<Qvn16s>("16s C4", qvniFilterBorder_16s_C4R, qvn16s, 4, false);
    sweep<Qvn64f>("64f C1", qvniFilterBorder_64f_C1R, qvn64f, 1, false);
}

}  // namespace
}  // namespace qvn::test

namespace qvn::test {
namespace {

// The size query's formulas at hand-computed points (the row work area
// doubles where the core library reports the wider scratch).
TEST(FilterBorder, SizeQueryFollowsTheFormulas) {
    const int wide = ownGetFeature(qvnCpuWideScratch) ? 2 : 1;
    struct Point {
        QvnRoiSize kernel, roi;
        int type, ktype, channels, spec, strip, area;
    };
    const Point points[] = {
        // 8u, 3x3 integer: spec 960 + 64 + 191; strips max(3 x 102, 3 x 52) = 306 -> 352
        {{3, 3}, {100, 50}, qvn8u, qvn16s, 1, 1215, 352, 1920},
        // 32f C3, 5x5 float: 2432 + 128 + 191 + 448; strips 6 x 44 x 12 bytes = 3168 -> 3200
        {{5, 5}, {40, 30}, qvn32f, qvn32f, 3, 3199, 3200, 576},
        // 16s C1, 3x3 integer form: strips 3 x 22 x 2 = 132 -> 192; area floor16(380) + 191 -> 512
        {{3, 3}, {20, 10}, qvn16s, qvn16s, 1, 1215, 192, 512},
        // 16s C1 with a 3x1 kernel: float form forced (s = 2, the 16-byte copies
        // added); no horizontal strip, the vertical one 3 x 10; the float-form row
        {{3, 1}, {20, 10}, qvn16s, qvn16s, 1, 320 + 64 + 191 + 64, 96, 576},
        // a kernel larger than the ROI: the whole bordered image, 7 x 8
        {{5, 5}, {4, 3}, qvn8u, qvn16s, 1, 2687, 96, 640},
        // 2x2: both far depths count twice, 3 x 11 rows
        {{2, 2}, {10, 6}, qvn8u, qvn16s, 1, 320 + 64 + 191, 96, 448},
    };
    for (const Point& p : points) {
        int spec = -1, buffer = -1;
        ASSERT_EQ(qvniFilterBorderGetSize(p.kernel, p.roi, p.type, p.ktype, p.channels, &spec, &buffer), qvnOk);
        EXPECT_EQ(spec, p.spec) << p.kernel.width << "x" << p.kernel.height << " type " << p.type;
        EXPECT_EQ(buffer, p.strip + p.area * wide + 63) << p.kernel.width << "x" << p.kernel.height << " type " << p.type;
    }
    int spec = -1, buffer = -1;
    ASSERT_EQ(qvniFilterBorderGetSize({3, 3}, {10, 10}, qvn64f, qvn64f, 1, &spec, &buffer), qvnOk);
    EXPECT_EQ(spec, 128 + 191);
    EXPECT_EQ(buffer, 320 + 126);
}

TEST(FilterBorder, SizeQueryChecksInTheirOrder) {
    int s = 0, b = 0;
    EXPECT_EQ(qvniFilterBorderGetSize({3, 0}, {10, 10}, qvn8u, qvn16s, 1, nullptr, nullptr), qvnErrSize);
    EXPECT_EQ(qvniFilterBorderGetSize({3, 3}, {10, 10}, qvn64f, qvn64f, 2, &s, &b), qvnErrChannel);
    EXPECT_EQ(qvniFilterBorderGetSize({3, 3}, {10, 10}, qvn64f, qvn16s, 1, &s, &b), qvnErrDataType);
    EXPECT_EQ(qvniFilterBorderGetSize({3, 3}, {10, 10}, qvn64f, qvn64f, 1, &s, nullptr), qvnErrNullPointer);
    EXPECT_EQ(qvniFilterBorderGetSize({3, 3}, {10, 10}, qvn8u, qvn32f, 5, &s, &b), qvnErrChannel);
    EXPECT_EQ(qvniFilterBorderGetSize({3, 3}, {10, 10}, qvn8u, qvn64f, 5, &s, &b), qvnErrDataType);
    EXPECT_EQ(qvniFilterBorderGetSize({3, 3}, {10, 10}, qvn8u, qvn32f, 1, nullptr, &b), qvnErrNullPointer);
    EXPECT_EQ(qvniFilterBorderGetSize({3, 3}, {10, 10}, qvn8u, qvn64f, 1, nullptr, &b), qvnErrDataType);
    EXPECT_EQ(qvniFilterBorderGetSize({3, 3}, {10, 10}, 2, qvn16s, 1, &s, &b), qvnErrDataType);
    s = b = 7;
    EXPECT_EQ(qvniFilterBorderGetSize({40000, 3}, {30000, 30000}, qvn8u, qvn32f, 4, &s, &b), qvnErrSizeOverflow);
    EXPECT_EQ(b, 0);
    EXPECT_EQ(s, 7);
}

// A small C1 filter call on plain vectors.
template <class T>
std::vector<T> filterOnce(FilterFn<T> fn, const Built& b, const std::vector<T>& src, int w, int h, int border,
                          const T* value, QvnStatus want = qvnOk) {
    std::vector<T> dst(std::size_t(w * h));
    EXPECT_EQ(fn(src.data(), int(w * sizeof(T)), dst.data(), int(w * sizeof(T)), {w, h}, border, value, b.p(),
                 b.buffer->data()), want);
    return dst;
}

// The kernel [1, 2] has its anchor on the first column: dst(x) = src(x) +
// 2 src(x + 1), the caller's order; the last column replicates.
TEST(FilterBorder, KernelsApplyInTheCallersOrder) {
    const Built b = build({2, 1, {1, 2}}, true, qvn8u, 1, {3, 1}, qvnRndNear, 1);
    EXPECT_EQ(filterOnce<Qvn8u>(qvniFilterBorder_8u_C1R, b, {10, 20, 30}, 3, 1, qvnBorderReplicate, nullptr),
              (std::vector<Qvn8u>{50, 80, 90}));
    const Built v = build({1, 2, {1, 2}}, false, qvn32f, 1, {1, 3}, qvnRndNear, 2);
    EXPECT_EQ(filterOnce<Qvn32f>(qvniFilterBorder_32f_C1R, v, {1, 2, 3}, 1, 3, qvnBorderMirror, nullptr),
              (std::vector<Qvn32f>{5, 8, 7}));
}

TEST(FilterBorder, BorderKindsAndSpecsAreChecked) {
    const Built b = build({3, 3, std::vector<double>(9, 1.0), 9}, true, qvn8u, 1, {4, 4}, qvnRndNear, 3);
    const std::vector<Qvn8u> src(16, 9), around(64, 9);  // a 4x4 ROI, and one inside an 8x8 image
    std::vector<Qvn8u> out(16);
    for (int border : {1, 3, 6, 240, 241, 81, 6 | 128, 3 | 240})
        EXPECT_EQ(qvniFilterBorder_8u_C1R(around.data() + 18, 8, out.data(), 4, {4, 4}, border, src.data(), b.p(),
                                          b.buffer->data()), qvnOk) << border;
    for (int border : {0, 2, 4, 5, 7, 8, 16, 32, 112, 256, 257, 262, -1})
        filterOnce<Qvn8u>(qvniFilterBorder_8u_C1R, b, src, 4, 4, border, src.data(), qvnErrBorderKind);
    // the constant kind's value is a pointer checked first; with it, every border pixel is it
    filterOnce<Qvn8u>(qvniFilterBorder_8u_C1R, b, src, 4, 4, 6 | 256, nullptr, qvnErrNullPointer);
    const Qvn8u zero = 0;
    EXPECT_EQ(filterOnce<Qvn8u>(qvniFilterBorder_8u_C1R, b, src, 4, 4, 6, &zero)[0], 4);  // 36 / 9
    // a spec for another type or channel count
    const Built f = build({3, 3, std::vector<double>(9, 1.0)}, false, qvn32f, 1, {4, 4}, qvnRndNear, 4);
    std::vector<Qvn8u> dst(48);
    EXPECT_EQ(qvniFilterBorder_8u_C1R(src.data(), 4, dst.data(), 4, {4, 4}, 1, nullptr, f.p(), b.buffer->data()),
              qvnErrBadSpec);
    EXPECT_EQ(qvniFilterBorder_8u_C3R(src.data(), 12, dst.data(), 12, {4, 1}, 1, nullptr, b.p(), b.buffer->data()),
              qvnErrBadSpec);
    // the destination step is tested against its row, the source step only for being positive
    EXPECT_EQ(qvniFilterBorder_8u_C1R(src.data(), 1, dst.data(), 3, {4, 4}, 1, nullptr, b.p(), b.buffer->data()),
              qvnErrStep);
    EXPECT_EQ(qvniFilterBorder_8u_C1R(src.data(), 4, dst.data(), 4, {4, 4}, 1, nullptr, b.p(), b.buffer->data()), qvnOk);
}

// The divisor record, the stored (reversed) kernel and the warnings.
TEST(FilterBorder, InitialisersBuildTheirRecords) {
    using qvn::sse3::filter::FilterSpec;
    const Qvn16s k[4] = {1, 2, 3, 4};
    alignas(64) unsigned char mem[4096];
    auto* spec = reinterpret_cast<QvnFilterBorderSpec*>(mem + 5);
    const auto* s = reinterpret_cast<const FilterSpec*>(mem + 64);
    struct Divisor {
        int divisor, mode, shift, addend, mask;
        float reciprocal;
    };
    for (const Divisor& d : {Divisor{1, 0, 0, 0, 0, 1.0f}, Divisor{4, 1, 2, 2, 3, 0.25f}, Divisor{3, 2, 0, 0, 0, 1.0f / 3},
                             Divisor{-4, 2, 0, 0, 0, -0.25f}}) {
        ASSERT_EQ(qvniFilterBorderInit_16s(k, {2, 2}, d.divisor, qvn8u, 1, qvnRndNear, spec), qvnOk);
        EXPECT_EQ(s->id, 0u);
        EXPECT_EQ(s->divMode, d.mode) << d.divisor;
        EXPECT_EQ(s->shift, d.shift);
        EXPECT_EQ(s->addend, d.addend);
        EXPECT_EQ(s->mask, d.mask);
        EXPECT_EQ(s->reciprocal, d.reciprocal);
        const Qvn16s* stored = static_cast<const Qvn16s*>(s->kernel);
        EXPECT_EQ(std::vector<Qvn16s>(stored, stored + 4), (std::vector<Qvn16s>{4, 3, 2, 1}));
    }
    // a kernel already where the stored kernel goes is reversed in place
    ASSERT_EQ(qvniFilterBorderInit_16s(static_cast<const Qvn16s*>(s->kernel), {2, 2}, 1, qvn8u, 1, 0, spec), qvnOk);
    EXPECT_EQ(static_cast<const Qvn16s*>(s->kernel)[0], 1);
    // the accuracy flag: honoured for 8u and 16s with one channel only
    EXPECT_EQ(qvniFilterBorderInit_16s(k, {2, 2}, 3, qvn8u, 3, qvnRndNear | 0x10000, spec), qvnOk);
    EXPECT_EQ(qvniFilterBorderInit_16s(k, {2, 2}, 3, qvn16s, 1, qvnRndNear | 0x10000, spec), qvnOk);
    EXPECT_EQ(qvniFilterBorderInit_16s(k, {2, 2}, 3, qvn16s, 3, qvnRndNear | 0x10000, spec), qvnWarnModeIgnored);
    EXPECT_EQ(s->rounding, qvnRndNear);
    EXPECT_EQ(qvniFilterBorderInit_16s(k, {2, 2}, 3, qvn16u, 1, qvnRndZero | 0x10000, spec), qvnWarnModeIgnored);
    EXPECT_EQ(s->id, 5u);
    const Qvn32f kf[4] = {1, 2, 3, 4};
    EXPECT_EQ(qvniFilterBorderInit_32f(kf, {2, 2}, qvn16s, 4, 2 | 0x10000, spec), qvnWarnModeIgnored);
    EXPECT_EQ(s->id, 4u);
    EXPECT_EQ(qvniFilterBorderInit_16s(k, {2, 2}, 0, qvn8u, 1, 3, spec), qvnErrRounding);
    EXPECT_EQ(qvniFilterBorderInit_16s(k, {2, 2}, 0, qvn8u, 1, 0, spec), qvnErrDivisor);
    EXPECT_EQ(qvniFilterBorderInit_16s(k, {2, 2}, 1, qvn32f, 1, 0, spec), qvnErrDataType);
    const Qvn64f kd[1] = {1};
    EXPECT_EQ(qvniFilterBorderInit_64f(kd, {1, 1}, qvn64f, 1, qvnRndZero, spec), qvnErrRounding);
    EXPECT_EQ(qvniFilterBorderInit_64f(kd, {1, 1}, qvn64f, 1, qvnRndNear | 0x10000, spec), qvnOk);
    EXPECT_EQ(qvniFilterBorderInit_64f(kd, {1, 1}, qvn64f, 2, qvnRndNear, spec), qvnErrChannel);
}

TEST(FilterBorder, SetModeOffsetsAndExactDivision) {
    const Kernel k{3, 3, {1, 2, 1, 2, 4, 2, 1, 2, 1}, 3};
    Built b = build(k, true, qvn8u, 1, {40, 3}, qvnRndNear, 5);
    auto* spec = reinterpret_cast<QvnFilterBorderSpec*>(b.spec->data());
    std::vector<Qvn8u> src(120);
    for (std::size_t i = 0; i < src.size(); ++i) src[i] = Qvn8u(i * 37 % 256);
    const std::vector<Qvn8u> plain = filterOnce<Qvn8u>(qvniFilterBorder_8u_C1R, b, src, 40, 3, 1, nullptr);
    ASSERT_EQ(qvniFilterBorderSetMode(qvnAlgHintAccurate, 5, spec), qvnOk);
    const std::vector<Qvn8u> raised = filterOnce<Qvn8u>(qvniFilterBorder_8u_C1R, b, src, 40, 3, 1, nullptr);
    for (int x = 0; x < 40; ++x) {
        // the exact quotient of the 3x3 sum (divisor 3), plus 5, saturated
        std::int64_t sum = 0;
        for (int j = -1; j <= 1; ++j)
            for (int i = -1; i <= 1; ++i)
                sum += std::int64_t(k.k[std::size_t((j + 1) * 3 + i + 1)]) *
                       src[std::size_t(std::clamp(1 + j, 0, 2) * 40 + std::clamp(x + i, 0, 39))];
        EXPECT_EQ(raised[std::size_t(40 + x)], ref::divided<Qvn8u>(sum, 3, qvnRndNear, true, 5)) << x;
        EXPECT_LE(raised[std::size_t(40 + x)], std::min(255, plain[std::size_t(40 + x)] + 6));
    }
    const Built f = build(k, false, qvn32f, 1, {4, 4}, qvnRndNear, 6);
    auto* fs = reinterpret_cast<QvnFilterBorderSpec*>(f.spec->data());
    EXPECT_EQ(qvniFilterBorderSetMode(0, 5, fs), qvnErrBadMode);
    EXPECT_EQ(qvniFilterBorderSetMode(0, 0, fs), qvnOk);
    unsigned char garbage[256] = {};
    EXPECT_EQ(qvniFilterBorderSetMode(0, 0, reinterpret_cast<QvnFilterBorderSpec*>(garbage)), qvnErrBadSpec);
}

// One spec, four threads, each with its own buffer: the same results as one
// call alone.
TEST(FilterBorder, ThreadsShareOneSpec) {
    const int w = 200, h = 60;
    const Kernel k = floatKernel(5, 5, 99);
    const Built b = build(k, false, qvn32f, 1, {w, h}, qvnRndNear, 7);
    std::vector<Qvn32f> src(std::size_t(w * h));
    for (std::size_t i = 0; i < src.size(); ++i) src[i] = float(i % 251) * 0.5f;
    const std::vector<Qvn32f> want = filterOnce<Qvn32f>(qvniFilterBorder_32f_C1R, b, src, w, h, qvnBorderMirror, nullptr);
    std::vector<std::vector<Qvn32f>> got(4, std::vector<Qvn32f>(std::size_t(w * h)));
    std::vector<std::vector<Qvn8u>> buffers(4, std::vector<Qvn8u>(std::size_t(b.buffer->width())));
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&, t] {
            for (int r = 0; r < 20; ++r)
                qvniFilterBorder_32f_C1R(src.data(), w * 4, got[std::size_t(t)].data(), w * 4, {w, h}, qvnBorderMirror,
                                         nullptr, b.p(), buffers[std::size_t(t)].data());
        });
    for (std::thread& t : threads) t.join();
    for (const auto& g : got) EXPECT_EQ(g, want);
}

}  // namespace
}  // namespace qvn::test

namespace qvn::test {
namespace {

// Images that would only evict the cache are written with non-temporal
// stores: the cache size is asked for from 0x80001 destination bytes on, and
// the results equal the cached stores' (every kernel kind).
TEST(FilterBorder, StreamedResultsEqualCachedOnes) {
    const int w = 1027, h = 640;  // 657,280 bytes of 8u; the rows start off the vector alignment
    std::vector<Qvn8u> src8(std::size_t(w * h));
    std::vector<Qvn32f> src32(src8.size());
    for (std::size_t i = 0; i < src8.size(); ++i) src8[i] = Qvn8u(i * 2654435761u >> 24), src32[i] = float(src8[i]);
    const auto twice = [&](auto fn, const auto& src, const Built& b) {
        using T = std::decay_t<decltype(src[0])>;
        std::vector<T> out[2];
        for (int streamed = 0; streamed < 2; ++streamed) {
            resetCacheDouble();
            cacheDouble().sizeBytes = streamed ? 1 : 1 << 30;
            out[streamed].assign(src.size(), T(0));
            EXPECT_EQ(fn(src.data() + 1, int(w * sizeof(T)), out[streamed].data() + 1, int(w * sizeof(T)), {w - 1, h},
                         qvnBorderReplicate, nullptr, b.p(), b.buffer->data()), qvnOk);
            EXPECT_GE(cacheDouble().calls, 1);
        }
        resetCacheDouble();
        EXPECT_EQ(out[0], out[1]);
    };
    twice(qvniFilterBorder_8u_C1R, src8, build(intKernel(5, 3, 16, 1), true, qvn8u, 1, {w, h}, 1, 1));
    twice(qvniFilterBorder_8u_C1R, src8, build(intKernel(5, 5, 64, 2, 1), true, qvn8u, 1, {w, h}, 1, 2));
    twice(qvniFilterBorder_32f_C1R, src32, build(floatKernel(3, 3, 3), false, qvn32f, 1, {w, h}, 1, 3));
    twice(qvniFilterBorder_32f_C1R, src32, build(floatKernel(7, 7, 4, true), false, qvn32f, 1, {w, h}, 1, 4));
}

}  // namespace
}  // namespace qvn::test
