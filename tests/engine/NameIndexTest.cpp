#include "tests/support/QuietTest.h"

#include "refhost/engine/EditDistance.h"
#include "refhost/engine/NameIndex.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

/// How names that are near to each other are found: against a plain rendition, and in time.
class NameIndexTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void distances_data();
    void distances();
    void distancesOfRandomTexts();
    void nearest_data();
    void nearest();
    void nearestOfRandomNames();
    void suggestions_data();
    void suggestions();
    void leadingSizes_data();
    void leadingSizes();
    void manyNames();
};

namespace {

/// The whole matrix, without any short cut.
int plainDistance(const QString &left, const QString &right)
{
    QVector<QVector<int>> edits(left.size() + 1, QVector<int>(right.size() + 1));
    for (int i = 0; i <= left.size(); ++i) {
        for (int j = 0; j <= right.size(); ++j) {
            if (i == 0 || j == 0) {
                edits[i][j] = i + j;
                continue;
            }
            const int replaced = edits[i - 1][j - 1] + (left.at(i - 1) == right.at(j - 1) ? 0 : 1);
            edits[i][j] = std::min({edits[i - 1][j] + 1, edits[i][j - 1] + 1, replaced});
            if (i > 1 && j > 1 && left.at(i - 1) == right.at(j - 2) &&
                left.at(i - 2) == right.at(j - 1))
                edits[i][j] = std::min(edits[i][j], edits[i - 2][j - 2] + 1);
        }
    }
    return edits.last().last();
}

/// A text of a few letters, so that many are near to each other.
QString randomText(QRandomGenerator &random, int longest)
{
    QString text;
    const int size = random.bounded(longest + 1);
    for (int i = 0; i < size; ++i)
        text += QChar('a' + random.bounded(4));
    return text;
}

/// The first of the names that are nearest by their letters.
QString plainNearest(const QString &name, const QStringList &declared)
{
    QString nearest;
    int fewest = 4;
    for (const QString &candidate : declared) {
        const int allowed = std::min(std::max(name.size(), candidate.size()) / 3, 3);
        const int edits = plainDistance(name, candidate);
        if (edits <= allowed && edits < fewest) {
            fewest = edits;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace

void NameIndexTest::distances_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<int>("edits");
    const auto row = [](const char *left, const char *right, int edits) {
        QTest::addRow("%s, %s", left, right) << left << right << edits;
    };
    row("", "", 0);
    row("", "ab", 2);
    row("line", "line", 0);
    row("lien", "line", 1);
    row("lin", "line", 1);
    row("line", "lines", 1);
    row("lime", "line", 1);
    row("aab", "aba", 1);
    row("ca", "abc", 3); // a swapped pair is not touched again
    row("abcd", "badc", 2);
    row("订单号", "订号单", 1);
}

void NameIndexTest::distances()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QFETCH(int, edits);
    for (int most = 0; most <= 5; ++most) {
        QCOMPARE(std::min(editDistance(left, right, most), most + 1), std::min(edits, most + 1));
        QCOMPARE(std::min(editDistance(right, left, most), most + 1), std::min(edits, most + 1));
    }
}

void NameIndexTest::distancesOfRandomTexts()
{
    QRandomGenerator random(4711);
    for (int round = 0; round < 20000; ++round) {
        const QString left = randomText(random, 10);
        const QString right = randomText(random, 10);
        const int most = random.bounded(5);
        const int expected = std::min(plainDistance(left, right), most + 1);
        const int actual = std::min(editDistance(left, right, most), most + 1);
        QVERIFY2(actual == expected, qPrintable(QString("%1, %2, %3: %4 instead of %5")
                                                    .arg(left, right)
                                                    .arg(most)
                                                    .arg(actual)
                                                    .arg(expected)));
    }
}

void NameIndexTest::nearest_data()
{
    using Difference = NearName::Difference;
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("declared");
    QTest::addColumn<int>("difference");
    QTest::addColumn<QString>("meant");
    const auto row = [](const char *name, const QStringList &declared, Difference difference,
                        const char *meant) {
        QTest::addRow("%s of %s", name, qPrintable(declared.join('|')))
            << name << declared << static_cast<int>(difference) << meant;
    };
    row("x", {}, Difference::Far, "");
    row("", {"line"}, Difference::Far, "");
    row("", {"", "line"}, Difference::Space, "");
    row(" line ", {"lines", " line", "line"}, Difference::Space, " line");
    row("{line}", {"LINE", "line"}, Difference::Braces, "line");
    row("{Line}", {"line"}, Difference::Letters, "line");
    row("{", {"line"}, Difference::Far, "");
    row("{}", {""}, Difference::Braces, "");
    row("LINE", {"lien", "Line", "line"}, Difference::Case, "Line");
    row("lien", {"lines", "line", "liens"}, Difference::Letters, "line");
    row("lines", {"line1", "line2", "line"}, Difference::Letters, "line1");
    row("line, and", {"line", "lane, and"}, Difference::Tail, "line");
    row("line2", {"line"}, Difference::Letters, "line");
    row("订单号码都在", {"订单", "订单号码"}, Difference::Letters, "订单号码");
    row("订单号码都在这里", {"订单"}, Difference::Tail, "订单");
}

void NameIndexTest::nearest()
{
    QFETCH(QString, name);
    QFETCH(QStringList, declared);
    const NameIndex index(declared);
    for (int round = 0; round < 2; ++round) { // the second answer is a remembered one
        const NearName near = index.nearest(name);
        QTEST(static_cast<int>(near.difference), "difference");
        QTEST(near.name, "meant");
    }
}

void NameIndexTest::nearestOfRandomNames()
{
    QRandomGenerator random(4712);
    for (int round = 0; round < 200; ++round) {
        QStringList declared;
        for (int i = 0; i < 20; ++i)
            declared.append(randomText(random, 12) + "zz");
        const NameIndex index(declared);
        for (int i = 0; i < 20; ++i) {
            const QString name = randomText(random, 14);
            if (declared.contains(name) || index.leadingSize(name) > 0)
                continue;
            QCOMPARE(index.nearest(name).name, plainNearest(name, declared));
        }
    }
}

void NameIndexTest::suggestions_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("known");
    QTest::addColumn<QString>("meant");
    const QStringList types{"text.append", "text.case", "text.trim", "list.append", "plain"};
    const auto row = [](const QString &name, const QStringList &known, const QString &meant) {
        QTest::addRow("%s of %d", qPrintable(name), known.size()) << name << known << meant;
    };
    row("text.apend", types, "text.append");
    row("TEXT.Trim", types, "text.trim");
    row("txt.trim", types, "text.trim");
    row("plan", types, "plain");
    row("trim", types, "text.trim");
    row("Append", types, "text.append");
    row("text.trim.x", types, "text.trim");
    // Alike in the common beginning alone.
    row("text.glue", types, "");
    row("Text.glue", types, "");
    row("other.trim", types, "");
    row("x", types, "");
    row("", types, "");
    row("trim", {}, "");
    row("a%1b", {"a%2b"}, "a%2b");
}

void NameIndexTest::suggestions()
{
    QFETCH(QString, name);
    QFETCH(QStringList, known);
    QFETCH(QString, meant);
    QCOMPARE(nearestName(name, known), meant);
    const QString question = QString(" (did you mean \"%1\"?)").arg(meant);
    QCOMPARE(withSuggestion("no %1", meant), "no %1" + (meant.isEmpty() ? QString() : question));
}

void NameIndexTest::leadingSizes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("size");
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("the name") << "line" << 4;
    QTest::newRow("longer word") << "lines" << 0;
    QTest::newRow("word of its own") << "line, and" << 4;
    QTest::newRow("the longest") << "line-part of it" << 9;
    QTest::newRow("not at the beginning") << "a line" << 0;
    QTest::newRow("Chinese") << "订单都在" << 2;
    QTest::newRow("a name without letters is none") << " x" << 0;
}

