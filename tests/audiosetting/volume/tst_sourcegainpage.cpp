// SPDX-License-Identifier: Apache-2.0
#include "navigation/audiorootpagtsettings.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QWidget>

// Built for both regions; REGION_CLASS is the page that the region gets.

class tst_SourceGainPage : public PageTest {
    Q_OBJECT
private slots:
    void theContainerShowsTheRegionsPage() {
        AudioRootPagtSettings root(nullptr);
        show(&root);
        finger::tap(root.findChild<QWidget *>(QStringLiteral("key_advanced")));
        finger::tap(root.findChild<QWidget *>(QStringLiteral("Key_003_source_gain")));
        CHILD(QWidget, page, &root, REGION_CLASS);
        QCOMPARE(page->metaObject()->className(), REGION_CLASS);
        QCOMPARE(page->parentWidget(), &root);
        QCOMPARE(page->geometry(), QRect(0, 130, 1024, 470));
        QVERIFY(page->isVisible());
        QCOMPARE(root.findChildren<QWidget *>(QStringLiteral("radioslider")).size(), 1);

        // Made once.
        finger::tap(root.findChild<QWidget *>(QStringLiteral("key_return")));
        QVERIFY(!page->isVisible());
        finger::tap(root.findChild<QWidget *>(QStringLiteral("Key_003_source_gain")));
        QVERIFY(page->isVisible());
        QCOMPARE(root.findChildren<QWidget *>(QStringLiteral("radioslider")).size(), 1);
    }
};

PAGE_TEST_MAIN(tst_SourceGainPage)
#include "tst_sourcegainpage.moc"
