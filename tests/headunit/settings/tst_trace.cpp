// SPDX-License-Identifier: Apache-2.0
#include "headunit/settings/trace.h"

#include <QtTest>

#include <memory>

using headunit::TraceEntry;
using headunit::TraceKind;
using headunit::TraceListener;

class tst_Trace : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void costsNothingWithoutListener();
    void handsOverInOrder();
    void everyListenerHears();
    void readsOnlyToThoseWhoWantThem();
    void listenerMayEndItself();
    void listenerMayEndAnother();
    void writeHasItsValues();
    void writtenAsCode();
};

void tst_Trace::costsNothingWithoutListener() {
    int evaluated = 0;
    const auto text = [&evaluated] {
        ++evaluated;
        return QString();
    };
    HEADUNIT_TRACE(text(), text());
    HEADUNIT_TRACE_READ(text(), text());
    HEADUNIT_TRACE_KIND(Write, text(), text(), text());
    QVERIFY(!headunit::traceEnabled());
    {
        const TraceListener listener([](const TraceEntry &) {});
        HEADUNIT_TRACE_READ(text(), text());
        QVERIFY(headunit::traceEnabled());
    }
    QCOMPARE(evaluated, 0);
    QVERIFY(!headunit::traceEnabled());
}

void tst_Trace::handsOverInOrder() {
    QStringList lines;
    const TraceListener listener([&lines](const TraceEntry &entry) { lines << entry.call + " -> " + entry.meaning; });
    HEADUNIT_TRACE(QString("a(1)"), QString("one"));
    HEADUNIT_TRACE(QString("b(2)"), QString("two"));
    QCOMPARE(lines, QStringList({"a(1) -> one", "b(2) -> two"}));
}

void tst_Trace::everyListenerHears() {
    QStringList heard;
    const TraceListener first([&heard](const TraceEntry &entry) { heard << "first " + entry.call; });
    {
        const TraceListener second([&heard](const TraceEntry &entry) { heard << "second " + entry.call; });
        HEADUNIT_TRACE(QString("a"), QString());
    }
    HEADUNIT_TRACE(QString("b"), QString());
    QCOMPARE(heard, QStringList({"first a", "second a", "first b"}));
}

void tst_Trace::readsOnlyToThoseWhoWantThem() {
    int without = 0;
    int with = 0;
    const TraceListener other([&without](const TraceEntry &) { ++without; });
    TraceListener listener([&with](const TraceEntry &) { ++with; });
    HEADUNIT_TRACE_READ(QString(), QString());
    QCOMPARE(with, 0);
    listener.setReads(TraceListener::WithReads);
    HEADUNIT_TRACE_READ(QString(), QString());
    QCOMPARE(with, 1);
    listener.setReads(TraceListener::WithoutReads);
    HEADUNIT_TRACE_READ(QString(), QString());
    QCOMPARE(with, 1);
    QCOMPARE(without, 0);
}

void tst_Trace::listenerMayEndItself() {
    int entries = 0;
    std::unique_ptr<TraceListener> listener;
    listener = std::make_unique<TraceListener>([&](const TraceEntry &) {
        listener.reset();
        ++entries;
    });
    HEADUNIT_TRACE(QString(), QString());
    HEADUNIT_TRACE(QString(), QString());
    QCOMPARE(entries, 1);
}

void tst_Trace::listenerMayEndAnother() {
    int entries = 0;
    std::unique_ptr<TraceListener> second;
    const TraceListener first([&](const TraceEntry &) { second.reset(); });
    second = std::make_unique<TraceListener>([&](const TraceEntry &) { ++entries; });
    HEADUNIT_TRACE(QString(), QString());
    QCOMPARE(entries, 0);
}

void tst_Trace::writeHasItsValues() {
    TraceEntry last;
    const TraceListener listener([&last](const TraceEntry &entry) { last = entry; });
    HEADUNIT_TRACE_KIND(Write, QString("a = 2"), QString("store: a = 2"), QString("a"), QVariant(1), QVariant(2));
    QCOMPARE(last.kind, TraceKind::Write);
    QCOMPARE(last.key, QString("a"));
    QCOMPARE(last.before, QVariant(1));
    QCOMPARE(last.after, QVariant(2));
    HEADUNIT_TRACE(QString("f()"), QString("f"));
    QCOMPARE(last.kind, TraceKind::Call);
    QVERIFY(!last.after.isValid());
}

void tst_Trace::writtenAsCode() {
    QCOMPARE(headunit::traceCall("f"), QString("f()"));
    QCOMPARE(headunit::traceCall("f", {3, true, "x", -1}), QString("f(3, true, \"x\", -1)"));
}

QTEST_GUILESS_MAIN(tst_Trace)
#include "tst_trace.moc"
