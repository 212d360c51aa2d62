#include "tests/ui/UiRig.h"

using namespace norvin;

/// The list of projects and the sheet of one, with the keyboard and the pointer.
class ProjectsViewTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { open(QStringLiteral("en")); }
    void cleanup() { rig.reset(); }

    void theFirstProjectIsMadeByKeyboardAlone();
    void projectsAreFoundOpenedAndDeletedByKeyboard();
    void aProjectIsEditedWithThePointer();
    void closingAsksOnlyWhenSomethingWouldBeLost();
    void nothingIsCut_data();
    void nothingIsCut();

private:
    void open(const QString& language) {
        rig.reset();
        rig = std::make_unique<UiRig>(language);
        QVERIFY2(rig->loaded, qPrintable(rig->focus.lines.join(QLatin1Char('\n'))));
        rig->show();
    }
    Project* addProject(const QString& name, const QString& emoji, const QString& color,
                        const QString& description = {}) {
        return rig->focus.context().insert(std::make_unique<Project>(Project::Init{
            .name = name, .projectDescription = description, .colorHex = color, .emoji = emoji}));
    }
    void addTasks(Project* project, int open, int done) {
        for (int number = 0; number < open + done; ++number) {
            rig->focus.context().insert(std::make_unique<TaskItem>(
                TaskItem::Init{.title = QStringLiteral("Task %1").arg(number),
                               .status = number < open ? TaskStatus::todo : TaskStatus::done,
                               .project = project}));
        }
    }
    void fill() {
        Project* thesis = addProject(QStringLiteral("Thesis"), QStringLiteral("📚"), QStringLiteral("#7c3aed"),
                                     QStringLiteral("Three chapters on the history of measuring time, and "
                                                    "what came of it in the workshops of the time."));
        addTasks(thesis, 3, 5);
        for (const char* name : {"Read", "Write", "Print"}) {
            rig->focus.context().insert(std::make_unique<ProjectPhase>(
                ProjectPhase::Init{.name = QString::fromLatin1(name),
                                   .orderIndex = static_cast<int>(thesis->phases().size()),
                                   .project = thesis}));
        }
        addTasks(addProject(QStringLiteral("Garden"), QStringLiteral("🏗️"), QStringLiteral("#10b981"),
                            QStringLiteral("A shed")),
                 4, 0);
        addProject(QStringLiteral("A very long name for a project that nobody would want to read twice"),
                   QStringLiteral("⚡"), QStringLiteral("#f59e0b"));
        addTasks(addProject(QStringLiteral("Website"), QStringLiteral("🌐"), QStringLiteral("#3b82f6")), 0, 2);
    }
    void showProjects() {
        rig->showPage(UiRig::Page::projects);
        QTRY_VERIFY(rig->visible("projectSearch") || rig->visible("firstProjectButton"));
    }
    [[nodiscard]] ProjectSheet& sheet() const { return *rig->planning.projectSheet(); }
    [[nodiscard]] const std::vector<Project*>& projects() const { return rig->focus.context().projects(); }

    std::unique_ptr<UiRig> rig;
};

