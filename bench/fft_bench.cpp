// Frequency transforms: qvniFFTFwd and qvniDFTFwd of real images (packed
// spectra) and complex images against FFTW in single precision (plans made
// with FFTW_MEASURE, out of place, one thread) and cv::dft, whose packed
// real spectrum has our layout. Both peers are checked against our output
// before anything is timed; the transforms compute, so there is no
// bandwidth bound.
#include <fftw3.h>

#include <opencv2/core.hpp>

#include "bench.h"

namespace qbench {
namespace {

// The entry (x, y) of a packed spectrum, from FFTW's half spectrum
// (h rows of w / 2 + 1 values).
float packedFromHalf(const fftwf_complex* f, int w, int h, int x, int y) {
    const int hw = w / 2 + 1;
    if (x == 0 || (w % 2 == 0 && x == w - 1)) {
        const int u = x == 0 ? 0 : w / 2;
        if (y == 0 || (h % 2 == 0 && y == h - 1)) return f[(y == 0 ? 0 : h / 2) * hw + u][0];
        const int k = (y + 1) / 2;
        return f[k * hw + u][y % 2 == 1 ? 0 : 1];
    }
    const int u = (x + 1) / 2;
    return f[y * hw + u][x % 2 == 1 ? 0 : 1];
}

// The first entry beyond a tolerance relative to the largest magnitude.
template <class Got, class Want>
std::string mismatch(int n, Got got, Want want, const char* peer) {
    double scale = 0;
    for (int i = 0; i < n; ++i) scale = std::max(scale, std::fabs(double(want(i))));
    for (int i = 0; i < n; ++i)
        if (std::fabs(double(got(i)) - double(want(i))) > 2e-5 * scale + 1e-30) {
            std::ostringstream s;
            s << peer << ": element " << i << " got " << got(i) << " want " << want(i);
            return s.str();
        }
    return {};
}

// Everything one transform case owns: images, our spec and buffer, FFTW's
// arrays and plan, OpenCV's output.
struct Transform {
    bool fft, real;
    int w, h;
    Image<Qvn32f> src, ours, theirs;
    std::vector<Qvn8u> spec, buf;
    float* fin = nullptr;
    fftwf_complex* fout = nullptr;
    fftwf_plan plan = nullptr;

    Transform(bool fft_, bool real_, Size z)
        : fft(fft_), real(real_), w(z.w), h(z.h), src(z.w, z.h, real_ ? 1 : 2), ours(z.w, z.h, real_ ? 1 : 2),
          theirs(z.w, z.h, real_ ? 1 : 2) {
        int ss = 0, is = 0, bs = 0, ox = 0, oy = 0;
        while ((1 << ox) < w) ++ox;
        while ((1 << oy) < h) ++oy;
        if (fft) (real ? qvniFFTGetSize_R_32f : qvniFFTGetSize_C_32fc)(ox, oy, qvnFftNoDivByAny, 0, &ss, &is, &bs);
        else (real ? qvniDFTGetSize_R_32f : qvniDFTGetSize_C_32fc)({w, h}, qvnFftNoDivByAny, 0, &ss, &is, &bs);
        spec.resize(std::size_t(ss));
        buf.resize(std::size_t(bs));
        std::vector<Qvn8u> init(std::size_t(is) + 1);
        if (fft)
            (real ? qvniFFTInit_R_32f : qvniFFTInit_C_32fc)(ox, oy, qvnFftNoDivByAny, 0, fftSpec(), init.data());
        else
            (real ? qvniDFTInit_R_32f : qvniDFTInit_C_32fc)({w, h}, qvnFftNoDivByAny, 0, dftSpec(), init.data());
        const std::size_t n = std::size_t(w) * h;
        fin = fftwf_alloc_real(real ? n : 2 * n);
        fout = fftwf_alloc_complex(real ? std::size_t(h) * (w / 2 + 1) : n);
        plan = real ? fftwf_plan_dft_r2c_2d(h, w, fin, fout, FFTW_MEASURE)
                    : fftwf_plan_dft_2d(h, w, reinterpret_cast<fftwf_complex*>(fin), fout, FFTW_FORWARD, FFTW_MEASURE);
        Rng rng(std::uint64_t(w) * 31 + h);
        fillRandom(src, {-1000.0, 1000.0, 0.125}, rng);
        for (int y = 0; y < h; ++y) std::memcpy(fin + std::size_t(y) * src.rowElems(), src.row(y), src.rowElems() * 4);
    }
    ~Transform() {
        fftwf_destroy_plan(plan);
        fftwf_free(fin);
        fftwf_free(fout);
    }
    QvnFftSpec* fftSpec() { return reinterpret_cast<QvnFftSpec*>(spec.data()); }
    QvnDftSpec* dftSpec() { return reinterpret_cast<QvnDftSpec*>(spec.data()); }

