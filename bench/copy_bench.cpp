// Copies, channel moves and shuffles: qvniCopy, qvniSwapChannels and qvniDup
// against cv::Mat::copyTo, split, merge, extractChannel and cvtColor.
#include <opencv2/imgproc.hpp>

#include "bench.h"

namespace qbench {
namespace {

using I8 = Image<Qvn8u>;
using V8 = std::vector<I8>;
using I32f = Image<Qvn32f>;

// The mask is source 1 of the masked cases.
[[maybe_unused]] Opts masked() {
    return Opts().readsDestination().shaped([](int i, void* img) {
        if (i == 1) diskMask(*static_cast<I8*>(img));
    });
}

#ifdef QVN_HAS_qvniCopy_8u_C1R
QB_REGISTER("Copy_8u_C1R", unary<Qvn8u, Qvn8u>(1, 1, [](const I8& s, I8& d) {
    return qvniCopy_8u_C1R(s.p(), s.step(), d.p(), d.step(), s.roi());
}, opencv([](const I8& s, I8& d) { s.mat().copyTo(d.mat()); })));
#endif

#ifdef QVN_HAS_qvniCopy_8u_C3R
QB_REGISTER("Copy_8u_C3R", unary<Qvn8u, Qvn8u>(3, 3, [](const I8& s, I8& d) {
    return qvniCopy_8u_C3R(s.p(), s.step(), d.p(), d.step(), s.roi());
}, opencv([](const I8& s, I8& d) { s.mat().copyTo(d.mat()); })));
#endif

#ifdef QVN_HAS_qvniCopy_32f_C1R
QB_REGISTER("Copy_32f_C1R", unary<Qvn32f, Qvn32f>(1, 1, [](const I32f& s, I32f& d) {
    return qvniCopy_32f_C1R(s.p(), s.step(), d.p(), d.step(), s.roi());
}, opencv([](const I32f& s, I32f& d) { s.mat().copyTo(d.mat()); })));
#endif

// No peer copies three channels of four and leaves the fourth alone.
#ifdef QVN_HAS_qvniCopy_8u_AC4R
QB_REGISTER("Copy_8u_AC4R", unary<Qvn8u, Qvn8u>(4, 4, [](const I8& s, I8& d) {
    return qvniCopy_8u_AC4R(s.p(), s.step(), d.p(), d.step(), s.roi());
}, reference([](const I8& s, I8& d) {
    for (int y = 0; y < s.height(); ++y)
        for (std::size_t i = 0; i < s.rowElems(); ++i)
            if (i % 4 != 3) d.row(y)[i] = s.row(y)[i];
}), Opts().readsDestination()));
#endif

#ifdef QVN_HAS_qvniCopy_8u_C1MR
QB_REGISTER("Copy_8u_C1MR", images<Qvn8u, Qvn8u>({1, 1}, {1}, [](const V8& s, V8& d) {
    return qvniCopy_8u_C1MR(s[0].p(), s[0].step(), d[0].p(), d[0].step(), s[0].roi(), s[1].p(), s[1].step());
}, opencv([](const V8& s, V8& d) { s[0].mat().copyTo(d[0].mat(), s[1].mat()); }), masked()));
#endif

#ifdef QVN_HAS_qvniCopy_8u_C3MR
QB_REGISTER("Copy_8u_C3MR", images<Qvn8u, Qvn8u>({3, 1}, {3}, [](const V8& s, V8& d) {
    return qvniCopy_8u_C3MR(s[0].p(), s[0].step(), d[0].p(), d[0].step(), s[0].roi(), s[1].p(), s[1].step());
}, opencv([](const V8& s, V8& d) { s[0].mat().copyTo(d[0].mat(), s[1].mat()); }), masked()));
#endif

#ifdef QVN_HAS_qvniCopy_8u_C3P3R
QB_REGISTER("Copy_8u_C3P3R", images<Qvn8u, Qvn8u>({3}, {1, 1, 1}, [](const V8& s, V8& d) {
    Qvn8u* const planes[3] = {d[0].p(), d[1].p(), d[2].p()};
    return qvniCopy_8u_C3P3R(s[0].p(), s[0].step(), planes, d[0].step(), s[0].roi());
}, opencv([](const V8& s, V8& d) {
    cv::Mat planes[3] = {d[0].mat(), d[1].mat(), d[2].mat()};
    cv::split(s[0].mat(), planes);
})));
#endif

#ifdef QVN_HAS_qvniCopy_8u_P3C3R
QB_REGISTER("Copy_8u_P3C3R", images<Qvn8u, Qvn8u>({1, 1, 1}, {3}, [](const V8& s, V8& d) {
    const Qvn8u* const planes[3] = {s[0].p(), s[1].p(), s[2].p()};
    return qvniCopy_8u_P3C3R(planes, s[0].step(), d[0].p(), d[0].step(), s[0].roi());
}, opencv([](const V8& s, V8& d) {
    const cv::Mat planes[3] = {s[0].mat(), s[1].mat(), s[2].mat()};
    cv::Mat out = d[0].mat();
    cv::merge(planes, 3, out);
})));
#endif

// Channel 1 of a four-channel image: the caller's pointer selects the channel.
#ifdef QVN_HAS_qvniCopy_8u_C4C1R
QB_REGISTER("Copy_8u_C4C1R", unary<Qvn8u, Qvn8u>(4, 1, [](const I8& s, I8& d) {
    return qvniCopy_8u_C4C1R(s.p() + 1, s.step(), d.p(), d.step(), d.roi());
}, opencv([](const I8& s, I8& d) {
    cv::Mat out = d.mat();
    cv::extractChannel(s.mat(), out, 1);
})));
#endif

#ifdef QVN_HAS_qvniCopy_8u_AC4C3R
QB_REGISTER("Copy_8u_AC4C3R", unary<Qvn8u, Qvn8u>(4, 3, [](const I8& s, I8& d) {
    return qvniCopy_8u_AC4C3R(s.p(), s.step(), d.p(), d.step(), d.roi());
}, opencv([](const I8& s, I8& d) {
    cv::Mat out = d.mat();
    cv::cvtColor(s.mat(), out, cv::COLOR_BGRA2BGR);
})));
#endif

#ifdef QVN_HAS_qvniSwapChannels_8u_C3R
QB_REGISTER("SwapChannels_8u_C3R", unary<Qvn8u, Qvn8u>(3, 3, [](const I8& s, I8& d) {
    static const int order[3] = {2, 1, 0};
    return qvniSwapChannels_8u_C3R(s.p(), s.step(), d.p(), d.step(), s.roi(), order);
}, opencv([](const I8& s, I8& d) {
    cv::Mat out = d.mat();
    cv::cvtColor(s.mat(), out, cv::COLOR_BGR2RGB);
})));
#endif

#ifdef QVN_HAS_qvniSwapChannels_8u_C4R
QB_REGISTER("SwapChannels_8u_C4R", unary<Qvn8u, Qvn8u>(4, 4, [](const I8& s, I8& d) {
    static const int order[4] = {2, 1, 0, 3};
    return qvniSwapChannels_8u_C4R(s.p(), s.step(), d.p(), d.step(), s.roi(), order);
}, opencv([](const I8& s, I8& d) {
    cv::Mat out = d.mat();
    cv::cvtColor(s.mat(), out, cv::COLOR_BGRA2RGBA);
})));
#endif

#ifdef QVN_HAS_qvniDup_8u_C1C3R
QB_REGISTER("Dup_8u_C1C3R", unary<Qvn8u, Qvn8u>(1, 3, [](const I8& s, I8& d) {
    return qvniDup_8u_C1C3R(s.p(), s.step(), d.p(), d.step(), s.roi());
}, opencv([](const I8& s, I8& d) {
    cv::Mat out = d.mat();
    cv::cvtColor(s.mat(), out, cv::COLOR_GRAY2BGR);
})));
#endif

}  // namespace
}  // namespace qbench
