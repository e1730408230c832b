// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QProcess>

/// A program that ends when the test does, however that ends.
class ChildProcess : public QProcess {
public:
    ~ChildProcess() override;

protected:
    void setupChildProcess() override;
};
