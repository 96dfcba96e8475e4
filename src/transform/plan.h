// The FFT and DFT specs: their layout in the caller's memory, the plans of
// the one-dimensional transforms they hold, and the size queries and
// initialisers that build them (plan.cpp, compiled once: nothing here depends
// on the build target).
//
// A 2D spec is an 88-byte header followed by one 1D spec per axis, each at
// the next 64-byte boundary (one serves both axes when they are equal). A 1D
// spec holds the plans of the complex transforms that its axis runs: a
// complex axis one of its length N; a real axis of even N one of N/2 and the
// twiddles that turn it into a real transform; a real axis of odd N (DFT
// only) one of N. Plans and tables are addressed by byte offsets from the 1D
// spec, so they hold no pointers of their own.
//
// Every plan runs on a batch of eight independent sequences whose values at
// one index lie together: eight real parts, then eight imaginary parts (64
// bytes). The vectors of every build target run across the eight, so every
// target does the same operations on every value.
#ifndef QVN_TRANSFORM_PLAN_H
#define QVN_TRANSFORM_PLAN_H

#include <cstdint>

#include "qvnip_types.h"

namespace qvn {
namespace fftspec {

// Identifiers of the 2D specs (the first word) and of the 1D specs.
inline constexpr std::uint32_t kIdFftC = 27, kIdFftR = 28, kIdDftC = 29, kIdDftR = 30;
inline constexpr std::uint32_t kId1dFft = 5, kId1dDft = 6;

// The batch: eight sequences, one element of each in 64 bytes.
inline constexpr int kBatch = 8;
inline constexpr std::int64_t kBatchBytes = 64;

// Odd prime radices up to this run as passes of their own; a length with a
// larger prime factor runs through Bluestein's algorithm.
inline constexpr int kMaxRadix = 37;
// The column passes go through up to this many blocks of eight columns per
// sweep down the rows, as many as keep them within 256 KiB.
inline constexpr int kMaxColumnBlocks = 8;
inline int columnBlocks(std::int64_t n) {
    const std::int64_t b = 4096 / n;
    return b < 1 ? 1 : b > kMaxColumnBlocks ? kMaxColumnBlocks : int(b);
}
inline constexpr int kMaxPasses = 40;

// One Stockham pass of a smooth plan: radix r over l1 groups of ido elements
// (the element count is l1 * r * ido).
struct Pass {
    std::int32_t radix, l1, ido;
    std::uint32_t tw;    // byte offset of (ido - 1) x (radix - 1) twiddles (re, im)
    std::uint32_t coef;  // odd radices: byte offset of (cos, sin) of 2 pi m / radix, m = 0..radix-1
};

struct Smooth {
    std::int32_t n, count;
    Pass pass[kMaxPasses];
};

// A complex transform of length n: a smooth plan of n, or Bluestein's
// algorithm with a smooth plan of m >= 2n - 1.
struct CPlan {
    std::int32_t n;
    std::int32_t bluestein;
    std::int64_t work;     // bytes of the work area the transform needs beside its data
    Smooth smooth;         // of n, or of m
    std::uint32_t chirp;   // Bluestein: e^(-i pi k^2 / n), k = 0..n-1
    std::uint32_t kernel;  // Bluestein: the transform of the conjugate chirp, divided by m
};

// What an axis needs.
enum class Axis : std::int32_t { kComplex = 1, kReal = 2, kBoth = 3 };

struct Spec1D {
    std::uint32_t id;         // kId1dFft or kId1dDft
    std::int32_t order;       // FFT: the order; DFT: the length
    std::int32_t fwdScaled;   // the forward transform multiplies by scale
    std::int32_t invScaled;   // the inverse transform multiplies by scale
    float scale;              // 1/N or 1/sqrt(N) (computed in double), or 1
    std::int32_t hint;
    std::int32_t n;
    Axis axis;
    std::uint32_t realTw;     // even real lengths: e^(-2 pi i k / n), k = 0..n/4
    std::int32_t reserved;
    CPlan full;               // length n: complex axes and odd real lengths
    CPlan half;               // length n/2: even real lengths
};

struct Spec2D {
    std::uint32_t id;
    std::int32_t x, y;        // FFT: the orders; DFT: width and height
    std::int32_t hint;
    std::int32_t bufSize;     // the work buffer a transform needs
    std::int32_t reserved0;
    const Spec1D* xSpec;
    const Spec1D* ySpec;
    std::uint8_t reserved[48];
};
static_assert(sizeof(Spec2D) == 88, "the 2D header occupies 88 bytes");

// Work bytes of the passes of one axis. A complex pass holds the data of
// columnBlocks(n) batches (64 bytes per element) beside the plan's work
// area; a real row pass holds half of one batch for even lengths.
std::int64_t complexBytes(const CPlan& p);
std::int64_t realBytes(const Spec1D& s);

// The exported size queries and initialisers (validation in the order of
// their family's text); Real selects the real transform.
template <bool Real>
QvnStatus fftGetSize(int orderX, int orderY, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
template <bool Real>
QvnStatus fftInit(int orderX, int orderY, int flag, int hint, void* pSpec, Qvn8u* pMemInit);
template <bool Real>
QvnStatus dftGetSize(QvnRoiSize roi, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
template <bool Real>
QvnStatus dftInit(QvnRoiSize roi, int flag, int hint, void* pSpec, Qvn8u* pMemInit);

}  // namespace fftspec
}  // namespace qvn

#endif
