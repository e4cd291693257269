#include "widgets/ContactPreview.h"

#include <QDesktopServices>
#include <QImage>
#include <QStringList>
#include <QTextDocument>
#include <QUrl>

ContactPreview::ContactPreview(QWidget* pParent) : QTextBrowser(pParent)
{
    // By itself a browser would open whatever any program is registered for, and show a file in its own place.
    setOpenLinks(false);
    connect(this, SIGNAL(anchorClicked(QUrl)), this, SLOT(OnLink(QUrl)));
}

// Nothing valid would send Qt to the disk after all.
QVariant ContactPreview::loadResource(int iType, const QUrl&)
{
    if (iType != QTextDocument::ImageResource)
        return QByteArray("");
    QImage image(1, 1, QImage::Format_ARGB32);
    image.fill(0);
    return image;
}

void ContactPreview::OnLink(const QUrl& url)
{
    const QStringList lstSchemes = QStringList()
                                   << QLatin1String("http") << QLatin1String("https") << QLatin1String("mailto")
                                   << QLatin1String("tel") << QLatin1String("sms");
    if (lstSchemes.contains(url.scheme().toLower()))
        QDesktopServices::openUrl(url);
}
