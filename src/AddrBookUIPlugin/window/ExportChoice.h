#ifndef ADDRBOOKUIPLUGIN_EXPORTCHOICE_H
#define ADDRBOOKUIPLUGIN_EXPORTCHOICE_H

#include <QList>
#include <QPointer>

#include "logic/AddrBookTypes.h"

class QTableWidget;
class QWidget;

class AddrBookLogic;

// What an export takes: settled when the user asks for it, not when the file has been chosen.
struct ExportChoice {
    _ADDRBOOK_OPERATION_TYPE enOperation = ADDRBOOK_OP_NONE;
    _ORVA_EN_PHONEBOOK_MEMORY enMemory = PB_MEM_LOCAL;
    int iGroupId = 0;
    QList<int> lstIds;
    QPointer<QObject> pTable;
    bool bTable = false;    // there is a table
    bool bComplete = false; // and it has all its rows

    // The rows selected, or all, as a table shows them now; memory and group are the current node's.
    static ExportChoice of(QTableWidget* ptable, _ADDRBOOK_OPERATION_TYPE enOperation,
                           _ORVA_EN_PHONEBOOK_MEMORY enMemory, int iGroupId);

    // What the user asked for, when the file has been chosen: by then a batch's end may have reloaded the table, which
    // takes the selection along.
    ExportChoice followedBy(const ExportChoice& now) const;

    // Writes the file and tells the user. Nothing, an older file included, where nobody has asked for an export.
    void writeTo(const QString& strFile, AddrBookLogic* pLogic, QWidget* pParent) const;
};

#endif // ADDRBOOKUIPLUGIN_EXPORTCHOICE_H
