#include "loader/SharedObject.h"

#include <QFile>

#include <gelf.h>

namespace
{

const int NATIVE_CLASS = sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32;

// Whether the file holds what each of its segments is made of. The dynamic linker takes their number from the header
// alone, where a library of very many may have it elsewhere.
bool hasItsSegments(Elf* pElf, const GElf_Ehdr& header, quint64 ulSize)
{
    size_t ulCount = 0;
    if (elf_getphdrnum(pElf, &ulCount) != 0 || ulCount == 0 || ulCount != header.e_phnum) {
        return false;
    }
    for (size_t i = 0; i < ulCount; ++i) {
        GElf_Phdr segment;
        if (gelf_getphdr(pElf, int(i), &segment) == nullptr || segment.p_offset > ulSize ||
            segment.p_filesz > ulSize - segment.p_offset) {
            return false;
        }
    }
    return true;
}

} // namespace

bool SharedObject::IsWhole(QFile& file)
{
    elf_version(EV_CURRENT);
    // Read, not mapped: whoever may write the file could cut it short meanwhile.
    Elf* pElf = elf_begin(file.handle(), ELF_C_READ, nullptr);
    GElf_Ehdr header;
    const bool bWhole = elf_kind(pElf) == ELF_K_ELF && gelf_getclass(pElf) == NATIVE_CLASS &&
                        gelf_getehdr(pElf, &header) != nullptr && header.e_type == ET_DYN &&
                        header.e_phentsize == gelf_fsize(pElf, ELF_T_PHDR, 1, EV_CURRENT) &&
                        hasItsSegments(pElf, header, quint64(file.size()));
    elf_end(pElf);
    return bWhole;
}
