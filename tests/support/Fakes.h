// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/Clipboard.h"
#include "history/CopyConfirmation.h"
#include "history/ExportDialogs.h"
#include "history/ScreenColorSampler.h"
#include "hotkeys/GlobalShortcutBackend.h"
#include "model/PickedColor.h"
#include "services/Appcast.h"
#include "services/LoginItemService.h"
#include "services/UpdateUserInterface.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

// One stand-in per desktop facility, driven by tests. The clock is ManualAnimationDriver.h; the
// network is a real one talking to LocalHttpServer.h.

inline PickedColor makeColor(
    double r, double g, double b, bool pinned = false, std::optional<QString> name = std::nullopt)
{
    PickedColor color = PickedColor::fromSample(r, g, b, 1.0);
    color.isPinned = pinned;
    color.name = std::move(name);
    return color;
}

// Holds the completion of the running pick until the test answers with finish() or cancel(),
// which models the real samplers: the answer always comes after pick() returned.
class FakeScreenColorSampler : public ScreenColorSampler {
public:
    void pick(ColorFormat, Completion completion) override
    {
        ++pickCount;
        pending = std::move(completion);
    }
    void finish(double red, double green, double blue) { answer(SampledColor { red, green, blue, 1.0 }); }
    void cancel() { answer(std::nullopt); }
    void answer(std::optional<SampledColor> sample)
    {
        // Taken out first: the completion may start the next pick.
        Completion completion = std::move(pending);
        pending = nullptr;
        if (completion)
            completion(sample);
    }

    int pickCount = 0;
    Completion pending;
};

// Records every text put on the clipboard; `accepts` false plays a clipboard that refused it.
class FakeClipboard : public Clipboard {
public:
    bool setText(const QString &text) override
    {
        if (accepts)
            texts.append(text);
        return accepts;
    }
    QString current() const { return texts.isEmpty() ? QString() : texts.last(); }

    bool accepts = true;
    QStringList texts;
};

class FakeCopyConfirmation : public CopyConfirmation {
public:
    void showHUD(const QString &message) override { messages.append(message); }

    QStringList messages;
};

// Answers the save dialog with `chosenPath` (nothing = cancelled) and records both dialogs.
class FakeExportDialogs : public ExportDialogs {
public:
    struct SaveRequest {
        QString folder;
        QString proposedName;
        bool asJSON = false;
    };

    void chooseExportFile(
        const QString &folder, const QString &proposedName, bool asJSON, Completion onChosen) override
    {
        saveRequests.append({ folder, proposedName, asJSON });
        onChosen(chosenPath);
    }
    void showExportFailed(const QString &description) override { failures.append(description); }

    std::optional<QString> chosenPath;
    QList<SaveRequest> saveRequests;
    QStringList failures;
};

// The history model's four facilities under the names tests use; a test fixture derives from it.
struct FakeHistoryFacilities {
    FakeScreenColorSampler sampler;
    FakeClipboard clipboard;
    FakeCopyConfirmation confirmation;
    FakeExportDialogs dialogs;
};

// Records what the hotkey manager asks of the desktop, in order; press() plays the user.
class FakeShortcutBackend final : public GlobalShortcutBackend {
public:
    void registerShortcut(const GlobalShortcut &shortcut) override
    {
        calls << QStringLiteral("register %1 %2 %3")
                     .arg(shortcut.id)
                     .arg(shortcut.keyCode)
                     .arg(shortcut.modifiers);
        registered << shortcut;
    }
    void unregisterShortcut(int id) override
    {
        calls << QStringLiteral("unregister %1").arg(id);
        registered.removeIf([id](const GlobalShortcut &s) { return s.id == id; });
    }
    void press(int id) { Q_EMIT activated(id); }

    QStringList calls;
    QList<GlobalShortcut> registered;
};

// A login item the desktop keeps in memory; `accepts` false plays a desktop that refuses changes.
class FakeLoginItemService : public LoginItemService {
public:
    bool isEnabled() const override { return enabled; }
    bool registerItem() override { return change(true); }
    bool unregisterItem() override { return change(false); }
    bool change(bool on)
    {
        enabled = accepts ? on : enabled;
        return accepts;
    }

    bool enabled = false;
    bool accepts = true;
};

// Answers the updater's question with `answer` and records what the user would have seen.
class FakeUpdateInterface : public UpdateUserInterface {
public:
    void showUpToDate(const QString &name, const QString &version) override
    {
        upToDateTexts << name + QLatin1Char(' ') + version;
    }
    void askAboutUpdate(const AppcastItem &update, const QString &, const QString &,
        std::function<void(Choice)> onChoice) override
    {
        offered << update;
        onChoice(answer);
    }
    void downloadStarted(const AppcastItem &, std::function<void()>) override { downloading = true; }
    void downloadProgressed(qint64, qint64) override { ++progressReports; }
    void downloadEnded() override { downloading = false; }
    void showDownloadFailed(const QString &message) override { failures << message; }
    void showDownloadReady(const AppcastItem &, const QString &filePath, bool automatic) override
    {
        readyFiles << filePath;
        readyWasAutomatic = automatic;
    }
    // Everything that ends a check for the user.
    qsizetype outcomes() const
    {
        return upToDateTexts.size() + offered.size() + failures.size() + readyFiles.size();
    }

    Choice answer = Choice::remindLater;
    QStringList upToDateTexts; // "<name> <version>"
    QList<AppcastItem> offered;
    QStringList failures;
    QStringList readyFiles;
    bool readyWasAutomatic = false;
    int progressReports = 0;
    bool downloading = false;
};
