#include "refhost/validator/CheckContext.h"

#include "refhost/engine/HostRefusal.h"
#include "refhost/validator/ParentProcess.h"
#include "refhost/validator/ProbeMessage.h"

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QPluginLoader>

CheckContext::CheckContext(const QString &file, quint32 seed, const QString &keepFolder, int output)
    : m_file(file)
    , m_seed(seed)
    , m_keepFolder(keepFolder)
    , m_output(output)
{
}

void CheckContext::doing(const QString &activity)
{
    if (m_output >= 0)
        writeToParent(m_output, activityLine(activity));
}

std::optional<QString> CheckContext::loadLibrary()
{
    doing(QStringLiteral("loading the library"));
    QPluginLoader loader(m_file);
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!loader.load())
        return loader.errorString();
    doing(QStringLiteral("making the root object"));
    m_root = loader.instance();
    return m_root ? std::nullopt : std::optional<QString>(QStringLiteral("it has no root object"));
}

std::optional<QString> CheckContext::loadPlugin()
{
    if (auto reason = loadLibrary())
        return reason;
    doing(QStringLiteral("asking the root object for its interface"));
    m_plugin = qobject_cast<IOperationPlugin *>(m_root);
    if (!m_plugin) {
        return QStringLiteral("the root object %1 does not implement %2")
            .arg(QString::fromLatin1(m_root->metaObject()->className()),
                 QStringLiteral(IOperationPlugin_iid));
    }
    doing(QStringLiteral("apiVersion, requiredCapabilities"));
    const QString refusal = hostRefusal(*m_plugin);
    return refusal.isEmpty() ? std::nullopt : std::optional<QString>(refusal);
}

QList<Operation *> CheckContext::newPrototypes()
{
    doing(QStringLiteral("createPrototypes"));
    QList<Operation *> distinct;
    const QList<Operation *> prototypes = m_plugin->createPrototypes();
    for (Operation *prototype : prototypes) {
        if (prototype && !distinct.contains(prototype))
            distinct.append(prototype);
    }
    return distinct;
}

QString CheckContext::nameOf(const Operation &operation)
{
    const QString className = QString::fromLatin1(operation.metaObject()->className());
    doing(className + QStringLiteral(": typeId"));
    const QString typeId = operation.typeId();
    return typeId.isEmpty() ? className : typeId;
}
