// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/texttables.h"

#include <QCoreApplication>
#include <QEvent>

namespace headunit {

namespace {

const char english[] = "en";

}  // namespace

TextTables::TextTables(const QString &directory) : m_directory(directory), m_code(QLatin1String(english)) {
    if (!read(m_english, "headunit", m_code)) {
        qWarning("No English texts in %s", qPrintable(directory));
    }
}

bool TextTables::read(Table &table, const char *name, const QString &code) const {
    table = std::make_unique<QTranslator>();
    return table->load(QStringLiteral("%1/%2_%3.qm").arg(m_directory, QLatin1String(name), code));
}

bool TextTables::choose(const QString &code) {
    Table ids;
    Table forms;
    if (code != QLatin1String(english) && !(read(ids, "headunit", code) && read(forms, "forms", code))) {
        return false;
    }
    m_ids = std::move(ids);
    m_forms = std::move(forms);
    m_code = code;
    m_known.clear();
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
    return true;
}

QString TextTables::text(int id) {
    auto found = m_known.constFind(id);
    if (found == m_known.constEnd()) {
        found = m_known.insert(id, translate(nullptr, QByteArray::number(id).constData(), nullptr, -1));
    }
    return *found;
}

QString TextTables::translate(const char *context, const char *source, const char *disambiguation, int n) const {
    for (const Table *table : {&m_ids, &m_forms, &m_english}) {
        QString text = *table ? (*table)->translate(context, source, disambiguation, n) : QString();
        if (!text.isNull()) {
            return text;
        }
    }
    return QString();
}

// An empty translator would be installed without a word to the widgets.
bool TextTables::isEmpty() const {
    return false;
}

}  // namespace headunit
