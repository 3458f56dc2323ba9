#pragma once

#include "refhost/engine/OperationCatalog.h"
#include "refhost/workbench/document/TaskState.h"

#include "Operation.h"

#include <QVariantMap>

#include <memory>

/// A new step of that type, which the catalogue has to know, with those properties.
inline StepState newStepOf(const OperationCatalog &catalog, const QString &typeId,
                           const QVariantMap &properties = {})
{
    std::unique_ptr<Operation> step(catalog.find(typeId)->prototype->clone(nullptr));
    for (auto property = properties.cbegin(); property != properties.cend(); ++property)
        step->setProperty(property.key().toUtf8().constData(), property.value());
    return newStep(std::move(step));
}
