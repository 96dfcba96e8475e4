// The border kinds of the bordered families and the driver that runs a
// window kernel over a ROI whose neighbours beyond the edges are synthesised
// or read from memory. The general filter, the box and rank filters use it:
// such a filter is its window kernel plus a few lines.
//
// Interface (namespace filter, in the target's namespace):
//
//   acceptGeneral(border)   qvnOk, or qvnErrBorderKind: the test of the general
//                           and box filters, in this order: 256 or more fails,
//                           240 passes, low four bits 6 pass, (border & 13) == 1
//                           passes (low bits 1 and 3), anything else fails
//   acceptMedian(border)    the same without mirror: 240, or low bits 1 or 6
//   isConstant(border)      low four bits 6: the border value is read
//
//   Reach r = reachOf(kw, kh);      the fixed anchor ((kw - 1) / 2, (kh - 1) / 2):
//                                   left ax, top ay, right kw - 1 - ax, bottom kh - 1 - ay
//   stripBytes(kw, kh, W, H, elemBytes, channels)
//       the work-buffer bytes the driver may use: the strip size of the size
//       queries (the whole bordered image when the kernel is not smaller than
//       the ROI in both directions, otherwise the larger of a horizontal and a
//       vertical strip), elements x element size x channels, rounded up to
//       32, plus 32. The driver's area starts at the buffer's first 64-byte
//       boundary, so a size query adds 63.
//
//   runBordered<T, L>(src, srcStep, dst, dstStep, roi, border, value, reach, buffer, kernel)
//       writes the ROI of dst (roi.width x roi.height pixels of layout L) with
//       kernel, for an accepted border (value: one element per channel, read
//       for the constant kind only). The kernel is called as
//
//           kernel(window, windowStep, out, outStep, widthElements, height)
//
//       on pieces of the output: it writes height rows of widthElements
//       elements at out from window, which addresses the top-left neighbour
//       (reach.left pixels left and reach.top rows above) of the piece's first
//       pixel, with widthElements + (kw - 1) x channels elements of
//       height + kh - 1 rows readable; kernel.blockElems() is the narrowest
//       piece it runs in vectors. Pieces may overlap: the kernel must compute
//       each output the same way from the same neighbours.
//
// Sides: a side needs no synthesis when its in-memory flag is set (the
// caller guarantees the memory there, at the source's step) or when the
// kernel does not reach it. With nothing to synthesise the kernel runs on
// the source once. Otherwise, when the kernel is smaller than the ROI in both
// directions, the output is made of up to five pieces: the top rows and the
// bottom rows that reach a synthesised side from horizontal strips, the
// left and right columns of the rows between them from vertical strips (as
// wide as a vector block when the buffer allows, in chunks of rows that fit
// it), and the interior straight from the source. Otherwise the whole ROI
// with its borders is copied to the buffer once and the kernel runs on the
// copy. Strips and copies are made by the border fill (move/border-fill-inl.h),
// which reads in-memory sides where they are.
#ifndef QVN_FILTER_BORDERED_INL_H
#define QVN_FILTER_BORDERED_INL_H

#include <algorithm>
#include <cstdint>

#include "core/image.h"
#include "core/spec-inl.h"
#include "move/border-fill-inl.h"

