// qvniSet whole-pixel fills against a plain model, on guarded images.
#include <gtest/gtest.h>

#include <vector>

#include "qvnip.h"
#include "support/cache_double.h"
#include "support/guarded_image.h"

namespace qvn::test {
namespace {

template <class T>
void expectFilled(const GuardedImage<T>& img, const std::vector<T>& before, const T* px, int elems, bool keepAlpha) {
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t e = 0; e < img.rowElems(); ++e) {
            const bool alpha = keepAlpha && e % elems == elems - 1;
            const T want = alpha ? before[y * img.rowElems() + e] : px[e % elems];
            ASSERT_EQ(img.at(e, y), want) << "(" << e / elems << ", " << y << ", " << e % elems << ")";
        }
    img.expectUntouchedOutsideRoi();
}

template <class T>
std::vector<T> contents(const GuardedImage<T>& img) {
    std::vector<T> v;
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t e = 0; e < img.rowElems(); ++e) v.push_back(img.at(e, y));
    return v;
}

// Runs fill(value, image) over widths around the vector length, several
// heights, gaps and the page-end placement.
template <class T, class Fill>
void sweep(int elems, bool keepAlpha, Fill fill) {
    const T px[4] = {T(11), T(-3), T(250), T(7)};
    for (int w : {1, 2, 3, 5, 7, 15, 16, 17, 31, 33, 63, 65, 257})
        for (int h : {1, 2, 9})
            for (int gap : {0, 3})
                for (bool endAtPage : {false, true}) {
                    GuardedImage<T> img({w, h, elems, gap, endAtPage, std::uint32_t(w * 31 + h)});
                    const auto before = contents(img);
                    ASSERT_EQ(fill(px, img.data(), int(img.step()), QvnRoiSize{w, h}), qvnOk);
                    SCOPED_TRACE(testing::Message() << "width " << w << " height " << h << " gap " << gap);
                    expectFilled(img, before, px, elems, keepAlpha);
                }
}

TEST(Set, EveryLayoutFillsTheRoiOnly) {
    sweep<Qvn8u>(1, false, [](const Qvn8u* v, Qvn8u* d, int s, QvnRoiSize r) { return qvniSet_8u_C1R(*v, d, s, r); });
    sweep<Qvn8u>(3, false, [](const Qvn8u* v, Qvn8u* d, int s, QvnRoiSize r) { return qvniSet_8u_C3R(v, d, s, r); });
    sweep<Qvn8u>(4, true, [](const Qvn8u* v, Qvn8u* d, int s, QvnRoiSize r) { return qvniSet_8u_AC4R(v, d, s, r); });
    sweep<Qvn16s>(3, false, [](const Qvn16s* v, Qvn16s* d, int s, QvnRoiSize r) { return qvniSet_16s_C3R(v, d, s, r); });
    sweep<Qvn16u>(4, true, [](const Qvn16u* v, Qvn16u* d, int s, QvnRoiSize r) { return qvniSet_16u_AC4R(v, d, s, r); });
    sweep<Qvn32f>(4, false, [](const Qvn32f* v, Qvn32f* d, int s, QvnRoiSize r) { return qvniSet_32f_C4R(v, d, s, r); });
    sweep<Qvn32s>(3, false, [](const Qvn32s* v, Qvn32s* d, int s, QvnRoiSize r) { return qvniSet_32s_C3R(v, d, s, r); });
    sweep<Qvn32s>(4, true, [](const Qvn32s* v, Qvn32s* d, int s, QvnRoiSize r) { return qvniSet_32s_AC4R(v, d, s, r); });
}

TEST(Set, CacheSizeIsAskedOnlyPast512KiB) {
    resetCacheDouble();
    std::vector<Qvn8u> buf(524289 + 64);
    ASSERT_EQ(qvniSet_8u_C1R(1, buf.data(), 1024, {1024, 512}), qvnOk);  // 524,288 bytes
    EXPECT_EQ(cacheDouble().calls, 0);
    ASSERT_EQ(qvniSet_8u_C1R(2, buf.data(), 524289, {524289, 1}), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 1);
    // AC4 never streams (it reads alpha back), so it never asks.
    ASSERT_EQ(qvniSet_8u_AC4R(buf.data(), buf.data(), 4 * 131073, {131073, 1}), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 1);
    resetCacheDouble();
}

TEST(Set, StreamingStoresWriteTheSameResult) {
    resetCacheDouble();
    cacheDouble().sizeBytes = 4096;  // every fill past the threshold streams
    const Qvn32f px[3] = {1.5f, -2.0f, 3.25f};
    for (bool endAtPage : {false, true}) {
        GuardedImage<Qvn32f> img({21847, 2, 3, 1, endAtPage, 5});  // 524,328 bytes
        const auto before = contents(img);
        ASSERT_EQ(qvniSet_32f_C3R(px, img.data(), int(img.step()), {21847, 2}), qvnOk);
        expectFilled(img, before, px, 3, false);
    }
    EXPECT_EQ(cacheDouble().calls, 2);
    resetCacheDouble();
}

TEST(Set, ErrorsLeaveTheImageUntouched) {
    GuardedImage<Qvn16s> img({9, 3, 3, 2, false, 9});
    const Qvn16s px[3] = {1, 2, 3};
    EXPECT_EQ(qvniSet_16s_C3R(nullptr, img.data(), int(img.step()), {9, 3}), qvnErrNullPointer);
    EXPECT_EQ(qvniSet_16s_C3R(px, img.data(), int(img.step()), {0, 3}), qvnErrSize);
    img.expectUnchanged();
    // Steps are not tested: a zero step fills the first row height times.
    EXPECT_EQ(qvniSet_16s_C3R(px, img.data(), 0, {9, 3}), qvnOk);
}

}  // namespace
}  // namespace qvn::test
