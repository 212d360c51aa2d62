#include "app/InstanceLock.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

using namespace norvin;

class tst_InstanceLock final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void onlyOneHolder();
    void endsWithAKilledProcess();
    void withoutAPlaceItIsUnsupported();
};

void tst_InstanceLock::onlyOneHolder() {
    QTemporaryDir directory;
    const QString store = directory.filePath(QStringLiteral("deep/er/NorvinFocus.sqlite"));
    {
        InstanceLock first(store);
        QCOMPARE(first.tryAcquire(), InstanceLock::Outcome::acquired);
        QCOMPARE(first.tryAcquire(), InstanceLock::Outcome::acquired);
        InstanceLock second(store);
        QCOMPARE(second.tryAcquire(), InstanceLock::Outcome::heldByAnother);
    }
    InstanceLock third(store);
    QCOMPARE(third.tryAcquire(), InstanceLock::Outcome::acquired);
    QVERIFY(!QFile::exists(store)); // the store itself is not touched
    QCOMPARE(third.lockFile(), directory.filePath(QStringLiteral("deep/er/NorvinFocus.lock")));
}

void tst_InstanceLock::endsWithAKilledProcess() {
    QTemporaryDir directory;
    const QString store = directory.filePath(QStringLiteral("NorvinFocus.sqlite"));
    std::array<int, 2> ready{};
    QCOMPARE(::pipe(ready.data()), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        InstanceLock lock(store);
        const char held = lock.tryAcquire() == InstanceLock::Outcome::acquired ? 'y' : 'n';
        [[maybe_unused]] const ssize_t written = ::write(ready[1], &held, 1);
        ::pause();
        ::_exit(0);
    }
    char held = 0;
    QCOMPARE(::read(ready[0], &held, 1), 1);
    QCOMPARE(held, 'y');
    InstanceLock lock(store);
    QCOMPARE(lock.tryAcquire(), InstanceLock::Outcome::heldByAnother);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    QCOMPARE(lock.tryAcquire(), InstanceLock::Outcome::acquired);
}

void tst_InstanceLock::withoutAPlaceItIsUnsupported() {
    QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    InstanceLock lock(directory.filePath(QStringLiteral("file/NorvinFocus.sqlite")));
    QCOMPARE(lock.tryAcquire(), InstanceLock::Outcome::unsupported);
}

QTEST_APPLESS_MAIN(tst_InstanceLock)
#include "tst_InstanceLock.moc"
