// qvniFilterMedianBorder_<T>_<C>R, qvniFilterMinBorder_<T>_<C>R,
// qvniFilterMaxBorder_<T>_<C>R and their buffer-size queries: the rank
// filters. The median is a window kernel of kernels/rank-inl.h run over the
// ROI by the bordered driver (bordered-inl.h); the minimum and maximum are
// separable and make their borders on rows of column extrema (below). The
// anchor is at the mask's centre ((w - 1) / 2, (h - 1) / 2; an even min/max
// mask reaches one pixel further right and down).
//
// The median's work buffer, from its first 64-byte boundary: the driver's
// strips (or its whole bordered copy), then for in-place calls two bands of
// output rows, then the method's area (column histograms or gathered keys).
// The extrema's: the bands for in-place calls, then the scratch rows. The median's size is the one of its Part: the
// copy area (strips or the whole bordered image), 2h rows for in-place calls,
// and the method area that the method table implies; for three and four
// channels every part is counted per channel.
//
// In place (source pointer equal to destination pointer), unless the median's
// driver copies every pixel it reads before it writes, the output is made in bands of
// n rows (n at least the mask's reach above and below) into the buffer, and
// each band is written back once the next band, the last one to read its
// source rows, is made.
#ifndef QVN_FILTER_RANK_INL_H
#define QVN_FILTER_RANK_INL_H

#include <algorithm>
#include <climits>
#include <cstdint>
#include <type_traits>

#include "core/check-inl.h"
#include "core/spec-inl.h"
#include "core/stream-inl.h"
#include "filter/bordered-inl.h"
#include "kernels/rank-inl.h"

QVN_TARGET_BEGIN
namespace filter {
namespace rank {

namespace kr = kernels::rank;
using std::int64_t;

// A window kernel behind one function pointer: the driver is instantiated
// once per type and layout, whatever the method.
template <class T>
struct KernelRef {
    void (*fn)(const void*, const T*, int64_t, T*, int64_t, int64_t, int64_t);
    const void* self;
    int64_t block;

