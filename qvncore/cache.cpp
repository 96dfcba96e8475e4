// Size of the largest data cache, from CPUID.
//
// Deterministic cache parameters (leaf 4 on Intel, leaf 0x8000001D on AMD with
// topology extensions) describe every cache level; the legacy AMD leaf
// 0x80000006 gives L2 and L3 sizes. Nothing else is consulted: no files, no
// environment, no operating-system call.
#include "cpuid.h"
#include "qvncore.h"

#include <algorithm>
#include <atomic>
#include <cstdint>

namespace {

// Largest data or unified cache listed by a deterministic-parameters leaf.
std::uint64_t largestFromLeaf(std::uint32_t leaf) {
    std::uint64_t best = 0;
    for (std::uint32_t i = 0; i < 32; ++i) {
        const qvncore::CpuidRegs r = qvncore::cpuid(leaf, i);
        const std::uint32_t type = r.eax & 0x1F;  // 0: no more caches
        if (type == 0) break;
        if (type != 1 && type != 3) continue;     // 1: data, 3: unified; 2 is code
        const std::uint64_t ways = ((r.ebx >> 22) & 0x3FF) + 1;
        const std::uint64_t partitions = ((r.ebx >> 12) & 0x3FF) + 1;
        const std::uint64_t line = (r.ebx & 0xFFF) + 1;
        const std::uint64_t sets = std::uint64_t(r.ecx) + 1;
        best = std::max(best, ways * partitions * line * sets);
    }
    return best;
}

// AMD's legacy L2 (ECX[31:16] KiB) and L3 (EDX[31:18] in 512 KiB units).
std::uint64_t largestFromAmdLegacy() {
    const qvncore::CpuidRegs r = qvncore::cpuid(0x80000006u);
    const std::uint64_t l2 = std::uint64_t(r.ecx >> 16) * 1024;
    const std::uint64_t l3 = std::uint64_t(r.edx >> 18) * 512 * 1024;
    return std::max(l2, l3);
}

bool isAmd() {
    const qvncore::CpuidRegs r = qvncore::cpuid(0);
    return r.ebx == 0x68747541u /* "Auth" */ || r.ebx == 0x6F677948u /* "Hygo" */;
}

std::uint64_t detectLargestCache() {
    std::uint64_t size = largestFromLeaf(4);
    if (size == 0 && isAmd()) {
        const bool topologyExt = (qvncore::cpuid(0x80000001u).ecx >> 22) & 1;
        if (topologyExt) size = largestFromLeaf(0x8000001Du);
        if (size == 0) size = largestFromAmdLegacy();
    }
    return size;
}

// CPUID can cost a hundred microseconds under a hypervisor, and every large
// fill or copy asks: the answer is a constant of the machine, kept after the
// first query. A plain atomic instead of a function-local static keeps the
// library free of the C++ runtime's initialisation guards; threads that race
// on the first query store the same value.
constexpr std::uint64_t kKnown = std::uint64_t(1) << 63;
std::atomic<std::uint64_t> cachedSize{0};

std::uint64_t largestCache() {
    std::uint64_t v = cachedSize.load(std::memory_order_relaxed);
    if (!(v & kKnown)) {
        v = detectLargestCache() | kKnown;
        cachedSize.store(v, std::memory_order_relaxed);
    }
    return v & ~kKnown;
}

}  // namespace

QVN_API QvnStatus qvnGetMaxCacheSizeB(int* pSize) {
    if (pSize == nullptr) return qvnErrNullPointer;
    const std::uint64_t size = largestCache();
    if (size == 0) {
        *pSize = 0;
        return qvnErrBadMode;  // unknown: callers fall back to ordinary stores
    }
    *pSize = static_cast<int>(std::min<std::uint64_t>(size, 0x7FFFFFFF));
    return qvnOk;
}
