// SPDX-License-Identifier: Apache-2.0
#include "settingsmap.h"

#include <cmath>
#include <limits>

namespace headunit {

namespace {

bool isWholeInt(double number) {
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max() &&
           std::trunc(number) == number;
}

}  // namespace

QVariant storableValue(const QVariant &value) {
    switch (static_cast<QMetaType::Type>(value.type())) {
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::QString:
            return value;
        case QMetaType::Double:
        case QMetaType::Float:
            return std::isfinite(value.toDouble()) ? QVariant(value.toDouble()) : QVariant();
        case QMetaType::QStringList:
        case QMetaType::QByteArray:
        case QMetaType::UnknownType:
            return QVariant();
        default:
            break;
    }
    bool ok = false;
    const qlonglong number = value.toLongLong(&ok);  // every other whole number, enumerations included
    if (!ok) {
        return QVariant();
    }
    return isWholeInt(static_cast<double>(number)) ? QVariant(static_cast<int>(number)) : QVariant(number);
}

bool sameValue(const QVariant &a, const QVariant &b) {
    return a.userType() == b.userType() && a == b;
}

int toInt(const QVariant &value, int defaultValue) {
    switch (static_cast<QMetaType::Type>(value.userType())) {
        case QMetaType::Int:
        case QMetaType::Bool:
            return value.toInt();
        case QMetaType::Double:
            return isWholeInt(value.toDouble()) ? static_cast<int>(value.toDouble()) : defaultValue;
        case QMetaType::QString: {
            bool ok = false;
            const int number = value.toString().toInt(&ok);
            return ok ? number : defaultValue;
        }
        default:
            return defaultValue;  // nothing stored, or a number beyond int
    }
}

bool toBool(const QVariant &value, bool defaultValue) {
    switch (static_cast<QMetaType::Type>(value.userType())) {
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::LongLong:
        case QMetaType::Double:
            return value.toDouble() != 0;
        case QMetaType::QString: {
            const QString text = value.toString().trimmed();
            if (text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0) {
                return true;
            }
            if (text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0) {
                return false;
            }
            bool ok = false;
            const double number = text.toDouble(&ok);
            return ok ? number != 0 : defaultValue;
        }
        default:
            return defaultValue;
    }
}

}  // namespace headunit
