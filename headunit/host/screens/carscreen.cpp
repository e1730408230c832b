// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/screens/carscreen.h"

#include "audioservice.h"
#include "headunit/audio/service/soundtables.h"
#include "headunit/audio/service/soundtext.h"
#include "headunit/host/screens/key.h"
#include "headunit/host/screens/look.h"
#include "headunit/host/screens/texts.h"
#include "headunit/toolkit/language.h"
#include "translator.h"

#include <QEvent>
#include <QPainter>

#include <iterator>

namespace headunit {

namespace {

constexpr int sourceCount = std::size(texts::sources);
constexpr int channelCount = std::size(texts::channels);
enum Row { SourceRow, ChannelRow, LevelRow, LanguageRow, PromptRow, ActionRow };
constexpr int firstRowTop = 64;
constexpr int rowHeight = look::keySize + 8;
constexpr int captionWidth = 216;
constexpr int contentLeft = look::margin + captionWidth;
constexpr int contentWidth = look::screenWidth - look::margin - contentLeft;

QRect rowRect(int row) {
    return QRect(contentLeft, firstRowTop + row * rowHeight, contentWidth, look::keySize);
}

/// The \a index th of \a count equal cells of a row that starts at \a left.
QRect cell(int row, int left, int count, int index) {
    const int whole = look::screenWidth - look::margin - left;
    const int width = (whole - (count - 1) * look::gap) / count;
    return QRect(left + index * (width + look::gap), rowRect(row).y(), width, look::keySize);
}

}  // namespace

CarScreen::CarScreen(QWidget *parent) : QWidget(parent) {
    setObjectName(QStringLiteral("car"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setGeometry(0, 0, look::screenWidth, look::screenHeight);
    addStepper(SourceRow, texts::source, {"car_source_prev", "prev"}, {"car_source_next", "next"},
               &CarScreen::stepSource);
    addStepper(ChannelRow, texts::channel, {"car_channel_prev", "prev"}, {"car_channel_next", "next"},
               &CarScreen::stepChannel);
    addStepper(LevelRow, texts::level, {"car_level_minus", "minus"}, {"car_level_plus", "plus"}, &CarScreen::stepLevel);
    addLanguages();
    addPrompts();
    addActions();
    // The level shown is the service's, whoever changes it.
    connect(qvaudio::AudioService::instance(), &qvaudio::AudioService::audioVolumeChanged, this, [this] { update(); });
}

void CarScreen::addStepper(int row, int captionTextId, const StepKey &down, const StepKey &up,
                           void (CarScreen::*step)(int)) {
    const QRect area = rowRect(row);
    const auto add = [&](const StepKey &stepKey, int x, int by) {
        Key *key = new Key(QString::fromLatin1(stepKey.name), QRect(x, area.y(), look::keySize, look::keySize), this);
        key->setPicture(QString::fromLatin1(stepKey.picture));
        key->setNameTextId(captionTextId, by < 0 ? QString(QChar(0x2212)) : QStringLiteral("+"));
        connect(key, &Key::clicked, this, [this, step, by] { (this->*step)(by); });
    };
    add(down, area.left(), -1);
    add(up, area.right() + 1 - look::keySize, 1);
}

void CarScreen::addLanguages() {
    const QVector<Language::Name> &languages = Language::all();
    for (int i = 0; i < languages.size(); ++i) {
        const QString code = languages[i].code;
        Key *key =
            new Key(QStringLiteral("car_language_") + code, cell(LanguageRow, contentLeft, languages.size(), i), this);
        key->setText(languages[i].native);
        key->setCheckable(true);
        connect(key, &Key::clicked, this, [this, code] { Q_EMIT languageChosen(code); });
        m_languageKeys << key;
    }
}

void CarScreen::addPrompts() {
    for (int i = 0; i < SoundState::prompts; ++i) {
        const Prompt prompt = static_cast<Prompt>(i);
        Key *key = new Key(QStringLiteral("car_prompt_") + promptName(prompt),
                           cell(PromptRow, look::margin, SoundState::prompts, i), this);
        key->setFont(look::font(look::narrowKeyPixels));
        key->setTextId(texts::prompts[i]);
        key->setCheckable(true);
        connect(key, &Key::clicked, this, [this, prompt] { Q_EMIT promptToggled(prompt); });
        m_promptKeys[static_cast<size_t>(i)] = key;
    }
}

void CarScreen::addActions() {
    Key *request = new Key(QStringLiteral("car_request"), cell(ActionRow, look::margin, 2, 0), this);
    request->setTextId(texts::volumeSettings);
    connect(request, &Key::clicked, this, &CarScreen::volumeSettingsRequested);
    m_callKey = new Key(QStringLiteral("car_call"), cell(ActionRow, look::margin, 2, 1), this);
    m_callKey->setTextId(texts::startCall);
    connect(m_callKey, &Key::clicked, this, &CarScreen::callToggled);
}

void CarScreen::setSource(int source) {
    m_source = source;
    update();
}

void CarScreen::setLanguage(const QString &code) {
    for (int i = 0; i < m_languageKeys.size(); ++i) {
        m_languageKeys[i]->setChecked(Language::all().at(i).code == code);
    }
}

void CarScreen::setCallActive(bool active) {
    m_callKey->setTextId(active ? texts::endCall : texts::startCall);
    m_callKey->setWarns(active);
}

void CarScreen::setActivePrompts(const std::array<bool, SoundState::prompts> &active) {
    for (size_t i = 0; i < active.size(); ++i) {
        m_promptKeys[i]->setChecked(active[i]);
    }
}

void CarScreen::stepSource(int by) {
    Q_EMIT sourceChosen((m_source + by + sourceCount) % sourceCount);
}

void CarScreen::stepChannel(int by) {
    m_channel = (m_channel + by + channelCount) % channelCount;
    update();
}

void CarScreen::stepLevel(int by) {
    const int type = texts::channels[m_channel].type;
    qvaudio::AudioService *const audio = qvaudio::AudioService::instance();
    audio->setVolumeLevel(
        qBound(ranges::channelLevel.low, audio->getSourceVolByType(type) + by, ranges::channelLevel.high), type);
}

void CarScreen::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    look::paintBackground(painter, rect());
    painter.setPen(look::softText);
    painter.setFont(look::font(look::captionPixels));
    constexpr int captions[] = {texts::source, texts::channel, texts::level, texts::language};
    for (int row = SourceRow; row <= LanguageRow; ++row) {
        painter.drawText(QRect(look::margin, rowRect(row).y(), captionWidth - look::gap, look::keySize),
                         Qt::AlignLeft | Qt::AlignVCenter, Translator::translate(captions[row]));
    }
    painter.setPen(colour::text);
    painter.setFont(look::font(look::valuePixels));
    const texts::Channel &channel = texts::channels[m_channel];
    painter.drawText(rowRect(SourceRow), Qt::AlignCenter, Translator::translate(texts::sources[m_source]));
    painter.drawText(rowRect(ChannelRow), Qt::AlignCenter, Translator::translate(channel.textId));
    painter.drawText(rowRect(LevelRow), Qt::AlignCenter,
                     QString::number(qvaudio::AudioService::instance()->getSourceVolByType(channel.type)));
}

void CarScreen::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        update();
    }
    QWidget::changeEvent(event);
}

void CarScreen::showEvent(QShowEvent *) {
    update();
}

}  // namespace headunit