    template <class K>
    static KernelRef of(const K& k) {
        return {[](const void* p, const T* s, int64_t ss, T* d, int64_t ds, int64_t w, int64_t h) {
                    (*static_cast<const K*>(p))(s, ss, d, ds, w, h);
                }, &k, k.blockElems()};
    }
    void operator()(const T* s, int64_t ss, T* d, int64_t ds, int64_t w, int64_t h) const { fn(self, s, ss, d, ds, w, h); }
    int64_t blockElems() const { return block; }
};

inline int64_t floor32(int64_t v) { return v / 32 * 32; }
inline int64_t round32(int64_t v) { return (v + 31) / 32 * 32; }

// In-place bands: rows per band, and the bytes between two rows of a band.
inline int64_t bandRows(Reach k) { return std::max<int64_t>({1, k.top, k.bottom}); }
inline int64_t bandStep(int64_t W, int64_t C, int64_t e) { return floor32(e * C * W + 31); }
inline int64_t bandBytes(Reach k, int64_t W, int64_t C, int64_t e) {
    return (k.top > 0 || k.bottom > 0 ? 2 : 1) * bandRows(k) * bandStep(W, C, e);
}

// Where the parts of a call's work buffer lie.
template <class T>
struct Regions {
    T* bands;               // null when the call runs without bands
    unsigned char* method;  // the method's area, 32-byte aligned
};

template <class T, class L>
inline Regions<T> regionsOf(const T* src, const T* dst, RoiL roi, int border, Reach k, Qvn8u* buffer) {
    const int64_t C = L::kElems, e = sizeof(T);
    const Reach s = synthesised(border, k);
    unsigned char* p = spec::alignUp64(buffer);
    if (s.left > 0 || s.right > 0 || s.top > 0 || s.bottom > 0)
        p += round32(stripPixels(k.width(), k.height(), roi.width, roi.height) * C * e);
    Regions<T> r{nullptr, p};
    if (static_cast<const void*>(src) == static_cast<const void*>(dst) && !copiesBeforeWriting(border, k, roi)) {
        r.bands = reinterpret_cast<T*>(p);
        r.method = p + bandBytes(k, roi.width, C, e);
    }
    return r;
}

// Writes the ROI's output rows with rows(out, outStep, rowBegin, rowEnd),
// which makes output rows [rowBegin, rowEnd) at out; with bands (in place),
// band by band into the buffer, each written back once the next band, the
// last one to read its source rows, is made.
template <class T, class L, class Rows>
inline void inBands(T* dst, int64_t dstep, RoiL roi, Reach k, T* bands, const Rows& rows) {
    if (bands == nullptr) {
        rows(dst, dstep, 0, roi.height);
        return;
    }
    const int64_t C = L::kElems, n = bandRows(k), step = bandStep(roi.width, C, sizeof(T));
    const bool delay = k.top > 0 || k.bottom > 0;  // a band's rows are read by the next band
    const kr::CopyKernel<T> copy{{L::kAlpha}};
    const auto writeBack = [&](int64_t y, const T* band) {
        copy(band, step, byteOffset(dst, y * dstep), dstep, roi.width * C, std::min(n, roi.height - y));
    };
    for (int64_t y = 0, i = 0; y < roi.height; y += n, ++i) {
        T* band = byteOffset(bands, (delay ? i % 2 : 0) * n * step);
        rows(band, step, y, std::min(y + n, roi.height));
        if (!delay) writeBack(y, band);
        else if (y > 0) writeBack(y - n, byteOffset(bands, ((i + 1) % 2) * n * step));
    }
    if (delay) {
        const int64_t last = (roi.height - 1) / n;
        writeBack(last * n, byteOffset(bands, (last % 2) * n * step));
    }
}

// Runs kernel over the ROI by the bordered driver, in bands when the regions
// have them.
template <class T, class L>
inline void run(const T* src, int64_t sstep, T* dst, int64_t dstep, RoiL roi, int border, const T* value, Reach k,
                Qvn8u* buffer, const Regions<T>& regions, const KernelRef<T>& kernel) {
    inBands<T, L>(dst, dstep, roi, k, regions.bands, [&](T* out, int64_t outStep, int64_t rb, int64_t re) {
        runBordered<T, L>(src, sstep, out, outStep, roi, border, value, k, buffer, kernel, rb, re);
    });
}

// ---- the median --------------------------------------------------------------------------
enum class Method { kCopy, kNetwork, kSelect, kHist8, kHist16, kHist32 };

inline Method medianMethod(int64_t w, int64_t h, bool is8u) {
    if (w == 1 && h == 1) return Method::kCopy;
    if (w <= 5 && h <= 5) return Method::kNetwork;
    if (!is8u) return Method::kSelect;
    const int64_t side = std::max(w, h);
    return side <= 15 ? Method::kHist8 : side <= 255 ? Method::kHist16 : Method::kHist32;
}

inline int64_t histCounterBytes(Method m) { return m == Method::kHist8 ? 1 : m == Method::kHist16 ? 2 : 4; }

// The method area of the size formula: the column histograms of the 8u
// histogram methods ((w + W) per channel), nothing for the dedicated
// networks (1-wide, 1-high and square masks up to 5), and w x h 32-bit slots
// otherwise.
inline int64_t medianMethodBytes(int64_t W, int64_t w, int64_t h, bool is8u, int64_t C) {
    const Method m = medianMethod(w, h, is8u);
    if (m == Method::kHist8 || m == Method::kHist16 || m == Method::kHist32)
        return (w + W) * 256 * histCounterBytes(m) * C;
    if (w < 6 && h <= 5 && (w == 1 || h == 1 || w == h)) return 0;
    return round32(w * h * 4);
}

inline int64_t medianBufferBytes(int64_t W, int64_t H, int64_t w, int64_t h, int64_t e, int64_t C, bool is8u) {
    int64_t copy;
    if (w >= W || h >= H) {
        copy = (h + H - 1) * (w + W - 1) * e;
    } else {
        const auto floor64 = [](int64_t v) { return v / 64 * 64; };
        copy = floor64(H * e * (w / 2) * 2 + 62) + floor64((h / 2) * W * 2 * e + 62) +
               std::max((h / 2 + h) * (W + w - 1) * e, (w / 2 + w) * (H + h - 1) * e);
    }
    const int64_t rows = floor32(e * C * W + 31) * h * 2;
    return round32(copy) * C + rows + medianMethodBytes(W, w, h, is8u, C);
}

inline bool isRankType(int t) { return t == qvn8u || t == qvn16u || t == qvn16s || t == qvn32f; }
inline int64_t elemBytes(int t) { return t == qvn8u ? 1 : t == qvn32f ? 4 : 2; }

inline QvnStatus writeSize(int64_t bytes, int* pBufferSize) {
    if (bytes > INT_MAX) {
        *pBufferSize = 0;
        return qvnErrSizeOverflow;
    }
    *pBufferSize = int(bytes);
    return qvnOk;
}

inline QvnStatus medianMask(RoiL mask) {
    return mask.width < 1 || mask.height < 1 || mask.width % 2 == 0 || mask.height % 2 == 0 ? qvnErrMaskSize : qvnOk;
}

// Checks, in order: a null output (qvnErrNullPointer); the ROI (qvnErrSize);
// the mask (qvnErrMaskSize); with 3 or 4 channels a type other than 8u, 16u,
// 16s (qvnErrDataType); otherwise a channel count other than 1
// (qvnErrChannelCount), then a type other than 8u, 16u, 16s, 32f; a total of
// 2^31 bytes or more (qvnErrSizeOverflow, 0 written).
inline QvnStatus medianGetBufferSize(RoiL roi, RoiL mask, int dataType, int numChannels, int* pBufferSize) {
    QVN_TRY(check::ptrs(pBufferSize));
    QVN_TRY(check::roi(roi));
    QVN_TRY(medianMask(mask));
    if (numChannels == 3 || numChannels == 4) {
        if (dataType != qvn8u && dataType != qvn16u && dataType != qvn16s) return qvnErrDataType;
    } else {
        if (numChannels != 1) return qvnErrChannelCount;
        if (!isRankType(dataType)) return qvnErrDataType;
    }
    return writeSize(medianBufferBytes(roi.width, roi.height, mask.width, mask.height, elemBytes(dataType),
                                       numChannels, dataType == qvn8u),
                     pBufferSize);
}

template <class T, class L, int KW, int KH>
inline void runNetwork(const T* src, int64_t sstep, T* dst, int64_t dstep, RoiL roi, int border, const T* value,
                       Qvn8u* buffer, const Regions<T>& r) {
    const kr::NetKernel<T, KW, KH> k{L::kElems, {L::kAlpha}};
    run<T, L>(src, sstep, dst, dstep, roi, border, value, reachOf(KW, KH), buffer, r, KernelRef<T>::of(k));
}

template <class T, class L>
inline void medianRun(const T* src, int64_t sstep, T* dst, int64_t dstep, RoiL roi, RoiL mask, int border,
                      const T* value, Qvn8u* buffer) {
    constexpr int64_t C = L::kElems;
    const int kw = int(mask.width), kh = int(mask.height);
    const Reach k = reachOf(kw, kh);
    const Regions<T> r = regionsOf<T, L>(src, dst, roi, border, k, buffer);
    const auto go = [&](const auto& kernel) {
        run<T, L>(src, sstep, dst, dstep, roi, border, value, k, buffer, r, KernelRef<T>::of(kernel));
    };
    const Method m = medianMethod(kw, kh, std::is_same_v<T, Qvn8u>);
    switch (m) {
        case Method::kCopy:
            if (static_cast<const void*>(src) != static_cast<const void*>(dst))
                go(kr::CopyKernel<T>{{L::kAlpha}});
            return;
        case Method::kNetwork: {
            const auto net = [&](auto kwc, auto khc) {
                runNetwork<T, L, decltype(kwc)::value, decltype(khc)::value>(src, sstep, dst, dstep, roi, border, value,
                                                                               buffer, r);
            };
            using I1 = std::integral_constant<int, 1>;
            using I3 = std::integral_constant<int, 3>;
            using I5 = std::integral_constant<int, 5>;
            const int key = kw * 8 + kh;
            if (key == 1 * 8 + 3) net(I1{}, I3{});
            else if (key == 1 * 8 + 5) net(I1{}, I5{});
            else if (key == 3 * 8 + 1) net(I3{}, I1{});
            else if (key == 5 * 8 + 1) net(I5{}, I1{});
            else if (key == 3 * 8 + 3) net(I3{}, I3{});
            else if (key == 3 * 8 + 5) net(I3{}, I5{});
            else if (key == 5 * 8 + 3) net(I5{}, I3{});
            else net(I5{}, I5{});
            return;
        }
        case Method::kSelect:
            go(kr::SelectKernel<T>{kw, kh, C, {L::kAlpha}, reinterpret_cast<std::int32_t*>(r.method)});
            return;
        default: break;
    }
    if constexpr (std::is_same_v<T, Qvn8u>) {
        // the column histograms from the area's first 64-byte boundary: one
        // column of the area is the room for it
        const int64_t capacity = (mask.width + roi.width) * C - 1;
        unsigned char* const cols = spec::alignUp64(r.method);
        if (m == Method::kHist8)
            go(kr::HistKernel<std::uint8_t>{kw, kh, C, {L::kAlpha}, cols, capacity});
        else if (m == Method::kHist16)
            go(kr::HistKernel<std::uint16_t>{kw, kh, C, {L::kAlpha}, reinterpret_cast<std::uint16_t*>(cols), capacity});
        else
            go(kr::HistKernel<std::uint32_t>{kw, kh, C, {L::kAlpha}, reinterpret_cast<std::uint32_t*>(cols), capacity});
    }
}

// Checks, in order: a null source, destination or buffer (qvnErrNullPointer);
// the ROI (qvnErrSize); for 16-bit types an odd step (qvnErrStepMultiple);
// the mask: a side below 1 or even (qvnErrMaskSize); the border kind
// (qvnErrBorderKind); a null border value with the constant kind
// (qvnErrNullPointer, multi-channel forms).
template <class T, class L>
inline QvnStatus median(const T* pSrc, int64_t srcStep, T* pDst, int64_t dstStep, RoiL roi, RoiL mask, int border,
                        const T* pValue, Qvn8u* pBuffer) {
    QVN_TRY(check::ptrs(pSrc, pDst, pBuffer));
    QVN_TRY(check::roi(roi));
    if constexpr (sizeof(T) == 2)
        if (srcStep % 2 != 0 || dstStep % 2 != 0) return qvnErrStepMultiple;
    QVN_TRY(medianMask(mask));
    QVN_TRY(acceptMedian(border));
    if (isConstant(border) && pValue == nullptr) return qvnErrNullPointer;
    medianRun<T, L>(pSrc, srcStep, pDst, dstStep, roi, mask, border, pValue, pBuffer);
    return qvnOk;
}

// ---- minimum and maximum ------------------------------------------------------------------------
// Separable: the column pass makes, for each output row, a row of column
// extrema over the mask's height, and the row pass the extremum of kw
// neighbours along it. A synthesised border is made on these rows, not on
// the image: a synthesised row is a source row (replicate, mirror) or a row
// of the border value (constant), and a synthesised column of column extrema
// is the column extremum it replicates or mirrors, or the border value
// (a constant column's extremum is the value). So no pixel is computed
// twice and nothing but one row per side is filled.
//
// The rows are made in column chunks of about kChunkBytes (equal widths),
// each chunk's scratch rows staying in the first-level cache; a chunk holds
// every column its synthesised columns read (one chunk when the mask is
// wider than a chunk). 32f: the rows a group of output rows reads are looked
// at for NaN once each, and only groups that read one use the propagating
// extremum.
inline constexpr int64_t kChunkBytes = 8192;

// Pixels per column chunk of a ROI W pixels wide (C elements of e bytes).
inline int64_t extremaChunk(int64_t W, int64_t kw, int64_t C, int64_t e) {
    const int64_t n = (W * C * e + kChunkBytes - 1) / kChunkBytes, p = (W + n - 1) / n;
    return p >= kw && W - (n - 1) * p >= kw ? p : W;
}

// Scratch rows: the border value's row, the column extrema (two for direct
// rows; kh - 1 suffixes, a prefix and their combination for blocks), and
// two for the doubling spans of wide masks.
inline int64_t extremaScratchRows(int64_t kw, int64_t kh) {
    return 1 + (kh > kr::kDirectRows ? kh + 1 : 2) + (kw > kr::kDirectColumns ? 2 : 0);
}
inline int64_t extremaRowElems(int64_t W, int64_t kw, int64_t C, int64_t e) {
    return (extremaChunk(W, kw, C, e) + kw - 1) * C;
}

inline int64_t extremaBufferBytes(int64_t W, int64_t w, int64_t h, int64_t e, int64_t C) {
    return 63 + bandBytes(reachOf(w, h), W, C, e) + 63 + extremaScratchRows(w, h) * extremaRowElems(W, w, C, e) * e;
}

template <class T, bool Max>
struct ExtremaFilter {
    const T* src;
    int64_t sstep, W, H, C;
    Reach k;
    unsigned inMem;
    border::Kind kind;
    const T* value;     // C elements (3 for AC4), for the constant kind
    kr::ExtremaRows<T, Max> ops;
    T* scratch;         // extremaScratchRows rows of rowElems
    int64_t rowElems, chunk;
    bool valueNaN;      // a NaN in the border value's synthesised pixels

