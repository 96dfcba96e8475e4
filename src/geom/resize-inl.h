// qvniResizeNearest and qvniResizeLinear: a tile of the destination that a
// spec describes, from the source pointer advanced to the tile's source
// offset. The spec's tables give each destination row and column its taps;
// linear interpolates every source row the tile needs across once (into a
// ring of rows, one per tap, in the work buffer) and each destination row
// down from the ring.
#ifndef QVN_GEOM_RESIZE_INL_H
#define QVN_GEOM_RESIZE_INL_H

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/fpround-inl.h"
#include "geom/resize-spec-inl.h"
#include "geom/source-inl.h"
#include "kernels/resize-inl.h"

QVN_TARGET_BEGIN
namespace geom {
namespace resize {

template <class T>
inline constexpr Precision kPrecisionOf = std::is_same_v<T, Qvn64f> ? Precision::kDouble : Precision::kSingle;

// The resize calls' checks after their pointers, in order; the spec found.
template <class T, bool Wide>
inline QvnStatus tileChecks(const QvnResizeSpec* pSpec, RoiL tile, std::int64_t srcStep, std::int64_t dstStep,
                            std::int64_t x, std::int64_t y, int kind, const Spec** out) {
    if (tile.width == 0 || tile.height == 0) return qvnWarnNoOperation;
    const Spec* s = find(pSpec, Wide ? kIdL : kId, kPrecisionOf<T>);
    if (s == nullptr || s->dataType != kDataType<T>) return qvnErrBadSpec;
    QVN_TRY(check::roi(tile));
    if (srcStep % std::int64_t(sizeof(T)) != 0 || dstStep % std::int64_t(sizeof(T)) != 0) return qvnErrStep;
    QVN_TRY(offsetInside(s, x, y));
    if (s->antialiasing != 0) return qvnErrBadMode;
    if (s->kind != kind) return qvnErrBadSpec;
    *out = s;
    return qvnOk;
}

// The status of a finished tile: a tile larger than the spec's destination
// is produced, with a warning.
inline QvnStatus tileDone(const Spec* s, RoiL tile) {
    return tile.width > s->dstWidth || tile.height > s->dstHeight ? qvnWarnTileTooLarge : qvnOk;
}

// Destination position i of an axis: the table's entry, or beyond the
// destination (a tile larger than it) the mapping continued.
inline std::int64_t nearestAt(const Spec* s, const Axis& a, std::int64_t i) {
    return i < a.dstLen ? tableIndex(s, a, i) : nearestIndex(a, i);
}

// Linear position i: its first tap and the weights of its two taps, in the
// arithmetic's type (float, double, or 16-bit pairs in the fast mode).
template <class W>
struct Taps {
    std::int64_t first;
    W w[2];
};
template <class W>
inline Taps<W> linearAt(const Spec* s, const Axis& a, std::int64_t i) {
    Taps<W> t;
    if (i < a.dstLen) {
        t.first = tableIndex(s, a, i);
        if constexpr (std::is_same_v<W, std::int16_t>) {
            std::memcpy(t.w, table<std::int16_t>(s, a.coefTable) + 2 * i, sizeof t.w);
        } else {
            t.w[1] = table<W>(s, a.coefTable)[i];
            t.w[0] = W(1) - t.w[1];
        }
        return t;
    }
    const LinearTap l = linearTap(a, i);
    t.first = l.first;
    if constexpr (std::is_same_v<W, std::int16_t>) {
        t.w[1] = fixedWeight(l.frac), t.w[0] = std::int16_t(kFixedOne - t.w[1]);
    } else {
        t.w[1] = W(l.frac), t.w[0] = W(1) - t.w[1];
    }
    return t;
}

inline unsigned char* bufferStart(Qvn8u* buffer) { return spec::alignUp64(buffer); }

// The work buffer of a nearest tile: the byte offset of every column's pixel
// from the source pointer, then (targets with a byte shuffle) the plan of
// the block gather.
template <class T, class L>
inline void nearestTile(const Spec* s, const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep,
                        std::int64_t ox, std::int64_t oy, RoiL tile, Qvn8u* buffer) {
    namespace kr = kernels::resize;
    constexpr int kB = int(sizeof(T)) * L::kElems;
    const std::int64_t sx = sourceOffset(s->cols, ox), sy = sourceOffset(s->rows, oy);
    auto* cols = reinterpret_cast<std::int32_t*>(bufferStart(buffer));
    for (std::int64_t j = 0; j < tile.width; ++j) cols[j] = std::int32_t((nearestAt(s, s->cols, ox + j) - sx) * kB);
    auto* plan = reinterpret_cast<kr::GatherBlock*>(bufferStart(buffer) + 4 * up32(tile.width));
    if constexpr (kr::kBlockGather<kB>) kr::planBlocks<kB>(cols, tile.width, (s->srcWidth - sx) * kB, plan);
    const auto* base = reinterpret_cast<const std::uint8_t*>(src);
    const std::int64_t bytes = tile.width * kB;
    std::int64_t previous = -1;
    for (std::int64_t y = 0; y < tile.height; ++y) {
        const std::int64_t r = nearestAt(s, s->rows, oy + y);
        auto* d = reinterpret_cast<std::uint8_t*>(byteOffset(dst, y * dstStep));
        if (r == previous)  // the row above again
            std::memmove(d, d - dstStep, std::size_t(bytes));
        else
            if constexpr (kr::kBlockGather<kB>) kr::gatherBlocks<kB>(base + (r - sy) * srcStep, cols, plan, d, tile.width);
            else kr::gather<kB>(base + (r - sy) * srcStep, cols, d, tile.width);
        previous = r;
    }
}

// The work buffer of a linear tile (bufferPlan): the column table (first-tap
// offsets, then weight pairs, padded to whole steps), the source row, the
// ring of interpolated rows.
//
// Columns fall in three pieces of whole steps of the horizontal pass: the
// middle one, whose taps (and what the pass reads past them) lie inside the
// source, reads the source rows where they are; the left and right ones read
// a copy of their source pixels with the borders made by the border fill.
// Offsets of the middle columns count from the source row's first pixel,
// the others' from the copy's first pixel (source column lo).
template <class T, class L, class W>
inline void linearTile(const Spec* s, const SourceImage<T, L>& source, T* dst, std::int64_t dstStep,
                       std::int64_t ox, std::int64_t oy, RoiL tile, Qvn8u* buffer) {
    namespace kr = kernels::resize;
    constexpr int K = L::kElems;
    constexpr std::int64_t kStep = kr::kAcrossStep<K, W>;
    constexpr int kWeights = kr::kColumnWeights<K, W>;
    // rows interpolated across: float, double for 64f, 16-bit in the fast mode
    using H = std::conditional_t<std::is_same_v<W, std::int16_t>, std::int16_t, W>;
    const BufferPlan plan = bufferPlan(s, tile, K, kDataType<T>);
    unsigned char* b = bufferStart(buffer);
    const std::int64_t tw = tile.width, padded = up32(tw);
    auto* first = reinterpret_cast<std::int32_t*>(b);
    auto* weights = reinterpret_cast<W*>(b + 4 * padded);

    // the first taps (in the offset table for now) and weights
    const auto setWeights = [&](std::int64_t j, W w0, W w1) {
        for (int k = 0; k < kWeights / 2; ++k) weights[kWeights * j + k] = w0, weights[kWeights * j + kWeights / 2 + k] = w1;
    };
    for (std::int64_t j = 0; j < tw; ++j) {
        const Taps<W> t = linearAt<W>(s, s->cols, ox + j);
        first[j] = std::int32_t(t.first);
        setWeights(j, t.w[0], t.w[1]);
    }
    const std::int64_t lo = first[0], hi = first[tw - 1] + 2;
    // the middle piece [a, m)
    const auto inside = [&](std::int64_t j) { return first[j] >= 0 && first[j] + 2 + kr::kAcrossOverread<K> <= s->srcWidth; };
    std::int64_t jl = 0, jr = tw;
    while (jl < tw && !inside(jl)) ++jl;
    while (jr > jl && !inside(jr - 1)) --jr;
    const std::int64_t a = std::min(tw, (jl + kStep - 1) / kStep * kStep);
    const std::int64_t m = a + std::max<std::int64_t>(0, jr - a) / kStep * kStep;
    const std::int64_t leftEnd = a > 0 ? std::min<std::int64_t>(hi, first[a - 1] + 2) : lo;  // source columns the copy needs
    const std::int64_t rightFrom = m < tw ? first[m] : hi;
    for (std::int64_t j = 0; j < padded; ++j) {
        if (j >= tw) first[j] = 0, setWeights(j, W(0), W(0));
        else first[j] = std::int32_t((j >= a && j < m ? first[j] : first[j] - lo) * K);
    }

    T* copy = reinterpret_cast<T*>(b + plan.sourceRow);
    H* ring[2] = {reinterpret_cast<H*>(b + plan.ring), reinterpret_cast<H*>(b + plan.ring + plan.ringRowBytes)};
    std::int64_t held[2] = {INT64_MIN, INT64_MIN};
    const auto pass = [&](const T* row, std::int64_t j0, std::int64_t j1, H* out) {
        if (j0 >= j1) return;
        if constexpr (std::is_same_v<W, std::int16_t>)
            kr::acrossFast<K>(row, first + j0, weights + kWeights * j0, out + j0 * K, j1 - j0);
        else
            kr::acrossAccurate<T, K>(row, first + j0, weights + kWeights * j0, out + j0 * K, j1 - j0);
    };
    const auto across = [&](std::int64_t r) {
        H* out = ring[r & 1];
        if (held[r & 1] == r) return out;
        if (a > 0) source.readRow(lo, r, leftEnd - lo, copy);
        if (m < tw) source.readRow(rightFrom, r, hi - rightFrom, copy + (rightFrom - lo) * K);
        pass(copy, 0, a, out);
        pass(source.rowAt(r), a, m, out);
        pass(copy, m, tw, out);
        held[r & 1] = r;
        return out;
    };
    for (std::int64_t y = 0; y < tile.height; ++y) {
        const Taps<W> t = linearAt<W>(s, s->rows, oy + y);
        const H* r0 = across(t.first);
        const H* r1 = across(t.first + 1);
        T* d = byteOffset(dst, y * dstStep);
        if constexpr (std::is_same_v<W, std::int16_t>) {
            std::uint32_t pair;
            std::memcpy(&pair, t.w, 4);
            kr::downFast(r0, r1, pair, d, tile.width * K);
        } else {
            kr::downAccurate(r0, r1, t.w[0], t.w[1], d, tile.width * K);
        }
    }
}

// The border kinds of the linear resize: exactly 240, or a value below 256
// whose kind is 1 or 3, or 4 (replicate for a one-pixel margin, taken as 1),
// flags free. The kind to use, or -1.
inline int linearBorder(int border) {
    if (unsigned(border) >= 256u) return -1;
    if (border == qvnBorderInMem) return border;
    if ((border & 0xF) == qvnBorderMirrorEdge) border = (border & ~0xF) | qvnBorderReplicate;
    return (border & 13) == 1 ? border : -1;
}

}  // namespace resize

template <class P>
inline constexpr bool kWidePoint = std::is_same_v<P, QvnPointL>;

template <class T, class L, class S, class P>
inline QvnStatus resizeNearest(const T* pSrc, S srcStep, T* pDst, S dstStep, P dstOffset, RoiL dstSize,
                               const QvnResizeSpec* pSpec, Qvn8u* pBuffer) {
    using namespace resize;
    QVN_TRY(check::ptrs(pSrc, pDst, pSpec, pBuffer));
    const Spec* s = nullptr;
    QVN_TRY((tileChecks<T, kWidePoint<P>>(pSpec, dstSize, srcStep, dstStep, dstOffset.x, dstOffset.y,
                                          qvnInterpNearest, &s)));
    nearestTile<T, L>(s, pSrc, srcStep, pDst, dstStep, dstOffset.x, dstOffset.y, dstSize, pBuffer);
    return tileDone(s, dstSize);
}

template <class T, class L, class S, class P>
inline QvnStatus resizeLinear(const T* pSrc, S srcStep, T* pDst, S dstStep, P dstOffset, RoiL dstSize, int border,
                              const T* /*pBorderValue*/, const QvnResizeSpec* pSpec, Qvn8u* pBuffer) {
    using namespace resize;
    const int kind = linearBorder(border);
    if (kind < 0) return qvnErrBorderKind;
    QVN_TRY(check::ptrs(pSrc, pDst, pSpec, pBuffer));
    const Spec* s = nullptr;
    QVN_TRY((tileChecks<T, kWidePoint<P>>(pSpec, dstSize, srcStep, dstStep, dstOffset.x, dstOffset.y,
                                          qvnInterpLinear, &s)));
    const SourceImage<T, L> source(pSrc, srcStep, sourceOffset(s->cols, dstOffset.x),
                                   sourceOffset(s->rows, dstOffset.y), s->srcWidth, s->srcHeight, kind);
    const RoundingScope nearest(qvnRndNear);
    const auto run = [&](auto weight) {
        linearTile<T, L, decltype(weight)>(s, source, pDst, dstStep, dstOffset.x, dstOffset.y, dstSize, pBuffer);
    };
    if constexpr (std::is_same_v<T, Qvn64f>) run(double());
    else if constexpr (std::is_same_v<T, Qvn8u>) s->precision == kPrecisionFixed ? run(std::int16_t()) : run(float());
    else run(float());
    return tileDone(s, dstSize);
}

}  // namespace geom
QVN_TARGET_END

#endif
