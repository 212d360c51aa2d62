#include "platform/fake/FakePreferences.h"
#include "stats/ChartModel.h"
#include "ui/Localization.h"
#include "ui/stats/ChartLayout.h"
#include "ui/stats/DonutLayout.h"

#include <QGuiApplication>
#include <QtTest>

using namespace norvin;

/// Where the parts of a chart stand.
class ChartLayoutTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { localization.setLanguage(QStringLiteral("fr")); }
    void textsStandWhereThereIsRoom();
    void slicesKeepTheirColours();

private:
    FakePreferences preferences;
    Localization localization{preferences};
};

void ChartLayoutTest::textsStandWhereThereIsRoom() {
    ChartModel model(nullptr);
    QList<ChartPoint> points;
    for (int i = 0; i < 1200; ++i)
        points.append({.label = QStringLiteral("%1 March").arg(i),
                       .name = {},
                       .value = 100.0 * (i % 7),
                       .valueText = {},
                       .key = {}});
    model.setPoints(points);
    ChartLayout layout;
    layout.setModel(&model);
    layout.setScale(ChartLayout::Minutes);
    layout.setWidth(840);
    layout.setHeight(160);
    QCOMPARE(layout.top(), 720.0); // twelve hours, the next that three of them at a time come to
    QCOMPARE(layout.property("tickTexts").value<QList<QString>>().at(1), QStringLiteral("3 h"));
    QVERIFY(!layout.showsMarks());
    QCOMPARE(layout.line().value<QPolygonF>().size(), 1200);
    QCOMPARE(layout.heightOf(360), 80.0);
    QCOMPARE(layout.pointAt(-5), 0);
    QCOMPARE(layout.pointAt(9999), 1199);
    const auto xs = layout.property("labelXs").value<QList<double>>();
    const auto texts = layout.property("labelTexts").value<QList<QString>>();
    QCOMPARE(texts.constLast(), QStringLiteral("1199 March"));
    QVERIFY(xs.size() > 5);
    QFont font = QGuiApplication::font();
    font.setPixelSize(12);
    const QFontMetricsF metrics(font);
    for (qsizetype i = 0; i < xs.size(); ++i) {
        const double half = metrics.horizontalAdvance(texts.at(i)) / 2;
        QVERIFY(xs.at(i) - half >= -0.5 && xs.at(i) + half <= 840.5);
        QVERIFY(i == 0 || xs.at(i - 1) + metrics.horizontalAdvance(texts.at(i - 1)) / 2 < xs.at(i) - half);
    }
    model.setPoints({points.at(3)});
    QCOMPARE(layout.pointAt(700), 0);
    QVERIFY(layout.showsMarks());
    model.setPoints({});
    QCOMPARE(layout.pointAt(5), -1);
}

void ChartLayoutTest::slicesKeepTheirColours() {
    const auto slice = [](const char* key, double value) {
        return ChartPoint{
            .label = {}, .name = {}, .value = value, .valueText = {}, .key = QLatin1String(key)};
    };
    ChartModel model(nullptr);
    DonutLayout layout;
    layout.setLanguage(QStringLiteral("fr"));
    layout.setModel(&model);
    model.setPoints({slice("category_social", 75), slice("mine", 24.9), slice("category_other", 0.1)});
    const auto colors = layout.property("colors").value<QList<QString>>();
    QCOMPARE(colors.constFirst(), QStringLiteral("#ec4899"));
    QCOMPARE(layout.property("shares").value<QList<QString>>().constFirst(), QStringLiteral("75\u202f%"));
    // From twelve o'clock on: three quarters, then the rest.
    QCOMPARE(layout.sliceAt(1, -1), 0);
    QCOMPARE(layout.sliceAt(0, 1), 0);
    QCOMPARE(layout.sliceAt(-1, -0.5), 1);
    model.setPoints({slice("mine", 50), slice("category_social", 50)});
    QCOMPARE(layout.property("colors").value<QList<QString>>(), QList<QString>({colors.at(1), colors.at(0)}));
    model.setPoints({});
    QCOMPARE(layout.sliceAt(1, 1), -1);
}

QTEST_MAIN(ChartLayoutTest)
#include "tst_ChartLayout.moc"
