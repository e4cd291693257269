#include "widgets/UITableItem.h"

#include <QByteArray>
#include <QTextCodec>
#include <QVariant>

namespace
{
// Asked for once: a lookup takes a lock and walks all codecs, and a sort of 50,000 rows compares nearly a million
// times.
const QTextCodec* systemCodec()
{
    static const QTextCodec* const s_pcodec = QTextCodec::codecForName("System");
    return s_pcodec;
}
} // namespace

UITableItem::UITableItem() : QTableWidgetItem() {}

UITableItem::UITableItem(const QString& strText) : QTableWidgetItem(strText) {}

bool UITableItem::operator<(const QTableWidgetItem& other) const
{
    return lessThan(data(Qt::DisplayRole).toString(), other.data(Qt::DisplayRole).toString(), systemCodec());
}

bool UITableItem::lessThan(const QString& strA, const QString& strB, const QTextCodec* pcodec)
{
    if (pcodec != nullptr) {
        QByteArray baA = pcodec->fromUnicode(strA.toLower());
        QByteArray baB = pcodec->fromUnicode(strB.toLower());
        if (baA == baB) {
            baA = pcodec->fromUnicode(strA);
            baB = pcodec->fromUnicode(strB);
        }
        return baA < baB;
    }
    int iOrder = QString::compare(strA, strB, Qt::CaseInsensitive);
    if (iOrder == 0)
        iOrder = QString::compare(strA, strB, Qt::CaseSensitive);
    return iOrder < 0;
}
