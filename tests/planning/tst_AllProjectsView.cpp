#include "planning/AllProjectsView.h"
#include "planning/ProjectSheet.h"
#include "tests/planning/ProjectRig.h"

#include <QtTest>

using namespace norvin;
using namespace norvin::test;

class AllProjectsViewTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        rig = std::make_unique<ProjectRig>();
        sheet = std::make_unique<ProjectSheet>(rig->context(), rig->edits, rig->focus.clock);
        view = std::make_unique<AllProjectsView>(rig->context(), rig->edits, *sheet);
    }
    void cleanup() {
        view.reset();
        sheet.reset();
        rig.reset();
    }

    void tasksAreCountedWithoutSubtasks();
    void projectsAreFoundAndSorted();
    void oneChangeMovesOneRow();
    void aDeletionSaysWhatGoesAndIsTakenBack();
    void aNewProjectIsOpened();

private:
    [[nodiscard]] QStringList names() const { return ProjectRig::column(*view->projects()); }
    [[nodiscard]] QVariant value(const QString& name, int role) const {
        return view->projects()->index(static_cast<int>(names().indexOf(name))).data(role);
    }
    /// "done/open" and the progress.
    [[nodiscard]] QString figures(const QString& name) const {
        return QStringLiteral("%1/%2 %3")
            .arg(value(name, ProjectListModel::DoneCountRole).toInt())
            .arg(value(name, ProjectListModel::OpenCountRole).toInt())
            .arg(value(name, ProjectListModel::ProgressRole).toDouble());
    }

    std::unique_ptr<ProjectRig> rig;
    std::unique_ptr<ProjectSheet> sheet;
    std::unique_ptr<AllProjectsView> view;
};

void AllProjectsViewTest::tasksAreCountedWithoutSubtasks() {
    Project* garden = rig->addProject(QStringLiteral("Garden"));
    Project* house = rig->addProject(QStringLiteral("House"));
    TaskItem* dig = rig->addTask(garden, QStringLiteral("Dig"));
    rig->addTask(garden, QStringLiteral("Spade"), TaskStatus::todo, nullptr, dig);
    rig->addTask(garden, QStringLiteral("Sow"), TaskStatus::done);
    view->refresh();
    QCOMPARE(figures(QStringLiteral("Garden")), QStringLiteral("1/1 0.5"));
    QCOMPARE(figures(QStringLiteral("House")), QStringLiteral("0/0 0"));

    // Whatever happens in one turn is told once, and only of the projects that it touches.
    QSignalSpy changed(view->projects(), &QAbstractItemModel::dataChanged);
    dig->setStatus(TaskStatus::done);
    rig->addPhase(garden, QStringLiteral("Spring"), 0);
    rig->addTask(garden, QStringLiteral("Water"));
    FocusRig::settle();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.constFirst().constFirst().toModelIndex().row(), 0);
    QCOMPARE(figures(QStringLiteral("Garden")), QStringLiteral("2/1 0.666667"));
    QCOMPARE(value(QStringLiteral("Garden"), ProjectListModel::PhaseCountRole).toInt(), 1);

    dig->setProject(house);
    FocusRig::settle();
    QCOMPARE(figures(QStringLiteral("Garden")), QStringLiteral("1/1 0.5"));
    QCOMPARE(figures(QStringLiteral("House")), QStringLiteral("1/0 1"));
    rig->context().remove(*dig);
    FocusRig::settle();
    QCOMPARE(figures(QStringLiteral("House")), QStringLiteral("0/0 0"));
}

void AllProjectsViewTest::projectsAreFoundAndSorted() {
    rig->addTask(rig->addProject(QStringLiteral("zebra"), ProjectRig::morningOf(3)), {}, TaskStatus::done);
    Project* etudes = rig->addProject(QStringLiteral("Études 10"), ProjectRig::morningOf(5));
    rig->addProject(QStringLiteral("études 9"), ProjectRig::morningOf(4));
    rig->addProject(QStringLiteral("Fables"), ProjectRig::morningOf(1));
    etudes->setProjectDescription(QStringLiteral("Für Élise"));
    rig->addTask(etudes, {});
    rig->addTask(etudes, {}, TaskStatus::done);
    view->setLocale(QLocale(QLocale::French));
    view->refresh();
    const QString nine = QStringLiteral("études 9");
    const QString ten = QStringLiteral("Études 10");
    const QString fables = QStringLiteral("Fables");
    const QString zebra = QStringLiteral("zebra");
    QCOMPARE(names(), QStringList({nine, ten, fables, zebra}));
    view->setSortBy(QStringLiteral("created"));
    QCOMPARE(names(), QStringList({ten, nine, zebra, fables}));
    view->setSortBy(QStringLiteral("progress"));
    QCOMPARE(names(), QStringList({zebra, ten, nine, fables}));
    view->setSortBy(QStringLiteral("luck"));
    QCOMPARE(view->sortBy(), QStringLiteral("progress"));

    view->setSearchText(QStringLiteral(" ETUDE"));
    QCOMPARE(names(), QStringList({ten, nine}));
    view->setSearchText(QStringLiteral("fur elise"));
    QCOMPARE(names(), QStringList{ten});
    view->setSearchText(QStringLiteral("nowhere"));
    QCOMPARE(view->projects()->count(), 0);
    QCOMPARE(view->projects()->total(), 4);
    view->setSearchText(QString());
    QCOMPARE(view->projects()->count(), 4);
}

