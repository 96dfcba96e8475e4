// The operations on packed spectra (products, magnitude and phase, the
// conversions to and from full complex spectra) and on complex images
// (magnitude, phase, polar to cartesian).
#ifndef QVN_TRANSFORM_PACK_INL_H
#define QVN_TRANSFORM_PACK_INL_H

#include <climits>
#include <cstdint>

#include "core/check-inl.h"
#include "core/image.h"
#include "core/rows-inl.h"
#include "core/spec-inl.h"
#include "kernels/isa/isa.h"
#include "kernels/polar-inl.h"
#include "transform/packed-inl.h"

QVN_TARGET_BEGIN
namespace transform {

// The complex product a b, and a conj(b), each part with its operations in
// this order on every path.
struct MulOp {
    static void scalar(float ar, float ai, float br, float bi, float& r, float& i) {
        r = ar * br - ai * bi;
        i = ar * bi + ai * br;
    }
    template <class V>
    static void vector(V ar, V ai, V br, V bi, V& r, V& i) {
        r = isa::sub(isa::mul(ar, br), isa::mul(ai, bi));
        i = isa::add(isa::mul(ar, bi), isa::mul(ai, br));
    }
};
struct MulConjOp {
    static void scalar(float ar, float ai, float br, float bi, float& r, float& i) {
        r = ar * br + ai * bi;
        i = ai * br - ar * bi;
    }
    template <class V>
    static void vector(V ar, V ai, V br, V bi, V& r, V& i) {
        r = isa::add(isa::mul(ar, br), isa::mul(ai, bi));
        i = isa::sub(isa::mul(ai, br), isa::mul(ar, bi));
    }
};

// n interleaved complex pairs of one-channel rows.
template <class Op>
inline void productRow(const float* a, const float* b, float* d, std::int64_t n) {
    using V = isa::Vec<float>;
    constexpr std::int64_t kL = std::int64_t(isa::kLanes<float>);
    std::int64_t i = 0;
    for (; i + kL <= n; i += kL) {
        const V av[2] = {isa::loadU(a + 2 * i), isa::loadU(a + 2 * i + kL)};
        const V bv[2] = {isa::loadU(b + 2 * i), isa::loadU(b + 2 * i + kL)};
        V x[2], y[2], r[2], o[2];
        isa::deinterleave2(av, x);
        isa::deinterleave2(bv, y);
        Op::vector(x[0], x[1], y[0], y[1], r[0], r[1]);
        isa::interleave2(r, o);
        isa::storeU(d + 2 * i, o[0]);
        isa::storeU(d + 2 * i + kL, o[1]);
    }
    for (; i < n; ++i) Op::scalar(a[2 * i], a[2 * i + 1], b[2 * i], b[2 * i + 1], d[2 * i], d[2 * i + 1]);
}

// The product of two packed spectra entry by entry in the complex sense:
// pairs of each row, the split pairs (rows 2k-1, 2k) of the real columns,
// and their real entries (rows 0 and, for even height, H-1) as reals.
template <class Op, class L>
inline QvnStatus productPack(const Qvn32f* s1, std::int64_t s1Step, const Qvn32f* s2, std::int64_t s2Step, Qvn32f* d,
                             std::int64_t dStep, RoiL roi) {
    QVN_TRY(check::ptrs(s1, s2, d));
    QVN_TRY(check::steps(s1Step, s2Step, dStep));
    QVN_TRY(check::roi(roi));
    constexpr int E = L::kElems, C = L::kChannels;
    const std::int64_t w = roi.width, h = roi.height, pairs = (w - 1) / 2;
    for (std::int64_t y = 0; y < h; ++y) {
        const float* a = rowAt(s1, s1Step, y);
        const float* b = rowAt(s2, s2Step, y);
        float* o = rowAt(d, dStep, y);
        if constexpr (E == 1) {
            productRow<Op>(a + 1, b + 1, o + 1, pairs);
        } else {
            for (std::int64_t u = 1; u <= pairs; ++u)
                for (int c = 0; c < C; ++c) {
                    const std::int64_t re = (2 * u - 1) * E + c, im = 2 * u * E + c;
                    Op::scalar(a[re], a[im], b[re], b[im], o[re], o[im]);
                }
        }
    }
    for (std::int64_t x = 0; x < w; x += (w % 2 == 0 && w > 1) ? w - 1 : w)
        for (int c = 0; c < C; ++c) {
            const std::int64_t off = x * E + c;
            for (std::int64_t k = 0; 2 * k <= h; ++k) {
                if (k == 0 || 2 * k == h) {
                    const std::int64_t y = k == 0 ? 0 : h - 1;
                    rowAt(d, dStep, y)[off] = rowAt(s1, s1Step, y)[off] * rowAt(s2, s2Step, y)[off];
                } else {
                    float& re = rowAt(d, dStep, 2 * k - 1)[off];
                    float& im = rowAt(d, dStep, 2 * k)[off];
                    Op::scalar(rowAt(s1, s1Step, 2 * k - 1)[off], rowAt(s1, s1Step, 2 * k)[off],
                               rowAt(s2, s2Step, 2 * k - 1)[off], rowAt(s2, s2Step, 2 * k)[off], re, im);
                }
            }
        }
    return qvnOk;
}

// F(v, u) of every u of row v, from the packed spectrum (w x h, E elements
// per pixel, C channels) into out (w x C complex values, channels
// interleaved); conjugate symmetry gives what the packed form does not hold.
inline void expandRow(const float* src, std::int64_t step, std::int64_t w, std::int64_t h, std::int64_t v, int E,
                      int C, float* out) {
    const std::int64_t vv = (h - v) % h;
    const float* row = rowAt(src, step, v);
    const float* mirror = rowAt(src, step, vv);
    for (std::int64_t u = 0; u < w; ++u)
        for (int c = 0; c < C; ++c) {
            float* o = out + 2 * (u * C + c);
            if (u == 0 || 2 * u == w) {
                readPacked(src, step, h, (u == 0 ? 0 : w - 1) * E + c, v, o[0], o[1]);
            } else if (2 * u < w) {
                o[0] = row[(2 * u - 1) * E + c];
                o[1] = row[2 * u * E + c];
            } else {
                const std::int64_t uu = w - u;
                o[0] = mirror[(2 * uu - 1) * E + c];
                o[1] = -mirror[2 * uu * E + c];
            }
        }
}

// The full complex spectrum of a packed one.
inline QvnStatus packToComplex(const Qvn32f* src, std::int64_t srcStep, Qvn32fc* dst, std::int64_t dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::roi(roi));
    for (std::int64_t y = 0; y < roi.height; ++y)
        expandRow(src, srcStep, roi.width, roi.height, y, 1, 1, reinterpret_cast<float*>(rowAt(dst, dstStep, y)));
    return qvnOk;
}

