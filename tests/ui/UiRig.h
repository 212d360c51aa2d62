#pragma once

#include "distraction/AICoachService.h"
#include "distraction/BlockListsScreen.h"
#include "distraction/TrackingHealthModel.h"
#include "focus/DeepWorkScreen.h"
#include "focus/SessionAmbience.h"
#include "planning/PlanningScreens.h"
#include "platform/fake/FakeAudioOutput.h"
#include "platform/fake/FakeBrowserAccess.h"
#include "platform/fake/FakeSoundStream.h"
#include "platform/fake/FakeUpdateSource.h"
#include "services/OutsideServices.h"
#include "settings/PreferencesScreen.h"
#include "sound/AmbientSoundService.h"
#include "sound/ImmersionService.h"
#include "sound/TickSoundService.h"
#include "sound/TickSoundSettings.h"
#include "stats/StatsScreen.h"
#include "tests/support/FocusRig.h"
#include "tests/ui/PseudoTranslator.h"
#include "tests/ui/TextLayout.h"
#include "ui/InterfaceEngine.h"
#include "ui/Localization.h"
#include "ui/UserInterface.h"
#include "ui/shell/CommandPalette.h"
#include "ui/shell/WindowActions.h"
#include "ui/welcome/WelcomeScreen.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

namespace norvin {

/// The real window over a focus engine on fakes.
struct UiRig {
    /// @param language "en", "fr", or "pseudo" for that of PseudoTranslator
    /// @param key that licences are verified with; empty for a program that needs none
    explicit UiRig(const QString& language = QStringLiteral("en"), const QByteArray& key = {})
        : licenseKey(key) {
        const bool isPseudo = language == QLatin1String("pseudo");
        focus.preferences.setValue(QLatin1String(Localization::preferencesKey),
                                   isPseudo ? QStringLiteral("en") : language);
        localization = std::make_unique<Localization>(focus.preferences);
        if (isPseudo)
            pseudo = std::make_unique<PseudoTranslator>();
        for (const char* name : {"Archive Manager", "Calculator", "Editor", "Game", "Terminal"})
            install(QString::fromLatin1(name));
        health.refresh();
        preferences.setCompanions(
            {.ambientSounds = &ambientSounds, .immersion = &immersion, .outside = &outside});
        welcome = std::make_unique<WelcomeScreen>(
            WelcomeScreen::Collaborators{.preferences = focus.preferences,
                                         .localization = *localization,
                                         .browsers = browserAccess,
                                         .blockLists = blockLists,
                                         .deepWork = deepWork,
                                         .storeFolder = QStringLiteral("/home/someone/.local/share")});
        userInterface =
            std::make_unique<UserInterface>(std::make_unique<InterfaceEngine>(),
                                            UserInterface::Screens{.deepWork = deepWork,
                                                                   .planning = planning,
                                                                   .stats = stats,
                                                                   .tickSounds = tickSoundSettings,
                                                                   .blockLists = blockLists,
                                                                   .health = health,
                                                                   .preferences = preferences,
                                                                   .welcome = *welcome,
                                                                   .actions = actions,
                                                                   .palette = palette},
                                            *localization);
        userInterface->setCoach(coach);
        userInterface->engine().setApplications(focus.catalog);
        loaded = userInterface->load();
    }

    void install(const QString& name) {
        const QString id = QStringLiteral("org.example.") + QString(name).remove(QLatin1Char(' '));
        focus.catalog.install({.bundleIdentifier = id, .name = name, .iconName = {}, .declaredCategory = {}});
    }

    /// Shows the window and waits until all of it is there and it has the keyboard.
    void show() {
        userInterface->showWindow();
        QVERIFY(QTest::qWaitForWindowActive(window()));
        QTRY_COMPARE(window()->property("stage").toInt(), 2);
    }
    [[nodiscard]] QQuickWindow* window() const { return userInterface->window(); }
    [[nodiscard]] QQuickItem* item(const char* name) const {
        return window()->findChild<QQuickItem*>(QLatin1String(name));
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(window(), static_cast<Qt::Key>(key), modifiers);
    }
    void type(const QString& text) const {
        for (const QChar character : text)
            QTest::keyClick(window(), character.toLatin1());
    }
    /// In the order of the sidebar.
    enum class Page { deepWork, agenda, projects, statistics, blockLists, health, preferences };
    void showPage(Page page) const { press(Qt::Key_1 + static_cast<int>(page), Qt::ControlModifier); }

