// Processor-feature query, from CPUID (and XGETBV for the register states that
// the operating system must save before wide vectors can be used).
#include "cpuid.h"
#include "qvncore.h"

#include <atomic>
#include <cstdint>

namespace {

std::uint64_t detectFeatures() {
    using qvncore::cpuid;
    std::uint64_t f = 0;
    const qvncore::CpuidRegs l1 = cpuid(1);
    if (l1.edx & (1u << 25)) f |= qvnCpuSSE;
    if (l1.edx & (1u << 26)) f |= qvnCpuSSE2;
    if (l1.ecx & (1u << 0)) f |= qvnCpuSSE3;
    if (l1.ecx & (1u << 9)) f |= qvnCpuSSSE3;
    if (l1.ecx & (1u << 19)) f |= qvnCpuSSE41;
    if (l1.ecx & (1u << 20)) f |= qvnCpuSSE42;
    if (l1.ecx & (1u << 22)) f |= qvnCpuMOVBE;
    if (l1.ecx & (1u << 23)) f |= qvnCpuPOPCNT;
    if (cpuid(0x80000001u).ecx & (1u << 5)) f |= qvnCpuLZCNT;

    const bool osxsave = l1.ecx & (1u << 27);
    const std::uint64_t xcr0 = osxsave ? qvncore::xgetbv0() : 0;
    const bool ymmState = (xcr0 & 0x6) == 0x6;      // XMM and YMM
    const bool zmmState = (xcr0 & 0xE6) == 0xE6;    // plus opmask and ZMM
    if (ymmState && (l1.ecx & (1u << 28))) f |= qvnCpuAVX;
    if (ymmState && (l1.ecx & (1u << 29))) f |= qvnCpuF16C;
    if (ymmState && (l1.ecx & (1u << 12))) f |= qvnCpuFMA;

    const qvncore::CpuidRegs l7 = cpuid(7, 0);
    if (l7.ebx & (1u << 3)) f |= qvnCpuBMI1;
    if (l7.ebx & (1u << 8)) f |= qvnCpuBMI2;
    if (ymmState && (l7.ebx & (1u << 5))) f |= qvnCpuAVX2;
    if (zmmState && (l7.ebx & (1u << 16))) f |= qvnCpuAVX512F | qvnCpuWideScratch;
    if (zmmState && (l7.ebx & (1u << 17))) f |= qvnCpuAVX512DQ;
    if (zmmState && (l7.ebx & (1u << 28))) f |= qvnCpuAVX512CD;
    if (zmmState && (l7.ebx & (1u << 30))) f |= qvnCpuAVX512BW;
    if (zmmState && (l7.ebx & (1u << 31))) f |= qvnCpuAVX512VL;
    return f;
}

// CPUID is slow under a hypervisor; the features are read once and kept in a
// plain atomic (no function-local static: the library needs no C++ runtime).
// Bit 63 marks the value as read; racing first queries store the same value.
constexpr std::uint64_t kKnown = std::uint64_t(1) << 63;
std::atomic<std::uint64_t> cachedFeatures{0};

}  // namespace

QVN_API int ownGetFeature(Qvn64s mask) {
    std::uint64_t features = cachedFeatures.load(std::memory_order_relaxed);
    if (!(features & kKnown)) {
        features = detectFeatures() | kKnown;
        cachedFeatures.store(features, std::memory_order_relaxed);
    }
    features &= ~kKnown;
    const std::uint64_t want = static_cast<std::uint64_t>(mask);
    return want != 0 && (features & want) == want;
}
