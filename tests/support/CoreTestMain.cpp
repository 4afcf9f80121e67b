// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>
#include <clocale>
#include <gtest/gtest.h>

// Tests of display-free code run inside a QCoreApplication, as the command line does.
int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv); // also applies the user's locale, as in the program
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
