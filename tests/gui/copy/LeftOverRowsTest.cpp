#include "../contacts/ContactsSupport.h"
#include "CopyFixture.h"

// A card is pulled out: its rows stay in the table under another node, and are still its own.
class LeftOverRowsTest : public WindowTest
{
    Q_OBJECT

private:
    // The card's rows in the table, the device's node current. Identifiers in both memories are the same.
    static void pullTheCardOut(CopyFixture& f)
    {
        FakeSdk::setDevicePresent(true);
        f.build();
        f.window()->OnDeviceStatusChanged(true);
        f.click(f.in().sim());
        QCOMPARE(f.column(0), QStringList{"Dora"});
        f.window()->OnSimStatusChanged(false);
        QVERIFY(f.in().sim() == nullptr);
        QCOMPARE(f.column(0), QStringList{"Dora"});
        QVERIFY(f.tree()->currentItem() != nullptr);
    }

    // The mouse takes a row by its left half; what a drag would carry.
    static QByteArray press(const CopyFixture& f, int row)
    {
        const QPoint point = f.table()->visualItemRect(f.table()->item(row, 0)).topLeft() + QPoint(5, 5);
        QTest::mousePress(f.table()->viewport(), Qt::LeftButton, Qt::NoModifier, point);
        QTest::mouseRelease(f.table()->viewport(), Qt::LeftButton, Qt::NoModifier, point);
        const TableRowData* data = tableRowData(f.table()->item(row, 0));
        return QByteArray::number(data->iRecordID) + "-1" + QByteArray::number(data->iGroupID) + "-1";
    }

private slots:
    void draggedRowIsNeverAnotherMemorysContact()
    {
        CopyFixture f;
        WindowFixture::fillStores();
        pullTheCardOut(f);
        QTreeWidgetItem* const target = f.tree()->currentItem() == f.in().local() ? f.in().device() : f.in().local();
        const int targetMemory = target == f.in().local() ? 4 : 1;
        const QList<QStringList> before = CopyFixture::all(targetMemory);
        const QByteArray ids = press(f, 0);
        QCOMPARE(f.in().dragSource(), PB_MEM_SIM);
        QCOMPARE(f.tree()->m_enDragMemory, PB_MEM_SIM);
        QMimeData rows;
        rows.setData("Text/stringids", ids);
        rows.setData("Text/colordata", QVariant(QColor(Qt::transparent)).toByteArray());
        if (f.hover(rows, target))
            f.release(rows, target);
        QVERIFY(f.waitDone());
        // The card's own contact at the most, while the SDK can still read it.
        QList<QStringList> after = CopyFixture::all(targetMemory);
        for (const QStringList& record : before)
            after.removeOne(record);
        for (const QStringList& record : after)
            QCOMPARE(record.value(0), QString("Dora"));
        FakeCore::clearMessages();
    }

    void clickOnTheNodeThatBecameCurrentReadsItsRows()
    {
        CopyFixture f;
        WindowFixture::fillStores();
        pullTheCardOut(f);
        const bool local = f.tree()->currentItem() == f.in().local();
        f.click(f.tree()->currentItem());
        QCOMPARE(f.column(0), local ? (QStringList{"Anna", "Bert", "Carl"}) : (QStringList{"Emil", "Frida"}));
    }

    // A contact that is saved meanwhile gets its row between those of the card.
    void dragCarriesNoRowOfAnotherMemory()
    {
        CopyFixture f;
        WindowFixture::fillStores();
        pullTheCardOut(f);
        _ORVA_EN_PHONEBOOK_MEMORY memory = PB_MEM_LOCAL;
        int group = 0;
        f.window()->getGroupId(memory, group);
        int row = 0;
        f.table()->setSortingEnabled(false);
        f.window()->addContactToTable(memory, AddrBookRecord{77, {"Zoe", "1"}}, 0, row);
        QCOMPARE(f.table()->rowCount(), 2);
        f.selectRows({0, 1});
        const auto carried = [&f](int pressed) {
            struct Table : AddrBookTableWidget {
                using AddrBookTableWidget::m_strDragData;
            };
            const QPoint point = f.table()->visualItemRect(f.table()->item(pressed, 0)).topLeft() + QPoint(5, 5);
            QTest::mousePress(f.table()->viewport(), Qt::LeftButton, Qt::NoModifier, point);
            const QString text = f.table()->*&Table::m_strDragData;
            QTest::mouseRelease(f.table()->viewport(), Qt::LeftButton, Qt::ControlModifier, point);
            f.selectRows({0, 1});
            return text;
        };
        QCOMPARE(carried(f.rowOf("Dora")), QString("1-10-1"));
        QCOMPARE(f.in().dragSource(), PB_MEM_SIM);
        QCOMPARE(carried(f.rowOf("Zoe")), QString("77-10-1"));
        QCOMPARE(f.in().dragSource(), memory);
    }
};

QTEST_MAIN(LeftOverRowsTest)
#include "LeftOverRowsTest.moc"
