// SPDX-License-Identifier: GPL-3.0-or-later
// Measures the X11 sampler as the user meets it, on the X server named by DISPLAY:
//   - trigger → loupe mapped: from pick() to the loupe window's MapNotify, seen on a second X
//     connection that listens to the root window (event driven, as another client sees it);
//   - trigger → first frame: from pick() until the loupe's pixels are on the screen;
//   - loupe redraw per pointer move at the largest zoom (median and worst per run): a hotspot
//     move until the new frame has left for the server and the server has answered a round trip;
//   - colour management per pick: the monitor's profile conversion of one picked pixel (the
//     Adobe RGB profile of colord-data on the root window), and building that conversion, which
//     happens when the profile changes, never during a pick; reading every monitor's profile,
//     once after start.
// `sampler_bench RUNS conversion` measures the conversion alone.
// Records each measure's runs through BenchOutput.h.
#include "BenchOutput.h"
#include "platform/x11/X11DisplayProfiles.h"
#include "platform/x11/X11ScreenSampler.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QScreen>
#include <QSocketNotifier>
#include <QTest>
#include <QtGui/qguiapplication_platform.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

// Bright, saturated bands of every hue: a desktop where the loupe's dark label stands out.
class ColourfulScene : public QWidget {
public:
    ColourfulScene()
        : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint)
    {
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        for (int x = 0; x < width(); x += 8)
            for (int y = 0; y < height(); y += 64)
                painter.fillRect(x, y, 8, 64, QColor::fromHsv((x / 8 * 7 + y / 64 * 40) % 360, 150, 255));
    }
};

using bench::median;

bool isDark(xcb_connection_t *connection, xcb_window_t root, QPoint at)
{
    xcb_get_image_reply_t *reply = xcb_get_image_reply(connection,
        xcb_get_image(
            connection, XCB_IMAGE_FORMAT_Z_PIXMAP, root, int16_t(at.x()), int16_t(at.y()), 1, 1, ~0u),
        nullptr);
    if (!reply)
        return false;
    const uint32_t pixel = *reinterpret_cast<const uint32_t *>(xcb_get_image_data(reply));
    std::free(reply);
    return qRed(pixel) < 80 && qGreen(pixel) < 80 && qBlue(pixel) < 80;
}

