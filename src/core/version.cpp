// The version record: the only texts the library holds.
#include "core/image-inl.h"

namespace qvn {
namespace core {

namespace {
constexpr QvnVersionInfo kVersion = {
    2022,
    1,
    0,
    static_cast<int>(0xC8D62893u),  // the revision that the version text shows
    {'m', '7', '\0', '\0'},
    "qvnIP SSE3 (m7)",
    "2022.1.0 (r0xc8d62893)",
    "Jan 30 2025",
};
}  // namespace

const QvnVersionInfo* libVersion() { return &kVersion; }

}  // namespace core
}  // namespace qvn
