#pragma once

#include <QByteArray>

// The probe's connection to the oprun that started it: two pipes in place of standard input and
// output. No file stands between the two processes, so none is left when one of them is killed.

/// Descriptors of the pipes to oprun; negative where there is no such pipe.
struct ParentPipes
{
    int input = -1;  ///< open for as long as oprun runs; nothing is ever written to it
    int output = -1; ///< for the lines of ProbeMessage.h
};

/// Moves standard input and output to descriptors of their own and opens the null device in their
/// place, so that a plug-in that reads or prints does not disturb the connection.
ParentPipes takeStandardStreams();

/// Writes all the bytes; does nothing for a negative descriptor. They have left the process when
/// this returns, whatever happens next. A failure is ignored: then the reader has ended.
void writeToParent(int output, const QByteArray &bytes);

/// Ends this process and all processes that the plug-in started as soon as oprun ends, however that
/// happens and whatever the plug-in does. A request to end (SIGTERM) has the same effect. `input`
/// is that of the pipes. To be called once, before a plug-in is loaded.
void endWithParent(int input);

/// Sets the file to remove when the process ends with its parent, in the encoding of the file
/// system. An empty path stands for no file.
void setFileToRemove(const QByteArray &path);