    QvnStatus runOurs() {
        if (real)
            return fft ? qvniFFTFwd_RToPack_32f_C1R(src.p(), src.step(), ours.p(), ours.step(), fftSpec(), buf.data())
                       : qvniDFTFwd_RToPack_32f_C1R(src.p(), src.step(), ours.p(), ours.step(), dftSpec(), buf.data());
        const auto* s = reinterpret_cast<const Qvn32fc*>(src.p());
        auto* d = reinterpret_cast<Qvn32fc*>(ours.p());
        return fft ? qvniFFTFwd_CToC_32fc_C1R(s, src.step(), d, ours.step(), fftSpec(), buf.data())
                   : qvniDFTFwd_CToC_32fc_C1R(s, src.step(), d, ours.step(), dftSpec(), buf.data());
    }
    void runOpenCV() {
        cv::Mat out = theirs.mat();
        cv::dft(src.mat(), out);
    }

    std::string check() {
        if (const QvnStatus st = runOurs(); st != qvnOk) return "status " + std::to_string(st);
        runOpenCV();
        fftwf_execute(plan);
        const int per = real ? 1 : 2, n = w * h * per;
        const auto got = [&](int i) { return ours.row(i / (w * per))[i % (w * per)]; };
        std::string e = mismatch(n, got, [&](int i) { return theirs.row(i / (w * per))[i % (w * per)]; }, "opencv");
        if (!e.empty()) return e;
        if (real)
            return mismatch(n, got, [&](int i) { return packedFromHalf(fout, w, h, i % w, i / w); }, "fftw");
        return mismatch(n, got, [&](int i) { return fout[i / 2][i % 2]; }, "fftw");
    }
};

OpDef transform(bool fft, bool real, std::vector<Size> sizes) {
    OpDef d;
    d.peer = Peer::OpenCV;
    d.fftw = true;
    d.sizes = std::move(sizes);
    if (fft) d.checkSizes = {{1, 1}, {32, 4}, {128, 16}};
    d.make = [fft, real](Size z) {
        auto t = std::make_shared<Transform>(fft, real, z);
        auto c = std::make_unique<Case>();
        c->ours = [t] { t->runOurs(); };
        c->peer = [t] { t->runOpenCV(); };
        c->fftw = [t] { fftwf_execute(t->plan); };
        c->check = [t] { return t->check(); };
        c->pixels = double(z.w) * z.h;
        return c;
    };
    return d;
}

#ifdef QVN_HAS_qvniFFTFwd_RToPack_32f_C1R
QB_REGISTER("FFTFwd_RToPack_32f_C1R", transform(true, true, {{256, 256}, {1024, 1024}}));
QB_REGISTER("FFTFwd_CToC_32fc_C1R", transform(true, false, {{512, 512}}));
QB_REGISTER("DFTFwd_RToPack_32f_C1R", transform(false, true, {{1000, 750}}));
QB_REGISTER("DFTFwd_CToC_32fc_C1R", transform(false, false, {{1000, 750}}));
#endif

}  // namespace
}  // namespace qbench
