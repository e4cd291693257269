#ifndef LINKHAND_HOST_CARE_DETAILTASKS_H
#define LINKHAND_HOST_CARE_DETAILTASKS_H

#include <QByteArray>
#include <QList>
#include <QStringList>

#include "care/CareTask.h"

struct NamedContact {
    int iId = 0;
    QString strName;
    QString strNumber;
};

// Reads all contacts by name and number.
class ContactReading : public CareTask
{
public:
    ContactReading() : CareTask(READING) {}
    void Run() override;

    const QList<NamedContact>& Contacts() const { return m_listContacts; }

private:
    QList<NamedContact> m_listContacts;
};

// What is kept with a contact beside its fields.
struct KeptProperty {
    QString strHead;  // as "ADR;TYPE=HOME"
    QString strValue; // of ADR and ORG a line for each component
    bool bOctets = false;
};

// Reads that of one contact.
class KeptReading : public CareTask
{
public:
    explicit KeptReading(int iId) : CareTask(ASKING), m_iId(iId) {}
    void Run() override;

    int Id() const { return m_iId; }
    const QList<KeptProperty>& Properties() const { return m_listProperties; }

private:
    const int m_iId;
    QList<KeptProperty> m_listProperties;
};

// Changes one property, adds one (index -1), or takes one away (empty value). What another program has put in its place
// meanwhile is left alone: that gives ORVA_E_NOT_FOUND.
class KeptChange : public CareTask
{
public:
    KeptChange(int iId, int iIndex, const QString& strHead, const QString& strValue)
        : CareTask(WRITING), m_iId(iId), m_iIndex(iIndex), m_strHead(strHead), m_strValue(strValue)
    {
    }
    void Run() override;

private:
    long change(void* pRecord) const;

    const int m_iId;
    const int m_iIndex;
    const QString m_strHead;
    const QString m_strValue;
};

#endif // LINKHAND_HOST_CARE_DETAILTASKS_H
