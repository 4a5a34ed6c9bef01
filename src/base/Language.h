#pragma once

#include <QLocale>

/// The language of the texts that a user sees. The log is English in both.
enum class Language { English, Italian };

/// How numbers are written in that language.
[[nodiscard]] inline QLocale localeOf(Language language)
{
    return language == Language::Italian ? QLocale(QLocale::Italian, QLocale::Italy)
                                         : QLocale(QLocale::English, QLocale::UnitedStates);
}
