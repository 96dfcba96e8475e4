// The resize family against the resize model: nearest and linear (accurate
// and fast) for every type and layout, up, down and at odd ratios, every
// border kind and in-memory side, whole images and tiles (which must give the
// same bits), threads sharing a spec; specs and work buffers of exactly the
// queried size ending at an inaccessible page; the size formulas, the spec's
// fixed part, the queries and the validation orders of the Part.
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "qvnip.h"
#include "ref/border_ref.h"
#include "ref/resize_ref.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

// Exactly n bytes that end where an inaccessible page begins (and are
// poisoned around under AddressSanitizer): a spec or work buffer that the
// library must not overrun.
class ExactBuffer {
public:
    explicit ExactBuffer(std::int64_t n, std::uint32_t seed = 5) : b_(1, Layout{n, 1, 1, 0, true, seed}) {}
    Qvn8u* p() const { return b_.first(); }
    QvnResizeSpec* spec() const { return reinterpret_cast<QvnResizeSpec*>(p()); }
    // The word of type W at byte offset i of the spec, which starts at the first 64-byte boundary.
    template <class W = std::int32_t>
    W& word(int i) const {
        const auto at = (reinterpret_cast<std::uintptr_t>(p()) + 63) & ~std::uintptr_t(63);
        return *reinterpret_cast<W*>(at + std::uintptr_t(i));
    }

private:
    GuardedBuffer b_;
};

QvnRoiSize roi32(QvnRoiSizeL z) { return {int(z.width), int(z.height)}; }
QvnPoint point32(QvnPointL p) { return {int(p.x), int(p.y)}; }

// The typed queries and Inits of one element type.
template <class T>
struct TypeApi {
    int dataType;
    QvnStatus (*getSize)(QvnRoiSize, QvnRoiSize, QvnInterpolation, Qvn32u, int*, int*);
    QvnStatus (*nearestInit)(QvnRoiSize, QvnRoiSize, QvnResizeSpec*);  // none for 64f
    QvnStatus (*linearInit)(QvnRoiSize, QvnRoiSize, QvnResizeSpec*);
    QvnStatus (*bufferSize)(const QvnResizeSpec*, QvnRoiSize, Qvn32u, int*);
    QvnStatus (*srcOffset)(const QvnResizeSpec*, QvnPoint, QvnPoint*);
};
#define QVN_TYPE_API(t, nearest)                                                                                   \
    TypeApi<Qvn##t> {                                                                                              \
        qvn##t, qvniResizeGetSize_##t, nearest, qvniResizeLinearInit_##t, qvniResizeGetBufferSize_##t,            \
            qvniResizeGetSrcOffset_##t                                                                             \
    }

// A resize call of one type and layout, its 32-bit form or (wide) its _L form.
template <class T>
using Call = QvnStatus (*)(const T* s, QvnSizeL ss, T* d, QvnSizeL ds, QvnPointL o, QvnRoiSizeL z, int border,
                           const QvnResizeSpec* spec, Qvn8u* buf, bool wide);
#define QVN_LINEAR_CALL(t, T, C)                                                                                  \
    +[](const T* s, QvnSizeL ss, T* d, QvnSizeL ds, QvnPointL o, QvnRoiSizeL z, int b, const QvnResizeSpec* sp,  \
        Qvn8u* buf, bool wide) {                                                                                  \
        return wide ? qvniResizeLinear_##t##_##C##R_L(s, ss, d, ds, o, z, b, nullptr, sp, buf)                    \
                    : qvniResizeLinear_##t##_##C##R(s, int(ss), d, int(ds), point32(o), roi32(z), b, nullptr, sp, buf); \
    }
#define QVN_NEAREST_CALL(t, T, C)                                                                                 \
    +[](const T* s, QvnSizeL ss, T* d, QvnSizeL ds, QvnPointL o, QvnRoiSizeL z, int, const QvnResizeSpec* sp,    \
        Qvn8u* buf, bool wide) {                                                                                  \
        return wide ? qvniResizeNearest_##t##_##C##R_L(s, ss, d, ds, o, z, sp, buf)                               \
                    : qvniResizeNearest_##t##_##C##R(s, int(ss), d, int(ds), point32(o), roi32(z), sp, buf);      \
    }

template <class T>
struct Case {
    std::string name;
    int k;         // elements per pixel
    int kind;      // qvnInterpNearest or qvnInterpLinear
    bool fast;     // the 8u fast mode
    TypeApi<T> api;
    Call<T> call;
};

// A spec of c's kind for src -> dst in a buffer of exactly the queried size.
template <class T>
std::unique_ptr<ExactBuffer> makeSpec(const Case<T>& c, QvnRoiSize src, QvnRoiSize dst, bool wide) {
    std::unique_ptr<ExactBuffer> b;
    if (wide) {
        QvnSizeL size = 0, init = 0;
        EXPECT_EQ(qvniResizeGetSize_L({src.width, src.height}, {dst.width, dst.height}, c.api.dataType, c.kind, 0,
                                      &size, &init), qvnOk);
        b = std::make_unique<ExactBuffer>(size);
        EXPECT_EQ((c.kind == qvnInterpNearest ? qvniResizeNearestInit_L : qvniResizeLinearInit_L)(
                      {src.width, src.height}, {dst.width, dst.height}, c.api.dataType, b->spec()), qvnOk);
    } else {
        int size = 0, init = 0;
        EXPECT_EQ(c.api.getSize(src, dst, c.kind, 0, &size, &init), qvnOk);
        b = std::make_unique<ExactBuffer>(size);
        EXPECT_EQ((c.kind == qvnInterpNearest ? c.api.nearestInit : c.api.linearInit)(src, dst, b->spec()), qvnOk);
    }
    if (c.fast) { EXPECT_EQ(qvniResizeSetMode(qvnAlgHintFast, b->spec()), qvnOk); }
    return b;
}

