// qvniConv against the convolution sum (full and valid shapes, either operand
// the larger, every channel count and divisor path) and the older
// qvniFilter_64f_C1R against its convolution around the anchor, every
// neighbour read from memory.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <random>
#include <string>

#include "qvnip.h"
#include "ref/filter_ref.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

template <class T>
using ConvFn = QvnStatus (*)(const T*, int, QvnRoiSize, const T*, int, QvnRoiSize, T*, int, int divisor, int alg,
                             Qvn8u*);

template <class T>
void fill(GuardedImage<T>& img, std::uint32_t seed) {
    std::mt19937 rng(seed);
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t e = 0; e < img.rowElems(); ++e)
            img.at(e, y) = std::is_floating_point_v<T> ? T(int(rng() % 2001) - 1000) / T(16)
                           : std::is_signed_v<T>       ? T(int(rng() % 2001) - 1000)
                                                       : T(rng());
    img.snapshot();
}

struct Operands {
    QvnRoiSize a, b;
};

template <class T>
void sweepConv(const char* name, ConvFn<T> fn, int dataType, int C) {
    const Operands sizes[] = {{{1, 1}, {1, 1}}, {{5, 4}, {3, 3}}, {{3, 3}, {5, 4}}, {{37, 5}, {2, 7}},
                              {{9, 2}, {70, 9}}, {{66, 3}, {4, 1}}, {{1, 6}, {6, 1}}};
    const int divisors[] = {1, 4, 3, -5};
    std::uint32_t seed = 3;
    for (const Operands& o : sizes)
        for (int shape = 0; shape < 2; ++shape, ++seed) {
            const int alg = shape << 16 | int(seed % 3), divisor = divisors[seed % 4];
            const int ow = shape ? std::abs(o.a.width - o.b.width) + 1 : o.a.width + o.b.width - 1;
            const int oh = shape ? std::abs(o.a.height - o.b.height) + 1 : o.a.height + o.b.height - 1;
            const int ox = shape ? std::min(o.a.width, o.b.width) - 1 : 0, oy = shape ? std::min(o.a.height, o.b.height) - 1 : 0;
            int bytes = 0;
            ASSERT_EQ(qvniConvGetBufferSize(o.a, o.b, dataType, C, alg, &bytes), qvnOk);
            GuardedImage<T> a(placed(o.a.width, o.a.height, C, -1, seed, 0)), b(placed(o.b.width, o.b.height, C, -1, seed, 1));
            GuardedImage<T> dst(placed(ow, oh, C, -1, seed, 2));
            GuardedImage<Qvn8u> buffer({bytes, 1, 1, 0, true, seed});
            fill(a, seed), fill(b, seed + 1);
            const QvnStatus s = callUnderTest({&a, &b}, {&dst}, [&] {
                return fn(a.data(), int(a.step()), o.a, b.data(), int(b.step()), o.b, dst.data(), int(dst.step()),
                          divisor, alg, buffer.data());
            }, FE_UPWARD, true, std::is_floating_point_v<T> ? 4 : 0);
            ASSERT_EQ(s, qvnOk) << name;
            buffer.expectUntouchedOutsideRoi();
            const std::string where = std::string(name) + " " + std::to_string(o.a.width) + "x" +
                                      std::to_string(o.a.height) + " * " + std::to_string(o.b.width) + "x" +
                                      std::to_string(o.b.height) + " alg " + std::to_string(alg);
            for (int y = 0; y < oh; ++y)
                for (int e = 0; e < ow * C; ++e) {
                    const int x = e / C + ox, ch = e % C, yy = y + oy;
                    double sum = 0, mag = 0;
                    for (int v = 0; v < o.a.height; ++v)
                        for (int u = 0; u < o.a.width; ++u) {
                            const int bx = x - u, by = yy - v;
                            if (bx < 0 || by < 0 || bx >= o.b.width || by >= o.b.height) continue;
                            const double p = double(a.at(u * C + ch, v)) * double(b.at(bx * C + ch, by));
                            sum += p, mag += std::fabs(p);
                        }
                    const T got = dst.at(e, y);
                    const bool ok = std::is_floating_point_v<T>
                                        ? std::fabs(double(got) - sum) <= mag * 1e-5 + 1e-30
                                        : got == ref::saturated<T>(ref::divideRounded(std::int64_t(sum), divisor, 1));
                    if (!ok) {
                        ADD_FAILURE() << where << " divisor " << divisor << " at (" << e / C << ", " << y << ", " << ch
                                      << ") got " << printable(got) << " want " << sum;
                        return;
                    }
                }
        }
}

TEST(Conv, FullAndValidShapesOfEveryTypeAndLayout) {
    sweepConv<Qvn8u>("Conv_8u_C1R", qvniConv_8u_C1R, qvn8u, 1);
    sweepConv<Qvn8u>("Conv_8u_C3R", qvniConv_8u_C3R, qvn8u, 3);
    sweepConv<Qvn16s>("Conv_16s_C1R", qvniConv_16s_C1R, qvn16s, 1);
    sweepConv<Qvn16s>("Conv_16s_C4R", qvniConv_16s_C4R, qvn16s, 4);
    const auto f1 = +[](const Qvn32f* a, int as, QvnRoiSize ar, const Qvn32f* b, int bs, QvnRoiSize br, Qvn32f* d,
                        int ds, int, int alg, Qvn8u* buf) { return qvniConv_32f_C1R(a, as, ar, b, bs, br, d, ds, alg, buf); };
    const auto f3 = +[](const Qvn32f* a, int as, QvnRoiSize ar, const Qvn32f* b, int bs, QvnRoiSize br, Qvn32f* d,
                        int ds, int, int alg, Qvn8u* buf) { return qvniConv_32f_C3R(a, as, ar, b, bs, br, d, ds, alg, buf); };
    sweepConv<Qvn32f>("Conv_32f_C1R", f1, qvn32f, 1);
    sweepConv<Qvn32f>("Conv_32f_C3R", f3, qvn32f, 3);
}

