#include "refhost/engine/HostRefusal.h"

#include "refhost/engine/EngineText.h"

#include "IOperationPlugin.h"

namespace {

constexpr int hostApiVersion = 2;

QStringList hostCapabilities()
{
    return {QStringLiteral("hasListType")};
}

} // namespace

QString hostRefusal(const IOperationPlugin &plugin)
{
    if (plugin.apiVersion() != hostApiVersion) {
        return EngineText::tr("it is built for interface version %1, this host has version %2")
            .arg(QString::number(plugin.apiVersion()), QString::number(hostApiVersion));
    }
    const QStringList needed = plugin.requiredCapabilities();
    for (const QString &capability : needed) {
        if (!hostCapabilities().contains(capability))
            return EngineText::tr("it requires \"%1\", which this host lacks").arg(capability);
    }
    return {};
}
