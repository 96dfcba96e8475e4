// Type conversions: qvniConvert against cv::Mat::convertTo, which saturates
// and rounds halves to even as qvnRndNear does.
#include "bench.h"

namespace qbench {
namespace {

template <class S, class D>
using Fn = QvnStatus (*)(const S*, int, D*, int, QvnRoiSize);
template <class S, class D>
using RndFn = QvnStatus (*)(const S*, int, D*, int, QvnRoiSize, QvnRounding);

// A widening or saturating conversion without arguments of its own.
template <class S, class D>
[[maybe_unused]] std::pair<Peer, Factory> plain(int ch, Fn<S, D> f, Opts o = {}) {
    return unary<S, D>(ch, ch, [f](const Image<S>& s, Image<D>& d) { return f(s.p(), s.step(), d.p(), d.step(), s.roi()); },
                       opencv([](const Image<S>& s, Image<D>& d) { s.mat().convertTo(d.mat(), cv::DataType<D>::depth); }),
                       o);
}

// A narrowing conversion from 32f with rounding to nearest, halves to even.
template <class D>
[[maybe_unused]] std::pair<Peer, Factory> nearest(int ch, RndFn<Qvn32f, D> f, Range r) {
    return unary<Qvn32f, D>(
        ch, ch, [f](const Image<Qvn32f>& s, Image<D>& d) { return f(s.p(), s.step(), d.p(), d.step(), s.roi(), qvnRndNear); },
        opencv([](const Image<Qvn32f>& s, Image<D>& d) { s.mat().convertTo(d.mat(), cv::DataType<D>::depth); }),
        Opts().range(r));
}

#ifdef QVN_HAS_qvniConvert_8u32f_C1R
QB_REGISTER("Convert_8u32f_C1R", plain<Qvn8u, Qvn32f>(1, qvniConvert_8u32f_C1R));
#endif
#ifdef QVN_HAS_qvniConvert_8u32f_C3R
QB_REGISTER("Convert_8u32f_C3R", plain<Qvn8u, Qvn32f>(3, qvniConvert_8u32f_C3R));
#endif
#ifdef QVN_HAS_qvniConvert_8u16s_C1R
QB_REGISTER("Convert_8u16s_C1R", plain<Qvn8u, Qvn16s>(1, qvniConvert_8u16s_C1R));
#endif
#ifdef QVN_HAS_qvniConvert_16s32f_C1R
QB_REGISTER("Convert_16s32f_C1R", plain<Qvn16s, Qvn32f>(1, qvniConvert_16s32f_C1R));
#endif
#ifdef QVN_HAS_qvniConvert_16u8u_C1R
QB_REGISTER("Convert_16u8u_C1R", plain<Qvn16u, Qvn8u>(1, qvniConvert_16u8u_C1R, Opts().range({0, 400, 1})));
#endif
#ifdef QVN_HAS_qvniConvert_16s8u_C1R
QB_REGISTER("Convert_16s8u_C1R", plain<Qvn16s, Qvn8u>(1, qvniConvert_16s8u_C1R, Opts().range({-200, 400, 1})));
#endif
#ifdef QVN_HAS_qvniConvert_32f8u_C1R
QB_REGISTER("Convert_32f8u_C1R", nearest<Qvn8u>(1, qvniConvert_32f8u_C1R, {-20, 280, 0.25}));
#endif
#ifdef QVN_HAS_qvniConvert_32f8u_C3R
QB_REGISTER("Convert_32f8u_C3R", nearest<Qvn8u>(3, qvniConvert_32f8u_C3R, {-20, 280, 0.25}));
#endif
#ifdef QVN_HAS_qvniConvert_32f16s_C1R
QB_REGISTER("Convert_32f16s_C1R", nearest<Qvn16s>(1, qvniConvert_32f16s_C1R, {-40000, 40000, 0.25}));
#endif

// Rounding toward zero has no peer of the same result: truncate, then saturate.
#ifdef QVN_HAS_qvniConvert_32f8u_C1R
QB_REGISTER("Convert_32f8u_C1R_zero", unary<Qvn32f, Qvn8u>(1, 1, [](const Image<Qvn32f>& s, Image<Qvn8u>& d) {
    return qvniConvert_32f8u_C1R(s.p(), s.step(), d.p(), d.step(), s.roi(), qvnRndZero);
}, reference([](const Image<Qvn32f>& s, Image<Qvn8u>& d) {
    forEachElem(d, [&](int y, std::size_t i) { return Qvn8u(std::clamp(std::trunc(s.row(y)[i]), 0.0f, 255.0f)); });
}), Opts().range({-20, 280, 0.25})));
#endif

// qvniScaleC against convertTo(alpha, beta). OpenCV computes in float and we
// in double: the constants are chosen so that no result of the source range
// lies near a half, where the two could round apart.
template <class S, class D>
using ScaleCFn = QvnStatus (*)(const S*, int, D*, int, QvnRoiSize, Qvn64f, Qvn64f, QvnAccuracyHint);
template <class S, class D>
[[maybe_unused]] std::pair<Peer, Factory> scaleC(ScaleCFn<S, D> f, double alpha, double beta, Opts o = {}) {
    return unary<S, D>(
        1, 1,
        [f, alpha, beta](const Image<S>& s, Image<D>& d) {
            return f(s.p(), s.step(), d.p(), d.step(), s.roi(), alpha, beta, 0);
        },
        opencv([alpha, beta](const Image<S>& s, Image<D>& d) {
            s.mat().convertTo(d.mat(), cv::DataType<D>::depth, alpha, beta);
        }),
        o);
}

#ifdef QVN_HAS_qvniScaleC_8u_C1R
QB_REGISTER("ScaleC_8u_C1R", scaleC<Qvn8u, Qvn8u>(qvniScaleC_8u_C1R, 1.0 / 3, 0.2));
#endif
#ifdef QVN_HAS_qvniScaleC_8u16s_C1R
QB_REGISTER("ScaleC_8u16s_C1R", scaleC<Qvn8u, Qvn16s>(qvniScaleC_8u16s_C1R, 7.0 / 3, -300.2));
#endif
#ifdef QVN_HAS_qvniScaleC_8u32f_C1R
QB_REGISTER("ScaleC_8u32f_C1R", scaleC<Qvn8u, Qvn32f>(qvniScaleC_8u32f_C1R, 1.0 / 255, 0.0, Opts().tolerance(1e-6)));
#endif
#ifdef QVN_HAS_qvniScaleC_16u8u_C1R
QB_REGISTER("ScaleC_16u8u_C1R", scaleC<Qvn16u, Qvn8u>(qvniScaleC_16u8u_C1R, 1.0 / 257, 0.0));
#endif
#ifdef QVN_HAS_qvniScaleC_16s8u_C1R
QB_REGISTER("ScaleC_16s8u_C1R", scaleC<Qvn16s, Qvn8u>(qvniScaleC_16s8u_C1R, 1.0 / 257, 128.0));
#endif
#ifdef QVN_HAS_qvniScaleC_16u16s_C1R
QB_REGISTER("ScaleC_16u16s_C1R", scaleC<Qvn16u, Qvn16s>(qvniScaleC_16u16s_C1R, 1.0 / 3, -1000.2));
#endif
#ifdef QVN_HAS_qvniScaleC_16s32f_C1R
QB_REGISTER("ScaleC_16s32f_C1R", scaleC<Qvn16s, Qvn32f>(qvniScaleC_16s32f_C1R, 1.0 / 255, 0.0, Opts().tolerance(1e-6)));
#endif
#ifdef QVN_HAS_qvniScaleC_32f8u_C1R
QB_REGISTER("ScaleC_32f8u_C1R", scaleC<Qvn32f, Qvn8u>(qvniScaleC_32f8u_C1R, 1.0 / 3, 0.2, Opts().range({-20, 280, 0.25})));
#endif
#ifdef QVN_HAS_qvniScaleC_32f_C1R
QB_REGISTER("ScaleC_32f_C1R", scaleC<Qvn32f, Qvn32f>(qvniScaleC_32f_C1R, 1.0 / 3, 0.2, Opts().tolerance(1e-6)));
#endif

// 1-bit images have no peer: checked against a bit-by-bit reference. The
// 1-bit side is a full 8u image of which each row's first width / 8 bytes
// are used, so the bound column counts more bytes than are touched.
#ifdef QVN_HAS_qvniBinToGray_1u8u_C1R
QB_REGISTER("BinToGray_1u8u_C1R", unary<Qvn8u, Qvn8u>(1, 1, [](const Image<Qvn8u>& s, Image<Qvn8u>& d) {
    return qvniBinToGray_1u8u_C1R(s.p(), s.step(), 0, d.p(), d.step(), s.roi(), 10, 200);
}, reference([](const Image<Qvn8u>& s, Image<Qvn8u>& d) {
    forEachElem(d, [&](int y, std::size_t i) { return Qvn8u((s.row(y)[i / 8] >> (7 - i % 8)) & 1 ? 200 : 10); });
})));
#endif
#ifdef QVN_HAS_qvniGrayToBin_8u1u_C1R
QB_REGISTER("GrayToBin_8u1u_C1R", unary<Qvn8u, Qvn8u>(1, 1, [](const Image<Qvn8u>& s, Image<Qvn8u>& d) {
    return qvniGrayToBin_8u1u_C1R(s.p(), s.step(), d.p(), d.step(), 0, s.roi(), 127);
}, reference([](const Image<Qvn8u>& s, Image<Qvn8u>& d) {
    const std::size_t bytes = (std::size_t(s.roi().width) + 7) / 8;
    forEachElem(d, [&](int y, std::size_t i) {
        if (i >= bytes) return d.row(y)[i];
        int b = d.row(y)[i];  // bits past the last pixel keep their value
        for (std::size_t k = 0; k < 8 && 8 * i + k < std::size_t(s.roi().width); ++k)
            b = (b & ~(0x80 >> k)) | (s.row(y)[8 * i + k] > 127) << (7 - k);
        return Qvn8u(b);
    });
})));
#endif

}  // namespace
}  // namespace qbench