TEST(Conv, ArgumentsAreCheckedInOrder) {
    int bytes = 0;
    EXPECT_EQ(qvniConvGetBufferSize({3, 3}, {3, 3}, qvn8u, 1, 3, nullptr), qvnErrNullPointer);
    EXPECT_EQ(qvniConvGetBufferSize({3, 3}, {3, 0}, qvn8u, 1, 3, &bytes), qvnErrSize);
    EXPECT_EQ(qvniConvGetBufferSize({3, 3}, {3, 3}, qvn8u, 2, 3, &bytes), qvnErrAlgorithm);
    EXPECT_EQ(qvniConvGetBufferSize({3, 3}, {3, 3}, qvn8u, 2, 2 | 2 << 16, &bytes), qvnErrChannelCount);
    EXPECT_EQ(qvniConvGetBufferSize({3, 3}, {3, 3}, qvn8u, 3, 2 | 2 << 16, &bytes), qvnErrAlgorithm);
    EXPECT_EQ(qvniConvGetBufferSize({3, 3}, {3, 3}, qvn16u, 3, 1 << 16, &bytes), qvnErrDataType);
    ASSERT_EQ(qvniConvGetBufferSize({3, 3}, {3, 3}, qvn8u, 1, 0, &bytes), qvnOk);
    std::vector<Qvn8u> img(9, 1), dst(25), buf(static_cast<std::size_t>(bytes));
    EXPECT_EQ(qvniConv_8u_C1R(img.data(), 3, {3, 3}, img.data(), 3, {3, 3}, dst.data(), 4, 1, 0, buf.data()), qvnErrStep);
    EXPECT_EQ(qvniConv_8u_C1R(img.data(), 3, {3, 3}, img.data(), 3, {3, 3}, dst.data(), 5, 0, 0, buf.data()), qvnErrDivisor);
    EXPECT_EQ(qvniConv_8u_C1R(img.data(), 3, {3, 3}, img.data(), 3, {3, 3}, dst.data(), 5, 1, 3, buf.data()),
              qvnErrAlgorithm);
    EXPECT_EQ(qvniConv_8u_C1R(img.data(), 3, {3, 3}, img.data(), 3, {3, 3}, dst.data(), 5, 1, 0, buf.data()), qvnOk);
    EXPECT_EQ(dst[12], 9);
}

// The older filter: a convolution around the caller's anchor, inside the
// kernel or not, every neighbour from the memory around the ROI.
TEST(Filter64f, ConvolvesAroundTheAnchorFromMemory) {
    struct Case {
        QvnRoiSize roi, kernel;
        QvnPoint anchor;
    };
    std::uint32_t seed = 5;
    for (const Case& c : {Case{{1, 1}, {1, 1}, {0, 0}}, Case{{9, 4}, {3, 3}, {1, 1}}, Case{{17, 3}, {4, 2}, {0, 1}},
                          Case{{6, 5}, {2, 5}, {1, 4}}, Case{{11, 2}, {3, 1}, {-1, 0}}}) {
        const int m = 6;  // room around the ROI for every neighbour
        GuardedImage<Qvn64f> src(placed(c.roi.width + 2 * m, c.roi.height + 2 * m, 1, -1, ++seed, 0));
        GuardedImage<Qvn64f> dst(placed(c.roi.width, c.roi.height, 1, -1, seed, 1));
        fill(src, seed);
        std::vector<Qvn64f> k(std::size_t(c.kernel.width * c.kernel.height));
        for (std::size_t i = 0; i < k.size(); ++i) k[i] = double(int(i * 7 % 11) - 4) / 3;
        const Qvn64f* roi = src.row(m) + m;
        const QvnStatus s = callUnderTest({&src}, {&dst}, [&] {
            return qvniFilter_64f_C1R(roi, int(src.step()), dst.data(), int(dst.step()), c.roi, k.data(), c.kernel, c.anchor);
        }, FE_UPWARD, true, 8);
        ASSERT_EQ(s, qvnOk);
        for (int y = 0; y < c.roi.height; ++y)
            for (int x = 0; x < c.roi.width; ++x) {
                double sum = 0, mag = 0;
                for (int j = 0; j < c.kernel.height; ++j)
                    for (int i = 0; i < c.kernel.width; ++i) {
                        const double p = k[std::size_t(j * c.kernel.width + i)] *
                                         src.at(m + x + c.anchor.x - i, m + y + c.anchor.y - j);
                        sum += p, mag += std::fabs(p);
                    }
                EXPECT_NEAR(dst.at(x, y), sum, mag * 1e-14) << x << "," << y;
            }
    }
    int bytes = -1;
    EXPECT_EQ(qvniFilterGetBufSize_64f_C1R({3, 3}, 10, &bytes), qvnOk);
    EXPECT_EQ(bytes, 0);
    EXPECT_EQ(qvniFilterGetBufSize_64f_C1R({3, 3}, 0, &bytes), qvnErrSize);
    std::vector<Qvn64f> img(16);
    EXPECT_EQ(qvniFilter_64f_C1R(img.data(), 31, img.data(), 32, {4, 4}, img.data(), {1, 1}, {0, 0}), qvnErrStep);
}

}  // namespace
}  // namespace qvn::test
