#pragma once

#include "stats/export/RecordExport.h"

#include <QColor>
#include <QImage>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QUrl>

#include <functional>
#include <memory>
#include <variant>

namespace norvin {

class Clock;
class HistoryStatsView;
class ModelContext;
class TodayStatsView;

/// Writes what the statistics page is about into files: the records of the day or period that is shown, the
/// page as a picture, or as a document. One file at a time, on a thread of its own; the file is there whole
/// or as it was before. Main thread only; ends, with what it writes, when it is destroyed.
class StatsExport final : public QObject {
    Q_OBJECT
    /// Whether a file is being written; nothing else can be meanwhile.
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY busyChanged)
    /// 0 to 100 of what is being written.
    Q_PROPERTY(int percent READ percent NOTIFY percentChanged)
    /// What is being written, as a sentence; empty for nothing.
    Q_PROPERTY(QString busyText READ busyText NOTIFY busyChanged)
    /// What became of the last one, as a sentence; empty for nothing to say.
    Q_PROPERTY(QString noticeText READ noticeText NOTIFY noticeChanged)
    Q_PROPERTY(bool isNoticeProblem READ isNoticeProblem NOTIFY noticeChanged)
    /// Where to look first.
    Q_PROPERTY(QUrl folder READ folder NOTIFY noticeChanged)
public:
    enum Kind {
        Sessions, ///< sessions as CSV
        Usage,    ///< usage intervals as CSV
        Json,     ///< both as JSON
        Picture,  ///< PNG
        Document  ///< PDF
    };
    Q_ENUM(Kind)

    /// What the page shows; everything must outlive the export.
    struct Page {
        const TodayStatsView& today;
        const HistoryStatsView& history;
        /// Whether today is the tab that is shown.
        std::function<bool()> showsToday;
    };

    /// @param storeFile that of the context; empty for a store in memory, whose records are read before the
    ///   writing begins
    StatsExport(ModelContext& context, QString storeFile, Clock& clock, Page page, QObject* parent = nullptr);
    ~StatsExport() override;

    [[nodiscard]] bool isBusy() const { return m_job != nullptr; }
    [[nodiscard]] int percent() const { return m_percent; }
    [[nodiscard]] QString busyText() const;
    [[nodiscard]] QString noticeText() const;
    [[nodiscard]] bool isNoticeProblem() const {
        return std::holds_alternative<ExportFailure>(m_notice) || std::holds_alternative<Unsaved>(m_notice);
    }
    [[nodiscard]] QUrl folder() const;

    /// A name for the file, with the period, the day and the extension.
    Q_INVOKABLE QString proposedName(norvin::StatsExport::Kind kind) const;
    /// Writes a file of any kind but a picture, in place of one that is there. Ignored while busy.
    Q_INVOKABLE void write(norvin::StatsExport::Kind kind, const QUrl& file);
    /// Writes a picture of the page. @param picture a null one says that none could be taken
    void writePicture(const QImage& picture, const QColor& background, const QUrl& file);
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void dismissNotice();
    void retranslate(const QLocale& locale);

Q_SIGNALS:
    void busyChanged();
    void percentChanged();
    void noticeChanged();

private:
    /// Nothing was begun, because what was recorded last is not in the store's file.
    struct Unsaved {
        QString reason;
    };
    using Notice = std::variant<std::monostate, ExportDone, ExportFailure, ExportCancelled, Unsaved>;
    /// On the other thread.
    using Work = std::function<ExportOutcome(ExportControl& control)>;

    void start(const QString& path, const Work& work);
    void refuse(const QString& path, const Notice& notice);
    void setNotice(const Notice& notice);
    [[nodiscard]] RecordExport recordsFor(Kind kind, const QString& path) const;
    [[nodiscard]] StatsPeriod period() const;

    ModelContext& m_context;
    QString m_storeFile;
    Clock& m_clock;
    Page m_page;
    QLocale m_locale;
    QThreadPool m_thread;
    std::shared_ptr<ExportControl> m_job;
    /// The file that is written, or was last.
    QString m_path;
    int m_percent = 0;
    Notice m_notice;
    QString m_folder;
};

} // namespace norvin
