#include "test/TestCompanion.h"

#include <QFile>
#include <QStringList>

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
    const QByteArray mark = qgetenv("LINKHAND_TEST_SHOWN");
    QFile file(QFile::decodeName(mark));
    if (!mark.isEmpty() && (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write("shown\n") < 0)) {
        qWarning("cannot write to %s", mark.constData());
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
