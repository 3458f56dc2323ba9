#include "tests/support/QuietTest.h"

#include "operations/common/TextSearch.h"

#include <QStringMatcher>
#include <QVector>
#include <QtTest>

/// Every row is searched in both ways and compared with Qt, and again behind 600 other units: short
/// texts are searched by Qt itself.
class TextSearchTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void positions_data();
    void positions();
    void startsAnywhere();
    void everyOccurrenceWithOverlaps();
    void skippedOverByQt();
    void nothingBehindTheEnd();
    void changesTheWayOfSearching_data();
    void changesTheWayOfSearching();

private:
    static void compare(const QString &text, const QString &searched);
    static QVector<int> allByTextSearch(const QString &text, const QString &searched,
                                        Qt::CaseSensitivity sensitivity);
};

namespace {

const QString high(QChar(0xD801));
const QString low(QChar(0xDC00));
const QString lowOfSmall(QChar(0xDC28));

QString many(const QString &part, int count)
{
    return part.repeated(count);
}

} // namespace

QVector<int> TextSearchTest::allByTextSearch(const QString &text, const QString &searched,
                                             Qt::CaseSensitivity sensitivity)
{
    QVector<int> positions;
    TextSearch search(text, searched, sensitivity);
    const int step = qMax(1, searched.size());
    for (int i = search.next(0); i >= 0; i = search.next(i + step))
        positions.append(i);
    return positions;
}

void TextSearchTest::compare(const QString &text, const QString &searched)
{
    for (const auto sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        QCOMPARE(indexOfText(text, searched, 0, sensitivity),
                 text.indexOf(searched, 0, sensitivity));
        QVector<int> expected;
        const QStringMatcher matcher(searched, sensitivity);
        const int step = qMax(1, searched.size());
        for (int i = matcher.indexIn(text); i >= 0; i = matcher.indexIn(text, i + step))
            expected.append(i);
        QCOMPARE(allByTextSearch(text, searched, sensitivity), expected);
    }
}

void TextSearchTest::positions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("searched");

    QTest::newRow("at the start") << "abcd"
                                  << "ab";
    QTest::newRow("in the middle") << "abcd"
                                   << "bc";
    QTest::newRow("at the end") << "abcd"
                                << "cd";
    QTest::newRow("whole") << "abcd"
                           << "abcd";
    QTest::newRow("absent") << "abcd"
                            << "ac";
    QTest::newRow("one unit") << "abab"
                              << "b";
    QTest::newRow("longer than the text") << "ab"
                                          << "abc";
    QTest::newRow("empty text") << ""
                                << "a";
    QTest::newRow("empty searched text") << "ab"
                                         << "";
    QTest::newRow("both empty") << ""
                                << "";
    QTest::newRow("overlapping") << "aaaaa"
                                 << "aa";
    QTest::newRow("start again within a failed match") << "aabaabaaab"
                                                       << "aabaaab";
    QTest::newRow("repeating") << "abababababac"
                               << "ababac";
    QTest::newRow("other case") << "xABCx"
                                << "abc";
    QTest::newRow("three forms") << QString("1K2k3") + QChar(0x212A) + "4"
                                 << "k";
    QTest::newRow("three forms in a word") << QString("aKb akb a") + QChar(0x212A) + "b"
                                           << "akb";
    QTest::newRow("four forms") << QString::fromUtf8("ΙιιΙ") + QChar(0x345) + QChar(0x1FBE)
                                << QString::fromUtf8("ιι");
    QTest::newRow("long s") << QString::fromUtf8("Straſſe strasse") << "STRASSE";
    QTest::newRow("growing letters stay apart")
        << QString::fromUtf8("STRASSE") << QString::fromUtf8("straße");
    QTest::newRow("final sigma") << QString::fromUtf8("ΣΑΣ σας") << QString::fromUtf8("σασ");
    QTest::newRow("turkish dots") << QString::fromUtf8("İiıI") << "i";
    QTest::newRow("chinese") << QString::fromUtf8("甲乙丙，甲乙丁") << QString::fromUtf8("甲乙丁");
    QTest::newRow("pair") << "a\U0001F600b\U0001F600"
                          << "\U0001F600";
    QTest::newRow("pair with a case") << high + low + "x" + high + lowOfSmall << high + lowOfSmall;
    QTest::newRow("second half alone") << high + low + "x" + low << low;
    QTest::newRow("second half and more") << high + low + "x" + low + "x" << low + "x";
    QTest::newRow("first half alone") << high + low + "x" + high << high;
    QTest::newRow("first half and more") << high + "x" + high + low << "x" + high;
    QTest::newRow("two first halves") << high + high + low << high + low;
    QTest::newRow("two second halves") << high + low + low << low + low;
    QTest::newRow("second half before a long text")
        << high + low + many("x", 100) + low + many("x", 90) << low + many("x", 80);
    QTest::newRow("null unit") << "a" + QString(QChar(0)) + "b" << QString(QChar(0)) + "b";
    QTest::newRow("units that share a low byte") << QString(QChar(0x4161)) + "ab"
                                                 << "ab";
}

