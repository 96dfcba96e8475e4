// qvniFilterBoxBorder and qvniSumWindow with their buffer-size query (one
// operation under two names), the row and column window sums, and the older
// qvniFilterBox_64f_C1R.
//
// The bordered members walk the ROI once, top to bottom, with one row of
// column sums over the bordered width (W + mW - 1 pixels): each output row is
// the window sums along that row (kernels/box-inl.h), finished into the
// destination; then every column sum takes the row entering below and gives
// up the row leaving above. Running sums carry their state along the whole
// row and down the image, so this family walks the rows itself instead of
// handing pieces to the bordered driver (which would restart them per piece).
//
// Neighbours beyond the ROI. When the mask is at least as large as the ROI in
// one direction and some side must be synthesised, the whole bordered ROI is
// copied into the work buffer once and every neighbour is read from the
// copy. Otherwise a bordered row is three spans: the source row the border
// kind names (or a row of the constant), and its columns left and right of
// the ROI, from memory where that side has its in-memory flag (or the mask
// does not reach it), otherwise from a strip per side that the border fill
// builds for every bordered row before the first output row.
//
// In place (source pointer equal to destination pointer): each source row is
// copied to a ring of ay + 1 rows in the work buffer before its output row
// overwrites it, and rows above the current one are read from the ring (the
// mirrored rows below the ROI reach no further back than that).
//
// Sums: integer images sum exactly in int32 while the largest possible sum
// fits in 31 bits (a mask area of at most 8421504 for 8u, 32768 for 16u,
// 65535 for 16s); beyond that, and for 32f, column sums and window sums are
// floats in the fixed order of kernels/box-inl.h, the integer differences of
// each row converted to float once.
#ifndef QVN_FILTER_BOX_INL_H
#define QVN_FILTER_BOX_INL_H

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/check-inl.h"
#include "core/fpround-inl.h"
#include "core/spec-inl.h"
#include "filter/bordered-inl.h"
#include "kernels/box-inl.h"
#include "move/border-fill-inl.h"

