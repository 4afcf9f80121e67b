// SPDX-License-Identifier: GPL-3.0-or-later
// The floor for start-up and footprint: the least a Qt 6 Widgets program does to put an icon
// in the system tray — an application object, one icon drawn in memory, a tray icon, the event
// loop. Vantle's start, memory and idle figures are read against this program's, measured on
// the same X server in the same run.
#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QSystemTrayIcon>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QPixmap pixmap(44, 44);
    pixmap.fill(Qt::transparent);
    {
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(QColor(0x2a, 0x7a, 0xe2));
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(QRectF(6, 6, 32, 32));
    }
    QSystemTrayIcon icon { QIcon(pixmap) };
    icon.show();
    return QApplication::exec();
}
