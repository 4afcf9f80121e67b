// SPDX-License-Identifier: GPL-3.0-or-later
// The autostart entry: any file found at its place is read without trouble, and the entry we
// write for any program path reads back as enabled and starts exactly that path.
#include "FuzzCheck.h"

#include "services/XdgAutostartService.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

// The Exec value back to its one argument: desktop-entry string escapes first, then the
// quoting rules of the Exec key, then "%%" for a literal percent sign.
QString execArgument(const QByteArray &entry)
{
    QString exec, unescaped, argument;
    for (const QByteArray &line : entry.split('\n'))
        exec = line.startsWith("Exec=") ? QString::fromUtf8(line.mid(5)) : exec;
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar next = exec[i] == u'\\' && i + 1 < exec.size() ? exec[++i] : QChar();
        unescaped += next.isNull() ? exec[i]
            : next == u'n'         ? QChar(u'\n')
            : next == u's'         ? QChar(u' ')
                                   : next;
    }
    FUZZ_CHECK(unescaped.size() >= 2 && unescaped.startsWith(u'"') && unescaped.endsWith(u'"'));
    for (qsizetype i = 1; i + 1 < unescaped.size(); ++i) {
        if (i + 2 < unescaped.size()
            && (unescaped[i] == u'\\' || (unescaped[i] == u'%' && unescaped[i + 1] == u'%')))
            ++i;
        argument += unescaped[i];
    }
    return argument;
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size());
}

} // namespace

void fuzzOne(const QByteArray &bytes)
{
    static QTemporaryDir folder;
    const QString entryPath = folder.filePath(QStringLiteral("vantle.desktop"));

    // A file someone else wrote.
    writeFile(entryPath, bytes);
    XdgAutostartService found(entryPath, QString());
    (void)found.isEnabled();

    // Our own entry for the input taken as a program path. A NUL byte cannot be part of a path.
    const QString programPath = QString::fromUtf8(bytes).remove(QChar(0));
    if (programPath.contains(QChar(0xFFFD)))
        return; // not a path the program can have been started from
    const QByteArray entry = XdgAutostartService::entryText(programPath);
    writeFile(entryPath, entry);
    FUZZ_CHECK(found.isEnabled() || entry.size() > 64 * 1024);
    FUZZ_CHECK(execArgument(entry) == programPath);
}
