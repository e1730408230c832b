// SPDX-License-Identifier: Apache-2.0
#include "devicechoice.h"

#include "desksinks.h"

#include <pulse/operation.h>

namespace headunit {

namespace {

DeviceChoice &self(void *data) {
    return *static_cast<DeviceChoice *>(data);
}

void release(pa_operation *operation) {
    if (operation) {
        pa_operation_unref(operation);
    }
}

}  // namespace

void DeviceChoice::look(pa_context *context, const std::string &current) {
    m_context = context;
    m_current = current;
    if (!m_wish.device.empty()) {
        lookAt(m_wish.device);
        return;
    }
    release(pa_context_get_server_info(
        m_context,
        [](pa_context *, const pa_server_info *info, void *data) {
            if (info) {
                self(data).defaultFound(info->default_sink_name ? info->default_sink_name : "");
            }
        },
        this));
}

void DeviceChoice::defaultFound(const std::string &device) {
    if (device.empty()) {
        m_listener.deviceMissing();
    } else {
        lookAt(device);
    }
}

void DeviceChoice::lookAt(const std::string &device) {
    release(pa_context_get_sink_info_by_name(
        m_context, device.c_str(),
        [](pa_context *, const pa_sink_info *info, int end, void *data) {
            if (end == 0) {
                self(data).found(*info);
            } else if (end < 0) {
                self(data).m_listener.deviceMissing();
            }
        },
        this));
}

/// The default device may be one that a unit offers, so that all programs are heard through it. The unit itself stays
/// where it plays, or plays on another one.
void DeviceChoice::found(const pa_sink_info &device) {
    if (!m_wish.isDesk || !DeskSinks::isUnits(device)) {
        m_listener.deviceFound(DevicePlan(device, m_wish.map));
    } else if (m_current.empty()) {
        lookForAnother();
    } else if (m_current != device.name) {
        lookAt(m_current);
    }
}

void DeviceChoice::lookForAnother() {
    m_another.clear();
    release(pa_context_get_sink_info_list(
        m_context,
        [](pa_context *, const pa_sink_info *device, int end, void *data) {
            DeviceChoice &choice = self(data);
            if (end == 0) {
                if (choice.m_another.empty() && !DeskSinks::isUnits(*device)) {
                    choice.m_another = device->name;
                }
            } else if (choice.m_another.empty()) {
                choice.m_listener.deviceMissing();
            } else {
                choice.lookAt(choice.m_another);
            }
        },
        this));
}

}  // namespace headunit
