// Resize: qvniResizeLinear (accurate and fast) and qvniResizeNearest against
// cv::resize with INTER_LINEAR and INTER_NEAREST, down from 1080p to 720p
// and up from 480p to 1440p (nearest: by 2 down and 3 up, the ratios where
// INTER_NEAREST picks the pixels ours does). Times are per destination pixel.
#include <algorithm>
#include <memory>

#include <opencv2/imgproc.hpp>

#include "bench.h"

namespace qbench {
namespace {

// Our call through a spec and buffer built once per case.
template <class T>
using ResizeFn = QvnStatus (*)(const T* s, int ss, T* d, int ds, QvnRoiSize z, const QvnResizeSpec* spec,
                               Qvn8u* buf);

template <class T>
struct ResizeState {
    Image<T> src, dst, want;
    std::vector<Qvn8u> spec, buffer;
    const QvnResizeSpec* specPtr() const { return reinterpret_cast<const QvnResizeSpec*>(spec.data()); }
};

// A resize of ch channels from a source of the case's size (rounded up to a
// multiple of den, at least 2 x 2) to num/den of it, against cv::resize with
// interpolation cv. Linear results agree within one level of OpenCV's
// fixed-point 8u ones, and for 32f within the error of OpenCV's positions in
// single precision (a ten-thousandth of a pixel, of values in -1000..1000).
template <class T>
std::pair<Peer, Factory> resizeCase(int ch, int kind, bool fast, int num, int den, int cv, ResizeFn<T> ours) {
    Factory make = [=](Size z) {
        auto st = std::make_shared<ResizeState<T>>();
        const auto side = [&](int n) { return std::max(2, (n + den - 1) / den * den); };  // a multiple of den
        const Size s{side(z.w), side(z.h)};
        const Size d{s.w * num / den, s.h * num / den};
        st->src = Image<T>(s.w, s.h, ch);
        st->dst = Image<T>(d.w, d.h, ch);
        st->want = Image<T>(d.w, d.h, ch);
        Rng rng(std::uint64_t(s.w) * 31 + s.h);
        fillRandom(st->src, defaultRange<T>(), rng);
        constexpr bool k8u = std::is_same_v<T, Qvn8u>;
        const bool linear = kind == qvnInterpLinear;
        int specSize = 0, initSize = 0, bufSize = 0;
        (k8u ? qvniResizeGetSize_8u : qvniResizeGetSize_32f)({s.w, s.h}, {d.w, d.h}, kind, 0, &specSize, &initSize);
        st->spec.resize(std::size_t(specSize));
        auto* spec = reinterpret_cast<QvnResizeSpec*>(st->spec.data());
        (k8u ? (linear ? qvniResizeLinearInit_8u : qvniResizeNearestInit_8u)
             : (linear ? qvniResizeLinearInit_32f : qvniResizeNearestInit_32f))({s.w, s.h}, {d.w, d.h}, spec);
        if (fast) qvniResizeSetMode(qvnAlgHintFast, spec);
        (k8u ? qvniResizeGetBufferSize_8u : qvniResizeGetBufferSize_32f)(spec, {d.w, d.h}, Qvn32u(ch), &bufSize);
        st->buffer.resize(std::size_t(bufSize));
        auto c = std::make_unique<Case>();
        c->pixels = double(d.w) * d.h;
        c->ours = [st, ours] {
            ours(st->src.p(), st->src.step(), st->dst.p(), st->dst.step(), st->dst.roi(), st->specPtr(), st->buffer.data());
        };
        const auto peer = [st, cv] {
            cv::Mat out = st->want.mat();
            cv::resize(st->src.mat(), out, out.size(), 0, 0, cv);
        };
        c->peer = peer;
        c->check = [st, ours, peer, cv]() -> std::string {
            const QvnStatus r = ours(st->src.p(), st->src.step(), st->dst.p(), st->dst.step(), st->dst.roi(),
                                     st->specPtr(), st->buffer.data());
            if (r != qvnOk) return "status " + std::to_string(r);
            peer();
            const double abs = cv == cv::INTER_NEAREST ? 0 : std::is_same_v<T, Qvn8u> ? 1 : 0.25;
            return firstMismatch(st->dst, st->want, 0, abs);
        };
        return c;
    };
    return {Peer::OpenCV, make};
}

#define QB_RESIZE_FN(name, T)                                                                                  \
    +[](const T* s, int ss, T* d, int ds, QvnRoiSize z, const QvnResizeSpec* spec, Qvn8u* buf) {               \
        return name(s, ss, d, ds, {0, 0}, z, qvnBorderReplicate, nullptr, spec, buf);                          \
    }
#define QB_NEAREST_FN(name, T)                                                                                 \
    +[](const T* s, int ss, T* d, int ds, QvnRoiSize z, const QvnResizeSpec* spec, Qvn8u* buf) {               \
        return name(s, ss, d, ds, {0, 0}, z, spec, buf);                                                      \
    }

// One row: our function, its name's suffix, the source size, the kind (and
// fast mode), the ratio num / den and OpenCV's interpolation.
#define QB_RESIZE(fn, T, ch, suffix, w, h, kind, fast, num, den, cv, FN)                                      \
    QB_REGISTER_AT(#fn "_" suffix, ({{w, h}}),                                                                \
                   resizeCase<T>(ch, kind, fast, num, den, cv, FN(qvni##fn, T)));

#ifdef QVN_HAS_qvniResizeLinear_8u_C3R
QB_RESIZE(ResizeLinear_8u_C3R, Qvn8u, 3, "to1280x720", 1920, 1080, qvnInterpLinear, false, 2, 3, cv::INTER_LINEAR, QB_RESIZE_FN)
QB_RESIZE(ResizeLinear_8u_C3R, Qvn8u, 3, "fast_to1280x720", 1920, 1080, qvnInterpLinear, true, 2, 3, cv::INTER_LINEAR, QB_RESIZE_FN)
QB_RESIZE(ResizeLinear_8u_C3R, Qvn8u, 3, "to1920x1440", 640, 480, qvnInterpLinear, false, 3, 1, cv::INTER_LINEAR, QB_RESIZE_FN)
QB_RESIZE(ResizeLinear_8u_C3R, Qvn8u, 3, "fast_to1920x1440", 640, 480, qvnInterpLinear, true, 3, 1, cv::INTER_LINEAR, QB_RESIZE_FN)
QB_RESIZE(ResizeLinear_32f_C1R, Qvn32f, 1, "to1280x720", 1920, 1080, qvnInterpLinear, false, 2, 3, cv::INTER_LINEAR, QB_RESIZE_FN)
QB_RESIZE(ResizeLinear_32f_C1R, Qvn32f, 1, "to1920x1440", 640, 480, qvnInterpLinear, false, 3, 1, cv::INTER_LINEAR, QB_RESIZE_FN)
QB_RESIZE(ResizeNearest_8u_C1R, Qvn8u, 1, "to960x540", 1920, 1080, qvnInterpNearest, false, 1, 2, cv::INTER_NEAREST, QB_NEAREST_FN)
QB_RESIZE(ResizeNearest_8u_C1R, Qvn8u, 1, "to1920x1440", 640, 480, qvnInterpNearest, false, 3, 1, cv::INTER_NEAREST, QB_NEAREST_FN)
#endif

}  // namespace
}  // namespace qbench
