#pragma once

#include "form/Form.h"
#include "message/Attachments.h"
#include "message/MessageReader.h"
#include "preflight/Finding.h"
#include "preflight/TrialMessage.h"
#include "recipients/RecipientList.h"
#include "smtp/ServerProbe.h"

#include <QList>
#include <QObject>

/// What a preflight looks at. All of it outlives the preflight.
struct PreflightParts
{
    const Form &form;
    const RecipientList &recipients;
    const Attachments &attachments;
    const MessageReader &reader;
    TrialMessage &trial;
    ServerProbe &probe; ///< of its own: no other part listens to it
};

/// Looks a project over before it is sent. It never stops anybody from starting.
class Preflight : public QObject
{
    Q_OBJECT

public:
    explicit Preflight(const PreflightParts &parts);

    /// Looks at everything that needs no server at once, then asks the server. One that goes on is
    /// begun anew.
    void begin();
    /// Looks at everything that needs no server and leaves it at that.
    void look();
    /// Gives up what goes on.
    void giveUp();

    /// What was found so far, the gravest first.
    [[nodiscard]] const QList<Finding> &findings() const { return m_findings; }
    /// The server is still being asked.
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

Q_SIGNALS:
    void findingsChanged();
    /// The server was asked. The findings of a project that is no longer open are gone.
    void finished();

private:
    [[nodiscard]] QList<Finding> compose(bool reasonIsKnown);
    void onProbeFinished(const ServerReport &report);
    void finish();
    void setFindings(QList<Finding> findings);

    const PreflightParts m_parts;
    QList<Finding> m_findings;
    Situation m_situation;    ///< which the findings are about
    qint64 m_messageSize = 0; ///< bytes to be transferred; 0: not known
    bool m_isRunning = false;
    quint32 m_turn = 0; ///< changes with every begin, look and giveUp
};
