#include "settings/DataSettings.h"

#include "focus/PomodoroTimerService.h"
#include "model/StoreFile.h"
#include "model/StoreReplacement.h"
#include "platform/Preferences.h"
#include "services/LicenseService.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <utility>

namespace norvin {

DataSettings::DataSettings(BackupService& service, const StoreOpening& opening, PomodoroTimerService& timer,
                           Preferences& preferences, QObject* parent)
    : QObject(parent)
    , m_service(service)
    , m_timer(timer)
    , m_preferences(preferences) {
    using Kind = ReplacementOutcome::Kind;
    if (!opening.lossReason.isEmpty()) {
        m_startState = StartState::lost;
        m_startProblem = opening.lossReason;
        m_offered = newestBackup();
    } else if (opening.replacement.kind == Kind::refused) {
        m_startState = StartState::refused;
        m_startProblem = opening.replacement.problem;
    } else if (opening.replacement.kind != Kind::none) {
        m_startState = opening.replacement.kind == Kind::erased ? StartState::erased
                       : opening.replacement.isFormerKept       ? StartState::restoredKept
                                                                : StartState::restored;
        if (!opening.replacement.damagedFile.isEmpty()) {
            m_startState = StartState::restoredDamaged;
            m_startProblem = opening.replacement.damagedFile;
        }
    }
    connect(&service, &BackupService::workChanged, this, &DataSettings::workChanged);
    connect(&service, &BackupService::finished, this, &DataSettings::handleFinished);
    connect(&timer, &PomodoroTimerService::stateChanged, this, &DataSettings::canReplaceChanged);
    connect(&timer, &PomodoroTimerService::stateChanged, this, [this] { remarkAtStart({}); });
}

DataSettings::~DataSettings() = default;

QUrl DataSettings::storeFolder() const {
    return QUrl::fromLocalFile(QFileInfo(storeFile()).path());
}

QUrl DataSettings::backupFolder() const {
    const bool isThere = QFileInfo::exists(backupPath());
    return isThere ? QUrl::fromLocalFile(backupPath()) : storeFolder();
}

QString DataSettings::sizeText() const {
    return m_facts ? m_locale.formattedDataSize(m_facts->bytes, 1, QLocale::DataSizeTraditionalFormat)
                   : QString();
}

QString DataSettings::recordsText() const {
    if (!m_facts)
        return {};
    if (!m_facts->firstSession.isValid())
        return qtTrId("data_no_records");
    const auto count = [](qint64 number) {
        return static_cast<int>(std::min<qint64>(number, std::numeric_limits<int>::max()));
    };
    return qtTrId("data_records_since")
        .arg(m_locale.toString(m_facts->firstSession.date(), qtTrId("backup_date_pattern")),
             qtTrId("count_sessions", count(m_facts->sessions)),
             qtTrId("count_intervals", count(m_facts->intervals)));
}

QString DataSettings::lastBackupText() const {
    if (!m_facts)
        return {};
    if (m_backups.rows().empty())
        return qtTrId("data_no_backup");
    return qtTrId("data_last_backup").arg(m_backups.whenText(m_backups.rows().front().file));
}

bool DataSettings::isWorking() const {
    // That of the day is nobody's to wait for.
    return m_service.isWorking() && m_service.job() != BackupService::Job::daily;
}

QString DataSettings::workText() const {
    if (!isWorking())
        return {};
    return m_service.job() == BackupService::Job::restore ? qtTrId("data_restoring")
                                                          : qtTrId("data_backing_up");
}

bool DataSettings::canReplace() const {
    return m_timer.state() != TimerState::running && m_timer.state() != TimerState::paused;
}

QString DataSettings::eraseWord() const {
    return qtTrId("erase_word");
}

QString DataSettings::startNotice() const {
    const QString text = startText();
    return text.isEmpty() || m_startRemark.isEmpty() ? text : text + u' ' + m_startRemark;
}

QString DataSettings::startText() const {
    switch (m_startState) {
    case StartState::fine:
        return {};
    case StartState::lost:
        return m_offered ? qtTrId("data_lost_with_backup").arg(m_startProblem, m_backups.whenText(*m_offered))
                         : qtTrId("data_lost").arg(m_startProblem);
    case StartState::restored:
        return qtTrId("data_restored");
    case StartState::restoredKept:
        return qtTrId("data_restored_kept");
    case StartState::restoredDamaged:
        return qtTrId("data_restored_damaged").arg(m_startProblem);
    case StartState::erased:
        return qtTrId("data_erased");
    case StartState::refused:
        return qtTrId("data_not_replaced").arg(m_startProblem);
    }
    return {};
}

QString DataSettings::startAction() const {
    return m_offered ? qtTrId("data_restore_button") : QString();
}

bool DataSettings::isStartNoticeProblem() const {
    return m_startState == StartState::lost || m_startState == StartState::refused;
}

void DataSettings::refresh() {
    if (storeFile().isEmpty())
        return;
    if (m_reading.isRunning()) {
        m_isReadAgain = true;
        return;
    }
    m_reading.start([this, file = storeFile(), folder = m_service.folder()] {
        Read read;
        auto facts = readStoreFacts(file, CountIntervals::yes);
        if (const auto* held = std::get_if<StoreFacts>(&facts))
            read.store = *held;
        for (const BackupFile& backup : folder.files())
            read.backups.push_back(
                {.file = backup, .facts = readStoreFacts(backup.path, CountIntervals::no)});
        return [this, read = std::move(read)] { takeRead(read); };
    });
}

void DataSettings::takeRead(Read read) {
    m_facts = read.store;
    m_backups.setRows(std::move(read.backups));
    Q_EMIT factsChanged();
    if (std::exchange(m_isReadAgain, false))
        refresh();
}

void DataSettings::backUpNow() {
    if (m_service.backUpNow())
        dismissNotice();
    else
        say(qtTrId("data_busy"), true);
}

const BackupListModel::Row* DataSettings::listed(const QString& file) const {
    const auto& rows = m_backups.rows();
    const auto found = std::find_if(
        rows.begin(), rows.end(), [&file](const BackupListModel::Row& row) { return row.file.path == file; });
    return found == rows.end() ? nullptr : &*found;
}

QString DataSettings::restoreQuestion(const QString& file) const {
    const BackupListModel::Row* const chosen = listed(file);
    if (chosen == nullptr)
        return {};
    const auto* const facts = std::get_if<StoreFacts>(&chosen->facts);
    return qtTrId("restore_message")
        .arg(m_backups.whenText(chosen->file), facts != nullptr ? contentsText(*facts) : QString());
}

void DataSettings::restore(const QString& file) {
    if (listed(file) == nullptr)
        return;
    const QString refusal = restoreFile(file);
    say(refusal, !refusal.isEmpty());
}

void DataSettings::act() {
    if (!m_offered)
        return;
    const QString refusal = restoreFile(m_offered->path);
    remarkAtStart(refusal.isEmpty() ? qtTrId("data_restoring") : refusal);
}

QString DataSettings::restoreFile(const QString& file) {
    if (!canReplace())
        return qtTrId("data_refused_session");
    return m_service.prepareRestore(file) ? QString() : qtTrId("data_busy");
}

void DataSettings::handleFinished(const BackupService::Result& result) {
    switch (result.job) {
    case BackupService::Job::daily:
        if (result.failure)
            say(qtTrId("data_daily_failed").arg(result.failure->description), true);
        break;
    case BackupService::Job::manual:
        if (result.failure)
            say(qtTrId("data_backup_failed").arg(result.failure->description), true);
        else
            say(qtTrId("data_backup_made").arg(QFileInfo(result.file).fileName()), false);
        break;
    case BackupService::Job::restore:
        if (result.failure) {
            say(qtTrId("data_restore_failed").arg(result.failure->description), true);
            refuseAtStart(result.failure->description);
        } else if (canReplace()) {
            Q_EMIT restartWanted();
        } else {
            // A phase was begun meanwhile, and nobody restarts under it.
            cancelReplacement(storeFile());
            say(qtTrId("data_refused_session"), true);
            remarkAtStart(qtTrId("data_refused_session"));
        }
        break;
    }
    if (!result.file.isEmpty())
        refresh();
}

// Whoever restores from the notice looks at the notice.
void DataSettings::refuseAtStart(const QString& problem) {
    if (m_startState == StartState::fine)
        return;
    m_startState = StartState::refused;
    m_startProblem = problem;
    m_startRemark.clear();
    Q_EMIT startNoticeChanged();
}

// Whoever presses the button of the notice may not see the page.
void DataSettings::remarkAtStart(const QString& remark) {
    if (remark == m_startRemark)
        return;
    m_startRemark = remark;
    Q_EMIT startNoticeChanged();
}

void DataSettings::dismissStartNotice() {
    m_startState = StartState::fine;
    m_startRemark.clear();
    m_offered.reset();
    Q_EMIT startNoticeChanged();
}

void DataSettings::dismissNotice() {
    say({}, false);
}

void DataSettings::say(const QString& notice, bool isProblem) {
    m_notice = notice;
    m_isNoticeProblem = isProblem;
    Q_EMIT noticeChanged();
}

bool DataSettings::isEraseWord(const QString& text) const {
    return text.trimmed().compare(eraseWord(), Qt::CaseInsensitive) == 0;
}

void DataSettings::erase(const QString& typed, bool settings, bool backups) {
    if (!isEraseWord(typed) || storeFile().isEmpty())
        return;
    if (!canReplace() || m_service.isWorking()) {
        say(canReplace() ? qtTrId("data_busy") : qtTrId("data_refused_session"), true);
        return;
    }
    const auto failure = prepareErase(storeFile(), backups ? ErasedBackups::removed : ErasedBackups::kept);
    if (failure) {
        say(qtTrId("data_erase_failed").arg(failure->description), true);
        return;
    }
    if (settings && !clearPreferences()) {
        cancelReplacement(storeFile());
        say(qtTrId("data_erase_failed").arg(qtTrId("health_preferences_unwritable")), true);
        return;
    }
    Q_EMIT restartWanted();
}

bool DataSettings::clearPreferences() {
    // Whether a change lasts is known only after one. What is cleared in memory alone would reach the file
    // later.
    const QString trial = QStringLiteral("erasing");
    m_preferences.setValue(trial, true);
    if (!m_preferences.availability().isAvailable()) {
        m_preferences.remove(trial);
        return false;
    }
    // A trial does not begin anew.
    QList<std::pair<QString, QVariant>> kept;
    for (const char* const key : {LicenseService::firstLaunchKey, LicenseService::latestDayKey}) {
        if (const auto value = m_preferences.value(QLatin1String(key)))
            kept.append({QLatin1String(key), *value});
    }
    m_preferences.clear();
    for (const auto& [key, value] : std::as_const(kept))
        m_preferences.setValue(key, value);
    return m_preferences.availability().isAvailable();
}

void DataSettings::retranslate(const QLocale& locale) {
    m_locale = locale;
    m_backups.retranslate(locale);
    // How something ended was said in the language of before.
    dismissNotice();
    m_startRemark.clear();
    Q_EMIT languageChanged();
    Q_EMIT factsChanged();
    Q_EMIT workChanged();
    Q_EMIT startNoticeChanged();
}

std::optional<BackupFile> DataSettings::newestBackup() const {
    for (const BackupFile& backup : m_service.folder().files()) {
        const auto facts = readStoreFacts(backup.path, CountIntervals::no);
        if (std::holds_alternative<StoreFacts>(facts))
            return backup;
    }
    return {};
}

} // namespace norvin
