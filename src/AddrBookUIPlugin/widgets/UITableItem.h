#ifndef ADDRBOOKUIPLUGIN_UITABLEITEM_H
#define ADDRBOOKUIPLUGIN_UITABLEITEM_H

#include <QString>
#include <QTableWidgetItem>

class QTextCodec;

// A cell or a header item of the contact table: a plain item with the sort rule of the phonebook.
class UITableItem : public QTableWidgetItem
{
public:
    UITableItem();
    explicit UITableItem(const QString& strText);

    bool operator<(const QTableWidgetItem& other) const override;
    void setData(int iRole, const QVariant& value) override;

    // The rule itself. Case counts only between texts that are otherwise the same. With a codec, texts are compared as
    // the bytes it gives, without one (null) as Unicode.
    static bool lessThan(const QString& strA, const QString& strB, const QTextCodec* pcodec);

private:
    enum { s_iType = UserType + 1 };
    enum KeyState { KEY_UNKNOWN, KEY_NONE, KEY_READY };

    QString displayText() const;
    bool makeKey() const;

    // The text with its case folded away, for sorting without a codec, made at the first comparison. Its first four
    // characters stand in a number, so that most comparisons look no further than at the two items.
    mutable QString m_strKey;
    mutable quint64 m_ullKeyHead;
    mutable KeyState m_enKeyState;
};

#endif // ADDRBOOKUIPLUGIN_UITABLEITEM_H
