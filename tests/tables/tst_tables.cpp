// SPDX-License-Identifier: Apache-2.0
// Facts that the product and the reference unit must both know, each in tables of its own: equal row by row.

#include "base/texts.h"
#include "base/touchpagerequest.h"
#include "conformance/checks/keys.h"
#include "crossover/crossoversettings.h"
#include "eq/eqsettings.h"
#include "eq/eqtable.h"
#include "general/generalsettings.h"
#include "headunit/audio/engine/eqcurves.h"
#include "headunit/audio/engine/parameters.h"
#include "headunit/audio/service/soundstate.h"
#include "headunit/audio/service/soundtables.h"
#include "headunit/desk/setups/setuptable.h"
#include "headunit/host/app/pagerequest.h"
#include "headunit/host/screens/texts.h"
#include "headunit/settings/audiokeys.h"
#include "timing/delayunits.h"
#include "timing/timingsettings.h"
#include "volume/resetsettings.h"
#include "volume/sourcegainsettings.h"
#include "volume/volumesettings.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include <iterator>
#include <optional>

using namespace audiosetting;
using headunit::CrossoverFilter;
using headunit::Range;
using headunit::SettingKey;
using headunit::SoundState;

namespace {

/// A setting of a page, and the same one as the unit restores the sound from it.
struct SettingRow {
    Setting page;
    SettingKey unit;
};

/// A setting of a page as a set-up has it.
struct StoredSetting {
    QString function;  ///< of the page's settings header: "eq::liveBand"
    Setting page;
    std::optional<Range> range;  ///< where the page has one
};

constexpr Range flag = {0, 1};
constexpr Range eqPreset = {0, eq::presetCount - 1};
constexpr Range crossoverChannel = {0, crossover::channelCount - 1};
constexpr Range delay = {0, timing::maxDelay};
constexpr Range volumeLevel = {volume::minLevel, volume::maxLevel};

std::optional<Range> rangeOfFilter(int channel, int field) {
    switch (field) {
        case crossover::Freq:
            return Range{0, crossover::frequencyCount(channel) - 1};
        case crossover::Level:
            return Range{0, crossover::maxLevel};
        case crossover::Slope:
            return Range{crossover::minSlope, crossover::maxSlope};
        default:
            return std::nullopt;
    }
}

/// Every setting of the pages.
QVector<StoredSetting> storedSettings() {
    constexpr Range balanceFader = {-general::maxBalanceFader, general::maxBalanceFader};
    QVector<StoredSetting> all = {
        {"general::defeat", general::defeat(), flag},
        {"general::eqTypeBeforeDefeat", general::eqTypeBeforeDefeat(), std::nullopt},
        {"general::loudness", general::loudness(), flag},
        {"general::subwooferOn", general::subwooferOn(), flag},
        {"general::subwooferLevel", general::subwooferLevel(), Range{0, general::maxSubwooferLevel}},
        {"general::subwooferPhase", general::subwooferPhase(), flag},
        {"general::balance", general::balance(), balanceFader},
        {"general::fader", general::fader(), balanceFader},
        {"eq::lastPreset", eq::lastPreset(), eqPreset},
        {"eq::highlightedPreset", eq::highlightedPreset(), Range{eq::noPreset, eqPreset.high}},
        {"crossover::type", crossover::type(), crossoverChannel},
        {"timing::unit", timing::unit(), flag},
    };
    for (int band = 0; band < eqBandCount; ++band) {
        // Set by the EQ page and by the panel, which count from different ends: ranges() has it.
        all << StoredSetting{"eq::liveBand", eq::liveBand(band), std::nullopt};
    }
    for (int preset = 0; preset < eq::presetCount; ++preset) {
        all << StoredSetting{"eq::presetSaved", eq::presetSaved(preset), flag};
        for (int band = 0; band < eqBandCount; ++band) {
            all << StoredSetting{"eq::presetLevel", eq::presetLevel(preset, band), Range{0, eq::maxLevel}};
        }
    }
    for (int channel = 0; channel < crossover::channelCount; ++channel) {
        for (int field = 0; field < crossover::fieldCount; ++field) {
            const std::optional<Range> range = rangeOfFilter(channel, field);
            all << StoredSetting{"crossover::current", crossover::current(channel, field), range};
            for (int preset = 0; preset < crossover::presetCount; ++preset) {
                all << StoredSetting{"crossover::preset", crossover::preset(channel, field, preset), range};
            }
        }
    }
    for (int preset = 0; preset < crossover::presetCount; ++preset) {
        all << StoredSetting{"crossover::presetSaved", crossover::presetSaved(preset), flag}
            << StoredSetting{"crossover::presetType", crossover::presetType(preset), crossoverChannel};
    }
    for (int output = 0; output < timing::outputCount; ++output) {
        all << StoredSetting{"timing::delay", timing::delay(output), delay}
            << StoredSetting{"reset::delay", reset::delay(output), delay};
        for (int preset = 0; preset < timing::presetCount; ++preset) {
            all << StoredSetting{"timing::presetDelay", timing::presetDelay(preset, output), delay};
        }
    }
    for (int preset = 0; preset < timing::presetCount; ++preset) {
        all << StoredSetting{"timing::presetSaved", timing::presetSaved(preset), flag};
    }
    for (int channel = 0; channel < volume::channelCount; ++channel) {
        all << StoredSetting{"volume::level", volume::level(channel), volumeLevel};
    }
    for (int type = volume::Main; type <= volume::Voice; ++type) {
        all << StoredSetting{"reset::defaultVolume", reset::defaultVolume(type), volumeLevel};
    }
    for (int source = 0; source < sourcegain::sourceCount; ++source) {
        all << StoredSetting{"sourcegain::gain", sourcegain::gain(source),
                             Range{sourcegain::minGain, sourcegain::maxGain}};
    }
    return all;
}

QString keyOf(const SettingKey &key, int number) {
    const QString name = QString::fromLatin1(key.name);
    return name.contains(QLatin1String("%1")) ? name.arg(number) : name;
}

/// Poles of the sections in a row.
int filterOrder(const headunit::engine::CrossoverSections &sections) {
    int order = 0;
    for (const headunit::engine::Biquad &section : sections) {
        order += section.a2 != 0 ? 2 : int(section.a1 != 0);
    }
    return order;
}

/// "1.6k" or "25 Hz" in Hz.
double hertz(const QString &text) {
    const QRegularExpressionMatch match = QRegularExpression(QStringLiteral("^([0-9.]+)(k)?( Hz)?$")).match(text);
    return match.hasMatch() ? match.captured(1).toDouble() * (match.captured(2).isEmpty() ? 1 : 1000) : -1;
}

QString contents(const QString &file) {
    QFile source(file);
    return source.open(QFile::ReadOnly) ? QString::fromUtf8(source.readAll()) : QString();
}

/// The functions of the pages' settings headers that give a setting: "eq::liveBand".
QSet<QString> settingFunctions() {
    const QRegularExpression room(QStringLiteral("^namespace (?!audiosetting)(\\w+) "),
                                  QRegularExpression::MultilineOption);
    const QRegularExpression function(QStringLiteral("^(?:inline |const )*Setting &?(\\w+)\\("),
                                      QRegularExpression::MultilineOption);
    QSet<QString> functions;
    QDirIterator headers(QStringLiteral(PRODUCT_DIR), {QStringLiteral("*settings.h")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (headers.hasNext()) {
        const QString text = contents(headers.next());
        QRegularExpressionMatchIterator found = function.globalMatch(text);
        while (found.hasNext()) {
            functions.insert(room.match(text).captured(1) + QStringLiteral("::") + found.next().captured(1));
        }
    }
    return functions;
}

/// The ids of a table of texts that have a text.
QSet<int> idsWithText(const QString &file) {
    QSet<int> ids;
    QXmlStreamReader xml(contents(file));
    int id = 0;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("message")) {
            id = xml.attributes().value(QLatin1String("id")).toInt();
        } else if (xml.isStartElement() && xml.name() == QLatin1String("translation") &&
                   !xml.readElementText().isEmpty()) {
            ids.insert(id);
        }
    }
    return ids;
}

}  // namespace

