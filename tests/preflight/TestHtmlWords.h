#pragma once

#include <QObject>

class TestHtmlWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words_data();
    void words();
    void aPictureIsFoundInAnyCase();
    void halfATagAtTheEndEndsTheText();
};
