#include "refhost/engine/ProgramArguments.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/Oprun.h"

#include <QCoreApplication>
#include <QTextCodec>

#if defined(Q_OS_WIN)
#    include <cstdio>
#    include <fcntl.h>
#    include <io.h>
#elif defined(Q_OS_UNIX)
#    include <fcntl.h>
#    include <unistd.h>
#endif

namespace {

#if defined(Q_OS_WIN)

/// Line breaks are what they are, and packed tasks are no text.
void prepareStandardStreams()
{
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
}

#elif defined(Q_OS_UNIX)

/// A standard stream that is closed stays unusable: without this, the next file that is opened
/// would be taken for it.
void prepareStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0)
            open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

#else

void prepareStandardStreams() {}

#endif

} // namespace

int main(int argc, char *argv[])
{
    prepareStandardStreams();
    // File names are UTF-8 whatever the locale says.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("oprun"));
    QCoreApplication::setApplicationVersion(QStringLiteral(OPRUN_VERSION));
    const Result<QStringList> arguments = programArguments(argc, argv);
    if (arguments)
        return runOprun(arguments.value());
    Console().complain(arguments.problem().toString());
    return BadInput;
}
