#ifndef TESTS_GUI_FILES_FILEUSER_H
#define TESTS_GUI_FILES_FILEUSER_H

#include <QTableWidget>
#include <QTimer>

#include <functional>

#include "linkhand/core/ExtendDialog.h"

// A user who answers the window's file dialogs and its field map, on the scripted host library.
class FileUser
{
public:
    struct Asked {
        QString title;
        QString start;
        QString filter;
    };

    FileUser();
    ~FileUser();

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

    // While it lives, a field map that comes up meets the user.
    class MapWatcher : public QObject
    {
    public:
        MapWatcher();

    private:
        static void look();
        QTimer m_timer;
    };

private:
    Q_DISABLE_COPY(FileUser)
};

#endif // TESTS_GUI_FILES_FILEUSER_H
