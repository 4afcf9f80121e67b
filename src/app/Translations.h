// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>
#include <QStringList>

// Installs Vantle's translation, and Qt's own for its standard buttons and the file dialog, for
// the language the desktop asks for: LANGUAGE (a colon list) first, then LC_ALL, LC_MESSAGES and
// LANG, as every Linux program reads them. English, the language of the source texts, needs
// none; an untranslated language, or a text without a translation, stays English. Call it once
// the Q(Core)Application exists; the translators are its children. `languages` in the order
// asked for ("de-DE", "pt-BR"); returns the one installed, empty for English.
QString installTranslations(const QStringList &languages = QLocale::system().uiLanguages());