QVN_TARGET_BEGIN
namespace filter {

inline QvnStatus acceptGeneral(int border) {
    const unsigned b = unsigned(border);
    if (b >= 256) return qvnErrBorderKind;
    if (b == 240 || (b & 0xF) == 6 || (b & 13) == 1) return qvnOk;
    return qvnErrBorderKind;
}

inline QvnStatus acceptMedian(int border) {
    const unsigned b = unsigned(border);
    if (b >= 256) return qvnErrBorderKind;
    return b == 240 || (b & 0xF) == 1 || (b & 0xF) == 6 ? qvnOk : qvnErrBorderKind;
}

inline bool isConstant(int border) { return (unsigned(border) & 0xF) == 6; }

struct Reach {
    std::int64_t left, top, right, bottom;
    std::int64_t width() const { return left + right + 1; }
    std::int64_t height() const { return top + bottom + 1; }
};

inline Reach reachOf(std::int64_t kw, std::int64_t kh) {
    const std::int64_t ax = (kw - 1) / 2, ay = (kh - 1) / 2;
    return {ax, ay, kw - 1 - ax, kh - 1 - ay};
}

// Elements of one channel: the strip-size formula before the element size.
inline std::int64_t stripPixels(std::int64_t kw, std::int64_t kh, std::int64_t w, std::int64_t h) {
    if (kw >= w || kh >= h) return (kh + h - 1) * (kw + w - 1);
    const Reach r = reachOf(kw, kh);
    // the depths of the size formula: a dimension of 2 counts its far side twice
    const std::int64_t b = kh == 2 ? kh - r.top : kh - r.top - 1, rr = kw == 2 ? kw - r.left : kw - r.left - 1;
    const std::int64_t horizontal = b == 0 ? 0 : (kh - 1 + b) * (kw + w - 1);
    const std::int64_t vertical = rr == 0 ? 0 : (kw - 1 + rr) * (kh - 1 + h);
    return std::max(horizontal, vertical);
}

inline std::int64_t stripBytes(std::int64_t kw, std::int64_t kh, std::int64_t w, std::int64_t h,
                               std::int64_t elemBytes, std::int64_t channels) {
    return (stripPixels(kw, kh, w, h) * elemBytes * channels + 31) / 32 * 32 + 32;
}

template <class T, class L, class Kernel>
inline void runBordered(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi, int border,
                        const T* value, Reach k, void* buffer, const Kernel& kernel) {
    constexpr std::int64_t C = L::kElems;
    const std::int64_t W = roi.width, H = roi.height, kw = k.width(), kh = k.height();
    const unsigned inMem = unsigned(border) & 0xF0;
    const std::int64_t left = (inMem & border::kInMemLeft) ? 0 : k.left;
    const std::int64_t right = (inMem & border::kInMemRight) ? 0 : k.right;
    const std::int64_t top = (inMem & border::kInMemTop) ? 0 : k.top;
    const std::int64_t bottom = (inMem & border::kInMemBottom) ? 0 : k.bottom;
    const auto window = [&](std::int64_t x, std::int64_t y) {  // the neighbours of output pixel (x, y)
        return byteOffset(src, (y - k.top) * srcStep) + (x - k.left) * C;
    };
    const auto out = [&](std::int64_t x, std::int64_t y) { return byteOffset(dst, y * dstStep) + x * C; };
    if (left == 0 && right == 0 && top == 0 && bottom == 0) {
        kernel(window(0, 0), srcStep, dst, dstStep, W * C, H);
        return;
    }

    const border::Source<T> s{src, srcStep, W, H, border::kindOf(border), inMem, value};
    T* const area = spec::alignUp64(static_cast<T*>(buffer));
    const std::int64_t capacity = stripPixels(kw, kh, W, H) * C;  // elements of T
    // Output pixels [x0, x0 + w) x [y0, y0 + h) from strips of the extended
    // source, in chunks of rows that fit the buffer.
    const auto piece = [&](std::int64_t x0, std::int64_t y0, std::int64_t w, std::int64_t h) {
        const std::int64_t sw = w + kw - 1, stripStep = sw * C * std::int64_t(sizeof(T));
        const std::int64_t chunk = std::min(h, capacity / (sw * C) - (kh - 1));
        for (std::int64_t y = y0; y < y0 + h; y += chunk) {
            const std::int64_t hc = std::min(chunk, y0 + h - y);
            border::fillWindow<T, L>(s, x0 - k.left, y - k.top, sw, hc + kh - 1, area, stripStep);
            kernel(area, stripStep, out(x0, y), dstStep, w * C, hc);
        }
    };
    if (kw >= W || kh >= H) {
        piece(0, 0, W, H);
        return;
    }
    if (top > 0) piece(0, 0, W, top);
    if (bottom > 0) piece(0, H - bottom, W, bottom);
    const std::int64_t y0 = top, h = H - top - bottom;
    // side pieces as wide as a vector block where the buffer holds it: the
    // columns they add are also the interior's, computed alike
    const std::int64_t block = (kernel.blockElems() + C - 1) / C;
    const std::int64_t widest = capacity / (C * kh) - (kw - 1);
    if (left > 0) piece(0, y0, std::max(left, std::min({W, block, widest})), h);
    if (right > 0) {
        const std::int64_t w = std::max(right, std::min({W, block, widest}));
        piece(W - w, y0, w, h);
    }
    kernel(window(left, y0), srcStep, out(left, y0), dstStep, (W - left - right) * C, h);
}

}  // namespace filter
QVN_TARGET_END

#endif
