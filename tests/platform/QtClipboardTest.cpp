// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

namespace {

// Reads the clipboard as another program does; the event loop keeps running meanwhile, since
// our process has to answer the request.
QString readWithXclip(const char *selection)
{
    QProcess xclip;
    xclip.start(QStringLiteral("xclip"),
        { QStringLiteral("-o"), QStringLiteral("-selection"), QString::fromLatin1(selection) });
    [&] { QTRY_VERIFY_WITH_TIMEOUT(xclip.state() == QProcess::NotRunning, 10000); }();
    return QString::fromUtf8(xclip.readAllStandardOutput());
}

TEST(QtClipboard, ReplacesTheClipboardTextOnly)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("selection sentinel"), QClipboard::Selection);
    QtClipboard clipboard(false);
    for (const QString &text : { QStringLiteral("#FF6B36"), QStringLiteral("rgb(255, 107, 54)") }) {
        EXPECT_TRUE(clipboard.setText(text));
        EXPECT_EQ(QGuiApplication::clipboard()->text(QClipboard::Clipboard), text);
        if (QGuiApplication::platformName() == u"xcb") {
            EXPECT_EQ(readWithXclip("clipboard"), text); // the second copy replaces the first
        }
    }
    if (QGuiApplication::clipboard()->supportsSelection()) {
        EXPECT_EQ(QGuiApplication::clipboard()->text(QClipboard::Selection), u"selection sentinel");
    }
}

} // namespace
