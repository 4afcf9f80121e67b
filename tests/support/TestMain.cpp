// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#ifdef VANTLE_WIDGET_TESTS
#include <QApplication>
#else
#include <QCoreApplication>
#endif

// Tests of display-free code run inside a QCoreApplication, as the command line does (which
// also applies the user's locale); widget tests inside a QApplication, on the offscreen
// platform unless a desktop test asks for a real display (QT_QPA_PLATFORM=xcb).
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
