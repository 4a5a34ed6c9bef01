#pragma once

#include "base/Language.h"
#include "recipients/RecipientList.h"
#include "sending/SendingEngine.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

/// Tells the desktop what became of a run when nobody looks at the program: at its end, when it
/// broke off, and when it paused by itself. A click on it brings the window to the front. Where the
/// desktop has no notifications nothing happens.
class RunNotification : public QObject
{
    Q_OBJECT

public:
    RunNotification(const SendingEngine &engine, const RecipientList &recipients, Language language,
                    QWidget &window);

private Q_SLOTS:
    void wasClicked(uint id, const QString &action);

private:
    void notify(const QString &summary, const QString &reason);

    const RecipientList &m_recipients;
    Language m_language;
    QPointer<QWidget> m_window;
    uint m_shown = 0; ///< 0: none
};
