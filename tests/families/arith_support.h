// Shared sweep for the arithmetic family tests: runs a function over guarded
// images of many sizes and layouts and compares every element with a model.
#ifndef QVN_TESTS_FAMILIES_ARITH_SUPPORT_H
#define QVN_TESTS_FAMILIES_ARITH_SUPPORT_H

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

#include "qvnip.h"
#include "support/sweep.h"

namespace qvn::test {

// Calling conventions the sweep drives: the 32-bit form with separate
// destination, the in-place form (destination is the second source) and the
// _L form. Call gets (src1, step1, src2, step2, dst, dstStep, roi, sf).
enum class Form { Plain, InPlace, Long };

#define QVN_CALLS(...)                                                                                 \
    [](const auto* a, int as, const auto* b, int bs, auto* d, int ds, QvnRoiSize r, int sf) {              \
        (void)a, (void)as, (void)b, (void)bs, (void)sf;                                                    \
        return __VA_ARGS__;                                                                                \
    }
#define QVN_ARITH_CALLS(fn, ...) QVN_CALLS(fn(a, as, b, bs, d, ds, r __VA_ARGS__))
#define QVN_ARITH_CALLS_I(fn, ...) QVN_CALLS(fn(a, as, d, ds, r __VA_ARGS__))
#define QVN_ARITH_CALLS_L(fn, ...) \
    QVN_CALLS(fn(a, QvnSizeL(as), b, QvnSizeL(bs), d, QvnSizeL(ds), QvnRoiSizeL{r.width, r.height} __VA_ARGS__))
// Constant forms: b is the constant array (C1 passes its first value).
#define QVN_CONST_CALLS(fn, val, ...) QVN_CALLS(fn(a, as, val, d, ds, r __VA_ARGS__))
#define QVN_CONST_CALLS_I(fn, val, ...) QVN_CALLS(fn(val, d, ds, r __VA_ARGS__))
#define QVN_CONST_CALLS_L(fn, val, ...) \
    QVN_CALLS(fn(a, QvnSizeL(as), val, d, QvnSizeL(ds), QvnRoiSizeL{r.width, r.height} __VA_ARGS__))

// Random values with the extremes of T, 0 and 1 mixed in often, so that
// saturation, zero divisors and ties are all met.
template <class T>
void fillMixed(GuardedImage<T>& img, std::uint32_t seed) {
    std::mt19937 rng(seed);
    const T special[] = {std::numeric_limits<T>::min(), std::numeric_limits<T>::max(), T(0), T(1), T(2), T(3)};
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t e = 0; e < img.rowElems(); ++e) {
            const unsigned r = rng() % 16;
            if (r < 6) {
                img.at(e, y) = special[r];
            } else if constexpr (std::is_floating_point_v<T>) {
                img.at(e, y) = T(int(rng() % 2001) - 1000) / T(8);
            } else if (r < 9) {
                img.at(e, y) = static_cast<T>(int(rng() % 64) - (std::is_signed_v<T> ? 32 : 0));
            } else {
                img.at(e, y) = static_cast<T>(rng());
            }
        }
    img.snapshot();
}

struct SweepCase {
    int elems = 1;        // elements per pixel
    bool alpha = false;   // AC4: the fourth element is not written
    Form form = Form::Plain;
    bool constant = false;  // the second operand is a per-channel constant
};

// Expected result of one element: model(x, y) with x the element of source 2
// (or of the source in constant forms) and y that of source 1 (or the constant).
template <class T, class Call, class Model>
void sweep(const SweepCase& sc, int sf, Call call, Model model, QvnStatus wantStatus = qvnOk,
           const std::vector<int>& widths = {1, 2, 7, 16, 17, 33, 257}) {
    forEachShape(widths, {1, 2, 9}, [&](int w, int h, int, bool page, std::uint32_t shapeSeed) {
        const std::uint32_t seed = shapeSeed * 977 + std::uint32_t(sf * 7 + sc.elems);
        GuardedImage<T> s1({w, h, sc.elems, -1, page, seed}), s2({w, h, sc.elems, -1, false, seed + 1}),
            d({w, h, sc.elems, -1, h == 2, seed + 2});
        fillMixed(s1, seed + 3);
        fillMixed(s2, seed + 4);
        T cst[4];
        for (int c = 0; c < 4; ++c) {  // constant forms: no zero divisor (DivC refuses it)
            cst[c] = s1.at(c % s1.rowElems(), 0);
            if (cst[c] == T(0)) cst[c] = T(3);
        }
        if (sc.form == Form::InPlace)
            for (std::int64_t y = 0; y < h; ++y)
                for (std::int64_t e = 0; e < d.rowElems(); ++e)
                    if (!sc.alpha || e % 4 != 3) d.at(e, y) = s2.at(e, y);
        d.snapshot();
        const std::vector<T> before = roiContents(d);
        const T* y1 = sc.constant ? cst : s1.data();
        const T* x2 = sc.form == Form::InPlace ? d.data() : s2.data();
        const QvnStatus st = sc.constant
            ? call(x2, int(s2.step()), y1, 0, d.data(), int(d.step()), QvnRoiSize{w, h}, sf)
            : call(y1, int(s1.step()), x2, int(s2.step()), d.data(), int(d.step()), QvnRoiSize{w, h}, sf);
        bool sawZeroDivisor = false;
        expectRoi(d, sc.elems, [&](std::int64_t e, std::int64_t y) {
            const T old = before[std::size_t(y * d.rowElems() + e)];
            if (sc.alpha && e % 4 == 3) return old;
            const T yv = sc.constant ? cst[e % sc.elems] : s1.at(e, y);
            sawZeroDivisor |= yv == T(0);
            return T(model(sc.form == Form::InPlace ? old : s2.at(e, y), yv));
        }, "sf " + std::to_string(sf) + " seed " + std::to_string(seed));
        EXPECT_EQ(st, wantStatus == qvnWarnDivByZero && !sawZeroDivisor ? qvnOk : wantStatus);
        d.expectUntouchedOutsideRoi();
        s1.expectUnchanged();
        if (sc.form != Form::InPlace) s2.expectUnchanged();
    }, {-1});
}

}  // namespace qvn::test

#endif
