// qvniBinToGray and qvniGrayToBin against a bit-by-bit model.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "support/sweep.h"

namespace qvn::test {
namespace {

// Pixel x of a 1-bit row whose first pixel is bit offset (from the most
// significant bit) of byte 0.
bool bitAt(const Qvn8u* row, int offset, int x) { return (row[(offset + x) / 8] >> (7 - (offset + x) % 8)) & 1; }

const std::vector<int> kWidths = {1, 2, 7, 8, 9, 16, 23, 70};

template <class D, class Fn>
void binToGray(Fn fn, D lo, D hi) {
    for (int offset = 0; offset < 8; ++offset)
        forEachShape(kWidths, {1, 3}, [&](int w, int h, int gap, bool, std::uint32_t seed) {
            GuardedImage<Qvn8u> src(placed((offset + w + 7) / 8, h, 1, gap, seed * 8 + offset, 0));
            GuardedImage<D> dst(placed(w, h, 1, gap, seed * 8 + offset, 1));
            ASSERT_EQ(callUnderTest({&src}, {&dst}, [&] {
                return fn(src.data(), int(src.step()), offset, dst.data(), int(dst.step()), QvnRoiSize{w, h}, lo, hi);
            }), qvnOk);
            expectRoi(dst, 1, [&](std::int64_t x, std::int64_t y) { return bitAt(src.row(y), offset, int(x)) ? hi : lo; },
                      "offset " + std::to_string(offset));
        });
}

// Destination bytes are checked whole: ROI bits from the threshold rule, the
// bits before the offset and after the last pixel as they were.
template <class S, class Fn>
void grayToBin(Fn fn, S threshold) {
    for (int offset = 0; offset < 8; ++offset)
        forEachShape(kWidths, {1, 3}, [&](int w, int h, int gap, bool, std::uint32_t seed) {
            const int bytes = (offset + w + 7) / 8;
            GuardedImage<S> src(placed(w, h, 1, gap, seed * 8 + offset, 0));
            fillSource(src, seed);
            for (int x = 0; x < w; x += 5) src.at(x, 0) = threshold;  // equal is not greater
            src.snapshot();
            GuardedImage<Qvn8u> dst(placed(bytes, h, 1, gap, seed * 8 + offset, 1));
            ASSERT_EQ(callUnderTest({&src}, {&dst}, [&] {
                return fn(src.data(), int(src.step()), dst.data(), int(dst.step()), offset, QvnRoiSize{w, h}, threshold);
            }), qvnOk);
            expectRoi(dst, 1, [&](std::int64_t b, std::int64_t y) {
                int want = dst.saved(b, y);
                for (int i = 0; i < 8; ++i) {
                    const std::int64_t x = b * 8 + i - offset;
                    const int bit = 0x80 >> i;
                    if (x >= 0 && x < w) want = src.at(x, y) > threshold ? want | bit : want & ~bit;
                }
                return Qvn8u(want);
            }, "offset " + std::to_string(offset));
        });
}

TEST(BinToGray, EveryTypeAndOffset) {
    binToGray<Qvn8u>(qvniBinToGray_1u8u_C1R, 3, 250);
    binToGray<Qvn16u>(qvniBinToGray_1u16u_C1R, 65535, 1);
    binToGray<Qvn16s>(qvniBinToGray_1u16s_C1R, -7, 300);
    binToGray<Qvn32f>(qvniBinToGray_1u32f_C1R, 0.25f, -1.5f);
}

TEST(GrayToBin, EveryTypeAndOffset) {
    grayToBin<Qvn8u>(qvniGrayToBin_8u1u_C1R, 127);
    grayToBin<Qvn16u>(qvniGrayToBin_16u1u_C1R, 40000);
    grayToBin<Qvn16s>(qvniGrayToBin_16s1u_C1R, -3);
    grayToBin<Qvn32f>(qvniGrayToBin_32f1u_C1R, 0.5f);  // NaN pixels clear their bit
}

TEST(GrayToBin, OffsetOutsideAByteIsAnError) {
    GuardedImage<Qvn8u> gray({9, 2, 1, 1, false, 1});
    GuardedImage<Qvn8u> bin({3, 2, 1, 1, false, 2});
    const int gs = int(gray.step()), bs = int(bin.step());
    EXPECT_EQ(qvniGrayToBin_8u1u_C1R(gray.data(), gs, bin.data(), bs, 8, {9, 2}, 0), qvnErrArgRange);
    EXPECT_EQ(qvniGrayToBin_8u1u_C1R(gray.data(), gs, bin.data(), bs, -1, {9, 2}, 0), qvnErrArgRange);
    EXPECT_EQ(qvniGrayToBin_8u1u_C1R(gray.data(), 0, bin.data(), bs, 8, {9, 2}, 0), qvnErrStep);
    EXPECT_EQ(qvniBinToGray_1u8u_C1R(bin.data(), bs, 8, gray.data(), gs, {9, 2}, 0, 1), qvnErrArgRange);
    EXPECT_EQ(qvniBinToGray_1u8u_C1R(bin.data(), bs, 8, gray.data(), gs, {0, 2}, 0, 1), qvnErrSize);
    gray.expectUnchanged();
    bin.expectUnchanged();
}

}  // namespace
}  // namespace qvn::test
