#include "voicecall/CallList.h"

#include <QHeaderView>
#include <QLocale>
#include <QScrollBar>
#include <QStringList>

#include "common/CallBox.h"
#include "linkhand/core/Change.h"
#include "shared/HostContacts.h"
#include "shared/NumberDelegate.h"

namespace
{

const int PAGE = 200;      // calls that are read at once
const int SEARCHED = 5000; // that a search looks through

// The host notes the time of a call just before it says that it begins.
const int NOTED_MS = 2000;

QString shownTime(const QDateTime& time)
{
    return QLocale().toString(time, QLocale::ShortFormat);
}

bool isSame(const HostCall& one, const HostCall& other)
{
    return one.iId == other.iId && one.time == other.time && one.strNumber == other.strNumber;
}

} // namespace

CallList::CallList(const QString& strPlugin, QWidget* pParent)
    : QTreeWidget(pParent),
      m_strPlugin(strPlugin),
      m_bAll(true),
      m_bInCall(false),
      m_iProgress(HOST_CALL_DIALLING),
      m_bSized(false)
{
    setColumnCount(COLUMN_COUNT);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setColumnWidth(COLUMN_NUMBER, 150);
    setColumnWidth(COLUMN_NAME, 160);
    setItemDelegateForColumn(COLUMN_NUMBER, new NumberDelegate(this));
    connect(verticalScrollBar(), SIGNAL(valueChanged(int)), this, SLOT(OnScrolled(int)));
    if (HostContacts* pContacts = HostContacts::Instance()) {
        connect(pContacts->Events(), SIGNAL(contactsRead()), this, SLOT(OnContactsRead()));
    }
}

void CallList::Begin(const QString& strNumber, int iType)
{
    HostLink* pLink = HostLink::Instance();
    HostCall call;
    call.strNumber = strNumber;
    call.iType = iType;
    call.time = QDateTime::currentDateTime();
    call.iDirection = HOST_CALL_OUTGOING;
    call.iSimulated = pLink == nullptr || pLink->IsSimulated() ? 1 : 0;
    if (HostContacts* pContacts = HostContacts::Instance()) {
        call.strName = pContacts->NameOf(strNumber);
    }
    m_iProgress = HOST_CALL_DIALLING;
    m_bInCall = true;
    m_listRun.prepend(call);
    showCalls(call);
}

void CallList::SetProgress(int iProgress)
{
    if (!m_bInCall) {
        return;
    }
    HostCall& call = m_listRun.first();
    if (iProgress < HOST_CALL_ENDED) {
        m_iProgress = iProgress;
    } else {
        call.iEnd = iProgress;
    }
    if (iProgress == HOST_CALL_INCOMING) {
        call.iDirection = HOST_CALL_FROM_OUTSIDE;
    }
    if (topLevelItem(0) != nullptr && holds(call)) {
        fill(topLevelItem(0), call);
    }
}

void CallList::End(int iSeconds)
{
    if (!m_bInCall) {
        return;
    }
    m_bInCall = false;
    m_listRun.first().iSeconds = iSeconds;
    readAgain();
    HostCall over = m_listRun.first();
    foreach (const HostCall& kept, m_listKept) {
        const qint64 iLater = kept.time.msecsTo(over.time);
        if (kept.strNumber == over.strNumber && iLater >= 0 && iLater < NOTED_MS) {
            m_listRun.removeFirst();
            over = kept;
            break;
        }
    }
    showCalls(over);
}

void CallList::Refresh()
{
    const HostCall current = Current();
    readAgain();
    showCalls(current);
}

// More is looked through than anybody scrolls to.
void CallList::Search(const QString& strText)
{
    const HostCall current = Current();
    const bool bMore = !strText.isEmpty() && !m_bAll && m_listKept.size() < SEARCHED;
    m_strSearch = strText;
    if (bMore) {
        read(SEARCHED);
    }
    showCalls(current);
}

