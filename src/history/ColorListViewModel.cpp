// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/ColorListViewModel.h"

#include "history/Clipboard.h"
#include "history/CopyConfirmation.h"
#include "history/ExportDialogs.h"
#include "history/PaletteExport.h"
#include "history/ScreenColorSampler.h"
#include "model/ColorFormat.h"
#include "model/ColorHistoryCodec.h"
#include "services/AtomicFile.h"
#include "services/PreferenceKeys.h"
#include "services/Preferences.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QSet>
#include <QStandardPaths>

namespace {

// The history without its unpinned colours beyond `limit` (the oldest ones); pinned colours
// never count and never go. Nothing when nothing would be removed.
std::optional<QList<PickedColor>> trimmed(const QList<PickedColor> &colors, qint64 limit)
{
    QSet<QUuid> removed;
    qint64 unpinned = 0;
    for (const PickedColor &color : colors)
        if (!color.isPinned && ++unpinned > limit)
            removed.insert(color.id);
    if (removed.isEmpty())
        return std::nullopt;
    QList<PickedColor> kept;
    kept.reserve(colors.size() - removed.size());
    for (const PickedColor &color : colors)
        if (!removed.contains(color.id))
            kept.append(color);
    return kept;
}

QString copiedMessage(const QString &text)
{
    //: The confirmation after a copy; %1 is the colour text put on the clipboard
    return colorSentence(ColorListViewModel::tr("Copied %1"), { text });
}

} // namespace

