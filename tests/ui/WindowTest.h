#pragma once

#include <QObject>
#include <QRegularExpression>
#include <QTest>

/// A test that shows windows. Any warning fails it, but for those about what a platform without a
/// screen cannot do: sizes, layers and grabs.
class WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        const QString others = QStringLiteral("^(?!This plugin does not support )");
        QTest::failOnWarning(QRegularExpression(others));
    }
};
