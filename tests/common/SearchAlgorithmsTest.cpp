#include "tests/support/QuietTest.h"

#include "operations/common/SkipSearch.h"
#include "operations/common/TwoWaySearch.h"

#include <QString>
#include <QtTest>

/// The algorithms alone, on all texts of a few letters: every way in which a text can repeat
/// itself.
class SearchAlgorithmsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void allShortTexts();
    void longTexts_data();
    void longTexts();

private:
    static void compare(const QString &text, const QString &searched);
};

namespace {

/// The text number `number` of this size over the letters a and b.
QString textOf(int number, int size)
{
    QString text;
    for (int i = 0; i < size; ++i)
        text.append(QLatin1Char((number >> i) % 2 == 0 ? 'a' : 'b'));
    return text;
}

} // namespace

void SearchAlgorithmsTest::compare(const QString &text, const QString &searched)
{
    SkipSearch<QStringView> skipping(text, searched);
    const TwoWaySearch<QStringView> twoWay(text, searched);
    for (int from = 0; from <= text.size(); ++from) {
        const int expected = text.indexOf(searched, from);
        QCOMPARE(skipping.next(from), expected);
        QCOMPARE(twoWay.next(from), expected);
    }
}

void SearchAlgorithmsTest::allShortTexts()
{
    constexpr int textSize = 11;
    for (int searchedSize = 2; searchedSize <= 6; ++searchedSize) {
        for (int i = 0; i < 1 << searchedSize; ++i) {
            for (int j = 0; j < 1 << textSize; j += 3)
                compare(textOf(j, textSize), textOf(i, searchedSize));
        }
    }
}

void SearchAlgorithmsTest::longTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("searched");

    const QString words = QString("one two three four five six ").repeated(40);
    QTest::newRow("word at the end") << words + "seven"
                                     << "seven";
    QTest::newRow("nearly a word") << words << "three fouR";
    QTest::newRow("repetitive") << QString(900, 'a') + "b" + QString(900, 'a')
                                << QString(300, 'a') + "b" + QString(300, 'a');
    QTest::newRow("repetitive, absent")
        << QString(1800, 'a') << QString(300, 'a') + "b" + QString(300, 'a');
    QTest::newRow("long period") << QString("abcabcab").repeated(100) + "c"
                                 << QString("abcabcab").repeated(9) + "c";
    QTest::newRow("slots of one kind") << QString("a\x01").repeated(500) + "ab"
                                       << "xab";
}

void SearchAlgorithmsTest::longTexts()
{
    QFETCH(QString, text);
    QFETCH(QString, searched);
    compare(text, searched);
}

QTEST_GUILESS_MAIN(SearchAlgorithmsTest)

#include "SearchAlgorithmsTest.moc"
