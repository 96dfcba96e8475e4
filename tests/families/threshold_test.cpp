// qvniThreshold and its _LT, _GT, _LTVal, _GTVal, _Val and _LTValGTVal forms
// against the rules, every type, layout and form, and their own checks.
#include <gtest/gtest.h>

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

#define QVN_T_C1 t[3]
#define QVN_T_CN(o) t + o
#define QVN_T_OP_C1 t[3], op
#define QVN_T_OP_CN(o) t + o, op
#define QVN_TV_C1 t[3], v[3]
#define QVN_TV_CN(o) t + o, v + o
#define QVN_TV_OP_C1 t[3], v[3], op
#define QVN_TV_OP_CN(o) t + o, v + o, op
#define QVN_OUTSIDE_C1 lt[3], v[3], ut[3], uv[3]
#define QVN_OUTSIDE_CN(o) lt + o, v + o, ut + o, uv + o

// Four constants ending at an inaccessible page, as PageEndConstants: the
// smaller (or with upper the larger) of a[k] and b[k].
template <class T>
struct Ordered : GuardedImage<T> {
    Ordered(const T* a, const T* b, bool upper) : GuardedImage<T>(Layout{4, 1, 1, 0, true, 3}) {
        for (int k = 0; k < 4; ++k) this->at(k, 0) = (b[k] < a[k]) == upper ? a[k] : b[k];
        this->snapshot();
    }
};

// Every form of every type and layout with thresholds t, values v, and
// thresholds lt <= ut (or unordered with NaN, which passes the order test):
// sets of extremes, 0, 1 and small values, and for 32f NaN, infinities,
// signed zeros and huge values.
TEST(Threshold, EveryFormFollowsItsRule) {
    for (int set = 0; set < 4; ++set) {
#define X(T)                                                                                                  \
    {                                                                                                         \
        const PageEndConstants<Qvn##T> tc(set, false), vc(set + 5, false), uc(set + 2, false), wc(set + 3, false); \
        const Qvn##T *t = tc.data(), *v = vc.data(), *uv = wc.data();                                         \
        const Ordered<Qvn##T> lo(t, uc.data(), false), hi(t, uc.data(), true);                                \
        const Qvn##T *lt = lo.data(), *ut = hi.data();                                                        \
        const auto raise = [t](Qvn##T x, int i) { return ref::below(x, t[i], t[i]); };                        \
        const auto lower = [t](Qvn##T x, int i) { return ref::above(x, t[i], t[i]); };                        \
        const auto below = [t, v](Qvn##T x, int i) { return ref::below(x, t[i], v[i]); };                     \
        const auto above = [t, v](Qvn##T x, int i) { return ref::above(x, t[i], v[i]); };                     \
        const auto outside = [=](Qvn##T x, int i) { return ref::outside(x, lt[i], v[i], ut[i], uv[i]); };     \
        QVN_FORMS(_LT, T, raise, QVN_T_C1, QVN_T_CN, QVN_NO_C4)                                               \
        QVN_FORMS(_GT, T, lower, QVN_T_C1, QVN_T_CN, QVN_NO_C4)                                               \
        QVN_FORMS(_LTVal, T, below, QVN_TV_C1, QVN_TV_CN, QVN_WITH_C4)                                        \
        QVN_FORMS(_GTVal, T, above, QVN_TV_C1, QVN_TV_CN, QVN_WITH_C4)                                        \
        QVN_FORMS(_LTValGTVal, T, outside, QVN_OUTSIDE_C1, QVN_OUTSIDE_CN, QVN_NO_C4)                         \
        for (int op : {qvnCmpLess, qvnCmpGreater}) {                                                          \
            const auto clamp = [&, op](Qvn##T x, int i) { return op == qvnCmpLess ? raise(x, i) : lower(x, i); }; \
            const auto replace = [&, op](Qvn##T x, int i) { return op == qvnCmpLess ? below(x, i) : above(x, i); }; \
            QVN_FORMS(, T, clamp, QVN_T_OP_C1, QVN_T_OP_CN, QVN_NO_C4)                                        \
            QVN_FORMS(_Val, T, replace, QVN_TV_OP_C1, QVN_TV_OP_CN, QVN_NO_C4)                                \
        }                                                                                                     \
    }
        QVN_TYPES(X)
#undef X
        if (HasFailure()) return;
    }
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
    // The worked example: 99 below 100 becomes 0, 100 stays.
    const Qvn8u px[2] = {99, 100};
    Qvn8u out[2] = {7, 7};
    EXPECT_EQ(qvniThreshold_LTVal_8u_C1R(px, 2, out, 2, {2, 1}, 100, 0), qvnOk);
    EXPECT_EQ(out[0], 0);
    EXPECT_EQ(out[1], 100);
}

}  // namespace
}  // namespace qvn::test
