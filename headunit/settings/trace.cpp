#include "trace.h"

#include <utility>

namespace headunit {

namespace {

TraceSink &installed() {
    static TraceSink sink;
    return sink;
}

bool readsTraced = false;

}  // namespace

void setTraceSink(TraceSink sink) {
    installed() = std::move(sink);
}

bool traceEnabled() {
    return static_cast<bool>(installed());
}

void setTraceReads(bool on) {
    readsTraced = on;
}

bool traceReadsEnabled() {
    return readsTraced && traceEnabled();
}

void trace(const QString &call, const QString &meaning) {
    if (!traceEnabled()) {
        return;
    }
    TraceEntry entry;
    entry.call = call;
    entry.meaning = meaning;
    const TraceSink sink = installed();  // the sink may replace itself
    sink(entry);
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
