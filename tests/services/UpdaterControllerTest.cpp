// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/UpdaterController.h"

#include "platform/network/QtUpdateNetwork.h"
#include "services/Appcast.h"
#include "services/PreferenceKeys.h"
#include "services/UpdateUserInterface.h"
#include "support/LocalHttpServer.h"
#include "support/TempSettings.h"
#include "support/UpdateSigning.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

// Answers the updater's questions in code and records what the user would have seen.
class RecordingUpdateInterface : public UpdateUserInterface {
public:
    Choice answer = Choice::remindLater;
    QStringList upToDateTexts;
    QList<AppcastItem> offered;
    QStringList failures;
    QStringList readyFiles;
    bool readyWasAutomatic = false;
    int progressReports = 0;
    bool downloading = false;

    int outcomes() const
    {
        return upToDateTexts.size() + offered.size() + failures.size() + readyFiles.size();
    }

    void showUpToDate(const QString &name, const QString &version) override
    {
        upToDateTexts << name + QLatin1Char(' ') + version + QStringLiteral(" is the latest version.");
    }
    void askAboutUpdate(const AppcastItem &update, const QString &, const QString &,
        std::function<void(Choice)> onChoice) override
    {
        offered << update;
        onChoice(answer);
    }
    void downloadStarted(const AppcastItem &, std::function<void()>) override { downloading = true; }
    void downloadProgressed(qint64, qint64) override { ++progressReports; }
    void downloadEnded() override { downloading = false; }
    void showDownloadFailed(const QString &message) override { failures << message; }
    void showDownloadReady(const AppcastItem &, const QString &filePath, bool automatic) override
    {
        readyFiles << filePath;
        readyWasAutomatic = automatic;
    }
};

QByteArray appcast(const QByteArray &items)
{
    return R"(<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel>)"
        + items + "</channel></rss>";
}

QByteArray release(const QString &version, const QString &url, qint64 length, const QString &signature)
{
    return QStringLiteral("<item><title>Vantle %1</title><sparkle:version>%1</sparkle:version>"
                          "<description><![CDATA[<ul><li>Faster picking</li></ul>]]></description>"
                          "<enclosure url=\"%2\" length=\"%3\" sparkle:edSignature=\"%4\"/></item>")
        .arg(version, url)
        .arg(length)
        .arg(signature)
        .toUtf8();
}

class UpdaterControllerTest : public ::testing::Test {
protected:
    UpdateBundle bundle(const QString &feedPath = QStringLiteral("/appcast.xml"))
    {
        UpdateBundle b;
        b.name = QStringLiteral("Vantle");
        b.version = QStringLiteral("1.4");
        b.feedUrl = feedPath.isEmpty() ? QString() : server.url(feedPath);
        b.publicKey = keys.publicKey;
        b.downloadFolder = downloads.path();
        b.transferTimeout = 2s;
        return b;
    }
    std::unique_ptr<UpdaterController> makeController(UpdateBundle b)
    {
        return std::make_unique<UpdaterController>(*settings.store, network, ui, std::move(b));
    }
    // The check ends in exactly one thing the user sees.
    void checkAndWait(UpdaterController &controller, int expectedOutcomes = 1)
    {
        controller.checkForUpdates();
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return ui.outcomes() >= expectedOutcomes && controller.canCheckForUpdates(); }, 10000));
    }
    void serveSignedInstaller(const QByteArray &servedBytes, qint64 announcedLength, const QString &signature)
    {
        server.serve(QStringLiteral("/Vantle-2.0.tar.gz"), { 200, servedBytes });
        server.serve(QStringLiteral("/appcast.xml"),
            { 200,
                appcast(release(QStringLiteral("2.0"), server.url(QStringLiteral("/Vantle-2.0.tar.gz")),
                    announcedLength, signature)) });
    }
    QStringList downloadedFiles() const
    {
        return QDir(downloads.path()).entryList(QDir::Files | QDir::Hidden);
    }

    TempSettings settings;
    QTemporaryDir downloads;
    LocalHttpServer server;
    QtUpdateNetwork network;
    RecordingUpdateInterface ui;
    UpdateSigning::KeyPair keys = UpdateSigning::makeKeyPair();
};

} // namespace

