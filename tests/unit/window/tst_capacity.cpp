#include <QtTest>

#include "window/Capacity.h"

class CapacityTest : public QObject
{
    Q_OBJECT

private:
    int m_figures[6];

    Capacity make()
    {
        return Capacity({m_figures[0], m_figures[1]}, {m_figures[2], m_figures[3]}, {m_figures[4], m_figures[5]});
    }
    QList<int> figures() const
    {
        QList<int> list;
        for (int figure : m_figures)
            list << figure;
        return list;
    }

private slots:
    void init() { std::fill(m_figures, m_figures + 6, 0); }

    void eachMemoryHasItsOwnFigures()
    {
        Capacity capacity = make();
        capacity.set(PB_MEM_SIM, 250, 3);
        capacity.set(PB_MEM_ME, 500, 4);
        capacity.set(PB_MEM_LOCAL, 1000, 5);
        capacity.set(PB_MEM_NONE, 1, 1);
        QCOMPARE(figures(), (QList<int>{3, 250, 4, 500, 5, 1000}));
    }

    void recordsAreFollowedOneByOne()
    {
        Capacity capacity = make();
        capacity.set(PB_MEM_ME, 10, 9);
        int total = -1;
        int used = -1;
        capacity.follow(PB_MEM_ME, ADDRBOOK_OP_ADD, total, used);
        QCOMPARE(total, 10);
        QCOMPARE(used, 10);
        capacity.follow(PB_MEM_ME, ADDRBOOK_OP_DELETE, total, used);
        capacity.follow(PB_MEM_ME, ADDRBOOK_OP_EDIT, total, used);
        QCOMPARE(used, 9);
        QCOMPARE(m_figures[2], 9);
        capacity.follow(PB_MEM_NONE, ADDRBOOK_OP_ADD, total, used);
        QCOMPARE(total, 0);
        QCOMPARE(used, 0);
    }

    void memoryThatIsNotReadyCountsAsRoom()
    {
        QVERIFY(Capacity::hasRoom(0, 0));
        QVERIFY(Capacity::hasRoom(0, 7));
        QVERIFY(Capacity::hasRoom(5, 4));
        QVERIFY(!Capacity::hasRoom(5, 5));
        QVERIFY(!Capacity::hasRoom(5, 6));
    }
};

QTEST_MAIN(CapacityTest)
#include "tst_capacity.moc"
