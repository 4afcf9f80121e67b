// SPDX-License-Identifier: GPL-3.0-or-later
// A person at a KDE Plasma desktop, for tests inside tests/desktop/kde-session.sh: keys, pointer
// moves and clicks through KWin's org_kde_kwin_fake_input, screenshots through KWin's
// ScreenShot2, the focused window through a KWin script, a stand-in for Plasma's tray watcher
// (org.kde.StatusNotifierWatcher), which lives in the Plasma shell we do not run, and a program
// to paste into: a window of one colour (a known colour to pick) that appends the clipboard's
// text and a newline to FILE at each Ctrl+V or Ctrl+Shift+V, as a terminal pastes. (foot, the
// terminal of the GNOME tests, divides by the output's size in inches, which KWin's virtual
// output reports as -1 mm: it dies at start.)
//   kde_desktop_driver key alt+shift+c | move X Y | click | screenshot FILE | focused [geometry]
//                      | tray-watcher | paste-target FILE #RRGGBB
#include "fake-input-client-protocol.h"

#include <QClipboard>
#include <QCoreApplication>
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
#include <QTextStream>
#include <QTimer>

#include <cstring>
#include <linux/input-event-codes.h>
#include <string_view>
#include <thread>
#include <unistd.h>
#include <wayland-client.h>

namespace {

QTextStream err(stderr);
QTextStream out(stdout);

// Evdev codes of the keys tests press, on KWin's default US layout.
int keyCode(const QString &name)
{
    // The letter rows from KEY_Q, with the codes of the keys between them left out.
    static const std::string_view letters("qwertyuiop____asdfghjkl_____zxcvbnm");
    const QString key = name.toLower();
    if (key.size() == 1 && key[0].isLetter()) {
        const size_t at = letters.find(key[0].toLatin1());
        return at != std::string_view::npos ? KEY_Q + int(at) : -1;
    }
    if (key.size() == 1 && key[0].isDigit())
        return key[0] == u'0' ? KEY_0 : KEY_1 + key[0].digitValue() - 1;
    static const QHash<QString, int> named { { QStringLiteral("ctrl"), KEY_LEFTCTRL },
        { QStringLiteral("shift"), KEY_LEFTSHIFT }, { QStringLiteral("alt"), KEY_LEFTALT },
        { QStringLiteral("super"), KEY_LEFTMETA }, { QStringLiteral("escape"), KEY_ESC },
        { QStringLiteral("return"), KEY_ENTER }, { QStringLiteral("space"), KEY_SPACE },
        { QStringLiteral("tab"), KEY_TAB } };
    return named.value(key, -1);
}

struct FakeInput {
    wl_display *display = nullptr;
    org_kde_kwin_fake_input *input = nullptr;
};

void onGlobal(void *data, wl_registry *registry, uint32_t name, const char *interface, uint32_t version)
{
    auto *fake = static_cast<FakeInput *>(data);
    if (std::strcmp(interface, org_kde_kwin_fake_input_interface.name) == 0 && version >= 4) {
        fake->input = static_cast<org_kde_kwin_fake_input *>(
            wl_registry_bind(registry, name, &org_kde_kwin_fake_input_interface, 4));
    }
}
void onGlobalRemove(void *, wl_registry *, uint32_t) { }
const wl_registry_listener registryListener { onGlobal, onGlobalRemove };

// A hand holds a key some 50 ms, and KWin's picker needs a moment between a move and a click.
void pause()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
}

int fakeInput(const QStringList &args)
{
    FakeInput fake;
    fake.display = wl_display_connect(nullptr);
    if (!fake.display) {
        err << "no Wayland display" << Qt::endl;
        return 1;
    }
    wl_registry *registry = wl_display_get_registry(fake.display);
    wl_registry_add_listener(registry, &registryListener, &fake);
    wl_display_roundtrip(fake.display);
    if (!fake.input) {
        err << "KWin offers no org_kde_kwin_fake_input version 4" << Qt::endl;
        return 1;
    }
    org_kde_kwin_fake_input_authenticate(fake.input, "Vantle tests", "drives the desktop");
    const auto key = [&](int code, wl_keyboard_key_state state) {
        org_kde_kwin_fake_input_keyboard_key(fake.input, code, state);
        wl_display_roundtrip(fake.display);
        pause();
    };
    const QString verb = args.value(0);
    if (verb == QLatin1String("key")) {
        for (const QString &combo : args.mid(1)) {
            QList<int> codes;
            for (const QString &name : combo.split(u'+')) {
                codes << keyCode(name);
                if (codes.last() < 0) {
                    err << "unknown key " << name << Qt::endl;
                    return 2;
                }
            }
            for (int code : codes)
                key(code, WL_KEYBOARD_KEY_STATE_PRESSED);
            for (auto code = codes.crbegin(); code != codes.crend(); ++code)
                key(*code, WL_KEYBOARD_KEY_STATE_RELEASED);
        }
    } else if (verb == QLatin1String("move") && args.size() == 3) {
        org_kde_kwin_fake_input_pointer_motion_absolute(
            fake.input, wl_fixed_from_int(args[1].toInt()), wl_fixed_from_int(args[2].toInt()));
    } else if (verb == QLatin1String("click")) {
        org_kde_kwin_fake_input_button(fake.input, BTN_LEFT, WL_POINTER_BUTTON_STATE_PRESSED);
        wl_display_roundtrip(fake.display);
        pause();
        org_kde_kwin_fake_input_button(fake.input, BTN_LEFT, WL_POINTER_BUTTON_STATE_RELEASED);
    } else {
        return 2;
    }
    wl_display_roundtrip(fake.display);
    pause();
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
    if (reply.type() != QDBusMessage::ReplyMessage) {
        err << "ScreenShot2: " << reply.errorMessage() << Qt::endl;
        return 1;
    }
    const QVariantMap results = qdbus_cast<QVariantMap>(reply.arguments().value(0));
    QFile input;
    input.open(pipe[0], QIODevice::ReadOnly, QFile::AutoCloseHandle);
    QByteArray data = input.readAll();
    const int width = results.value(QStringLiteral("width")).toInt();
    const int height = results.value(QStringLiteral("height")).toInt();
    const int stride = results.value(QStringLiteral("stride")).toInt();
    const auto format = QImage::Format(results.value(QStringLiteral("format")).toInt());
    if (data.size() < qsizetype(stride) * height) {
        err << "ScreenShot2 sent " << data.size() << " bytes" << Qt::endl;
        return 1;
    }
    const QImage image(reinterpret_cast<const uchar *>(data.constData()), width, height, stride, format);
    return image.save(file) ? 0 : 1;
}

