#include "preflight/Preflight.h"

#include "preflight/FormFindings.h"
#include "preflight/MessageFindings.h"
#include "preflight/RowFindings.h"
#include "preflight/ServerFindings.h"

#include <algorithm>
#include <utility>

namespace {

bool isGrave(const Finding &finding)
{
    return finding.kind == Finding::Kind::Refused || finding.kind == Finding::Kind::Fails;
}

} // namespace

Preflight::Preflight(const PreflightParts &parts) : m_parts(parts)
{
    connect(&m_parts.probe, &ServerProbe::finished, this, &Preflight::onProbeFinished);
}

void Preflight::begin()
{
    look();
    const auto server = m_parts.trial.server();
    m_isRunning = true;
    if (server) {
        m_parts.probe.begin(*server);
        return;
    }
    // From the event loop, as the probe's answer.
    QMetaObject::invokeMethod(
        this,
        [this, turn = m_turn] {
            if (turn == m_turn)
                finish();
        },
        Qt::QueuedConnection);
}

void Preflight::look()
{
    giveUp();
    m_situation = m_parts.form.situation();
    QList<Finding> findings =
        findingsInForm(m_parts.form, m_parts.recipients.count(), m_parts.trial.server());
    const MessageLook message = lookAtMessage(m_parts.form, m_parts.attachments, m_parts.reader);
    findings += message.findings;
    findings += compose(std::any_of(findings.begin(), findings.end(), isGrave));
    findings += findingsInRows(m_parts.form, m_parts.recipients, message.usesNames);
    setFindings(std::move(findings));
}

// The message as the first checked row would get it. Why it cannot be built is only said when
// nothing else has said so.
QList<Finding> Preflight::compose(bool reasonIsKnown)
{
    const auto &rows = m_parts.recipients.rows();
    const auto first =
        std::find_if(rows.begin(), rows.end(), [](const Recipient &row) { return row.checked; });
    const auto position = first == rows.end() ? 0 : static_cast<int>(first - rows.begin()) + 1;
    // To the sender, whose address every message has to have: one row's address is its own affair.
    const auto composed =
        m_parts.trial.compose(position, m_parts.form.text(Control::txtEmailMittente));
    m_messageSize = composed ? composed->size() : 0;
    QList<Finding> findings;
    if (!composed && !reasonIsKnown) {
        findings.append(
            {Finding::Kind::Fails, tr("The message cannot be made: %1").arg(composed.error())});
    }
    return findings + findingsInPictures(m_parts.form, m_parts.trial.client().HtmlBody);
}

void Preflight::giveUp()
{
    ++m_turn;
    if (std::exchange(m_isRunning, false))
        m_parts.probe.giveUp();
}

void Preflight::onProbeFinished(const ServerReport &report)
{
    if (!m_isRunning)
        return;
    setFindings(m_findings +
                findingsAbout(report, m_parts.form.text(Control::txtEmailMittente), m_messageSize));
    finish();
}

void Preflight::finish()
{
    m_isRunning = false;
    // Another project was opened, or a run began: nothing of this is true any more.
    if (m_parts.form.situation() != m_situation)
        setFindings({});
    Q_EMIT finished();
}

void Preflight::setFindings(QList<Finding> findings)
{
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Finding &a, const Finding &b) { return a.kind < b.kind; });
    m_findings = std::move(findings);
    Q_EMIT findingsChanged();
}
