// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/triplebuffer.h"

#include <QTest>

#include <algorithm>
#include <thread>

using headunit::engine::TripleBuffer;

class TestTripleBuffer : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void nothingAtFirst();
    void eachValueOnce();
    void onlyTheLatest();
    void whatWasTakenStays();
    void twoThreads();
};

void TestTripleBuffer::nothingAtFirst() {
    TripleBuffer<int> buffer;
    QVERIFY(!buffer.take());
}

void TestTripleBuffer::eachValueOnce() {
    TripleBuffer<int> buffer;
    for (int value = 1; value < 10; ++value) {
        buffer.write(value);
        const int *const taken = buffer.take();
        QVERIFY(taken);
        QCOMPARE(*taken, value);
        QVERIFY(!buffer.take());
    }
}

void TestTripleBuffer::onlyTheLatest() {
    TripleBuffer<int> buffer;
    for (int value = 1; value < 10; ++value) {
        buffer.write(value);
    }
    QCOMPARE(*buffer.take(), 9);
    QVERIFY(!buffer.take());
}

void TestTripleBuffer::whatWasTakenStays() {
    TripleBuffer<int> buffer;
    buffer.write(1);
    const int *const taken = buffer.take();
    for (int value = 2; value < 10; ++value) {
        buffer.write(value);
        QCOMPARE(*taken, 1);
    }
}

void TestTripleBuffer::twoThreads() {
    // A value that is being written while it is read would not be the same throughout.
    using Wide = std::array<int, 200>;
    constexpr int last = 20000;
    TripleBuffer<Wide> buffer;
    std::thread writer([&buffer] {
        for (int value = 1; value <= last; ++value) {
            Wide wide;
            wide.fill(value);
            buffer.write(wide);
        }
    });
    bool whole = true;
    bool rising = true;
    int before = 0;
    while (before < last) {
        if (const Wide *const taken = buffer.take()) {
            whole = whole && std::all_of(taken->begin(), taken->end(), [taken](int v) { return v == taken->front(); });
            rising = rising && taken->front() > before;
            before = taken->front();
        }
    }
    writer.join();
    QVERIFY(whole);
    QVERIFY(rising);
}

QTEST_APPLESS_MAIN(TestTripleBuffer)
#include "tst_triplebuffer.moc"
