// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/console/consolerow.h"

#include <QAbstractTableModel>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <vector>

namespace headunit {

/// The selection of the console's rows that is shown.
struct ConsoleFilter {
    QStringList words;                      ///< all of them stand in the row, upper or lower case
    unsigned kinds = (1U << rowKinds) - 1;  ///< a bit per RowKind
    QString page;                           ///< by the name of its class; null: every page

    bool shows(RowKind kind) const { return kinds & (1U << static_cast<unsigned>(kind)); }
    bool passes(const ConsoleRow &row) const;
};

/// The rows of the service console: all that happened, of which it shows what the filter lets through. A touch of which
/// something is shown is shown as well, above it.
///
/// Rows are kept as they came and made into texts when they are seen. New ones are shown together, at most 50 ms after
/// they came.
class ConsoleModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Time, TouchNumber, Page, Kind, Call, Meaning, columns };
    static constexpr int mostRows = 200000;  ///< beyond this the oldest go

    explicit ConsoleModel(QObject *parent = nullptr);

    void append(ConsoleRow row);
    void clear();
    void setFilter(const ConsoleFilter &filter);
    /// While paused, rows are kept but not shown.
    void setPaused(bool paused);
    /// Shows at once what came since.
    void flush();

    const ConsoleRow &row(int shown) const { return m_rows[m_shown[static_cast<size_t>(shown)] - m_first]; }
    int total() const { return static_cast<int>(m_rows.size()); }
    /// Rows that came while paused, or since rows were last shown.
    int waiting() const { return static_cast<int>(m_first + m_rows.size() - m_looked); }
    /// Every page that a row came from, in the order of their first.
    const QStringList &pages() const { return m_pages; }
    void retranslate();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    /// total(), waiting() or pages() changed.
    void counted();

private:
    using Number = quint64;  ///< of a row, since the beginning

    void collect(std::vector<Number> *shown);
    void dropOldest();
    QString text(const ConsoleRow &row, int column) const;

    std::deque<ConsoleRow> m_rows;
    Number m_first = 0;   ///< number of m_rows.front()
    Number m_looked = 0;  ///< rows before this were looked at by the filter
    std::vector<Number> m_shown;
    Number m_press = 0;         ///< the last press that the filter looked at ...
    bool m_pressWaits = false;  ///< ... which is not shown yet
    ConsoleFilter m_filter;
    QStringList m_pages;
    bool m_paused = false;
    QTimer m_flush;
};

}  // namespace headunit
