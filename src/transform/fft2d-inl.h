// qvniFFTFwd, qvniFFTInv, qvniDFTFwd and qvniDFTInv: the 2D transforms of
// real images (to and from packed spectra) and of complex images.
//
// Rows go eight at a time: transposed into a batch in the work buffer,
// transformed, transposed back. Columns go as blocks of eight complex
// columns (the interleaved pairs of a packed spectrum; the two real columns 0
// and W - 1 of a real spectrum as the real and imaginary parts of one more).
// Each axis applies its own normalisation factor when its values go back to
// the image. A multi-channel image is transformed channel by channel.
#ifndef QVN_TRANSFORM_FFT2D_INL_H
#define QVN_TRANSFORM_FFT2D_INL_H

#include <cstdint>
#include <cstring>

#include "core/check-inl.h"
#include "core/image.h"
#include "core/spec-inl.h"
#include "kernels/fft-inl.h"
#include "transform/packed-inl.h"
#include "transform/plan.h"

QVN_TARGET_BEGIN
namespace transform {

namespace kf = kernels::fft;
using namespace ::qvn::fftspec;

inline const unsigned char* bytesOf(const Spec1D& s) { return reinterpret_cast<const unsigned char*>(&s); }

// Whether a pass multiplies its results, and by what.
struct Factor {
    bool on;
    float f;
    Factor(const Spec1D& s, bool inverse) : on((inverse ? s.invScaled : s.fwdScaled) && s.scale != 1.0f), f(s.scale) {}
};

// One channel of an image: element offset ch in every pixel of E elements.
struct Channel {
    const float* src;
    std::int64_t srcStep;
    float* dst;
    std::int64_t dstStep;
    int elems, ch;
};

// Every group of up to eight rows of the channel: fn(in rows, out rows, count).
template <class Fn>
inline void rowGroups(const Channel& c, std::int64_t h, Fn&& fn) {
    for (std::int64_t y0 = 0; y0 < h; y0 += kBatch) {
        const int count = int(h - y0 < kBatch ? h - y0 : kBatch);
        const float* in[kBatch];
        float* out[kBatch];
        for (int l = 0; l < count; ++l) {
            in[l] = rowAt(c.src, c.srcStep, y0 + l) + c.ch;
            out[l] = rowAt(c.dst, c.dstStep, y0 + l) + c.ch;
        }
        fn(in, out, count);
    }
}

// Real rows of width w to packed row spectra, or back. Even widths go
// through the complex transform of w/2 with the real steps around it, odd
// ones through the complex transform of w (zero imaginary parts).
inline void realRows(const Spec1D& xs, const Channel& c, std::int64_t w, std::int64_t h, float* buf, bool inverse) {
    const Factor k(xs, inverse);
    const bool even = w % 2 == 0;
    const CPlan& plan = even ? xs.half : xs.full;
    const float* tw = kf::at<float>(bytesOf(xs), xs.realTw);
    const std::int64_t stride = even ? 8 : kf::kElem;  // floats from one value of a sequence to the next
    rowGroups(c, h, [&](const float* const* in, float* const* out, int count) {
        if (w == 1) {
            for (int l = 0; l < count; ++l) out[l][0] = in[l][0];
            return;
        }
        float* data = buf;
        float* work = buf + stride * w;
        if (!inverse) {
            kf::gatherRows(in, count, c.elems, w, data, stride);
            if (!even)
                for (std::int64_t j = 0; j < w; ++j) std::memset(data + kf::kElem * j + 8, 0, 8 * sizeof(float));
            const float* x = kf::run(plan, bytesOf(xs), data, work, kf::kForward);
            float* packed = x == data ? work : data;
            if (even) kf::realForwardPost(x, packed, w / 2, tw);
            else kf::oddForwardPack(x, packed, w);
            kf::scatterRows(packed, 8, w, out, count, c.elems, k.on, k.f);
        } else {
            kf::gatherRows(in, count, c.elems, w, work, 8);
            if (even) kf::realInversePre(work, data, w / 2, tw);
            else kf::oddInverseUnpack(work, data, w);
            const float* x = kf::run(plan, bytesOf(xs), data, work, kf::kInverse);
            kf::scatterRows(x, stride, w, out, count, c.elems, k.on, k.f);
        }
    });
}

// Complex rows (w pairs) in either direction.
inline void complexRows(const Spec1D& xs, const Channel& c, std::int64_t w, std::int64_t h, float* buf, bool inverse) {
    const Factor k(xs, inverse);
    rowGroups(c, h, [&](const float* const* in, float* const* out, int count) {
        kf::gatherRows(in, count, 1, 2 * w, buf, 8);
        const float* r = kf::run(xs.full, bytesOf(xs), buf, buf + kf::kElem * w, inverse ? kf::kInverse : kf::kForward);
        kf::scatterRows(r, 8, 2 * w, out, count, 1, k.on, k.f);
    });
}

// The column blocks of a pass, up to columnBlocks(h) of them per sweep
// down the rows: lanesOf(block, gathered, scattered) describes block b and
// returns its lane of the real columns (or -1), before(data, lane) runs on
// its gathered data and after(data, lane) on its transform.
template <class LanesOf, class Before, class After>
inline void columnGroups(const CPlan& plan, const unsigned char* spec, const Channel& c, std::int64_t blocks,
                         std::int64_t h, float* buf, bool inverse, LanesOf&& lanesOf, Before&& before, After&& after) {
    const Factor k(*reinterpret_cast<const Spec1D*>(spec), inverse);
    const int most = columnBlocks(h);
    const std::int64_t stride = kf::kElem * h;
    for (std::int64_t g = 0; g < blocks; g += most) {
        const int nb = int(blocks - g < most ? blocks - g : most);
        kf::Lanes in[kMaxColumnBlocks], out[kMaxColumnBlocks];
        int special[kMaxColumnBlocks];
        for (int b = 0; b < nb; ++b) special[b] = lanesOf(g + b, in[b], out[b]);
        kf::gatherColumns(c.src, c.srcStep, h, in, nb, buf, stride);
        for (int b = 0; b < nb; ++b) before(buf + b * stride, special[b]);
        kf::runEach(plan, spec, buf, stride, nb, inverse ? kf::kInverse : kf::kForward);
        kf::scatterColumns(buf, stride, c.dst, c.dstStep, h, out, nb, k.on, k.f);
        for (int b = 0; b < nb; ++b) after(buf + b * stride, special[b]);
    }
}

// Complex columns (w of them) in either direction.
inline void complexColumns(const Spec1D& ys, const Channel& c, std::int64_t w, std::int64_t h, float* buf,
                           bool inverse) {
    const auto lanesOf = [w](std::int64_t b, kf::Lanes& in, kf::Lanes& out) {
        for (int l = 0; l < kBatch; ++l) {
            const std::int64_t u = b * kBatch + l;
            in.re[l] = u < w ? 2 * u : -1;
            in.im[l] = u < w ? 2 * u + 1 : -1;
        }
        out = in;
        return -1;
    };
    const auto none = [](float*, int) {};
    columnGroups(ys.full, bytesOf(ys), c, (w + kBatch - 1) / kBatch, h, buf, inverse, lanesOf, none, none);
}

// The columns of packed row spectra: interleaved pairs u = 1..(w-1)/2 at
// elements 2u-1 and 2u, and one more lane holding column 0 as its real part
// and, for even w, column w-1 as its imaginary part.
struct PackedColumns {
    std::int64_t w, pairs;
    int elems, ch;
    PackedColumns(std::int64_t w_, int elems_, int ch_) : w(w_), pairs((w_ - 1) / 2), elems(elems_), ch(ch_) {}
    std::int64_t lanes() const { return pairs + 1; }
    std::int64_t off(std::int64_t x) const { return x * elems + ch; }
    std::int64_t nyquist() const { return w % 2 == 0 ? off(w - 1) : -1; }
    // The lanes of the block from lane b0; special gets the lane of the real
    // columns or -1; with real, that lane reads (or writes) columns 0 and w-1.
    kf::Lanes block(std::int64_t b0, int& special, bool real) const {
        kf::Lanes ln;
        special = -1;
        for (int l = 0; l < kBatch; ++l) {
            const std::int64_t i = b0 + l;
            ln.re[l] = ln.im[l] = -1;
            if (i < pairs) {
                ln.re[l] = off(2 * i + 1);
                ln.im[l] = off(2 * i + 2);
            } else if (i == pairs) {
                special = l;
                if (real) ln.re[l] = off(0), ln.im[l] = nyquist();
            }
        }
        return ln;
    }
};

// Lane s of the transformed block r holds Z = F0 + i FN, the spectra of the
// real columns 0 and w-1 (only F0 for odd w): separated by conjugate
// symmetry, F0(k) = (Z(k) + conj Z(h-k)) / 2, FN(k) = (Z(k) - conj Z(h-k)) / 2i,
// and written packed.
inline void packRealColumns(const float* r, int s, std::int64_t h, float* base, std::int64_t step,
                            const PackedColumns& pc, const Factor& f) {
    const std::int64_t nyq = pc.nyquist();
    for (std::int64_t k = 0; 2 * k <= h; ++k) {
        const std::int64_t kk = (h - k) % h;
        const float ar = r[kf::kElem * k + s], ai = r[kf::kElem * k + 8 + s];
        const float br = r[kf::kElem * kk + s], bi = r[kf::kElem * kk + 8 + s];
        if (nyq < 0) {
            writePacked(base, step, h, pc.off(0), k, ar, ai, f.on, f.f);
        } else {
            writePacked(base, step, h, pc.off(0), k, (ar + br) * 0.5f, (ai - bi) * 0.5f, f.on, f.f);
            writePacked(base, step, h, nyq, k, (ai + bi) * 0.5f, (br - ar) * 0.5f, f.on, f.f);
        }
    }
}

// The inverse: lane s of the block at d gets Z = F0 + i FN from the packed
// real columns.
inline void unpackRealColumns(const float* base, std::int64_t step, std::int64_t h, const PackedColumns& pc,
                              float* d, int s) {
    const std::int64_t nyq = pc.nyquist();
    for (std::int64_t k = 0; k < h; ++k) {
        float r0, i0, rn = 0.0f, in = 0.0f;
        readPacked(base, step, h, pc.off(0), k, r0, i0);
        if (nyq >= 0) readPacked(base, step, h, nyq, k, rn, in);
        d[kf::kElem * k + s] = r0 - in;
        d[kf::kElem * k + 8 + s] = i0 + rn;
    }
}

// The columns of packed row spectra to the packed 2D spectrum, in place.
inline void realColumnsForward(const Spec1D& ys, const Channel& c, std::int64_t w, std::int64_t h, float* buf) {
    const Factor k(ys, false);
    const PackedColumns pc(w, c.elems, c.ch);
    const auto lanesOf = [&pc](std::int64_t b, kf::Lanes& in, kf::Lanes& out) {
        int special;
        in = pc.block(b * kBatch, special, true);
        out = pc.block(b * kBatch, special, false);
        return special;
    };
    const auto pack = [&](float* r, int special) {
        if (special >= 0) packRealColumns(r, special, h, c.dst, c.dstStep, pc, k);
    };
    columnGroups(ys.full, bytesOf(ys), c, (pc.lanes() + kBatch - 1) / kBatch, h, buf, false, lanesOf,
                 [](float*, int) {}, pack);
}

// The packed 2D spectrum (src) to packed row spectra (dst).
inline void realColumnsInverse(const Spec1D& ys, const Channel& c, std::int64_t w, std::int64_t h, float* buf) {
    const PackedColumns pc(w, c.elems, c.ch);
    const auto lanesOf = [&pc](std::int64_t b, kf::Lanes& in, kf::Lanes& out) {
        int special;
        in = pc.block(b * kBatch, special, false);
        out = pc.block(b * kBatch, special, true);
        return special;
    };
    const auto unpack = [&](float* d, int special) {
        if (special >= 0) unpackRealColumns(c.src, c.srcStep, h, pc, d, special);
    };
    columnGroups(ys.full, bytesOf(ys), c, (pc.lanes() + kBatch - 1) / kBatch, h, buf, true, lanesOf, unpack,
                 [](float*, int) {});
}

// What a transform works with once its arguments passed their checks.
struct Checked {
    const Spec2D* spec;
    std::int64_t w, h;
    float* buf;
};

// The checks of every transform, in order: the spec pointer, the spec's
// kind, the image and buffer pointers, the steps.
inline QvnStatus check2D(const void* pSpec, std::uint32_t id, const void* src, std::int64_t srcStep, const void* dst,
                         std::int64_t dstStep, Qvn8u* pBuffer, Checked& c) {
    QVN_TRY(check::ptrs(pSpec));
    c.spec = spec::find<Spec2D>(pSpec, id);
    if (c.spec == nullptr) return qvnErrBadSpec;
    QVN_TRY(check::ptrs(src, dst, pBuffer));
    QVN_TRY(check::steps(srcStep, dstStep));
    const bool fft = id == kIdFftC || id == kIdFftR;
    c.w = fft ? std::int64_t(1) << c.spec->x : c.spec->x;
    c.h = fft ? std::int64_t(1) << c.spec->y : c.spec->y;
    c.buf = reinterpret_cast<float*>(spec::alignUp64(pBuffer));
    return qvnOk;
}

// A real image (channels of E elements) to packed spectra, or back.
template <std::uint32_t Id, class L, bool Inverse>
inline QvnStatus realTransform(const Qvn32f* src, std::int64_t srcStep, Qvn32f* dst, std::int64_t dstStep,
                               const void* pSpec, Qvn8u* pBuffer) {
    Checked c;
    QVN_TRY(check2D(pSpec, Id, src, srcStep, dst, dstStep, pBuffer, c));
    for (int ch = 0; ch < L::kChannels; ++ch) {
        if (!Inverse) {
            realRows(*c.spec->xSpec, {src, srcStep, dst, dstStep, L::kElems, ch}, c.w, c.h, c.buf, false);
            realColumnsForward(*c.spec->ySpec, {dst, dstStep, dst, dstStep, L::kElems, ch}, c.w, c.h, c.buf);
        } else {
            realColumnsInverse(*c.spec->ySpec, {src, srcStep, dst, dstStep, L::kElems, ch}, c.w, c.h, c.buf);
            realRows(*c.spec->xSpec, {dst, dstStep, dst, dstStep, L::kElems, ch}, c.w, c.h, c.buf, true);
        }
    }
    return qvnOk;
}

// A complex image to its spectrum, or back.
template <std::uint32_t Id, bool Inverse>
inline QvnStatus complexTransform(const Qvn32fc* src, std::int64_t srcStep, Qvn32fc* dst, std::int64_t dstStep,
                                  const void* pSpec, Qvn8u* pBuffer) {
    Checked c;
    QVN_TRY(check2D(pSpec, Id, src, srcStep, dst, dstStep, pBuffer, c));
    const auto* in = reinterpret_cast<const float*>(src);
    auto* out = reinterpret_cast<float*>(dst);
    if (!Inverse) {
        complexRows(*c.spec->xSpec, {in, srcStep, out, dstStep, 2, 0}, c.w, c.h, c.buf, false);
        complexColumns(*c.spec->ySpec, {out, dstStep, out, dstStep, 2, 0}, c.w, c.h, c.buf, false);
    } else {
        complexColumns(*c.spec->ySpec, {in, srcStep, out, dstStep, 2, 0}, c.w, c.h, c.buf, true);
        complexRows(*c.spec->xSpec, {out, dstStep, out, dstStep, 2, 0}, c.w, c.h, c.buf, true);
    }
    return qvnOk;
}

}  // namespace transform
QVN_TARGET_END

#endif
