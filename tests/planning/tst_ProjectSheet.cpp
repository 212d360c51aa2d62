#include "planning/ProjectSheet.h"
#include "tests/planning/ProjectRig.h"

#include <QtTest>

using namespace norvin;
using namespace norvin::test;

class ProjectSheetTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        rig = std::make_unique<ProjectRig>();
        sheet = std::make_unique<ProjectSheet>(rig->context(), rig->edits, rig->focus.clock);
    }
    void cleanup() {
        sheet.reset();
        rig.reset();
    }

    void theDefaultsMakeAProjectWithOnePhase();
    void textsAreTrimmedAndABlankNameSavesNothing();
    void theRowsBecomePhasesInTheirOrder();
    void anEditedPhaseKeepsItsTasks();
    void removedPhasesAreSaidAndCanBeBroughtBack();
    void closingLosesOnlyWhatIsNotSaid();
    void aProjectThatIsDeletedMeanwhileIsMadeAnew();

private:
    [[nodiscard]] QStringList phasesOf(const Project* project) const {
        QStringList phases;
        for (const ProjectPhase* phase : project->sortedPhases())
            phases.append(QStringLiteral("%1 %2").arg(phase->orderIndex()).arg(phase->name()));
        return phases;
    }
    Project* threePhases() {
        Project* project = rig->addProject(QStringLiteral("Thesis"));
        for (const char* name : {"Read", "Write", "Print"})
            rig->addPhase(project, QString::fromLatin1(name), static_cast<int>(project->phases().size()));
        return project;
    }

    std::unique_ptr<ProjectRig> rig;
    std::unique_ptr<ProjectSheet> sheet;
};

void ProjectSheetTest::theDefaultsMakeAProjectWithOnePhase() {
    Project* made = nullptr;
    bool wasOpenWhenTold = true;
    sheet->present(nullptr, [&](Project* project) {
        made = project;
        wasOpenWhenTold = sheet->isPresented();
    });
    QVERIFY(sheet->isPresented() && !sheet->isEditing());
    QVERIFY(!sheet->canSave());
    sheet->setName(QStringLiteral("Garden"));
    QVERIFY(sheet->canSave());
    sheet->saveProject();
    QVERIFY(made);
    QVERIFY(!wasOpenWhenTold);
    QCOMPARE(made->emoji(), QStringLiteral("📋"));
    QCOMPARE(made->colorHex(), QStringLiteral("#7c3aed"));
    QCOMPARE(made->createdAt(), rig->focus.clock.now());
    QCOMPARE(phasesOf(made), QStringList{QStringLiteral("0 Phase 1")});
    QVERIFY(!rig->context().hasChanges());

    const QList<QString> emojis = ProjectSheet::emojis();
    QCOMPARE(emojis.size(), 24);
    QCOMPARE(emojis.at(11).toUcs4(), QList<uint>({0x1f3d7, 0xfe0f}));
    QCOMPARE(QSet<QString>(emojis.cbegin(), emojis.cend()).size(), 24);
    QCOMPARE(ProjectSheet::colors().size(), 12);
}

void ProjectSheetTest::textsAreTrimmedAndABlankNameSavesNothing() {
    sheet->present(nullptr);
    sheet->setName(QStringLiteral("  \t "));
    sheet->saveProject();
    QVERIFY(sheet->isPresented());
    QVERIFY(rig->context().projects().empty());
    QVERIFY(rig->context().phases().empty());

    sheet->setName(QStringLiteral("  Garden shed "));
    sheet->setDescription(QStringLiteral("\n Wood,\nnails \n\n"));
    sheet->setSelectedEmoji(QStringLiteral("🏗️"));
    sheet->setSelectedColor(QStringLiteral("#14b8a6"));
    sheet->saveProject();
    const Project* project = rig->context().projects().front();
    QCOMPARE(project->name(), QStringLiteral("Garden shed"));
    QCOMPARE(project->projectDescription(), QStringLiteral("Wood,\nnails"));
    QCOMPARE(project->emoji(), QStringLiteral("🏗️"));
    QCOMPARE(project->colorHex(), QStringLiteral("#14b8a6"));
}

void ProjectSheetTest::theRowsBecomePhasesInTheirOrder() {
    sheet->present(nullptr);
    sheet->setName(QStringLiteral("Garden"));
    sheet->renamePhase(0, QStringLiteral("Plan"));
    for (const char* name : {"Dig", "  ", "Plan"}) {
        sheet->setNewPhaseName(QString::fromLatin1(name));
        sheet->addPhase();
    }
    sheet->setNewPhaseName(QStringLiteral(" Harvest ")); // typed, and not added
    sheet->movePhase(0, 2);
    QCOMPARE(sheet->phaseNames(),
             QStringList({QStringLiteral("Dig"), QStringLiteral("Plan"), QStringLiteral("Plan")}));
    sheet->renamePhase(1, QStringLiteral(" "));
    sheet->saveProject();
    QCOMPARE(phasesOf(rig->context().projects().front()),
             QStringList({QStringLiteral("0 Dig"), QStringLiteral("1 Plan"), QStringLiteral("2 Harvest")}));

    sheet->present(nullptr);
    sheet->setName(QStringLiteral("No phases"));
    sheet->removePhase(0);
    sheet->removePhase(0);
    sheet->saveProject();
    QVERIFY(rig->context().projects().back()->phases().isEmpty());
}

