#include "tests/support/ListOf.h"
#include "tests/support/QuietTest.h"

#include "refhost/engine/ExactValue.h"

#include <QtTest>

#include <cmath>
#include <cstring>
#include <limits>

class ExactValueTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void words_data();
    void words();
    void onlyItselfIsTheSame();
};

namespace {

struct Sample
{
    const char *words;
    QVariant value;
};

/// No two of them are the same, whatever Qt's comparison says.
QList<Sample> samples()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    return {{"no value", {}},
            {"false", false},
            {"true", true},
            {"the 32-bit number 0", 0},
            {"the 32-bit number -7", -7},
            {"the 64-bit number 0", 0LL},
            {"the 64-bit number 9007199254740993", 9007199254740993LL},
            {"the floating-point number 0", 0.0},
            {"the floating-point number -0", -0.0},
            {"the floating-point number 0.1", 0.1},
            {"the floating-point number 0.10000000000000002", std::nextafter(0.1, 1.0)},
            {"the floating-point number -inf", -std::numeric_limits<double>::infinity()},
            {"no number (of the bits 7ff8000000000000)", nan},
            {"no number (of the bits fff8000000000000)", std::copysign(nan, -1.0)},
            {"a null text", QString()},
            {"the text \"\"", ""},
            {"the text \"a\\n文\"", "a\n文"},
            {"the text \"\\ud800\"", QString(QChar(0xD800))},
            {"a list of length 0", QVariantList()},
            {"a list of length 1", listOf({1})},
            {"a list of length 1", listOf({1LL})},
            {"a list of length 1", listOf({QVariantList()})},
            {"a list of length 1", listOf({listOf({QString()})})},
            {"a list of length 1", listOf({listOf({""})})},
            {"a list of length 2", listOf({1, 2})},
            {"a value of the type QStringList", QStringList()}};
}

} // namespace

void ExactValueTest::words_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");
    int number = 0;
    for (const Sample &sample : samples())
        QTest::addRow("%d: %s", number++, sample.words) << sample.value << sample.words;
}

void ExactValueTest::words()
{
    QFETCH(QVariant, value);
    QTEST(valueWords(value), "expected");
}

void ExactValueTest::onlyItselfIsTheSame()
{
    const QList<Sample> all = samples();
    for (int i = 0; i < all.size(); ++i) {
        for (int j = 0; j < all.size(); ++j) {
            QVERIFY2(isSameValue(all.at(i).value, all.at(j).value) == (i == j),
                     qPrintable(QString("%1 and %2").arg(i).arg(j)));
        }
    }
}

QTEST_GUILESS_MAIN(ExactValueTest)

#include "ExactValueTest.moc"
