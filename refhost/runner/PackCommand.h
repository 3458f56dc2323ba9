#pragma once

#include "refhost/runner/ConversionCommand.h"

/// "oprun pack TASK OUT": the task in the form that keeps it exactly, steps as their own records.
class PackCommand : public ConversionCommand
{
public:
    QString name() const override;
    QString summary() const override;
    QString example() const override;

protected:
    Result<QByteArray> convert(const Task &task, const OperationCatalog &catalog) const override;
};
