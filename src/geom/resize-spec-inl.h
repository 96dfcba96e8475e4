// The resize spec: its record, the per-axis tables an Init builds, and the
// size query and queries that only read it (border size, source offset and
// rectangle, work-buffer size), with the mode switch that rebuilds its
// coefficients.
//
// The spec lies at the first 64-byte boundary of the caller's buffer: a fixed
// part of 272 bytes (Spec below), then the tables: the row index table
// (dstHeight entries rounded up to a multiple of 32, 32-bit), the column index
// table (likewise for dstWidth), then at the next 64-byte boundary the row and
// the column coefficient tables (linear: one weight per position, float, or
// double for 64f, or in the fast mode a pair of 16-bit weights). Tables are
// found by their byte offset from the spec's start, so the spec holds no
// pointer and reads the same wherever it lies.
//
// An axis maps destination position i to source positions by the kind's
// taps: tap k of position i reads source position first(i) + k with weight
// w_k(i). Nearest has one tap of weight 1; linear two, at floor(p) and
// floor(p) + 1 with p = (i + 0.5) * s - 0.5, weights 1 - f and f, f = p -
// floor(p). A kind with more taps (cubic, Lanczos) stores its weights per
// position in the coefficient table and is a line of kKinds plus its weight
// function; the resize rows take any number of taps.
#ifndef QVN_GEOM_RESIZE_SPEC_INL_H
#define QVN_GEOM_RESIZE_SPEC_INL_H

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/check-inl.h"
#include "core/spec-inl.h"

