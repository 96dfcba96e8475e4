// The version records, one per build target: the only texts the library holds.
#include "core/image-inl.h"

namespace qvn {
namespace core {

namespace {
constexpr int kBuild = static_cast<int>(0xC8D62893u);  // the revision that the version text shows
constexpr const char* kVersionText = "2022.1.0 (r0xc8d62893)";
constexpr const char* kReleaseDate = "Jan 30 2025";

constexpr QvnVersionInfo kVersions[kTargetCount] = {
    {2022, 1, 0, kBuild, {'m', '7', '\0', '\0'}, "qvnIP SSE3 (m7)", kVersionText, kReleaseDate},
    {2022, 1, 0, kBuild, {'v', '3', '\0', '\0'}, "qvnIP AVX2 (v3)", kVersionText, kReleaseDate},
    {2022, 1, 0, kBuild, {'v', '4', '\0', '\0'}, "qvnIP AVX-512 (v4)", kVersionText, kReleaseDate},
};
}  // namespace

const QvnVersionInfo* libVersion(Target t) { return &kVersions[int(t)]; }

}  // namespace core
}  // namespace qvn
