#pragma once

#include <QObject>

/// The Italian words for the English ones.
class TestItalianCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void textsStayEnglishWithoutTheCatalogue_data();
    void textsStayEnglishWithoutTheCatalogue();
};
