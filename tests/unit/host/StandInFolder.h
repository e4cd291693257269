#ifndef LINKHAND_TESTS_STANDINFOLDER_H
#define LINKHAND_TESTS_STANDINFOLDER_H

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

// A folder with copies of the stand-in plug-ins, to be spoilt at will.
class StandInFolder
{
public:
    QString Path() const { return m_folder.path(); }

    // Copies lib<name>.so from the built ones and returns its path.
    QString Add(const QString& strName, const QString& strAs = QString())
    {
        const QString strTarget = Path() + QStringLiteral("/lib%1.so").arg(strAs.isEmpty() ? strName : strAs);
        QFile::copy(QStringLiteral(STANDIN_FOLDER "/lib%1.so").arg(strName), strTarget);
        QFile::setPermissions(strTarget, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
        return strTarget;
    }

    QString AddText(const QString& strName, const QByteArray& content)
    {
        const QString strTarget = Path() + QStringLiteral("/lib%1.so").arg(strName);
        QFile file(strTarget);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            return QString();
        }
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        return strTarget;
    }

    // What the stand-ins noted since the last call.
    static QStringList TakeCalls()
    {
        const QStringList lstCalls = qApp->property("standin.calls").toStringList();
        qApp->setProperty("standin.calls", QVariant());
        return lstCalls;
    }

private:
    QTemporaryDir m_folder;
};

#endif // LINKHAND_TESTS_STANDINFOLDER_H
