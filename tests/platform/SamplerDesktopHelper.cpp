// SPDX-License-Identifier: GPL-3.0-or-later
// Helpers for the sampler's desktop test, run under a private X server:
//   target X Y W H COLOR_LEFT COLOR_RIGHT FILE  a window in two colours; prints "ready" once shown,
//                                               appends each button press that reaches it to FILE
//   wait-grab SECONDS                           exits 0 once another client holds the pointer grab
//   pattern | pattern-hex X Y                   paints the root window with patternAt(x, y) | prints
//                                               patternAt(X, Y) as #RRGGBB
//   check-loupe SHOT HX HY                      exits 0 when the screenshot shows the loupe for
//                                               hotspot (HX, HY), every cell its pattern pixel
//   set-profile INDEX [FILE]                    puts FILE's bytes (none: removes them) on the root
//                                               window as monitor INDEX's colour profile
#include "platform/x11/SamplerGeometry.h"
#include "platform/x11/SamplerLoupe.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMouseEvent>
#include <QPainter>
#include <QThread>
#include <QWidget>
#include <xcb/xcb.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <utility>
#include <vector>

namespace {

// Neighbouring pixels all differ in every channel, and no run of the pattern is uniform, so a
// loupe that shows the wrong pixel, a shifted patch or a blend with what lies beneath fails.
QRgb patternAt(int x, int y)
{
    return qRgb((x * 37 + y * 3) & 0xff, (y * 53 + x * 5) & 0xff, ((x ^ y) * 29 + 17) & 0xff);
}

xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;

// Ends the connection once the server has handled every request.
int disconnect()
{
    free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    xcb_disconnect(connection);
    return 0;
}

// Sets the root window's background to the pattern. X leaves the top byte of a depth-24 pixel
// undefined; like most clients we leave it zero, which is what the sampler reads back.
int paintPattern()
{
    const int width = screen->width_in_pixels;
    const int height = screen->height_in_pixels;
    const xcb_pixmap_t pixmap = xcb_generate_id(connection);
    xcb_create_pixmap(
        connection, screen->root_depth, pixmap, screen->root, uint16_t(width), uint16_t(height));
    const xcb_gcontext_t gc = xcb_generate_id(connection);
    xcb_create_gc(connection, gc, pixmap, 0, nullptr);
    const uint32_t maxBytes = xcb_get_maximum_request_length(connection) * 4 - 64;
    const int bandRows = std::max(1, int(maxBytes / uint32_t(width * 4)));
    std::vector<uint32_t> band;
    for (int top = 0; top < height; top += bandRows) {
        const int rows = std::min(bandRows, height - top);
        band.assign(size_t(width) * rows, 0);
        for (int y = 0; y < rows; ++y)
            for (int x = 0; x < width; ++x)
                band[size_t(y) * width + x] = patternAt(x, top + y) & 0x00ffffffu;
        xcb_put_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, gc, uint16_t(width), uint16_t(rows), 0,
            int16_t(top), 0, screen->root_depth, uint32_t(band.size() * 4),
            reinterpret_cast<const uint8_t *>(band.data()));
    }
    xcb_change_window_attributes(connection, screen->root, XCB_CW_BACK_PIXMAP, &pixmap);
    xcb_clear_area(connection, 0, screen->root, 0, 0, 0, 0);
    return disconnect(); // the root keeps its own reference to the background: it outlives us
}

// The loupe is checked where SamplerLoupe and SamplerGeometry put it (scale 1, default zoom,
// hex text), so only what it shows is under test, not its size or place.
int checkLoupe(const QString &shotFile, const QPoint &hotspot)
{
    const QImage shot = QImage(shotFile).convertToFormat(QImage::Format_RGB32);
    const SamplerLoupe loupe(1);
    const int zoom = SamplerGeometry::defaultZoom;
    const int diameter = loupe.lensDiameter();
    const QSize box = loupe.boxSize(QColor(patternAt(hotspot.x(), hotspot.y())).name().toUpper());
    const QRect place = SamplerGeometry::loupePlacement(shot.rect(), hotspot, box, loupe.gap());
    const QPoint lens = place.topLeft() + QPoint((box.width() - diameter) / 2, 0);
    const QPoint lensCentre = lens + QPoint(diameter / 2, diameter / 2);
    const int half = SamplerGeometry::loupePixelsAcross(diameter, zoom) / 2;
    // The hotspot cell's top-left corner, as the loupe centres it.
    const QPoint hotCell = lens + QPoint((diameter - zoom) / 2, (diameter - zoom) / 2);
    int checked = 0, wrong = 0;
    for (int j = -half; j <= half; ++j) {
        for (int i = -half; i <= half; ++i) {
            const QPoint cell = hotCell + QPoint(i * zoom, j * zoom);
            // Only cells wholly inside the round lens, clear of its rim.
            const QPointF offset = QPointF(cell) + QPointF(zoom / 2.0, zoom / 2.0) - QPointF(lensCentre);
            if (std::hypot(offset.x(), offset.y()) + zoom * 0.75 > diameter / 2.0 - 3)
                continue;
            const QPoint source = hotspot + QPoint(i, j);
            const QRgb expected
                = shot.rect().contains(source) ? patternAt(source.x(), source.y()) : qRgb(0, 0, 0);
            // Past the grid line on the first row and column and clear of the hotspot's frame.
            const QPoint insides[] = { QPoint(3, 3), QPoint(zoom / 2, zoom / 2), QPoint(zoom - 3, zoom - 3) };
            for (const QPoint inside : insides) {
                ++checked;
                const QRgb actual = shot.pixel(cell + inside) | 0xff000000u;
                if (actual != expected && ++wrong == 1)
                    std::printf("cell (%d, %d) shows %s, not %s; ", i, j, qPrintable(QColor(actual).name()),
                        qPrintable(QColor(expected).name()));
            }
        }
    }
    std::printf("%d of %d loupe pixels wrong\n", wrong, checked);
    return wrong == 0 && checked > 0 ? 0 : 1;
}

