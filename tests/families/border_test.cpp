// The border copies against the border model, out of place and in place, on
// guarded images: every kind, type and layout, borders of 0, 1, the source's
// size and several times it.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "qvnip.h"
#include "ref/border_ref.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

template <class T>
using BorderFn = QvnStatus (*)(const T* s, std::int64_t ss, QvnRoiSize sr, T* d, std::int64_t ds, QvnRoiSize dr,
                               int top, int left, const T* value);
template <class T>
using BorderInPlaceFn = QvnStatus (*)(T* p, std::int64_t step, QvnRoiSize sr, QvnRoiSize dr, int top, int left,
                                      const T* value);

template <class T>
struct BorderCase {
    std::string name;
    ref::Border kind;
    int elems;
    bool alpha;
    BorderFn<T> out;
    BorderInPlaceFn<T> in;
};

struct Frame {
    int top, left, bottom, right;
};

// Borders of 0, 1, the source's size and several times it, unequal sides.
std::vector<Frame> frames(int w, int h) {
    return {{0, 0, 0, 0}, {1, 1, 1, 1}, {h, w, h, w}, {3 * h + 2, 1, 0, 3 * w + 1}, {0, 3 * w + 2, 2 * h + 1, 2}};
}

template <class T>
void sweepBorder(const BorderCase<T>& c, const std::vector<int>& widths, const std::vector<int>& heights) {
    const T value[4] = {T(7), T(100), T(33), T(5)};
    const int k = c.elems;
    std::uint32_t seed = 1;
    for (int w : widths)
        for (int h : heights)
            for (const Frame& f : frames(w, h)) {
                ++seed;
                const int dw = w + f.left + f.right, dh = h + f.top + f.bottom;
                GuardedImage<T> src({w, h, k, -1, seed % 2 == 0, seed});
                GuardedImage<T> dst({dw, dh, k, -1, seed % 2 == 1, seed * 31});
                GuardedImage<T> buf({dw, dh, k, -1, seed % 2 == 0, seed * 17});
                for (int y = 0; y < h; ++y)
                    for (int e = 0; e < w * k; ++e) buf.at(f.left * k + e, f.top + y) = src.at(e, y);
                buf.snapshot();
                const std::vector<T> dstBefore = roiContents(dst), bufBefore = roiContents(buf);
                // element e of row y of an extended destination, the source read through at(e, y)
                const auto model = [&](const std::vector<T>& old, auto at) {
                    return [&, old, at](std::int64_t e, std::int64_t y) {
                        const int ch = int(e % k);
                        if (c.alpha && ch == 3) return old[y * dw * k + e];
                        const std::int64_t sx = ref::borderIndex(c.kind, e / k - f.left, w),
                                           sy = ref::borderIndex(c.kind, y - f.top, h);
                        return sx < 0 || sy < 0 ? value[ch] : at(sx * k + ch, sy);
                    };
                };
                const std::string where = c.name + " source " + std::to_string(w) + "x" + std::to_string(h) +
                                          " borders " + std::to_string(f.top) + "," + std::to_string(f.left) + "," +
                                          std::to_string(f.bottom) + "," + std::to_string(f.right);
                ASSERT_EQ(c.out(src.data(), src.step(), {w, h}, dst.data(), dst.step(), {dw, dh}, f.top, f.left, value),
                          qvnOk) << where;
                expectRoi(dst, k, model(dstBefore, [&](std::int64_t e, std::int64_t y) { return src.at(e, y); }), where);
                dst.expectUntouchedOutsideRoi();
                src.expectUnchanged();
                ASSERT_EQ(c.in(buf.row(f.top) + f.left * k, buf.step(), {w, h}, {dw, dh}, f.top, f.left, value), qvnOk)
                    << where;
                expectRoi(buf, k, model(bufBefore, [&](std::int64_t e, std::int64_t y) {
                              return bufBefore[(y + f.top) * dw * k + f.left * k + e];
                          }), where + " in place");
                buf.expectUntouchedOutsideRoi();
                if (testing::Test::HasFailure()) return;
            }
}

