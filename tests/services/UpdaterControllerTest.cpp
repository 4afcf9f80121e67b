// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/UpdaterController.h"

#include "platform/network/QtUpdateNetwork.h"
#include "services/PreferenceKeys.h"
#include "support/Fakes.h"
#include "support/LocalHttpServer.h"
#include "support/TempSettings.h"
#include "support/UpdateSigning.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using Choice = UpdateUserInterface::Choice;
using UpdateSigning::appcast, UpdateSigning::appcastItem;

namespace {

class UpdaterControllerTest : public ::testing::Test {
protected:
    std::unique_ptr<UpdaterController> makeController(std::optional<QString> feedUrl = std::nullopt)
    {
        return std::make_unique<UpdaterController>(*settings.store, network, ui,
            UpdateBundle { .name = QStringLiteral("Vantle"),
                .version = QStringLiteral("1.4"),
                .feedUrl = feedUrl.value_or(server.url(QStringLiteral("/appcast.xml"))),
                .publicKey = keys.publicKey,
                .downloadFolder = downloads.path(),
                .transferTimeout = 1s });
    }
    // A check ends in exactly one thing the user sees (two when a download follows the offer).
    void checkAndWait(UpdaterController &controller, int expectedOutcomes = 1)
    {
        controller.checkForUpdates();
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return ui.outcomes() >= expectedOutcomes && controller.canCheckForUpdates(); }, 10000));
    }
    void serveRelease(const QByteArray &served)
    {
        server.serve(QStringLiteral("/Vantle-2.0.tar.gz"), { 200, served });
        const QByteArray url = server.url(QStringLiteral("/Vantle-2.0.tar.gz")).toUtf8();
        server.serve(QStringLiteral("/appcast.xml"),
            { 200,
                appcast(appcastItem(
                    "2.0", url, installer.size(), UpdateSigning::sign(installer, keys).toUtf8())) });
    }

    TempSettings settings;
    QTemporaryDir downloads;
    LocalHttpServer server;
    QtUpdateNetwork network;
    FakeUpdateInterface ui;
    UpdateSigning::KeyPair keys = UpdateSigning::makeKeyPair();
    const QByteArray installer = UpdateSigning::someInstaller(300000);
};

} // namespace

TEST_F(UpdaterControllerTest, WithoutAFeedAddressTheBoxShowsAtOnceWithoutNetwork)
{
    for (const QString &address :
        { QString(), QStringLiteral("not an address"), QStringLiteral("ftp://e.org/a") })
        makeController(address)->checkForUpdates();
    EXPECT_EQ(ui.upToDateTexts, QStringList(3, QStringLiteral("Vantle 1.4")));
    EXPECT_EQ(server.requestCount(), 0);
}

// Which feeds hold a release is AppcastTest's; here, what the transfer can do to a check.
TEST_F(UpdaterControllerTest, OnlyAFeedWithANewerReleaseOpensTheUpdateDialog)
{
    const QByteArray newer = appcast(appcastItem("2.0"));
    struct Case {
        const char *what;
        LocalHttpServer::Response response;
        bool offered;
    };
    const Case cases[] = {
        { "release", { 200, newer }, true },
        { "not modified", { 304, newer }, false },
        { "huge body", { 200, newer + QByteArray(5 * 1024 * 1024, ' ') }, false },
        { "redirect loop", { 302, "", "/appcast.xml" }, false },
        { "stalled server", { 200, "", "", true }, false },
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        ui = FakeUpdateInterface();
        server.serve(QStringLiteral("/appcast.xml"), c.response);
        checkAndWait(*makeController());
        EXPECT_EQ(ui.offered.size(), c.offered ? 1 : 0);
        EXPECT_EQ(ui.upToDateTexts.size(), c.offered ? 0 : 1);
        EXPECT_EQ(ui.offered.value(0).releaseNotes, c.offered ? u"<p>Notes 2.0</p>" : u"");
    }
}

// Which signatures pass is UpdateSignatureTest's table; here, that the verdict is obeyed.
TEST_F(UpdaterControllerTest, ADownloadIsKeptOnlyWhenVerifiedAndNeverOverwritesAFile)
{
    QFile mine(QDir(downloads.path()).filePath(QStringLiteral("Vantle-2.0.tar.gz")));
    ASSERT_TRUE(mine.open(QIODevice::WriteOnly) && mine.write("my own file"));
    mine.close();
    QByteArray tampered = installer;
    tampered[1000] = char(tampered[1000] ^ 0x40);
    for (const QByteArray &served : { installer, tampered }) {
        const bool kept = served == installer;
        SCOPED_TRACE(kept ? "good" : "tampered");
        ui = FakeUpdateInterface();
        ui.answer = Choice::download;
        serveRelease(served);
        checkAndWait(*makeController(), 2);
        EXPECT_FALSE(ui.downloading);
        EXPECT_EQ(ui.readyFiles.size(), kept ? 1 : 0);
        EXPECT_EQ(ui.failures.size(), kept ? 0 : 1);
        const QStringList files = QDir(downloads.path()).entryList(QDir::Files | QDir::Hidden);
        EXPECT_EQ(files.size(), kept ? 2 : 1) << files.join(u',').toStdString();
        if (kept) {
            EXPECT_EQ(QFileInfo(ui.readyFiles[0]).fileName(), QStringLiteral("Vantle-2.0.tar (2).gz"));
            EXPECT_FALSE(ui.readyWasAutomatic);
            EXPECT_GT(ui.progressReports, 0);
            QFile file(ui.readyFiles[0]);
            EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.readAll() == installer);
            QFile::remove(ui.readyFiles[0]);
        }
    }
    ASSERT_TRUE(mine.open(QIODevice::ReadOnly));
    EXPECT_EQ(mine.readAll(), QByteArray("my own file"));
}

TEST_F(UpdaterControllerTest, BackgroundChecksDownloadOrOfferAndStayQuietWhenSkipped)
{
    serveRelease(installer);
    const struct {
        std::optional<bool> automatic; // none: never set, which means on
        bool skipped;
        qsizetype offered, ready;
    } cases[] = { { std::nullopt, false, 0, 1 }, { false, false, 1, 0 }, { false, true, 0, 0 },
        { true, true, 0, 0 } };
    for (const auto &c : cases) {
        SCOPED_TRACE(
            testing::Message() << "automatic " << c.automatic.value_or(-1) << ", skipped " << c.skipped);
        ui = FakeUpdateInterface();
        if (c.automatic)
            settings.store->setBool(PreferenceKeys::automaticallyUpdate, *c.automatic);
        if (c.skipped)
            settings.store->setString(PreferenceKeys::skippedUpdateVersion, QStringLiteral("2.0"));
        auto controller = makeController();
        EXPECT_EQ(controller->automaticallyDownloadsUpdates(), c.automatic.value_or(true));
        controller->startUpdater();
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return ui.readyFiles.size() == c.ready && controller->canCheckForUpdates(); }, 10000));
        QTest::qWait(100);
        EXPECT_EQ(ui.offered.size(), c.offered);
        EXPECT_EQ(ui.outcomes(), c.offered + c.ready);
        EXPECT_EQ(ui.progressReports, 0);
        EXPECT_EQ(ui.readyWasAutomatic, c.ready > 0);
        for (const QString &file : ui.readyFiles)
            QFile::remove(file);
    }
}
