// Test double of the core library's cache-size query (the unit-test binary
// links it in place of the real one): counts calls and answers as told.
#ifndef QVN_TESTS_CACHE_DOUBLE_H
#define QVN_TESTS_CACHE_DOUBLE_H

namespace qvn::test {

struct CacheDouble {
    int calls = 0;            // qvnGetMaxCacheSizeB calls since reset()
    int sizeBytes = 1 << 20;  // the size it reports
    int status = 0;           // what it returns
};

// The double's state; reset() restores a 1 MiB cache that answers with 0.
CacheDouble& cacheDouble();
void resetCacheDouble();

}  // namespace qvn::test

#endif
