// The planning screens over 20 tasks and over 20,000: what a user waits for at each step. Everything runs on
// fakes and a store in memory, so that only the work of the screens and of the context is measured.

#include "planning/PlanningScreens.h"
#include "tests/support/FocusRig.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using namespace norvin;

constexpr int tasksPerProject = 100;
constexpr int tasksOfToday = 8;
constexpr int tasksOfTomorrow = 6;
constexpr int daysPlanned = 700;

/// Someone's projects, with as much on the days looked at however much there is on others.
struct Plans {
    explicit Plans(int taskCount) {
        ModelContext& context = focus.context();
        const QDateTime today = startOfDay(focus.clock.now());
        Project* project = nullptr;
        for (int i = 0; i < taskCount; ++i) {
            if (i % tasksPerProject == 0)
                project = context.insert(std::make_unique<Project>(
                    Project::Init{.name = QStringLiteral("Project %1").arg(i / tasksPerProject)}));
            QDateTime planned = today.addDays(2 + i % daysPlanned - daysPlanned / 2);
            if (i < tasksOfToday)
                planned = today;
            else if (i < tasksOfToday + tasksOfTomorrow)
                planned = today.addDays(1);
            else if (planned.date() == today.date() || planned.date() == today.date().addDays(1))
                planned = {};
            context.insert(std::make_unique<TaskItem>(
                TaskItem::Init{.title = QStringLiteral("Task %1 of the plan").arg(i),
                               .status = static_cast<TaskStatus>(i % 3 == 2 && i > 14 ? 2 : 0),
                               .plannedDate = planned,
                               .project = project}));
        }
        static_cast<void>(context.save());
        screens = std::make_unique<PlanningScreens>(context, focus.timer, focus.soundService, focus.clock);
        FocusRig::settle();
    }
    /// The same plans for all benches of a size.
    static Plans& of(const benchmark::State& state) {
        static std::map<int64_t, std::unique_ptr<Plans>> made;
        std::unique_ptr<Plans>& plans = made[state.range(0)];
        if (!plans)
            plans = std::make_unique<Plans>(static_cast<int>(state.range(0)));
        return *plans;
    }
    [[nodiscard]] Project* firstProject() const { return focus.context().projects().front(); }

    FocusRig focus;
    std::unique_ptr<PlanningScreens> screens;
};

void openAgenda(benchmark::State& state) {
    Plans& plans = Plans::of(state);
    for (auto _ : state) {
        PlanningScreens screens(plans.focus.context(), plans.focus.timer, plans.focus.soundService,
                                plans.focus.clock);
        FocusRig::settle();
    }
}

void switchDay(benchmark::State& state) {
    Plans& plans = Plans::of(state);
    const QDateTime today = plans.focus.clock.now();
    DailyAgendaView& agenda = *plans.screens->agenda();
    int day = 0;
    for (auto _ : state) {
        day = 1 - day;
        agenda.setSelectedDate(today.addDays(day));
        FocusRig::settle();
    }
    agenda.setSelectedDate(today);
    FocusRig::settle();
}

void showMonth(benchmark::State& state) {
    DailyAgendaView& agenda = *Plans::of(state).screens->agenda();
    agenda.setShowCalendar(true);
    int direction = 1;
    for (auto _ : state) {
        agenda.calendar()->moveMonths(direction);
        direction = -direction;
        FocusRig::settle();
    }
    agenda.setShowCalendar(false);
}

void openBoard(benchmark::State& state) {
    Plans& plans = Plans::of(state);
    KanbanBoardView& board = *plans.screens->board();
    for (auto _ : state) {
        board.setProject(plans.firstProject());
        FocusRig::settle();
        board.setProject(nullptr);
    }
}

void moveCard(benchmark::State& state) {
    Plans& plans = Plans::of(state);
    KanbanBoardView& board = *plans.screens->board();
    board.setProject(plans.firstProject());
    FocusRig::settle();
    const QString card = plans.firstProject()->tasks().last()->id().toString();
    bool there = false;
    for (auto _ : state) {
        (there ? board.toDo() : board.inProgress())->drop({card});
        there = !there;
        FocusRig::settle();
    }
    board.setProject(nullptr);
}

void typeInSearch(benchmark::State& state) {
    Plans& plans = Plans::of(state);
    AgendaPlanningSheet& sheet = *plans.screens->agenda()->planningSheet();
    sheet.open(plans.focus.clock.now(), AgendaPlanningSheet::PlanningTab::pickExisting, nullptr);
    FocusRig::settle();
    const QString typed = QStringLiteral("task 1");
    qsizetype length = 0;
    for (auto _ : state) {
        length = length % typed.size() + 1;
        sheet.pickList()->setSearchText(typed.first(length));
        FocusRig::settle();
    }
    sheet.close();
}

void searchProjects(benchmark::State& state) {
    AllProjectsView& projects = *Plans::of(state).screens->projects();
    projects.refresh();
    const QString typed = QStringLiteral("project");
    qsizetype length = 0;
    for (auto _ : state) {
        length = length % typed.size() + 1;
        projects.setSearchText(typed.first(length));
        FocusRig::settle();
    }
    projects.setSearchText({});
}

constexpr int few = 20;
constexpr int many = 20'000;

BENCHMARK(openAgenda)->Arg(few)->Arg(many)->Unit(benchmark::kMicrosecond);
BENCHMARK(switchDay)->Arg(few)->Arg(many)->Unit(benchmark::kMicrosecond);
BENCHMARK(showMonth)->Arg(few)->Arg(many)->Unit(benchmark::kMicrosecond);
BENCHMARK(openBoard)->Arg(few)->Arg(many)->Unit(benchmark::kMicrosecond);
BENCHMARK(moveCard)->Arg(few)->Arg(many)->Unit(benchmark::kMicrosecond);
BENCHMARK(typeInSearch)->Arg(few)->Arg(many)->Unit(benchmark::kMicrosecond);
BENCHMARK(searchProjects)->Arg(few)->Arg(many)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
