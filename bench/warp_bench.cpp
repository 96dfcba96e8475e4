// Affine warp: qvniWarpAffineNearest, qvniWarpAffineLinear and
// qvniWarpAffineCubic against cv::warpAffine (INTER_NEAREST, INTER_LINEAR,
// INTER_CUBIC) with the constant border 0: a rotation by 20 degrees about the
// centre with scale 0.9 of a 1920 x 1080 image into one of the same size.
// Both sides get the same backward coefficients (WARP_INVERSE_MAP); our
// cubic uses OpenCV's kernel (B = 0, C = 0.75). Times are per destination
// pixel.
//
// OpenCV rounds positions to 1/32 pixel (1/1024 for nearest) and weights to
// fixed point, so the check compares the pixels whose taps lie inside the
// source, on a smooth image where a position 1/64 pixel off moves a value by
// up to 0.12: within 2 levels for 8u and 0.25 for 32f (values in 0..255),
// and nearest exactly except where the position lies within 1/256 pixel of a
// rounding boundary.
#include <cmath>
#include <memory>

#include <opencv2/imgproc.hpp>

#include "bench.h"

namespace qbench {
namespace {

template <class T>
using WarpFn = QvnStatus (*)(const T* s, int ss, T* d, int ds, QvnPoint o, QvnRoiSize z, const QvnWarpAffineSpec* spec,
                             Qvn8u* buf);

template <class T>
struct WarpState {
    Image<T> src, dst, want;
    double m[2][3];  // backward: destination to source
    std::vector<Qvn8u> spec, buffer;
    const QvnWarpAffineSpec* specPtr() const { return reinterpret_cast<const QvnWarpAffineSpec*>(spec.data()); }
};

// A smooth image: neighbours differ by a few levels.
template <class T>
void fillSmooth(Image<T>& img) {
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            for (int c = 0; c < img.channels(); ++c)
                img.row(y)[x * img.channels() + c] =
                    T(std::lround(127.5 + 100 * std::sin(0.05 * x + 0.031 * y + c) + 27 * std::cos(0.021 * x - 0.043 * y)));
}

// Whether our pixel (x, y) may be compared with OpenCV's: its taps lie inside
// the source and (nearest) its position is not at a rounding boundary.
inline bool comparable(const double m[2][3], int x, int y, int w, int h, int kind) {
    const double p[2] = {m[0][0] * x + m[0][1] * y + m[0][2], m[1][0] * x + m[1][1] * y + m[1][2]};
    for (int a = 0; a < 2; ++a) {
        const double n = a == 0 ? w : h;
        if (p[a] < 2 || p[a] > n - 3) return false;
        const double f = p[a] + 0.5 - std::floor(p[a] + 0.5);
        if (kind == qvnInterpNearest && (f < 1.0 / 256 || f > 1 - 1.0 / 256)) return false;
    }
    return true;
}

template <class T>
std::pair<Peer, Factory> warpCase(int ch, int kind, int cv, WarpFn<T> ours) {
    Factory make = [=](Size z) {
        auto st = std::make_shared<WarpState<T>>();
        const int w = std::max(2, z.w), h = std::max(2, z.h);
        st->src = Image<T>(w, h, ch);
        st->dst = Image<T>(w, h, ch);
        st->want = Image<T>(w, h, ch);
        fillSmooth(st->src);
        // forward: rotation by 20 degrees about the centre, scale 0.9; then its inverse
        const double a = 20 * 3.14159265358979323846 / 180, k = 0.9, cx = (w - 1) / 2.0, cy = (h - 1) / 2.0;
        const double f[2][3] = {{k * std::cos(a), k * std::sin(a), 0}, {-k * std::sin(a), k * std::cos(a), 0}};
        const double det = f[0][0] * f[1][1] - f[0][1] * f[1][0];
        double* m = &st->m[0][0];
        m[0] = f[1][1] / det, m[1] = -f[0][1] / det, m[3] = -f[1][0] / det, m[4] = f[0][0] / det;
        m[2] = cx - (m[0] * cx + m[1] * cy), m[5] = cy - (m[3] * cx + m[4] * cy);  // the centre stays
        constexpr int kType = std::is_same_v<T, Qvn8u> ? qvn8u : qvn32f;
        int specSize = 0, initSize = 0, bufSize = 0;
        qvniWarpAffineGetSize({w, h}, {w, h}, kType, st->m, kind, qvnWarpBackward, qvnBorderConstant, &specSize, &initSize);
        st->spec.resize(std::size_t(specSize));
        auto* spec = reinterpret_cast<QvnWarpAffineSpec*>(st->spec.data());
        const double zero[4] = {};
        if (kind == qvnInterpCubic)
            qvniWarpAffineCubicInit({w, h}, {w, h}, kType, st->m, qvnWarpBackward, ch, 0, 0.75, qvnBorderConstant, zero, 0, spec);
        else
            (kind == qvnInterpLinear ? qvniWarpAffineLinearInit : qvniWarpAffineNearestInit)(
                {w, h}, {w, h}, kType, st->m, qvnWarpBackward, ch, qvnBorderConstant, zero, 0, spec);
        qvniWarpGetBufferSize(spec, {w, h}, &bufSize);
        st->buffer.resize(std::size_t(bufSize));
        auto c = std::make_unique<Case>();
        c->pixels = double(w) * h;
        c->ours = [st, ours] {
            ours(st->src.p(), st->src.step(), st->dst.p(), st->dst.step(), {0, 0}, st->dst.roi(), st->specPtr(),
                 st->buffer.data());
        };
        const auto peer = [st, cv] {
            cv::Mat out = st->want.mat();
            const cv::Mat m(2, 3, CV_64F, st->m);
            cv::warpAffine(st->src.mat(), out, m, out.size(), cv | cv::WARP_INVERSE_MAP, cv::BORDER_CONSTANT, 0);
        };
        c->peer = peer;
        c->check = [st, ours, peer, kind, w, h]() -> std::string {
            const QvnStatus r = ours(st->src.p(), st->src.step(), st->dst.p(), st->dst.step(), {0, 0}, st->dst.roi(),
                                     st->specPtr(), st->buffer.data());
            if (r != qvnOk) return "status " + std::to_string(r);
            peer();
            const double tol = kind == qvnInterpNearest ? 0 : std::is_same_v<T, Qvn8u> ? 2 : 0.25;
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x) {
                    if (!comparable(st->m, x, y, w, h, kind)) continue;
                    for (int e = 0; e < st->dst.channels(); ++e) {
                        const double g = st->dst.row(y)[x * st->dst.channels() + e];
                        const double v = st->want.row(y)[x * st->dst.channels() + e];
                        if (std::fabs(g - v) > tol)
                            return "(" + std::to_string(x) + ", " + std::to_string(y) + ", " + std::to_string(e) +
                                   ") got " + std::to_string(g) + " want " + std::to_string(v);
                    }
                }
            return {};
        };
        return c;
    };
    return {Peer::OpenCV, make};
}

#define QB_WARP(kind, t, T, C, ch, cvKind)                                                                         \
    QB_REGISTER_AT("WarpAffine" #kind "_" #t "_" #C "R_rot20", ({{1920, 1080}}),                                   \
                   warpCase<T>(ch, qvnInterp##kind, cvKind, qvniWarpAffine##kind##_##t##_##C##R));

#ifdef QVN_HAS_qvniWarpAffineLinear_8u_C3R
QB_WARP(Nearest, 8u, Qvn8u, C3, 3, cv::INTER_NEAREST)
QB_WARP(Linear, 8u, Qvn8u, C3, 3, cv::INTER_LINEAR)
QB_WARP(Cubic, 8u, Qvn8u, C3, 3, cv::INTER_CUBIC)
QB_WARP(Nearest, 32f, Qvn32f, C1, 1, cv::INTER_NEAREST)
QB_WARP(Linear, 32f, Qvn32f, C1, 1, cv::INTER_LINEAR)
QB_WARP(Cubic, 32f, Qvn32f, C1, 1, cv::INTER_CUBIC)
#endif

}  // namespace
}  // namespace qbench
