#include "journal/Report.h"

#include "base/modMain.h"
#include "recipients/QueueId.h"
#include "recipients/TotalsText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString csvField(QString field)
{
    // Who opens the report has not written it: a name of a list must not become a formula that a
    // spreadsheet runs.
    constexpr QStringView BeginsFormula = u"=+-@\t\r";
    constexpr QStringView NeedsQuotes = u";\"\r\n";
    if (!field.isEmpty() && BeginsFormula.contains(field.front()))
        field.prepend(u'\'');
    if (std::ranges::any_of(field, [=](QChar c) { return NeedsQuotes.contains(c); }))
        field = u'"' + field.replace(u'"', "\"\""_L1) + u'"';
    return field;
}

QString csvLine(QStringList fields)
{
    std::ranges::transform(fields, fields.begin(), csvField);
    return fields.join(u';') + "\r\n"_L1;
}

/// The words for an outcome: one for programs, one for people.
struct OutcomeWord
{
    QString key;
    QString text;
};

// A project's file keeps the states of its rows, and not their attempts.
Outcome outcomeOf(const Recipient &row)
{
    if (!row.attempt.isEmpty())
        return row.attempt.outcome;
    switch (stateOf(row)) {
    case RowState::Waiting:
    case RowState::NotSent:
        break;
    case RowState::Sending:
        return Outcome::InDoubt;
    case RowState::Sent:
        return Outcome::Sent;
    case RowState::Error:
        return Outcome::Refused;
    }
    return Outcome::None;
}

OutcomeWord wordFor(const Recipient &row)
{
    switch (outcomeOf(row)) {
    case Outcome::None:
        break;
    case Outcome::InFlight: // who reads the report cannot know how it went on
    case Outcome::InDoubt:
        return {u"inDoubt"_s, Report::tr("in doubt")};
    case Outcome::Sent:
        return {u"sent"_s, Report::tr("sent")};
    case Outcome::Refused:
        if (row.attempt.reply.isForNow())
            return {u"refusedForNow"_s, Report::tr("refused for now")};
        return {u"refused"_s, Report::tr("refused")};
    case Outcome::NotTaken:
        return {u"notTaken"_s, Report::tr("not taken")};
    }
    return {u"none"_s, Report::tr("none")};
}

} // namespace

Report::Report(ReportSubject subject, std::vector<Recipient> rows)
    : m_subject(std::move(subject)), m_rows(std::move(rows))
{
    // Who reads it may be elsewhere, or in another season: "local" would mean nothing.
    m_subject.made = m_subject.made.toOffsetFromUtc(m_subject.made.offsetFromUtc());
}

QString Report::timeOf(const Attempt &attempt) const
{
    if (attempt.time == 0)
        return {};
    return QDateTime::fromMSecsSinceEpoch(attempt.time, Qt::OffsetFromUTC,
                                          m_subject.made.offsetFromUtc())
        .toString(Qt::ISODate);
}

QList<QStringList> Report::head() const
{
    const Totals totals = totalsOf(m_rows);
    const Totals meant = totalsOfMeant(m_rows);
    return {
        {tr("Report of the project"),
         m_subject.project.isEmpty() ? tr("No Name") : fileNameOf(m_subject.project)},
        {tr("Subject"), m_subject.subject},
        {tr("Sender"), m_subject.sender},
        {tr("Made"), m_subject.made.toString(Qt::ISODate)},
        {tr("Recipients"), QString::number(totals.rows)},
        {tr("Sent"), QString::number(totals.sent)},
        {tr("Refused"), QString::number(totals.refused)},
        {tr("Of them for now"), QString::number(totals.refusedForNow)},
        {tr("In doubt"), QString::number(totals.inDoubt)},
        {tr("Waiting"), QString::number(totals.waiting)},
        {tr("Not sent"), QString::number(totals.notSent)},
        {tr("Result"),
         meant.isAccountedFor()
             ? tr("Complete")
             : tr("Not complete: %1").arg(TotalsText(m_subject.language).unaccountedFor(meant))},
    };
}

QStringList Report::headings()
{
    return {tr("N°"),
            tr("Name"),
            tr("Address"),
            tr("Checked"),
            tr("State"),
            tr("Last outcome"),
            tr("Time"),
            tr("Tries"),
            tr("Code"),
            tr("Enhanced code"),
            tr("Server's text"),
            tr("Command"),
            tr("Message identifier"),
            tr("Queue id")};
}

QStringList Report::fieldsOf(const Recipient &row) const
{
    const Attempt &attempt = row.attempt;
    const ServerReply &reply = attempt.reply;
    return {row.number,
            row.name,
            row.address,
            row.checked ? tr("yes") : tr("no"),
            row.state,
            wordFor(row).text,
            timeOf(attempt),
            QString::number(attempt.tries),
            reply.code == 0 ? QString() : QString::number(reply.code),
            reply.enhanced,
            reply.text,
            nameOf(reply.verb),
            attempt.identifier,
            queueIdOf(reply)};
}

QByteArray Report::toCsv() const
{
    QString text(QChar::ByteOrderMark);
    for (const QStringList &line : head())
        text += csvLine(line);
    text += csvLine({}) + csvLine(headings());
    for (const Recipient &row : m_rows)
        text += csvLine(fieldsOf(row));
    return text.toUtf8();
}

QByteArray Report::toJson() const
{
    // What there is none of is null.
    const auto orNull = [](const QString &text) {
        return text.isEmpty() ? QJsonValue() : QJsonValue(text);
    };
    QJsonArray recipients;
    for (const Recipient &row : m_rows) {
        const Attempt &attempt = row.attempt;
        const ServerReply &reply = attempt.reply;
        recipients.append(QJsonObject{
            {u"row"_s, row.number},
            {u"name"_s, row.name},
            {u"address"_s, row.address},
            {u"checked"_s, row.checked},
            {u"state"_s, row.state},
            {u"outcome"_s, wordFor(row).key},
            {u"time"_s, orNull(timeOf(attempt))},
            {u"tries"_s, attempt.tries},
            {u"code"_s, reply.code == 0 ? QJsonValue() : QJsonValue(reply.code)},
            {u"enhanced"_s, orNull(reply.enhanced)},
            {u"reply"_s, orNull(reply.text)},
            {u"command"_s, orNull(nameOf(reply.verb))},
            {u"identifier"_s, orNull(attempt.identifier)},
            {u"queueId"_s, orNull(queueIdOf(reply))},
        });
    }
    const Totals totals = totalsOf(m_rows);
    const QJsonObject report{
        {u"project"_s, orNull(fileNameOf(m_subject.project))},
        {u"subject"_s, m_subject.subject},
        {u"sender"_s, m_subject.sender},
        {u"made"_s, m_subject.made.toString(Qt::ISODate)},
        {u"totals"_s, QJsonObject{{u"recipients"_s, totals.rows},
                                  {u"sent"_s, totals.sent},
                                  {u"refused"_s, totals.refused},
                                  {u"refusedForNow"_s, totals.refusedForNow},
                                  {u"inDoubt"_s, totals.inDoubt},
                                  {u"waiting"_s, totals.waiting},
                                  {u"notSent"_s, totals.notSent}}},
        {u"complete"_s, totalsOfMeant(m_rows).isAccountedFor()},
        {u"recipients"_s, recipients},
    };
    return QJsonDocument(report).toJson();
}

tl::expected<void, FileError> Report::write(const QString &path) const
{
    const bool isJson = path.endsWith(".json"_L1, Qt::CaseInsensitive);
    return replaceWholeFile(path, isJson ? toJson() : toCsv());
}
