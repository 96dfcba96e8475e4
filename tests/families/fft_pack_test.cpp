// The packed-spectrum operations (products, magnitude, phase, conversions)
// and the complex-image magnitude, phase and polar-to-cartesian functions:
// exact models where the result is a copy or a fixed sequence of float
// operations, double precision within 1 ulp elsewhere.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "ref/dft_ref.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

using ref::Cd;

void fillUniform(GuardedImage<Qvn32f>& img, std::uint32_t seed, float scale = 1.0f) {
    std::mt19937 rng(seed);
    std::uniform_real_distribution<float> d(-scale, scale);
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t e = 0; e < img.rowElems(); ++e) img.at(e, y) = d(rng);
    img.snapshot();
}

// Distance of got from the exact value in units of the last place of the
// float nearest to it.
double ulps(float got, double want) {
    if (std::isnan(want)) return std::isnan(got) ? 0 : 1e9;
    const float w = float(want);
    if (std::isinf(w)) return got == w ? 0 : 1e9;
    const float ulp = std::nextafter(std::fabs(w), std::numeric_limits<float>::infinity()) - std::fabs(w);
    return std::fabs(double(got) - want) / ulp;
}

// Where the partner of packed entry (x, y) lies and whether the entry is
// the real part (or a real entry): the layout of the packed spectrum.
struct Entry {
    int rx, ry, ix, iy;  // real and imaginary parts; ix < 0: a real entry
    bool isReal;
};
Entry entryOf(int w, int h, int x, int y) {
    if (x == 0 || (w % 2 == 0 && x == w - 1)) {
        if (y == 0 || (h % 2 == 0 && y == h - 1)) return {x, y, -1, -1, true};
        const int k = (y + 1) / 2;
        return {x, 2 * k - 1, x, 2 * k, y % 2 == 1};
    }
    const int u = (x + 1) / 2;
    return {2 * u - 1, y, 2 * u, y, x % 2 == 1};
}

using ProductFn = QvnStatus (*)(const Qvn32f*, int, const Qvn32f*, int, Qvn32f*, int, QvnRoiSize);
using ProductIFn = QvnStatus (*)(const Qvn32f*, int, Qvn32f*, int, QvnRoiSize);
struct Product {
    const char* name;
    int elems, channels;
    bool conj;
    ProductFn fn;
    ProductIFn fnI;
};
#define QVN_PRODUCT(OP, C, E, CH, CONJ) {#OP "_" #C, E, CH, CONJ, qvni##OP##_32f_##C##R, qvni##OP##_32f_##C##IR}
const Product kProducts[] = {
    QVN_PRODUCT(MulPack, C1, 1, 1, false), QVN_PRODUCT(MulPack, C3, 3, 3, false),
    QVN_PRODUCT(MulPack, C4, 4, 4, false), QVN_PRODUCT(MulPack, AC4, 4, 3, false),
    QVN_PRODUCT(MulPackConj, C1, 1, 1, true), QVN_PRODUCT(MulPackConj, C3, 3, 3, true),
    QVN_PRODUCT(MulPackConj, C4, 4, 4, true), QVN_PRODUCT(MulPackConj, AC4, 4, 3, true)};

