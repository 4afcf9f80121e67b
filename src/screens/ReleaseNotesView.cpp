// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ReleaseNotesView.h"

#include <QDesktopServices>
#include <QImage>
#include <QRegularExpression>
#include <QTextDocument>

ReleaseNotesView::ReleaseNotesView(QWidget *parent)
    : QTextBrowser(parent)
{
    setOpenLinks(false);
    setOpenExternalLinks(false);
    setReadOnly(true);
    connect(this, &QTextBrowser::anchorClicked, this, [](const QUrl &url) {
        if (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"))
            QDesktopServices::openUrl(url);
    });
}

void ReleaseNotesView::setNotes(const QString &notes)
{
    if (!Qt::mightBeRichText(notes)) {
        setPlainText(notes);
        return;
    }
    // Style sheets and inline styles from a feed could hide text or mimic the dialog's own
    // buttons; the notes take the dialog's look instead.
    QString html = notes;
    static const QRegularExpression styleBlocks(QStringLiteral("<style\\b[^>]*>.*?</style\\s*>"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression styleAttributes(
        QStringLiteral("\\sstyle\\s*=\\s*(\"[^\"]*\"|'[^']*'|[^\\s>]*)"),
        QRegularExpression::CaseInsensitiveOption);
    html.remove(styleBlocks);
    html.remove(styleAttributes);
    setHtml(html);
}

QVariant ReleaseNotesView::loadResource(int type, const QUrl &)
{
    // An empty value, not an invalid one: for an invalid answer the document goes on to read
    // local files itself.
    switch (type) {
    case QTextDocument::ImageResource: {
        // A transparent dot rather than the broken-picture sign.
        QImage nothing(1, 1, QImage::Format_ARGB32);
        nothing.fill(Qt::transparent);
        return nothing;
    }
    case QTextDocument::StyleSheetResource:
        return QString();
    default:
        return QByteArray();
    }
}
