#include "tests/ui/UiRig.h"

using namespace norvin;

class TickSoundSettingsSheetTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        rig = std::make_unique<UiRig>();
        QVERIFY2(rig->loaded, qPrintable(rig->focus.lines.join(QLatin1Char('\n'))));
        rig->show();
    }
    void cleanup() { rig.reset(); }

    void everythingIsSetByKeyboardAlone();
    void everythingIsSetByPointer();
    void whyNothingIsHeardIsSaid();

private:
    [[nodiscard]] QString focusName() const {
        const QQuickItem* item = rig->window()->activeFocusItem();
        return item ? item->objectName() : QString();
    }
    [[nodiscard]] QQuickItem* visibleItem(const QString& name) const {
        for (QQuickItem* item : rig->visibleItems()) {
            if (item->objectName() == name)
                return item;
        }
        return nullptr;
    }
    [[nodiscard]] bool shows(const QString& text) const {
        const QList<QQuickItem*> items = rig->visibleItems();
        return std::any_of(items.cbegin(), items.cend(), [&text](const QQuickItem* item) {
            return item->property("text").toString() == text;
        });
    }
    void click(const QString& name, double across = 0.5) const {
        const QQuickItem* item = visibleItem(name);
        QVERIFY2(item, qPrintable(name));
        const QPointF place(item->width() * across, item->height() / 2);
        QTest::mouseClick(rig->window(), Qt::LeftButton, {}, item->mapToScene(place).toPoint());
    }
    [[nodiscard]] size_t samplesHeard() const { return rig->audioOutput.played().size(); }
    /// Long enough for what was played to be over.
    void listen() const { rig->focus.clock.advance(std::chrono::seconds(1)); }

    std::unique_ptr<UiRig> rig;
};

void TickSoundSettingsSheetTest::everythingIsSetByKeyboardAlone() {
    const QString before = focusName();
    rig->press(Qt::Key_T, Qt::ControlModifier);
    QTRY_COMPARE(focusName(), QStringLiteral("tickSoundSwitch"));
    rig->press(Qt::Key_Space);
    QVERIFY(!rig->tickSounds.isEnabled());
    rig->press(Qt::Key_Return);
    QVERIFY(rig->tickSounds.isEnabled());
    rig->press(Qt::Key_Space);

    // Every choice is heard, even while ticks are off.
    rig->press(Qt::Key_Tab);
    QCOMPARE(focusName(), QStringLiteral("tickTypes"));
    rig->press(Qt::Key_Up);
    QCOMPARE(samplesHeard(), size_t{0});
    for (int presses = 0; presses < 4; ++presses) {
        rig->press(Qt::Key_Down);
        listen();
    }
    QCOMPARE(rig->tickSounds.selectedType(), TickSoundType::metronome);
    QCOMPARE(samplesHeard(), size_t{3});
    rig->press(Qt::Key_Up);
    listen();
    QCOMPARE(rig->tickSounds.selectedType(), TickSoundType::soft);

    rig->press(Qt::Key_Tab);
    QCOMPARE(focusName(), QStringLiteral("tickVolume"));
    rig->press(Qt::Key_Right);
    listen();
    QCOMPARE(rig->tickSounds.volume(), 0.55);
    QCOMPARE(samplesHeard(), size_t{5});

    rig->press(Qt::Key_Tab);
    QCOMPARE(focusName(), QStringLiteral("tickSample"));
    rig->press(Qt::Key_Space);
    QCOMPARE(samplesHeard(), size_t{6});

    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!shows(qtTrId("tick_sounds_title")));
    QTRY_COMPARE(focusName(), before);
    QCOMPARE(rig->deepWork.state(), QStringLiteral("idle"));
    QCOMPARE(rig->tickSounds.tickCount(), 0);

    rig->press(Qt::Key_T, Qt::ControlModifier);
    QTRY_VERIFY(shows(qtTrId("tick_sounds_volume_value").arg(55)));
}

void TickSoundSettingsSheetTest::everythingIsSetByPointer() {
    click(QStringLiteral("tickSoundsButton"));
    QTRY_VERIFY(visibleItem(QStringLiteral("tickSoundSwitch")));
    QTRY_COMPARE(focusName(), QStringLiteral("tickSoundSwitch"));
    click(QStringLiteral("tickSoundSwitch"));
    QVERIFY(!rig->tickSounds.isEnabled());
    click(QStringLiteral("tickType-digital"));
    QCOMPARE(rig->tickSounds.selectedType(), TickSoundType::digital);
    QCOMPARE(samplesHeard(), size_t{1});
    listen();
    click(QStringLiteral("tickVolume"), 0.0);
    QCOMPARE(rig->tickSounds.volume(), 0.0);
    listen();
    click(QStringLiteral("tickVolume"), 0.99);
    QCOMPARE(rig->tickSounds.volume(), 1.0);
    QCOMPARE(samplesHeard(), size_t{3});
    // A press beside the sheet closes it.
    QTest::mouseClick(rig->window(), Qt::LeftButton, {}, QPoint(20, 400));
    QTRY_VERIFY(!shows(qtTrId("tick_sounds_title")));
}

void TickSoundSettingsSheetTest::whyNothingIsHeardIsSaid() {
    rig->audioOutput.setAvailability(Availability::unavailable(QStringLiteral("health_no_sound_server")));
    rig->press(Qt::Key_T, Qt::ControlModifier);
    const QString problem =
        qtTrId("health_no_sound_server") + QLatin1Char(' ') + qtTrId("health_no_sound_server_remedy");
    QTRY_VERIFY(shows(problem));
    rig->audioOutput.setAvailability(Availability::available());
    QTRY_VERIFY(!shows(problem));
}

QTEST_MAIN(TickSoundSettingsSheetTest)
#include "tst_TickSoundSettingsSheet.moc"
