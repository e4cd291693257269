#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QStandardItemModel>
#include <QTreeWidget>
#include <QtTest>

#include "widgets/GridDelegate.h"

namespace
{
template <class Base>
class Opened : public Base
{
public:
    Opened() : Base(nullptr) {}
    using Base::drawDisplay;
    using Base::drawFocus;
};
} // namespace

// The delegates of the views: no focus frame, and the editor of group names.
class DelegateTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QApplication::setLayoutDirection(Qt::LeftToRight); }

    void noFocusFrameIsDrawn()
    {
        checkFocus(Opened<GridDelegate>());
        checkFocus(Opened<TreeDelegate>());
        checkFocus(Opened<SCDelegate>());
    }

    // From right to left a Latin text is cut off at its own end, and the plus sign of a number stays in front.
    void fromRightToLeftATextKeepsItsOwnDirection_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("a cut off name") << "Aaron Zimmermann" << false;
        QTest::newRow("a number") << "+4917" << false;
        QTest::newRow("an Arabic name") << QString::fromUtf8("محمد العلي وفاطمة حسن") << true;
    }
    void fromRightToLeftATextKeepsItsOwnDirection()
    {
        QFETCH(QString, text);
        QFETCH(bool, rightToLeft);
        QStyleOptionViewItem option;
        option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
        option.direction = Qt::RightToLeft;
        option.textElideMode = Qt::ElideRight;
        const QImage drawn = pictureOf(Opened<GridDelegate>(), option, text);
        if (!rightToLeft) {
            option.direction = Qt::LeftToRight;
            option.displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
        }
        QCOMPARE(drawn, pictureOf(Opened<QItemDelegate>(), option, text));
        option.direction = rightToLeft ? Qt::LeftToRight : Qt::RightToLeft;
        option.displayAlignment = rightToLeft ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter;
        QVERIFY(drawn != pictureOf(Opened<QItemDelegate>(), option, text));
    }

    void anEditorTakesThirtyTwoCharacters_data()
    {
        QTest::addColumn<bool>("rightToLeft");
        QTest::addColumn<int>("widest");
        QTest::newRow("left to right") << false << 32;
        QTest::newRow("right to left") << true << QWIDGETSIZE_MAX;
    }
    void anEditorTakesThirtyTwoCharacters()
    {
        QFETCH(bool, rightToLeft);
        QFETCH(int, widest);
        QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        QStandardItemModel model;
        model.appendRow(new QStandardItem("Friends"));
        const TreeDelegate delegate(nullptr);
        QWidget parent;
        auto* editor = qobject_cast<QLineEdit*>(delegate.createEditor(&parent, {}, model.index(0, 0)));
        QVERIFY(editor);
        QCOMPARE(editor->parentWidget(), &parent);
        QCOMPARE(editor->maxLength(), 32);
        QCOMPARE(editor->maximumWidth(), widest);
        QTest::keyClicks(editor, QString(40, 'x'));
        QCOMPARE(editor->text().size(), 32);
        editor->clear();
        editor->insert(QString(40, QChar(0x4f60)));
        QCOMPARE(editor->text().size(), 32);
    }

    void anEditorInTheTreeIsTheDelegates()
    {
        QTreeWidget tree;
        TreeDelegate delegate(nullptr);
        tree.setItemDelegate(&delegate);
        auto* node = new QTreeWidgetItem(&tree, QStringList("Friends"));
        node->setFlags(node->flags() | Qt::ItemIsEditable);
        tree.show();
        tree.editItem(node);
        auto* editor = tree.findChild<QLineEdit*>();
        QVERIFY(editor);
        QCOMPARE(editor->maxLength(), 32);
    }

    void aMissingEditorIsPassedOn()
    {
        const TreeDelegate delegate(nullptr);
        QWidget parent;
        QVERIFY(delegate.createEditor(&parent, {}, QModelIndex()) == nullptr);
    }

    void otherEditorsAreLeftAlone()
    {
        QStandardItemModel model;
        auto* item = new QStandardItem;
        item->setData(42, Qt::EditRole);
        model.appendRow(item);
        const TreeDelegate delegate(nullptr);
        QWidget parent;
        QWidget* editor = delegate.createEditor(&parent, {}, model.index(0, 0));
        QVERIFY(editor);
        QVERIFY(!qobject_cast<QLineEdit*>(editor));
        QCOMPARE(editor->maximumWidth(), QWIDGETSIZE_MAX);
    }

private:
    template <class Delegate>
    QImage pictureOf(const Delegate& delegate, const QStyleOptionViewItem& option, const QString& text)
    {
        QImage image(80, 20, QImage::Format_ARGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        delegate.drawDisplay(&painter, option, image.rect(), text);
        return image;
    }

    template <class Delegate>
    void checkFocus(const Delegate& delegate)
    {
        QImage image(20, 20, QImage::Format_ARGB32);
        image.fill(Qt::blue);
        const QImage before = image;
        QPainter painter(&image);
        painter.setPen(QPen(Qt::red, 3));
        QStyleOptionViewItem option;
        delegate.drawFocus(&painter, option, image.rect());
        QCOMPARE(painter.pen().color(), QColor(Qt::red)); // no focus, nothing set
        option.state |= QStyle::State_HasFocus;
        delegate.drawFocus(&painter, option, image.rect());
        QCOMPARE(painter.pen().color(), QColor(Qt::white));
        QCOMPARE(painter.pen().width(), 0);
        painter.end();
        QCOMPARE(image, before);
    }
};

QTEST_MAIN(DelegateTest)
#include "DelegateTest.moc"
