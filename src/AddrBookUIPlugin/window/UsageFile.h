#ifndef ADDRBOOKUIPLUGIN_USAGEFILE_H
#define ADDRBOOKUIPLUGIN_USAGEFILE_H

#include <QByteArray>
#include <QString>
#include <QStringList>

// A small XML file beside the log folder that says that the phonebook is in use. User-interface thread.
class UsageFile
{
public:
    // Notes an item's element; true when the file was written. A null folder of the log is none at all.
    bool note(const QString& strLogFolder, const QString& strItem, const QString& strName, const QString& strValue);

    // Where the file lies. Both texts are empty when there is no log folder.
    struct Paths {
        QString strFolder;
        QString strFile;
    };
    static Paths pathsBeside(const QString& strLogFolder);

private:
    bool rewrite(const QByteArray& baBefore, const QStringList& lstArguments, const QString& strTime,
                 QByteArray& baAfter);

    // What the last rewrite made of which content. A drop rewrites the file once a contact, and all of these but the
    // first make the same of the same: only that one parses.
    QStringList m_lstArguments;
    QByteArray m_baBefore;
    QByteArray m_baAfter;
};

#endif // ADDRBOOKUIPLUGIN_USAGEFILE_H
