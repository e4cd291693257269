#ifndef TESTS_GUI_FILES_FILESFIXTURE_H
#define TESTS_GUI_FILES_FILESFIXTURE_H

#include "../window/WindowFixture.h"
#include "FileUser.h"

// The window with a user who answers its file dialogs and its field map.
class FilesFixture : public WindowFixture, public FileUser
{
public:
    FilesFixture();

    // A file of these titles and rows, in the current language's eight-bit text.
    static void makeFile(const QString& path, const QByteArray& titles, const QList<QStringList>& rows);

    // The menu entry, up to the end of what it starts.
    void import();
    void importTo(QTreeWidgetItem* node);
    // The same for one of the window's slots.
    void importFrom(const char* slot);

    static void cancelWaiting();
    static QStringList stored(int memory);
};

#endif // TESTS_GUI_FILES_FILESFIXTURE_H
