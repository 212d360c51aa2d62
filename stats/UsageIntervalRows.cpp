#include "stats/UsageIntervalRows.h"

#include "model/ModelContext.h"
#include "stats/FigureTexts.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace norvin {

struct UsageIntervalRows::Request {
    QString storeFile;
    UsageQuestion question;
    std::optional<StoredInterval> after;
    std::atomic<bool> isCancelled = false;
};

namespace {

bool matches(const UsageQuestion& question, const QString& bundleID, const QString& category) {
    return bundleID == question.bundleID && (!question.category || category == *question.category);
}

} // namespace

UsageIntervalRows::UsageIntervalRows(ModelContext& context, QString storeFile, QObject* parent)
    : QAbstractListModel(parent)
    , m_context(context)
    , m_storeFile(std::move(storeFile))
    , m_days(QTimeZone::utc()) {
    // Pages are asked for one after the other, and a later question makes an earlier one idle.
    m_thread.setMaxThreadCount(1);
    connect(&m_context, &ModelContext::appUsageInserted, this, &UsageIntervalRows::notice);
    connect(&m_context, &ModelContext::saved, this, &UsageIntervalRows::follow);
}

UsageIntervalRows::~UsageIntervalRows() {
    cancel();
    m_thread.waitForDone();
}

void UsageIntervalRows::show(const UsageQuestion& question, const QTimeZone& zone) {
    clear();
    m_question = question;
    m_days = StatsDays(zone);
    m_isShown = true;
    // What is counted already belongs to what is listed. Where it cannot be saved, the window says so.
    static_cast<void>(m_context.save());
    m_news = News::none;
    requestPage();
}

void UsageIntervalRows::clear() {
    cancel();
    beginResetModel();
    m_rows.clear();
    m_rows.shrink_to_fit();
    endResetModel();
    m_isShown = false;
    m_isComplete = true;
    m_problem.clear();
    m_news = News::none;
    m_asksAgain = false;
    Q_EMIT stateChanged();
}

void UsageIntervalRows::cancel() {
    if (m_request)
        m_request->isCancelled = true;
    m_request.reset();
}

void UsageIntervalRows::requestPage() {
    if (m_storeFile.isEmpty()) {
        take(readFromMemory());
        return;
    }
    m_request = std::make_shared<Request>();
    m_request->storeFile = m_storeFile;
    m_request->question = m_question;
    if (!m_rows.empty())
        m_request->after = m_rows.back();
    m_thread.start([this, request = m_request] {
        if (request->isCancelled)
            return;
        Page page = read(*request);
        QMetaObject::invokeMethod(
            this,
            [this, request, page = std::move(page)]() mutable {
                if (request == m_request)
                    take(std::move(page));
            },
            Qt::QueuedConnection);
    });
    Q_EMIT stateChanged();
}

UsageIntervalRows::Page UsageIntervalRows::read(const Request& request) {
    Page page;
    auto opened = RecordScan::open(request.storeFile);
    if (std::holds_alternative<StoreError>(opened)) {
        page.isRefused = true;
        return page;
    }
    RecordScan& scan = *std::get<std::unique_ptr<RecordScan>>(opened);
    std::vector<StoredSource> known;
    if (const StoreResult error = scan.sources(known)) {
        page.problem = error->description;
        return page;
    }
    std::vector<qint64> sources;
    for (const StoredSource& source : known) {
        if (matches(request.question, source.bundleID, source.category))
            sources.push_back(source.row);
    }
    RecordScan::Range range;
    range.from = request.question.from;
    range.to = request.question.to;
    const StoreResult error =
        scan.usageOf(sources, range, request.after, [&page, &request](const StoredInterval& interval) {
            page.intervals.push_back(interval);
            page.isLast = page.intervals.size() < pageSize;
            return page.isLast && !request.isCancelled;
        });
    if (error) {
        page.problem = error->description;
        page.isLast = true;
    }
    return page;
}

UsageIntervalRows::Page UsageIntervalRows::readFromMemory() const {
    const auto dateTime = [](Instant instant) { return instant.dateTime(); };
    RecordQuery query;
    query.from = dateTime(m_question.from);
    query.to = dateTime(m_question.to);
    Page page;
    for (const AppUsageSession& usage : m_context.fetchAppUsage(query)) {
        if (matches(m_question, usage.bundleID, usage.category))
            page.intervals.push_back(
                {.row = 0, .source = 0, .start = Instant(usage.startTime), .seconds = usage.durationSeconds});
    }
    return page;
}

void UsageIntervalRows::take(Page page) {
    // A file that its context has for itself alone, as on a full disk, is read through the context.
    if (page.isRefused) {
        beginResetModel();
        m_rows.clear();
        endResetModel();
        page = readFromMemory();
    }
    if (!page.intervals.empty()) {
        const int first = rowCount();
        beginInsertRows({}, first, first + static_cast<int>(page.intervals.size()) - 1);
        m_rows.insert(m_rows.end(), page.intervals.begin(), page.intervals.end());
        endInsertRows();
    }
    // Only now: whoever hears of the rows may ask for more.
    m_request.reset();
    m_problem = page.problem;
    m_isComplete = page.isLast;
    Q_EMIT stateChanged();
    // Whether the last page was read before or after something was recorded is not known.
    if (std::exchange(m_asksAgain, false) && m_isComplete)
        requestPage();
}

void UsageIntervalRows::notice(const AppUsageSession& usage) {
    if (!m_isShown || !matches(m_question, usage.bundleID, usage.category))
        return;
    const bool isLater = m_rows.empty() || m_rows.back().start <= Instant(usage.startTime);
    if (m_news != News::earlier)
        m_news = isLater && !m_storeFile.isEmpty() ? News::later : News::earlier;
}

void UsageIntervalRows::follow() {
    if (!m_isShown || m_news == News::none)
        return;
    if (std::exchange(m_news, News::none) == News::earlier) {
        show(m_question, m_days.zone());
    } else if (m_request) {
        m_asksAgain = true;
    } else if (m_isComplete) {
        requestPage();
    }
}

void UsageIntervalRows::setLocale(const QLocale& locale) {
    m_locale = locale;
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int UsageIntervalRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant UsageIntervalRows::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const StoredInterval& interval = m_rows[static_cast<size_t>(index.row())];
    switch (role) {
    case NumberRole:
        return index.row() + 1;
    case StartRole: {
        const QDateTime start = m_days.dateTime(interval.start);
        QString format = m_locale.timeFormat(QLocale::ShortFormat);
        if (!format.contains(QLatin1String("ss")))
            format.replace(QLatin1String("mm"), QLatin1String("mm:ss"));
        return m_locale.toString(start.date(), QLocale::ShortFormat) + QLatin1Char(' ') +
               m_locale.toString(start.time(), format);
    }
    case DurationRole:
        return exactSeconds(interval.seconds);
    case SecondsRole:
        return interval.seconds;
    default:
        return {};
    }
}

QHash<int, QByteArray> UsageIntervalRows::roleNames() const {
    return {
        {NumberRole, "number"}, {StartRole, "start"}, {DurationRole, "duration"}, {SecondsRole, "seconds"}};
}

bool UsageIntervalRows::canFetchMore(const QModelIndex& parent) const {
    return !parent.isValid() && !m_isComplete && !m_request && m_isShown;
}

void UsageIntervalRows::fetchMore(const QModelIndex& parent) {
    if (canFetchMore(parent))
        requestPage();
}

} // namespace norvin
