// qvniFilterBorderGetSize, qvniFilterBorderInit_16s, _32f, _64f,
// qvniFilterBorderSetMode and qvniFilterBorder_<T>_<C>R: the general 2D
// filter. Each output pixel is the correlation of its neighbourhood with the
// caller's kernel, anchored at ((kw - 1) / 2, (kh - 1) / 2); neighbours beyond
// the ROI come from the bordered driver (bordered-inl.h).
//
// The spec (caller memory, from its first 64-byte boundary): the header
// below, then the stored kernel (the caller's reversed, elements of the
// kernel type), then the converted copy that the kernels read: for float
// kernels a 16-byte block of four copies per coefficient in correlation order,
// then the blocks of a rank-1 kernel's row and column factors; for integer
// kernels the pair blocks of each kernel row, then the row pairs and column
// pairs of a rank-1 kernel. Every block starts on a 64-byte boundary; the
// filter finds them by their offsets, never by the pointers in the header.
#ifndef QVN_FILTER_GENERAL_INL_H
#define QVN_FILTER_GENERAL_INL_H

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <type_traits>
#include <utility>

#include "core/check-inl.h"
#include "core/fpround-inl.h"
#include "core/spec-inl.h"
#include "core/stream-inl.h"
#include "filter/bordered-inl.h"
#include "kernels/filter-inl.h"
#include "qvncore.h"

