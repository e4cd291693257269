#ifndef ADDRBOOKUIPLUGIN_RECORDREADER_H
#define ADDRBOOKUIPLUGIN_RECORDREADER_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVector>

#include "logic/AddrBookTypes.h"

// Reads contacts from the SDK's handles by a memory's field list. The keys are turned into the SDK's form once, so that
// a walk over many records does not pay for it at each value. Any thread; one walk an object.
class RecordReader
{
public:
    explicit RecordReader(const QList<AddrBookField>& lstFields);

    // One value of a set's current record. False, with the text left alone, if the SDK refuses.
    bool readSetValue(void* hAddrRecordSet, int iField, QString& strValue) const;

    // Identifier and values of a set's current record, which is to come in empty. False at the first failure.
    bool readSetRecord(void* hAddrRecordSet, AddrBookRecord& record) const;

    // Appends the values of a record handle. False at the first failure; what was read before stays.
    bool readRecord(void* hAddrRecord, QList<QString>& lstValues) const;

private:
    QVector<QByteArray> m_vecKeys;
};

// The identifier of a set's current record. False if the SDK refuses.
bool readSetId(void* hAddrRecordSet, int& iID);

#endif // ADDRBOOKUIPLUGIN_RECORDREADER_H
