// SPDX-License-Identifier: Apache-2.0
#include "sliderbaraccess.h"

#include "sliderbarwidget.h"

#include <QAccessibleWidget>

namespace cm {

namespace {

const int lowestLevel = 24;

/// Read only: the keys beside it, or a finger, move it, and its owner hears of that.
class SliderBarAccess : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SliderBarAccess(SliderBarWidget *slider)
        : QAccessibleWidget(slider, QAccessible::Slider), m_slider(slider) {}

    void *interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return lowestLevel - m_slider->getLevel(); }
    QVariant minimumValue() const override { return 0; }
    QVariant maximumValue() const override { return lowestLevel; }
    QVariant minimumStepSize() const override { return 1; }
    void setCurrentValue(const QVariant &) override {}

private:
    SliderBarWidget *const m_slider;
};

}  // namespace

QAccessibleInterface *makeSliderBarAccess(const QString &className, QObject *object) {
    return className == QLatin1String("cm::SliderBarWidget")
               ? new SliderBarAccess(static_cast<SliderBarWidget *>(object))
               : nullptr;
}

}  // namespace cm
