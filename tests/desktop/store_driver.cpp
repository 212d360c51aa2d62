// What a test of power failures runs and kills: one thing with a store, and what came of it on standard
// output.

#include "model/ModelContainer.h"
#include "model/StoreFile.h"
#include "model/StoreReplacement.h"

#include <QCoreApplication>

#include <cstdio>

using namespace norvin;

namespace {

int report(const StoreResult& failure) {
    std::puts(failure ? qUtf8Printable(failure->description) : "done");
    return failure ? 1 : 0;
}

// A store with one task of that title, and so much besides that copying it takes a while.
int fill(const QString& store, const QString& title, int intervals) {
    auto opened = ModelContainer::openOrRecreate(store);
    auto* const container = std::get_if<std::unique_ptr<ModelContainer>>(&opened);
    if (container == nullptr)
        return report(std::get<StoreError>(opened));
    ModelContext& context = (*container)->mainContext();
    context.insert(std::make_unique<TaskItem>(TaskItem::Init{.title = title}));
    const QDateTime start = QDateTime::fromSecsSinceEpoch(1'700'000'000);
    for (int i = 0; i < intervals; ++i) {
        AppUsageSession usage;
        usage.bundleID = QStringLiteral("org.example.Editor");
        usage.startTime = start.addSecs(i);
        usage.endTime = start.addSecs(i + 1);
        usage.durationSeconds = 1;
        context.insert(usage);
    }
    return report(context.save());
}

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString what = arguments.value(1);
    const QString store = arguments.value(2);
    const QString other = arguments.value(3);
    if (what == QLatin1String("fill"))
        return fill(store, other, arguments.value(4).toInt());
    if (what == QLatin1String("backup"))
        return report(copyStoreFile(store, other));
    if (what == QLatin1String("prepare"))
        return report(prepareRestore(store, other));
    if (what == QLatin1String("restore")) {
        if (const StoreResult failure = prepareRestore(store, other))
            return report(failure);
        const ReplacementOutcome outcome = carryOutReplacement(store);
        std::puts(outcome.problem.isEmpty() ? "done" : qUtf8Printable(outcome.problem));
        return outcome.kind == ReplacementOutcome::Kind::restored ? 0 : 1;
    }
    std::puts("usage: store-driver fill|backup|prepare|restore STORE [TITLE COUNT|FILE]");
    return 2;
}
