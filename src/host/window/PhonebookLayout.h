#ifndef LINKHAND_HOST_PHONEBOOKLAYOUT_H
#define LINKHAND_HOST_PHONEBOOKLAYOUT_H

#include <QObject>
#include <QTimer>

class HostSettings;
class QWidget;

// How the user has divided the phonebook's window: the columns of its table and the splitters come back after a
// restart, once, when the first read has ended. Where the table does not keep its columns from node to node, they begin
// as ever at a start, too. User-interface thread only.
class PhonebookLayout : public QObject
{
    Q_OBJECT

public:
    // Both outlive this; the phonebook's window is on the page already.
    PhonebookLayout(QWidget& page, HostSettings& settings);

    // Keeps what there is now, unless nothing was ever read.
    void Keep();

signals:
    // The first read has ended, and all is as it was.
    void restored();

private slots:
    void OnLook();

private:
    void restoreColumns();
    void restoreSplitters();

    QWidget& m_page;
    HostSettings& m_settings;
    QTimer m_look; // runs until the first read has ended: a click meanwhile makes another table of it
    bool m_bRestored;
};

#endif // LINKHAND_HOST_PHONEBOOKLAYOUT_H