TEST_F(UpdaterControllerTest, WithoutAFeedAddressTheBoxShowsAtOnceWithoutNetwork)
{
    for (const QString &address :
        { QString(), QStringLiteral("not an address"), QStringLiteral("ftp://e.org/a") }) {
        ui.upToDateTexts.clear();
        UpdateBundle b = bundle(QString());
        b.feedUrl = address;
        auto controller = makeController(b);
        controller->checkForUpdates();
        EXPECT_EQ(ui.upToDateTexts, QStringList { QStringLiteral("Vantle 1.4 is the latest version.") })
            << address.toStdString();
    }
    QTest::qWait(50);
    EXPECT_EQ(server.requestCount(), 0);
}

TEST_F(UpdaterControllerTest, OnlyAFeedWithAReleaseOpensTheUpdateDialog)
{
    const QByteArray newer = appcast(
        release(QStringLiteral("2.0"), QStringLiteral("https://e.org/v.tgz"), 10, QStringLiteral("c2ln")));
    struct Case {
        const char *what;
        LocalHttpServer::Response response;
        bool offered;
    };
    const Case cases[] = {
        { "release", { 200, newer }, true },
        { "channel without item", { 200, appcast("") }, false },
        { "not modified", { 304, newer }, false },
        { "not found", { 404, newer }, false },
        { "server error", { 500, newer }, false },
        { "empty body", { 200, "" }, false },
        { "not UTF-8", { 200, "<item>\xff\xfe" + newer }, false },
        { "downgrade",
            { 200,
                appcast(release(QStringLiteral("1.3"), QStringLiteral("https://e.org/v.tgz"), 10,
                    QStringLiteral("c2ln"))) },
            false },
        { "malformed XML", { 200, "<item><sparkle:version>9</item></rss>" }, false },
        { "item without attributes", { 200, appcast("<item><title>2.0</title></item>") }, false },
        { "huge body", { 200, newer + QByteArray(5 * 1024 * 1024, ' ') }, false },
        { "redirect loop", { 302, "", "/appcast.xml" }, false },
    };
    for (const Case &c : cases) {
        ui = RecordingUpdateInterface();
        server.serve(QStringLiteral("/appcast.xml"), c.response);
        auto controller = makeController(bundle());
        checkAndWait(*controller);
        EXPECT_EQ(ui.offered.size(), c.offered ? 1 : 0) << c.what;
        EXPECT_EQ(ui.upToDateTexts.size(), c.offered ? 0 : 1) << c.what;
        if (c.offered) {
            EXPECT_EQ(ui.offered[0].version, QStringLiteral("2.0"));
            EXPECT_EQ(ui.offered[0].releaseNotes, QStringLiteral("<ul><li>Faster picking</li></ul>"));
        }
    }
}

TEST_F(UpdaterControllerTest, AStalledServerEndsInTheUpToDateBox)
{
    server.serve(QStringLiteral("/appcast.xml"), { 200, "", "", true });
    UpdateBundle b = bundle();
    b.transferTimeout = 300ms;
    auto controller = makeController(b);
    checkAndWait(*controller);
    EXPECT_EQ(ui.upToDateTexts.size(), 1);
}

TEST_F(UpdaterControllerTest, ACheckDuringAnotherShowsThatOnesOutcome)
{
    server.serve(QStringLiteral("/appcast.xml"), { 200, appcast("") });
    for (const bool background : { false, true }) {
        SCOPED_TRACE(background ? "background check" : "user's check");
        ui = RecordingUpdateInterface();
        const int requests = server.requestCount();
        auto controller = makeController(bundle());
        EXPECT_TRUE(controller->canCheckForUpdates());
        if (background)
            controller->startUpdater();
        else
            controller->checkForUpdates();
        EXPECT_FALSE(controller->canCheckForUpdates());
        controller->checkForUpdates();
        ASSERT_TRUE(QTest::qWaitFor([&] { return controller->canCheckForUpdates(); }, 10000));
        EXPECT_EQ(server.requestCount(), requests + 1);
        EXPECT_EQ(ui.upToDateTexts.size(), 1);
    }

    // During a quiet download the user sees it through, a failure included.
    server.serve(QStringLiteral("/Vantle-2.0.tar.gz"), { 200, "", "", true });
    server.serve(QStringLiteral("/appcast.xml"),
        { 200,
            appcast(release(QStringLiteral("2.0"), server.url(QStringLiteral("/Vantle-2.0.tar.gz")), 5,
                QStringLiteral("c2ln"))) });
    UpdateBundle b = bundle();
    b.transferTimeout = 300ms;
    auto controller = makeController(b);
    controller->startUpdater();
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return server.requestedPaths().contains(QStringLiteral("/Vantle-2.0.tar.gz")); }, 10000));
    controller->checkForUpdates();
    EXPECT_TRUE(ui.downloading);
    ASSERT_TRUE(QTest::qWaitFor([&] { return controller->canCheckForUpdates(); }, 10000));
    EXPECT_FALSE(ui.downloading);
    EXPECT_EQ(ui.failures.size(), 1);
}

