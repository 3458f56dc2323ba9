#pragma once

#include "plugin/TextOperPlugin.h"

#include "Operation.h"

#include <QVariantMap>

#include <memory>
#include <vector>

/// New steps, one of each operation the plug-in contributes. For tests that link with the plug-in.
inline std::vector<std::unique_ptr<Operation>> makeAllSteps()
{
    std::vector<std::unique_ptr<Operation>> steps;
    for (Operation *prototype : TextOperPlugin().createPrototypes())
        steps.emplace_back(prototype);
    return steps;
}

/// Sets those of the settings that are properties of the step.
inline void applySettings(Operation &step, const QVariantMap &settings)
{
    for (auto setting = settings.cbegin(); setting != settings.cend(); ++setting) {
        const QByteArray name = setting.key().toUtf8();
        if (step.metaObject()->indexOfProperty(name) >= 0)
            step.setProperty(name, setting.value());
    }
}

/// A new step of the type `typeId`, null when there is none, with these settings. Its result
/// variable is "r" if they do not name another.
inline std::unique_ptr<Operation> makeStep(const QString &typeId, const QVariantMap &settings)
{
    std::vector<std::unique_ptr<Operation>> steps = makeAllSteps();
    for (auto &step : steps) {
        if (step->typeId() != typeId)
            continue;
        step->setProperty("resultVar", "r");
        applySettings(*step, settings);
        return std::move(step);
    }
    return nullptr;
}
