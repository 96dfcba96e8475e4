// The arithmetic forms through the elementwise sweep. A two-source form's
// model is op(x, y) of source 2 (or the in-place destination) x and source 1
// y; a constant form's is op(x, constant of the channel). The constants lie
// right before an inaccessible page, so a form that reads more of them than
// its layout has (a fourth for AC4) faults.
#ifndef QVN_TESTS_FAMILIES_ARITH_FORMS_H
#define QVN_TESTS_FAMILIES_ARITH_FORMS_H

#include <algorithm>
#include <array>
#include <cfenv>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "ref/arith_ref.h"
#include "support/sweep.h"

namespace qvn::test {

template <class T>
using ArithCall = typename ElementCase<T>::Call;

// Scale factors at and around every path boundary of 8u and 16-bit results,
// and far outside them; and one factor of each path (plain, dividing,
// all-zero or clamped, multiplying, saturating).
inline const std::vector<int> kFactors = {0, 1, 2, 7, 8, 9, 10, 15, 16, 17, 18, 30, 31, 33, 100,
                                          -1, -7, -8, -15, -16, -17, -1000};
inline const std::vector<int> kPathFactors = {0, 3, 100, -3, -20};

// Images of T with zero divisors, extremes and ties; float forms follow the
// caller's rounding (nearest here), integer forms must not.
template <class T>
ElementCase<T> arithCase(std::string name, int elems, bool alpha, int sources, bool inPlace, ArithCall<T> call,
                         QvnStatus warning) {
    ElementCase<T> c(std::move(name), elems, alpha, sources, inPlace);
    c.callerRounding = std::is_floating_point_v<T> ? FE_TONEAREST : FE_UPWARD;
    c.warning = warning;
    c.warns = [](const T* v, int) { return v[0] == T(0); };
    c.fill = fillMixed<T>;
    c.call = std::move(call);
    return c;
}

// Every pair of 8-bit values in one image: source 1 holds the low and source
// 2 the high byte of an element's index.
inline const Shapes kEveryPair{{256}, {256}, {0}};
template <class T>
void fillPairs(GuardedImage<T>& img, std::uint32_t seed) {
    for (std::int64_t i = 0; i < 65536; ++i) img.at(i % 256, i / 256) = T(seed % 8 ? i >> 8 : i & 255);
    img.snapshot();
}

template <class T, class Op>
void binaryForm(std::string name, int elems, bool alpha, bool inPlace, ArithCall<T> call, Op op, QvnStatus warning,
                const Shapes& shapes = kShapes) {
    ElementCase<T> c = arithCase<T>(std::move(name), elems, alpha, 2, inPlace, std::move(call), warning);
    c.model = [op](const T* v, int) { return T(op(v[1], v[0])); };
    if (&shapes == &kEveryPair) c.fill = fillPairs<T>;
    sweep(c, shapes);
}

// k holds four constants ending at the page: a form of n values reads the
// last n of them (C1 forms take k[3] by value).
template <class T, class Op>
void constForm(std::string name, int elems, bool alpha, bool inPlace, const T* k, ArithCall<T> call, Op op,
               const Shapes& shapes = kShapes) {
    ElementCase<T> c = arithCase<T>(std::move(name), elems, alpha, 1, inPlace, std::move(call), qvnOk);
    const int n = alpha ? 3 : elems;
    std::array<T, 4> kv{};
    for (int ch = 0; ch < n; ++ch) kv[std::size_t(ch)] = k[4 - n + ch];
    c.model = [op, kv](const T* v, int ch) { return T(op(v[0], kv[std::size_t(ch)])); };
    sweep(c, shapes);
}

// Four constants before an inaccessible page: set i of the extremes, 0, 1 and
// small values (no zero for divisors) or, for floats, of ordinary values,
// NaN, infinities, signed zero and magnitudes no integer type reaches.
template <class T>
struct PageEndConstants : GuardedImage<T> {
    PageEndConstants(int i, bool nonzero) : GuardedImage<T>(Layout{4, 1, 1, 0, true, std::uint32_t(i)}) {
        std::vector<T> pool;
        if constexpr (std::is_floating_point_v<T>) pool = {T(0.5), T(-3.25), T(1000), T(0)};
        else pool = {std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max(), T(1), T(3), T(0), T(100), T(2)};
        if constexpr (std::is_floating_point_v<T>)
            for (T s : specialConstants<T>()) pool.push_back(s);
        for (int k = 0; k < 4; ++k) {
            const T v = pool[std::size_t(i * 3 + k) % pool.size()];
            this->at(k, 0) = nonzero && v == T(0) ? T(5) : v;
        }
        this->snapshot();
    }
};

// One form of qvni<OP>_<T>_<form>, called with args, at the scale factor sf
// in scope; constant forms take the constants k in scope.
#define QVN_BIN(OP, T, form, elems, alpha, inPlace, args, model, ...)                                     \
    binaryForm<Qvn##T>(#OP "_" #T "_" #form " sf " + std::to_string(sf), elems, alpha, inPlace,           \
                       QVN_ECALL(qvni##OP##_##T##_##form args), model, __VA_ARGS__)
#define QVN_CONST(OP, T, form, elems, alpha, inPlace, args, model)                                        \
    constForm<Qvn##T>(#OP "_" #T "_" #form " sf " + std::to_string(sf), elems, alpha, inPlace, k,         \
                      QVN_ECALL(qvni##OP##_##T##_##form args), model)
#define QVN_L QvnRoiSizeL{r.width, r.height}

// The scaled two-source forms of OP on T: C1 at every factor, AC4, in-place
// and _L forms at one factor of each path; model(x, y) uses sf.
#define QVN_SCALED_FORMS(OP, T, model, warning, factors, pathFactors)                                      \
    for (int sf : factors) {                                                                               \
        QVN_BIN(OP, T, C1RSfs, 1, false, false, (s[0], ss[0], s[1], ss[1], d, ds, r, sf), model, warning); \
        if (std::find(pathFactors.begin(), pathFactors.end(), sf) == pathFactors.end()) continue;         \
        QVN_BIN(OP, T, AC4RSfs, 4, true, false, (s[0], ss[0], s[1], ss[1], d, ds, r, sf), model, warning); \
        QVN_BIN(OP, T, C3IRSfs, 3, false, true, (s[0], ss[0], d, ds, r, sf), model, warning);             \
        QVN_BIN(OP, T, C4RSfs_L, 4, false, false, (s[0], ss[0], s[1], ss[1], d, ds, QVN_L, sf), model, warning); \
        QVN_BIN(OP, T, AC4IRSfs, 4, true, true, (s[0], ss[0], d, ds, r, sf), model, warning);             \
        if (::testing::Test::HasFailure()) return;                                                         \
    }
// The scaled constant forms of OP on T, each at one factor of each path.
#define QVN_CONST_FORMS(OP, T, model, nonzero, pathFactors)                                                \
    for (int sf : pathFactors) {                                                                           \
        const PageEndConstants<Qvn##T> kc(sf & 15, nonzero);                                              \
        const Qvn##T* k = kc.data();                                                                       \
        QVN_CONST(OP, T, C1RSfs, 1, false, false, (s[0], ss[0], k[3], d, ds, r, sf), model);              \
        QVN_CONST(OP, T, C1IRSfs, 1, false, true, (k[3], d, ds, r, sf), model);                           \
        QVN_CONST(OP, T, C3RSfs, 3, false, false, (s[0], ss[0], k + 1, d, ds, r, sf), model);             \
        QVN_CONST(OP, T, C4RSfs_L, 4, false, false, (s[0], ss[0], k, d, ds, QVN_L, sf), model);           \
        QVN_CONST(OP, T, AC4IRSfs, 4, true, true, (k + 1, d, ds, r, sf), model);                          \
        if (::testing::Test::HasFailure()) return;                                                         \
    }

}  // namespace qvn::test

#endif