// Records the conversion's cost per pick and the cost of building it; false without the profile.
bool measureConversion(xcb_connection_t *connection, int runs)
{
    QFile file(QStringLiteral("/usr/share/color/icc/colord/AdobeRGB1998.icc"));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(
            stderr, "sampler bench: no colour profile to convert with (apt-get install colord-data)\n");
        return false;
    }
    const QByteArray profile = file.readAll();
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    xcb_intern_atom_reply_t *atom
        = xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, 12, "_ICC_PROFILE"), nullptr);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, screen->root, atom->atom, XCB_ATOM_CARDINAL, 8,
        uint32_t(profile.size()), profile.constData());
    std::free(atom);
    X11DisplayProfiles profiles(
        connection, screen->root, QSize(screen->width_in_pixels, screen->height_in_pixels));
    std::vector<double> perPick, build, start;
    constexpr int picks = 10000;
    double sink = 0;
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < picks; ++i) {
            const SamplerGeometry::Rgb pixel { (i & 0xff) / 255.0, ((i >> 4) & 0xff) / 255.0, 0.5 };
            sink += profiles.srgbAt(QPoint(i % 100, 10), pixel).red;
        }
        perPick.push_back(clock.nsecsElapsed() / 1e3 / picks);
        clock.start();
        sink += DisplayColorConversion::fromIccProfile(profile).conversion ? 1 : 0;
        build.push_back(clock.nsecsElapsed() / 1e6);
        clock.start();
        sink += X11DisplayProfiles(connection, screen->root, QSize(1, 1)).srgbAt(QPoint(), { 1, 0, 0 }).red;
        start.push_back(clock.nsecsElapsed() / 1e6);
    }
    bench::record(QStringLiteral("pick_colour_conversion"), QStringLiteral("µs"), perPick);
    bench::record(QStringLiteral("colour_profile_build"), QStringLiteral("ms"), build);
    bench::record(QStringLiteral("colour_profiles_start"), QStringLiteral("ms"), start);
    return sink != 0;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const int runs = argc > 1 ? std::atoi(argv[1]) : 15;
    auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11) {
        std::fprintf(stderr, "sampler bench: needs an X server (QT_QPA_PLATFORM=xcb)\n");
        return 1;
    }
    if (argc > 2 && QByteArray(argv[2]) == "conversion")
        return measureConversion(x11->connection(), runs) ? 0 : 1;

    ColourfulScene scene;
    scene.setGeometry(QGuiApplication::primaryScreen()->geometry());
    scene.show();
    if (!QTest::qWaitForWindowExposed(&scene)) {
        std::fprintf(stderr, "sampler bench: the scene window never appeared\n");
        return 1;
    }
    QTest::qWait(200);

    // The outside observer: its own connection, told of every window mapped on the root.
    xcb_connection_t *observer = xcb_connect(nullptr, nullptr);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(observer)).data->root;
    const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(observer, root, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(observer);

    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QPoint hotspot = screen.center();
    xcb_warp_pointer(
        x11->connection(), XCB_NONE, root, 0, 0, 0, 0, int16_t(hotspot.x()), int16_t(hotspot.y()));
    xcb_flush(x11->connection());

    X11ScreenSampler sampler(x11->connection());
    std::vector<double> mapped, firstFrame, redraw, worst;
    QElapsedTimer clock;
    for (int run = 0; run < runs + 1; ++run) { // the first run warms caches and is not counted
        bool done = false;
        double mapMs = -1;
        QSocketNotifier notifier(xcb_get_file_descriptor(observer), QSocketNotifier::Read);
        auto drain = [&] {
            while (xcb_generic_event_t *event = xcb_poll_for_event(observer)) {
                if ((event->response_type & ~0x80) == XCB_MAP_NOTIFY && mapMs < 0
                    && sampler.loupeWindow() != 0
                    && reinterpret_cast<xcb_map_notify_event_t *>(event)->window == sampler.loupeWindow())
                    mapMs = clock.nsecsElapsed() / 1e6;
                std::free(event);
            }
        };
        QObject::connect(&notifier, &QSocketNotifier::activated, drain);
        clock.start();
        sampler.pick(ColorFormat::hex, [&](std::optional<SampledColor>) { done = true; });
        while (mapMs < 0 && clock.elapsed() < 5000) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
            drain();
        }
        // The loupe's label, dark on the bright scene, is on the screen: the first frame is there.
        const int gap = int(18 * QGuiApplication::primaryScreen()->devicePixelRatio());
        const int d = int(132 * QGuiApplication::primaryScreen()->devicePixelRatio());
        const QPoint label(hotspot.x() + 1 + gap + d / 2,
            hotspot.y() + 1 + gap + d + int(8 * QGuiApplication::primaryScreen()->devicePixelRatio()));
        while (!isDark(observer, root, label) && clock.elapsed() < 5000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        const double frameMs = clock.nsecsElapsed() / 1e6;

        // The largest zoom draws the most: wheel notches through the server, as a mouse sends them.
        for (int step = 0; step < 12; ++step) {
            xcb_test_fake_input(observer, XCB_BUTTON_PRESS, 4, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
            xcb_test_fake_input(observer, XCB_BUTTON_RELEASE, 4, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
        }
        xcb_flush(observer);
        QTest::qWait(100);
        std::vector<double> moves;
        for (int i = 0; i < 60; ++i) {
            const QPoint at = hotspot + QPoint((i * 7) % 200 - 100, (i * 13) % 120 - 60);
            QElapsedTimer move;
            move.start();
            sampler.moveHotspot(at);
            QCoreApplication::processEvents();
            free(xcb_get_input_focus_reply(
                x11->connection(), xcb_get_input_focus(x11->connection()), nullptr));
            moves.push_back(move.nsecsElapsed() / 1e6);
        }
        // A right click cancels.
        xcb_test_fake_input(observer, XCB_BUTTON_PRESS, 3, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
        xcb_test_fake_input(observer, XCB_BUTTON_RELEASE, 3, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
        xcb_flush(observer);
        while (!done)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
        xcb_warp_pointer(
            x11->connection(), XCB_NONE, root, 0, 0, 0, 0, int16_t(hotspot.x()), int16_t(hotspot.y()));
        QTest::qWait(50);
        if (run == 0)
            continue;
        mapped.push_back(mapMs);
        firstFrame.push_back(frameMs);
        redraw.push_back(median(moves));
        worst.push_back(*std::max_element(moves.begin(), moves.end()));
    }
    bench::record(QStringLiteral("sampler_loupe_mapped"), QStringLiteral("ms"), mapped);
    bench::record(QStringLiteral("sampler_first_frame"), QStringLiteral("ms"), firstFrame);
    bench::record(QStringLiteral("loupe_redraw"), QStringLiteral("ms"), redraw);
    bench::record(QStringLiteral("loupe_redraw_worst"), QStringLiteral("ms"), worst);
    measureConversion(x11->connection(), runs);
    xcb_disconnect(observer);
    return 0;
}