void ProjectSheetTest::anEditedPhaseKeepsItsTasks() {
    Project* project = threePhases();
    ProjectPhase* write = project->sortedPhases().at(1);
    write->setOrderIndex(7); // with a gap, as a deletion leaves it
    project->sortedPhases().at(1)->setOrderIndex(9);
    const TaskItem* task = rig->addTask(project, QStringLiteral("Chapter"), TaskStatus::todo, write);
    Project* told = nullptr;
    sheet->present(project, {}, [&told](Project* updated) { told = updated; });
    QVERIFY(sheet->isEditing());
    QCOMPARE(sheet->name(), QStringLiteral("Thesis"));
    QVERIFY(!sheet->hasChanges());
    sheet->setName(QStringLiteral(" Book "));
    const int row = static_cast<int>(sheet->phaseNames().indexOf(QStringLiteral("Write")));
    sheet->renamePhase(row, QStringLiteral("Draft"));
    sheet->movePhase(row, 0);
    sheet->setNewPhaseName(QStringLiteral("Sell"));
    sheet->addPhase();
    QCOMPARE(project->name(), QStringLiteral("Thesis")); // nothing before it is saved
    QVERIFY(sheet->hasChanges());
    sheet->saveProject();
    QCOMPARE(told, project);
    QCOMPARE(project->name(), QStringLiteral("Book"));
    QCOMPARE(task->phase(), write);
    QCOMPARE(phasesOf(project).constFirst(), QStringLiteral("0 Draft"));
    QCOMPARE(phasesOf(project).size(), 4);
    QCOMPARE(phasesOf(project).constLast(), QStringLiteral("3 Sell"));

    // A name that was emptied stays what it was.
    sheet->present(project);
    sheet->renamePhase(0, QString());
    sheet->saveProject();
    QCOMPARE(phasesOf(project).constFirst(), QStringLiteral("0 Draft"));
}

void ProjectSheetTest::removedPhasesAreSaidAndCanBeBroughtBack() {
    Project* project = threePhases();
    ProjectPhase* write = project->sortedPhases().at(1);
    const ProjectPhaseId writeId = write->id();
    TaskItem* task = rig->addTask(project, QStringLiteral("Chapter"), TaskStatus::todo, write);
    sheet->present(project);
    sheet->removePhase(2);
    QVERIFY(sheet->removalNote().isEmpty()); // nothing was in it
    sheet->removePhase(1);
    QVERIFY(!sheet->removalNote().isEmpty());
    QCOMPARE(task->phase(), write);
    sheet->saveProject();
    QCOMPARE(phasesOf(project), QStringList{QStringLiteral("0 Read")});
    QCOMPARE(task->phase(), nullptr);
    QCOMPARE(task->project(), project);
    rig->edits.undo();
    QCOMPARE(project->phases().size(), 3);
    QVERIFY(task->phase() && task->phase()->id() == writeId);
}

void ProjectSheetTest::closingLosesOnlyWhatIsNotSaid() {
    sheet->present(nullptr);
    QVERIFY(!sheet->hasChanges());
    const QList<std::function<void()>> edits = {
        [this] { sheet->setName(QStringLiteral("A")); },
        [this] { sheet->setDescription(QStringLiteral("A")); },
        [this] { sheet->setSelectedColor(sheet->colors().at(3)); },
        [this] { sheet->setNewPhaseName(QStringLiteral("A")); },
        [this] { sheet->removePhase(0); },
    };
    for (const auto& edit : edits) {
        sheet->present(nullptr);
        QSignalSpy edited(sheet.get(), &ProjectSheet::edited);
        edit();
        QVERIFY(sheet->hasChanges());
        QVERIFY(!edited.isEmpty());
        sheet->setPresented(false);
    }
    QVERIFY(rig->context().projects().empty());
}

void ProjectSheetTest::aProjectThatIsDeletedMeanwhileIsMadeAnew() {
    Project* project = threePhases();
    sheet->present(project);
    sheet->setDescription(QStringLiteral("Written for an hour"));
    rig->context().remove(*project);
    FocusRig::settle();
    QVERIFY(sheet->isPresented() && !sheet->isEditing());
    sheet->saveProject();
    QCOMPARE(rig->context().projects().size(), size_t{1});
    const Project* again = rig->context().projects().front();
    QCOMPARE(again->projectDescription(), QStringLiteral("Written for an hour"));
    QCOMPARE(again->phases().size(), 3);
}

QTEST_GUILESS_MAIN(ProjectSheetTest)
#include "tst_ProjectSheet.moc"
