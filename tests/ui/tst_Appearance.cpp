#include "tests/ui/UiRig.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QTemporaryDir>

#include <cmath>

using namespace norvin;

/// What must hold for whatever the window shows, in both languages.
class AppearanceTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup() { rig.reset(); }

    void nothingIsCutAndEverythingHasAName_data();
    void nothingIsCutAndEverythingHasAName();
    void textsStandOutFromTheirGround();

private:
    void bringAbout(const QString& scene);
    void showBlockLists(const QString& scene);
    void showTask();
    void checkNames(const QString& scene) const;

    std::unique_ptr<UiRig> rig;
};

namespace {

QString described(const QQuickItem* item) {
    return QStringLiteral("%1 \"%2\" \"%3\"")
        .arg(QLatin1String(item->metaObject()->className()), item->objectName(),
             item->property("text").toString());
}

double channel(double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) +
           0.0722 * channel(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

} // namespace

void AppearanceTest::initTestCase_data() {
    UiRig::addLanguages();
}

void AppearanceTest::init() {
    QFETCH_GLOBAL(QString, language);
    rig = std::make_unique<UiRig>(language);
    QVERIFY2(rig->loaded, qPrintable(rig->focus.lines.join(QLatin1Char('\n'))));
    rig->show();
}

void AppearanceTest::bringAbout(const QString& scene) {
    FocusRig& focus = rig->focus;
    focus.blocker.addAppToWhitelist(focus.editor.bundleIdentifier);
    focus.workspace.setRunningApplications({focus.editor});
    focus.workspace.setFrontmost(focus.editor);
    if (scene == QLatin1String("filled") || scene == QLatin1String("running")) {
        rig->deepWork.addTask(QStringLiteral("Write the report"));
        rig->deepWork.addTask(QStringLiteral("Answer mail"));
        FocusRig::settle();
        rig->deepWork.addSubtask(0, QStringLiteral("Collect figures"));
        FocusRig::settle();
        rig->item("queue")->forceActiveFocus(Qt::TabFocusReason);
    }
    if (scene.startsWith(QLatin1String("blocklists")))
        showBlockLists(scene);
    if (scene == QLatin1String("health")) {
        rig->idleTime =
            Availability::unavailable(QStringLiteral("health_wayland_idle"), QStringLiteral("detail"));
        rig->showPage(UiRig::Page::health);
    }
    if (scene == QLatin1String("ticks")) {
        rig->audioOutput.setAvailability(Availability::unavailable(QStringLiteral("health_no_sound_device")));
        rig->press(Qt::Key_T, Qt::ControlModifier);
    }
    if (scene == QLatin1String("ambience")) {
        rig->soundStream.setAvailability(Availability::unavailable(QStringLiteral("health_no_sound_server")));
        rig->press(Qt::Key_M, Qt::ControlModifier);
        QTRY_VERIFY(rig->visible("ambientProblem"));
    }
    if (scene == QLatin1String("task"))
        showTask();
    if (scene == QLatin1String("own"))
        rig->deepWork.setSelectedDuration(1440);
    if (scene == QLatin1String("break"))
        rig->deepWork.startBreak();
    if (!QStringList({QStringLiteral("started"), QStringLiteral("running"), QStringLiteral("paused"),
                      QStringLiteral("resumed"), QStringLiteral("completed"), QStringLiteral("quit")})
             .contains(scene))
        return;
    rig->deepWork.start();
    if (scene == QLatin1String("started")) {
        rig->coach.addMessage({.text = qtTrId("coach_distraction_3").arg(QStringLiteral("Archive Manager")),
                               .timestamp = focus.clock.now()});
        QTRY_VERIFY(rig->item("coachMessage") && rig->item("coachMessage")->isVisible());
        return;
    }
    focus.pass(std::chrono::seconds(75));
    focus.workspace.setFrontmost(focus.game);
    focus.idle.setTimeSinceLastInput(std::chrono::minutes(5));
    focus.pass(std::chrono::seconds(75));
    if (scene == QLatin1String("running"))
        QMetaObject::invokeMethod(rig->item("explainScore"), "clicked");
    if (scene == QLatin1String("paused") || scene == QLatin1String("resumed"))
        rig->deepWork.pause();
    if (scene == QLatin1String("resumed"))
        rig->deepWork.resume();
    if (scene == QLatin1String("completed"))
        focus.pass(std::chrono::seconds(1501));
    if (scene == QLatin1String("quit"))
        rig->press(Qt::Key_Q, Qt::ControlModifier);
}

void AppearanceTest::showBlockLists(const QString& scene) {
    BlockListsScreen& lists = rig->blockLists;
    if (scene == QLatin1String("blocklists_suggestions")) {
        rig->focus.catalog.install(
            {QStringLiteral("org.mozilla.firefox"), QStringLiteral("Firefox"), QString(), {}});
        rig->focus.blocker.replaceLists({});
    }
    rig->showPage(UiRig::Page::blockLists);
    if (scene == QLatin1String("blocklists_suggestions")) {
        lists.suggestions()->toggle(0);
        return;
    }
    if (scene != QLatin1String("blocklists_sites") && scene != QLatin1String("blocklists_import"))
        return;
    QMetaObject::invokeMethod(rig->item("listPanes"), "chosen", Q_ARG(QString, QStringLiteral("sites")));
    lists.addSites(QStringLiteral("whitelisted"), QStringLiteral("docs.example.org example.net"));
    lists.addSites(QStringLiteral("blocked"), QStringLiteral("example.org news.example.org example.net"));
    lists.setTestText(QStringLiteral("docs.example.org"));
    lists.addSites(QStringLiteral("blocked"), QStringLiteral("two%words example.org"));
    rig->item("blockedSites")->forceActiveFocus(Qt::TabFocusReason);
    if (scene == QLatin1String("blocklists_sites"))
        return;
    QTemporaryDir folder;
    const QUrl file = QUrl::fromLocalFile(folder.filePath(QStringLiteral("my-own-block-lists.json")));
    lists.exportLists(file);
    lists.removeSite(QStringLiteral("blocked"), QStringLiteral("example.org"));
    lists.addSites(QStringLiteral("blocked"), QStringLiteral("other.org"));
    lists.examineImport(file);
}

/// The sheet of a task that has everything.
void AppearanceTest::showTask() {
    ModelContext& context = rig->focus.context();
    Project* const project =
        context.insert(std::make_unique<Project>(Project::Init{.name = "Thesis", .emoji = "📚"}));
    ProjectPhase* const phase = context.insert(
        std::make_unique<ProjectPhase>(ProjectPhase::Init{.name = "Write", .project = project}));
    TaskItem* const task = context.insert(
        std::make_unique<TaskItem>(TaskItem::Init{.title = "Chapter", .project = project, .phase = phase}));
    auto resource = std::make_unique<TaskResource>(TaskResource::Init{.name = "letters.pdf"});
    resource->setTask(task);
    context.insert(std::move(resource));
    Session session;
    session.startTime = rig->focus.clock.now();
    session.durationMinutes = 25;
    session.score = 8.4;
    session.task = task->id();
    context.insert(session);
    rig->planning.showTask(task->id().toString());
    QTRY_VERIFY(rig->hasKeyboard("taskTitle"));
    TaskSheet& sheet = *rig->planning.taskSheet();
    sheet.addSubtask(-1, QStringLiteral("Section"));
    sheet.setDaysFromToday(QStringLiteral("plannedDate"), 0);
    sheet.setDaysFromToday(QStringLiteral("dueDate"), -2);
    FocusRig::settle();
}

void AppearanceTest::checkNames(const QString& scene) const {
    int controls = 0;
    for (QQuickItem* item : rig->visibleItems()) {
        const bool takesInput = item->activeFocusOnTab() || item->inherits("QQuickAbstractButton");
        if (!takesInput)
            continue;
        ++controls;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(item);
        const QString what = scene + QStringLiteral(": ") + described(item);
        QVERIFY2(face && face->isValid(), qPrintable(what));
        QVERIFY2(!face->text(QAccessible::Name).isEmpty(), qPrintable(what));
        QVERIFY2(face->role() != QAccessible::NoRole, qPrintable(what));
    }
    QVERIFY(controls >= 5);
}

void AppearanceTest::nothingIsCutAndEverythingHasAName_data() {
    QTest::addColumn<QString>("scene");
    for (const char* scene :
         {"empty", "filled", "own", "started", "running", "paused", "resumed", "completed", "break",
          "blocklists", "blocklists_suggestions", "blocklists_sites", "blocklists_import", "health", "quit",
          "ticks", "ambience", "task"})
        QTest::newRow(scene) << QString::fromLatin1(scene);
}

void AppearanceTest::nothingIsCutAndEverythingHasAName() {
    QFETCH(QString, scene);
    bringAbout(scene);
    rig->checkTexts(scene);
    checkNames(scene);
}

void AppearanceTest::textsStandOutFromTheirGround() {
    QQmlComponent component(qmlEngine(rig->window()));
    component.setData("import QtQuick\nimport NorvinFocus.Ui\nQtObject { property QtObject theme: Theme }",
                      {});
    const std::unique_ptr<QObject> holder(component.create());
    QVERIFY2(holder, qPrintable(component.errorString()));
    auto* theme = holder->property("theme").value<QObject*>();
    const auto check = [theme](const char* text, const char* ground, double wanted = 4.5) {
        const QColor ink = theme->property(text).value<QColor>();
        const QColor paper = theme->property(ground).value<QColor>();
        QVERIFY2(ink.isValid() && paper.isValid(), text);
        QVERIFY2(contrast(ink, paper) >= wanted,
                 qPrintable(QStringLiteral("%1 on %2").arg(QLatin1String(text), QLatin1String(ground))));
    };
    for (const char* ground :
         {"background", "sidebar", "surface", "surfaceRaised", "surfaceHover", "surfacePressed"}) {
        check("text", ground);
        check("textMuted", ground);
        check("textFaint", ground);
        check("accentText", ground);
        check("focusRing", ground, 3);
        check("accentBright", ground, 3); // rings, bars and curves
    }
    for (const char* ground : {"background", "sidebar", "surface", "surfaceRaised"}) {
        check("legitimate", ground);
        check("amber", ground);
    }
    check("distracted", "surface");
    check("distracted", "distractedSurface");
    check("legitimate", "legitimateSurface");
    check("text", "accentSurface");
    check("textMuted", "accentSurface");
    check("accentText", "accentSurface");
    check("textFaint", "accentSurface");
    for (const char* ground : {"amberSurface", "distractedSurface", "legitimateSurface"}) {
        check("text", ground);
        check("textMuted", ground);
    }
    check("amber", "amberSurface");
    check("background", "amber"); // the number on a badge
    check("legitimateInk", "legitimateStrong");
    for (const char* ground : {"surface", "surfaceHover", "surfacePressed"})
        check("dangerText", ground);
    for (const char* figure : {"accentBright", "legitimate", "amber", "distracted"})
        check(figure, "track", 3);
    for (const char* symbol : {"flame", "azure"})
        check(symbol, "surface", 3);
    for (const char* ground : {"accent", "accentHover", "accentPressed"})
        check("accentInk", ground);
    check("dangerInk", "danger");
    check("dangerInk", "dangerHover");
}

QTEST_MAIN(AppearanceTest)
#include "tst_Appearance.moc"