    T* scratchRow(int64_t i) const { return scratch + i * rowElems; }
    const T* constRow() const { return scratchRow(0); }
    bool synthesisedRow(int64_t y) const {
        return (y < 0 && !(inMem & border::kInMemTop)) || (y >= H && !(inMem & border::kInMemBottom));
    }

    // Fills the border value's row.
    void prepare() const {
        if (kind != border::Kind::kConstant) return;
        T* r = scratchRow(0);
        for (int64_t e = 0; e < rowElems; ++e) r[e] = e % C == 3 && ops.output.alpha ? T(0) : value[e % C];
    }

    // The chunk of output pixels [p0, p1): its extended columns [x0, x1), of
    // which [ca, cb) are read from memory, the others synthesised.
    struct Chunk {
        int64_t x0, x1, ca, cb;
        int64_t offset() const { return ca - x0; }  // pixels before the first column read
    };

    // Extended source row y at column ca of the chunk.
    const T* row(int64_t y, const Chunk& c) const {
        if (synthesisedRow(y)) {
            if (kind == border::Kind::kConstant) return constRow() + c.offset() * C;
            y = border::sourceIndex(kind, y, H);
        }
        return byteOffset(src, y * sstep) + c.ca * C;
    }

    // The synthesised columns of a row of column extrema v (indexed from x0).
    void sides(T* v, const Chunk& c) const {
        const auto fill = [&](int64_t x) {
            T* d = v + (x - c.x0) * C;
            if (kind == border::Kind::kConstant) {
                std::copy(constRow(), constRow() + C, d);
            } else {
                const T* s = v + (border::sourceIndex(kind, x, W) - c.x0) * C;
                std::copy(s, s + C, d);
            }
        };
        for (int64_t x = c.x0; x < c.ca; ++x) fill(x);
        for (int64_t x = c.cb; x < c.x1; ++x) fill(x);
    }

