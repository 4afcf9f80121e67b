// SPDX-License-Identifier: GPL-3.0-or-later
// Shows one settings page or update dialog on a real display, for screenshots of what a person
// sees: settings-showcase general|about|more|update|progress|ready [--dark]
#include "history/ColorListViewModel.h"
#include "hotkeys/GlobalShortcutBackend.h"
#include "hotkeys/HotkeyManager.h"
#include "platform/network/QtUpdateNetwork.h"
#include "screens/DialogUpdateInterface.h"
#include "screens/SettingsView.h"
#include "screens/SettingsWindow.h"
#include "services/Appcast.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"
#include "services/UpdaterController.h"
#include "support/Fakes.h"

#include <QApplication>
#include <QStyleFactory>
#include <QTemporaryDir>

namespace {
QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x2B, 0x2B, 0x2D));
    palette.setColor(QPalette::WindowText, QColor(0xEE, 0xEE, 0xEE));
    palette.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x20));
    palette.setColor(QPalette::AlternateBase, QColor(0x33, 0x33, 0x36));
    palette.setColor(QPalette::Text, QColor(0xEE, 0xEE, 0xEE));
    palette.setColor(QPalette::Button, QColor(0x3A, 0x3A, 0x3D));
    palette.setColor(QPalette::ButtonText, QColor(0xEE, 0xEE, 0xEE));
    palette.setColor(QPalette::Highlight, QColor(0xFF, 0x95, 0x00));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    return palette;
}
} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    const QString what = args.value(1, QStringLiteral("general"));
    if (args.contains(QStringLiteral("--dark"))) {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        QApplication::setPalette(darkPalette());
    }

    QTemporaryDir dir;
    SettingsStore store(dir.filePath(QStringLiteral("Vantle.conf")));
    SettingsViewModel::registerDefaults(store);
    store.setInteger(QStringLiteral("pickKeyCode"), 8);
    store.setInteger(QStringLiteral("pickModifiers"), 655360);
    store.setString(QStringLiteral("pickKeyChar"), QStringLiteral("C"));
    FakeScreenColorSampler sampler;
    FakeClipboard clipboard;
    FakeCopyConfirmation confirmation;
    FakeExportDialogs exportDialogs;
    ColorListViewModel model(store, sampler, clipboard, confirmation, exportDialogs);
    NullShortcutBackend backend;
    HotkeyManager hotkeys(store, backend);
    FakeLoginItemService loginItems;
    loginItems.enabled = true;
    QtUpdateNetwork network;
    DialogUpdateInterface updateInterface;
    UpdaterController updater(store, network, updateInterface);
    SettingsWindow window(store, hotkeys, loginItems, updater, &model);

    AppcastItem update;
    update.version = QStringLiteral("142");
    update.displayVersion = QStringLiteral("1.4");
    update.title = QStringLiteral("Vantle 1.4");
    update.releaseNotes = QStringLiteral(
        "<h3>What's new</h3><ul><li>Pick colours on every monitor, also at fractional scaling.</li>"
        "<li>Export the palette as JSON.</li><li>Fixed: the history limit could forget pinned "
        "colours.</li></ul>"
        "<p style=\"font-size:1px\">hidden text from a hostile feed</p><img "
        "src=\"https://example.com/track.png\">");

    if (what == QLatin1String("update")) {
        updateInterface.askAboutUpdate(
            update, QStringLiteral("Vantle"), QStringLiteral("1.0"), [&](auto) { app.quit(); });
    } else if (what == QLatin1String("progress")) {
        updateInterface.downloadStarted(update, [] {});
        updateInterface.downloadProgressed(3'400'000, 9'100'000);
    } else if (what == QLatin1String("ready")) {
        updateInterface.showDownloadReady(
            update, QStringLiteral("/home/user/Downloads/Vantle-1.4.tar.gz"), false);
    } else {
        window.open();
        window.view()->setSelectedTab(what == QLatin1String("about") ? SettingsView::aboutTab
                : what == QLatin1String("more")                      ? SettingsView::moreTab
                                                                     : SettingsView::generalTab);
    }
    return app.exec();
}
