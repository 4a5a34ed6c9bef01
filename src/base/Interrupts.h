#pragma once

#include <QObject>

#include <memory>

/// Turns the signals that ask a program to end (Ctrl-C, a termination, a closed terminal) into a Qt
/// signal; they no longer end the program by themselves. When the object is gone they are ignored:
/// a program on its way out with a result must not be killed in its stead, since whoever sees it
/// killed would begin again what is done.
class Interrupts : public QObject
{
    Q_OBJECT

public:
    explicit Interrupts(QObject *parent = nullptr);
    ~Interrupts() override;

Q_SIGNALS:
    void interrupted();

private:
    struct Watch;
    std::unique_ptr<Watch> m_watch;
};
