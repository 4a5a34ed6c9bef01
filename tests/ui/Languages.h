#pragma once

#include "base/Language.h"

#include <QTest>

/// A row for each of the two windows, in the column "language".
inline void addLanguages()
{
    QTest::addColumn<Language>("language");
    QTest::newRow("English") << Language::English;
    QTest::newRow("Italian") << Language::Italian;
}
