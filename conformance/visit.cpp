// SPDX-License-Identifier: Apache-2.0
#include "visit.h"

#include "audioservice.h"
#include "audiosettingsutils.h"
#include "callrecorder.h"
#include "check.h"
#include "plugin.h"
#include "settingscache.h"
#include "settingsfunc.h"

#include <QDir>
#include <QTextStream>

#include <cstdio>

namespace conformance {

namespace {

struct Step {
    QString line;
    QStringList calls;
};

struct VisitFile {
    QByteArray name;
    QByteArray sentence;
    QByteArray page;
    QVector<Step> steps;
};

QVector<VisitFile> &files() {
    static QVector<VisitFile> all;
    return all;
}

/// The first comment is the sentence, the second what suffers.
VisitFile readVisit(const QString &path) {
    VisitFile visit;
    visit.name = "visit." + QFileInfo(path).baseName().toLatin1();
    QFile file(path);
    file.open(QFile::ReadOnly);
    QTextStream lines(&file);
    while (!lines.atEnd()) {
        const QString line = lines.readLine().trimmed();
        if (line.startsWith(QLatin1Char('#'))) {
            (visit.sentence.isEmpty() ? visit.sentence : visit.page) = line.mid(2).toUtf8();
        } else if (line.startsWith(QLatin1Char('>'))) {
            visit.steps.last().calls << line.mid(2);
        } else if (!line.isEmpty()) {
            visit.steps << Step{line, QStringList()};
        }
    }
    return visit;
}

/// The same state on every unit, set through the contract.
void prepareState() {
    qvaudio::AudioService *const audio = qvaudio::AudioService::instance();
    for (int band = 0; band < 13; ++band) {
        audio->setCustomEq(12, band, true);
    }
    audio->setEQType(AudioEQFlat, true);
    audio->setBalanceFader(0, 0, true);
    for (int type = 0; type < 8; ++type) {
        audio->setVolumeLevel(16, type);
        AudioSettingsUtils::instance()->setValue(QStringLiteral("inputgain%1").arg(type), 16, 16, true);
    }
}

bool perform(Plugin &plugin, const QStringList &words) {
    const QString verb = words[0];
    if (verb == QLatin1String("open")) {
        return plugin.open();
    }
    if (verb == QLatin1String("leave")) {
        plugin.leave();
        return true;
    }
    if (verb == QLatin1String("wait")) {
        pass(words.value(1).toInt());
        return true;
    }
    if (verb == QLatin1String("request")) {
        const QString key = QStringLiteral("SettingTouchPageType");
        mem::SettingsFunc::instance()->setValue(key, 0, 3, true);
        emit mem::SettingsCache::instance()->SettingsCacheSig(key);
        return true;
    }
    QWidget *const widget = plugin.find(words.value(1));
    if (!widget) {
        return false;
    }
    Finger finger;
    const QPoint middle = widget->rect().center();
    if (verb == QLatin1String("tap")) {
        finger.tap(widget);
    } else if (verb == QLatin1String("hold")) {
        finger.press(widget, middle);
        pass(words.value(2).toInt());
        finger.release(widget, middle);
    } else {
        const QPoint from(words.value(2).toInt(), words.value(3).toInt());
        const QPoint to(words.value(4).toInt(), words.value(5).toInt());
        finger.press(widget, from);
        finger.move(widget, to);
        finger.release(widget, to);
    }
    return true;
}

void runVisit(int number) {
    const VisitFile &visit = files()[number];
    if (!callsAreSeen()) {
        skip(QStringLiteral("the unit's libraries are static: the calls cannot be seen"));
        return;
    }
    prepareState();
    Plugin plugin;
    if (!plugin.load()) {
        return;
    }
    const bool record = plugin.records();
    if (record) {
        std::printf("# %s\n# %s\n", visit.sentence.constData(), visit.page.constData());
    }
    for (const Step &step : visit.steps) {
        takeCalls();
        if (!perform(plugin, step.line.split(QLatin1Char(' ')))) {
            fail(QStringLiteral("%1: nothing of that name is on the screen").arg(step.line));
            return;
        }
        pass(0);
        const QStringList calls = takeCalls();
        if (record) {
            std::printf("%s\n%s", qPrintable(step.line),
                        calls.isEmpty() ? ""
                                        : qPrintable(QStringLiteral("> ") + calls.join(QStringLiteral("\n> ")) +
                                                     QLatin1Char('\n')));
            std::fflush(stdout);
        } else {
            expect(step.line, step.calls.join(QStringLiteral("; ")), calls.join(QStringLiteral("; ")));
        }
    }
}

// A check is a plain function, so each visit has one of its own.
template <int Number> void runNumbered() {
    runVisit(Number);
}
void (*const numbered[])() = {runNumbered<0>, runNumbered<1>, runNumbered<2>,  runNumbered<3>,
                              runNumbered<4>, runNumbered<5>, runNumbered<6>,  runNumbered<7>,
                              runNumbered<8>, runNumbered<9>, runNumbered<10>, runNumbered<11>};

}  // namespace

void registerVisits() {
    const QDir folder(QStringLiteral(":/conformance/visits"));
    for (const QString &name : folder.entryList(QDir::Files, QDir::Name)) {
        files() << readVisit(folder.filePath(name));
    }
    Q_ASSERT(files().size() <= int(sizeof numbered / sizeof *numbered));
    for (int i = 0; i < files().size(); ++i) {
        const VisitFile &visit = files()[i];
        checks() << Check{visit.name.constData(), visit.sentence.constData(), visit.page.constData(), numbered[i],
                          nullptr};
    }
}

}  // namespace conformance