ColorListViewModel::ColorListViewModel(SettingsStore &store, ScreenColorSampler &sampler,
    Clipboard &clipboard, CopyConfirmation &confirmation, ExportDialogs &exportDialogs, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_sampler(sampler)
    , m_clipboard(clipboard)
    , m_confirmation(confirmation)
    , m_exportDialogs(exportDialogs)
{
    loadHistory();
}

ColorListViewModel::~ColorListViewModel() = default;

QList<PickedColor> ColorListViewModel::pinnedColors() const
{
    QList<PickedColor> pinned;
    for (const PickedColor &color : m_colors)
        if (color.isPinned)
            pinned.append(color);
    return pinned;
}

QList<PickedColor> ColorListViewModel::recentColors() const
{
    QList<PickedColor> recent;
    for (const PickedColor &color : m_colors)
        if (!color.isPinned)
            recent.append(color);
    return recent;
}

void ColorListViewModel::pickColor()
{
    if (m_isPicking)
        return;
    setIsPicking(true);
    // The sampler may answer after the model is gone (at quit, with the picker still open).
    const ColorFormat format = SettingsViewModel::currentFormat(m_store);
    m_sampler.pick(format, [self = QPointer<ColorListViewModel>(this)](std::optional<SampledColor> sample) {
        if (self)
            self->finishPick(sample);
    });
}

void ColorListViewModel::finishPick(const std::optional<SampledColor> &sample)
{
    if (!sample) {
        setIsPicking(false);
        return;
    }
    const PickedColor color
        = PickedColor::fromSample(sample->red, sample->green, sample->blue, sample->alpha);
    // The list as it stands now: it may have changed while the picker was open.
    QList<PickedColor> colors = m_colors;
    colors.prepend(color);
    setColors(std::move(colors));
    trimHistory();
    saveHistory();
    copyText(color.formatted(SettingsViewModel::currentFormat(m_store)));
    if (onColorPicked)
        onColorPicked(color);
    setIsPicking(false);
}

void ColorListViewModel::copyColor(const PickedColor &color)
{
    copyText(color.formatted(SettingsViewModel::currentFormat(m_store)));
}

void ColorListViewModel::copyColor(const PickedColor &color, ColorFormat format)
{
    copyText(color.formatted(format));
}

void ColorListViewModel::copyText(const QString &text)
{
    // Never confirm a copy the clipboard refused; say plainly that it did not happen (a Wayland
    // desktop without a clipboard Vantle may set), the colour stays in the history.
    if (m_clipboard.setText(text))
        m_confirmation.showHUD(copiedMessage(text));
    else
        m_confirmation.showHUD(tr("Not copied: the clipboard is not available"));
}

qsizetype ColorListViewModel::indexOf(const QUuid &id) const
{
    for (qsizetype i = 0; i < m_colors.size(); ++i)
        if (m_colors[i].id == id)
            return i;
    return -1;
}

void ColorListViewModel::togglePin(const PickedColor &color)
{
    const qsizetype index = indexOf(color.id);
    if (index < 0)
        return;
    QList<PickedColor> colors = m_colors;
    colors[index].isPinned = !colors[index].isPinned;
    setColors(std::move(colors));
    saveHistory();
}

void ColorListViewModel::renameColor(const PickedColor &color, const QString &name)
{
    const qsizetype index = indexOf(color.id);
    if (index < 0)
        return;
    QList<PickedColor> colors = m_colors;
    // Blanks are the user's choice and stay; only the empty text means "no name".
    colors[index].name = name.isEmpty() ? std::nullopt : std::optional<QString>(name);
    setColors(std::move(colors));
    saveHistory();
}

void ColorListViewModel::deleteColor(const PickedColor &color)
{
    QList<PickedColor> colors = m_colors;
    colors.removeIf([&](const PickedColor &c) { return c.id == color.id; });
    setColors(std::move(colors));
    saveHistory();
}

void ColorListViewModel::clearHistory()
{
    setColors(pinnedColors());
    saveHistory();
}

void ColorListViewModel::trimHistory()
{
    qint64 limit = m_store.integerForKey(PreferenceKeys::historyLimit);
    if (limit <= 0)
        limit = Preferences::historyLimit.defaultValue; // a hand-edited 0 or less keeps the default
    if (auto kept = trimmed(m_colors, limit))
        setColors(std::move(*kept));
}

void ColorListViewModel::trimHistory(qint64 limit)
{
    if (auto kept = trimmed(m_colors, std::max<qint64>(limit, 0))) {
        setColors(std::move(*kept));
        saveHistory();
    }
}

void ColorListViewModel::loadHistory()
{
    const std::optional<QByteArray> stored = m_store.dataForKey(PreferenceKeys::colorHistory);
    if (!stored)
        return;
    if (auto decoded = decodeColorHistory(*stored)) {
        setColors(std::move(*decoded));
        return;
    }
    // The next save replaces what cannot be read here; those bytes may still hold the user's
    // colours (a newer version's records, a hand edit gone wrong), so they go aside first.
    keepUnreadableAside(m_store.dataFilePath(PreferenceKeys::colorHistory), *stored);
}

void ColorListViewModel::saveHistory()
{
    if (const auto encoded = encodeColorHistory(m_colors))
        m_store.setData(PreferenceKeys::colorHistory, *encoded);
}

void ColorListViewModel::exportColors(bool pinnedOnly, bool asJSON)
{
    const QList<PickedColor> colors = pinnedOnly ? pinnedColors() : m_colors;
    if (colors.isEmpty())
        return;
    // The Downloads folder; where a desktop has none, home rather than wherever the program
    // happened to be started from.
    QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    if (folder.isEmpty() || !QDir(folder).exists())
        folder = QDir::homePath();
    // The colours as they were when the user asked; the model may be gone when the dialog answers.
    m_exportDialogs.chooseExportFile(folder, proposedExportName(pinnedOnly, asJSON), asJSON,
        [self = QPointer(this), colors, asJSON](const std::optional<QString> &path) {
            if (!self || !path || path->isEmpty())
                return;
            const QByteArray content = asJSON
                ? exportJSON(colors)
                : exportText(colors, SettingsViewModel::currentFormat(self->m_store));
            // The system's reason alone ("Permission denied") does not say which file.
            if (const std::optional<QString> failure = writeFileAtomically(*path, content))
                self->m_exportDialogs.showExportFailed(
                    tr("“%1” could not be written: %2").arg(QDir::toNativeSeparators(*path), *failure));
        });
}

void ColorListViewModel::setColors(QList<PickedColor> colors)
{
    if (colors == m_colors)
        return;
    m_colors = std::move(colors);
    Q_EMIT colorsChanged();
}

void ColorListViewModel::setIsPicking(bool isPicking)
{
    if (isPicking == m_isPicking)
        return;
    m_isPicking = isPicking;
    Q_EMIT isPickingChanged();
}