// A work buffer of exactly the queried size for tiles of size z.
template <class T>
std::unique_ptr<ExactBuffer> makeBuffer(const Case<T>& c, const ExactBuffer& spec, QvnRoiSizeL z, bool wide) {
    QvnSizeL n = 0;
    if (wide) {
        EXPECT_EQ(qvniResizeGetBufferSize_L(spec.spec(), z, Qvn32u(c.k), &n), qvnOk);
    } else {
        int m = 0;
        EXPECT_EQ(c.api.bufferSize(spec.spec(), roi32(z), Qvn32u(c.k), &m), qvnOk);
        n = m;
    }
    return std::make_unique<ExactBuffer>(n, std::uint32_t(n));
}

template <class T>
void fillValues(GuardedImage<T>& img, std::uint32_t seed) {
    if constexpr (std::is_floating_point_v<T>) {
        std::mt19937 rng(seed);
        for (std::int64_t y = 0; y < img.height(); ++y)
            for (std::int64_t e = 0; e < img.rowElems(); ++e) img.at(e, y) = T(int(rng() % 8001) - 4000) / T(4);
        img.snapshot();
    } else {
        fillSource(img, seed);
    }
}

// Every element of the whole destination d against the model, the source
// pixel (x, y) at src(x * k + c, y) (in-memory sides read beyond the image).
template <class T, class Src>
void expectModel(const Case<T>& c, const GuardedImage<T>& d, QvnRoiSize s, int border, const Src& src,
                 const std::string& where) {
    const auto axis = [&](std::int64_t q, std::int64_t n, int before, int after) {
        if ((q < 0 && (border & before)) || (q >= n && (border & after))) return q;
        return ref::borderIndex((border & 0xF) == qvnBorderMirror ? ref::Border::kMirror : ref::Border::kReplicate, q, n);
    };
    for (std::int64_t y = 0; y < d.height(); ++y)
        for (std::int64_t e = 0; e < d.rowElems(); ++e) {
            const std::int64_t x = e / c.k, ch = e % c.k;
            const T got = d.at(e, y);
            if (c.kind == qvnInterpNearest) {
                const T want = src(ref::nearestIndex(x, s.width, d.width()) * c.k + ch, ref::nearestIndex(y, s.height, d.height()));
                if (sameValue(got, want)) continue;
                ADD_FAILURE() << where << " at (" << x << ", " << y << ", " << ch << ") got " << printable(got) << " want " << printable(want);
                return;
            }
            const ref::LinearTap tx = ref::linearTap(x, s.width, d.width()), ty = ref::linearTap(y, s.height, d.height());
            long double taps[2][2];
            int ints[2][2];
            long double largest = 0;
            for (int j = 0; j < 2; ++j)
                for (int i = 0; i < 2; ++i) {
                    const T v = src(axis(tx.first + i, s.width, qvnBorderInMemLeft, qvnBorderInMemRight) * c.k + ch,
                                    axis(ty.first + j, s.height, qvnBorderInMemTop, qvnBorderInMemBottom));
                    taps[j][i] = v, ints[j][i] = int(v), largest = std::max(largest, std::fabs((long double)v));
                }
            const long double want = c.fast ? ref::fastValue(ints, tx.frac, ty.frac)
                                            : ref::linearValue(taps, tx.frac, ty.frac, std::is_same_v<T, Qvn64f>);
            // integers: rounded to nearest, ties either way within the weights' rounding; floats: a few ulps
            const long double tol = c.fast ? 0 : std::is_integral_v<T> ? 0.52L
                                                : (std::is_same_v<T, Qvn64f> ? 1e-14L : 2e-6L) * largest;
            if (std::fabs((long double)got - want) <= tol) continue;
            ADD_FAILURE() << where << " at (" << x << ", " << y << ", " << ch << ") got " << printable(got) << " want "
                          << double(want);
            return;
        }
}

