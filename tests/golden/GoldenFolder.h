#pragma once

#include "tests/golden/GoldenRecord.h"

#include "refhost/engine/Result.h"

#include <QList>
#include <QString>

#include <optional>

// The folder of a version: of each operation "<typeId>.json", with the values of all its records,
// and
// "<typeId>.<name>.record" for each of these; and in "all.task" the kept records as a packed task.

/// The records of the folder at `path`, in the order of the names of their files. The problem is
/// the first file that is missing or is not as it should be.
Result<QList<GoldenRecord>> readGoldenFolder(const QString &path);

/// Makes the folder at `path` with these records and this packed task, whole or not at all. That
/// there is something already is a problem.
std::optional<Problem> writeGoldenFolder(const QString &path, const QList<GoldenRecord> &records,
                                         const QByteArray &task);
