#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

class QWidget;

/// Lets files be dropped onto a widget. What it refuses is offered to the widget's parent.
class FileDrops : public QObject
{
    Q_OBJECT

public:
    /// Says whether these files (absolute native paths) may be dropped now.
    using Accepts = std::function<bool(const QStringList &paths)>;
    using Takes = std::function<void(const QStringList &paths)>;

    FileDrops(QWidget &target, Accepts accepts, Takes takes);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Accepts m_accepts;
    Takes m_takes;
};
