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

enum class Next { descend, skip, finishLevel };

// Visits what is on the screen below an object, level by level, because what is asked of a whole level takes
// hardly longer than what is asked of one object. Objects that claim to be their own grandchildren are
// visited once.
void visitShowing(AtspiProbe& probe, const AtspiReference& root,
                  const std::function<Next(const AtspiReference&, const AtspiProbe::Facts&)>& visit) {
    QSet<QString> seen{root.path};
    AtspiProbe::References parents{root};
    for (int depth = 0; depth < deepest && !parents.empty(); ++depth) {
        AtspiProbe::References level;
        for (AtspiProbe::References& children : probe.childrenOfEach(parents)) {
            for (AtspiReference& child : children) {
                if (seen.contains(child.path))
                    continue;
                seen.insert(child.path);
                level.push_back(std::move(child));
            }
        }
        const auto facts = probe.factsOfEach(level);
        parents.clear();
        bool isDone = false;
        for (size_t i = 0; i < level.size() && probe.failure() == AtspiProbe::Failure::none; ++i) {
            if (!(facts[i].states & AtspiState::showing))
                continue;
            const Next next = visit(level[i], facts[i]);
            isDone = isDone || next == Next::finishLevel;
            if (next == Next::descend)
                parents.push_back(std::move(level[i]));
        }
        if (isDone)
            return;
    }
}

// The button itself says by its class what it is for; the one of the sound is on a pinned tab as well.
AtspiReference closeButtonOf(AtspiProbe& probe, const AtspiReference& tab) {
    AtspiReference button;
    visitShowing(probe, tab, [&](const AtspiReference& object, const AtspiProbe::Facts& facts) {
        if (facts.role != AtspiRole::pushButton)
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
    visitShowing(probe, window, [&](const AtspiReference& object, const AtspiProbe::Facts& facts) {
        if (facts.role == AtspiRole::documentWeb) {
            if (document.isNull())
                document = object;
            return Next::finishLevel;
        }
        const bool holdsPages = facts.role != AtspiRole::toolBar && facts.role != AtspiRole::pageTabList &&
                                !isMenu(facts.role) && !isDocument(facts.role);
        return holdsPages ? Next::descend : Next::skip;
    });
    return document;
}

FrontTab findFrontTab(AtspiProbe& probe, const AtspiReference& window) {
    std::vector<AtspiReference> selected;
    visitShowing(probe, window, [&](const AtspiReference& object, const AtspiProbe::Facts& facts) {
        if (facts.role == AtspiRole::pageTab) {
            if (!(facts.states & AtspiState::selected))
                return Next::skip;
            selected.push_back(object);
            return Next::finishLevel;
        }
        const bool holdsTabs =
            !isMenu(facts.role) && !isDocument(facts.role) && facts.role != AtspiRole::pushButton;
        return holdsTabs ? Next::descend : Next::skip;
    });
    // A click on the close button would close all tabs of a selection.
    if (selected.size() != 1 || probe.failure() != AtspiProbe::Failure::none)
        return {};
    return {.tab = selected.front(), .closeButton = closeButtonOf(probe, selected.front())};
}

} // namespace norvin
