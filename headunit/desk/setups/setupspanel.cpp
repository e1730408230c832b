// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/setups/setupspanel.h"

#include "headunit/desk/frame/deskcontext.h"
#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/savefile.h"
#include "headunit/settings/unitroot.h"
#include "headunit/settings/unitsettings.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QSplitter>
#include <QTableWidget>
#include <QToolBar>
#include <QUndoView>
#include <QVBoxLayout>

namespace headunit {

namespace {

constexpr int space = 6;
constexpr int rowPadding = 4;
constexpr int listWidth = 340;
constexpr int nameWidth = 260;
constexpr int valueWidth = 110;
const QString suffix = QStringLiteral(".txt");

QString namedFolder() {
    return unitRoot() + QStringLiteral("/desk/setups");
}

QString withShortcut(const QString &text, const QAction *action) {
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    return keys.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, keys);
}

}  // namespace

SetupsPanel::SetupsPanel(DeskContext &context, QWidget *parent)
    : Panel(parent),
      m_context(context),
      m_comparison(context.history),
      m_tools(new QToolBar(this)),
      m_save(addTool("save", QKeySequence(), &SetupsPanel::askToSave)),
      m_apply(addTool("apply", Qt::CTRL + Qt::Key_Return, &SetupsPanel::apply)),
      m_remove(addTool("remove", QKeySequence(), &SetupsPanel::remove)),
      m_import(addTool("import", QKeySequence::Open, &SetupsPanel::askToImport)),
      m_export(addTool("export", QKeySequence::Save, &SetupsPanel::askToExport)),
      m_toggle(addTool("toggle", Qt::Key_F5, &SetupsPanel::toggle)),
      m_match(addTool("match", Qt::Key_F6, &SetupsPanel::match)),
      m_copy(addTool("copy", QKeySequence(), &SetupsPanel::copyToOther)),
      m_inForce(new QLabel(this)),
      m_names(new QListWidget(this)),
      m_preview(new QTableWidget(0, 3, this)),
      m_previewTitle(new QLabel(this)),
      m_namesTitle(new QLabel(this)),
      m_historyTitle(new QLabel(this)),
      m_steps(new QUndoView(&context.history.stack(), this)),
      m_message(new QLabel(this)) {
    for (QAction *const byEar : {m_toggle, m_match}) {
        byEar->setShortcutContext(Qt::ApplicationShortcut);  // with the unit's window in front, too
    }
    m_match->setCheckable(true);
    m_inForce->setObjectName(QStringLiteral("setups_in_force"));
    m_inForce->setContentsMargins(space, 0, space, 0);
    m_message->setObjectName(QStringLiteral("setups_message"));
    m_message->setContentsMargins(space, 0, space, 2);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_message->setWordWrap(true);
    m_tools->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_tools->addWidget(m_inForce);
    auto *const parts = new QSplitter(this);
    parts->addWidget(makeLists());
    parts->addWidget(makePreview());
    parts->setStretchFactor(1, 1);
    parts->setSizes({listWidth, 2 * listWidth});
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_tools);
    layout->addWidget(parts, 1);
    layout->addWidget(m_message);
    connect(m_names, &QListWidget::currentItemChanged, this, [this](QListWidgetItem *item) {
        if (item) {
            open(QDir(namedFolder()).filePath(item->text() + suffix));
        }
    });
    connect(m_names, &QListWidget::itemActivated, this, &SetupsPanel::apply);
    connect(&m_comparison, &Comparison::toggled, this, &SetupsPanel::showComparison);
    connect(&context.history, &ChangeHistory::stepped, this, &SetupsPanel::showPreview);
    connect(&context.history.stack(), &QUndoStack::indexChanged, this, &SetupsPanel::showPreview);
    readNames();
}

