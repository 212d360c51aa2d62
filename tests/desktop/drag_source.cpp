// A window that files are dragged from, as a file manager has one: drag_source FILE...

#include <QBackingStore>
#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QRasterWindow>
#include <QUrl>

namespace {

class Source final : public QRasterWindow {
public:
    explicit Source(const QStringList& files) {
        for (const QString& file : files)
            m_urls.append(QUrl::fromLocalFile(file));
        setTitle(QStringLiteral("drag source"));
        resize(120, 80);
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(QRect({}, size()), Qt::darkCyan); }
    void mouseMoveEvent(QMouseEvent* event) override {
        if (!event->buttons().testFlag(Qt::LeftButton))
            return;
        auto* data = new QMimeData;
        data->setUrls(m_urls);
        auto* drag = new QDrag(this);
        drag->setMimeData(data);
        drag->exec(Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, Qt::CopyAction);
    }

private:
    QList<QUrl> m_urls;
};

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    Source source(QGuiApplication::arguments().mid(1));
    source.show();
    return QGuiApplication::exec();
}