QVN_TARGET_BEGIN
namespace filter {

namespace boxk = kernels::box;

// ---- the work buffer ----------------------------------------------------------------------------------
// Sums beyond this are qvnErrSizeOverflow; capped arithmetic keeps the
// formula's products of 31-bit sizes in range.
inline constexpr std::int64_t kSizeCap = std::int64_t(1) << 40;
inline std::int64_t capMul(std::int64_t a, std::int64_t b) { return a != 0 && b > kSizeCap / a ? kSizeCap : a * b; }
inline std::int64_t capAdd(std::int64_t a, std::int64_t b) { return std::min(kSizeCap, a + b); }

// The size query's four parts: strips, a row of column sums, a copy area
// (the whole bordered image where the interior is not larger than the mask),
// and a table of row pointers.
inline std::int64_t boxBufferBytes(std::int64_t W, std::int64_t H, std::int64_t mW, std::int64_t mH, std::int64_t C,
                                   std::int64_t e) {
    const Reach k = reachOf(mW, mH);
    const std::int64_t r = k.right, b = k.bottom, ax = k.left, ay = k.top;
    std::int64_t s = capAdd(capMul(mW + r - 1, H + mH - 1), capMul(mH + b - 1, W + mW - 1));
    s = capAdd(capAdd(capMul(s, 2), mH == 2 ? W + mW - 1 : 0), mW == 2 ? H + mH - 1 : 0);
    const std::int64_t strips = std::max(capMul(4 * C, s), s);
    const std::int64_t columns = capMul(W + mW + 3, C == 1 ? 4 : 16);
    std::int64_t copy = capAdd(capMul(capMul(C * e, W), ay + 1), 64);
    if (W - ax - r <= mW || H - ay - b <= mH) copy = std::max(copy, capMul(capMul(H + mH - 1, W + mW - 1), C * e));
    return capAdd(capAdd(strips, columns), capAdd(copy, capMul(ay + 1, 8)));
}

// Checks, in order: a null pBufferSize (qvnErrNullPointer); the ROI
// (qvnErrSize); the mask (qvnErrMaskSize); the data type (qvnErrDataType); the
// channel count (qvnErrChannelCount); a size above 2^31 - 1
// (qvnErrSizeOverflow, nothing written).
inline QvnStatus boxBufferSize(RoiL roi, RoiL mask, int dataType, int numChannels, int* pBufferSize) {
    QVN_TRY(check::ptrs(pBufferSize));
    QVN_TRY(check::roi(roi));
    if (mask.width < 1 || mask.height < 1) return qvnErrMaskSize;
    if (dataType != qvn8u && dataType != qvn16u && dataType != qvn16s && dataType != qvn32f) return qvnErrDataType;
    if (numChannels != 1 && numChannels != 3 && numChannels != 4) return qvnErrChannelCount;
    const std::int64_t e = dataType == qvn8u ? 1 : dataType == qvn32f ? 4 : 2;
    const std::int64_t bytes = boxBufferBytes(roi.width, roi.height, mask.width, mask.height, numChannels, e);
    if (bytes > INT_MAX) return qvnErrSizeOverflow;
    *pBufferSize = int(bytes);
    return qvnOk;
}

// Which sides of the ROI a call synthesises: those the mask reaches and no
// in-memory flag covers.
struct BoxSides {
    bool left, right, top, bottom;
    bool any() const { return left || right || top || bottom; }
};
inline BoxSides sidesOf(Reach k, int border) {
    const unsigned m = unsigned(border);
    return {k.left > 0 && !(m & border::kInMemLeft), k.right > 0 && !(m & border::kInMemRight),
            k.top > 0 && !(m & border::kInMemTop), k.bottom > 0 && !(m & border::kInMemBottom)};
}

inline std::int64_t align4(std::int64_t n) { return (n + 3) & ~std::int64_t(3); }

// Byte offsets of the driver's areas from the buffer's first 4-byte boundary
// (or its first 64-byte boundary, where the size query leaves the room), -1
// where not used, and the end of the last.
struct BoxLayout {
    bool whole;
    std::int64_t copy, columns, strips, constRow, ring, end;
};
inline BoxLayout boxLayout(std::int64_t W, std::int64_t H, Reach k, std::int64_t C, std::int64_t e, int border,
                           bool inPlace) {
    const std::int64_t kw = k.width(), kh = k.height();
    const BoxSides sides = sidesOf(k, border);
    BoxLayout l{sides.any() && (kw >= W || kh >= H), -1, 0, -1, -1, -1, 0};
    std::int64_t o = 0;
    if (l.whole) l.copy = 0, o = align4((W + kw - 1) * (H + kh - 1) * C * e);
    l.columns = o, o += (W + kw - 1) * C * 4;
    if (!l.whole && (sides.left || sides.right)) l.strips = o, o += align4((H + kh - 1) * (kw - 1) * C * e);
    if (!l.whole && isConstant(border) && (sides.top || sides.bottom)) l.constRow = o, o += align4((W + kw - 1) * C * e);
    if (!l.whole && inPlace) l.ring = o, o += (k.top + 1) * W * C * e;
    l.end = o;
    return l;
}

// ---- the driver ---------------------------------------------------------------------------------------
struct BoxJob;

// The kernels of one call as plain function pointers, so that the driver is
// compiled once rather than per type and layout: column sums of the source
// type into the accumulators (int32 or float), window sums of the layout,
// the finish into the destination type, and the border fill of the source.
struct BoxKernels {
    void (*add)(void* columns, const void* in, std::int64_t n);
    void (*update)(void* columns, const void* in, const void* out, std::int64_t n);
    void (*sums)(const void* columns, std::int64_t kw, std::int64_t e0, std::int64_t n, void* out);
    void (*finish)(const void* sums, void* dst, std::int64_t n, float scale);
    void (*fill)(const BoxJob& j, std::int64_t x0, std::int64_t y0, std::int64_t w, std::int64_t h, void* dst,
                 std::int64_t dstStep);
};

struct BoxJob {
    const unsigned char* src;
    std::int64_t srcStep;
    unsigned char* dst;
    std::int64_t dstStep;
    std::int64_t width, height;      // the ROI, in pixels
    std::int64_t elems;              // elements per pixel (4 for AC4)
    std::int64_t srcBytes, dstBytes; // bytes per element
    Reach reach;
    int border;
    const void* value;  // the constant kind's pixel
    float scale;        // the means' reciprocal
    const BoxKernels* k;
};

template <class S, class A>
inline void addKernel(void* c, const void* in, std::int64_t n) {
    boxk::addRow(static_cast<A*>(c), static_cast<const S*>(in), n);
}
template <class S, class A>
inline void updateKernel(void* c, const void* in, const void* out, std::int64_t n) {
    boxk::updateRow(static_cast<A*>(c), static_cast<const S*>(in), static_cast<const S*>(out), n);
}
template <class A, int C>
inline void sumsKernel(const void* c, std::int64_t kw, std::int64_t e0, std::int64_t n, void* out) {
    if constexpr (std::is_same_v<A, float>) boxk::rowSumsFloat<C>(static_cast<const float*>(c), kw, e0, n, static_cast<float*>(out));
    else boxk::rowSumsInt<C>(static_cast<const std::int32_t*>(c), kw, e0, n, static_cast<std::int32_t*>(out));
}
template <class A, class D, bool Alpha, bool Mean>
inline void finishKernel(const void* sums, void* dst, std::int64_t n, float scale) {
    boxk::finishRow<A, D, Alpha, Mean>(static_cast<const A*>(sums), static_cast<D*>(dst), n, scale);
}
template <class T, class L>
inline void fillKernel(const BoxJob& j, std::int64_t x0, std::int64_t y0, std::int64_t w, std::int64_t h, void* dst,
                       std::int64_t dstStep) {
    const border::Source<T> s{static_cast<const T*>(static_cast<const void*>(j.src)), j.srcStep, j.width, j.height,
                              border::kindOf(j.border), unsigned(j.border) & 0xF0, static_cast<const T*>(j.value)};
    border::fillWindow<T, L>(s, x0, y0, w, h, static_cast<T*>(dst), dstStep);
}
template <class S, class D, class L, class A, bool Mean>
inline constexpr BoxKernels kBoxKernels = {&addKernel<S, A>, &updateKernel<S, A>, &sumsKernel<A, L::kElems>,
                                           &finishKernel<A, D, L::kAlpha, Mean>, &fillKernel<S, L>};

// A bordered row: its columns left of the ROI, in it and right of it.
struct BoxSpans {
    const unsigned char *left, *mid, *right;
};

// The rows of j from the first output row to the last, with every neighbour
// in memory or in the areas of layout l at `area`.
inline void boxRows(const BoxJob& j, unsigned char* area, const BoxLayout& l, bool inPlace) {
    const std::int64_t W = j.width, H = j.height, C = j.elems, e = j.srcBytes;
    const Reach k = j.reach;
    const std::int64_t kw = k.width(), kh = k.height(), rows = H + kh - 1;
    const std::int64_t rowBytes = W * C * e, leftBytes = k.left * C * e, rightBytes = k.right * C * e;
    const BoxSides sides = sidesOf(k, j.border);
    const unsigned inMem = unsigned(j.border) & 0xF0;
    const border::Kind kind = border::kindOf(j.border);
    unsigned char* columns = area + l.columns;

    // the strips of the synthesised sides, for every bordered row, before
    // anything is written
    unsigned char* strips = l.strips >= 0 ? area + l.strips : nullptr;
    if (sides.left) j.k->fill(j, -k.left, -k.top, k.left, rows, strips, leftBytes);
    if (sides.right) j.k->fill(j, W, -k.top, k.right, rows, strips + rows * leftBytes, rightBytes);
    unsigned char* constRow = l.constRow >= 0 ? area + l.constRow : nullptr;
    if (constRow != nullptr) j.k->fill(j, -k.left, sides.top ? -1 : H, W + kw - 1, 1, constRow, 0);
    unsigned char* ring = inPlace ? area + l.ring : nullptr;
    const std::int64_t slots = k.top + 1;

    // bordered row q (-top <= q < H + bottom) once `written` output rows are done
    const auto spans = [&](std::int64_t q, std::int64_t written) {
        const bool memRow = (q >= 0 && q < H) || (q < 0 && (inMem & border::kInMemTop)) ||
                            (q >= H && (inMem & border::kInMemBottom));
        BoxSpans s{};
        const unsigned char* mem = nullptr;  // the memory row it reads
        if (!memRow && constRow != nullptr) {
            s.left = constRow, s.mid = constRow + leftBytes, s.right = constRow + leftBytes + rowBytes;
        } else {
            const std::int64_t m = memRow ? q : border::sourceIndex(kind, q, H);
            mem = j.src + m * j.srcStep;
            s.mid = inPlace && m >= 0 && m < written ? ring + (m % slots) * rowBytes : mem;
            s.left = mem - leftBytes, s.right = mem + rowBytes;
        }
        if (sides.left) s.left = strips + (q + k.top) * leftBytes;
        if (sides.right) s.right = strips + rows * leftBytes + (q + k.top) * rightBytes;
        return s;
    };
    // the column sums of elements [a, b) of the bordered row take bordered
    // row `in` (and give up row `out`), span by span
    const std::int64_t total = (W + kw - 1) * C, spanEnds[3] = {k.left * C, (k.left + W) * C, total};
    const auto apply = [&](const BoxSpans& in, const BoxSpans* out, std::int64_t a, std::int64_t b) {
        const unsigned char* const ins[3] = {in.left, in.mid, in.right};
        const unsigned char* const outs[3] = {out ? out->left : nullptr, out ? out->mid : nullptr, out ? out->right : nullptr};
        for (int p = 0; p < 3; ++p) {
            const std::int64_t lo = p == 0 ? 0 : spanEnds[p - 1], s0 = std::max(a, lo), s1 = std::min(b, spanEnds[p]);
            if (s0 >= s1) continue;
            if (out) j.k->update(columns + s0 * 4, ins[p] + (s0 - lo) * e, outs[p] + (s0 - lo) * e, s1 - s0);
            else j.k->add(columns + s0 * 4, ins[p] + (s0 - lo) * e, s1 - s0);
        }
    };

    std::memset(columns, 0, std::size_t(total * 4));  // zero bits: 0 and 0.0f
    for (std::int64_t q = -k.top; q <= k.bottom; ++q) apply(spans(q, 0), nullptr, 0, total);
    alignas(64) unsigned char chunk[(boxk::kPad + boxk::kChunk) * 4];
    unsigned char* const sums = chunk + boxk::kPad * 4;
    const std::int64_t n = W * C;
    for (std::int64_t y = 0; y < H; ++y) {
        if (inPlace) std::memcpy(ring + (y % slots) * rowBytes, j.src + y * j.srcStep, std::size_t(rowBytes));
        // the next row's column sums are updated behind the window sums, chunk
        // by chunk, while they are in the cache (the sums read from 4C
        // elements before their chunk on); the row that enters after it is
        // fetched meanwhile
        const bool next = y + 1 < H;
        const BoxSpans in = next ? spans(y + 1 + k.bottom, y + 1) : BoxSpans{};
        const BoxSpans out = next ? spans(y - k.top, y + 1) : BoxSpans{};
        const unsigned char* const ahead = y + 2 + k.bottom < H ? j.src + (y + 2 + k.bottom) * j.srcStep : nullptr;
        unsigned char* const dst = j.dst + y * j.dstStep;
        std::int64_t done = 0;
        for (std::int64_t e0 = 0; e0 < n; e0 += boxk::kChunk) {
            const std::int64_t m = std::min(boxk::kChunk, n - e0);
            j.k->sums(columns, kw, e0, m, sums);
            j.k->finish(sums, dst + e0 * j.dstBytes, m, j.scale);
            if (m == boxk::kChunk) std::memcpy(chunk, sums + (m - boxk::kPad) * 4, boxk::kPad * 4);
            if (!next) continue;
            const std::int64_t upto = e0 + m == n ? total : std::max(done, e0 + m - 4 * C);
            apply(in, &out, done, upto);
            if (ahead != nullptr) {
                const std::int64_t a = std::max(done, spanEnds[0]) - spanEnds[0], b = std::min(upto, spanEnds[1]) - spanEnds[0];
                for (std::int64_t x = a * e; x < b * e; x += 64) __builtin_prefetch(ahead + x);
            }
            done = upto;
        }
    }
}

inline void runBox(const BoxJob& j, Qvn8u* buffer) {
    const bool inPlace = static_cast<const void*>(j.src) == static_cast<const void*>(j.dst);
    const BoxLayout l = boxLayout(j.width, j.height, j.reach, j.elems, j.srcBytes, j.border, inPlace);
    const std::int64_t bytes = boxBufferBytes(j.width, j.height, j.reach.width(), j.reach.height(), j.elems, j.srcBytes);
    unsigned char* area = spec::alignUp64(buffer);
    if (area + l.end > buffer + bytes) area = buffer + ((4 - reinterpret_cast<std::uintptr_t>(buffer) % 4) % 4);
    if (!l.whole) return boxRows(j, area, l, inPlace);
    // the whole ROI with its borders, once; every neighbour is then in memory
    const Reach k = j.reach;
    const std::int64_t step = (j.width + k.width() - 1) * j.elems * j.srcBytes;
    j.k->fill(j, -k.left, -k.top, j.width + k.width() - 1, j.height + k.height() - 1, area + l.copy, step);
    BoxJob c = j;
    c.src = area + l.copy + k.top * step + k.left * j.elems * j.srcBytes;
    c.srcStep = step;
    c.border = qvnBorderInMem;
    boxRows(c, area, l, false);
}

// The largest magnitude of an element of T.
template <class T>
inline constexpr std::int64_t kMagnitude = std::is_same_v<T, Qvn16s> ? 32768 : std::int64_t(std::numeric_limits<T>::max());

// Whether n elements of T sum exactly in int32.
template <class T>
inline bool sumsFitInt32(std::int64_t n) {
    if constexpr (std::is_floating_point_v<T>) return false;
    else return n <= INT32_MAX / kMagnitude<T>;
}

// Checks, in order: a null source, destination or buffer (qvnErrNullPointer);
// a step below 1 (qvnErrStep); the ROI (qvnErrSize); the mask
// (qvnErrMaskSize); the border kind (qvnErrBorderKind); a null border value
// with the constant kind (qvnErrNullPointer).
template <class S, class D, class L, bool Mean>
inline QvnStatus boxWindow(const S* pSrc, std::int64_t srcStep, D* pDst, std::int64_t dstStep, RoiL roi, RoiL mask,
                           int border, const S* pBorderValue, Qvn8u* pBuffer) {
    QVN_TRY(check::ptrs(pSrc, pDst, pBuffer));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::roi(roi));
    if (mask.width < 1 || mask.height < 1) return qvnErrMaskSize;
    QVN_TRY(acceptGeneral(border));
    if (isConstant(border) && pBorderValue == nullptr) return qvnErrNullPointer;
    const RoundingScope nearest(qvnRndNear);
    const std::int64_t area = mask.width * mask.height;
    BoxJob j{reinterpret_cast<const unsigned char*>(pSrc), srcStep, reinterpret_cast<unsigned char*>(pDst), dstStep,
             roi.width, roi.height, L::kElems, std::int64_t(sizeof(S)), std::int64_t(sizeof(D)),
             reachOf(mask.width, mask.height), border, pBorderValue, 1.0f / static_cast<float>(area), nullptr};
    if constexpr (std::is_floating_point_v<S>) j.k = &kBoxKernels<S, D, L, float, Mean>;
    else j.k = sumsFitInt32<S>(area) ? &kBoxKernels<S, D, L, std::int32_t, Mean> : &kBoxKernels<S, D, L, float, Mean>;
    runBox(j, pBuffer);
    return qvnOk;
}

