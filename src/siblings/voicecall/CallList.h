#ifndef LINKHAND_SIBLINGS_CALLLIST_H
#define LINKHAND_SIBLINGS_CALLLIST_H

#include <QList>
#include <QString>
#include <QTreeWidget>

#include "shared/HostLink.h"

// The calls, the latest first: the one in progress, and those that the host keeps, of which more are read as somebody
// scrolls down to them. Each says whether it was simulated. One that the host could not keep stays until the end of the
// program.
class CallList : public QTreeWidget
{
    Q_OBJECT

public:
    // strPlugin is the plug-in whose texts are shown.
    CallList(const QString& strPlugin, QWidget* pParent);

    // A call is in progress from Begin() to End(). Of a real one it is told how far it is, a HostCallProgress.
    void Begin(const QString& strNumber, int iType);
    void SetProgress(int iProgress);
    void End(int iSeconds);

    // Reads anew what the host keeps.
    void Refresh();

    // Shows only calls whose number or name holds this; all for the empty text.
    void Search(const QString& strText);
    void Retranslate();

    // The call that is selected. Its identifier is 0 if the host does not keep it, or there is none.
    HostCall Current() const;

    // True while the call with this identifier is among those read.
    bool Holds(int iId) const;

protected:
    void resizeEvent(QResizeEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;

private slots:
    void OnScrolled(int iValue);
    void OnContactsRead();

private:
    enum Column { COLUMN_NUMBER, COLUMN_NAME, COLUMN_KIND, COLUMN_TIME, COLUMN_DURATION, COLUMN_RESULT, COLUMN_COUNT };

    QString text(const char* pszId) const;
    QList<HostCall> calls() const;
    bool holds(const HostCall& call) const;
    static void nameCalls(QList<HostCall>& listCalls);
    void read(int iAtMost);
    void readAgain();
    void showCalls(const HostCall& current);
    void fill(QTreeWidgetItem* pItem, const HostCall& call) const;
    QString kindText(const HostCall& call) const;
    QString resultText(const HostCall& call) const;
    void sizeColumns();
    void fitLast();

    const QString m_strPlugin;
    QList<HostCall> m_listRun; // that the host does not keep, the one in progress first
    QList<HostCall> m_listKept;
    QString m_strSearch;
    bool m_bAll;     // and it keeps no more
    bool m_bInCall;  // the first is in progress
    int m_iProgress; // of that
    bool m_bSized;   // the columns have their widths; from then on they are the user's
};

#endif // LINKHAND_SIBLINGS_CALLLIST_H
