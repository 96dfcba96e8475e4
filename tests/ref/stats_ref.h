// Reference models of the statistics: exact sums (wide integers), the error
// bounds of the float sums, and the order of the extremes, from the rules
// alone.
#ifndef QVN_TESTS_REF_STATS_REF_H
#define QVN_TESTS_REF_STATS_REF_H

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>
#include <vector>

namespace qvn::ref {

// The exact sum of floats as a two's complement multiple of 2^-149 (the
// smallest float step) in 32-bit limbs: 2^277 (above the largest float) times
// any count below 2^100 fits.
class ExactSum {
public:
    void add(float x) {
        std::uint32_t b;
        std::memcpy(&b, &x, 4);
        const int e = int(b >> 23 & 0xFF);
        const std::uint64_t m = (b & 0x7FFFFF) | (e ? 0x800000u : 0u);
        addShifted(m, e ? e - 1 : 0, b >> 31);
    }
    // Rounded to the nearest double, ties to even; +0 for an exact zero.
    double value() const {
        std::uint32_t mag[kLimbs];
        std::memcpy(mag, limb_, sizeof mag);
        const bool negative = limb_[kLimbs - 1] >> 31;
        if (negative) negate(mag);
        int top = kLimbs * 32 - 1;
        while (top >= 0 && !(mag[top / 32] >> (top % 32) & 1)) --top;
        if (top < 0) return 0.0;
        const auto bit = [&](int i) { return i >= 0 && (mag[i / 32] >> (i % 32) & 1); };
        std::uint64_t q = 0;
        for (int i = top; i > top - 53; --i) q = q << 1 | std::uint64_t(bit(i));
        bool sticky = false;
        for (int i = top - 54; i >= 0 && !sticky; --i) sticky = bit(i);
        if (bit(top - 53) && (sticky || (q & 1))) ++q;  // exact in a double, even 2^53
        const double v = std::ldexp(double(q), top - 52 - 149);
        return negative ? -v : v;
    }

private:
    static constexpr int kLimbs = 13;
    void addShifted(std::uint64_t m, int shift, bool negative) {
        std::uint32_t t[kLimbs] = {};
        const unsigned __int128 v = static_cast<unsigned __int128>(m) << (shift % 32);
        for (int k = 0; k < 3 && shift / 32 + k < kLimbs; ++k) t[shift / 32 + k] = std::uint32_t(v >> (32 * k));
        if (negative) negate(t);
        std::uint64_t carry = 0;
        for (int k = 0; k < kLimbs; ++k) {
            const std::uint64_t s = std::uint64_t(limb_[k]) + t[k] + carry;
            limb_[k] = std::uint32_t(s), carry = s >> 32;
        }
    }
    static void negate(std::uint32_t* a) {
        std::uint64_t carry = 1;
        for (int k = 0; k < kLimbs; ++k) {
            const std::uint64_t s = std::uint64_t(~a[k]) + carry;
            a[k] = std::uint32_t(s), carry = s >> 32;
        }
    }
    std::uint32_t limb_[kLimbs] = {};
};

// The IEEE outcome of adding floats in any order, where it does not depend
// on the order: NaN when any is NaN or both infinities occur, the infinity
// when one occurs, -0 when all are -0. finite is false then.
struct FloatSumModel {
    double exact = 0;     // the exact sum rounded once, for finite ones
    long double abs = 0;  // the sum of the magnitudes
    bool finite = true;
    double special = 0;
};

inline FloatSumModel floatSum(const std::vector<float>& xs) {
    FloatSumModel m;
    ExactSum e;
    bool nan = false, pos = false, neg = false, allNegZero = true;
    for (float x : xs) {
        nan |= std::isnan(x);
        pos |= x == std::numeric_limits<float>::infinity();
        neg |= x == -std::numeric_limits<float>::infinity();
        allNegZero &= x == 0 && std::signbit(x);
        if (std::isfinite(x)) e.add(x), m.abs += std::fabs(static_cast<long double>(x));
    }
    m.exact = e.value();
    if (nan || (pos && neg)) m.finite = false, m.special = std::numeric_limits<double>::quiet_NaN();
    else if (pos || neg) m.finite = false, m.special = pos ? HUGE_VAL : -HUGE_VAL;
    else if (allNegZero) m.exact = -0.0;
    return m;
}

// g(n) = n u / (1 - n u): the relative bound of n - 1 roundings of unit u.
inline long double gamma(std::size_t n, long double u) { return n * u / (1 - n * u); }

// Values ordered as numbers with -0 below +0; NaN is never chosen.
template <class T>
bool below(T a, T b) {
    if constexpr (std::is_floating_point_v<T>)
        if (a == 0 && b == 0) return std::signbit(a) && !std::signbit(b);
    return a < b;
}

// The first (in the order given) of the lowest (or, with highest, the
// highest) non-NaN values, and its index; the first value at index 0 when
// all are NaN.
template <class T>
std::pair<T, std::size_t> extreme(const std::vector<T>& v, bool highest) {
    std::size_t best = v.size();
    for (std::size_t i = 0; i < v.size(); ++i) {
        if constexpr (std::is_floating_point_v<T>)
            if (std::isnan(v[i])) continue;
        if (best == v.size() || (highest ? below(v[best], v[i]) : below(v[i], v[best]))) best = i;
    }
    return best == v.size() ? std::make_pair(v[0], std::size_t(0)) : std::make_pair(v[best], best);
}

}  // namespace qvn::ref

#endif
