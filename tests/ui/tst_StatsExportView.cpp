#include "stats/StatsRecords.h"
#include "stats/export/StatsPages.h"
#include "tests/support/PlausibleUser.h"
#include "tests/ui/UiRig.h"

#include <QPainter>
#include <QTemporaryDir>

using namespace norvin;

/// The statistics page on its way into files.
class StatsExportViewTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void theMenuIsReachedByKeyboard();
    void aPictureHoldsTheWholePage_data();
    void aPictureHoldsTheWholePage();
    void aDocumentIsLaidOut_data();
    void aDocumentIsLaidOut();
    void whatBecameOfItIsSaid();

private:
    void open(const QString& language) {
        m_rig = std::make_unique<UiRig>(language);
        QVERIFY(m_rig->loaded);
        m_rig->focus.clock.setNow(QDateTime(QDate(2025, 3, 10), QTime(17, 40), QTimeZone::utc()));
        TaskItem* const task =
            m_rig->focus.addTask(QStringLiteral("Write the report for the annual meeting"));
        PlausibleUser user(11, QTimeZone::utc(),
                           {.sessionsADay = 6,
                            .intervals = 8,
                            .applications = 14,
                            .unscored = 5,
                            .atOddHours = 0,
                            .tasks = {task->id()}});
        ModelContext& context = m_rig->focus.context();
        user.live(
            QDate(2025, 1, 1), QDate(2025, 3, 10), [&](const Session& session) { context.insert(session); },
            [&](const AppUsageSession& usage) { context.insert(usage); });
        m_rig->show();
        m_rig->showPage(UiRig::Page::statistics);
        QTRY_VERIFY(m_rig->visible("todayContent"));
    }
    void showTab(const QString& tab) {
        m_rig->stats.setTab(tab);
        m_rig->stats.history()->setPeriod(QStringLiteral("month"));
        QTRY_VERIFY(m_rig->visible(tab == QLatin1String("today") ? "todayContent" : "historyContent"));
        FocusRig::settle();
    }
    void write(StatsExport::Kind kind, const QString& file) {
        QQuickItem* const menu = m_rig->visible("statsExport")->parentItem();
        QVERIFY(QMetaObject::invokeMethod(menu, "write", Q_ARG(int, kind),
                                          Q_ARG(QUrl, QUrl::fromLocalFile(file))));
    }
    static void addPages() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("tab");
        for (const char* language : {"en", "fr"}) {
            for (const char* tab : {"today", "history"})
                QTest::addRow("%s-%s", language, tab)
                    << QString(QLatin1String(language)) << QString(QLatin1String(tab));
        }
    }
    static void keep(const QImage& image, const QString& name) {
        const QString folder = qEnvironmentVariable("NORVIN_PICTURES");
        if (!folder.isEmpty())
            image.save(folder + u'/' + name + QStringLiteral(".png"));
    }

    std::unique_ptr<UiRig> m_rig;
    QTemporaryDir m_files;
};

void StatsExportViewTest::theMenuIsReachedByKeyboard() {
    for (const char* language : {"fr", "en", "pseudo"}) {
        open(QLatin1String(language));
        m_rig->tabTo("statsExport");
        m_rig->press(Qt::Key_Return);
        const auto* menu = m_rig->window()->findChild<QObject*>(QStringLiteral("statsExportMenu"));
        QTRY_VERIFY(menu->property("opened").toBool());
        m_rig->checkTexts(QStringLiteral("stats-export-menu"), {m_files.path()});
        QCOMPARE(menu->property("count").toInt(), 5);
        m_rig->press(Qt::Key_Down);
        m_rig->press(Qt::Key_Down);
        QCOMPARE(menu->property("currentIndex").toInt(), 1);
        m_rig->press(Qt::Key_Escape);
        QTRY_VERIFY(!menu->property("visible").toBool());
        QTRY_VERIFY(m_rig->hasKeyboard("statsExport"));
    }
}

void StatsExportViewTest::aPictureHoldsTheWholePage_data() {
    addPages();
}