// The packed spectrum of a full complex one: the entries that the packed
// layout keeps, read where they lie.
template <class L>
inline QvnStatus complexToPack(const Qvn32fc* src, std::int64_t srcStep, Qvn32f* dst, std::int64_t dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::roi(roi));
    constexpr int C = L::kChannels;
    const std::int64_t w = roi.width, h = roi.height;
    const auto at = [&](std::int64_t v, std::int64_t u, int c) { return rowAt(src, srcStep, v)[u * C + c]; };
    for (std::int64_t y = 0; y < h; ++y) {
        float* o = rowAt(dst, dstStep, y);
        for (std::int64_t x = 0; x < w; ++x)
            for (int c = 0; c < C; ++c) {
                float& out = o[x * C + c];
                if (x == 0 || (w % 2 == 0 && x == w - 1)) {
                    const std::int64_t u = x == 0 ? 0 : w / 2;
                    if (y == 0 || (h % 2 == 0 && y == h - 1)) out = at(y == 0 ? 0 : h / 2, u, c).re;
                    else out = y % 2 == 1 ? at((y + 1) / 2, u, c).re : at(y / 2, u, c).im;
                } else {
                    out = x % 2 == 1 ? at(y, (x + 1) / 2, c).re : at(y, x / 2, c).im;
                }
            }
    }
    return qvnOk;
}

// Magnitude or phase of every frequency of a packed spectrum, as the full
// w x h image: each row expanded into the work buffer first.
template <class L, bool Phase>
inline QvnStatus polarOfPack(const Qvn32f* src, std::int64_t srcStep, Qvn32f* dst, std::int64_t dstStep, RoiL roi,
                             Qvn8u* pBuffer) {
    QVN_TRY(check::ptrs(src, dst, pBuffer));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::roi(roi));
    constexpr int C = L::kChannels;
    float* row = reinterpret_cast<float*>(spec::alignUp64(pBuffer));
    for (std::int64_t y = 0; y < roi.height; ++y) {
        expandRow(src, srcStep, roi.width, roi.height, y, C, C, row);
        float* o = rowAt(dst, dstStep, y);
        if constexpr (Phase) kernels::polar::phaseRow(row, o, roi.width * C);
        else kernels::polar::magnitudeRow(row, o, roi.width * C);
    }
    return qvnOk;
}

// Bytes of the buffer of MagnitudePack and PhasePack: one expanded row.
inline QvnStatus polarOfPackBufferSize(int numChannels, int width, int* pSize) {
    QVN_TRY(check::ptrs(pSize));
    if (width < 1) return qvnErrSize;
    if (numChannels != 1 && numChannels != 3) return qvnErrChannelCount;
    const std::int64_t bytes = 8 * std::int64_t(numChannels) * width + 64;
    if (bytes > INT_MAX) return qvnErrSizeOverflow;
    *pSize = int(bytes);
    return qvnOk;
}

// Magnitude or phase of every element of a complex image.
template <class L, bool Phase>
inline QvnStatus polarOfComplex(const Qvn32fc* src, std::int64_t srcStep, Qvn32f* dst, std::int64_t dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    constexpr int C = L::kChannels;
    return forEachRow(roi, [](const Qvn32fc* s, Qvn32f* d, std::int64_t n) {
        if constexpr (Phase) kernels::polar::phaseRow(reinterpret_cast<const float*>(s), d, n * C);
        else kernels::polar::magnitudeRow(reinterpret_cast<const float*>(s), d, n * C);
    }, rows(src, srcStep, C), rows(dst, dstStep, C));
}

// A complex image from magnitudes and phases.
template <class L>
inline QvnStatus polarToCart(const Qvn32f* mag, std::int64_t magStep, const Qvn32f* phase, std::int64_t phaseStep,
                             Qvn32fc* dst, std::int64_t dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(mag, phase, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(magStep, phaseStep, dstStep));
    constexpr int C = L::kChannels;
    return forEachRow(roi, [](const Qvn32f* m, const Qvn32f* p, Qvn32fc* d, std::int64_t n) {
        kernels::polar::polarRow(m, p, reinterpret_cast<float*>(d), n * C);
    }, rows(mag, magStep, C), rows(phase, phaseStep, C), rows(dst, dstStep, C));
}

}  // namespace transform
QVN_TARGET_END

#endif
