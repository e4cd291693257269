#ifndef LINKHAND_SIBLINGS_NOTIFYLOG_H
#define LINKHAND_SIBLINGS_NOTIFYLOG_H

#include <QFile>
#include <QObject>
#include <QString>
#include <QTimer>

// Notices in a file of the log folder, "notifications.log". Lines are gathered for a moment, since a change of many
// contacts brings a line for each. A file that has grown past a megabyte becomes "notifications.log.1".
class NotifyLog : public QObject
{
    Q_OBJECT

public:
    // strFolder ends in "/". Without a folder, or where it cannot be written, nothing is kept.
    explicit NotifyLog(const QString& strFolder);
    ~NotifyLog() override;

    // Adds a line with the time before it.
    void Append(const QString& strLine);

public slots:
    void Flush();

private:
    void open();

    QFile m_file;
    QTimer m_timer;
};

#endif // LINKHAND_SIBLINGS_NOTIFYLOG_H
