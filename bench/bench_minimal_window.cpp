// Shows a Qt Quick window with nothing in it but a time, as little as any timer shows, says when its first
// frame is on the screen, and ends.

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdio>

int main(int argc, char* argv[]) {
    QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick\n"
                    "Window {\n"
                    "    width: 1200; height: 820; color: '#07070f'; visible: true\n"
                    "    Text { anchors.centerIn: parent; text: '25:00'; color: '#f4f4fa' }\n"
                    "}");
    if (engine.rootObjects().isEmpty())
        return 1;
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    QObject::connect(
        window, &QQuickWindow::frameSwapped, &application,
        [] {
            std::puts("first frame");
            std::fflush(stdout);
            QCoreApplication::quit();
        },
        Qt::QueuedConnection);
    return QCoreApplication::exec();
}
