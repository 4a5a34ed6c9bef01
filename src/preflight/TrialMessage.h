#pragma once

#include "form/Form.h"
#include "message/MessageReader.h"
#include "recipients/RecipientList.h"
#include "sending/MessageFiller.h"
#include "smtp/MessageComposer.h"
#include "smtp/ServerAddress.h"
#include "smtp/Smtp.h"

#include <QCoreApplication>

/// What a trial is made of. All of it outlives the trial.
struct TrialParts
{
    const Form &form;
    const RecipientList &recipients;
    const MessageReader &reader;
    MessageFiller &filler;
    Smtp &SMTP;                ///< a client of the trial's own, never that of the runs
    MessageComposer &composer; ///< of that client
};

/// The project's message, made outside any run: it touches neither the run's session, texts and
/// working folder nor rows and states, and it writes nothing into the log.
class TrialMessage
{
    Q_DECLARE_TR_FUNCTIONS(TrialMessage)

public:
    explicit TrialMessage(const TrialParts &parts);

    /// Fills the client's properties with the message that the row at this position (1 is the
    /// first; 0: no row, a message without a name) would get, addressed to that address. The error
    /// is why a message file cannot be read. Leaves the client's session as it is.
    [[nodiscard]] tl::expected<void, QString> fill(int position, const QString &address);
    /// The message that fill makes, as it would be transferred, or why it cannot be built.
    [[nodiscard]] tl::expected<QByteArray, QString> compose(int position, const QString &address);
    /// The server that the form names, or why it names none.
    [[nodiscard]] tl::expected<ServerAddress, QString> server() const;

    /// The number of the project that is open.
    [[nodiscard]] quint32 project() const { return m_form.situation().project; }
    [[nodiscard]] Smtp &client() { return m_SMTP; }

private:
    const Form &m_form;
    const RecipientList &m_recipients;
    const MessageReader &m_reader;
    MessageFiller &m_filler;
    Smtp &m_SMTP;
    MessageComposer &m_composer;
};
