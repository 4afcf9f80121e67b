// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

// Qt lays the interface out right to left when the loaded translation says so through this
// text; ours carries it too, so Arabic mirrors even where Qt's own translations are missing.
[[maybe_unused]] constexpr auto layoutDirection = QT_TRANSLATE_NOOP3("QGuiApplication", "QT_LAYOUT_DIRECTION",
    "Translate this string to the string 'LTR' in left-to-right languages or to 'RTL' in "
    "right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.");

bool install(const QString &name, const QString &directory)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(name, directory) && QCoreApplication::installTranslator(translator))
        return true;
    delete translator;
    return false;
}

} // namespace

QString installTranslations(const QStringList &languages)
{
    // On Unix the system locale's languages are LANGUAGE's list, else the messages locale
    // (LC_ALL, LC_MESSAGES, LANG), as "de-DE", "pt-BR", "zh-CN".
    for (QString language : languages) {
        language.replace(u'-', u'_');
        // English is the source: a person who lists it before another language reads English.
        if (language == u"C" || language == u"POSIX" || language.startsWith(u"en"))
            return {};
        // "de_DE" finds vantle_de.qm: the loader drops the country when no file has it.
        if (install(QStringLiteral("vantle_") + language, QStringLiteral(":/i18n"))) {
            install(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
            return language;
        }
    }
    return {};
}
