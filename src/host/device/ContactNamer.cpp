#include "device/ContactNamer.h"

#include <QThread>

#include "device/ChangedContact.h"

// Answers one question a run.
class ContactNamer::Finder : public QThread
{
public:
    explicit Finder(ContactNamer& namer) : m_namer(namer), m_uiMsg(0), m_uiMemory(0), m_uiNumber(0) {}
    ~Finder() override { wait(); }

    // Only while it does not run.
    void Set(const Question& question)
    {
        m_uiMsg = question.uiMsg;
        m_uiMemory = question.uiMemory;
        m_uiNumber = question.uiNumber;
    }
    const QString& Name() const { return m_strName; }

protected:
    void run() override
    {
        m_strName = ChangedContact::Name(m_uiMsg, m_uiMemory, m_uiNumber);
        QMetaObject::invokeMethod(&m_namer, "OnFound", Qt::QueuedConnection);
    }

private:
    ContactNamer& m_namer;
    unsigned int m_uiMsg;
    unsigned int m_uiMemory;
    unsigned int m_uiNumber;
    QString m_strName;
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
    m_pFinder->Set(m_listQuestions.first());
    m_pFinder->start();
}

void ContactNamer::OnFound()
{
    // The thread's last act was to say so.
    m_pFinder->wait();
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
