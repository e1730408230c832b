// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "runner.h"

namespace conformance {

struct Options {
    bool list = false;
    bool help = false;
    bool inProcess = false;
    bool restarted = false;
    bool record = false;
    QStringList only;
    QString root;
    QString plugin;
    QString deviations;
    QString junit;
    Limits limits = {60, 600};
    QString problem;  ///< what is wrong with the command line
};

Options parse(const QStringList &arguments);
extern const char usage[];

/// The options in force; for the checks that need the plug-in.
Options &options();

}  // namespace conformance
