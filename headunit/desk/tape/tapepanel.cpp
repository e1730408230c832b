// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/tape/tapepanel.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/audio/service/soundtables.h"
#include "headunit/desk/frame/deskcontext.h"
#include "headunit/desk/frame/desktext.h"
#include "headunit/settings/audiokeys.h"
#include "headunit/settings/unitroot.h"
#include "headunit/settings/unitsettings.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QSettings>
#include <QSignalBlocker>
#include <QToolBar>

#include <algorithm>

namespace headunit {

namespace {

constexpr double centimetresPerInch = 2.54;
constexpr double farthest = 1000;  // cm: a car is smaller
constexpr double coldest = -40;
constexpr double hottest = 85;
constexpr double firstTemperature = 20;
constexpr int space = 6;
constexpr int columnSpace = 18;
const QString temperatureKey = QStringLiteral("temperature");
const QString distanceKey = QStringLiteral("distance%1");
constexpr char firstWords[] = DESK_TEXT("Measure from the listener's head to each loudspeaker");

constexpr const char *outputTexts[] = {DESK_TEXT("Front left"),     DESK_TEXT("Front right"),
                                       DESK_TEXT("Rear left"),      DESK_TEXT("Rear right"),
                                       DESK_TEXT("Subwoofer left"), DESK_TEXT("Subwoofer right")};
constexpr const char *headTexts[] = {DESK_TEXT("Loudspeaker"), DESK_TEXT("Centimetres"), DESK_TEXT("Inches"),
                                     DESK_TEXT("Exact delay"), DESK_TEXT("Taken as"),    DESK_TEXT("Rounding"),
                                     DESK_TEXT("Now")};

QString placesFile() {
    return unitRoot() + QStringLiteral("/desk/tape.ini");
}

QString milliseconds(double value, int decimals) {
    return QStringLiteral("%1 ms").arg(value, 0, 'f', decimals);
}

}  // namespace

TapePanel::TapePanel(DeskContext &context, QWidget *parent)
    : Panel(parent),
      m_context(context),
      m_tools(new QToolBar(this)),
      m_apply(m_tools->addAction(QString(), this, &TapePanel::apply)),
      m_temperatureTitle(new QLabel(this)),
      m_temperature(addSpin(QStringLiteral("tape_temperature"), coldest, hottest, firstTemperature, 1)),
      m_message(new QLabel(this)) {
    m_apply->setObjectName(QStringLiteral("tape_apply"));
    m_apply->setShortcut(Qt::CTRL + Qt::Key_Return);
    m_apply->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(m_apply);
    m_tools->widgetForAction(m_apply)->setObjectName(QStringLiteral("tape_key_apply"));
    m_tools->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_tools->addWidget(m_temperatureTitle);
    m_tools->addWidget(m_temperature);
    m_temperatureTitle->setContentsMargins(columnSpace, 0, space, 0);
    m_temperature->setSuffix(QStringLiteral(" °C"));
    m_message->setObjectName(QStringLiteral("tape_message"));
    m_message->setWordWrap(true);
    auto *const grid = new QGridLayout;
    grid->setContentsMargins(space, 0, space, 0);
    grid->setHorizontalSpacing(columnSpace);
    addRows(grid);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 2);
    layout->addWidget(m_tools);
    layout->addLayout(grid);
    layout->addWidget(m_message);
    layout->addStretch(1);
    m_message->setContentsMargins(space, space, space, 0);
    restore();
    connect(m_temperature, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &TapePanel::showDelays);
    connect(&SoundModel::instance(), &SoundModel::changed, this, &TapePanel::showDelays);
}

TapePanel::~TapePanel() {
    save();
}

QDoubleSpinBox *TapePanel::addSpin(const QString &name, double low, double high, double value, double step) {
    auto *const spin = new QDoubleSpinBox(this);
    spin->setObjectName(name);
    spin->setLocale(QLocale::c());  // the same in every language, as all of the unit's numbers
    spin->setDecimals(1);
    spin->setRange(low, high);
    spin->setSingleStep(step);
    spin->setValue(value);
    return spin;
}

void TapePanel::addRows(QGridLayout *grid) {
    for (size_t column = 0; column < m_heads.size(); ++column) {
        m_heads[column] = new QLabel(this);
        grid->addWidget(m_heads[column], 0, static_cast<int>(column));
    }
    for (size_t output = 0; output < m_rows.size(); ++output) {
        const QString number = QString::number(output);
        const auto label = [this, &number](const char *name) {
            auto *const made = new QLabel(this);
            made->setObjectName(QStringLiteral("tape_%1%2").arg(QLatin1String(name), number));
            return made;
        };
        Row &row = m_rows[output];
        row.name = label("name");
        row.centimetres = addSpin(QStringLiteral("tape_cm") + number, 0, farthest, 0, 1);
        row.inches = addSpin(QStringLiteral("tape_inches") + number, 0, farthest / centimetresPerInch, 0, 0.5);
        row.exact = label("exact");
        row.taken = label("taken");
        row.rounding = label("rounding");
        row.now = label("now");
        int column = 0;
        for (QWidget *widget : std::initializer_list<QWidget *>{row.name, row.centimetres, row.inches, row.exact,
                                                                row.taken, row.rounding, row.now}) {
            grid->addWidget(widget, static_cast<int>(output) + 1, column++);
        }
        const auto changed = QOverload<double>::of(&QDoubleSpinBox::valueChanged);
        connect(row.centimetres, changed, this,
                [this, &row] { take(row.centimetres, row.inches, 1 / centimetresPerInch); });
        connect(row.inches, changed, this, [this, &row] { take(row.inches, row.centimetres, centimetresPerInch); });
    }
    grid->setColumnStretch(static_cast<int>(m_heads.size()), 1);
}

