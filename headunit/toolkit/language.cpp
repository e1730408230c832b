#include "headunit/toolkit/language.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHash>
#include <QTranslator>

#include <memory>

namespace headunit {

namespace {

const char fallbackCode[] = "en";

/// The one translator that the application sees. It asks the tables of the language in force and then the English
/// ones, so that a switch of language is one change, and one QEvent::LanguageChange.
class Tables : public QTranslator {
public:
    Tables() {
        const bool found = load(fallback, "headunit", QLatin1String(fallbackCode));
        Q_ASSERT(found);
        Q_UNUSED(found);
        if (qApp) {
            QCoreApplication::installTranslator(this);
        }
    }

    // Says that there is something to translate; else the application would not announce the translator.
    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char *disambiguation, int n) const override {
        for (const auto *table : {&chosenIds, &chosenForms, &fallback}) {
            const QString text = *table ? (*table)->translate(context, source, disambiguation, n) : QString();
            if (!text.isNull()) {
                return text;
            }
        }
        return QString();
    }

    bool choose(const QString &wanted) {
        std::unique_ptr<QTranslator> ids;
        std::unique_ptr<QTranslator> forms;
        if (wanted != QLatin1String(fallbackCode) && !(load(ids, "headunit", wanted) && load(forms, "forms", wanted))) {
            return false;
        }
        chosenIds = std::move(ids);
        chosenForms = std::move(forms);
        code = wanted;
        known.clear();
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(qApp, &change);
        return true;
    }

    QString text(int id) {
        auto found = known.constFind(id);
        if (found == known.constEnd()) {
            found = known.insert(id, translate(nullptr, QByteArray::number(id).constData(), nullptr, -1));
        }
        return *found;
    }

    QString code = QLatin1String(fallbackCode);

private:
    static bool load(std::unique_ptr<QTranslator> &table, const char *name, const QString &language) {
        table = std::make_unique<QTranslator>();
        return table->load(QStringLiteral(":/headunit/translations/%1_%2.qm").arg(QLatin1String(name), language));
    }

    std::unique_ptr<QTranslator> chosenIds;
    std::unique_ptr<QTranslator> chosenForms;
    std::unique_ptr<QTranslator> fallback;
    QHash<int, QString> known;  // texts asked for in this language, including those that are missing
};

/// Made when first asked for. It goes with the application, which must not keep a dangling translator.
Tables &tables() {
    static Tables *instance = nullptr;
    if (!instance) {
        instance = new Tables;
        qAddPostRoutine([] {
            delete instance;
            instance = nullptr;
        });
    }
    return *instance;
}

}  // namespace

const QVector<Language::Name> &Language::all() {
    static const QVector<Name> names = {
        {QStringLiteral("en"), QStringLiteral("English")},     {QStringLiteral("de"), QStringLiteral("Deutsch")},
        {QStringLiteral("fr"), QString::fromUtf8("Français")}, {QStringLiteral("es"), QString::fromUtf8("Español")},
        {QStringLiteral("ja"), QString::fromUtf8("日本語")},
    };
    return names;
}

bool Language::set(const QString &code) {
    if (code == current()) {
        return true;
    }
    for (const Name &name : all()) {
        if (name.code == code) {
            return tables().choose(code);
        }
    }
    return false;
}

QString Language::current() {
    return tables().code;
}

QString Language::text(int id) {
    return tables().text(id);
}

}  // namespace headunit
