#pragma once

#include "model/BackupFolder.h"
#include "model/StoreError.h"
#include "model/StoreReplacement.h"
#include "platform/Availability.h"
#include "settings/BackgroundWork.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <chrono>
#include <memory>

namespace norvin {

class Clock;
class ClockTimer;

/// Copies the store: once a day by itself, and whenever the user wants it. Nobody waits for that; the work is
/// done on a thread of its own, one thing at a time. Main thread only.
class BackupService final : public QObject {
    Q_OBJECT
public:
    /// How long after the start the first daily backup is made: by then the user has begun with something.
    static constexpr std::chrono::seconds startDelay{90};
    /// How long after midnight the next ones are, so that they do not meet what else happens then.
    static constexpr std::chrono::minutes midnightDelay{5};
    /// When one that failed is tried again.
    static constexpr std::chrono::hours retryDelay{1};

    enum class Job {
        daily,   ///< the backup of the day
        manual,  ///< one that the user wants now
        restore, ///< a backup is laid beside the store, to take its place
    };
    struct Result {
        Job job = Job::daily;
        StoreResult failure = {};
        /// The backup that was made; empty where none was.
        QString file = {};
    };

    /// @param clock must outlive this
    /// @param storeFile empty for a store in memory, which is never backed up
    BackupService(Clock& clock, const QString& storeFile, QObject* parent = nullptr);
    /// Gives up what is under way.
    ~BackupService() override;

    [[nodiscard]] const QString& storeFile() const { return m_storeFile; }
    [[nodiscard]] const BackupFolder& folder() const { return m_folder; }
    [[nodiscard]] bool isWorking() const { return m_work.isRunning(); }
    /// What is done while isWorking().
    [[nodiscard]] Job job() const { return m_job; }
    /// How much of it, in per cent.
    [[nodiscard]] int percent() const { return m_percent; }
    /// Whether the last backup that was due or wanted could be made; "health_backup_failed" where not.
    [[nodiscard]] const Availability& availability() const { return m_availability; }

    /// From now on there is a backup each day, unless the store holds nothing.
    void start();
    /// The machine woke: another day may have begun.
    void handleWake();
    // Both do nothing while something else is done. @return whether they begin
    bool backUpNow();
    /// @param backup file to lay beside the store; finished() says whether it lies there
    bool prepareRestore(const QString& backup);

Q_SIGNALS:
    void workChanged();
    void finished(const norvin::BackupService::Result& result);
    void availabilityChanged();

private:
    void scheduleDaily(std::chrono::milliseconds delay);
    void scheduleTomorrow();
    void backUpDaily();
    void run(Job job, std::function<Result()> work);
    void finish(const Result& result);
    [[nodiscard]] CopyProgress progress();

    Clock& m_clock;
    const QString m_storeFile;
    const BackupFolder m_folder;
    std::unique_ptr<ClockTimer> m_timer;
    std::atomic<bool> m_isGivenUp{false};
    Job m_job = Job::daily;
    int m_percent = 0;
    Availability m_availability = Availability::available();
    bool m_isStarted = false;
    BackgroundWork m_work;
};

} // namespace norvin

Q_DECLARE_METATYPE(norvin::BackupService::Result)