// ---- row and column sums ---------------------------------------------------------------------------
// Sums of mask elements along rows (stride C elements) or columns, exact in
// int64 and rounded to float once: the path of masks whose sums int32 cannot
// hold. Element (e, y) of the output sums the elements (e + (t - anchor) C, y)
// or (e, y + t - anchor), t < mask.
template <class S>
inline void lineSums64(const S* src, std::int64_t srcStep, Qvn32f* dst, std::int64_t dstStep, std::int64_t n,
                       std::int64_t h, std::int64_t mask, std::int64_t anchor, std::int64_t C, bool alongRows) {
    const auto at = [&](std::int64_t e, std::int64_t y) { return std::int64_t(byteOffset(src, y * srcStep)[e]); };
    const auto out = [&](std::int64_t e, std::int64_t y) -> Qvn32f& { return byteOffset(dst, y * dstStep)[e]; };
    if (alongRows) {
        for (std::int64_t y = 0; y < h; ++y)
            for (std::int64_t c = 0; c < C && c < n; ++c) {
                std::int64_t s = 0;
                for (std::int64_t t = 0; t < mask; ++t) s += at(c + (t - anchor) * C, y);
                out(c, y) = static_cast<float>(s);
                for (std::int64_t x = c + C; x < n; x += C) {
                    s += at(x + (mask - 1 - anchor) * C, y) - at(x - (anchor + 1) * C, y);
                    out(x, y) = static_cast<float>(s);
                }
            }
        return;
    }
    for (std::int64_t x = 0; x < n; ++x) {
        std::int64_t s = 0;
        for (std::int64_t t = 0; t < mask; ++t) s += at(x, t - anchor);
        out(x, 0) = static_cast<float>(s);
        for (std::int64_t y = 1; y < h; ++y) {
            s += at(x, y - anchor + mask - 1) - at(x, y - 1 - anchor);
            out(x, y) = static_cast<float>(s);
        }
    }
}

