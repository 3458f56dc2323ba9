#include "tests/support/QuietTest.h"

#include "refhost/engine/ExampleBook.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"

#include <QtTest>

/// Every worked example of the plug-in, run through the loaded plug-in; one row an example.
class WorkedExamplesTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyOperationHasAPage();
    void examples_data();
    void examples();

private:
    std::unique_ptr<OperationCatalog> m_catalog;
    ExampleBook m_book;
};

void WorkedExamplesTest::initTestCase()
{
    m_catalog = std::make_unique<OperationCatalog>(QStringList(PLUGIN_FILE));
    Result<ExampleBook> book = ExampleBook::read(*m_catalog);
    QVERIFY2(book, qPrintable(book ? QString() : book.problem().toString()));
    m_book = book.value();
}

void WorkedExamplesTest::everyOperationHasAPage()
{
    for (const CatalogEntry &entry : m_catalog->entries()) {
        const OperationPage page = m_book.page(entry.typeId);
        QVERIFY2(!page.about.isEmpty(), qPrintable(entry.typeId));
        QVERIFY2(page.examples.size() >= 4, qPrintable(entry.typeId));
        QSet<QString> names;
        for (const WorkedExample &example : page.examples)
            names.insert(example.name);
        QCOMPARE(names.size(), page.examples.size());
    }
}

void WorkedExamplesTest::examples_data()
{
    QTest::addColumn<QString>("typeId");
    QTest::addColumn<int>("number");
    for (const CatalogEntry &entry : m_catalog->entries()) {
        const QList<WorkedExample> examples = m_book.page(entry.typeId).examples;
        for (int i = 0; i < examples.size(); ++i) {
            QTest::addRow("%s: %s", qPrintable(entry.typeId), qPrintable(examples.at(i).name))
                << entry.typeId << i;
        }
    }
}

void WorkedExamplesTest::examples()
{
    QFETCH(QString, typeId);
    QFETCH(int, number);
    const WorkedExample example = m_book.page(typeId).examples.at(number);
    const Result<ExampleOutcome> outcome = runExample(example, typeId, *m_catalog);
    QVERIFY2(outcome, qPrintable(outcome ? QString() : outcome.problem().toString()));
    QCOMPARE(jsonText(outcome.value().result), jsonText(example.result));
    QCOMPARE(outcome.value().result.isUndefined(), example.result.isUndefined());
    QCOMPARE(outcome.value().warnings, example.warnings);
    QCOMPARE(outcome.value().others, QStringList());
}

QTEST_GUILESS_MAIN(WorkedExamplesTest)

#include "WorkedExamplesTest.moc"