    // Output rows [rb, re) at dst.
    void operator()(T* dst, int64_t dstep, int64_t rb, int64_t re) const {
        const bool synLeft = k.left > 0 && !(inMem & border::kInMemLeft);
        const bool synRight = k.right > 0 && !(inMem & border::kInMemRight);
        for (int64_t p0 = 0; p0 < W; p0 += chunk) {
            const int64_t p1 = std::min(W, p0 + chunk);
            Chunk c{p0 - k.left, p1 + k.right, 0, 0};
            c.ca = synLeft ? std::max<int64_t>(c.x0, 0) : c.x0;
            c.cb = synRight ? std::min(c.x1, W) : c.x1;
            const auto out = [&](int64_t y) { return byteOffset(dst, (y - rb) * dstep) + p0 * C; };
            if constexpr (std::is_same_v<T, float>) {
                // the extended rows looked at for NaN so far, and the last of them with one
                int64_t seen = rb - k.top, lastNaN = valueNaN ? INT64_MAX : INT64_MIN;
                rows(c, out, rb, re, [&](int64_t y0, int64_t y1, const auto& go) {
                    for (; seen < y1; ++seen)
                        if (kr::anyNaN(row(seen, c), (c.cb - c.ca) * C)) lastNaN = std::max(lastNaN, seen);
                    if (lastNaN >= y0) go(std::true_type{});
                    else go(std::false_type{});
                });
            } else {
                rows(c, out, rb, re, [](int64_t, int64_t, const auto& go) { go(std::false_type{}); });
            }
        }
    }

