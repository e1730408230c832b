// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <atomic>

namespace headunit::engine {

/// Hands the latest value of one thread to another; neither ever waits. One writer, one reader.
template <typename T> class TripleBuffer {
public:
    /// Writer: replaces whatever the reader has not taken yet.
    void write(const T &value) {
        m_slots[m_back] = value;
        m_back = m_middle.exchange(m_back | freshMark, std::memory_order_acq_rel) & slotMask;
    }

    /// Writer: whether the reader has taken what was written last. True, too, before anything was.
    bool isTaken() const { return !(m_middle.load(std::memory_order_relaxed) & freshMark); }

    /// Reader: the value written last, or null if that has been taken already. Stays as it is until the next take().
    const T *take() {
        if (!(m_middle.load(std::memory_order_relaxed) & freshMark)) {
            return nullptr;
        }
        m_front = m_middle.exchange(m_front, std::memory_order_acq_rel) & slotMask;
        return &m_slots[m_front];
    }

private:
    static constexpr unsigned slotMask = 3;
    static constexpr unsigned freshMark = 4;

    std::array<T, 3> m_slots{};
    unsigned m_back = 0;                ///< the writer's
    unsigned m_front = 1;               ///< the reader's
    std::atomic<unsigned> m_middle{2};  ///< on its way, with a mark while it is fresh
};

}  // namespace headunit::engine
