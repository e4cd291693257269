#ifndef TESTS_SUPPORT_MESSAGELOG_H
#define TESTS_SUPPORT_MESSAGELOG_H

#include <QMutex>
#include <QMutexLocker>
#include <QStringList>

// Collects Qt's messages while it lives, whatever thread they come from. One at a time.
class MessageLog
{
public:
    MessageLog() : m_before(nullptr)
    {
        {
            QMutexLocker locker(&mutex());
            all() = QStringList();
            warningsOfAll() = QStringList();
        }
        m_before = qInstallMessageHandler(collect);
    }
    ~MessageLog() { qInstallMessageHandler(m_before); }

    static QStringList lines()
    {
        QMutexLocker locker(&mutex());
        return all();
    }

    // Those of them that are warnings.
    static QStringList warnings()
    {
        QMutexLocker locker(&mutex());
        return warningsOfAll();
    }

private:
    Q_DISABLE_COPY(MessageLog)

    // Called on whatever thread speaks, which may still do so once the handler has been taken away.
    static void collect(QtMsgType type, const QMessageLogContext&, const QString& text)
    {
        QMutexLocker locker(&mutex());
        all() << text;
        if (type == QtWarningMsg)
            warningsOfAll() << text;
    }

    static QMutex& mutex()
    {
        static QMutex s_mutex;
        return s_mutex;
    }
    static QStringList& all()
    {
        static QStringList s_lines;
        return s_lines;
    }
    static QStringList& warningsOfAll()
    {
        static QStringList s_lines;
        return s_lines;
    }

    QtMessageHandler m_before;
};

#endif // TESTS_SUPPORT_MESSAGELOG_H
