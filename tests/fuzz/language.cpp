// Any file, loaded as a compiled language file and asked for texts and keys.

#include <QByteArray>
#include <QString>

#include "Catalogue.h"
#include "Scratch.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::ScratchFile scratch(data, size);
    Catalogue catalogue;
    const bool bLoaded = catalogue.load(QString::fromStdString(scratch.path()));
    for (const char* pszContext : {"linkhand", "AddrBookUIPlugin", ""}) {
        for (const char* pszId : {"IDS_OK", "IDS_PMMENU_ADD", "IDS_Add_GROUP", "none", ""}) {
            const QString strText = catalogue.text(pszContext, pszId);
            const QString strKey = catalogue.shortcut(pszContext, pszId);
            MUST(bLoaded || (strText.isEmpty() && strKey.isEmpty()));
            MUST(strKey.isEmpty() || strKey != strText);
        }
    }
    return 0;
}