QAction *SetupsPanel::addTool(const char *name, const QKeySequence &shortcut, void (SetupsPanel::*slot)()) {
    QAction *const action = m_tools->addAction(QString());
    action->setObjectName(QStringLiteral("setups_") + QLatin1String(name));
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
    m_tools->widgetForAction(action)->setObjectName(QStringLiteral("setups_key_") + QLatin1String(name));
    connect(action, &QAction::triggered, this, slot);
    return action;
}

QWidget *SetupsPanel::makeLists() {
    auto *const lists = new QWidget(this);
    auto *const layout = new QVBoxLayout(lists);
    layout->setContentsMargins(space, 0, 0, 0);
    layout->addWidget(m_namesTitle);
    layout->addWidget(m_names, 1);
    layout->addWidget(m_historyTitle);
    layout->addWidget(m_steps, 2);
    m_names->setObjectName(QStringLiteral("setups_names"));
    m_steps->setObjectName(QStringLiteral("setups_steps"));
    return lists;
}

QWidget *SetupsPanel::makePreview() {
    auto *const side = new QWidget(this);
    auto *const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, space, 0);
    layout->addWidget(m_previewTitle);
    layout->addWidget(m_preview, 1);
    m_previewTitle->setObjectName(QStringLiteral("setups_preview_title"));
    m_preview->setObjectName(QStringLiteral("setups_preview"));
    m_preview->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_preview->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_preview->setTabKeyNavigation(false);
    m_preview->verticalHeader()->hide();
    m_preview->verticalHeader()->setDefaultSectionSize(QFontMetrics(font()).height() + rowPadding);
    m_preview->horizontalHeader()->setStretchLastSection(true);
    m_preview->horizontalHeader()->setHighlightSections(false);
    m_preview->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_preview->setColumnWidth(0, nameWidth);
    m_preview->setColumnWidth(1, valueWidth);
    return side;
}

void SetupsPanel::readNames() {
    const QString chosen = m_names->currentItem() ? m_names->currentItem()->text() : QString();
    const QSignalBlocker blocker(m_names);
    m_names->clear();
    for (const QString &file : QDir(namedFolder()).entryList({QLatin1Char('*') + suffix}, QDir::Files, QDir::Name)) {
        m_names->addItem(file.left(file.size() - suffix.size()));
        if (m_names->item(m_names->count() - 1)->text() == chosen) {
            m_names->setCurrentRow(m_names->count() - 1);
        }
    }
}

void SetupsPanel::open(const QString &path) {
    m_chosen = readSetup(path);
    m_chosenName = QFileInfo(path).completeBaseName();
    say(m_chosen.problem.isEmpty() ? m_chosen.remarks.join(QLatin1Char('\n')) : m_chosen.problem);
    showPreview();
}

void SetupsPanel::showPreview() {
    const QVector<SetupChange> changes = setupChanges(audioStore().values(), m_chosen.values);
    m_preview->setRowCount(changes.size());
    for (int row = 0; row < changes.size(); ++row) {
        m_preview->setItem(row, 0, new QTableWidgetItem(changes[row].name));
        m_preview->setItem(row, 1, new QTableWidgetItem(changes[row].before));
        m_preview->setItem(row, 2, new QTableWidgetItem(changes[row].after));
    }
    m_previewTitle->setText(m_chosen.values.isEmpty()
                                ? deskText("Choose or import a set-up to see what it would change")
                                : deskText("\"%1\" changes %2 values").arg(m_chosenName).arg(changes.size()));
    m_apply->setEnabled(!changes.isEmpty());
    m_remove->setEnabled(m_names->currentItem());
}

void SetupsPanel::showComparison() {
    QString text = m_comparison.inForceIsB() ? deskText("B is in force") : deskText("A is in force");
    if (m_comparison.trim() < 0) {
        text += QStringLiteral(", ") + deskText("%1 dB to match").arg(m_comparison.trim(), 0, 'f', 1);
    }
    m_inForce->setText(text);
}

