#pragma once

#include "refhost/engine/Result.h"

#include <QByteArray>

class Task;

/// The task in its packed form: variables with their exact values, steps as the records of their
/// own `saveOperation`. A variable that no task file holds, such as one of two with the same name,
/// is a problem.
Result<QByteArray> packTask(const Task &task);
