// SPDX-License-Identifier: Apache-2.0
// Part of every test: started by hand or by a debugger it needs no display, and its clicks never reach the desk's.
// Where the platform is chosen (QT_QPA_PLATFORM), as ctest does, that choice holds.

#include <QByteArray>

namespace {

const bool chosen = [] {
    const char variable[] = "QT_QPA_PLATFORM";
    return qEnvironmentVariableIsSet(variable) || qputenv(variable, "offscreen");
}();

}  // namespace
