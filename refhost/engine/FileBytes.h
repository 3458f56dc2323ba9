#pragma once

#include "refhost/engine/Result.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// The content of the file at `path`. A problem names the file and carries the system's reason.
Result<QByteArray> readFileBytes(const QString &path);

/// Makes `bytes` the content of the file at `path` as `OutputFile` writes it: whole or not at all;
/// after a problem a file that was there is as it was.
std::optional<Problem> writeFileBytes(const QString &path, const QByteArray &bytes);
