// Thresholds and comparisons against cv::threshold, cv::max and cv::compare
// where they define the same result: THRESH_TRUNC is _GT, THRESH_TOZERO_INV
// is _GTVal with 0, THRESH_TOZERO at t is _LTVal with 0 at t + 1 (integers),
// cv::max is _LT, and cv::compare of one-channel images is qvniCompare.
// Multi-channel masks (every channel must hold), the two-sided threshold and
// Otsu's threshold have no peer of the same result.
#include <opencv2/imgproc.hpp>

#include "bench.h"

namespace qbench {
namespace {

template <class T>
using Imgs = std::vector<Image<T>>;

// One source, one destination of the same type and channels: ours(s, d),
// cv::threshold(s, d, t, 0, kind).
template <class T, class Ours>
[[maybe_unused]] std::pair<Peer, Factory> cvThreshold(int ch, double t, int kind, Ours ours) {
    return unary<T, T>(ch, ch, ours, opencv([t, kind](const Image<T>& s, Image<T>& d) {
        cv::threshold(s.mat(), d.mat(), t, 0, kind);
    }));
}

#ifdef QVN_HAS_qvniThreshold_GT_8u_C1R
QB_REGISTER("Threshold_GT_8u_C1R", cvThreshold<Qvn8u>(1, 100, cv::THRESH_TRUNC, [](const Image<Qvn8u>& s, Image<Qvn8u>& d) {
    return qvniThreshold_GT_8u_C1R(s.p(), s.step(), d.p(), d.step(), s.roi(), 100);
}));
#endif
#ifdef QVN_HAS_qvniThreshold_GT_8u_C3R
QB_REGISTER("Threshold_GT_8u_C3R", cvThreshold<Qvn8u>(3, 100, cv::THRESH_TRUNC, [](const Image<Qvn8u>& s, Image<Qvn8u>& d) {
    const Qvn8u t[3] = {100, 100, 100};
    return qvniThreshold_GT_8u_C3R(s.p(), s.step(), d.p(), d.step(), s.roi(), t);
}));
#endif
#ifdef QVN_HAS_qvniThreshold_GT_16u_C1R
QB_REGISTER("Threshold_GT_16u_C1R", cvThreshold<Qvn16u>(1, 30000, cv::THRESH_TRUNC, [](const Image<Qvn16u>& s, Image<Qvn16u>& d) {
    return qvniThreshold_GT_16u_C1R(s.p(), s.step(), d.p(), d.step(), s.roi(), 30000);
}));
#endif
#ifdef QVN_HAS_qvniThreshold_GT_16s_C1R
QB_REGISTER("Threshold_GT_16s_C1R", cvThreshold<Qvn16s>(1, 1000, cv::THRESH_TRUNC, [](const Image<Qvn16s>& s, Image<Qvn16s>& d) {
    return qvniThreshold_GT_16s_C1R(s.p(), s.step(), d.p(), d.step(), s.roi(), 1000);
}));
#endif
#ifdef QVN_HAS_qvniThreshold_GT_32f_C1R
QB_REGISTER("Threshold_GT_32f_C1R", cvThreshold<Qvn32f>(1, 12.5, cv::THRESH_TRUNC, [](const Image<Qvn32f>& s, Image<Qvn32f>& d) {
    return qvniThreshold_GT_32f_C1R(s.p(), s.step(), d.p(), d.step(), s.roi(), 12.5f);
}));
#endif
#ifdef QVN_HAS_qvniThreshold_GTVal_8u_C1R
QB_REGISTER("Threshold_GTVal_8u_C1R", cvThreshold<Qvn8u>(1, 100, cv::THRESH_TOZERO_INV, [](const Image<Qvn8u>& s, Image<Qvn8u>& d) {
    return qvniThreshold_GTVal_8u_C1R(s.p(), s.step(), d.p(), d.step(), s.roi(), 100, 0);
}));
#endif
#ifdef QVN_HAS_qvniThreshold_LTVal_16s_C1R
QB_REGISTER("Threshold_LTVal_16s_C1R", cvThreshold<Qvn16s>(1, 1000, cv::THRESH_TOZERO, [](const Image<Qvn16s>& s, Image<Qvn16s>& d) {
    return qvniThreshold_LTVal_16s_C1R(s.p(), s.step(), d.p(), d.step(), s.roi(), 1001, 0);
}));
#endif
#ifdef QVN_HAS_qvniThreshold_LT_8u_C1R
QB_REGISTER("Threshold_LT_8u_C1R", unary<Qvn8u, Qvn8u>(1, 1, [](const Image<Qvn8u>& s, Image<Qvn8u>& d) {
    return qvniThreshold_LT_8u_C1R(s.p(), s.step(), d.p(), d.step(), s.roi(), 100);
}, opencv([](const Image<Qvn8u>& s, Image<Qvn8u>& d) { cv::max(s.mat(), cv::Scalar(100), d.mat()); })));
#endif

// In place: bounded by the read-modify-write stream.
#ifdef QVN_HAS_qvniThreshold_GT_8u_C1IR
QB_REGISTER("Threshold_GT_8u_C1IR", images<Qvn8u, Qvn8u>({}, {1}, [](const Imgs<Qvn8u>&, Imgs<Qvn8u>& d) {
    return qvniThreshold_GT_8u_C1IR(d[0].p(), d[0].step(), d[0].roi(), 100);
}, opencv([](const Imgs<Qvn8u>&, Imgs<Qvn8u>& d) {
    cv::Mat m = d[0].mat();
    cv::threshold(m, m, 100, 0, cv::THRESH_TRUNC);
}), Opts().inPlaceStream()));
#endif

#ifdef QVN_HAS_qvniThreshold_LTValGTVal_8u_C1R
QB_REGISTER("Threshold_LTValGTVal_8u_C1R", unary<Qvn8u, Qvn8u>(1, 1, [](const Image<Qvn8u>& s, Image<Qvn8u>& d) {
    return qvniThreshold_LTValGTVal_8u_C1R(s.p(), s.step(), d.p(), d.step(), s.roi(), 50, 0, 200, 255);
}, reference([](const Image<Qvn8u>& s, Image<Qvn8u>& d) {
    forEachElem(d, [&](int y, std::size_t i) {
        const Qvn8u x = s.row(y)[i];
        return x < 50 ? Qvn8u(0) : x > 200 ? Qvn8u(255) : x;
    });
})));
#endif

// Masks of one-channel images: cv::compare with the same operator.
template <class T, class Ours>
[[maybe_unused]] std::pair<Peer, Factory> cvCompare(int cmp, Ours ours) {
    return images<T, Qvn8u>({1, 1}, {1}, [ours](const Imgs<T>& s, Imgs<Qvn8u>& d) { return ours(s[0], s[1], d[0]); },
                            opencv([cmp](const Imgs<T>& s, Imgs<Qvn8u>& d) {
                                cv::compare(s[0].mat(), s[1].mat(), d[0].mat(), cmp);
                            }));
}

#ifdef QVN_HAS_qvniCompare_8u_C1R
QB_REGISTER("Compare_8u_C1R", cvCompare<Qvn8u>(cv::CMP_LT, [](const Image<Qvn8u>& a, const Image<Qvn8u>& b, Image<Qvn8u>& d) {
    return qvniCompare_8u_C1R(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.roi(), qvnCmpLess);
}));
#endif
#ifdef QVN_HAS_qvniCompare_16s_C1R
QB_REGISTER("Compare_16s_C1R", cvCompare<Qvn16s>(cv::CMP_GE, [](const Image<Qvn16s>& a, const Image<Qvn16s>& b, Image<Qvn8u>& d) {
    return qvniCompare_16s_C1R(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.roi(), qvnCmpGreaterEq);
}));
#endif
#ifdef QVN_HAS_qvniCompare_32f_C1R
QB_REGISTER("Compare_32f_C1R", cvCompare<Qvn32f>(cv::CMP_GT, [](const Image<Qvn32f>& a, const Image<Qvn32f>& b, Image<Qvn8u>& d) {
    return qvniCompare_32f_C1R(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.roi(), qvnCmpGreater);
}));
#endif
#ifdef QVN_HAS_qvniCompareC_8u_C1R
QB_REGISTER("CompareC_8u_C1R", unary<Qvn8u, Qvn8u>(1, 1, [](const Image<Qvn8u>& s, Image<Qvn8u>& d) {
    return qvniCompareC_8u_C1R(s.p(), s.step(), 100, d.p(), d.step(), s.roi(), qvnCmpLessEq);
}, opencv([](const Image<Qvn8u>& s, Image<Qvn8u>& d) { cv::compare(s.mat(), cv::Scalar(100), d.mat(), cv::CMP_LE); })));
#endif

// Three channels into one mask: 255 where every channel is below the other
// image's (random sources: one pixel in eight).
#ifdef QVN_HAS_qvniCompare_8u_C3R
QB_REGISTER("Compare_8u_C3R", images<Qvn8u, Qvn8u>({3, 3}, {1}, [](const Imgs<Qvn8u>& s, Imgs<Qvn8u>& d) {
    return qvniCompare_8u_C3R(s[0].p(), s[0].step(), s[1].p(), s[1].step(), d[0].p(), d[0].step(), s[0].roi(), qvnCmpLess);
}, reference([](const Imgs<Qvn8u>& s, Imgs<Qvn8u>& d) {
    forEachElem(d[0], [&](int y, std::size_t x) {
        const Qvn8u *a = s[0].row(y) + 3 * x, *b = s[1].row(y) + 3 * x;
        return Qvn8u(a[0] < b[0] && a[1] < b[1] && a[2] < b[2] ? 255 : 0);
    });
})));
#endif

#ifdef QVN_HAS_qvniCompareEqualEps_32f_C1R
QB_REGISTER("CompareEqualEps_32f_C1R", images<Qvn32f, Qvn8u>({1, 1}, {1}, [](const Imgs<Qvn32f>& s, Imgs<Qvn8u>& d) {
    return qvniCompareEqualEps_32f_C1R(s[0].p(), s[0].step(), s[1].p(), s[1].step(), d[0].p(), d[0].step(), s[0].roi(), 500.0f);
}, reference([](const Imgs<Qvn32f>& s, Imgs<Qvn8u>& d) {
    forEachElem(d[0], [&](int y, std::size_t x) {
        return Qvn8u(std::fabs(s[0].row(y)[x] - s[1].row(y)[x]) <= 500.0f ? 255 : 0);
    });
})));
#endif

// Otsu's threshold: one read of the source, bounded by the read stream. The
// reference counts the histogram and follows the same steps.
#ifdef QVN_HAS_qvniComputeThreshold_Otsu_8u_C1R
int otsuReference(const Image<Qvn8u>& s) {
    double h[256] = {};
    for (int y = 0; y < s.height(); ++y)
        for (int x = 0; x < s.width(); ++x) h[s.row(y)[x]] += 1;
    const double inv = 1.0 / (double(s.width()) * s.height()), eps = std::ldexp(1.0, -23);
    double mu = 0, w0 = 0, muK = 0, best = 0;
    for (int i = 0; i < 256; ++i) mu += h[i] * inv * (i + 0.5);
    int level = 0;
    for (int k = 0; k < 256; ++k) {
        w0 += h[k] * inv;
        const double w1 = 1.0 - w0;
        if (std::min(w0, w1) < eps || std::max(w0, w1) > 1.0 - eps) continue;
        muK += h[k] * inv * (k + 0.5);
        const double v = muK * w1 + (muK - mu) * w0, sigma = v * v / (w1 * w0);
        if (sigma > best) best = sigma, level = k;
    }
    return level;
}
QB_REGISTER("ComputeThreshold_Otsu_8u_C1R", reduction<Qvn8u>(1, 1, [](const Image<Qvn8u>& s, double* out) {
    Qvn8u level = 0;
    const QvnStatus st = qvniComputeThreshold_Otsu_8u_C1R(s.p(), s.step(), s.roi(), &level);
    out[0] = level;
    return st;
}, reference([](const Image<Qvn8u>& s, double* out) { out[0] = otsuReference(s); }), Opts().range({0, 180, 1})));
#endif

}  // namespace
}  // namespace qbench