    /// The first item of that name that is shown; null for none.
    [[nodiscard]] QQuickItem* visible(const char* name) const {
        for (QQuickItem* item : visibleItems()) {
            if (item->objectName() == QLatin1String(name))
                return item;
        }
        return nullptr;
    }
    /// Whether the keyboard is in the item or below it.
    [[nodiscard]] bool hasKeyboard(const char* name) const {
        const QQuickItem* item = visible(name);
        return item != nullptr && item->hasActiveFocus();
    }
    void tabTo(const char* name) const {
        for (int presses = 0; presses < 60 && !hasKeyboard(name); ++presses)
            press(Qt::Key_Tab);
        QVERIFY2(hasKeyboard(name), qPrintable(QLatin1String(name) + QStringLiteral(", not ") + focusName()));
    }
    /// Clicks an entry of a menu, once all of its entries have their places.
    void clickEntry(const char* menu, int entries, const QString& text) const {
        const auto* object = window()->findChild<QObject*>(QLatin1String(menu));
        QVERIFY(object);
        QTRY_COMPARE(object->property("contentHeight").toDouble(), 36.0 * entries);
        click(saying(text));
    }
    /// Waits until the first row of a list has come to its top.
    void waitForFirstRow(const char* list) const {
        static_cast<void>(window()->grabWindow()); // begins what moves the rows
        QQuickItem* view = visible(list);
        QQuickItem* row = nullptr;
        QMetaObject::invokeMethod(view, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, row), Q_ARG(int, 0));
        QVERIFY(row);
        QTRY_COMPARE(row->mapToItem(view, QPointF()).y(), 0.0);
    }
    /// The first item shown with that text; null for none.
    [[nodiscard]] QQuickItem* saying(const QString& text) const {
        for (QQuickItem* item : visibleItems()) {
            if (item->property("text").toString() == text)
                return item;
        }
        return nullptr;
    }
    /// What the keyboard is in.
    [[nodiscard]] QString focusName() const {
        const QQuickItem* focused = window()->activeFocusItem();
        return focused == nullptr
                   ? QString()
                   : QLatin1String(focused->metaObject()->className()) + u' ' + focused->objectName();
    }
    void click(const QQuickItem* item, Qt::MouseButton button = Qt::LeftButton) const {
        QTest::mouseClick(window(), button, {},
                          item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint());
    }
    /// Keeps what the window shows as <name>.png in the folder that NORVIN_PICTURES names, if it names one.
    void keepPicture(const QString& name) const {
        const QString folder = qEnvironmentVariable("NORVIN_PICTURES");
        if (folder.isEmpty())
            return;
        QSignalSpy drawn(window(), &QQuickWindow::frameSwapped);
        window()->update();
        if (drawn.wait())
            window()->grabWindow().save(folder + u'/' + name + QStringLiteral(".png"));
    }

    /// Whether everything that the window shows can be read, once it is laid out. Keeps a picture of it.
    /// @param names words of the user's, who may write more than there is room for
    void checkTexts(const QString& scene, const QStringList& names = {}) const {
        QSignalSpy drawn(window(), &QQuickWindow::frameSwapped);
        window()->update();
        QVERIFY(drawn.wait());
        const QStringList faults = textFaults(*window(), names);
        keepPicture(
            QStringLiteral("%1-%2").arg(scene, pseudo ? QStringLiteral("pseudo") : localization->language()));
        if (!faults.isEmpty())
            QTest::qFail(qPrintable(scene + QStringLiteral(":\n") + faults.join(u'\n')), __FILE__, __LINE__);
    }
    /// Makes one row of data for each language that texts are checked in.
    static void addLanguages() {
        QTest::addColumn<QString>("language");
        for (const char* language : {"en", "fr", "pseudo"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }

    [[nodiscard]] static QList<QQuickItem*> visibleItems(QQuickItem* root) {
        QList<QQuickItem*> found;
        for (QQuickItem* child : root->childItems()) {
            if (child->isVisible())
                found << child << visibleItems(child);
        }
        return found;
    }
    [[nodiscard]] QList<QQuickItem*> visibleItems() const { return visibleItems(window()->contentItem()); }

    FocusRig focus;
    Availability idleTime = Availability::available();
    Availability pages = Availability::unavailable(QStringLiteral("health_browser_pages_missing"));
    std::unique_ptr<Localization> localization;
    std::unique_ptr<PseudoTranslator> pseudo;
    FakeAudioOutput audioOutput{focus.clock};
    TickSoundService tickSounds{audioOutput, focus.preferences};
    TickSoundSettings tickSoundSettings{tickSounds, audioOutput};
    FakeSoundStream soundStream;
    AmbientSoundService ambientSounds{soundStream, focus.preferences, focus.clock};
    ImmersionService immersion{focus.preferences};
    SessionAmbience ambience{focus.timer, ambientSounds, immersion};
    AICoachService coach{focus.clock, focus.blocker};
    DeepWorkScreen deepWork{focus.timer, focus.usage, focus.motion, focus.context()};
    PlanningScreens planning{focus.context(), focus.timer, focus.soundService, focus.clock};
    StatsScreen stats{focus.context(), focus.container->storeFile(), focus.timer, focus.clock,
                      [this](const QString& text, std::function<void()> takeBack) {
                          planning.edits()->offerUndo(text, std::move(takeBack));
                      }};
    BlockListsScreen blockLists{focus.catalog, focus.workspace, focus.blocker, focus.preferences};
    TrackingHealthModel health{
        {{QStringLiteral("health_frontmost_application"), [] { return Availability::available(); }},
         {QStringLiteral("health_idle_time"), [this] { return idleTime; }},
         {QStringLiteral("health_browser_pages"), [this] { return pages; }}}};
    QByteArray licenseKey;
    QTemporaryDir licenses;
    FakeUpdateSource updates;
    UpdaterService updater{updates};
    FeedbackForm feedback{QString(), focus.preferences, focus.clock};
    LicenseService license{
        licenseKey, LicenseService::Collaborators{.preferences = focus.preferences,
                                                  .clock = focus.clock,
                                                  .file = licenses.filePath(QStringLiteral("licence.txt")),
                                                  .oldestRecord = {}}};
    OutsideServices outside{updater, feedback, license};
    PreferencesScreen preferences{focus.preferences, tickSoundSettings};
    FakeBrowserAccess browserAccess;
    std::unique_ptr<WelcomeScreen> welcome;
    WindowActions actions{nullptr};
    CommandPalette palette{actions, planning, focus.context()};
    std::unique_ptr<UserInterface> userInterface;
    bool loaded = false;
};

} // namespace norvin
