#ifndef LINKHAND_HOST_CARDS_CARDIMPORT_H
#define LINKHAND_HOST_CARDS_CARDIMPORT_H

#include <QList>
#include <QString>
#include <QStringList>
#include <QThread>

#include <atomic>

// Reads the contacts of a file, and stores them in the PC's phonebook if that is wanted: both on this thread, one after
// the other. The object lives on the user-interface thread, where what was found is read after finished().
class CardImport : public QThread
{
    Q_OBJECT

public:
    CardImport(const QString& strFile, QObject* pParent);

    // Cancels what runs and waits for its step.
    ~CardImport() override;

    void Read();
    void Store();

    // Ends the work after the step that is under way; what is stored stays so.
    void Cancel() { m_bCancelled = true; }

    // The values of each contact, by the keys of CareText::FieldKeys().
    const QList<QStringList>& Contacts() const { return m_listContacts; }

    // The first code of the SDK that was not 0, of the last of both.
    long Code() const { return m_nCode; }

    // How many have been looked at, and how many are stored.
    int Done() const { return m_iDone; }
    int Stored() const { return m_iStored; }

protected:
    void run() override;

private:
    void read();
    void store();
    long storeSome(int iFirst, int iEnd, int& iStored);
    bool succeeded(long nCode);

    const QString m_strFile;
    bool m_bStoring;
    QList<QStringList> m_listContacts;
    std::atomic<bool> m_bCancelled;
    std::atomic<int> m_iDone;
    std::atomic<int> m_iStored;
    std::atomic<long> m_nCode;
};

#endif // LINKHAND_HOST_CARDS_CARDIMPORT_H
