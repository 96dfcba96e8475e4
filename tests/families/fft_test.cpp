// qvniFFT and qvniDFT: real and complex 2D transforms against the
// double-precision definition and the packed layout, normalisation, the
// size queries and initialisers, and the spec checks.
#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <memory>
#include <random>
#include <thread>
#include <vector>

#include "ref/dft_ref.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

using ref::Cd;

// Errors relative to the largest magnitude of the exact result: a few
// single-precision ulp per doubling of the size (the header states it).
constexpr double kUlp = 1.0 / (1 << 24);
double tolerance(int w, int h) { return 2.0 * kUlp * std::max(1.0, std::log2(double(w) * h)); }

// Guarded bytes, for specs and buffers: any access past them faults.
std::unique_ptr<GuardedImage<Qvn8u>> bytes(int n, std::uint32_t seed) {
    return n > 0 ? std::make_unique<GuardedImage<Qvn8u>>(Layout{n, 1, 1, 0, true, seed}) : nullptr;
}

// A spec of one kind, built in guarded memory of exactly the queried size,
// and a work buffer of exactly the queried size.
struct Plan {
    bool fft, real;
    int w, h, flag;
    std::unique_ptr<GuardedImage<Qvn8u>> spec, init, buf;
    QvnStatus status = qvnOk;

    Plan(bool fft_, bool real_, int w_, int h_, int flag_ = qvnFftNoDivByAny)
        : fft(fft_), real(real_), w(w_), h(h_), flag(flag_) {
        int ss = 0, is = 0, bs = 0;
        const int ox = order(w), oy = order(h);
        const QvnRoiSize roi{w, h};
        status = fft ? (real ? qvniFFTGetSize_R_32f : qvniFFTGetSize_C_32fc)(ox, oy, flag, 0, &ss, &is, &bs)
                     : (real ? qvniDFTGetSize_R_32f : qvniDFTGetSize_C_32fc)(roi, flag, 0, &ss, &is, &bs);
        if (status != qvnOk) return;
        spec = bytes(ss, 11), init = bytes(is, 12), buf = bytes(bs, 13);
        Qvn8u* ib = init ? init->data() : nullptr;
        if (fft)
            status = (real ? qvniFFTInit_R_32f : qvniFFTInit_C_32fc)(ox, oy, flag, 0, fftSpec(), ib);
        else
            status = (real ? qvniDFTInit_R_32f : qvniDFTInit_C_32fc)(roi, flag, 0, dftSpec(), ib);
        spec->snapshot();
    }
    static int order(int n) {
        int o = 0;
        while ((1 << o) < n) ++o;
        return o;
    }
    QvnFftSpec* fftSpec() const { return reinterpret_cast<QvnFftSpec*>(spec->data()); }
    QvnDftSpec* dftSpec() const { return reinterpret_cast<QvnDftSpec*>(spec->data()); }
    // The product of the axes' factors in the given direction.
    double factor(bool inverse) const {
        const double n = double(w) * h;
        if (flag == 4) return 1 / std::sqrt(n);
        return (flag == 1 && !inverse) || (flag == 2 && inverse) ? 1 / n : 1.0;
    }
};

// Every transform behind one signature: [fft][inverse][layout][in place].
using Fn = QvnStatus (*)(const void* src, int srcStep, void* dst, int dstStep, const void* spec, Qvn8u* buf);
constexpr int kElems[4] = {1, 3, 4, 4}, kChannels[4] = {1, 3, 4, 3};
const char* const kLayouts[4] = {"C1", "C3", "C4", "AC4"};

#define QVN_TF(K, S, DIR, OP, T, C)                                                                               \
    +[](const void* s, int ss, void* d, int ds, const void* sp, Qvn8u* b) {                                       \
        return qvni##K##DIR##_##OP##_##T##_##C##R(static_cast<const Qvn##T*>(s), ss, static_cast<Qvn##T*>(d), ds, \
                                                  static_cast<const S*>(sp), b);                                  \
    },                                                                                                            \
        +[](const void*, int, void* d, int ds, const void* sp, Qvn8u* b) {                                        \
            return qvni##K##DIR##_##OP##_##T##_##C##IR(static_cast<Qvn##T*>(d), ds, static_cast<const S*>(sp), b); \
        }
