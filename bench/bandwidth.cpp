#include "bandwidth.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace qbench {

namespace {

std::uint32_t* allocate(std::size_t bytes) {
    void* p = nullptr;
    if (posix_memalign(&p, 4096, bytes) != 0) {
        std::fprintf(stderr, "out of memory for a %zu-byte stream\n", bytes);
        std::abort();
    }
    // Touch every page now, so that page faults are not timed.
    std::memset(p, 1, bytes);
    return static_cast<std::uint32_t*>(p);
}

}  // namespace

BandwidthCase::BandwidthCase(std::size_t bytes) : bytes_(bytes), a_(allocate(bytes)), b_(allocate(bytes)) {}

BandwidthCase::~BandwidthCase() {
    std::free(a_);
    std::free(b_);
}

// The C library's copy: whatever instructions and store kinds it finds best
// on this processor, which is what an application's own copy gets.
void BandwidthCase::copy() { std::memcpy(b_, a_, bytes_); }

// 16-byte loads and stores, four per step, written with vector types so the
// speed does not hang on the optimiser: the width our own kernels use.
void BandwidthCase::rmw() {
    typedef std::uint32_t V __attribute__((vector_size(16), may_alias));
    V* a = reinterpret_cast<V*>(a_);  // 4096-byte aligned, length a multiple of 64
    const std::size_t n = bytes_ / sizeof(V);
    for (std::size_t i = 0; i < n; i += 4) {
        a[i] += 1;
        a[i + 1] += 1;
        a[i + 2] += 1;
        a[i + 3] += 1;
    }
}

// 16-byte loads into four independent sums, so that the loads, not the
// additions, set the pace.
void BandwidthCase::read() {
    typedef std::uint32_t V __attribute__((vector_size(16), may_alias));
    const V* a = reinterpret_cast<const V*>(a_);
    const std::size_t n = bytes_ / sizeof(V);
    V s0 = {}, s1 = {}, s2 = {}, s3 = {};
    for (std::size_t i = 0; i < n; i += 4) {
        s0 += a[i];
        s1 += a[i + 1];
        s2 += a[i + 2];
        s3 += a[i + 3];
    }
    const V s = (s0 + s1) + (s2 + s3);
    sink_ = s[0] + s[1] + s[2] + s[3];
}

}  // namespace qbench
