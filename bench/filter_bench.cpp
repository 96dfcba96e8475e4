// The general filter: qvniFilterBorder against cv::filter2D (single-threaded,
// replicated borders, the same centred anchor), 3x3, 5x5 and 9x9 kernels on
// 8u and 32f images, each as a general kernel and as a separable (Gaussian)
// one. 8u kernels are integers over a power of two: OpenCV's float sums of
// them are exact and round to nearest even, as our shift does, so the results
// agree to the bit. 32f results agree within the float error of the sums
// (positive kernels and pixels, no cancellation).
#include <opencv2/imgproc.hpp>

#include "bench.h"

namespace qbench {
namespace {

struct Taps {
    int n;
    std::vector<int> k;  // row-major, the caller's order
    int divisor;
};

// Binomial rows: the separable (Gaussian) kernel's factors, summing to 2^(n-1).
std::vector<int> binomial(int n) {
    std::vector<int> r(1, 1);
    for (int i = 1; i < n; ++i) {
        std::vector<int> next(r.size() + 1, 0);
        for (std::size_t j = 0; j < r.size(); ++j) next[j] += r[j], next[j + 1] += r[j];
        r = next;
    }
    return r;
}

[[maybe_unused]] Taps separable(int n) {
    const std::vector<int> r = binomial(n);
    Taps t{n, std::vector<int>(std::size_t(n * n)), 1 << (2 * (n - 1))};
    for (int j = 0; j < n; ++j)
        for (int i = 0; i < n; ++i) t.k[std::size_t(j * n + i)] = r[std::size_t(j)] * r[std::size_t(i)];
    return t;
}

// A kernel of rank above 1: small pseudo-random integers (some negative),
// the centre making the sum a power of two.
[[maybe_unused]] Taps general(int n) {
    Taps t{n, std::vector<int>(std::size_t(n * n)), 0};
    Rng rng(std::uint64_t(n) * 977);
    int sum = 0;
    for (int& v : t.k) sum += v = int(rng.below(9)) - 2;
    t.divisor = 64;
    while (t.divisor < sum + 8) t.divisor *= 2;
    t.k[std::size_t(n * n / 2)] += t.divisor - sum;
    return t;
}

// 32f kernels: the taps over their divisor with every coefficient positive
// (a general kernel's others made 1 - v; separable ones have none).
[[maybe_unused]] std::vector<float> positive(const Taps& t) {
    std::vector<float> k;
    for (int v : t.k) k.push_back(float(v > 0 ? v : 1 - v) / float(t.divisor));
    return k;
}

// The spec and buffer of one kernel, rebuilt when the image size changes (the
// output check runs at other sizes than the timing).
template <class T>
struct Spec {
    std::vector<Qvn8u> spec, buffer;
    int w = 0, h = 0;

    template <class Init>
    const QvnFilterBorderSpec* at(const Image<T>& s, int n, int ktype, const Init& init) {
        if (s.width() != w || s.height() != h) {
            int specSize = 0, bufSize = 0;
            qvniFilterBorderGetSize({n, n}, s.roi(), std::is_same_v<T, Qvn8u> ? qvn8u : qvn32f, ktype, 1, &specSize,
                                    &bufSize);
            spec.assign(std::size_t(specSize), 0), buffer.assign(std::size_t(bufSize), 0);
            init(reinterpret_cast<QvnFilterBorderSpec*>(spec.data()));
            w = s.width(), h = s.height();
        }
        return reinterpret_cast<const QvnFilterBorderSpec*>(spec.data());
    }
};

template <class T>
void cvFilter(const Image<T>& s, Image<T>& d, const std::vector<float>& k, int n) {
    cv::Mat out = d.mat();
    cv::filter2D(s.mat(), out, -1, cv::Mat(n, n, CV_32F, const_cast<float*>(k.data())), cv::Point(-1, -1), 0,
                 cv::BORDER_REPLICATE);
}

[[maybe_unused]] std::pair<Peer, Factory> filter8u(const Taps& t) {
    auto state = std::make_shared<Spec<Qvn8u>>();
    std::vector<float> k;
    for (int v : t.k) k.push_back(float(v) / float(t.divisor));
    return unary<Qvn8u, Qvn8u>(1, 1, [state, t](const Image<Qvn8u>& s, Image<Qvn8u>& d) {
        const QvnFilterBorderSpec* spec = state->at(s, t.n, qvn16s, [&](QvnFilterBorderSpec* p) {
            const std::vector<Qvn16s> k16(t.k.begin(), t.k.end());
            qvniFilterBorderInit_16s(k16.data(), {t.n, t.n}, t.divisor, qvn8u, 1, qvnRndNear, p);
        });
        return qvniFilterBorder_8u_C1R(s.p(), s.step(), d.p(), d.step(), s.roi(), qvnBorderReplicate, nullptr, spec,
                                       state->buffer.data());
    }, opencv([k, n = t.n](const Image<Qvn8u>& s, Image<Qvn8u>& d) { cvFilter(s, d, k, n); }));
}

[[maybe_unused]] std::pair<Peer, Factory> filter32f(const Taps& t) {
    auto state = std::make_shared<Spec<Qvn32f>>();
    const std::vector<float> k = positive(t);
    return unary<Qvn32f, Qvn32f>(1, 1, [state, k, n = t.n](const Image<Qvn32f>& s, Image<Qvn32f>& d) {
        const QvnFilterBorderSpec* spec = state->at(s, n, qvn32f, [&](QvnFilterBorderSpec* p) {
            qvniFilterBorderInit_32f(k.data(), {n, n}, qvn32f, 1, qvnRndNear, p);
        });
        return qvniFilterBorder_32f_C1R(s.p(), s.step(), d.p(), d.step(), s.roi(), qvnBorderReplicate, nullptr, spec,
                                        state->buffer.data());
    }, opencv([k, n = t.n](const Image<Qvn32f>& s, Image<Qvn32f>& d) { cvFilter(s, d, k, n); }),
       Opts().range({0, 1000, 0.125}).tolerance(1e-4));
}

#ifdef QVN_HAS_qvniFilterBorder_8u_C1R
QB_REGISTER("FilterBorder_8u_C1R_3x3", filter8u(general(3)));
QB_REGISTER("FilterBorder_8u_C1R_3x3sep", filter8u(separable(3)));
QB_REGISTER("FilterBorder_8u_C1R_5x5", filter8u(general(5)));
QB_REGISTER("FilterBorder_8u_C1R_5x5sep", filter8u(separable(5)));
QB_REGISTER("FilterBorder_8u_C1R_9x9", filter8u(general(9)));
QB_REGISTER("FilterBorder_8u_C1R_9x9sep", filter8u(separable(9)));
#endif
#ifdef QVN_HAS_qvniFilterBorder_32f_C1R
QB_REGISTER("FilterBorder_32f_C1R_3x3", filter32f(general(3)));
QB_REGISTER("FilterBorder_32f_C1R_3x3sep", filter32f(separable(3)));
QB_REGISTER("FilterBorder_32f_C1R_5x5", filter32f(general(5)));
QB_REGISTER("FilterBorder_32f_C1R_5x5sep", filter32f(separable(5)));
QB_REGISTER("FilterBorder_32f_C1R_9x9", filter32f(general(9)));
QB_REGISTER("FilterBorder_32f_C1R_9x9sep", filter32f(separable(9)));
#endif

}  // namespace
}  // namespace qbench
