#ifndef LINKHAND_HOST_SCREENSHOT_H
#define LINKHAND_HOST_SCREENSHOT_H

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

class QTableWidget;
class QWidget;
class WorkerCount;

// Writes a picture of the window once the phonebook shows its contacts: no worker runs and a table has rows, or, for
// an empty phonebook, a few seconds have gone by. The first contact is selected, so that the picture shows it in full.
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
    // The table on the screen that has rows, null if there is none.
    QTableWidget* contacts() const;
    void write();

    QPointer<QWidget> m_pWindow;
    const WorkerCount& m_workers;
    QString m_strFile;
    QTimer m_timer;
    QElapsedTimer m_elapsed;
    int m_iCalmTicks;
    bool m_bSelected;
};

#endif // LINKHAND_HOST_SCREENSHOT_H
