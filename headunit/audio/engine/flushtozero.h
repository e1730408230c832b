// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#ifdef __SSE2__
#include <xmmintrin.h>
#endif

namespace headunit::engine {

/// As long as it lives, numbers too small for full precision count as zero on this thread. Filters fade into such
/// numbers in every pause, and processors take a hundred times longer over them.
class FlushToZero {
public:
#if defined(__SSE2__)
    FlushToZero() : m_before(_mm_getcsr()) {
        _mm_setcsr(m_before | resultsAndOperands);
    }
    ~FlushToZero() {
        _mm_setcsr(m_before);
    }
#elif defined(__aarch64__)
    FlushToZero() {
        asm volatile("mrs %0, fpcr" : "=r"(m_before));
        asm volatile("msr fpcr, %0" : : "r"(m_before | flushBit));
    }
    ~FlushToZero() {
        asm volatile("msr fpcr, %0" : : "r"(m_before));
    }
#endif
    FlushToZero(const FlushToZero &) = delete;
    FlushToZero &operator=(const FlushToZero &) = delete;

private:
#if defined(__SSE2__)
    static constexpr unsigned resultsAndOperands = 0x8040;
    unsigned m_before;
#elif defined(__aarch64__)
    static constexpr uint64_t flushBit = uint64_t(1) << 24;
    uint64_t m_before;
#endif
};

}  // namespace headunit::engine