// Every entry against the complex product written out in floats.
TEST(PackedSpectra, ProductsFollowTheLayout) {
    for (const Product& p : kProducts)
        for (bool inPlace : {false, true})
            forEachShape({1, 2, 3, 4, 5, 8, 9, 17, 34}, {1, 2, 3, 4, 7}, [&](int w, int h, int gap, bool, std::uint32_t seed) {
                SCOPED_TRACE(std::string(p.name) + (inPlace ? " in place" : ""));
                GuardedImage<Qvn32f> a(placed(w, h, p.elems, gap, seed, 0)), b(placed(w, h, p.elems, gap, seed, 1)),
                    d(placed(w, h, p.elems, gap, seed, 2));
                fillUniform(a, seed), fillUniform(b, seed + 1), fillUniform(d, seed + 2);
                GuardedImage<Qvn32f>& out = inPlace ? b : d;
                std::vector<const GuardedBuffer*> inputs = {&a};
                if (!inPlace) inputs.push_back(&b);
                const QvnStatus s = callUnderTest(inputs, {&out}, [&] {
                    return inPlace ? p.fnI(a.data(), int(a.step()), b.data(), int(b.step()), {w, h})
                                   : p.fn(a.data(), int(a.step()), b.data(), int(b.step()), d.data(), int(d.step()), {w, h});
                }, FE_TONEAREST);
                ASSERT_EQ(s, qvnOk);
                expectRoi(out, p.elems, [&](std::int64_t e, std::int64_t y) {
                    const int c = int(e % p.elems), x = int(e / p.elems);
                    if (c >= p.channels) return out.saved(e, y);
                    const Entry t = entryOf(w, h, x, int(y));
                    const auto va = [&](int xx, int yy) { return a.saved(std::int64_t(xx) * p.elems + c, yy); };
                    const auto vb = [&](int xx, int yy) { return b.saved(std::int64_t(xx) * p.elems + c, yy); };
                    if (t.ix < 0) return va(t.rx, t.ry) * vb(t.rx, t.ry);
                    const float ar = va(t.rx, t.ry), ai = va(t.ix, t.iy), br = vb(t.rx, t.ry), bi = vb(t.ix, t.iy);
                    if (!p.conj) return t.isReal ? ar * br - ai * bi : ar * bi + ai * br;
                    return t.isReal ? ar * br + ai * bi : ai * br - ar * bi;
                }, "seed " + std::to_string(seed));
            });
}

// What the products are for: the inverse transform of the product of two
// spectra is the circular convolution of the images, of the product with
// the conjugate their circular correlation.
TEST(PackedSpectra, ProductsConvolveAndCorrelate) {
    const int w = 6, h = 5;
    int ss, is, bs;
    ASSERT_EQ(qvniDFTGetSize_R_32f({w, h}, qvnFftDivInvByN, 0, &ss, &is, &bs), qvnOk);
    std::vector<Qvn8u> spec(static_cast<std::size_t>(ss)), buf(static_cast<std::size_t>(bs));
    auto* sp = reinterpret_cast<QvnDftSpec*>(spec.data());
    ASSERT_EQ(qvniDFTInit_R_32f({w, h}, qvnFftDivInvByN, 0, sp, nullptr), qvnOk);
    std::mt19937 rng(5);
    std::vector<float> a(w * h), b(w * h), fa(w * h), fb(w * h), out(w * h);
    for (float& v : a) v = float(rng() % 19) - 9;
    for (float& v : b) v = float(rng() % 19) - 9;
    ASSERT_EQ(qvniDFTFwd_RToPack_32f_C1R(a.data(), w * 4, fa.data(), w * 4, sp, buf.data()), qvnOk);
    ASSERT_EQ(qvniDFTFwd_RToPack_32f_C1R(b.data(), w * 4, fb.data(), w * 4, sp, buf.data()), qvnOk);
    for (bool conj : {false, true}) {
        ASSERT_EQ((conj ? qvniMulPackConj_32f_C1R : qvniMulPack_32f_C1R)(fa.data(), w * 4, fb.data(), w * 4, out.data(),
                                                                          w * 4, {w, h}), qvnOk);
        ASSERT_EQ(qvniDFTInv_PackToR_32f_C1IR(out.data(), w * 4, sp, buf.data()), qvnOk);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                double want = 0;
                for (int j = 0; j < h; ++j)
                    for (int i = 0; i < w; ++i) {
                        const int bx = conj ? (i - x + w) % w : (x - i + w) % w, by = conj ? (j - y + h) % h : (y - j + h) % h;
                        want += double(a[j * w + i]) * b[by * w + bx];
                    }
                EXPECT_NEAR(out[y * w + x], want, 1e-3) << (conj ? "correlation" : "convolution") << " at " << x << ", " << y;
            }
    }
}

