#include "fileloop.h"

#include <algorithm>
#include <chrono>

namespace headunit {

FileLoop::~FileLoop() {
    m_ending = true;
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

bool FileLoop::open(const std::string &path, std::string *error) {
    m_path = path;
    if (!m_reader.open(path, error)) {
        return false;
    }
    const size_t frames = m_reader.read(m_ring.data(), ringFrames);
    if (frames == 0) {
        *error = path + ": nothing can be read of the file";
        return false;
    }
    if (frames < ringFrames) {
        m_shortFrames = frames;
        return true;
    }
    m_written = frames;
    m_thread = std::thread([this] { readAhead(); });
    return true;
}

void FileLoop::readAhead() {
    constexpr size_t pieceFrames = 4096;
    constexpr std::chrono::milliseconds pause(20);
    std::vector<float> piece(2 * pieceFrames);
    size_t sinceOpened = ringFrames;
    while (!m_ending) {
        const uint64_t written = m_written.load(std::memory_order_relaxed);
        if (written + pieceFrames > m_read.load(std::memory_order_acquire) + ringFrames) {
            std::this_thread::sleep_for(pause);
            continue;
        }
        const size_t frames = m_reader.read(piece.data(), pieceFrames);
        for (size_t i = 0; i < 2 * frames; ++i) {
            m_ring[(2 * written + i) % m_ring.size()] = piece[i];
        }
        m_written.store(written + frames, std::memory_order_release);
        sinceOpened += frames;
        if (frames < pieceFrames) {
            // A file that was cut short meanwhile must not be opened hundreds of times a second.
            std::string error;
            if (sinceOpened < pieceFrames || !m_reader.open(m_path, &error)) {
                return;
            }
            sinceOpened = 0;
        }
    }
}

void FileLoop::fillFromShort(float *stereo, size_t frames) {
    for (size_t frame = 0; frame < frames; ++frame) {
        stereo[2 * frame] = m_ring[2 * m_place];
        stereo[2 * frame + 1] = m_ring[2 * m_place + 1];
        m_place = (m_place + 1) % m_shortFrames;
    }
}

void FileLoop::fill(float *stereo, size_t frames) {
    if (m_shortFrames > 0) {
        fillFromShort(stereo, frames);
        return;
    }
    const uint64_t read = m_read.load(std::memory_order_relaxed);
    const uint64_t there = m_written.load(std::memory_order_acquire) - read;
    const size_t count = static_cast<size_t>(std::min<uint64_t>(frames, there));
    for (size_t i = 0; i < 2 * count; ++i) {
        stereo[i] = m_ring[(2 * read + i) % m_ring.size()];
    }
    std::fill(stereo + 2 * count, stereo + 2 * frames, 0.0F);
    m_read.store(read + count, std::memory_order_release);
}

}  // namespace headunit
