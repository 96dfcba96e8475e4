// CPUID and XGETBV for the core library's queries.
#ifndef QVNCORE_CPUID_H
#define QVNCORE_CPUID_H

#include <cpuid.h>
#include <cstdint>

namespace qvncore {

struct CpuidRegs {
    std::uint32_t eax = 0, ebx = 0, ecx = 0, edx = 0;
};

// Leaf and sub-leaf query; all zero when the leaf is beyond the processor's range.
inline CpuidRegs cpuid(std::uint32_t leaf, std::uint32_t subleaf = 0) {
    CpuidRegs r;
    const std::uint32_t maxLeaf = __get_cpuid_max(leaf & 0x80000000u, nullptr);
    if (maxLeaf == 0 || leaf > maxLeaf) return r;
    __cpuid_count(leaf, subleaf, r.eax, r.ebx, r.ecx, r.edx);
    return r;
}

// The extended control register 0: which register states the OS saves.
inline std::uint64_t xgetbv0() {
    std::uint32_t lo, hi;
    __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
    return (std::uint64_t(hi) << 32) | lo;
}

}  // namespace qvncore

#endif
