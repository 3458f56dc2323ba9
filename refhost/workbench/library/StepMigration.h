#pragma once

#include <QStringList>

#include <memory>

class Operation;

/// A step carried over to another version of its plug-in.
struct MigratedStep
{
    std::unique_ptr<Operation> operation;
    QStringList lost; ///< the properties that could not be kept
};

/// Carries `old` over to the class of `prototype`: through its record, which keeps everything,
/// where the new class reads it from end to end and comes to the same properties; otherwise
/// property by property, as far as both have them.
MigratedStep migrateStep(const Operation &old, const Operation &prototype);
