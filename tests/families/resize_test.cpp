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