// c from src to dst with border: the whole destination against the model,
// then the same destination in tiles (each with its own source offset and a
// buffer of its own size), which must give the same bits.
template <class T>
void runCase(const Case<T>& c, QvnRoiSize s, QvnRoiSize z, int border, bool wide, std::uint32_t seed) {
    const std::string where = c.name + (wide ? "_L " : " ") + std::to_string(s.width) + "x" + std::to_string(s.height) +
                              " to " + std::to_string(z.width) + "x" + std::to_string(z.height) + " border " +
                              std::to_string(border) + " seed " + std::to_string(seed);
    SCOPED_TRACE(where);
    const int m = (border & qvnBorderInMem) ? 1 : 0;  // a margin of real pixels around the source
    GuardedImage<T> img(placed(s.width + 2 * m, s.height + 2 * m, c.k, -1, seed, 0));
    fillValues(img, seed);
    const T* src = img.row(m) + m * c.k;
    const auto spec = makeSpec(c, s, z, wide);
    const auto buf = makeBuffer(c, *spec, {z.width, z.height}, wide);
    GuardedImage<T> whole(placed(z.width, z.height, c.k, -1, seed, 1)), tiled(placed(z.width, z.height, c.k, -1, seed, 2));
    const QvnStatus st = callUnderTest({&img}, {&whole}, [&] {
        return c.call(src, img.step(), whole.data(), whole.step(), {0, 0}, {z.width, z.height}, border, spec->spec(), buf->p(), wide);
    }, FE_UPWARD, true, std::is_floating_point_v<T> ? int(sizeof(T)) : 0);
    ASSERT_EQ(st, qvnOk);
    expectModel(c, whole, s, border, [&](std::int64_t e, std::int64_t y) { return img.at(m * c.k + e, m + y); }, where);

    std::mt19937 rng(seed);
    const std::int64_t cx = 1 + rng() % z.width, cy = 1 + rng() % z.height;  // tiles split at (cx, cy)
    for (const auto& [x0, x1] : {std::pair{std::int64_t(0), cx}, {cx, std::int64_t(z.width)}})
        for (const auto& [y0, y1] : {std::pair{std::int64_t(0), cy}, {cy, std::int64_t(z.height)}}) {
            if (x0 == x1 || y0 == y1) continue;
            QvnPointL at{};
            QvnPoint at32{};
            // each interface's query refuses the other's spec
            ASSERT_EQ(c.api.srcOffset(spec->spec(), {int(x0), int(y0)}, &at32), wide ? qvnErrBadSpec : qvnOk);
            ASSERT_EQ(qvniResizeGetSrcOffset_L(spec->spec(), {x0, y0}, &at), wide ? qvnOk : qvnErrBadSpec);
            if (!wide) at = {at32.x, at32.y};
            const auto tileBuf = makeBuffer(c, *spec, {x1 - x0, y1 - y0}, wide);
            ASSERT_EQ(c.call(byteOffset(src, at.y * img.step()) + at.x * c.k, img.step(),
                             byteOffset(tiled.data(), y0 * tiled.step()) + x0 * c.k, tiled.step(), {x0, y0},
                             {x1 - x0, y1 - y0}, border, spec->spec(), tileBuf->p(), wide), qvnOk);
        }
    ASSERT_EQ(tiled.roiBytes(), whole.roiBytes()) << "tiles differ from the whole image";
}

// Up, down, equal, by integer factors and at odd ratios; widths around the
// vector steps of the rows.
const std::vector<std::pair<QvnRoiSize, QvnRoiSize>> kSizes = {
    {{2, 2}, {7, 5}},    {{5, 3}, {2, 2}},   {{17, 9}, {33, 31}}, {{33, 31}, {17, 9}}, {{24, 8}, {24, 8}},
    {{31, 5}, {93, 15}}, {{48, 10}, {16, 5}}, {{40, 12}, {20, 6}}, {{19, 7}, {13, 11}}, {{100, 3}, {37, 2}},
    {{9, 4}, {65, 3}},   {{70, 2}, {1, 1}}};

// Replicate, mirror, mirror with the edge repeated, all sides in memory,
// top and left in memory (replicate below and right), mirror with bottom
// and right in memory.
const int kBorders[] = {1, 3, 4, 240, 1 | 16 | 64, 3 | 32 | 128};

template <class T>
void sweepResize(const Case<T>& c, bool everyBorder) {
    std::uint32_t seed = std::uint32_t(std::hash<std::string>{}(c.name));
    for (const auto& [s, z] : kSizes) {
        if (c.kind == qvnInterpLinear && (s.width < 2 || s.height < 2)) continue;
        for (int border : kBorders) {
            if (c.kind == qvnInterpNearest && border != 1) break;
            runCase(c, s, z, border, false, ++seed);
            if (!everyBorder || testing::Test::HasFailure()) break;
        }
        if (testing::Test::HasFailure()) return;
    }
    runCase(c, {11, 6}, {5, 9}, 3 | 16, true, ++seed);  // the _L forms run the same code
}