void AllProjectsViewTest::oneChangeMovesOneRow() {
    QList<Project*> projects;
    for (int number = 0; number < 40; ++number)
        projects.append(rig->addProject(QStringLiteral("Project %1").arg(number)));
    view->setLocale(QLocale(QLocale::English));
    view->refresh();
    QSignalSpy moved(view->projects(), &QAbstractItemModel::rowsMoved);
    QSignalSpy removed(view->projects(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy inserted(view->projects(), &QAbstractItemModel::rowsInserted);
    QSignalSpy reset(view->projects(), &QAbstractItemModel::modelReset);
    projects.at(1)->setName(QStringLiteral("Zoo"));
    FocusRig::settle();
    QCOMPARE(names().constLast(), QStringLiteral("Zoo"));
    projects.at(39)->setName(QStringLiteral("Attic"));
    FocusRig::settle();
    QCOMPARE(names().constFirst(), QStringLiteral("Attic"));
    QCOMPARE(moved.size(), 2);
    view->setSearchText(QStringLiteral("Project 2")); // 2, 20 to 29
    QCOMPARE(removed.size(), 3);
    QCOMPARE(names().size(), 11);
    view->setSearchText(QString());
    QCOMPARE(inserted.size(), 3);
    QCOMPARE(names().size(), 40);
    QVERIFY(reset.isEmpty());
    view->setSortBy(QStringLiteral("created"));
    projects.at(7)->setName(QStringLiteral("Last"));
    view->setSortBy(QStringLiteral("name"));
    QStringList all = names();
    QCOMPARE(all.removeDuplicates(), 0);
    QCOMPARE(all.size(), 40);
}

void AllProjectsViewTest::aDeletionSaysWhatGoesAndIsTakenBack() {
    Project* garden = rig->addProject(QStringLiteral("Garden"));
    rig->addProject(QStringLiteral("House"));
    const QString id = garden->id().toString();
    view->refresh();
    QVERIFY(view->consequencesOfDeletion(id).isEmpty());
    rig->addTask(garden, QStringLiteral("Dig"), TaskStatus::todo,
                 rig->addPhase(garden, QStringLiteral("Spring"), 0));
    QVERIFY(!view->consequencesOfDeletion(id).isEmpty());
    view->deleteProject(id);
    QCOMPARE(names(), QStringList{QStringLiteral("House")});
    FocusRig::settle();
    view->deleteProject(id); // gone already
    rig->edits.undo();
    FocusRig::settle();
    QCOMPARE(names(), QStringList({QStringLiteral("Garden"), QStringLiteral("House")}));
    QCOMPARE(figures(QStringLiteral("Garden")), QStringLiteral("0/1 0"));
    QCOMPARE(view->projects()->total(), 2);
}

void AllProjectsViewTest::aNewProjectIsOpened() {
    view->refresh();
    QSignalSpy opened(view.get(), &AllProjectsView::projectOpened);
    view->createProject();
    sheet->setName(QStringLiteral("Garden"));
    sheet->saveProject();
    QCOMPARE(opened.size(), 1);
    auto* garden = opened.constFirst().constFirst().value<Project*>();
    QCOMPARE(garden->name(), QStringLiteral("Garden"));
    FocusRig::settle();
    QCOMPARE(names(), QStringList{QStringLiteral("Garden")});
    view->editProject(garden->id().toString());
    QCOMPARE(sheet->project(), garden);
    sheet->saveProject();
    QCOMPARE(opened.size(), 1);
    view->openProject(garden->id().toString());
    QCOMPARE(opened.size(), 2);
}

QTEST_GUILESS_MAIN(AllProjectsViewTest)
#include "tst_AllProjectsView.moc"
