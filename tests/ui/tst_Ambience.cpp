#include "tests/ui/UiRig.h"
#include "ui/immersion/BubbleField.h"

#include <QQmlComponent>
#include <QQmlEngine>

#include <cmath>

using namespace norvin;
using namespace std::chrono_literals;

namespace {

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [low, high] = std::minmax(luminance(one), luminance(other));
    return (high + 0.05) / (low + 0.05);
}

/// A colour with a translucent one over it.
QColor under(const QColor& color, const QColor& veil) {
    const float a = veil.alphaF();
    return QColor::fromRgbF(color.redF() * (1 - a) + veil.redF() * a,
                            color.greenF() * (1 - a) + veil.greenF() * a,
                            color.blueF() * (1 - a) + veil.blueF() * a);
}

} // namespace

class AmbienceTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { open(QStringLiteral("en")); }
    void cleanup() { rig.reset(); }

    void everythingIsChosenByKeyboardAlone();
    void whatIsShownSpeaksTheLanguage();
    void whyNothingIsHeardIsSaid();
    void theWindowSinksAndRisesWithTheSession();
    void nothingMovesWhereNobodySeesIt();
    void everyTextIsReadUnderWater();

private:
    void open(const QString& language) {
        rig.reset();
        rig = std::make_unique<UiRig>(language);
        QVERIFY2(rig->loaded, qPrintable(rig->focus.lines.join(QLatin1Char('\n'))));
        rig->show();
    }
    void openSheet() const {
        rig->press(Qt::Key_M, Qt::ControlModifier);
        QTRY_VERIFY(rig->hasKeyboard("ambientSounds"));
    }
    /// As deep as it goes.
    void dive() const {
        rig->immersion.setDepth(1);
        rig->deepWork.start();
        rig->focus.pass(ImmersionService::descent + 5s);
        QTRY_VERIFY(rig->visible("bubbleField"));
    }
    [[nodiscard]] bool moves() const {
        const auto* timer = rig->window()->findChild<QObject*>(QStringLiteral("bubbleTimer"));
        return timer != nullptr && timer->property("running").toBool();
    }

    std::unique_ptr<UiRig> rig;
};

void AmbienceTest::everythingIsChosenByKeyboardAlone() {
    const QString before = rig->focusName();
    openSheet();
    rig->press(Qt::Key_Down);
    QCOMPARE(rig->ambientSounds.selectedSound(), QStringLiteral("rain"));
    QVERIFY2(rig->ambientSounds.isPlaying(), "a choice is heard");
    rig->press(Qt::Key_Down);
    QCOMPARE(rig->ambientSounds.selectedSound(), QStringLiteral("wind"));
    rig->keepPicture(QStringLiteral("ambience-sheet-en"));
    rig->tabTo("ambientVolume");
    rig->press(Qt::Key_Right);
    QCOMPARE(rig->ambientSounds.volumePercent(), 55);
    rig->tabTo("immersionDepth");
    rig->press(Qt::Key_Right);
    QCOMPARE(rig->immersion.depthPercent(), 5);

    rig->tabTo("ambientCategories");
    rig->press(Qt::Key_Right);
    rig->tabTo("ambientSounds");
    rig->press(Qt::Key_Down);
    QCOMPARE(rig->ambientSounds.selectedSound(), QStringLiteral("white_noise"));
    rig->press(Qt::Key_Up);
    QVERIFY(rig->ambientSounds.selectedSound().isEmpty());
    QVERIFY(!rig->ambientSounds.isPlaying());
    rig->press(Qt::Key_Space);
    QCOMPARE(rig->ambientSounds.selectedSound(), QStringLiteral("rain"));
    QVERIFY(rig->ambientSounds.isPlaying());
    rig->tabTo("ambientPlay");
    rig->press(Qt::Key_Space);
    QVERIFY(!rig->ambientSounds.isPlaying());

    rig->tabTo("ambientSounds");
    rig->press(Qt::Key_Down);
    QVERIFY(rig->ambientSounds.isPlaying());
    rig->press(Qt::Key_Escape);
    QTRY_COMPARE(rig->focusName(), before);
    QTRY_VERIFY2(!rig->ambientSounds.isPlaying(), "nobody chooses any longer");
}