// The full spectrum from the packed one and back: copies, and negations
// where conjugate symmetry gives the value.
TEST(PackedSpectra, ConversionsToAndFromFullSpectra) {
    forEachShape({1, 2, 3, 4, 7, 8, 16}, {1, 2, 3, 6, 9}, [&](int w, int h, int gap, bool, std::uint32_t seed) {
        GuardedImage<Qvn32f> packed(placed(w, h, 1, gap, seed, 0)), full(placed(w, h, 2, gap, seed, 1)),
            back(placed(w, h, 1, gap, seed, 2));
        fillUniform(packed, seed), fillUniform(full, seed + 1), fillUniform(back, seed + 2);
        ASSERT_EQ(callUnderTest({&packed}, {&full}, [&] {
            return qvniPackToCplxExtend_32f32fc_C1R(packed.data(), int(packed.step()),
                                                    reinterpret_cast<Qvn32fc*>(full.data()), int(full.step()), {w, h});
        }), qvnOk);
        std::vector<double> p;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) p.push_back(packed.at(x, y));
        const std::vector<Cd> F = ref::unpack(p, w, h);
        expectRoi(full, 2, [&](std::int64_t e, std::int64_t y) {
            const Cd v = F[std::size_t(y) * w + e / 2];
            return float(e % 2 ? v.imag() : v.real());
        }, "PackToCplxExtend");
        full.snapshot();
        ASSERT_EQ(callUnderTest({&full}, {&back}, [&] {
            return qvniCplxExtendToPack_32fc32f_C1R(reinterpret_cast<const Qvn32fc*>(full.data()), int(full.step()),
                                                    back.data(), int(back.step()), {w, h});
        }), qvnOk);
        expectRoi(back, 1, [&](std::int64_t x, std::int64_t y) { return packed.at(x, y); }, "CplxExtendToPack");
    });
    // three channels: each channel's full spectrum to its own packed one
    const int w = 5, h = 4;
    GuardedImage<Qvn32f> full(placed(w, h, 6, -1, 3, 0)), packed(placed(w, h, 3, -1, 3, 1));
    fillUniform(full, 8), fillUniform(packed, 9);
    ASSERT_EQ(qvniCplxExtendToPack_32fc32f_C3R(reinterpret_cast<const Qvn32fc*>(full.data()), int(full.step()),
                                               packed.data(), int(packed.step()), {w, h}), qvnOk);
    for (int c = 0; c < 3; ++c) {
        std::vector<Cd> F;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) F.push_back({full.at(6 * x + 2 * c, y), full.at(6 * x + 2 * c + 1, y)});
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                ASSERT_EQ(packed.at(3 * x + c, y), float(ref::packedEntry(F, w, h, x, y))) << x << ", " << y << ", " << c;
    }
    packed.expectUntouchedOutsideRoi();
}

