#ifndef LINKHAND_HOST_CARE_IMPORTTEXT_H
#define LINKHAND_HOST_CARE_IMPORTTEXT_H

#include <QList>
#include <QString>
#include <QStringList>

#include "care/CareTable.h"
#include "care/ImportTasks.h"

// Imports in words.
namespace ImportText
{

// The titles of the columns name, number and what becomes of a contact.
QStringList Titles();
QList<CareRow> Rows(const QList<ImportRow>& listRows);

// What would come from a source, or what came from it.
QString Summary(bool bTry, const QString& strShown, const ORVA_IMPORT_COUNTS& counts);

// What to do with contacts that are there already, by ORVA_EXISTING_....
QStringList ExistingChoices();

// On the button that lists what was left.
QString Left(const FindingList& findings);

// True for a code that says that there is nothing to read.
bool IsOfSource(long nCode);

} // namespace ImportText

#endif // LINKHAND_HOST_CARE_IMPORTTEXT_H
