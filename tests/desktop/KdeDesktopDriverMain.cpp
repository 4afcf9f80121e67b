// SPDX-License-Identifier: GPL-3.0-or-later
// A person at the KDE Plasma desktop of tests/desktop/kde-session.sh, the compiled half of
// tests/desktop/kde-driver.sh (which names the verbs): keys, pointer moves and clicks through
// KWin's org_kde_kwin_fake_input, screenshots through KWin's ScreenShot2, windows through a KWin
// script, a stand-in for the tray watcher of the Plasma shell we do not run, and a program to
// paste into (foot divides by the output's size in inches, which KWin's virtual output reports as
// -1 mm: it dies at start).
//   kde_desktop_driver key COMBO | move X Y | click | screenshot FILE | focused | windows
//                      | tray-watcher | paste-target FILE
#include "fake-input-client-protocol.h"

#include <QClipboard>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QRasterWindow>
#include <QTemporaryFile>
#include <QTimer>

#include <cstring>
#include <linux/input-event-codes.h>
#include <string_view>
#include <thread>
#include <unistd.h>
#include <wayland-client.h>

namespace {

QTextStream err(stderr);

// Evdev codes of the keys the checks press, on KWin's default US layout.
int keyCode(const QString &name)
{
    // The letter rows from KEY_Q, with the codes of the keys between them left out.
    static const std::string_view letters("qwertyuiop____asdfghjkl_____zxcvbnm");
    static const QHash<QString, int> named { { QStringLiteral("ctrl"), KEY_LEFTCTRL },
        { QStringLiteral("shift"), KEY_LEFTSHIFT }, { QStringLiteral("alt"), KEY_LEFTALT },
        { QStringLiteral("escape"), KEY_ESC }, { QStringLiteral("return"), KEY_ENTER } };
    const QString key = name.toLower();
    const size_t at = key.size() == 1 ? letters.find(key[0].toLatin1()) : std::string_view::npos;
    return at != std::string_view::npos && key != u"_" ? KEY_Q + int(at) : named.value(key, -1);
}

void onGlobal(void *data, wl_registry *registry, uint32_t name, const char *interface, uint32_t version)
{
    if (std::strcmp(interface, org_kde_kwin_fake_input_interface.name) == 0 && version >= 4) {
        *static_cast<org_kde_kwin_fake_input **>(data) = static_cast<org_kde_kwin_fake_input *>(
            wl_registry_bind(registry, name, &org_kde_kwin_fake_input_interface, 4));
    }
}
void onGlobalRemove(void *, wl_registry *, uint32_t) { }
const wl_registry_listener registryListener { onGlobal, onGlobalRemove };

int fakeInput(const QStringList &args)
{
    wl_display *display = wl_display_connect(nullptr);
    org_kde_kwin_fake_input *input = nullptr;
    if (display) {
        wl_registry_add_listener(wl_display_get_registry(display), &registryListener, &input);
        wl_display_roundtrip(display);
    }
    if (!input) {
        err << "KWin offers no org_kde_kwin_fake_input version 4" << Qt::endl;
        return 1;
    }
    org_kde_kwin_fake_input_authenticate(input, "Vantle tests", "drives the desktop");
    // A hand holds a key some 50 ms, and KWin's picker needs a moment between a move and a click.
    const auto settle = [display] {
        wl_display_roundtrip(display);
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    };
    if (args[0] == u"key" && args.size() == 2) {
        QList<int> codes;
        for (const QString &name : args[1].split(u'+'))
            codes << keyCode(name);
        if (codes.contains(-1))
            return 2;
        for (int code : codes) {
            org_kde_kwin_fake_input_keyboard_key(input, code, WL_KEYBOARD_KEY_STATE_PRESSED);
            settle();
        }
        for (auto code = codes.crbegin(); code != codes.crend(); ++code) {
            org_kde_kwin_fake_input_keyboard_key(input, *code, WL_KEYBOARD_KEY_STATE_RELEASED);
            settle();
        }
    } else if (args[0] == u"move" && args.size() == 3) {
        org_kde_kwin_fake_input_pointer_motion_absolute(
            input, wl_fixed_from_int(args[1].toInt()), wl_fixed_from_int(args[2].toInt()));
    } else if (args[0] == u"click") {
        org_kde_kwin_fake_input_button(input, BTN_LEFT, WL_POINTER_BUTTON_STATE_PRESSED);
        settle();
        org_kde_kwin_fake_input_button(input, BTN_LEFT, WL_POINTER_BUTTON_STATE_RELEASED);
    } else {
        return 2;
    }
    settle();
    return 0; // the connection ends with the process
}

QDBusMessage callKWin(
    const QString &path, const QString &interface, const QString &method, const QVariantList &args)
{
    QDBusMessage call
        = QDBusMessage::createMethodCall(QStringLiteral("org.kde.KWin"), path, interface, method);
    call.setArguments(args);
    return QDBusConnection::sessionBus().call(call, QDBus::Block, 20000);
}

// The whole desktop as KWin composites it, read from the pipe ScreenShot2 writes to.
int screenshot(const QString &file)
{
    int pipe[2];
    if (::pipe(pipe) != 0)
        return 1;
    const QDBusMessage reply = callKWin(QStringLiteral("/org/kde/KWin/ScreenShot2"),
        QStringLiteral("org.kde.KWin.ScreenShot2"), QStringLiteral("CaptureActiveScreen"),
        { QVariantMap { { QStringLiteral("native-resolution"), true } },
            QVariant::fromValue(QDBusUnixFileDescriptor(pipe[1])) });
    ::close(pipe[1]);
    QFile input;
    input.open(pipe[0], QIODevice::ReadOnly, QFile::AutoCloseHandle);
    const QByteArray data = input.readAll();
    const QVariantMap shot = qdbus_cast<QVariantMap>(reply.arguments().value(0));
    const auto value = [&shot](const char *key) { return shot.value(QLatin1String(key)).toInt(); };
    if (reply.type() != QDBusMessage::ReplyMessage
        || data.size() < qsizetype(value("stride")) * value("height")) {
        err << "ScreenShot2: " << reply.errorMessage() << Qt::endl;
        return 1;
    }
    return QImage(reinterpret_cast<const uchar *>(data.constData()), value("width"), value("height"),
               value("stride"), QImage::Format(value("format")))
               .save(file)
        ? 0
        : 1;
}

// A KWin script calls back with "X Y W H SKIPS_TASKBAR CLASS CAPTION" for each window asked about.
class WindowProbe : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.vantle.DesktopDriver")
public Q_SLOTS:
    void windows(const QString &lines)
    {
        QTextStream(stdout) << lines << Qt::endl;
        QCoreApplication::exit(0);
    }
};

