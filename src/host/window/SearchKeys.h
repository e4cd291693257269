#ifndef LINKHAND_HOST_SEARCHKEYS_H
#define LINKHAND_HOST_SEARCHKEYS_H

#include <QObject>

class QWidget;

// Keys of the phonebook's search box. The first Escape empties it, as if it were typed, and the second puts it away by
// its own button, so that the window knows; Down goes to what was found. User-interface thread only.
class SearchKeys : public QObject
{
    Q_OBJECT

public:
    // The page outlives this, and has the phonebook's window on it already.
    explicit SearchKeys(QWidget& page);

protected:
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    void escape();
    void toContacts();

    QWidget& m_page;
};

#endif // LINKHAND_HOST_SEARCHKEYS_H
