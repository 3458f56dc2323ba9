#pragma once

#include "refhost/runner/ConversionCommand.h"

/// "oprun unpack TASK OUT": the task as JSON, if JSON can say all of it.
class UnpackCommand : public ConversionCommand
{
public:
    QString name() const override;
    QString summary() const override;
    QString example() const override;

protected:
    Result<QByteArray> convert(const Task &task, const OperationCatalog &catalog) const override;
};
