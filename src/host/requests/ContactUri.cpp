#include "requests/ContactUri.h"

#include <QList>
#include <QRegExp>

namespace
{

const int URI_LIMIT = 8192;
const int NUMBER_LIMIT = 40; // what a card may hold
const int NUMBERS_LIMIT = 50;
const int TEXT_LIMIT = 4000; // some 26 short messages

bool isHex(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// Every "%" must stand before two digits (RFC 3986); Qt's own function takes what is none as it stands.
bool decode(const QByteArray& encoded, QString& strDecoded)
{
    for (int i = 0; i < encoded.size(); ++i) {
        if (encoded.at(i) == '%' &&
            (i + 2 >= encoded.size() || !isHex(encoded.at(i + 1)) || !isHex(encoded.at(i + 2)))) {
            return false;
        }
    }
    const QByteArray octets = QByteArray::fromPercentEncoding(encoded);
    strDecoded = QString::fromUtf8(octets.constData(), int(octets.size()));
    return strDecoded.toUtf8() == octets;
}

bool isControl(QChar c)
{
    return c.unicode() < 0x20 || (c.unicode() >= 0x7f && c.unicode() < 0xa0);
}

// What stands in numbers for the eye alone.
QString withoutSeparators(const QString& strText, const char* pszSeparators)
{
    QString strLeft;
    foreach (const QChar c, strText) {
        if (!QString::fromLatin1(pszSeparators).contains(c)) {
            strLeft.append(c);
        }
    }
    return strLeft;
}

// Parameters behind a number: of no use here but for an extension, and well-formed all the same.
bool takeParameter(const QByteArray& parameter, QString& strExtension)
{
    const int iEquals = parameter.indexOf('=');
    const QString strName = QString::fromLatin1(iEquals < 0 ? parameter : parameter.left(iEquals)).toLower();
    QString strValue;
    if (!QRegExp(QLatin1String("[a-z0-9-]+")).exactMatch(strName) ||
        (iEquals >= 0 && !decode(parameter.mid(iEquals + 1), strValue))) {
        return false;
    }
    if (!QRegExp(QLatin1String("[][/:&+$A-Za-z0-9_.!~*'()-]*")).exactMatch(strValue)) {
        return false;
    }
    if (strName == QLatin1String("ext")) {
        strExtension = withoutSeparators(strValue, "().-");
        return QRegExp(QLatin1String("[0-9]{1,10}")).exactMatch(strExtension);
    }
    return true;
}

// A number with its parameters ("telephone-subscriber" of RFC 3966), which may be a code.
bool takeSubscriber(const QByteArray& encoded, ContactUri& uri)
{
    QList<QByteArray> listParts = encoded.split(';');
    QString strNumber;
    if (!decode(listParts.takeFirst(), strNumber)) {
        return false;
    }
    strNumber = withoutSeparators(strNumber, " ().-");
    if (strNumber.length() > NUMBER_LIMIT || !QRegExp(QLatin1String("\\+[0-9]+|[0-9*#]+")).exactMatch(strNumber)) {
        return false;
    }
    foreach (const QByteArray& parameter, listParts) {
        if (!takeParameter(parameter, uri.strExtension)) {
            return false;
        }
    }
    uri.lstNumbers.append(strNumber);
    return true;
}

bool isCode(const QStringList& lstNumbers)
{
    foreach (const QString& strNumber, lstNumbers) {
        if (strNumber.contains(QLatin1Char('*')) || strNumber.contains(QLatin1Char('#'))) {
            return true;
        }
    }
    return false;
}

bool takeText(const QByteArray& encoded, QString& strText)
{
    if (!decode(encoded, strText)) {
        return false;
    }
    strText.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (strText.length() > TEXT_LIMIT) {
        return false;
    }
    foreach (const QChar c, strText) {
        if (isControl(c) && c != QLatin1Char('\n') && c != QLatin1Char('\t')) {
            return false;
        }
    }
    return true;
}

// "body=..." and fields that nobody knows, joined by "&".
bool takeFields(const QByteArray& fields, QString& strText)
{
    bool bBody = false;
    foreach (const QByteArray& field, fields.split('&')) {
        const int iEquals = field.indexOf('=');
        if (iEquals <= 0) {
            return false;
        }
        if (field.left(iEquals).toLower() != "body") {
            continue;
        }
        // Of two nobody knows which is meant.
        if (bBody || !takeText(field.mid(iEquals + 1), strText)) {
            return false;
        }
        bBody = true;
    }
    return true;
}

bool takeMessage(const QByteArray& rest, ContactUri& uri)
{
    const int iQuestion = rest.indexOf('?');
    const QByteArray numbers = iQuestion < 0 ? rest : rest.left(iQuestion);
    if (iQuestion >= 0 && !takeFields(rest.mid(iQuestion + 1), uri.strText)) {
        return false;
    }
    // Without a number there must be a text at least.
    if (numbers.isEmpty()) {
        return !uri.strText.isEmpty();
    }
    const QList<QByteArray> listNumbers = numbers.split(',');
    if (listNumbers.size() > NUMBERS_LIMIT) {
        return false;
    }
    foreach (const QByteArray& number, listNumbers) {
        if (!takeSubscriber(number, uri)) {
            return false;
        }
    }
    uri.strExtension.clear();
    return true;
}

} // namespace

ContactUri ContactUri::Of(const QByteArray& uri)
{
    ContactUri result;
    if (uri.size() > URI_LIMIT) {
        return result;
    }
    const QByteArray scheme = uri.left(uri.indexOf(':') + 1).toLower();
    const QByteArray rest = uri.mid(scheme.size());
    if (scheme == "tel:" && takeSubscriber(rest, result)) {
        result.enKind = CALL;
    } else if (scheme == "sms:" && takeMessage(rest, result)) {
        result.enKind = MESSAGE;
    } else {
        return ContactUri();
    }
    if (isCode(result.lstNumbers)) {
        result.enKind = CODE;
    }
    return result;
}
