#include "refhost/validator/checks/QtVersionCheck.h"

#include "refhost/validator/CheckContext.h"

#include <QJsonObject>
#include <QPluginLoader>
#include <QVersionNumber>

namespace {

#ifdef QT_NO_DEBUG
constexpr bool hostIsDebug = false;
#else
constexpr bool hostIsDebug = true;
#endif

QString modeWord(bool isDebug)
{
    return isDebug ? QStringLiteral("debug") : QStringLiteral("release");
}

/// The version in the number that QT_VERSION_CHECK makes of it.
QVersionNumber versionOf(int number)
{
    return {(number >> 16) & 0xFF, (number >> 8) & 0xFF};
}

} // namespace

QtVersionCheck::QtVersionCheck()
    : Check({QStringLiteral("file.qt"), 1,
             QStringLiteral("It is built with a Qt no newer than the host's, and in its mode."),
             Ground::File, Ground::File})
{
}

Outcome QtVersionCheck::run(CheckContext &context) const
{
    const QJsonObject metadata = QPluginLoader(context.file()).metaData();
    if (metadata.isEmpty())
        return {Verdict::Skipped, QStringLiteral("there is no metadata")};
    Outcome outcome;
    const QVersionNumber built = versionOf(metadata.value(QStringLiteral("version")).toInt());
    const QVersionNumber own = QVersionNumber::fromString(QString::fromLatin1(qVersion()));
    if (built.majorVersion() != own.majorVersion() || built.minorVersion() > own.minorVersion()) {
        outcome.fail(QStringLiteral("built with Qt %1; this host has Qt %2")
                         .arg(built.toString(), own.toString()));
    }
    const bool isDebug = metadata.value(QStringLiteral("debug")).toBool();
    if (isDebug != hostIsDebug) {
        outcome.warn(QStringLiteral("built in %1 mode, this host in %2 mode; on some systems Qt "
                                    "refuses to mix them")
                         .arg(modeWord(isDebug), modeWord(hostIsDebug)));
    }
    return outcome;
}
