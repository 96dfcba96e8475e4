// The affine warp against the warp model: nearest, linear and cubic for every
// type and layout, forward and backward coefficients (rotations, shears,
// flips, scales up and down), every border kind with and without in-memory
// sides and the smooth edge; whole images and tiles, each tile reading only
// a copy of the source rectangle that qvniGetAffineSrcRoi gives (which must
// give the same bits); the set-up's validation order, the spec, the
// transform utilities and the call's checks.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "qvnip.h"
#include "ref/warp_ref.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

using Coeffs = double[2][3];

template <class T>
using Warp = QvnStatus (*)(const T*, int, T*, int, QvnPoint, QvnRoiSize, const QvnWarpAffineSpec*, Qvn8u*);
template <class T>
using WarpL = QvnStatus (*)(const T*, QvnSizeL, T*, QvnSizeL, QvnPointL, QvnRoiSizeL, const QvnWarpAffineSpec*, Qvn8u*);

template <class T>
struct Case {
    std::string name;
    int dataType, k, kind;
    Warp<T> call;
    WarpL<T> callL;
};

struct Transform {
    Coeffs c;
    int direction;
};

// A spec for src -> dst in a buffer of exactly the queried size.
std::unique_ptr<ExactBuffer> makeSpec(int dataType, int k, int kind, QvnRoiSize s, QvnRoiSize d, const Transform& t,
                                      int border, const double* value, int smooth, bool wide) {
    int size = 0, init = 0;
    EXPECT_EQ(qvniWarpAffineGetSize(s, d, dataType, t.c, kind, t.direction, border, &size, &init), qvnOk);
    EXPECT_EQ(init, 0);
    auto b = std::make_unique<ExactBuffer>(size);
    auto* sp = b->warpSpec();
    const QvnRoiSizeL sl{s.width, s.height}, dl{d.width, d.height};
    QvnStatus st = qvnOk;
    if (kind == qvnInterpCubic)
        st = wide ? qvniWarpAffineCubicInit_L(sl, dl, dataType, t.c, t.direction, k, 1.0 / 3, 1.0 / 3, border, value, smooth, sp)
                  : qvniWarpAffineCubicInit(s, d, dataType, t.c, t.direction, k, 1.0 / 3, 1.0 / 3, border, value, smooth, sp);
    else if (kind == qvnInterpLinear)
        st = wide ? qvniWarpAffineLinearInit_L(sl, dl, dataType, t.c, t.direction, k, border, value, smooth, sp)
                  : qvniWarpAffineLinearInit(s, d, dataType, t.c, t.direction, k, border, value, smooth, sp);
    else
        st = wide ? qvniWarpAffineNearestInit_L(sl, dl, dataType, t.c, t.direction, k, border, value, smooth, sp)
                  : qvniWarpAffineNearestInit(s, d, dataType, t.c, t.direction, k, border, value, smooth, sp);
    EXPECT_EQ(st, qvnOk);
    return b;
}

std::unique_ptr<ExactBuffer> makeBuffer(const ExactBuffer& spec, QvnRoiSize z, bool wide) {
    QvnSizeL n = 0;
    if (wide) {
        EXPECT_EQ(qvniWarpGetBufferSize_L(spec.warpSpec(), {z.width, z.height}, &n), qvnOk);
    } else {
        int m = 0;
        EXPECT_EQ(qvniWarpGetBufferSize(spec.warpSpec(), z, &m), qvnOk);
        n = m;
    }
    return std::make_unique<ExactBuffer>(n, std::uint32_t(n));
}

template <class T>
void fillValues(GuardedImage<T>& img, std::uint32_t seed) {
    std::mt19937 rng(seed);
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t e = 0; e < img.rowElems(); ++e)
            if constexpr (std::is_floating_point_v<T>) img.at(e, y) = T(int(rng() % 8001) - 4000) / T(4);
            else img.at(e, y) = T(rng() % 8 == 0 ? (rng() % 2 ? std::numeric_limits<T>::max() : std::numeric_limits<T>::min())
                                                  : std::numeric_limits<T>::min() + T(rng()));
    img.snapshot();
}

