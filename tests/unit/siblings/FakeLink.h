#ifndef LINKHAND_TESTS_FAKELINK_H
#define LINKHAND_TESTS_FAKELINK_H

#include <QCoreApplication>
#include <QMap>

#include "shared/HostLink.h"

// A host's link that keeps calls in memory and notes what is asked of it.
class FakeLink : public HostLink
{
public:
    FakeLink()
    {
        const HostLink* pSelf = this;
        QCoreApplication::instance()->setProperty(LINKHAND_HOST_LINK, qlonglong(reinterpret_cast<quintptr>(pSelf)));
    }
    ~FakeLink() override { QCoreApplication::instance()->setProperty(LINKHAND_HOST_LINK, QVariant()); }

    // Keeps a call that began so many minutes before noon.
    HostCall& Keep(const QString& strNumber, int iMinutes)
    {
        HostCall call;
        call.iId = ++iLastId;
        call.strNumber = strNumber;
        call.time = QDateTime(QDate(2026, 11, 22), QTime(12, 0)).addSecs(-60 * iMinutes);
        call.iDirection = HOST_CALL_OUTGOING;
        call.iEnd = HOST_CALL_ENDED;
        call.iSimulated = bSimulated ? 1 : 0;
        listCalls.append(call);
        return listCalls.last();
    }

    bool SendMessage(HostMessageKind, const QStringList& lstNumbers, const QString& strSubject,
                     const QString& strText) override
    {
        lstSent << lstNumbers.join(",") + "|" + strSubject + "|" + strText;
        return bKeeps;
    }
    int KeepDraft(int iId, HostMessageKind, const QStringList& lstNumbers, const QString& strSubject,
                  const QString& strText) override
    {
        if (!bKeeps) {
            return 0;
        }
        const int iKept = iId != 0 ? iId : ++iLastId;
        drafts[iKept] = lstNumbers.join(",") + "|" + strSubject + "|" + strText;
        return iKept;
    }
    void ForgetDraft(int iId) override { drafts.remove(iId); }
    bool Dial(const QString& strNumber, HostCallType) override
    {
        lstDialled << strNumber;
        return true;
    }
    void HangUp() override {}
    void Answer() override {}
    bool IsSimulated() override { return bSimulated; }
    QObject* CallEvents() override { return nullptr; }
    QList<HostCall> Calls(int iSkipped, int iAtMost) override
    {
        ++iReadings;
        iMost = qMax(iMost, iAtMost);
        return listCalls.mid(iSkipped, iAtMost);
    }
    bool RemoveCall(int iId) override
    {
        for (int i = 0; i < listCalls.size(); ++i) {
            if (listCalls.at(i).iId == iId && bRemoves) {
                listCalls.removeAt(i);
                return true;
            }
        }
        return false;
    }
    QString CleanNumber(const QString& strNumber) override { return strNumber; }
    void ShowPage(const QString&) override {}
    void ShowStatus(const QString&) override {}
    QString LogFolder() override { return QString(); }

    QList<HostCall> listCalls; // the latest first
    QMap<int, QString> drafts; // "numbers|subject|text"
    QStringList lstSent;       // likewise
    bool bKeeps = true;
    QStringList lstDialled;
    bool bSimulated = true;
    bool bRemoves = true;
    int iLastId = 0;
    int iReadings = 0;
    int iMost = 0;
};

#endif // LINKHAND_TESTS_FAKELINK_H