    // The chunk's output rows in groups; pick(y0, y1, go) calls go with the
    // propagation the group of extended rows [y0, y1) needs.
    template <class Out, class Pick>
    void rows(const Chunk& c, const Out& out, int64_t rb, int64_t re, const Pick& pick) const {
        const int64_t kh = ops.kh, n = (c.cb - c.ca) * C, cw = (c.x1 - c.x0 - (ops.kw - 1)) * C;
        const int64_t at = c.offset() * C;
        const bool synthesises = c.ca > c.x0 || c.cb < c.x1;
        // the row pass of a row of column extrema (indexed from x0)
        const auto finish = [&](auto P, T* v, int64_t y) {
            sides(v, c);
            ops.template across<decltype(P)::value>(v, out(y), cw);
        };
        if (kh == 1) {
            for (int64_t y = rb; y < re; ++y)
                pick(y, y + 1, [&](auto P) {
                    const T* r = row(y, c);
                    if (!synthesises) return ops.template across<decltype(P)::value>(r - at, out(y), cw);
                    std::copy(r, r + n, scratchRow(1) + at);
                    finish(P, scratchRow(1), y);
                });
            return;
        }
        if (kh <= kr::kDirectRows) {
            for (int64_t y = rb; y < re; y += 2) {
                const bool two = y + 1 < re;
                pick(y - k.top, y - k.top + kh + two, [&](auto P) {
                    const T* r[kr::kDirectRows + 1];
                    for (int64_t j = 0; j < kh + two; ++j) r[j] = row(y - k.top + j, c);
                    T* const o0 = scratchRow(1);
                    T* const o1 = scratchRow(2);
                    ops.template columnPair<decltype(P)::value>(r, o0 + at, two ? o1 + at : nullptr, n);
                    sides(o0, c);
                    if (two) sides(o1, c);
                    ops.template across<decltype(P)::value>(o0, out(y), cw, two ? o1 : nullptr, two ? out(y + 1) : nullptr);
                });
            }
            return;
        }
        // Running extrema over blocks of kh rows: for the block of output
        // rows from b, suffix(i) holds extended rows b + i .. b + kh - 1
        // combined; output row b + i combines suffix(i) with the rows
        // b + kh .. b + kh + i - 1 (a running prefix).
        const auto suffix = [&](int64_t i) { return scratchRow(1 + i); };
        T* const prefix = scratchRow(kh);
        T* const both = scratchRow(kh + 1);
        for (int64_t b = rb; b < re; b += kh) {
            const int64_t m = std::min(kh, re - b), y0 = b - k.top;
            pick(y0, y0 + kh + m - 1, [&](auto P) {
                constexpr bool p = decltype(P)::value;
                const auto suf = [&](int64_t i) -> const T* { return i == kh - 1 ? row(y0 + kh - 1, c) : suffix(i) + at; };
                for (int64_t i = kh - 2; i >= 0; --i) ops.template combine<p>(row(y0 + i, c), suf(i + 1), suffix(i) + at, n);
                finish(P, suffix(0), b);
                for (int64_t i = 1; i < m; ++i) {
                    // the prefix is the row itself at first, then in scratch
                    const T* in = row(y0 + kh + i - 1, c);
                    if (i == 1) ops.template prefixStep<p>(in, nullptr, nullptr, suf(i), both + at, n);
                    else ops.template prefixStep<p>(i == 2 ? row(y0 + kh, c) : prefix + at, in, prefix + at, suf(i), both + at, n);
                    finish(P, both, b + i);
                }
            });
        }
    }
};

// Checks, in order: a null output (qvnErrNullPointer); the ROI (qvnErrSize);
// a mask side below 1 (qvnErrMaskSize); a type other than 8u, 16u, 16s, 32f
// (qvnErrDataType); a channel count other than 1, 3, 4 (qvnErrChannelCount);
// a total above 2^31 - 1 bytes (qvnErrSizeOverflow, 0 written).
inline QvnStatus extremaGetBufferSize(RoiL roi, RoiL mask, int dataType, int numChannels, int* pBufferSize) {
    QVN_TRY(check::ptrs(pBufferSize));
    QVN_TRY(check::roi(roi));
    if (mask.width < 1 || mask.height < 1) return qvnErrMaskSize;
    if (!isRankType(dataType)) return qvnErrDataType;
    if (numChannels != 1 && numChannels != 3 && numChannels != 4) return qvnErrChannelCount;
    return writeSize(extremaBufferBytes(roi.width, mask.width, mask.height, elemBytes(dataType), numChannels),
                     pBufferSize);
}

// Checks, in order: a null source, destination or buffer (qvnErrNullPointer);
// the ROI (qvnErrSize); a mask side below 1 (qvnErrMaskSize); the border kind
// (qvnErrBorderKind); a null border value with the constant kind
// (qvnErrNullPointer, multi-channel forms). A 1 x 1 mask copies with
// qvnBorderInMem and writes nothing (qvnWarnNoOperation) with any other kind.
template <class T, class L, bool Max>
inline QvnStatus extrema(const T* pSrc, int64_t srcStep, T* pDst, int64_t dstStep, RoiL roi, RoiL mask, int border,
                         const T* pValue, Qvn8u* pBuffer) {
    QVN_TRY(check::ptrs(pSrc, pDst, pBuffer));
    QVN_TRY(check::roi(roi));
    if (mask.width < 1 || mask.height < 1) return qvnErrMaskSize;
    QVN_TRY(acceptGeneral(border));
    if (isConstant(border) && pValue == nullptr) return qvnErrNullPointer;
    constexpr int64_t C = L::kElems;
    constexpr int64_t e = sizeof(T);
    const int kw = int(mask.width), kh = int(mask.height);
    const Reach k = reachOf(kw, kh);
    if (kw == 1 && kh == 1) {
        if (border != qvnBorderInMem) return qvnWarnNoOperation;
        if (static_cast<const void*>(pSrc) == static_cast<const void*>(pDst)) return qvnOk;
    }
    const bool inPlace = static_cast<const void*>(pSrc) == static_cast<const void*>(pDst);
    unsigned char* p = spec::alignUp64(pBuffer);
    T* const bands = inPlace ? reinterpret_cast<T*>(p) : nullptr;
    T* const scratch = reinterpret_cast<T*>(spec::alignUp64(p + (inPlace ? bandBytes(k, roi.width, C, e) : 0)));
    const int64_t rowElems = extremaRowElems(roi.width, kw, C, e);
    bool valueNaN = false;
    if (isConstant(border))
        for (int64_t c = 0; c < (L::kAlpha ? 3 : C); ++c) valueNaN |= !(pValue[c] == pValue[c]);
    // large outputs bypass the cache (not in place: the bands are rewritten)
    const int64_t bytes = roi.width * roi.height * C * e;
    const bool stream = !inPlace && !L::kAlpha && useStreamingStores(std::uint64_t(bytes), kStreamThreshold, 2 * std::uint64_t(bytes));
    const ExtremaFilter<T, Max> f{pSrc, srcStep, roi.width, roi.height, C, k, unsigned(border) & 0xF0,
                                  border::kindOf(border), pValue,
                                  {kw, kh, C, {L::kAlpha}, scratch + (1 + (kh > kr::kDirectRows ? kh + 1 : 2)) * rowElems,
                                   scratch + (2 + (kh > kr::kDirectRows ? kh + 1 : 2)) * rowElems, stream},
                                  scratch, rowElems, extremaChunk(roi.width, kw, C, e), valueNaN};
    f.prepare();
    inBands<T, L>(pDst, dstStep, roi, k, bands, f);
    return qvnOk;
}

}  // namespace rank

// The exported forms: C1 takes its border value by value, the others as an
// array of per-channel values.
template <class T, class L>
inline QvnStatus medianBorder(const T* pSrc, std::int64_t srcStep, T* pDst, std::int64_t dstStep, RoiL roi, RoiL mask,
                              int border, T value, Qvn8u* pBuffer) {
    return rank::median<T, L>(pSrc, srcStep, pDst, dstStep, roi, mask, border, &value, pBuffer);
}
template <class T, class L>
inline QvnStatus medianBorder(const T* pSrc, std::int64_t srcStep, T* pDst, std::int64_t dstStep, RoiL roi, RoiL mask,
                              int border, const T* value, Qvn8u* pBuffer) {
    return rank::median<T, L>(pSrc, srcStep, pDst, dstStep, roi, mask, border, value, pBuffer);
}
template <class T, class L, bool Max>
inline QvnStatus extremaBorder(const T* pSrc, std::int64_t srcStep, T* pDst, std::int64_t dstStep, RoiL roi, RoiL mask,
                               int border, T value, Qvn8u* pBuffer) {
    return rank::extrema<T, L, Max>(pSrc, srcStep, pDst, dstStep, roi, mask, border, &value, pBuffer);
}
template <class T, class L, bool Max>
inline QvnStatus extremaBorder(const T* pSrc, std::int64_t srcStep, T* pDst, std::int64_t dstStep, RoiL roi, RoiL mask,
                               int border, const T* value, Qvn8u* pBuffer) {
    return rank::extrema<T, L, Max>(pSrc, srcStep, pDst, dstStep, roi, mask, border, value, pBuffer);
}
using rank::extremaGetBufferSize;
using rank::medianGetBufferSize;

}  // namespace filter
QVN_TARGET_END

#endif
