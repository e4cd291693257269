#include <QImage>
#include <QTreeWidget>
#include <QtTest>

#include "logic/ItemData.h"
#include "window/TreeNodes.h"

class NodesTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    static AddrBookGroup* group(int id)
    {
        AddrBookGroup* made = new AddrBookGroup;
        made->iGroupID = id;
        return made;
    }
    static QTreeWidgetItem* node(QTreeWidgetItem* parent, qlonglong value)
    {
        QTreeWidgetItem* made = new QTreeWidgetItem(parent);
        TreeNodeData* data = new TreeNodeData;
        data->iMemoryOrGroup = value;
        made->setData(0, Qt::UserRole, pointerToCarrier(data));
        return made;
    }
    // Frames that tell themselves by their colour, black on their right half.
    QString strip() const
    {
        QImage image(7 * 16, 16, QImage::Format_RGB32);
        image.fill(Qt::black);
        for (int frame = 0; frame < 7; ++frame)
            for (int x = 0; x < 8; ++x)
                for (int y = 0; y < 16; ++y)
                    image.setPixel(frame * 16 + x, y, qRgb(10 * frame + 100, 0, 0));
        const QString file = m_folder.path() + "/strip";
        image.save(file, "PNG");
        return file;
    }
    static int red(const QIcon& icon, QIcon::Mode mode, int x)
    {
        return qRed(icon.pixmap(16, 16, mode, QIcon::Off).toImage().pixel(x, 8));
    }

private slots:
    void countsThatAreNotKnownShowAsNone()
    {
        QCOMPARE(TreeNodes::countText(3), QString("(3)"));
        QCOMPARE(TreeNodes::countText(-1), QString("(0)"));
        QCOMPARE(TreeNodes::countText(-1, 250), QString("(0/250)"));
    }

    void groupsAreTakenOnceAndNeverAsNoGroup()
    {
        const QList<AddrBookGroup*> all = {group(1), group(0), nullptr, group(2), group(1)};
        const QList<AddrBookGroup*> kept = TreeNodes::distinct(all);
        QCOMPARE(kept, (QList<AddrBookGroup*>{all.at(0), all.at(3)}));
        qDeleteAll(kept);
    }

    void whatIsBehindNodesGoesWithThem()
    {
        QTreeWidget tree;
        QTreeWidgetItem* memory = node(tree.invisibleRootItem(), PB_MEM_LOCAL);
        QTreeWidgetItem* friends = node(memory, pointerToCarrier(group(1)));
        node(friends, pointerToCarrier(group(2)));
        // One group more than nodes: it is freed, and the tree's are not.
        TreeNodes::freeLeftOver(&tree, {groupOf(treeNodeData(friends)), group(3)});
        QCOMPARE(groupOf(treeNodeData(friends))->iGroupID, 1);
        TreeNodes::freeBelow(memory);
        QCOMPARE(memory->childCount(), 0);
        TreeNodes::freeData(memory);
    }

    void selectedPictureOfAMemoryTurns()
    {
        QIcon left;
        TreeNodes::addPictures(strip(), TreeNodes::FRAME_MEMORY, false, left);
        QCOMPARE(red(left, QIcon::Normal, 2), 100);
        QCOMPARE(red(left, QIcon::Selected, 2), 110);
        QIcon right;
        TreeNodes::addPictures(strip(), TreeNodes::FRAME_MEMORY, true, right);
        QCOMPARE(red(right, QIcon::Normal, 2), 100);
        QCOMPARE(red(right, QIcon::Selected, 13), 110);
    }

    void groupHasOnePictureForBoth()
    {
        QIcon icon;
        TreeNodes::addPictures(strip(), TreeNodes::FRAME_GROUP, true, icon);
        QCOMPARE(red(icon, QIcon::Normal, 2), 160);
        QCOMPARE(red(icon, QIcon::Selected, 2), 160);
    }
};

QTEST_MAIN(NodesTest)
#include "tst_nodes.moc"
