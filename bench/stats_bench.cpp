// Statistics: qvniSum, qvniMean, the extremes and their positions against
// cv::sum, cv::mean and cv::minMaxLoc (one channel: minMaxLoc takes no
// more). Results are compared as doubles: 32f sums within a relative 1e-9
// (OpenCV adds in its own order), everything else exactly; both libraries
// report the first extreme in row-major order. All are bounded by the read
// stream.
#include "bench.h"

namespace qbench {
namespace {

template <class T>
using SumFn = QvnStatus (*)(const T*, int, QvnRoiSize, Qvn64f*);
using HintFn = QvnStatus (*)(const Qvn32f*, int, QvnRoiSize, Qvn64f*, QvnAccuracyHint);
template <class T>
using ExtFn = QvnStatus (*)(const T*, int, QvnRoiSize, T*);
template <class T>
using MinMaxFn = QvnStatus (*)(const T*, int, QvnRoiSize, T*, T*);
template <class T>
using IndexFn = QvnStatus (*)(const T*, int, QvnRoiSize, T*, int*, int*);

// cv::sum or cv::mean of every channel.
template <class T>
auto cvSums(int ch, bool mean) {
    return opencv([ch, mean](const Image<T>& s, double* out) {
        const cv::Scalar v = mean ? cv::mean(s.mat()) : cv::sum(s.mat());
        for (int c = 0; c < ch; ++c) out[c] = v[c];
    });
}

template <class T>
[[maybe_unused]] std::pair<Peer, Factory> sums(int ch, SumFn<T> f, bool mean) {
    return reduction<T>(ch, ch, [f](const Image<T>& s, double* out) { return f(s.p(), s.step(), s.roi(), out); },
                        cvSums<T>(ch, mean));
}

// 32f sums of positive values (no cancellation that would make the peer's
// own rounding show in the comparison).
[[maybe_unused]] std::pair<Peer, Factory> floatSums(int ch, HintFn f, bool mean, QvnAccuracyHint hint) {
    return reduction<Qvn32f>(
        ch, ch, [f, hint](const Image<Qvn32f>& s, double* out) { return f(s.p(), s.step(), s.roi(), out, hint); },
        cvSums<Qvn32f>(ch, mean), Opts().range({0, 1000, 0.125}).tolerance(1e-9));
}

// cv::minMaxLoc: what writes says (minimum, maximum, both, or one with its
// position) into out.
enum Writes { kMin, kMax, kBoth, kMinAt, kMaxAt };
template <class T>
auto cvExtremes(Writes w) {
    return opencv([w](const Image<T>& s, double* out) {
        double lo, hi;
        cv::Point at[2];
        const bool where = w == kMinAt || w == kMaxAt;
        cv::minMaxLoc(s.mat(), &lo, &hi, where ? &at[0] : nullptr, where ? &at[1] : nullptr);
        out[0] = w == kMax || w == kMaxAt ? hi : lo;
        out[1] = hi;
        if (where) out[1] = at[w == kMaxAt].x, out[2] = at[w == kMaxAt].y;
    });
}

template <class T>
[[maybe_unused]] std::pair<Peer, Factory> extreme(ExtFn<T> f, Writes w, Opts o = {}) {
    return reduction<T>(1, 1, [f](const Image<T>& s, double* out) {
        T v;
        const QvnStatus st = f(s.p(), s.step(), s.roi(), &v);
        out[0] = double(v);
        return st;
    }, cvExtremes<T>(w), o);
}

template <class T>
[[maybe_unused]] std::pair<Peer, Factory> minMax(MinMaxFn<T> f) {
    return reduction<T>(1, 2, [f](const Image<T>& s, double* out) {
        T lo, hi;
        const QvnStatus st = f(s.p(), s.step(), s.roi(), &lo, &hi);
        out[0] = double(lo), out[1] = double(hi);
        return st;
    }, cvExtremes<T>(kBoth));
}

// Integer data 10 inside the type's range: no row reaches its lowest or
// highest value, where the index forms stop early, so the whole image is
// read as the peer reads it.
template <class T>
[[maybe_unused]] std::pair<Peer, Factory> index(IndexFn<T> f, Writes w) {
    Opts o;
    if (std::is_integral_v<T>) o.range({double(std::numeric_limits<T>::lowest()) + 10, double(std::numeric_limits<T>::max()) - 10, 1});
    return reduction<T>(1, 3, [f](const Image<T>& s, double* out) {
        T v;
        int x, y;
        const QvnStatus st = f(s.p(), s.step(), s.roi(), &v, &x, &y);
        out[0] = double(v), out[1] = x, out[2] = y;
        return st;
    }, cvExtremes<T>(w), o);
}

#ifdef QVN_HAS_qvniSum_8u_C1R
QB_REGISTER("Sum_8u_C1R", sums<Qvn8u>(1, qvniSum_8u_C1R, false));
QB_REGISTER("Sum_8u_C3R", sums<Qvn8u>(3, qvniSum_8u_C3R, false));
QB_REGISTER("Sum_8u_C4R", sums<Qvn8u>(4, qvniSum_8u_C4R, false));
QB_REGISTER("Sum_16u_C1R", sums<Qvn16u>(1, qvniSum_16u_C1R, false));
QB_REGISTER("Sum_16s_C3R", sums<Qvn16s>(3, qvniSum_16s_C3R, false));
QB_REGISTER("Sum_32f_C1R", floatSums(1, qvniSum_32f_C1R, false, qvnAlgHintFast));
QB_REGISTER("Sum_32f_C1R_accurate", floatSums(1, qvniSum_32f_C1R, false, qvnAlgHintAccurate));
QB_REGISTER("Sum_32f_C3R", floatSums(3, qvniSum_32f_C3R, false, qvnAlgHintFast));
QB_REGISTER("Mean_8u_C1R", sums<Qvn8u>(1, qvniMean_8u_C1R, true));
QB_REGISTER("Mean_8u_C3R", sums<Qvn8u>(3, qvniMean_8u_C3R, true));
QB_REGISTER("Mean_32f_C1R", floatSums(1, qvniMean_32f_C1R, true, qvnAlgHintFast));
QB_REGISTER("Min_8u_C1R", extreme<Qvn8u>(qvniMin_8u_C1R, kMin));
QB_REGISTER("Max_32f_C1R", extreme<Qvn32f>(qvniMax_32f_C1R, kMax));
QB_REGISTER("MinMax_8u_C1R", minMax<Qvn8u>(qvniMinMax_8u_C1R));
QB_REGISTER("MinMax_16u_C1R", minMax<Qvn16u>(qvniMinMax_16u_C1R));
QB_REGISTER("MinMax_16s_C1R", minMax<Qvn16s>(qvniMinMax_16s_C1R));
QB_REGISTER("MinMax_32f_C1R", minMax<Qvn32f>(qvniMinMax_32f_C1R));
QB_REGISTER("MinIndx_8u_C1R", index<Qvn8u>(qvniMinIndx_8u_C1R, kMinAt));
QB_REGISTER("MaxIndx_8u_C1R", index<Qvn8u>(qvniMaxIndx_8u_C1R, kMaxAt));
QB_REGISTER("MinIndx_16s_C1R", index<Qvn16s>(qvniMinIndx_16s_C1R, kMinAt));
QB_REGISTER("MinIndx_32f_C1R", index<Qvn32f>(qvniMinIndx_32f_C1R, kMinAt));
QB_REGISTER("MaxIndx_32f_C1R", index<Qvn32f>(qvniMaxIndx_32f_C1R, kMaxAt));
#endif

}  // namespace
}  // namespace qbench
