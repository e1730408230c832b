// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/screens/keyaccess.h"

#include "headunit/host/screens/key.h"

#include <QAccessibleWidget>

namespace headunit {

namespace {

class KeyAccess : public QAccessibleWidget {
public:
    explicit KeyAccess(QAbstractButton *key) : QAccessibleWidget(key, QAccessible::Button), m_key(key) {}

    QString text(QAccessible::Text kind) const override {
        const auto *const key = qobject_cast<const Key *>(m_key);
        return key && kind == QAccessible::Name ? key->name() : QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.pressed = m_key->isDown();
        state.checkable = m_key->isCheckable();
        state.checked = m_key->isChecked();
        return state;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString &action) override {
        if (action == pressAction()) {
            m_key->click();
        }
    }

private:
    QAbstractButton *const m_key;
};

}  // namespace

QAccessibleInterface *makeKeyAccess(const QString &className, QObject *object) {
    const bool isKey = className == QLatin1String("headunit::Key") || className == QLatin1String("headunit::DeskKey");
    return isKey ? new KeyAccess(static_cast<QAbstractButton *>(object)) : nullptr;
}

}  // namespace headunit