void StatsExportViewTest::aPictureHoldsTheWholePage() {
    QFETCH(QString, language);
    QFETCH(QString, tab);
    open(language);
    showTab(tab);
    QQuickItem* const content =
        m_rig->visible(tab == QLatin1String("today") ? "todayContent" : "historyContent");
    QVERIFY(content->height() > m_rig->window()->height());
    const auto hasCome = [content] {
        const QList<QQuickItem*> items = UiRig::visibleItems(content);
        return std::all_of(items.cbegin(), items.cend(), [](const QQuickItem* item) {
            return !item->property("appeared").isValid() || item->opacity() == 1.0;
        });
    };
    QTRY_VERIFY(hasCome());
    const QString file = m_files.filePath(QStringLiteral("page.png"));
    write(StatsExport::Picture, file);
    QTRY_VERIFY(!m_rig->stats.files()->noticeText().isEmpty());
    QVERIFY2(!m_rig->stats.files()->isNoticeProblem(), qPrintable(m_rig->stats.files()->noticeText()));
    const QImage picture(file);
    keep(picture, QStringLiteral("stats-picture-") + language + u'-' + tab);
    const double margins = picture.width() - 2 * content->width();
    QVERIFY(margins > 0 && std::abs(picture.height() - 2 * content->height() - margins) <= 1);
    // Something is drawn in each tenth of its height, over all of its width.
    const QColor background = picture.pixelColor(0, 0);
    for (int part = 0; part < 10; ++part) {
        bool isLeft = false;
        bool isRight = false;
        for (int y = picture.height() * part / 10; y < picture.height() * (part + 1) / 10; ++y) {
            for (int x = 0; x < picture.width(); x += 3) {
                const bool isDrawn = picture.pixelColor(x, y) != background;
                isLeft |= isDrawn && x < picture.width() / 4;
                isRight |= isDrawn && x > picture.width() * 3 / 4;
            }
        }
        QVERIFY2(isLeft && isRight, qPrintable(QString::number(part)));
    }
}

void StatsExportViewTest::aDocumentIsLaidOut_data() {
    addPages();
}

void StatsExportViewTest::aDocumentIsLaidOut() {
    QFETCH(QString, language);
    QFETCH(QString, tab);
    open(language);
    showTab(tab);
    const QLocale locale(language);
    const QDateTime now = m_rig->focus.clock.now();
    const StatsDocument document = tab == QLatin1String("today")
                                       ? documentOf(*m_rig->stats.today(), now, locale)
                                       : documentOf(*m_rig->stats.history(), now, locale);
    for (const StatsDocument::Section& section : document.sections)
        QVERIFY2(!section.points.isEmpty() || !section.rows.isEmpty(), qPrintable(section.title));
    const StatsPages pages(document);
    QVERIFY(pages.count() >= 1 && pages.count() <= 3);
    for (int page = 0; page < pages.count(); ++page) {
        QImage paper(StatsPages::pageWidth / 5, StatsPages::pageHeight / 5, QImage::Format_RGB32);
        paper.fill(Qt::white);
        QPainter painter(&paper);
        painter.scale(0.2, 0.2);
        pages.paint(painter, page);
        painter.end();
        keep(paper, QStringLiteral("stats-paper-%1-%2-%3").arg(language, tab).arg(page + 1));
        // The margins stay white.
        for (int y = 0; y < paper.height(); ++y) {
            for (const int x : {20, 60, paper.width() - 60, paper.width() - 20})
                QCOMPARE(paper.pixelColor(x, y), QColor(Qt::white));
        }
    }
    write(StatsExport::Document, m_files.filePath(QStringLiteral("page.pdf")));
    QTRY_VERIFY(!m_rig->stats.files()->noticeText().isEmpty());
    QVERIFY(!m_rig->stats.files()->isNoticeProblem());
    if (const QString folder = qEnvironmentVariable("NORVIN_PICTURES"); !folder.isEmpty()) {
        QFile::copy(m_files.filePath(QStringLiteral("page.pdf")),
                    folder + QStringLiteral("/stats-%1-%2.pdf").arg(language, tab));
    }
}

void StatsExportViewTest::whatBecameOfItIsSaid() {
    for (const char* language : {"fr", "en", "pseudo"}) {
        open(QLatin1String(language));
        write(StatsExport::Json, m_files.filePath(QStringLiteral("statistics.json")));
        QTRY_VERIFY(m_rig->visible("statsExportClose"));
        QVERIFY(m_rig->visible("statsExportNotice")->property("text").toString().contains(m_files.path()));
        m_rig->checkTexts(QStringLiteral("stats-export-done"), {m_files.path()});
        write(StatsExport::Json, m_files.filePath(QStringLiteral("missing/statistics.json")));
        QTRY_VERIFY(m_rig->stats.files()->isNoticeProblem());
        QTRY_VERIFY(m_rig->visible("statsExportClose"));
        m_rig->checkTexts(QStringLiteral("stats-export-failed"), {m_files.path()});
        m_rig->tabTo("statsExportClose");
        m_rig->press(Qt::Key_Space);
        QVERIFY(m_rig->visible("statsExportNotice") == nullptr);
        QVERIFY(m_rig->hasKeyboard("statsTabs"));
    }
}

QTEST_MAIN(StatsExportViewTest)
#include "tst_StatsExportView.moc"
