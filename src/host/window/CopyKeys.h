#ifndef LINKHAND_HOST_COPYKEYS_H
#define LINKHAND_HOST_COPYKEYS_H

#include <QObject>

class QMenu;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

// Copies the selected contacts by key to where the mouse can drag them: a menu offers the groups and memories, and the
// tree gets what a drop with Ctrl held would bring it. User-interface thread only.
class CopyKeys : public QObject
{
    Q_OBJECT

public:
    // The key, as QKeySequence writes it.
    static const char* const KEY;

    // The page outlives this, and has the phonebook's window on it already.
    explicit CopyKeys(QWidget& page);

private slots:
    void OnCopy();

private:
    static void fill(QMenu& menu, QTreeWidget* pTree);
    void drop(QTreeWidgetItem* pTarget);

    QWidget& m_page;
};

#endif // LINKHAND_HOST_COPYKEYS_H