void CallList::Retranslate()
{
    setAccessibleName(text("IDS_TITLE"));
    QStringList lstHeaders;
    lstHeaders << text("IDS_COLUMN_NUMBER") << text("IDS_COLUMN_NAME") << text("IDS_COLUMN_KIND")
               << text("IDS_COLUMN_TIME") << text("IDS_COLUMN_DURATION") << text("IDS_COLUMN_RESULT");
    setHeaderLabels(lstHeaders);
    m_bSized = false;
    if (isVisible()) {
        sizeColumns();
    }
    showCalls(Current());
}

HostCall CallList::Current() const
{
    const QList<QTreeWidgetItem*> listSelected = selectedItems();
    return listSelected.isEmpty() ? HostCall() : calls().value(indexOfTopLevelItem(listSelected.first()));
}

bool CallList::Holds(int iId) const
{
    foreach (const HostCall& call, m_listKept) {
        if (call.iId == iId) {
            return true;
        }
    }
    return false;
}

// The window's own look, and with it the room that a text takes, is known from here on.
void CallList::showEvent(QShowEvent* pEvent)
{
    QTreeWidget::showEvent(pEvent);
    if (!m_bSized) {
        sizeColumns();
    }
}

// At the end of what has been read: on to what lies behind it.
void CallList::OnScrolled(int iValue)
{
    HostLink* pLink = HostLink::Instance();
    if (m_bAll || pLink == nullptr || iValue < verticalScrollBar()->maximum() || verticalScrollBar()->maximum() == 0) {
        return;
    }
    const QList<HostCall> listMore = pLink->Calls(int(m_listKept.size()), PAGE);
    m_bAll = listMore.size() < PAGE;
    m_listKept += listMore;
    QList<QTreeWidgetItem*> listItems;
    foreach (const HostCall& call, listMore) {
        if (!holds(call)) {
            continue;
        }
        QTreeWidgetItem* pItem = new QTreeWidgetItem;
        fill(pItem, call);
        listItems.append(pItem);
    }
    addTopLevelItems(listItems);
}

// Who they are may be known now, or may have changed.
void CallList::OnContactsRead()
{
    const HostCall current = Current();
    nameCalls(m_listRun);
    nameCalls(m_listKept);
    showCalls(current);
}

QList<HostCall> CallList::calls() const
{
    QList<HostCall> listShown;
    foreach (const HostCall& call, m_listRun + m_listKept) {
        if (holds(call)) {
            listShown.append(call);
        }
    }
    return listShown;
}

bool CallList::holds(const HostCall& call) const
{
    return m_strSearch.isEmpty() || call.strName.contains(m_strSearch, Qt::CaseInsensitive) ||
           call.strNumber.contains(m_strSearch, Qt::CaseInsensitive);
}

void CallList::nameCalls(QList<HostCall>& listCalls)
{
    HostContacts* pContacts = HostContacts::Instance();
    for (int i = 0; pContacts != nullptr && i < listCalls.size(); ++i) {
        listCalls[i].strName = pContacts->NameOf(listCalls.at(i).strNumber);
    }
}

QString CallList::text(const char* pszId) const
{
    return Change::tr(QLatin1String(pszId), m_strPlugin);
}

// As much as was read before, and what a search looks through.
void CallList::readAgain()
{
    read(qMax(m_strSearch.isEmpty() ? PAGE : SEARCHED, int(m_listKept.size())));
}

void CallList::read(int iAtMost)
{
    HostLink* pLink = HostLink::Instance();
    m_listKept = pLink == nullptr ? QList<HostCall>() : pLink->Calls(0, iAtMost);
    m_bAll = m_listKept.size() < iAtMost;
}

// All rows anew; the selection stays with its call.
void CallList::showCalls(const HostCall& current)
{
    const int iScrolled = verticalScrollBar()->value();
    QTreeWidgetItem* pCurrent = nullptr;
    QList<QTreeWidgetItem*> listItems;
    foreach (const HostCall& call, calls()) {
        QTreeWidgetItem* pItem = new QTreeWidgetItem;
        fill(pItem, call);
        listItems.append(pItem);
        pCurrent = isSame(call, current) ? pItem : pCurrent;
    }
    const bool bBlocked = verticalScrollBar()->blockSignals(true);
    clear();
    addTopLevelItems(listItems);
    setCurrentItem(pCurrent != nullptr ? pCurrent : topLevelItem(0));
    verticalScrollBar()->setValue(iScrolled);
    verticalScrollBar()->blockSignals(bBlocked);
}