class TestTables : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void counts();
    void curves();
    void bandCentres();
    void settings();
    void families();
    void ranges();
    void setups();
    void setupsKnowEverySetting();
    void conformanceKeys();
    void crossoverFrequencies();
    void crossoverSlopes();
    void delaySteps();
    void sources();
    void volumeChannels();
    void pageRequest();
    void texts_data();
    void texts();
};

void TestTables::counts() {
    QCOMPARE(int(eqBandCount), int(SoundState::bands));
    QCOMPARE(int(volume::channelCount), int(SoundState::channels));
    QCOMPARE(int(sourcegain::sourceCount), int(SoundState::sources));
    QCOMPARE(int(timing::outputCount), int(SoundState::outputs));
}

void TestTables::curves() {
    int rows = 0;
    // Every type that either side may know, and some that neither does.
    for (int type = -2; type < 30; ++type) {
        const tagAudioEQItem_T page = eq::curveOfType(eq::curves(), type);
        SoundState state;
        state.eqType = type;
        state.customEq.fill(headunit::neutralBandValue);  // the live curve, which the unit plays from 16 on
        const headunit::engine::Curve sound = headunit::engine::curveInForce(state);
        for (int band = 0; band < eqBandCount; ++band) {
            QVERIFY2(page.gain[band] == sound[size_t(band)],
                     qPrintable(QStringLiteral("type %1, band %2").arg(type).arg(band)));
        }
        rows += sound != headunit::engine::Curve{};
    }
    QCOMPARE(rows, 7);
}

