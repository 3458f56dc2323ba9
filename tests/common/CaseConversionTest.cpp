#include "tests/support/QuietTest.h"

#include "operations/common/CaseConversion.h"

#include <QtTest>

#include <algorithm>
#include <limits>

class CaseConversionTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void equalsQt_data();
    void equalsQt();
    void unchangedTextIsShared();
    void everyLetterThatGrowsIsFast();
    void growsInLinearTime();
};

void CaseConversionTest::equalsQt_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<int>("count");

    const QString high(QChar(0xD801));
    for (const int count : {1, 700, 2048, 5000}) {
        const auto row = [&](const char *name, const QString &part) {
            QTest::addRow("%s, %d times", name, count) << part << count;
        };
        row("ascii", "aB");
        row("chinese", "中文");
        row("sharp s", "ß");
        row("sharp s among others", "Straße ");
        row("dotted i", "İx");
        row("ligatures", "ﬃﬀ");
        row("greek", "ΐΰᾳΣς");
        row("pairs with a case", "\U00010400\U00010428ß");
        row("pairs before growing letters", "x\U00010428\U0001F600ß");
        row("first halves alone", "ß" + high + "aß");
        row("first half at the end of a piece", "ßx" + high + QChar(0xDC28) + "y");
        row("second halves alone", QString("ß") + QChar(0xDC28) + "a");
        row("first halves only", high);
        row("first halves and growing letters", high + high + QChar(0xDC28) + "ß");
    }
}

void CaseConversionTest::equalsQt()
{
    QFETCH(QString, part);
    QFETCH(int, count);
    for (const QString &text : {part.repeated(count), "a" + part.repeated(count)}) {
        QCOMPARE(toUpperText(text), text.toUpper());
        QCOMPARE(toLowerText(text), text.toLower());
    }
}

void CaseConversionTest::unchangedTextIsShared()
{
    const QString text = QString("大写").repeated(3000);
    QCOMPARE(toUpperText(text).constData(), text.constData());
    QCOMPARE(toLowerText(text).constData(), text.constData());
}

namespace {

using Conversion = QString (*)(const QString &text);

/// Nanoseconds for a text in which every letter grows, the least of `runs`.
qint64 timeOf(Conversion convert, const QString &text, int runs)
{
    qint64 best = std::numeric_limits<qint64>::max();
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        convert(text);
        best = std::min(best, timer.nsecsElapsed());
    }
    return best;
}

QString qtUpper(const QString &text)
{
    return text.toUpper();
}

QString qtLower(const QString &text)
{
    return text.toLower();
}

} // namespace

/// Should Qt come to know a letter that grows and is not expected to, this is where it shows: it is
/// left to Qt then, which takes many times as long.
void CaseConversionTest::everyLetterThatGrowsIsFast()
{
    int letters = 0;
    for (uint unit = 0; unit < 0x10000; ++unit) {
        const QString one(QChar(static_cast<ushort>(unit)));
        const bool growsUp = one.toUpper().size() > 1;
        if (!growsUp && one.toLower().size() == 1)
            continue;
        ++letters;
        const QString text = one.repeated(16000);
        const qint64 time = timeOf(growsUp ? toUpperText : toLowerText, text, 3);
        const qint64 qtTime = timeOf(growsUp ? qtUpper : qtLower, text, 1);
        QVERIFY2(time < qtTime / 4 * 3, qPrintable(QString::number(unit, 16)));
    }
    QVERIFY(letters > 100);
}

/// Moving the rest of the text for each of these letters would take a minute.
void CaseConversionTest::growsInLinearTime()
{
    const QString text(2000000, QChar(0xDF));
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(toUpperText(text).size(), 2 * text.size());
    QVERIFY(timer.elapsed() < 10000);
}

QTEST_GUILESS_MAIN(CaseConversionTest)

#include "CaseConversionTest.moc"
