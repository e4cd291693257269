#include "device/ContactNamer.h"

#include <thread>

#include "device/ChangedContact.h"

// Answers one question a run.
class ContactNamer::Finder
{
public:
    explicit Finder(ContactNamer& namer) : m_namer(namer) {}
    ~Finder() { Join(); }
    Finder(const Finder&) = delete;
    Finder& operator=(const Finder&) = delete;

    // Only when the run before has been joined.
    void Start(unsigned int uiMsg, unsigned int uiMemory, unsigned int uiNumber)
    {
        m_thread = std::thread([this, uiMsg, uiMemory, uiNumber] {
            m_strName = ChangedContact::Name(uiMsg, uiMemory, uiNumber);
            QMetaObject::invokeMethod(&m_namer, "OnFound", Qt::QueuedConnection);
        });
    }
    void Join()
    {
        if (m_thread.joinable()) {
            m_thread.join();
        }
    }
    const QString& Name() const { return m_strName; }

private:
    ContactNamer& m_namer;
    QString m_strName;
    std::thread m_thread;
};

ContactNamer::ContactNamer() : m_pFinder(new Finder(*this)) {}

ContactNamer::~ContactNamer() {}

void ContactNamer::Ask(unsigned int uiMsg, unsigned int uiMemory, unsigned int uiNumber, QObject* pAsker, int iTicket)
{
    const Question question = {uiMsg, uiMemory, uiNumber, pAsker, iTicket};
    m_listQuestions.append(question);
    if (m_listQuestions.size() == 1) {
        find();
    }
}

void ContactNamer::find()
{
    const Question& question = m_listQuestions.first();
    m_pFinder->Start(question.uiMsg, question.uiMemory, question.uiNumber);
}

void ContactNamer::OnFound()
{
    // The thread's last act was to say so.
    m_pFinder->Join();
    const Question question = m_listQuestions.takeFirst();
    const QString strName = m_pFinder->Name();
    if (!m_listQuestions.isEmpty()) {
        find();
    }
    if (question.pAsker) {
        QMetaObject::invokeMethod(question.pAsker, "OnContactNamed", Q_ARG(int, question.iTicket),
                                  Q_ARG(QString, strName));
    }
}
