#ifndef ADDRBOOKUIPLUGIN_CONTACTFILE_H
#define ADDRBOOKUIPLUGIN_CONTACTFILE_H

#include <QList>
#include <QString>

#include "logic/AddrBookTypes.h"

class QWidget;

// A file of contacts as the window deals with it: by its path, its column titles and the columns' positions. What is in
// it is the SDK's business. User-interface thread.
namespace ContactFile
{

// What a file dialog starts with, and offers.
QString startPath();
QString filter();

// The path with ".csv" behind it, unless it has an extension of three letters.
QString withExtension(const QString& strFile);

// The titles of a file's columns; empty for a file that the SDK does not take.
QList<QString> titles(const QString& strPath);

// For each field of a memory the position of its column among the titles, -1 for a blank, which is a field without one.
// A title that stands twice means the later column; a text that is no title, as of a row beyond the fields, adds
// nothing.
QList<int> positions(const QList<QString>& lstTexts, const QList<QString>& lstTitles);

// Lets the user map the titles to the memory's fields. True with the positions if the user confirmed.
bool askPositions(QWidget* pParent, const QString& strSource, _ORVA_EN_PHONEBOOK_MEMORY enMemory,
                  const QList<QString>& lstTitles, QList<int>& lstPositions);

} // namespace ContactFile

#endif // ADDRBOOKUIPLUGIN_CONTACTFILE_H
