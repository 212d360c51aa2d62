#pragma once

#include "model/ModelContext.h"
#include "model/StoreError.h"

#include <QString>

#include <memory>
#include <variant>

namespace norvin {

/// An open store. Main thread only.
class ModelContainer final {
public:
    /// Opens the store file, making it where there is none. A file that cannot be opened (damaged, of another
    /// schema) is reported on standard output, deleted with its two companions, and made anew once. A store
    /// that somebody has locked is waited for.
    /// @return the container, or why there is none even after the file was made anew
    [[nodiscard]] static std::variant<std::unique_ptr<ModelContainer>, StoreError>
    openOrRecreate(const QString& storeFile);

    /// A store in memory, for tests.
    [[nodiscard]] static std::unique_ptr<ModelContainer> inMemory();

    /// "NorvinFocus.sqlite" directly in the user's data directory ($XDG_DATA_HOME), which is made if missing.
    [[nodiscard]] static QString defaultStoreFile();

    ~ModelContainer();
    [[nodiscard]] ModelContext& mainContext() { return *m_mainContext; }
    [[nodiscard]] const QString& storeFile() const { return m_storeFile; }

private:
    ModelContainer(QString storeFile, std::unique_ptr<ModelContext> context);

    QString m_storeFile;
    std::unique_ptr<ModelContext> m_mainContext;
};

} // namespace norvin