void ProjectsViewTest::theFirstProjectIsMadeByKeyboardAlone() {
    showProjects();
    QTRY_VERIFY(rig->hasKeyboard("firstProjectButton"));
    rig->keepPicture(QStringLiteral("projects-empty"));
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(rig->hasKeyboard("projectName"));
    rig->keepPicture(QStringLiteral("project-new"));
    rig->type(QStringLiteral("Garden"));
    rig->press(Qt::Key_Tab);
    rig->type(QStringLiteral("A shed"));
    rig->press(Qt::Key_Return);
    rig->type(QStringLiteral("and a bed"));
    rig->press(Qt::Key_Tab);
    QVERIFY(rig->hasKeyboard("emojiPalette"));
    rig->press(Qt::Key_Right);
    rig->press(Qt::Key_Down);
    rig->press(Qt::Key_Up);
    rig->press(Qt::Key_Tab);
    QVERIFY(rig->hasKeyboard("colorPalette"));
    rig->press(Qt::Key_End);
    rig->press(Qt::Key_Left);
    rig->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(rig->hasKeyboard("emojiPalette"));
    rig->tabTo("phaseName");
    rig->press(Qt::Key_A, Qt::ControlModifier);
    rig->type(QStringLiteral("Dig"));
    rig->tabTo("newPhase");
    rig->type(QStringLiteral("Sow"));
    rig->press(Qt::Key_Return);
    rig->type(QStringLiteral("Rest"));
    rig->press(Qt::Key_Return);
    QVERIFY(rig->hasKeyboard("newPhase"));
    // Back into the last row, which goes up to the first place.
    rig->press(Qt::Key_Backtab, Qt::ShiftModifier);
    rig->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(rig->hasKeyboard("phaseName") || rig->hasKeyboard("phaseNames"));
    rig->press(Qt::Key_Up, Qt::AltModifier);
    rig->press(Qt::Key_Up, Qt::AltModifier);
    rig->type(QStringLiteral("!")); // the keyboard went along
    QCOMPARE(sheet().phaseNames(),
             QStringList({QStringLiteral("Rest!"), QStringLiteral("Dig"), QStringLiteral("Sow")}));
    rig->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(projects().size(), size_t{1});
    const Project& garden = *projects().front();
    QCOMPARE(garden.name(), QStringLiteral("Garden"));
    QCOMPARE(garden.projectDescription(), QStringLiteral("A shed\nand a bed"));
    QCOMPARE(garden.emoji(), QStringLiteral("🚀"));
    QCOMPARE(garden.colorHex(), QStringLiteral("#14b8a6"));
    QCOMPARE(garden.phases().size(), 3);
    // Its board is there.
    QTRY_VERIFY(rig->visible("boardTitle"));
    QCOMPARE(rig->planning.board()->project(), &garden);
}

