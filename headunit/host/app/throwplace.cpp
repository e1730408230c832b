// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/throwplace.h"

#include <algorithm>
#include <typeinfo>

#include <dlfcn.h>
#include <execinfo.h>

namespace {

constexpr int mostFrames = 64;
thread_local void *frames[mostFrames];
thread_local int frameCount = 0;

using Throw = void (*)(void *, std::type_info *, void (*)(void *));

}  // namespace

// Stands before the C++ library's own function of this name, in the whole process: where it is caught, an exception no
// longer tells which application it came out of.
extern "C" __attribute__((noreturn, visibility("default"))) void __cxa_throw(void *object, std::type_info *type,
                                                                             void (*destroy)(void *)) {
    static const auto next = reinterpret_cast<Throw>(dlsym(RTLD_NEXT, "__cxa_throw"));
    frameCount = backtrace(frames, mostFrames);
    next(object, type, destroy);
    __builtin_unreachable();
}

namespace headunit {

const void *libraryOf(const void *address) {
    Dl_info info = {};
    return dladdr(address, &info) != 0 ? info.dli_fbase : nullptr;
}

std::vector<const void *> librariesOfThrow() {
    std::vector<const void *> libraries;
    for (int i = 0; i < frameCount; ++i) {
        const void *const library = libraryOf(frames[i]);
        if (std::find(libraries.begin(), libraries.end(), library) == libraries.end()) {
            libraries.push_back(library);
        }
    }
    return libraries;
}

}  // namespace headunit
