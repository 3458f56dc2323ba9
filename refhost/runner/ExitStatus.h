#pragma once

/// What oprun tells the program that started it.
enum ExitStatus : int {
    Success = 0,
    Warned = 1,         ///< a run logged a warning, and was asked to be strict
    Differs = 1,        ///< a worked example gave something else than it says
    BadInput = 2,       ///< the command line, a file or an output cannot be used
    PluginNotLoaded = 3 ///< a plug-in does not load
};
