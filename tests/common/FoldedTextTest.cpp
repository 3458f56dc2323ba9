#include "tests/support/QuietTest.h"

#include "operations/common/FoldedText.h"

#include <QString>
#include <QtTest>

#include <algorithm>

class FoldedTextTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void unitsFoldAsInQt();
    void pairsFoldAsOne();
    void variantsAreAllThatFoldAlike();
};

void FoldedTextTest::unitsFoldAsInQt()
{
    for (uint unit = 0; unit < 0x10000; ++unit) {
        const QString text(QChar(static_cast<ushort>(unit)));
        QCOMPARE(FoldedText(text)[0], QChar::toCaseFolded(unit));
    }
}

void FoldedTextTest::pairsFoldAsOne()
{
    const QString text = QString("\U00010400") + QChar(0xDC00) + QChar(0xD801) + "A";
    const FoldedText folded(text);
    QCOMPARE(folded.size(), 5);
    QCOMPARE(folded[0], 0xD801U);
    QCOMPARE(folded[1], 0x10428U);
    QCOMPARE(folded[2], 0xDC00U);
    QCOMPARE(folded[3], 0xD801U);
    QCOMPARE(folded[4], uint('a'));
    QVERIFY(!folded.isSecondHalf(0));
    QVERIFY(folded.isSecondHalf(1));
    QVERIFY(!folded.isSecondHalf(2));
    QVERIFY(!FoldedText(text.mid(1)).isSecondHalf(0));
}

void FoldedTextTest::variantsAreAllThatFoldAlike()
{
    int variantCount = 0;
    for (uint unit = 0; unit < 0x10000; ++unit) {
        const auto variants = FoldedText::variantsOf(QChar(static_cast<ushort>(unit)));
        QVERIFY(std::find(variants.cbegin(), variants.cend(), unit) != variants.cend());
        QVERIFY(variants.size() <= 4);
        for (const ushort variant : variants)
            QCOMPARE(QChar::toCaseFolded(variant), QChar::toCaseFolded(unit));
        const uint folded = QChar::toCaseFolded(unit);
        if (folded != unit)
            QVERIFY(FoldedText::variantsOf(QChar(static_cast<ushort>(folded)))
                        .contains(static_cast<ushort>(unit)));
        variantCount += variants.size();
    }
    QVERIFY(variantCount > 0x10000);
}

QTEST_GUILESS_MAIN(FoldedTextTest)

#include "FoldedTextTest.moc"
