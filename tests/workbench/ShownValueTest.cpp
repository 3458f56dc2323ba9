#include "refhost/workbench/values/TypeWord.h"
#include "refhost/workbench/values/ValuePreview.h"
#include "refhost/workbench/values/VisibleText.h"

#include "tests/support/ListOf.h"
#include "tests/support/QuietTest.h"

#include <QElapsedTimer>
#include <QTest>

#include <limits>

Q_DECLARE_METATYPE(VarType)

/// Texts and values as all panels show them.
class ShownValueTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsPreviews_data();
    void showsPreviews();
    void previewsTakeNoTime();
    void previewsOfDeepListsEnd();
    void showsLines_data();
    void showsLines();
    void showsTexts_data();
    void showsTexts();
    void keepsPositions();
    void namesTypes();
};

void ShownValueTest::showsPreviews_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<VarType>("type");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("isEmpty");

    const QVariant none;
    const QString longText(16000000, 'a');
    QTest::newRow("int") << QVariant(-5) << VarType::Int << "-5" << false;
    QTest::newRow("no int") << none << VarType::Int << "0" << true;
    QTest::newRow("double") << QVariant(0.1) << VarType::Double << "0.1" << false;
    QTest::newRow("minus zero") << QVariant(-0.0) << VarType::Double << "-0" << false;
    QTest::newRow("infinity") << QVariant(std::numeric_limits<double>::infinity())
                              << VarType::Double << "inf" << false;
    QTest::newRow("bool") << QVariant(true) << VarType::Bool << "true" << false;
    QTest::newRow("no bool") << none << VarType::Bool << "false" << true;
    QTest::newRow("text") << QVariant("abc") << VarType::String << "abc" << false;
    QTest::newRow("empty text") << QVariant("") << VarType::String << "（空）" << true;
    QTest::newRow("no text") << none << VarType::String << "（空）" << true;
    QTest::newRow("line breaks") << QVariant("a\tb\r\nc") << VarType::String << "a⇥b←↵c" << false;
    QTest::newRow("long text") << QVariant(longText) << VarType::String
                               << QString(120, 'a') + "… （16,000,000 个 UTF-16 单元）" << false;
    QTest::newRow("pair at the cut") << QVariant(QString(119, 'a') + "😀b") << VarType::String
                                     << QString(119, 'a') + "… （122 个 UTF-16 单元）" << false;
    QTest::newRow("list") << QVariant(QVariantList{1, "a", 2.5, true, QVariantList{}})
                          << VarType::List << R"([1, "a", 2.5, true, []] （5 项）)" << false;
    QTest::newRow("no list") << none << VarType::List << "[] （0 项）" << true;
    QTest::newRow("table") << QVariant(QVariantList{QVariantList{1, 2}, QVariantList{3}})
                           << VarType::Table << "[[1, 2], [3]] （2 行）" << false;
}

void ShownValueTest::showsPreviews()
{
    QFETCH(QVariant, value);
    QFETCH(VarType, type);
    const ValuePreview preview = previewOf(value, type);
    QTEST(preview.toString(), "shown");
    QTEST(preview.isEmpty, "isEmpty");
}

void ShownValueTest::previewsTakeNoTime()
{
    QVariantList rows;
    for (int i = 0; i < 1000000; ++i)
        rows.append(QVariant(QVariantList{i}));
    const QVariant table = rows;
    const QVariant text = QString(16000000, '\n');
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 1000; ++i) {
        QVERIFY(previewOf(table, VarType::Table).toString().endsWith("… （1,000,000 行）"));
        QVERIFY(previewOf(text, VarType::String).detail.startsWith("16,000,000"));
        QVERIFY(valueLine(table).size() < 200);
        QVERIFY(valueLine(text).size() < 200);
    }
    // Looking at every row or unit would take a hundred times as long.
    QVERIFY2(clock.elapsed() < 3000, qPrintable(QString::number(clock.elapsed())));
}

void ShownValueTest::previewsOfDeepListsEnd()
{
    QVariantList deep;
    for (int i = 0; i < 10000; ++i)
        deep = QVariantList{QVariant(deep)};
    QCOMPARE(previewOf(deep, VarType::List, 10).text, QString(10, '[') + "…");
}

