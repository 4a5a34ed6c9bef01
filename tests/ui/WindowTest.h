#pragma once

#include <QObject>
#include <QRegularExpression>
#include <QTest>

/// A test that shows windows. Any warning fails it, but for the one that the platform without a
/// screen gives for every window with a least size.
class WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        const QString others =
            QStringLiteral("^(?!This plugin does not support propagateSizeHints)");
        QTest::failOnWarning(QRegularExpression(others));
    }
};
