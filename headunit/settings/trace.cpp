// SPDX-License-Identifier: Apache-2.0
#include "trace.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace headunit {

namespace {

std::vector<TraceListener *> listeners;
int readers = 0;

}  // namespace

TraceListener::TraceListener(Function function, Reads reads) : m_function(std::move(function)), m_reads(false) {
    listeners.push_back(this);
    setReads(reads);
}

TraceListener::~TraceListener() {
    setReads(WithoutReads);
    listeners.erase(std::find(listeners.begin(), listeners.end(), this));
}

void TraceListener::setReads(Reads reads) {
    readers += int(reads == WithReads) - int(m_reads);
    m_reads = reads == WithReads;
}

bool traceEnabled() {
    return !listeners.empty();
}

bool traceReadsEnabled() {
    return readers > 0;
}

void trace(const TraceEntry &entry) {
    const std::vector<TraceListener *> all = listeners;
    for (TraceListener *const listener : all) {
        const bool lives = std::find(listeners.begin(), listeners.end(), listener) != listeners.end();
        if (lives && (entry.kind != TraceKind::Read || listener->m_reads)) {
            const TraceListener::Function function = listener->m_function;  // which may end its listener
            function(entry);
        }
    }
}

QString traceValue(const QVariant &value) {
    return value.userType() == QMetaType::QString ? QLatin1Char('"') + value.toString() + QLatin1Char('"')
                                                  : value.toString();
}

QString traceCall(const char *operation, const QVariantList &arguments) {
    QStringList texts;
    for (const QVariant &argument : arguments) {
        texts << traceValue(argument);
    }
    return QLatin1String(operation) + QLatin1Char('(') + texts.join(QStringLiteral(", ")) + QLatin1Char(')');
}

}  // namespace headunit
