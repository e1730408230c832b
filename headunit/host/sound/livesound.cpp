// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/sound/livesound.h"

#include "headunit/audio/engine/filterdesign.h"
#include "headunit/audio/service/soundmodel.h"
#include "headunit/host/app/soundlibrary.h"
#include "headunit/host/sound/metertext.h"
#include "headunit/settings/lines.h"

#include <QFile>

#include <algorithm>
#include <utility>

namespace headunit {

namespace {

/// The input that a channel's level belongs to; the main one for those without a sound of their own.
engine::Input inputOfChannel(int channel) {
    const auto &channels = engine::channelOfInput;
    const auto found = std::find(channels.begin(), channels.end(), static_cast<size_t>(channel));
    return found == channels.end() ? engine::MainInput : static_cast<engine::Input>(found - channels.begin());
}

}  // namespace

LiveSound::LiveSound(const PlayJob &job, QString *problem) {
    std::string error;
    m_player.setLossListener([this](const std::string &reason) {
        QMetaObject::invokeMethod(
            this, [this, reason] { loseSource(QFile::decodeName(reason.c_str())); }, Qt::QueuedConnection);
    });
    if (!m_player.choose(QFile::encodeName(job.what).toStdString(), &error)) {
        *problem = QFile::decodeName(error.c_str());
        m_sourceFault = SoundFault::NothingToPlay;
        m_player.choose("silence", &error);
    }
    SoundModel &model = SoundModel::instance();
    connect(&model, &SoundModel::changed, this, &LiveSound::takeStateSoon);
    // Who sets a volume hears what it does.
    connect(&model, &SoundModel::channelLevelChanged, this, [this](int channel) {
        const engine::Input input = inputOfChannel(channel);
        if (input != engine::MainInput) {
            m_player.chime(input);
        }
    });
    connect(&model, &SoundModel::beeped, this, [this] { m_player.chime(engine::BeepInput); });
    m_player.setState(model.state());  // before the first sample
    PulseOutput::Settings settings;
    settings.desk = job.what == QLatin1String("desk");
    if (settings.desk) {
        followPrograms();
    }
    settings.device = job.device.toStdString();
    if (!job.map.isEmpty() && !parseOutputMap(job.map.toStdString(), &settings.map, &error)) {
        *problem = QString::fromStdString(error);
    }
    settings.say = [](const std::string &line) { say(QString::fromStdString(line)); };
    settings.onFault = [this](SoundFault fault) {
        QMetaObject::invokeMethod(
            this, [this, fault] { showFault(fault); }, Qt::QueuedConnection);
    };
    followScheduling(&settings);
    showFault(SoundFault::None);
    m_output = std::make_unique<PulseOutput>(m_player, settings);
    followSleep();
    if (job.meters) {
        printMeters();
    }
}

/// Of two reasons the one of the output: without it, nothing else is heard either.
void LiveSound::showFault(SoundFault fault) {
    m_outputFault = fault;
    SoundModel::instance().setFault(fault == SoundFault::None ? m_sourceFault : fault);
}

/// What was played cannot be played any further.
void LiveSound::loseSource(const QString &reason) {
    say(reason);
    m_sourceFault = SoundFault::NothingToPlay;
    showFault(m_outputFault);
}

void LiveSound::takeState() {
    m_statePending = false;
    m_control.setState(SoundModel::instance().state());
}

/// Programs change what the state means: what plays steps back for them.
void LiveSound::followPrograms() {
    for (size_t input = 0; input < engine::inputCount; ++input) {
        if (DeskInput *const programs = m_player.deskInput(static_cast<engine::Input>(input))) {
            programs->setListener([this](bool) { QMetaObject::invokeMethod(this, "takeState", Qt::QueuedConnection); });
        }
    }
}

/// The desk's sleep would cut the sound off.
void LiveSound::followSleep() {
    connect(&m_bus, &SystemBus::aboutToSleep, this, [this] { m_output->pause([this] { Q_EMIT m_bus.silent(); }); });
    connect(&m_bus, &SystemBus::woke, this, [this] { m_output->resume(); });
}

/// What the process's own limits refuse, RealtimeKit may give.
void LiveSound::followScheduling(PulseOutput::Settings *settings) {
    settings->onScheduled = [this](const Scheduling &got) {
        const QString words = QString::fromStdString(got.words);
        QMetaObject::invokeMethod(
            this, [this, words] { m_scheduling = words; }, Qt::QueuedConnection);
        if (!got.isRealTime) {
            m_bus.askForRealTime(got.thread);
        }
    };
    connect(&m_bus, &SystemBus::answeredRealTime, this, [this](bool granted, const QString &words) {
        m_scheduling = granted ? words : m_scheduling + QStringLiteral("; ") + words;
    });
}

/// A touch may change many values one after the other.
void LiveSound::takeStateSoon() {
    if (!m_statePending) {
        m_statePending = true;
        QMetaObject::invokeMethod(this, "takeState", Qt::QueuedConnection);
    }
}

/// Adds what was played to all who wait for it.
void LiveSound::takeReadings() {
    if (const engine::Meters *const meters = m_player.takeMeters()) {
        for (engine::Meters *const waiting : {&m_unread, &m_unwatched, &m_unprinted}) {
            waiting->add(*meters);
        }
        m_dropouts += m_output->takeDropouts() + m_player.takeDeskDropouts();
    }
}

bool LiveSound::takeReading(engine::Meters *reading) {
    takeReadings();
    *reading = std::exchange(m_unwatched, engine::Meters());
    return reading->frames > 0;
}

QVariantMap LiveSound::readings() {
    takeReadings();
    QVariantList peaks;
    for (const float peak : m_unread.peak) {
        peaks << engine::toDecibels(static_cast<double>(peak));
    }
    QVariantList limiters;
    for (const double gain : m_unread.limiterGain) {
        limiters << engine::toDecibels(gain);
    }
    m_unread = engine::Meters();
    return {{QStringLiteral("peak"), peaks},
            {QStringLiteral("limiter"), limiters},
            {QStringLiteral("dropouts"), m_dropouts}};
}

void LiveSound::printScheduling() {
    if (hasLostRealTime()) {
        m_scheduling = QStringLiteral("real time lost, as it worked for too long without a pause");
    }
    if (m_scheduling != m_saidScheduling) {
        m_saidScheduling = m_scheduling;
        print(QStringLiteral("audio thread: ") + m_scheduling);
    }
}

void LiveSound::printMeters() {
    constexpr int period = 1000;  // ms
    connect(&m_meterTimer, &QTimer::timeout, this, [this] {
        takeReadings();
        if (m_unprinted.frames == 0) {
            return;
        }
        printScheduling();
        const unsigned dropouts = m_dropouts - m_lastDropouts;
        const QByteArray holes = dropouts > 0 ? ", dropouts " + QByteArray::number(dropouts) : QByteArray();
        print(QString::fromUtf8(meterText(m_unprinted) + holes));
        m_unprinted = engine::Meters();
        m_lastDropouts = m_dropouts;
    });
    m_meterTimer.start(period);
}

}  // namespace headunit

extern "C" Q_DECL_EXPORT QObject *headunitStartSound(const headunit::PlayJob *job, QString *problem,
                                                     headunit::SoundMonitor **monitor) {
    auto *const sound = new headunit::LiveSound(*job, problem);
    *monitor = sound;
    return sound;
}
