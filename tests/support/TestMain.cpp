// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#ifdef VANTLE_WIDGET_TESTS
#include <QApplication>
#else
#include <QCoreApplication>
#endif

// Display-free code runs in a QCoreApplication as the command line does; widget tests on the
// offscreen platform unless a desktop test asks for a real display.
int main(int argc, char **argv)
{
#ifdef VANTLE_WIDGET_TESTS
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
#else
    QCoreApplication app(argc, argv);
#endif
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
