// SPDX-License-Identifier: Apache-2.0
#include "app/mainwidget.h"

#include "navigation/audiorootpagtsettings.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QLabel>
#include <QWidget>

using audiosetting::MainWidget;

class tst_MainWidget : public PageTest {
    Q_OBJECT
private slots:
    void isNamedAfterItsConstructor() {
        MainWidget widget(nullptr);
        QCOMPARE(widget.objectName(), QStringLiteral("audiosetting::MainWidget::MainWidget(QWidget*)"));
    }

    void holdsOneContainerOnTheWholeScreen() {
        MainWidget widget(nullptr);
        const auto children = widget.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(children.size(), 1);
        const auto root = qobject_cast<AudioRootPagtSettings *>(children.first());
        QVERIFY(root);
        QCOMPARE(widget.size(), QSize(1024, 600));
        QCOMPARE(root->geometry(), QRect(0, 0, 1024, 600));
        QCOMPARE(widget.windowFlags(), QWidget().windowFlags());
    }

    void constructionWritesAndSendsNothing() {
        MainWidget widget(nullptr);
        show(&widget);
        QCOMPARE(recording::take(), QStringList());
    }

    void resumeShowsThePageThatIsDue() {
        MainWidget widget(nullptr);
        show(&widget);
        CHILD(QLabel, title, &widget, "Txt_title");
        QCOMPARE(title->text(), QStringLiteral("#1065"));
        widget.resume();
        QCOMPARE(title->text(), QStringLiteral("#1065"));
        QCOMPARE(recording::take(), QStringList());
        recording::setShared("SettingTouchPageType", 3);
        widget.resume();
        QCOMPARE(title->text(), QStringLiteral("#1071"));
    }

    void resumeReadsTheStoreAgain() {
        MainWidget widget(nullptr);
        show(&widget);
        CHILD(QLabel, level, &widget, "txt_vol_level");
        recording::setStored("subwooferLevel", 9);
        QCOMPARE(level->text(), QStringLiteral("3"));
        widget.resume();
        QCOMPARE(level->text(), QStringLiteral("9"));
    }

    void resumeAsksForTheRequestedPage() {
        MainWidget widget(nullptr);
        recording::setLogged(recording::Reads);
        widget.resume();
        QVERIFY(recording::take().contains("SettingsFunc::getValue(\"SettingTouchPageType\", 0)"));
    }

    void hasNoSignalsOrSlots() {
        const QMetaObject &meta = MainWidget::staticMetaObject;
        QCOMPARE(meta.className(), "audiosetting::MainWidget");
        QCOMPARE(meta.methodCount(), meta.methodOffset());
    }
};

PAGE_TEST_MAIN(tst_MainWidget)
#include "tst_mainwidget.moc"
