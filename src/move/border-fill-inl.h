// The border fill: any rectangle of an image extended beyond its edges.
//
// Every operation that needs pixels outside its source builds them here: the
// border copies write a whole extended image (into another image, or around
// the source inside its own buffer), and the bordered filters, rank filters
// and resize write the strips, rows or whole bordered copies of their work
// buffers with the same call.
//
// Interface (namespace border, in the target's namespace):
//
//   Source<T> src{p, step, width, height, kind, inMemory, value};
//   fillWindow<T, L>(src, x0, y0, w, h, dst, dstStep);
//
// writes the pixels (x, y) of the extended source for x0 <= x < x0 + w and
// y0 <= y < y0 + h, in the coordinates of the source ROI ((0, 0) is its first
// pixel, so x0 = -left, y0 = -top asks for the whole image with its borders),
// to the w x h pixels at dst. T is the element type (of 1, 2, 4 or 8 bytes),
// L the layout (C1, C3, C4, or AC4, which never writes the destination's
// alpha). A pixel (x, y) is read from the source at (col(x), row(y)), each
// axis on its own:
//
//   - inside the ROI, or beyond it on a side whose kInMem* flag is set, the
//     position itself (the caller guarantees the memory there);
//   - otherwise as the kind says, always landing inside the ROI: kReplicate
//     the nearest edge pixel; kMirror reflected about the edge pixel, which is
//     not repeated (-1 reads 1); kMirrorEdge reflected with the edge pixel
//     repeated (-1 reads 0); kWrap from the opposite side; reflections and
//     wraps repeat for borders wider than the ROI, so nothing outside it is
//     read; kConstant gives the pixel `value` (K elements, three for AC4),
//     also where only the other axis is inside.
//
// Destination pixels that are the source's own memory (an image extended in
// place: dst at the window's corner inside the source's buffer, same step)
// are not copied. Source and destination must not otherwise overlap. Rows
// are written top to bottom, each from left to right; nothing is allocated
// and nothing but the window is written.
//
//   sourceIndex(kind, i, n)   the position, in 0..n-1, that position i of an
//                             axis of n pixels reads (-1 for kConstant
//                             outside); for index tables (resize, warps)
//   kindOf(qvnBorderKind)     the Kind of a validated QvnBorderKind's low bits
#ifndef QVN_MOVE_BORDER_FILL_INL_H
#define QVN_MOVE_BORDER_FILL_INL_H

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "core/image.h"
#include "kernels/copy-inl.h"
#include "kernels/fill-inl.h"
#include "kernels/reverse-inl.h"
#include "kernels/target.h"

// The short fills must melt into the row loop: a call per border and row
// costs more than the border.
#ifndef QVN_ALWAYS_INLINE
#define QVN_ALWAYS_INLINE inline __attribute__((always_inline))
#endif

QVN_TARGET_BEGIN
namespace border {

enum class Kind : int { kReplicate, kMirror, kMirrorEdge, kConstant, kWrap };

// Sides whose pixels beyond the ROI exist in memory and are read as they
// are: the flag bits of QvnBorderKind.
inline constexpr unsigned kInMemTop = 16, kInMemBottom = 32, kInMemLeft = 64, kInMemRight = 128;

// The kind of a QvnBorderKind that the caller has validated (low four bits 1,
// 3, 4 or 6).
inline Kind kindOf(int borderKind) {
    switch (borderKind & 0xF) {
        case 3: return Kind::kMirror;
        case 4: return Kind::kMirrorEdge;
        case 6: return Kind::kConstant;
        default: return Kind::kReplicate;
    }
}

// i modulo p in [0, p); borders within a period of the edge need no division.
inline std::int64_t floorMod(std::int64_t i, std::int64_t p) {
    if (i >= 0 && i < p) return i;
    if (i < 0 && i >= -p) return i + p;
    if (i >= p && i < 2 * p) return i - p;
    const std::int64_t m = i % p;
    return m < 0 ? m + p : m;
}

inline std::int64_t sourceIndex(Kind k, std::int64_t i, std::int64_t n) {
    if (i >= 0 && i < n) return i;
    switch (k) {
        case Kind::kReplicate: return i < 0 ? 0 : n - 1;
        case Kind::kMirror: {
            if (n == 1) return 0;
            const std::int64_t t = floorMod(i, 2 * (n - 1));
            return t < n ? t : 2 * (n - 1) - t;
        }
        case Kind::kMirrorEdge: {
            const std::int64_t t = floorMod(i, 2 * n);
            return t < n ? t : 2 * n - 1 - t;
        }
        case Kind::kWrap: return floorMod(i, n);
        case Kind::kConstant: break;
    }
    return -1;
}

template <class T>
struct Source {
    const T* p;                 // the first pixel of the ROI
    std::int64_t step;          // bytes from one row to the next
    std::int64_t width, height; // the ROI, in pixels
    Kind kind;
    unsigned inMemory = 0;      // kInMem* flags
    const T* value = nullptr;   // the kConstant pixel
};

namespace detail {

// Runs shorter than this many bytes go pixel by pixel: the vector rows'
// set-up would cost more than they save.
inline constexpr std::int64_t kShortRun = 64;

// The pieces a destination row is made of, on pixels of K elements of U.
template <class U, int K, bool Keep>
struct Runs {
    using R = kernels::Reversal<U, K, Keep>;
    static constexpr std::int64_t kPixelBytes = std::int64_t(R::kPixelBytes);
    static bool isShort(std::int64_t n) { return n * kPixelBytes < kShortRun; }

