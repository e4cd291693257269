#include <QTableWidget>
#include <QTextCodec>
#include <QtTest>

#include "widgets/UITableItem.h"

// The order of the contact table's cells.
class SortRuleTest : public QObject
{
    Q_OBJECT

private slots:
    void withoutACodecTextsCompareAsUnicode_data();
    void withoutACodecTextsCompareAsUnicode();
    void withACodecTextsCompareAsItsBytes_data();
    void withACodecTextsCompareAsItsBytes();
    void theTwoWaysDifferOutsideAscii();
    void upperCaseComesFirstInAscendingOrder();
    void anItemOfAnotherClassIsComparedByItsText();
    void anItemWithoutTextComesFirst();
    void headerItemsKeepTheirText();
    void aCellHasItsValuesFromTheStart();
    void aCellKeepsItsOtherValuesWhenOneChanges_data();
    void aCellKeepsItsOtherValuesWhenOneChanges();
};

namespace
{
void addOrders()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("letters") << "Anna"
                             << "Bob";
    QTest::newRow("case does not matter between letters") << "anna"
                                                          << "Bob";
    QTest::newRow("nor the other way") << "Anna"
                                       << "bob";
    QTest::newRow("upper before lower in the same text") << "ANNA"
                                                         << "anna";
    QTest::newRow("the first capital decides") << "AnnA"
                                               << "Anna";
    QTest::newRow("a prefix first") << "Ann"
                                    << "anna";
    QTest::newRow("empty first") << ""
                                 << "a";
    QTest::newRow("digits as characters") << "10"
                                          << "9";
    QTest::newRow("digits before letters") << "1"
                                           << "a";
}
} // namespace

void SortRuleTest::withoutACodecTextsCompareAsUnicode_data()
{
    addOrders();
    QTest::newRow("behind ASCII") << "z" << QString::fromUtf8("é");
    QTest::newRow("capital with accent") << QString::fromUtf8("É") << QString::fromUtf8("é");
    QTest::newRow("scripts by code point") << QString::fromUtf8("я") << QString::fromUtf8("你");
}

void SortRuleTest::withoutACodecTextsCompareAsUnicode()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QVERIFY(UITableItem::lessThan(first, second, nullptr));
    QVERIFY(!UITableItem::lessThan(second, first, nullptr));
    QVERIFY(!UITableItem::lessThan(first, first, nullptr));
}

void SortRuleTest::withACodecTextsCompareAsItsBytes_data()
{
    addOrders();
}

void SortRuleTest::withACodecTextsCompareAsItsBytes()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    for (const char* name : {"UTF-8", "ISO-8859-1"}) {
        const QTextCodec* codec = QTextCodec::codecForName(name);
        QVERIFY(codec);
        QVERIFY(UITableItem::lessThan(first, second, codec));
        QVERIFY(!UITableItem::lessThan(second, first, codec));
        QVERIFY(!UITableItem::lessThan(first, first, codec));
    }
}

// What an encoding does not have becomes a question mark, and the order is that of the marks.
void SortRuleTest::theTwoWaysDifferOutsideAscii()
{
    const QTextCodec* latin = QTextCodec::codecForName("ISO-8859-1");
    const QString cyrillic = QString::fromUtf8("я");
    QVERIFY(UITableItem::lessThan("a", cyrillic, nullptr));
    QVERIFY(UITableItem::lessThan(cyrillic, "a", latin)); // "?" before "a"
    const QString other = QString::fromUtf8("ю");
    QVERIFY(UITableItem::lessThan(other, cyrillic, nullptr));
    QVERIFY(!UITableItem::lessThan(other, cyrillic, latin));
    QVERIFY(!UITableItem::lessThan(cyrillic, other, latin));
}

