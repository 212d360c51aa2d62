#include "platform/linux/atspi/AtspiWindowSearch.h"

#include <QSet>

#include <functional>

namespace norvin {

namespace {

constexpr int deepest = 24;

bool isMenu(quint32 role) {
    return role == AtspiRole::menu || role == AtspiRole::menuBar || role == AtspiRole::popupMenu;
}

bool isDocument(quint32 role) {
    return role == AtspiRole::documentWeb || role == AtspiRole::documentFrame;
}

enum class Next { descend, skip, stop };

// Visits what is on the screen below an object, parents first. Objects that answer to be their own
// grandchildren are visited once.
void visitShowing(AtspiProbe& probe, const AtspiReference& root,
                  const std::function<Next(const AtspiReference&, quint32 role, quint64 states)>& visit) {
    struct Pending {
        AtspiReference object;
        int depth;
    };
    QSet<QString> seen{root.path};
    std::vector<Pending> stack{{root, 0}};
    while (!stack.empty() && probe.failure() == AtspiProbe::Failure::none) {
        const Pending pending = std::move(stack.back());
        stack.pop_back();
        if (pending.depth > 0) {
            const quint64 states = probe.states(pending.object);
            if (!(states & AtspiState::showing))
                continue;
            const quint32 role = probe.role(pending.object);
            const Next next = visit(pending.object, role, states);
            if (next == Next::stop)
                return;
            if (next == Next::skip)
                continue;
        }
        if (pending.depth == deepest)
            continue;
        const auto children = probe.children(pending.object);
        for (auto child = children.rbegin(); child != children.rend(); ++child) {
            if (seen.contains(child->path))
                continue;
            seen.insert(child->path);
            stack.push_back({*child, pending.depth + 1});
        }
    }
}

// The button itself says by its class what it is for; the one of the sound is on a pinned tab as well.
AtspiReference closeButtonOf(AtspiProbe& probe, const AtspiReference& tab) {
    AtspiReference button;
    visitShowing(probe, tab, [&](const AtspiReference& object, quint32 role, quint64) {
        if (role != AtspiRole::pushButton)
            return Next::descend;
        if (probe.attributes(object)
                .value(QStringLiteral("class"))
                .contains(QLatin1String("close"), Qt::CaseInsensitive))
            button = object;
        return Next::skip;
    });
    return button;
}

} // namespace

AtspiReference findFrontDocument(AtspiProbe& probe, const AtspiReference& window) {
    AtspiReference document = probe.embeddedDocument(window);
    if (!document.isNull())
        return document;
    visitShowing(probe, window, [&](const AtspiReference& object, quint32 role, quint64) {
        if (role == AtspiRole::documentWeb) {
            document = object;
            return Next::stop;
        }
        const bool holdsPages = role != AtspiRole::toolBar && role != AtspiRole::pageTabList &&
                                !isMenu(role) && role != AtspiRole::documentFrame;
        return holdsPages ? Next::descend : Next::skip;
    });
    return document;
}

FrontTab findFrontTab(AtspiProbe& probe, const AtspiReference& window) {
    std::vector<AtspiReference> selected;
    visitShowing(probe, window, [&](const AtspiReference& object, quint32 role, quint64 states) {
        if (role == AtspiRole::pageTab) {
            if (states & AtspiState::selected)
                selected.push_back(object);
            return Next::skip;
        }
        // The first list of tabs with a selected one is the browser's; a list behind it may be of a side bar.
        if (role == AtspiRole::pageTabList && !selected.empty())
            return Next::stop;
        return isMenu(role) || isDocument(role) ? Next::skip : Next::descend;
    });
    // A click on the close button would close all tabs of a selection.
    if (selected.size() != 1 || probe.failure() != AtspiProbe::Failure::none)
        return {};
    return {.tab = selected.front(), .closeButton = closeButtonOf(probe, selected.front())};
}

} // namespace norvin
