// The border fill that every bordered operation shares, on its own: windows
// that cover a whole extended image, strips of a few rows or columns, windows
// wholly outside the image, with sides read from memory, for every kind,
// against the border model.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "move/border-fill-inl.h"
#include "ref/border_ref.h"
#include "support/sweep.h"

namespace qvn::QVN_TARGET {
namespace {

using test::GuardedImage;

struct Window {
    int x0, y0, w, h;
};

// The image (w x h) lies kMargin pixels inside a larger one, whose margin is
// the memory that in-memory sides read.
constexpr int kMargin = 4;

template <class T, class L>
void sweepWindows(int w, int h) {
    constexpr int K = L::kElems;
    const T value[4] = {T(9), T(8), T(7), T(6)};
    const struct {
        border::Kind kind;
        ref::Border model;
    } kinds[] = {{border::Kind::kReplicate, ref::Border::kReplicate}, {border::Kind::kMirror, ref::Border::kMirror},
                 {border::Kind::kMirrorEdge, ref::Border::kMirrorEdge}, {border::Kind::kConstant, ref::Border::kConst},
                 {border::Kind::kWrap, ref::Border::kWrap}};
    const unsigned memories[] = {0, border::kInMemTop | border::kInMemLeft, border::kInMemRight,
                                 border::kInMemTop | border::kInMemBottom | border::kInMemLeft | border::kInMemRight};
    // whole with borders; a strip of rows above; one row; a band of columns
    // on the right; wholly left of the image; inside it
    const Window windows[] = {{-3, -2, w + 7, h + 4}, {-2, -3, w + 4, 3}, {-1, h / 2, w + 3, 1},
                              {w - 1, -1, 4, h + 2}, {-4, 0, 3, h}, {0, 0, w, h}};
    std::uint32_t seed = 7;
    GuardedImage<T> mem({w + 2 * kMargin, h + 2 * kMargin, K, -1, true, seed});
    const T* p = mem.row(kMargin) + kMargin * K;
    for (const auto& k : kinds)
        for (unsigned inMem : memories)
            for (const Window& win : windows) {
                GuardedImage<T> out({win.w, win.h, K, -1, ++seed % 2 == 0, seed});
                const std::vector<T> before = test::roiContents(out);
                border::fillWindow<T, L>({p, mem.step(), w, h, k.kind, inMem, value}, win.x0, win.y0, win.w, win.h,
                                         out.data(), out.step());
                const auto axis = [&](std::int64_t i, std::int64_t n, unsigned lo, unsigned hi) {
                    return (i < 0 && (inMem & lo)) || (i >= n && (inMem & hi)) ? i : ref::borderIndex(k.model, i, n);
                };
                test::expectRoi(out, K, [&](std::int64_t e, std::int64_t y) {
                    const int c = int(e % K);
                    if (L::kAlpha && c == 3) return before[y * win.w * K + e];
                    const std::int64_t sx = axis(win.x0 + e / K, w, border::kInMemLeft, border::kInMemRight);
                    const std::int64_t sy = axis(win.y0 + y, h, border::kInMemTop, border::kInMemBottom);
                    const bool constant = (sx < 0 && !(win.x0 + e / K < 0 && (inMem & border::kInMemLeft))) ||
                                          (sy < 0 && !(win.y0 + y < 0 && (inMem & border::kInMemTop)));
                    return constant ? value[c] : mem.at((kMargin + sx) * K + c, kMargin + sy);
                }, "fillWindow kind " + std::to_string(int(k.kind)) + " memory " + std::to_string(inMem) + " window " +
                       std::to_string(win.x0) + "," + std::to_string(win.y0));
                out.expectUntouchedOutsideRoi();
                if (testing::Test::HasFailure()) return;
            }
    mem.expectUnchanged();
}

TEST(BorderFill, WindowsStripsAndInMemorySides) {
    for (int w : {1, 2, 3, 9, 70})
        for (int h : {1, 2, 5}) {
            sweepWindows<Qvn8u, C1>(w, h);
            sweepWindows<Qvn16u, AC4>(w, h);
            sweepWindows<Qvn32f, C3>(w, h);
            sweepWindows<Qvn64f, C1>(w, h);  // 8-byte elements: 8-, 24- and 32-byte pixels
            sweepWindows<Qvn64f, C3>(w, h);
            sweepWindows<Qvn64f, C4>(w, h);
        }
}

}  // namespace
}  // namespace qvn::QVN_TARGET