TEST_F(UpdaterControllerTest, SkippingRemembersTheVersion)
{
    server.serve(QStringLiteral("/appcast.xml"),
        { 200,
            appcast(release(
                QStringLiteral("2.0"), QStringLiteral("https://e.org/v"), 5, QStringLiteral("c2ln"))) });
    ui.answer = UpdateUserInterface::Choice::skipThisVersion;
    auto controller = makeController(bundle());
    checkAndWait(*controller);
    EXPECT_EQ(settings.store->stringForKey(PreferenceKeys::skippedUpdateVersion), QStringLiteral("2.0"));
}

TEST_F(UpdaterControllerTest, DownloadsAreKeptOnlyWhenLengthAndSignatureMatch)
{
    const QByteArray installer = UpdateSigning::someInstaller(300000);
    const QString signature = UpdateSigning::sign(installer, keys);
    QByteArray tampered = installer;
    tampered[1000] = char(tampered[1000] ^ 0x40);
    struct Case {
        const char *what;
        QByteArray served;
        qint64 announced;
        QString signature;
        bool kept;
    };
    const Case cases[] = {
        { "good", installer, installer.size(), signature, true },
        { "tampered", tampered, installer.size(), signature, false },
        { "longer than announced", installer, installer.size() - 1, signature, false },
        { "truncated", installer.left(200000), installer.size(), signature, false },
        { "signature of other bytes", installer, installer.size(), UpdateSigning::sign("other", keys),
            false },
    };
    for (const Case &c : cases) {
        ui = RecordingUpdateInterface();
        ui.answer = UpdateUserInterface::Choice::download;
        serveSignedInstaller(c.served, c.announced, c.signature);
        auto controller = makeController(bundle());
        checkAndWait(*controller, 2);
        EXPECT_FALSE(ui.downloading) << c.what;
        if (c.kept) {
            ASSERT_EQ(ui.readyFiles.size(), 1) << c.what;
            EXPECT_EQ(ui.readyFiles[0], QDir(downloads.path()).filePath(QStringLiteral("Vantle-2.0.tar.gz")));
            EXPECT_FALSE(ui.readyWasAutomatic);
            QFile file(ui.readyFiles[0]);
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            EXPECT_TRUE(file.readAll() == installer);
            EXPECT_GT(ui.progressReports, 0);
            QFile::remove(ui.readyFiles[0]);
        } else {
            EXPECT_EQ(ui.failures.size(), 1) << c.what;
            EXPECT_TRUE(ui.failures.value(0).contains(QStringLiteral("deleted"))) << c.what;
            EXPECT_TRUE(ui.readyFiles.isEmpty()) << c.what;
            EXPECT_TRUE(downloadedFiles().isEmpty())
                << c.what << " left " << downloadedFiles().join(u',').toStdString();
        }
    }
}

TEST_F(UpdaterControllerTest, WithoutABuiltInKeyNothingIsDownloaded)
{
    const QByteArray installer = UpdateSigning::someInstaller(1000);
    serveSignedInstaller(installer, installer.size(), UpdateSigning::sign(installer, keys));
    ui.answer = UpdateUserInterface::Choice::download;
    UpdateBundle b = bundle();
    b.publicKey.clear();
    auto controller = makeController(b);
    checkAndWait(*controller, 2);
    ASSERT_EQ(ui.failures.size(), 1);
    EXPECT_TRUE(ui.failures[0].contains(QStringLiteral("no key to verify updates")));
    EXPECT_EQ(server.requestedPaths(), QStringList { QStringLiteral("/appcast.xml") });
    EXPECT_TRUE(downloadedFiles().isEmpty());
}

