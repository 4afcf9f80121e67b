#include "platform/ClipboardFactory.h"

#include <gtest/gtest.h>

TEST(ClipboardFactory, ChoosesDataControlWhereFocusIsRequired)
{
    using enum ClipboardBackend;
    struct Case {
        const char *override;
        const char *platform;
        const char *session;
        bool hasWaylandDisplay;
        ClipboardBackend expected;
    } cases[] = {
        { "", "wayland", "wayland", true, dataControl },
        { "", "wayland-egl", "", true, dataControl },
        // XWayland under a Wayland session: the compositor's clipboard, not the bridge.
        { "", "xcb", "wayland", true, dataControl },
        { "", "xcb", "WAYLAND", true, dataControl },
        { "", "xcb", "x11", false, qt },
        // An X11 session that happens to inherit a stale WAYLAND_DISPLAY.
        { "", "xcb", "x11", true, qt },
        { "", "wayland", "", false, dataControl },
        { "", "xcb", "wayland", false, qt },
        { "", "offscreen", "", false, qt },
        { "qt", "wayland", "wayland", true, qt },
        { " Data-Control ", "xcb", "x11", false, dataControl },
        { "bogus", "wayland", "wayland", true, dataControl },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message()
            << c.override << "/" << c.platform << "/" << c.session << "/" << c.hasWaylandDisplay);
        EXPECT_EQ(chooseClipboardBackend(QString::fromLatin1(c.override), QString::fromLatin1(c.platform),
                      QString::fromLatin1(c.session), c.hasWaylandDisplay),
            c.expected);
    }
}
