// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRandomGenerator>
#include <QTest>

/// The rows of a random walk, each a seed: 1 to \a count and one that nobody has tried, or the one that the environment
/// names (AUDIOSETTING_SEED=17 tst_generalwalk), as a failure prints it.
inline void addSeedRows(quint32 count) {
    QTest::addColumn<quint32>("seed");
    const QByteArray given = qgetenv("AUDIOSETTING_SEED");
    if (!given.isEmpty()) {
        QTest::newRow(given) << given.toUInt();
        return;
    }
    for (quint32 seed = 1; seed <= count; ++seed) {
        QTest::addRow("%u", seed) << seed;
    }
    const quint32 fresh = QRandomGenerator::global()->generate();
    QTest::addRow("%u", fresh) << fresh;
}
