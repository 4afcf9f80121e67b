// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DesktopSession.h"

#include <gtest/gtest.h>

TEST(DesktopSession, ChoosesEveryBackendByOverrideThenSession)
{
    using S = SamplerBackend;
    using C = ClipboardBackend;
    using K = ShortcutBackend;
    constexpr bool yes = true, no = false;
    struct Case {
        const char *platform, *sessionType;
        bool hasX11Connection, hasWaylandDisplay;
        const char *samplerOverride, *clipboardOverride, *shortcutsOverride;
        BackendChoice expected;
        const char *desktop = "";
    } cases[] = {
        { "xcb", "x11", yes, no, "", "", "", { S::x11, C::qt, K::x11 } },
        // An X11 session that happens to inherit a stale WAYLAND_DISPLAY.
        { "xcb", "x11", yes, yes, "", "", "", { S::x11, C::qt, K::x11 } },
        { "wayland", "wayland", no, yes, "", "", "", { S::portal, C::dataControl, K::portal } },
        { "wayland", "", no, no, "", "", "", { S::portal, C::dataControl, K::portal } },
        // XWayland: the X root shows nothing of the other clients, and the compositor's
        // clipboard is reached directly rather than through the bridge.
        { "xcb", "wayland", yes, yes, "", "", "", { S::portal, C::dataControl, K::x11 } },
        { "xcb", "wayland", yes, no, "", "", "", { S::portal, C::qt, K::x11 } },
        { "offscreen", "tty", no, no, "", "", "", { S::none, C::qt, K::none } },
        // Forced backends, any case; our own sampler still needs an X connection.
        { "xcb", "x11", yes, no, "portal", "", "", { S::portal, C::qt, K::x11 } },
        { "xcb", "wayland", yes, yes, "X11", "", "", { S::x11, C::dataControl, K::x11 } },
        { "wayland", "wayland", no, yes, "x11", "", "", { S::none, C::dataControl, K::portal } },
        { "xcb", "x11", yes, no, "", " Data-Control ", "", { S::x11, C::dataControl, K::x11 } },
        // Unknown values leave the sampler and the clipboard to the session; shortcuts get none.
        { "wayland", "wayland", no, yes, "bogus", "bogus", "bogus", { S::portal, C::dataControl, K::none } },
        // GNOME on Wayland keeps the shortcuts itself, under XWayland too, where X key grabs
        // see keys only while an X11 window has the focus; its X11 session grabs keys.
        { "xcb", "wayland", yes, yes, "", "", "", { S::portal, C::dataControl, K::gnome }, "GNOME" },
        { "wayland", "wayland", no, yes, "", "", "", { S::portal, C::dataControl, K::gnome },
            "ubuntu:GNOME" },
        { "xcb", "x11", yes, no, "", "", "", { S::x11, C::qt, K::x11 }, "GNOME" },
        { "wayland", "wayland", no, yes, "", "", "", { S::portal, C::dataControl, K::portal },
            "GNOME-Flashback" },
        { "xcb", "wayland", yes, yes, "", "", "x11", { S::portal, C::dataControl, K::x11 }, "GNOME" },
        { "xcb", "x11", yes, no, "", "", "GNOME", { S::x11, C::qt, K::gnome } },
    };
    for (const Case &c : cases) {
        const DesktopSession session { QString::fromLatin1(c.platform), QString::fromLatin1(c.sessionType),
            c.hasX11Connection, c.hasWaylandDisplay, QString::fromLatin1(c.samplerOverride),
            QString::fromLatin1(c.clipboardOverride), QString::fromLatin1(c.shortcutsOverride),
            QString::fromLatin1(c.desktop) };
        const BackendChoice chosen = chooseBackends(session);
        EXPECT_EQ(std::tuple(int(chosen.sampler), int(chosen.clipboard), int(chosen.shortcuts)),
            std::tuple(int(c.expected.sampler), int(c.expected.clipboard), int(c.expected.shortcuts)))
            << "case " << &c - cases;
    }
}

TEST(DesktopSession, RunsOnXWaylandOnlyWhereTheCompositorLeavesNoClipboardWithoutFocus)
{
    constexpr bool yes = true, no = false;
    struct Case {
        StartEnvironment environment;
        const char *expected;
    } cases[] = {
        // isPlatformChosen, hasWaylandDisplay, hasX11Display, offersDataControl
        { { no, yes, yes, no }, "xcb" }, // GNOME: mutter offers no data-control
        { { no, yes, yes, yes }, "" }, // KDE, wlroots: Wayland, with data-control
        { { yes, yes, yes, no }, "" }, // the person chose a platform
        { { no, yes, no, no }, "" }, // no XWayland to run on
        { { no, no, yes, no }, "" }, // X11
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message() << "case " << &c - cases);
        EXPECT_EQ(qtPlatformFor(c.environment), QByteArray(c.expected));
        // The compositor is asked only where its answer decides.
        EXPECT_EQ(c.environment.needsDataControlProbe(), &c == cases || &c == cases + 1);
    }
}
