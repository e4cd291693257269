#ifndef ADDRBOOKUIPLUGIN_CONTACTPREVIEW_H
#define ADDRBOOKUIPLUGIN_CONTACTPREVIEW_H

#include <QTextBrowser>

// The preview of a contact. A name may hold mark-up, and may be a stranger's that came by sync: only links to the web,
// to mail, calls and messages are opened, and nothing that mark-up names is read from the disk.
class ContactPreview : public QTextBrowser
{
    Q_OBJECT

public:
    explicit ContactPreview(QWidget* pParent);

    QVariant loadResource(int iType, const QUrl& url) override;

private slots:
    void OnLink(const QUrl& url);
};

#endif // ADDRBOOKUIPLUGIN_CONTACTPREVIEW_H
