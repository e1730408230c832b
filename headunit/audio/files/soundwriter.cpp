// SPDX-License-Identifier: Apache-2.0
#include "soundwriter.h"

#include "headunit/audio/engine/layout.h"

#include <sndfile.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace headunit {

struct SoundWriter::Private {
    SNDFILE *file = nullptr;
    int descriptor = -1;
    std::string path;      ///< as it was named
    std::string target;    ///< where links lead
    std::string partPath;  ///< the unfinished file's own name, if it has one

    ~Private() {
        if (file) {
            sf_close(file);
        }
        if (descriptor >= 0) {
            close(descriptor);
        }
        discard();
    }

    void discard() {
        if (!partPath.empty()) {
            std::remove(partPath.c_str());
            partPath.clear();
        }
    }

    bool fail(const std::string &reason, std::string *error) const {
        *error = path + ": " + reason;
        return false;
    }

    /// Takes the first name beside the target under which \a make, which sets errno, makes something new.
    template <typename Make> bool takeFreeName(Make make) {
        for (int number = 0;; ++number) {
            partPath = target + '.' + std::to_string(number) + ".part";
            if (make()) {
                return true;
            }
            if (errno != EEXIST) {
                partPath.clear();
                return false;
            }
        }
    }

    /// Makes the file without a name, so that nothing stays of it if the process is ended; under one of its own where
    /// the file system cannot do that.
    bool create() {
        constexpr mode_t mode = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;  // less what the umask says
        const std::string folder = std::filesystem::path(target).parent_path().string();
        descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDWR | O_TMPFILE | O_CLOEXEC, mode);
        return descriptor >= 0 || (errno == EOPNOTSUPP && takeFreeName([this] {
                                       descriptor =
                                           ::open(partPath.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
                                       return descriptor >= 0;
                                   }));
    }

    /// Brings the written file to the disk, where it may turn out not to fit, and under its final name.
    bool publish() {
        if (fsync(descriptor) != 0) {
            return false;
        }
        if (partPath.empty() && !takeFreeName([this] {
                const std::string nameless = "/proc/self/fd/" + std::to_string(descriptor);
                return linkat(AT_FDCWD, nameless.c_str(), AT_FDCWD, partPath.c_str(), AT_SYMLINK_FOLLOW) == 0;
            })) {
            return false;
        }
        if (std::rename(partPath.c_str(), target.c_str()) != 0) {
            return false;
        }
        partPath.clear();
        return true;
    }
};

SoundWriter::SoundWriter() : d(new Private) {}

SoundWriter::~SoundWriter() = default;

bool SoundWriter::open(const std::string &path, std::string *error) {
    d = std::make_unique<Private>();
    d->path = d->target = path;
    std::error_code unknown;
    if (std::filesystem::exists(path, unknown)) {
        if (!std::filesystem::is_regular_file(path, unknown)) {
            return d->fail("this is no file that could be replaced", error);
        }
        // The file that a link leads to is replaced, not the link.
        d->target = std::filesystem::canonical(path, unknown).string();
    }
    if (!d->create()) {
        return d->fail(std::strerror(errno), error);
    }
    SF_INFO info{};
    info.samplerate = static_cast<int>(engine::sampleRate);
    info.channels = static_cast<int>(engine::outputCount);
    // Unlike plain WAV without a PEAK chunk, which holds the time of day: the same samples give the same file.
    info.format = SF_FORMAT_RF64 | SF_FORMAT_FLOAT;
    d->file = sf_open_fd(d->descriptor, SFM_WRITE, &info, SF_FALSE);
    if (!d->file) {
        return d->fail(sf_strerror(nullptr), error);
    }
    std::array<int, engine::outputCount> map = {SF_CHANNEL_MAP_LEFT,      SF_CHANNEL_MAP_RIGHT,
                                                SF_CHANNEL_MAP_REAR_LEFT, SF_CHANNEL_MAP_REAR_RIGHT,
                                                SF_CHANNEL_MAP_SIDE_LEFT, SF_CHANNEL_MAP_SIDE_RIGHT};
    sf_command(d->file, SFC_RF64_AUTO_DOWNGRADE, nullptr, SF_TRUE);
    sf_command(d->file, SFC_SET_CHANNEL_MAP_INFO, map.data(), static_cast<int>(sizeof(map)));
    return true;
}

bool SoundWriter::write(const float *samples, size_t frames, std::string *error) {
    const sf_count_t count = static_cast<sf_count_t>(frames);
    errno = 0;
    if (sf_writef_float(d->file, samples, count) == count) {
        return true;
    }
    return d->fail(errno != 0 ? std::strerror(errno) : sf_strerror(d->file), error);
}

bool SoundWriter::finish(std::string *error) {
    errno = 0;
    sf_write_sync(d->file);
    const bool closed = sf_close(d->file) == 0;
    d->file = nullptr;
    if (closed && d->publish()) {
        return true;
    }
    d->fail(errno != 0 ? std::strerror(errno) : "it cannot be written", error);
    d->discard();
    return false;
}

}  // namespace headunit
