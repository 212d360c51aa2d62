#include "planning/ManagePhasesSheet.h"
#include "tests/planning/ProjectRig.h"

#include <QtTest>

using namespace norvin;
using namespace norvin::test;

class ManagePhasesSheetTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        rig = std::make_unique<ProjectRig>();
        sheet = std::make_unique<ManagePhasesSheet>(rig->context(), rig->edits, rig->focus.clock);
        project = rig->addProject(QStringLiteral("Thesis"));
        for (const char* name : {"A", "B", "C"})
            rig->addPhase(project, QString::fromLatin1(name), static_cast<int>(project->phases().size()));
        sheet->setProject(project);
    }
    void cleanup() {
        sheet.reset();
        rig.reset();
    }

    void onlyAMoveNumbersAnew();
    void phasesAreMovedToTheGap_data();
    void phasesAreMovedToTheGap();
    void aBlankPhaseIsNotAdded();
    void aRenamingIsTrimmedAndABlankOneIsNone();
    void tasksOfADeletedPhaseStay();
    void theListFollowsTheStore();

private:
    /// "0A 1B": orderIndex and name, as listed.
    [[nodiscard]] QString listed() const {
        QStringList phases;
        for (const ProjectPhase* phase : sheet->phases()->phases())
            phases.append(QString::number(phase->orderIndex()) + phase->name());
        return phases.join(QLatin1Char(' '));
    }
    void add(const QString& name) const {
        sheet->setNewPhaseName(name);
        sheet->addPhase();
    }

    std::unique_ptr<ProjectRig> rig;
    std::unique_ptr<ManagePhasesSheet> sheet;
    Project* project = nullptr;
};

void ManagePhasesSheetTest::onlyAMoveNumbersAnew() {
    sheet->deletePhase({1});
    QCOMPARE(listed(), QStringLiteral("0A 2C"));
    add(QStringLiteral(" D\n"));
    QCOMPARE(listed(), QStringLiteral("0A 2C 2D")); // the same number; the older one first
    QVERIFY(sheet->newPhaseName().isEmpty());
    QVERIFY(!rig->context().hasChanges());
    sheet->movePhase({2}, 0);
    QCOMPARE(listed(), QStringLiteral("0D 1A 2C"));
    QVERIFY(!rig->context().hasChanges());
}

void ManagePhasesSheetTest::phasesAreMovedToTheGap_data() {
    QTest::addColumn<QList<int>>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("order");
    QTest::newRow("down") << QList<int>{0} << 2 << QStringLiteral("0B 1A 2C");
    QTest::newRow("to the end") << QList<int>{0} << 3 << QStringLiteral("0B 1C 2A");
    QTest::newRow("several") << QList<int>{2, 0} << 2 << QStringLiteral("0B 1A 2C");
    QTest::newRow("nowhere") << QList<int>{1} << 4 << QStringLiteral("0A 1B 2C");
    QTest::newRow("nothing") << QList<int>{3, -1} << 0 << QStringLiteral("0A 1B 2C");
}

void ManagePhasesSheetTest::phasesAreMovedToTheGap() {
    QFETCH(QList<int>, from);
    QFETCH(int, to);
    sheet->movePhase(from, to);
    QTEST(listed(), "order");
}

void ManagePhasesSheetTest::aBlankPhaseIsNotAdded() {
    add(QStringLiteral(" \n "));
    add(QString());
    QCOMPARE(listed(), QStringLiteral("0A 1B 2C"));
}

void ManagePhasesSheetTest::aRenamingIsTrimmedAndABlankOneIsNone() {
    const QString b = project->phases().at(1)->id().toString();
    const QString c = project->phases().at(2)->id().toString();
    sheet->beginEdit(b);
    QCOMPARE(sheet->editingName(), QStringLiteral("B"));
    sheet->setEditingName(QStringLiteral("  Bee "));
    sheet->saveEdit(c); // not the one that was begun
    QCOMPARE(listed(), QStringLiteral("0A 1B 2C"));
    sheet->beginEdit(b);
    sheet->setEditingName(QStringLiteral("  Bee "));
    sheet->saveEdit(b);
    QCOMPARE(listed(), QStringLiteral("0A 1Bee 2C"));
    QVERIFY(sheet->editingPhaseId().isEmpty());
    sheet->beginEdit(b);
    sheet->setEditingName(QStringLiteral(" "));
    sheet->saveEdit(b);
    QCOMPARE(listed(), QStringLiteral("0A 1Bee 2C"));

    sheet->beginEdit(b);
    sheet->deletePhase({1});
    QVERIFY(sheet->editingPhaseId().isEmpty());
}

void ManagePhasesSheetTest::tasksOfADeletedPhaseStay() {
    ProjectPhase* b = project->phases().at(1);
    TaskItem* task = rig->addTask(project, QStringLiteral("Chapter"), TaskStatus::todo, b);
    QVERIFY(sheet->consequencesOfDeletion({0, 2}).isEmpty());
    QVERIFY(!sheet->consequencesOfDeletion({0, 1}).isEmpty());
    sheet->deletePhase({1, 0});
    QCOMPARE(listed(), QStringLiteral("2C"));
    QCOMPARE(task->project(), project);
    QCOMPARE(task->phase(), nullptr);
    sheet->undo();
    QCOMPARE(listed(), QStringLiteral("0A 1B 2C"));
    QCOMPARE(task->phase()->name(), QStringLiteral("B"));
}

void ManagePhasesSheetTest::theListFollowsTheStore() {
    QSignalSpy reset(sheet->phases(), &QAbstractItemModel::modelReset);
    const auto tasks = [this](int row) {
        return sheet->phases()->index(row).data(PhaseListModel::TaskCountRole).toInt();
    };
    ProjectPhase* a = project->phases().at(0);
    a->setOrderIndex(5);
    TaskItem* task = rig->addTask(project, QStringLiteral("Chapter"), TaskStatus::todo, a);
    rig->addTask(project, QStringLiteral("Page"), TaskStatus::todo, a, task);
    FocusRig::settle();
    QCOMPARE(listed(), QStringLiteral("1B 2C 5A"));
    QCOMPARE(tasks(2), 1);
    task->setPhase(project->phases().at(1));
    FocusRig::settle();
    QCOMPARE(tasks(0), 1);
    QCOMPARE(tasks(2), 0);
    rig->context().remove(*project);
    QCOMPARE(sheet->phases()->count(), 0);
    add(QStringLiteral("D"));
    QVERIFY(rig->context().phases().empty());
    QVERIFY(reset.isEmpty());
}

QTEST_GUILESS_MAIN(ManagePhasesSheetTest)
#include "tst_ManagePhasesSheet.moc"
