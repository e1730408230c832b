// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "deviceplan.h"

#include <pulse/context.h>
#include <pulse/introspect.h>

#include <string>

namespace headunit {

/// Finds the device to play on among those of the server. Everything happens on the server's thread.
class DeviceChoice {
public:
    class Listener {
    public:
        virtual void deviceFound(const DevicePlan &plan) = 0;
        /// The one that is wanted, or any.
        virtual void deviceMissing() = 0;

    protected:
        ~Listener() = default;
    };

    /// What to choose by.
    struct Wish {
        std::string device;  ///< the only one, by the server's name of it; empty: the default device
        OutputMap map;
        bool isDesk;  ///< none that a unit offers, as the unit would hear itself there
    };

    DeviceChoice(Wish wish, Listener &listener) : m_wish(std::move(wish)), m_listener(listener) {}
    DeviceChoice(const DeviceChoice &) = delete;
    DeviceChoice &operator=(const DeviceChoice &) = delete;

    /// Tells the listener, later, as long as the connection lives. \a current is the device that plays, or empty.
    void look(pa_context *context, const std::string &current);

private:
    void lookAt(const std::string &device);
    void lookForAnother();
    void defaultFound(const std::string &device);
    void found(const pa_sink_info &device);

    const Wish m_wish;
    Listener &m_listener;
    pa_context *m_context = nullptr;
    std::string m_current;
    std::string m_another;  ///< device than a unit's
};

}  // namespace headunit
