#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <functional>

namespace norvin {

/// What can be done from anywhere: by the menu of the window, its command palette and the item in the tray.
/// Main thread only.
class WindowActions final : public QObject {
    Q_OBJECT
    /// Changes whenever what is offered or can be done may have; what asks offers() or canRun() binds to it.
    Q_PROPERTY(int revision READ revision NOTIFY changed)
public:
    struct Action {
        /// Names the action in the program ("check_for_updates").
        QString id;
        /// Localisation key of what it is called.
        QString titleKey;
        /// Symbol that stands for it.
        QString symbol;
        /// The keys that do the same, as they are shown; empty for none.
        QString keys = {};
        /// Whether the action exists at all as things are; always where there is no function.
        std::function<bool()> isOffered = {};
        /// Whether it can be done now. One that is offered and cannot be done is shown greyed out.
        std::function<bool()> isEnabled = {};
        std::function<void()> run = {};
    };

    explicit WindowActions(QObject* parent);
    ~WindowActions() override;

    /// Adds an action after the others. @param action its id is not taken yet
    void add(Action action);
    [[nodiscard]] const QList<Action>& actions() const { return m_actions; }
    [[nodiscard]] static bool isOffered(const Action& action);
    [[nodiscard]] static bool isEnabled(const Action& action);

    [[nodiscard]] int revision() const { return m_revision; }
    /// To be told by whatever decides what can be done.
    void notifyChanged();

    /// Whether there is an action of that id that is offered now.
    Q_INVOKABLE [[nodiscard]] bool offers(const QString& id) const;
    /// Whether that action could be done now.
    Q_INVOKABLE [[nodiscard]] bool canRun(const QString& id) const;
    /// Does it; does nothing where it cannot be done.
    Q_INVOKABLE void run(const QString& id);

Q_SIGNALS:
    void changed();
    /// The window is to show the page of that number (see Main.qml).
    void pageWanted(int number);
    /// The program is to end, after a question where something runs.
    void quitWanted();

private:
    [[nodiscard]] const Action* find(const QString& id) const;

    QList<Action> m_actions;
    int m_revision = 0;
};

} // namespace norvin
