#ifndef ADDRBOOKUIPLUGIN_FILEDIALOGS_H
#define ADDRBOOKUIPLUGIN_FILEDIALOGS_H

#include <QString>
#include <QWidget>

// The one seam in front of the file dialogs, at which a test gives the next answer. User-interface thread.
namespace FileDialogs
{

typedef QString (*Chooser)(QWidget* pParent, const QString& strTitle, const QString& strStart,
                           const QString& strFilter);

// The file that the user chose to open, or to save to; null when the user chose none.
QString open(QWidget* pParent, const QString& strTitle, const QString& strStart, const QString& strFilter);
QString save(QWidget* pParent, const QString& strTitle, const QString& strStart, const QString& strFilter);

// Answers in place of the dialogs; null brings a dialog back.
void setChoosers(Chooser pOpen, Chooser pSave);

} // namespace FileDialogs

#endif // ADDRBOOKUIPLUGIN_FILEDIALOGS_H
