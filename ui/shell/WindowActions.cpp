#include "ui/shell/WindowActions.h"

#include <algorithm>

namespace norvin {

WindowActions::WindowActions(QObject* parent)
    : QObject(parent) {}

WindowActions::~WindowActions() = default;

void WindowActions::add(Action action) {
    Q_ASSERT(find(action.id) == nullptr && action.run);
    m_actions.append(std::move(action));
    notifyChanged();
}

void WindowActions::notifyChanged() {
    ++m_revision;
    Q_EMIT changed();
}

bool WindowActions::isOffered(const Action& action) {
    return !action.isOffered || action.isOffered();
}

bool WindowActions::isEnabled(const Action& action) {
    return isOffered(action) && (!action.isEnabled || action.isEnabled());
}

bool WindowActions::offers(const QString& id) const {
    const Action* const action = find(id);
    return action != nullptr && isOffered(*action);
}

bool WindowActions::canRun(const QString& id) const {
    const Action* const action = find(id);
    return action != nullptr && isEnabled(*action);
}

void WindowActions::run(const QString& id) {
    if (!canRun(id))
        return;
    // A copy, since an action may add others.
    const std::function<void()> run = find(id)->run;
    run();
}

const WindowActions::Action* WindowActions::find(const QString& id) const {
    const auto found = std::find_if(m_actions.cbegin(), m_actions.cend(),
                                    [&id](const Action& action) { return action.id == id; });
    return found == m_actions.cend() ? nullptr : &*found;
}

} // namespace norvin
