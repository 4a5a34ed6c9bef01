#include "smtp/client/LetterBuilder.h"

#include "base/Clock.h"
#include "smtp/client/HeaderLines.h"
#include "smtp/client/MimeEncoding.h"

#include <QLocale>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

QList<tl::expected<MailAddress, QString>> recipientsOf(const OutgoingMessage &message)
{
    if (!message.RecipientList)
        return {MailAddress::parse(message.RecipientAddress)};
    QList<tl::expected<MailAddress, QString>> recipients;
    for (const QStringView address : QStringView(message.RecipientAddress).split(u','))
        recipients += MailAddress::parse(address);
    return recipients;
}

/// The recipient; a group is not shown to its members.
QByteArray toValue(const QList<tl::expected<MailAddress, QString>> &recipients)
{
    const bool isOne = recipients.size() == 1 && recipients.first();
    return isOne ? recipients.first()->bytes : "undisclosed-recipients:;"_qba;
}

/// The offset from UTC as RFC 5322, section 3.3, writes it.
QString zone(const QDateTime &time)
{
    const int minutes = std::abs(time.offsetFromUtc()) / 60;
    const QString digits =
        u"%1%2"_s.arg(minutes / 60, 2, 10, QChar(u'0')).arg(minutes % 60, 2, 10, QChar(u'0'));
    return (time.offsetFromUtc() < 0 ? u'-' : u'+') + digits;
}

} // namespace

qsizetype LetterBuilder::recipientCount(const OutgoingMessage &message)
{
    return message.RecipientList ? message.RecipientAddress.count(u',') + 1 : 1;
}

tl::expected<Letter, QString> LetterBuilder::build(const OutgoingMessage &message,
                                                   const QStringList &attachments)
{
    auto result = setHeader(message).and_then(
        [&] { return m_body.set(message.TextBody, message.HtmlBody, attachments); });
    if (!result)
        return tl::unexpected(result.error());
    Letter letter;
    letter.sender = m_header.sender;
    letter.headersNeedSmtpUtf8 = m_header.needsSmtpUtf8;
    letter.recipients = recipientsOf(message);
    ContentWriter writer;
    writer << m_header.from << "To: " << toValue(letter.recipients) << "\r\n"
           << m_header.subject << dateLine(message.DateText)
           << safeHeaderLines(message.ExtraHeaders) << m_header.rest;
    m_body.writeTo(writer);
    letter.content = writer.finish();
    return letter;
}

tl::expected<void, QString> LetterBuilder::setHeader(const OutgoingMessage &message)
{
    const HeaderValues values{message.FromAddress, message.FromName, message.Subject,
                              message.Mailer,
                              message.RequestReceipt ? message.ReceiptAddress : QString()};
    if (!m_header.from.isEmpty() && values == m_header.values)
        return {};
    const auto sender = MailAddress::parse(values.fromAddress);
    if (!sender)
        return tl::unexpected(u"the sender's address cannot be used: "_s + sender.error());
    Header header;
    header.values = values;
    header.sender = *sender;
    header.needsSmtpUtf8 = sender->needsSmtpUtf8;
    header.from = mailboxHeader("From"_qba, values.fromName, sender->bytes);
    header.subject = textHeader("Subject"_qba, values.subject);
    if (!values.mailer.isEmpty())
        header.rest += textHeader("X-Mailer"_qba, values.mailer);
    if (!values.receiptAddress.isEmpty()) {
        const auto receipt = MailAddress::parse(values.receiptAddress);
        if (!receipt)
            return tl::unexpected(u"the address for the receipt cannot be used: "_s +
                                  receipt.error());
        header.needsSmtpUtf8 = header.needsSmtpUtf8 || receipt->needsSmtpUtf8;
        header.rest += mailboxHeader("Disposition-Notification-To"_qba, {}, receipt->bytes);
    }
    header.rest += "MIME-Version: 1.0\r\n";
    m_header = header;
    return {};
}

/// The line is made anew when its text or the second has changed.
const QByteArray &LetterBuilder::dateLine(const QString &dateText)
{
    constexpr qint64 MicrosecondsInSecond = 1'000'000;
    const qint64 second = m_clock.microseconds() / MicrosecondsInSecond;
    if (second != m_dateSecond || dateText != m_dateText) {
        m_dateSecond = second;
        m_dateText = dateText;
        const QDateTime now = m_clock.now();
        // RFC 5322, section 3.6: no message goes without a date.
        const QString text = dateText.isEmpty()
                                 ? QLocale::c().toString(now, u"ddd, dd MMM yyyy hh:mm:ss")
                                 : dateText;
        m_dateLine = textHeader("Date"_qba, text + u' ' + zone(now));
    }
    return m_dateLine;
}
