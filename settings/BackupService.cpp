#include "settings/BackupService.h"

#include "model/StoreFile.h"
#include "platform/Clock.h"
#include "platform/Log.h"

#include <utility>

namespace norvin {

BackupService::BackupService(Clock& clock, const QString& storeFile, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_storeFile(storeFile)
    , m_folder(storeFile) {}

BackupService::~BackupService() {
    m_isGivenUp = true;
    m_work.wait();
}

void BackupService::start() {
    if (m_storeFile.isEmpty() || m_isStarted)
        return;
    m_isStarted = true;
    scheduleDaily(startDelay);
}

void BackupService::handleWake() {
    // Timers stood still while the machine slept.
    if (m_isStarted && !isWorking())
        scheduleDaily(startDelay);
}

void BackupService::scheduleDaily(std::chrono::milliseconds delay) {
    m_timer = m_clock.after(delay, [this] { backUpDaily(); });
}

void BackupService::scheduleTomorrow() {
    const QDateTime now = m_clock.now();
    const QDateTime next = startOfDay(now.addDays(1));
    scheduleDaily(std::chrono::milliseconds(now.msecsTo(next)) + midnightDelay);
}

void BackupService::backUpDaily() {
    if (isWorking()) {
        scheduleDaily(startDelay);
        return;
    }
    const QDateTime now = m_clock.now();
    run(Job::daily, [this, now, progress = progress()]() -> Result {
        if (m_folder.hasDaily(now.date()))
            return {};
        const auto facts = readStoreFacts(m_storeFile, CountIntervals::no);
        if (const auto* held = std::get_if<StoreFacts>(&facts); held != nullptr && held->isEmpty())
            return {};
        const QString file = m_folder.fileFor(BackupKind::daily, now);
        if (auto failure = copyStoreFile(m_storeFile, file, progress))
            return {.failure = std::move(failure)};
        m_folder.prune(now.date());
        return {.file = file};
    });
}

bool BackupService::backUpNow() {
    if (isWorking() || m_storeFile.isEmpty())
        return false;
    const QString file = m_folder.fileFor(BackupKind::manual, m_clock.now());
    run(Job::manual, [this, file, progress = progress()] {
        Result result{.job = Job::manual, .failure = copyStoreFile(m_storeFile, file, progress)};
        if (!result.failure)
            result.file = file;
        return result;
    });
    return true;
}

bool BackupService::prepareRestore(const QString& backup) {
    if (isWorking() || m_storeFile.isEmpty())
        return false;
    run(Job::restore, [this, backup, progress = progress()] {
        return Result{.job = Job::restore, .failure = norvin::prepareRestore(m_storeFile, backup, progress)};
    });
    return true;
}

CopyProgress BackupService::progress() {
    return [this, last = 0](int percent) mutable {
        if (percent != last) {
            last = percent;
            QMetaObject::invokeMethod(
                this,
                [this, percent] {
                    m_percent = percent;
                    Q_EMIT workChanged();
                },
                Qt::QueuedConnection);
        }
        return !m_isGivenUp;
    };
}

void BackupService::run(Job job, std::function<Result()> work) {
    m_job = job;
    m_percent = 0;
    const auto piece = [this, work = std::move(work)] { return [this, result = work()] { finish(result); }; };
    m_work.start(piece);
    Q_EMIT workChanged();
}

void BackupService::finish(const Result& result) {
    if (result.failure)
        logLine(QStringLiteral("BackupService: ") + result.failure->description);
    if (result.job == Job::daily) {
        if (result.failure)
            scheduleDaily(retryDelay);
        else
            scheduleTomorrow();
    }
    if (result.job != Job::restore) {
        const Availability now = result.failure
                                     ? Availability::unavailable(QStringLiteral("health_backup_failed"),
                                                                 result.failure->description)
                                     : Availability::available();
        if (now != std::exchange(m_availability, now))
            Q_EMIT availabilityChanged();
    }
    Q_EMIT workChanged();
    Q_EMIT finished(result);
}

} // namespace norvin
