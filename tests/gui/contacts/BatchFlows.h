#ifndef TESTS_GUI_CONTACTS_BATCHFLOWS_H
#define TESTS_GUI_CONTACTS_BATCHFLOWS_H

#include "ContactsSupport.h"

// The batches that the window starts, each on n records, and what can be told of them from outside.
class BatchFlow
{
public:
    enum Kind { DeleteCard, DeleteLocal, RemoveFromGroup, ImportCard, ImportGroup, CopyCard };

    BatchFlow(Kind kind, int n) : m_kind(kind), m_n(n) {}

    static QList<QPair<const char*, Kind>> all()
    {
        return {{"delete from the card", DeleteCard},     {"delete from the PC", DeleteLocal},
                {"remove from a group", RemoveFromGroup}, {"import to the card", ImportCard},
                {"import to a group", ImportGroup},       {"copy to the card", CopyCard}};
    }

    bool isOnCard() const { return m_kind == DeleteCard || m_kind == ImportCard || m_kind == CopyCard; }
    bool adds() const { return m_kind >= ImportCard; }
    QByteArray call() const
    {
        return adds() ? "AddAddrRec" : m_kind == RemoveFromGroup ? "DelAddrFromGroup" : "DelAddrRec";
    }

    // Builds the window on stores that suit and shows the node in question, all rows selected.
    void prepare(WindowFixture& f) const
    {
        const int before = adds() ? 2 : m_n;
        Contacts::fill(0, "Card", before);
        const QList<int> local = Contacts::fill(4, "Local", before);
        const int group = FakeSdk::addGroup("Friends");
        for (int id : local)
            FakeSdk::join(group, id);
        f.build();
        f.click(isOnCard() ? f.in().sim() : m_kind == DeleteLocal ? f.in().local() : f.node("Friends"));
        QCOMPARE(f.table()->rowCount(), before);
        Contacts::selectAll(f);
    }

    void start(const WindowFixture& f) const
    {
        const int group = FakeSdk::groups().first().id;
        switch (m_kind) {
        case DeleteCard:
        case DeleteLocal:
            f.window()->OnButtonClickedDeleteContact();
            break;
        case RemoveFromGroup:
            f.window()->OnRemoveFromGroupClicked();
            break;
        case ImportCard:
            f.window()->addImportedRecords(PB_MEM_SIM, Contacts::records(PB_MEM_SIM, "New", m_n), 0);
            break;
        case ImportGroup:
            f.window()->addImportedRecords(PB_MEM_LOCAL, Contacts::records(PB_MEM_LOCAL, "New", m_n), group);
            break;
        case CopyCard:
            f.in().dragSource() = PB_MEM_LOCAL;
            f.in().dropMemory() = PB_MEM_SIM;
            f.window()->initThreadForMoveorCopy(true, Contacts::records(PB_MEM_SIM, "New", m_n), 0, ADDRBOOK_OP_COPY);
            break;
        }
    }

    // Records processed, as the store tells it.
    int done() const
    {
        switch (m_kind) {
        case DeleteCard:
            return m_n - FakeSdk::recordIds(0).size();
        case DeleteLocal:
            return m_n - FakeSdk::recordIds(4).size();
        case RemoveFromGroup:
            return m_n - FakeSdk::members(FakeSdk::groups().first().id).size();
        case ImportCard:
        case CopyCard:
            return FakeSdk::recordIds(0).size() - 2;
        case ImportGroup:
            return FakeSdk::members(FakeSdk::groups().first().id).size() - 2;
        }
        return -1;
    }

    // Rows that the node's table must show.
    int stored() const
    {
        return isOnCard()              ? FakeSdk::recordIds(0).size()
               : m_kind == DeleteLocal ? FakeSdk::recordIds(4).size()
                                       : FakeSdk::members(FakeSdk::groups().first().id).size();
    }

    // The message at the end; empty for none.
    QString alert(int done) const
    {
        if (m_kind == ImportCard || m_kind == ImportGroup)
            return QString("IDS_IMPORT_TOTAL_NUMBER%1IDS_IMPORT_IMPORTED_NUMBER%2").arg(m_n).arg(done);
        if (m_kind == CopyCard)
            return QString("IDS_COPY_COMPLETE IDS_TOTAL_COUNT%1IDS_SUCCESS_COUNT%2").arg(m_n).arg(done);
        return QString();
    }

private:
    Kind m_kind;
    int m_n;
};

Q_DECLARE_METATYPE(BatchFlow::Kind)

#endif // TESTS_GUI_CONTACTS_BATCHFLOWS_H
