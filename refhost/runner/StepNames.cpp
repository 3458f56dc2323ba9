#include "refhost/runner/StepNames.h"

#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/Task.h"
#include "refhost/runner/RunnerText.h"

#include "Operation.h"

#include <QFileInfo>
#include <QHash>

QStringList pluginsOfSteps(const Task &task, const OperationCatalog &catalog)
{
    QHash<QString, QString> files;
    QStringList plugins;
    for (const auto &step : task.steps) {
        const QString typeId = step->typeId();
        auto file = files.find(typeId);
        if (file == files.end())
            file = files.insert(typeId, QFileInfo(catalog.pluginFile(typeId)).fileName());
        plugins.append(*file);
    }
    return plugins;
}

QString stepName(const QString &typeId, const QString &plugin)
{
    return RunnerText::tr("%1 of %2").arg(typeId, plugin);
}

QStringList stepNames(const Task &task, const QStringList &plugins)
{
    QStringList names;
    for (const auto &step : task.steps)
        names.append(stepName(step->typeId(), plugins.at(names.size())));
    return names;
}

QString failureMessage(const QString &place, int index, const QString &typeId,
                       const QString &plugin, const QString &thrown)
{
    return RunnerText::tr("%1: steps[%2] (%3): the step failed: it threw %4")
        .arg(place, QString::number(index), stepName(typeId, plugin), thrown);
}