// Asks KWin, through a script, about the active window, which it calls back: "CLASS CAPTION",
// or with `geometry` "X Y W H SKIPS_TASKBAR".
class FocusProbe : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.vantle.DesktopDriver")
public Q_SLOTS:
    void focused(const QString &window)
    {
        out << window << Qt::endl;
        QCoreApplication::exit(0);
    }
};

int focused(bool geometry)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    FocusProbe probe;
    bus.registerObject(QStringLiteral("/"), &probe, QDBusConnection::ExportAllSlots);
    QTemporaryFile script;
    script.open();
    const QString describe = geometry
        ? QStringLiteral("[w.x, w.y, w.width, w.height, w.skipTaskbar].join(' ')")
        : QStringLiteral("w.resourceClass + ' ' + w.caption");
    script.write(QStringLiteral("const w = workspace.activeClient;\n"
                                "callDBus('%1', '/', 'org.vantle.DesktopDriver', 'focused', w ? %2 : '');\n")
                     .arg(bus.baseService(), describe)
                     .toUtf8());
    script.close();
    const QString plugin = QStringLiteral("vantle_focus_%1").arg(QCoreApplication::applicationPid());
    const QDBusMessage loaded
        = callKWin(QStringLiteral("/Scripting"), QStringLiteral("org.kde.kwin.Scripting"),
            QStringLiteral("loadScript"), { script.fileName(), plugin });
    if (loaded.arguments().value(0, -1).toInt() < 0) {
        err << "KWin did not load the script: " << loaded.errorMessage() << Qt::endl;
        return 1;
    }
    callKWin(
        QStringLiteral("/Scripting"), QStringLiteral("org.kde.kwin.Scripting"), QStringLiteral("start"), {});
    QTimer::singleShot(10000, [] { QCoreApplication::exit(1); });
    const int status = QCoreApplication::exec();
    callKWin(QStringLiteral("/Scripting"), QStringLiteral("org.kde.kwin.Scripting"),
        QStringLiteral("unloadScript"), { plugin });
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
        const QString item = service.startsWith(u'/') ? message().service() + service : service;
        m_items << item;
        Q_EMIT StatusNotifierItemRegistered(item);
    }
    void RegisterStatusNotifierHost(const QString &) { }
Q_SIGNALS:
    void StatusNotifierItemRegistered(const QString &service);
    void StatusNotifierHostRegistered();

private:
    QStringList m_items;
};

// Its colour changes through org.vantle.PasteTarget.SetColor("#RRGGBB") at / on the session bus.
class PasteTarget : public QRasterWindow {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.vantle.PasteTarget")
public:
    PasteTarget(const QString &file, const QColor &color)
        : m_file(file)
        , m_color(color)
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
        if (event->key() != Qt::Key_V || !(event->modifiers() & Qt::ControlModifier))
            return;
        QFile file(m_file);
        if (file.open(QIODevice::Append))
            file.write(QGuiApplication::clipboard()->text().toUtf8() + '\n');
    }

private:
    QString m_file;
    QColor m_color;
};

} // namespace

int main(int argc, char **argv)
{
    if (argc == 4 && std::strcmp(argv[1], "paste-target") == 0) {
        QGuiApplication::setDesktopFileName(QStringLiteral("paste-target"));
        QGuiApplication app(argc, argv);
        PasteTarget target(QString::fromLocal8Bit(argv[2]), QColor(QString::fromLatin1(argv[3])));
        QDBusConnection::sessionBus().registerObject(
            QStringLiteral("/"), &target, QDBusConnection::ExportAllSlots);
        QDBusConnection::sessionBus().registerService(QStringLiteral("org.vantle.PasteTarget"));
        target.showMaximized();
        return app.exec();
    }
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    const QString verb = args.value(0);
    if (verb == QLatin1String("key") || verb == QLatin1String("move") || verb == QLatin1String("click"))
        return fakeInput(args);
    if (verb == QLatin1String("screenshot") && args.size() == 2)
        return screenshot(args[1]);
    if (verb == QLatin1String("focused"))
        return focused(args.value(1) == QLatin1String("geometry"));
    if (verb == QLatin1String("tray-watcher")) {
        TrayWatcher watcher;
        QDBusConnection bus = QDBusConnection::sessionBus();
        if (!bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), &watcher,
                QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals
                    | QDBusConnection::ExportAllProperties)
            || !bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher")))
            return 1;
        return app.exec();
    }
    err << "usage: kde_desktop_driver key COMBO... | move X Y | click | screenshot FILE | focused | "
           "tray-watcher"
        << Qt::endl;
    return 2;
}

#include "KdeDesktopDriverMain.moc"
