#include "refhost/validator/checks/ManifestCheck.h"

#include "refhost/validator/CheckContext.h"

#include "IOperationPlugin.h"

namespace {

void compare(const QString &field, const QString &stated, const QString &told, Outcome &outcome)
{
    if (stated != told) {
        outcome.fail(QStringLiteral("manifest.%1: \"%2\"; %3 gives \"%4\"")
                         .arg(field, stated,
                              field == QLatin1String("id") ? QStringLiteral("pluginId") : field,
                              told));
    }
}

QString listed(const QStringList &words)
{
    return words.join(QLatin1String(", "));
}

} // namespace

ManifestCheck::ManifestCheck()
    : Check({QStringLiteral("catalog.manifest"), 2,
             QStringLiteral("The manifest says what the functions of the plug-in say.")})
{
}

Outcome ManifestCheck::run(CheckContext &context) const
{
    Outcome outcome;
    const IOperationPlugin &plugin = context.plugin();
    context.doing(QStringLiteral("manifest"));
    const PluginManifest manifest = plugin.manifest();
    context.doing(QStringLiteral("pluginId, name, version, apiVersion, requiredCapabilities"));
    compare(QStringLiteral("id"), manifest.id, plugin.pluginId(), outcome);
    compare(QStringLiteral("name"), manifest.name, plugin.name(), outcome);
    compare(QStringLiteral("version"), manifest.version, plugin.version(), outcome);
    compare(QStringLiteral("apiVersion"), QString::number(manifest.apiVersion),
            QString::number(plugin.apiVersion()), outcome);
    compare(QStringLiteral("requiredCapabilities"), listed(manifest.requiredCapabilities),
            listed(plugin.requiredCapabilities()), outcome);
    return outcome;
}
