// SPDX-License-Identifier: Apache-2.0
// A desk on the system bus that is about to sleep for each line of standard input, as soon as somebody has it wait.
// The answer, once nobody does any more, is the line "asleep".
#include "fakelogind.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>
#include <thread>

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    FakeLogind logind;
    enum { Awake, Begins, Sleeps } state = Awake;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &application, [&] {
        if (state == Begins && logind.isDelayed()) {
            state = Sleeps;
            Q_EMIT logind.PrepareForSleep(true);
        } else if (state == Sleeps && !logind.isDelayed()) {
            state = Awake;
            std::puts("asleep");
            std::fflush(stdout);
        }
    });
    timer.start(5);
    std::thread reader([&] {
        char line[16];
        while (std::fgets(line, sizeof line, stdin)) {
            QMetaObject::invokeMethod(&application, [&state] { state = Begins; });
        }
        QMetaObject::invokeMethod(&application, &QCoreApplication::quit);
    });
    const int result = application.exec();
    reader.join();
    return result;
}
