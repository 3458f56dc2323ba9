#include "refhost/validator/checks/InterfaceIdCheck.h"

#include "refhost/validator/CheckContext.h"

#include "IOperationPlugin.h"

#include <QJsonObject>
#include <QPluginLoader>

InterfaceIdCheck::InterfaceIdCheck()
    : Check({QStringLiteral("file.interface"), 1,
             QStringLiteral("The metadata names the interface of this host."), Ground::File,
             Ground::File})
{
}

Outcome InterfaceIdCheck::run(CheckContext &context) const
{
    const QJsonObject metadata = QPluginLoader(context.file()).metaData();
    if (metadata.isEmpty())
        return {Verdict::Skipped, QStringLiteral("there is no metadata")};
    Outcome outcome;
    const QString found = metadata.value(QStringLiteral("IID")).toString();
    const QString expected = QStringLiteral(IOperationPlugin_iid);
    if (found != expected)
        outcome.fail(QStringLiteral("IID: \"%1\"; expected \"%2\"").arg(found, expected));
    return outcome;
}
