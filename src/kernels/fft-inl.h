// The transforms' vector kernels: Stockham passes of radix 2, 3, 4, 5, 7, 8 and
// any odd prime up to kMaxRadix, Bluestein's algorithm, the steps that turn
// a complex transform of half the length into a real one and back, and the
// moves between image rows or columns and a batch.
//
// A batch is eight independent sequences (transform/plan.h): element k of
// all eight takes 16 floats, their real parts and then their imaginary
// parts. Every operation works on the eight lanes alike, so the vector width
// only decides how many lanes one instruction covers: every target computes
// every value with the same operations in the same order, and no multiply
// and add are fused.
#ifndef QVN_KERNELS_FFT_INL_H
#define QVN_KERNELS_FFT_INL_H

#include <cstdint>
#include <cstring>

#include "kernels/isa/isa.h"
#include "transform/plan.h"

QVN_TARGET_BEGIN
namespace kernels {
namespace fft {

// The vector layer of the transforms. A batch element is eight floats wide,
// so the widest target runs them on the 32-byte layer: one vector holds the
// real (or the imaginary) parts of a whole element.
#if QVN_TARGET_LEVEL >= 3
namespace fv = v256;
#else
namespace fv = isa;
#endif

using F = fv::Vec<float>;
inline constexpr int kV = int(fv::kLanes<float>);
inline constexpr int kChunks = fftspec::kBatch / kV;
inline constexpr std::int64_t kElem = 16;  // floats per batch element

// kV lanes of complex values.
struct Cx {
    F re, im;
};

// Where an element's real and imaginary parts lie. The inverse transform
// runs the forward code with the two exchanged: exchanging them conjugates
// up to a factor i, and IDFT(x) = swap(DFT(swap(x))).
struct Dir {
    int re, im;
};
inline constexpr Dir kForward{0, 8};
inline constexpr Dir kInverse{8, 0};
inline Dir swapped(Dir d) { return {d.im, d.re}; }

inline Cx load(const float* e, Dir d, int c) { return {fv::loadA(e + d.re + c * kV), fv::loadA(e + d.im + c * kV)}; }
inline void store(float* e, Dir d, int c, Cx x) {
    fv::storeA(e + d.re + c * kV, x.re);
    fv::storeA(e + d.im + c * kV, x.im);
}
inline F neg(F a) { return fv::bitXor(a, fv::set1(-0.0f)); }
inline Cx add(Cx a, Cx b) { return {fv::add(a.re, b.re), fv::add(a.im, b.im)}; }
inline Cx sub(Cx a, Cx b) { return {fv::sub(a.re, b.re), fv::sub(a.im, b.im)}; }
// a (wr + i wi)
inline Cx mul(Cx a, F wr, F wi) {
    return {fv::sub(fv::mul(a.re, wr), fv::mul(a.im, wi)), fv::add(fv::mul(a.re, wi), fv::mul(a.im, wr))};
}
inline Cx scale(Cx a, F s) { return {fv::mul(a.re, s), fv::mul(a.im, s)}; }
// -i a
inline Cx mulNegI(Cx a) { return {a.im, neg(a.re)}; }

template <class T>
inline const T* at(const unsigned char* spec, std::uint32_t offset) {
    return reinterpret_cast<const T*>(spec + offset);
}

// ---- butterflies: x[j] becomes sum_k x[k] e^(-2 pi i jk / R) ----------------------
struct Radix2 {
    static constexpr int kR = 2;
    void operator()(Cx* x) const {
        const Cx a = x[0], b = x[1];
        x[0] = add(a, b);
        x[1] = sub(a, b);
    }
};

struct Radix4 {
    static constexpr int kR = 4;
    void operator()(Cx* x) const {
        const Cx t1 = add(x[0], x[2]), t2 = sub(x[0], x[2]);
        const Cx t3 = add(x[1], x[3]), t4 = mulNegI(sub(x[1], x[3]));
        x[0] = add(t1, t3);
        x[2] = sub(t1, t3);
        x[1] = add(t2, t4);
        x[3] = sub(t2, t4);
    }
};

// Radix 8 as two of 4 after a first step of 2: the sums of legs k and
// k + 4 give the even outputs, their differences times e^(-2 pi i k / 8)
// the odd ones.
struct Radix8 {
    static constexpr int kR = 8;
    void operator()(Cx* x) const {
        const F c = fv::set1(0.70710678118654752440f);
        Cx a[4], b[4];
        for (int k = 0; k < 4; ++k) a[k] = add(x[k], x[k + 4]), b[k] = sub(x[k], x[k + 4]);
        b[1] = {fv::mul(fv::add(b[1].re, b[1].im), c), fv::mul(fv::sub(b[1].im, b[1].re), c)};
        b[2] = mulNegI(b[2]);
        b[3] = {fv::mul(fv::sub(b[3].im, b[3].re), c), neg(fv::mul(fv::add(b[3].re, b[3].im), c))};
        Radix4{}(a);
        Radix4{}(b);
        for (int k = 0; k < 4; ++k) x[2 * k] = a[k], x[2 * k + 1] = b[k];
    }
};

// Odd radix R (0: the run-time radix r, a prime up to kMaxRadix): legs j and
// R - j are paired, y_u = a - i b and y_(R-u) = a + i b with
// a = x_0 + sum_j cos(2 pi uj / R) (x_j + x_(R-j)) and
// b = sum_j sin(2 pi uj / R) (x_j - x_(R-j)), summed in the order of j.
template <int R>
struct RadixOdd {
    static constexpr int kR = R;
    int r;
    const float* coef;  // cos, sin of 2 pi m / r, m = 0..r-1
    void operator()(Cx* x) const {
        constexpr int kMax = R ? R : fftspec::kMaxRadix;
        const int n = R ? R : r, h = (n - 1) / 2;
        Cx s[kMax / 2], d[kMax / 2];
        Cx y0 = x[0];
        for (int j = 1; j <= h; ++j) {
            s[j - 1] = add(x[j], x[n - j]);
            d[j - 1] = sub(x[j], x[n - j]);
            y0 = add(y0, s[j - 1]);
        }
        for (int u = 1; u <= h; ++u) {
            Cx a = x[0], b{};
            for (int j = 1; j <= h; ++j) {
                const int m = (u * j) % n;
                a = add(a, scale(s[j - 1], fv::set1(coef[2 * m])));
                const Cx t = scale(d[j - 1], fv::set1(coef[2 * m + 1]));
                b = j == 1 ? t : add(b, t);
            }
            x[u] = {fv::add(a.re, b.im), fv::sub(a.im, b.re)};
            x[n - u] = {fv::sub(a.re, b.im), fv::add(a.im, b.re)};
        }
        x[0] = y0;
    }
};

// One Stockham pass: for every group k < l1 and index i < ido, the legs
// in[i + ido (j + r k)] go through the butterfly to out[i + ido (k + l1 j)],
// legs j >= 1 multiplied by the twiddle e^(-2 pi i j l1 i / n) where i >= 1.
template <class Bfly>
inline void pass(const float* in, float* out, const fftspec::Pass& p, const float* tw, Dir d, const Bfly& bfly) {
    constexpr int kMax = Bfly::kR ? Bfly::kR : fftspec::kMaxRadix;
    const int r = Bfly::kR ? Bfly::kR : p.radix;
    const std::int64_t l1 = p.l1, ido = p.ido, legIn = kElem * ido, legOut = kElem * ido * l1;
    for (std::int64_t k = 0; k < l1; ++k) {
        const float* src = in + legIn * r * k;
        float* dst = out + kElem * ido * k;
        for (int c = 0; c < kChunks; ++c) {
            Cx x[kMax];
            for (int j = 0; j < r; ++j) x[j] = load(src + j * legIn, d, c);
            bfly(x);
            for (int j = 0; j < r; ++j) store(dst + j * legOut, d, c, x[j]);
        }
        for (std::int64_t i = 1; i < ido; ++i) {
            const float* w = tw + 2 * (r - 1) * (i - 1);
            F wr[kMax], wi[kMax];
            for (int j = 1; j < r; ++j) wr[j] = fv::set1(w[2 * (j - 1)]), wi[j] = fv::set1(w[2 * (j - 1) + 1]);
            for (int c = 0; c < kChunks; ++c) {
                Cx x[kMax];
                for (int j = 0; j < r; ++j) x[j] = load(src + j * legIn + kElem * i, d, c);
                bfly(x);
                store(dst + kElem * i, d, c, x[0]);
                for (int j = 1; j < r; ++j) store(dst + j * legOut + kElem * i, d, c, mul(x[j], wr[j], wi[j]));
            }
        }
    }
}

// The passes of a smooth plan over the batch at data, alternating with work
// (as many elements); returns the one that holds the result.
inline float* runSmooth(const fftspec::Smooth& s, const unsigned char* spec, float* data, float* work, Dir d) {
    float* in = data;
    float* out = work;
    for (int k = 0; k < s.count; ++k) {
        const fftspec::Pass& p = s.pass[k];
        const float* tw = at<float>(spec, p.tw);
        const float* coef = at<float>(spec, p.coef);
        switch (p.radix) {
            case 8: pass(in, out, p, tw, d, Radix8{}); break;
            case 4: pass(in, out, p, tw, d, Radix4{}); break;
            case 2: pass(in, out, p, tw, d, Radix2{}); break;
            case 3: pass(in, out, p, tw, d, RadixOdd<3>{3, coef}); break;
            case 5: pass(in, out, p, tw, d, RadixOdd<5>{5, coef}); break;
            case 7: pass(in, out, p, tw, d, RadixOdd<7>{7, coef}); break;
            default: pass(in, out, p, tw, d, RadixOdd<0>{p.radix, coef}); break;
        }
        float* t = in;
        in = out;
        out = t;
    }
    return in;
}

// dst[k] = src[k] w[k] for k < n, w a table of (re, im) pairs.
inline void mulTable(const float* src, float* dst, const float* w, std::int64_t n, Dir d) {
    for (std::int64_t k = 0; k < n; ++k) {
        const F wr = fv::set1(w[2 * k]), wi = fv::set1(w[2 * k + 1]);
        for (int c = 0; c < kChunks; ++c) store(dst + kElem * k, d, c, mul(load(src + kElem * k, d, c), wr, wi));
    }
}

// Bluestein: the chirp-weighted data, zero-padded to m, convolved with the
// conjugate chirp through two transforms of m, weighted again. The result
// is back in data.
inline float* runBluestein(const fftspec::CPlan& p, const unsigned char* spec, float* data, float* work, Dir d) {
    const std::int64_t n = p.n, m = p.smooth.n;
    float* a = work;
    float* b = work + kElem * m;
    const float* chirp = at<float>(spec, p.chirp);
    mulTable(data, a, chirp, n, d);
    std::memset(a + kElem * n, 0, std::size_t(kElem * (m - n)) * sizeof(float));
    float* r = runSmooth(p.smooth, spec, a, b, d);
    mulTable(r, r, at<float>(spec, p.kernel), m, d);
    r = runSmooth(p.smooth, spec, r, r == a ? b : a, swapped(d));
    mulTable(r, data, chirp, n, d);
    return data;
}

// The complex transform of plan p over the batch at data (p.n elements),
// with work (p.work bytes); returns where the result is: data or work.
inline float* run(const fftspec::CPlan& p, const unsigned char* spec, float* data, float* work, Dir d) {
    return p.bluestein ? runBluestein(p, spec, data, work, d) : runSmooth(p.smooth, spec, data, work, d);
}

// ---- real transforms of even length n = 2m ----------------------------------------
// The packed spectrum is kept as n rows of eight floats (one per sequence):
// row 0 X(0), rows 2k-1 and 2k the real and imaginary parts of X(k), row
// n - 1 X(m). The data x as a batch of m elements z(j) = x(2j) + i x(2j+1)
// is the same memory as n rows x(0), ..., x(n-1).

// Packed rows from Z, the transform of z (m elements), with tw(k) =
// e^(-2 pi i k / n): X(k) = E(k) + tw(k) O(k) and X(m-k) = conj(E(k) - tw(k) O(k)),
// E(k) = (Z(k) + conj Z(m-k)) / 2, O(k) = (Z(k) - conj Z(m-k)) / 2i.
inline void realForwardPost(const float* z, float* out, std::int64_t m, const float* tw) {
    const F half = fv::set1(0.5f);
    const auto row = [out](std::int64_t r, int c) { return out + 8 * r + c * kV; };
    for (int c = 0; c < kChunks; ++c) {
        const Cx z0 = load(z, kForward, c);
        fv::storeA(row(0, c), fv::add(z0.re, z0.im));
        fv::storeA(row(2 * m - 1, c), fv::sub(z0.re, z0.im));
    }
    for (std::int64_t k = 1; 2 * k <= m; ++k) {
        const F wr = fv::set1(tw[2 * k]), wi = fv::set1(tw[2 * k + 1]);
        for (int c = 0; c < kChunks; ++c) {
            const Cx a = load(z + kElem * k, kForward, c), b = load(z + kElem * (m - k), kForward, c);
            const Cx e{fv::mul(fv::add(a.re, b.re), half), fv::mul(fv::sub(a.im, b.im), half)};
            const Cx o{fv::mul(fv::add(a.im, b.im), half), fv::mul(fv::sub(b.re, a.re), half)};
            const Cx t = mul(o, wr, wi);
            fv::storeA(row(2 * k - 1, c), fv::add(e.re, t.re));
            fv::storeA(row(2 * k, c), fv::add(e.im, t.im));
            if (2 * k < m) {
                fv::storeA(row(2 * (m - k) - 1, c), fv::sub(e.re, t.re));
                fv::storeA(row(2 * (m - k), c), fv::sub(t.im, e.im));
            }
        }
    }
}

// The inverse: Z(k) = E(k) + i O(k) with E(k) = X(k) + conj X(m-k) and
// O(k) = (X(k) - conj X(m-k)) conj tw(k), whose inverse transform of m is
// z(j) = x(2j) + i x(2j+1) (unnormalised).
inline void realInversePre(const float* in, float* z, std::int64_t m, const float* tw) {
    const auto row = [in](std::int64_t r, int c) { return fv::loadA(in + 8 * r + c * kV); };
    for (int c = 0; c < kChunks; ++c) {
        const F x0 = row(0, c), xm = row(2 * m - 1, c);
        store(z, kForward, c, {fv::add(x0, xm), fv::sub(x0, xm)});
    }
    for (std::int64_t k = 1; 2 * k <= m; ++k) {
        const F wr = fv::set1(tw[2 * k]), wi = neg(fv::set1(tw[2 * k + 1]));
        for (int c = 0; c < kChunks; ++c) {
            const Cx x{row(2 * k - 1, c), row(2 * k, c)}, y{row(2 * (m - k) - 1, c), row(2 * (m - k), c)};
            const Cx e{fv::add(x.re, y.re), fv::sub(x.im, y.im)};
            const Cx o = mul({fv::sub(x.re, y.re), fv::add(x.im, y.im)}, wr, wi);
            store(z + kElem * k, kForward, c, {fv::sub(e.re, o.im), fv::add(e.im, o.re)});
            if (2 * k < m) store(z + kElem * (m - k), kForward, c, {fv::add(e.re, o.im), fv::sub(o.re, e.im)});
        }
    }
}

// ---- real transforms of odd length (through a complex transform of n) -----------------
// Packed rows from the full spectrum X: row 0 Re X(0), rows 2k-1, 2k X(k).
inline void oddForwardPack(const float* x, float* out, std::int64_t n) {
    for (int c = 0; c < kChunks; ++c) fv::storeA(out + c * kV, fv::loadA(x + c * kV));
    for (std::int64_t k = 1; 2 * k < n; ++k)
        for (int c = 0; c < kChunks; ++c) {
            const Cx v = load(x + kElem * k, kForward, c);
            fv::storeA(out + 8 * (2 * k - 1) + c * kV, v.re);
            fv::storeA(out + 8 * (2 * k) + c * kV, v.im);
        }
}

// The full conjugate-symmetric spectrum from packed rows.
inline void oddInverseUnpack(const float* in, float* x, std::int64_t n) {
    for (int c = 0; c < kChunks; ++c) store(x, kForward, c, {fv::loadA(in + c * kV), fv::zero<float>()});
    for (std::int64_t k = 1; 2 * k < n; ++k)
        for (int c = 0; c < kChunks; ++c) {
            const F re = fv::loadA(in + 8 * (2 * k - 1) + c * kV), im = fv::loadA(in + 8 * (2 * k) + c * kV);
            store(x + kElem * k, kForward, c, {re, im});
            store(x + kElem * (n - k), kForward, c, {re, neg(im)});
        }
}

// ---- moves between images and a batch -------------------------------------------------
// Rows: out[j outStride + l] = row[l][j stride] for j < n and the `count`
// rows present (the other lanes are zero).
inline void gatherRows(const float* const* row, int count, std::int64_t stride, std::int64_t n, float* out,
                       std::int64_t outStride) {
    std::int64_t j = 0;
    if (count == fftspec::kBatch && stride == 1) {
        for (; j + kV <= n; j += kV)
            for (int b = 0; b < kChunks; ++b) {
                F v[kV];
                for (int t = 0; t < kV; ++t) v[t] = fv::loadU(row[b * kV + t] + j);
                fv::transposeSquare(v);
                for (int t = 0; t < kV; ++t) fv::storeA(out + (j + t) * outStride + b * kV, v[t]);
            }
    }
    for (; j < n; ++j)
        for (int l = 0; l < fftspec::kBatch; ++l) out[j * outStride + l] = l < count ? row[l][j * stride] : 0.0f;
}

// The way back, each value multiplied by factor when scaled.
inline void scatterRows(const float* in, std::int64_t inStride, std::int64_t n, float* const* row, int count,
                        std::int64_t stride, bool scaled, float factor) {
    std::int64_t j = 0;
    const F f = fv::set1(factor);
    if (count == fftspec::kBatch && stride == 1) {
        for (; j + kV <= n; j += kV)
            for (int b = 0; b < kChunks; ++b) {
                F v[kV];
                for (int t = 0; t < kV; ++t) v[t] = fv::loadA(in + (j + t) * inStride + b * kV);
                fv::transposeSquare(v);
                for (int t = 0; t < kV; ++t) fv::storeU(row[b * kV + t] + j, scaled ? fv::mul(v[t], f) : v[t]);
            }
    }
    for (; j < n; ++j)
        for (int l = 0; l < count; ++l) {
            const float v = in[j * inStride + l];
            row[l][j * stride] = scaled ? v * factor : v;
        }
}

inline constexpr int kMaxGroup = fftspec::kMaxColumnBlocks;

// Columns: lane l of every element takes its real part from element re[l]
// and its imaginary part from element im[l] of an image row (-1: zero when
// gathered, not written when scattered).
struct Lanes {
    std::int64_t re[fftspec::kBatch], im[fftspec::kBatch];
    // Eight interleaved pairs in a row: one run of 16 floats.
    bool run() const {
        for (int l = 0; l < fftspec::kBatch; ++l)
            if (re[l] != re[0] + 2 * l || im[l] != re[l] + 1) return false;
        return true;
    }
};

// Blocks of columns, nb of them in one sweep down the rows (a run of nb
// blocks of one row is contiguous, which the caches and the prefetchers
// serve far better than one block per sweep); block b at out + b * stride.
inline void gatherColumns(const float* base, std::int64_t step, std::int64_t h, const Lanes* ln, int nb, float* out,
                          std::int64_t stride) {
    bool run[kMaxGroup];
    for (int b = 0; b < nb; ++b) run[b] = ln[b].run();
    for (std::int64_t y = 0; y < h; ++y) {
        const float* row = reinterpret_cast<const float*>(reinterpret_cast<const char*>(base) + y * step);
        for (int b = 0; b < nb; ++b) {
            float* e = out + b * stride + kElem * y;
            const Lanes& l = ln[b];
            if (run[b]) {
                for (int c = 0; c < kChunks; ++c) {
                    const F in[2] = {fv::loadU(row + l.re[0] + 2 * c * kV), fv::loadU(row + l.re[0] + 2 * c * kV + kV)};
                    F v[2];
                    fv::deinterleave2(in, v);
                    fv::storeA(e + c * kV, v[0]);
                    fv::storeA(e + 8 + c * kV, v[1]);
                }
            } else {
                for (int k = 0; k < fftspec::kBatch; ++k) {
                    e[k] = l.re[k] >= 0 ? row[l.re[k]] : 0.0f;
                    e[8 + k] = l.im[k] >= 0 ? row[l.im[k]] : 0.0f;
                }
            }
        }
    }
}

inline void scatterColumns(const float* in, std::int64_t stride, float* base, std::int64_t step, std::int64_t h,
                           const Lanes* ln, int nb, bool scaled, float factor) {
    bool run[kMaxGroup];
    for (int b = 0; b < nb; ++b) run[b] = ln[b].run();
    const F f = fv::set1(factor);
    for (std::int64_t y = 0; y < h; ++y) {
        float* row = reinterpret_cast<float*>(reinterpret_cast<char*>(base) + y * step);
        for (int b = 0; b < nb; ++b) {
            const float* e = in + b * stride + kElem * y;
            const Lanes& l = ln[b];
            if (run[b]) {
                for (int c = 0; c < kChunks; ++c) {
                    F v[2] = {fv::loadA(e + c * kV), fv::loadA(e + 8 + c * kV)};
                    if (scaled) v[0] = fv::mul(v[0], f), v[1] = fv::mul(v[1], f);
                    F out[2];
                    fv::interleave2(v, out);
                    fv::storeU(row + l.re[0] + 2 * c * kV, out[0]);
                    fv::storeU(row + l.re[0] + 2 * c * kV + kV, out[1]);
                }
            } else {
                for (int k = 0; k < fftspec::kBatch; ++k) {
                    if (l.re[k] >= 0) row[l.re[k]] = scaled ? e[k] * factor : e[k];
                    if (l.im[k] >= 0) row[l.im[k]] = scaled ? e[8 + k] * factor : e[8 + k];
                }
            }
        }
    }
}

// Transforms nb batches of n elements (plan p) at data + b * stride, each in
// place, with the work area after the last of them.
inline void runEach(const fftspec::CPlan& p, const unsigned char* spec, float* data, std::int64_t stride, int nb,
                    Dir d) {
    float* work = data + nb * stride;
    for (int b = 0; b < nb; ++b) {
        float* block = data + b * stride;
        const float* r = run(p, spec, block, work, d);
        if (r != block) std::memcpy(block, r, std::size_t(kElem * p.n) * sizeof(float));
    }
}

}  // namespace fft
}  // namespace kernels
QVN_TARGET_END

#endif