int windows(bool focusedOnly)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    WindowProbe probe;
    bus.registerObject(QStringLiteral("/"), &probe, QDBusConnection::ExportAllSlots);
    QTemporaryFile script;
    script.open();
    script.write(QStringLiteral("callDBus('%1', '/', 'org.vantle.DesktopDriver', 'windows', %2.filter(w => w)"
                                ".map(w => [w.x, w.y, w.width, w.height, w.skipTaskbar, w.resourceClass, "
                                "w.caption].join(' ')).join('\\n'));\n")
                     .arg(bus.baseService(),
                         focusedOnly ? QStringLiteral("[workspace.activeClient]")
                                     : QStringLiteral("workspace.clientList()"))
                     .toUtf8());
    script.close();
    const QString scripting = QStringLiteral("org.kde.kwin.Scripting");
    const QString plugin = QStringLiteral("vantle_windows_%1").arg(QCoreApplication::applicationPid());
    if (callKWin(QStringLiteral("/Scripting"), scripting, QStringLiteral("loadScript"),
            { script.fileName(), plugin })
            .arguments()
            .value(0, -1)
            .toInt()
        < 0)
        return 1;
    callKWin(QStringLiteral("/Scripting"), scripting, QStringLiteral("start"), {});
    QTimer::singleShot(10000, [] { QCoreApplication::exit(1); });
    const int status = QCoreApplication::exec();
    callKWin(QStringLiteral("/Scripting"), scripting, QStringLiteral("unloadScript"), { plugin });
    return status;
}

// Plasma's tray watcher as far as a Qt tray icon needs it: a host is present, items register.
class TrayWatcher : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHostRegistered)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)
public:
    bool isHostRegistered() const { return true; }
    int protocolVersion() const { return 0; }
    QStringList items() const { return m_items; }
public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service)
    {
        // Items register by bus name, or by object path on the caller's connection.
        m_items << (service.startsWith(u'/') ? message().service() + service : service);
        Q_EMIT StatusNotifierItemRegistered(m_items.last());
    }
    void RegisterStatusNotifierHost(const QString &) { }
Q_SIGNALS:
    void StatusNotifierItemRegistered(const QString &service);
    void StatusNotifierHostRegistered();

private:
    QStringList m_items;
};

// A maximised window of one colour (the colour to pick, org.vantle.PasteTarget.SetColor) that
// appends the clipboard's text and a newline to its file at each Ctrl+V, as a terminal pastes.
class PasteTarget : public QRasterWindow {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.vantle.PasteTarget")
public:
    explicit PasteTarget(const QString &file)
        : m_file(file)
    {
    }
public Q_SLOTS:
    void SetColor(const QString &color)
    {
        m_color = QColor(color);
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(QRect(QPoint(), size()), m_color); }
    void keyPressEvent(QKeyEvent *event) override
    {
        QFile file(m_file);
        if (event->key() == Qt::Key_V && (event->modifiers() & Qt::ControlModifier)
            && file.open(QIODevice::Append))
            file.write(QGuiApplication::clipboard()->text().toUtf8() + '\n');
    }

private:
    QString m_file;
    QColor m_color = Qt::gray;
};

} // namespace

int main(int argc, char **argv)
{
    if (argc == 3 && std::strcmp(argv[1], "paste-target") == 0) {
        QGuiApplication::setDesktopFileName(QStringLiteral("paste-target"));
        QGuiApplication app(argc, argv);
        PasteTarget target(QString::fromLocal8Bit(argv[2]));
        QDBusConnection::sessionBus().registerObject(
            QStringLiteral("/"), &target, QDBusConnection::ExportAllSlots);
        QDBusConnection::sessionBus().registerService(QStringLiteral("org.vantle.PasteTarget"));
        target.showMaximized();
        return app.exec();
    }
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    const QString verb = args.value(0);
    if (verb == u"key" || verb == u"move" || verb == u"click")
        return fakeInput(args);
    if (verb == u"screenshot" && args.size() == 2)
        return screenshot(args[1]);
    if (verb == u"focused" || verb == u"windows")
        return windows(verb == u"focused");
    if (verb == u"tray-watcher") {
        TrayWatcher watcher;
        QDBusConnection bus = QDBusConnection::sessionBus();
        const bool registered = bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), &watcher,
                                    QDBusConnection::ExportAllContents)
            && bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
        return registered ? app.exec() : 1;
    }
    err << "kde_desktop_driver: unknown verb " << verb << Qt::endl;
    return 2;
}

#include "KdeDesktopDriverMain.moc"
