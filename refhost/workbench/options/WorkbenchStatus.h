#pragma once

/// What the workbench tells the program that started it.
enum class WorkbenchStatus : int {
    Success = 0,
    CannotDo = 1, ///< a task cannot be opened, or a picture not be written
    BadUsage = 2  ///< the command line makes no sense
};
