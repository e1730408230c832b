// SPDX-License-Identifier: Apache-2.0
#include "desktest.h"

#include "audioservice.h"
#include "headunit/desk/console/consolemodel.h"
#include "headunit/desk/console/consolepanel.h"
#include "mcuservice.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QHeaderView>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTableView>
#include <QToolButton>

#include <thread>

using headunit::ConsoleFilter;
using headunit::ConsoleModel;
using headunit::ConsolePanel;
using headunit::ConsoleRow;
using headunit::RowKind;

class TestConsole : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_unit.reset(); }
    void touchAndWhatItCausedStandTogether();
    void rowsComeWithinATenthOfASecond();
    void writesShowOldAndNew();
    void pageThatCausedIt();
    void readsOnDemand();
    void filterByWords();
    void filterByClass();
    void filterByPage();
    void pauseAndGoOn();
    void follow();
    void clear();
    void copy();
    void saveAsText();
    void saveAsJsonLines();
    void saveSaysWhatFails();
    void logLines();
    void dragIsOneTouch();
    void keyboardIsATouch();
    void hundredThousandRows();
    void oldestGoAtTheLimit();

private:
    QStringList column(int which) const;
    QWidget *part(const char *name) const { return m_panel->findChild<QWidget *>(name); }
    void press(const char *name) { QTest::mouseClick(part(name), Qt::LeftButton); }
    void type(const QString &text);
    QStringList save(const QString &name, const QString &kind = QString());

    QScopedPointer<UnitOnTheDesk> m_unit;
    ConsolePanel *m_panel = nullptr;
    QTableView *m_table = nullptr;
};

void TestConsole::init() {
    m_unit.reset(new UnitOnTheDesk);
    m_panel = static_cast<ConsolePanel *>(m_unit->openDesk("console")->panel("console"));
    m_table = m_panel->findChild<QTableView *>("console_table");
    QVERIFY(m_table);
    // The messages of the test's platform about itself.
    m_panel->findChild<QAction *>("console_class_log")->trigger();
}

QStringList TestConsole::column(int which) const {
    QStringList texts;
    for (int row = 0; row < m_table->model()->rowCount(); ++row) {
        texts << m_table->model()->index(row, which).data().toString();
    }
    return texts;
}

void TestConsole::type(const QString &text) {
    QWidget *const words = part("console_words");
    QTest::keyClick(words, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(words, Qt::Key_Delete);
    QTest::keyClicks(words, text);
}

void TestConsole::touchAndWhatItCausedStandTogether() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QVERIFY(m_unit->tap("key_subvol_next"));
    QCOMPARE(
        column(ConsoleModel::Call),
        QStringList(
            {"press(" +
                 QString("%1, %2)").arg(m_unit->place("key_Subwoofer").x()).arg(m_unit->place("key_Subwoofer").y()),
             "release(" +
                 QString("%1, %2)").arg(m_unit->place("key_Subwoofer").x()).arg(m_unit->place("key_Subwoofer").y()),
             "doBeep(0)", "setValue(\"Setup_Sub\", 0, true, true)", "setSubwooferValue(3)",
             "press(" +
                 QString("%1, %2)").arg(m_unit->place("key_subvol_next").x()).arg(m_unit->place("key_subvol_next").y()),
             "release(" +
                 QString("%1, %2)").arg(m_unit->place("key_subvol_next").x()).arg(m_unit->place("key_subvol_next").y()),
             "doBeep(0)", "setValue(\"subwooferLevel\", 3, 4, true)", "setSubwooferValue(4)"}));
    QCOMPARE(column(ConsoleModel::TouchNumber), QStringList({"1", "1", "1", "1", "1", "2", "2", "2", "2", "2"}));
    QCOMPARE(column(ConsoleModel::Kind).mid(0, 5), QStringList({"Touch", "Touch", "Call", "Write", "Call"}));
    QCOMPARE(column(ConsoleModel::Meaning).value(4), QString("subwoofer level 3 (-10.5 dB)"));
}

void TestConsole::rowsComeWithinATenthOfASecond() {
    qvaudio::AudioService::instance()->doBeep(0);
    m_unit->pass(99);
    QCOMPARE(column(ConsoleModel::Call), QStringList{"doBeep(0)"});
}

