#include <QTableWidget>
#include <QTextCodec>
#include <QtTest>

#include "widgets/UITableItem.h"

namespace
{
// An 8-bit encoding in which the letters stand in reverse order.
class ReversingCodec : public QTextCodec
{
public:
    QByteArray name() const override { return "System"; }
    int mibEnum() const override { return 4711; }

protected:
    QString convertToUnicode(const char* text, int length, ConverterState*) const override
    {
        return QString::fromLatin1(text, length);
    }
    QByteArray convertFromUnicode(const QChar* text, int length, ConverterState*) const override
    {
        QByteArray bytes;
        for (int i = 0; i < length; ++i)
            bytes.append(static_cast<char>(0x7f - text[i].cell() % 0x7f));
        return bytes;
    }
};
} // namespace

// On a system whose Qt names its own encoding, cells sort by the bytes of that.
class SystemCodecTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        new ReversingCodec; // Qt keeps it until the program ends
        QVERIFY(QTextCodec::codecForName("System"));
    }

    void cellsSortByTheSystemsEncoding()
    {
        QTableWidget table(3, 1);
        table.setItem(0, 0, new UITableItem("Anna"));
        table.setItem(1, 0, new UITableItem("bob"));
        table.setItem(2, 0, new UITableItem("Carl"));
        table.sortItems(0);
        QCOMPARE(table.item(0, 0)->text(), QString("Carl"));
        QCOMPARE(table.item(1, 0)->text(), QString("bob"));
        QCOMPARE(table.item(2, 0)->text(), QString("Anna"));
    }

    // Lower case comes first here, since the encoding turns the order of all letters.
    void textsEqualButForCaseFallBackToTheirBytes()
    {
        QVERIFY(UITableItem("anna") < UITableItem("Anna"));
        QVERIFY(!(UITableItem("Anna") < UITableItem("anna")));
    }
};

QTEST_MAIN(SystemCodecTest)
#include "SystemCodecTest.moc"
