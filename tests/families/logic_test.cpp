// qvniAnd, qvniOr, qvniXor (two sources and constants), qvniNot and
// qvniComplement against their models.
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "families/arith_forms.h"

namespace qvn::test {
namespace {

const auto kAnd = [](auto a, auto b) { return decltype(a)(a & b); };
const auto kOr = [](auto a, auto b) { return decltype(a)(a | b); };
const auto kXor = [](auto a, auto b) { return decltype(a)(a ^ b); };

// Every form of a two-source operation: C1 over every shape, the other
// layouts and the in-place forms on one.
#define QVN_LOGIC(OP, T, op)                                                                                      \
    binaryForm<Qvn##T>(#OP "_" #T "_C1R", 1, false, false, QVN_ECALL(qvni##OP##_##T##_C1R(s[0], ss[0], s[1], ss[1], d, ds, r)), op, qvnOk); \
    binaryForm<Qvn##T>(#OP "_" #T "_C3R", 3, false, false, QVN_ECALL(qvni##OP##_##T##_C3R(s[0], ss[0], s[1], ss[1], d, ds, r)), op, qvnOk, kOneShape); \
    binaryForm<Qvn##T>(#OP "_" #T "_C4IR", 4, false, true, QVN_ECALL(qvni##OP##_##T##_C4IR(s[0], ss[0], d, ds, r)), op, qvnOk, kOneShape); \
    binaryForm<Qvn##T>(#OP "_" #T "_AC4R", 4, true, false, QVN_ECALL(qvni##OP##_##T##_AC4R(s[0], ss[0], s[1], ss[1], d, ds, r)), op, qvnOk, kOneShape); \
    binaryForm<Qvn##T>(#OP "_" #T "_AC4IR", 4, true, true, QVN_ECALL(qvni##OP##_##T##_AC4IR(s[0], ss[0], d, ds, r)), op, qvnOk, kOneShape);

TEST(Logic, TwoSources) {
#define X(T) QVN_LOGIC(And, T, kAnd) QVN_LOGIC(Or, T, kOr) QVN_LOGIC(Xor, T, kXor)
    X(8u) X(16u) X(32s)
#undef X
}

// Constant forms: the constants end at an inaccessible page, so reading a
// fourth for AC4 faults; distinct and equal per-channel constants.
#define QVN_LOGIC_C(OP, T, op)                                                                                    \
    for (int set : {0, 1, 2}) {                                                                                   \
        const PageEndConstants<Qvn##T> kc(set, false);                                                            \
        const Qvn##T* k = kc.data();                                                                              \
        const Shapes& every = set == 0 ? kShapes : kOneShape;                                                     \
        constForm<Qvn##T>(#OP "C_" #T "_C1R", 1, false, false, k, QVN_ECALL(qvni##OP##C_##T##_C1R(s[0], ss[0], k[3], d, ds, r)), op, every); \
        constForm<Qvn##T>(#OP "C_" #T "_C1IR", 1, false, true, k, QVN_ECALL(qvni##OP##C_##T##_C1IR(k[3], d, ds, r)), op, kOneShape); \
        constForm<Qvn##T>(#OP "C_" #T "_C3R", 3, false, false, k, QVN_ECALL(qvni##OP##C_##T##_C3R(s[0], ss[0], k + 1, d, ds, r)), op, every); \
        constForm<Qvn##T>(#OP "C_" #T "_C4IR", 4, false, true, k, QVN_ECALL(qvni##OP##C_##T##_C4IR(k, d, ds, r)), op, kOneShape); \
        constForm<Qvn##T>(#OP "C_" #T "_AC4R", 4, true, false, k, QVN_ECALL(qvni##OP##C_##T##_AC4R(s[0], ss[0], k + 1, d, ds, r)), op, kOneShape); \
        if (::testing::Test::HasFailure()) return;                                                                \
    }

TEST(Logic, Constants) {
#define X(T) QVN_LOGIC_C(And, T, kAnd) QVN_LOGIC_C(Or, T, kOr) QVN_LOGIC_C(Xor, T, kXor)
    X(8u) X(16u) X(32s)
#undef X
    // three equal constants: the C1 form over a row three times as long
    const Qvn8u src[9] = {0x12, 0x34, 0x56, 0x78, 0x9A, 0xBC, 0xDE, 0xF0, 0xFF}, k[3] = {0x0F, 0x0F, 0x0F};
    Qvn8u c3[9], c1[9];
    ASSERT_EQ(qvniAndC_8u_C3R(src, 9, k, c3, 9, {3, 1}), qvnOk);
    ASSERT_EQ(qvniAndC_8u_C1R(src, 9, 0x0F, c1, 9, {9, 1}), qvnOk);
    EXPECT_EQ(std::memcmp(c3, c1, 9), 0);
}

// The unary forms through the elementwise sweep.
template <class T>
void unaryForms(const char* op, QvnStatus (*c1)(const T*, int, T*, int, QvnRoiSize),
                QvnStatus (*ac4i)(T*, int, QvnRoiSize), QvnStatus (*c3)(const T*, int, T*, int, QvnRoiSize),
                T (*model)(T)) {
    ElementCase<T> c(std::string(op) + "_C1R");
    c.fill = fillMixed<T>;
    c.call = [c1](const T* const* s, const int* ss, T* d, int ds, QvnRoiSize r) { return c1(s[0], ss[0], d, ds, r); };
    c.model = [model](const T* v, int) { return model(v[0]); };
    sweep(c);
    c.name = std::string(op) + "_C3R", c.elems = 3;
    c.call = [c3](const T* const* s, const int* ss, T* d, int ds, QvnRoiSize r) { return c3(s[0], ss[0], d, ds, r); };
    sweep(c, kOneShape);
    c.name = std::string(op) + "_AC4IR", c.elems = 4, c.alpha = true, c.inPlace = true;
    c.call = [ac4i](const T* const*, const int*, T* d, int ds, QvnRoiSize r) { return ac4i(d, ds, r); };
    sweep(c, kOneShape);
}

// Sign and magnitude: a set top bit negates the other bits' value.
template <class T>
T complementModel(T x) {
    using U = std::make_unsigned_t<T>;
    const U sign = U(U(1) << (8 * sizeof(T) - 1)), mag = U(U(x) & U(sign - 1));
    if (!(U(x) & sign)) return x;
    return mag == 0 ? std::numeric_limits<T>::min() : T(-std::int64_t(mag));
}

TEST(Logic, NotAndComplement) {
    unaryForms<Qvn8u>("Not_8u", qvniNot_8u_C1R, qvniNot_8u_AC4IR, qvniNot_8u_C3R, [](Qvn8u x) { return Qvn8u(~x); });
    unaryForms<Qvn8s>("Complement_8s", qvniComplement_8s_C1R, qvniComplement_8s_AC4IR, qvniComplement_8s_C3R,
                      complementModel<Qvn8s>);
    unaryForms<Qvn16s>("Complement_16s", qvniComplement_16s_C1R, qvniComplement_16s_AC4IR, qvniComplement_16s_C3R,
                       complementModel<Qvn16s>);
    unaryForms<Qvn32s>("Complement_32s", qvniComplement_32s_C1R, qvniComplement_32s_AC4IR, qvniComplement_32s_C3R,
                       complementModel<Qvn32s>);
    const Qvn16s v[3] = {Qvn16s(0x8005), 5, Qvn16s(0x8000)};
    Qvn16s d[3];
    ASSERT_EQ(qvniComplement_16s_C1R(v, 6, d, 6, {3, 1}), qvnOk);
    EXPECT_EQ(d[0], -5);
    EXPECT_EQ(d[1], 5);
    EXPECT_EQ(d[2], -32768);
}

// x shifted by n as the Part says: bits beyond the type are lost, counts from
// the width up give 0 (or the sign fill of a signed right shift).
template <class T>
T shiftModel(bool left, T x, Qvn32u n) {
    const Qvn32u bits = 8 * sizeof(T);
    const std::int64_t v = x;
    if (left) return n >= bits ? T(0) : T(std::uint64_t(v) << n);
    if (n >= bits) return std::is_signed_v<T> && x < 0 ? T(-1) : T(0);
    return T(v >> n);  // the flooring shift of the wide value
}

// Per-channel count sets: equal (copy, ordinary, clearing, 0xFFFFFFFF) and
// different (some clearing, all clearing, with zero). They lie right before
// an inaccessible page, so a fourth read for AC4 faults.
struct PageEndCounts : GuardedImage<Qvn32u> {
    explicit PageEndCounts(int set) : GuardedImage<Qvn32u>(Layout{4, 1, 1, 0, true, std::uint32_t(set)}) {
        static const Qvn32u kSets[][4] = {{0, 0, 0, 0},     {3, 3, 3, 3},     {8, 8, 8, 8},       {0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF},
                                          {1, 9, 0, 15},    {31, 16, 7, 2},   {40, 33, 32, 0x80000000}, {0, 1, 2, 3},
                                          {15, 15, 15, 15}, {7, 7, 7, 7}};
        for (int k = 0; k < 4; ++k) at(k, 0) = kSets[set][k];
        snapshot();
    }
    static constexpr int kSetCount = 10;
};

template <class T>
void shiftForm(std::string name, bool left, int elems, bool alpha, bool inPlace, const Qvn32u* k,
               ArithCall<T> call, const Shapes& shapes) {
    ElementCase<T> c(name + " counts " + std::to_string(k[0]) + "," + std::to_string(k[3]), elems, alpha, 1, inPlace);
    c.fill = fillMixed<T>;
    c.call = std::move(call);
    const int n = alpha ? 3 : elems;
    std::array<Qvn32u, 4> kv{};
    for (int ch = 0; ch < n; ++ch) kv[std::size_t(ch)] = k[4 - n + ch];
    c.model = [left, kv](const T* v, int ch) { return shiftModel<T>(left, v[0], kv[std::size_t(ch)]); };
    sweep(c, shapes);
}

#define QVN_SHIFT(OP, left, T)                                                                                    \
    for (int set = 0; set < PageEndCounts::kSetCount; ++set) {                                                    \
        const PageEndCounts kc(set);                                                                              \
        const Qvn32u* k = kc.data();                                                                              \
        const Shapes& every = set < 2 || set == 4 ? kShapes : kOneShape;                                          \
        shiftForm<Qvn##T>(#OP "_" #T "_C1R", left, 1, false, false, k, QVN_ECALL(qvni##OP##_##T##_C1R(s[0], ss[0], k[3], d, ds, r)), every); \
        shiftForm<Qvn##T>(#OP "_" #T "_C1IR", left, 1, false, true, k, QVN_ECALL(qvni##OP##_##T##_C1IR(k[3], d, ds, r)), kOneShape); \
        shiftForm<Qvn##T>(#OP "_" #T "_C3R", left, 3, false, false, k, QVN_ECALL(qvni##OP##_##T##_C3R(s[0], ss[0], k + 1, d, ds, r)), every); \
        shiftForm<Qvn##T>(#OP "_" #T "_C4IR", left, 4, false, true, k, QVN_ECALL(qvni##OP##_##T##_C4IR(k, d, ds, r)), kOneShape); \
        shiftForm<Qvn##T>(#OP "_" #T "_AC4R", left, 4, true, false, k, QVN_ECALL(qvni##OP##_##T##_AC4R(s[0], ss[0], k + 1, d, ds, r)), kOneShape); \
        shiftForm<Qvn##T>(#OP "_" #T "_AC4IR", left, 4, true, true, k, QVN_ECALL(qvni##OP##_##T##_AC4IR(k + 1, d, ds, r)), kOneShape); \
        if (::testing::Test::HasFailure()) return;                                                                \
    }

TEST(Logic, ShiftsByEveryKindOfCount) {
    QVN_SHIFT(LShiftC, true, 8u) QVN_SHIFT(LShiftC, true, 16u) QVN_SHIFT(LShiftC, true, 32s)
    QVN_SHIFT(RShiftC, false, 8u) QVN_SHIFT(RShiftC, false, 16u) QVN_SHIFT(RShiftC, false, 16s)
    QVN_SHIFT(RShiftC, false, 32s)
}

// The Part's worked examples, against the model the sweeps use.
TEST(Logic, ShiftModelMatchesWorkedExamples) {
    EXPECT_EQ(shiftModel<Qvn8u>(true, 0xFF, 8), 0);
    EXPECT_EQ(shiftModel<Qvn8u>(true, 0xFF, 0xFFFFFFFF), 0);
    EXPECT_EQ(shiftModel<Qvn16s>(false, -5, 40), -1);
    EXPECT_EQ(shiftModel<Qvn16s>(false, 5, 40), 0);
    EXPECT_EQ(shiftModel<Qvn16s>(false, -5, 1), -3);
}

}  // namespace
}  // namespace qvn::test