void CallList::fill(QTreeWidgetItem* pItem, const HostCall& call) const
{
    pItem->setText(COLUMN_NUMBER, call.strNumber.isEmpty() ? text("IDS_UNKNOWN_NUMBER") : call.strNumber);
    pItem->setText(COLUMN_NAME, call.strName);
    pItem->setText(COLUMN_KIND, kindText(call));
    pItem->setText(COLUMN_TIME, shownTime(call.time));
    // One that never was active says why instead.
    const bool bLasted = call.iSeconds > 0 || call.iSimulated != 0;
    const bool bOver = !(m_bInCall && isSame(call, m_listRun.first()));
    pItem->setText(COLUMN_DURATION, bOver && bLasted ? CallBox::DurationText(call.iSeconds) : QString());
    pItem->setText(COLUMN_RESULT, resultText(call));
}

QString CallList::kindText(const HostCall& call) const
{
    if (call.iType == HOST_CALL_VIDEO) {
        return text("IDS_VIDEO_CALL");
    }
    return call.iDirection == HOST_CALL_OUTGOING       ? text("IDS_CALL_OUTGOING")
           : call.iDirection == HOST_CALL_FROM_OUTSIDE ? text("IDS_CALL_FROM_OUTSIDE")
                                                       : QString();
}

QString CallList::resultText(const HostCall& call) const
{
    const bool bRun = call.iId == 0 && !m_listRun.isEmpty();
    if (bRun && m_bInCall && isSame(call, m_listRun.first()) && call.iEnd < 0) {
        return call.iSimulated != 0 ? text("IDS_CALL_STATE") : CallBox::ProgressText(m_iProgress, m_strPlugin);
    }
    QStringList lstParts;
    if (call.iSimulated != 0) {
        lstParts << text(call.iSimulated > 0 ? "IDS_CALL_SIMULATED" : "IDS_CALL_UNMARKED");
    }
    // Nobody is at the other side of a simulated call: of its usual end there is nothing to tell.
    if (call.iEnd >= HOST_CALL_ENDED && (call.iSimulated == 0 || call.iEnd != HOST_CALL_ENDED)) {
        lstParts << CallBox::ProgressText(call.iEnd, m_strPlugin);
    }
    if (bRun) {
        lstParts << text("IDS_CALL_NOT_KEPT");
    }
    return lstParts.join(QString::fromUtf8(" · "));
}

// As wide as the language writes what may stand in them.
void CallList::sizeColumns()
{
    m_bSized = true;
    QList<QTreeWidgetItem*> listExamples;
    for (int i = 0; i < 3; ++i) {
        HostCall call;
        call.iType = i == 2 ? HOST_CALL_VIDEO : HOST_CALL_VOICE;
        call.iDirection = i;
        call.iSeconds = 5999;
        call.time = QDateTime(QDate(2028, 12, 28), QTime(i == 0 ? 10 : 22, 58));
        QTreeWidgetItem* pItem = new QTreeWidgetItem(this);
        fill(pItem, call);
        listExamples.append(pItem);
    }
    resizeColumnToContents(COLUMN_KIND);
    resizeColumnToContents(COLUMN_TIME);
    resizeColumnToContents(COLUMN_DURATION);
    qDeleteAll(listExamples);
    fitLast();
}

void CallList::resizeEvent(QResizeEvent* pEvent)
{
    QTreeWidget::resizeEvent(pEvent);
    fitLast();
}

// The last column has the rest, which in a small window with large letters is less than its title.
void CallList::fitLast()
{
    const int iLast = COLUMN_COUNT - 1;
    const int iNeeds = header()->sectionSizeHint(iLast);
    int iBefore = 0;
    for (int i = 0; i < iLast; ++i) {
        iBefore += columnWidth(i);
    }
    const bool bRest = iBefore + iNeeds <= viewport()->width();
    header()->setStretchLastSection(bRest);
    if (!bRest) {
        setColumnWidth(iLast, iNeeds);
    }
}