// The model's backward coefficients of t.
void backwardOf(const Transform& t, long double m[2][3]) {
    const auto& c = t.c;
    if (t.direction == qvnWarpBackward) {
        for (int r = 0; r < 2; ++r)
            for (int k = 0; k < 3; ++k) m[r][k] = c[r][k];
        return;
    }
    const long double det = (long double)c[0][0] * c[1][1] - (long double)c[0][1] * c[1][0];
    m[0][0] = c[1][1] / det, m[0][1] = -c[0][1] / det, m[1][0] = -c[1][0] / det, m[1][1] = c[0][0] / det;
    m[0][2] = -(m[0][0] * c[0][2] + m[0][1] * c[1][2]), m[1][2] = -(m[1][0] * c[0][2] + m[1][1] * c[1][2]);
}

constexpr int kMargin = 2;  // real pixels around every test source

// c from a source of size s to a destination of size z: the whole
// destination against the model, then in tiles from copies of their source
// rectangles, which must give the same bits.
template <class T>
void runCase(const Case<T>& c, QvnRoiSize s, QvnRoiSize z, const Transform& t, int border, int smooth, bool wide,
             std::uint32_t seed) {
    const std::string where = c.name + (wide ? "_L " : " ") + std::to_string(s.width) + "x" + std::to_string(s.height) +
                              " to " + std::to_string(z.width) + "x" + std::to_string(z.height) + " border " +
                              std::to_string(border) + (smooth ? " smooth" : "") + " seed " + std::to_string(seed);
    SCOPED_TRACE(where);
    GuardedImage<T> img(placed(s.width + 2 * kMargin, s.height + 2 * kMargin, c.k, -1, seed, 0));
    fillValues(img, seed);
    const T* src = img.row(kMargin) + kMargin * c.k;
    const double value[4] = {17.25, -3, 200.5, 1e6};
    const auto spec = makeSpec(c.dataType, c.k, c.kind, s, z, t, border, value, smooth, wide);
    const auto* sp = spec->warpSpec();
    const auto call = [&](const T* from, std::int64_t step, GuardedImage<T>& out, QvnPointL o, QvnRoiSize size,
                          Qvn8u* buf) {
        T* d = byteOffset(out.data(), o.y * out.step()) + o.x * c.k;
        return wide ? c.callL(from, step, d, out.step(), o, {size.width, size.height}, sp, buf)
                    : c.call(from, int(step), d, int(out.step()), {int(o.x), int(o.y)}, size, sp, buf);
    };
    GuardedImage<T> whole(placed(z.width, z.height, c.k, -1, seed, 1)), tiled(placed(z.width, z.height, c.k, -1, seed, 2));
    // both start alike (the transparent kinds leave pixels as they were),
    // with values the smooth edge can blend with
    fillValues(whole, seed + 1);
    for (std::int64_t y = 0; y < z.height; ++y) std::memcpy(tiled.row(y), whole.row(y), std::size_t(whole.rowBytes()));
    tiled.snapshot();
    const auto buf = makeBuffer(*spec, z, wide);
    const QvnStatus st = callUnderTest({&img}, {&whole}, [&] { return call(src, img.step(), whole, {0, 0}, z, buf->p()); },
                                       FE_UPWARD, true, std::is_floating_point_v<T> ? int(sizeof(T)) : 0);
    ASSERT_EQ(st, qvnOk);

    ref::WarpModel model{};
    backwardOf(t, model.m);
    model.kind = c.kind, model.border = border, model.smooth = smooth != 0, model.b = 1.0L / 3, model.c = 1.0L / 3;
    model.width = s.width, model.height = s.height;
    model.src = [&](std::int64_t i, std::int64_t j, int ch) { return (long double)img.at((kMargin + i) * c.k + ch, kMargin + j); };
    model.value = [&](int ch) {
        return (long double)(std::is_integral_v<T> ? T(std::min(std::max(std::nearbyint(value[ch]), double(std::numeric_limits<T>::lowest())),
                                                                double(std::numeric_limits<T>::max())))
                                                   : T(value[ch]));
    };
    const long double lo = double(std::numeric_limits<T>::lowest()), hi = double(std::numeric_limits<T>::max());
    for (std::int64_t y = 0; y < z.height; ++y)
        for (std::int64_t e = 0; e < z.width * c.k; ++e) {
            const ref::WarpModel::Result r = model.at(e / c.k, y, int(e % c.k));
            if (r.ambiguous) continue;
            const long double old = whole.saved(e, y), got = whole.at(e, y);
            long double want = !r.write ? old : r.coverage == 1 ? r.v : old + (r.v - old) * r.coverage;
            // float arithmetic: a few roundings of the largest tap (the border value 1e6 for the constant kind)
            long double tol = std::is_integral_v<T> ? 0.5L + 1.5e-6L * hi : 1e-3L + 1.5e-6L * ((border & 15) == 6 ? 1e6L : 1e3L);
            if (std::is_integral_v<T>) want = std::min(std::max(want, lo), hi);
            if (!r.write) tol = 0;
            if (std::fabs(got - want) <= tol) continue;
            ADD_FAILURE() << where << " at (" << e / c.k << ", " << y << ", " << e % c.k << ") got " << double(got)
                          << " want " << double(want) << (r.write ? "" : " (not written)");
            return;
        }

    // tiles: each reads a copy of its source rectangle, with the in-memory
    // margins where it touches a flagged edge
    std::mt19937 rng(seed);
    const std::int64_t cx = 1 + rng() % z.width, cy = 1 + rng() % z.height;
    const int reach = c.kind == qvnInterpNearest ? 0 : c.kind == qvnInterpLinear ? 1 : 2;
    for (const auto& [x0, x1] : {std::pair<std::int64_t, std::int64_t>{0, cx}, {cx, z.width}})
        for (const auto& [y0, y1] : {std::pair<std::int64_t, std::int64_t>{0, cy}, {cy, z.height}}) {
            if (x0 == x1 || y0 == y1) continue;
            const QvnRoiSize size{int(x1 - x0), int(y1 - y0)};
            QvnPointL ro{};
            QvnRoiSizeL rz{};
            if (wide) {
                ASSERT_EQ(qvniGetAffineSrcRoi_L(sp, {x0, y0}, {size.width, size.height}, &ro, &rz), qvnOk);
            } else {
                QvnPoint o32{};
                QvnRoiSize z32{};
                ASSERT_EQ(qvniGetAffineSrcRoi(sp, {int(x0), int(y0)}, size, &o32, &z32), qvnOk);
                ro = {o32.x, o32.y}, rz = {z32.width, z32.height};
            }
            ASSERT_TRUE(ro.x >= 0 && ro.y >= 0 && rz.width >= 1 && rz.height >= 1 && ro.x + rz.width <= s.width &&
                        ro.y + rz.height <= s.height);
            const auto side = [&](bool touches, int flag) { return touches && (border & flag) ? reach : 0; };
            const std::int64_t l = side(ro.x == 0, 64), tp = side(ro.y == 0, 16),
                               r = side(ro.x + rz.width == s.width, 128), b = side(ro.y + rz.height == s.height, 32);
            GuardedImage<T> part(placed(rz.width + l + r, rz.height + tp + b, c.k, -1, seed + 7, 3));
            for (std::int64_t y = 0; y < part.height(); ++y)
                std::memcpy(part.row(y), img.row(kMargin + ro.y - tp + y) + (kMargin + ro.x - l) * c.k,
                            std::size_t(part.rowBytes()));
            part.snapshot();
            // the source image's first pixel, as seen from the copy
            const T* origin = byteOffset(part.data(), (tp - ro.y) * part.step()) + (l - ro.x) * c.k;
            const auto tileBuf = makeBuffer(*spec, size, wide);
            ASSERT_EQ(call(origin, part.step(), tiled, {x0, y0}, size, tileBuf->p()), qvnOk);
        }
    ASSERT_EQ(tiled.roiBytes(), whole.roiBytes()) << "tiles differ from the whole image";
}

