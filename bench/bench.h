// The benchmark's vocabulary: images, cases and their registration.
//
// An operation registers once (one QB_REGISTER line) with a factory that
// builds its case for one image size: the input images filled with random
// data, our call, the peer's call (or a scalar reference where no peer
// defines the same result), and the number of bytes one call reads and
// writes. main.cpp turns every (operation, size, implementation) into a
// Google Benchmark case, checks each case's output once before timing it, and
// report.cpp prints the table.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <opencv2/core.hpp>

#include "qvn_api_names.h"
#include "qvnip.h"

namespace qbench {

struct Size {
    int w, h;
};

// The two sizes every operation runs at: one that stays in the caches and one
// that (on ordinary machines) does not.
inline const Size kSizes[] = {{512, 512}, {3840, 2160}};

inline std::string sizeName(Size s) { return std::to_string(s.w) + "x" + std::to_string(s.h); }

// The columns of the table besides ours.
enum class Peer { None, OpenCV, Fftw };

// A small, fast generator so that filling 3840 x 2160 images costs little.
class Rng {
public:
    explicit Rng(std::uint64_t seed) : s_(seed * 0x9E3779B97F4A7C15ull + 1) {}
    std::uint64_t next() {
        s_ ^= s_ << 13;
        s_ ^= s_ >> 7;
        s_ ^= s_ << 17;
        return s_;
    }
    // Uniform in [0, n).
    std::uint64_t below(std::uint64_t n) { return next() % n; }

private:
    std::uint64_t s_;
};

// An image from qvniMalloc (rows padded to 64 bytes, 64-byte aligned), owned.
template <class T>
class Image {
public:
    Image() = default;
    Image(int w, int h, int channels) : w_(w), h_(h), ch_(channels) {
        p_ = reinterpret_cast<T*>(qvniMalloc_8u_C1(w * channels * int(sizeof(T)), h, &step_));
        if (p_ == nullptr) {
            std::fprintf(stderr, "out of memory for a %d x %d image\n", w, h);
            std::abort();
        }
    }
    Image(Image&& o) noexcept { swap(o); }
    Image& operator=(Image&& o) noexcept {
        swap(o);
        return *this;
    }
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;
    ~Image() {
        if (p_ != nullptr) qvniFree(p_);
    }

    T* p() { return p_; }
    const T* p() const { return p_; }
    int step() const { return step_; }
    int width() const { return w_; }
    int height() const { return h_; }
    int channels() const { return ch_; }
    QvnRoiSize roi() const { return {w_, h_}; }
    std::size_t rowElems() const { return std::size_t(w_) * ch_; }
    std::size_t bytes() const { return rowElems() * h_ * sizeof(T); }
    T* row(int y) { return reinterpret_cast<T*>(reinterpret_cast<char*>(p_) + std::size_t(y) * step_); }
    const T* row(int y) const {
        return reinterpret_cast<const T*>(reinterpret_cast<const char*>(p_) + std::size_t(y) * step_);
    }