void TestTables::bandCentres() {
    for (int band = 0; band < eqBandCount; ++band) {
        QCOMPARE(hertz(QString::fromLatin1(eq::bandCaption(band))), double(headunit::bandFrequencies[size_t(band)]));
    }
}

void TestTables::settings() {
    using namespace headunit::keys;
    const SettingRow rows[] = {
        {general::defeat(), defeat},
        {general::loudness(), loudness},
        {general::subwooferOn(), subwooferOn},
        {general::subwooferLevel(), subwooferLevel},
        {general::subwooferPhase(), subwooferPhase},
        {general::balance(), balance},
        {general::fader(), fader},
    };
    for (const SettingRow &row : rows) {
        QCOMPARE(row.page.key(), QString::fromLatin1(row.unit.name));
        QCOMPARE(row.page.defaultValue(), QVariant(row.unit.defaultValue));
    }
    QCOMPARE(int(std::size(filters)), int(crossover::channelCount));
    for (int channel = 0; channel < crossover::channelCount; ++channel) {
        const headunit::FilterKeys &unit = filters[size_t(channel)];
        const struct {
            int field;
            SettingKey key;
        } fields[] = {{crossover::Freq, unit.freq},
                      {crossover::Y, unit.y},
                      {crossover::Heigh, unit.heigh},
                      {crossover::Level, unit.level},
                      {crossover::Slope, unit.slope}};
        QCOMPARE(int(std::size(fields)), int(crossover::fieldCount));
        for (const auto &field : fields) {
            QCOMPARE(crossover::current(channel, field.field).key(), QString::fromLatin1(field.key.name));
            QCOMPARE(crossover::current(channel, field.field).defaultValue(), QVariant(field.key.defaultValue));
        }
    }
}

/// Keys with a number in them, by every number that there is.
void TestTables::families() {
    const struct {
        Setting (*page)(int);
        SettingKey unit;
        int count;
    } rows[] = {
        {&timing::delay, headunit::keys::delay, SoundState::outputs},
        {&eq::liveBand, headunit::keys::customEq, SoundState::bands},
        {&volume::level, headunit::keys::channelLevel, SoundState::channels},
        {&sourcegain::gain, headunit::keys::sourceGain, SoundState::sources},
    };
    for (const auto &row : rows) {
        for (int number = 0; number < row.count; ++number) {
            QCOMPARE(row.page(number).key(), keyOf(row.unit, number));
            QCOMPARE(row.page(number).defaultValue(), QVariant(row.unit.defaultValue));
        }
    }
}