void AmbienceTest::whatIsShownSpeaksTheLanguage() {
    openSheet();
    QVERIFY(rig->saying(QStringLiteral("Waves")));
    rig->localization->setLanguage(QStringLiteral("fr"));
    QTRY_VERIFY(rig->saying(QStringLiteral("Vagues")));
    QVERIFY(rig->saying(QStringLiteral("Concentration")));
    rig->keepPicture(QStringLiteral("ambience-sheet-fr"));
}

void AmbienceTest::whyNothingIsHeardIsSaid() {
    openSheet();
    QVERIFY(!rig->visible("ambientProblem"));
    rig->soundStream.setAvailability(Availability::unavailable(QStringLiteral("health_no_sound_server")));
    QTRY_VERIFY(rig->visible("ambientProblem"));
    QVERIFY(rig->visible("ambientProblem")
                ->property("text")
                .toString()
                .contains(qtTrId("health_no_sound_server_remedy")));
}

void AmbienceTest::theWindowSinksAndRisesWithTheSession() {
    rig->immersion.setDepth(1);
    QCOMPARE(rig->immersion.effectiveDepth(), 0.0);
    rig->deepWork.start();
    rig->focus.pass(30s);
    const double early = rig->immersion.effectiveDepth();
    QVERIFY(early > 0 && early < 0.3);
    rig->focus.pass(ImmersionService::descent);
    QCOMPARE(rig->immersion.effectiveDepth(), 1.0);
    auto* field = qobject_cast<BubbleField*>(rig->visible("bubbleField"));
    QVERIFY(field);
    for (int second = 0; second < 40; ++second)
        field->step(1);
    const std::vector<QRectF> before = field->bubbles();
    QVERIFY(before.size() > 6);
    rig->keepPicture(QStringLiteral("immersion"));

    // Bubbles are in nobody's way.
    QTRY_VERIFY(rig->visible("stopButton"));
    rig->click(rig->visible("primaryButton"));
    QTRY_COMPARE(rig->deepWork.state(), QStringLiteral("paused"));
    QCOMPARE(rig->immersion.effectiveDepth(), 0.0);
    QTRY_VERIFY(!rig->visible("bubbleField"));
    rig->deepWork.resume();
    QCOMPARE(rig->immersion.effectiveDepth(), 1.0);
    rig->deepWork.stop();
    rig->deepWork.startBreak();
    rig->focus.pass(60s);
    QCOMPARE(rig->immersion.effectiveDepth(), 0.0);
}

void AmbienceTest::nothingMovesWhereNobodySeesIt() {
    QVERIFY(!moves());
    dive();
    QTRY_VERIFY(moves());
    rig->window()->hide();
    QTRY_VERIFY(!moves());
    rig->window()->show();
    QTRY_VERIFY(moves());
    rig->immersion.setDepth(0);
    QVERIFY(!moves());

    qputenv("NORVIN_REDUCED_MOTION", "1");
    open(QStringLiteral("en"));
    qunsetenv("NORVIN_REDUCED_MOTION");
    rig->immersion.setDepth(1);
    rig->deepWork.start();
    rig->focus.pass(ImmersionService::descent);
    QCOMPARE(rig->immersion.effectiveDepth(), 1.0);
    QVERIFY(!moves());
    QVERIFY(!rig->visible("bubbleField"));
}

void AmbienceTest::everyTextIsReadUnderWater() {
    QQmlComponent component(qmlEngine(rig->visible("primaryButton")));
    component.setData("import QtQml; import NorvinFocus.Ui; QtObject { property QtObject theme: Theme }", {});
    const std::unique_ptr<QObject> holder(component.create());
    QVERIFY2(holder, qPrintable(component.errorString()));
    const auto* theme = holder->property("theme").value<QObject*>();
    QVERIFY(theme);
    const auto color = [theme](const char* name) { return theme->property(name).value<QColor>(); };
    const QColor bubble = color("bubble");
    const QColor deep = color("deepWater");
    for (const char* text : {"text", "textMuted", "textFaint"}) {
        QVERIFY2(contrast(color(text), deep) >= 4.5, text);
        for (const char* surface : {"background", "sidebar", "surface", "surfaceRaised", "deepWater"})
            QVERIFY2(contrast(under(color(text), bubble), under(color(surface), bubble)) >= 4.5, surface);
    }
    QVERIFY(contrast(under(color("accentInk"), bubble), under(color("accent"), bubble)) >= 4.5);
}

QTEST_MAIN(AmbienceTest)
#include "tst_Ambience.moc"
