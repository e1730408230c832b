// SPDX-License-Identifier: Apache-2.0
#include "platform/appplugin.h"

#include <QFile>
#include <QJsonObject>
#include <QPluginLoader>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QtEndian>
#include <QTest>

namespace {

const QString pluginFile = QStringLiteral(PLUGIN_FILE);

QStringList linesOf(const QString &program, const QStringList &arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0) {
        qFatal("%s: %s", qPrintable(program), process.readAllStandardError().constData());
    }
    return QString::fromLocal8Bit(process.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

/// The dynamic symbols of a library, as nm prints the name: "malloc@GLIBC_2.2.5".
QStringList symbols(const QString &library, const QString &which) {
    QStringList names;
    const QStringList lines = linesOf(QStringLiteral(NM), {"-D", which, "--format=posix", library});
    for (const QString &line : lines) {
        names << line.section(QLatin1Char(' '), 0, 0);
    }
    return names;
}

/// Names without their versions.
QSet<QString> definedIn(const QStringList &libraries) {
    QSet<QString> names;
    for (const QString &library : libraries) {
        const QStringList defined = symbols(library, QStringLiteral("--defined-only"));
        for (const QString &name : defined) {
            names << name.section(QLatin1Char('@'), 0, 0);
        }
    }
    return names;
}

quint32 word(const QByteArray &bytes, int at) {
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

/// Length-prefixed Latin-1 text of the record.
QByteArray shortText(const QByteArray &bytes, int at) {
    return bytes.mid(at + 2, qFromLittleEndian<quint16>(bytes.constData() + at));
}

}  // namespace

/// The plug-in as a file: what a host sees before and when it loads it.
class tst_Loading : public QObject {
    Q_OBJECT
private slots:
    void loaderReadsTheRecord() {
        const QJsonObject record = QPluginLoader(pluginFile).metaData();
        const QJsonObject expected{{"IID", "com.norvale.Qt.audiosettingPlugin"},
                                   {"MetaData", QJsonObject()},
                                   {"className", "Plugin"},
                                   {"debug", true},
                                   {"version", 328450}};
        QCOMPARE(record, expected);
    }

    void recordIsBinaryJsonInOrder() {
        QFile file(pluginFile);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        const QByteArray tag = "QTMETADATA  ";
        QCOMPARE(bytes.count(tag), 1);
        const QByteArray record = bytes.mid(bytes.indexOf(tag) + tag.size());
        QCOMPARE(record.left(4), QByteArray("qbjs"));
        QCOMPARE(word(record, 4), 1u);

        // The object: size, is-object and number of entries, offset of the table of entries.
        const QByteArray object = record.mid(8, word(record, 8));
        QCOMPARE(word(object, 4), (5u << 1) | 1u);
        const int table = static_cast<int>(word(object, 8));
        QCOMPARE(object.size(), table + 5 * 4);
        QList<QByteArray> keys;
        QList<quint32> values;
        for (int i = 0; i < 5; ++i) {
            const int entry = static_cast<int>(word(object, table + 4 * i));
            values << word(object, entry);
            keys << shortText(object, entry + 4);
        }
        QCOMPARE(keys, QList<QByteArray>({"IID", "MetaData", "className", "debug", "version"}));

        // Of each value: type in three bits, Latin-1 or small, Latin-1 key, number or offset.
        const auto type = [&](int i) { return values[i] & 7u; };
        const auto payload = [&](int i) { return static_cast<int>(values[i] >> 5); };
        QCOMPARE(type(0), 3u);
        QCOMPARE(shortText(object, payload(0)), QByteArray("com.norvale.Qt.audiosettingPlugin"));
        QCOMPARE(type(1), 5u);
        QCOMPARE(word(object, payload(1) + 4), 1u);  // no entries
        QCOMPARE(type(2), 3u);
        QCOMPARE(shortText(object, payload(2)), QByteArray("Plugin"));
        QCOMPARE(type(3), 1u);
        QCOMPARE(payload(3), 1);
        QCOMPARE(type(4), 2u);
        QCOMPARE(payload(4), 328450);
    }

    void recordHasASectionOfItsOwn() {
        const QStringList sections = linesOf(QStringLiteral(READELF), {"-S", "--wide", pluginFile});
        QCOMPARE(sections.filter(QStringLiteral(" .qtmetadata ")).size(), 1);
    }

    void loadsAndOffersItsWindow() {
        QPluginLoader loader(pluginFile);
        QVERIFY2(loader.load(), qPrintable(loader.errorString()));
        const auto plugin = qobject_cast<AppPlugin *>(loader.instance());
        QVERIFY(plugin);
        QCOMPARE(plugin->windowInterfaceID(), QList<int>({33}));
        QCOMPARE(plugin->sourceInterfaceID(), QList<int>());
        QVERIFY(loader.unload());
    }

    void exportsItsEntryPointsOnly() {
        // The last three are the linker's own.
        static const QRegularExpression allowed(
            QStringLiteral("^(qt_plugin_instance|qt_plugin_query_metadata|__bss_start|_edata|_end)(@|$)"));
        QStringList entryPoints;
        QStringList others;
        const QStringList names = symbols(pluginFile, QStringLiteral("--defined-only"));
        for (const QString &name : names) {
            if (!allowed.match(name).hasMatch() && !isExportedClass(name) && !isSanitizers(name)) {
                others << name;
            }
            if (name.startsWith(QLatin1String("qt_plugin_"))) {
                entryPoints << name;
            }
        }
        QCOMPARE(others.join(QLatin1Char(' ')), QString());
        entryPoints.sort();
        QCOMPARE(entryPoints, QStringList({"qt_plugin_instance", "qt_plugin_query_metadata"}));
    }

    void importsQtTheContractAndTheRuntimeOnly() {
        const QSet<QString> qt = definedIn(QStringLiteral(QT_LIBRARIES).split(QLatin1Char(',')));
        const QSet<QString> contract = definedIn({QStringLiteral(CONTRACT_LIBRARY)});
        static const QRegularExpression runtime(QStringLiteral("@(GLIBC|GLIBCXX|CXXABI|GCC)_"));
        // Hooks of the compiler's start-up files, all weak.
        static const QRegularExpression hooks(QStringLiteral("^(_ITM_(de)?registerTMCloneTable|__gmon_start__)$"));
        QStringList others;
        int fromContract = 0;
        const QStringList names = symbols(pluginFile, QStringLiteral("--undefined-only"));
        for (const QString &name : names) {
            const QString bare = name.section(QLatin1Char('@'), 0, 0);
            const QString version = name.section(QLatin1Char('@'), 1);
            // Qt's private symbols carry a version of their own, and so do those newer than its first release.
            const bool public5 = version == QLatin1String("Qt_5") || bare == QLatin1String("qt_version_tag");
            if (contract.contains(bare) && version.isEmpty()) {
                ++fromContract;
            } else if (!(qt.contains(bare) && public5) && !runtime.match(name).hasMatch() &&
                       !hooks.match(bare).hasMatch() && !isSanitizers(name)) {
                others << name;
            }
        }
        QCOMPARE(others.join(QLatin1Char(' ')), QString());
        QVERIFY(fromContract > 20);
    }

    void needsNoOtherLibrary() {
        static const QRegularExpression name(QStringLiteral("\\(NEEDED\\).*\\[(.*)\\]"));
        static const QRegularExpression allowed(QStringLiteral(
            "^(libQt5(Core|Gui|Widgets)\\.so\\.5|lib(topui|common|qvaudio|qvaudioservice|mcuservice)\\.so|"
            "lib(c|m|dl|stdc\\+\\+|gcc_s)\\.so\\.[0-9]+|ld-linux.*|lib(asan|ubsan)\\.so\\.[0-9]+)$"));
        QStringList others;
        const QStringList lines = linesOf(QStringLiteral(READELF), {"-d", "--wide", pluginFile});
        int found = 0;
        for (const QString &line : lines) {
            const QRegularExpressionMatch match = name.match(line);
            found += match.hasMatch();
            if (match.hasMatch() && !allowed.match(match.captured(1)).hasMatch()) {
                others << match.captured(1);
            }
        }
        QVERIFY(found > 5);
        QCOMPARE(others.join(QLatin1Char(' ')), QString());
    }

private:
    /// The symbols of audiosetting::EQWidget that belong to its interface towards other applications.
    static bool isExportedClass(const QString &name) {
        // Members, virtual table, type information and the thunks of its second base.
        static const QRegularExpression symbol(QStringLiteral("^_Z(T[VIS]|Thn[0-9]+_)?NK?12audiosetting8EQWidget"));
        return symbol.match(name).hasMatch();
    }
    /// The symbols that the sanitizers add to a library: their own symbols, functions that they take over from the
    /// runtime, and type information of Qt's classes.
    static bool isSanitizers(const QString &name) {
        static const QRegularExpression symbol(
            QStringLiteral("^(__asan|__ubsan|__odr_asan|_Z.*__asan|__sanitizer|(_Zn[wa]|_Zd[la]|__cxa_|mem|str)[^@]*$|"
                           "_ZT[IS][0-9]+Q)"));
        return SANITIZED && symbol.match(name).hasMatch();
    }
};

QTEST_GUILESS_MAIN(tst_Loading)
#include "tst_loading.moc"