void TestTables::ranges() {
    namespace unit = headunit::ranges;
    const struct {
        const char *what;
        int low;
        int high;
        Range range;
    } rows[] = {
        {"balance and fader", -general::maxBalanceFader, general::maxBalanceFader, unit::balanceFader},
        {"subwoofer level", 0, general::maxSubwooferLevel, unit::subwooferLevel},
        {"slope", crossover::minSlope, crossover::maxSlope, unit::slope},
        {"filter level", 0, crossover::maxLevel, unit::filterLevel},
        {"delay", 0, timing::maxDelay, unit::delay},
        {"channel level", volume::minLevel, volume::maxLevel, unit::channelLevel},
        {"source gain", sourcegain::minGain + sourcegain::neutralGain, sourcegain::maxGain + sourcegain::neutralGain,
         unit::sourceGain},
        // The panel sends a gain, the EQ page a gain + 12: from the lowest of the one to the highest of the other.
        {"band value", -eq::maxGain, eq::maxGain + headunit::neutralBandValue, unit::bandValue},
    };
    for (const auto &row : rows) {
        QVERIFY2(row.low == row.range.low && row.high == row.range.high, row.what);
    }
    QCOMPARE(sourcegain::neutralGain, headunit::neutralSourceGain);
    QCOMPARE(crossover::maxLevel, headunit::neutralFilterLevel);
    QCOMPARE(eq::maxLevel - eq::flatLevel, headunit::neutralBandValue);
}

/// Key, default and range of each value of a set-up file.
void TestTables::setups() {
    QSet<QString> keys;
    for (const StoredSetting &setting : storedSettings()) {
        const headunit::SetupValue *const value = headunit::setupValueOfKey(setting.page.key());
        const QByteArray what = setting.page.key().toUtf8();
        QVERIFY2(value, what);
        QVERIFY2(value->defaultValue == setting.page.defaultValue().toInt(), what);
        if (setting.range) {
            QVERIFY2(value->low == setting.range->low && value->high == setting.range->high, what);
        }
        keys << setting.page.key();
    }
    // And nothing that no page has, but for what the audio service keeps itself.
    keys << QString::fromLatin1(headunit::keys::eqType.name);
    for (const headunit::SetupValue &value : headunit::setupValues()) {
        QVERIFY2(keys.contains(value.key), qPrintable(value.key));
    }
    QCOMPARE(keys.size(), headunit::setupValues().size());
}

void TestTables::setupsKnowEverySetting() {
    QSet<QString> compared;
    for (const StoredSetting &setting : storedSettings()) {
        compared << setting.function;
    }
    const QSet<QString> functions = settingFunctions();
    QCOMPARE(QStringList((functions - compared).values()).join(QStringLiteral(", ")), QString());
    QCOMPARE(QStringList((compared - functions).values()).join(QStringLiteral(", ")), QString());
    QVERIFY(functions.size() > 20);
}

/// The kit, which includes neither side, disturbs and watches keys that there are, and knows what they are when flat.
void TestTables::conformanceKeys() {
    QHash<QString, int> defaults;
    for (const StoredSetting &setting : storedSettings()) {
        defaults.insert(setting.page.key(), setting.page.defaultValue().toInt());
    }
    const auto flat = [&defaults](const auto &keys) {
        for (const conformance::Key &key : keys) {
            QVERIFY2(defaults.value(key.name, -1) == key.flat, key.name);
        }
    };
    flat(conformance::crossoverKeys);
    flat(conformance::delayKeys);
    for (const char *key : conformance::keptByFlat) {
        QVERIFY2(defaults.contains(key), key);
    }
}

void TestTables::crossoverFrequencies() {
    const auto equal = [](int channel, const int *unit, size_t count) {
        QCOMPARE(crossover::frequencyCount(channel), int(count));
        for (int index = 0; index < int(count); ++index) {
            const char *label = crossover::frequency(channel, index).label;
            QCOMPARE(label ? hertz(QString::fromLatin1(label)) : 0.0, double(unit[index]));
        }
    };
    equal(crossover::Front, headunit::frontFrequencies.data(), headunit::frontFrequencies.size());
    equal(crossover::Rear, headunit::rearFrequencies.data(), headunit::rearFrequencies.size());
    equal(crossover::Subwoofer, headunit::subwooferFrequencies.data(), headunit::subwooferFrequencies.size());
}

