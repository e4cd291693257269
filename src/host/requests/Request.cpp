#include "requests/Request.h"

#include <QDir>
#include <QRegExp>
#include <QUrl>

#include "requests/ContactUri.h"

namespace
{

const int PATH_LIMIT = 4096;

// The file of a "file:" URL of this computer, or of a path; empty for anything else.
QString fileOf(const QString& strText)
{
    QString strFile = strText;
    if (strText.startsWith(QLatin1String("file:"), Qt::CaseInsensitive)) {
        const QUrl url(strText, QUrl::StrictMode);
        const QString strHost = url.host();
        if (!url.isValid() || (!strHost.isEmpty() && strHost != QLatin1String("localhost"))) {
            return QString();
        }
        strFile = url.path();
        if (!strFile.startsWith(QLatin1Char('/'))) {
            return QString();
        }
    } else if (QRegExp(QLatin1String("[A-Za-z][A-Za-z0-9+.-]*:.*")).exactMatch(strText)) {
        return QString(); // a URI of another kind
    }
    if (strFile.isEmpty() || strFile.length() > PATH_LIMIT || strFile.contains(QChar(0))) {
        return QString();
    }
    return QDir::cleanPath(QDir::current().absoluteFilePath(strFile));
}

bool isOfContacts(const QString& strFile)
{
    return strFile.endsWith(QLatin1String(".vcf"), Qt::CaseInsensitive) ||
           strFile.endsWith(QLatin1String(".vcard"), Qt::CaseInsensitive) ||
           strFile.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
}

} // namespace

Request Request::Of(const QString& strText)
{
    Request request;
    const ContactUri uri = ContactUri::Of(strText.toUtf8());
    if (uri.enKind != ContactUri::NONE) {
        request.enKind = uri.enKind == ContactUri::CALL ? CALL : uri.enKind == ContactUri::MESSAGE ? MESSAGE : CODE;
        request.lstNumbers = uri.lstNumbers;
        request.strExtension = uri.strExtension;
        request.strText = uri.strText;
        return request;
    }
    const QString strFile = fileOf(strText);
    if (isOfContacts(strFile)) {
        request.enKind = CARDS;
        request.strFile = strFile;
    }
    return request;
}

QString Request::Portable(const QString& strText)
{
    const Request request = Of(strText);
    return request.enKind == CARDS ? request.strFile : strText;
}
