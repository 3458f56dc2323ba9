#include "refhost/validator/checks/MetadataCheck.h"

#include "refhost/validator/CheckContext.h"

#include <QJsonObject>
#include <QPluginLoader>

MetadataCheck::MetadataCheck()
    : Check({QStringLiteral("file.metadata"), 1,
             QStringLiteral("The metadata of a Qt plug-in can be read without loading it."),
             Ground::File, Ground::File})
{
}

Outcome MetadataCheck::run(CheckContext &context) const
{
    Outcome outcome;
    const QPluginLoader loader(context.file());
    const QJsonObject metadata = loader.metaData();
    if (metadata.isEmpty()) {
        outcome.fail(QStringLiteral("there is no metadata: %1").arg(loader.errorString()));
    } else if (metadata.value(QStringLiteral("className")).toString().isEmpty()) {
        outcome.fail(QStringLiteral("the metadata names no class"));
    }
    return outcome;
}
