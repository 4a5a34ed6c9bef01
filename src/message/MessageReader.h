#pragma once

#include "base/CodePage.h"
#include "base/Files.h"
#include "log/CLog.h"
#include "prompts/Prompts.h"

#include <QCoreApplication>

enum class MessageKind { Text, Html };

/// The text of a message file. An HTML file's own declaration of its character set comes first
/// when its bytes keep to it and do not begin with the mark of UTF-8; else the rule for all files.
[[nodiscard]] QString decodeMessage(const QByteArray &content, MessageKind kind,
                                    const CodePage &codePage);

/// Reads message files into memory.
class MessageReader
{
    Q_DECLARE_TR_FUNCTIONS(Message)

public:
    MessageReader(Prompts &prompts, CLog &AppLog, const CodePage &codePage);

    /// The file's lines, each ended by CR LF. Shows no box and logs nothing.
    [[nodiscard]] tl::expected<QString, FileError> read(const QString &path,
                                                        MessageKind kind) const;
    /// Fills content as read does, and logs the file. On failure a box says so, content is empty
    /// and the answer is false.
    bool LoadMessageFile(QString &content, const QString &path, MessageKind kind) const;
    /// The box of a message that cannot be loaded.
    void reportUnreadable(const QString &detail) const;

private:
    Prompts &m_prompts;
    CLog &m_AppLog;
    const CodePage &m_codePage;
};
