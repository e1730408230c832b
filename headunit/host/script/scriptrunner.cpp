#include "headunit/host/script/scriptapi.h"
#include "headunit/host/scripttarget.h"

#include <QFile>
#include <QJSEngine>

#include <cstdio>

namespace headunit {

namespace {

constexpr int exitGood = 0;
constexpr int exitFailed = 1;
constexpr int exitUnusable = 2;

int run(ScriptTarget &target, const QString &file, const QString &folder) {
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s: %s\n", qUtf8Printable(file), qUtf8Printable(source.errorString()));
        return exitUnusable;
    }
    QJSEngine engine;
    (new ScriptApi(target, &engine, folder))->install();
    const QJSValue result = engine.evaluate(QString::fromUtf8(source.readAll()), file);
    if (!result.isError()) {
        return exitGood;
    }
    std::fprintf(stderr, "%s:%d: %s\n", qUtf8Printable(file), result.property(QStringLiteral("lineNumber")).toInt(),
                 qUtf8Printable(result.toString()));
    return exitFailed;
}

}  // namespace

}  // namespace headunit

extern "C" Q_DECL_EXPORT int headunitRunScript(headunit::ScriptTarget *target, const QString *file,
                                               const QString *folder) {
    const QString tour = QStringLiteral(":/headunit/tour.js");
    return headunit::run(*target, file->isEmpty() ? tour : *file, *folder);
}
