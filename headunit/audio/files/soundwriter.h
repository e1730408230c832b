// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace headunit {

/// A six-channel sound file (WAV, 32-bit floats; RF64 beyond 4 GiB) in the engine's order of outputs, which stands
/// under its name only once it is complete. The same samples give the same file, byte for byte.
class SoundWriter {
public:
    SoundWriter();
    /// Leaves nothing of a file that was not finished.
    ~SoundWriter();

    /// These return false, with a reason in \a error, when the file cannot be written.
    bool open(const std::string &path, std::string *error);
    bool write(const float *samples, size_t frames, std::string *error);
    bool finish(std::string *error);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace headunit
