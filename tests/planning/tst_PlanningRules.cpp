#include "tests/planning/PlanningScenario.h"

#include <QTest>
#include <QTranslator>

using namespace norvin;
using namespace norvin::test;

/// Random sequences of what can be done with projects and tasks, against the same rules told plainly.
class tst_PlanningRules final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void holdForAnySequence_data();
    void holdForAnySequence();
};

namespace {

constexpr int operationsASeed = 2000;
constexpr int operationsBetweenLooks = 20;

/// Sentences with a place for a name, as those of the undo bar have.
class AnyText final : public QTranslator {
public:
    using QTranslator::QTranslator;
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char*, const char*, const char*, int) const override {
        return QStringLiteral("%1");
    }
};

} // namespace

void tst_PlanningRules::initTestCase() {
    QCoreApplication::installTranslator(new AnyText(this));
}

void tst_PlanningRules::holdForAnySequence_data() {
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1U, 2U, 3U, 5U, 8U})
        QTest::addRow("seed %u", seed) << seed;
}

void tst_PlanningRules::holdForAnySequence() {
    QFETCH(quint32, seed);
    PlanningScenario scenario(seed);
    QStringList last;
    for (int operation = 1; operation <= operationsASeed; ++operation) {
        last.append(scenario.step());
        if (operation % operationsBetweenLooks != 0 && last.constLast() != QLatin1String("reopen"))
            continue;
        const QString difference = scenario.difference();
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("seed %1, after operation %2 (%3): %4")
                                                      .arg(seed)
                                                      .arg(operation)
                                                      .arg(last.join(QStringLiteral(", ")), difference)));
        last.clear();
    }
    scenario.reopen();
    const QString difference = scenario.difference();
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

QTEST_GUILESS_MAIN(tst_PlanningRules)
#include "tst_PlanningRules.moc"
