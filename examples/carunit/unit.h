// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QVector>
#include <QWidget>

class AppPlugin;
class WindowInterface;

// The parts of this unit, as they know each other.
namespace carunit {

/// The folder that stands for the unit's file system. Set it before anything else is used.
QString rootFolder();
void setRootFolder(const QString &folder);

/// Gives the application its font and its texts. Call it once the application object is there.
void setUpApplication();
/// "en" or "de"; chosen again at the next start.
void setLanguage(const QString &code);

/// Tells the sound processor.
void send(const char *what, const QVector<int> &values);
// Tell it what the store holds: after a Flat, a change of Defeat, a reset; and all of it when the unit starts.
void sendCrossover();
void sendDelays();
void sendDefeat();
void powerUp();

/// The one window: the application, or a home screen with a key for each thing that the rest of a car would do.
class Host : public QWidget {
    Q_OBJECT
public:
    Host();
    ~Host() override;

    /// Loads an application. The reason, where it cannot be shown; else empty.
    QString load(const QString &file);
    void leave();
    bool isOpen() const { return m_open; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

public Q_SLOTS:
    void open();

private Q_SLOTS:
    void openVolumes();
    void english() { setLanguage(QStringLiteral("en")); }
    void german() { setLanguage(QStringLiteral("de")); }

private:
    QObject *m_root = nullptr;
    AppPlugin *m_plugin = nullptr;
    WindowInterface *m_window = nullptr;
    bool m_open = false;
};

}  // namespace carunit

/// The members that every singleton of the contract has.
#define SINGLETON(Class)               \
    Class::Class() : d(new Private) {} \
    Class::~Class() { delete d; }      \
    Class *Class::instance() {         \
        static Class object;           \
        return &object;                \
    }
