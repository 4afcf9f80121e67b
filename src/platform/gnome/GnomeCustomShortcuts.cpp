// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/gnome/GnomeCustomShortcuts.h"

#include "hotkeys/KeyCodes.h"
#include "platform/LoadedModule.h"
#include "platform/gnome/GnomeKeybindings.h"

#include <QLoggingCategory>
#include <QRegularExpression>

namespace {

Q_LOGGING_CATEGORY(lcShortcuts, "vantle.shortcuts", QtWarningMsg)

constexpr char entryFolder[] = "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/";

// Our shortcuts by the names HotkeyManager gives them: where each lives and what it runs.
struct Place {
    const char *name, *entry, *subcommand;
};
constexpr Place places[] = { { "pick", "vantle-pick/", "pick" }, { "popover", "vantle-toggle/", "toggle" } };

const Place *placeFor(const QString &name)
{
    for (const Place &place : places)
        if (name == QLatin1String(place.name))
            return &place;
    return nullptr;
}

} // namespace

QString gnomeAccelerator(qint64 keyCode, qint64 modifiers)
{
    const QString key = KeyCodes::keysymNameForKeyCode(keyCode);
    if (key.isEmpty() || !KeyCodes::isShortcutSet(keyCode, modifiers))
        return {};
    QString accelerator;
    for (const auto &[flag, word] :
        { std::pair { KeyCodes::controlFlag, "<Control>" }, { KeyCodes::optionFlag, "<Alt>" },
            { KeyCodes::shiftFlag, "<Shift>" }, { KeyCodes::commandFlag, "<Super>" } })
        if (modifiers & flag)
            accelerator += QLatin1String(word);
    return accelerator + key;
}

QString gnomeShortcutCommand(const QString &programPath, const QString &subcommand)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_./+-]+$"));
    QString program = programPath;
    // Anything else goes in single quotes, a single quote in it as '\''.
    if (!plain.match(programPath).hasMatch())
        program = QLatin1Char('\'') + QString(programPath).replace(u'\'', QLatin1String("'\\''"))
            + QLatin1Char('\'');
    return program + QLatin1Char(' ') + subcommand;
}

GnomeCustomShortcuts::GnomeCustomShortcuts(const QString &programPath, QObject *parent)
    : GlobalShortcutBackend(parent)
    , m_programPath(programPath)
{
    QString error;
    auto open = reinterpret_cast<OpenGnomeKeybindings>(
        loadedModuleEntry("vantle-gnome.so", "vantleOpenGnomeKeybindings", &error));
    if (!open)
        qCWarning(lcShortcuts).noquote() << "the GNOME part of Vantle cannot be loaded (" + error
                + "): no global shortcuts. Reinstalling Vantle puts it back.";
    else if (m_settings.reset(open()); !m_settings)
        qCWarning(lcShortcuts) << "GNOME's custom shortcut schemas are not installed: no global shortcuts";
}

GnomeCustomShortcuts::~GnomeCustomShortcuts()
{
    while (!m_entries.isEmpty())
        unregisterShortcut(m_entries.constFirst().shortcut.id);
    if (m_settings)
        m_settings->sync();
}

void GnomeCustomShortcuts::registerShortcut(const GlobalShortcut &shortcut)
{
    const Place *place = placeFor(shortcut.name);
    const QString binding = gnomeAccelerator(shortcut.keyCode, shortcut.modifiers);
    if (!m_settings || !place || binding.isEmpty())
        return;
    unregisterShortcut(shortcut.id);
    // The first registration of a combination keeps it, as on every other desktop.
    for (const Entry &other : std::as_const(m_entries))
        if (other.shortcut.keyCode == shortcut.keyCode && other.shortcut.modifiers == shortcut.modifiers)
            return;
    const QString path = QLatin1String(entryFolder) + QLatin1String(place->entry);
    m_settings->setEntry(path, QStringLiteral("Vantle: %1").arg(shortcut.description),
        gnomeShortcutCommand(m_programPath, QLatin1String(place->subcommand)), binding);
    setListed(path, true);
    m_entries.append({ shortcut, path });
    qCInfo(lcShortcuts) << "GNOME custom shortcut" << binding << "runs" << place->subcommand;
}

void GnomeCustomShortcuts::unregisterShortcut(int id)
{
    const auto found = std::find_if(
        m_entries.cbegin(), m_entries.cend(), [id](const Entry &e) { return e.shortcut.id == id; });
    if (found == m_entries.cend())
        return;
    const QString path = found->path;
    m_entries.erase(found);
    setListed(path, false);
    m_settings->resetEntry(path);
}

void GnomeCustomShortcuts::setListed(const QString &path, bool isListed)
{
    // Read afresh: the person may have added shortcuts of their own since the last change.
    QStringList list = m_settings->listedPaths();
    if (list.contains(path) == isListed)
        return;
    if (isListed)
        list << path;
    else
        list.removeAll(path);
    m_settings->setListedPaths(list);
}
