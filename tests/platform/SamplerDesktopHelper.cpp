// Helpers for the sampler's desktop test, run under a private X server:
//   target X Y W H COLOR_LEFT COLOR_RIGHT FILE   a window split into two colours at an exact
//                                                position; every button press that reaches it
//                                                is appended to FILE; prints "ready" once shown
//   wait-grab SECONDS                            exits 0 once another client holds the pointer grab
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMouseEvent>
#include <QPainter>
#include <QTextStream>
#include <QThread>
#include <QWidget>
#include <QtGui/qguiapplication_platform.h>
#include <xcb/xcb.h>

#include <cstdio>
#include <cstdlib>

namespace {

class Target : public QWidget {
public:
    Target(QColor left, QColor right, QString file)
        : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint)
        , m_left(left)
        , m_right(right)
        , m_file(std::move(file))
    {
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(QRect(0, 0, width() / 2, height()), m_left);
        painter.fillRect(QRect(width() / 2, 0, width() - width() / 2, height()), m_right);
        if (!m_announced) {
            m_announced = true;
            std::printf("ready\n");
            std::fflush(stdout);
        }
    }
    void mousePressEvent(QMouseEvent *event) override
    {
        QFile file(m_file);
        if (file.open(QIODevice::Append))
            QTextStream(&file) << "press " << event->position().x() << ' ' << event->position().y() << '\n';
    }

private:
    QColor m_left, m_right;
    QString m_file;
    bool m_announced = false;
};

// Another client's pointer grab shows as AlreadyGrabbed when we try one ourselves.
int waitForGrab(double seconds)
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < seconds * 1000) {
        xcb_grab_pointer_reply_t *reply = xcb_grab_pointer_reply(
            connection,
            xcb_grab_pointer(connection, 0, root, 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE,
                             XCB_CURRENT_TIME),
            nullptr);
        const bool heldElsewhere = reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
        std::free(reply);
        if (heldElsewhere) {
            xcb_disconnect(connection);
            return 0;
        }
        xcb_ungrab_pointer(connection, XCB_CURRENT_TIME);
        xcb_flush(connection);
        QThread::msleep(20);
    }
    xcb_disconnect(connection);
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 3 && QByteArray(argv[1]) == "wait-grab")
        return waitForGrab(std::atof(argv[2]));
    if (argc != 9 || QByteArray(argv[1]) != "target") {
        std::fprintf(stderr, "usage: %s target X Y W H LEFT RIGHT FILE | wait-grab SECONDS\n", argv[0]);
        return 2;
    }
    QApplication app(argc, argv);
    Target target(QColor(QString::fromLatin1(argv[6])), QColor(QString::fromLatin1(argv[7])),
                  QString::fromLocal8Bit(argv[8]));
    target.setGeometry(std::atoi(argv[2]), std::atoi(argv[3]), std::atoi(argv[4]), std::atoi(argv[5]));
    target.show();
    return app.exec();
}
