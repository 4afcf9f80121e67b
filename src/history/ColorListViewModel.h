// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/ScreenColorSampler.h"
#include "model/PickedColor.h"

#include <QList>
#include <QObject>
#include <functional>

class Clipboard;
class CopyConfirmation;
class ExportDialogs;
class SettingsStore;

// The single owner of the colour history: picks, files, trims, pins, names, deletes, copies,
// saves and exports colours. Views read it and call its operations; they never change the
// history themselves. Main thread only. Colours are found by `id`, never by position.
class ColorListViewModel : public QObject {
    Q_OBJECT
public:
    // Collaborators are owned by the caller and outlive the model. Construction loads the
    // stored history.
    ColorListViewModel(SettingsStore &store, ScreenColorSampler &sampler, Clipboard &clipboard,
        CopyConfirmation &confirmation, ExportDialogs &exportDialogs, QObject *parent = nullptr);
    ~ColorListViewModel() override;

    const QList<PickedColor> &colors() const { return m_colors; }
    bool isPicking() const { return m_isPicking; }
    QList<PickedColor> pinnedColors() const;
    QList<PickedColor> recentColors() const;

    // Called once after each successful pick with the new colour (the tray redraws its icon).
    std::function<void(const PickedColor &)> onColorPicked;

    // Asynchronous: returns at once; the sampler's answer finishes the pick. Ignored while a
    // pick is running.
    void pickColor();
    void copyColor(const PickedColor &color);
    void copyColor(const PickedColor &color, ColorFormat format);
    void togglePin(const PickedColor &color);
    void renameColor(const PickedColor &color, const QString &name);
    void deleteColor(const PickedColor &color);
    void clearHistory();
    void trimHistory();
    void trimHistory(qint64 limit);
    void loadHistory();
    void saveHistory();
    void exportColors(bool pinnedOnly, bool asJSON);

Q_SIGNALS:
    void colorsChanged();
    void isPickingChanged();

private:
    void setColors(QList<PickedColor> colors);
    void setIsPicking(bool isPicking);
    void finishPick(const std::optional<SampledColor> &sample);
    void copyText(const QString &text);
    qsizetype indexOf(const QUuid &id) const;

    SettingsStore &m_store;
    ScreenColorSampler &m_sampler;
    Clipboard &m_clipboard;
    CopyConfirmation &m_confirmation;
    ExportDialogs &m_exportDialogs;
    QList<PickedColor> m_colors;
    bool m_isPicking = false;
};
