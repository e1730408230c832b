// SPDX-License-Identifier: Apache-2.0
#include "accessibility.h"

#include "horizontalslider.h"
#include "labelbutton.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>

namespace audiosetting {

const char *const less = u8"\u2212";
const char *const more = "+";

namespace {

/// A key of the contract's: pressed as a finger presses it, so that it beeps and clicks as ever.
class KeyAccess : public QAccessibleWidget {
public:
    explicit KeyAccess(QWidget *key) : QAccessibleWidget(key, QAccessible::Button) {}

    QStringList actionNames() const override { return QStringList() << pressAction(); }

    void doAction(const QString &name) override {
        if (name != pressAction() || !widget()->isEnabled()) {
            return;
        }
        const QPoint middle = widget()->rect().center();
        QMouseEvent press(QEvent::MouseButtonPress, middle, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QMouseEvent release(QEvent::MouseButtonRelease, middle, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget(), &press);
        QCoreApplication::sendEvent(widget(), &release);
    }
};

/// The contract's slider. It does not tell its range; who sets that also leaves it in the properties "minimum" and
/// "maximum", as QSlider has them.
class SliderAccess : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SliderAccess(HorizontalSlider *slider)
        : QAccessibleWidget(slider, QAccessible::Slider), m_slider(slider) {}

    void *interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return m_slider->value(); }
    QVariant minimumValue() const override { return m_slider->property("minimum"); }
    QVariant maximumValue() const override { return m_slider->property("maximum"); }
    QVariant minimumStepSize() const override { return 1; }
    void setCurrentValue(const QVariant &value) override {
        m_slider->setValue(qBound(minimumValue().toInt(), value.toInt(), maximumValue().toInt()));
    }

private:
    HorizontalSlider *const m_slider;
};

QAccessibleInterface *makeAccess(const QString &className, QObject *object) {
    if (className == QLatin1String("cm::LabelButton")) {
        return new KeyAccess(static_cast<QWidget *>(object));
    }
    if (className == QLatin1String("HorizontalSlider")) {
        return new SliderAccess(static_cast<HorizontalSlider *>(object));
    }
    if (className == QLatin1String("QScrollArea")) {
        // Qt takes the parent of an area's scroll bar for a part of the area. Where a page has moved the bar out to
        // itself that is the page, and a reader would go round for ever.
        auto *const area = static_cast<QScrollArea *>(object);
        if (!area->isAncestorOf(area->verticalScrollBar())) {
            return new QAccessibleWidget(area, QAccessible::Pane);
        }
    }
    return nullptr;
}

/// As long as the library is loaded.
struct Roles {
    Roles() { QAccessible::installFactory(makeAccess); }
    ~Roles() { QAccessible::removeFactory(makeAccess); }
};

}  // namespace

void nameControls(std::initializer_list<ControlName> names) {
    static const Roles roles;
    for (const ControlName &row : names) {
        QString name = row.caption->text();
        if (row.action) {
            name += QLatin1Char(' ') + QString::fromUtf8(row.action);
        }
        row.control->setAccessibleName(name);
    }
}

}  // namespace audiosetting
