#include "refhost/validator/checks/ReloadCheck.h"

#include "refhost/validator/CheckContext.h"

#include "IOperationPlugin.h"
#include "Operation.h"

#include <QDirIterator>
#include <QPluginLoader>
#include <QSet>

namespace {

/// A copy that does not point into the library.
QString copyOf(const QString &text)
{
    return QString(text.constData(), text.size());
}

/// What has to be the same each time the library is loaded.
QString identityOf(const IOperationPlugin &plugin)
{
    return QStringLiteral("%1, version %2, interface version %3")
        .arg(copyOf(plugin.pluginId()), copyOf(plugin.version()),
             QString::number(plugin.apiVersion()));
}

/// The files that are registered as resources.
QSet<QString> resources()
{
    QSet<QString> files;
    QDirIterator iterator(QStringLiteral(":/"), QDir::Files, QDirIterator::Subdirectories);
    while (iterator.hasNext())
        files.insert(iterator.next());
    return files;
}

/// Loads the library, uses it as a host does, and unloads it. Its identity; empty, with the reason
/// in `outcome`, when that does not work.
QString useOnce(const QString &round, CheckContext &context, Outcome &outcome)
{
    // Qt keeps plug-ins in memory unless told otherwise; here unloading is to be seen.
    QPluginLoader loader(context.file());
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    context.doing(QStringLiteral("loading, %1 time").arg(round));
    auto *const plugin = qobject_cast<IOperationPlugin *>(loader.instance());
    if (!plugin) {
        outcome.fail(QStringLiteral("not loaded the %1 time: %2").arg(round, loader.errorString()));
        return {};
    }
    QString identity = identityOf(*plugin);
    context.doing(QStringLiteral("createPrototypes, loaded the %1 time").arg(round));
    const QList<Operation *> prototypes = plugin->createPrototypes();
    const QSet<Operation *> distinct(prototypes.begin(), prototypes.end());
    context.doing(QStringLiteral("deleting the prototypes, loaded the %1 time").arg(round));
    qDeleteAll(distinct);
    context.doing(QStringLiteral("unloading, %1 time").arg(round));
    if (!loader.unload()) {
        outcome.fail(
            QStringLiteral("not unloaded the %1 time: %2").arg(round, loader.errorString()));
        return {};
    }
    return identity;
}

} // namespace

ReloadCheck::ReloadCheck()
    : Check({QStringLiteral("file.reload"), 1,
             QStringLiteral("It can be unloaded, leaving nothing behind, and loaded again.")})
{
}

std::optional<QString> ReloadCheck::prepare(CheckContext &context) const
{
    Q_UNUSED(context)
    return std::nullopt;
}

Outcome ReloadCheck::run(CheckContext &context) const
{
    Outcome outcome;
    const QSet<QString> before = resources();
    const QString first = useOnce(QStringLiteral("first"), context, outcome);
    if (first.isEmpty())
        return outcome;
    context.doing(QStringLiteral("listing the resources after unloading"));
    const QSet<QString> left = resources() - before;
    for (const QString &file : left)
        outcome.fail(QStringLiteral("resource %1 is registered after unloading").arg(file));
    const QString second = useOnce(QStringLiteral("second"), context, outcome);
    if (!second.isEmpty() && second != first)
        outcome.fail(QStringLiteral("the second time it is %1; expected %2").arg(second, first));
    return outcome;
}