// The value argument of each form: none, one element, a pointer.
#define QVN_NO_VALUE()
#define QVN_ONE_VALUE() , *v
#define QVN_VALUES() , v
// Out-of-place and in-place calls of the 32-bit (SIZE int) or _L forms.
#define QVN_BORDER_OUT(fn, T, V, SIZE, ROI)                                                                \
    +[](const T* s, std::int64_t ss, QvnRoiSize sr, T* d, std::int64_t ds, QvnRoiSize dr, int t, int l,    \
        const T* v) -> QvnStatus {                                                                         \
        (void)v;                                                                                           \
        return fn(s, SIZE(ss), ROI{sr.width, sr.height}, d, SIZE(ds), ROI{dr.width, dr.height}, SIZE(t),   \
                  SIZE(l) V());                                                                            \
    }
#define QVN_BORDER_IN(fn, T, V, SIZE, ROI)                                                                 \
    +[](T* p, std::int64_t st, QvnRoiSize sr, QvnRoiSize dr, int t, int l, const T* v) -> QvnStatus {      \
        (void)v;                                                                                           \
        return fn(p, SIZE(st), ROI{sr.width, sr.height}, ROI{dr.width, dr.height}, SIZE(t), SIZE(l) V());  \
    }
// Every source size with the 32-bit forms; one with the _L forms, which run
// the same code.
#define QVN_BORDER(kind, t, T, form, elems, alpha, V)                                                          \
    sweepBorder<T>({#kind "Border_" #t "_" #form, ref::Border::k##kind, elems, alpha,                         \
                    QVN_BORDER_OUT(qvniCopy##kind##Border_##t##_##form##R, T, V, int, QvnRoiSize),         \
                    QVN_BORDER_IN(qvniCopy##kind##Border_##t##_##form##IR, T, V, int, QvnRoiSize)},        \
                   {1, 2, 5, 37, 100}, {1, 2, 5});                                                         \
    sweepBorder<T>({#kind "Border_" #t "_" #form "_L", ref::Border::k##kind, elems, alpha,                    \
                    QVN_BORDER_OUT(qvniCopy##kind##Border_##t##_##form##R_L, T, V, QvnSizeL, QvnRoiSizeL), \
                    QVN_BORDER_IN(qvniCopy##kind##Border_##t##_##form##IR_L, T, V, QvnSizeL, QvnRoiSizeL)}, \
                   {5}, {3});

// A kind's layouts: C1, C3 and C4, and AC4 where the kind has it.
#define QVN_BORDER_3(kind, t, T, V1, VN) \
    QVN_BORDER(kind, t, T, C1, 1, false, V1) QVN_BORDER(kind, t, T, C3, 3, false, VN) QVN_BORDER(kind, t, T, C4, 4, false, VN)
#define QVN_BORDER_4(kind, t, T, V1, VN) QVN_BORDER_3(kind, t, T, V1, VN) QVN_BORDER(kind, t, T, AC4, 4, true, VN)

TEST(CopyBorder, ConstAndReplicate) {
#define X(t, T) \
    QVN_BORDER_4(Const, t, T, QVN_ONE_VALUE, QVN_VALUES) QVN_BORDER_4(Replicate, t, T, QVN_NO_VALUE, QVN_NO_VALUE)
    QVN_EACH_TYPE(X)
#undef X
}

TEST(CopyBorder, MirrorAndWrap) {
#define X(t, T) QVN_BORDER_3(Mirror, t, T, QVN_NO_VALUE, QVN_NO_VALUE)
    QVN_EACH_TYPE(X)
#undef X
    QVN_BORDER(Wrap, 32f, Qvn32f, C1, 1, false, QVN_NO_VALUE)
    QVN_BORDER(Wrap, 32s, Qvn32s, C1, 1, false, QVN_NO_VALUE)
}

TEST(CopyBorder, NegativeWidthsAndSmallDestinationsAreSizeErrors) {
    GuardedImage<Qvn8u> src({5, 4, 1, -1, false, 1}), dst({9, 8, 1, -1, true, 2});
    const int ss = int(src.step()), ds = int(dst.step());
    const Qvn8u v3[3] = {1, 2, 3};
    EXPECT_EQ(qvniCopyReplicateBorder_8u_C1R(src.data(), ss, {5, 4}, dst.data(), ds, {9, 8}, 0, -1), qvnErrSize);
    EXPECT_EQ(qvniCopyMirrorBorder_8u_C1R(src.data(), ss, {5, 4}, dst.data(), ds, {9, 8}, -1, 0), qvnErrSize);
    EXPECT_EQ(qvniCopyConstBorder_8u_C1R(src.data(), ss, {5, 4}, dst.data(), ds, {9, 8}, 0, 5, 0), qvnErrSize);
    EXPECT_EQ(qvniCopyConstBorder_8u_C3R(src.data(), ss, {1, 4}, dst.data(), ds, {3, 8}, 5, 0, v3), qvnErrSize);
    EXPECT_EQ(qvniCopyConstBorder_8u_C3R(src.data(), ss, {1, 4}, dst.data(), ds, {3, 8}, 0, 0, nullptr),
              qvnErrNullPointer);
    EXPECT_EQ(qvniCopyWrapBorder_32s_C1IR(reinterpret_cast<Qvn32s*>(dst.data()), ds, {1, 1}, {2, 2}, 2, 0),
              qvnErrSize);
    // the source's own size with no borders is valid: a plain copy
    EXPECT_EQ(qvniCopyMirrorBorder_8u_C1R(src.data(), ss, {5, 4}, dst.data(), ds, {5, 4}, 0, 0), qvnOk);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_EQ(dst.at(x, y), src.at(x, y));
    dst.snapshot();
    EXPECT_EQ(qvniCopyReplicateBorder_8u_C1R(src.data(), ss, {5, 4}, dst.data(), ds, {9, 8}, 4, 5), qvnErrSize);
    dst.expectUnchanged();
}

// An out-of-place mirror or wrap call with pSrc equal to pDst extends the
// source where it lies: the source rows, srcStep apart, move to dstStep
// first. The result is the in-place form's at dstStep.
TEST(CopyBorder, EqualPointersExtendInPlace) {
    const int w = 6, h = 3, top = 2, left = 3, dw = 14, dh = 7, step = 20;
    std::vector<Qvn32f> want(step * (dh + 1)), got(step * (dh + 1));
    for (std::size_t i = 0; i < want.size(); ++i) want[i] = got[i] = float(i % 97) - 40.5f;
    Qvn32f* const pw = want.data() + top * step + left;
    Qvn32f* const pg = got.data() + top * step + left;
    ASSERT_EQ(qvniCopyMirrorBorder_32f_C1IR(pw, step * 4, {w, h}, {dw, dh}, top, left), qvnOk);
    // the same source at a narrower step in the same buffer
    for (int y = 1; y < h; ++y)
        for (int x = 0; x < w; ++x) pg[y * 8 + x] = pg[y * step + x];
    ASSERT_EQ(qvniCopyMirrorBorder_32f_C1R(pg, 8 * 4, {w, h}, pg, step * 4, {dw, dh}, top, left), qvnOk);
    for (int y = 0; y < dh; ++y)
        for (int x = 0; x < dw; ++x) EXPECT_EQ(got[y * step + x], want[y * step + x]) << x << "," << y;

    std::vector<Qvn32s> a(step * dh), b(step * dh);
    for (std::size_t i = 0; i < a.size(); ++i) a[i] = b[i] = Qvn32s(i * 2654435761u);
    ASSERT_EQ(qvniCopyWrapBorder_32s_C1IR(a.data() + step + 1, step * 4, {w, h}, {dw, dh}, 1, 1), qvnOk);
    ASSERT_EQ(qvniCopyWrapBorder_32s_C1R(b.data() + step + 1, step * 4, {w, h}, b.data() + step + 1, step * 4,
                                         {dw, dh}, 1, 1), qvnOk);
    EXPECT_EQ(a, b);
}

}  // namespace
}  // namespace qvn::test
