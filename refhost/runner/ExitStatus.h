#pragma once

/// What oprun tells the program that started it.
enum ExitStatus : int {
    Success = 0,
    Warned = 1,          ///< a run logged a warning, and was asked to be strict
    Found = 1,           ///< a task was checked, and something in it looks like a mistake
    Differs = 1,         ///< a worked example gave something else than it says
    RowFailed = 1,       ///< a row failed
    CheckFailed = 1,     ///< a plug-in failed a check
    BadInput = 2,        ///< the command line, a file or an output cannot be used
    PluginNotLoaded = 3, ///< a plug-in does not load
    PluginCrashed = 4,   ///< a plug-in took the process along that checked it, or kept it too long
    StepFailed = 5,      ///< a step threw an exception
    StepCrashed = 6,     ///< a step, or a plug-in while it was loaded, ended the process
    TimedOut = 124,      ///< a row or a run took too long, as `timeout` would report it
    EndedBySignal = 128, ///< plus the number of the signal, when `validate` was asked to end
    Interrupted = 130,   ///< asked to end by a signal, as a shell would report it
    ReaderGone = 141     ///< nobody reads the output any more, as a shell would report it
};
