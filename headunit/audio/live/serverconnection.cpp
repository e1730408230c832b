// SPDX-License-Identifier: Apache-2.0
#include "serverconnection.h"

#include <pulse/operation.h>

namespace headunit {

namespace {

ServerConnection::Listener &listener(void *data) {
    return *static_cast<ServerConnection::Listener *>(data);
}

}  // namespace

ServerConnection::ServerConnection(pa_proplist *properties, std::chrono::milliseconds retryAfter, Listener &listener)
    : m_properties(pa_proplist_copy(properties)), m_retryAfter(retryAfter), m_listener(listener) {
    pa_proplist_sets(m_properties, PA_PROP_APPLICATION_NAME, "Head unit");
    pa_proplist_sets(m_properties, PA_PROP_APPLICATION_ID, "com.norvale.headunit");
    pa_proplist_sets(m_properties, PA_PROP_APPLICATION_ICON_NAME, "com.norvale.headunit");
}

ServerConnection::~ServerConnection() {
    disconnect();
    pa_proplist_free(m_properties);
    pa_threaded_mainloop_free(m_loop);
}

bool ServerConnection::start() {
    connect();
    return pa_threaded_mainloop_start(m_loop) >= 0;
}

void ServerConnection::stop() {
    pa_threaded_mainloop_stop(m_loop);
}

void ServerConnection::connect() {
    disconnect();
    m_context = pa_context_new_with_proplist(api(), nullptr, m_properties);
    pa_context_set_state_callback(
        m_context, [](pa_context *, void *data) { static_cast<ServerConnection *>(data)->stateChanged(); }, this);
    pa_context_set_subscribe_callback(
        m_context,
        [](pa_context *, pa_subscription_event_type_t event, uint32_t index, void *data) {
            listener(data).changed(event, index);
        },
        &m_listener);
    if (pa_context_connect(m_context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        failed();
    }
}

void ServerConnection::disconnect() {
    m_retry.stop();
    if (m_context) {
        pa_context_set_state_callback(m_context, nullptr, nullptr);
        pa_context_set_subscribe_callback(m_context, nullptr, nullptr);
        pa_context_disconnect(m_context);
        pa_context_unref(m_context);
        m_context = nullptr;
    }
}

void ServerConnection::failed() {
    m_listener.disconnected();
    tryLater();
}

void ServerConnection::stateChanged() {
    if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context))) {
        failed();
    } else if (isReady()) {
        const int events = PA_SUBSCRIPTION_MASK_SERVER | PA_SUBSCRIPTION_MASK_SINK;
        if (pa_operation *const subscription =
                pa_context_subscribe(m_context, static_cast<pa_subscription_mask_t>(events), nullptr, nullptr)) {
            pa_operation_unref(subscription);
        }
        m_listener.connected();
    }
}

void ServerConnection::tryLater() {
    if (!m_retry.isRunning()) {
        m_retry.start(api(), m_context, static_cast<pa_usec_t>(m_retryAfter.count()) * PA_USEC_PER_MSEC);
    }
}

void ServerConnection::retry() {
    if (isReady()) {
        m_listener.tryAgain();
    } else {
        connect();
    }
}

}  // namespace headunit