#define QVN_NEAREST_CASES(t, T)                                                                                   \
    for (auto [k, call] : {std::pair{1, QVN_NEAREST_CALL(t, T, C1)}, {3, QVN_NEAREST_CALL(t, T, C3)},             \
                           {4, QVN_NEAREST_CALL(t, T, C4)}})                                                      \
        sweepResize<T>({"Nearest_" #t "_C" + std::to_string(k), k, qvnInterpNearest, false,                       \
                        QVN_TYPE_API(t, qvniResizeNearestInit_##t), call}, false);
#define QVN_LINEAR_CASES(t, T, nearest, fast, every)                                                              \
    for (auto [k, call] : {std::pair{1, QVN_LINEAR_CALL(t, T, C1)}, {3, QVN_LINEAR_CALL(t, T, C3)},               \
                           {4, QVN_LINEAR_CALL(t, T, C4)}})                                                       \
        sweepResize<T>({"Linear_" #t "_C" + std::to_string(k) + (fast ? " fast" : ""), k, qvnInterpLinear, fast,  \
                        QVN_TYPE_API(t, nearest), call}, every);

TEST(Resize, NearestEveryTypeAndLayout) {
    QVN_NEAREST_CASES(8u, Qvn8u)
    QVN_NEAREST_CASES(16u, Qvn16u)
    QVN_NEAREST_CASES(16s, Qvn16s)
    QVN_NEAREST_CASES(32f, Qvn32f)
}

TEST(Resize, Linear8uAccurateAndFastEveryBorder) {
    QVN_LINEAR_CASES(8u, Qvn8u, qvniResizeNearestInit_8u, false, true)
    QVN_LINEAR_CASES(8u, Qvn8u, qvniResizeNearestInit_8u, true, true)
}

TEST(Resize, LinearOtherTypes) {
    QVN_LINEAR_CASES(16u, Qvn16u, qvniResizeNearestInit_16u, false, false)
    QVN_LINEAR_CASES(16s, Qvn16s, qvniResizeNearestInit_16s, false, true)
    QVN_LINEAR_CASES(32f, Qvn32f, qvniResizeNearestInit_32f, false, true)
    QVN_LINEAR_CASES(64f, Qvn64f, nullptr, false, true)
}

// The nearest index keeps its bias: equal sizes copy, an even factor k takes
// pixel k * i + k / 2 - 1, an odd one k * i + (k - 1) / 2.
TEST(Resize, NearestModelMatchesTheWorkedExamples) {
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ(ref::nearestIndex(i, 50, 50), i);
        EXPECT_EQ(ref::nearestIndex(i, 200, 50), 4 * i + 1);
        EXPECT_EQ(ref::nearestIndex(i, 150, 50), 3 * i + 1);
    }
}

}  // namespace
}  // namespace qvn::test