void SortRuleTest::upperCaseComesFirstInAscendingOrder()
{
    QTableWidget table(5, 1);
    const QStringList texts = {"bob", "anna", "Bob", "ANNA", "Anna"};
    for (int row = 0; row < texts.size(); ++row)
        table.setItem(row, 0, new UITableItem(texts.at(row)));
    table.sortItems(0, Qt::AscendingOrder);
    QStringList sorted;
    for (int row = 0; row < table.rowCount(); ++row)
        sorted << table.item(row, 0)->text();
    QCOMPARE(sorted, (QStringList{"ANNA", "Anna", "anna", "Bob", "bob"}));
    table.sortItems(0, Qt::DescendingOrder);
    sorted.clear();
    for (int row = 0; row < table.rowCount(); ++row)
        sorted << table.item(row, 0)->text();
    QCOMPARE(sorted, (QStringList{"bob", "Bob", "anna", "Anna", "ANNA"}));
}

void SortRuleTest::anItemOfAnotherClassIsComparedByItsText()
{
    const UITableItem a("a");
    const QTableWidgetItem b("B");
    QVERIFY(a < b);
    QVERIFY(!(UITableItem("c") < b));
}

void SortRuleTest::anItemWithoutTextComesFirst()
{
    const UITableItem none;
    QVERIFY(none < UITableItem("a"));
    QVERIFY(!(none < UITableItem("")));
    QVERIFY(!(UITableItem("") < none));
}

void SortRuleTest::headerItemsKeepTheirText()
{
    QTableWidget table(0, 1);
    auto* header = new UITableItem;
    table.setHorizontalHeaderItem(0, header);
    header->setText("Name");
    QCOMPARE(table.horizontalHeaderItem(0)->text(), QString("Name"));
}

void SortRuleTest::aCellHasItsValuesFromTheStart()
{
    const UITableItem item("text", Qt::AlignLeft | Qt::AlignBottom, Q_INT64_C(0x123456789a));
    QCOMPARE(item.text(), QString("text"));
    QCOMPARE(item.data(Qt::EditRole), QVariant("text"));
    QCOMPARE(item.textAlignment(), int(Qt::AlignLeft | Qt::AlignBottom));
    QCOMPARE(item.data(Qt::UserRole), QVariant(Q_INT64_C(0x123456789a)));
    QVERIFY(!item.data(Qt::CheckStateRole).isValid());
    QVERIFY(!item.data(Qt::UserRole + 1).isValid());
}

void SortRuleTest::aCellKeepsItsOtherValuesWhenOneChanges_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text") << int(Qt::DisplayRole) << QVariant("other");
    QTest::newRow("edited text") << int(Qt::EditRole) << QVariant("other");
    QTest::newRow("alignment") << int(Qt::TextAlignmentRole) << QVariant(int(Qt::AlignRight));
    QTest::newRow("user data") << int(Qt::UserRole) << QVariant(Q_INT64_C(8));
    QTest::newRow("tool tip") << int(Qt::ToolTipRole) << QVariant("tip");
}

void SortRuleTest::aCellKeepsItsOtherValuesWhenOneChanges()
{
    QFETCH(int, role);
    QFETCH(QVariant, value);
    QTableWidget table(1, 1);
    auto* item = new UITableItem("text", Qt::AlignLeft, 7);
    table.setItem(0, 0, item);
    const QSignalSpy spy(&table, SIGNAL(itemChanged(QTableWidgetItem*)));
    item->setData(role, value);
    QVERIFY(!spy.isEmpty());
    QVERIFY(spy.size() == 1 || item->text() == "text"); // a changed text is told once
    const QList<int> roles = {Qt::DisplayRole, Qt::TextAlignmentRole, Qt::UserRole, Qt::ToolTipRole};
    const QList<QVariant> before = {"text", int(Qt::AlignLeft), Q_INT64_C(7), QVariant()};
    for (int i = 0; i < roles.size(); ++i) {
        const bool changed = roles.at(i) == (role == Qt::EditRole ? int(Qt::DisplayRole) : role);
        QCOMPARE(item->data(roles.at(i)), changed ? value : before.at(i));
    }
    const UITableItem other("tex", Qt::AlignLeft, 0);
    QCOMPARE(*item < other, item->text() == "other");
}

QTEST_MAIN(SortRuleTest)
#include "SortRuleTest.moc"
