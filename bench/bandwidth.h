// The hardware bound: how fast this machine streams bytes, measured in the
// same run as the operations.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace qbench {

// Two buffers of `bytes` each. copy() copies one into the other (the bound of
// an operation with a separate destination); rmw() adds one to every 32-bit
// word of the first in place (the bound of an in-place operation). Each moves
// 2 x bytes per call: read plus written. read() adds up every 32-bit word of
// the first (the bound of a reduction, which only reads): bytes per call.
class BandwidthCase {
public:
    explicit BandwidthCase(std::size_t bytes);
    ~BandwidthCase();
    BandwidthCase(const BandwidthCase&) = delete;
    BandwidthCase& operator=(const BandwidthCase&) = delete;

    void copy();
    void rmw();
    void read();
    double bytesPerCall() const { return 2.0 * double(bytes_); }

private:
    std::size_t bytes_;
    std::uint32_t* a_;
    std::uint32_t* b_;
    volatile std::uint32_t sink_ = 0;
};

}  // namespace qbench
