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

    // The rule itself. Case counts only between texts that are otherwise the same. With a codec, texts are compared as
    // the bytes it gives, without one (null) as Unicode.
    static bool lessThan(const QString& strA, const QString& strB, const QTextCodec* pcodec);
};

#endif // ADDRBOOKUIPLUGIN_UITABLEITEM_H
