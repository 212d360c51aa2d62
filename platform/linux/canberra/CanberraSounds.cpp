#include "platform/linux/canberra/CanberraSounds.h"

#include "platform/ApplicationCatalog.h"
#include "platform/Log.h"
#include "platform/linux/canberra/CanberraLibrary.h"

#include <QByteArray>
#include <QMetaObject>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace norvin {

using namespace std::chrono_literals;
using SteadyTime = std::chrono::steady_clock::time_point;

namespace {

constexpr auto staleAfter = 2s;
constexpr auto patienceAtEnd = 250ms;
// The connection to the server is given up after this long without a sound: it wakes the process for every
// stream of every other program.
constexpr auto idleAfter = 30s;
constexpr size_t mostPending = 8;

struct Sound {
    const char* name;
    // From the freedesktop sound naming scheme.
    const char* event;
};

constexpr Sound sounds[] = {
    {"Ping", "message-new-instant"}, {"Blow", "dialog-information"}, {"Bottle", "service-logout"},
    {"Pop", "audio-volume-change"},  {"Glass", "complete"},          {"Submarine", "alarm-clock-elapsed"},
};

Availability availabilityOf(int result) {
    const CanberraLibrary* const library = CanberraLibrary::find();
    const QString detail = library != nullptr ? QString::fromUtf8(library->ca_strerror(result))
                                              : QStringLiteral("libcanberra.so.0 is missing");
    switch (result) {
    case CA_SUCCESS:
        return Availability::available();
    case CA_ERROR_NOTFOUND:
        return Availability::unavailable(QStringLiteral("health_no_sound_theme"), detail);
    default:
        return Availability::unavailable(QStringLiteral("health_no_sound_server"), detail);
    }
}

} // namespace

struct CanberraSounds::Worker {
    struct Request {
        // None asks only whether the server answers.
        const char* event = nullptr;
        QByteArray decibels;
        SteadyTime since;
    };

    std::mutex mutex;
    std::condition_variable wake;
    std::condition_variable ended;
    std::deque<Request> requests;
    CanberraSounds* receiver = nullptr;
    bool started = false;
    bool stop = false;
    bool hasEnded = false;

    void add(const std::shared_ptr<Worker>& self, Request request) {
        const std::lock_guard lock(mutex);
        if (requests.size() == mostPending)
            requests.pop_front();
        request.since = std::chrono::steady_clock::now();
        requests.push_back(std::move(request));
        if (!started) {
            started = true;
            std::thread([self] { self->run(); }).detach();
        }
        wake.notify_one();
    }

    void run() {
        ca_context* context = nullptr;
        std::unique_lock lock(mutex);
        while (!stop) {
            if (requests.empty()) {
                const bool idle = !wake.wait_for(lock, idleAfter, [&] { return stop || !requests.empty(); });
                if (idle && context) {
                    lock.unlock();
                    close(context);
                    lock.lock();
                }
                if (idle && !context)
                    wake.wait(lock, [&] { return stop || !requests.empty(); });
                continue;
            }
            const Request request = std::move(requests.front());
            requests.pop_front();
            if (std::chrono::steady_clock::now() - request.since > staleAfter)
                continue;
            lock.unlock();
            // A connection whose server has gone does not come back: one more try with a new one.
            const bool fresh = !context;
            int result = perform(context, request);
            if (result != CA_SUCCESS && result != CA_ERROR_NOTFOUND) {
                close(context);
                if (!fresh)
                    result = perform(context, request);
                if (result != CA_SUCCESS)
                    close(context);
            }
            lock.lock();
            report(result);
        }
        lock.unlock();
        close(context);
        lock.lock();
        hasEnded = true;
        ended.notify_all();
    }

    static int perform(ca_context*& context, const Request& request) {
        const CanberraLibrary* const library = CanberraLibrary::find();
        if (library == nullptr)
            return CA_ERROR_NODRIVER;
        if (!context) {
            if (const int result = library->ca_context_create(&context); result != CA_SUCCESS)
                return result;
            library->ca_context_change_props(context, CA_PROP_APPLICATION_NAME, "Norvin Focus",
                                             CA_PROP_APPLICATION_ID, ownBundleIdentifier,
                                             CA_PROP_APPLICATION_ICON_NAME, ownBundleIdentifier, nullptr);
        }
        if (!request.event)
            return library->ca_context_open(context);
        return library->ca_context_play(context, 0, CA_PROP_EVENT_ID, request.event, CA_PROP_MEDIA_ROLE,
                                        "event", CA_PROP_CANBERRA_VOLUME, request.decibels.constData(),
                                        nullptr);
    }

    static void close(ca_context*& context) {
        if (context)
            CanberraLibrary::find()->ca_context_destroy(context);
        context = nullptr;
    }

    // Called with the mutex held: the receiver cannot go away meanwhile.
    void report(int result) {
        if (!receiver)
            return;
        QMetaObject::invokeMethod(
            receiver, [target = receiver, result] { target->setAvailability(availabilityOf(result)); },
            Qt::QueuedConnection);
    }
};

CanberraSounds::CanberraSounds(QObject* parent)
    : SystemSounds(parent)
    , m_worker(std::make_shared<Worker>()) {
    m_worker->receiver = this;
}

CanberraSounds::~CanberraSounds() {
    std::unique_lock lock(m_worker->mutex);
    m_worker->receiver = nullptr;
    m_worker->stop = true;
    m_worker->requests.clear();
    m_worker->wake.notify_one();
    if (m_worker->started)
        m_worker->ended.wait_for(lock, patienceAtEnd, [this] { return m_worker->hasEnded; });
}

void CanberraSounds::play(const QString& name, double volume) {
    const auto sound = std::find_if(std::begin(sounds), std::end(sounds), [&](const Sound& candidate) {
        return name == QLatin1String(candidate.name);
    });
    if (sound == std::end(sounds) || !(volume > 0.0))
        return;
    const double decibels = 20.0 * std::log10(std::min(volume, 1.0));
    Worker::Request request;
    request.event = sound->event;
    request.decibels = QByteArray::number(decibels, 'f', 2);
    m_worker->add(m_worker, std::move(request));
}

void CanberraSounds::beep() {
    Worker::Request request;
    request.event = "bell";
    request.decibels = "0.0";
    m_worker->add(m_worker, std::move(request));
}

void CanberraSounds::probe() {
    m_worker->add(m_worker, {});
}

void CanberraSounds::setAvailability(const Availability& availability) {
    if (m_availability == availability)
        return;
    m_availability = availability;
    if (const auto& reason = availability.reason())
        logLine(QStringLiteral("CanberraSounds: No sound: ") + reason->detail);
    Q_EMIT availabilityChanged();
}

} // namespace norvin
