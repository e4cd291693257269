#ifndef LINKHAND_SIBLINGS_MESSAGEWINDOWS_H
#define LINKHAND_SIBLINGS_MESSAGEWINDOWS_H

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include "shared/HostLink.h"

class ExtendDialog;
class MessageEditor;

// The open editors of a messaging plug-in, each in a window of its own beside the main window.
class MessageWindows : public QObject
{
    Q_OBJECT

public:
    MessageWindows(const QString& strPlugin, HostMessageKind enKind);

    // Closes all.
    ~MessageWindows() override;

    void Open(const QStringList& lstNumbers, const QString& strText);
    void Retranslate();

private:
    const QString m_strPlugin;
    const HostMessageKind m_enKind;
    QList<QPointer<ExtendDialog>> m_listWindows;
};

#endif // LINKHAND_SIBLINGS_MESSAGEWINDOWS_H
