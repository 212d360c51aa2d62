// fill_store STORE YEARS: writes the records of so many years up to today into a store, and what a heavy user
// plans: 200 projects and 20,000 tasks.

#include "bench/TenYears.h"

#include <QCoreApplication>

int main(int argc, char* argv[]) {
    using namespace norvin;
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        fail("usage: fill_store STORE YEARS");
    auto opened = ModelContainer::openOrRecreate(arguments.at(1));
    if (!std::holds_alternative<std::unique_ptr<ModelContainer>>(opened))
        fail("the store cannot be opened");
    ModelContext& context = std::get<std::unique_ptr<ModelContainer>>(opened)->mainContext();
    constexpr int projectCount = 200;
    constexpr int taskCount = 20'000;
    std::vector<Project*> projects;
    for (int i = 0; i < projectCount; ++i) {
        projects.push_back(context.insert(
            std::make_unique<Project>(Project::Init{.name = QStringLiteral("Project %1").arg(i)})));
    }
    for (int i = 0; i < taskCount; ++i) {
        context.insert(std::make_unique<TaskItem>(
            TaskItem::Init{.title = QStringLiteral("Task %1").arg(i),
                           .status = i % 5 != 0 ? TaskStatus::done : TaskStatus::todo,
                           .project = projects.at(static_cast<size_t>(i % projectCount))}));
    }
    fillWithRecords(context, QDate::currentDate(), arguments.at(2).toInt() * 365);
    return 0;
}
