#pragma once

#include "refhost/engine/JsonReader.h"

#include <QString>

/// Reads the file at `path`, which holds a JSON object in UTF-8. A problem names the file.
Result<JsonObject> readJsonObject(const QString &path);
