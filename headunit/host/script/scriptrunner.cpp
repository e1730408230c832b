#include "headunit/host/script/scriptapi.h"
#include "headunit/host/scripttarget.h"

#include <QJSEngine>
#include <QRegularExpression>
#include <QUrl>

#include <cstdio>

namespace headunit {

namespace {

constexpr int exitGood = 0;
constexpr int exitFailed = 1;

/// "file:line: message", and from where that line was called.
QString description(const QJSValue &error, const QString &file) {
    static const QRegularExpression frame(QStringLiteral("@(.+):(\\d+)$"), QRegularExpression::MultilineOption);
    QStringList places;
    auto frames = frame.globalMatch(error.property(QStringLiteral("stack")).toString());
    while (frames.hasNext()) {
        const QRegularExpressionMatch match = frames.next();
        places += QUrl(match.captured(1)).path(QUrl::FullyDecoded) + QLatin1Char(':') + match.captured(2);
    }
    const QString place = places.isEmpty() ? file : places.takeFirst();  // what cannot be imported has no line
    QString text = QStringLiteral("%1: %2").arg(place, error.toString());
    for (const QString &caller : qAsConst(places)) {
        text += QStringLiteral(", called from %1").arg(caller);
    }
    return text;
}

int run(ScriptTarget &target, const QString &file, const QString &folder) {
    QJSEngine engine;
    (new ScriptApi(target, &engine, folder))->install();
    QJSValue result = engine.importModule(file);
    if (!result.isError()) {
        result = engine.evaluate(QString());  // whatever was thrown while the module ran is pending until now
        if (result.isUndefined()) {
            return exitGood;
        }
    }
    std::fprintf(stderr, "%s\n", qUtf8Printable(description(result, file)));
    return exitFailed;
}

}  // namespace

}  // namespace headunit

extern "C" Q_DECL_EXPORT int headunitRunScript(headunit::ScriptTarget *target, const QString *file,
                                               const QString *folder) {
    const QString tour = QStringLiteral(":/headunit/tour.js");
    return headunit::run(*target, file->isEmpty() ? tour : *file, *folder);
}
