// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/console/consolemodel.h"

#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/pages.h"

#include <QColor>
#include <QDateTime>
#include <QFont>

#include <algorithm>
#include <array>

namespace headunit {

namespace {

constexpr int gatherTime = 50;     // ms until new rows are shown
constexpr int dropAtOnce = 20000;  // of the oldest rows, so that it is done seldom

constexpr std::array<const char *, ConsoleModel::columns> titles = {DESK_TEXT("Time"), DESK_TEXT("Touch"),
                                                                    DESK_TEXT("Page"), DESK_TEXT("Class"),
                                                                    DESK_TEXT("Call"), DESK_TEXT("Meaning")};

/// The colour of a kind of row, on white; each has its name beside it.
QColor colourOf(RowKind kind) {
    switch (kind) {
        case RowKind::Write:
            return QColor(0x1B, 0x5E, 0x20);
        case RowKind::Announcement:
        case RowKind::Posted:
            return QColor(0x6A, 0x1B, 0x9A);
        case RowKind::Window:
            return QColor(0x0D, 0x47, 0xA1);
        case RowKind::Read:
            return QColor(0x61, 0x61, 0x61);
        case RowKind::Log:
            return QColor(0xB7, 0x1C, 0x1C);
        default:
            return QColor(0x20, 0x24, 0x2A);
    }
}

// Rows of one touch have one background, those of the next the other.
constexpr QColor backgrounds[] = {QColor(0xFF, 0xFF, 0xFF), QColor(0xEE, 0xF4, 0xFA)};

}  // namespace

bool ConsoleFilter::passes(const ConsoleRow &row) const {
    if (!shows(row.kind) || (!page.isNull() && row.page != page)) {
        return false;
    }
    for (const QString &word : words) {
        if (!row.call.contains(word, Qt::CaseInsensitive) && !row.meaning.contains(word, Qt::CaseInsensitive) &&
            !row.page.contains(word, Qt::CaseInsensitive)) {
            return false;
        }
    }
    return true;
}

ConsoleModel::ConsoleModel(QObject *parent) : QAbstractTableModel(parent) {
    m_flush.setSingleShot(true);
    m_flush.setInterval(gatherTime);
    connect(&m_flush, &QTimer::timeout, this, &ConsoleModel::flush);
}

void ConsoleModel::append(ConsoleRow row) {
    if (!row.page.isEmpty() && !m_pages.contains(row.page)) {
        m_pages << row.page;
    }
    m_rows.push_back(std::move(row));
    if (!m_flush.isActive()) {
        m_flush.start();
    }
}

/// Appends what the filter lets through of the rows that it has not looked at.
void ConsoleModel::collect(std::vector<Number> *shown) {
    for (; m_looked < m_first + m_rows.size(); ++m_looked) {
        const ConsoleRow &row = m_rows[m_looked - m_first];
        const bool passes = m_filter.passes(row);
        if (row.press) {
            m_press = m_looked;
            m_pressWaits = !passes;
        } else if (passes && m_pressWaits && m_press >= m_first && row.touch == m_rows[m_press - m_first].touch) {
            shown->push_back(m_press);
            m_pressWaits = false;
        }
        if (passes) {
            shown->push_back(m_looked);
        }
    }
}

void ConsoleModel::flush() {
    m_flush.stop();
    if (m_rows.size() > mostRows) {
        dropOldest();
    }
    if (!m_paused) {
        std::vector<Number> more;
        collect(&more);
        if (!more.empty()) {
            const int before = static_cast<int>(m_shown.size());
            beginInsertRows(QModelIndex(), before, before + static_cast<int>(more.size()) - 1);
            m_shown.insert(m_shown.end(), more.begin(), more.end());
            endInsertRows();
        }
    }
    Q_EMIT counted();
}

void ConsoleModel::dropOldest() {
    const size_t dropped = m_rows.size() - mostRows + dropAtOnce;
    m_rows.erase(m_rows.begin(), m_rows.begin() + static_cast<std::ptrdiff_t>(dropped));
    m_first += dropped;
    m_looked = qMax(m_looked, m_first);
    const auto kept = std::lower_bound(m_shown.begin(), m_shown.end(), m_first);
    if (kept != m_shown.begin()) {
        beginRemoveRows(QModelIndex(), 0, static_cast<int>(kept - m_shown.begin()) - 1);
        m_shown.erase(m_shown.begin(), kept);
        endRemoveRows();
    }
}

void ConsoleModel::clear() {
    beginResetModel();
    m_first += m_rows.size();
    m_looked = m_first;
    m_rows.clear();
    m_shown.clear();
    m_pages.clear();
    m_pressWaits = false;
    endResetModel();
    Q_EMIT counted();
}

void ConsoleModel::setFilter(const ConsoleFilter &filter) {
    const Number end = m_looked;
    beginResetModel();
    m_filter = filter;
    m_shown.clear();
    m_pressWaits = false;
    m_looked = m_first;
    if (!m_paused) {
        collect(&m_shown);
    } else {
        // Rows since the pause stay out of sight.
        std::vector<Number> all;
        collect(&all);
        m_shown.assign(all.begin(), std::lower_bound(all.begin(), all.end(), end));
        m_looked = end;
    }
    endResetModel();
    Q_EMIT counted();
}

void ConsoleModel::setPaused(bool paused) {
    m_paused = false;
    flush();
    m_paused = paused;
}

void ConsoleModel::retranslate() {
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columns - 1);
    if (!m_shown.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columns - 1));
    }
}

int ConsoleModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

int ConsoleModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : columns;
}

QString ConsoleModel::text(const ConsoleRow &row, int column) const {
    switch (column) {
        case Time:
            return QDateTime::fromMSecsSinceEpoch(row.time).toString(QStringLiteral("HH:mm:ss.zzz"));
        case TouchNumber:
            return row.touch > 0 ? QString::number(row.touch) : QString();
        case Page:
            return pageTitle(row.page);
        case Kind:
            return rowKindText(row.kind);
        case Call:
            return row.call;
        default:
            return rowMeaning(row);
    }
}

QVariant ConsoleModel::data(const QModelIndex &index, int role) const {
    const ConsoleRow &shown = row(index.row());
    switch (role) {
        case Qt::DisplayRole:
            return text(shown, index.column());
        case Qt::ToolTipRole:
            return index.column() >= Call ? text(shown, index.column()) : QVariant();
        case Qt::ForegroundRole:
            return colourOf(shown.kind);
        case Qt::BackgroundRole:
            return backgrounds[shown.touch % 2];
        case Qt::FontRole: {
            QFont font;
            font.setBold(shown.press);
            return shown.press ? font : QVariant();
        }
        default:
            return QVariant();
    }
}

QVariant ConsoleModel::headerData(int section, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? deskText(titles[static_cast<size_t>(section)])
                                                                    : QVariant();
}

}  // namespace headunit
