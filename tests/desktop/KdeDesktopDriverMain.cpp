// SPDX-License-Identifier: GPL-3.0-or-later
// The Wayland half of tests/desktop/kde-driver.py, a person at the KDE Plasma desktop: keys,
// pointer moves and clicks through KWin's org_kde_kwin_fake_input, and a program to paste into
// (foot divides by the output's size in inches, which KWin's virtual output reports as -1 mm: it
// dies at start).
//   kde_desktop_driver key COMBO | move X Y | click | paste-target FILE
#include "fake-input-client-protocol.h"

#include <QClipboard>
#include <QDBusConnection>
#include <QFile>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QRasterWindow>

#include <cstring>
#include <linux/input-event-codes.h>
#include <string_view>
#include <thread>
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
    if (args.value(0) == u"key" && args.size() == 2) {
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
    } else if (args.value(0) == u"move" && args.size() == 3) {
        org_kde_kwin_fake_input_pointer_motion_absolute(
            input, wl_fixed_from_int(args[1].toInt()), wl_fixed_from_int(args[2].toInt()));
    } else if (args.value(0) == u"click") {
        org_kde_kwin_fake_input_button(input, BTN_LEFT, WL_POINTER_BUTTON_STATE_PRESSED);
        settle();
        org_kde_kwin_fake_input_button(input, BTN_LEFT, WL_POINTER_BUTTON_STATE_RELEASED);
    } else {
        err << "kde_desktop_driver: unknown verb " << args.value(0) << Qt::endl;
        return 2;
    }
    settle();
    return 0; // the connection ends with the process
}

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
    return fakeInput(app.arguments().mid(1));
}

#include "KdeDesktopDriverMain.moc"