void TestConsole::writesShowOldAndNew() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QVERIFY(m_unit->tap("key_subvol_next"));
    QVERIFY(m_unit->tap("key_subvol_next"));
    const QStringList meanings = column(ConsoleModel::Meaning);
    QVERIFY(meanings.contains("Setup_Sub: not set → true"));
    QVERIFY(meanings.contains("subwooferLevel: not set → 4"));
    QVERIFY(meanings.contains("subwooferLevel: 4 → 5"));
}

void TestConsole::pageThatCausedIt() {
    QVERIFY(m_unit->tap("key_crossover"));
    QVERIFY(m_unit->tap("key_freq_plus"));
    const QStringList calls = column(ConsoleModel::Call);
    const QStringList pages = column(ConsoleModel::Page);
    QCOMPARE(pages.value(0), QString("Tab bar"));  // where the finger is
    const int sent = calls.lastIndexOf(QRegularExpression("setCrossoverFrontFreq.*"));
    QVERIFY(sent > 0);
    QCOMPARE(pages.value(sent), QString("Crossover"));
    m_unit->unit->showHome();
    qvaudio::AudioService::instance()->doBeep(0);
    m_unit->pass(100);
    QCOMPARE(column(ConsoleModel::Page).last(), QString("Home screen"));
}

void TestConsole::readsOnDemand() {
    qvaudio::AudioService::instance()->getCurrEQType();
    m_unit->pass(100);
    QCOMPARE(column(ConsoleModel::Call), QStringList());
    m_panel->findChild<QAction *>("console_class_read")->trigger();
    qvaudio::AudioService::instance()->getCurrEQType();
    m_unit->pass(100);
    QCOMPARE(column(ConsoleModel::Call), QStringList{"getCurrEQType()"});
    QCOMPARE(column(ConsoleModel::Kind), QStringList{"Read"});
}

void TestConsole::filterByWords() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QVERIFY(m_unit->tap("key_subvol_next"));
    const int all = m_table->model()->rowCount();
    type("LEVEL 9.0");
    // The touch of what is shown is shown with it; the other touch is not.
    QCOMPARE(column(ConsoleModel::Call).mid(1), QStringList({"setSubwooferValue(4)"}));
    QCOMPARE(column(ConsoleModel::TouchNumber), QStringList({"2", "2"}));
    // Later rows go through the same filter.
    QVERIFY(m_unit->tap("key_subvol_next"));
    QVERIFY(m_unit->tap("key_subvol_prev"));
    QCOMPARE(column(ConsoleModel::TouchNumber), QStringList({"2", "2", "4", "4"}));
    type(QString());
    QCOMPARE(m_table->model()->rowCount(), all + 10);
}

void TestConsole::filterByClass() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    for (const char *name : {"touch", "call"}) {
        m_panel->findChild<QAction *>(QString("console_class_") + name)->trigger();
    }
    // The press stays as the head of what it caused.
    QCOMPARE(column(ConsoleModel::Kind), QStringList({"Touch", "Write"}));
}

void TestConsole::filterByPage() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QVERIFY(m_unit->tap("key_crossover"));
    auto *const pages = m_panel->findChild<QComboBox *>("console_page");
    const int crossover = pages->findText("Crossover");
    QVERIFY(crossover > 0);
    pages->setFocus();
    while (pages->currentIndex() != crossover) {
        QTest::keyClick(pages, Qt::Key_Down);
    }
    const QStringList shown = column(ConsoleModel::Page);
    QVERIFY(shown.size() > 1);
    QCOMPARE(shown.first(), QString("Tab bar"));  // the touch that caused the rest
    QCOMPARE(shown.mid(1).count("Crossover"), shown.size() - 1);
}

void TestConsole::pauseAndGoOn() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    const QStringList before = column(ConsoleModel::Call);
    press("console_key_pause");
    QVERIFY(m_unit->tap("key_subvol_next"));
    QCOMPARE(column(ConsoleModel::Call), before);
    const QString count = m_panel->findChild<QLabel *>("console_count")->text();
    QVERIFY2(QRegularExpression("^5 of \\d+ rows · paused, \\d+ more$").match(count).hasMatch(), qPrintable(count));
    type("setSubwooferValue");
    QCOMPARE(column(ConsoleModel::Call).mid(1), QStringList({"setSubwooferValue(3)"}));
    type(QString());
    QCOMPARE(column(ConsoleModel::Call), before);
    press("console_key_pause");
    QCOMPARE(m_table->model()->rowCount(), 10);
    QCOMPARE(column(ConsoleModel::Call).mid(0, 5), before);
}

