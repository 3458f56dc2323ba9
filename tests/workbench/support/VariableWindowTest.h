#pragma once

#include "tests/support/QuietTest.h"

#include <QTest>

/// Base of tests that open windows on a platform without a screen, which remarks on each of them.
class VariableWindowTest : public QuietTest
{
protected:
    void cleanup()
    {
        QStringList others;
        const QStringList lines = takeWarnings();
        for (const QString &line : lines) {
            if (!line.startsWith(QLatin1String("This plugin does not support ")))
                others.append(line);
        }
        QuietTest::cleanup();
        QVERIFY2(others.isEmpty(), qPrintable(others.join(QStringLiteral(" / "))));
    }
};