QVN_TARGET_BEGIN
namespace filter {

namespace kf = kernels::filt;

// The spec kinds: which Init built it, for which image type.
enum SpecId : std::uint32_t {
    kId8uInt = 0, kId16sInt = 1, kId8uFloat = 3, kId16sFloat = 4, kId16uFloat = 5, kId32f = 6, kId64f = 7
};
inline constexpr std::uint32_t kTag = 0x51464253;  // "SBFQ": a header this family wrote
inline constexpr int kAccuracyFlag = 0x10000;      // bit 16 of a rounding mode
inline constexpr std::int64_t kHeaderBytes = 128;

struct FilterSpec {
    std::uint32_t id;
    std::int32_t kw, kh;
    // the divisor record (integer kernels)
    std::int32_t divMode;  // 0 none, 1 shift, 2 reciprocal
    std::int32_t shift, addend;
    float reciprocal, scale;
    std::int32_t divisor;
    double scaleD;
    std::int32_t mask;
    float divisorF;
    std::int32_t divRounding;
    std::int32_t rounding;  // QvnRounding, with kAccuracyFlag where honoured
    std::int32_t offset;
    float offsetF;  // integer kernels: offset x divisor
    std::int32_t hint;
    const void* kernel;
    const void* converted;
    std::int32_t channels;
    // this library's plan
    std::uint32_t tag;
    std::int32_t separable;      // a rank-1 kernel whose factor blocks are built
    std::int32_t sepBias;        // integer: the bias of the 16-bit column sums
    std::int32_t sepCorrection;  // integer: bias x sum of the row factors (wrapping)
};
static_assert(sizeof(FilterSpec) <= kHeaderBytes, "the header fits the size queries' 128 bytes");

inline bool isIntegerId(std::uint32_t id) { return id == kId8uInt || id == kId16sInt; }
inline std::int64_t storedBytes(std::uint32_t id) { return isIntegerId(id) ? 2 : id == kId64f ? 8 : 4; }

// Byte offsets of the blocks from the spec's start.
struct Layout {
    std::int64_t kernel, converted, rowFactors, colFactors;
};
inline Layout layoutOf(const FilterSpec& s) {
    const std::int64_t n = std::int64_t(s.kw) * s.kh, conv = kHeaderBytes + spec::align64(n * storedBytes(s.id));
    if (isIntegerId(s.id)) {
        const std::int64_t pairs = (s.kw + 1) / 2;
        return {kHeaderBytes, conv, conv + spec::align64(16 * s.kh * pairs),
                conv + spec::align64(16 * s.kh * pairs) + spec::align64(16 * pairs)};
    }
    return {kHeaderBytes, conv, conv + spec::align64(16 * n), conv + spec::align64(16 * n) + spec::align64(16 * s.kw)};
}
template <class T, class S>
inline T* block(S* s, std::int64_t offset) {
    using B = std::conditional_t<std::is_const_v<S>, const unsigned char, unsigned char>;
    return reinterpret_cast<T*>(reinterpret_cast<B*>(s) + offset);
}

// ---- size query ------------------------------------------------------------------------------------
inline std::int64_t floorTo(std::int64_t v, std::int64_t m) { return v / m * m; }

// The row work area of the size query's table (and this library's choice
// where the table has no entry: the 8u/16u float-form row for 16s in float
// form and for 8u integer kernels, the 4-channel column for 2 channels).
inline std::int64_t rowWorkArea(int dataType, int channels, bool floatForm, std::int64_t kw, std::int64_t kh,
                                std::int64_t w) {
    const std::int64_t n = kw * kh;
    const int c = channels == 2 ? 4 : channels;
    std::int64_t inner;
    if (dataType == qvn32f) {
        inner = c == 1 ? 32 * n : 16 * n;
    } else if (dataType == qvn16s && !floatForm) {
        inner = c == 1 ? floorTo(4 * (w + 8 * n) + 12, 16)
                : c == 3 ? floorTo(4 * (3 * w + 4 * n) + 124, 16)
                         : floorTo(16 * (n + w) + 124, 16);
    } else {
        inner = c == 1 ? floorTo(8 * w + 24, 32) + floorTo(16 * n + 8 * w + 40, 16)
                : c == 3 ? floorTo(24 * w + 24, 32) + floorTo(4 * (4 * n + 6 * w) + 40, 16)
                         : 64 * w + 16 * n;
    }
    return inner < 16 ? 0 : floorTo(inner + 191, 64);
}

inline QvnStatus writeSizes(std::int64_t spec, std::int64_t buffer, int* pSpecSize, int* pBufferSize) {
    if (spec > INT_MAX || buffer > INT_MAX) {
        *pBufferSize = 0;
        return qvnErrSizeOverflow;
    }
    *pSpecSize = int(spec);
    *pBufferSize = int(buffer);
    return qvnOk;
}

inline QvnStatus borderGetSize(RoiL kernelSize, RoiL roiSize, int dataType, int kernelType, int numChannels,
                               int* pSpecSize, int* pBufferSize) {
    QVN_TRY(check::roi(kernelSize));
    QVN_TRY(check::roi(roiSize));
    const std::int64_t kw = kernelSize.width, kh = kernelSize.height, w = roiSize.width, h = roiSize.height;
    if (dataType == qvn64f) {
        if (kernelType != qvn64f) return qvnErrDataType;
        if (numChannels != 1) return qvnErrChannel;
        QVN_TRY(check::ptrs(pSpecSize, pBufferSize));
        return writeSizes(spec::align64(8 * kw * kh) + 191, stripBytes(kw, kh, w, h, 8, 1) + 126, pSpecSize,
                          pBufferSize);
    }
    if (dataType != qvn8u && dataType != qvn16u && dataType != qvn16s && dataType != qvn32f) return qvnErrDataType;
    const bool knownKernel = kernelType == qvn16s || kernelType == qvn32f;
    if (numChannels < 1 || numChannels > 4) return knownKernel ? qvnErrChannel : qvnErrDataType;
    if (pSpecSize == nullptr || pBufferSize == nullptr) return knownKernel ? qvnErrNullPointer : qvnErrDataType;
    if (!knownKernel) return qvnErrDataType;
    const bool forced = dataType == qvn16u || (dataType == qvn16s && (kw == 1 || kh == 1 || numChannels >= 3 ||
                                                                       (numChannels == 1 && kw == 2)));
    const bool floatForm = forced || kernelType == qvn32f;
    const int s = floatForm ? 2 : 1;
    std::int64_t spec = spec::align64(80 * kh * (kw + kw % 2)) + spec::align64((kw * kh) << s) + 191;
    if (floatForm && numChannels != 2) spec += spec::align64(16 * kw * kh);
    const std::int64_t elem = dataType == qvn8u ? 1 : dataType == qvn32f ? 4 : 2;
    std::int64_t area = rowWorkArea(dataType, numChannels, floatForm, kw, kh, w);
    if (ownGetFeature(qvnCpuWideScratch)) area *= 2;  // the wider scratch rows of the AVX-512 build
    return writeSizes(spec, stripBytes(kw, kh, w, h, elem, numChannels) + area + 63, pSpecSize, pBufferSize);
}

// ---- initialisers --------------------------------------------------------------------------------
inline QvnStatus roundingArg(int roundMode) { return unsigned(roundMode & ~kAccuracyFlag) > 2u ? qvnErrRounding : qvnOk; }

inline std::int64_t gcd(std::int64_t a, std::int64_t b) {
    while (b != 0) {
        const std::int64_t t = a % b;
        a = b, b = t;
    }
    return a < 0 ? -a : a;
}

// A float kernel (caller's order) as col(j) * row(i), within 2^-22 of its
// largest coefficient, when both dimensions are at least 2.
template <class At>
inline bool rankOneFloat(const At& k, int kw, int kh, float* row, float* col) {
    if (kw < 2 || kh < 2) return false;
    int pj = 0, pi = 0;
    double top = 0;
    for (int j = 0; j < kh; ++j)
        for (int i = 0; i < kw; ++i) {
            const double a = std::fabs(double(k(j, i)));
            if (!std::isfinite(a)) return false;
            if (a > top) top = a, pj = j, pi = i;
        }
    if (top == 0) return false;
    for (int i = 0; i < kw; ++i) row[i] = k(pj, i);
    for (int j = 0; j < kh; ++j) col[j] = float(double(k(j, pi)) / double(k(pj, pi)));
    for (int j = 0; j < kh; ++j)
        for (int i = 0; i < kw; ++i)
            if (std::fabs(double(col[j]) * double(row[i]) - double(k(j, i))) > top * 0x1p-22) return false;
    return true;
}

// An integer kernel as col(j) * row(i) in 16-bit integers whose 8u column
// sums, less a bias, fit 16 bits (255 x sum |col| <= 65535): then bias and
// bias x sum(row) (wrapping) are set.
template <class At>
inline bool rankOneInt(const At& k, int kw, int kh, std::int16_t* row, std::int16_t* col, std::int32_t& bias,
                       std::int32_t& correction) {
    if (kw < 2 || kh < 2) return false;
    int pj = -1;
    for (int j = 0; j < kh && pj < 0; ++j)
        for (int i = 0; i < kw && pj < 0; ++i)
            if (k(j, i) != 0) pj = j;
    if (pj < 0) return false;
    std::int64_t g = 0;
    for (int i = 0; i < kw; ++i) g = gcd(g, k(pj, i));
    int pi = -1;
    for (int i = 0; i < kw; ++i) {
        row[i] = std::int16_t(k(pj, i) / g);
        if (pi < 0 && row[i] != 0) pi = i;
    }
    // every row a multiple of the primitive row; the multiples' common factor
    // moves to the row where it fits
    std::int64_t gc = 0;
    for (int j = 0; j < kh; ++j) {
        const std::int64_t cj = k(j, pi) / row[pi];
        for (int i = 0; i < kw; ++i)
            if (std::int64_t(k(j, i)) != cj * row[i]) return false;
        if (cj < INT16_MIN || cj > INT16_MAX) return false;
        col[j] = std::int16_t(cj);
        gc = gcd(gc, cj);
    }
    std::int64_t rowMax = 0;
    for (int i = 0; i < kw; ++i) rowMax = std::max<std::int64_t>(rowMax, std::llabs(row[i]));
    if (rowMax * gc <= INT16_MAX) {
        for (int i = 0; i < kw; ++i) row[i] = std::int16_t(row[i] * gc);
        for (int j = 0; j < kh; ++j) col[j] = std::int16_t(col[j] / gc);
    }
    std::int64_t pos = 0, neg = 0, rowSum = 0;
    for (int j = 0; j < kh; ++j) (col[j] > 0 ? pos : neg) += col[j];
    for (int i = 0; i < kw; ++i) rowSum += row[i];
    if (255 * (pos - neg) > 65535) return false;
    bias = std::int32_t(32768 + 255 * neg);
    correction = kf::IntFinish::wrap(std::int64_t(bias) * rowSum);
    return true;
}

// Stores the kernel reversed at `stored` (in place by swapping when the
// caller handed the spec's own kernel area).
template <class K, class In>
inline void storeReversed(const In* k, std::int64_t n, K* stored) {
    if (static_cast<const void*>(k) == static_cast<const void*>(stored)) {
        for (std::int64_t i = 0; i < n / 2; ++i) std::swap(stored[i], stored[n - 1 - i]);
        return;
    }
    for (std::int64_t i = 0; i < n; ++i) stored[i] = K(k[n - 1 - i]);
}

inline FilterSpec* header(void* pSpec, std::uint32_t id, const QvnRoiSize& ks, int channels, int rounding) {
    FilterSpec* s = spec::place<FilterSpec>(pSpec, id);
    s->kw = ks.width, s->kh = ks.height, s->channels = channels, s->rounding = rounding, s->tag = kTag;
    s->divisor = 1, s->reciprocal = s->scale = s->divisorF = 1.0f, s->scaleD = 1.0;
    s->divRounding = rounding;
    return s;
}

// Expands n values at p into n blocks of four copies, in place (from the last).
template <class T>
inline void expandBlocks(T* p, std::int64_t n) {
    for (std::int64_t i = n - 1; i >= 0; --i) {
        const T v = p[i];
        for (int l = 0; l < 4; ++l) p[4 * i + l] = v;
    }
}

// The float spec's kernel, blocks and factors from a kernel in the caller's
// order (or already in the stored area: then it is reversed in place).
inline void buildFloat(FilterSpec* s, const float* k) {
    const std::int64_t n = std::int64_t(s->kw) * s->kh;
    const Layout l = layoutOf(*s);
    float* stored = block<float>(s, l.kernel);
    float* blocks = block<float>(s, l.converted);
    storeReversed(k, n, stored);
    for (std::int64_t i = 0; i < n; ++i) kf::makeBlocks(stored + (n - 1 - i), 1, blocks + 4 * i);
    s->kernel = stored, s->converted = blocks;
    const int kw = s->kw;
    const auto at = [&](int j, int i) { return stored[n - 1 - (std::int64_t(j) * kw + i)]; };
    float* row = block<float>(s, l.rowFactors);
    float* col = block<float>(s, l.colFactors);
    s->separable = rankOneFloat(at, s->kw, s->kh, row, col);
    if (s->separable) expandBlocks(row, s->kw), expandBlocks(col, s->kh);
}

// The integer spec's kernel, pair blocks and (8u) factors.
inline void buildInt(FilterSpec* s, const Qvn16s* k) {
    const std::int64_t n = std::int64_t(s->kw) * s->kh;
    const Layout l = layoutOf(*s);
    Qvn16s* stored = block<Qvn16s>(s, l.kernel);
    storeReversed(k, n, stored);
    const int kw = s->kw, kh = s->kh;
    const auto at = [&](int j, int i) { return stored[n - 1 - (std::int64_t(j) * kw + i)]; };
    std::int32_t* pairs = block<std::int32_t>(s, l.converted);
    kf::makePairs(at, kw, kh, pairs);
    s->kernel = stored, s->converted = pairs;
    if (s->id != kId8uInt) return;
    // the factors as a one-row kernel (row pairs) and a one-column kernel
    // (pairs of vertical neighbours), built through the stored area's tail
    std::int16_t* row = block<std::int16_t>(s, l.rowFactors);
    std::int16_t* col = block<std::int16_t>(s, l.colFactors);
    std::int32_t bias = 0, correction = 0;
    s->separable = rankOneInt(at, kw, kh, row, col, bias, correction);
    if (!s->separable) return;
    s->sepBias = bias, s->sepCorrection = correction;
    // the factors paired in place: a one-row kernel of the row factors, and
    // one of the column factors (pairs of vertical neighbours)
    kf::makePairs([&](int, int i) { return row[i]; }, kw, 1, reinterpret_cast<std::int32_t*>(row));
    kf::makePairs([&](int, int j) { return col[j]; }, kh, 1, reinterpret_cast<std::int32_t*>(col));
}

inline QvnStatus init32f(const Qvn32f* pKernel, QvnRoiSize kernelSize, int dataType, int numChannels, int roundMode,
                         QvnFilterBorderSpec* pSpec) {
    QVN_TRY(check::ptrs(pKernel, pSpec));
    QVN_TRY(check::roi(kernelSize));
    if (dataType != qvn8u && dataType != qvn16u && dataType != qvn16s && dataType != qvn32f) return qvnErrDataType;
    if (numChannels < 1 || numChannels > 4) return qvnErrChannel;
    QVN_TRY(roundingArg(roundMode));
    const std::uint32_t id = dataType == qvn8u ? kId8uFloat : dataType == qvn16s ? kId16sFloat
                             : dataType == qvn16u ? kId16uFloat : kId32f;
    buildFloat(header(pSpec, id, kernelSize, numChannels, roundMode & ~kAccuracyFlag), pKernel);
    return roundMode & kAccuracyFlag ? qvnWarnModeIgnored : qvnOk;
}

inline QvnStatus init16s(const Qvn16s* pKernel, QvnRoiSize kernelSize, int divisor, int dataType, int numChannels,
                         int roundMode, QvnFilterBorderSpec* pSpec) {
    QVN_TRY(check::ptrs(pKernel, pSpec));
    QVN_TRY(check::roi(kernelSize));
    if (dataType != qvn8u && dataType != qvn16u && dataType != qvn16s) return qvnErrDataType;
    if (numChannels < 1 || numChannels > 4) return qvnErrChannel;
    QVN_TRY(roundingArg(roundMode));
    if (divisor == 0) return qvnErrDivisor;
    const int rounding = roundMode & ~kAccuracyFlag;
    const bool honoured = dataType == qvn8u || (dataType == qvn16s && numChannels == 1);
    const QvnStatus warn = (roundMode & kAccuracyFlag) && !honoured ? qvnWarnModeIgnored : qvnOk;
    if (dataType == qvn16u) {
        // 16u filters in floats: coefficient x (1 / divisor), narrowed; the
        // coefficients go through the blocks' area, which the build overwrites
        FilterSpec* s = header(pSpec, kId16uFloat, kernelSize, numChannels, rounding);
        const std::int64_t n = std::int64_t(s->kw) * s->kh;
        float* k = block<float>(s, layoutOf(*s).kernel);
        const double r = 1.0 / divisor;
        for (std::int64_t i = 0; i < n; ++i) k[i] = float(double(pKernel[i]) * r);
        buildFloat(s, k);  // in place: the caller's order, reversed there
        return warn;
    }
    FilterSpec* s = header(pSpec, dataType == qvn8u ? kId8uInt : kId16sInt, kernelSize, numChannels,
                           rounding | ((roundMode & kAccuracyFlag) && honoured ? kAccuracyFlag : 0));
    s->divisor = divisor, s->divisorF = float(divisor), s->scaleD = divisor, s->scale = float(divisor);
    if (divisor == 1) {
        s->divMode = 0;
    } else if (divisor > 0 && (divisor & (divisor - 1)) == 0) {
        int k = 0;
        while ((1 << k) != divisor) ++k;
        s->divMode = 1, s->shift = k, s->addend = 1 << (k - 1), s->mask = (1 << k) - 1;
        s->reciprocal = s->scale = std::ldexp(1.0f, -k), s->scaleD = std::ldexp(1.0, -k);
    } else {
        s->divMode = 2, s->reciprocal = 1.0f / float(divisor);
    }
    buildInt(s, pKernel);
    return warn;
}

inline QvnStatus init64f(const Qvn64f* pKernel, QvnRoiSize kernelSize, int dataType, int numChannels, int roundMode,
                         QvnFilterBorderSpec* pSpec) {
    QVN_TRY(check::ptrs(pKernel, pSpec));
    QVN_TRY(check::roi(kernelSize));
    if (dataType != qvn64f) return qvnErrDataType;
    if (numChannels != 1) return qvnErrChannel;
    if ((roundMode & ~kAccuracyFlag) != qvnRndNear) return qvnErrRounding;
    FilterSpec* s = header(pSpec, kId64f, kernelSize, 1, qvnRndNear);
    double* stored = block<double>(s, layoutOf(*s).kernel);
    storeReversed(pKernel, std::int64_t(s->kw) * s->kh, stored);
    s->kernel = stored;
    return qvnOk;
}

// A spec that one of this family's initialisers wrote; null otherwise.
inline FilterSpec* ours(QvnFilterBorderSpec* pSpec) {
    FilterSpec* s = spec::alignUp64(reinterpret_cast<FilterSpec*>(pSpec));
    return s->tag == kTag && s->id <= kId64f && s->id != 2 ? s : nullptr;
}

inline QvnStatus setMode(int hint, int offset, QvnFilterBorderSpec* pSpec) {
    QVN_TRY(check::ptrs(pSpec));
    FilterSpec* s = ours(pSpec);
    if (s == nullptr) return qvnErrBadSpec;
    if ((s->id == kId16sInt || s->id == kId16sFloat || s->id == kId32f || s->id == kId64f) && offset != 0)
        return qvnErrBadMode;
    if (s->id == kId64f) return qvnOk;
    if (hint == 2) {
        if (s->id == kId8uInt || (s->id == kId16sInt && s->channels == 1)) s->rounding |= kAccuracyFlag;
    } else {
        s->rounding &= 3;
    }
    s->offset = offset;
    s->offsetF = isIntegerId(s->id) ? float(std::int64_t(offset) * s->divisor) : float(offset);
    s->hint = hint;
    return qvnOk;
}

// ---- the filter ------------------------------------------------------------------------------------
template <class T>
inline bool filtersWith(std::uint32_t id) {
    if constexpr (std::is_same_v<T, Qvn8u>) return id == kId8uInt || id == kId8uFloat;
    else if constexpr (std::is_same_v<T, Qvn16s>) return id == kId16sInt || id == kId16sFloat;
    else if constexpr (std::is_same_v<T, Qvn16u>) return id == kId16uFloat;
    else if constexpr (std::is_same_v<T, Qvn32f>) return id == kId32f;
    else return id == kId64f;
}

// The division of an integer spec's sums.
inline kf::IntFinish finishOf(const FilterSpec& s) {
    kf::IntFinish f;
    const int mode = s.rounding & 3;
    if (s.divMode == 0) {
        f.shiftBy(0, mode);
        f.pre = s.offset;
    } else if (s.divMode == 1) {
        f.shiftBy(s.shift, mode);
        f.pre = kf::IntFinish::wrap(std::int64_t(s.offset) * (std::int64_t(1) << s.shift));
    } else {
        f.kind = s.rounding & kAccuracyFlag ? kf::IntFinish::kExact : kf::IntFinish::kReciprocal;
        f.reciprocal = s.reciprocal, f.offsetF = s.offsetF, f.mode = mode;
        f.divisor = s.divisor, f.offset = s.offset;
    }
    return f;
}

// Runs the spec's kernel over the ROI through the bordered driver. Images
// that would only evict the cache are written with non-temporal stores (each
// kernel call fences them before it returns).
template <class T, class L>
inline void runSpec(const FilterSpec& s, const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi,
                    int border, const T* value, void* buffer) {
    const Layout l = layoutOf(s);
    const std::int64_t C = L::kElems, bytes = roi.width * roi.height * C * std::int64_t(sizeof(T));
    const bool stream = useStreamingStores(std::uint64_t(bytes), kStreamThreshold, 2 * std::uint64_t(bytes));
    // the 8u separable kernel stores chunk by chunk through Int2D's one-row
    // passes, overlapping: it keeps to the cache
    const auto run = [&](auto kernel, bool streams = true) {
        kernel.stream = stream && streams;
        runBordered<T, L>(src, srcStep, dst, dstStep, roi, border, value, reachOf(s.kw, s.kh), buffer, kernel);
    };
    if constexpr (std::is_same_v<T, Qvn64f>) {
        const double* last = block<const double>(&s, l.kernel) + (std::int64_t(s.kw) * s.kh - 1);
        run(kf::Float2D<double, T, T>{{}, last, s.kw, s.kh, C, {}});
    } else {
        if constexpr (std::is_same_v<T, Qvn8u> || std::is_same_v<T, Qvn16s>) {
            if (isIntegerId(s.id)) {
                if constexpr (std::is_same_v<T, Qvn8u>) {
                    if (s.separable && kf::Int8uSeparable::fits(s.kw, C)) {
                        kf::IntFinish f = finishOf(s);
                        f.pre = kf::IntFinish::wrap(std::int64_t(f.pre) + s.sepCorrection);
                        const kf::Int2D<Qvn16s, Qvn8u> rows{{}, block<const std::int32_t>(&s, l.rowFactors), s.kw, 1, C, f};
                        return run(kf::Int8uSeparable{rows, block<const std::int32_t>(&s, l.colFactors), s.kh, s.sepBias},
                                   false);
                    }
                }
                return run(kf::Int2D<T, T>{{}, block<const std::int32_t>(&s, l.converted), s.kw, s.kh, C, finishOf(s)});
            }
        }
        const kf::FloatFinish<float> fin{s.offsetF, s.rounding & 3};
        using Sep = kf::FloatSeparable<float, T, T>;
        if (s.separable && Sep::fits(s.kw, C) && Sep::pays(s.kw, s.kh))
            return run(Sep{block<const float>(&s, l.rowFactors), block<const float>(&s, l.colFactors), s.kw, s.kh, C, fin});
        run(kf::Float2D<float, T, T>{{}, block<const float>(&s, l.converted), s.kw, s.kh, C, fin});
    }
}

// Checks, in order: a null source, destination, spec or buffer, or a null
// border value with the constant kind (qvnErrNullPointer); the ROI
// (qvnErrSize); a source step below 1 or a destination step shorter than its
// row (qvnErrStep); the border kind (qvnErrBorderKind); a spec that is not
// this type's and channel count's (qvnErrBadSpec).
template <class T, class L>
inline QvnStatus filterBorder(const T* pSrc, std::int64_t srcStep, T* pDst, std::int64_t dstStep, RoiL roi,
                              int border, const T* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer) {
    QVN_TRY(check::ptrs(pSrc, pDst, pSpec, pBuffer));
    if (isConstant(border) && pBorderValue == nullptr) return qvnErrNullPointer;
    QVN_TRY(check::roi(roi));
    if (srcStep < 1 || dstStep < roi.width * L::kElems * std::int64_t(sizeof(T))) return qvnErrStep;
    QVN_TRY(acceptGeneral(border));
    const FilterSpec* s = spec::findIf<FilterSpec>(pSpec, [](const FilterSpec& f) {
        return f.tag == kTag && filtersWith<T>(f.id) && f.channels == L::kElems;
    });
    if (s == nullptr) return qvnErrBadSpec;
    const RoundingScope nearest(qvnRndNear);
    runSpec<T, L>(*s, pSrc, srcStep, pDst, dstStep, roi, border, pBorderValue, pBuffer);
    return qvnOk;
}

}  // namespace filter
QVN_TARGET_END

#endif
