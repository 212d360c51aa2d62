#include "app/UnixSignals.h"

#include <QSignalSpy>
#include <QTest>

#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

using namespace norvin;

class UnixSignalsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void askToTerminateInsteadOfKilling() {
        UnixSignals signals;
        QSignalSpy requested(&signals, &UnixSignals::terminationRequested);
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
            std::raise(signal);
            QVERIFY(requested.wait());
            requested.clear();
        }
    }

    void outputThatNobodyReadsIsLostAndNothingElse() {
        const UnixSignals signals;
        std::array<int, 2> ends{};
        QCOMPARE(::pipe(ends.data()), 0);
        ::close(ends[0]);
        QCOMPARE(::write(ends[1], "line", 4), ssize_t{-1});
        QCOMPARE(errno, EPIPE);
        ::close(ends[1]);
    }
};

QTEST_GUILESS_MAIN(UnixSignalsTest)
#include "tst_UnixSignals.moc"