namespace qvn::test {
namespace {

// The Part's formulas for every kind: {kind, antialiasing, 64f, source, destination, spec, init buffer}.
TEST(ResizeSpec, SizeQueryFollowsTheFormulas) {
    const struct {
        int kind, aa;
        bool is64f;
        QvnRoiSize src, dst;
        int spec, init;
    } cases[] = {
        // W32 + H32 = 128 + 64: 4 * 192 + 400; 8 * 192 + 400; 12 * 192 + 384
        {qvnInterpNearest, 0, false, {10, 10}, {100, 50}, 1168, 64},
        {qvnInterpLinear, 0, false, {10, 10}, {100, 50}, 1936, 64},
        {qvnInterpLinear, 0, true, {10, 10}, {100, 50}, 2688, 64},
        // (16 * 50 + 508) & ~127 = 1280, (16 * 100 + 508) & ~127 = 2048, + 768 + 400
        {qvnInterpCubic, 0, false, {10, 10}, {100, 50}, 4496, 832},
        // 1920 + 3072 + 768 + 400
        {qvnInterpLanczos, 0, false, {10, 10}, {100, 50}, 6160, 832},
        // cx = (3 + 1 + 1) * 3 = 15, cy = (2 + 1 + 1) * 2 = 8: 128 + 128 + 4 * 23 + 400
        {qvnInterpSuper, 0, false, {100, 50}, {30, 20}, 748, 64},
        // nx = 2 * ceil(2 * 10 / 3) = 14, ny = 2 * ceil(2 * 2.5) = 10: 1696 + 800 + 4 * 64 + 400
        {qvnInterpLinear, 1, false, {100, 50}, {30, 20}, 3152, 576},
        // ratio at most 1: 6 taps, (4 * 6 * 20 + 31) & ~31 = 480 twice
        {qvnInterpLanczos, 5, false, {10, 10}, {20, 20}, 1616, 576},
        // 8-byte coefficients, nx = 28, ny = 20: 6720 + 3200 + 656
        {qvnInterpCubic, 1, true, {100, 50}, {30, 20}, 10576, 576},
    };
    for (const auto& c : cases) {
        int spec = 0, init = 0;
        const auto fn = c.is64f ? qvniResizeGetSize_64f : qvniResizeGetSize_16s;
        EXPECT_EQ(fn(c.src, c.dst, c.kind, Qvn32u(c.aa), &spec, &init), qvnOk) << c.kind;
        EXPECT_EQ(spec, c.spec) << "kind " << c.kind << " aa " << c.aa;
        EXPECT_EQ(init, c.init) << "kind " << c.kind << " aa " << c.aa;
        QvnSizeL specL = 0, initL = 0;
        const int type = c.is64f ? qvn64f : qvn16s;
        if (!c.is64f || c.aa != 1) {
            EXPECT_EQ(qvniResizeGetSize_L({c.src.width, c.src.height}, {c.dst.width, c.dst.height}, type, c.kind,
                                          Qvn32u(c.aa), &specL, &initL), c.is64f && c.kind != qvnInterpLinear ? qvnErrDataType : qvnOk);
            if (!c.is64f) {
                EXPECT_EQ(specL, c.spec);
            }
        }
    }
}

TEST(ResizeSpec, SizeQueryChecksInOrder) {
    int spec = -1, init = -1;
    QvnSizeL specL = -1, initL = -1;
    EXPECT_EQ(qvniResizeGetSize_8u({0, 5}, {5, 5}, 99, 0, nullptr, &init), qvnErrNullPointer);
    EXPECT_EQ(qvniResizeGetSize_8u({0, -5}, {5, 5}, 99, 0, &spec, &init), qvnWarnNoOperation);
    EXPECT_EQ(spec, -1);
    EXPECT_EQ(qvniResizeGetSize_8u({5, -5}, {5, 5}, 99, 0, &spec, &init), qvnErrSize);
    for (int kind : {-1, 3, 5, 7, 9, 17, 32}) EXPECT_EQ(qvniResizeGetSize_8u({5, 5}, {5, 5}, kind, 0, &spec, &init), qvnErrInterpolationKind);
    EXPECT_EQ(qvniResizeGetSize_8u({1, 1}, {5, 5}, qvnInterpNone, 0, &spec, &init), qvnErrBadMode);
    EXPECT_EQ(qvniResizeGetSize_8u({1, 5}, {5, 5}, qvnInterpLinear, 0, &spec, &init), qvnErrSize);
    EXPECT_EQ(qvniResizeGetSize_8u({3, 5}, {5, 5}, qvnInterpCubic, 0, &spec, &init), qvnErrSize);
    EXPECT_EQ(qvniResizeGetSize_8u({4, 5}, {4, 6}, qvnInterpSuper, 0, &spec, &init), qvnErrSize);
    EXPECT_EQ(qvniResizeGetSize_8u({1, 1}, {5, 5}, qvnInterpNearest, 1, &spec, &init), qvnWarnAntialiasIgnored);
    EXPECT_EQ(spec, 4 * 64 + 400);  // the plain kind's size
    EXPECT_EQ(qvniResizeGetSize_8u({8, 8}, {1 << 28, 1}, qvnInterpLinear, 0, &spec, &init), qvnErrSizeOverflow);
    // 64f: linear only, unless antialiasing is on
    EXPECT_EQ(qvniResizeGetSize_64f({8, 8}, {5, 5}, qvnInterpCubic, 0, &spec, &init), qvnErrBadMode);
    EXPECT_EQ(qvniResizeGetSize_64f({8, 8}, {5, 5}, qvnInterpNone, 0, &spec, &init), qvnErrBadMode);
    EXPECT_EQ(qvniResizeGetSize_L({8, 8}, {5, 5}, qvn64f, qvnInterpCubic, 0, &specL, &initL), qvnErrDataType);
    EXPECT_EQ(qvniResizeGetSize_L({8, 8}, {5, 5}, qvn64f, qvnInterpLinear, 1, &specL, &initL), qvnErrBadMode);
    EXPECT_EQ(qvniResizeGetSize_L({8, 8}, {5, 5}, qvn64f, qvnInterpLinear, 2, &specL, &initL), qvnOk);
    EXPECT_EQ(qvniResizeGetSize_L({8, 8}, {5, 5}, 2, qvnInterpLinear, 0, &specL, &initL), qvnErrDataType);
    EXPECT_EQ(qvniResizeGetSize_L({8, 8}, {1 << 25, 5}, qvn8u, qvnInterpNone, 0, &specL, &initL), qvnErrSizeOverflow);
    EXPECT_EQ(qvniResizeGetSize_L({8, 8}, {(1 << 25) - 1, 5}, qvn8u, qvnInterpLinear, 0, &specL, &initL), qvnOk);
}

// The fixed part as the Part lays it out, cleared before it is filled.
TEST(ResizeSpec, FixedPartHoldsWhatTheInitWasGiven) {
    int size = 0, init = 0;
    ASSERT_EQ(qvniResizeGetSize_8u({30, 20}, {12, 8}, qvnInterpLinear, 0, &size, &init), qvnOk);
    const ExactBuffer b(size);
    EXPECT_EQ(qvniResizeLinearInit_8u({30, 20}, {12, 8}, b.spec()), qvnOk);
    EXPECT_EQ(Qvn32u(b.word(0)), 0x4B617389u);
    const int head[] = {13, qvnInterpLinear, 1, 1, 0, 1, 1, 1, 1};  // precision .. border sizes
    for (int i = 0; i < 9; ++i) EXPECT_EQ(b.word(4 + 4 * i), head[i]) << "word " << 1 + i;
    const int rows[] = {20, 8, 5, 2}, cols[] = {30, 12, 5, 2};  // lengths, then divided by their gcd
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(b.word(40 + 4 * i), rows[i]);
        EXPECT_EQ(b.word(88 + 4 * i), cols[i]);
    }
    EXPECT_EQ(b.word(136), 2);  // accurate mode
    const std::int64_t sizes[] = {30, 20, 12, 8};
    for (int i = 0; i < 4; ++i) EXPECT_EQ(b.word<std::int64_t>(144 + 8 * i), sizes[i]);
    EXPECT_EQ(b.word(176), qvn8u);
    for (int i = 180; i < 272; i += 4) EXPECT_EQ(b.word(i), 0) << "byte " << i;

