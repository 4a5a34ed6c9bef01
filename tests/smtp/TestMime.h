#pragma once

#include <QObject>
#include <QTemporaryDir>

/// The texts and files of a message, read back.
class TestMime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

private:
    QString file(const QString &name, const QByteArray &content);

    QTemporaryDir m_folder;
};