void NameIndexTest::leadingSizes()
{
    QFETCH(QString, text);
    QTEST(NameIndex({"", "line", "line-part", "订单"}).leadingSize(text), "size");
}

void NameIndexTest::manyNames()
{
    // Each against each: with the same letters, the same size, and yet far.
    QStringList declared;
    QStringList others;
    for (int i = 0; i < 60; ++i) {
        declared.append(QString("customer_amount_%1").arg(i, 4, 10, QChar('0')));
        others.append(QString("remotsuc_tnuoma_%1").arg(i, 4, 10, QChar('0')));
    }
    QElapsedTimer clock;
    clock.start();
    for (const QString &name : qAsConst(others))
        QCOMPARE(plainNearest(name, declared), QString());
    const qint64 plain = clock.nsecsElapsed();
    const NameIndex index(declared);
    clock.restart();
    for (const QString &name : qAsConst(others))
        QCOMPARE(index.nearest(name).difference, NearName::Difference::Far);
    const qint64 indexed = clock.nsecsElapsed();
    // A generous bound, and one that holds for any build: it is some thirty times.
    QVERIFY2(indexed * 2 < plain, qPrintable(QString("%1 of %2").arg(indexed).arg(plain)));
}

QTEST_GUILESS_MAIN(NameIndexTest)

#include "NameIndexTest.moc"
