#include "tests/hostile/HostileStep.h"

#include <QProcess>
#include <QtTest>

/// Runs every hostile step in a process of its own, which has to end by itself, in time and well.
class HostileStepTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survives_data();
    void survives();
};

void HostileStepTest::survives_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const HostileStep &step : hostileSteps())
        QTest::newRow(step.name.constData()) << step.name;
}

void HostileStepTest::survives()
{
    QFETCH(QByteArray, name);
    constexpr int mostMilliseconds = 60000;
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), {"--run", QString::fromUtf8(name)});
    QVERIFY2(process.waitForFinished(mostMilliseconds), "the process does not end");
    QVERIFY2(process.exitStatus() == QProcess::NormalExit, "the process crashed");
    QCOMPARE(QString::fromUtf8(process.readAll()), QString());
    QCOMPARE(process.exitCode(), 0);
}

int main(int argc, char *argv[])
{
    if (argc == 3 && qstrcmp(argv[1], "--run") == 0) {
        const QString fault = runHostileStep(argv[2]);
        if (!fault.isEmpty())
            fprintf(stderr, "%s %s\n", argv[2], qPrintable(fault));
        return fault.isEmpty() ? 0 : 1;
    }
    QCoreApplication application(argc, argv);
    HostileStepTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "HostileStepTest.moc"
