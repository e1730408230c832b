// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/host/script/finger.h"

#include <QJSValue>
#include <QObject>

#include <functional>

class QJSEngine;

namespace headunit {

class ScriptTarget;

/// The functions that a script sees. Each invokable method is a global function of that name.
///
/// Places are a widget's object name (its centre), or x and y on the screen. A name that stands on more than one
/// visible page is written with that of a parent: "AudiosettingsTop/Key_update". A failure is thrown as a script error.
class ScriptApi : public QObject {
    Q_OBJECT
public:
    /// Pictures with a relative name go to \a folder. The engine owns the object.
    ScriptApi(ScriptTarget &target, QJSEngine *engine, const QString &folder);

    /// Makes the methods global functions of the engine.
    void install();
    /// Has printed lines go elsewhere than to standard output.
    void setPrinter(std::function<void(const QString &text)> printer) { m_printer = std::move(printer); }
    void setFolder(const QString &folder) { m_folder = folder; }
    /// Lets go if the finger is down.
    void lift();

    // The finger.
    Q_INVOKABLE void tap(const QJSValue &place, const QJSValue &y = QJSValue());
    /// press(name), press(x, y) or press(name, x, y): a position inside the widget.
    Q_INVOKABLE void press(const QJSValue &place, const QJSValue &x = QJSValue(), const QJSValue &y = QJSValue());
    Q_INVOKABLE void move(double x, double y);
    /// A move without the positions on its way, and without the time that it takes.
    Q_INVOKABLE void slide(int x, int y);
    /// Where it is, or at x and y.
    Q_INVOKABLE void release(const QJSValue &x = QJSValue(), const QJSValue &y = QJSValue());
    /// Keys of the keyboard, by name: "Esc", "+".
    Q_INVOKABLE void keyDown(const QString &name);
    Q_INVOKABLE void keyUp(const QString &name);
    /// drag(name, x1, y1, x2, y2) or drag(name, [[x, y], ...]): positions inside the widget.
    Q_INVOKABLE void drag(const QString &name, const QJSValue &from, const QJSValue &y1 = QJSValue(),
                          const QJSValue &x2 = QJSValue(), const QJSValue &y2 = QJSValue());
    Q_INVOKABLE void wait(const QJSValue &ms);

    // Looking.
    /// Saves a picture of the screen. With a description, prints it beside the file's name.
    Q_INVOKABLE void shot(const QString &file, const QString &description = QString());
    /// expect(condition), expect(condition, message) or expect(name, property, value).
    Q_INVOKABLE void expect(const QJSValue &what, const QJSValue &property = QJSValue(),
                            const QJSValue &value = QJSValue());
    Q_INVOKABLE QJSValue get(const QString &name, const QString &property);
    Q_INVOKABLE QJSValue store(const QString &key);
    /// The sound state, as an object.
    Q_INVOKABLE QJSValue sound();
    /// The level of a tone at each loudspeaker: heard(hz), or heard(hz, input) for another input than the main one.
    Q_INVOKABLE QJSValue heard(double hz, int input = 0);
    /// After how many samples each loudspeaker begins to play.
    Q_INVOKABLE QJSValue arrival();
    /// What the running unit has played since the last call.
    Q_INVOKABLE QJSValue meters();
    Q_INVOKABLE void log(const QJSValue &text);

    // The rest of the car.
    /// A whole set-up: every key of the store, the numbers of the sound state, the keys of the shared store.
    Q_INVOKABLE void setup(const QJSValue &settings, const QJSValue &sound, const QJSValue &shared);
    Q_INVOKABLE void setStore(const QString &key, const QJSValue &value);
    Q_INVOKABLE void language(const QString &code);
    Q_INVOKABLE void request();
    Q_INVOKABLE void volume(int type, int level);
    Q_INVOKABLE void source(int number);
    Q_INVOKABLE void call(bool active);
    Q_INVOKABLE void mute(bool muted);
    /// A prompt begins or ends: ringtone, phone, navigation, voice, announcement or beep.
    Q_INVOKABLE void prompt(const QString &name, bool active);
    Q_INVOKABLE void open(const QString &application);
    Q_INVOKABLE void home();
    Q_INVOKABLE void car();

private:
    void fail(const QString &message);
    QList<QWidget *> all(const QString &name);
    /// The one visible widget of that name; null, with a script error, if there is none or more than one.
    QWidget *find(const QString &name);
    /// A property's value; false with a script error if there is none.
    bool read(const QString &name, const QString &property, QJSValue *value);
    /// The position in the window; false with a script error if there is none.
    bool isInReach(double x, double y, int screens);
    bool locate(const QJSValue &place, const QJSValue &x, const QJSValue &y, QPoint *position);
    void sendKey(const QString &name, bool down);

    ScriptTarget &m_target;
    QJSEngine *const m_engine;
    QString m_folder;
    std::function<void(const QString &text)> m_printer;
    Finger m_finger;
};

}  // namespace headunit
