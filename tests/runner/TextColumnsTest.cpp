#include "tests/support/QuietTest.h"

#include "refhost/runner/TextColumns.h"

#include <QtTest>

class TextColumnsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void width_data();
    void width();
    void aligns();
};

void TextColumnsTest::width_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected");
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("latin") << "text.pad" << 8;
    QTest::newRow("chinese") << "填充文本" << 8;
    QTest::newRow("full-width punctuation") << "（，）" << 6;
    QTest::newRow("combining mark") << "e\u0301" << 1;
    QTest::newRow("emoji") << "\U0001F600" << 2;
    QTest::newRow("beyond the BMP") << "\U00020000" << 2;
    QTest::newRow("mixed") << "a文b" << 4;
}

void TextColumnsTest::width()
{
    QFETCH(QString, text);
    QTEST(displayWidth(text), "expected");
}

void TextColumnsTest::aligns()
{
    const QStringList lines = alignColumns({{"名称", "a", "x"}, {"b", "文", ""}, {"c"}});
    QCOMPARE(lines, QStringList({"名称  a   x", "b     文", "c"}));
    QCOMPARE(alignColumns({}), QStringList());
}

QTEST_GUILESS_MAIN(TextColumnsTest)

#include "TextColumnsTest.moc"
