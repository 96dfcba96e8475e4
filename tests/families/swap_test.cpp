// qvniSwapChannels against the channel-map model, and the checks that differ
// from one layout to the next.
#include <gtest/gtest.h>

#include <vector>

#include "qvnip.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

using ref::ChannelMap;

// The model of dstOrder: 0..srcElems-1 a source channel; for C3C4 also 3 the
// fill value and above 3 the old value; AC4 keeps alpha.
ChannelMap orderMap(int srcElems, int dstElems, const int* order, int entries, double fill = 0) {
    ChannelMap m;
    m.srcElems = srcElems, m.dstElems = dstElems;
    for (int c = 0; c < dstElems; ++c) {
        m.from[c] = c < entries ? order[c] : ChannelMap::kKeep;
        if (m.from[c] == 3 && srcElems == 3) m.from[c] = ChannelMap::kFill, m.fill[c] = fill;
        if (m.from[c] > 3) m.from[c] = ChannelMap::kKeep;
    }
    return m;
}

// Orders passed to the captureless calls below.
int gOrder[4];

// One sweep of qvniSwapChannels_<t>_<form>; extra are the arguments after the order.
#define QVN_SWAP(sweepFn, t, T, form, mp, ...)                                                      \
    sweepFn<T>({"SwapChannels_" #t "_" #form, mp},                                                  \
               QVN_FN(T, qvniSwapChannels_##t##_##form(s, int(ss), d, int(ds), r, gOrder __VA_ARGS__)));
#define QVN_SWAP_I(form, mp)                                                                        \
    sweepMove<Qvn8u>({"SwapChannels_8u_" #form, mp, 0, 0, false, true},                             \
                     QVN_FN(Qvn8u, qvniSwapChannels_8u_##form(d, int(ds), r, gOrder)));

TEST(SwapChannels, EveryLayoutAndType) {
    const int orders3[][4] = {{2, 1, 0}, {1, 1, 0}};
    const int orders4[][4] = {{3, 2, 1, 0}, {1, 3, 3, 0}, {2, 1, 0, 3}};  // the last has its own row
    // C3C4: a source channel, the fill value and an untouched channel in one
    // order, and the order that leaves channel 0 alone.
    const int orders34[][4] = {{2, 3, 0, 9}, {3, 0, 1, 2}, {4, 0, 1, 2}};
    for (const auto& o : orders3) {
        std::copy(o, o + 4, gOrder);
#define X(t, T) QVN_SWAP(sweepMove, t, T, C3R, orderMap(3, 3, o, 3)) QVN_SWAP(sweepMove, t, T, AC4R, orderMap(4, 4, o, 3))
        QVN_EACH_TYPE(X)
#undef X
        QVN_SWAP_I(C3IR, orderMap(3, 3, o, 3))
    }
    for (const auto& o : orders4) {
        std::copy(o, o + 4, gOrder);
#define X(t, T) QVN_SWAP(sweepMove, t, T, C4R, orderMap(4, 4, o, 4)) QVN_SWAP(sweepMove, t, T, C4C3R, orderMap(4, 3, o, 3))
        QVN_EACH_TYPE(X)
#undef X
        QVN_SWAP_I(C4IR, orderMap(4, 4, o, 4))
    }
    for (const auto& o : orders34) {
        std::copy(o, o + 4, gOrder);
#define X(t, T) QVN_SWAP(sweepMove, t, T, C3C4R, orderMap(3, 4, o, 4, 77), , T(77))
        QVN_EACH_TYPE(X)
#undef X
    }
}

// Three channels behind an untouched channel 0 have their own rows: every
// width up to four vectors and a tail, at every destination offset.
TEST(SwapChannels, BehindChannelZeroAtEveryWidthAndOffset) {
    const int order[4] = {4, 0, 1, 2};
    std::copy(order, order + 4, gOrder);
#define X(t, T) sweepMoveOver<T>({"SwapChannels_" #t "_C3C4R", orderMap(3, 4, order, 4)}, \
                                  QVN_FN(T, qvniSwapChannels_##t##_C3C4R(s, int(ss), d, int(ds), r, gOrder, T(0))), \
                                  {upTo(70 / sizeof(T), 1), {1}, {0}, upTo(15)});
    X(8u, Qvn8u) X(16u, Qvn16u) X(32f, Qvn32f)
#undef X
}

// Every order of the 8u forms on one image of a few vectors and a tail.
TEST(SwapChannels, EveryOrderOf8u) {
    for (int o = 0; o < 6 * 6 * 6 * 6; ++o) {
        int order[4] = {o % 6, o / 6 % 6, o / 36 % 6, o / 216};
        std::copy(order, order + 4, gOrder);
        if (o < 216 && order[0] < 3 && order[1] < 3 && order[2] < 3)
            QVN_SWAP(sweepMoveOnce, 8u, Qvn8u, C3R, orderMap(3, 3, order, 3))
        if (order[0] < 4 && order[1] < 4 && order[2] < 4 && order[3] < 4)
            QVN_SWAP(sweepMoveOnce, 8u, Qvn8u, C4R, orderMap(4, 4, order, 4))
        QVN_SWAP(sweepMoveOnce, 8u, Qvn8u, C3C4R, orderMap(3, 4, order, 4, 5), , 5)
        if (testing::Test::HasFailure()) {
            ADD_FAILURE() << "order " << order[0] << order[1] << order[2] << order[3];
            return;
        }
    }
}

TEST(SwapChannels, ChannelOrderChecks) {
    std::vector<Qvn8u> a(4 * 8 * 2, 1), b(4 * 8 * 2, 2);
    const auto before = b;
    const QvnRoiSize roi{8, 2};
    const int minus[4] = {0, -1, 1, 2}, three[4] = {0, 3, 1, 2}, four[4] = {0, 4, 1, 2};
    // C4R reads entries as unsigned: -1 and 4 fail, 3 is a channel.
    EXPECT_EQ(qvniSwapChannels_8u_C4R(a.data(), 32, b.data(), 32, roi, minus), qvnErrChannelOrder);
    EXPECT_EQ(qvniSwapChannels_8u_C4R(a.data(), 32, b.data(), 32, roi, four), qvnErrChannelOrder);
    EXPECT_EQ(qvniSwapChannels_8u_C4IR(b.data(), 32, roi, four), qvnErrChannelOrder);
    // three-entry orders: above 2 fails, except C4C3 (above 3)
    EXPECT_EQ(qvniSwapChannels_8u_C3R(a.data(), 24, b.data(), 24, roi, three), qvnErrChannelOrder);
    EXPECT_EQ(qvniSwapChannels_32f_AC4R(reinterpret_cast<Qvn32f*>(a.data()), 64, reinterpret_cast<Qvn32f*>(b.data()), 64,
                                        {4, 2}, three), qvnErrChannelOrder);
    EXPECT_EQ(qvniSwapChannels_8u_C3IR(b.data(), 24, roi, minus), qvnErrChannelOrder);
    EXPECT_EQ(qvniSwapChannels_16u_C4C3R(reinterpret_cast<Qvn16u*>(a.data()), 32, reinterpret_cast<Qvn16u*>(b.data()),
                                         24, {4, 2}, four), qvnErrChannelOrder);
    // C3C4 rejects only negative entries
    EXPECT_EQ(qvniSwapChannels_8u_C3C4R(a.data(), 24, b.data(), 32, roi, minus, 0), qvnErrChannelOrder);
    // With a ROI or step fault as well, the earlier check of each layout wins.
    EXPECT_EQ(qvniSwapChannels_8u_C3R(a.data(), 0, b.data(), 24, {0, 2}, three), qvnErrSize);
    EXPECT_EQ(qvniSwapChannels_8u_C3R(a.data(), 0, b.data(), 24, roi, three), qvnErrStep);
    EXPECT_EQ(qvniSwapChannels_8u_C4IR(b.data(), 0, {0, 2}, four), qvnErrStep);
    EXPECT_EQ(qvniSwapChannels_8u_C4C3R(a.data(), 0, b.data(), 24, roi, four), qvnErrStep);
    EXPECT_EQ(qvniSwapChannels_8u_C3C4R(a.data(), 24, b.data(), 0, roi, minus, 0), qvnErrStep);
    EXPECT_EQ(b, before);
}

}  // namespace
}  // namespace qvn::test
