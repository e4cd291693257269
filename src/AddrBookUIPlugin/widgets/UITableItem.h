#ifndef ADDRBOOKUIPLUGIN_UITABLEITEM_H
#define ADDRBOOKUIPLUGIN_UITABLEITEM_H

#include <QString>
#include <QTableWidgetItem>

class CaselessText;
class QTextCodec;

// A cell or a header item of the contact table: a plain item with the sort rule of the phonebook. A cell's own values
// stand in members up to the first change: a plain item keeps each in a list on the heap, and large tables spend most
// of their time on making and freeing those.
class UITableItem : public QTableWidgetItem
{
public:
    UITableItem();
    explicit UITableItem(const QString& strText);

    // A cell: a text, its alignment, and a number under Qt::UserRole.
    UITableItem(const QString& strText, Qt::Alignment alignment, qlonglong iUserData);

    bool operator<(const QTableWidgetItem& other) const override;
    QVariant data(int iRole) const override;
    void setData(int iRole, const QVariant& value) override;

    // Whether the item's text holds another; for any item, and quick for a cell.
    static bool Holds(const QTableWidgetItem* pitem, const CaselessText& text);

    // Tells the processor that an item, and later that its text will be looked at soon: in a large table each lies in
    // memory that would be waited for.
    static void Announce(const QTableWidgetItem* pitem);
    static void AnnounceText(const QTableWidgetItem* pitem);

    // The rule itself. Case counts only between texts that are otherwise the same. With a codec, texts are compared as
    // the bytes it gives, without one (null) as Unicode.
    static bool lessThan(const QString& strA, const QString& strB, const QTextCodec* pcodec);

private:
    enum { s_iType = UserType + 1 };
    enum KeyState { KEY_UNKNOWN, KEY_NONE, KEY_READY };

    QString displayText() const;
    bool makeKey() const;
    void moveToBase();

    bool m_bOwnValues; // the next three count, and the plain item has no values
    QString m_strText;
    int m_iAlignment;
    qlonglong m_iUserData;

    // The text with its case folded away, for sorting without a codec, made at the first comparison. Its first four
    // characters stand in a number, so that most comparisons look no further than at the two items.
    mutable QString m_strKey;
    mutable quint64 m_ullKeyHead;
    mutable KeyState m_enKeyState;
};

#endif // ADDRBOOKUIPLUGIN_UITABLEITEM_H
