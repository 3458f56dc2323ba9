#include "refhost/workbench/variables/TextWalk.h"

#include "tests/support/QuietTest.h"

#include <QTest>

/// A cursor goes through texts by characters and by words, and never into a surrogate pair.
class TextWalkTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void walksByCharacters_data();
    void walksByCharacters();
    void walksByWords_data();
    void walksByWords();
    void findsTheWordAround_data();
    void findsTheWordAround();
    void endsAreEnds();
};

void TextWalkTest::walksByCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<int>>("stops");
    const QChar high(0xd83d);
    const QChar low(0xde00);

    QTest::newRow("letters") << "ab" << QVector<int>{0, 1, 2};
    QTest::newRow("pair") << QString("a") + high + low + "b" << QVector<int>{0, 1, 3, 4};
    QTest::newRow("pairs") << QString(high) + low + high + low << QVector<int>{0, 2, 4};
    QTest::newRow("lone first half") << QString("a") + high + "b" << QVector<int>{0, 1, 2, 3};
    QTest::newRow("lone second half") << QString("a") + low + "b" << QVector<int>{0, 1, 2, 3};
    QTest::newRow("halves the wrong way") << QString(low) + high << QVector<int>{0, 1, 2};
    QTest::newRow("nothing") << "" << QVector<int>{0};
}

void TextWalkTest::walksByCharacters()
{
    QFETCH(QString, text);
    QFETCH(QVector<int>, stops);
    for (int i = 0; i + 1 < stops.size(); ++i) {
        QCOMPARE(nextPosition(text, stops.at(i)), stops.at(i + 1));
        QCOMPARE(previousPosition(text, stops.at(i + 1)), stops.at(i));
    }
}

void TextWalkTest::walksByWords_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("previous");
    QTest::addColumn<int>("next");

    QTest::newRow("within a word") << "one two_2 end" << 6 << 4 << 10;
    QTest::newRow("before a word") << "one two_2 end" << 4 << 0 << 10;
    QTest::newRow("between marks") << "one -- two" << 5 << 0 << 7;
    QTest::newRow("at the beginning") << "one two" << 0 << 0 << 4;
    QTest::newRow("at the end") << "one two" << 7 << 4 << 7;
    QTest::newRow("Chinese") << QString(u8"金额：￥5") << 3 << 0 << 4;
    QTest::newRow("long") << QString(3 << 20, 'x') << (3 << 19) << (1 << 19) << (5 << 19);
}

void TextWalkTest::walksByWords()
{
    QFETCH(QString, text);
    QFETCH(int, position);
    QTEST(previousWord(text, position), "previous");
    QTEST(nextWord(text, position), "next");
}

void TextWalkTest::findsTheWordAround_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");

    QTest::newRow("within") << "one two_2 end" << 6 << 4 << 9;
    QTest::newRow("at its beginning") << "one two" << 4 << 4 << 7;
    QTest::newRow("at its end") << "one two" << 3 << 0 << 3;
    QTest::newRow("in none") << "one -- two" << 5 << 5 << 5;
}

void TextWalkTest::findsTheWordAround()
{
    QFETCH(QString, text);
    QFETCH(int, position);
    QTEST(wordStart(text, position), "start");
    QTEST(wordEnd(text, position), "end");
}

void TextWalkTest::endsAreEnds()
{
    QCOMPARE(nextPosition("ab", 2), 2);
    QCOMPARE(previousPosition("ab", 0), 0);
}

QTEST_GUILESS_MAIN(TextWalkTest)
#include "TextWalkTest.moc"
