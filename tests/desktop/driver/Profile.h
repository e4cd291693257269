#ifndef LINKHAND_TESTS_PROFILE_H
#define LINKHAND_TESTS_PROFILE_H

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A data folder filled through the SDK, for the program to be started on.
class Profile
{
public:
    Profile();

    QString Path() const { return m_folder.filePath("data"); }

    // Adds contacts to a memory (0 card, 1 device, 4 PC), named strName with a number behind it ("Anna 0001") and with
    // numbers counted up from strNumber. False if the SDK refused one.
    bool Add(int iMemory, const QString& strName, const QString& strNumber, int iCount);

    // Adds one contact and gives its identifier, 0 on failure. Keys as in the memory's field list.
    int AddContact(int iMemory, const QStringList& lstKeysAndValues);

    // Adds a group to the PC's phonebook and gives its identifier, 0 on failure.
    int AddGroup(const QString& strName, int iParent, const QList<int>& listMembers);

    // Has pbctl import contacts, given as lines of a file with titles in its first line; groups come from a column
    // "Groups". False if it did not take them all.
    bool Import(int iMemory, const QStringList& lstLines);

    // Lets go of the data folder; called before the program is started.
    void Close();

private:
    QTemporaryDir m_folder;
};

#endif // LINKHAND_TESTS_PROFILE_H
