#include "refhost/engine/ProgramArguments.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/Excerpt.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <array>

#ifdef Q_OS_UNIX
#    include <unistd.h>
#endif

namespace {

#ifdef Q_OS_UNIX

/// Returns the text of UTF-8 bytes. A byte order mark, which Qt leaves out, is kept.
QString textOf(const QByteArray &bytes)
{
    const QByteArray byteOrderMark = QByteArrayLiteral("\xEF\xBB\xBF");
    if (bytes.startsWith(byteOrderMark))
        return QChar(QChar::ByteOrderMark) + QString::fromUtf8(bytes.mid(byteOrderMark.size()));
    return QString::fromUtf8(bytes);
}

bool isUtf8(const QByteArray &bytes)
{
    return textOf(bytes).toUtf8() == bytes;
}

/// Returns the size of the character in UTF-8 at `index`, 0 when there is none.
int characterSize(const QByteArray &bytes, int index)
{
    constexpr int longest = 4;
    for (int size = 1; size <= longest && index + size <= bytes.size(); ++size) {
        if (isUtf8(bytes.mid(index, size)))
            return size;
    }
    return 0;
}

/// Returns the beginning of the bytes as text, those outside of UTF-8 as "\xff".
QString escaped(const QByteArray &bytes)
{
    QString text;
    int index = 0;
    while (index < bytes.size() && text.size() < longestExcerpt) {
        const int size = characterSize(bytes, index);
        text += size > 0 ? textOf(bytes.mid(index, size))
                         : QLatin1String("\\x") + QLatin1String(bytes.mid(index, 1).toHex());
        index += qMax(size, 1);
    }
    return index < bytes.size() ? text + QStringLiteral("\u2026") : text;
}

#endif

} // namespace

Result<QStringList> programArguments(int argc, char *argv[])
{
#ifdef Q_OS_UNIX
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        const QByteArray bytes(argv[i]);
        // The name of the program is not the user's to choose.
        if (i > 0 && !isUtf8(bytes)) {
            return Problem{
                Problem::Reason::UnfitValue,
                {},
                EngineText::tr("argument %1").arg(i),
                EngineText::tr("\"%1\" is not UTF-8; expected UTF-8").arg(escaped(bytes))};
        }
        arguments.append(textOf(bytes));
    }
    return arguments;
#else
    if (QCoreApplication::instance())
        return QCoreApplication::arguments();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
#endif
}

QString argumentWithOption(const QString &name, const QStringList &arguments)
{
    const QString dashes = QStringLiteral("--");
    const QString whole = dashes + name;
    const auto hasOption = [&](const QString &argument) {
        if (argument.startsWith(dashes))
            return argument.section(QLatin1Char('='), 0, 0) == whole;
        return name.size() == 1 && argument.startsWith(QLatin1Char('-')) && argument.contains(name);
    };
    const auto options = arguments.mid(1, arguments.indexOf(dashes));
    const auto found = std::find_if(options.cbegin(), options.cend(), hasOption);
    return found == options.cend() ? whole : found->section(QLatin1Char('='), 0, 0);
}

QString unfitFolderReason(const QString &path)
{
#ifdef Q_OS_UNIX
    std::array<char, 4096> folder; // longer ones cannot be opened
    const bool isKnown = getcwd(folder.data(), folder.size()) != nullptr;
    if (QDir::isRelativePath(path) && isKnown && !isUtf8(folder.data()))
        return EngineText::tr("the name of the working folder is not UTF-8");
#else
    Q_UNUSED(path)
#endif
    return {};
}
