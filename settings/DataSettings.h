#pragma once

#include "model/ModelContainer.h"
#include "settings/BackgroundWork.h"
#include "settings/BackupListModel.h"
#include "settings/BackupService.h"

#include <QLocale>
#include <QObject>
#include <QString>
#include <QUrl>

#include <optional>

namespace norvin {

class PomodoroTimerService;
class Preferences;

/// What the preferences page says about the user's data, and what can be done with all of it. Texts are in
/// the user's language. Main thread only.
class DataSettings final : public QObject {
    Q_OBJECT
    /// The file of the store; empty for a store in memory, with which nothing can be done.
    Q_PROPERTY(QString storeFile READ storeFile CONSTANT)
    Q_PROPERTY(QUrl storeFolder READ storeFolder CONSTANT)
    Q_PROPERTY(QString backupPath READ backupPath CONSTANT)
    /// That of the backups, or what is above it while there is none.
    Q_PROPERTY(QUrl backupFolder READ backupFolder NOTIFY factsChanged)
    /// How much room the store takes ("12.4 MB"); empty until that was read.
    Q_PROPERTY(QString sizeText READ sizeText NOTIFY factsChanged)
    /// Since when there are records, and how many; empty until that was read.
    Q_PROPERTY(QString recordsText READ recordsText NOTIFY factsChanged)
    Q_PROPERTY(QString lastBackupText READ lastBackupText NOTIFY factsChanged)
    Q_PROPERTY(norvin::BackupListModel* backups READ backups CONSTANT)
    /// Whether something is copied that the user waits for, what, and how much of it in per cent.
    Q_PROPERTY(bool isWorking READ isWorking NOTIFY workChanged)
    Q_PROPERTY(QString workText READ workText NOTIFY workChanged)
    Q_PROPERTY(int percent READ percent NOTIFY workChanged)
    /// How the last thing that was done ended; empty for nothing to say.
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
    Q_PROPERTY(bool isNoticeProblem READ isNoticeProblem NOTIFY noticeChanged)
    /// Whether the store may be replaced now: not while a phase is under way.
    Q_PROPERTY(bool canReplace READ canReplace NOTIFY canReplaceChanged)
    /// What to type before everything is erased.
    Q_PROPERTY(QString eraseWord READ eraseWord NOTIFY languageChanged)
    /// What happened to the store when the program started, to be shown on every page; empty for nothing.
    Q_PROPERTY(QString startNotice READ startNotice NOTIFY startNoticeChanged)
    /// Label of what can be done about it; empty for nothing.
    Q_PROPERTY(QString startAction READ startAction NOTIFY startNoticeChanged)
    Q_PROPERTY(bool isStartNoticeProblem READ isStartNoticeProblem NOTIFY startNoticeChanged)
public:
    /// @param opening how the store of the service was opened
    /// All must outlive this.
    DataSettings(BackupService& service, const StoreOpening& opening, PomodoroTimerService& timer,
                 Preferences& preferences, QObject* parent = nullptr);
    ~DataSettings() override;

    [[nodiscard]] QString storeFile() const { return m_service.storeFile(); }
    [[nodiscard]] QUrl storeFolder() const;
    [[nodiscard]] QString backupPath() const { return m_service.folder().path(); }
    [[nodiscard]] QUrl backupFolder() const;
    [[nodiscard]] QString sizeText() const;
    [[nodiscard]] QString recordsText() const;
    [[nodiscard]] QString lastBackupText() const;
    [[nodiscard]] BackupListModel* backups() { return &m_backups; }
    [[nodiscard]] bool isWorking() const;
    [[nodiscard]] QString workText() const;
    [[nodiscard]] int percent() const { return m_service.percent(); }
    [[nodiscard]] const QString& notice() const { return m_notice; }
    [[nodiscard]] bool isNoticeProblem() const { return m_isNoticeProblem; }
    [[nodiscard]] bool canReplace() const;
    [[nodiscard]] QString eraseWord() const;
    [[nodiscard]] QString startNotice() const;
    [[nodiscard]] QString startAction() const;
    [[nodiscard]] bool isStartNoticeProblem() const;

    /// Reads what is shown anew; the texts follow a moment later.
    Q_INVOKABLE void refresh();
    Q_INVOKABLE void backUpNow();
    /// What a restore of that file does, as a sentence to agree to; empty for one that is not in the list.
    Q_INVOKABLE [[nodiscard]] QString restoreQuestion(const QString& file) const;
    /// Puts a backup in the place of the store, which ends in restartWanted(). A file that is not in the list
    /// does nothing; while a phase is under way that is refused with a notice.
    Q_INVOKABLE void restore(const QString& file);
    /// What the button of the start notice does: restores the newest backup. What comes of it is said there.
    Q_INVOKABLE void act();
    Q_INVOKABLE void dismissStartNotice();
    Q_INVOKABLE void dismissNotice();
    /// Whether the text is the word, whatever its case.
    Q_INVOKABLE [[nodiscard]] bool isEraseWord(const QString& text) const;
    /// Erases everything in the store, which ends in restartWanted().
    /// @param typed what the user typed: anything but the word does nothing
    /// @param settings whether the preferences go too, with the block lists
    /// @param backups whether the backups go too
    Q_INVOKABLE void erase(const QString& typed, bool settings, bool backups);

    void retranslate(const QLocale& locale);

Q_SIGNALS:
    void factsChanged();
    void workChanged();
    void noticeChanged();
    void canReplaceChanged();
    void languageChanged();
    void startNoticeChanged();
    /// What was prepared is carried out when the program starts the next time, which should be now.
    void restartWanted();

private:
    enum class StartState { fine, lost, restored, restoredKept, restoredDamaged, erased, refused };
    struct Read {
        std::optional<StoreFacts> store;
        std::vector<BackupListModel::Row> backups;
    };
    void handleFinished(const BackupService::Result& result);
    void takeRead(Read read);
    /// @return whether that will last; where not, nothing is cleared
    bool clearPreferences();
    void refuseAtStart(const QString& problem);
    [[nodiscard]] const BackupListModel::Row* listed(const QString& file) const;
    /// Begins, or says in the user's language why not.
    [[nodiscard]] QString restoreFile(const QString& file);
    [[nodiscard]] QString startText() const;
    void remarkAtStart(const QString& remark);
    void say(const QString& notice, bool isProblem);
    /// Of those that can be restored.
    [[nodiscard]] std::optional<BackupFile> newestBackup() const;

    BackupService& m_service;
    PomodoroTimerService& m_timer;
    Preferences& m_preferences;
    StartState m_startState = StartState::fine;
    QString m_startProblem;
    /// What came of the last action of the start notice; empty for nothing to say.
    QString m_startRemark;
    /// What to offer in the place of what was lost.
    std::optional<BackupFile> m_offered;
    std::optional<StoreFacts> m_facts;
    BackupListModel m_backups{nullptr};
    QLocale m_locale;
    QString m_notice;
    bool m_isNoticeProblem = false;
    bool m_isReadAgain = false;
    BackgroundWork m_reading;
};

} // namespace norvin
