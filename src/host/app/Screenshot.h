#ifndef LINKHAND_HOST_SCREENSHOT_H
#define LINKHAND_HOST_SCREENSHOT_H

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

class QWidget;
class WorkerCount;

// Writes a picture of the window once the phonebook shows its contacts: no worker runs and a table has rows, or, for
// an empty phonebook, a few seconds have gone by.
class Screenshot : public QObject
{
    Q_OBJECT

public:
    Screenshot(QWidget* pWindow, const WorkerCount& workers, const QString& strFile, QObject* pParent);

signals:
    void taken(bool bWritten);

private slots:
    void OnTick();

private:
    bool contactsShown() const;

    QPointer<QWidget> m_pWindow;
    const WorkerCount& m_workers;
    QString m_strFile;
    QTimer m_timer;
    QElapsedTimer m_elapsed;
    int m_iCalmTicks;
};

#endif // LINKHAND_HOST_SCREENSHOT_H
