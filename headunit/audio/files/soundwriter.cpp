#include "soundwriter.h"

#include "headunit/audio/engine/format.h"

#include <sndfile.h>

#include <algorithm>
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

    /// The library puts a PEAK chunk with the time of day into every file of this kind; a second run must give the same
    /// file. True if there is no such chunk.
    static bool clearTimeStamp(int descriptor) {
        constexpr char name[] = "PEAK";
        constexpr ptrdiff_t stampAfterName = 12;  // behind name, size and version
        constexpr char noTime[4] = {};
        std::array<char, 512> head{};
        const ssize_t size = pread(descriptor, head.data(), head.size(), 0);
        const auto end = head.begin() + std::max<ssize_t>(0, size);
        const auto chunk = std::search(head.begin(), end, name, name + 4);
        return chunk == end || pwrite(descriptor, noTime, sizeof(noTime), chunk - head.begin() + stampAfterName) ==
                                   static_cast<ssize_t>(sizeof(noTime));
    }

    /// Makes the closed file what it is to be, and brings it to the disk, where it may turn out not to fit.
    bool complete() const {
        const int descriptor = ::open(partPath.c_str(), O_RDWR | O_CLOEXEC);
        const bool good = descriptor >= 0 && clearTimeStamp(descriptor) && fsync(descriptor) == 0;
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
    if (closed && d->complete() && std::rename(d->partPath.c_str(), d->target.c_str()) == 0) {
        return true;
    }
    const std::string reason = errno != 0 ? std::strerror(errno) : "it cannot be written";
    std::remove(d->partPath.c_str());
    return d->fail(reason, error);
}

}  // namespace headunit
