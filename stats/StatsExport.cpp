#include "stats/StatsExport.h"

#include "model/ModelContext.h"
#include "platform/Clock.h"
#include "stats/HistoryStatsView.h"
#include "stats/StatsDays.h"
#include "stats/TodayStatsView.h"
#include "stats/export/StatsPages.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QSaveFile>
#include <QStandardPaths>

#include <utility>

namespace norvin {

namespace {

constexpr std::chrono::milliseconds threadExpiry{1000};
/// Around the page, in pixels of the picture.
constexpr int pictureMargin = 48;

TaskLabels labelsOf(const ModelContext& context) {
    TaskLabels labels;
    labels.reserve(static_cast<qsizetype>(context.tasks().size()));
    for (const TaskItem* task : context.tasks()) {
        TaskLabel label{.title = task->title(), .projectId = {}, .project = {}};
        if (const Project* const project = task->project()) {
            label.projectId = project->id();
            label.project = project->name();
        }
        labels.insert(task->id(), label);
    }
    return labels;
}

std::optional<RecordFile> recordFileOf(StatsExport::Kind kind) {
    switch (kind) {
    case StatsExport::Sessions:
        return RecordFile::sessions;
    case StatsExport::Usage:
        return RecordFile::usage;
    case StatsExport::Json:
        return RecordFile::json;
    case StatsExport::Picture:
    case StatsExport::Document:
        break;
    }
    return std::nullopt;
}

/// Writes with `draw`, and then takes the file into its place.
template <class Draw>
ExportOutcome writeFile(const QString& path, const ExportControl& control, const Draw& draw) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return ExportFailure{file.errorString()};
    const bool isDrawn = draw(file);
    if (control.isCancelled)
        return ExportCancelled{};
    // A device that is full says so no later than here; commit() would not tell.
    if (!isDrawn || file.error() != QFileDevice::NoError || !file.flush() || !file.commit())
        return ExportFailure{file.errorString()};
    return ExportDone{};
}

bool drawPicture(const QImage& picture, const QColor& background, QIODevice& file) {
    QImage sheet(picture.size() + QSize(2 * pictureMargin, 2 * pictureMargin), QImage::Format_RGB32);
    sheet.fill(background);
    QPainter painter(&sheet);
    // Where a page draws nothing, some renderers leave black instead of nothing. Nothing of it is darker than
    // what is behind it.
    painter.setCompositionMode(QPainter::CompositionMode_Lighten);
    painter.drawImage(QRect(QPoint(pictureMargin, pictureMargin), picture.size()), picture);
    painter.end();
    return sheet.save(&file, "PNG");
}

} // namespace

