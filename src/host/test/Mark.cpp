#include "test/Mark.h"

#include <QFile>

void Mark::Write(const char* pszVariable, const char* pszLine)
{
    const QByteArray path = qgetenv(pszVariable);
    QFile file(QFile::decodeName(path));
    if (!path.isEmpty() && (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(pszLine) < 0)) {
        qWarning("cannot write to %s", path.constData());
    }
}
