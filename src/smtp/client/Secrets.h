#pragma once

#include "smtp/LoginSource.h"

#include <QByteArray>
#include <QList>

/// Knows the forms in which a login's secret can stand in a server's reply, and takes them out: it
/// may repeat what it was told.
class Secrets
{
public:
    void learn(const Login &login);
    /// The bytes with every form of every secret replaced by "***".
    [[nodiscard]] QByteArray hide(QByteArray bytes) const;

private:
    QList<QByteArray> m_forms;
};
