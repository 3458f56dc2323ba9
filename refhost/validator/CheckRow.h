#pragma once

#include "refhost/validator/Check.h"

#include <memory>
#include <vector>

class CheckContext;

/// A check that consists of a function.
struct CheckRow
{
    CheckInfo info;
    Outcome (*run)(CheckContext &context);
    /// The function loads the plug-in itself, because it looks at the loading as well.
    bool loadsPlugin = false;
};

/// Adds a check for each row, in their order.
void addRows(std::vector<std::unique_ptr<Check>> &checks, const std::vector<CheckRow> &rows);