// Transforms of a source of size s: a rotation by 20 degrees about the
// centres with scale 0.9, a shear with a fractional shift, a flip with
// enlargement, a reduction (forward and backward given).
std::vector<Transform> transforms(QvnRoiSize s, QvnRoiSize z) {
    const double a = 20 * 3.14159265358979323846 / 180, k = 0.9;
    const double cx = (s.width - 1) / 2.0, cy = (s.height - 1) / 2.0, dx = (z.width - 1) / 2.0, dy = (z.height - 1) / 2.0;
    Transform rot{{{k * std::cos(a), k * std::sin(a), 0}, {-k * std::sin(a), k * std::cos(a), 0}}, qvnWarpForward};
    rot.c[0][2] = dx - (rot.c[0][0] * cx + rot.c[0][1] * cy), rot.c[1][2] = dy - (rot.c[1][0] * cx + rot.c[1][1] * cy);
    return {rot,
            {{{0.7, 0.3, -2.3}, {-0.2, 1.1, 1.7}}, qvnWarpBackward},
            {{{-1.5, 0, 1.5 * s.width - 1}, {0, 1.25, 0.4}}, qvnWarpForward},
            {{{2.3, 0, -1}, {0, 2.1, -0.6}}, qvnWarpBackward}};
}

const std::vector<std::pair<QvnRoiSize, QvnRoiSize>> kSizes = {{{13, 9}, {17, 11}}, {{31, 7}, {12, 20}}, {{9, 1}, {6, 3}}};
// Replicate, constant, transparent, all sides in memory, replicate with top
// and left in memory, constant with bottom and right in memory, transparent
// with all in memory (smooth edges on for the last, see sweepWarp).
const int kBorders[] = {1, 6, 7, 240, 1 | 16 | 64, 6 | 32 | 128, 7 | 240};

