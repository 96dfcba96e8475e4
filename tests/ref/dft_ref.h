// The 2D discrete Fourier transform in double precision, straight from its
// definition (one axis at a time, every twiddle from its exact angle), and
// the packed layout of a real image's spectrum as the transforms' text
// describes it.
#ifndef QVN_TESTS_REF_DFT_REF_H
#define QVN_TESTS_REF_DFT_REF_H

#include <cmath>
#include <complex>
#include <cstdint>
#include <vector>

namespace qvn::ref {

using Cd = std::complex<double>;

// sum over n of f(n) e^(sign 2 pi i kn / len) along one axis of f (h rows
// of w), unnormalised.
inline std::vector<Cd> dftAxis(const std::vector<Cd>& f, int w, int h, bool alongRows, int sign) {
    const int len = alongRows ? w : h;
    std::vector<Cd> root(std::size_t(len) + 0);
    for (int t = 0; t < len; ++t) root[std::size_t(t)] = std::polar(1.0, sign * 2 * M_PI * t / len);
    std::vector<Cd> out(f.size());
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const int k = alongRows ? x : y;
            Cd s = 0;
            for (int n = 0; n < len; ++n) {
                const Cd v = alongRows ? f[std::size_t(y) * w + n] : f[std::size_t(n) * w + x];
                s += v * root[std::size_t((std::int64_t(k) * n) % len)];
            }
            out[std::size_t(y) * w + x] = s;
        }
    return out;
}

// The unnormalised 2D transform: sign -1 forward, +1 inverse.
inline std::vector<Cd> dft2d(const std::vector<Cd>& f, int w, int h, int sign) {
    return dftAxis(dftAxis(f, w, h, true, sign), w, h, false, sign);
}

// Entry (x, y) of the packed spectrum of F, the full spectrum of a real
// w x h image.
inline double packedEntry(const std::vector<Cd>& F, int w, int h, int x, int y) {
    const auto at = [&](int v, int u) { return F[std::size_t(v) * w + u]; };
    const auto realColumn = [&](int u) {
        if (y == 0) return at(0, u).real();
        if (h % 2 == 0 && y == h - 1) return at(h / 2, u).real();
        const int k = (y + 1) / 2;
        return y % 2 == 1 ? at(k, u).real() : at(k, u).imag();
    };
    if (x == 0) return realColumn(0);
    if (w % 2 == 0 && x == w - 1) return realColumn(w / 2);
    const int u = (x + 1) / 2;
    return x % 2 == 1 ? at(y, u).real() : at(y, u).imag();
}

// The full spectrum of a real image from its packed one.
inline std::vector<Cd> unpack(const std::vector<double>& p, int w, int h) {
    std::vector<Cd> F(std::size_t(w) * h);
    const auto stored = [&](int x, int y) { return p[std::size_t(y) * w + x]; };
    const auto column = [&](int x, int v) -> Cd {  // a real column's spectrum, v <= h/2
        if (v == 0) return stored(x, 0);
        if (2 * v == h) return stored(x, h - 1);
        return {stored(x, 2 * v - 1), stored(x, 2 * v)};
    };
    for (int v = 0; v < h; ++v)
        for (int u = 0; u < w; ++u) {
            Cd value;
            if (u == 0 || 2 * u == w) {
                const int x = u == 0 ? 0 : w - 1;
                value = 2 * v <= h ? column(x, v) : std::conj(column(x, h - v));
            } else if (2 * u < w) {
                value = {stored(2 * u - 1, v), stored(2 * u, v)};
            } else {
                const int vv = (h - v) % h, uu = w - u;
                value = std::conj(Cd(stored(2 * uu - 1, vv), stored(2 * uu, vv)));
            }
            F[std::size_t(v) * w + u] = value;
        }
    return F;
}

}  // namespace qvn::ref

#endif
