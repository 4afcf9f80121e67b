// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/ReleaseNotesView.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTextDocument>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// Release notes come from the network: they are shown, never obeyed.
TEST(ReleaseNotesView, NotesAreShownWithoutTheirStylesOrResources)
{
    QTemporaryDir dir;
    const QString picture = dir.filePath(u"local.png"_s);
    QImage(8, 8, QImage::Format_RGB32).save(picture);
    const QUrl pictureUrl = QUrl::fromLocalFile(picture);

    struct Row {
        const char *what;
        QString notes;
        QString plainText;
    };
    const Row rows[] = {
        { "plain text keeps its angle brackets", u"Faster when width < 100 & height > 2"_s,
            u"Faster when width < 100 & height > 2"_s },
        { "styles that hide text are dropped",
            QStringLiteral(
                "<style>p { display:none }</style><p style=\"font-size:1px\">Sends your history away</p>"),
            u"Sends your history away"_s },
        { "local files named by images are not read",
            u"<ul><li>New</li></ul><img src=\"%1\">"_s.arg(pictureUrl.toString()), u"New"_s },
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.what);
        ReleaseNotesView view;
        view.resize(300, 200);
        view.setNotes(row.notes);
        view.grab(); // lays the document out, which is when resources would be loaded
        EXPECT_TRUE(view.toPlainText().contains(row.plainText)) << view.toPlainText().toStdString();
        EXPECT_FALSE(view.toHtml().contains(u"font-size:1px"_s));
        const QVariant loaded = view.document()->resource(QTextDocument::ImageResource, pictureUrl);
        EXPECT_LE(loaded.value<QImage>().width(), 1) << "the 8-pixel local picture was read";
        EXPECT_TRUE(loaded.value<QByteArray>().isEmpty());
    }
}