// Checks, in order: a null source or destination (qvnErrNullPointer); a width
// below 1 (qvnErrSize); a mask below 1 (qvnErrMaskSize); an anchor outside
// the mask, compared unsigned (qvnErrAnchor). A height below 1 is no error:
// nothing is written.
inline QvnStatus lineChecks(const void* pSrc, const void* pDst, RoiL roi, int mask, int anchor) {
    QVN_TRY(check::ptrs(pSrc, pDst));
    QVN_TRY(check::width(roi));
    if (mask < 1) return qvnErrMaskSize;
    if (unsigned(anchor) >= unsigned(mask)) return qvnErrAnchor;
    return qvnOk;
}

inline constexpr std::int64_t kLineChunk = 1024;

// The row sums (Rows) and the column sums.
template <class S, class L, bool Rows>
inline QvnStatus sumWindowLine(const S* pSrc, std::int64_t srcStep, Qvn32f* pDst, std::int64_t dstStep, RoiL roi,
                               int mask, int anchor) {
    QVN_TRY(lineChecks(pSrc, pDst, roi, mask, anchor));
    if (roi.height < 1) return qvnOk;
    const RoundingScope nearest(qvnRndNear);
    constexpr std::int64_t C = L::kElems;
    const std::int64_t n = roi.width * C;
    if (!sumsFitInt32<S>(mask)) {
        lineSums64(pSrc, srcStep, pDst, dstStep, n, roi.height, mask, anchor, C, Rows);
        return qvnOk;
    }
    if constexpr (Rows) {
        // each row's window sums from two widened streams, chunk by chunk
        const std::int64_t reach = (mask - 1) * C;
        alignas(64) std::int32_t lead[kLineChunk], trail[kLineChunk], chunk[boxk::kPad + kLineChunk];
        std::int32_t* const sums = chunk + boxk::kPad;
        for (std::int64_t y = 0; y < roi.height; ++y) {
            const S* p = byteOffset(pSrc, y * srcStep) - std::int64_t(anchor) * C;  // the first pixel's window
            Qvn32f* out = byteOffset(pDst, y * dstStep);
            for (std::int64_t e0 = 0; e0 < n; e0 += kLineChunk) {
                const std::int64_t m = std::min(kLineChunk, n - e0);
                std::int64_t i = 0;
                if (e0 == 0) {
                    for (std::int64_t c = 0; c < C; ++c) {
                        std::int64_t s = 0;
                        for (std::int64_t t = 0; t < mask; ++t) s += p[c + t * C];
                        sums[c] = std::int32_t(s);
                    }
                    i = C;
                }
                boxk::widenRow(p + e0 + i + reach, lead, m - i);
                boxk::widenRow(p + e0 + i - C, trail, m - i);
                boxk::windowSumsInt<int(C)>(lead, trail, sums + i, m - i);
                boxk::finishRow<std::int32_t, Qvn32f, false, false>(sums, out + e0, m, 1.0f);
                if (m == kLineChunk) std::memcpy(chunk, sums + m - boxk::kPad, sizeof(std::int32_t) * boxk::kPad);
            }
        }
    } else {
        // column sums of a band of elements, moved down the image
        const auto row = [&](std::int64_t y) { return byteOffset(pSrc, y * srcStep); };
        alignas(64) std::int32_t columns[kLineChunk];
        for (std::int64_t e0 = 0; e0 < n; e0 += kLineChunk) {
            const std::int64_t m = std::min(kLineChunk, n - e0);
            std::memset(columns, 0, sizeof columns);
            for (std::int64_t t = 0; t < mask; ++t) boxk::addRow(columns, row(t - anchor) + e0, m);
            for (std::int64_t y = 0; y < roi.height; ++y) {
                if (y > 0) boxk::updateRow(columns, row(y - anchor + mask - 1) + e0, row(y - 1 - anchor) + e0, m);
                boxk::finishRow<std::int32_t, Qvn32f, false, false>(columns, byteOffset(pDst, y * dstStep) + e0, m, 1.0f);
            }
        }
    }
    return qvnOk;
}

