// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/files/soundreader.h"

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace headunit {

/// A sound file, played again and again. A thread of its own reads it ahead, so that fill() waits for nothing; a file
/// that is short enough is read only once.
class FileLoop {
public:
    /// Gets a line with the file's name and the reason, on the thread.
    using LossListener = std::function<void(const std::string &)>;

    FileLoop() = default;
    ~FileLoop();

    /// Has \a listener hear that the file can no longer be read. Before open().
    void setLossListener(LossListener listener) { m_lost = std::move(listener); }
    /// False, with a reason in \a error, if the file is none that can be played.
    bool open(const std::string &path, std::string *error);

    /// Left and right in turn; silence where the disk was too slow, or the file can no longer be read.
    void fill(float *stereo, size_t frames);

private:
    static constexpr size_t ringFrames = 65536;  ///< more than a second

    void readAhead();
    void fillFromShort(float *stereo, size_t frames, size_t shortFrames);

    std::string m_path;
    LossListener m_lost;
    SoundReader m_reader;
    std::vector<float> m_ring = std::vector<float>(2 * ringFrames);
    std::atomic<size_t> m_shortFrames{0};  ///< of the whole file, once the ring holds all of it
    std::atomic<uint64_t> m_written{0};
    std::atomic<uint64_t> m_read{0};
    std::atomic<bool> m_ending{false};
    std::thread m_thread;
};

}  // namespace headunit
