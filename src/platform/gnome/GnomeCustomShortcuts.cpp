// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/gnome/GnomeCustomShortcuts.h"

#include "hotkeys/KeyCodes.h"

#include <QLoggingCategory>
#include <QRegularExpression>
#include <gio/gio.h>

namespace {

Q_LOGGING_CATEGORY(lcShortcuts, "vantle.shortcuts", QtWarningMsg)

constexpr char listSchema[] = "org.gnome.settings-daemon.plugins.media-keys";
constexpr char listKey[] = "custom-keybindings";
constexpr char entrySchema[] = "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding";
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

GSettingsSchema *lookUp(const char *id)
{
    GSettingsSchemaSource *source = g_settings_schema_source_get_default();
    return source ? g_settings_schema_source_lookup(source, id, TRUE) : nullptr;
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
    if (!plain.match(programPath).hasMatch()) {
        gchar *quoted = g_shell_quote(programPath.toUtf8().constData());
        program = QString::fromUtf8(quoted);
        g_free(quoted);
    }
    return program + QLatin1Char(' ') + subcommand;
}

GnomeCustomShortcuts::GnomeCustomShortcuts(const QString &programPath, QObject *parent)
    : GlobalShortcutBackend(parent)
    , m_programPath(programPath)
{
    GSettingsSchema *list = lookUp(listSchema);
    GSettingsSchema *entry = lookUp(entrySchema);
    if (list && entry && g_settings_schema_has_key(list, listKey))
        m_list = g_settings_new_full(list, nullptr, nullptr);
    else
        qCWarning(lcShortcuts) << "GNOME's custom shortcut schemas are not installed: no global shortcuts";
    for (GSettingsSchema *schema : { list, entry })
        if (schema)
            g_settings_schema_unref(schema);
}

GnomeCustomShortcuts::~GnomeCustomShortcuts()
{
    while (!m_entries.isEmpty())
        unregisterShortcut(m_entries.constFirst().shortcut.id);
    if (m_list) {
        g_settings_sync();
        g_object_unref(m_list);
    }
}

void GnomeCustomShortcuts::registerShortcut(const GlobalShortcut &shortcut)
{
    const Place *place = placeFor(shortcut.name);
    const QString binding = gnomeAccelerator(shortcut.keyCode, shortcut.modifiers);
    if (!m_list || !place || binding.isEmpty())
        return;
    unregisterShortcut(shortcut.id);
    // The first registration of a combination keeps it, as on every other desktop.
    for (const Entry &other : std::as_const(m_entries))
        if (other.shortcut.keyCode == shortcut.keyCode && other.shortcut.modifiers == shortcut.modifiers)
            return;
    const QString path = QLatin1String(entryFolder) + QLatin1String(place->entry);
    GSettings *entry = g_settings_new_with_path(entrySchema, path.toUtf8().constData());
    g_settings_set_string(
        entry, "name", QStringLiteral("Vantle: %1").arg(shortcut.description).toUtf8().constData());
    g_settings_set_string(entry, "command",
        gnomeShortcutCommand(m_programPath, QLatin1String(place->subcommand)).toUtf8().constData());
    g_settings_set_string(entry, "binding", binding.toUtf8().constData());
    g_object_unref(entry);
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
    GSettings *entry = g_settings_new_with_path(entrySchema, path.toUtf8().constData());
    for (const char *key : { "name", "command", "binding" })
        g_settings_reset(entry, key);
    g_object_unref(entry);
}

void GnomeCustomShortcuts::setListed(const QString &path, bool isListed)
{
    // Read afresh: the person may have added shortcuts of their own since the last change.
    gchar **paths = g_settings_get_strv(m_list, listKey);
    QStringList list;
    for (gchar **p = paths; *p; ++p)
        list << QString::fromUtf8(*p);
    g_strfreev(paths);
    if (list.contains(path) == isListed)
        return;
    if (isListed)
        list << path;
    else
        list.removeAll(path);
    QList<QByteArray> bytes;
    std::vector<const gchar *> values;
    for (const QString &p : std::as_const(list))
        bytes << p.toUtf8();
    for (const QByteArray &b : std::as_const(bytes))
        values.push_back(b.constData());
    values.push_back(nullptr);
    g_settings_set_strv(m_list, listKey, values.data());
}
