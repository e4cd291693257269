#ifndef LINKHAND_HOST_NAMEDNOTICES_H
#define LINKHAND_HOST_NAMEDNOTICES_H

#include <QList>
#include <QObject>
#include <QString>

class StatusArea;

// A notice about somebody with a number.
struct NamedNotice {
    QString strId;     // of the text, with a place for who it is, and maybe a second one for strMore
    QString strNumber; // empty where it is kept back
    QString strMore;
    QString strDetail; // goes behind it, in parentheses
    QString strAbout;  // as StatusArea::ShowNotice takes it
};

// Shows such notices at once, with the name as far as the contacts are known, and puts it right in its place when they
// have been read: a large phonebook takes longer than a notice may wait. User-interface thread only.
class NamedNotices : public QObject
{
    Q_OBJECT

public:
    // The area outlives this.
    explicit NamedNotices(StatusArea& status);

    void Show(const NamedNotice& notice);

private slots:
    void OnContactsRead();

private:
    struct Shown {
        NamedNotice notice;
        QString strText;
    };

    static QString textOf(const NamedNotice& notice);

    StatusArea& m_status;
    QList<Shown> m_listShown; // since the contacts were last read
};

#endif // LINKHAND_HOST_NAMEDNOTICES_H
