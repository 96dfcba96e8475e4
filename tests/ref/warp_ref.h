// Reference model of the affine warp, from the rules alone: positions in
// long double, the extended source with its in-memory margins, the border
// kinds, nearest, linear and two-parameter cubic interpolation with exact
// weights, and the smooth edge of the transparent kinds.
#ifndef QVN_TESTS_REF_WARP_REF_H
#define QVN_TESTS_REF_WARP_REF_H

#include <cmath>
#include <cstdint>
#include <functional>

namespace qvn::ref {

struct WarpModel {
    long double m[2][3];   // backward: destination to source
    int kind;              // 1 nearest, 2 linear, 6 cubic
    int border;            // QvnBorderKind
    bool smooth = false;
    long double b = 0, c = 0.5;  // cubic parameters
    std::int64_t width, height;  // the source
    // the source's element (pixel (i, j), channel ch), i and j within the margins
    std::function<long double(std::int64_t i, std::int64_t j, int ch)> src;
    std::function<long double(int ch)> value;  // the border value, in the image type

    struct Result {
        bool write = true;       // the pixel is written
        bool ambiguous = false;  // a position within rounding of a boundary: either answer
        long double v = 0;
        long double coverage = 1;  // smooth edge: the blend with the old value
    };

    int margin() const { return kind == 1 ? 0 : kind == 2 ? 1 : 2; }
    // the extended source's axis a: [lo, hi]
    std::int64_t lo(int a) const { return (border & (a == 0 ? 64 : 16)) ? -margin() : 0; }
    std::int64_t hi(int a) const { return (a == 0 ? width : height) - 1 + ((border & (a == 0 ? 128 : 32)) ? margin() : 0); }
    bool constant() const { return (border & 15) == 6; }
    bool transparent() const { return (border & 15) == 7 || border == 240; }

    static long double cubic(long double t, long double B, long double C) {
        t = std::fabs(t);
        if (t < 1) return ((12 - 9 * B - 6 * C) * t * t * t + (-18 + 12 * B + 6 * C) * t * t + 6 - 2 * B) / 6;
        if (t < 2) return ((-B - 6 * C) * t * t * t + (6 * B + 30 * C) * t * t + (-12 * B - 48 * C) * t + 8 * B + 24 * C) / 6;
        return 0;
    }

    Result at(std::int64_t x, std::int64_t y, int ch) const {
        Result r;
        long double p[2];
        for (int a = 0; a < 2; ++a) p[a] = m[a][0] * x + m[a][1] * y + m[a][2];
        const long double eps = 1e-9L * (1 + std::fabs(p[0]) + std::fabs(p[1]));
        // taps of an axis: first position and weights
        std::int64_t first[2];
        long double w[2][4] = {};
        int taps = kind == 1 ? 1 : kind == 2 ? 2 : 4;
        for (int a = 0; a < 2; ++a) {
            if (kind == 1) {
                const long double q = std::floor(p[a] + 0.5L);
                first[a] = std::int64_t(q), w[a][0] = 1;
                r.ambiguous |= std::fabs(p[a] + 0.5L - q) < eps || std::fabs(p[a] + 0.5L - q - 1) < eps;
                continue;
            }
            const long double f = p[a] - std::floor(p[a]);
            r.ambiguous |= f < eps || f > 1 - eps;
            first[a] = std::int64_t(std::floor(p[a])) - (kind == 6 ? 1 : 0);
            if (kind == 2) w[a][0] = 1 - f, w[a][1] = f;
            else for (int k = 0; k < 4; ++k) w[a][k] = cubic(f + 1 - k, b, c);
        }
        if (transparent()) {
            long double cover = 1;
            for (int a = 0; a < 2; ++a) {
                const long double l = lo(a), h = hi(a);
                const long double q = kind == 1 ? (long double)first[a] : p[a];
                const long double d = q < l ? l - q : q > h ? q - h : 0;
                if (d > 0) cover *= smooth && kind != 1 ? std::max<long double>(0, 1 - d) : 0;
            }
            if (!(cover > 0)) {
                r.write = false;
                return r;
            }
            r.coverage = cover;
        }
        long double sum = 0;
        bool anyInside = false;
        for (int j = 0; j < taps; ++j)
            for (int i = 0; i < taps; ++i) {
                std::int64_t q[2] = {first[0] + i, first[1] + j};
                bool out = false;
                for (int a = 0; a < 2; ++a) {
                    if (q[a] >= lo(a) && q[a] <= hi(a)) continue;
                    if (constant()) out = true;
                    q[a] = q[a] < lo(a) ? lo(a) : hi(a);
                }
                anyInside |= !out;
                sum += w[0][i] * w[1][j] * (out ? value(ch) : src(q[0], q[1], ch));
            }
        r.v = constant() && !anyInside ? value(ch) : sum;
        return r;
    }
};

}  // namespace qvn::ref

#endif
