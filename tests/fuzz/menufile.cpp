// Any file, read as a plug-in's menu file, and its menus walked as the builder does.

#include <QString>

#include "MenuFile.h"
#include "Scratch.h"

namespace
{

// Every chain of submenus comes to an end: each lies behind the one that opens it.
void walk(const MenuFile& file, int iMenu, int& iEntries)
{
    for (const MenuFile::Item& item : file.lstMenus.at(iMenu).lstItems) {
        if (++iEntries > 1000)
            return;
        const int iSubmenu = item.bOpensSubmenu ? file.submenu(iMenu, item.strSubmenu) : -1;
        MUST(iSubmenu == -1 || (iSubmenu > iMenu && iSubmenu < file.lstMenus.size()));
        if (iSubmenu >= 0)
            walk(file, iSubmenu, iEntries);
    }
}

void checkMenus(const MenuFile& file)
{
    int iPlace = -1;
    for (const MenuFile::Menu& menu : file.lstMenus) {
        for (const MenuFile::Item& item : menu.lstItems) {
            MUST(!item.strId.isEmpty() && item.iPlace > iPlace);
            MUST(item.bOpensSubmenu || item.strSubmenu.isEmpty());
            iPlace = item.iPlace;
        }
        const int iTop = file.topMenu(menu.strParent);
        MUST(iTop >= -1 && iTop < file.lstMenus.size());
        MUST(iTop == -1 || file.lstMenus.at(iTop).strParent == menu.strParent);
        MUST(iTop == -1 || !menu.strParent.isEmpty());
        int iEntries = 0;
        if (iTop >= 0)
            walk(file, iTop, iEntries);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // Each fault is reported; thousands of them are not to be read.
    static const QtMessageHandler quiet =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static_cast<void>(quiet);
    const fuzz::ScratchFile scratch(data, size);
    MenuFile file;
    MUST(file.read(QString::fromStdString(scratch.path())));
    checkMenus(file);
    return 0;
}
