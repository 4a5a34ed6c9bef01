#pragma once

#include "smtp/LoginSource.h"

#include <QStringList>

/// Knows the forms in which a login's secret can stand in a line, and takes them out: a server may
/// repeat in its reply what it was told.
class Secrets
{
public:
    void learn(const Login &login);
    /// The text with every form of every secret replaced by "***".
    [[nodiscard]] QString hide(QString text) const;

private:
    QStringList m_forms;
};
