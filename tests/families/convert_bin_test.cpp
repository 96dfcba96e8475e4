// qvniBinToGray and qvniGrayToBin against a bit-by-bit model.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "families/convert_sweep.h"

namespace qvn::test {
namespace {

// Pixel x of a 1-bit row whose first pixel is bit offset (from the most
// significant bit) of byte 0.
bool bitAt(const Qvn8u* row, int offset, int x) { return (row[(offset + x) / 8] >> (7 - (offset + x) % 8)) & 1; }

template <class D, class Fn>
void binToGray(Fn fn, D lo, D hi) {
    for (int offset = 0; offset < 8; ++offset)
        for (int w : {1, 2, 7, 8, 9, 16, 23, 70})
            for (int h : {1, 3}) {
                const int bytes = (offset + w + 7) / 8;
                GuardedImage<Qvn8u> src({bytes, h, 1, -1, false, std::uint32_t(w * 8 + offset)});
                GuardedImage<D> dst({w, h, 1, -1, w % 2 == 1, std::uint32_t(w + h)});
                ASSERT_EQ(fn(src.data(), int(src.step()), offset, dst.data(), int(dst.step()), QvnRoiSize{w, h}, lo, hi),
                          qvnOk);
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x)
                        ASSERT_EQ(dst.at(x, y), bitAt(src.row(y), offset, x) ? hi : lo)
                            << "offset " << offset << " (" << x << ", " << y << ")";
                src.expectUnchanged();
                dst.expectUntouchedOutsideRoi();
            }
}

// Destination bytes are checked whole: ROI bits from the threshold rule, the
// bits before the offset and after the last pixel as they were.
template <class S, class Fn>
void grayToBin(Fn fn, S threshold) {
    std::mt19937 rng(5);
    for (int offset = 0; offset < 8; ++offset)
        for (int w : {1, 2, 7, 8, 9, 16, 23, 70})
            for (int h : {1, 3}) {
                const int bytes = (offset + w + 7) / 8;
                GuardedImage<S> src({w, h, 1, -1, false, std::uint32_t(w * 8 + offset)});
                fillSource(src, rng());
                for (int x = 0; x < w; x += 5) src.at(x, 0) = threshold;  // equal is not greater
                src.snapshot();
                GuardedImage<Qvn8u> dst({bytes, h, 1, -1, w % 2 == 0, std::uint32_t(w + h)});
                std::vector<Qvn8u> before;
                for (int y = 0; y < h; ++y)
                    for (int b = 0; b < bytes; ++b) before.push_back(dst.at(b, y));
                ASSERT_EQ(fn(src.data(), int(src.step()), dst.data(), int(dst.step()), offset, QvnRoiSize{w, h},
                             threshold),
                          qvnOk);
                for (int y = 0; y < h; ++y)
                    for (int i = 0; i < bytes * 8; ++i) {
                        const int x = i - offset;
                        const bool inRoi = x >= 0 && x < w;
                        const bool was = (before[y * bytes + i / 8] >> (7 - i % 8)) & 1;
                        const bool want = inRoi ? src.at(x, y) > threshold : was;
                        ASSERT_EQ(bitAt(dst.row(y), 0, i), want) << "offset " << offset << " bit " << i << " row " << y;
                    }
                src.expectUnchanged();
                dst.expectUntouchedOutsideRoi();
            }
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