QVN_TARGET_BEGIN
namespace geom {
namespace resize {

inline constexpr std::uint32_t kId = 0x4B617389;   // built by the 32-bit functions
inline constexpr std::uint32_t kIdL = 0x4B61738C;  // built by the _L functions

// Coefficient precision: the QvnDataType of the stored weights.
inline constexpr int kPrecisionFloat = qvn32f, kPrecisionDouble = qvn64f, kPrecisionFixed = qvn16s;
inline constexpr int kModeFast = 1, kModeAccurate = 2;
// The fast mode's weights: 14 fraction bits.
inline constexpr int kFixedOne = 1 << 14;

// The largest side of an _L spec: 2^25 - 1.
inline constexpr std::int64_t kMaxSideL = 0x1FFFFFF;
// The largest size a 32-bit query returns.
inline constexpr std::int64_t kMaxBytes32 = 2147483646;

struct Axis {
    std::int32_t srcLen, dstLen;          // lengths
    std::int32_t srcReduced, dstReduced;  // divided by their gcd
    std::int64_t indexTable, coefTable;   // byte offsets from the spec's start (coefTable 0: none)
    std::int32_t before, after;           // positions that read before the first pixel, after the last
    std::int32_t reserved[2];
};

struct Spec {
    std::uint32_t id;
    std::int32_t precision;    // kPrecision*
    std::int32_t kind;         // QvnInterpolation
    std::int32_t counters[2];  // 1, 1 for linear; 0, 0 for nearest
    std::int32_t antialiasing;
    std::int32_t border[4];    // source pixels read beyond the left, top, right and bottom edges
    Axis rows, cols;
    std::int32_t mode;         // kModeFast or kModeAccurate
    std::int32_t reserved0;
    std::int64_t srcWidth, srcHeight, dstWidth, dstHeight;
    std::int32_t dataType;     // of the Init that built the spec
    std::int32_t reserved1[23];
};
static_assert(sizeof(Spec) == 272, "the fixed part is 272 bytes");
static_assert(offsetof(Spec, srcWidth) % 8 == 0 && offsetof(Axis, indexTable) % 8 == 0, "64-bit fields aligned");

// ---- kinds ------------------------------------------------------------------

// Taps per axis and the smallest source side of every kind the size query
// serves (super-sampling: at least the destination side, tested apart).
struct KindInfo {
    int kind, taps, minSide;
};
inline constexpr KindInfo kKinds[] = {
    {qvnInterpNearest, 1, 1}, {qvnInterpLinear, 2, 2}, {qvnInterpCubic, 4, 4},
    {qvnInterpSuper, 0, 1},   {qvnInterpLanczos, 6, 4},
};
inline const KindInfo* kindInfo(int kind) {
    for (const KindInfo& k : kKinds)
        if (k.kind == kind) return &k;
    return nullptr;
}
// The size query's test: at most 16 and its bit in 0x10147 (0, 1, 2, 6, 8, 16).
inline bool knownKind(int kind) { return unsigned(kind) <= 16u && ((0x10147u >> kind) & 1u) != 0; }

template <class T>
inline constexpr int kDataType = std::is_same_v<T, Qvn8u> ? qvn8u : std::is_same_v<T, Qvn16u> ? qvn16u
                               : std::is_same_v<T, Qvn16s> ? qvn16s : std::is_same_v<T, Qvn32f> ? qvn32f : qvn64f;

inline int elementBytes(int dataType) {
    switch (dataType) {
        case qvn8u: return 1;
        case qvn16u:
        case qvn16s: return 2;
        case qvn32f: return 4;
        default: return 8;
    }
}

// ---- sizes --------------------------------------------------------------------

// Euclid's algorithm (std::gcd counts trailing zeros with an instruction
// newer than the baseline).
inline std::int64_t gcd(std::int64_t a, std::int64_t b) {
    while (b != 0) {
        const std::int64_t r = a % b;
        a = b, b = r;
    }
    return a;
}

inline std::int64_t up32(std::int64_t n) { return (n + 31) & ~std::int64_t(31); }
inline std::int64_t alignBytes(std::int64_t n, std::int64_t a) { return (n + a - 1) / a * a; }

// The fixed part and the 64-byte boundary before the coefficient tables.
inline constexpr std::int64_t kFixedBytes = 336;
inline constexpr std::int64_t kSlack = 64;

struct Sizes {
    std::int64_t spec, init;
};

// Super-sampling's table length of one axis.
inline std::int64_t superLength(std::int64_t src, std::int64_t dst) {
    const std::int64_t g = gcd(src, dst), s = src / g, d = dst / g, q = s / d, r = s % d;
    return (q + (r == 0 ? 0 : r == 1 ? 1 : 2) + 1) * d;
}
// Antialiasing's taps of one axis for a kernel of n0 taps.
inline std::int64_t antialiasTaps(int n0, std::int64_t src, std::int64_t dst) {
    const double ratio = double(src) / double(dst);
    return ratio <= 1.0 ? n0 : 2 * std::int64_t(std::ceil(n0 * ratio));
}

// Spec and init-buffer sizes of a kind (aa: antialiasing on, for the kinds
// that have it), every one with the 64-byte alignment allowance.
inline Sizes specSizes(int kind, bool aa, bool is64f, RoiL src, RoiL dst) {
    const std::int64_t w32 = up32(dst.width), h32 = up32(dst.height), tables = w32 + h32;
    const std::int64_t base = 4 * tables + kFixedBytes + kSlack;
    if (aa && (kind == qvnInterpLinear || kind == qvnInterpCubic || kind == qvnInterpLanczos)) {
        const int n0 = kindInfo(kind)->taps;
        const std::int64_t e = is64f ? 8 : 4;
        const std::int64_t nx = antialiasTaps(n0, src.width, dst.width), ny = antialiasTaps(n0, src.height, dst.height);
        return {((e * nx * dst.width + 31) & ~std::int64_t(31)) + ((e * ny * dst.height + 31) & ~std::int64_t(31)) + base,
                8 * tables + 64};
    }
    switch (kind) {
        case qvnInterpNearest: return {base, 64};
        case qvnInterpLinear: return {is64f ? 12 * tables + 384 : 8 * tables + kFixedBytes + kSlack, 64};
        case qvnInterpCubic:
            return {((16 * dst.height + 508) & ~std::int64_t(127)) + ((16 * dst.width + 508) & ~std::int64_t(127)) + base,
                    4 * tables + 64};
        case qvnInterpLanczos:
            return {((24 * dst.height + 764) & ~std::int64_t(127)) + ((24 * dst.width + 764) & ~std::int64_t(127)) + base,
                    4 * tables + 64};
        default: {  // super-sampling
            const std::int64_t cx = superLength(src.width, dst.width), cy = superLength(src.height, dst.height);
            return {((4 * cy + 124) & ~std::int64_t(127)) + ((4 * cx + 124) & ~std::int64_t(127)) + 4 * (cx + cy) +
                        kFixedBytes + kSlack,
                    64};
        }
    }
}

// The size query's checks from the zero sides on; the output pointers and
// the data type (of the _L form) are the callers'.
inline QvnStatus sizeChecks(RoiL src, RoiL dst, int kind) {
    if (src.width == 0 || src.height == 0 || dst.width == 0 || dst.height == 0) return qvnWarnNoOperation;
    if (src.width < 0 || src.height < 0 || dst.width < 0 || dst.height < 0) return qvnErrSize;
    return knownKind(kind) ? qvnOk : qvnErrInterpolationKind;
}
inline QvnStatus minimumSource(RoiL src, RoiL dst, int kind) {
    if (kind == qvnInterpNone) return qvnErrBadMode;
    if (kind == qvnInterpSuper) return src.width < dst.width || src.height < dst.height ? qvnErrSize : qvnOk;
    const int m = kindInfo(kind)->minSide;
    return src.width < m || src.height < m ? qvnErrSize : qvnOk;
}
inline QvnStatus sizesOf(RoiL src, RoiL dst, int kind, unsigned aa, bool is64f, Sizes* out) {
    const bool plainOnly = kind == qvnInterpNearest || kind == qvnInterpSuper;
    *out = specSizes(kind, aa != 0 && !plainOnly, is64f, src, dst);
    return aa != 0 && plainOnly ? qvnWarnAntialiasIgnored : qvnOk;
}

// ---- axes ---------------------------------------------------------------------

// Linear position i: the first tap and the second tap's weight.
struct LinearTap {
    std::int64_t first;
    double frac;
};
inline LinearTap linearTap(const Axis& a, std::int64_t i) {
    const double s = double(a.srcReduced) / double(a.dstReduced);
    const double p = (double(i) + 0.5) * s - 0.5;
    const double f = std::floor(p);
    return {std::int64_t(f), p - f};
}
// Nearest position i: the source position, never outside the source.
inline std::int64_t nearestIndex(const Axis& a, std::int64_t i) {
    const double scale = (1.0 / double(a.dstLen)) * double(a.srcLen);
    const std::int64_t k = std::int64_t((double(i) + 0.5) * scale + -1e-10);
    return std::min<std::int64_t>(std::max<std::int64_t>(k, 0), a.srcLen - 1);
}
// The fast mode's integer weight of the second tap.
inline std::int16_t fixedWeight(double frac) { return std::int16_t(std::int32_t(kFixedOne * frac + 1e-7)); }

template <class U>
inline U* table(Spec* s, std::int64_t offset) {
    return reinterpret_cast<U*>(reinterpret_cast<unsigned char*>(s) + offset);
}
template <class U>
inline const U* table(const Spec* s, std::int64_t offset) {
    return reinterpret_cast<const U*>(reinterpret_cast<const unsigned char*>(s) + offset);
}

// Bytes of one coefficient-table entry for a precision.
inline std::int64_t coefBytes(int precision) { return precision == kPrecisionDouble ? 8 : 4; }

// The coefficient tables of a linear axis (entries up to the table's rounded
// length continue the mapping) in the spec's precision.
inline void fillCoefficients(Spec* s, const Axis& a) {
    const std::int64_t n = up32(a.dstLen);
    for (std::int64_t i = 0; i < n; ++i) {
        const double f = linearTap(a, i).frac;
        if (s->precision == kPrecisionDouble) {
            table<double>(s, a.coefTable)[i] = f;
        } else if (s->precision == kPrecisionFixed) {
            const std::int16_t w = fixedWeight(f);
            std::int16_t* pair = table<std::int16_t>(s, a.coefTable) + 2 * i;
            pair[0] = std::int16_t(kFixedOne - w), pair[1] = w;
        } else {
            table<float>(s, a.coefTable)[i] = float(f);
        }
    }
}

inline void fillAxis(Spec* s, Axis& a, std::int64_t src, std::int64_t dst, std::int64_t indexAt, std::int64_t coefAt) {
    const std::int64_t g = gcd(src, dst);
    a.srcLen = std::int32_t(src), a.dstLen = std::int32_t(dst);
    a.srcReduced = std::int32_t(src / g), a.dstReduced = std::int32_t(dst / g);
    a.indexTable = indexAt;
    std::int32_t* index = table<std::int32_t>(s, indexAt);
    const std::int64_t n = up32(dst);
    if (s->kind == qvnInterpNearest) {
        for (std::int64_t i = 0; i < n; ++i) index[i] = std::int32_t(nearestIndex(a, i));
        return;
    }
    a.coefTable = coefAt;
    for (std::int64_t i = 0; i < n; ++i) {
        const LinearTap t = linearTap(a, i);
        index[i] = std::int32_t(t.first);
        if (i < dst) a.before += t.first < 0, a.after += t.first + 1 > src - 1;
    }
    fillCoefficients(s, a);
}

// Clears the fixed part and writes the spec of kind for images of dataType.
inline void build(void* buffer, std::uint32_t id, int kind, int dataType, RoiL src, RoiL dst) {
    Spec* s = spec::place<Spec>(buffer, id);
    s->kind = kind;
    s->precision = dataType == qvn64f ? kPrecisionDouble : kPrecisionFloat;
    s->mode = kModeAccurate;
    const int depth = kind == qvnInterpLinear ? 1 : 0;
    s->counters[0] = s->counters[1] = depth;
    for (std::int32_t& b : s->border) b = depth;
    s->srcWidth = src.width, s->srcHeight = src.height, s->dstWidth = dst.width, s->dstHeight = dst.height;
    s->dataType = dataType;
    const std::int64_t h32 = up32(dst.height), w32 = up32(dst.width);
    const std::int64_t coefAt = alignBytes(std::int64_t(sizeof(Spec)) + 4 * (h32 + w32), 64);
    fillAxis(s, s->rows, src.height, dst.height, sizeof(Spec), coefAt);
    fillAxis(s, s->cols, src.width, dst.width, std::int64_t(sizeof(Spec)) + 4 * h32, coefAt + coefBytes(s->precision) * h32);
}

// ---- finding a spec ---------------------------------------------------------------

// Which precisions a function of a type accepts: 19 for 64f, 13 or 7 for the
// others; Any: the type-less _L queries.
enum class Precision { kSingle, kDouble, kAny };
inline bool precisionFits(int precision, Precision p) {
    switch (p) {
        case Precision::kSingle: return precision == kPrecisionFloat || precision == kPrecisionFixed;
        case Precision::kDouble: return precision == kPrecisionDouble;
        case Precision::kAny: break;
    }
    return true;
}
// The spec in the caller's buffer when it carries id and a precision that
// p accepts; null otherwise (qvnErrBadSpec).
inline const Spec* find(const QvnResizeSpec* buffer, std::uint32_t id, Precision p) {
    const Spec* s = spec::find<Spec>(buffer, id);
    return s && precisionFits(s->precision, p) ? s : nullptr;
}

inline std::int64_t tableIndex(const Spec* s, const Axis& a, std::int64_t i) {
    return table<std::int32_t>(s, a.indexTable)[i];
}

// ---- work buffer ------------------------------------------------------------------

// A tile's work buffer, in pieces that each start on a 64-byte boundary:
// the column tables (offset and weights of every tile column), one source
// row with its borders in the element type, and a ring of interpolated rows
// (one per tap) in the arithmetic's type.
struct BufferPlan {
    std::int64_t columns, sourceRow, ring, ringRowBytes, total;
};
// Source columns a tile of width w can read: its span plus the taps, with
// room for the rounding of the scale.
inline std::int64_t sourceSpan(const Axis& a, std::int64_t w, int taps) {
    return w * std::int64_t(a.srcLen) / std::int64_t(a.dstLen) + taps + 3;
}
inline BufferPlan bufferPlan(const Spec* s, RoiL tile, int channels, int dataType) {
    const std::int64_t e = elementBytes(dataType);
    BufferPlan p{};
    if (s->kind == qvnInterpNearest) {  // offsets, and a block plan of 40 bytes per 16 bytes of pixels
        p.columns = 0;
        p.total = 4 * up32(tile.width) + 40 * (tile.width * channels * e / 16 + 1) + 64;
        return p;
    }
    const int taps = kindInfo(s->kind)->taps;
    // the arithmetic's element: float, double for 64f, 16-bit in the fast mode (8u only)
    const std::int64_t work = dataType == qvn64f ? 8 : 4;
    p.columns = 0;
    // first-tap offsets and weights (float pixels of several elements: each weight four times)
    p.sourceRow = alignBytes(up32(tile.width) * (4 + 4 * taps * work), 64) + 64;
    p.ring = p.sourceRow + alignBytes((sourceSpan(s->cols, tile.width, taps) + 4) * channels * e + 64, 64);
    // the vertical pass reads whole steps of up to 256 bytes
    p.ringRowBytes = alignBytes(tile.width * channels * work + 256, 64);
    p.total = p.ring + taps * p.ringRowBytes + 64;
    return p;
}

}  // namespace resize

// ---- the exported queries ----------------------------------------------------------

template <bool Is64f>
inline QvnStatus resizeGetSize(RoiL src, RoiL dst, int kind, unsigned aa, int* pSpecSize, int* pInitBufSize) {
    using namespace resize;
    QVN_TRY(check::ptrs(pSpecSize, pInitBufSize));
    QVN_TRY(sizeChecks(src, dst, kind));
    if (Is64f && !(kind == qvnInterpLinear || aa != 0)) return qvnErrBadMode;
    QVN_TRY(minimumSource(src, dst, kind));
    Sizes z;
    const QvnStatus s = sizesOf(src, dst, kind, aa, Is64f, &z);
    if (z.spec > kMaxBytes32 || z.init > kMaxBytes32) return qvnErrSizeOverflow;
    *pSpecSize = int(z.spec), *pInitBufSize = int(z.init);
    return s;
}

inline QvnStatus resizeGetSizeL(QvnRoiSizeL src, QvnRoiSizeL dst, int dataType, int kind, unsigned aa,
                                QvnSizeL* pSpecSize, QvnSizeL* pInitBufSize) {
    using namespace resize;
    QVN_TRY(check::ptrs(pSpecSize, pInitBufSize));
    QVN_TRY(sizeChecks(src, dst, kind));
    if (check::dataType(dataType) != qvnOk || (dataType == qvn64f && kind != qvnInterpLinear)) return qvnErrDataType;
    if (dataType == qvn64f && aa == 1) return qvnErrBadMode;
    if (std::max({src.width, src.height, dst.width, dst.height}) > kMaxSideL) return qvnErrSizeOverflow;
    QVN_TRY(minimumSource(src, dst, kind));
    Sizes z;
    const QvnStatus s = sizesOf(src, dst, kind, aa, dataType == qvn64f, &z);
    *pSpecSize = z.spec, *pInitBufSize = z.init;
    return s;
}

// The Inits' checks: the spec pointer; zero sides (nothing to do); negative
// sides; a linear source of one pixel in either direction.
inline QvnStatus initChecks(const void* pSpec, RoiL src, RoiL dst, int kind) {
    QVN_TRY(check::ptrs(pSpec));
    if (src.width == 0 || src.height == 0 || dst.width == 0 || dst.height == 0) return qvnWarnNoOperation;
    if (src.width < 1 || src.height < 1 || dst.width < 1 || dst.height < 1) return qvnErrSize;
    if (kind == qvnInterpLinear && (src.width == 1 || src.height == 1)) return qvnErrSize;
    return qvnOk;
}

template <int Kind, class T>
inline QvnStatus resizeInit(RoiL src, RoiL dst, QvnResizeSpec* pSpec) {
    QVN_TRY(initChecks(pSpec, src, dst, Kind));
    resize::build(pSpec, resize::kId, Kind, resize::kDataType<T>, src, dst);
    return qvnOk;
}

template <int Kind>
inline QvnStatus resizeInitL(QvnRoiSizeL src, QvnRoiSizeL dst, int dataType, QvnResizeSpec* pSpec) {
    QVN_TRY(initChecks(pSpec, src, dst, Kind));
    if (check::dataType(dataType) != qvnOk || (Kind == qvnInterpNearest && dataType == qvn64f)) return qvnErrDataType;
    if (std::max({src.width, src.height, dst.width, dst.height}) > resize::kMaxSideL) return qvnErrSizeOverflow;
    resize::build(pSpec, resize::kIdL, Kind, dataType, src, dst);
    return qvnOk;
}

// GetBufferSize after its pointer check.
inline QvnStatus bufferSize(const QvnResizeSpec* pSpec, RoiL dst, unsigned channels, std::uint32_t id,
                            resize::Precision p, std::int64_t* bytes) {
    using namespace resize;
    if (dst.width == 0 || dst.height == 0) return qvnWarnNoOperation;
    const Spec* s = find(pSpec, id, p);
    if (s == nullptr) return qvnErrBadSpec;
    if (channels != 1 && channels != 3 && channels != 4) return qvnErrChannelCount;
    QVN_TRY(check::roi(dst));
    *bytes = bufferPlan(s, dst, int(channels), s->dataType).total;
    return qvnOk;
}

template <bool Is64f>
inline QvnStatus resizeGetBufferSize(const QvnResizeSpec* pSpec, RoiL dst, unsigned channels, int* pBufSize) {
    using namespace resize;
    std::int64_t bytes = 0;
    QVN_TRY(check::ptrs(pSpec, pBufSize));
    QVN_TRY(bufferSize(pSpec, dst, channels, kId, Is64f ? Precision::kDouble : Precision::kSingle, &bytes));
    if (bytes > kMaxBytes32) return qvnErrSizeOverflow;
    *pBufSize = int(bytes);
    return qvnOk;
}

inline QvnStatus resizeGetBufferSizeL(const QvnResizeSpec* pSpec, QvnRoiSizeL dst, unsigned channels,
                                      QvnSizeL* pBufSize) {
    std::int64_t bytes = 0;
    QVN_TRY(check::ptrs(pSpec, pBufSize));
    QVN_TRY(bufferSize(pSpec, dst, channels, resize::kIdL, resize::Precision::kAny, &bytes));
    *pBufSize = bytes;
    return qvnOk;
}

template <bool Is64f, bool Wide>
inline QvnStatus resizeGetBorderSize(const QvnResizeSpec* pSpec, QvnBorderSize* pBorderSize) {
    using namespace resize;
    QVN_TRY(check::ptrs(pSpec, pBorderSize));
    const Spec* s = find(pSpec, Wide ? kIdL : kId, Wide ? Precision::kAny : Is64f ? Precision::kDouble : Precision::kSingle);
    if (s == nullptr) return qvnErrBadSpec;
    *pBorderSize = {Qvn32u(s->border[0]), Qvn32u(s->border[1]), Qvn32u(s->border[2]), Qvn32u(s->border[3])};
    return qvnOk;
}

namespace resize {

// A destination offset inside the spec's destination, or qvnErrArgRange.
inline QvnStatus offsetInside(const Spec* s, std::int64_t x, std::int64_t y) {
    return x < 0 || y < 0 || x >= s->dstWidth || y >= s->dstHeight ? qvnErrArgRange : qvnOk;
}
// The proportional source position of destination position o of an axis.
inline std::int64_t sourceOffset(const Axis& a, std::int64_t o) {
    return std::int64_t(std::floor(double(o) * double(a.srcReduced) / double(a.dstReduced)));
}
// The source positions that destination positions [o, o + n) read, inside
// the source: [lo, hi].
inline void sourceSpan(const Spec* s, const Axis& a, std::int64_t o, std::int64_t n, std::int64_t* lo,
                       std::int64_t* hi) {
    const auto first = [&](std::int64_t i) {
        return s->kind == qvnInterpNearest ? nearestIndex(a, i) : linearTap(a, i).first;
    };
    const std::int64_t last = a.srcLen - 1;
    *lo = std::min(std::max<std::int64_t>(first(o), 0), last);
    *hi = std::min(std::max<std::int64_t>(first(o + n - 1) + kindInfo(s->kind)->taps - 1, 0), last);
}

template <class P>
inline QvnStatus srcOffset(const QvnResizeSpec* pSpec, P dst, P* out, std::uint32_t id, Precision p) {
    QVN_TRY(check::ptrs(pSpec, out));
    const Spec* s = find(pSpec, id, p);
    if (s == nullptr) return qvnErrBadSpec;
    QVN_TRY(offsetInside(s, dst.x, dst.y));
    out->x = decltype(out->x)(sourceOffset(s->cols, dst.x));
    out->y = decltype(out->y)(sourceOffset(s->rows, dst.y));
    return qvnOk;
}

template <class P, class R>
inline QvnStatus srcRoi(const QvnResizeSpec* pSpec, P dst, R size, P* outOffset, R* outSize, std::uint32_t id,
                        Precision p) {
    QVN_TRY(check::ptrs(pSpec, outOffset, outSize));
    QVN_TRY(check::roi(size));
    const Spec* s = find(pSpec, id, p);
    if (s == nullptr) return qvnErrBadSpec;
    QVN_TRY(offsetInside(s, dst.x, dst.y));
    std::int64_t x0, x1, y0, y1;
    sourceSpan(s, s->cols, dst.x, size.width, &x0, &x1);
    sourceSpan(s, s->rows, dst.y, size.height, &y0, &y1);
    using C = decltype(outOffset->x);
    using Z = decltype(outSize->width);
    outOffset->x = C(x0), outOffset->y = C(y0);
    outSize->width = Z(x1 - x0 + 1), outSize->height = Z(y1 - y0 + 1);
    return qvnOk;
}

}  // namespace resize

template <bool Is64f>
inline QvnStatus resizeGetSrcOffset(const QvnResizeSpec* pSpec, QvnPoint dst, QvnPoint* pSrcOffset) {
    return resize::srcOffset(pSpec, dst, pSrcOffset, resize::kId,
                             Is64f ? resize::Precision::kDouble : resize::Precision::kSingle);
}
inline QvnStatus resizeGetSrcOffsetL(const QvnResizeSpec* pSpec, QvnPointL dst, QvnPointL* pSrcOffset) {
    return resize::srcOffset(pSpec, dst, pSrcOffset, resize::kIdL, resize::Precision::kAny);
}
template <bool Is64f>
inline QvnStatus resizeGetSrcRoi(const QvnResizeSpec* pSpec, QvnPoint dst, QvnRoiSize size, QvnPoint* pOffset,
                                 QvnRoiSize* pSize) {
    return resize::srcRoi(pSpec, dst, size, pOffset, pSize, resize::kId,
                          Is64f ? resize::Precision::kDouble : resize::Precision::kSingle);
}
inline QvnStatus resizeGetSrcRoiL(const QvnResizeSpec* pSpec, QvnPointL dst, QvnRoiSizeL size, QvnPointL* pOffset,
                                  QvnRoiSizeL* pSize) {
    return resize::srcRoi(pSpec, dst, size, pOffset, pSize, resize::kIdL, resize::Precision::kAny);
}

// Fast (1, 8u only) or accurate (2) coefficients, rebuilt in place.
inline QvnStatus resizeSetMode(int hint, QvnResizeSpec* pSpec) {
    using namespace resize;
    QVN_TRY(check::ptrs(pSpec));
    if (hint != kModeFast && hint != kModeAccurate) return qvnErrBadMode;
    Spec* s = spec::alignUp64(reinterpret_cast<Spec*>(pSpec));
    if (s->id != kId && s->id != kIdL) return qvnErrBadSpec;
    if (s->mode == hint) return qvnOk;
    if (hint == kModeFast && s->dataType != qvn8u) return qvnErrBadMode;
    if (s->kind != qvnInterpLinear && s->kind != qvnInterpCubic && s->kind != qvnInterpLanczos) return qvnErrBadMode;
    s->mode = hint;
    s->precision = hint == kModeFast ? kPrecisionFixed : kPrecisionFloat;
    fillCoefficients(s, s->rows);
    fillCoefficients(s, s->cols);
    return qvnOk;
}

}  // namespace geom
QVN_TARGET_END

#endif
