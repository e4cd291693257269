#include "device/ContactNamer.h"

#include "device/ChangedContact.h"

ContactNamer::ContactNamer() : m_thread(this)
{
    connect(&m_thread, SIGNAL(ended()), this, SLOT(OnFound()));
}

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
    m_strName.clear(); // stays so where there is no thread
    m_thread.Begin([this, uiMsg = question.uiMsg, uiMemory = question.uiMemory, uiNumber = question.uiNumber] {
        m_strName = ChangedContact::Name(uiMsg, uiMemory, uiNumber);
    });
}

void ContactNamer::OnFound()
{
    const Question question = m_listQuestions.takeFirst();
    const QString strName = m_strName;
    if (!m_listQuestions.isEmpty()) {
        find();
    }
    if (question.pAsker) {
        QMetaObject::invokeMethod(question.pAsker, "OnContactNamed", Q_ARG(int, question.iTicket),
                                  Q_ARG(QString, strName));
    }
}