    // n pixels from s, in order.
    static void copy(const U* s, U* d, std::int64_t n) {
        if (s == d) return;  // the source's own memory: extension in place
        if constexpr (Keep) {
            kernels::blendRow<U, 4, 0x7>(kernels::FromRow<U>{s}, d, n * 4);
        } else {
            kernels::copyBytes<kernels::StoreRegular>(reinterpret_cast<const std::uint8_t*>(s),
                                                      reinterpret_cast<std::uint8_t*>(d), n * kPixelBytes);
        }
    }
    // n copies of the pixel px. Up to 16 bytes of pixels of 1, 2, 4, 8 or 16
    // bytes go as a few stores of a pattern (a narrow border on every row).
    QVN_ALWAYS_INLINE static void fill(const U* px, U* d, std::int64_t n) {
        if constexpr (!Keep && K != 3) {
            if (n * kPixelBytes <= 16) {
                unsigned char pattern[16];
                if constexpr (kPixelBytes <= 8) {
                    // the pixel times 0x01...01 at its width repeats it
                    std::uint64_t x = 0;
                    std::memcpy(&x, px, kPixelBytes);
                    if constexpr (kPixelBytes < 8) x *= ~std::uint64_t(0) / ((std::uint64_t(1) << (8 * kPixelBytes)) - 1);
                    std::memcpy(pattern, &x, 8);
                    std::memcpy(pattern + 8, &x, 8);
                } else {
                    std::memcpy(pattern, px, 16);
                }
                // the pattern's period divides every piece before the next
                unsigned char* o = reinterpret_cast<unsigned char*>(d);
                const std::int64_t bytes = n * kPixelBytes;
                if (bytes & 16) std::memcpy(o, pattern, 16);
                if (bytes & 8) std::memcpy(o, pattern, 8), o += 8;
                if (bytes & 4) std::memcpy(o, pattern, 4), o += 4;
                if (bytes & 2) std::memcpy(o, pattern, 2), o += 2;
                if (bytes & 1) *o = pattern[0];
                return;
            }
        }
        fillLong(px, d, n);
    }
    static void fillLong(const U* px, U* d, std::int64_t n) {
        if (isShort(n)) {
            for (std::int64_t j = 0; j < n; ++j) R::pixel(px, d + j * K);
        } else {
            kernels::fillRow<U, K, Keep, kernels::StoreRegular>(d, n, px);
        }
    }
    // The n pixels from s, last first; s lies in the row [row, row + width).
    // Up to 8 bytes of 1-, 2- or 4-byte pixels go through one 8-byte load
    // inside the row, reversed in a register, and a few stores.
    static void reverse(const U* s, U* d, std::int64_t n, const U* row, std::int64_t width) {
        if constexpr (K == 1 && kPixelBytes <= 4) {
            if (n * kPixelBytes <= 8 && width * kPixelBytes >= 8) {
                const U* at = std::min(std::max(s, row), row + width - 8 / kPixelBytes);
                std::uint64_t x;
                std::memcpy(&x, at, 8);
                if constexpr (kPixelBytes == 4) {
                    x = x >> 32 | x << 32;
                } else {
                    x = __builtin_bswap64(x);  // pixels in reverse, and bytes within each
                    if constexpr (kPixelBytes == 2)
                        x = ((x >> 8) & 0x00FF00FF00FF00FFull) | ((x & 0x00FF00FF00FF00FFull) << 8);
                }
                const std::int64_t bytes = n * kPixelBytes;
                x >>= 8 * (8 - (s - at) * kPixelBytes - bytes);  // the run's bytes to the bottom
                unsigned char* o = reinterpret_cast<unsigned char*>(d);
                if (bytes & 8) std::memcpy(o, &x, 8);
                if (bytes & 4) std::memcpy(o, &x, 4), o += 4, x >>= 32;
                if (bytes & 2) std::memcpy(o, &x, 2), o += 2, x >>= 16;
                if (bytes & 1) *o = static_cast<unsigned char>(x);
                return;
            }
        }
        if (isShort(n)) {
            for (std::int64_t j = 0; j < n; ++j) R::pixel(s + (n - 1 - j) * K, d + j * K);
        } else {
            kernels::reverseRow<U, K, Keep, kernels::StoreRegular>(s, d, n);
        }
    }

    // The pixels of positions [a, b) outside the readable columns, the same
    // for every row: one fill, one run of source pixels forwards or
    // backwards (a border within one reflection or wrap of the source), or
    // several runs.
    struct Side {
        enum Op { kNone, kValue, kPixel, kForward, kBackward, kRuns } op = kNone;
        std::int64_t col = 0, n = 0, a = 0;  // source column of the first (lowest) pixel, count, first position
    };