// Magnitude and phase of the full spectrum that a packed one stands for.
TEST(PackedSpectra, MagnitudeAndPhaseOfEveryFrequency) {
    for (int ch : {1, 3})
        for (bool phase : {false, true})
            forEachShape({1, 2, 5, 8, 19}, {1, 2, 3, 6}, [&](int w, int h, int gap, bool, std::uint32_t seed) {
                GuardedImage<Qvn32f> src(placed(w, h, ch, gap, seed, 0)), dst(placed(w, h, ch, gap, seed, 1));
                fillUniform(src, seed, 100.0f), fillUniform(dst, seed + 1);
                int size = 0;
                ASSERT_EQ((phase ? qvniPhasePackGetBufferSize_32f : qvniMagnitudePackGetBufferSize_32f)(ch, w, &size), qvnOk);
                EXPECT_EQ(size, 8 * ch * w + 64);
                GuardedImage<Qvn8u> buf(Layout{size, 1, 1, 0, true, seed});
                const auto fn = ch == 1 ? (phase ? qvniPhasePack_32f_C1R : qvniMagnitudePack_32f_C1R)
                                        : (phase ? qvniPhasePack_32f_C3R : qvniMagnitudePack_32f_C3R);
                ASSERT_EQ(callUnderTest({&src}, {&dst}, [&] {
                    return fn(src.data(), int(src.step()), dst.data(), int(dst.step()), {w, h}, buf.data());
                }, FE_TONEAREST, true, 4), qvnOk);
                EXPECT_EQ(buf.changedOutsideRoi(), "");
                for (int c = 0; c < ch; ++c) {
                    std::vector<double> p;
                    for (int y = 0; y < h; ++y)
                        for (int x = 0; x < w; ++x) p.push_back(src.at(std::int64_t(x) * ch + c, y));
                    const std::vector<Cd> F = ref::unpack(p, w, h);
                    for (int y = 0; y < h; ++y)
                        for (int x = 0; x < w; ++x) {
                            const Cd v = F[std::size_t(y) * w + x];
                            const double want = phase ? std::atan2(v.imag(), v.real()) : std::abs(v);
                            ASSERT_LE(ulps(dst.at(std::int64_t(x) * ch + c, y), want), 1.0)
                                << (phase ? "phase" : "magnitude") << " " << w << "x" << h << " at (" << x << ", " << y
                                << ", " << c << ")";
                        }
                }
            });
}

TEST(PackedSpectra, BufferSizeQueries) {
    for (auto fn : {qvniMagnitudePackGetBufferSize_32f, qvniPhasePackGetBufferSize_32f}) {
        int size = -1;
        EXPECT_EQ(fn(1, 0, nullptr), qvnErrNullPointer);
        EXPECT_EQ(fn(2, 0, &size), qvnErrSize);
        EXPECT_EQ(fn(2, 10, &size), qvnErrChannelCount);
        EXPECT_EQ(fn(4, 10, &size), qvnErrChannelCount);
        EXPECT_EQ(fn(3, 100000000, &size), qvnErrSizeOverflow);
        EXPECT_EQ(size, -1);
        EXPECT_EQ(fn(1, 10, &size), qvnOk);
        EXPECT_EQ(size, 144);
        EXPECT_EQ(fn(3, 10, &size), qvnOk);
        EXPECT_EQ(size, 304);
    }
}

// Values that meet every branch of the phase and the sine and cosine:
// signed zeros, infinities, NaN, equal magnitudes, both octants, tiny and
// huge ratios, and random ones.
std::vector<float> polarValues(std::uint32_t seed, std::size_t n) {
    const float inf = std::numeric_limits<float>::infinity();
    std::vector<float> v = {0.0f, -0.0f, 1.0f, -1.0f, inf, -inf, std::numeric_limits<float>::quiet_NaN(), 1e-30f,
                            -3e30f, 0.41421356f, 2.4142135f, 1e-45f, 3.4e38f, 1.5707964f, 3.1415927f, -7.0f, 100.5f};
    std::mt19937 rng(seed);
    while (v.size() < n) {
        const float m = std::ldexp(float(rng() % 1000000) / 1e6f, int(rng() % 40) - 20);
        v.push_back(rng() % 2 ? m : -m);
    }
    return v;
}

