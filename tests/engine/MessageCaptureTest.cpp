#include "tests/support/QuietTest.h"

#include "refhost/engine/MessageCapture.h"

#include <QtTest>

#include <atomic>
#include <thread>

class MessageCaptureTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void collects();
    void nests();
    void otherSeveritiesPass();
    void otherThreadsPass();
    void eachThreadHasItsOwn();
};

namespace {

void warn(const char *text)
{
    QMessageLogger(nullptr, 0, nullptr, "default").warning() << text;
}

} // namespace

void MessageCaptureTest::collects()
{
    {
        MessageCapture capture;
        warn("one");
        warn("two");
        QCOMPARE(capture.takeLines(), QStringList({"one", "two"}));
        QCOMPARE(capture.takeLines(), QStringList());
        warn("dropped with the capture");
    }
    QCOMPARE(takeWarnings(), QStringList());
    warn("after");
    QCOMPARE(takeWarnings(), QStringList("after"));
}

void MessageCaptureTest::nests()
{
    MessageCapture outer;
    warn("a");
    {
        MessageCapture inner;
        warn("b");
        QCOMPARE(inner.takeLines(), QStringList("b"));
    }
    warn("c");
    QCOMPARE(outer.takeLines(), QStringList({"a", "c"}));
}

void MessageCaptureTest::otherSeveritiesPass()
{
    MessageCapture capture;
    qCritical("loud");
    QCOMPARE(capture.takeLines(), QStringList());
    QCOMPARE(takeWarnings(), QStringList("not a warning: loud"));
}

void MessageCaptureTest::otherThreadsPass()
{
    MessageCapture capture;
    std::thread other([] { warn("elsewhere"); });
    other.join();
    QCOMPARE(capture.takeLines(), QStringList());
    QCOMPARE(takeWarnings(), QStringList("elsewhere"));
}

void MessageCaptureTest::eachThreadHasItsOwn()
{
    std::atomic<int> wrong = 0;
    const auto captureRepeatedly = [&wrong](int number) {
        const QByteArray text = "thread " + QByteArray::number(number);
        for (int round = 0; round < 500; ++round) {
            MessageCapture capture;
            warn(text.constData());
            if (capture.takeLines() != QStringList(QString::fromLatin1(text)))
                ++wrong;
        }
    };
    std::thread threads[] = {std::thread(captureRepeatedly, 0), std::thread(captureRepeatedly, 1),
                             std::thread(captureRepeatedly, 2)};
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(MessageCaptureTest)

#include "MessageCaptureTest.moc"
