#pragma once

#include "distraction/BlockListSuggestions.h"

#include <QObject>
#include <QString>

namespace norvin {

class BlockListsScreen;
class BrowserAccess;
class DeepWorkScreen;
class Localization;
class Preferences;

/// What a user is told and asked at the first launch, one thing after another. Every step can be passed over,
/// and all of it shown again. Main thread only.
class WelcomeScreen final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isPresented READ isPresented NOTIFY presentedChanged)
    Q_PROPERTY(norvin::WelcomeScreen::Step step READ step NOTIFY stepChanged)
    Q_PROPERTY(int stepCount READ stepCount CONSTANT)
    /// Where the store lies.
    Q_PROPERTY(QString storeFolder READ storeFolder CONSTANT)
    /// Whether programs may read one another's windows: "on", "off", or "missing" where this desktop has no
    /// such service.
    Q_PROPERTY(QString pageAccess READ pageAccess NOTIFY pageAccessChanged)
    Q_PROPERTY(norvin::BlockListSuggestions* suggestions READ suggestions CONSTANT)
    /// What the user wants to work on first.
    Q_PROPERTY(QString taskTitle READ taskTitle WRITE setTaskTitle NOTIFY taskTitleChanged)
public:
    enum Step {
        Language,
        Watching, ///< what is watched, and where that is kept
        Pages,    ///< whether pages in browsers may be told apart
        Lists,    ///< which applications belong to work, and which do not
        Task,     ///< one task, and the start
    };
    Q_ENUM(Step)

    /// True once the welcome has been passed through or left.
    static constexpr auto completedKey = "welcome_completed";

    /// What it works with; all of it must outlive this.
    struct Collaborators {
        Preferences& preferences;
        Localization& localization;
        BrowserAccess& browsers;
        BlockListsScreen& blockLists;
        DeepWorkScreen& deepWork;
        QString storeFolder;
    };
    explicit WelcomeScreen(Collaborators collaborators, QObject* parent = nullptr);
    ~WelcomeScreen() override;

    /// Whether the welcome was never completed with these preferences, and no language was ever chosen.
    [[nodiscard]] static bool isFirstLaunch(const Preferences& preferences);

    [[nodiscard]] bool isPresented() const { return m_isPresented; }
    [[nodiscard]] Step step() const { return m_step; }
    [[nodiscard]] static int stepCount() { return Task + 1; }
    [[nodiscard]] const QString& storeFolder() const { return m_with.storeFolder; }
    [[nodiscard]] QString pageAccess() const;
    [[nodiscard]] BlockListSuggestions* suggestions() const;
    [[nodiscard]] const QString& taskTitle() const { return m_taskTitle; }
    void setTaskTitle(const QString& title);

    /// Opens the welcome at its first step.
    Q_INVOKABLE void present();
    /// Takes what the step says for said, and goes on; from the last step, out, with the task queued.
    Q_INVOKABLE void next();
    /// Goes on without it.
    Q_INVOKABLE void skip();
    Q_INVOKABLE void back();
    /// Out, without what was not said yet.
    Q_INVOKABLE void leave();
    /// Asks the desktop to let programs read one another's windows.
    Q_INVOKABLE void allowPageAccess();
    /// Out, with a work phase on the task. Does nothing while that is not named.
    Q_INVOKABLE void start();

Q_SIGNALS:
    void presentedChanged();
    void stepChanged();
    void pageAccessChanged();
    void taskTitleChanged();
    /// The session that was started is to be seen.
    void started();

private:
    void goTo(Step step);
    void goOn();
    void close();
    void settleLanguage();

    Collaborators m_with;
    bool m_isPresented = false;
    Step m_step = Language;
    QString m_taskTitle;
};

} // namespace norvin