/// A slope is written in decibels per octave, of which each order of the filter that sounds makes six.
void TestTables::crossoverSlopes() {
    for (int slope = crossover::minSlope; slope <= crossover::maxSlope; ++slope) {
        SoundState state;
        for (CrossoverFilter *filter : {&state.front, &state.rear, &state.subwoofer}) {
            filter->freq = 1;
            filter->slope = slope;
        }
        for (const auto &sections : headunit::engine::designParameters(state).chain.crossover) {
            QCOMPARE(QString::fromLatin1(crossover::slopeRow(slope).label),
                     QStringLiteral("%1 db").arg(6 * filterOrder(sections)));
        }
    }
}

void TestTables::delaySteps() {
    for (int delay = 0; delay <= timing::maxDelay; ++delay) {
        SoundState state;
        state.delay[timing::RearLeft] = delay;
        const auto samples = headunit::engine::designParameters(state).chain.delay;
        const double shown = timing::millisecondsText(delay).toDouble() / 1000 * headunit::engine::sampleRate;
        for (int output = 0; output < timing::outputCount; ++output) {
            QCOMPARE(samples[size_t(output)], output == timing::RearLeft ? qRound(shown) : 0);
        }
    }
}

void TestTables::sources() {
    const struct {
        sourcegain::Source source;
        int text;
    } rows[] = {
        {sourcegain::Radio, texts::radio},
        {sourcegain::Usb, texts::usb},
        {sourcegain::BluetoothMusic, texts::bluetoothMusic},
        {sourcegain::CarPlay, texts::carPlay},
        {sourcegain::AndroidAuto, texts::androidAuto},
        {sourcegain::SiriusXm, texts::siriusXm},
    };
    // The last, DAB, has the same caption in every language on the page, and a text on the unit's screens.
    QCOMPARE(int(std::size(rows)), int(sourcegain::Dab));
    QCOMPARE(int(std::size(headunit::texts::sources)), int(sourcegain::sourceCount));
    for (const auto &row : rows) {
        QCOMPARE(headunit::texts::sources[row.source], row.text);
    }
}

void TestTables::volumeChannels() {
    const volume::Channel rows[] = {volume::Main,       volume::Ringtone, volume::Phone,
                                    volume::Navigation, volume::Voice,    volume::Announcements};
    QCOMPARE(std::size(rows), std::size(headunit::texts::channels));
    for (size_t row = 0; row < std::size(rows); ++row) {
        QCOMPARE(headunit::texts::channels[row].type, int(rows[row]));
    }
}

void TestTables::pageRequest() {
    QCOMPARE(touchPageKey(), QString(headunit::pageRequestKey));
    QCOMPARE(touchPageVolume, headunit::volumePageRequest);
}

void TestTables::texts_data() {
    QTest::addColumn<QString>("table");
    const QStringList tables = QDir(QStringLiteral(TRANSLATIONS_DIR)).entryList({QStringLiteral("headunit_*.ts")});
    QCOMPARE(tables.size(), 5);
    for (const QString &table : tables) {
        QTest::addRow("%s", qPrintable(table)) << table;
    }
}

/// Every id that the product's code shows has a text in every language.
void TestTables::texts() {
    QFETCH(QString, table);
    const QSet<int> ids = idsWithText(QStringLiteral(TRANSLATIONS_DIR "/") + table);
    QRegularExpressionMatchIterator found =
        QRegularExpression(QStringLiteral("const int (\\w+) = (\\d+);")).globalMatch(contents(QStringLiteral(TEXTS_H)));
    int count = 0;
    while (found.hasNext()) {
        const QRegularExpressionMatch text = found.next();
        QVERIFY2(ids.contains(text.captured(2).toInt()), qPrintable(text.captured(0)));
        ++count;
    }
    QVERIFY(count > 30);
    QVERIFY(!ids.contains(0));
}

QTEST_GUILESS_MAIN(TestTables)
#include "tst_tables.moc"