void TestConsole::follow() {
    for (int i = 0; i < 500; ++i) {
        qvaudio::AudioService::instance()->doBeep(i);
    }
    m_unit->pass(100);
    QScrollBar *const bar = m_table->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());
    // Whoever scrolls back looks at something, and is left in peace.
    QTest::keyClick(m_table, Qt::Key_Home, Qt::ControlModifier);
    QVERIFY(!m_panel->findChild<QAction *>("console_follow")->isChecked());
    qvaudio::AudioService::instance()->doBeep(0);
    m_unit->pass(100);
    QCOMPARE(bar->value(), 0);
    press("console_key_follow");
    QCOMPARE(bar->value(), bar->maximum());
}

void TestConsole::clear() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    press("console_key_clear");
    QCOMPARE(m_table->model()->rowCount(), 0);
    QVERIFY(m_unit->tap("key_subvol_next"));
    QCOMPARE(column(ConsoleModel::Call).last(), QString("setSubwooferValue(4)"));
}

void TestConsole::copy() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    m_table->setFocus();
    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      m_table->visualRect(m_table->model()->index(3, 4)).center());
    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      m_table->visualRect(m_table->model()->index(4, 4)).center());
    QTest::keyClick(m_table, Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines[0].endsWith("#1\tGeneral\tWrite\tsetValue(\"Setup_Sub\", 0, true, true) -> store: Setup_Sub = true"),
             qPrintable(lines[0]));
    QVERIFY(lines[1].endsWith("#1\tGeneral\tCall\tsetSubwooferValue(3) -> subwoofer level 3 (-10.5 dB)"));
}

/// Saves what is shown with the dialog, as a user does, and returns the file's lines.
QStringList TestConsole::save(const QString &name, const QString &kind) {
    press("console_key_save");
    auto *const dialog = m_panel->findChild<QFileDialog *>("file_dialog");
    if (!dialog) {
        return {};
    }
    if (!kind.isEmpty()) {
        dialog->selectNameFilter(kind);
        Q_EMIT dialog->filterSelected(kind);
    }
    dialog->setDirectory(m_unit->root.path());
    auto *const edit = dialog->findChild<QLineEdit *>("fileNameEdit");
    edit->clear();
    QTest::keyClicks(edit, name);
    QTest::keyClick(edit, Qt::Key_Return);
    m_unit->pass();
    QString path = m_unit->root.filePath(name);
    if (!name.contains('.')) {
        path += kind.contains("json") ? ".jsonl" : ".txt";
    }
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split('\n') : QStringList();
}

void TestConsole::saveAsText() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    type("subwoofer level");
    const QStringList lines = save("rows");
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines[0].contains("finger down on key_Subwoofer"));
    QVERIFY(lines[1].endsWith("setSubwooferValue(3) -> subwoofer level 3 (-10.5 dB)"));
    QCOMPARE(lines[2], QString());
}

void TestConsole::saveAsJsonLines() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    const QStringList lines = save("rows", "JSON lines (*.jsonl)");
    QCOMPARE(lines.size(), 6);
    QVector<QJsonObject> rows;
    for (const QString &line : lines.mid(0, 5)) {
        rows << QJsonDocument::fromJson(line.toUtf8()).object();
        QVERIFY(!rows.last().isEmpty());
    }
    QCOMPARE(rows[3]["class"].toString(), QString("write"));
    QCOMPARE(rows[3]["key"].toString(), QString("Setup_Sub"));
    QVERIFY(rows[3]["before"].isNull());
    QCOMPARE(rows[3]["after"].toBool(), true);
    QCOMPARE(rows[4]["call"].toString(), QString("setSubwooferValue(3)"));
    QCOMPARE(rows[4]["touch"].toInt(), 1);
    QCOMPARE(rows[4]["page"].toString(), QString("Audiosetting_right_general_widget"));
}

void TestConsole::saveSaysWhatFails() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    const QString problem = m_panel->saveTo(m_unit->root.filePath("no/such/folder/rows.txt"));
    QVERIFY2(problem.contains("no/such/folder/rows.txt"), qPrintable(problem));
}

