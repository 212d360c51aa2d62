#include "platform/linux/pulse/PulseEventLoop.h"

#include "platform/Clock.h"

#include <QMetaObject>
#include <QObject>
#include <QPointer>
#include <QSocketNotifier>

#include <algorithm>
#include <pulse/mainloop-api.h>

namespace {

using norvin::Clock;
using norvin::ClockTimer;

// A notifier may be given up while it notifies.
struct DeleteLater {
    void operator()(QSocketNotifier* notifier) const {
        notifier->setEnabled(false);
        notifier->deleteLater();
    }
};
using Notifier = std::unique_ptr<QSocketNotifier, DeleteLater>;

Clock& clockOf(pa_mainloop_api* api) {
    return *static_cast<Clock*>(api->userdata);
}

} // namespace

// The three kinds of event that libpulse leaves to whoever runs its loop. It frees them all itself, also from
// within their callbacks: nothing of an event may be touched after its callback.

struct pa_io_event {
    pa_mainloop_api* api;
    int descriptor;
    pa_io_event_cb_t callback;
    void* userdata;
    pa_io_event_destroy_cb_t destroy = nullptr;
    Notifier input;
    Notifier output;

    // The end of a connection shows as input.
    void enable(pa_io_event_flags_t events) {
        watch(input, QSocketNotifier::Read, PA_IO_EVENT_INPUT, events);
        watch(output, QSocketNotifier::Write, PA_IO_EVENT_OUTPUT, events);
    }

    void watch(Notifier& notifier, QSocketNotifier::Type type, pa_io_event_flags_t flag,
               pa_io_event_flags_t wanted) {
        const bool isWanted = (wanted & flag) != 0;
        if (!notifier && isWanted) {
            notifier.reset(new QSocketNotifier(descriptor, type));
            QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                             [this, flag] { callback(api, this, descriptor, flag, userdata); });
        } else if (notifier) {
            notifier->setEnabled(isWanted);
        }
    }
};

struct pa_time_event {
    pa_mainloop_api* api;
    pa_time_event_cb_t callback;
    void* userdata;
    pa_time_event_destroy_cb_t destroy = nullptr;
    std::unique_ptr<ClockTimer> timer;

    /// @param time of the wall clock; null for never
    void restart(const timeval* time) {
        using namespace std::chrono;
        timer.reset();
        if (!time)
            return;
        const milliseconds due = ceil<milliseconds>(seconds(time->tv_sec) + microseconds(time->tv_usec)) -
                                 milliseconds(clockOf(api).now().toMSecsSinceEpoch());
        timer =
            clockOf(api).after(due, [this, deadline = *time] { callback(api, this, &deadline, userdata); });
    }
};

struct pa_defer_event {
    pa_mainloop_api* api;
    pa_defer_event_cb_t callback;
    void* userdata;
    pa_defer_event_destroy_cb_t destroy = nullptr;
    bool isEnabled = false;
    bool isPosted = false;
    // What is posted to it goes with it.
    std::unique_ptr<QObject> turn = std::make_unique<QObject>();

    void enable(bool wanted) {
        isEnabled = wanted;
        if (isEnabled && !isPosted) {
            isPosted = true;
            QMetaObject::invokeMethod(
                turn.get(), [this] { run(); }, Qt::QueuedConnection);
        }
    }

    void run() {
        isPosted = false;
        if (!isEnabled)
            return;
        const QPointer<QObject> alive(turn.get());
        callback(api, this, userdata);
        // Once in every turn of the loop, until it is disabled.
        if (alive)
            enable(isEnabled);
    }
};

namespace {

template <typename Event>
void freeEvent(Event* event) {
    if (event->destroy)
        event->destroy(event->api, event, event->userdata);
    delete event;
}

template <typename Event, typename Callback>
void setDestroy(Event* event, Callback callback) {
    event->destroy = callback;
}

pa_io_event* newIo(pa_mainloop_api* api, int descriptor, pa_io_event_flags_t events,
                   pa_io_event_cb_t callback, void* userdata) {
    auto* event = new pa_io_event{api, descriptor, callback, userdata, nullptr, nullptr, nullptr};
    event->enable(events);
    return event;
}

pa_time_event* newTime(pa_mainloop_api* api, const timeval* time, pa_time_event_cb_t callback,
                       void* userdata) {
    auto* event = new pa_time_event{api, callback, userdata, nullptr, nullptr};
    event->restart(time);
    return event;
}

pa_defer_event* newDefer(pa_mainloop_api* api, pa_defer_event_cb_t callback, void* userdata) {
    auto* event = new pa_defer_event{api, callback, userdata};
    event->enable(true);
    return event;
}

} // namespace

namespace norvin {

PulseEventLoop::PulseEventLoop(Clock& clock)
    : m_api(new pa_mainloop_api{
          .userdata = &clock,
          .io_new = &newIo,
          .io_enable = [](pa_io_event* event, pa_io_event_flags_t events) { event->enable(events); },
          .io_free = &freeEvent<pa_io_event>,
          .io_set_destroy = &setDestroy<pa_io_event, pa_io_event_destroy_cb_t>,
          .time_new = &newTime,
          .time_restart = [](pa_time_event* event, const timeval* time) { event->restart(time); },
          .time_free = &freeEvent<pa_time_event>,
          .time_set_destroy = &setDestroy<pa_time_event, pa_time_event_destroy_cb_t>,
          .defer_new = &newDefer,
          .defer_enable = [](pa_defer_event* event, int wanted) { event->enable(wanted != 0); },
          .defer_free = &freeEvent<pa_defer_event>,
          .defer_set_destroy = &setDestroy<pa_defer_event, pa_defer_event_destroy_cb_t>,
          // Asked for only by programs that live in libpulse's loop altogether.
          .quit = [](pa_mainloop_api*, int) {}}) {}

PulseEventLoop::~PulseEventLoop() = default;

} // namespace norvin
