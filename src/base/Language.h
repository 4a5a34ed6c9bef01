#pragma once

#include <QCoreApplication>
#include <QLocale>

/// The language of the texts that a user sees. The log is English in both.
enum class Language { English, Italian };

/// How numbers are written in that language.
[[nodiscard]] inline QLocale localeOf(Language language)
{
    return language == Language::Italian ? QLocale(QLocale::Italian, QLocale::Italy)
                                         : QLocale(QLocale::English, QLocale::UnitedStates);
}

/// A text of the catalogue in that language, for what does not follow the language of the program:
/// the source is the English text.
[[nodiscard]] inline QString textIn(Language language, const char *context, const char *source)
{
    return language == Language::Italian ? QCoreApplication::translate(context, source)
                                         : QString::fromUtf8(source);
}
