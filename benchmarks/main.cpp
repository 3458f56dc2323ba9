#include "benchmarks/TextoperBench.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLocale>
#include <QTextCodec>

namespace {

/// Lets the C library keep what is freed: some raise their limits for handing memory back to the
/// system once a large block was freed. Otherwise getting fresh pages would be part of some figures
/// and not of others.
void keepFreedMemory()
{
    constexpr int largeBlock = 24 * 1024 * 1024;
    QByteArray(largeBlock, '\0').clear();
}

} // namespace

int main(int argc, char *argv[])
{
    // Arguments and file names are UTF-8 whatever the locale says.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    // A locale that groups digits; the one of the environment may not.
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const QCoreApplication application(argc, argv);
    keepFreedMemory();
    return runTextoperBench(QCoreApplication::arguments());
}