TEST_F(UpdaterControllerTest, AnExistingFileIsNeverOverwritten)
{
    QFile mine(QDir(downloads.path()).filePath(QStringLiteral("Vantle-2.0.tar.gz")));
    ASSERT_TRUE(mine.open(QIODevice::WriteOnly));
    mine.write("my own file");
    mine.close();
    const QByteArray installer = UpdateSigning::someInstaller(5000);
    serveSignedInstaller(installer, installer.size(), UpdateSigning::sign(installer, keys));
    ui.answer = UpdateUserInterface::Choice::download;
    auto controller = makeController(bundle());
    checkAndWait(*controller, 2);
    ASSERT_EQ(ui.readyFiles.size(), 1);
    EXPECT_EQ(QFileInfo(ui.readyFiles[0]).fileName(), QStringLiteral("Vantle-2.0.tar (2).gz"));
    ASSERT_TRUE(mine.open(QIODevice::ReadOnly));
    EXPECT_EQ(mine.readAll(), QByteArray("my own file"));
}

TEST_F(UpdaterControllerTest, AutomaticDownloadsFetchWithoutAskingAtStart)
{
    const QByteArray installer = UpdateSigning::someInstaller(5000);
    serveSignedInstaller(installer, installer.size(), UpdateSigning::sign(installer, keys));
    auto controller = makeController(bundle());
    ASSERT_TRUE(controller->automaticallyDownloadsUpdates());
    controller->startUpdater();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !ui.readyFiles.isEmpty(); }, 10000));
    EXPECT_TRUE(ui.readyWasAutomatic);
    EXPECT_TRUE(ui.offered.isEmpty());
    EXPECT_EQ(ui.progressReports, 0);
}

TEST_F(UpdaterControllerTest, BackgroundChecksOfferWhenNotDownloadingAndStayQuietWhenSkipped)
{
    const QByteArray installer = UpdateSigning::someInstaller(5000);
    serveSignedInstaller(installer, installer.size(), UpdateSigning::sign(installer, keys));
    struct Case {
        bool automatic;
        bool skipped;
        qsizetype offered;
    };
    for (const Case c : { Case { false, false, 1 }, Case { false, true, 0 }, Case { true, true, 0 } }) {
        SCOPED_TRACE(testing::Message() << "automatic " << c.automatic << ", skipped " << c.skipped);
        ui = RecordingUpdateInterface();
        settings.store->setBool(PreferenceKeys::automaticallyUpdate, c.automatic);
        if (c.skipped)
            settings.store->setString(PreferenceKeys::skippedUpdateVersion, QStringLiteral("2.0"));
        const int requests = server.requestCount();
        auto controller = makeController(bundle());
        controller->startUpdater();
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return server.requestCount() == requests + 1 && controller->canCheckForUpdates(); },
            10000));
        QTest::qWait(100);
        EXPECT_EQ(ui.offered.size(), c.offered);
        EXPECT_EQ(ui.outcomes(), c.offered);
        EXPECT_TRUE(downloadedFiles().isEmpty());
    }
}

TEST_F(UpdaterControllerTest, AutomaticDownloadSettingWritesThrough)
{
    {
        auto controller = makeController(bundle(QString()));
        EXPECT_TRUE(controller->automaticallyDownloadsUpdates());
        EXPECT_TRUE(settings.store->hasOwnValue(PreferenceKeys::automaticallyUpdate));
        EXPECT_TRUE(settings.store->boolForKey(PreferenceKeys::automaticallyUpdate));
        controller->setAutomaticallyDownloadsUpdates(false);
        EXPECT_FALSE(settings.reopen()->boolForKey(PreferenceKeys::automaticallyUpdate));
    }
    auto controller = makeController(bundle(QString()));
    EXPECT_FALSE(controller->automaticallyDownloadsUpdates());
}
