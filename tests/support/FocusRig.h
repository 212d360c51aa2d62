#pragma once

#include "distraction/AppBlockerService.h"
#include "distraction/AppUsageService.h"
#include "distraction/BrowserAlertService.h"
#include "focus/MotionService.h"
#include "focus/PomodoroTimerService.h"
#include "model/ModelContainer.h"
#include "platform/ApplicationCatalog.h"
#include "platform/Log.h"
#include "platform/fake/FakeAccessibility.h"
#include "platform/fake/FakeAlertOverlay.h"
#include "platform/fake/FakeApplicationCatalog.h"
#include "platform/fake/FakeBrowserScripting.h"
#include "platform/fake/FakeClock.h"
#include "platform/fake/FakeIdleTimeSource.h"
#include "platform/fake/FakePreferences.h"
#include "platform/fake/FakeSystemSounds.h"
#include "platform/fake/FakeUserNotifications.h"
#include "platform/fake/FakeWorkspace.h"
#include "sound/SoundService.h"
#include "sound/TickPlayer.h"

#include <QCoreApplication>
#include <QStringList>

namespace norvin {

struct CountingTickPlayer final : TickPlayer {
    void play() override { ++ticks; }
    int ticks = 0;
};

/// A whole focus engine over fakes and a store in memory.
struct FocusRig {
    FocusRig() {
        setLogSink([this](const QString& line) { lines.append(line); });
        usage.setModelContext(&context());
        timer.setModelContext(&context());
        timer.setTickSoundService(&tickPlayer);
    }
    ~FocusRig() { setLogSink({}); }
    FocusRig(const FocusRig&) = delete;
    FocusRig& operator=(const FocusRig&) = delete;

    [[nodiscard]] ModelContext& context() const { return container->mainContext(); }

    void pass(std::chrono::seconds duration) {
        clock.advance(duration);
        settle();
    }
    /// Lets everything run that was put off to the end of the turn.
    static void settle() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    TaskItem* addTask(const QString& title) {
        return context().insert(std::make_unique<TaskItem>(TaskItem::Init{.title = title}));
    }
    [[nodiscard]] QStringList playedSounds() const {
        QStringList names;
        for (const FakeSystemSounds::Sound& sound : sounds.played())
            names.append(sound.name);
        return names;
    }

    QStringList lines;
    FakeClock clock;
    FakeWorkspace workspace;
    FakeSystemSounds sounds;
    FakePreferences preferences;
    FakeIdleTimeSource idle;
    FakeUserNotifications notifications;
    FakeApplicationCatalog catalog;
    CountingTickPlayer tickPlayer;
    std::unique_ptr<ModelContainer> container = ModelContainer::inMemory();
    SoundService soundService{sounds};
    AppBlockerService blocker{preferences, workspace, sounds};
    FakeBrowserScripting scripting;
    FakeAccessibility accessibility;
    FakeAlertOverlay overlay;
    BrowserAlertService alert{overlay, notifications};
    AppUsageService usage{clock, workspace, blocker, BrowserDomainProbe(scripting, accessibility), alert};
    MotionService motion{clock, idle, preferences};
    PomodoroTimerService timer{
        PomodoroCollaborators{clock, blocker, usage, motion, soundService, notifications, catalog}};

    const RunningApplication own =
        FakeWorkspace::makeApplication(QLatin1String(ownBundleIdentifier), QStringLiteral("Norvin Focus"));
    const RunningApplication editor =
        FakeWorkspace::makeApplication(QStringLiteral("org.example.Editor"), QStringLiteral("Editor"),
                                       QStringLiteral("public.app-category.developer-tools"));
    const RunningApplication terminal =
        FakeWorkspace::makeApplication(QStringLiteral("org.example.Terminal"), QStringLiteral("Terminal"));
    const RunningApplication game =
        FakeWorkspace::makeApplication(QStringLiteral("org.example.xcode.Game"), QStringLiteral("Game"),
                                       QStringLiteral("public.app-category.games"));
    const RunningApplication browser =
        FakeWorkspace::makeApplication(QStringLiteral("org.mozilla.firefox"), QStringLiteral("Firefox"));
    const RunningApplication scriptedBrowser =
        FakeWorkspace::makeApplication(QStringLiteral("com.vivaldi.Vivaldi"), QStringLiteral("Vivaldi"));
};

} // namespace norvin
