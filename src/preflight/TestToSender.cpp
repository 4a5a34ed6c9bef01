#include "preflight/TestToSender.h"

#include "base/modMain.h"

TestToSender::TestToSender(const Form &form, Prompts &prompts, TestMessage &message)
    : m_form(form), m_prompts(prompts), m_message(message)
{
    connect(&message, &TestMessage::finished, this, [this](bool accepted, const QString &text) {
        setAddress({});
        notice(accepted, text);
    });
}

void TestToSender::mnuTest_Click(int position)
{
    const QString sender = m_form.text(Control::txtEmailMittente);
    if (sender.isEmpty()) {
        notice(false, tr("Fill in the sender's e-mail address: the test goes there."));
    } else if (!IsValidEmail(sender)) {
        notice(false, tr("'%1' isn't a valid e-mail address.").arg(sender));
    } else {
        setAddress(sender);
        m_message.send(position, sender);
    }
}

void TestToSender::cmdStop_Click()
{
    m_message.giveUp();
    setAddress({});
}

void TestToSender::setAddress(const QString &address)
{
    if (m_address == address)
        return;
    m_address = address;
    Q_EMIT addressChanged();
}

void TestToSender::notice(bool isGood, const QString &text)
{
    m_prompts.notice({isGood ? Icon::Information : Icon::Exclamation, tr("Test message"), text});
}
