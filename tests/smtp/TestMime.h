#pragma once

#include <QObject>
#include <QTemporaryDir>

/// The message as it goes over the wire, read back.
class TestMime : public QObject
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
    void bodies_data();
    void bodies();
    void structure_data();
    void structure();
    void attachmentNames_data();
    void attachmentNames();
    void attachmentTypes_data();
    void attachmentTypes();
    void attachmentsAreReadAgainWhenChanged();
    void attachmentsThatCannotBeSent();
    void attachmentsAreShared();
    void inlineFiles();
    void sender_data();
    void sender();

private:
    QString file(const QString &name, const QByteArray &content);

    QTemporaryDir m_folder;
};
