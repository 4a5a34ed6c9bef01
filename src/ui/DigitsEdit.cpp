#include "ui/DigitsEdit.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

#include <algorithm>

namespace {

bool holdsOnlyDigits(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
}

} // namespace

void DigitsEdit::keyPressEvent(QKeyEvent *event)
{
    const QString typed = event->text();
    // Shortcuts and editing keys carry no text or a control character.
    const bool isPrintable = !typed.isEmpty() && typed.front().isPrint();
    const bool isCommand = event->modifiers().testAnyFlags(Qt::ControlModifier | Qt::MetaModifier);
    if (isPrintable && !isCommand && !holdsOnlyDigits(typed)) {
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void DigitsEdit::inputMethodEvent(QInputMethodEvent *event)
{
    if (holdsOnlyDigits(event->commitString()) && holdsOnlyDigits(event->preeditString()))
        QLineEdit::inputMethodEvent(event);
}
