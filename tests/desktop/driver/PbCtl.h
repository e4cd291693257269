#ifndef LINKHAND_TESTS_PBCTL_H
#define LINKHAND_TESTS_PBCTL_H

#include <QList>
#include <QString>
#include <QStringList>

// The store as the command line sees it, from outside and also while the program runs on it. Memories by pbctl's names:
// "local", "card", "device".
class PbCtl
{
public:
    explicit PbCtl(const QString& strDataDir) : m_strDataDir(strDataDir) {}

    // Runs pbctl on the data folder. False if it does not end with 0; what it wrote is in Said().
    bool Run(const QStringList& lstArguments);
    QString Said() const { return m_strSaid; }

    // Takes contacts in from the text of a file.
    bool Import(const QString& strMemory, const QString& strText);

    // The fields of each contact in the memory, in field order and without its identifier, sorted.
    QList<QStringList> Contacts(const QString& strMemory, const QString& strGroup = QString());

    // How many contacts the memory says that it holds, -1 if it says nothing.
    int Used(const QString& strMemory);

private:
    QString m_strDataDir;
    QString m_strSaid;
};

#endif // LINKHAND_TESTS_PBCTL_H
