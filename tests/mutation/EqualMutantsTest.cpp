#include "tests/support/QuietTest.h"

#include "tests/mutation/EqualMutants.h"

#include <QtTest>

namespace {

const char *const sample = "# a comment\n"
                           "\n"
                           "file: a.cpp\n"
                           "line: if (a: b)\n"
                           "mutant: if (!(a: b))\n"
                           "reason: it never\n"
                           "  matters\n"
                           "\n\n"
                           "file: b.cpp\n"
                           "line: c;\n"
                           "mutant: ;\n"
                           "reason: none";

Mutation mutationOf(const QString &file, const QString &before, const QString &after)
{
    Mutation mutation;
    mutation.file = file;
    mutation.before = before;
    mutation.after = after;
    return mutation;
}

} // namespace

class EqualMutantsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void reasons();
    void staleEntries();
    void faults_data();
    void faults();
};

void EqualMutantsTest::reasons()
{
    QString problem;
    const EqualMutants list = EqualMutants::read(sample, &problem);
    QCOMPARE(problem, QString());
    QCOMPARE(list.reason(mutationOf("a.cpp", "if (a: b)", "if (!(a: b))")),
             QString("it never matters"));
    QCOMPARE(list.reason(mutationOf("b.cpp", "c;", ";")), QString("none"));
    QCOMPARE(list.reason(mutationOf("b.cpp", "if (a: b)", "if (!(a: b))")), QString());
    QCOMPARE(list.reason(mutationOf("b.cpp", "c;", "d;")), QString());
}

void EqualMutantsTest::staleEntries()
{
    QString problem;
    const EqualMutants list = EqualMutants::read(sample, &problem);
    const QVector<Mutation> found{mutationOf("b.cpp", "c;", ";")};
    const QString stale = "a.cpp: if (a: b) -> if (!(a: b))";
    QCOMPARE(list.unmatched({"a.cpp", "b.cpp"}, found), QStringList(stale));
    QCOMPARE(list.unmatched({"b.cpp"}, found), QStringList());
    QCOMPARE(list.withoutFile({"b.cpp"}), QStringList(stale));
    QCOMPARE(list.withoutFile({"a.cpp", "b.cpp"}), QStringList());
}

void EqualMutantsTest::faults_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("problem");
    QTest::newRow("unknown key") << "files: a"
                                 << "line 1: neither a key nor its value";
    QTest::newRow("no key") << "file: a\nwords"
                            << "line 2: neither a key nor its value";
    QTest::newRow("indented first") << "  file: a"
                                    << "line 1: neither a key nor its value";
    QTest::newRow("key missing") << "file: a\nline: b\nmutant: c\n\n"
                                 << "line 4: an entry ends without all keys";
}

void EqualMutantsTest::faults()
{
    QFETCH(QString, text);
    QString actual;
    EqualMutants::read(text, &actual);
    QTEST(actual, "problem");
}

QTEST_GUILESS_MAIN(EqualMutantsTest)

#include "EqualMutantsTest.moc"
