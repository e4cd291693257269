#include "loader/SharedObject.h"

#include <QByteArray>
#include <QFile>

#include <cstring>
#include <link.h>

namespace
{

const unsigned char NATIVE_CLASS = sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32;

// Reads one structure at an offset; false behind the end.
template <class Structure>
bool readAt(QFile& file, quint64 ulOffset, Structure& structure)
{
    if (ulOffset > quint64(file.size()) || !file.seek(qint64(ulOffset))) {
        return false;
    }
    return file.read(reinterpret_cast<char*>(&structure), sizeof structure) == qint64(sizeof structure);
}

} // namespace

bool SharedObject::IsWhole(QFile& file)
{
    ElfW(Ehdr) header = {};
    if (!readAt(file, 0, header) || std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 ||
        header.e_ident[EI_CLASS] != NATIVE_CLASS || header.e_type != ET_DYN ||
        header.e_phentsize != sizeof(ElfW(Phdr)) || header.e_phnum == 0) {
        return false;
    }
    const quint64 ulSize = quint64(file.size());
    for (unsigned int i = 0; i < header.e_phnum; ++i) {
        ElfW(Phdr) segment = {};
        if (!readAt(file, header.e_phoff + i * sizeof segment, segment) || segment.p_offset > ulSize ||
            segment.p_filesz > ulSize - segment.p_offset) {
            return false;
        }
    }
    return true;
}
