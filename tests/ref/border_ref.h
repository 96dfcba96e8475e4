// Reference model of the border extension: which source position a position
// outside the image reads, from the rules alone (reflections done one at a
// time, wraps by remainders).
#ifndef QVN_TESTS_REF_BORDER_REF_H
#define QVN_TESTS_REF_BORDER_REF_H

#include <cstdint>

namespace qvn::ref {

enum class Border { kReplicate, kMirror, kMirrorEdge, kConst, kWrap };

// Position i of an axis of n pixels reads this position; -1 means the
// constant value.
inline std::int64_t borderIndex(Border k, std::int64_t i, std::int64_t n) {
    if (i >= 0 && i < n) return i;
    switch (k) {
        case Border::kReplicate: return i < 0 ? 0 : n - 1;
        case Border::kConst: return -1;
        case Border::kWrap: return ((i % n) + n) % n;
        case Border::kMirror:
            if (n == 1) return 0;
            // reflect about the edge pixel (not repeated) until inside
            while (i < 0 || i >= n) i = i < 0 ? -i : 2 * (n - 1) - i;
            return i;
        case Border::kMirrorEdge:
            // reflect with the edge pixel repeated
            while (i < 0 || i >= n) i = i < 0 ? -i - 1 : 2 * n - 1 - i;
            return i;
    }
    return -1;
}

}  // namespace qvn::ref

#endif