#define QVN_TF_LAYOUTS(K, S, DIR, OP) \
    {{QVN_TF(K, S, DIR, OP, 32f, C1)}, {QVN_TF(K, S, DIR, OP, 32f, C3)}, {QVN_TF(K, S, DIR, OP, 32f, C4)}, {QVN_TF(K, S, DIR, OP, 32f, AC4)}}
const Fn kReal[2][2][4][2] = {
    {QVN_TF_LAYOUTS(DFT, QvnDftSpec, Fwd, RToPack), QVN_TF_LAYOUTS(DFT, QvnDftSpec, Inv, PackToR)},
    {QVN_TF_LAYOUTS(FFT, QvnFftSpec, Fwd, RToPack), QVN_TF_LAYOUTS(FFT, QvnFftSpec, Inv, PackToR)}};
const Fn kComplex[2][2][2] = {{{QVN_TF(DFT, QvnDftSpec, Fwd, CToC, 32fc, C1)}, {QVN_TF(DFT, QvnDftSpec, Inv, CToC, 32fc, C1)}},
                              {{QVN_TF(FFT, QvnFftSpec, Fwd, CToC, 32fc, C1)}, {QVN_TF(FFT, QvnFftSpec, Inv, CToC, 32fc, C1)}}};

void fillUniform(GuardedImage<Qvn32f>& img, std::uint32_t seed) {
    std::mt19937 rng(seed);
    std::uniform_real_distribution<float> d(-1.0f, 1.0f);
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t e = 0; e < img.rowElems(); ++e) img.at(e, y) = d(rng);
    img.snapshot();
}

// Largest |got - want| over the largest |want|.
struct Error {
    double worst = 0, scale = 0;
    void add(double got, double want) {
        worst = std::max(worst, std::fabs(got - want));
        scale = std::max(scale, std::fabs(want));
    }
    double relative() const { return scale > 0 ? worst / scale : worst; }
};

// One real transform of a random image (random packed spectrum for the
// inverse) against the definition, channel by channel, every target alike.
void checkReal(const Plan& p, int layout, bool inverse, bool inPlace, std::uint32_t seed) {
    const int w = p.w, h = p.h, E = kElems[layout];
    SCOPED_TRACE(std::string(p.fft ? "FFT " : "DFT ") + (inverse ? "PackToR " : "RToPack ") + kLayouts[layout] +
                 (inPlace ? "I " : " ") + std::to_string(w) + "x" + std::to_string(h) + " flag " +
                 std::to_string(p.flag));
    const int gap = seed % 2 ? -1 : 0;
    GuardedImage<Qvn32f> src(placed(w, h, E, gap, seed, 0)), dst(placed(w, h, E, gap, seed, 1));
    fillUniform(src, seed);
    fillUniform(dst, seed + 1);
    GuardedImage<Qvn32f>& in = inPlace ? dst : src;
    std::vector<const GuardedBuffer*> inputs = {p.spec.get()};
    if (!inPlace) inputs.push_back(&src);
    const Fn fn = kReal[p.fft][inverse][layout][inPlace];
    const QvnStatus s = callUnderTest(inputs, {&dst}, [&] {
        return fn(in.data(), int(in.step()), dst.data(), int(dst.step()), p.spec->data(), p.buf->data());
    }, FE_TONEAREST, true, 4);
    ASSERT_EQ(s, qvnOk);
    EXPECT_EQ(p.buf->changedOutsideRoi(), "") << "the work buffer overflowed";
    const auto input = [&](int x, int y, int c) { return double(in.saved(std::int64_t(x) * E + c, y)); };
    for (int c = 0; c < kChannels[layout]; ++c) {
        std::vector<Cd> f(std::size_t(w) * h);
        Error err;
        if (!inverse) {
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x) f[std::size_t(y) * w + x] = input(x, y, c);
            const std::vector<Cd> F = ref::dft2d(f, w, h, -1);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    err.add(dst.at(std::int64_t(x) * E + c, y), p.factor(false) * ref::packedEntry(F, w, h, x, y));
        } else {
            std::vector<double> packed(std::size_t(w) * h);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x) packed[std::size_t(y) * w + x] = input(x, y, c);
            const std::vector<Cd> g = ref::dft2d(ref::unpack(packed, w, h), w, h, +1);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    err.add(dst.at(std::int64_t(x) * E + c, y), p.factor(true) * g[std::size_t(y) * w + x].real());
        }
        EXPECT_LE(err.relative(), tolerance(w, h)) << "channel " << c;
    }
    if (layout != 3) return;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            ASSERT_TRUE(sameValue(dst.at(std::int64_t(x) * 4 + 3, y), dst.saved(std::int64_t(x) * 4 + 3, y)))
                << "alpha changed at (" << x << ", " << y << ")";
}

