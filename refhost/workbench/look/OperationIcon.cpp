#include "refhost/workbench/look/OperationIcon.h"

#include "refhost/workbench/look/OperationIconEngine.h"

#include "Operation.h"

QIcon operationIcon(const Operation &operation)
{
    return QIcon(new OperationIconEngine(operation.icon(), operation.typeName()));
}
