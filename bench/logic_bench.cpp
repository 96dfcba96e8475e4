// Logic, shifts and elementary functions: qvniAnd, qvniAndC, qvniNot against
// cv::bitwise_and and bitwise_not; qvniAbs, qvniSqr, qvniSqrt, qvniExp and
// qvniLn against cv::abs, multiply, sqrt, exp and log. Shifts and the scaled
// integer functions have no peer of the same result and are checked against
// references written here.
#include "bench.h"

namespace qbench {
namespace {

using I8 = Image<Qvn8u>;
using I16s = Image<Qvn16s>;
using I16u = Image<Qvn16u>;
using I32f = Image<Qvn32f>;

#ifdef QVN_HAS_qvniAnd_8u_C1R
QB_REGISTER("And_8u_C1R", binary<Qvn8u>(1, [](const I8& a, const I8& b, I8& d) {
    return qvniAnd_8u_C1R(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.roi());
}, opencv([](const I8& a, const I8& b, I8& d) { cv::bitwise_and(a.mat(), b.mat(), d.mat()); })));
#endif
#ifdef QVN_HAS_qvniXor_32s_C1R
QB_REGISTER("Xor_32s_C1R", binary<Qvn32s>(1, [](const Image<Qvn32s>& a, const Image<Qvn32s>& b, Image<Qvn32s>& d) {
    return qvniXor_32s_C1R(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.roi());
}, opencv([](const Image<Qvn32s>& a, const Image<Qvn32s>& b, Image<Qvn32s>& d) { cv::bitwise_xor(a.mat(), b.mat(), d.mat()); })));
#endif
#ifdef QVN_HAS_qvniAndC_8u_C3R
QB_REGISTER("AndC_8u_C3R", unary<Qvn8u, Qvn8u>(3, 3, [](const I8& s, I8& d) {
    const Qvn8u k[3] = {0xF0, 0x3C, 0x0F};
    return qvniAndC_8u_C3R(s.p(), s.step(), k, d.p(), d.step(), s.roi());
}, opencv([](const I8& s, I8& d) { cv::bitwise_and(s.mat(), cv::Scalar(0xF0, 0x3C, 0x0F), d.mat()); })));
#endif
#ifdef QVN_HAS_qvniNot_8u_C1IR
QB_REGISTER("Not_8u_C1IR", images<Qvn8u, Qvn8u>({}, {1}, [](const std::vector<I8>&, std::vector<I8>& d) {
    return qvniNot_8u_C1IR(d[0].p(), d[0].step(), d[0].roi());
}, opencv([](const std::vector<I8>&, std::vector<I8>& d) {
    cv::Mat m = d[0].mat();
    cv::bitwise_not(m, m);
}), Opts().inPlaceStream()));
#endif

// Shifts: one count, and one per channel.
#ifdef QVN_HAS_qvniLShiftC_8u_C1R
QB_REGISTER("LShiftC_8u_C1R", unary<Qvn8u, Qvn8u>(1, 1, [](const I8& s, I8& d) {
    return qvniLShiftC_8u_C1R(s.p(), s.step(), 3, d.p(), d.step(), s.roi());
}, reference([](const I8& s, I8& d) { forEachElem(d, [&](int y, std::size_t i) { return Qvn8u(s.row(y)[i] << 3); }); })));
#endif
#ifdef QVN_HAS_qvniRShiftC_16s_C1R
QB_REGISTER("RShiftC_16s_C1R", unary<Qvn16s, Qvn16s>(1, 1, [](const I16s& s, I16s& d) {
    return qvniRShiftC_16s_C1R(s.p(), s.step(), 5, d.p(), d.step(), s.roi());
}, reference([](const I16s& s, I16s& d) { forEachElem(d, [&](int y, std::size_t i) { return Qvn16s(s.row(y)[i] >> 5); }); })));
#endif
#ifdef QVN_HAS_qvniRShiftC_8u_C3R
QB_REGISTER("RShiftC_8u_C3R", unary<Qvn8u, Qvn8u>(3, 3, [](const I8& s, I8& d) {
    const Qvn32u n[3] = {1, 2, 3};
    return qvniRShiftC_8u_C3R(s.p(), s.step(), n, d.p(), d.step(), s.roi());
}, reference([](const I8& s, I8& d) { forEachElem(d, [&](int y, std::size_t i) { return Qvn8u(s.row(y)[i] >> (1 + i % 3)); }); })));
#endif

// Elementary functions.
#ifdef QVN_HAS_qvniAbs_16s_C1R
QB_REGISTER("Abs_16s_C1R", unary<Qvn16s, Qvn16s>(1, 1, [](const I16s& s, I16s& d) {
    return qvniAbs_16s_C1R(s.p(), s.step(), d.p(), d.step(), s.roi());
}, opencv([](const I16s& s, I16s& d) { cv::Mat m = cv::abs(s.mat()); m.copyTo(d.mat()); })));
#endif
#ifdef QVN_HAS_qvniSqr_32f_C1R
QB_REGISTER("Sqr_32f_C1R", unary<Qvn32f, Qvn32f>(1, 1, [](const I32f& s, I32f& d) {
    return qvniSqr_32f_C1R(s.p(), s.step(), d.p(), d.step(), s.roi());
}, opencv([](const I32f& s, I32f& d) { cv::multiply(s.mat(), s.mat(), d.mat()); })));
#endif
#ifdef QVN_HAS_qvniSqrt_32f_C1R
QB_REGISTER("Sqrt_32f_C1R", unary<Qvn32f, Qvn32f>(1, 1, [](const I32f& s, I32f& d) {
    return qvniSqrt_32f_C1R(s.p(), s.step(), d.p(), d.step(), s.roi());
}, opencv([](const I32f& s, I32f& d) { cv::sqrt(s.mat(), d.mat()); }), Opts().range({0, 1000, 1.0 / 64})));
#endif
// Compared within the error of either side: ours is below one unit in the
// last place, OpenCV's exp reaches 3.8e-6 relative (about 32 units) over
// -80..80 and its log 1.2e-7.
#ifdef QVN_HAS_qvniExp_32f_C1R
QB_REGISTER("Exp_32f_C1R", unary<Qvn32f, Qvn32f>(1, 1, [](const I32f& s, I32f& d) {
    return qvniExp_32f_C1R(s.p(), s.step(), d.p(), d.step(), s.roi());
}, opencv([](const I32f& s, I32f& d) { cv::exp(s.mat(), d.mat()); }), Opts().range({-80, 80, 1.0 / 1024}).tolerance(5e-6)));
#endif
#ifdef QVN_HAS_qvniLn_32f_C1R
QB_REGISTER("Ln_32f_C1R", unary<Qvn32f, Qvn32f>(1, 1, [](const I32f& s, I32f& d) {
    return qvniLn_32f_C1R(s.p(), s.step(), d.p(), d.step(), s.roi());
}, opencv([](const I32f& s, I32f& d) { cv::log(s.mat(), d.mat()); }), Opts().range({1.5, 1.0e6, 1.0 / 16}).tolerance(1e-6)));
#endif
#ifdef QVN_HAS_qvniSqrt_8u_C1RSfs
QB_REGISTER("Sqrt_8u_C1RSfs", unary<Qvn8u, Qvn8u>(1, 1, [](const I8& s, I8& d) {
    return qvniSqrt_8u_C1RSfs(s.p(), s.step(), d.p(), d.step(), s.roi(), 0);
}, reference([](const I8& s, I8& d) {
    forEachElem(d, [&](int y, std::size_t i) { return Qvn8u(std::nearbyint(std::sqrt(double(s.row(y)[i])))); });
})));
#endif
#ifdef QVN_HAS_qvniLn_16u_C1RSfs
QB_REGISTER("Ln_16u_C1RSfs_m8", unary<Qvn16u, Qvn16u>(1, 1, [](const I16u& s, I16u& d) {
    return qvniLn_16u_C1RSfs(s.p(), s.step(), d.p(), d.step(), s.roi(), -8);
}, reference([](const I16u& s, I16u& d) {
    forEachElem(d, [&](int y, std::size_t i) {
        const Qvn16u x = s.row(y)[i];
        return x == 0 ? Qvn16u(0) : Qvn16u(std::nearbyint(std::log(double(x)) * 256));
    });
}), Opts().range({1, 65535, 1})));
#endif
#ifdef QVN_HAS_qvniExp_16s_C1RSfs
QB_REGISTER("Exp_16s_C1RSfs", unary<Qvn16s, Qvn16s>(1, 1, [](const I16s& s, I16s& d) {
    return qvniExp_16s_C1RSfs(s.p(), s.step(), d.p(), d.step(), s.roi(), 0);
}, reference([](const I16s& s, I16s& d) {
    forEachElem(d, [&](int y, std::size_t i) { return Qvn16s(std::min(32767.0, std::nearbyint(std::exp(double(s.row(y)[i]))))); });
}), Opts().range({-20, 20, 1})));
#endif

}  // namespace
}  // namespace qbench
