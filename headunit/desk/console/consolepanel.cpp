// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/console/consolepanel.h"

#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/pages.h"
#include "headunit/desk/frame/savefile.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace headunit {

namespace {

constexpr int columnWidths[] = {92, 76, 130, 100, 330};  // the last one takes the rest
constexpr int rowPadding = 4;

/// A text with the keys that do the same.
QString withShortcut(const QString &text, const QAction *action) {
    return QStringLiteral("%1 (%2)").arg(text, action->shortcut().toString(QKeySequence::NativeText));
}

}  // namespace

ConsolePanel::ConsolePanel(DeskContext &context, QWidget *parent)
    : Panel(parent),
      m_recorder(context, m_model),
      m_words(new QLineEdit(this)),
      m_kinds(new QToolButton(this)),
      m_page(new QComboBox(this)),
      m_tools(new QToolBar(this)),
      m_pause(addTool("pause", Qt::CTRL + Qt::Key_P)),
      m_follow(addTool("follow", Qt::CTRL + Qt::Key_E)),
      m_clear(addTool("clear", Qt::CTRL + Qt::Key_L)),
      m_copy(addTool("copy", QKeySequence::Copy)),
      m_save(addTool("save", QKeySequence::Save)),
      m_table(new QTableView(this)),
      m_count(new QLabel(this)) {
    m_words->setObjectName(QStringLiteral("console_words"));
    m_words->setClearButtonEnabled(true);
    m_page->setObjectName(QStringLiteral("console_page"));
    m_page->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_page->addItem(QString(), QString());
    m_count->setObjectName(QStringLiteral("console_count"));
    m_count->setContentsMargins(6, 0, 6, 2);
    auto *const filters = new QHBoxLayout;
    filters->setContentsMargins(6, 4, 6, 0);
    filters->addWidget(m_words, 1);
    filters->addWidget(m_kinds);
    filters->addWidget(m_page);
    filters->addWidget(m_tools);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(filters);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_count);
    m_tools->setToolButtonStyle(Qt::ToolButtonTextOnly);
    addKinds();
    setUpTable();

    m_pause->setCheckable(true);
    m_follow->setCheckable(true);
    m_follow->setChecked(true);
    connect(m_words, &QLineEdit::textChanged, this, &ConsolePanel::takeFilter);
    connect(m_page, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ConsolePanel::takeFilter);
    connect(m_pause, &QAction::toggled, &m_model, &ConsoleModel::setPaused);
    connect(m_follow, &QAction::toggled, this, &ConsolePanel::scrollToEnd);
    connect(m_clear, &QAction::triggered, &m_model, &ConsoleModel::clear);
    connect(m_copy, &QAction::triggered, this, &ConsolePanel::copySelection);
    connect(m_save, &QAction::triggered, this, &ConsolePanel::askToSave);
    connect(&m_model, &ConsoleModel::counted, this, &ConsolePanel::updateCount);
    connect(&m_model, &ConsoleModel::rowsInserted, this, &ConsolePanel::scrollToEnd);
    takeFilter();
}

QAction *ConsolePanel::addTool(const char *name, const QKeySequence &shortcut) {
    QAction *const action = m_tools->addAction(QString());
    action->setObjectName(QStringLiteral("console_") + QLatin1String(name));
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
    m_tools->widgetForAction(action)->setObjectName(QStringLiteral("console_key_") + QLatin1String(name));
    return action;
}

void ConsolePanel::addKinds() {
    m_kinds->setObjectName(QStringLiteral("console_classes"));
    m_kinds->setPopupMode(QToolButton::InstantPopup);
    auto *const menu = new QMenu(m_kinds);
    for (int kind = 0; kind < rowKinds; ++kind) {
        QAction *const action = menu->addAction(QString());
        action->setObjectName(QStringLiteral("console_class_") + rowKindName(static_cast<RowKind>(kind)));
        action->setCheckable(true);
        action->setChecked(static_cast<RowKind>(kind) != RowKind::Read);
        connect(action, &QAction::toggled, this, &ConsolePanel::takeFilter);
        m_kindActions << action;
    }
    m_kinds->setMenu(menu);
}

void ConsolePanel::setUpTable() {
    m_table->setObjectName(QStringLiteral("console_table"));
    m_table->setModel(&m_model);
    m_table->setShowGrid(false);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setWordWrap(false);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(QFontMetrics(font()).height() + rowPadding);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    int column = 0;
    for (const int width : columnWidths) {
        m_table->setColumnWidth(column++, width);
    }
    connect(m_table->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        if (!m_following) {
            m_follow->setChecked(value == m_table->verticalScrollBar()->maximum());
        }
    });
}