    // Reflections and wraps: positions t of a period in [0, forward) read t,
    // those in [forward, period) read back - t (back down).
    struct Period {
        std::int64_t period, forward, back;
        explicit Period(const Source<U>& s) {
            const std::int64_t n = s.width;
            period = s.kind == Kind::kMirror ? 2 * (n - 1) : s.kind == Kind::kMirrorEdge ? 2 * n : n;
            forward = s.kind == Kind::kMirror ? n - 1 : n;
            back = s.kind == Kind::kMirror ? period : period - 1;
        }
        // The run from position x of at most len pixels: its first source
        // column (lowest), length, and whether it goes backwards.
        Side run(std::int64_t x, std::int64_t len) const {
            const std::int64_t t = floorMod(x, period);
            if (t < forward) return {Side::kForward, t, std::min(len, forward - t), x};
            const std::int64_t m = std::min(len, period - t);
            return {Side::kBackward, back - t - m + 1, m, x};
        }
    };

    static Side plan(const Source<U>& s, std::int64_t a, std::int64_t b) {
        if (a >= b) return {};
        if (s.kind == Kind::kConstant) return {Side::kValue, 0, b - a, a};
        if (s.kind == Kind::kReplicate || (s.kind == Kind::kMirror && s.width == 1))
            return {Side::kPixel, a < 0 ? 0 : s.width - 1, b - a, a};
        const Side first = Period(s).run(a, b - a);
        return first.n == b - a ? first : Side{Side::kRuns, 0, b - a, a};
    }

    QVN_ALWAYS_INLINE static void synthesize(const Source<U>& s, const Side& side, const U* srow, U* d) {
        switch (side.op) {
            case Side::kNone: break;
            case Side::kValue: fill(s.value, d, side.n); break;
            case Side::kPixel: fill(srow + side.col * K, d, side.n); break;
            case Side::kForward: copy(srow + side.col * K, d, side.n); break;
            case Side::kBackward: reverse(srow + side.col * K, d, side.n, srow, s.width); break;
            case Side::kRuns: runs(s, side, srow, d); break;
        }
    }
    static void runs(const Source<U>& s, const Side& side, const U* srow, U* d) {
        const Period p(s);
        for (std::int64_t x = side.a; x < side.a + side.n;) {
            const Side r = p.run(x, side.a + side.n - x);
            if (r.op == Side::kForward) copy(srow + r.col * K, d, r.n);
            else reverse(srow + r.col * K, d, r.n, srow, s.width);
            d += r.n * K, x += r.n;
        }
    }

    static void window(const Source<U>& s, std::int64_t x0, std::int64_t y0, std::int64_t w, std::int64_t h, U* dst,
                       std::int64_t dstStep) {
        constexpr std::int64_t kFar = INT64_MAX / 4;
        const std::int64_t top = (s.inMemory & kInMemTop) ? -kFar : 0;
        const std::int64_t bottom = (s.inMemory & kInMemBottom) ? kFar : s.height;
        // the columns, the same on every row: [x0, a) synthesized, [a, b)
        // read, [b, x1) synthesized
        const std::int64_t x1 = x0 + w;
        const std::int64_t a = std::min(x1, std::max(x0, (s.inMemory & kInMemLeft) ? -kFar : std::int64_t(0)));
        const std::int64_t b = std::max(a, std::min(x1, (s.inMemory & kInMemRight) ? kFar : s.width));
        const Side left = plan(s, x0, a), right = plan(s, b, x1);
        for (std::int64_t i = 0; i < h; ++i) {
            const std::int64_t y = y0 + i;
            U* d = byteOffset(dst, i * dstStep);
            const bool inside = y >= top && y < bottom;  // rows in memory may lie above the ROI
            const std::int64_t r = inside ? y : sourceIndex(s.kind, y, s.height);
            if (!inside && r < 0) {
                fill(s.value, d, w);
                continue;
            }
            const U* srow = byteOffset(s.p, r * s.step);
            synthesize(s, left, srow, d);
            synthesize(s, right, srow, d + (b - x0) * K);
            if (a < b) copy(srow + a * K, d + (a - x0) * K, b - a);
        }
    }
};

}  // namespace detail

template <class T, class L>
inline void fillWindow(const Source<T>& s, std::int64_t x0, std::int64_t y0, std::int64_t w, std::int64_t h, T* dst,
                       std::int64_t dstStep) {
    using U = kernels::Bits<T>;
    static_assert(sizeof(T) == sizeof(U), "element types of 1, 2, 4 or 8 bytes");
    const Source<U> u{reinterpret_cast<const U*>(s.p), s.step, s.width, s.height,
                      s.kind, s.inMemory, reinterpret_cast<const U*>(s.value)};
    detail::Runs<U, L::kElems, L::kAlpha>::window(u, x0, y0, w, h, reinterpret_cast<U*>(dst), dstStep);
}

}  // namespace border
QVN_TARGET_END

#endif
