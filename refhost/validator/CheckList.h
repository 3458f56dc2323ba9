#pragma once

#include "refhost/validator/Check.h"

#include <QString>

#include <memory>
#include <vector>

/// All checks in the order in which they run and are reported, by level.
std::vector<std::unique_ptr<Check>> allChecks();

/// The check called `id`, null when there is none.
std::unique_ptr<Check> makeCheck(const QString &id);