void checkComplex(const Plan& p, bool inverse, bool inPlace, std::uint32_t seed) {
    const int w = p.w, h = p.h;
    SCOPED_TRACE(std::string(p.fft ? "FFT " : "DFT ") + (inverse ? "Inv " : "Fwd ") + (inPlace ? "CToC I " : "CToC ") +
                 std::to_string(w) + "x" + std::to_string(h) + " flag " + std::to_string(p.flag));
    const int gap = seed % 2 ? -1 : 0;
    GuardedImage<Qvn32f> src(placed(w, h, 2, gap, seed, 0)), dst(placed(w, h, 2, gap, seed, 1));
    fillUniform(src, seed);
    fillUniform(dst, seed + 1);
    GuardedImage<Qvn32f>& in = inPlace ? dst : src;
    std::vector<const GuardedBuffer*> inputs = {p.spec.get()};
    if (!inPlace) inputs.push_back(&src);
    const QvnStatus s = callUnderTest(inputs, {&dst}, [&] {
        return kComplex[p.fft][inverse][inPlace](in.data(), int(in.step()), dst.data(), int(dst.step()),
                                                 p.spec->data(), p.buf->data());
    }, FE_TONEAREST, true, 4);
    ASSERT_EQ(s, qvnOk);
    EXPECT_EQ(p.buf->changedOutsideRoi(), "") << "the work buffer overflowed";
    std::vector<Cd> f(std::size_t(w) * h);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) f[std::size_t(y) * w + x] = {in.saved(2 * x, y), in.saved(2 * x + 1, y)};
    const std::vector<Cd> F = ref::dft2d(f, w, h, inverse ? +1 : -1);
    Error err;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const Cd want = p.factor(inverse) * F[std::size_t(y) * w + x];
            err.add(dst.at(2 * x, y), want.real());
            err.add(dst.at(2 * x + 1, y), want.imag());
        }
    EXPECT_LE(err.relative(), tolerance(w, h));
}

// FFT sizes: every order up to 5 along each axis and a few larger ones.
std::vector<std::pair<int, int>> fftSizes() {
    std::vector<std::pair<int, int>> s;
    for (int ox : {0, 1, 2, 3, 4, 5})
        for (int oy : {0, 1, 2, 3, 5}) s.push_back({1 << ox, 1 << oy});
    s.insert(s.end(), {{128, 4}, {4, 128}, {64, 64}});
    return s;
}
// DFT sizes: odd and even sides, every radix (2, 3, 4, 5, 7, larger primes
// up to 37) and Bluestein's lengths (41, 43, 97, 2 x 53).
const std::vector<std::pair<int, int>> kDftSizes = {
    {1, 1}, {3, 1}, {1, 5}, {2, 3}, {3, 2}, {5, 7}, {6, 10}, {9, 12}, {7, 14}, {11, 13},
    {15, 25}, {12, 27}, {37, 2}, {2, 37}, {41, 3}, {43, 43}, {97, 4}, {6, 97}, {106, 5}, {100, 75}};
const int kFlags[] = {qvnFftNoDivByAny, qvnFftDivFwdByN, qvnFftDivInvByN, qvnFftDivBySqrtN};

TEST(FftDft, RealTransformsMatchTheDefinition) {
    std::uint32_t seed = 1;
    for (bool fft : {true, false})
        for (const auto& [w, h] : fft ? fftSizes() : kDftSizes) {
            const Plan p(fft, true, w, h, kFlags[seed % 4]);
            ASSERT_EQ(p.status, qvnOk) << w << "x" << h;
            for (bool inverse : {false, true}) {
                // every layout and form on small images, rotating on larger ones
                const int n = w * h <= 64 ? 8 : 1;
                for (int k = 0; k < n; ++k, ++seed) {
                    const int layout = int(seed % 4);
                    checkReal(p, layout, inverse, (seed / 4) % 2 == 1, seed);
                    if (HasFailure()) return;
                }
            }
        }
}