// ---- the older 64f mean ---------------------------------------------------------------------------
// Output columns per band: the column sums of a band live on the stack.
inline constexpr std::int64_t kBand64f = 1024;

// Checks, in order: a null source or destination (qvnErrNullPointer); a ROI
// or mask dimension below 1 (qvnErrSize); a source step below (mask width +
// ROI width - 1) x 8 or a destination step below ROI width x 8 (qvnErrStep).
//
// dst(x, y) = (sum over j < mh, i < mw of src(x - anchor.x + i, y - anchor.y + j)) / (mw mh),
// every neighbour read from memory. Band by band: the sums along each source
// row over the band's outputs (a running sum from the band's first output),
// summed down the image into one double per column (the first mh rows, then
// the entering row's minus the leaving row's).
inline QvnStatus filterBox64f(const Qvn64f* pSrc, std::int64_t srcStep, Qvn64f* pDst, std::int64_t dstStep, RoiL roi,
                              RoiL mask, QvnPoint anchor) {
    QVN_TRY(check::ptrs(pSrc, pDst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::roi(mask));
    if (srcStep < (mask.width + roi.width - 1) * 8 || dstStep < roi.width * 8) return qvnErrStep;
    const RoundingScope nearest(qvnRndNear);
    const std::int64_t mw = mask.width, mh = mask.height, W = roi.width, H = roi.height;
    const double n = double(mw * mh);
    // row q of the source (ROI coordinates), from the first neighbour of output column 0
    const auto row = [&](std::int64_t q) { return byteOffset(pSrc, (q - anchor.y) * srcStep) - anchor.x; };
    alignas(64) double columns[kBand64f];
    for (std::int64_t x0 = 0; x0 < W; x0 += kBand64f) {
        const std::int64_t bw = std::min(kBand64f, W - x0);
        for (std::int64_t j = 0; j < mh; ++j) {
            const Qvn64f* p = row(j) + x0;
            double s = p[0];
            for (std::int64_t i = 1; i < mw; ++i) s += p[i];
            columns[0] = j == 0 ? s : columns[0] + s;
            for (std::int64_t x = 1; x < bw; ++x) {
                s += p[x + mw - 1] - p[x - 1];
                columns[x] = j == 0 ? s : columns[x] + s;
            }
        }
        Qvn64f* out = byteOffset(pDst, 0) + x0;
        for (std::int64_t x = 0; x < bw; ++x) out[x] = columns[x] / n;
        for (std::int64_t y = 1; y < H; ++y) {
            const Qvn64f *in = row(y + mh - 1) + x0, *gone = row(y - 1) + x0;
            double a = in[0], b = gone[0];
            for (std::int64_t i = 1; i < mw; ++i) a += in[i], b += gone[i];
            out = byteOffset(pDst, y * dstStep) + x0;
            for (std::int64_t x = 0; x < bw; ++x) {
                if (x > 0) a += in[x + mw - 1] - in[x - 1], b += gone[x + mw - 1] - gone[x - 1];
                columns[x] += a - b;
                out[x] = columns[x] / n;
            }
        }
    }
    return qvnOk;
}

}  // namespace filter
QVN_TARGET_END

#endif
