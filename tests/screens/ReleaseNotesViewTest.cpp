// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ReleaseNotesView.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTextDocument>
#include <gtest/gtest.h>

// Release notes come from the network: they are shown, never obeyed.
TEST(ReleaseNotesView, NotesAreShownWithoutTheirStylesOrResources)
{
    QTemporaryDir dir;
    const QString picture = dir.filePath(QStringLiteral("local.png"));
    QImage(8, 8, QImage::Format_RGB32).save(picture);
    const QUrl pictureUrl = QUrl::fromLocalFile(picture);

    struct Row {
        const char *what;
        QString notes;
        QString plainText;
    };
    const Row rows[] = {
        { "plain text keeps its angle brackets", QStringLiteral("Faster when width < 100 & height > 2"),
            QStringLiteral("Faster when width < 100 & height > 2") },
        { "styles that hide text are dropped",
            QStringLiteral(
                "<style>p { display:none }</style><p style=\"font-size:1px\">Sends your history away</p>"),
            QStringLiteral("Sends your history away") },
        { "local files named by images are not read",
            QStringLiteral("<ul><li>New</li></ul><img src=\"%1\">").arg(pictureUrl.toString()),
            QStringLiteral("New") },
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.what);
        ReleaseNotesView view;
        view.resize(300, 200);
        view.setNotes(row.notes);
        view.grab(); // lays the document out, which is when resources would be loaded
        EXPECT_TRUE(view.toPlainText().contains(row.plainText)) << view.toPlainText().toStdString();
        EXPECT_FALSE(view.toHtml().contains(QStringLiteral("font-size:1px")));
        const QVariant loaded = view.document()->resource(QTextDocument::ImageResource, pictureUrl);
        EXPECT_LE(loaded.value<QImage>().width(), 1) << "the 8-pixel local picture was read";
        EXPECT_TRUE(loaded.value<QByteArray>().isEmpty());
    }
}
