#include "ui/RunSeen.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace {

bool isPress(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        return true;
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride: // the key of a command comes as this alone
        // A key held down since before, with a book on it for instance, tells of nobody.
        return !static_cast<const QKeyEvent &>(event).isAutoRepeat();
    default:
        return false;
    }
}

} // namespace

RunSeen::RunSeen(const Form &form, std::function<void()> onSeen, QObject *parent)
    : QObject(parent), m_onSeen(std::move(onSeen))
{
    connect(&form, &Form::runStateChanged, this, &RunSeen::watch);
}

// Every event of the program comes by here, so that nobody listens longer than needed.
void RunSeen::watch(RunState state)
{
    if (state == RunState::Idle)
        QCoreApplication::instance()->installEventFilter(this);
    else
        QCoreApplication::instance()->removeEventFilter(this);
}

bool RunSeen::eventFilter(QObject *watched, QEvent *event)
{
    if (isPress(*event)) {
        QCoreApplication::instance()->removeEventFilter(this);
        m_onSeen();
    }
    return QObject::eventFilter(watched, event);
}
