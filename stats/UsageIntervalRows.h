#pragma once

#include "model/RecordScan.h"
#include "stats/FigureRecords.h"

#include <QAbstractListModel>
#include <QLocale>
#include <QString>
#include <QThreadPool>

#include <memory>
#include <vector>

namespace norvin {

class ModelContext;

/// The intervals of one application in their order, read a page at a time on a thread of their own while the
/// list is gone through. What is recorded meanwhile follows at the end. Main thread only.
class UsageIntervalRows final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY stateChanged)
    /// Whether the first page is on its way.
    Q_PROPERTY(bool isWaiting READ isWaiting NOTIFY stateChanged)
    /// Why the intervals could not be read, in English; empty where they could.
    Q_PROPERTY(QString problem READ problem NOTIFY stateChanged)
public:
    enum Role {
        NumberRole = Qt::UserRole + 1, ///< "number": from 1
        StartRole,                     ///< "start": date and time, to the second
        DurationRole,                  ///< "duration": the seconds as text, without a loss
        SecondsRole,                   ///< "seconds"
    };
    static constexpr int pageSize = 500;

    /// @param context must outlive this @param storeFile that of the context; empty for a store in memory,
    /// which is read at once
    UsageIntervalRows(ModelContext& context, QString storeFile, QObject* parent);
    ~UsageIntervalRows() override;

    /// Begins with other intervals; what is being read for the ones before is given up.
    /// @param zone in which times are written
    void show(const UsageQuestion& question, const QTimeZone& zone);
    /// Whether these are the ones that are shown.
    [[nodiscard]] bool shows(const UsageQuestion& question, const QTimeZone& zone) const {
        return m_isShown && question == m_question && zone == m_days.zone();
    }
    /// Gives up what is being read, and forgets the rest.
    void clear();
    [[nodiscard]] bool isWaiting() const { return m_request != nullptr && m_rows.empty(); }
    /// Whether any page is.
    [[nodiscard]] bool isReading() const { return m_request != nullptr; }
    [[nodiscard]] const QString& problem() const { return m_problem; }
    /// How dates and times are written.
    void setLocale(const QLocale& locale);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

Q_SIGNALS:
    void stateChanged();

private:
    struct Request;
    struct Page {
        std::vector<StoredInterval> intervals;
        bool isLast = true;
        bool isRefused = false;
        QString problem;
    };
    [[nodiscard]] static Page read(const Request& request);
    [[nodiscard]] Page readFromMemory() const;
    void requestPage();
    void take(Page page);
    void cancel();
    void notice(const AppUsageSession& usage);
    void follow();

    ModelContext& m_context;
    QString m_storeFile;
    QLocale m_locale;
    StatsDays m_days;
    UsageQuestion m_question;
    bool m_isShown = false;
    std::vector<StoredInterval> m_rows;
    bool m_isComplete = true;
    QString m_problem;
    /// What is on its way; null for nothing.
    std::shared_ptr<Request> m_request;
    /// Recorded and not yet saved: nothing, what comes after all rows, or before some.
    enum class News { none, later, earlier };
    News m_news = News::none;
    /// Something was saved while a page was on its way.
    bool m_asksAgain = false;
    QThreadPool m_thread;
};

} // namespace norvin
