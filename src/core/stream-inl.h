// The cache-bypassing decision: large fills, copies and conversions write
// with non-temporal stores when what they touch would only evict the cache.
#ifndef QVN_CORE_STREAM_INL_H
#define QVN_CORE_STREAM_INL_H

#include <cstdint>

#include "kernels/target.h"
#include "qvncore.h"

QVN_TARGET_BEGIN

// Decided once per call. count is what the family measures (bytes, pixels or
// elements of the ROI); below threshold the cache size is not even asked for.
// Otherwise non-temporal stores are used when the query succeeds and the bytes
// the operation touches are not fewer than the largest cache. A caller that
// streams must end with a store fence (isa::storeFence) before it returns.
inline bool useStreamingStores(std::uint64_t count, std::uint64_t threshold,
                               std::uint64_t touchedBytes) {
    if (count < threshold) return false;
    int cacheBytes = 0;
    if (qvnGetMaxCacheSizeB(&cacheBytes) != 0) return false;
    return touchedBytes >= static_cast<std::uint64_t>(cacheBytes < 0 ? 0 : cacheBytes);
}

// Threshold shared by the fills and planar copies: the first ROI that can
// exceed 512 KiB.
inline constexpr std::uint64_t kStreamThreshold = 0x80001;

QVN_TARGET_END

#endif
