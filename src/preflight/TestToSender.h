#pragma once

#include "form/Form.h"
#include "preflight/TestMessage.h"
#include "prompts/Prompts.h"

#include <QObject>

/// The menu entry "Send a test to me": sends a row's message to the sender's own address and says
/// in a notice what became of it.
class TestToSender : public QObject
{
    Q_OBJECT

public:
    TestToSender(const Form &form, Prompts &prompts, TestMessage &message);

    /// The message is that of the row at this position; 0: of no row.
    void mnuTest_Click(int position);
    /// Gives the test up.
    void cmdStop_Click();

    /// Whom a test is being sent to; empty while none is.
    [[nodiscard]] QString address() const { return m_address; }

Q_SIGNALS:
    /// A test began or is over.
    void addressChanged();

private:
    void setAddress(const QString &address);
    void notice(bool isGood, const QString &text);

    const Form &m_form;
    Prompts &m_prompts;
    TestMessage &m_message;
    QString m_address;
};