TEST(FftDft, ComplexTransformsMatchTheDefinition) {
    std::uint32_t seed = 7;
    for (bool fft : {true, false})
        for (const auto& [w, h] : fft ? fftSizes() : kDftSizes) {
            const Plan p(fft, false, w, h, kFlags[seed % 4]);
            ASSERT_EQ(p.status, qvnOk) << w << "x" << h;
            for (bool inverse : {false, true}) {
                ++seed;
                checkComplex(p, inverse, seed % 2 == 0, seed);
                if (HasFailure()) return;
            }
        }
}

// Forward then inverse: flags 1 (the factor on the forward side), 2 and 4
// restore the image, flag 8 multiplies it by W x H.
TEST(FftDft, RoundTripsFollowTheFlags) {
    for (bool fft : {true, false})
        for (int flag : kFlags) {
            const int w = fft ? 16 : 15, h = fft ? 8 : 6;
            const Plan p(fft, true, w, h, flag);
            GuardedImage<Qvn32f> img(placed(w, h, 1, -1, 5, 0)), back(placed(w, h, 1, -1, 5, 1));
            fillUniform(img, 3);
            ASSERT_EQ(kReal[fft][0][0][0](img.data(), int(img.step()), back.data(), int(back.step()), p.spec->data(),
                                          p.buf->data()), qvnOk);
            ASSERT_EQ(kReal[fft][1][0][1](nullptr, 0, back.data(), int(back.step()), p.spec->data(), p.buf->data()),
                      qvnOk);
            const double gain = flag == qvnFftNoDivByAny ? double(w) * h : 1.0;
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    ASSERT_NEAR(back.at(x, y), gain * img.at(x, y), gain * 8 * tolerance(w, h))
                        << "flag " << flag << " at (" << x << ", " << y << ")";
        }
}

// Power-of-two sizes give the same spectrum through either family.
TEST(FftDft, FftAndDftAgreeOnPowersOfTwo) {
    for (const auto& [w, h] : {std::pair{64, 32}, std::pair{8, 128}}) {
        const Plan f(true, true, w, h), d(false, true, w, h);
        GuardedImage<Qvn32f> src(placed(w, h, 1, 0, 9, 0)), a(placed(w, h, 1, 0, 9, 1)), b(placed(w, h, 1, 0, 9, 2));
        fillUniform(src, 4);
        ASSERT_EQ(kReal[1][0][0][0](src.data(), int(src.step()), a.data(), int(a.step()), f.spec->data(), f.buf->data()), qvnOk);
        ASSERT_EQ(kReal[0][0][0][0](src.data(), int(src.step()), b.data(), int(b.step()), d.spec->data(), d.buf->data()), qvnOk);
        Error err;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) err.add(a.at(x, y), b.at(x, y));
        EXPECT_LE(err.relative(), tolerance(w, h));
    }
}

// One spec, several threads, each with its own work buffer.
TEST(FftDft, ThreadsShareOneSpec) {
    const int w = 64, h = 48;
    const Plan p(false, true, w, h);
    int ss, is, bs;
    ASSERT_EQ(qvniDFTGetSize_R_32f({w, h}, qvnFftNoDivByAny, 0, &ss, &is, &bs), qvnOk);
    std::vector<float> src(std::size_t(w) * h);
    std::mt19937 rng(2);
    for (float& v : src) v = float(rng() % 1000) / 500.0f - 1.0f;
    std::vector<std::vector<float>> out(4, std::vector<float>(src.size()));
    std::vector<std::vector<Qvn8u>> bufs(4, std::vector<Qvn8u>(std::size_t(bs)));
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&, t] {
            for (int r = 0; r < 20; ++r)
                qvniDFTFwd_RToPack_32f_C1R(src.data(), w * 4, out[std::size_t(t)].data(), w * 4, p.dftSpec(),
                                           bufs[std::size_t(t)].data());
        });
    for (std::thread& t : threads) t.join();
    for (int t = 1; t < 4; ++t) EXPECT_EQ(out[std::size_t(t)], out[0]) << "thread " << t;
    EXPECT_EQ(p.spec->changedAnywhere(), "");
}

