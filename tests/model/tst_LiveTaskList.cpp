#include "model/LiveTaskList.h"
#include "model/ModelContainer.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

using namespace norvin;

namespace {

bool isOpen(const TaskItem& task) {
    return !task.isDone();
}
bool byTitle(const TaskItem& a, const TaskItem& b) {
    return a.title() < b.title();
}

TaskItem* addTask(ModelContext& context, const QString& title) {
    return context.insert(std::make_unique<TaskItem>(TaskItem::Init{.title = title}));
}

QStringList titlesOf(const LiveTaskList& list) {
    QStringList titles;
    for (int row = 0; row < list.rowCount(); ++row)
        titles.append(list.data(list.index(row), LiveTaskList::TitleRole).toString());
    return titles;
}

} // namespace

class LiveTaskListTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        m_container = ModelContainer::inMemory();
        for (const auto* title : {"delta", "alpha", "charlie"})
            addTask(context(), QString::fromLatin1(title));
    }

    void rowsFollowTheContext() {
        LiveTaskList list(context(), isOpen, byTitle);
        const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QSignalSpy resets(&list, &QAbstractItemModel::modelReset);
        const QSignalSpy inserted(&list, &QAbstractItemModel::rowsInserted);
        const QSignalSpy removed(&list, &QAbstractItemModel::rowsRemoved);
        const QSignalSpy moved(&list, &QAbstractItemModel::rowsMoved);
        const QSignalSpy changed(&list, &QAbstractItemModel::dataChanged);
        QCOMPARE(titlesOf(list), (QStringList{"alpha", "charlie", "delta"}));

        TaskItem* const bravo = addTask(context(), QStringLiteral("bravo"));
        QCOMPARE(inserted.size(), 1);
        QCOMPARE(inserted[0][1].toInt(), 1);
        const QPersistentModelIndex index(list.index(1));
        bravo->setTitle(QStringLiteral("zulu"));
        QCOMPARE(moved.size(), 1);
        QCOMPARE(index.row(), 3);
        bravo->setTitle(QStringLiteral("aaa"));
        QCOMPARE(index.row(), 0);
        QCOMPARE(moved.size(), 2);
        bravo->setTaskDescription(QStringLiteral("in place"));
        QCOMPARE(moved.size(), 2);
        QCOMPARE(changed.size(), 3);
        QCOMPARE(list.data(index, LiveTaskList::TaskRole).value<TaskItem*>(), bravo);

        bravo->setStatus(TaskStatus::done);
        QCOMPARE(removed.size(), 1);
        QCOMPARE(list.rowOf(*bravo), -1);
        bravo->setStatus(TaskStatus::todo);
        QCOMPARE(inserted.size(), 2);
        context().remove(*bravo);
        QCOMPARE(removed.size(), 2);
        QCOMPARE(titlesOf(list), (QStringList{"alpha", "charlie", "delta"}));
        QCOMPARE(resets.size(), 0);
    }

    void othersMayActBeforeTheListHears() {
        connect(&context(), &ModelContext::taskInserted, this, [this](TaskItem* task) {
            if (task->title() == QLatin1String("unwanted"))
                context().remove(*task);
            else
                task->setTitle(QStringLiteral("renamed"));
        });
        connect(&context(), &ModelContext::taskChanged, this, [this](TaskItem* task) {
            if (task->title() == QLatin1String("short-lived"))
                context().remove(*task);
        });
        const LiveTaskList list(context(), isOpen);
        connect(&context(), &ModelContext::taskAboutToBeRemoved, this,
                [](TaskItem* task) { task->setTaskDescription(QStringLiteral("leaving")); });
        TaskItem* const task = addTask(context(), QStringLiteral("new"));
        addTask(context(), QStringLiteral("unwanted"));
        QCOMPARE(titlesOf(list), (QStringList{"delta", "alpha", "charlie", "renamed"}));
        task->setTitle(QStringLiteral("short-lived"));
        QCOMPARE(titlesOf(list), (QStringList{"delta", "alpha", "charlie"}));
        context().remove(*list.taskAt(0));
        QCOMPARE(titlesOf(list), (QStringList{"alpha", "charlie"}));
    }

    void anotherQuestionAndAnotherTime() {
        bool late = false;
        LiveTaskList list(context(),
                          [&late](const TaskItem& task) { return late == task.title().contains('p'); });
        const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(titlesOf(list), (QStringList{"delta", "charlie"}));
        late = true;
        list.refresh();
        QCOMPARE(titlesOf(list), QStringList{"alpha"});
        list.setQuery(isOpen, byTitle);
        QCOMPARE(titlesOf(list), (QStringList{"alpha", "charlie", "delta"}));
        m_container.reset();
        QCOMPARE(list.rowCount(), 0);
        list.refresh();
    }

    void randomChangesEndInTheOrderOfAFreshQuery() {
        LiveTaskList list(context(), isOpen, byTitle);
        const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QRandomGenerator random(7);
        for (int step = 0; step < 500; ++step) {
            const auto& tasks = context().tasks();
            const auto at = static_cast<size_t>(random.bounded(static_cast<int>(tasks.size()) + 1));
            if (at == tasks.size()) {
                addTask(context(), QString::number(random.bounded(20)));
                continue;
            }
            TaskItem* const task = tasks[at];
            switch (random.bounded(5)) {
            case 0:
                context().remove(*task);
                break;
            case 1:
                task->setStatus(static_cast<TaskStatus>(random.bounded(3)));
                break;
            case 2:
                task->setParentTask(tasks.front());
                break;
            default:
                task->setTitle(QString::number(random.bounded(20)));
                break;
            }
            addTask(context(), QString::number(random.bounded(20)));
        }
        const LiveTaskList fresh(context(), isOpen, byTitle);
        QVERIFY(list.count() > 50);
        QCOMPARE(list.count(), fresh.count());
        for (int row = 0; row < list.count(); ++row)
            QCOMPARE(list.taskAt(row), fresh.taskAt(row));
    }

private:
    [[nodiscard]] ModelContext& context() const { return m_container->mainContext(); }
    std::unique_ptr<ModelContainer> m_container;
};

QTEST_GUILESS_MAIN(LiveTaskListTest)
#include "tst_LiveTaskList.moc"