    QvnSizeL sizeL = 0, initL = 0;
    ASSERT_EQ(qvniResizeGetSize_L({30, 20}, {12, 8}, qvn64f, qvnInterpLinear, 0, &sizeL, &initL), qvnOk);
    const ExactBuffer d(sizeL);
    EXPECT_EQ(qvniResizeLinearInit_8u_L({30, 20}, {12, 8}, qvn64f, d.spec()), qvnOk);
    EXPECT_EQ(Qvn32u(d.word(0)), 0x4B61738Cu);
    EXPECT_EQ(d.word(4), 19);
    EXPECT_EQ(d.word(176), qvn64f);
    ASSERT_EQ(qvniResizeGetSize_16s({30, 20}, {12, 8}, qvnInterpNearest, 0, &size, &init), qvnOk);
    const ExactBuffer n(size);
    EXPECT_EQ(qvniResizeNearestInit_16s({30, 20}, {12, 8}, n.spec()), qvnOk);
    const int nearest[] = {13, qvnInterpNearest, 0, 0, 0, 0, 0, 0, 0};
    for (int i = 0; i < 9; ++i) EXPECT_EQ(n.word(4 + 4 * i), nearest[i]) << "word " << 1 + i;
}

TEST(ResizeSpec, InitsCheckInOrder) {
    const ExactBuffer b(4096);
    EXPECT_EQ(qvniResizeLinearInit_8u({0, 5}, {5, 5}, nullptr), qvnErrNullPointer);
    EXPECT_EQ(qvniResizeLinearInit_8u({0, -5}, {5, 5}, b.spec()), qvnWarnNoOperation);
    EXPECT_EQ(b.word(0), std::int32_t(0xA5A5A5A5));  // nothing written
    EXPECT_EQ(qvniResizeLinearInit_8u({5, -5}, {5, 5}, b.spec()), qvnErrSize);
    EXPECT_EQ(qvniResizeLinearInit_32f({1, 5}, {5, 5}, b.spec()), qvnErrSize);  // linear needs two pixels
    EXPECT_EQ(qvniResizeNearestInit_32f({1, 1}, {5, 5}, b.spec()), qvnOk);
    EXPECT_EQ(qvniResizeNearestInit_L({4, 4}, {5, 5}, qvn64f, b.spec()), qvnErrDataType);
    EXPECT_EQ(qvniResizeLinearInit_L({4, 4}, {5, 5}, 3, b.spec()), qvnErrDataType);
    EXPECT_EQ(qvniResizeLinearInit_L({1, 4}, {5, 5}, 3, b.spec()), qvnErrSize);
}

// A linear 8u spec from 30 x 20 to 12 x 8 in an exact buffer.
std::unique_ptr<ExactBuffer> linear8u(QvnRoiSize src = {30, 20}, QvnRoiSize dst = {12, 8}) {
    int size = 0, init = 0;
    EXPECT_EQ(qvniResizeGetSize_8u(src, dst, qvnInterpLinear, 0, &size, &init), qvnOk);
    auto b = std::make_unique<ExactBuffer>(size);
    EXPECT_EQ(qvniResizeLinearInit_8u(src, dst, b->spec()), qvnOk);
    return b;
}

TEST(ResizeSpec, QueriesReadTheSpec) {
    const auto lin = linear8u();
    QvnBorderSize bs{9, 9, 9, 9};
    EXPECT_EQ(qvniResizeGetBorderSize_8u(lin->spec(), &bs), qvnOk);
    EXPECT_EQ(bs.borderLeft + bs.borderTop + bs.borderRight + bs.borderBottom, 4u);
    EXPECT_EQ(qvniResizeGetBorderSize_64f(lin->spec(), &bs), qvnErrBadSpec);  // single-precision coefficients
    EXPECT_EQ(qvniResizeGetBorderSize_L(lin->spec(), &bs), qvnErrBadSpec);    // not an _L spec
    // the source offset: floor(offset * 5 / 2) on both axes (gcd 6 and 4)
    QvnPoint so{};
    EXPECT_EQ(qvniResizeGetSrcOffset_8u(lin->spec(), {5, 3}, &so), qvnOk);
    EXPECT_EQ(so.x, 12);
    EXPECT_EQ(so.y, 7);
    EXPECT_EQ(qvniResizeGetSrcOffset_8u(lin->spec(), {12, 0}, &so), qvnErrArgRange);
    EXPECT_EQ(qvniResizeGetSrcOffset_8u(lin->spec(), {0, -1}, &so), qvnErrArgRange);
    EXPECT_EQ(qvniResizeGetSrcOffset_8u(lin->spec(), {0, 0}, nullptr), qvnErrNullPointer);
    // the source rectangle: the taps of the first and last positions, inside the source
    QvnPoint ro{};
    QvnRoiSize rz{};
    EXPECT_EQ(qvniResizeGetSrcRoi_8u(lin->spec(), {0, 0}, {12, 8}, &ro, &rz), qvnOk);
    EXPECT_TRUE(ro.x == 0 && ro.y == 0 && rz.width == 30 && rz.height == 20);
    EXPECT_EQ(qvniResizeGetSrcRoi_8u(lin->spec(), {4, 2}, {3, 2}, &ro, &rz), qvnOk);
    const ref::LinearTap x0 = ref::linearTap(4, 30, 12), x1 = ref::linearTap(6, 30, 12), y0 = ref::linearTap(2, 20, 8);
    EXPECT_TRUE(ro.x == x0.first && rz.width == x1.first + 2 - x0.first && ro.y == y0.first);
    EXPECT_EQ(qvniResizeGetSrcRoi_8u(lin->spec(), {4, 2}, {0, 2}, &ro, &rz), qvnErrSize);
    EXPECT_EQ(qvniResizeGetSrcRoi_8u(lin->spec(), {4, 8}, {1, 2}, &ro, &rz), qvnErrArgRange);
    // the buffer size
    int n = -1;
    EXPECT_EQ(qvniResizeGetBufferSize_8u(nullptr, {0, 0}, 3, &n), qvnErrNullPointer);
    EXPECT_EQ(qvniResizeGetBufferSize_8u(lin->spec(), {0, 5}, 2, &n), qvnWarnNoOperation);
    EXPECT_EQ(qvniResizeGetBufferSize_64f(lin->spec(), {5, 5}, 2, &n), qvnErrBadSpec);
    EXPECT_EQ(qvniResizeGetBufferSize_8u(lin->spec(), {-5, 5}, 2, &n), qvnErrChannelCount);
    EXPECT_EQ(qvniResizeGetBufferSize_8u(lin->spec(), {-5, 5}, 3, &n), qvnErrSize);
    EXPECT_EQ(n, -1);
    EXPECT_EQ(qvniResizeGetBufferSize_8u(lin->spec(), {1 << 30, 5}, 4, &n), qvnErrSizeOverflow);
}

TEST(ResizeSpec, SetModeSwitchesTheCoefficients) {
    const auto lin = linear8u();
    EXPECT_EQ(qvniResizeSetMode(qvnAlgHintFast, nullptr), qvnErrNullPointer);
    for (int hint : {0, 3, -1}) EXPECT_EQ(qvniResizeSetMode(hint, lin->spec()), qvnErrBadMode);
    const ExactBuffer garbage(512);
    EXPECT_EQ(qvniResizeSetMode(qvnAlgHintFast, garbage.spec()), qvnErrBadSpec);
    EXPECT_EQ(qvniResizeSetMode(qvnAlgHintAccurate, lin->spec()), qvnOk);  // already accurate
    EXPECT_EQ(qvniResizeSetMode(qvnAlgHintFast, lin->spec()), qvnOk);
    EXPECT_EQ(lin->word(4), 7);
    EXPECT_EQ(qvniResizeSetMode(qvnAlgHintFast, lin->spec()), qvnOk);
    QvnBorderSize bs;
    EXPECT_EQ(qvniResizeGetBorderSize_8u(lin->spec(), &bs), qvnOk);  // 7 belongs to the 8u..32f functions
    // back to accurate: the tables of a fresh spec
    EXPECT_EQ(qvniResizeSetMode(qvnAlgHintAccurate, lin->spec()), qvnOk);
    const auto fresh = linear8u();
    int size = 0, init = 0;
    qvniResizeGetSize_8u({30, 20}, {12, 8}, qvnInterpLinear, 0, &size, &init);
    EXPECT_EQ(std::memcmp(&lin->word(0), &fresh->word(0), std::size_t(size - 64)), 0);
    // fast mode is for 8u linear specs only
    int s16 = 0;
    qvniResizeGetSize_16u({30, 20}, {12, 8}, qvnInterpLinear, 0, &s16, &init);
    const ExactBuffer b16(s16);
    qvniResizeLinearInit_16u({30, 20}, {12, 8}, b16.spec());
    EXPECT_EQ(qvniResizeSetMode(qvnAlgHintFast, b16.spec()), qvnErrBadMode);
    const ExactBuffer near(4096);
    qvniResizeNearestInit_8u({30, 20}, {12, 8}, near.spec());
    EXPECT_EQ(qvniResizeSetMode(qvnAlgHintAccurate, near.spec()), qvnOk);
    EXPECT_EQ(qvniResizeSetMode(qvnAlgHintFast, near.spec()), qvnErrBadMode);
}

// Every check of a resize call in the Part's order, each with the later
// checks failing too; nothing is written on an error.
TEST(ResizeCall, ChecksInOrder) {
    int size = 0, init = 0, n = 0;
    qvniResizeGetSize_32f({30, 20}, {12, 8}, qvnInterpLinear, 0, &size, &init);
    const ExactBuffer spec(size), near(size), spec16(size), spec64(4096);
    qvniResizeLinearInit_32f({30, 20}, {12, 8}, spec.spec());
    qvniResizeNearestInit_32f({30, 20}, {12, 8}, near.spec());
    qvniResizeLinearInit_16u({30, 20}, {12, 8}, spec16.spec());
    qvniResizeLinearInit_64f({30, 20}, {12, 8}, spec64.spec());
    qvniResizeGetBufferSize_32f(spec.spec(), {12, 8}, 1, &n);
    const ExactBuffer buf(n);
    GuardedImage<Qvn32f> src({30, 20, 1, -1, true, 3}), dst({12, 8, 1, -1, true, 4});
    const int ss = int(src.step()), ds = int(dst.step());
    const auto lin = [&](const Qvn32f* s, int border, QvnPoint o, QvnRoiSize z, const ExactBuffer& sp, int step = 0) {
        return qvniResizeLinear_32f_C1R(s, step ? step : ss, dst.data(), ds, o, z, border, nullptr, sp.spec(), buf.p());
    };
    for (int border : {0, 2, 5, 6, 7, 16, 64 + 128, 256, -1, 6 + 240})
        EXPECT_EQ(lin(nullptr, border, {0, 0}, {0, 0}, spec), qvnErrBorderKind) << border;
    EXPECT_EQ(lin(nullptr, qvnBorderMirrorEdge, {0, 0}, {0, 0}, spec), qvnErrNullPointer);
    EXPECT_EQ(lin(src.data(), qvnBorderInMem, {99, 0}, {0, -1}, near), qvnWarnNoOperation);
    EXPECT_EQ(lin(src.data(), 1, {99, 0}, {-1, 4}, spec16), qvnErrBadSpec);  // another type's
    EXPECT_EQ(lin(src.data(), 1, {99, 0}, {-1, 4}, spec64), qvnErrBadSpec);  // another precision
    EXPECT_EQ(lin(src.data(), 1, {99, 0}, {-1, 4}, spec), qvnErrSize);
    EXPECT_EQ(lin(src.data(), 1, {99, 0}, {1, 4}, spec, 122), qvnErrStep);
    EXPECT_EQ(lin(src.data(), 1, {12, 0}, {1, 4}, spec), qvnErrArgRange);
    EXPECT_EQ(lin(src.data(), 1, {0, -1}, {1, 4}, spec), qvnErrArgRange);
    EXPECT_EQ(lin(src.data(), 1, {0, 0}, {1, 4}, near), qvnErrBadSpec);
    spec.word(20) = 1;  // a spec with antialiasing
    EXPECT_EQ(lin(src.data(), 1, {0, 0}, {1, 4}, spec), qvnErrBadMode);
    spec.word(20) = 0;
    EXPECT_EQ(qvniResizeNearest_32f_C1R(src.data(), ss, dst.data(), ds, {0, 0}, {1, 1}, spec.spec(), buf.p()), qvnErrBadSpec);
    EXPECT_EQ(qvniResizeNearest_32f_C1R(src.data(), ss, dst.data(), ds, {0, 0}, {1, 1}, spec.spec(), nullptr), qvnErrNullPointer);
    EXPECT_EQ(qvniResizeNearest_32f_C1R_L(src.data(), ss, dst.data(), ds, {0, 0}, {1, 1}, near.spec(), buf.p()), qvnErrBadSpec);
    dst.expectUnchanged();
}

// A tile reaching beyond the destination is produced, with warning 48; the
// part inside it is the whole call's.
TEST(ResizeCall, TileLargerThanTheDestinationWarns) {
    const auto lin = linear8u({30, 20}, {12, 8});
    int n = 0;
    qvniResizeGetBufferSize_8u(lin->spec(), {15, 10}, 3, &n);
    const ExactBuffer buf(n);
    GuardedImage<Qvn8u> src({30, 20, 3, -1, true, 7}), whole({12, 8, 3, -1, true, 8}), big({15, 10, 3, -1, true, 9});
    fillSource(src, 7);
    EXPECT_EQ(qvniResizeLinear_8u_C3R(src.data(), int(src.step()), whole.data(), int(whole.step()), {0, 0}, {12, 8}, 1,
                                      nullptr, lin->spec(), buf.p()), qvnOk);
    EXPECT_EQ(qvniResizeLinear_8u_C3R(src.data(), int(src.step()), big.data(), int(big.step()), {0, 0}, {15, 10}, 1,
                                      nullptr, lin->spec(), buf.p()), qvnWarnTileTooLarge);
    expectRoi(whole, 3, [&](std::int64_t e, std::int64_t y) { return big.at(e, y); }, "inside the destination");
    big.expectUntouchedOutsideRoi();
}

// Threads share one spec, each with its own buffer and band of rows.
TEST(ResizeCall, ThreadsShareASpec) {
    const QvnRoiSize s{200, 150}, z{333, 211};
    const auto spec = linear8u(s, z);
    GuardedImage<Qvn8u> src({s.width, s.height, 3, -1, true, 11}), whole({z.width, z.height, 3, -1, false, 12}),
        bands({z.width, z.height, 3, -1, true, 13});
    fillSource(src, 11);
    int n = 0;
    qvniResizeGetBufferSize_8u(spec->spec(), z, 3, &n);
    const ExactBuffer buf(n);
    ASSERT_EQ(qvniResizeLinear_8u_C3R(src.data(), int(src.step()), whole.data(), int(whole.step()), {0, 0}, z, 3,
                                      nullptr, spec->spec(), buf.p()), qvnOk);
    std::vector<std::thread> threads;
    std::vector<QvnStatus> status(4, -1);
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&, t] {
            const int y0 = z.height * t / 4, y1 = z.height * (t + 1) / 4;
            QvnPoint so{};
            int bytes = 0;
            qvniResizeGetSrcOffset_8u(spec->spec(), {0, y0}, &so);
            qvniResizeGetBufferSize_8u(spec->spec(), {z.width, y1 - y0}, 3, &bytes);
            std::vector<Qvn8u> own(static_cast<std::size_t>(bytes));
            status[std::size_t(t)] = qvniResizeLinear_8u_C3R(src.row(so.y), int(src.step()), bands.row(y0),
                                                             int(bands.step()), {0, y0}, {z.width, y1 - y0}, 3,
                                                             nullptr, spec->spec(), own.data());
        });
    for (auto& t : threads) t.join();
    EXPECT_EQ(status, std::vector<QvnStatus>(4, qvnOk));
    EXPECT_EQ(bands.roiBytes(), whole.roiBytes());
}

}  // namespace
}  // namespace qvn::test