void SetupsPanel::say(const QString &text) {
    m_message->setText(text);
}

void SetupsPanel::saveAs(const QString &path) {
    const QString problem = writeSetup(path, audioStore().values());
    say(problem.isEmpty() ? deskText("Saved in %1").arg(path) : problem);
    readNames();
}

void SetupsPanel::askToSave() {
    QDir().mkpath(namedFolder());
    askWhereToSave(
        this, deskText("Keep the present set-up under a name"), {deskText("Set-up (*.txt)")},
        [this](const QString &path) { saveAs(path); }, namedFolder());
}

void SetupsPanel::askToExport() {
    askWhereToSave(this, deskText("Export the present set-up"), {deskText("Set-up (*.txt)")},
                   [this](const QString &path) { saveAs(path); });
}

void SetupsPanel::askToImport() {
    askWhatToOpen(this, deskText("Import a set-up"), {deskText("Set-up (*.txt)")}, [this](const QString &path) {
        const QSignalBlocker blocker(m_names);
        m_names->setCurrentItem(nullptr);
        open(path);
    });
}

void SetupsPanel::apply() {
    if (!m_chosen.values.isEmpty()) {
        m_context.history.change(DESK_TEXT("Set-up"), -1, m_chosen.values, nullptr);
        say(deskText("\"%1\" is in force").arg(m_chosenName));
    }
}

void SetupsPanel::remove() {
    if (const QListWidgetItem *const item = m_names->currentItem()) {
        QFile file(QDir(namedFolder()).filePath(item->text() + suffix));
        say(file.remove() ? deskText("\"%1\" is deleted").arg(item->text()) : file.errorString());
        m_chosen = SetupFile();
        readNames();
        showPreview();
    }
}

void SetupsPanel::toggle() {
    m_comparison.toggle();
}

void SetupsPanel::match() {
    m_comparison.setMatched(m_match->isChecked());
}

void SetupsPanel::copyToOther() {
    m_comparison.copyToOther();
    say(m_comparison.inForceIsB() ? deskText("A is now a copy of B") : deskText("B is now a copy of A"));
}

void SetupsPanel::retranslate() {
    const struct {
        QAction *action;
        QString text;
        QString tip;
    } rows[] = {
        {m_save, deskText("Keep as…"), deskText("Keeps the present set-up under a name")},
        {m_apply, deskText("Apply"), deskText("Puts the set-up that is shown in force")},
        {m_remove, deskText("Delete"), deskText("Deletes the chosen set-up")},
        {m_import, deskText("Import…"), deskText("Shows what a set-up file would change; Apply puts it in force")},
        {m_export, deskText("Export…"), deskText("Writes the present set-up into a file, for another unit")},
        {m_toggle, deskText("A/B"), deskText("Changes between two set-ups; what you change goes to the one in force")},
        {m_match, deskText("Match levels"),
         deskText("Makes the louder of A and B as quiet as the other, so that the ear compares the sound")},
        {m_copy, deskText("Copy to the other"), deskText("Makes the other one of A and B a copy of the one in force")},
    };
    for (const auto &row : rows) {
        row.action->setText(row.text);
        row.action->setToolTip(withShortcut(row.tip, row.action));
    }
    m_namesTitle->setText(deskText("Set-ups"));
    m_names->setAccessibleName(deskText("Set-ups"));
    m_historyTitle->setText(deskText("Changes"));
    m_steps->setAccessibleName(deskText("Changes"));
    m_steps->setToolTip(deskText("Every change; touch one to go back or forth to it"));
    m_steps->setEmptyLabel(deskText("Before all changes"));
    m_message->setAccessibleName(deskText("Result"));
    m_preview->setAccessibleName(deskText("Changes of the set-up"));
    m_preview->setHorizontalHeaderLabels({deskText("Value"), deskText("Now"), deskText("In the set-up")});
    showComparison();
    showPreview();
}

}  // namespace headunit
