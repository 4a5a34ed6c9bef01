#pragma once

#include <QObject>

/// The header of a message, read back.
class TestHeaders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headers();
    void receipt();
    void group();
    void names_data();
    void names();
    void subjects_data();
    void subjects();
    void extraHeaders_data();
    void extraHeaders();
    void date();
    void noControlCharacterPasses();
    void sender_data();
    void sender();
};