    // A header over the same pixels, for the peer. Sources are passed to
    // OpenCV as inputs only, so dropping const here writes nothing.
    cv::Mat mat() const {
        return cv::Mat(h_, w_, CV_MAKETYPE(cv::DataType<T>::depth, ch_), const_cast<T*>(p_), std::size_t(step_));
    }

private:
    void swap(Image& o) {
        std::swap(p_, o.p_);
        std::swap(step_, o.step_);
        std::swap(w_, o.w_);
        std::swap(h_, o.h_);
        std::swap(ch_, o.ch_);
    }
    T* p_ = nullptr;
    int step_ = 0, w_ = 0, h_ = 0, ch_ = 0;
};

// Random values lo, lo + quantum, ..., up to hi. The defaults cover the whole
// range of an integer type, and -1000..1000 in steps of 1/8 for floats (so
// that exact halves occur and rounding modes are exercised).
struct Range {
    double lo = 0, hi = 0, quantum = 0;
};

template <class T>
Range defaultRange() {
    if constexpr (std::is_floating_point_v<T>) return {-1000.0, 1000.0, 0.125};
    else return {double(std::numeric_limits<T>::lowest()), double(std::numeric_limits<T>::max()), 1.0};
}

template <class T>
void fillRandom(Image<T>& img, Range r, Rng& rng) {
    const std::uint64_t steps = std::uint64_t((r.hi - r.lo) / r.quantum) + 1;
    for (int y = 0; y < img.height(); ++y) {
        T* row = img.row(y);
        for (std::size_t i = 0; i < img.rowElems(); ++i) row[i] = T(r.lo + double(rng.below(steps)) * r.quantum);
    }
}

template <class T>
void copyPixels(const Image<T>& from, Image<T>& to) {
    for (int y = 0; y < from.height(); ++y) std::memcpy(to.row(y), from.row(y), from.rowElems() * sizeof(T));
}

// The first difference between two images of the same shape beyond a
// relative tolerance (floats) or an absolute one (abs, any type), as
// "(x, y, channel) got G want W"; empty when they agree.
template <class T>
std::string firstMismatch(const Image<T>& got, const Image<T>& want, double tol, double abs = 0) {
    for (int y = 0; y < got.height(); ++y) {
        const T* g = got.row(y);
        const T* w = want.row(y);
        for (std::size_t i = 0; i < got.rowElems(); ++i) {
            bool same = std::fabs(double(g[i]) - double(w[i])) <= abs;
            if constexpr (std::is_floating_point_v<T>) {
                same = same || (std::isnan(g[i]) && std::isnan(w[i])) || g[i] == w[i] ||
                       std::fabs(double(g[i]) - double(w[i])) <= tol * std::fabs(double(w[i]));
            } else {
                same = same || g[i] == w[i];
            }
            if (!same) {
                std::ostringstream s;
                s << "(" << i / got.channels() << ", " << y << ", " << i % got.channels() << ") got "
                  << +g[i] << " want " << +w[i];
                return s.str();
            }
        }
    }
    return {};
}

// One operation at one size, ready to time.
struct Case {
    std::function<void()> ours;
    std::function<void()> peer;  // empty when the operation has no peer
    std::function<void()> fftw;  // a second peer, FFTW, for the transforms; usually empty
    // Runs each side once and compares; returns empty on agreement, else what differed.
    std::function<std::string()> check;
    double bytes = 0;       // read plus written by one call; 0: not memory bound
    bool inPlace = false;   // bounded by the read-modify-write stream, not the copy
    bool readOnly = false;  // a reduction: bounded by the read stream
    double pixels = 0;      // times are per this many pixels: the source's, or (resize) the destination's
};

using Factory = std::function<std::unique_ptr<Case>(Size)>;

// The sizes of the output checks (--check): row ends and steps of odd sizes.
inline const std::vector<Size> kCheckSizes = {{1, 1}, {37, 5}, {130, 17}};

struct OpDef {
    std::string name;
    Peer peer = Peer::None;  // OpenCV (the peer column) or none
    Factory make;
    std::vector<Size> sizes;  // the source sizes it runs at; kSizes when empty
    bool fftw = false;        // FFTW times the same result too (Case::fftw): the transforms
    std::vector<Size> checkSizes = kCheckSizes;  // the sizes of --check
};

std::vector<OpDef>& registry();
inline bool registerOp(std::string name, std::pair<Peer, Factory> def, std::vector<Size> sizes = {}) {
    OpDef op;
    op.name = std::move(name);
    op.peer = def.first;
    op.make = std::move(def.second);
    op.sizes = std::move(sizes);
    registry().push_back(std::move(op));
    return true;
}
// An operation described whole (the transforms: FFTW, sizes to check).
inline bool registerOp(std::string name, OpDef def) {
    def.name = std::move(name);
    registry().push_back(std::move(def));
    return true;
}
// The source sizes of an operation.
inline std::vector<Size> sizesOf(const OpDef& op) {
    return op.sizes.empty() ? std::vector<Size>(std::begin(kSizes), std::end(kSizes)) : op.sizes;
}

#define QB_CAT2(a, b) a##b
#define QB_CAT(a, b) QB_CAT2(a, b)
// Registers an operation: QB_REGISTER("Copy_8u_C1R", unary<Qvn8u, Qvn8u>(...));
#define QB_REGISTER(name, ...) \
    static const bool QB_CAT(qbRegistered_, __LINE__) = ::qbench::registerOp(name, __VA_ARGS__)
// An operation timed at its own source sizes (a brace list of Size) instead
// of kSizes: QB_REGISTER_AT("ResizeLinear_8u_C3R_to1280x720", ({{1920, 1080}}), ...);
#define QB_REGISTER_AT(name, sizes, ...) \
    static const bool QB_CAT(qbRegistered_, __LINE__) = ::qbench::registerOp(name, __VA_ARGS__, std::vector<::qbench::Size> sizes)

// The second implementation of a case: a peer library that defines the same
// result, or a reference written here (checked against, never timed).
template <class F>
struct Other {
    Peer peer;
    F fn;
};
template <class F>
Other<F> opencv(F fn) { return {Peer::OpenCV, fn}; }
template <class F>
Other<F> reference(F fn) { return {Peer::None, fn}; }

// Options of a case beyond its calls, chained: Opts().range(...).tolerance(1e-6).
struct Opts {
    std::vector<Range> ranges;  // per source; missing ones take the type's default
    double tol = 0;             // relative tolerance of the output check (floats)
    bool readsDst = false;      // the operation also reads its destination (masked, in-place forms)
    bool inPlace = false;       // bounded by the read-modify-write stream
    // Runs after the random fill of the sources, to give them structure (masks).
    std::function<void(int source, void* img)> shape;
    // The destinations' size from the sources' (borders, transposes); the
    // sources' size when empty. Times stay per source pixel.
    std::function<Size(Size)> dstSize;

