// Arithmetic: qvniAdd, qvniSub, qvniMul, qvniDiv and constant forms against
// cv::add, subtract, multiply and divide, which saturate the exact result as
// a scale factor of 0 does. qvniSub and qvniDiv take source 1 as the
// subtrahend and the divisor.
#include "bench.h"

namespace qbench {
namespace {

template <class T>
using SfsFn = QvnStatus (*)(const T*, int, const T*, int, T*, int, QvnRoiSize, int);
template <class T>
using FloatFn = QvnStatus (*)(const T*, int, const T*, int, T*, int, QvnRoiSize);
using CvBinary = void (*)(cv::InputArray, cv::InputArray, cv::OutputArray, cv::InputArray, int);

// Integer forms with scale factor 0 against the peer called as peer(b, a) when
// swapped (Sub, Div), else peer(a, b).
template <class T, class Peer>
[[maybe_unused]] std::pair<qbench::Peer, Factory> sfs0(int ch, SfsFn<T> f, Peer peer, Opts o = {}) {
    return binary<T>(ch, [f](const Image<T>& a, const Image<T>& b, Image<T>& d) {
        return f(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.roi(), 0);
    }, opencv(peer), o);
}

template <class T, class Peer>
[[maybe_unused]] std::pair<qbench::Peer, Factory> flt(int ch, FloatFn<T> f, Peer peer, Opts o = {}) {
    return binary<T>(ch, [f](const Image<T>& a, const Image<T>& b, Image<T>& d) {
        return f(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.roi());
    }, opencv(peer), o);
}

template <class T>
void cvAdd(const Image<T>& a, const Image<T>& b, Image<T>& d) { cv::add(a.mat(), b.mat(), d.mat()); }
template <class T>
void cvSubSwapped(const Image<T>& a, const Image<T>& b, Image<T>& d) { cv::subtract(b.mat(), a.mat(), d.mat()); }
template <class T>
void cvMul(const Image<T>& a, const Image<T>& b, Image<T>& d) { cv::multiply(a.mat(), b.mat(), d.mat()); }
template <class T>
void cvDivSwapped(const Image<T>& a, const Image<T>& b, Image<T>& d) { cv::divide(b.mat(), a.mat(), d.mat()); }

#ifdef QVN_HAS_qvniAdd_8u_C1RSfs
QB_REGISTER("Add_8u_C1RSfs", sfs0<Qvn8u>(1, qvniAdd_8u_C1RSfs, cvAdd<Qvn8u>));
#endif
#ifdef QVN_HAS_qvniAdd_8u_C3RSfs
QB_REGISTER("Add_8u_C3RSfs", sfs0<Qvn8u>(3, qvniAdd_8u_C3RSfs, cvAdd<Qvn8u>));
#endif
#ifdef QVN_HAS_qvniSub_8u_C1RSfs
QB_REGISTER("Sub_8u_C1RSfs", sfs0<Qvn8u>(1, qvniSub_8u_C1RSfs, cvSubSwapped<Qvn8u>));
#endif
#ifdef QVN_HAS_qvniMul_8u_C1RSfs
QB_REGISTER("Mul_8u_C1RSfs", sfs0<Qvn8u>(1, qvniMul_8u_C1RSfs, cvMul<Qvn8u>));
#endif
#ifdef QVN_HAS_qvniAdd_16s_C1RSfs
QB_REGISTER("Add_16s_C1RSfs", sfs0<Qvn16s>(1, qvniAdd_16s_C1RSfs, cvAdd<Qvn16s>));
#endif
#ifdef QVN_HAS_qvniAdd_16u_C1RSfs
QB_REGISTER("Add_16u_C1RSfs", sfs0<Qvn16u>(1, qvniAdd_16u_C1RSfs, cvAdd<Qvn16u>));
#endif
#ifdef QVN_HAS_qvniAdd_32f_C1R
QB_REGISTER("Add_32f_C1R", flt<Qvn32f>(1, qvniAdd_32f_C1R, cvAdd<Qvn32f>));
#endif
#ifdef QVN_HAS_qvniSub_32f_C1R
QB_REGISTER("Sub_32f_C1R", flt<Qvn32f>(1, qvniSub_32f_C1R, cvSubSwapped<Qvn32f>));
#endif
#ifdef QVN_HAS_qvniMul_32f_C1R
QB_REGISTER("Mul_32f_C1R", flt<Qvn32f>(1, qvniMul_32f_C1R, cvMul<Qvn32f>));
#endif
#ifdef QVN_HAS_qvniMul_32f_C3R
QB_REGISTER("Mul_32f_C3R", flt<Qvn32f>(3, qvniMul_32f_C3R, cvMul<Qvn32f>));
#endif
// Our quotient comes from a refined reciprocal, not a correctly rounded
// division: compared within a few units in the last place. Divisors avoid 0,
// which takes a slower, element-by-element path.
#ifdef QVN_HAS_qvniDiv_32f_C1R
QB_REGISTER("Div_32f_C1R", flt<Qvn32f>(1, qvniDiv_32f_C1R, cvDivSwapped<Qvn32f>,
                                       Opts().range({0.125, 1000, 0.125}).tolerance(1e-6)));
#endif

// Scale factor 1 (halving, halves to even) has no peer of the same result.
#ifdef QVN_HAS_qvniAdd_8u_C1RSfs
QB_REGISTER("Add_8u_C1RSfs_sf1", binary<Qvn8u>(1, [](const Image<Qvn8u>& a, const Image<Qvn8u>& b, Image<Qvn8u>& d) {
    return qvniAdd_8u_C1RSfs(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.roi(), 1);
}, reference([](const Image<Qvn8u>& a, const Image<Qvn8u>& b, Image<Qvn8u>& d) {
    forEachElem(d, [&](int y, std::size_t i) {
        const int v = a.row(y)[i] + b.row(y)[i];
        return Qvn8u(v / 2 + ((v & 1) && ((v / 2) & 1)));  // an odd sum's half rounds to the even neighbour
    });
})));
#endif

#ifdef QVN_HAS_qvniAddC_8u_C1RSfs
QB_REGISTER("AddC_8u_C1RSfs", unary<Qvn8u, Qvn8u>(1, 1, [](const Image<Qvn8u>& s, Image<Qvn8u>& d) {
    return qvniAddC_8u_C1RSfs(s.p(), s.step(), 37, d.p(), d.step(), s.roi(), 0);
}, opencv([](const Image<Qvn8u>& s, Image<Qvn8u>& d) { cv::add(s.mat(), cv::Scalar(37), d.mat()); })));
#endif

// In place: bounded by the read-modify-write stream.
#ifdef QVN_HAS_qvniAddC_8u_C1IRSfs
QB_REGISTER("AddC_8u_C1IRSfs", images<Qvn8u, Qvn8u>({}, {1}, [](const std::vector<Image<Qvn8u>>&, std::vector<Image<Qvn8u>>& d) {
    return qvniAddC_8u_C1IRSfs(3, d[0].p(), d[0].step(), d[0].roi(), 0);
}, opencv([](const std::vector<Image<Qvn8u>>&, std::vector<Image<Qvn8u>>& d) {
    cv::Mat m = d[0].mat();
    cv::add(m, cv::Scalar(3), m);
}), Opts().inPlaceStream()));
#endif

#ifdef QVN_HAS_qvniMulC_32f_C1R
QB_REGISTER("MulC_32f_C1R", unary<Qvn32f, Qvn32f>(1, 1, [](const Image<Qvn32f>& s, Image<Qvn32f>& d) {
    return qvniMulC_32f_C1R(s.p(), s.step(), 0.75f, d.p(), d.step(), s.roi());
}, opencv([](const Image<Qvn32f>& s, Image<Qvn32f>& d) { cv::multiply(s.mat(), cv::Scalar(0.75), d.mat()); }),
   Opts().tolerance(1e-7)));
#endif

}  // namespace
}  // namespace qbench
