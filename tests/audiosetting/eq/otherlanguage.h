// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTranslator>

/// A language in which each text of a form reads "<text>".
class OtherLanguage : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override {
        return QLatin1Char('<') + QLatin1String(source) + QLatin1Char('>');
    }
};
