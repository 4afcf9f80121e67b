// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/DialogUpdateInterface.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDesktopServices>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

// Takes what would otherwise go to the desktop's URL handler (a file manager window).
class UrlCatcher : public QObject {
    Q_OBJECT
public Q_SLOTS:
    void open(const QUrl &url) { urls << url; }

public:
    QList<QUrl> urls;
};

// A file manager on the session bus, as Nautilus, Dolphin and Thunar offer it.
class FakeFileManager : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")
public Q_SLOTS:
    void ShowItems(const QStringList &uris, const QString &startupId)
    {
        Q_UNUSED(startupId);
        shown << uris;
    }

public:
    QStringList shown;
};

struct CaughtUrls {
    CaughtUrls() { QDesktopServices::setUrlHandler(QStringLiteral("file"), &catcher, "open"); }
    ~CaughtUrls() { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    UrlCatcher catcher;
};

const QString downloadedFile = QStringLiteral("/tmp/vantle downloads/Vantle-1.4.tar.gz");

} // namespace

TEST(ShowInFileManager, FileManagerOnTheBusSelectsTheFile)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        GTEST_SKIP() << "no session bus (runs under tests/desktop/x11-session.sh)";
    CaughtUrls caught;
    FakeFileManager fileManager;
    ASSERT_TRUE(bus.registerObject(
        QStringLiteral("/org/freedesktop/FileManager1"), &fileManager, QDBusConnection::ExportAllSlots));
    ASSERT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.FileManager1")));

    DialogUpdateInterface::showInFileManager(downloadedFile);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !fileManager.shown.isEmpty(); }, 10000));
    EXPECT_EQ(fileManager.shown,
        QStringList { QStringLiteral("file:///tmp/vantle%20downloads/Vantle-1.4.tar.gz") });
    EXPECT_TRUE(caught.catcher.urls.isEmpty());

    bus.unregisterService(QStringLiteral("org.freedesktop.FileManager1"));
    bus.unregisterObject(QStringLiteral("/org/freedesktop/FileManager1"));
}

TEST(ShowInFileManager, WithoutAFileManagerTheFolderOpens)
{
    CaughtUrls caught;
    DialogUpdateInterface::showInFileManager(downloadedFile);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !caught.catcher.urls.isEmpty(); }, 10000));
    EXPECT_EQ(
        caught.catcher.urls, QList<QUrl> { QUrl::fromLocalFile(QStringLiteral("/tmp/vantle downloads")) });
}

#include "ShowInFileManagerTest.moc"
