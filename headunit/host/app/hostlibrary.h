// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFunctionPointer>
#include <QString>

namespace headunit {

/// A function of one of the host's own libraries, which cost nothing before they are used; \a library is its name
/// without "libheadunit" and ".so". Null, and the reason in \a problem, where it is not to be had.
QFunctionPointer hostFunction(const char *library, const char *function, QString *problem);

}  // namespace headunit
