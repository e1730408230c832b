// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

class WindowInterface;

namespace headunit {

class Watchdog;

/// Stands between the unit and its applications. What an application throws ends here: it is a line with the
/// application's name, and that application is neither called nor sent events any more; the others go on. A watchdog,
/// if there is one, learns what is being called.
class ApplicationGuard : public QObject {
    Q_OBJECT
public:
    explicit ApplicationGuard(QObject *parent = nullptr);
    ~ApplicationGuard() override;

    /// Has it watched what is called; null: nothing.
    void setWatchdog(Watchdog *watchdog);

    /// From now on \a root, whose library is the application's, and \a window belong to the application of that name.
    void add(const QString &name, QObject *root, WindowInterface *window);
    /// From now on \a widget, and what it contains, belongs to the application of that window.
    void own(QObject *widget, const WindowInterface *window);
    /// Sends nothing to \a root any more, of a plug-in that never became an application.
    void silence(QObject *root);
    /// Forgets the applications.
    void clear();

    /// Calls into the application of that window. False if it threw, now or earlier: then it is not called.
    bool call(const WindowInterface *window, const char *what, const std::function<void()> &function);
    /// Calls into an application of that name that is not known yet. False, and what it threw as \a problem, if it
    /// threw.
    bool callUnknown(const QString &name, const char *what, const std::function<void()> &function, QString *problem);
    bool hasFailed(const WindowInterface *window) const;

    /// One call or event, for as long as the object lives.
    class Present {
    public:
        Present(ApplicationGuard *guard, const char *application, const char *what);
        ~Present();
        Present(const Present &) = delete;
        Present &operator=(const Present &) = delete;

    private:
        Watchdog *m_watchdog = nullptr;  ///< of the outermost one only
        ApplicationGuard *const m_guard;
    };
    /// The name of the application that an object belongs to, or null.
    const char *nameOf(const QObject *object) const;
    /// Whether an object belongs to an application that failed.
    bool isSilenced(const QObject *object) const { return m_anyFailed && failedOwns(object); }
    /// To be called in a catch block: takes what was thrown while an event was delivered to an object of that class.
    void caught(const char *receiverClass);

Q_SIGNALS:
    /// An application failed; a readable line with its name and the reason.
    void failed(const QString &line);

private:
    struct Entry {
        QByteArray name;
        const void *library;
        const WindowInterface *window;
        std::vector<QPointer<QObject>> objects;
        bool failed;
    };
    Entry *find(const WindowInterface *window);
    const Entry *find(const WindowInterface *window) const;
    const Entry *ownerOf(const QObject *object) const;
    bool failedOwns(const QObject *object) const;
    void fail(Entry *entry, const QString &reason);

    std::vector<Entry> m_entries;
    Watchdog *m_watchdog = nullptr;
    bool m_called = false;  ///< an application is being called or sent an event
    bool m_anyFailed = false;
};

}  // namespace headunit
