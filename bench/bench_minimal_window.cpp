// Shows a Qt Quick window with nothing in it but a time, as little as any timer shows. Says when its first
// frame is on the screen, and ends; with the argument "tick" it stays and counts the time down.

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdio>

int main(int argc, char* argv[]) {
    QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData(
        "import QtQuick\n"
        "Window {\n"
        "    width: 1200; height: 820; color: '#07070f'; visible: true\n"
        "    property int left: 1500\n"
        "    Text {\n"
        "        anchors.centerIn: parent; color: '#f4f4fa'\n"
        "        text: Math.floor(left / 60) + ':' + String(left % 60).padStart(2, '0')\n"
        "    }\n"
        "    Timer { running: Qt.application.arguments[1] === 'tick'; repeat: true; onTriggered: --left }\n"
        "}");
    if (engine.rootObjects().isEmpty())
        return 1;
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    QObject::connect(
        window, &QQuickWindow::frameSwapped, &application,
        [] {
            std::puts("first frame");
            std::fflush(stdout);
            if (QCoreApplication::arguments().size() == 1)
                QCoreApplication::quit();
        },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    return QCoreApplication::exec();
}
