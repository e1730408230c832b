// SPDX-License-Identifier: Apache-2.0
#include "fileloop.h"

#include <algorithm>
#include <chrono>
#include <system_error>

namespace headunit {

namespace {

/// Frames read in one go.
constexpr size_t pieceFrames = 4096;

}  // namespace

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
    const size_t frames = m_reader.read(m_ring.data(), pieceFrames);
    if (frames == 0) {
        *error = path + ": nothing can be read of the file";
        return false;
    }
    if (frames < pieceFrames) {
        m_shortFrames = frames;
        return true;
    }
    m_written = frames;
    try {
        m_thread = std::thread([this] { readAhead(); });
    } catch (const std::system_error &) {
        *error = path + ": no thread is to be had that reads it";
        return false;
    }
    return true;
}

void FileLoop::readAhead() {
    constexpr std::chrono::milliseconds pause(20);
    std::vector<float> piece(2 * pieceFrames);
    bool isFirstTime = true;
    size_t sinceOpened = m_written;
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
        if (frames == pieceFrames) {
            continue;
        }
        if (isFirstTime && sinceOpened <= ringFrames && m_reader.isAtEnd()) {
            m_shortFrames.store(sinceOpened, std::memory_order_release);
            return;
        }
        // A file that was cut short meanwhile must not be opened hundreds of times a second.
        std::string error;
        if (sinceOpened < pieceFrames) {
            error = m_path + ": nothing can be read of the file any more";
        } else {
            m_reader.open(m_path, &error);
        }
        if (!error.empty()) {
            if (m_lost) {
                m_lost(error);
            }
            return;
        }
        isFirstTime = false;
        sinceOpened = 0;
    }
}

void FileLoop::fillFromShort(float *stereo, size_t frames, size_t shortFrames) {
    uint64_t read = m_read.load(std::memory_order_relaxed);
    for (size_t frame = 0; frame < frames; ++frame, ++read) {
        const size_t place = static_cast<size_t>(read % shortFrames);
        stereo[2 * frame] = m_ring[2 * place];
        stereo[2 * frame + 1] = m_ring[2 * place + 1];
    }
    m_read.store(read, std::memory_order_relaxed);
}

void FileLoop::fill(float *stereo, size_t frames) {
    const size_t shortFrames = m_shortFrames.load(std::memory_order_acquire);
    if (shortFrames > 0) {
        fillFromShort(stereo, frames, shortFrames);
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
