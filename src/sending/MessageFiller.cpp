#include "sending/MessageFiller.h"

#include "base/Maker.h"
#include "message/PersonalText.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Dispatch)
};

} // namespace

MessageFiller::MessageFiller(const Form &form, const Attachments &attachments, const Clock &clock,
                             const QString &computerName)
    : m_form(form), m_attachments(attachments), m_moment(clock, computerName)
{}

QString MessageFiller::fill(Smtp &SMTP, const MessageBodies &bodies, const Addressees &to)
{
    SMTP.RecipientAddress = to.addresses.join(u',');
    if (to.isGroup)
        SMTP.RecipientList = true;
    const QString sender = m_form.text(Control::txtEmailMittente);
    SMTP.FromName = m_form.text(Control::txtMittente);
    SMTP.FromAddress = sender;
    SMTP.Mailer = QStringLiteral("Sorvanta - ") + QLatin1String(Maker::WebSiteHost);
    SMTP.Subject = m_form.text(Control::txtOggetto);
    SMTP.DateText = m_moment.dateText();
    if (m_form.isChecked(Control::chkRicevuta)) {
        SMTP.ReceiptAddress = sender;
        SMTP.RequestReceipt = true;
    }
    const QString identifier = m_moment.nextIdentifier();
    SMTP.ExtraHeaders = QLatin1String("Message-ID: <") + identifier + QLatin1String(">\r\n");
    const auto PersonalizeText = [&to](const QString &text) { return withName(text, to.name); };
    SMTP.TextBody = Texts::tr("Unable to show the message");
    if (!m_form.tag(Control::txtEmail).isEmpty())
        SMTP.TextBody = PersonalizeText(bodies.textBody());
    if (!m_form.tag(Control::txtHTML).isEmpty())
        SMTP.HtmlBody = PersonalizeText(bodies.htmlBody());
    for (const QString &path : m_attachments.paths())
        SMTP.AddAttachment(path);
    return identifier;
}
