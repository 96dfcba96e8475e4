// The box filter: qvniFilterBoxBorder against cv::boxFilter (normalised,
// single-threaded, replicated borders, the same centred anchor), 5x5 and
// 31x31 masks on 8u C1 and C3 and 32f C1. With odd mask areas no 8u mean
// lies on a half, so OpenCV's rounding to nearest and our half-up rounding
// agree to the bit; 32f means agree within the float error of the running sums.
#include <opencv2/imgproc.hpp>

#include "bench.h"

namespace qbench {
namespace {

template <class T>
using BoxFn = QvnStatus (*)(const T*, int, T*, int, QvnRoiSize, QvnRoiSize, QvnBorderKind, const T*, Qvn8u*);

// The work buffer of one image size and mask, resized when the size changes
// (the output check runs at other sizes than the timing).
struct BoxBuffer {
    std::vector<Qvn8u> bytes;
    int w = 0, h = 0;
    Qvn8u* at(QvnRoiSize roi, int n, int type, int ch) {
        if (roi.width != w || roi.height != h) {
            int size = 0;
            qvniFilterBoxBorderGetBufferSize(roi, {n, n}, type, ch, &size);
            bytes.assign(std::size_t(size), 0);
            w = roi.width, h = roi.height;
        }
        return bytes.data();
    }
};

template <class T>
[[maybe_unused]] std::pair<Peer, Factory> box(BoxFn<T> fn, int ch, int n) {
    auto buffer = std::make_shared<BoxBuffer>();
    const int type = std::is_same_v<T, Qvn8u> ? qvn8u : qvn32f;
    Opts opts;
    if (std::is_floating_point_v<T>) opts.range({0, 1000, 0.125}).tolerance(1e-5);
    return unary<T, T>(ch, ch, [=](const Image<T>& s, Image<T>& d) {
        return fn(s.p(), s.step(), d.p(), d.step(), s.roi(), {n, n}, qvnBorderReplicate, nullptr,
                  buffer->at(s.roi(), n, type, ch));
    }, opencv([n](const Image<T>& s, Image<T>& d) {
        cv::Mat out = d.mat();
        cv::boxFilter(s.mat(), out, -1, cv::Size(n, n), cv::Point(-1, -1), true, cv::BORDER_REPLICATE);
    }), opts);
}

#ifdef QVN_HAS_qvniFilterBoxBorder_8u_C1R
QB_REGISTER("FilterBoxBorder_8u_C1R_5x5", box<Qvn8u>(qvniFilterBoxBorder_8u_C1R, 1, 5));
QB_REGISTER("FilterBoxBorder_8u_C1R_31x31", box<Qvn8u>(qvniFilterBoxBorder_8u_C1R, 1, 31));
QB_REGISTER("FilterBoxBorder_8u_C3R_5x5", box<Qvn8u>(qvniFilterBoxBorder_8u_C3R, 3, 5));
QB_REGISTER("FilterBoxBorder_8u_C3R_31x31", box<Qvn8u>(qvniFilterBoxBorder_8u_C3R, 3, 31));
QB_REGISTER("FilterBoxBorder_32f_C1R_5x5", box<Qvn32f>(qvniFilterBoxBorder_32f_C1R, 1, 5));
QB_REGISTER("FilterBoxBorder_32f_C1R_31x31", box<Qvn32f>(qvniFilterBoxBorder_32f_C1R, 1, 31));
#endif

}  // namespace
}  // namespace qbench