// The transforms check the spec pointer, the spec's kind, the images and
// the buffer, then the steps; nothing is written on error.
TEST(FftDft, TransformsCheckSpecKindThenPointersThenSteps) {
    const Plan specs[4] = {{false, false, 4, 4}, {false, true, 4, 4}, {true, false, 4, 4}, {true, true, 4, 4}};
    GuardedImage<Qvn32f> src(placed(4, 4, 8, 0, 3, 0)), dst(placed(4, 4, 8, 0, 3, 1));
    const auto call = [&](bool fft, bool real, bool inverse, const void* spec, const void* s, void* d, int step,
                          Qvn8u* buf) {
        return real ? kReal[fft][inverse][0][0](s, step, d, step, spec, buf)
                    : kComplex[fft][inverse][0](s, step, d, step, spec, buf);
    };
    for (int k = 0; k < 4; ++k)
        for (int t = 0; t < 4; ++t)
            for (bool inverse : {false, true}) {
                const bool fft = t >= 2, real = t % 2 == 1;
                const Plan& own = specs[t];
                const void* spec = specs[k].spec->data();
                const int step = int(dst.step());
                EXPECT_EQ(call(fft, real, inverse, nullptr, nullptr, nullptr, 0, nullptr), qvnErrNullPointer);
                EXPECT_EQ(call(fft, real, inverse, spec, nullptr, dst.data(), 0, own.buf->data()),
                          k == t ? qvnErrNullPointer : qvnErrBadSpec) << "spec " << k << " to transform " << t;
                if (k != t) continue;
                EXPECT_EQ(call(fft, real, inverse, spec, src.data(), nullptr, step, own.buf->data()), qvnErrNullPointer);
                EXPECT_EQ(call(fft, real, inverse, spec, src.data(), dst.data(), step, nullptr), qvnErrNullPointer);
                EXPECT_EQ(call(fft, real, inverse, spec, src.data(), dst.data(), 0, own.buf->data()), qvnErrStep);
                EXPECT_EQ(call(fft, real, inverse, spec, src.data(), dst.data(), -4, own.buf->data()), qvnErrStep);
            }
    std::vector<Qvn8u> garbage(512, 0xA5);
    EXPECT_EQ(qvniFFTFwd_RToPack_32f_C1R(src.data(), int(src.step()), dst.data(), int(dst.step()),
                                         reinterpret_cast<const QvnFftSpec*>(garbage.data()), garbage.data()),
              qvnErrBadSpec);
    dst.expectUnchanged();
}

