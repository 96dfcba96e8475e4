// The rank filters: qvniFilterMedianBorder against cv::medianBlur, and
// qvniFilterMinBorder / qvniFilterMaxBorder against cv::erode / cv::dilate
// with a rectangle of ones, all single-threaded with replicated borders and
// the centred anchor. Medians and extrema are exact, so the results agree to
// the bit.
#include <opencv2/imgproc.hpp>

#include "bench.h"

namespace qbench {
namespace {

// The work buffer of one call shape, sized again when the image size changes
// (the output check runs at other sizes than the timing).
struct Buffer {
    std::vector<Qvn8u> bytes;
    int w = 0, h = 0;

    template <class Query>
    Qvn8u* at(QvnRoiSize roi, const Query& query) {
        if (roi.width != w || roi.height != h) {
            int n = 0;
            query(roi, &n);
            bytes.assign(std::size_t(n), 0);
            w = roi.width, h = roi.height;
        }
        return bytes.data();
    }
};

template <class T>
constexpr int typeOf() {
    return std::is_same_v<T, Qvn8u> ? qvn8u : std::is_same_v<T, Qvn16u> ? qvn16u : qvn32f;
}

// One rank filter with an n x n mask and replicated borders: query gives the
// buffer size, fn is ours, peer(src, dst) OpenCV's.
template <class T, class Query, class Fn, class P>
[[maybe_unused]] std::pair<Peer, Factory> rankFilter(int n, Query query, Fn fn, P peer) {
    auto buffer = std::make_shared<Buffer>();
    return unary<T, T>(1, 1, [buffer, n, query, fn](const Image<T>& s, Image<T>& d) {
        Qvn8u* b = buffer->at(s.roi(), [n, query](QvnRoiSize roi, int* size) { query(roi, {n, n}, typeOf<T>(), 1, size); });
        return fn(s.p(), s.step(), d.p(), d.step(), s.roi(), QvnRoiSize{n, n}, qvnBorderReplicate, T(0), b);
    }, opencv([n, peer](const Image<T>& s, Image<T>& d) {
        cv::Mat out = d.mat();
        peer(s.mat(), out, n);
    }));
}

template <class T, class Fn>
[[maybe_unused]] std::pair<Peer, Factory> median(int n, Fn fn) {
    return rankFilter<T>(n, qvniFilterMedianBorderGetBufferSize, fn,
                         [](const cv::Mat& s, cv::Mat& d, int k) { cv::medianBlur(s, d, k); });
}

template <class T, bool Max, class Fn>
[[maybe_unused]] std::pair<Peer, Factory> extremum(int n, Fn fn) {
    return rankFilter<T>(n, qvniFilterMaxBorderGetBufferSize, fn, [](const cv::Mat& s, cv::Mat& d, int k) {
        const cv::Mat ones = cv::Mat::ones(k, k, CV_8U);
        if (Max) cv::dilate(s, d, ones, cv::Point(-1, -1), 1, cv::BORDER_REPLICATE);
        else cv::erode(s, d, ones, cv::Point(-1, -1), 1, cv::BORDER_REPLICATE);
    });
}

#ifdef QVN_HAS_qvniFilterMedianBorder_8u_C1R
QB_REGISTER("FilterMedianBorder_8u_C1R_3x3", median<Qvn8u>(3, qvniFilterMedianBorder_8u_C1R));
QB_REGISTER("FilterMedianBorder_8u_C1R_5x5", median<Qvn8u>(5, qvniFilterMedianBorder_8u_C1R));
QB_REGISTER("FilterMedianBorder_8u_C1R_15x15", median<Qvn8u>(15, qvniFilterMedianBorder_8u_C1R));
QB_REGISTER("FilterMedianBorder_8u_C1R_31x31", median<Qvn8u>(31, qvniFilterMedianBorder_8u_C1R));
QB_REGISTER("FilterMedianBorder_16u_C1R_5x5", median<Qvn16u>(5, qvniFilterMedianBorder_16u_C1R));
QB_REGISTER("FilterMedianBorder_32f_C1R_3x3", median<Qvn32f>(3, qvniFilterMedianBorder_32f_C1R));
QB_REGISTER("FilterMedianBorder_32f_C1R_5x5", median<Qvn32f>(5, qvniFilterMedianBorder_32f_C1R));
#endif
#ifdef QVN_HAS_qvniFilterMaxBorder_8u_C1R
QB_REGISTER("FilterMinBorder_8u_C1R_5x5", (extremum<Qvn8u, false>(5, qvniFilterMinBorder_8u_C1R)));
QB_REGISTER("FilterMaxBorder_8u_C1R_5x5", (extremum<Qvn8u, true>(5, qvniFilterMaxBorder_8u_C1R)));
QB_REGISTER("FilterMaxBorder_8u_C1R_15x15", (extremum<Qvn8u, true>(15, qvniFilterMaxBorder_8u_C1R)));
QB_REGISTER("FilterMinBorder_32f_C1R_5x5", (extremum<Qvn32f, false>(5, qvniFilterMinBorder_32f_C1R)));
QB_REGISTER("FilterMaxBorder_32f_C1R_5x5", (extremum<Qvn32f, true>(5, qvniFilterMaxBorder_32f_C1R)));
#endif

}  // namespace
}  // namespace qbench
