#pragma once

#include "planning/exchange/PlanningFile.h"

#include <QObject>
#include <QString>
#include <QUrl>

#include <optional>
#include <variant>

namespace norvin {

class Clock;
class ModelContext;
class PlanningEdits;

enum class PlanningFormat {
    json,    ///< everything
    todoTxt, ///< tasks, one a line
    calendar ///< tasks, as other programs' task lists take them
};

/// The format that a file's extension says, ".json", ".txt" or ".ics"; none for any other.
[[nodiscard]] std::optional<PlanningFormat> planningFormatOf(const QString& path);

/// Writes planning into files and reads it from them. Main thread only.
class PlanningExchange final : public QObject {
    Q_OBJECT
    /// What is to be said about the last importFile() or exportFile(), in the language of the window; empty
    /// for nothing.
    Q_PROPERTY(QString noticeText READ noticeText NOTIFY noticeChanged)
    /// Whether that went wrong.
    Q_PROPERTY(bool isNoticeProblem READ isNoticeProblem NOTIFY noticeChanged)
public:
    enum class Overwrite { no, yes };

    struct Imported {
        SnapshotCounts added;
        /// Those of the file that the store had already; they stay as they are.
        SnapshotCounts alreadyThere;
        /// Parts of the file that hold no tasks.
        int ignored = 0;
    };

    PlanningExchange(ModelContext& context, PlanningEdits& edits, Clock& clock, QObject* parent = nullptr);
    ~PlanningExchange() override;

    /// Writes everything that the format holds; the file is there whole or not at all.
    /// @return what was written, or why nothing was
    [[nodiscard]] std::variant<SnapshotCounts, PlanningError> exportTo(const QString& path,
                                                                       Overwrite overwrite) const;
    /// Takes in a whole file, or nothing of it, in one save that can be undone for a while.
    /// @return what came in, or why nothing did
    [[nodiscard]] std::variant<Imported, PlanningError> importFrom(const QString& path);

    // For the window: the outcome is the notice. An export replaces what is there.
    Q_INVOKABLE void exportFile(const QUrl& file);
    Q_INVOKABLE void importFile(const QUrl& file);
    Q_INVOKABLE void dismissNotice();
    [[nodiscard]] QString noticeText() const;
    [[nodiscard]] bool isNoticeProblem() const { return std::holds_alternative<PlanningError>(m_notice); }
    /// To be called when the language changes.
    void retranslate() { Q_EMIT noticeChanged(); }

Q_SIGNALS:
    void noticeChanged();

private:
    struct Exported {
        QString fileName;
        SnapshotCounts counts;
    };
    using Notice = std::variant<std::monostate, Exported, Imported, PlanningError>;

    void setNotice(const Notice& notice);
    void takeBack(const PlanningSnapshot& added);

    ModelContext& m_context;
    PlanningEdits& m_edits;
    Clock& m_clock;
    Notice m_notice;
};

/// "12 tasks, 2 projects and 3 phases" in the language that is loaded; what is none is left out, except that
/// something is always said.
[[nodiscard]] QString planningCountsText(const SnapshotCounts& counts);
/// What an import did, as sentences in the language that is loaded.
[[nodiscard]] QString importText(const PlanningExchange::Imported& imported);

} // namespace norvin