StatsExport::StatsExport(ModelContext& context, QString storeFile, Clock& clock, Page page, QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_storeFile(std::move(storeFile))
    , m_clock(clock)
    , m_page(std::move(page)) {
    m_thread.setMaxThreadCount(1);
    m_thread.setExpiryTimeout(static_cast<int>(threadExpiry.count()));
}

StatsExport::~StatsExport() {
    if (m_job)
        m_job->isCancelled = true;
    m_thread.waitForDone();
}

StatsPeriod StatsExport::period() const {
    return m_page.showsToday() ? StatsPeriod::today : m_page.history.statsPeriod();
}

QUrl StatsExport::folder() const {
    const QString usual = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString wanted = m_folder.isEmpty() ? usual : m_folder;
    return QUrl::fromLocalFile(QFileInfo(wanted).isDir() ? wanted : QDir::homePath());
}

QString StatsExport::proposedName(Kind kind) const {
    const auto content = [kind] {
        switch (kind) {
        case Sessions:
            return QStringLiteral("sessions");
        case Usage:
            return QStringLiteral("usage");
        case Json:
        case Picture:
        case Document:
            break;
        }
        return QStringLiteral("statistics");
    };
    const auto extension = [kind] {
        switch (kind) {
        case Sessions:
        case Usage:
            return QStringLiteral("csv");
        case Json:
            return QStringLiteral("json");
        case Picture:
            return QStringLiteral("png");
        case Document:
            break;
        }
        return QStringLiteral("pdf");
    };
    const QString day = m_clock.now().date().toString(Qt::ISODate);
    const StatsPeriod shown = period();
    const QString span = shown == StatsPeriod::today ? day : rawValue(shown) + u'-' + day;
    return QStringLiteral("norvin-focus-%1-%2.%3").arg(content(), span, extension());
}

RecordExport StatsExport::recordsFor(Kind kind, const QString& path) const {
    const QDateTime now = m_clock.now();
    StatsDays days(now.timeZone());
    const qint64 today = days.dayOf(Instant(now));
    const StatsPeriod shown = period();
    RecordScan::Range range;
    if (const std::optional<int> back = daysBack(shown))
        range.from = days.startOf(today - *back);
    // The page of today knows an end; a period of the history has none.
    if (m_page.showsToday())
        range.to = days.startOf(today + 1);
    RecordExport wanted{.kind = recordFileOf(kind).value_or(RecordFile::json),
                        .file = path,
                        .period = rawValue(shown),
                        .range = range,
                        .now = Instant(now),
                        .zone = now.timeZone(),
                        .tasks = labelsOf(m_context),
                        .storeFile = m_storeFile,
                        .sessions = {},
                        .usage = {}};
    if (m_storeFile.isEmpty()) {
        const RecordQuery query{.from = range.from.dateTime(), .to = range.to.dateTime()};
        if (wanted.kind != RecordFile::usage)
            wanted.sessions = m_context.fetchSessions(query);
        if (wanted.kind != RecordFile::sessions)
            wanted.usage = m_context.fetchAppUsage(query);
    }
    return wanted;
}

void StatsExport::write(Kind kind, const QUrl& file) {
    const QString path = file.toLocalFile();
    if (isBusy() || kind == Picture)
        return;
    if (kind == Document) {
        const StatsDocument document = m_page.showsToday()
                                           ? documentOf(m_page.today, m_clock.now(), m_locale)
                                           : documentOf(m_page.history, m_clock.now(), m_locale);
        start(path, [path, document](const ExportControl& control) {
            return writeFile(path, control,
                             [&document](QIODevice& device) { return writePdf(document, device); });
        });
        return;
    }
    // What is read is the store's file: what was recorded last has to be in it.
    if (const StoreResult unsaved = m_context.save()) {
        refuse(path, Unsaved{unsaved->description});
        return;
    }
    start(path, [wanted = recordsFor(kind, path)](ExportControl& control) {
        return writeRecords(wanted, control);
    });
}

void StatsExport::writePicture(const QImage& picture, const QColor& background, const QUrl& file) {
    const QString path = file.toLocalFile();
    if (isBusy())
        return;
    if (picture.isNull()) {
        refuse(path, ExportFailure{qtTrId("stats_export_no_picture")});
        return;
    }
    start(path, [path, picture, background](const ExportControl& control) {
        return writeFile(path, control,
                         [&](QIODevice& device) { return drawPicture(picture, background, device); });
    });
}

void StatsExport::start(const QString& path, const Work& work) {
    m_job = std::make_shared<ExportControl>();
    m_path = path;
    m_percent = 0;
    m_folder = QFileInfo(path).absolutePath();
    m_notice = {};
    // What is told here is told on the main thread, and to nobody once this is gone.
    const auto tell = [this](const auto& news) {
        QMetaObject::invokeMethod(this, news, Qt::QueuedConnection);
    };
    m_job->showProgress = [this, tell](int percent) {
        tell([this, percent] {
            m_percent = percent;
            Q_EMIT percentChanged();
        });
    };
    m_thread.start([this, tell, work, job = m_job] {
        tell([this, outcome = work(*job)] {
            m_job.reset();
            Q_EMIT busyChanged();
            std::visit([this](const auto& what) { setNotice(what); }, outcome);
        });
    });
    Q_EMIT noticeChanged();
    Q_EMIT percentChanged();
    Q_EMIT busyChanged();
}

void StatsExport::refuse(const QString& path, const Notice& notice) {
    m_path = path;
    setNotice(notice);
}

void StatsExport::cancel() {
    if (m_job)
        m_job->isCancelled = true;
}

void StatsExport::dismissNotice() {
    setNotice({});
}

void StatsExport::setNotice(const Notice& notice) {
    m_notice = notice;
    Q_EMIT noticeChanged();
}

QString StatsExport::busyText() const {
    return m_job ? qtTrId("stats_export_busy_format").arg(QFileInfo(m_path).fileName()) : QString();
}

QString StatsExport::noticeText() const {
    if (const auto* done = std::get_if<ExportDone>(&m_notice)) {
        const QString place = QDir::toNativeSeparators(m_path);
        if (!done->counts)
            return qtTrId("stats_export_done_format").arg(place);
        QStringList counts;
        if (done->counts->sessions > 0 || done->counts->usage == 0)
            counts.append(qtTrId("count_sessions", done->counts->sessions));
        if (done->counts->usage > 0)
            counts.append(qtTrId("count_intervals", done->counts->usage));
        return qtTrId("stats_export_done_records_format").arg(place, counts.join(QStringLiteral(", ")));
    }
    const QString name = QFileInfo(m_path).fileName();
    if (const auto* failure = std::get_if<ExportFailure>(&m_notice))
        return qtTrId("stats_export_failed_format").arg(name, failure->reason);
    if (const auto* unsaved = std::get_if<Unsaved>(&m_notice))
        return qtTrId("stats_export_unsaved_format").arg(name, unsaved->reason);
    if (std::holds_alternative<ExportCancelled>(m_notice))
        return qtTrId("stats_export_cancelled_format").arg(name);
    return {};
}

void StatsExport::retranslate(const QLocale& locale) {
    m_locale = locale;
    Q_EMIT busyChanged();
    Q_EMIT noticeChanged();
}

} // namespace norvin
