#include "support/cache_double.h"

#include "qvncore.h"

namespace qvn::test {
CacheDouble& cacheDouble() {
    static CacheDouble d;
    return d;
}
void resetCacheDouble() { cacheDouble() = CacheDouble{}; }
}  // namespace qvn::test

QVN_API QvnStatus qvnGetMaxCacheSizeB(int* pSize) {
    auto& d = qvn::test::cacheDouble();
    ++d.calls;
    if (pSize == nullptr) return qvnErrNullPointer;
    *pSize = d.status == 0 ? d.sizeBytes : 0;
    return d.status;
}
