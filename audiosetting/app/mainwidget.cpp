// SPDX-License-Identifier: Apache-2.0
#include "mainwidget.h"

#include "navigation/audiorootpagtsettings.h"

namespace audiosetting {

MainWidget::MainWidget(QWidget *parent) : QWidget(parent) {
    if (objectName().isEmpty()) {
        setObjectName(QStringLiteral("audiosetting::MainWidget::MainWidget(QWidget*)"));
    }
    m_root = new AudioRootPagtSettings(this);
    resize(m_root->size());
}

void MainWidget::resume() {
    if (m_root) {
        m_root->onShowInitWidget();
    }
}

}  // namespace audiosetting
