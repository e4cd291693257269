#ifndef LINKHAND_SIBLINGS_MESSAGEWINDOWS_H
#define LINKHAND_SIBLINGS_MESSAGEWINDOWS_H

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include "shared/HostLink.h"

class MessageWindow;

// The open editors of a messaging plug-in, each in a window of its own beside the main window.
class MessageWindows : public QObject
{
    Q_OBJECT

public:
    MessageWindows(const QString& strPlugin, HostMessageKind enKind);

    // Closes all; what was written and not sent is kept as drafts.
    ~MessageWindows() override;

    // See IMessageForms::OpenMessage.
    void Open(const QStringList& lstNumbers, const QString& strText, const QString& strSubject = QString(),
              int iId = 0);
    void Retranslate();

private:
    const QString m_strPlugin;
    const HostMessageKind m_enKind;
    QList<QPointer<MessageWindow>> m_listWindows;
};

#endif // LINKHAND_SIBLINGS_MESSAGEWINDOWS_H
