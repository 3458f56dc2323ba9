#include "refhost/validator/checks/IdentityCheck.h"

#include "refhost/validator/CheckContext.h"

#include "IOperationPlugin.h"

#include <QRegularExpression>

IdentityCheck::IdentityCheck()
    : Check({QStringLiteral("catalog.identity"), 2,
             QStringLiteral("Identifier, version and name of the plug-in are well-formed.")})
{
}

Outcome IdentityCheck::run(CheckContext &context) const
{
    static const QRegularExpression reverseDomain(
        QStringLiteral("^[A-Za-z][A-Za-z0-9_-]*(\\.[A-Za-z0-9_-]+)+$"));
    static const QRegularExpression threeNumbers(
        QStringLiteral("^(0|[1-9][0-9]*)(\\.(0|[1-9][0-9]*)){2}$"));
    Outcome outcome;
    const IOperationPlugin &plugin = context.plugin();
    context.doing(QStringLiteral("pluginId, version, name"));
    if (!reverseDomain.match(plugin.pluginId()).hasMatch()) {
        outcome.fail(QStringLiteral("pluginId: \"%1\"; expected reverse domain form, such as "
                                    "org.example.Greet")
                         .arg(plugin.pluginId()));
    }
    if (!threeNumbers.match(plugin.version()).hasMatch()) {
        outcome.fail(
            QStringLiteral("version: \"%1\"; expected major.minor.patch").arg(plugin.version()));
    }
    if (plugin.name().trimmed().isEmpty())
        outcome.fail(QStringLiteral("name: \"%1\"; expected a text").arg(plugin.name()));
    return outcome;
}
