// SPDX-License-Identifier: Apache-2.0
#include "desktest.h"

#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/panel.h"
#include "headunit/host/app/tunersdesk.h"
#include "headunit/settings/trace.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDirIterator>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStyle>
#include <QToolTip>
#include <QTranslator>

#include <algorithm>

using headunit::Desk;

class TestDesk : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { m_unit.reset(new UnitOnTheDesk); }
    void cleanup() { m_unit.reset(); }
    void keyAndKeyboardAskForIt();
    void hostLoadsIt();
    void closedItCostsNothing();
    void opensAPanelByName();
    void looksLikeADeskProgram();
    void leavesTheUnitItsLook();
    void remembersWhereItWas();
    void shortcutsWork();
    void followsTheLanguage();
    void everyControlHasAName();
    void everyTextInEveryLanguage_data();
    void everyTextInEveryLanguage();

private:
    QScopedPointer<UnitOnTheDesk> m_unit;
};

void TestDesk::keyAndKeyboardAskForIt() {
    QSignalSpy wanted(m_unit->car.get(), SIGNAL(deskWanted()));
    QVERIFY(m_unit->tap("key_desk"));
    QCOMPARE(wanted.count(), 1);
    QTest::keyClick(m_unit->car->windowHandle(), Qt::Key_F12);
    QCOMPARE(wanted.count(), 2);
}

/// The host loads the desk's library when it is first asked for, and takes the desk with it.
void TestDesk::hostLoadsIt() {
    const auto opened = [] {
        const QWidgetList all = QApplication::topLevelWidgets();
        return std::count_if(all.begin(), all.end(), [](QWidget *widget) { return widget->objectName() == "desk"; });
    };
    {
        headunit::TunersDesk desk(*m_unit->car, *m_unit->unit);
        QCOMPARE(opened(), 0);
        QVERIFY(m_unit->tap("key_desk"));
        QCOMPARE(opened(), 1);
        QTest::keyClick(m_unit->car->windowHandle(), Qt::Key_F12);
        QCOMPARE(opened(), 1);
        desk.open("console");
        QCOMPARE(opened(), 1);
    }
    QCOMPARE(opened(), 0);
}

void TestDesk::closedItCostsNothing() {
    QVERIFY(!headunit::traceEnabled());
    m_unit->openDesk("console");
    QVERIFY(headunit::traceEnabled());
    QPointer<Desk> desk = m_unit->desk;
    QTest::keyPress(desk->windowHandle(), Qt::Key_W, Qt::ControlModifier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!desk);
    QVERIFY(!headunit::traceEnabled());
    QVERIFY(m_unit->car->isVisible());
}

void TestDesk::opensAPanelByName() {
    for (const headunit::PanelRow *row = headunit::panelsBegin(); row != headunit::panelsEnd(); ++row) {
        m_unit->openDesk(row->name);
        auto *const dock = m_unit->desk->findChild<QDockWidget *>(row->name);
        QVERIFY(dock && dock->isVisible());
        QVERIFY(dock->widget() && dock->widget()->isVisible());
        QCOMPARE(m_unit->desk->panel(row->name), dock->widget());
    }
    QVERIFY(!m_unit->desk->panel("nothing"));
}

void TestDesk::looksLikeADeskProgram() {
    const Desk *const desk = m_unit->openDesk("console");
    QCOMPARE(desk->font().pointSize(), 10);
    QVERIFY(desk->palette().color(QPalette::Window).lightness() > 200);
    auto *const menu = desk->menuBar()->findChild<QMenu *>("menu_windows");
    menu->popup(QPoint(0, 0));
    m_unit->pass();
    const QList<const QWidget *> all = {desk->findChild<QLineEdit *>(), menu};
    for (const QWidget *widget : all) {
        QCOMPARE(widget->font().pointSize(), 10);
        QVERIFY(widget->palette().color(QPalette::Window).lightness() > 200);
        QVERIFY(widget->style()->inherits("QFusionStyle"));
    }
    menu->hide();
    // A panel that is taken free is a window of its own.
    auto *const dock = desk->findChild<QDockWidget *>("console");
    dock->setFloating(true);
    m_unit->pass();
    QVERIFY(dock->isWindow());
    QCOMPARE(dock->findChild<QLineEdit *>()->font().pointSize(), 10);
    QVERIFY(dock->palette().color(QPalette::Window).lightness() > 200);
    // A tool tip is made by Qt, with the application's font.
    auto *const key = desk->findChild<QAbstractButton *>("console_key_pause");
    QHelpEvent help(QEvent::ToolTip, QPoint(1, 1), key->mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(key, &help);
    m_unit->pass();
    int tips = 0;
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->windowType() == Qt::ToolTip) {
            ++tips;
            QCOMPARE(widget->font().pointSize(), 10);
        }
    }
    QCOMPARE(tips, 1);
    QToolTip::hideText();
}

void TestDesk::leavesTheUnitItsLook() {
    const QImage before = m_unit->car->screen()->grab().toImage();
    m_unit->openDesk("console");
    QCOMPARE(m_unit->car->screen()->grab().toImage(), before);
    QVERIFY(m_unit->car->style()->inherits("headunit::HeadUnitStyle"));
}

