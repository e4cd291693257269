#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QStandardItemModel>
#include <QtTest>

#include "fakecore/FakeCore.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/GridDelegate.h"
#include "widgets/RowFont.h"

namespace
{
template <class Base>
class Opened : public Base
{
public:
    Opened() : Base(nullptr) {}
    using Base::drawDisplay;
};

QFont ofPoints(int points)
{
    QFont font = QApplication::font();
    font.setPointSize(points);
    return font;
}
} // namespace

// Rows have a fixed height; the user's letters are as large as that allows.
class RowFontTest : public QObject
{
    Q_OBJECT

private:
    // The first and the last line of pixels that are not blank, of a text drawn in a row of so many.
    template <class Delegate>
    static QPair<int, int> inkOf(int points, int height)
    {
        QImage image(400, 3 * height, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.font = ofPoints(points);
        option.fontMetrics = QFontMetrics(option.font);
        option.rect = QRect(0, height, 400, height);
        option.displayAlignment = Qt::AlignLeft | Qt::AlignBottom;
        option.palette.setColor(QPalette::Text, Qt::black);
        option.state = QStyle::State_Enabled | QStyle::State_Active;
        Opened<Delegate>().drawDisplay(&painter, option, option.rect, QString::fromUtf8("ÄÅgjpqyÇ|"));
        painter.end();
        QPair<int, int> ink(-1, -1);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) == qRgb(255, 255, 255))
                    continue;
                ink.first = ink.first < 0 ? y : ink.first;
                ink.second = y;
            }
        }
        return ink;
    }

private slots:
    void lineFitsIntoItsRow_data()
    {
        QTest::addColumn<int>("points");
        for (int points = 9; points <= 24; points += 5)
            QTest::newRow(qPrintable(QString::number(points))) << points;
    }
    void lineFitsIntoItsRow()
    {
        QFETCH(int, points);
        for (int height : {16, 20}) {
            const QFont fitting = fontFitting(ofPoints(points), height);
            QVERIFY(QFontMetrics(fitting).height() <= height);
            // And no smaller than it must be.
            QFont larger = fitting;
            larger.setPixelSize(QFontInfo(fitting).pixelSize() + 1);
            QVERIFY(fitting == ofPoints(points) || QFontMetrics(larger).height() > height);
        }
    }

    void largeLettersAreDrawnWhole_data()
    {
        QTest::addColumn<int>("points");
        for (int points : {9, 14, 24})
            QTest::newRow(qPrintable(QString::number(points))) << points;
    }
    void largeLettersAreDrawnWhole()
    {
        QFETCH(int, points);
        for (const QPair<int, int>& ink :
             {inkOf<GridDelegate>(points, 16), inkOf<TreeDelegate>(points, 16), inkOf<SCDelegate>(points, 16)}) {
            QVERIFY(ink.first >= 16);
            QVERIFY(ink.second <= 31);
        }
        // What was cut off would end at the row's border: the whole letters are as high as those of the font that fits.
        const QFontMetrics metrics(fontFitting(ofPoints(points), 16));
        const QRect whole = metrics.tightBoundingRect(QString::fromUtf8("ÄÅgjpqyÇ|"));
        const QPair<int, int> ink = inkOf<GridDelegate>(points, 16);
        QVERIFY2(qAbs(ink.second - ink.first + 1 - whole.height()) <= 2,
                 qPrintable(QString("%1 to %2, %3 high").arg(ink.first).arg(ink.second).arg(whole.height())));
    }

    void editorOfANodeHasTheLettersOfItsRow()
    {
        QStandardItemModel model;
        model.appendRow(new QStandardItem("Friends"));
        QWidget parent;
        QStyleOptionViewItem option;
        option.font = ofPoints(24);
        option.rect = QRect(0, 0, 200, 20);
        const QWidget* editor = TreeDelegate(nullptr).createEditor(&parent, option, model.index(0, 0));
        QVERIFY(QFontMetrics(editor->font()).height() <= 20);
    }

    // A screen reader hears why a table is empty, and no more once it is not.
    void tableIsDescribedAsItIs()
    {
        AddrBookTableWidget table(nullptr);
        table.setColumnCount(2);
        table.SetEmptyText("No contacts yet.");
        QCOMPARE(table.accessibleDescription(), QString("No contacts yet."));
        table.setRowCount(2);
        QCOMPARE(table.accessibleDescription(), QString());
        table.SetEmptyText("No contact matches the search.");
        QCOMPARE(table.accessibleDescription(), QString());
        table.removeRow(0);
        QCOMPARE(table.accessibleDescription(), QString());
        table.removeRow(0);
        QCOMPARE(table.accessibleDescription(), QString("No contact matches the search."));
    }
};

QTEST_MAIN(RowFontTest)
#include "RowFontTest.moc"