void ConsolePanel::takeFilter() {
    ConsoleFilter filter;
    filter.words = m_words->text().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    filter.kinds = 0;
    for (int kind = 0; kind < rowKinds; ++kind) {
        filter.kinds |= m_kindActions[kind]->isChecked() ? 1U << static_cast<unsigned>(kind) : 0U;
    }
    const QString page = m_page->currentData().toString();
    filter.page = page.isEmpty() ? QString() : page;
    m_recorder.setReads(filter.shows(RowKind::Read));
    m_model.setFilter(filter);
    scrollToEnd();
}

void ConsolePanel::scrollToEnd() {
    if (m_follow->isChecked()) {
        m_following = true;
        m_table->scrollToBottom();
        m_following = false;
    }
}

void ConsolePanel::updateCount() {
    QString text = deskText("%1 of %2 rows").arg(m_model.rowCount()).arg(m_model.total());
    if (m_pause->isChecked()) {
        text += QStringLiteral(" · ") + deskText("paused, %1 more").arg(m_model.waiting());
    }
    m_count->setText(text);
    if (m_page->count() != m_model.pages().size() + 1) {
        updatePages();
    }
}

void ConsolePanel::updatePages() {
    const QString chosen = m_page->currentData().toString();
    const QSignalBlocker blocker(m_page);
    while (m_page->count() > 1) {
        m_page->removeItem(1);
    }
    m_page->setItemText(0, deskText("Every page"));
    for (const QString &page : m_model.pages()) {
        m_page->addItem(pageTitle(page), page);
    }
    m_page->setCurrentIndex(qMax(0, m_page->findData(chosen)));
}

void ConsolePanel::copySelection() {
    QModelIndexList rows = m_table->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex &index : qAsConst(rows)) {
        lines << rowAsText(m_model.row(index.row()));
    }
    if (!lines.isEmpty()) {
        QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
    }
}

void ConsolePanel::askToSave() {
    askWhereToSave(this, deskText("Save the rows shown"), {deskText("Text (*.txt)"), deskText("JSON lines (*.jsonl)")},
                   [this](const QString &path) {
                       const QString problem = saveTo(path);
                       m_count->setText(problem.isEmpty() ? deskText("Saved in %1").arg(path) : problem);
                   });
}

QString ConsolePanel::saveTo(const QString &path) {
    const bool json = path.endsWith(QLatin1String(".jsonl"));
    return saveFile(this, path, m_model.rowCount(), [this, json](QIODevice &file, int index) {
        const ConsoleRow &row = m_model.row(index);
        file.write((json ? rowAsJson(row) : rowAsText(row).toUtf8()) + '\n');
    });
}

void ConsolePanel::retranslate() {
    m_words->setPlaceholderText(deskText("Words that stand in the row"));
    m_words->setAccessibleName(deskText("Filter by words"));
    m_words->setToolTip(deskText("Shows the rows in which all of these words stand, in call, meaning or page"));
    m_kinds->setText(deskText("Classes"));
    m_kinds->setToolTip(deskText("Which classes of rows are shown. Reads are recorded only while they are."));
    for (int kind = 0; kind < rowKinds; ++kind) {
        m_kindActions[kind]->setText(rowKindText(static_cast<RowKind>(kind)));
    }
    m_page->setAccessibleName(deskText("Filter by page"));
    m_page->setToolTip(deskText("Shows what this page of the unit caused"));
    m_pause->setText(deskText("Pause"));
    m_pause->setToolTip(
        withShortcut(deskText("Holds the rows still; what comes meanwhile is shown afterwards"), m_pause));
    m_follow->setText(deskText("Follow"));
    m_follow->setToolTip(withShortcut(deskText("Keeps the newest row in sight"), m_follow));
    m_clear->setText(deskText("Clear"));
    m_clear->setToolTip(withShortcut(deskText("Forgets all rows"), m_clear));
    m_copy->setText(deskText("Copy"));
    m_copy->setToolTip(withShortcut(deskText("Copies the selected rows as text"), m_copy));
    m_save->setText(deskText("Save…"));
    m_save->setToolTip(withShortcut(deskText("Saves the rows shown as text or as JSON lines"), m_save));
    m_table->setAccessibleName(deskText("Rows of the service console"));
    m_model.retranslate();
    updatePages();
    updateCount();
}

}  // namespace headunit
