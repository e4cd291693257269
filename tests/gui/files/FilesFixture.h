#ifndef TESTS_GUI_FILES_FILESFIXTURE_H
#define TESTS_GUI_FILES_FILESFIXTURE_H

#include <QAbstractButton>
#include <QTableWidget>

#include <functional>

#include "../window/WindowFixture.h"
#include "dialogs/AddrBookWaitingDlg.h"

// The window with a user who answers its file dialogs and its field map.
class FilesFixture : public WindowFixture
{
public:
    struct Asked {
        QString title;
        QString start;
        QString filter;
    };

    FilesFixture();
    ~FilesFixture();

    // The next answers of the file dialogs, and what they were asked with. A null answer is a cancel.
    static void choose(const QString& path);
    static QList<Asked> asked();

    // The user at the field map: sees it, changes it, and answers with OK or Cancel.
    struct Map {
        ExtendDialog* dialog;
        QTableWidget* source; // one column: titles
        QTableWidget* memory; // two columns: fields, titles
        QStringList titles() const;
        QStringList mapped() const;
        void setMapped(int row, const QString& title) const;
    };
    static void onMap(std::function<bool(const Map&)> user); // true for OK
    static int mapsSeen();

    // A file of these titles and rows, in the current language's eight-bit text.
    static void makeFile(const QString& path, const QByteArray& titles, const QList<QStringList>& rows);

    // The menu entry, up to the end of what it starts.
    void import();
    void importTo(QTreeWidgetItem* node);
    // The same for one of the window's slots.
    void importFrom(const char* slot);
    bool waitDone() const;

    static ABWaitingDlg* waiting();
    static void cancelWaiting();
    static QStringList stored(int memory);
};

#endif // TESTS_GUI_FILES_FILESFIXTURE_H
