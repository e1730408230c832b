// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

#include <QHash>
#include <QString>
#include <QTranslator>

#include <memory>

namespace headunit {

/// The one translator that the application sees: texts of the language in force, and English where it has none.
///
/// A switch of language is one change inside it, and so one QEvent::LanguageChange. Tables are the compiled files
/// headunit_<code>.qm (texts with numbers) and forms_<code>.qm (texts of forms; English needs none) of a directory.
class PLATFORM_API TextTables : public QTranslator {
    Q_OBJECT
public:
    /// Reads the English texts; from then on they are in force.
    explicit TextTables(const QString &directory);

    /// Puts another language in force and tells the application. False, with nothing changed, where a table is
    /// missing.
    bool choose(const QString &code);
    QString code() const { return m_code; }

    /// The text of that id, or an empty one.
    QString text(int id);

    QString translate(const char *context, const char *source, const char *disambiguation, int n) const override;
    bool isEmpty() const override;

private:
    using Table = std::unique_ptr<QTranslator>;

    bool read(Table &table, const char *name, const QString &code) const;

    const QString m_directory;
    QString m_code;
    Table m_ids;
    Table m_forms;
    Table m_english;
    QHash<int, QString> m_known;  // texts asked for in this language, also those that are missing
};

}  // namespace headunit
