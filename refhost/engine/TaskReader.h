#pragma once

#include "refhost/engine/JsonTypes.h"
#include "refhost/engine/Result.h"
#include "refhost/engine/Task.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

class OperationCatalog;

/// Reads tasks, with the steps of a catalogue, from JSON:
///
///     { "variables": { "line": {"type": "string", "value": "a;b"}, "part": {"type": "string"} },
///       "steps": [ {"type": "text.append", "sourceText": "$line", "resultVar": "part"} ] }
///
/// or from the packed form that `packTask` writes. A task is read in full or not at all; the
/// problem names the first place that is wrong.
class TaskReader
{
public:
    /// The catalogue has to outlive the reader and the plug-ins the tasks it reads.
    explicit TaskReader(const OperationCatalog &catalog);

    /// Reads a file, which may have either form.
    Result<Task> readFile(const QString &path) const;

    /// Reads the content of a file, of either form; problems name no file.
    Result<Task> readBytes(const QByteArray &bytes) const;

    /// Reads a task from an object already parsed; problems name no file.
    Result<Task> read(const JsonObject &json) const;

private:
    std::optional<Problem> readSteps(const JsonValue &json, const QString &place, Task &task) const;
    Result<std::unique_ptr<Operation>> readStep(const JsonValue &json, const QString &place) const;

    const OperationCatalog &m_catalog;
};