/// The other unit follows.
void TapePanel::take(QDoubleSpinBox *from, QDoubleSpinBox *to, double factor) {
    const QSignalBlocker blocker(to);
    to->setValue(from->value() * factor);
    showDelays();
}

TapeDistances TapePanel::distances() const {
    TapeDistances distances;
    std::transform(m_rows.begin(), m_rows.end(), distances.begin(),
                   [](const Row &row) { return row.centimetres->value(); });
    return distances;
}

void TapePanel::showDelays() {
    const auto delays = tapeDelays(distances(), m_temperature->value());
    const SoundState &state = SoundModel::instance().state();
    bool beyond = false;
    bool differs = false;
    for (size_t output = 0; output < m_rows.size(); ++output) {
        const Row &row = m_rows[output];
        const TapeDelay &delay = delays[output];
        row.exact->setText(milliseconds(delay.exact, 3));
        row.taken->setText(milliseconds(delay.steps * 0.1, 1));
        row.rounding->setText(QStringLiteral("%1%2").arg(delay.rounding() > 0 ? QStringLiteral("+") : QString(),
                                                         milliseconds(delay.rounding(), 3)));
        row.now->setText(milliseconds(state.delay[output] * 0.1, 1));
        beyond = beyond || std::abs(delay.rounding()) > 0.0501;
        differs = differs || state.delay[output] != delay.steps;
    }
    m_apply->setEnabled(differs);
    m_message->setText(beyond ? deskText("A loudspeaker is too near for the rest: no delay is longer than %1 ms")
                                    .arg(ranges::delay.high * 0.1, 0, 'f', 1)
                              : deskText(firstWords));
}

void TapePanel::apply() {
    const auto delays = tapeDelays(distances(), m_temperature->value());
    SettingsMap wanted;
    for (size_t output = 0; output < delays.size(); ++output) {
        const QString key = QString::fromLatin1(keys::delay.name).arg(output);
        if (toInt(audioStore().values().value(key), keys::delay.defaultValue) != delays[output].steps) {
            wanted.insert(key, delays[output].steps);
        }
    }
    m_context.history.change(DESK_TEXT("Tape measure"), -1, wanted, nullptr);
    showDelays();
}

void TapePanel::restore() {
    const QSettings places(placesFile(), QSettings::IniFormat);
    m_temperature->setValue(places.value(temperatureKey, firstTemperature).toDouble());
    for (size_t output = 0; output < m_rows.size(); ++output) {
        m_rows[output].centimetres->setValue(places.value(distanceKey.arg(output), 0).toDouble());
    }
}

void TapePanel::save() const {
    QSettings places(placesFile(), QSettings::IniFormat);
    places.setValue(temperatureKey, m_temperature->value());
    const TapeDistances all = distances();
    for (size_t output = 0; output < all.size(); ++output) {
        places.setValue(distanceKey.arg(output), all[output]);
    }
}

void TapePanel::retranslate() {
    m_apply->setText(deskText("Apply"));
    m_apply->setToolTip(QStringLiteral("%1 (%2)").arg(deskText("Sets the six delays, as one step"),
                                                      m_apply->shortcut().toString(QKeySequence::NativeText)));
    m_temperatureTitle->setText(deskText("Temperature"));
    m_temperature->setAccessibleName(deskText("Temperature"));
    m_temperature->setToolTip(deskText("Of the air in the car: sound is faster where it is warm"));
    for (size_t column = 0; column < m_heads.size(); ++column) {
        m_heads[column]->setText(QStringLiteral("<b>%1</b>").arg(deskText(headTexts[column])));
    }
    for (size_t output = 0; output < m_rows.size(); ++output) {
        const Row &row = m_rows[output];
        const QString name = deskText(outputTexts[output]);
        row.name->setText(name);
        row.centimetres->setAccessibleName(deskText("%1 in centimetres").arg(name));
        row.centimetres->setToolTip(deskText(firstWords));
        row.inches->setAccessibleName(deskText("%1 in inches").arg(name));
        row.inches->setToolTip(deskText(firstWords));
    }
    showDelays();
}

}  // namespace headunit
