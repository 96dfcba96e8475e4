// The FFT and DFT size queries and initialisers: plans, twiddles and the
// Bluestein kernels, computed in long double and stored in single precision.
#include "transform/plan.h"

#include <climits>
#include <cmath>
#include <cstring>

namespace qvn {
namespace fftspec {

namespace {

constexpr long double kTwoPi = 6.283185307179586476925286766559005768L;
constexpr std::int64_t kRound = 64;

std::int64_t round64(std::int64_t n) { return (n + kRound - 1) & ~(kRound - 1); }

template <class T>
T* alignUp64(T* p) {
    return reinterpret_cast<T*>((reinterpret_cast<std::uintptr_t>(p) + 63) & ~std::uintptr_t(63));
}

// e^(-2 pi i m / n). The angle is reduced to [0, pi] first, so that every
// value comes from an argument that long double holds to about 1e-19.
void unitRoot(std::int64_t m, std::int64_t n, long double& re, long double& im) {
    m %= n;
    if (m < 0) m += n;
    const bool upper = 2 * m > n;
    if (upper) m = n - m;
    const long double a = kTwoPi * static_cast<long double>(m) / static_cast<long double>(n);
    re = cosl(a);
    im = upper ? sinl(a) : -sinl(a);
}

void storeRoot(float* at, std::int64_t m, std::int64_t n) {
    long double re, im;
    unitRoot(m, n, re, im);
    at[0] = static_cast<float>(re);
    at[1] = static_cast<float>(im);
}

bool flagValid(int flag) { return flag == 1 || flag == 2 || flag == 4 || flag == 8; }

// Lays a 1D spec out: with base null it only measures (the record itself is
// always filled, in `spec`), otherwise it also writes the tables.
class Builder {
public:
    explicit Builder(unsigned char* base) : base_(base) {}
    // Byte offset of a new table of `bytes` bytes, 64-byte aligned.
    std::int64_t alloc(std::int64_t bytes) {
        const std::int64_t at = used_;
        used_ = round64(used_ + bytes);
        return at;
    }
    float* floats(std::int64_t offset) const { return base_ ? reinterpret_cast<float*>(base_ + offset) : nullptr; }
    bool writing() const { return base_ != nullptr; }
    std::int64_t used() const { return used_; }

private:
    unsigned char* base_;
    std::int64_t used_ = round64(sizeof(Spec1D));
};

// The radices of n: eights, then fours or a two (two fours rather than an
// eight and a two), then odd primes up to kMaxRadix; false when another
// prime factor remains.
bool factorize(std::int64_t n, int* radix, int& count) {
    count = 0;
    int twos = 0;
    while (n % 2 == 0) ++twos, n /= 2;
    const int fours = twos % 3 == 1 && twos >= 4 ? 2 : twos % 3 == 2 ? 1 : 0;
    for (int k = 0; k < (twos - 2 * fours) / 3; ++k) radix[count++] = 8;
    for (int k = 0; k < fours; ++k) radix[count++] = 4;
    if (twos == 1) radix[count++] = 2;
    for (int p = 3; p <= kMaxRadix; p += 2)
        while (n % p == 0) radix[count++] = p, n /= p;
    return n == 1;
}

// The smallest 2^a 3^b 5^c that is at least n.
std::int64_t goodSize(std::int64_t n) {
    std::int64_t best = INT64_MAX;
    for (std::int64_t f5 = 1; f5 < 2 * n; f5 *= 5)
        for (std::int64_t f35 = f5; f35 < 2 * n; f35 *= 3) {
            std::int64_t f = f35;
            while (f < n) f *= 2;
            if (f < best) best = f;
        }
    return best;
}

void buildSmooth(Builder& b, std::int64_t n, Smooth& s) {
    int radix[kMaxPasses];
    int count = 0;
    factorize(n, radix, count);
    s.n = static_cast<std::int32_t>(n);
    s.count = count;
    std::int64_t l1 = 1;
    for (int k = 0; k < count; ++k) {
        const int r = radix[k];
        const std::int64_t ido = n / (l1 * r);
        Pass& p = s.pass[k];
        p.radix = r;
        p.l1 = static_cast<std::int32_t>(l1);
        p.ido = static_cast<std::int32_t>(ido);
        const std::int64_t tw = b.alloc((ido - 1) * (r - 1) * 8);
        p.tw = static_cast<std::uint32_t>(tw);
        if (float* t = b.floats(tw))
            for (std::int64_t i = 1; i < ido; ++i)
                for (int j = 1; j < r; ++j) storeRoot(t + 2 * ((i - 1) * (r - 1) + (j - 1)), j * l1 * i, n);
        p.coef = 0;
        if (r % 2 == 1) {
            const std::int64_t c = b.alloc(std::int64_t(r) * 8);
            p.coef = static_cast<std::uint32_t>(c);
            if (float* t = b.floats(c))
                for (int m = 0; m < r; ++m) {
                    storeRoot(t + 2 * m, m, r);  // cos, -sin
                    t[2 * m + 1] = -t[2 * m + 1];
                }
        }
        l1 *= r;
    }
}

// Double-precision transform of the Bluestein filter, recursively by the
// smallest prime factor (the length is 2^a 3^b 5^c): out = sum of
// value(start + k stride) e^(-2 pi i ...), roots holding e^(-2 pi i t / m).
struct Cd {
    double re, im;
};
template <class Value>
void transformDouble(const Value& value, std::int64_t start, std::int64_t stride, Cd* out, std::int64_t n,
                     const Cd* roots, std::int64_t m) {
    if (n == 1) {
        out[0] = value(start);
        return;
    }
    const std::int64_t p = n % 2 == 0 ? 2 : n % 3 == 0 ? 3 : 5, q = n / p;
    for (std::int64_t r = 0; r < p; ++r) transformDouble(value, start + r * stride, stride * p, out + r * q, q, roots, m);
    const std::int64_t rootStep = m / n;
    for (std::int64_t k = 0; k < q; ++k) {
        Cd sum[5];
        for (std::int64_t s = 0; s < p; ++s) {
            Cd acc{0, 0};
            for (std::int64_t r = 0; r < p; ++r) {
                const Cd x = out[r * q + k], w = roots[(r * (k + s * q) % n) * rootStep];
                acc.re += x.re * w.re - x.im * w.im;
                acc.im += x.re * w.im + x.im * w.re;
            }
            sum[s] = acc;
        }
        for (std::int64_t s = 0; s < p; ++s) out[k + s * q] = sum[s];
    }
}

// The plan of a complex transform of length n; initBytes grows to what its
// kernel computation needs of the init buffer (which init points at when
// writing).
void buildCPlan(Builder& b, std::int64_t n, CPlan& c, std::int64_t& initBytes, unsigned char* init) {
    int radix[kMaxPasses];
    int count = 0;
    c.n = static_cast<std::int32_t>(n);
    if (factorize(n, radix, count)) {
        c.bluestein = 0;
        buildSmooth(b, n, c.smooth);
        c.work = kBatchBytes * n;
        return;
    }
    const std::int64_t m = goodSize(2 * n - 1);
    c.bluestein = 1;
    buildSmooth(b, m, c.smooth);
    c.work = 2 * kBatchBytes * m;
    const std::int64_t chirp = b.alloc(n * 8), kernel = b.alloc(m * 8);
    c.chirp = static_cast<std::uint32_t>(chirp);
    c.kernel = static_cast<std::uint32_t>(kernel);
    if (2 * m * std::int64_t(sizeof(Cd)) > initBytes) initBytes = 2 * m * std::int64_t(sizeof(Cd));
    if (!b.writing()) return;
    // e^(-i pi k^2 / n) = e^(-2 pi i (k^2 mod 2n) / 2n)
    float* ch = b.floats(chirp);
    for (std::int64_t k = 0; k < n; ++k) storeRoot(ch + 2 * k, (k * k) % (2 * n), 2 * n);
    Cd* roots = reinterpret_cast<Cd*>(alignUp64(init));
    Cd* out = roots + m;
    for (std::int64_t t = 0; t < m; ++t) {
        long double re, im;
        unitRoot(t, m, re, im);
        roots[t] = {double(re), double(im)};
    }
    // The filter: the conjugate chirp at k and at m - k, zero between.
    const auto filter = [n, m](std::int64_t k) -> Cd {
        const std::int64_t j = k < n ? k : (k > m - n ? m - k : -1);
        if (j < 0) return {0, 0};
        long double re, im;
        unitRoot(-((j * j) % (2 * n)), 2 * n, re, im);
        return {double(re), double(im)};
    };
    transformDouble(filter, 0, 1, out, m, roots, m);
    float* ke = b.floats(kernel);
    for (std::int64_t k = 0; k < m; ++k) {
        ke[2 * k] = static_cast<float>(out[k].re / double(m));
        ke[2 * k + 1] = static_cast<float>(out[k].im / double(m));
    }
}

// Fills the 1D spec of an axis of length n (record in `spec`, tables at
// base when it is not null) and returns its size in bytes.
std::int64_t build1D(unsigned char* base, std::uint32_t id, int order, std::int64_t n, Axis axis, int flag, int hint,
                     Spec1D& spec, std::int64_t& initBytes, unsigned char* init) {
    Builder b(base);
    spec = Spec1D{};
    spec.id = id;
    spec.order = order;
    spec.n = static_cast<std::int32_t>(n);
    spec.axis = axis;
    spec.hint = hint;
    spec.fwdScaled = flag == 1 || flag == 4;
    spec.invScaled = flag == 2 || flag == 4;
    spec.scale = flag == 4 ? static_cast<float>(1.0 / std::sqrt(double(n)))
                           : flag == 8 ? 1.0f : static_cast<float>(1.0 / double(n));
    const bool complex = axis != Axis::kReal, real = axis != Axis::kComplex;
    if (complex || (real && n % 2 == 1)) buildCPlan(b, n, spec.full, initBytes, init);
    if (real && n % 2 == 0) {
        buildCPlan(b, n / 2, spec.half, initBytes, init);
        const std::int64_t tw = b.alloc((n / 4 + 1) * 8);
        spec.realTw = static_cast<std::uint32_t>(tw);
        if (float* t = b.floats(tw))
            for (std::int64_t k = 0; k <= n / 4; ++k) storeRoot(t + 2 * k, k, n);
    }
    if (base) std::memcpy(base, &spec, sizeof spec);
    return b.used();
}

// What the 2D spec of one kind and shape takes.
struct Shape {
    bool fft, real;
    int x, y;               // orders (FFT) or sizes (DFT)
    std::int64_t nx, ny;    // lengths
    bool shared;            // one 1D spec serves both axes
    Axis xAxis;
};

struct Sizes {
    std::int64_t spec = 0, init = 0, work = 0;
};

// The length of an axis: the order's power of two for the FFT (0 for an
// order outside 0..30, which the checks refuse before the length is used).
std::int64_t lengthOf(bool fft, int v) { return !fft ? v : unsigned(v) <= 30u ? std::int64_t(1) << v : 0; }

Shape shapeOf(bool fft, bool real, int x, int y) {
    Shape s{fft, real, x, y, lengthOf(fft, x), lengthOf(fft, y), x == y, Axis::kComplex};
    s.xAxis = !real ? Axis::kComplex : s.shared ? Axis::kBoth : Axis::kReal;
    return s;
}

// The checks of one axis's 1D query: its order limit (the complex transform
// goes to 28, the real one to 30), then the flag.
QvnStatus check1D(const Shape& s, int order, Axis axis, int flag) {
    if (s.fft && unsigned(order) > (axis == Axis::kReal ? 30u : 28u)) return qvnErrFftOrder;
    return flagValid(flag) ? qvnOk : qvnErrFftFlag;
}

QvnStatus checkAxes(const Shape& s, int flag) {
    if (const QvnStatus st = check1D(s, s.x, s.xAxis, flag); st != qvnOk) return st;
    if (!s.shared)
        if (const QvnStatus st = check1D(s, s.y, Axis::kComplex, flag); st != qvnOk) return st;
    return qvnOk;
}

// The sizes of a checked shape, or qvnErrSizeOverflow when one does not fit
// a signed 32-bit count.
QvnStatus sizesOf(const Shape& s, int flag, Sizes& z) {
    Spec1D xs, ys;
    std::int64_t ix = 0, iy = 0;
    const std::uint32_t id = s.fft ? kId1dFft : kId1dDft;
    // Tables are at most a few times 8 bytes per element: larger lengths
    // cannot fit a 32-bit size, and are not measured.
    if (s.nx > (std::int64_t(1) << 28) || s.ny > (std::int64_t(1) << 28)) return qvnErrSizeOverflow;
    const std::int64_t bx = build1D(nullptr, id, s.x, s.nx, s.xAxis, flag, 0, xs, ix, nullptr);
    std::int64_t by = 0;
    if (!s.shared) by = build1D(nullptr, id, s.y, s.ny, Axis::kComplex, flag, 0, ys, iy, nullptr);
    else ys = xs;
    z.spec = round64(bx) + round64(by) + 128 + 64;
    z.init = round64(ix) + round64(iy);
    if (z.init > 0) z.init += 64;
    const std::int64_t rows = s.real ? realBytes(xs) : complexBytes(xs.full);
    const std::int64_t cols = kBatchBytes * s.ny + complexBytes(ys.full);
    z.work = round64(rows > cols ? rows : cols) + 64;
    if (z.spec > INT_MAX || z.init > INT_MAX || z.work > INT_MAX) return qvnErrSizeOverflow;
    return qvnOk;
}

QvnStatus getSize(const Shape& s, int flag, int* pSpecSize, int* pInitBufSize, int* pBufSize) {
    Sizes z;
    if (const QvnStatus st = sizesOf(s, flag, z); st != qvnOk) return st;
    *pSpecSize = static_cast<int>(z.spec);
    *pInitBufSize = static_cast<int>(z.init);
    *pBufSize = static_cast<int>(z.work);
    return qvnOk;
}

QvnStatus init(const Shape& s, int flag, int hint, void* pSpec, Qvn8u* pMemInit) {
    Sizes z;
    if (const QvnStatus st = sizesOf(s, flag, z); st != qvnOk) return st;
    if (z.init > 0 && pMemInit == nullptr) return qvnErrNullPointer;
    auto* at = alignUp64(static_cast<unsigned char*>(pSpec));
    std::memset(at, 0, sizeof(Spec2D));
    Spec2D h{};
    h.id = s.fft ? (s.real ? kIdFftR : kIdFftC) : (s.real ? kIdDftR : kIdDftC);
    h.x = s.x;
    h.y = s.y;
    h.hint = hint;
    h.bufSize = static_cast<int>(z.work);
    const std::uint32_t id = s.fft ? kId1dFft : kId1dDft;
    unsigned char* xAt = at + 128;
    Spec1D xs;
    std::int64_t initBytes = 0;
    const std::int64_t bx = build1D(xAt, id, s.x, s.nx, s.xAxis, flag, hint, xs, initBytes, pMemInit);
    h.xSpec = h.ySpec = reinterpret_cast<const Spec1D*>(xAt);
    if (!s.shared) {
        unsigned char* yAt = xAt + round64(bx);
        Spec1D ys;
        build1D(yAt, id, s.y, s.ny, Axis::kComplex, flag, hint, ys, initBytes, pMemInit);
        h.ySpec = reinterpret_cast<const Spec1D*>(yAt);
    }
    std::memcpy(at, &h, sizeof h);
    return qvnOk;
}

}  // namespace

std::int64_t complexBytes(const CPlan& p) { return kBatchBytes * p.n * columnBlocks(p.n) + p.work; }

std::int64_t realBytes(const Spec1D& s) {
    const std::int64_t n = s.n;
    if (n == 1) return kBatchBytes;
    if (n % 2 == 1) return kBatchBytes * n + s.full.work;
    const std::int64_t packed = kBatchBytes / 2 * n;
    return packed + (s.half.work > packed ? s.half.work : packed);
}

template <bool Real>
QvnStatus fftGetSize(int orderX, int orderY, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize) {
    (void)hint;
    if (!pSpecSize || !pInitBufSize || !pBufSize) return qvnErrNullPointer;
    const Shape s = shapeOf(true, Real, orderX, orderY);
    if (const QvnStatus st = checkAxes(s, flag); st != qvnOk) return st;
    return getSize(s, flag, pSpecSize, pInitBufSize, pBufSize);
}

template <bool Real>
QvnStatus fftInit(int orderX, int orderY, int flag, int hint, void* pSpec, Qvn8u* pMemInit) {
    if (unsigned(orderX) > 30u || unsigned(orderY) > 30u) return qvnErrFftOrder;
    if (!pSpec) return qvnErrNullPointer;
    const Shape s = shapeOf(true, Real, orderX, orderY);
    if (const QvnStatus st = checkAxes(s, flag); st != qvnOk) return st;
    return init(s, flag, hint, pSpec, pMemInit);
}

template <bool Real>
QvnStatus dftGetSize(QvnRoiSize roi, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize) {
    (void)hint;
    if (!pSpecSize || !pInitBufSize || !pBufSize) return qvnErrNullPointer;
    if (roi.width < 1 || roi.height < 1) return qvnErrSize;
    const Shape s = shapeOf(false, Real, roi.width, roi.height);
    if (const QvnStatus st = checkAxes(s, flag); st != qvnOk) return st;
    return getSize(s, flag, pSpecSize, pInitBufSize, pBufSize);
}

template <bool Real>
QvnStatus dftInit(QvnRoiSize roi, int flag, int hint, void* pSpec, Qvn8u* pMemInit) {
    if (!pSpec) return qvnErrNullPointer;
    if (roi.width < 1 || roi.height < 1) return qvnErrSize;
    const Shape s = shapeOf(false, Real, roi.width, roi.height);
    if (const QvnStatus st = checkAxes(s, flag); st != qvnOk) return st;
    return init(s, flag, hint, pSpec, pMemInit);
}

template QvnStatus fftGetSize<false>(int, int, int, int, int*, int*, int*);
template QvnStatus fftGetSize<true>(int, int, int, int, int*, int*, int*);
template QvnStatus fftInit<false>(int, int, int, int, void*, Qvn8u*);
template QvnStatus fftInit<true>(int, int, int, int, void*, Qvn8u*);
template QvnStatus dftGetSize<false>(QvnRoiSize, int, int, int*, int*, int*);
template QvnStatus dftGetSize<true>(QvnRoiSize, int, int, int*, int*, int*);
template QvnStatus dftInit<false>(QvnRoiSize, int, int, void*, Qvn8u*);
template QvnStatus dftInit<true>(QvnRoiSize, int, int, void*, Qvn8u*);

}  // namespace fftspec
}  // namespace qvn
