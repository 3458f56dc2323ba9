#include "refhost/workbench/window/AboutText.h"

#include "refhost/engine/OperationCatalog.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(AboutText)
};

} // namespace

QString aboutText(const OperationCatalog &catalog)
{
    QStringList lines;
    lines.append(Texts::tr("操作工作台 %1（Qt %2）")
                     .arg(QCoreApplication::applicationVersion(), QLatin1String(qVersion())));
    lines.append(Texts::tr("编辑、运行和检查由操作插件提供的步骤。"));
    for (const LoadedPlugin &plugin : catalog.plugins()) {
        const PluginManifest &manifest = plugin.manifest();
        lines.append(
            QStringLiteral("\n%1 %2\n%3").arg(manifest.name, manifest.version, plugin.path()));
    }
    return lines.join(QLatin1Char('\n'));
}
