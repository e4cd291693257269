#include "device/ContactBook.h"

#include <QHash>
#include <QThread>

#include <atomic>
#include <mutex>

#include "device/NumberMatch.h"
#include "orva/orva_care.h"
#include "sdk/OwnedHandle.h"
#include "sdk/RecordText.h"

// Null where the SDK in use does not have it.
#pragma weak ORVA_Care_GetRegion

namespace
{

const int FRESH_MS = 2000;

const struct {
    int iMemory;
    const char* apszNumbers[4]; // the keys of its numbers, to a null
} MEMORIES[] = {
    {ORVA_MEMORY_LOCAL, {"Mobile", "officePhone", "homePhone", nullptr}},
    {ORVA_MEMORY_CARD, {"Number", nullptr}},
    {ORVA_MEMORY_DEVICE, {"Number", nullptr}},
};

QByteArray region()
{
    char szRegion[8] = "";
    if (&ORVA_Care_GetRegion != nullptr) {
        ORVA_Care_GetRegion(szRegion);
    }
    return szRegion;
}

} // namespace

// Reads once a run. Its memory of keys outlives the run: finding one takes longer than reading the number.
class ContactBook::Reader : public QThread
{
public:
    explicit Reader(ContactBook& book) : m_book(book), m_bStop(false) {}
    ~Reader() override
    {
        m_bStop = true;
        wait();
    }

    std::shared_ptr<const ContactIndex> Take()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_pRead;
    }

protected:
    void run() override
    {
        if (region() != m_region) {
            m_keys.clear();
            m_region = region();
        }
        const std::shared_ptr<ContactIndex> pIndex = std::make_shared<ContactIndex>();
        for (const auto& memory : MEMORIES) {
            readMemory(memory.iMemory, memory.apszNumbers, *pIndex);
        }
        if (m_bStop) {
            return;
        }
        pIndex->Sort();
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_pRead = pIndex;
        }
        QMetaObject::invokeMethod(&m_book, "OnRead", Qt::QueuedConnection);
    }

private:
    void readMemory(int iMemory, const char* const* ppszKeys, ContactIndex& index)
    {
        OwnedRecordSet set;
        if (ORVA_PBSrv_GetAddrRecList(iMemory, set.Out()) != ORVA_OK || set.IsNull()) {
            return;
        }
        for (long lCode = ORVA_PBSrv_AddrRecordSet_MoveFirst(set.Get()); lCode == ORVA_OK && !m_bStop;
             lCode = ORVA_PBSrv_AddrRecordSet_MoveNext(set.Get())) {
            const QString strName = RecordText::Of(set.Get(), "Name");
            for (const char* const* ppszKey = ppszKeys; *ppszKey != nullptr; ++ppszKey) {
                const QString strNumber = RecordText::Of(set.Get(), *ppszKey);
                if (!strNumber.isEmpty()) {
                    index.Add(strName, strNumber, keyOf(strNumber));
                }
            }
        }
    }

    QString keyOf(const QString& strNumber)
    {
        QHash<QString, QString>::const_iterator it = m_keys.constFind(strNumber);
        if (it == m_keys.constEnd()) {
            it = m_keys.insert(strNumber, NumberMatch::Key(strNumber));
        }
        return *it;
    }

    ContactBook& m_book;
    std::atomic<bool> m_bStop;
    QByteArray m_region; // of the keys
    QHash<QString, QString> m_keys;
    std::mutex m_mutex;
    std::shared_ptr<const ContactIndex> m_pRead;
};

ContactBook::ContactBook(QObject* pParent)
    : QObject(pParent),
      m_pReader(new Reader(*this)),
      m_pIndex(std::make_shared<const ContactIndex>()),
      m_bReading(false),
      m_bAgain(false)
{
}

ContactBook::~ContactBook() {}

void ContactBook::Read(bool bAnew)
{
    if (m_bReading) {
        m_bAgain = m_bAgain || bAnew;
        return;
    }
    if (!bAnew && m_age.isValid() && m_age.elapsed() < FRESH_MS) {
        return;
    }
    m_bReading = true;
    m_pReader->start(QThread::LowPriority);
}

void ContactBook::OnRead()
{
    // The thread's last act was to say so.
    m_pReader->wait();
    m_pIndex = m_pReader->Take();
    m_age.start();
    m_bReading = false;
    if (m_bAgain) {
        m_bAgain = false;
        Read(true);
    }
    emit contactsRead();
}
