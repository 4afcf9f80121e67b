// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/XdgAutostartService.h"

#include "services/AtomicFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

// Quotes one Exec argument: inside double quotes, '"', '`', '$' and '\' take a backslash; then
// the whole value is escaped as a desktop-entry string, which doubles every backslash.
QString quotedExecArgument(const QString &argument)
{
    QString quoted;
    for (const QChar c : argument) {
        if (c == u'"' || c == u'`' || c == u'$' || c == u'\\')
            quoted += u'\\';
        quoted += c;
    }
    quoted = QLatin1Char('"') + quoted + QLatin1Char('"');
    quoted.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    // A percent sign is a field code in Exec; a literal one is written twice.
    quoted.replace(QLatin1Char('%'), QStringLiteral("%%"));
    quoted.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
    return quoted;
}

bool isTrue(const QByteArray &value)
{
    return value.trimmed().toLower() == "true";
}

} // namespace

XdgAutostartService::XdgAutostartService(QString entryPath, QString programPath)
    : m_entryPath(std::move(entryPath))
    , m_programPath(std::move(programPath))
{
}

QString XdgAutostartService::standardEntryPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/autostart/vantle.desktop");
}

QString XdgAutostartService::runningProgramPath()
{
    const QString appImage = qEnvironmentVariable("APPIMAGE");
    if (!appImage.isEmpty())
        return appImage;
    return QCoreApplication::applicationFilePath();
}

QByteArray XdgAutostartService::entryText(const QString &programPath)
{
    QByteArray text = "[Desktop Entry]\n"
                      "Type=Application\n"
                      "Name=Vantle\n"
                      "Comment=Colour picker in the system tray\n"
                      "Icon=vantle\n"
                      "Exec=";
    text += quotedExecArgument(programPath).toUtf8();
    text += "\nTerminal=false\n"
            "X-GNOME-Autostart-enabled=true\n";
    return text;
}

bool XdgAutostartService::isEnabled() const
{
    QFile file(m_entryPath);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    bool inDesktopEntry = false;
    // An entry of a few lines; read a bounded amount so a strange file cannot stall a launch.
    const QByteArray text = file.read(64 * 1024);
    for (const QByteArray &rawLine : text.split('\n')) {
        const QByteArray line = rawLine.trimmed();
        if (line.startsWith('[')) {
            inDesktopEntry = line == "[Desktop Entry]";
            continue;
        }
        if (!inDesktopEntry)
            continue;
        const qsizetype eq = line.indexOf('=');
        if (eq < 0)
            continue;
        const QByteArray key = line.left(eq).trimmed();
        const QByteArray value = line.mid(eq + 1);
        if (key == "Hidden" && isTrue(value))
            return false;
        if (key == "X-GNOME-Autostart-enabled" && value.trimmed().toLower() == "false")
            return false;
    }
    return true;
}

bool XdgAutostartService::registerItem()
{
    if (!QDir().mkpath(QFileInfo(m_entryPath).absolutePath()))
        return false;
    // A failed write leaves no empty entry behind, which would read as enabled.
    return !writeFileAtomically(m_entryPath, entryText(m_programPath)) && isEnabled();
}

bool XdgAutostartService::unregisterItem()
{
    if (!QFile::exists(m_entryPath))
        return true;
    return QFile::remove(m_entryPath);
}
