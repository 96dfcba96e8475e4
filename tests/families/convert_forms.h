// The conversions through the elementwise sweep: one source image of S, a
// destination of D, and a model of one element. Sources hold the boundary
// values of every rule; the caller's rounding mode is upward, which no
// conversion may depend on or leave changed.
#ifndef QVN_TESTS_FAMILIES_CONVERT_FORMS_H
#define QVN_TESTS_FAMILIES_CONVERT_FORMS_H

#include <string>
#include <utility>

#include "support/sweep.h"

namespace qvn::test {

// call(src, srcStep, dst, dstStep, roi); ref(s) the converted value.
template <class S, class D, class Call, class Ref>
ElementCase<S, D> conversion(std::string name, int elems, bool alpha, Call call, Ref ref) {
    ElementCase<S, D> c(std::move(name), elems, alpha);
    c.call = [call](const S* const* s, const int* ss, D* d, int ds, QvnRoiSize r) { return call(s[0], ss[0], d, ds, r); };
    c.model = [ref](const S* v, int) { return D(ref(v[0])); };
    return c;
}

// The C1 form over every shape and, for small integer sources, every source
// value; C3 and C4 (the same rows, more elements) over one shape; AC4 (which
// keeps alpha) over every shape. stem##_<layout>R is called with the
// arguments after ref (given with a leading comma: QVN_CONVERT_LAYOUTS(..., ref, , mode)).
#define QVN_CONVERT_LAYOUTS(S, D, stem, ref, ...)                                                         \
    do {                                                                                                  \
        const auto c1 = conversion<S, D>(#stem "_C1R", 1, false, QVN_CALL(stem##_C1R, __VA_ARGS__), ref); \
        sweep(c1);                                                                                        \
        if constexpr (std::is_integral_v<S> && sizeof(S) <= 2) exhaustive(c1);                            \
        sweep(conversion<S, D>(#stem "_C3R", 3, false, QVN_CALL(stem##_C3R, __VA_ARGS__), ref), kOneShape); \
        sweep(conversion<S, D>(#stem "_C4R", 4, false, QVN_CALL(stem##_C4R, __VA_ARGS__), ref), kOneShape); \
        sweep(conversion<S, D>(#stem "_AC4R", 4, true, QVN_CALL(stem##_AC4R, __VA_ARGS__), ref));       \
    } while (0)

}  // namespace qvn::test

// Adapters from an exported name to conversion()'s call, with the arguments
// that follow the ROI (with a leading comma: QVN_CALL(fn, , mode)).
#define QVN_CALL(fn, ...) [=](const auto* s, int ss, auto* d, int ds, QvnRoiSize r) { return fn(s, ss, d, ds, r __VA_ARGS__); }

#endif
