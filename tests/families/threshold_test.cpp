// qvniThreshold and its _LT, _GT, _LTVal, _GTVal, _Val and _LTValGTVal forms
// against the rules, every type, layout and form, and their own checks.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "families/threshold_forms.h"

namespace qvn::test {
namespace {

// One form over the sweep: model(x, i) with i the index of the pixel
// channel's constants.
template <class T, class Model>
void form(std::string name, int elems, bool alpha, bool inPlace, ArithCall<T> call, Model model) {
    ElementCase<T> c(std::move(name), elems, alpha, 1, inPlace);
    c.call = std::move(call);
    c.model = [=](const T* v, int ch) { return T(model(v[0], constantIndex(elems, alpha, ch))); };
    sweep(c);
}

// The R and IR forms of qvniThreshold<F>_<T>_<C>; args: the constant
// arguments.
#define QVN_FORM(F, T, C, elems, alpha, model, ...)                                                            \
    form<Qvn##T>("Threshold" #F "_" #T "_" #C "R", elems, alpha, false,                                        \
                 QVN_ECALL(qvniThreshold##F##_##T##_##C##R(s[0], ss[0], d, ds, r, __VA_ARGS__)), model);       \
    form<Qvn##T>("Threshold" #F "_" #T "_" #C "IR", elems, alpha, true,                                        \
                 QVN_ECALL(qvniThreshold##F##_##T##_##C##IR(d, ds, r, __VA_ARGS__)), model);
// C1, C3 and AC4 with C1ARGS (by value) and CNARGS(o) (pointers to the
// constants from offset o); C4 too with FOUR.
#define QVN_FORMS(F, T, model, C1ARGS, CNARGS, FOUR)                                                           \
    QVN_FORM(F, T, C1, 1, false, model, C1ARGS)                                                               \
    QVN_FORM(F, T, C3, 3, false, model, CNARGS(1))                                                            \
    QVN_FORM(F, T, AC4, 4, true, model, CNARGS(1))                                                            \
    FOUR(QVN_FORM(F, T, C4, 4, false, model, CNARGS(0)))
#define QVN_WITH_C4(x) x
#define QVN_NO_C4(x)

// Threshold values t and replacement values v: sets of extremes, 0, 1 and
// small values, and for 32f NaN, infinities, signed zero and huge values.
#define QVN_CONSTANTS(T)                                                                                      \
    const PageEndConstants<Qvn##T> tc(set, false), vc(set + 5, false);                                        \
    const Qvn##T *t = tc.data(), *v = vc.data();

#define QVN_T_C1 t[3]
#define QVN_T_CN(o) t + o
#define QVN_T_OP_C1 t[3], op
#define QVN_T_OP_CN(o) t + o, op
#define QVN_TV_C1 t[3], v[3]
#define QVN_TV_CN(o) t + o, v + o
#define QVN_TV_OP_C1 t[3], v[3], op
#define QVN_TV_OP_CN(o) t + o, v + o, op

TEST(Threshold, ClampFormsRaiseOrLowerToTheThreshold) {
    for (int set = 0; set < 4; ++set) {
#define X(T)                                                                                                  \
    {                                                                                                         \
        QVN_CONSTANTS(T)                                                                                      \
        const auto lt = [t](Qvn##T x, int i) { return ref::below(x, t[i], t[i]); };                           \
        const auto gt = [t](Qvn##T x, int i) { return ref::above(x, t[i], t[i]); };                           \
        QVN_FORMS(_LT, T, lt, QVN_T_C1, QVN_T_CN, QVN_NO_C4)                                                  \
        QVN_FORMS(_GT, T, gt, QVN_T_C1, QVN_T_CN, QVN_NO_C4)                                                  \
        for (int op : {qvnCmpLess, qvnCmpGreater}) {                                                          \
            const auto model = [&, op](Qvn##T x, int i) { return op == qvnCmpLess ? lt(x, i) : gt(x, i); };    \
            QVN_FORMS(, T, model, QVN_T_OP_C1, QVN_T_OP_CN, QVN_NO_C4)                                        \
        }                                                                                                     \
    }
        QVN_TYPES(X)
#undef X
        if (HasFailure()) return;
    }
}

TEST(Threshold, ValueFormsReplaceStrictlyBelowOrAbove) {
    for (int set = 0; set < 4; ++set) {
#define X(T)                                                                                                  \
    {                                                                                                         \
        QVN_CONSTANTS(T)                                                                                      \
        const auto lt = [t, v](Qvn##T x, int i) { return ref::below(x, t[i], v[i]); };                        \
        const auto gt = [t, v](Qvn##T x, int i) { return ref::above(x, t[i], v[i]); };                        \
        QVN_FORMS(_LTVal, T, lt, QVN_TV_C1, QVN_TV_CN, QVN_WITH_C4)                                           \
        QVN_FORMS(_GTVal, T, gt, QVN_TV_C1, QVN_TV_CN, QVN_WITH_C4)                                           \
        for (int op : {qvnCmpLess, qvnCmpGreater}) {                                                          \
            const auto model = [&, op](Qvn##T x, int i) { return op == qvnCmpLess ? lt(x, i) : gt(x, i); };    \
            QVN_FORMS(_Val, T, model, QVN_TV_OP_C1, QVN_TV_OP_CN, QVN_NO_C4)                                  \
        }                                                                                                     \
    }
        QVN_TYPES(X)
#undef X
        if (HasFailure()) return;
    }
}

// Four constants ending at an inaccessible page, as PageEndConstants.
template <class T>
struct PageEnd : GuardedImage<T> {
    explicit PageEnd(const std::array<T, 4>& v) : GuardedImage<T>(Layout{4, 1, 1, 0, true, 3}) {
        for (int k = 0; k < 4; ++k) this->at(k, 0) = v[std::size_t(k)];
        this->snapshot();
    }
};

// Lower and upper thresholds in order, channel by channel, from two sets of
// constants (including equal ones, and for 32f NaN, which passes the test).
template <class T>
struct OrderedThresholds {
    PageEnd<T> lower, upper;
    static std::array<T, 4> pick(int a, int b, bool upper) {
        const PageEndConstants<T> x(a, false), y(b, false);
        std::array<T, 4> v;
        for (int k = 0; k < 4; ++k) {
            const T p = x.at(k, 0), q = y.at(k, 0);
            v[std::size_t(k)] = (q < p) == upper ? p : q;
        }
        return v;
    }
    OrderedThresholds(int a, int b) : lower(pick(a, b, false)), upper(pick(a, b, true)) {}
};

#define QVN_OUTSIDE_C1 lt[3], lv[3], ut[3], uv[3]
#define QVN_OUTSIDE_CN(o) lt + o, lv + o, ut + o, uv + o

TEST(Threshold, LTValGTValReplacesOutsideTheRange) {
    for (int set = 0; set < 4; ++set) {
#define X(T)                                                                                                  \
    {                                                                                                         \
        const OrderedThresholds<Qvn##T> th(set, set + 2);                                                     \
        const PageEndConstants<Qvn##T> lvc(set + 1, false), uvc(set + 3, false);                              \
        const Qvn##T *lt = th.lower.data(), *ut = th.upper.data(), *lv = lvc.data(), *uv = uvc.data();        \
        const auto model = [=](Qvn##T x, int i) { return ref::outside(x, lt[i], lv[i], ut[i], uv[i]); };      \
        QVN_FORMS(_LTValGTVal, T, model, QVN_OUTSIDE_C1, QVN_OUTSIDE_CN, QVN_NO_C4)                           \
    }
        QVN_TYPES(X)
#undef X
        if (HasFailure()) return;
    }
}

// The model against the worked examples of the rules.
TEST(Threshold, ModelMatchesWorkedExamples) {
    EXPECT_EQ(ref::below<int>(99, 100, 0), 0);
    EXPECT_EQ(ref::below<int>(100, 100, 0), 100);
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_TRUE(std::isnan(ref::below(nan, 1.0f, 1.0f)));
    EXPECT_TRUE(std::signbit(ref::below(-0.0f, 0.0f, 0.0f)));  // equal: kept
    // lower value below, upper value above (whatever the lower value), the
    // range itself kept
    EXPECT_EQ(ref::outside<int>(49, 50, 70, 60, 2), 70);
    EXPECT_EQ(ref::outside<int>(60, 50, 1, 60, 2), 60);
    EXPECT_EQ(ref::outside<int>(61, 50, 1, 60, 2), 2);
}

// Operators, threshold order and their place in the order of checks; a
// failed check writes nothing.
TEST(Threshold, FamilyChecks) {
    GuardedImage<Qvn8u> src({8, 2, 1, 0, true, 1}), dst({8, 2, 1, 0, true, 2});
    GuardedImage<Qvn16s> dst16({8, 2, 3, 0, true, 3});
    const int ss = int(src.step()), ds = int(dst.step()), ds16 = int(dst16.step());
    const QvnRoiSize roi{8, 2};
    const Qvn16s t3[3] = {1, 2, 3};
    for (int op : std::initializer_list<int>{-1, qvnCmpLessEq, qvnCmpEq, qvnCmpGreaterEq, 5}) {
        SCOPED_TRACE(op);
        EXPECT_EQ(qvniThreshold_8u_C1R(src.data(), ss, dst.data(), ds, roi, 5, op), qvnErrBadMode);
        EXPECT_EQ(qvniThreshold_16s_C3IR(dst16.data(), ds16, roi, t3, op), qvnErrBadMode);
        // the sizes and steps come first for qvniThreshold ...
        EXPECT_EQ(qvniThreshold_8u_C1R(src.data(), ss, dst.data(), ds, {0, 2}, 5, op), qvnErrSize);
        EXPECT_EQ(qvniThreshold_8u_C1R(src.data(), 0, dst.data(), ds, roi, 5, op), qvnErrStep);
        // ... and after the operator for _Val, pointers too
        EXPECT_EQ(qvniThreshold_Val_8u_C1R(nullptr, ss, dst.data(), ds, roi, 5, 0, op), qvnErrBadMode);
        EXPECT_EQ(qvniThreshold_Val_32f_AC4IR(nullptr, 0, {0, 0}, nullptr, nullptr, op), qvnErrBadMode);
    }
    // An upper threshold below the lower one in any channel; equal ones pass.
    const Qvn16s lower[3] = {10, 10, 10}, value[3] = {0, 0, 0};
    for (int ch = 0; ch < 3; ++ch) {
        Qvn16s upper[3] = {10, 10, 10};
        upper[ch] = 9;
        EXPECT_EQ(qvniThreshold_LTValGTVal_16s_C3IR(dst16.data(), ds16, roi, lower, value, upper, value),
                  qvnErrThresholdOrder) << "channel " << ch;
        EXPECT_EQ(qvniThreshold_LTValGTVal_16s_C3IR(dst16.data(), ds16, {8, 0}, lower, value, upper, value), qvnErrSize);
    }
    EXPECT_EQ(qvniThreshold_LTValGTVal_8u_C1R(src.data(), ss, dst.data(), ds, roi, 50, 0, 40, 0), qvnErrThresholdOrder);
    EXPECT_EQ(qvniThreshold_LTValGTVal_8u_C1R(src.data(), 0, dst.data(), ds, roi, 50, 0, 40, 0), qvnErrStep);
    src.expectUnchanged();
    dst.expectUnchanged();
    dst16.expectUnchanged();
    // AC4 reads three thresholds: a fourth past the page would fault.
    const PageEnd<Qvn32f> lo({0, 1, 2, 3}), hi({0, 1, 2, 3});
    GuardedImage<Qvn32f> img({5, 3, 4, 0, true, 4});
    EXPECT_EQ(qvniThreshold_LTValGTVal_32f_AC4IR(img.data(), int(img.step()), {5, 3}, lo.data() + 1, lo.data() + 1,
                                                 hi.data() + 1, hi.data() + 1), qvnOk);
}

}  // namespace
}  // namespace qvn::test
