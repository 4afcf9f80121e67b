// SPDX-License-Identifier: GPL-3.0-or-later
// The GNOME module (see GnomeKeybindings.h): GNOME's keyboard settings through GIO.
#include "platform/gnome/GnomeKeybindings.h"

#include <gio/gio.h>
#include <vector>

namespace {

constexpr char listSchema[] = "org.gnome.settings-daemon.plugins.media-keys";
constexpr char listKey[] = "custom-keybindings";
constexpr char entrySchema[] = "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding";

GSettingsSchema *lookUp(const char *id)
{
    GSettingsSchemaSource *source = g_settings_schema_source_get_default();
    return source ? g_settings_schema_source_lookup(source, id, TRUE) : nullptr;
}

class GioKeybindings final : public GnomeKeybindings {
public:
    explicit GioKeybindings(GSettings *list)
        : m_list(list)
    {
    }
    ~GioKeybindings() override { g_object_unref(m_list); }

    QStringList listedPaths() const override
    {
        gchar **paths = g_settings_get_strv(m_list, listKey);
        QStringList list;
        for (gchar **p = paths; *p; ++p)
            list << QString::fromUtf8(*p);
        g_strfreev(paths);
        return list;
    }
    void setListedPaths(const QStringList &paths) override
    {
        QList<QByteArray> bytes;
        std::vector<const gchar *> values;
        for (const QString &p : paths)
            bytes << p.toUtf8();
        for (const QByteArray &b : std::as_const(bytes))
            values.push_back(b.constData());
        values.push_back(nullptr);
        g_settings_set_strv(m_list, listKey, values.data());
    }
    void setEntry(
        const QString &path, const QString &name, const QString &command, const QString &binding) override
    {
        GSettings *entry = g_settings_new_with_path(entrySchema, path.toUtf8().constData());
        g_settings_set_string(entry, "name", name.toUtf8().constData());
        g_settings_set_string(entry, "command", command.toUtf8().constData());
        g_settings_set_string(entry, "binding", binding.toUtf8().constData());
        g_object_unref(entry);
    }
    void resetEntry(const QString &path) override
    {
        GSettings *entry = g_settings_new_with_path(entrySchema, path.toUtf8().constData());
        for (const char *key : { "name", "command", "binding" })
            g_settings_reset(entry, key);
        g_object_unref(entry);
    }
    void sync() override { g_settings_sync(); }

private:
    GSettings *m_list;
};

} // namespace

extern "C" Q_DECL_EXPORT GnomeKeybindings *vantleOpenGnomeKeybindings()
{
    GSettingsSchema *list = lookUp(listSchema);
    GSettingsSchema *entry = lookUp(entrySchema);
    GnomeKeybindings *keybindings = nullptr;
    if (list && entry && g_settings_schema_has_key(list, listKey))
        keybindings = new GioKeybindings(g_settings_new_full(list, nullptr, nullptr));
    for (GSettingsSchema *schema : { list, entry })
        if (schema)
            g_settings_schema_unref(schema);
    return keybindings;
}
