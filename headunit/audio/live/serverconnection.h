// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "looptimer.h"

#include <pulse/proplist.h>
#include <pulse/subscribe.h>
#include <pulse/thread-mainloop.h>

#include <chrono>
#include <string>

namespace headunit {

/// The connection to the desk's sound server, and the thread on which everything happens that has to do with it. A
/// server that is not there, or goes, is called again until it answers.
class ServerConnection {
public:
    /// Called on the server's thread.
    class Listener {
    public:
        /// The server answers.
        virtual void connected() = 0;
        /// No server answers, or no longer. What belongs to the connection is of no use any more.
        virtual void disconnected() = 0;
        /// Something of the server or of its devices has changed.
        virtual void changed(pa_subscription_event_type_t event, uint32_t index) = 0;
        /// It is time for what tryLater() was about.
        virtual void tryAgain() = 0;

    protected:
        ~Listener() = default;
    };

    /// Whoever holds the lock is alone: the thread of the connection waits.
    class Lock {
    public:
        explicit Lock(ServerConnection &connection) : m_loop(connection.m_loop) { pa_threaded_mainloop_lock(m_loop); }
        ~Lock() { pa_threaded_mainloop_unlock(m_loop); }
        Lock(const Lock &) = delete;
        Lock &operator=(const Lock &) = delete;

        /// Lets the thread go on until signal().
        void wait() { pa_threaded_mainloop_wait(m_loop); }

    private:
        pa_threaded_mainloop *const m_loop;
    };

    /// \a properties of the unit, as one of the server's clients, beyond its name.
    ServerConnection(pa_proplist *properties, std::chrono::milliseconds retryAfter, Listener &listener);
    ~ServerConnection();
    ServerConnection(const ServerConnection &) = delete;
    ServerConnection &operator=(const ServerConnection &) = delete;

    /// Calls the server. The listener may hear of the first call's failure before this returns.
    /// False if no thread is to be had.
    bool start();
    /// Ends the thread; the context is still there.
    void stop();

    pa_mainloop_api *api() const { return pa_threaded_mainloop_get_api(m_loop); }
    pa_context *context() const { return m_context; }
    bool isReady() const { return m_context && pa_context_get_state(m_context) == PA_CONTEXT_READY; }

    /// On the server's thread: wakes whoever waits.
    void signal() { pa_threaded_mainloop_signal(m_loop, 0); }
    /// Calls the server again after a while, or the listener if it answers.
    void tryLater();

private:
    void connect();
    void disconnect();
    void failed();
    void stateChanged();
    void retry();

    pa_threaded_mainloop *const m_loop = pa_threaded_mainloop_new();
    pa_proplist *const m_properties;
    const std::chrono::milliseconds m_retryAfter;
    Listener &m_listener;
    pa_context *m_context = nullptr;
    LoopTimer m_retry{[this] { retry(); }};
};

}  // namespace headunit
