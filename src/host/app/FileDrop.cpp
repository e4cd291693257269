#include "app/FileDrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include "requests/Request.h"

namespace
{

QStringList contactFilesIn(const QMimeData* pData)
{
    QStringList lstUrls;
    if (pData == nullptr) {
        return lstUrls;
    }
    foreach (const QUrl& url, pData->urls()) {
        const QString strUrl = QString::fromLatin1(url.toEncoded());
        if (Request::Of(strUrl).enKind == Request::CARDS) {
            lstUrls.append(strUrl);
        }
    }
    return lstUrls;
}

} // namespace

FileDrop::FileDrop(QWidget* pWindow) : QObject(pWindow)
{
    pWindow->setAcceptDrops(true);
    pWindow->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* pObject, QEvent* pEvent)
{
    const bool bDrop = pEvent->type() == QEvent::Drop;
    if (!bDrop && pEvent->type() != QEvent::DragEnter && pEvent->type() != QEvent::DragMove) {
        return QObject::eventFilter(pObject, pEvent);
    }
    QDropEvent* pDrop = static_cast<QDropEvent*>(pEvent);
    const QStringList lstUrls = contactFilesIn(pDrop->mimeData());
    if (lstUrls.isEmpty() || (pDrop->possibleActions() & Qt::CopyAction) == 0) {
        return QObject::eventFilter(pObject, pEvent);
    }
    pDrop->setDropAction(Qt::CopyAction);
    pDrop->accept();
    if (bDrop) {
        emit dropped(lstUrls);
    }
    return true;
}
