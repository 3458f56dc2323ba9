#include "tests/support/QuietTest.h"

#include "operations/common/TextReplacement.h"

#include <QtTest>

/// Every row is replaced in both ways and compared with Qt.
class TextReplacementTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void equalsQt_data();
    void equalsQt();
    void moreThanAreKept();
    void nothingToDoSharesTheText();
};

void TextReplacementTest::equalsQt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("replacement");

    const QString words = QString("one Two three, ").repeated(100);
    for (const QString &replacement : {QString(), QString("+"), QString("eightfol"),
                                       QString("more than eight units"), QString("wo")}) {
        const auto row = [&](const char *name, const QString &text, const QString &search) {
            QTest::addRow("%s by %d units", name, replacement.size())
                << text << search << replacement;
        };
        row("absent", words, "four");
        row("two units", words, "tw");
        row("one unit", words, ",");
        row("nearly all", words, words.left(words.size() - 1));
        row("all", words, words);
        row("nothing", words, "");
        row("nothing in nothing", "", "");
        row("something in nothing", "", "x");
        row("overlapping", QString(100, 'a'), "aaa");
        row("beginning and end", "twotwo", "two");
        row("half a pair", QString("\U00010400").repeated(9) + QChar(0xDC00), QChar(0xDC00));
    }
    QTest::newRow("pieces of 8 and 9 units") << QString("12345678,123456789,").repeated(20) << ","
                                             << "123456789";
}

void TextReplacementTest::equalsQt()
{
    QFETCH(QString, text);
    QFETCH(QString, search);
    QFETCH(QString, replacement);
    for (const auto sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        QCOMPARE(replacedText(text, search, replacement, sensitivity),
                 QString(text).replace(search, replacement, sensitivity));
    }
}

/// Beyond these many occurrences they are searched for a second time.
void TextReplacementTest::moreThanAreKept()
{
    constexpr int kept = 1 << 22;
    for (const int count : {kept, kept + 1, kept + 100000}) {
        QCOMPARE(replacedText(QString(count, 'a') + "b", "a", "cd", Qt::CaseSensitive),
                 QString("cd").repeated(count) + "b");
    }
}

void TextReplacementTest::nothingToDoSharesTheText()
{
    const QString text = "abc";
    QCOMPARE(replacedText(text, "x", "y", Qt::CaseSensitive).constData(), text.constData());
    QCOMPARE(replacedText(text, "", "", Qt::CaseSensitive).constData(), text.constData());
}

QTEST_GUILESS_MAIN(TextReplacementTest)

#include "TextReplacementTest.moc"
