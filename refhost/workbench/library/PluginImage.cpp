#include "refhost/workbench/library/PluginImage.h"

#include <QtGlobal>

#if defined(Q_OS_LINUX) && QT_POINTER_SIZE == 8

#    include <cstring>
#    include <elf.h>
#    include <optional>

namespace {

/// The structure at `offset`, none when it would reach beyond the end.
template <typename Structure>
std::optional<Structure> readAt(const QByteArray &bytes, quint64 offset)
{
    const auto size = static_cast<quint64>(bytes.size());
    if (offset > size || size - offset < sizeof(Structure))
        return std::nullopt;
    Structure structure;
    std::memcpy(&structure, bytes.constData() + offset, sizeof(Structure));
    return structure;
}

bool hasRoom(const QByteArray &bytes, quint64 offset, quint64 length)
{
    const auto size = static_cast<quint64>(bytes.size());
    return offset <= size && length <= size - offset;
}

/// The header of a library of this machine's form.
std::optional<Elf64_Ehdr> headerOf(const QByteArray &library)
{
    const bool isElf = library.startsWith(QByteArray(ELFMAG, SELFMAG));
    if (!isElf || library.size() <= EI_CLASS || library.at(EI_CLASS) != ELFCLASS64)
        return std::nullopt;
    return readAt<Elf64_Ehdr>(library, 0);
}

void makeOwn(QByteArray &library, const Elf64_Shdr &symbols)
{
    constexpr auto size = sizeof(Elf64_Sym);
    for (quint64 at = 0; at + size <= symbols.sh_size; at += size) {
        auto symbol = readAt<Elf64_Sym>(library, symbols.sh_offset + at);
        if (!symbol)
            return;
        if (ELF64_ST_BIND(symbol->st_info) != STB_GNU_UNIQUE)
            continue;
        symbol->st_info = ELF64_ST_INFO(STB_GLOBAL, ELF64_ST_TYPE(symbol->st_info));
        std::memcpy(library.data() + symbols.sh_offset + at, &*symbol, size);
    }
}

} // namespace

bool isWholeLibrary(const QByteArray &library)
{
    const bool isElf = library.startsWith(QByteArray(ELFMAG, SELFMAG));
    const auto header = headerOf(library);
    if (!header)
        return !isElf || library.size() >= static_cast<int>(sizeof(Elf64_Ehdr));
    const quint64 tableSize = quint64(header->e_shnum) * header->e_shentsize;
    if (!hasRoom(library, header->e_shoff, tableSize))
        return false;
    for (int i = 0; i < header->e_phnum; ++i) {
        const auto segment =
            readAt<Elf64_Phdr>(library, header->e_phoff + quint64(i) * header->e_phentsize);
        if (!segment || !hasRoom(library, segment->p_offset, segment->p_filesz))
            return false;
    }
    return true;
}

QByteArray separated(QByteArray library)
{
    const auto header = headerOf(library);
    for (int i = 0; header && i < header->e_shnum; ++i) {
        const auto section =
            readAt<Elf64_Shdr>(library, header->e_shoff + quint64(i) * header->e_shentsize);
        if (section && section->sh_type == SHT_DYNSYM)
            makeOwn(library, *section);
    }
    return library;
}

#else

bool isWholeLibrary(const QByteArray &library)
{
    return !library.isEmpty();
}

QByteArray separated(QByteArray library)
{
    return library;
}

#endif