void ProjectsViewTest::projectsAreFoundOpenedAndDeletedByKeyboard() {
    fill();
    showProjects();
    QTRY_VERIFY(rig->hasKeyboard("projectGrid"));
    rig->press(Qt::Key_Right);
    rig->keepPicture(QStringLiteral("projects"));
    rig->press(Qt::Key_Up);
    QVERIFY(rig->hasKeyboard("projectSearch"));
    rig->type(QStringLiteral("zzz"));
    QTRY_VERIFY(rig->saying(qtTrId("projects_no_match_title")));
    rig->keepPicture(QStringLiteral("projects-no-match"));
    rig->press(Qt::Key_Escape);
    rig->type(QStringLiteral("thes"));
    QCOMPARE(rig->planning.projects()->projects()->count(), 1);
    rig->press(Qt::Key_Return);
    QVERIFY(rig->hasKeyboard("projectGrid"));
    rig->press(Qt::Key_F2);
    QTRY_VERIFY(rig->hasKeyboard("projectName"));
    QCOMPARE(sheet().name(), QStringLiteral("Thesis"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(rig->hasKeyboard("projectGrid"));

    rig->press(Qt::Key_Delete);
    QTRY_VERIFY(rig->saying(qtTrId("confirm_delete_project_title").arg(QStringLiteral("Thesis"))));
    rig->keepPicture(QStringLiteral("projects-delete"));
    rig->press(Qt::Key_Return); // the harmless answer
    QTRY_VERIFY(rig->hasKeyboard("projectGrid"));
    QCOMPARE(projects().size(), size_t{4});
    rig->press(Qt::Key_Delete);
    QTRY_VERIFY(rig->saying(qtTrId("delete_button")));
    rig->press(Qt::Key_Tab);
    rig->press(Qt::Key_Return);
    QCOMPARE(projects().size(), size_t{3});
    rig->planning.edits()->undo();
    QTRY_COMPARE(rig->planning.projects()->projects()->count(), 1);

    rig->tabTo("projectGrid");
    rig->press(Qt::Key_Menu);
    QTRY_VERIFY(rig->visible("projectGrid") && rig->saying(qtTrId("project_open_button")));
    rig->keepPicture(QStringLiteral("projects-menu"));
    rig->press(Qt::Key_Down);
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(rig->planning.board()->hasProject());
    QCOMPARE(rig->planning.board()->projectName(), QStringLiteral("Thesis"));
    QTRY_VERIFY(rig->visible("boardTitle"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(rig->hasKeyboard("projectGrid"));
}

void ProjectsViewTest::aProjectIsEditedWithThePointer() {
    fill();
    showProjects();
    QTRY_VERIFY(rig->visible("projectSort"));
    QTRY_VERIFY(rig->saying(QStringLiteral("Thesis")));
    rig->click(rig->saying(QStringLiteral("Thesis")), Qt::RightButton);
    QTRY_VERIFY(rig->saying(qtTrId("edit_project")));
    rig->clickEntry("projectMenu", 3, qtTrId("edit_project"));
    QTRY_VERIFY(rig->visible("phaseNames"));
    QVERIFY(!rig->planning.board()->hasProject()); // the tile under the menu was not meant
    QTRY_VERIFY(rig->visible("emojiPalette2"));
    rig->click(rig->visible("emojiPalette2"));
    rig->click(rig->visible("colorPalette3"));
    QCOMPARE(sheet().selectedEmoji(), QStringLiteral("🎯"));
    QCOMPARE(sheet().selectedColor(), QStringLiteral("#06b6d4"));
    // A handle is dragged by two rows.
    QQuickItem* handle = rig->visible("phaseName")->parentItem()->childItems().constFirst();
    const QPoint start = handle->mapToScene(QPointF(handle->width() / 2, handle->height() / 2)).toPoint();
    QTest::mousePress(rig->window(), Qt::LeftButton, {}, start);
    for (int step = 1; step <= 9; ++step)
        QTest::mouseMove(rig->window(), start + QPoint(0, 10 * step));
    QTest::mouseRelease(rig->window(), Qt::LeftButton, {}, start + QPoint(0, 90));
    QCOMPARE(sheet().phaseNames(),
             QStringList({QStringLiteral("Write"), QStringLiteral("Print"), QStringLiteral("Read")}));
    Project* thesis = projects().front();
    for (ProjectPhase* phase : thesis->phases())
        thesis->tasks().at(phase->orderIndex())->setPhase(phase);
    rig->click(rig->visible("phaseRemove"));
    QVERIFY(!rig->visible("removalNote")->property("text").toString().isEmpty());
    rig->waitForFirstRow("phaseNames");
    rig->keepPicture(QStringLiteral("project-edit"));
    const QStringList names = sheet().phaseNames();
    QCOMPARE(names.size(), 2);
    rig->click(rig->visible("projectSave"));
    QTRY_VERIFY(!rig->visible("projectName"));
    QCOMPARE(thesis->emoji(), QStringLiteral("🎯"));
    QCOMPARE(thesis->phases().size(), 2);
    QCOMPARE(thesis->sortedPhases().front()->name(), names.front());
}

void ProjectsViewTest::closingAsksOnlyWhenSomethingWouldBeLost() {
    showProjects();
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(rig->hasKeyboard("projectName"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!sheet().isPresented());
    QTRY_VERIFY(rig->hasKeyboard("firstProjectButton"));
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(rig->hasKeyboard("projectName"));
    rig->type(QStringLiteral("x"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(rig->saying(qtTrId("project_discard_title")));
    rig->press(Qt::Key_Escape); // stays
    QTRY_VERIFY(!rig->saying(qtTrId("project_discard_title")));
    QVERIFY(sheet().isPresented());
    QTRY_VERIFY(rig->hasKeyboard("projectName"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(rig->saying(qtTrId("project_discard_title")));
    rig->press(Qt::Key_Tab);
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(!sheet().isPresented());
    QVERIFY(projects().empty());
}

void ProjectsViewTest::nothingIsCut_data() {
    UiRig::addLanguages();
}

void ProjectsViewTest::nothingIsCut() {
    QFETCH(QString, language);
    open(language);
    const QStringList names{QStringLiteral("very long name"), QStringLiteral("chapters")};
    showProjects();
    rig->checkTexts(QStringLiteral("projects-empty"));
    fill();
    QTRY_VERIFY(rig->visible("projectGrid"));
    rig->checkTexts(QStringLiteral("projects"), names);
    rig->planning.projects()->editProject(projects().front()->id().toString());
    QTRY_VERIFY(rig->hasKeyboard("projectName"));
    projects().front()->tasks().front()->setPhase(projects().front()->phases().at(0));
    rig->click(rig->visible("phaseRemove"));
    QVERIFY(!rig->visible("removalNote")->property("text").toString().isEmpty());
    rig->waitForFirstRow("phaseNames");
    rig->checkTexts(QStringLiteral("project-edit"), names);
    rig->window()->resize(2560, 1440);
    sheet().setPresented(false);
    QTRY_VERIFY(!rig->visible("projectName"));
    rig->checkTexts(QStringLiteral("projects-large"), names);
}

QTEST_MAIN(ProjectsViewTest)
#include "tst_ProjectsView.moc"
