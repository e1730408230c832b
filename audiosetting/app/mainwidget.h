// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

class AudioRootPagtSettings;

namespace audiosetting {

/// The window's content: a bare widget that holds the root page container.
class MainWidget : public QWidget {
    Q_OBJECT
public:
    explicit MainWidget(QWidget *parent);

    /// Re-initialises the pages from the store and shows the page that is due.
    void resume();

private:
    AudioRootPagtSettings *m_root = nullptr;
};

}  // namespace audiosetting
