// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QVariant>

#include <functional>

namespace headunit {

/// The subject of an entry of the record.
enum class TraceKind {
    Call,          ///< a call of a service or of the store
    Read,          ///< a call that only reads
    Write,         ///< a value of the store that is written
    Announcement,  ///< a signal of the unit to the applications
    Window,        ///< what the host tells a window, or a window the host
    Touch,         ///< a gesture that an application posts to the host
};

/// One entry of the record of calls across the contract.
struct TraceEntry {
    TraceKind kind = TraceKind::Call;
    QString call;     ///< the call as written in code: setCrossoverFrontFreq(3, 2, 10)
    QString meaning;  ///< its plain meaning: front high-pass 63 Hz, 12 dB/oct, -2 dB
    // Of a write:
    QString key = QString();
    QVariant before = QVariant();  ///< the stored value; invalid where there was none
    QVariant after = QVariant();   ///< invalid where the key is removed
};

/// Listens, while it lives, to the record of calls across the contract, in order: each implementation reports its
/// calls. GUI thread only. Where nobody listens a call costs one comparison.
class TraceListener {
public:
    using Function = std::function<void(const TraceEntry &)>;
    /// Whether calls that only read are wanted as well: showing a page reads dozens of values.
    enum Reads { WithoutReads, WithReads };

    /// \a function may end this listener, or another.
    explicit TraceListener(Function function, Reads reads = WithoutReads);
    ~TraceListener();
    TraceListener(const TraceListener &) = delete;
    TraceListener &operator=(const TraceListener &) = delete;

    void setReads(Reads reads);

private:
    friend void trace(const TraceEntry &entry);

    Function m_function;
    bool m_reads;
};

/// Whether anybody listens.
bool traceEnabled();
/// Whether anybody listens to reads.
bool traceReadsEnabled();
/// Hands an entry to all who want it.
void trace(const TraceEntry &entry);

/// A value as written in code: 3, true, "text".
QString traceValue(const QVariant &value);
/// A call as written in code.
QString traceCall(const char *operation, const QVariantList &arguments = QVariantList());

}  // namespace headunit

/// Reports an entry of a kind; the other arguments (call, meaning, and of a write key, before and after) are only
/// evaluated while somebody listens.
#define HEADUNIT_TRACE_KIND(kind, ...)                                 \
    do {                                                               \
        if (headunit::traceEnabled()) {                                \
            headunit::trace({headunit::TraceKind::kind, __VA_ARGS__}); \
        }                                                              \
    } while (false)

/// Reports a call.
#define HEADUNIT_TRACE(call, meaning) HEADUNIT_TRACE_KIND(Call, (call), (meaning))

/// The same for a call that only reads.
#define HEADUNIT_TRACE_READ(call, meaning)                                   \
    do {                                                                     \
        if (headunit::traceReadsEnabled()) {                                 \
            headunit::trace({headunit::TraceKind::Read, (call), (meaning)}); \
        }                                                                    \
    } while (false)
