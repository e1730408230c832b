// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <dlfcn.h>

// Seeded faults of a unit. The library stands between the conformance kit and the example unit: it defines functions of
// the contract, does what the fault says, and leaves the rest to the unit, which the dynamic linker finds next.

/// Whether this is the fault that the environment (CONFORMANCE_FAULT) chooses.
inline bool faulty(const char *name) {
    static const QByteArray chosen = qgetenv("CONFORMANCE_FAULT");
    return chosen == name;
}

/// WRAP(result, function, "mangled name", parameters): a member function, whose first parameter is the object.
#define WRAP(result, function, symbol, ...)                  \
    extern "C" result function(__VA_ARGS__) __asm__(symbol); \
    static const char function##Symbol[] = symbol;           \
    extern "C" __attribute__((visibility("default"))) result function(__VA_ARGS__)

/// The unit's own function.
#define REAL(function) \
    static const auto real = reinterpret_cast<decltype(&function)>(dlsym(RTLD_NEXT, function##Symbol))
