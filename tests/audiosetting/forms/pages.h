// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>

class QWidget;

/// A new page of the form of that name, null where none is known: each form of forms/ has its line in pages.cpp.
std::unique_ptr<QWidget> pageOf(const QString &form);
