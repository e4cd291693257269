#ifndef TESTS_SUPPORT_MESSAGELOG_H
#define TESTS_SUPPORT_MESSAGELOG_H

#include <QStringList>

#include <mutex>

// Collects Qt's messages while it lives, whatever thread they come from. One at a time.
class MessageLog
{
public:
    MessageLog() : m_before(nullptr)
    {
        {
            const std::lock_guard<std::mutex> lock(mutex());
            all() = QStringList();
            warningsOfAll() = QStringList();
        }
        m_before = qInstallMessageHandler(collect);
    }
    ~MessageLog() { qInstallMessageHandler(m_before); }

    static QStringList lines()
    {
        const std::lock_guard<std::mutex> lock(mutex());
        return all();
    }

    // Those of them that are warnings.
    static QStringList warnings()
    {
        const std::lock_guard<std::mutex> lock(mutex());
        return warningsOfAll();
    }

private:
    Q_DISABLE_COPY(MessageLog)

    // Called on whatever thread speaks, which may still do so once the handler has been taken away.
    static void collect(QtMsgType type, const QMessageLogContext&, const QString& text)
    {
        const std::lock_guard<std::mutex> lock(mutex());
        all() << text;
        if (type == QtWarningMsg)
            warningsOfAll() << text;
    }

    // The thread sanitizer does not see Qt's lock.
    static std::mutex& mutex()
    {
        static std::mutex s_mutex;
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