void TestConsole::logLines() {
    m_panel->findChild<QAction *>("console_class_log")->trigger();
    press("console_key_clear");
    QTest::ignoreMessage(QtWarningMsg, "a line");
    QTest::ignoreMessage(QtWarningMsg, "from a thread");
    qWarning("a line");
    std::thread([] { qWarning("from a thread"); }).join();
    m_unit->pass(100);
    const QStringList lines = column(ConsoleModel::Meaning);
    QVERIFY(lines.contains("a line"));
    QVERIFY(lines.indexOf("from a thread") > lines.indexOf("a line"));
    QCOMPARE(column(ConsoleModel::Kind).value(lines.indexOf("a line")), QString("Log line"));
}

void TestConsole::dragIsOneTouch() {
    QVERIFY(m_unit->tap("key_eq"));
    press("console_key_clear");
    const QPoint start = m_unit->place("SliderBarWidget_0");
    QPoint from = start;
    if (start.x() < 0) {
        for (QWidget *widget : m_unit->car->findChildren<QWidget *>()) {
            if (widget->isVisible() && QByteArray(widget->metaObject()->className()).contains("SliderBarWidget")) {
                from = widget->mapTo(m_unit->car.get(), widget->rect().center());
                break;
            }
        }
    }
    QVERIFY(from.x() > 0);
    m_unit->press(from);
    for (int y = 5; y <= 60; y += 5) {
        m_unit->move(from - QPoint(0, y));
        m_unit->pass(16);
    }
    m_unit->release(from - QPoint(0, 60));
    m_unit->pass(500);
    const QStringList numbers = column(ConsoleModel::TouchNumber);
    QVERIFY(column(ConsoleModel::Call).filter("setCustomEq").size() > 0);
    QCOMPARE(numbers.count("2"), numbers.size());
    QCOMPARE(column(ConsoleModel::Call).filter(QRegularExpression("^press")).size(), 1);
}

void TestConsole::keyboardIsATouch() {
    QTest::keyClick(m_unit->car->windowHandle(), Qt::Key_Plus);
    m_unit->pass(100);
    QCOMPARE(column(ConsoleModel::Call).first(), QString("key(+)"));
    QVERIFY(column(ConsoleModel::Call).contains("setVolumeLevel(17, 0)"));
    QCOMPARE(column(ConsoleModel::TouchNumber).count("1"), m_table->model()->rowCount());
}

/// Nothing is done for rows that nobody sees: how many texts are made does not grow with their number.
void TestConsole::hundredThousandRows() {
    class Counting : public ConsoleModel {
    public:
        QVariant data(const QModelIndex &index, int role) const override {
            ++asked;
            return ConsoleModel::data(index, role);
        }
        mutable qint64 asked = 0;
    };
    Counting model;
    QTableView table;
    table.setModel(&model);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.show();
    const auto fill = [&model, this](int count) {
        for (int i = 0; i < count; ++i) {
            ConsoleRow row;
            row.call = QStringLiteral("setCustomEq(%1, 3, true)").arg(i % 25);
            row.meaning = QStringLiteral("band 250 Hz: +3 dB");
            model.append(row);
        }
        m_unit->pass(100);
    };
    fill(1000);
    const qint64 few = model.asked;
    model.asked = 0;
    fill(99000);
    QCOMPARE(model.rowCount(), 100000);
    table.scrollToBottom();
    m_unit->pass(100);
    QVERIFY2(model.asked <= 4 * few, qPrintable(QString("%1, with few rows %2").arg(model.asked).arg(few)));
    ConsoleFilter filter;
    filter.words = QStringList{"setCustomEq(7"};
    QElapsedTimer timer;
    timer.start();
    model.setFilter(filter);
    qInfo("a filter over 100,000 rows: %lld ms", timer.elapsed());
    QCOMPARE(model.rowCount(), 4000);
}

void TestConsole::oldestGoAtTheLimit() {
    ConsoleModel model;
    for (int i = 0; i < ConsoleModel::mostRows + 5; ++i) {
        ConsoleRow row;
        row.call = QString::number(i);
        model.append(row);
        if (i == 1000) {
            model.flush();
        }
    }
    model.flush();
    QCOMPARE(model.total(), ConsoleModel::mostRows - 20000);
    QCOMPARE(model.rowCount(), model.total());
    QCOMPARE(model.row(0).call, QString::number(20005));
    QCOMPARE(model.row(model.rowCount() - 1).call, QString::number(ConsoleModel::mostRows + 4));
}

DESK_TEST_MAIN(TestConsole)
#include "tst_console.moc"