    Opts& range(Range r) { ranges.push_back(r); return *this; }
    Opts& tolerance(double t) { tol = t; return *this; }
    Opts& readsDestination() { readsDst = true; return *this; }
    Opts& inPlaceStream() { readsDst = inPlace = true; return *this; }
    Opts& shaped(std::function<void(int, void*)> f) { shape = std::move(f); return *this; }
    Opts& resized(std::function<Size(Size)> f) { dstSize = std::move(f); return *this; }
};

// The images of a case: sources, our destinations and the other side's.
template <class S, class D>
struct Io {
    std::vector<Image<S>> src;
    std::vector<Image<D>> dst, want;
};

// The general case: sources of type S with the given channel counts, and
// destinations of type D. ours(io.src, dsts) returns a status; other.fn
// (io.src, dsts) writes the expected result.
template <class S, class D, class Ours, class F>
std::pair<Peer, Factory> images(std::vector<int> srcCh, std::vector<int> dstCh, Ours ours, Other<F> other,
                                Opts opts = {}) {
    const Peer peer = other.peer;
    Factory make = [=](Size z) {
        auto io = std::make_shared<Io<S, D>>();
        auto c = std::make_unique<Case>();
        Rng rng(std::uint64_t(z.w) * 7919 + z.h);
        for (std::size_t i = 0; i < srcCh.size(); ++i) {
            io->src.emplace_back(z.w, z.h, srcCh[i]);
            fillRandom(io->src.back(), i < opts.ranges.size() ? opts.ranges[i] : defaultRange<S>(), rng);
            if (opts.shape) opts.shape(int(i), &io->src.back());
            c->bytes += double(io->src.back().bytes());
        }
        for (int ch : dstCh) {
            const Size dz = opts.dstSize ? opts.dstSize(z) : z;
            io->dst.emplace_back(dz.w, dz.h, ch);
            io->want.emplace_back(dz.w, dz.h, ch);
            // Destinations start alike, so that pixels an operation leaves alone agree.
            fillRandom(io->dst.back(), defaultRange<D>(), rng);
            copyPixels(io->dst.back(), io->want.back());
            c->bytes += double(io->dst.back().bytes()) * (opts.readsDst ? 2 : 1);
        }
        c->pixels = double(z.w) * z.h;
        c->inPlace = opts.inPlace;
        c->ours = [io, ours] { ours(io->src, io->dst); };
        if (peer != Peer::None) c->peer = [io, fn = other.fn] { fn(io->src, io->want); };
        c->check = [io, ours, fn = other.fn, tol = opts.tol]() -> std::string {
            const QvnStatus st = ours(io->src, io->dst);
            if (st != qvnOk) return "status " + std::to_string(st);
            fn(io->src, io->want);
            for (std::size_t i = 0; i < io->dst.size(); ++i) {
                std::string m = firstMismatch(io->dst[i], io->want[i], tol);
                if (!m.empty()) return "destination " + std::to_string(i) + " " + m;
            }
            return {};
        };
        return c;
    };
    return {peer, make};
}

// dst (D, dch channels) from src (S, sch channels): ours(s, d), other(s, d).
template <class S, class D, class Ours, class F>
std::pair<Peer, Factory> unary(int sch, int dch, Ours ours, Other<F> other, Opts opts = {}) {
    auto o = [ours](const std::vector<Image<S>>& s, std::vector<Image<D>>& d) { return ours(s[0], d[0]); };
    auto f = [fn = other.fn](const std::vector<Image<S>>& s, std::vector<Image<D>>& d) { fn(s[0], d[0]); };
    return images<S, D>({sch}, {dch}, o, Other<decltype(f)>{other.peer, f}, opts);
}

// dst from two sources of the same type and layout: ours(a, b, d), other(a, b, d).
template <class T, class Ours, class F>
std::pair<Peer, Factory> binary(int ch, Ours ours, Other<F> other, Opts opts = {}) {
    auto o = [ours](const std::vector<Image<T>>& s, std::vector<Image<T>>& d) { return ours(s[0], s[1], d[0]); };
    auto f = [fn = other.fn](const std::vector<Image<T>>& s, std::vector<Image<T>>& d) { fn(s[0], s[1], d[0]); };
    return images<T, T>({ch, ch}, {ch}, o, Other<decltype(f)>{other.peer, f}, opts);
}

// A reduction: ours(src, out) writes `results` values (sums, extremes,
// positions, as doubles) to out, other.fn(src, out) the expected ones;
// compared within the relative tolerance. The source is only read, so the
// read stream bounds it.
template <class S, class Ours, class F>
std::pair<Peer, Factory> reduction(int ch, int results, Ours ours, Other<F> other, Opts opts = {}) {
    const Peer peer = other.peer;
    Factory make = [=](Size z) {
        auto src = std::make_shared<Image<S>>(z.w, z.h, ch);
        auto got = std::make_shared<std::vector<double>>(results), want = std::make_shared<std::vector<double>>(results);
        Rng rng(std::uint64_t(z.w) * 7919 + z.h);
        fillRandom(*src, opts.ranges.empty() ? defaultRange<S>() : opts.ranges[0], rng);
        if (opts.shape) opts.shape(0, src.get());
        auto c = std::make_unique<Case>();
        c->bytes = double(src->bytes());
        c->readOnly = true;
        c->pixels = double(z.w) * z.h;
        c->ours = [=] { ours(*src, got->data()); };
        if (peer != Peer::None) c->peer = [=, fn = other.fn] { fn(*src, want->data()); };
        c->check = [=, fn = other.fn, tol = opts.tol]() -> std::string {
            const QvnStatus st = ours(*src, got->data());
            if (st != qvnOk) return "status " + std::to_string(st);
            fn(*src, want->data());
            for (int i = 0; i < results; ++i) {
                const double g = (*got)[std::size_t(i)], w = (*want)[std::size_t(i)];
                if (!(g == w || std::fabs(g - w) <= tol * std::fabs(w))) {
                    std::ostringstream s;
                    s.precision(17);
                    s << "result " << i << " got " << g << " want " << w;
                    return s.str();
                }
            }
            return {};
        };
        return c;
    };
    return {peer, make};
}

// Every destination written by the other side, for references that fill
// an image element by element: d(x, channel) = f(source elements at x).
template <class D, class F>
void forEachElem(Image<D>& d, F f) {
    for (int y = 0; y < d.height(); ++y) {
        D* row = d.row(y);
        for (std::size_t i = 0; i < d.rowElems(); ++i) row[i] = f(y, i);
    }
}

// A mask that is 255 inside a centred disk and 0 outside: whole rows of
// zeros and of ones with mixed spans at the rim, as real masks have.
inline void diskMask(Image<Qvn8u>& m) {
    const double cx = m.width() / 2.0, cy = m.height() / 2.0, r = 0.4 * std::min(m.width(), m.height());
    for (int y = 0; y < m.height(); ++y)
        for (int x = 0; x < m.width(); ++x) {
            const double dx = x - cx, dy = y - cy;
            m.row(y)[x] = dx * dx + dy * dy <= r * r ? 255 : 0;
        }
}

}  // namespace qbench