struct Target : QWidget {
    QColor left, right;
    QString file;
    bool announced = false;

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(QRect(0, 0, width() / 2, height()), left);
        painter.fillRect(QRect(width() / 2, 0, width() - width() / 2, height()), right);
        if (!std::exchange(announced, true)) {
            std::printf("ready\n");
            std::fflush(stdout);
        }
    }
    void mousePressEvent(QMouseEvent *) override
    {
        QFile presses(file);
        if (presses.open(QIODevice::Append))
            presses.write("press\n");
    }
};

// Another client's pointer grab shows as AlreadyGrabbed when we try one ourselves.
int waitForGrab(double seconds)
{
    const xcb_window_t root = screen->root;
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < seconds * 1000) {
        xcb_grab_pointer_reply_t *reply = xcb_grab_pointer_reply(connection,
            xcb_grab_pointer(connection, 0, root, 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_NONE,
                XCB_NONE, XCB_CURRENT_TIME),
            nullptr);
        const bool heldElsewhere = reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
        std::free(reply);
        if (heldElsewhere)
            return 0;
        xcb_ungrab_pointer(connection, XCB_CURRENT_TIME);
        xcb_flush(connection);
        QThread::msleep(20);
    }
    return 1;
}

// What a colour manager does: the profile's bytes on the root window, _ICC_PROFILE for the
// first monitor and _ICC_PROFILE_<INDEX> for the others.
int setProfile(int index, const char *file)
{
    QByteArray bytes;
    if (file) {
        QFile profile(QString::fromLocal8Bit(file));
        if (!profile.open(QIODevice::ReadOnly))
            return 1;
        bytes = profile.readAll();
    }
    const xcb_window_t root = screen->root;
    const QByteArray name
        = index == 0 ? QByteArray("_ICC_PROFILE") : "_ICC_PROFILE_" + QByteArray::number(index);
    xcb_intern_atom_reply_t *atom = xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, uint16_t(name.size()), name.constData()), nullptr);
    if (file)
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, root, atom->atom, XCB_ATOM_CARDINAL, 8,
            uint32_t(bytes.size()), bytes.constData());
    else
        xcb_delete_property(connection, root, atom->atom);
    std::free(atom);
    return disconnect();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 3 && QByteArray(argv[1]) == "wait-grab")
        return waitForGrab(std::atof(argv[2]));
    if ((argc == 3 || argc == 4) && QByteArray(argv[1]) == "set-profile")
        return setProfile(std::atoi(argv[2]), argc == 4 ? argv[3] : nullptr);
    if (argc == 2 && QByteArray(argv[1]) == "pattern")
        return paintPattern();
    if (argc == 4 && QByteArray(argv[1]) == "pattern-hex") {
        std::printf(
            "%s\n", qPrintable(QColor(patternAt(std::atoi(argv[2]), std::atoi(argv[3]))).name().toUpper()));
        return 0;
    }
    if (argc == 5 && QByteArray(argv[1]) == "check-loupe") {
        QGuiApplication app(argc, argv); // fonts, for the size of the loupe's text
        return checkLoupe(QString::fromLocal8Bit(argv[2]), QPoint(std::atoi(argv[3]), std::atoi(argv[4])));
    }
    if (argc != 9 || QByteArray(argv[1]) != "target")
        return 2; // the commands are listed at the top of SamplerDesktopHelper.cpp
    QApplication app(argc, argv);
    Target target;
    target.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
    target.left = QColor(QString::fromLatin1(argv[6]));
    target.right = QColor(QString::fromLatin1(argv[7]));
    target.file = QString::fromLocal8Bit(argv[8]);
    target.setGeometry(std::atoi(argv[2]), std::atoi(argv[3]), std::atoi(argv[4]), std::atoi(argv[5]));
    target.show();
    return app.exec();
}