void TestDesk::remembersWhereItWas() {
    Desk *desk = m_unit->openDesk("console");
    desk->setGeometry(40, 50, 700, 500);
    desk->findChild<QDockWidget *>("console")->hide();
    m_unit->closeDesk();
    QVERIFY(!m_unit->desk);
    desk = m_unit->openDesk();
    QCOMPARE(desk->geometry(), QRect(40, 50, 700, 500));
    QVERIFY(!desk->findChild<QDockWidget *>("console")->isVisible());
}

void TestDesk::shortcutsWork() {
    Desk *const desk = m_unit->openDesk("console");
    for (const headunit::PanelRow *row = headunit::panelsBegin(); row != headunit::panelsEnd(); ++row) {
        auto *const dock = desk->findChild<QDockWidget *>(row->name);
        const bool before = dock->isVisible();
        const QKeySequence keys(row->shortcut);
        // In the unit's window as well as in the desk's.
        for (QWidget *window : {static_cast<QWidget *>(desk), static_cast<QWidget *>(m_unit->car.get())}) {
            window->activateWindow();
            QTest::keyClick(window, Qt::Key(keys[0] & ~Qt::KeyboardModifierMask),
                            Qt::KeyboardModifiers(keys[0] & int(Qt::KeyboardModifierMask)));
            m_unit->pass();
            QCOMPARE(dock->isVisible(), window == desk ? !before : before);
        }
    }
}

void TestDesk::followsTheLanguage() {
    Desk *const desk = m_unit->openDesk("console");
    QCOMPARE(desk->windowTitle(), QString("Tuner's desk"));
    m_unit->unit->setLanguage("de");
    m_unit->pass();
    QCOMPARE(desk->windowTitle(), QString("Abstimmplatz"));
    QCOMPARE(desk->findChild<QDockWidget *>("console")->windowTitle(), QString("Dienstkonsole"));
}

void TestDesk::everyControlHasAName() {
    Desk *const desk = m_unit->openDesk();
    for (const headunit::PanelRow *row = headunit::panelsBegin(); row != headunit::panelsEnd(); ++row) {
        const QWidget *const panel = desk->panel(row->name);
        for (const QWidget *widget : panel->findChildren<QWidget *>()) {
            const bool control = widget->focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton *>(widget);
            const bool partOfAnother = qobject_cast<const QLineEdit *>(widget->parentWidget()) ||
                                       widget->inherits("QComboBoxListView") || widget->inherits("QTableCornerButton");
            if (!control || partOfAnother || widget->objectName().startsWith("qt_")) {
                continue;
            }
            const auto *const button = qobject_cast<const QAbstractButton *>(widget);
            const QString name = button && !button->text().isEmpty() ? button->text() : widget->accessibleName();
            const QString which =
                QString(row->name) + ": " + widget->metaObject()->className() + " " + widget->objectName();
            QVERIFY2(!name.isEmpty(), qPrintable(which));
            QVERIFY2(!widget->objectName().isEmpty(), qPrintable(which));
            QVERIFY2(!button || !button->toolTip().isEmpty(), qPrintable(which));
        }
    }
}

void TestDesk::everyTextInEveryLanguage_data() {
    QTest::addColumn<QString>("code");
    for (const auto &language : headunit::Language::all()) {
        QTest::newRow(qPrintable(language.code)) << language.code;
    }
}

/// Every text of the desk's sources has a translation that keeps its places for values.
void TestDesk::everyTextInEveryLanguage() {
    QFETCH(QString, code);
    m_unit->unit->setLanguage(code);
    const QRegularExpression call("(?:deskText|DESK_TEXT)\\(\\s*((?:\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+)\\)");
    const QRegularExpression piece("\"((?:[^\"\\\\]|\\\\.)*)\"");
    const QRegularExpression place("%(?:\\d|n)");
    QSet<QString> texts;
    QDirIterator files(DESK_SOURCES, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.fileName().endsWith("desktext.h")) {
            continue;
        }
        QVERIFY(file.open(QIODevice::ReadOnly));
        auto found = call.globalMatch(QString::fromUtf8(file.readAll()));
        while (found.hasNext()) {
            QString text;
            auto pieces = piece.globalMatch(found.next().captured(1));
            while (pieces.hasNext()) {
                text += pieces.next().captured(1).replace("\\\"", "\"").replace("\\n", "\n");
            }
            texts << text;
        }
    }
    QVERIFY(texts.size() > 20);
    const auto places = [&place](const QString &text) {
        QStringList all;
        auto found = place.globalMatch(text);
        while (found.hasNext()) {
            all << found.next().captured();
        }
        all.sort();
        return all;
    };
    QTranslator translator;
    QVERIFY(code == "en" || translator.load(QString(":/headunit/desk/desk_%1.qm").arg(code)));
    for (const QString &text : qAsConst(texts)) {
        const QString shown = headunit::deskText(text.toUtf8());
        QCOMPARE(places(shown), places(text));
        if (code != "en") {
            QVERIFY2(!translator.translate("desk", text.toUtf8()).isEmpty(), qPrintable(text));
        }
    }
}

DESK_TEST_MAIN(TestDesk)
#include "tst_desk.moc"