TEST(FftDft, SizeQueriesCheckOrdersFlagsAndSizes) {
    int a = -1, b = -1, c = -1;
    // pointers first, then the row axis's order and flag, then the column axis's
    EXPECT_EQ(qvniFFTGetSize_R_32f(31, 0, 0, 0, nullptr, &b, &c), qvnErrNullPointer);
    EXPECT_EQ(qvniFFTGetSize_R_32f(31, 0, 0, 0, &a, &b, &c), qvnErrFftOrder);
    EXPECT_EQ(qvniFFTGetSize_R_32f(-1, 0, 8, 0, &a, &b, &c), qvnErrFftOrder);
    EXPECT_EQ(qvniFFTGetSize_R_32f(2, 3, 0, 0, &a, &b, &c), qvnErrFftFlag);
    for (int flag : {0, 3, 5, 6, 7, 9, 16, -1}) EXPECT_EQ(qvniFFTGetSize_C_32fc(2, 2, flag, 0, &a, &b, &c), qvnErrFftFlag);
    // the complex axis stops at 28: the columns of a real transform as well
    EXPECT_EQ(qvniFFTGetSize_C_32fc(29, 0, 8, 0, &a, &b, &c), qvnErrFftOrder);
    EXPECT_EQ(qvniFFTGetSize_R_32f(0, 29, 8, 0, &a, &b, &c), qvnErrFftOrder);
    EXPECT_EQ(qvniFFTGetSize_R_32f(30, 30, 8, 0, &a, &b, &c), qvnErrFftOrder);
    EXPECT_EQ(qvniFFTGetSize_R_32f(1, 30, 0, 0, &a, &b, &c), qvnErrFftFlag);
    // orders the transform takes but whose sizes do not fit an int
    EXPECT_EQ(qvniFFTGetSize_R_32f(30, 0, 8, 0, &a, &b, &c), qvnErrSizeOverflow);
    EXPECT_EQ(qvniFFTGetSize_C_32fc(0, 28, 8, 0, &a, &b, &c), qvnErrSizeOverflow);
    EXPECT_EQ(a, -1) << "an error writes no size";
    // the complex work buffer holds a block of 8 complex columns besides the column transform's own
    ASSERT_EQ(qvniFFTGetSize_C_32fc(3, 6, 8, 0, &a, &b, &c), qvnOk);
    EXPECT_EQ(b, 0) << "the FFT needs no init buffer";
    int a2, b2, c2;
    ASSERT_EQ(qvniFFTGetSize_C_32fc(3, 6, 8, 0x7FFFFFFF, &a2, &b2, &c2), qvnOk) << "the hint is not checked";
    EXPECT_EQ(a2, a);
    EXPECT_EQ(c % 64, 0);
    EXPECT_GT(c, 64 * 64);
    EXPECT_EQ(a % 64, 0);
    EXPECT_EQ(qvniDFTGetSize_R_32f({0, 4}, 8, 0, nullptr, &b, &c), qvnErrNullPointer);
    EXPECT_EQ(qvniDFTGetSize_R_32f({0, 4}, 0, 0, &a, &b, &c), qvnErrSize);
    EXPECT_EQ(qvniDFTGetSize_C_32fc({4, -1}, 8, 0, &a, &b, &c), qvnErrSize);
    EXPECT_EQ(qvniDFTGetSize_C_32fc({4, 5}, 10, 0, &a, &b, &c), qvnErrFftFlag);
    ASSERT_EQ(qvniDFTGetSize_C_32fc({12, 10}, 8, 0, &a, &b, &c), qvnOk);
    EXPECT_EQ(b, 0) << "lengths of small prime factors need no init buffer";
    ASSERT_EQ(qvniDFTGetSize_C_32fc({12, 101}, 8, 0, &a, &b, &c), qvnOk);
    EXPECT_GT(b, 0) << "Bluestein's lengths need one";
}

// Initialisers check everything before they write: the order limit of 31,
// the spec pointer, then each axis's order and flag.
TEST(FftDft, InitialisersWriteNothingOnError) {
    auto spec = bytes(4096, 21);
    QvnFftSpec* fs = reinterpret_cast<QvnFftSpec*>(spec->data());
    QvnDftSpec* ds = reinterpret_cast<QvnDftSpec*>(spec->data());
    EXPECT_EQ(qvniFFTInit_R_32f(31, 0, 8, 0, nullptr, nullptr), qvnErrFftOrder);
    EXPECT_EQ(qvniFFTInit_C_32fc(29, 0, 8, 0, nullptr, nullptr), qvnErrNullPointer);
    EXPECT_EQ(qvniFFTInit_C_32fc(29, 0, 8, 0, fs, nullptr), qvnErrFftOrder);
    EXPECT_EQ(qvniFFTInit_R_32f(2, 29, 8, 0, fs, nullptr), qvnErrFftOrder);
    EXPECT_EQ(qvniFFTInit_R_32f(2, 2, 0, 0, fs, nullptr), qvnErrFftFlag);
    EXPECT_EQ(qvniDFTInit_R_32f({3, 3}, 8, 0, nullptr, nullptr), qvnErrNullPointer);
    EXPECT_EQ(qvniDFTInit_R_32f({3, 0}, 8, 0, ds, nullptr), qvnErrSize);
    EXPECT_EQ(qvniDFTInit_C_32fc({3, 3}, 7, 0, ds, nullptr), qvnErrFftFlag);
    EXPECT_EQ(qvniDFTInit_C_32fc({3, 101}, 8, 0, ds, nullptr), qvnErrNullPointer) << "Bluestein needs the init buffer";
    spec->expectUnchanged();
}

}  // namespace
}  // namespace qvn::test

