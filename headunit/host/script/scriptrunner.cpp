// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/script/scriptapi.h"
#include "headunit/host/script/scripttarget.h"
#include "headunit/settings/lines.h"

#include <QJSEngine>
#include <QRegularExpression>
#include <QUrl>

#include <cstdio>

namespace headunit {

namespace {

constexpr int exitGood = 0;
constexpr int exitFailed = 1;
constexpr int mostCallers = 8;  // a recursion without an end has thousands

/// "file:line: message" in one line, and from where that line was called.
QString description(const QJSValue &error, const QString &file) {
    static const QRegularExpression frame(QStringLiteral("@(.+):(\\d+)$"), QRegularExpression::MultilineOption);
    QStringList places;
    auto frames = frame.globalMatch(error.property(QStringLiteral("stack")).toString());
    while (frames.hasNext()) {
        const QRegularExpressionMatch match = frames.next();
        const QUrl url(match.captured(1));
        const QString builtIn = url.scheme() == QLatin1String("qrc") ? QStringLiteral(":") : QString();
        places += builtIn + url.path(QUrl::FullyDecoded) + QLatin1Char(':') + match.captured(2);
    }
    const QString place = places.isEmpty() ? file : places.takeFirst();  // what cannot be imported has no line
    QString text = place + QLatin1String(": ") + error.toString();
    for (const QString &caller : places.mid(0, mostCallers)) {
        text += QLatin1String(", called from ") + caller;
    }
    return oneLine(text);
}

int run(ScriptTarget &target, const QString &file, const QString &folder) {
    QJSEngine engine;
    // A script is over when its last line is: what fails in a promise's callback would be nobody's failure.
    engine.globalObject().deleteProperty(QStringLiteral("Promise"));
    (new ScriptApi(target, &engine, folder))->install();
    target.setInterrupt([&engine] { engine.setInterrupted(true); });
    QJSValue result = engine.importModule(file);
    target.setInterrupt({});
    if (!result.isError()) {
        // A value that was thrown while the module ran, be it undefined, is pending until now, and comes instead of
        // this.
        result = engine.evaluate(QStringLiteral("var moduleHasEnded = true;"));
        if (engine.globalObject().hasProperty(QStringLiteral("moduleHasEnded"))) {
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
