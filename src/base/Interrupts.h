#pragma once

#include <QObject>

#include <memory>

/// Turns the signals that ask a program to end (Ctrl-C, a termination, a closed terminal) into a Qt
/// signal. While an object of this class lives, they no longer end the program by themselves.
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
