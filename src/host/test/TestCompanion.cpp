#include "test/TestCompanion.h"

#include <QStringList>
#include <QTableWidget>

#include "test/Mark.h"
#include "test/RowsPaint.h"
#include "test/ScreenPlace.h"
#include "test/TestSocket.h"

TestCompanion::TestCompanion() {}

TestCompanion::~TestCompanion() {}

void TestCompanion::Begin()
{
    ScreenPlace::Watch();
    m_pSocket.reset(new TestSocket(qgetenv("LINKHAND_TEST_SOCKET")));
}

void TestCompanion::Painted()
{
    Mark::Write("LINKHAND_TEST_SHOWN", "shown\n");
}

void TestCompanion::PhonebookShown(QWidget& page)
{
    QTableWidget* const pTable = page.findChild<QTableWidget*>(QLatin1String("AddrBookUIPlugin_ContactTable"));
    if (pTable != nullptr && !qgetenv("LINKHAND_TEST_ROWS").isEmpty()) {
        new RowsPaint(pTable);
    }
}

QList<int> TestCompanion::Answers()
{
    QList<int> listAnswers;
    const QString strAnswers = QString::fromLatin1(qgetenv("LINKHAND_MESSAGE_ANSWERS"));
    foreach (const QString& strAnswer, strAnswers.split(QLatin1Char(','))) {
        bool bNumber = false;
        const int iAnswer = strAnswer.trimmed().toInt(&bNumber);
        if (bNumber) {
            listAnswers.append(iAnswer);
        }
    }
    return listAnswers;
}
