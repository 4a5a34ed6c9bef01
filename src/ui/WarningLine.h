#pragma once

#include <QWidget>

class QLabel;

/// A line of a window that says what went wrong, with a sign before it; not there when nothing did.
/// Screen readers say it at once. Its label is named "lblLine".
class WarningLine : public QWidget
{
    Q_OBJECT

public:
    explicit WarningLine(QWidget *parent = nullptr);

    void setText(const QString &text);

private:
    QLabel *m_label;
};
