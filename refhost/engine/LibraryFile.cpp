#include "refhost/engine/LibraryFile.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/Problem.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

constexpr int headSize = 20; // of an ELF file up to and including the number of its processor

/// The systems of libraries by the bytes that these begin with.
struct LibraryFormat
{
    const char *magic;
    const char *system;
};

constexpr const char *elfSystem = "Linux";

const LibraryFormat libraryFormats[] = {
    {"\x7F"
     "ELF",
     elfSystem},
    {"MZ", "Windows"},
    {"\xFE\xED\xFA\xCE", "macOS"},
    {"\xFE\xED\xFA\xCF", "macOS"},
    {"\xCE\xFA\xED\xFE", "macOS"},
    {"\xCF\xFA\xED\xFE", "macOS"},
    {"\xCA\xFE\xBA\xBE", "macOS"},
};

/// Returns the system that a library with these first bytes is for, empty when it is no library.
QString systemOf(const QByteArray &head)
{
    const auto found =
        std::find_if(std::begin(libraryFormats), std::end(libraryFormats),
                     [&](const LibraryFormat &format) { return head.startsWith(format.magic); });
    return found == std::end(libraryFormats) ? QString() : QString::fromLatin1(found->system);
}

struct Processor
{
    int number; ///< in the header of an ELF file
    const char *name;
};

const Processor processors[] = {{3, "x86"},       {8, "MIPS"},     {21, "PowerPC"},
                                {22, "s390"},     {40, "ARM"},     {62, "x86-64"},
                                {183, "AArch64"}, {243, "RISC-V"}, {258, "LoongArch"}};

/// Returns what an ELF file with these first bytes is built for, such as "64-bit x86-64"; empty
/// when the bytes are too few.
QString elfTarget(const QByteArray &head)
{
    constexpr int classAt = 4;
    constexpr int orderAt = 5;
    constexpr int machineAt = 18;
    if (head.size() < headSize)
        return {};
    const bool isBigEndian = head.at(orderAt) == 2;
    const auto byteAt = [&](int index) { return static_cast<unsigned char>(head.at(index)); };
    const int machine = isBigEndian ? byteAt(machineAt) * 256 + byteAt(machineAt + 1)
                                    : byteAt(machineAt + 1) * 256 + byteAt(machineAt);
    const auto found =
        std::find_if(std::begin(processors), std::end(processors),
                     [=](const Processor &known) { return known.number == machine; });
    return QStringLiteral("%1-bit %2%3")
        .arg(head.at(classAt) == 1 ? 32 : 64)
        .arg(found == std::end(processors) ? QStringLiteral("processor %1").arg(machine)
                                           : QString::fromLatin1(found->name),
             isBigEndian ? QStringLiteral(" big-endian") : QString());
}

/// Returns why a library with the first bytes `head` does not fit a program with `own`.
QString mismatch(const QByteArray &head, const QByteArray &own)
{
    const QString system = systemOf(head);
    const QString ownSystem = systemOf(own);
    if (system.isEmpty())
        return EngineText::tr("it is not a library");
    if (ownSystem.isEmpty())
        return {};
    if (system != ownSystem)
        return EngineText::tr("it is a library for %1; expected one for %2").arg(system, ownSystem);
    if (system != QLatin1String(elfSystem))
        return {};
    const QString target = elfTarget(head);
    const QString ownTarget = elfTarget(own);
    if (target.isEmpty() || ownTarget.isEmpty() || target == ownTarget)
        return {};
    return EngineText::tr("it is a library for %1; expected one for %2").arg(target, ownTarget);
}

} // namespace

QString missingFileReason(const QString &path)
{
    const QFileInfo info(path);
    if (path.isEmpty())
        return emptyFileName(Problem::Reason::PluginNotLoaded).message;
    if (info.isFile())
        return {};
    if (info.isDir())
        return EngineText::tr("it is a folder; expected a file");
    if (info.exists())
        return EngineText::tr("it is a device or a pipe; expected a file");
    if (info.isSymLink())
        return EngineText::tr("it is a link to a file that does not exist");
    return EngineText::tr("there is no such file");
}

QString unfitLibraryReason(const QString &path)
{
    QString missing = missingFileReason(path);
    if (!missing.isEmpty())
        return missing;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return EngineText::tr("it cannot be read: %1").arg(file.errorString());
    const QByteArray head = file.read(headSize);
    if (head.isEmpty())
        return EngineText::tr("it is an empty file");
    QFile program(QCoreApplication::applicationFilePath());
    program.open(QIODevice::ReadOnly);
    return mismatch(head, program.read(headSize));
}
