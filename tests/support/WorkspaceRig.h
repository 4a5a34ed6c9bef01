#pragma once

#include "base/CodePage.h"
#include "project/Workspace.h"
#include "settings/RegFileStore.h"
#include "support/FakeSmtp.h"
#include "support/FakeTime.h"
#include "support/LogReader.h"
#include "support/ScriptedPrompts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// A workspace in a folder of its own, with a client, a clock, timers and prompts that do what the
/// test says. Only tests that link the project's room include this.
template <typename PromptsType, typename SmtpType = FakeSmtp>
class RigWith
{
public:
    /// With a client made of what is given besides.
    template <typename... ClientArguments>
    explicit RigWith(Language language = Language::English, ClientArguments &&...ofClient)
        : smtp(std::forward<ClientArguments>(ofClient)...),
          store(folder.filePath(QStringLiteral("settings.reg")).toStdString()),
          log(folder.path(), clock, formats, codePage),
          w({language, prompts, log, store, smtp, clock, formats, codePage, Timer, Timer2,
             folder.path(), QStringLiteral("shop-pc")})
    {}

    /// Writes a file into the folder and returns its path.
    QString file(const QString &name, const QByteArray &content)
    {
        const QString path = folder.filePath(name);
        QFile target(path);
        if (!target.open(QIODevice::WriteOnly) || target.write(content) != content.size())
            QTest::qFail("a test file cannot be written", __FILE__, __LINE__);
        return path;
    }
    [[nodiscard]] static QByteArray contentOf(const QString &path)
    {
        QFile source(path);
        if (!source.open(QIODevice::ReadOnly))
            QTest::qFail("a file that should be there cannot be read", __FILE__, __LINE__);
        return source.readAll();
    }

    /// A form that Start accepts, with so many checked recipients.
    void fillForm(int recipientCount)
    {
        w.form.setText(Control::txtServer, QStringLiteral("mail.example.org"));
        w.form.setText(Control::txtMittente, QStringLiteral("The Club"));
        w.form.setText(Control::txtEmailMittente, QStringLiteral("club@example.org"));
        w.form.setText(Control::txtOggetto, QStringLiteral("News"));
        w.form.setText(Control::txtNMsg, QStringLiteral("100"));
        w.form.setText(Control::txtPausa, QStringLiteral("0"));
        useTextMessage("Dear *NOME*,\r\n");
        std::vector<Recipient> rows;
        for (int i = 1; i <= recipientCount; ++i) {
            Recipient row;
            row.number = QString::number(i);
            row.name = QStringLiteral("Name %1").arg(i);
            row.address = QStringLiteral("a%1@example.net").arg(i);
            row.state = QStringLiteral("Waiting");
            rows.push_back(row);
        }
        w.recipients.replaceAll(rows);
        w.form.setProjectModified(false);
    }
    void useTextMessage(const QByteArray &content)
    {
        const QString path = file(QStringLiteral("message.txt"), content);
        w.form.setTag(Control::txtEmail, path);
        w.form.setText(Control::txtEmail, path);
    }
    void useHtmlMessage(const QByteArray &content)
    {
        const QString path = file(QStringLiteral("message.htm"), content);
        w.form.setTag(Control::txtHTML, path);
        w.form.setText(Control::txtHTML, path);
    }
    void uncheck(int position) { w.recipients.setCheckedWithImage(position, false, 3); }

    /// Start, with its question about saving answered No when it comes.
    void start()
    {
        if (w.form.projectModified())
            prompts.expectAnswer(Topic::SaveBeforeStart, Answer::No);
        w.engine.cmdAvvio_Click();
        prompts.answerAll();
    }
    /// Start, the first tick, and the session ready: the first message is handed over.
    void startSending()
    {
        start();
        Timer.tick();
        smtp.raiseReady();
    }
    /// The result of the message in flight, and the session ready for the next.
    void finishMessage(bool accepted = true)
    {
        smtp.raiseDone(accepted);
        if (smtp.readyIsDue())
            smtp.raiseReady();
    }
    /// Runs what was posted to the event loop.
    static void settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] QString state(int position) const { return w.recipients.at(position).state; }
    [[nodiscard]] QStringList states() const
    {
        QStringList all;
        for (const Recipient &row : w.recipients.rows())
            all.append(row.state);
        return all;
    }
    [[nodiscard]] QStringList addressesSent() const
    {
        QStringList all;
        for (const FakeSmtp::SentMessage &message : smtp.sent)
            all.append(message.message.RecipientAddress);
        return all;
    }
    [[nodiscard]] QString label(Control control) const { return w.form.text(control); }
    /// The messages logged since the last call.
    QStringList logged()
    {
        const QStringList all = messagesOfLog(folder.path());
        const QStringList fresh = all.mid(m_loggedBefore);
        m_loggedBefore = all.size();
        return fresh;
    }

    QTemporaryDir folder;
    FakeClock clock;
    FakeFormats formats;
    CodePage codePage{"windows-1252"};
    PromptsType prompts;
    SmtpType smtp;
    FakeTimer Timer;
    FakeTimer Timer2;
    RegFileStore store;
    CLog log;
    Workspace w;

private:
    qsizetype m_loggedBefore = 0;
};

using WorkspaceRig = RigWith<ScriptedPrompts>;
