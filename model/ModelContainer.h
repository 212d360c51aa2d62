#pragma once

#include "model/ModelContext.h"
#include "model/StoreError.h"
#include "model/StoreReplacement.h"

#include <QString>

#include <chrono>
#include <memory>
#include <variant>

class QThread;

namespace norvin {

/// What happened when a store was opened.
struct StoreOpening {
    ReplacementOutcome replacement = {};
    /// Why the file that was there had to be deleted and made anew, in English; empty where it had not.
    QString lossReason = {};
};

/// An open store. It and everything in it belong to the thread that opened it, and may be used there only.
class ModelContainer final {
public:
    /// Carries out the replacement of the store that was prepared, if one was, and then opens the file,
    /// making it where there is none. A file that cannot be opened (damaged, of another schema) is reported
    /// on standard output, deleted with its two companions, and made anew once. A store that somebody has
    /// locked is waited for; one that stays locked, or that only a full disk keeps shut, is left alone.
    /// @param lockWait how long to wait for a lock at most; blocks the calling thread
    /// @return the container, or why there is none even after the file was made anew
    [[nodiscard]] static std::variant<std::unique_ptr<ModelContainer>, StoreError>
    openOrRecreate(const QString& storeFile, std::chrono::milliseconds lockWait = std::chrono::seconds(10));

    /// A store in memory, for tests. Its storeFile() is empty.
    [[nodiscard]] static std::unique_ptr<ModelContainer> inMemory();

    /// "NorvinFocus.sqlite" directly in the user's data directory ($XDG_DATA_HOME), which is made if missing.
    [[nodiscard]] static QString defaultStoreFile();

    ~ModelContainer();
    /// Gives the store and everything in it to another thread. Called on the one it belongs to, before
    /// anything was changed.
    void moveToThread(QThread* thread);
    [[nodiscard]] ModelContext& mainContext() { return *m_mainContext; }
    [[nodiscard]] const QString& storeFile() const { return m_storeFile; }
    [[nodiscard]] const StoreOpening& opening() const { return m_opening; }

private:
    ModelContainer(QString storeFile, std::unique_ptr<ModelContext> context);
    [[nodiscard]] static std::variant<std::unique_ptr<ModelContext>, StoreError>
    openContext(std::variant<std::unique_ptr<StoreConnection>, StoreError> opened);

    QString m_storeFile;
    StoreOpening m_opening;
    std::unique_ptr<ModelContext> m_mainContext;
};

} // namespace norvin