void ShownValueTest::showsLines_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("line");

    QTest::newRow("none") << QVariant() << "（没有值）";
    QTest::newRow("int") << QVariant(-3) << "-3";
    QTest::newRow("double") << QVariant(0.1) << "0.1";
    QTest::newRow("bool") << QVariant(true) << "true";
    QTest::newRow("empty text") << QVariant("") << "\"\"";
    QTest::newRow("text") << QVariant("你好") << "\"你好\"";
    QTest::newRow("controls") << QVariant("a\tb\r\n\a") << "\"a⇥b←↵‹U+0007›\"";
    QTest::newRow("just short enough") << QVariant("1234567890") << "\"1234567890\"";
    QTest::newRow("long") << QVariant("1234567890x") << "\"1234567890…\" （11 个 UTF-16 单元）";
    QTest::newRow("pair at the cut")
        << QVariant("123456789😀") << "\"123456789…\" （11 个 UTF-16 单元）";
    QTest::newRow("empty list") << QVariant(QVariantList()) << "[]";
    QTest::newRow("list") << QVariant(listOf({1, "a"})) << "[1, \"a\"]";
    QTest::newRow("long list") << QVariant(listOf({1, 2, 3, 4, 5})) << "[1, 2, 3, … （5 项）";
    QTest::newRow("table") << QVariant(listOf({QVariant(listOf({1})), QVariant(listOf({}))}))
                           << "[[1], []]";
}

void ShownValueTest::showsLines()
{
    QFETCH(QVariant, value);
    QTEST(valueLine(value, 10), "line");
}

void ShownValueTest::showsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("visible");

    QTest::newRow("plain") << "a b"
                           << "a b";
    QTest::newRow("lines") << "a\r\nb" << QString("a←↵b");
    QTest::newRow("tabulator") << "\t" << QString("⇥");
    QTest::newRow("control") << QString(QChar(0)) + QChar(0x1b) << QString("‹NUL›‹ESC›");
    QTest::newRow("delete") << QString(QChar(0x7f)) << QString("‹DEL›");
    QTest::newRow("no-break space") << "\u00a0" << QString("⍽");
    QTest::newRow("wide space") << "\u3000" << QString("□");
    QTest::newRow("named") << "\u200b" << QString("‹ZWSP›");
    QTest::newRow("paragraph") << "\u2029" << QString("‹PS›");
    QTest::newRow("unnamed") << "\u202e" << QString("‹U+202E›");
    QTest::newRow("half a pair") << QString(QChar(0xd83d)) << QString("‹U+D83D›");
    QTest::newRow("pair") << "\U0001f600" << QString("\U0001f600");
    QTest::newRow("invisible pair") << "\U000e0041" << QString("‹U+E0041›");
    QTest::newRow("long") << "abcdefghijk" << QString("abcdefghij…");
    QTest::newRow("cut before a pair") << "abcdefghi\U0001f600" << QString("abcdefghi…");
}

void ShownValueTest::showsTexts()
{
    QFETCH(QString, text);
    QTEST(visibleText(text, 10), "visible");
}

/// Every unit has one in its place.
void ShownValueTest::keepsPositions()
{
    const QString text = QString("a b") + QChar(0) + QChar(0x1b) + QChar(0xa0) + QChar(0x7f) +
                         QChar(0xd800) + "😀" + QChar(0xdc00) + QChar(0x200b) + QChar(0xfeff) +
                         "\U000e0041";
    QCOMPARE(visibleUnits(text), QString("a b▯▯⍽▯\ufffd😀\ufffd▯▯▯▯"));
}

void ShownValueTest::namesTypes()
{
    const QStringList words = typeWords();
    QCOMPARE(words.size(), 6);
    for (const QString &word : words)
        QCOMPARE(typeWord(typeFromWord(word)), word);
    QCOMPARE(typeFromWord("?"), VarType::None);
    QCOMPARE(typeFromWord(typeWord(VarType::None)), VarType::None);
}

QTEST_GUILESS_MAIN(ShownValueTest)
#include "ShownValueTest.moc"
