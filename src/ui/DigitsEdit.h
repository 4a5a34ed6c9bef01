#pragma once

#include <QLineEdit>

/// A text box into which only digits can be typed. What is pasted or dropped is not filtered.
class DigitsEdit : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
};
