#pragma once

#include "refhost/engine/Result.h"
#include "refhost/engine/Task.h"

#include <QString>

class OperationCatalog;

// Tasks as people pass them on: by mail, in chats and in bug trackers.

/// The JSON in a text that has been quoted with ">", fenced as Markdown does it or indented with
/// no-break spaces, or that has a byte order mark; what stands around a quotation or a fence is
/// left out. Lines and columns stay where they were.
QString bareTaskText(const QString &text);

/// Reads a task, a list of steps or a single step from such a text. The place in a problem is that
/// in the text.
Result<Task> taskFromText(const QString &text, const OperationCatalog &catalog);
