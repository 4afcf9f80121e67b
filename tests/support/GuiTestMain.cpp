// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <gtest/gtest.h>

// Widget tests run inside a QApplication; the offscreen platform unless a test run asks
// for a real display (desktop tests export QT_QPA_PLATFORM=xcb).
int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
