// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/Clipboard.h"
#include "history/CopyConfirmation.h"
#include "history/ExportDialogs.h"
#include "history/ScreenColorSampler.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

// Stand-ins for the platform facilities the history model uses, driven by tests.

// Holds the completion of the running pick until the test answers with finish() or cancel(),
// which models the real samplers: the answer always comes after pick() returned.
class FakeScreenColorSampler : public ScreenColorSampler {
public:
    void pick(ColorFormat, Completion completion) override
    {
        ++pickCount;
        pending = std::move(completion);
    }
    bool isOpen() const { return bool(pending); }
    void finish(double red, double green, double blue, double alpha = 1.0)
    {
        answer(SampledColor { red, green, blue, alpha });
    }
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
        if (!accepts)
            return false;
        texts.append(text);
        return true;
    }
    QString current() const { return texts.isEmpty() ? QString() : texts.last(); }

    bool accepts = true;
    QStringList texts;
};

// Records every confirmation message.
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

// The history model's four facilities, all fakes, under the names tests use; a test fixture
// derives from it.
struct FakeHistoryFacilities {
    FakeScreenColorSampler sampler;
    FakeClipboard clipboard;
    FakeCopyConfirmation confirmation;
    FakeExportDialogs dialogs;
};
