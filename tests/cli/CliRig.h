#pragma once

#include "cli/CliSurroundings.h"
#include "support/FakeComposer.h"
#include "support/FakeDiskSync.h"
#include "support/FakeProbe.h"
#include "support/WorkspaceRig.h"

#include <array>
#include <cstdio>
#include <memory>

/// What a command printed.
class CapturedStream
{
public:
    [[nodiscard]] std::FILE *file() const { return m_file.get(); }
    [[nodiscard]] QString text() const
    {
        std::fflush(m_file.get());
        std::rewind(m_file.get());
        QByteArray all;
        std::array<char, 4096> part{};
        std::size_t count = 0;
        while ((count = std::fread(part.data(), 1, part.size(), m_file.get())) > 0)
            all.append(part.data(), static_cast<qsizetype>(count));
        return QString::fromUtf8(all);
    }
    [[nodiscard]] QStringList lines() const { return text().split(u'\n', Qt::SkipEmptyParts); }

private:
    struct Close
    {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Close> m_file{std::tmpfile()};
};

/// A project on disk, and what a command that works with it is given.
struct CliRig
{
    explicit CliRig(int recipients = 3)
    {
        author.fillForm(recipients);
        path = author.folder.filePath(QStringLiteral("mailing.svk"));
    }

    void saveProject()
    {
        author.w.projectFile.SaveProject(path, [](bool saved) { QVERIFY(saved); });
    }
    [[nodiscard]] CliSurroundings surroundings()
    {
        return {author.store,
                smtp,
                trialClient,
                composer,
                probe,
                accounts,
                author.clock,
                author.formats,
                author.codePage,
                Timer,
                Timer2,
                sync,
                author.folder.path(),
                QStringLiteral("pc"),
                output};
    }
    static void settle() { WorkspaceRig::settle(); }

    WorkspaceRig author;
    QString path;
    FakeSmtp smtp;
    FakeSmtp trialClient;
    FakeComposer composer{trialClient};
    FakeProbe probe;
    Accounts accounts{author.store, author.codePage};
    FakeTimer Timer;
    FakeTimer Timer2;
    FakeDiskSync sync;
    CapturedStream results;
    CapturedStream messages;
    Output output{results.file(), messages.file()};
};
