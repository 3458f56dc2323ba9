#include "refhost/validator/checks/ExportsCheck.h"

#include "refhost/validator/CheckContext.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringList>

namespace {

/// What a plug-in exports for Qt, and what some linkers add to every library.
QStringList entryPoints()
{
    return {QStringLiteral("qt_plugin_instance"),
            QStringLiteral("qt_plugin_query_metadata"),
            QStringLiteral("qt_plugin_query_metadata_v2"),
            QStringLiteral("_init"),
            QStringLiteral("_fini"),
            QStringLiteral("_edata"),
            QStringLiteral("_end"),
            QStringLiteral("__bss_start")};
}

/// The symbols in a listing of nm in the format of POSIX: name, letter, value, size.
QStringList symbolsIn(const QString &listing)
{
    static const QRegularExpression line(QStringLiteral("^(.+) [A-Za-z] [0-9a-f]*( [0-9a-f]*)?$"),
                                         QRegularExpression::MultilineOption);
    QStringList symbols;
    for (auto match = line.globalMatch(listing); match.hasNext();)
        symbols.append(match.next().captured(1));
    return symbols;
}

} // namespace

ExportsCheck::ExportsCheck()
    : Check({QStringLiteral("file.exports"), 1,
             QStringLiteral("The library exports Qt's entry points and nothing else."),
             Ground::File, Ground::File})
{
}

Outcome ExportsCheck::run(CheckContext &context) const
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("nm"));
    if (program.isEmpty())
        return {Verdict::Skipped, QStringLiteral("there is no program nm to list the symbols")};
    QProcess nm;
    nm.start(program, {QStringLiteral("-D"), QStringLiteral("-C"), QStringLiteral("--defined-only"),
                       QStringLiteral("--format=posix"), context.file()});
    nm.waitForFinished(-1);
    const QString listing = QString::fromUtf8(nm.readAllStandardOutput());
    if (nm.exitStatus() != QProcess::NormalExit || nm.exitCode() != 0) {
        return {Verdict::Skipped, QStringLiteral("nm cannot list the symbols: %1")
                                      .arg(QString::fromUtf8(nm.readAllStandardError().trimmed()))};
    }
    constexpr int mostNamed = 10;
    Outcome outcome;
    QStringList symbols = symbolsIn(listing);
    for (const QString &expected : entryPoints())
        symbols.removeAll(expected);
    for (const QString &symbol : symbols.mid(0, mostNamed))
        outcome.fail(QStringLiteral("exports %1").arg(symbol));
    if (symbols.size() > mostNamed)
        outcome.remark(QStringLiteral("and %1 more").arg(symbols.size() - mostNamed));
    return outcome;
}