TEST(ComplexImages, MagnitudeAndPhaseWithinOneUlp) {
    for (int ch : {1, 3})
        for (bool phase : {false, true})
            forEachShape({1, 3, 16, 33}, {1, 2, 9}, [&](int w, int h, int gap, bool, std::uint32_t seed) {
                GuardedImage<Qvn32f> src(placed(w, h, 2 * ch, gap, seed, 0)), dst(placed(w, h, ch, gap, seed, 1));
                const std::vector<float> re = polarValues(seed, std::size_t(src.rowElems() * h)),
                                         im = polarValues(seed + 7, re.size());
                std::size_t k = 0;
                for (int y = 0; y < h; ++y)
                    for (std::int64_t e = 0; e < src.rowElems(); ++e, ++k) src.at(e, y) = e % 2 ? im[k] : re[(k * 7) % re.size()];
                src.snapshot();
                fillUniform(dst, seed);
                const auto fn = ch == 1 ? (phase ? qvniPhase_32fc32f_C1R : qvniMagnitude_32fc32f_C1R)
                                        : (phase ? qvniPhase_32fc32f_C3R : qvniMagnitude_32fc32f_C3R);
                ASSERT_EQ(callUnderTest({&src}, {&dst}, [&] {
                    return fn(reinterpret_cast<const Qvn32fc*>(src.data()), int(src.step()), dst.data(), int(dst.step()),
                              {w, h});
                }, FE_TONEAREST, true, 4), qvnOk);
                for (int y = 0; y < h; ++y)
                    for (std::int64_t e = 0; e < dst.rowElems(); ++e) {
                        const double a = src.at(2 * e, y), b = src.at(2 * e + 1, y);
                        const double want = phase ? std::atan2(b, a) : std::hypot(a, b);
                        const float got = dst.at(e, y);
                        ASSERT_LE(ulps(got, want), 1.0) << (phase ? "phase" : "magnitude") << " of (" << a << ", " << b
                                                        << ") got " << got << " want " << want;
                        if (phase && want == 0) {
                            ASSERT_EQ(std::signbit(got), std::signbit(want)) << a << ", " << b;
                        }
                    }
            });
}

TEST(ComplexImages, PolarToCartWithinOneUlp) {
    for (int ch : {1, 3})
        forEachShape({1, 3, 16, 33}, {1, 2, 9}, [&](int w, int h, int gap, bool, std::uint32_t seed) {
            GuardedImage<Qvn32f> mag(placed(w, h, ch, gap, seed, 0)), ph(placed(w, h, ch, gap, seed, 1)),
                dst(placed(w, h, 2 * ch, gap, seed, 2));
            std::mt19937 rng(seed);
            const std::vector<float> special = polarValues(seed, 17);
            for (int y = 0; y < h; ++y)
                for (std::int64_t e = 0; e < mag.rowElems(); ++e) {
                    mag.at(e, y) = float(rng() % 1000) / 10.0f;
                    const std::uint32_t r = rng() % 8;
                    ph.at(e, y) = r == 0 ? special[rng() % special.size()]
                                  : r == 1 ? float(int(rng() % 2000001) - 1000000) / 64.0f
                                           : float(int(rng() % 20001) - 10000) / 1000.0f;
                }
            mag.snapshot(), ph.snapshot();
            fillUniform(dst, seed);
            const auto fn = ch == 1 ? qvniPolarToCart_32fc_C1R : qvniPolarToCart_32fc_C3R;
            ASSERT_EQ(callUnderTest({&mag, &ph}, {&dst}, [&] {
                return fn(mag.data(), int(mag.step()), ph.data(), int(ph.step()), reinterpret_cast<Qvn32fc*>(dst.data()),
                          int(dst.step()), {w, h});
            }, FE_TONEAREST, true, 4), qvnOk);
            for (int y = 0; y < h; ++y)
                for (std::int64_t e = 0; e < mag.rowElems(); ++e) {
                    const double m = mag.at(e, y), t = ph.at(e, y);
                    const bool valid = std::fabs(t) < 1073741824.0;
                    const double want[2] = {valid ? m * std::cos(t) : NAN, valid ? m * std::sin(t) : NAN};
                    for (int k = 0; k < 2; ++k)
                        ASSERT_LE(ulps(dst.at(2 * e + k, y), want[k]), 1.0)
                            << (k ? "imaginary" : "real") << " part of " << m << " at " << t;
                }
        });
}

}  // namespace
}  // namespace qvn::test
