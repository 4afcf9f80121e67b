// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>

// Shows the release notes of an update feed. The notes come from the network and are treated as
// untrusted: nothing they name is ever loaded (no images, style sheets or files, local or
// remote), scripts do not exist in Qt's rich text, and a click on a link opens only http and
// https addresses in the browser, never inside this view.
class ReleaseNotesView : public QTextBrowser {
    Q_OBJECT
public:
    explicit ReleaseNotesView(QWidget *parent = nullptr);

    // HTML notes as limited rich text; anything else as plain text.
    void setNotes(const QString &notes);

    QVariant loadResource(int type, const QUrl &name) override;
};
