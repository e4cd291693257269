#include "PbCtl.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryFile>

#include <algorithm>

namespace
{

QString unescaped(const QString& strText)
{
    QString strResult;
    for (int i = 0; i < strText.length(); ++i) {
        if (strText.at(i) == '\\' && i + 1 < strText.length()) {
            const QChar c = strText.at(++i);
            strResult += c == 'n' ? QChar('\n') : c == 'r' ? QChar('\r') : c == 't' ? QChar('\t') : c;
        } else {
            strResult += strText.at(i);
        }
    }
    return strResult;
}

} // namespace

bool PbCtl::Run(const QStringList& lstArguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    const QString strProgram = QString::fromLocal8Bit(qgetenv("LINKHAND_BUILD_DIR")) + "/pbctl";
    process.start(strProgram, QStringList() << "--data-dir" << m_strDataDir << lstArguments);
    const bool bEnded = process.waitForFinished();
    m_strSaid = QString::fromUtf8(process.readAll());
    return bEnded && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool PbCtl::Import(const QString& strMemory, const QString& strText)
{
    QTemporaryFile file;
    return file.open() && file.write(strText.toUtf8()) >= 0 && file.flush() &&
           Run({"import", "--memory", strMemory, file.fileName()});
}

QList<QStringList> PbCtl::Contacts(const QString& strMemory, const QString& strGroup)
{
    QStringList lstArguments = {"list", "--memory", strMemory};
    if (!strGroup.isEmpty()) {
        lstArguments << "--group" << strGroup;
    }
    QList<QStringList> listContacts;
    if (Run(lstArguments)) {
        foreach (const QString& strLine, m_strSaid.split('\n', Qt::SkipEmptyParts).mid(1)) {
            QStringList lstFields;
            foreach (const QString& strField, strLine.split('\t').mid(1)) {
                lstFields << unescaped(strField);
            }
            listContacts << lstFields;
        }
    }
    std::sort(listContacts.begin(), listContacts.end());
    return listContacts;
}

int PbCtl::Used(const QString& strMemory)
{
    static const QRegularExpression contacts("contacts\\s+(\\d+) of");
    return Run({"info", "--memory", strMemory}) ? contacts.match(m_strSaid).captured(1).toInt() : -1;
}
