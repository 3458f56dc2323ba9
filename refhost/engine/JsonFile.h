#pragma once

#include "refhost/engine/Result.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

/// Parses the JSON text of an object. A problem tells line and column, counted from 1; `file` is
/// the name it is reported under, and `firstLine` the line of that file on which the text begins.
Result<QJsonObject> parseJsonObject(const QByteArray &json, const QString &file,
                                    qint64 firstLine = 1);

/// Reads the file at `path`, which holds a JSON object in UTF-8.
Result<QJsonObject> readJsonObject(const QString &path);
