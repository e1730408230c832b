#include "soundwriter.h"

#include "headunit/audio/engine/format.h"

#include <sndfile.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace headunit {

struct SoundWriter::Private {
    SNDFILE *file = nullptr;
    std::string path;      ///< as it was named
    std::string target;    ///< where links lead
    std::string partPath;  ///< where the file grows

    ~Private() {
        if (file) {
            sf_close(file);
            std::remove(partPath.c_str());
        }
    }

    bool fail(const std::string &reason, std::string *error) const {
        *error = path + ": " + reason;
        return false;
    }

    /// Brings the closed file to the disk, where it may turn out not to fit.
    bool sync() const {
        const int descriptor = ::open(partPath.c_str(), O_RDWR | O_CLOEXEC);
        const bool good = descriptor >= 0 && fsync(descriptor) == 0;
        if (descriptor >= 0) {
            close(descriptor);
        }
        return good;
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
        // What a link leads to is replaced, not the link.
        d->target = std::filesystem::canonical(path, unknown).string();
    }
    d->partPath = d->target + ".part";
    SF_INFO info{};
    info.samplerate = static_cast<int>(engine::sampleRate);
    info.channels = static_cast<int>(engine::outputCount);
    // Unlike plain WAV without a PEAK chunk, which holds the time of day: the same samples give the same file.
    info.format = SF_FORMAT_RF64 | SF_FORMAT_FLOAT;
    d->file = sf_open(d->partPath.c_str(), SFM_WRITE, &info);
    if (!d->file) {
        const std::string reason = sf_strerror(nullptr);
        std::remove(d->partPath.c_str());
        return d->fail(reason, error);
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
    if (closed && d->sync() && std::rename(d->partPath.c_str(), d->target.c_str()) == 0) {
        return true;
    }
    const std::string reason = errno != 0 ? std::strerror(errno) : "it cannot be written";
    std::remove(d->partPath.c_str());
    return d->fail(reason, error);
}

}  // namespace headunit
