#include "single/Message.h"

#include <QList>

namespace
{

const char* const HEAD = "linkhand 1";

} // namespace

QByteArray Message::Of(const QStringList& lstTexts)
{
    QByteArray octets(HEAD);
    foreach (const QString& strText, lstTexts) {
        octets += '\0';
        octets += strText.toUtf8();
    }
    return lstTexts.size() <= TEXTS_LIMIT && octets.size() <= OCTETS_LIMIT ? octets : QByteArray();
}

bool Message::Read(const QByteArray& octets, QStringList& lstTexts)
{
    if (octets.size() > OCTETS_LIMIT) {
        return false;
    }
    QList<QByteArray> listTexts = octets.split('\0');
    if (listTexts.takeFirst() != HEAD || listTexts.size() > TEXTS_LIMIT) {
        return false;
    }
    QStringList lstRead;
    foreach (const QByteArray& text, listTexts) {
        const QString strText = QString::fromUtf8(text.constData(), int(text.size()));
        if (strText.toUtf8() != text) {
            return false;
        }
        lstRead.append(strText);
    }
    lstTexts = lstRead;
    return true;
}
