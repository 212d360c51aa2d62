#include "model/ModelContainer.h"

#include "model/PlanningGraph.h"
#include "model/StoreConnection.h"
#include "platform/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace norvin {

namespace {

using OpenResult = std::variant<std::unique_ptr<ModelContext>, StoreError>;

void removeStore(const QString& storeFile) {
    const QFileInfo file(storeFile);
    const QString companion = file.dir().filePath(file.completeBaseName());
    QFile::remove(storeFile);
    QFile::remove(companion + QStringLiteral(".sqlite-shm"));
    QFile::remove(companion + QStringLiteral(".sqlite-wal"));
}

} // namespace

ModelContainer::ModelContainer(QString storeFile, std::unique_ptr<ModelContext> context)
    : m_storeFile(std::move(storeFile))
    , m_mainContext(std::move(context)) {}

ModelContainer::~ModelContainer() = default;

std::variant<std::unique_ptr<ModelContext>, StoreError>
ModelContainer::openContext(std::variant<std::unique_ptr<StoreConnection>, StoreError> opened) {
    if (auto* error = std::get_if<StoreError>(&opened))
        return std::move(*error);
    auto connection = std::get<std::unique_ptr<StoreConnection>>(std::move(opened));
    auto graph = std::make_unique<PlanningGraph>();
    // A store whose planning cannot be read counts as one that cannot be opened: half of it would be worse.
    if (auto error = graph->load(*connection))
        return *std::move(error);
    return std::unique_ptr<ModelContext>(new ModelContext(std::move(connection), std::move(graph)));
}

std::variant<std::unique_ptr<ModelContainer>, StoreError>
ModelContainer::openOrRecreate(const QString& storeFile, std::chrono::milliseconds lockWait) {
    StoreOpening opening{.replacement = carryOutReplacement(storeFile)};
    OpenResult opened = openContext(StoreConnection::open(storeFile, lockWait));
    if (const auto* error = std::get_if<StoreError>(&opened); error != nullptr && !isPassing(*error)) {
        logLine(QStringLiteral(
                    "⚠️ SwiftData: Schema mismatch or corruption — resetting database. Error: ") +
                error->description);
        opening.lossReason = error->description;
        removeStore(storeFile);
        opened = openContext(StoreConnection::open(storeFile, lockWait));
    }
    if (auto* error = std::get_if<StoreError>(&opened))
        return std::move(*error);
    std::unique_ptr<ModelContainer> container(
        new ModelContainer(storeFile, std::get<std::unique_ptr<ModelContext>>(std::move(opened))));
    container->m_opening = std::move(opening);
    return container;
}

void ModelContainer::moveToThread(QThread* thread) {
    m_mainContext->moveToThread(thread);
}

std::unique_ptr<ModelContainer> ModelContainer::inMemory() {
    OpenResult opened = openContext(StoreConnection::inMemory());
    if (const auto* error = std::get_if<StoreError>(&opened))
        qFatal("A store in memory cannot be made: %s", qUtf8Printable(error->description));
    return std::unique_ptr<ModelContainer>(
        new ModelContainer(QString(), std::get<std::unique_ptr<ModelContext>>(std::move(opened))));
}

QString ModelContainer::defaultStoreFile() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    QDir().mkpath(folder);
    return QDir(folder).filePath(QStringLiteral("NorvinFocus.sqlite"));
}

} // namespace norvin
