#pragma once

#include <QString>
#include <QVariant>

#include <functional>

namespace headunit {

/// The record of calls across the contract, in order: each implementation reports its calls, whoever shows them
/// (the host's --trace) installs a sink. GUI thread only. Without a sink a call costs one comparison.
struct TraceEntry {
    QString call;     ///< the call as written in code: setCrossoverFrontFreq(3, 2, 10)
    QString meaning;  ///< its plain meaning: front high-pass 63 Hz, 12 dB/oct, -2 dB
};

using TraceSink = std::function<void(const TraceEntry &)>;

/// Installs the one sink; an empty function removes it.
void setTraceSink(TraceSink sink);
bool traceEnabled();
/// Hands an entry to the sink.
void trace(const QString &call, const QString &meaning);

/// Whether calls that only read are recorded as well. Off at first: showing a page reads dozens of values.
void setTraceReads(bool on);
bool traceReadsEnabled();

/// A value as written in code: 3, true, "text".
QString traceValue(const QVariant &value);
/// A call as written in code.
QString traceCall(const char *operation, const QVariantList &arguments = QVariantList());

}  // namespace headunit

/// Reports a call; the arguments are only evaluated while a sink is installed.
#define HEADUNIT_TRACE(call, meaning)           \
    do {                                        \
        if (headunit::traceEnabled()) {         \
            headunit::trace((call), (meaning)); \
        }                                       \
    } while (false)

/// The same for a call that only reads.
#define HEADUNIT_TRACE_READ(call, meaning)      \
    do {                                        \
        if (headunit::traceReadsEnabled()) {    \
            headunit::trace((call), (meaning)); \
        }                                       \
    } while (false)
