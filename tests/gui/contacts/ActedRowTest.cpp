#include "ContactsSupport.h"

// Which row a flow acts on when the selected one is not the current one, or the table is read anew under the form.
class ActedRowTest : public WindowTest
{
    Q_OBJECT

private:
    // Selects rows as Ctrl and the mouse do; the last one named is current, whether it ends up selected or not.
    static void pick(const WindowFixture& f, const QStringList& selected, const QString& current)
    {
        QList<int> rows;
        for (const QString& name : selected)
            rows << f.rowOf(name);
        f.selectRows(rows);
        f.table()->selectionModel()->setCurrentIndex(f.table()->model()->index(f.rowOf(current), 0),
                                                     QItemSelectionModel::NoUpdate);
    }

    static QStringList shownAndStored(const WindowFixture& f)
    {
        QStringList list;
        for (int row = 0; row < f.table()->rowCount(); ++row) {
            const TableRowData* data = tableRowData(f.table()->item(row, 0));
            list << f.table()->item(row, 0)->text() + " is " + FakeSdk::record(data->enType, data->iRecordID).value(0);
        }
        return list;
    }

private slots:
    void editRewritesTheRowItReadWhicheverIsCurrent_data()
    {
        QTest::addColumn<QStringList>("selected");
        QTest::addColumn<QString>("current");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("two selected, the second current")
            << QStringList{"Anna", "Carl"} << "Carl" << QStringList{"Abel is Abel", "Bert is Bert", "Carl is Carl"};
        QTest::newRow("one selected, another current")
            << QStringList{"Anna"} << "Bert" << QStringList{"Abel is Abel", "Bert is Bert", "Carl is Carl"};
        QTest::newRow("the last selected, the first current")
            << QStringList{"Carl"} << "Anna" << QStringList{"Abel is Abel", "Anna is Anna", "Bert is Bert"};
    }
    void editRewritesTheRowItReadWhicheverIsCurrent()
    {
        QFETCH(QStringList, selected);
        QFETCH(QString, current);
        QFETCH(QStringList, shown);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        pick(f, selected, current);
        QStringList selectedUnderTheForm;
        FormUser user([&f, &selectedUnderTheForm](AddrBookEditDlgAccess form) {
            for (int row = 0; row < f.table()->rowCount(); ++row) {
                if (f.table()->item(row, 0)->isSelected())
                    selectedUnderTheForm << f.table()->item(row, 0)->text();
            }
            form.name()->setText("Abel");
            form.ok()->click();
        });
        f.window()->OnButtonClickedEditContact();
        QCOMPARE(user.forms(), 1);
        QCOMPARE(selectedUnderTheForm, selected);
        QCOMPARE(shownAndStored(f), shown);
    }

    void editFindsItsRowInTheTableReadUnderTheForm()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({f.rowOf("Bert")});
        FormUser user([&f](AddrBookEditDlgAccess form) {
            f.in().current() = nullptr;
            f.window()->OnTreeClicked(f.in().local());
            QVERIFY(f.waitRead());
            f.table()->setCurrentCell(f.rowOf("Carl"), 0);
            form.name()->setText("Abel");
            form.ok()->click();
        });
        f.window()->OnButtonClickedEditContact();
        QCOMPARE(user.forms(), 1);
        QCOMPARE(shownAndStored(f), (QStringList{"Abel is Abel", "Anna is Anna", "Carl is Carl"}));
    }

    void editOfAContactThatTheNewTableLacksRewritesNothing()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        f.selectRows({f.rowOf("Carl")});
        FormUser user([&f](AddrBookEditDlgAccess form) {
            f.window()->OnTreeClicked(f.node("Friends")); // Carl is not in it
            QVERIFY(f.waitRead());
            f.table()->setCurrentCell(0, 0);
            form.name()->setText("Abel");
            form.ok()->click();
        });
        f.window()->OnButtonClickedEditContact();
        QCOMPARE(shownAndStored(f), (QStringList{"Anna is Anna", "Bert is Bert"}));
        QCOMPARE(FakeSdk::record(4, 3).value(0), QString("Abel"));
    }

    void callDialsTheSelectedRowWhicheverIsCurrent()
    {
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        pick(f, {"Bert"}, "Carl");
        f.window()->OnButtonClickedCall();
        QCOMPARE(FakeCore::madeCalls().size(), 1);
        QCOMPARE(FakeCore::madeCalls().first().number, QString("444"));
        QCOMPARE(f.table()->selectedRanges().size(), 1);
        QCOMPARE(f.table()->selectedRanges().first().topRow(), f.rowOf("Bert"));
    }

    void callIsForOneRowAlone_data()
    {
        QTest::addColumn<bool>("oneRange");
        QTest::newRow("two ranges") << false;
        QTest::newRow("one range of two rows") << true;
    }
    void callIsForOneRowAlone()
    {
        QFETCH(bool, oneRange);
        WindowFixture f;
        WindowFixture::fillStores();
        f.build();
        if (oneRange)
            Contacts::selectRange(f, 0, 1);
        else
            pick(f, {"Anna", "Carl"}, "Carl");
        f.window()->OnButtonClickedCall();
        QVERIFY(FakeCore::madeCalls().isEmpty());
        QVERIFY(FakeCore::dialogs().isEmpty());
    }

    void newRowIsScrolledTo_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("first") << "Abel";
        QTest::newRow("last") << "Zoe";
    }
    void newRowIsScrolledTo()
    {
        QFETCH(QString, name);
        WindowFixture f;
        Contacts::fill(4, "Many", 200);
        f.build();
        f.table()->scrollToTop();
        FormUser user(name, "1");
        f.window()->OnButtonClickedNewContact();
        const QRect row = f.table()->visualItemRect(f.table()->item(f.rowOf(name), 0));
        QVERIFY(f.table()->viewport()->rect().contains(row));
    }
};

QTEST_MAIN(ActedRowTest)
#include "ActedRowTest.moc"