template <class T>
void sweepWarp(const Case<T>& c, bool everyBorder) {
    std::uint32_t seed = std::uint32_t(std::hash<std::string>{}(c.name));
    for (const auto& [s, z] : kSizes)
        for (const Transform& t : transforms(s, z))
            for (int border : kBorders) {
                const bool smooth = border == (7 | 240) || (border == 7 && seed % 2);
                const bool wide = ++seed % 5 == 0;
                runCase(c, s, z, t, border, smooth, wide, seed);
                if (testing::Test::HasFailure()) return;
                if (!everyBorder && border == 6) break;
            }
}

#define QVN_WARP_CALLS(kind, t, C) qvniWarpAffine##kind##_##t##_##C##R, qvniWarpAffine##kind##_##t##_##C##R_L
#define QVN_WARP_CASES(kindName, kind, t, T, every)                                                                   \
    sweepWarp<T>({#kindName "_" #t "_C1", qvn##t, 1, kind, QVN_WARP_CALLS(kindName, t, C1)}, every);                 \
    sweepWarp<T>({#kindName "_" #t "_C3", qvn##t, 3, kind, QVN_WARP_CALLS(kindName, t, C3)}, every);                 \
    sweepWarp<T>({#kindName "_" #t "_C4", qvn##t, 4, kind, QVN_WARP_CALLS(kindName, t, C4)}, every);

TEST(Warp, NearestEveryTypeAndLayout) {
    QVN_WARP_CASES(Nearest, qvnInterpNearest, 8u, Qvn8u, true)
    QVN_WARP_CASES(Nearest, qvnInterpNearest, 16u, Qvn16u, false)
    QVN_WARP_CASES(Nearest, qvnInterpNearest, 16s, Qvn16s, false)
    QVN_WARP_CASES(Nearest, qvnInterpNearest, 32f, Qvn32f, true)
}

TEST(Warp, LinearEveryTypeAndLayout) {
    QVN_WARP_CASES(Linear, qvnInterpLinear, 8u, Qvn8u, true)
    QVN_WARP_CASES(Linear, qvnInterpLinear, 16u, Qvn16u, false)
    QVN_WARP_CASES(Linear, qvnInterpLinear, 16s, Qvn16s, true)
    QVN_WARP_CASES(Linear, qvnInterpLinear, 32f, Qvn32f, true)
}

TEST(Warp, CubicEveryTypeAndLayout) {
    QVN_WARP_CASES(Cubic, qvnInterpCubic, 8u, Qvn8u, true)
    QVN_WARP_CASES(Cubic, qvnInterpCubic, 16u, Qvn16u, false)
    QVN_WARP_CASES(Cubic, qvnInterpCubic, 16s, Qvn16s, false)
    QVN_WARP_CASES(Cubic, qvnInterpCubic, 32f, Qvn32f, true)
}

// ---- the set-up ---------------------------------------------------------------------------

const Coeffs kShear = {{1, 0.5, 3}, {0.25, 2, -1}};

// The size query's checks in the Part's order, each with every later one
// failing too; the Part's cases of singular coefficients.
TEST(WarpSetup, SizeQueryChecksInOrder) {
    int size = -1, init = -1;
    const auto q = [&](QvnRoiSize s, QvnRoiSize d, int type, const Coeffs* c, int kind, int dir, int border, int* ps = nullptr) {
        return qvniWarpAffineGetSize(s, d, type, c ? *c : nullptr, kind, dir, border, ps ? ps : &size, &init);
    };
    const Coeffs singular = {{1, 2, 0}, {2, 4, 0}}, tiny = {{1e-300, 0, 0}, {0, 1e-300, 0}};
    EXPECT_EQ(qvniWarpAffineGetSize({1, 0}, {0, 0}, 3, nullptr, 0, 5, 3, &size, nullptr), qvnErrNullPointer);
    for (int border : {3, 2, 0, 16, 256, -1, 4 | 240})
        EXPECT_EQ(q({1, 0}, {0, 0}, 3, nullptr, 0, 5, border), qvnErrBorderKind) << border;
    EXPECT_EQ(q({1, 0}, {0, 0}, 3, nullptr, 0, 5, 240), qvnErrNullPointer);
    EXPECT_EQ(q({1, 0}, {0, 0}, 3, &singular, 0, 5, 6 | 16), qvnErrSize);
    EXPECT_EQ(q({1, 5}, {5, 0}, 3, &singular, 0, 5, 7), qvnErrSize);
    EXPECT_EQ(q({1, 5}, {5, 0x2000000}, 3, &singular, 0, 5, 7), qvnErrSizeOverflow);
    EXPECT_EQ(q({1, 5}, {5, 0x1FFFFFF}, 3, &singular, 0, 5, 7), qvnErrDataType);
    EXPECT_EQ(q({1, 5}, {5, 5}, qvn64f, &singular, 16, 5, 7), qvnErrInterpolationKind);
    EXPECT_EQ(q({1, 5}, {5, 5}, qvn64f, &singular, 6, 2, 7), qvnErrDirection);
    EXPECT_EQ(q({1, 5}, {5, 5}, qvn64f, &singular, 6, -1, 7), qvnErrDirection);
    EXPECT_EQ(q({1, 5}, {5, 5}, qvn64f, &singular, 6, 1, 7), qvnErrCoeffs);
    EXPECT_EQ(q({1, 5}, {5, 5}, qvn64f, &tiny, 6, 1, 7), qvnErrCoeffs);
    const Coeffs inf = {{1, 0, INFINITY}, {0, 1, 0}};
    EXPECT_EQ(q({1, 5}, {5, 5}, qvn64f, &inf, 6, 1, 7), qvnErrCoeffs);
    EXPECT_EQ(q({1, 5}, {5, 5}, qvn64f, &kShear, 6, 1, 7), qvnErrSize);  // a source one pixel wide
    EXPECT_EQ(size, -1);
    EXPECT_EQ(q({2, 1}, {5, 5}, qvn64f, &kShear, 6, 1, 240), qvnOk);     // one pixel high is allowed
    EXPECT_GT(size, 64);
    EXPECT_EQ(init, 0);
    // the relative test: a tiny determinant beside a large diagonal product
    const Coeffs relative = {{1e5, 1e5 - 1e-6, 0}, {1e5, 1e5, 0}}, rotated = {{0, 1, 0}, {-1, 0, 0}};
    EXPECT_EQ(q({4, 4}, {4, 4}, qvn8u, &relative, 2, 0, 1), qvnErrCoeffs);
    EXPECT_EQ(q({4, 4}, {4, 4}, qvn8u, &rotated, 2, 0, 1), qvnOk);  // a = 0: r = |b| = 1
}

TEST(WarpSetup, InitsBuildTheSpec) {
    int size = 0, init = 0;
    ASSERT_EQ(qvniWarpAffineGetSize({8, 6}, {5, 4}, qvn8u, kShear, qvnInterpLinear, 0, 6, &size, &init), qvnOk);
    const ExactBuffer b(size), l(size);
    auto* sp = b.warpSpec();
    const double value[3] = {1, 2, 3};
    EXPECT_EQ(qvniWarpAffineLinearInit({8, 6}, {5, 4}, qvn8u, kShear, 0, 3, 6, nullptr, 0, sp), qvnErrNullPointer);
    EXPECT_EQ(qvniWarpAffineLinearInit({8, 6}, {5, 4}, qvn8u, kShear, 0, 2, 6, value, 0, sp), qvnErrChannelCount);
    EXPECT_EQ(qvniWarpAffineCubicInit({8, 6}, {5, 4}, qvn8u, kShear, 0, 3, NAN, 0, 6, value, 0, sp), qvnErrBadMode);
    EXPECT_EQ(qvniWarpAffineNearestInit({1, 6}, {5, 4}, qvn8u, kShear, 0, 2, 3, value, 0, sp), qvnErrBorderKind);
    EXPECT_EQ(b.word(0), std::int32_t(0xA5A5A5A5)) << "written on an error";
    EXPECT_EQ(qvniWarpAffineLinearInit({8, 6}, {5, 4}, qvn8u, kShear, 0, 3, 7, nullptr, 0, sp), qvnOk);
    EXPECT_EQ(Qvn32u(b.word(0)), 0x4B617394u);
    EXPECT_EQ(qvniWarpAffineLinearInit_L({8, 6}, {5, 4}, qvn8u, kShear, 0, 3, 6, value, 1, l.warpSpec()), qvnOk);
    EXPECT_EQ(Qvn32u(l.word(0)), 0x4B617395u);
    // each interface's buffer query refuses the other's spec
    int n = -1;
    QvnSizeL nl = -1;
    EXPECT_EQ(qvniWarpGetBufferSize(l.warpSpec(), {5, 4}, &n), qvnErrBadSpec);
    EXPECT_EQ(qvniWarpGetBufferSize_L(sp, {5, 4}, &nl), qvnErrBadSpec);
    EXPECT_EQ(qvniWarpGetBufferSize(sp, {0, 4}, &n), qvnErrSize);
    EXPECT_EQ(qvniWarpGetBufferSize(sp, {5, 4}, nullptr), qvnErrNullPointer);
    EXPECT_EQ(n, -1);
    EXPECT_EQ(qvniWarpGetBufferSize(sp, {1 << 30, 4}, &n), qvnErrSizeOverflow);
    EXPECT_EQ(qvniWarpGetBufferSize_L(l.warpSpec(), {1 << 30, 4}, &nl), qvnOk);
    EXPECT_GT(nl, std::int64_t(1) << 34);
}

// ---- the utilities -------------------------------------------------------------------------

TEST(WarpUtilities, RotateShiftReducesTheAngleAndKeepsTheCentre) {
    double x = 0, y = 0;
    EXPECT_EQ(qvniGetRotateShift(3, 5, 90, nullptr, &y), qvnErrNullPointer);
    const struct { double angle, x, y; } exact[] = {{0, 0, 0},   {360, 0, 0},     {90, -2, 8},     {450, -2, 8},
                                                    {180, 6, 10}, {-180, 6, 10}, {270, 8, 2},     {-90, 8, 2}};
    for (const auto& e : exact) {
        EXPECT_EQ(qvniGetRotateShift(3, 5, e.angle, &x, &y), qvnOk);
        EXPECT_TRUE(x == e.x && y == e.y) << e.angle << ": " << x << ", " << y;
    }
    // any other angle: the centre maps to itself by x' = c x + s y + xs, y' = -s x + c y + ys
    for (double angle : {30.0, -45.0, 1000.5}) {
        EXPECT_EQ(qvniGetRotateShift(3, 5, angle, &x, &y), qvnOk);
        const double r = angle * 3.14159265358979323846 / 180, c = std::cos(r), s = std::sin(r);
        EXPECT_NEAR(c * 3 + s * 5 + x, 3, 1e-12);
        EXPECT_NEAR(-s * 3 + c * 5 + y, 5, 1e-12);
    }
}

TEST(WarpUtilities, QuadAndBoundAreWrittenEvenForSingularCoefficients) {
    double quad[4][2] = {}, bound[2][2] = {};
    EXPECT_EQ(qvniGetAffineQuad({1, 2, 3, 4}, nullptr, kShear), qvnErrNullPointer);
    EXPECT_EQ(qvniGetAffineQuad({-1, 2, 3, 4}, quad, kShear), qvnErrSize);
    EXPECT_EQ(qvniGetAffineQuad({1, 2, 3, 0}, quad, kShear), qvnErrSize);
    EXPECT_EQ(qvniGetAffineQuad({1, 2, 3, 4}, quad, kShear), qvnOk);
    // corners (1, 2), (3, 2), (3, 5), (1, 5)
    const double want[4][2] = {{5, 3.25}, {7, 3.75}, {8.5, 9.75}, {6.5, 9.25}};
    for (int k = 0; k < 4; ++k) EXPECT_TRUE(quad[k][0] == want[k][0] && quad[k][1] == want[k][1]) << k;
    EXPECT_EQ(qvniGetAffineBound({1, 2, 3, 4}, bound, kShear), qvnOk);
    EXPECT_TRUE(bound[0][0] == 5 && bound[0][1] == 3.25 && bound[1][0] == 8.5 && bound[1][1] == 9.75);
    const Coeffs singular = {{1, 2, 0}, {2, 4, 1}};
    EXPECT_EQ(qvniGetAffineQuad({0, 0, 2, 2}, quad, singular), qvnErrCoeffs);
    EXPECT_TRUE(quad[2][0] == 3 && quad[2][1] == 7);
    EXPECT_EQ(qvniGetAffineBound({0, 0, 2, 2}, bound, singular), qvnErrCoeffs);
    EXPECT_TRUE(bound[0][0] == 0 && bound[0][1] == 1 && bound[1][0] == 3 && bound[1][1] == 7);
}

// A linear spec from 20 x 10 to 8 x 6 of a backward translation by (2.5, 1.25).
std::unique_ptr<ExactBuffer> shifted(int type = qvn8u, int k = 1, int kind = qvnInterpLinear, bool wide = false) {
    return makeSpec(type, k, kind, {20, 10}, {8, 6}, {{{1, 0, 2.5}, {0, 1, 1.25}}, qvnWarpBackward}, 1, nullptr, 0, wide);
}

TEST(WarpUtilities, SourceRectangleOfATile) {
    const auto spec = shifted();
    const auto* sp = spec->warpSpec();
    QvnPoint o{};
    QvnRoiSize z{};
    EXPECT_EQ(qvniGetAffineSrcRoi(sp, {0, 0}, {4, 3}, nullptr, &z), qvnErrNullPointer);
    EXPECT_EQ(qvniGetAffineSrcRoi(sp, {0, 0}, {4, 0}, &o, &z), qvnErrSize);
    EXPECT_EQ(qvniGetAffineSrcRoi(sp, {8, 0}, {4, 3}, &o, &z), qvnErrArgRange);
    QvnPointL ol{};
    QvnRoiSizeL zl{};
    EXPECT_EQ(qvniGetAffineSrcRoi_L(sp, {0, 0}, {0x2000000, 3}, &ol, &zl), qvnErrSizeOverflow);
    EXPECT_EQ(qvniGetAffineSrcRoi_L(sp, {0, 0}, {4, 3}, &ol, &zl), qvnErrBadSpec);
    // columns 2.5 .. 5.5 read 2 .. 6, rows 1.25 .. 3.25 read 1 .. 4
    EXPECT_EQ(qvniGetAffineSrcRoi(sp, {0, 0}, {4, 3}, &o, &z), qvnOk);
    EXPECT_TRUE(o.x == 2 && o.y == 1 && z.width == 5 && z.height == 4) << o.x << " " << o.y << " " << z.width << " " << z.height;
    // a tile beyond the source's right edge is clamped to it
    EXPECT_EQ(qvniGetAffineSrcRoi(sp, {7, 5}, {40, 40}, &o, &z), qvnOk);
    EXPECT_TRUE(o.x == 9 && o.y == 6 && z.width == 11 && z.height == 4);
}

// ---- the call --------------------------------------------------------------------------

TEST(WarpCall, ChecksInOrder) {
    const auto spec = shifted(qvn16u, 3), nearest = shifted(qvn16u, 3, qvnInterpNearest), other = shifted(qvn16s, 3),
               four = shifted(qvn16u, 4), wide = shifted(qvn16u, 3, qvnInterpLinear, true);
    const auto buf = makeBuffer(*spec, {8, 6}, false);
    GuardedImage<Qvn16u> src({20, 10, 3, -1, true, 3}), dst({8, 6, 3, -1, true, 4});
    const int ss = int(src.step()), ds = int(dst.step());
    const auto lin = [&](const ExactBuffer& sp, QvnPoint o, QvnRoiSize z, int step = 0, Qvn8u* b = nullptr) {
        return qvniWarpAffineLinear_16u_C3R(src.data(), step ? step : ss, dst.data(), ds, o, z,
                                            sp.warpSpec(), b ? b : buf->p());
    };
    EXPECT_EQ(qvniWarpAffineLinear_16u_C3R(src.data(), ss, dst.data(), ds, {0, 0}, {0, 5}, nullptr, buf->p()),
              qvnErrNullPointer);
    EXPECT_EQ(lin(*other, {99, 0}, {0, 5}), qvnErrSize);
    EXPECT_EQ(lin(*other, {99, 0}, {8, 6}, 121), qvnErrStep);
    EXPECT_EQ(lin(*other, {99, 0}, {8, 6}, -122), qvnErrBadSpec);  // another type's
    EXPECT_EQ(lin(*four, {99, 0}, {8, 6}), qvnErrBadSpec);         // another channel count's
    EXPECT_EQ(lin(*nearest, {99, 0}, {8, 6}), qvnErrBadSpec);      // another kind's
    EXPECT_EQ(lin(*wide, {99, 0}, {8, 6}), qvnErrBadSpec);         // the _L interface's
    EXPECT_EQ(lin(*spec, {8, 0}, {8, 6}), qvnErrArgRange);
    EXPECT_EQ(lin(*spec, {0, -1}, {8, 6}), qvnErrArgRange);
    dst.expectUnchanged();
    // a tile reaching beyond the destination is produced, with a warning
    GuardedImage<Qvn16u> big({10, 7, 3, -1, true, 5});
    const auto bigBuf = makeBuffer(*spec, {10, 7}, false);
    EXPECT_EQ(lin(*spec, {0, 0}, {8, 6}), qvnOk);
    EXPECT_EQ(qvniWarpAffineLinear_16u_C3R(src.data(), ss, big.data(), int(big.step()), {0, 0}, {10, 7},
                                           spec->warpSpec(), bigBuf->p()), qvnWarnTileTooLarge);
    expectRoi(dst, 3, [&](std::int64_t e, std::int64_t y) { return big.at(e, y); }, "inside the destination");
}

}  // namespace
}  // namespace qvn::test
