// Independent models of the threshold and compare rules and of Otsu's
// threshold, written from their definitions: comparisons as C++ writes them
// (false where a float is NaN), the Otsu steps in double precision in the
// order the definition gives.
#ifndef QVN_TESTS_REF_THRESHOLD_REF_H
#define QVN_TESTS_REF_THRESHOLD_REF_H

#include <cmath>
#include <cstdint>
#include <vector>

#include "qvnip_types.h"

namespace qvn::ref {

// x, or v where x < t (below) or x > t (above); _LT is below(x, t, t), _GT
// above(x, t, t).
template <class T>
T below(T x, T t, T v) { return x < t ? v : x; }
template <class T>
T above(T x, T t, T v) { return x > t ? v : x; }
// _LTValGTVal: both tests on x itself.
template <class T>
T outside(T x, T lowerT, T lowerV, T upperT, T upperV) {
    return x < lowerT ? lowerV : x > upperT ? upperV : x;
}

template <class T>
bool holds(int op, T a, T b) {
    switch (op) {
        case qvnCmpLess: return a < b;
        case qvnCmpLessEq: return a <= b;
        case qvnCmpEq: return a == b;
        case qvnCmpGreaterEq: return a >= b;
        case qvnCmpGreater: return a > b;
    }
    return false;
}

inline bool withinEps(float a, float b, float eps) { return std::fabs(a - b) <= eps; }

// Otsu's level of a histogram: bins are levels i + 0.5; a bin takes part
// (adds to the partial mean and may be chosen) only while both class
// weights lie in [2^-23, 1 - 2^-23]; the first strict maximum of the
// between-class variance wins; 0 when none is above 0.
inline int otsu(const std::vector<std::uint64_t>& h) {
    std::uint64_t n = 0;
    for (std::uint64_t c : h) n += c;
    std::vector<double> p(256);
    double total = 0;
    for (int i = 0; i < 256; ++i) {
        p[std::size_t(i)] = double(h[std::size_t(i)]) * (1.0 / double(n));
        total += p[std::size_t(i)] * (double(i) + 0.5);
    }
    const double eps = std::ldexp(1.0, -23);
    double w0 = 0, partial = 0, best = 0;
    int level = 0;
    for (int k = 0; k < 256; ++k) {
        w0 += p[std::size_t(k)];
        const double w1 = 1.0 - w0;
        if (std::fmin(w0, w1) < eps || std::fmax(w0, w1) > 1.0 - eps) continue;
        partial += p[std::size_t(k)] * (double(k) + 0.5);
        const double s = partial * w1 + (partial - total) * w0;
        const double between = s * s / (w1 * w0);
        if (between > best) {
            best = between;
            level = k;
        }
    }
    return level;
}

}  // namespace qvn::ref

#endif