void TextSearchTest::positions()
{
    QFETCH(QString, text);
    QFETCH(QString, searched);
    compare(text, searched);
    compare(many("-+", 300) + text, searched);
    compare(text + many("-+", 1000), searched);
}

void TextSearchTest::startsAnywhere()
{
    const QString text = many("abcabd", 200);
    for (const QString &searched :
         {QString("abd"), QString("b"), QString(), QString("abcabdabc")}) {
        for (int from = 0; from <= text.size() + 2; ++from)
            QCOMPARE(indexOfText(text, searched, from, Qt::CaseSensitive),
                     text.indexOf(searched, from, Qt::CaseSensitive));
    }
}

/// From every start, one behind the other, also from before the last occurrence.
void TextSearchTest::everyOccurrenceWithOverlaps()
{
    for (const QString &searched :
         {QString("aa"), QString("abaab"), QString("b"), QString("aabaabaab")}) {
        const QString text = many("aabaab", 80) + many("x", 200) + many("aab", 90);
        for (const auto sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
            TextSearch search(text, searched, sensitivity);
            for (int from = 0; from <= text.size(); ++from)
                QCOMPARE(search.next(from), text.indexOf(searched, from, sensitivity));
        }
    }
}

/// Qt skips by 255 units; where these begin within a surrogate pair it passes over what is there.
void TextSearchTest::skippedOverByQt()
{
    for (const QString &half : {low, lowOfSmall}) {
        for (const int behind : {253, 254, 255, 300}) {
            const QString searched = high + half + many("y", behind);
            compare(many("z", 254) + searched + many("z", 400), searched);
            compare(many("z", 400) + searched, many("y", 50) + searched);
            compare(many("z", 200) + many("y", 50) + searched + many("z", 400),
                    many("y", 50) + searched);
        }
    }
}

void TextSearchTest::nothingBehindTheEnd()
{
    TextSearch search("abc", "bc", Qt::CaseSensitive);
    QCOMPARE(search.next(1), 1);
    QCOMPARE(search.next(2), -1);
    QCOMPARE(search.next(3), -1);
    QCOMPARE(search.next(100), -1);
}

/// Texts for which it gives up looking for two units, then skipping, before and after a match.
void TextSearchTest::changesTheWayOfSearching_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("searched");

    const QString run = many("a", 4000);
    QTest::newRow("odd one in the middle")
        << run + "b" + run << many("a", 90) + "b" + many("a", 90);
    QTest::newRow("odd one first") << run + "b" + run << "b" + many("a", 90);
    QTest::newRow("odd one last") << run + "b" + run << many("a", 90) + "b";
    QTest::newRow("odd one absent") << run << many("a", 90) + "b" + many("a", 90);
    QTest::newRow("match before the change")
        << many("a", 20) + "b" + many("a", 20) + run + "b" + run
        << many("a", 20) + "b" + many("a", 20);
    QTest::newRow("few units") << run + "ab" + run << "aab";
    QTest::newRow("two letters") << many("ab", 3000) + "b" + many("ab", 3000)
                                 << many("ab", 40) + "b";
    QTest::newRow("two letters, nearly") << many("ab", 3000) << many("ab", 40) + "aab";
    QTest::newRow("many matches") << many("aaaab", 1000) + many("aaaaa", 1000) << "aaaab";
    QTest::newRow("longer than a skip")
        << many("x", 9000) + many("ab", 3000) + "c" << many("ab", 2500) + "c";
}

void TextSearchTest::changesTheWayOfSearching()
{
    QFETCH(QString, text);
    QFETCH(QString, searched);
    compare(text, searched);
    compare(text, searched.toUpper());
}

QTEST_GUILESS_MAIN(TextSearchTest)

#include "TextSearchTest.moc"
