#ifndef LINKHAND_SHARED_MESSAGEFORMS_H
#define LINKHAND_SHARED_MESSAGEFORMS_H

#include <QObject>
#include <QString>
#include <QStringList>

// What this host's messaging plug-ins offer it beyond their services: a form for a message that is there already.
// User-interface thread only.
class IMessageForms
{
public:
    virtual ~IMessageForms() {}

    // Opens a form with these contents. iId is the draft or unsent message whose place the form's own takes, 0 for a
    // new one; one that is open already comes to the front.
    virtual void OpenMessage(int iId, const QStringList& lstNumbers, const QString& strSubject,
                             const QString& strText) = 0;
};

Q_DECLARE_INTERFACE(IMessageForms, "com.teskra.linkhand.host.IMessageForms")

#endif // LINKHAND_SHARED_MESSAGEFORMS_H
