// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace headunit {

/// A sound file of any format, sample rate and number of channels, read as left and right at the engine's rate.
class SoundReader {
public:
    SoundReader();
    ~SoundReader();

    /// False, with a reason in \a error, if the file is none that can be played.
    bool open(const std::string &path, std::string *error);

    /// Fills in up to \a frames of left and right in turn; less than asked for, down to none, at the end of the file or
    /// where it is damaged.
    size_t read(float *stereo, size_t frames);
    /// Whether all frames that the file promises have been read from it.
    bool isAtEnd() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace headunit
