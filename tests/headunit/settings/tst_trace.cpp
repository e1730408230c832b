#include "headunit/settings/trace.h"

#include <QtTest>

class tst_Trace : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup() {
        headunit::setTraceSink({});
        headunit::setTraceReads(false);
    }
    void costsNothingWithoutSink();
    void handsOverInOrder();
    void readsOnlyOnDemand();
    void sinkMayRemoveItself();
    void writtenAsCode();
};

void tst_Trace::costsNothingWithoutSink() {
    int evaluated = 0;
    const auto text = [&evaluated] {
        ++evaluated;
        return QString();
    };
    HEADUNIT_TRACE(text(), text());
    headunit::setTraceReads(true);
    HEADUNIT_TRACE_READ(text(), text());
    QCOMPARE(evaluated, 0);
    QVERIFY(!headunit::traceEnabled());
}

void tst_Trace::handsOverInOrder() {
    QStringList lines;
    headunit::setTraceSink(
        [&lines](const headunit::TraceEntry &entry) { lines << entry.call + " -> " + entry.meaning; });
    HEADUNIT_TRACE(QString("a(1)"), QString("one"));
    HEADUNIT_TRACE(QString("b(2)"), QString("two"));
    QCOMPARE(lines, QStringList({"a(1) -> one", "b(2) -> two"}));
}

void tst_Trace::readsOnlyOnDemand() {
    int entries = 0;
    headunit::setTraceSink([&entries](const headunit::TraceEntry &) { ++entries; });
    HEADUNIT_TRACE_READ(QString(), QString());
    QCOMPARE(entries, 0);
    headunit::setTraceReads(true);
    HEADUNIT_TRACE_READ(QString(), QString());
    QCOMPARE(entries, 1);
}

void tst_Trace::sinkMayRemoveItself() {
    int entries = 0;
    headunit::setTraceSink([&entries](const headunit::TraceEntry &) {
        headunit::setTraceSink({});
        ++entries;
    });
    headunit::trace(QString(), QString());
    headunit::trace(QString(), QString());
    QCOMPARE(entries, 1);
}

void tst_Trace::writtenAsCode() {
    QCOMPARE(headunit::traceCall("f"), QString("f()"));
    QCOMPARE(headunit::traceCall("f", {3, true, "x", -1}), QString("f(3, true, \"x\", -1)"));
}

QTEST_GUILESS_MAIN(tst_Trace)
#include "tst_trace.moc"
