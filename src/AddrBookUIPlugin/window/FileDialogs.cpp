#include "window/FileDialogs.h"

#include <QFileDialog>

namespace
{
FileDialogs::Chooser s_pOpen = nullptr;
FileDialogs::Chooser s_pSave = nullptr;
} // namespace

namespace FileDialogs
{

QString open(QWidget* pParent, const QString& strTitle, const QString& strStart, const QString& strFilter)
{
    if (s_pOpen != nullptr)
        return s_pOpen(pParent, strTitle, strStart, strFilter);
    return QFileDialog::getOpenFileName(pParent, strTitle, strStart, strFilter);
}

QString save(QWidget* pParent, const QString& strTitle, const QString& strStart, const QString& strFilter)
{
    if (s_pSave != nullptr)
        return s_pSave(pParent, strTitle, strStart, strFilter);
    return QFileDialog::getSaveFileName(pParent, strTitle, strStart, strFilter);
}

void setChoosers(Chooser pOpen, Chooser pSave)
{
    s_pOpen = pOpen;
    s_pSave = pSave;
}

} // namespace FileDialogs
