#include "refhost/validator/checks/ExportsCheck.h"

#include "refhost/validator/CheckContext.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>

namespace {

/// Whether a symbol has to be there: Qt's entry points, and what compiler and linker add to a
/// library under the names that are reserved for them.
bool isExpected(const QString &name)
{
    static const QStringList known{QStringLiteral("qt_plugin_instance"),
                                   QStringLiteral("qt_plugin_query_metadata"),
                                   QStringLiteral("qt_plugin_query_metadata_v2"),
                                   QStringLiteral("_init"),
                                   QStringLiteral("_fini"),
                                   QStringLiteral("_edata"),
                                   QStringLiteral("_end")};
    return known.contains(name) || name.startsWith(QLatin1String("__"));
}

/// A symbol that a library exports.
struct Symbol
{
    QString name;
    bool isWeak = false; ///< one of many that other libraries may have as well
};

/// The symbols in a listing of nm in the format of POSIX, name, letter, value, size; less those
/// that have to be there.
QList<Symbol> surplusSymbols(const QString &listing)
{
    static const QRegularExpression line(QStringLiteral("^(.+) ([A-Za-z]) [0-9a-f]*( [0-9a-f]*)?$"),
                                         QRegularExpression::MultilineOption);
    const QString weakLetters = QStringLiteral("VvWwu");
    QList<Symbol> symbols;
    for (auto matches = line.globalMatch(listing); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        if (!isExpected(match.captured(1)))
            symbols.append({match.captured(1), weakLetters.contains(match.captured(2))});
    }
    return symbols;
}

/// What is to be said of them, the first of each kind by name.
Outcome outcomeOf(const QList<Symbol> &symbols)
{
    constexpr int mostNamed = 10;
    Outcome outcome;
    int strong = 0;
    int weak = 0;
    for (const Symbol &symbol : symbols) {
        if (!symbol.isWeak && ++strong <= mostNamed)
            outcome.fail(QStringLiteral("exports %1").arg(symbol.name));
        else if (symbol.isWeak && ++weak <= mostNamed)
            outcome.warn(QStringLiteral("exports %1, as weak").arg(symbol.name));
    }
    const int unnamed = std::max(0, strong - mostNamed) + std::max(0, weak - mostNamed);
    if (unnamed > 0)
        outcome.remark(QStringLiteral("and %1 more").arg(unnamed));
    return outcome;
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
    return outcomeOf(surplusSymbols(listing));
}
