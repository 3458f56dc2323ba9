#include "tests/support/QuietTest.h"

#include "refhost/runner/OneLine.h"

#include <QtTest>

class OneLineTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void line_data();
    void line();
};

void OneLineTest::line_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("plain") << "添加文本: $a + x"
                           << "添加文本: $a + x";
    QTest::newRow("breaks") << "a\r\n\tb"
                            << "a\\r\\n\\tb";
    QTest::newRow("bell") << "\a"
                          << "\\u0007";
    QTest::newRow("line separator") << "a\u2028b"
                                    << "a\\u2028b";
    QTest::newRow("backslash stays") << "\\n"
                                     << "\\n";
    QTest::newRow("emoji stays") << "\U0001F600"
                                 << "\U0001F600";
}

void OneLineTest::line()
{
    QFETCH(QString, text);
    QTEST(oneLine(text), "expected");
}

QTEST_GUILESS_MAIN(OneLineTest)

#include "OneLineTest.moc"
